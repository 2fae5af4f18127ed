#include "tools/frame_rate_conversion.h"

#include "core/action_trace.h"
#include "core/document.h"
#include "core/edit_history.h"
#include "core/editor_page.h"
#include "core/frame_rate_page.h"
#include "core/language.h"
#include "core/text.h"
#include "core/timecode.h"
#include "tools/row_range.h"
#include "tools/scaled_time.h"

#include <QStringBuilder>

namespace kavro {

using namespace Qt::StringLiterals;

FrameRateConversion::FrameRateConversion(Form &frmMain, FrameRatePage &rates,
                                         SubtitleDocument &document, EditHistory &history,
                                         Messages &messages, const LanguageTable &language,
                                         ActionTrace &trace)
    : Label32(frmMain, u"Label32"_s),
      Command52(frmMain, u"Command52"_s),
      m_rates(rates),
      m_document(document),
      m_history(history),
      m_messages(messages),
      m_language(language),
      m_trace(trace)
{
    connectRates();
    QObject::connect(&Command52, &Button::clicked, &Command52, [this] { convert(); });
}

void FrameRateConversion::connectRates()
{
    for (OptionButton &rate : m_rates.optFrameRate) {
        QObject::connect(&rate, &OptionButton::valueChanged, &rate, [this, &rate](bool on) {
            if (on) {
                useRate(rate.index());
            }
        });
        // A click on the rate that is in force takes the lists back to it.
        QObject::connect(&rate, &OptionButton::clicked, &rate, [this, &rate] {
            m_trace.RecordAction({}, 312 + rate.index());
            useRate(rate.index());
        });
    }
    constexpr int firstCodes[] = {538, 543};
    for (DropList &list : m_rates.Combo14) {
        QObject::connect(&list, &ListBox::picked, &list,
                         [this, first = firstCodes[list.index()]](int rate) {
                             m_trace.RecordAction({}, first + rate);
                         });
    }
}

void FrameRateConversion::useRate(int index)
{
    m_document.frameRate = m_rates.optFrameRate[index].caption();
    // From a rate to itself is the safe start of a conversion.
    for (DropList &list : m_rates.Combo14) {
        list.setSelected(index);
    }
}

void FrameRateConversion::convert()
{
    m_trace.RecordAction({}, 548);
    const SubtitleDocument::Act act(m_document);
    m_history.LogHistory(
        m_language.ownText(u"Changed Framerate"_s),
        m_language.ownText(u"[From: %1] [To: %2]"_s)
            .arg(m_rates.Combo14[0].label()->caption(), m_rates.Combo14[1].label()->caption()));
    const double from = Val(m_rates.Combo14[0].selectedText());
    const double to = Val(m_rates.Combo14[1].selectedText());
    if (from == 0 || to == 0) {
        showRefusal(u"Please choose both frame rates."_s, {}, m_messages, m_language);
        return;
    }
    if (!checkTimes()) {
        return;
    }
    scaleTimes(to / from);
    m_document.RefreshCurrentRow();
    // The player's list keeps the old times until another edit marks it.
    m_document.setFileChanged(true);
}

bool FrameRateConversion::checkTimes()
{
    const Grid &grid = m_document.editor.grdSubEdit;
    for (int row = 1; row <= m_document.subtitleCount(); ++row) {
        for (const int col : {StartColumn, EndColumn}) {
            const QString &time = grid.text(row, col);
            if (TimeCodeToMs(time) < 0) {
                showRefusal(u"Line %1 has the time %2, which lies before zero and can't be "
                            "converted."_s,
                            {QString::number(row), time}, m_messages, m_language);
                return false;
            }
        }
    }
    return true;
}

void FrameRateConversion::scaleTimes(double ratio)
{
    Grid &grid = m_document.editor.grdSubEdit;
    const Grid::Batch batch(grid);
    for (int row = 1; row <= m_document.subtitleCount(); ++row) {
        for (const int col : {StartColumn, EndColumn}) {
            const double ms = TimeCodeToMs(grid.text(row, col));
            grid.setText(row, col, scaledTime(ms * ratio / 1000));
        }
    }
}

} // namespace kavro
