#pragma once

#include <QWidget>

namespace kavro {

class CellEditor;
class GridView;
class Program;
class SubtitleDocument;

/// The editor page: preview lines, the grid that is the document, and the pages of its tools.
class EditorPageView : public QWidget
{
    Q_OBJECT

public:
    EditorPageView(Program &program, QWidget *parent);

    void focusGrid();
    /// Takes what was typed in a cell as if Enter had been pressed.
    void finishEdit();

private:
    QWidget *makePreview();
    QWidget *makeGrid();
    QWidget *makePositionLine();
    QWidget *makeNodeButtons();
    QWidget *makeToolPages();
    void connectKeys();

    Program &m_program;
    SubtitleDocument &m_document;
    GridView *m_grid = nullptr;
    CellEditor *m_cellEditor = nullptr;
};

} // namespace kavro
