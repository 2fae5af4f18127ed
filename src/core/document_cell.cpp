#include "core/document.h"
#include "core/editor_page.h"
#include "core/text.h"

#include <QStringBuilder>

namespace kavro {

void SubtitleDocument::connectGrid()
{
    Grid &grid = editor.grdSubEdit;
    connect(&grid, &Grid::currentChanged, this, &SubtitleDocument::RefreshCurrentRow);
    connect(&grid, &Grid::clicked, this, [this, &grid] {
        curRow = grid.mouseRow();
        searchIndex = grid.row();
        m_trace.RecordAction(QString::number(grid.col()) % u',' % QString::number(grid.row()), 549);
    });
    connect(&grid, &Control::keyPressed, this, [this](Key key) {
        if (key == Key::Enter) {
            enterCellEditor();
        }
    });
}

void SubtitleDocument::connectCellEditor()
{
    connect(&editor.rtfEdit, &TextBox::textChanged, this,
            [this](const QString &text) { editor.rtfSubEditBasic.setText(text); });
    connect(&editor.rtfEdit, &Control::keyPressed, this, &SubtitleDocument::pressInCellEditor);

    Control *const tools[] = {&editor.grdSubEdit, &editor.rtfEdit, &editor.cmdInvCalc,
                              &editor.btnNode[0]};
    for (Control *tool : tools) {
        connect(tool, &Control::lostFocus, this, [this](Control *next) {
            if (!isCellTool(next)) {
                hideCellTools();
            }
        });
    }
}

void SubtitleDocument::connectEditBox()
{
    TextBox &box = editor.rtfSubEditBasic;
    connect(&box, &TextBox::textChanged, this,
            [this](const QString &text) { editor.Command47.setEnabled(!trimmed(text).isEmpty()); });
    connect(&box, &Control::keyPressed, this, [this](Key key) {
        if (key == Key::Enter) {
            changeCell();
        }
    });
    connect(&box, &Control::gotFocus, this, [this, &box] {
        box.selectAll();
        editor.rtfEdit.setText(box.text());
    });
    editor.Command47.setEnabled(false);
}

void SubtitleDocument::enterCellEditor()
{
    // It may have been hidden when the focus was elsewhere.
    showCellEditor();
    if (editor.rtfEdit.acceptsActs()) {
        editor.rtfEdit.setFocus();
        editor.rtfEdit.selectAll();
    }
}

void SubtitleDocument::pressInCellEditor(Key key)
{
    switch (key) {
    case Key::Enter:
        changeCell();
        editor.grdSubEdit.setFocus();
        break;
    case Key::Escape:
        editor.grdSubEdit.setFocus();
        dropCellEdit();
        break;
    case Key::Tab:
        if (editor.grdSubEdit.col() < FirstTextColumn) {
            editor.cmdInvCalc.click();
        }
        break;
    }
}

void SubtitleDocument::changeCell()
{
    m_trace.RecordAction(editor.rtfSubEditBasic.text(), 505);
    // A macro that is recorded has the line of this key; the button's own would be a second one.
    if (m_trace.recorderState != 1) {
        editor.Command14.click();
    }
}

void SubtitleDocument::dropCellEdit()
{
    const Grid &grid = editor.grdSubEdit;
    editor.rtfEdit.setText(trimmed(grid.text(grid.row(), grid.col())).toString());
    editor.rtfSubEditBasic.setText(editor.rtfEdit.text());
}

bool SubtitleDocument::isCellTool(const Control *control) const
{
    return control == &editor.grdSubEdit || control == &editor.rtfEdit
           || control == &editor.cmdInvCalc || control == &editor.btnNode[0];
}

void SubtitleDocument::hideCellTools()
{
    editor.rtfEdit.setVisible(false);
    editor.cmdInvCalc.setVisible(false);
    editor.btnNode[0].setVisible(false);
    editor.errExp.setVisible(false);
}

} // namespace kavro
