#pragma once

#include <QWidget>

namespace kavro {

class CellEditor;
class GridView;
class SubtitleDocument;

/// The editor page: preview lines, the grid that is the document, and the edit box.
class EditorPageView : public QWidget
{
    Q_OBJECT

public:
    EditorPageView(SubtitleDocument &document, QWidget *parent);

    /// Takes what was typed in a cell as if Enter had been pressed.
    void finishEdit();

private:
    QWidget *makePreview();
    QWidget *makeGrid();
    QWidget *makePositionLine();

    SubtitleDocument &m_document;
    GridView *m_grid = nullptr;
    CellEditor *m_cellEditor = nullptr;
};

} // namespace kavro
