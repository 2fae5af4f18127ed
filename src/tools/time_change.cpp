#include "tools/time_change.h"

#include "core/action_trace.h"
#include "core/document.h"
#include "core/edit_history.h"
#include "core/editor_page.h"
#include "core/language.h"
#include "core/time_page.h"
#include "core/timecode.h"
#include "tools/row_range.h"

#include <QStringBuilder>

namespace kavro {

using namespace Qt::StringLiterals;

TimeChange::TimeChange(Form &frmMain, SubtitleDocument &document, EditHistory &history,
                       Messages &messages, const LanguageTable &language, ActionTrace &trace)
    : lblTime(frmMain, u"lblTime"_s),
      rtfDurShift(frmMain, u"rtfDurShift"_s),
      Command15(frmMain, u"Command15"_s),
      Command16(frmMain, u"Command16"_s),
      Command17(frmMain, u"Command17"_s),
      Command18(frmMain, u"Command18"_s),
      Command19(frmMain, u"Command19"_s),
      m_document(document),
      m_history(history),
      m_messages(messages),
      m_language(language),
      m_trace(trace)
{
    rtfDurShift.setText(u"00:01,000"_s);
    const auto run = [this](Button &button, int code, auto act) {
        QObject::connect(&button, &Button::clicked, &button, [this, code, act] {
            m_trace.RecordAction({}, code);
            act();
        });
    };
    run(Command15, 534, [this] { move(u'-'); });
    run(Command16, 535, [this] { move(u'+'); });
    run(Command17, 536, [this] { stepEdges(u'+', u'-'); });
    run(Command18, 537, [this] { stepEdges(u'-', u'+'); });
    run(Command19, 530, [this] { changeLine(); });
}

void TimeChange::move(QChar op)
{
    step(m_document.times.rtfTimeStart, op);
    step(m_document.times.rtfTimeEnd, op);
}

void TimeChange::stepEdges(QChar startOp, QChar endOp)
{
    const int col = m_document.editor.grdSubEdit.col();
    if (col != EndColumn) {
        step(m_document.times.rtfTimeStart, startOp);
    }
    if (col != StartColumn) {
        step(m_document.times.rtfTimeEnd, endOp);
    }
}

void TimeChange::step(TextBox &field, QChar op)
{
    // The hours bring the fields of the short form to their places.
    field.setText(TimeCodeAdd(field.text(), u"00:"_s + rtfDurShift.text(), op));
}

void TimeChange::changeLine()
{
    const SubtitleDocument::Act act(m_document);
    Grid &grid = m_document.editor.grdSubEdit;
    if (grid.row() < 1) {
        showRefusal(u"No line is selected."_s, {}, m_messages, m_language);
        return;
    }
    const QString start = m_document.times.rtfTimeStart.text();
    const QString end = m_document.times.rtfTimeEnd.text();
    m_history.LogHistory(m_language.ownText(u"Line Shifted/Stretched"_s),
                         m_language.ownText(u"[Duration: %1] [Start: %2] [End: %3]"_s)
                             .arg(rtfDurShift.text(), start, end));
    grid.setText(grid.row(), StartColumn, start);
    grid.setText(grid.row(), EndColumn, end);
    m_document.markEdited();
    m_document.RefreshCurrentRow();
}

} // namespace kavro
