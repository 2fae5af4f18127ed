#include "tools/shift.h"

#include "controls/form.h"
#include "core/action_trace.h"
#include "core/document.h"
#include "core/edit_history.h"
#include "core/editor_page.h"
#include "core/language.h"
#include "core/timecode.h"
#include "tools/row_range.h"

#include <QStringBuilder>

namespace kavro {

using namespace Qt::StringLiterals;

Shift::Shift(Form &frmMain, SubtitleDocument &document, EditHistory &history, Messages &messages,
             const LanguageTable &language, ActionTrace &trace)
    : Label26(frmMain, u"Label26"_s),
      rtfShiftDuration(frmMain, u"rtfShiftDuration"_s),
      Combo2(frmMain, u"Combo2"_s, Control::noIndex, {.toggle = {}, .label = u"Label38"_s}),
      Label39(frmMain, u"Label39"_s),
      Label5(frmMain, u"Label5"_s),
      Label76(frmMain, u"Label76"_s),
      Command13(frmMain, u"Command13"_s),
      m_document(document),
      m_history(history),
      m_messages(messages),
      m_language(language),
      m_trace(trace)
{
    rtfShiftDuration.setText(u"00:00:00,000"_s);
    QObject::connect(&Combo2, &ListBox::picked, &Combo2,
                     [this](int direction) { m_trace.RecordAction({}, 515 + direction); });
    QObject::connect(&Label5, &Label::clicked, &Label5, [this] { stepToNextNode(); });
    QObject::connect(&Command13, &Button::clicked, &Command13, [this] { shiftRange(); });
}

void Shift::fillDirections()
{
    Combo2.setItems(
        {m_language.text(LangGroup::Common, 13), m_language.text(LangGroup::Common, 11)});
    Combo2.setSelected(0);
}

void Shift::stepToNextNode()
{
    m_trace.RecordAction({}, 521);
    stepRange(m_document, RangeFields::Shift, Label76);
}

void Shift::shiftRange()
{
    m_trace.RecordAction({}, 518);
    const SubtitleDocument::Act act(m_document);
    m_history.LogHistory(m_language.ownText(u"Script Shifted"_s),
                         rangeDetail(m_document, m_language) % u' '
                             % m_language.ownText(u"[Duration: %1] [Direction: %2]"_s)
                                   .arg(rtfShiftDuration.text(), Combo2.label()->caption()));
    Grid &grid = m_document.editor.grdSubEdit;
    const RowRange range = rangeOf(m_document, RangeFields::Shift);
    if (!checkRange(m_document, range, grid.rows() - 1, m_messages, m_language)) {
        return;
    }
    // Without a direction there is nothing to reckon, and every time becomes zero.
    const QChar op = Combo2.selected() == 0 ? u'-' : Combo2.selected() == 1 ? u'+' : u'\0';
    const QString duration = rtfShiftDuration.text();
    {
        const Form::Busy busy(grid.form());
        const Grid::Batch batch(grid);
        for (int row = range.first; row <= range.last; ++row) {
            for (const int col : {StartColumn, EndColumn}) {
                grid.setText(row, col, TimeCodeAdd(grid.text(row, col), duration, op));
            }
        }
    }
    m_document.markEdited();
    m_document.RefreshCurrentRow();
}

} // namespace kavro
