#include "app/goto_window.h"

#include "controls/form.h"
#include "core/document.h"
#include "core/editor_page.h"
#include "core/main_menu.h"
#include "core/messages.h"
#include "core/ports.h"

#include <algorithm>

namespace kavro {

using namespace Qt::StringLiterals;

GotoWindow::GotoWindow(Form &frmGoto, const Parts &parts)
    : Label1(frmGoto, u"Label1"_s),
      txtLine(frmGoto, u"txtLine"_s),
      cmdOk(frmGoto, u"cmdOk"_s),
      cmdCancel(frmGoto, u"cmdCancel"_s),
      m_form(frmGoto),
      m_parts(parts)
{
    QObject::connect(&m_parts.menu.mnuGotoLine, &Button::clicked, &txtLine, [this] { open(); });
    QObject::connect(&cmdOk, &Button::clicked, &txtLine, [this] { go(); });
    QObject::connect(&cmdCancel, &Button::clicked, &txtLine, [this] { m_form.hide(); });
    QObject::connect(&m_form, &Form::closeRequested, &txtLine, [this] { m_form.hide(); });
}

void GotoWindow::open()
{
    txtLine.setText(QString::number(m_parts.document.editor.grdSubEdit.row()));
    txtLine.selectAll();
    txtLine.setFocus();
    m_parts.ports.forms.runModal(m_form);
}

void GotoWindow::go()
{
    const int last = m_parts.document.subtitleCount();
    bool isNumber = false;
    const int row = txtLine.text().trimmed().toInt(&isNumber);
    if (!isNumber || row < 1 || row > last) {
        m_parts.messages.ShowMessage({u"There is no line '%1'./nThe lines run from 1 to %2."_s,
                                      {txtLine.text().trimmed(), QString::number(last)}},
                                     Answer::Ok, u"ok"_s, m_form.caption());
        txtLine.selectAll();
        return;
    }
    m_form.hide();
    Grid &grid = m_parts.document.editor.grdSubEdit;
    grid.moveTo(row, std::max(grid.col(), 1));
    grid.setTopRow(row);
}

} // namespace kavro
