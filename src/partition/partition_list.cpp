#include "partition/partition_list.h"

#include "core/action_trace.h"
#include "core/format_lists.h"
#include "core/language.h"
#include "core/partition_page.h"

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

enum ActionCode { DeleteCode = 402, ClearCode = 403, FirstFormatCode = 405, CellCode = 421 };

enum CommonText { FileNameText = 14, TimeText = 22 };

} // namespace

PartitionList::PartitionList(Form &frmMain, PartitionPage &page, FormatLists &formats,
                             ActionTrace &trace)
    : rtfSplitEdit(frmMain, u"rtfSplitEdit"_s),
      cmdInvSplitCalc(frmMain, u"cmdInvSplitCalc"_s),
      command6(frmMain, u"command6"_s),
      Label66(frmMain, u"Label66"_s),
      Label8(frmMain, u"Label8"_s),
      m_page(page),
      m_formats(formats)
{
    connectGrid();
    connectBox(trace);
    QObject::connect(&command6, &Button::clicked, &command6, [this, &trace] {
        removePart();
        trace.RecordAction({}, DeleteCode);
    });
    QObject::connect(&Label66, &Label::clicked, &Label66, [this, &trace] {
        removePart();
        trace.RecordAction({}, ClearCode);
    });
    DropList &combo3 = m_formats.combo3;
    QObject::connect(&combo3, &ListBox::picked, &combo3,
                     [&trace](int index) { trace.RecordAction({}, FirstFormatCode + index); });
    enterCell();
    enableRemove();
}

void PartitionList::connectBox(ActionTrace &trace)
{
    QObject::connect(&rtfSplitEdit, &Control::keyPressed, &rtfSplitEdit, [this, &trace](Key key) {
        switch (key) {
        case Key::Enter: finishCell(trace); break;
        case Key::Escape:
            m_page.grid.setFocus();
            enterCell();
            break;
        case Key::Tab:
            if (m_page.grid.col() == PartLengthColumn) {
                cmdInvSplitCalc.click();
            } else {
                // Behind its name comes the length of the part.
                finishCell(trace);
                m_page.grid.setCol(PartLengthColumn);
                editCell();
            }
            break;
        }
    });
}

void PartitionList::connectGrid()
{
    Grid &grid = m_page.grid;
    QObject::connect(&grid, &Grid::currentChanged, &grid, [this] { enterCell(); });
    // A scroll has hidden the box: a click on the current cell brings it back.
    QObject::connect(&grid, &Grid::clicked, &grid, [this] { enterCell(); });
    QObject::connect(&grid, &Grid::topRowChanged, &grid, [this] { showBox(false); });
    QObject::connect(&grid, &Control::keyPressed, &grid, [this](Key key) {
        if (key == Key::Enter) {
            editCell();
        }
    });
    // Parts come from a setting file and from the clipboard, too.
    const auto refresh = [this] {
        enterCell();
        enableRemove();
    };
    QObject::connect(&grid, &Grid::reset, &grid, refresh);
    QObject::connect(&grid, &Grid::rowsInserted, &grid, refresh);
    QObject::connect(&grid, &Grid::rowsRemoved, &grid, refresh);
}

void PartitionList::fillCaptions(const LanguageTable &language)
{
    Grid &grid = m_page.grid;
    grid.setText(0, PartNumberColumn, u"#"_s);
    grid.setText(0, PartNameColumn, language.text(LangGroup::Common, FileNameText));
    grid.setText(0, PartLengthColumn, language.text(LangGroup::Common, TimeText));
}

void PartitionList::setEditable(bool editable)
{
    m_editable = editable;
    for (Control *control : std::initializer_list<Control *>{&command6, &Label66, &Label8}) {
        control->setVisible(editable);
    }
    m_formats.combo3.setAvailable(editable);
    m_formats.combo3.label()->setEnabled(editable);
    enterCell();
}

bool PartitionList::isEditableCell() const
{
    const Grid &grid = m_page.grid;
    return grid.row() > 0 && grid.col() != PartNumberColumn;
}

void PartitionList::enterCell()
{
    Grid &grid = m_page.grid;
    if (grid.row() == 0 && m_page.partCount() == 0) {
        grid.setRow(1);
    }
    rtfSplitEdit.setText(grid.text(grid.row(), grid.col()));
    showBox(m_editable && isEditableCell());
}

void PartitionList::editCell()
{
    enterCell();
    if (rtfSplitEdit.acceptsActs()) {
        rtfSplitEdit.setFocus();
        rtfSplitEdit.selectAll();
    }
}

void PartitionList::finishCell(ActionTrace &trace)
{
    const QString text = rtfSplitEdit.text();
    keepCell(text);
    trace.RecordAction(text, CellCode);
    m_page.grid.setFocus();
}

void PartitionList::showBox(bool shown)
{
    rtfSplitEdit.setVisible(shown);
    cmdInvSplitCalc.setVisible(shown && m_page.grid.col() == PartLengthColumn);
}

void PartitionList::keepCell(const QString &text)
{
    Grid &grid = m_page.grid;
    if (!isEditableCell()) {
        return;
    }
    // What is written into the end row makes it a part, with a new end row behind it.
    if (grid.row() == grid.rows() - 1 && !text.isEmpty()) {
        grid.setText(grid.row(), PartNumberColumn, QString::number(grid.row()));
        grid.setText(grid.row(), grid.col(), text);
        grid.setRows(grid.rows() + 1);
    }
    grid.setText(grid.row(), grid.col(), text);
}

void PartitionList::removePart()
{
    Grid &grid = m_page.grid;
    if (grid.row() >= 1 && grid.row() <= m_page.partCount()) {
        grid.removeRow(grid.row());
        numberRows();
    }
    grid.setRow(m_page.partCount());
    enterCell();
}

void PartitionList::numberRows()
{
    for (int row = 1; row <= m_page.partCount(); ++row) {
        m_page.grid.setText(row, PartNumberColumn, QString::number(row));
    }
}

void PartitionList::enableRemove()
{
    const bool hasParts = m_page.partCount() > 0;
    command6.setEnabled(hasParts);
    Label66.setEnabled(hasParts);
}

} // namespace kavro
