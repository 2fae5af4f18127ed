#pragma once

#include "ui/tool_page.h"

namespace kavro {

class CellEditor;
class GridView;
class Program;

/// The page of the partition list: the parts with their lengths, the format of their files, and
/// the preview of each file.
class PartitionView : public ToolPage
{
    Q_OBJECT

public:
    PartitionView(Program &program, QWidget *parent);

    /// Takes what was typed in a cell as if Enter had been pressed.
    void finishEdit();

private:
    QWidget *makeGrid(Program &program);
    QLayout *makePreview(Program &program);
    void addCommands(Program &program);

    GridView *m_grid = nullptr;
    CellEditor *m_editor = nullptr;
};

} // namespace kavro
