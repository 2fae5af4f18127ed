#include "tools/filters.h"

#include "core/action_trace.h"
#include "core/document.h"
#include "core/edit_history.h"
#include "core/editor_page.h"
#include "core/language.h"
#include "core/text.h"

#include <QStringBuilder>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <array>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

enum FilterCode { ApplyCode = 513, TurnOn = 511, TurnOff = 512, BreakOn = 566, BreakOff = 567 };

enum Filter { TurnText, BreakLines };

constexpr int textColumns = LastTextColumn - FirstTextColumn + 1;

/// Runs of characters that never join a neighbour, but as the base of a mark.
constexpr struct
{
    char16_t first, last;
} singleRuns[] = {
    {0x0020, 0x02FF}, {0x0370, 0x0482}, {0x05D0, 0x05F4},
    {0x2010, 0x2027}, {0x2030, 0x205E}, {0x2600, 0x26FF},
};

bool standsAlone(QChar c)
{
    return std::ranges::any_of(singleRuns,
                               [c](const auto &run) { return c >= run.first && c <= run.last; });
}

/// Appends the characters of `text` from the last to the first; what makes one character together,
/// a base and its marks or a surrogate pair, stays in its order.
void appendTurned(const QString &text, QString &turned)
{
    if (std::ranges::all_of(text, standsAlone)) {
        std::copy(text.crbegin(), text.crend(), std::back_inserter(turned));
        return;
    }
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    finder.toEnd();
    for (qsizetype end = text.size(); end > 0;) {
        const qsizetype start = std::max<qsizetype>(finder.toPreviousBoundary(), 0);
        turned += QStringView(text).sliced(start, end - start);
        end = start;
    }
}

/// The texts of a row, broken anew. A line ends at the first blank behind `max` characters; the
/// last takes all that is left.
std::array<QString, textColumns> brokenLines(QStringView text, double max)
{
    std::array<QString, textColumns> lines;
    std::size_t line = 0;
    qsizetype from = 0;
    for (qsizetype at = 1; at <= text.size() && line + 1 < lines.size(); ++at) {
        if (text[at - 1] == u' ' && static_cast<double>(at - from) > max) {
            lines[line++] = Mid(text, from + 1, at - from - 1) % u' ';
            from = at;
        }
    }
    lines[line] = text.sliced(from) % u' ';
    return lines;
}

} // namespace

Filters::Filters(Form &frmMain, SubtitleDocument &document, EditHistory &history,
                 const LanguageTable &language, ActionTrace &trace)
    : Check4(frmMain, u"Check4"_s),
      txtMaxCount(frmMain, u"txtMaxCount"_s),
      lblMaxCount(frmMain, u"lblMaxCount"_s),
      Command30(frmMain, u"Command30"_s),
      m_document(document),
      m_history(history),
      m_language(language),
      m_trace(trace)
{
    txtMaxCount.setText(u"40"_s);
    txtMaxCount.setEnabled(false);
    QObject::connect(&Check4[TurnText], &CheckBox::clicked, &Command30, [this] {
        m_trace.RecordAction({}, Check4[TurnText].isOn() ? TurnOn : TurnOff);
    });
    QObject::connect(&Check4[BreakLines], &CheckBox::clicked, &Command30, [this] {
        m_trace.RecordAction({}, Check4[BreakLines].isOn() ? BreakOn : BreakOff);
    });
    QObject::connect(&Check4[BreakLines], &CheckBox::valueChanged, &Command30,
                     [this](bool on) { txtMaxCount.setEnabled(on); });
    QObject::connect(&Command30, &Button::clicked, &Command30, [this] { apply(); });
}

void Filters::apply()
{
    m_trace.RecordAction({}, ApplyCode);
    const SubtitleDocument::Act act(m_document);
    logRun();
    {
        const Grid::Batch batch(m_document.editor.grdSubEdit);
        if (Check4[TurnText].isOn()) {
            turnTexts();
        }
        if (Check4[BreakLines].isOn()) {
            breakLines();
        }
    }
    // With both boxes off too: the press alone counts as an edit.
    m_document.markEdited();
    m_document.RefreshCurrentRow();
}

void Filters::logRun()
{
    QString action;
    QString detail;
    if (Check4[TurnText].isOn()) {
        action = m_language.ownText(u"Reversed hebrew"_s);
        detail = m_language.ownText(u"[No details]"_s);
    }
    if (Check4[BreakLines].isOn()) {
        action += action.isEmpty() ? QString() : u", "_s;
        action += m_language.ownText(u"Corrected long lines"_s);
        detail += u' ' + m_language.ownText(u"[Correct amount:=%1]"_s).arg(txtMaxCount.text());
    }
    if (!detail.isEmpty()) {
        m_history.LogHistory(action, detail);
    }
}

void Filters::turnTexts()
{
    Grid &grid = m_document.editor.grdSubEdit;
    for (int row = 1; row <= m_document.subtitleCount(); ++row) {
        for (int col = FirstTextColumn; col <= LastTextColumn; ++col) {
            const QString &text = grid.text(row, col);
            QString turned;
            turned.reserve(text.size() + 1);
            turned += u' ';
            appendTurned(text, turned);
            grid.setText(row, col, turned);
        }
    }
}

void Filters::breakLines()
{
    Grid &grid = m_document.editor.grdSubEdit;
    const double max = Val(txtMaxCount.text());
    for (int row = 1; row <= m_document.subtitleCount(); ++row) {
        QString text;
        for (int col = FirstTextColumn; col <= LastTextColumn; ++col) {
            text += grid.text(row, col);
        }
        // A text ends where it holds the word "{end}" itself.
        QStringView kept = trimmed(text);
        if (const qsizetype end = kept.indexOf(u"{end}"); end >= 0) {
            kept = kept.first(end);
        }
        const auto lines = brokenLines(kept, max);
        for (int line = 0; line < textColumns; ++line) {
            grid.setText(row, FirstTextColumn + line, lines[static_cast<std::size_t>(line)]);
        }
    }
}

} // namespace kavro
