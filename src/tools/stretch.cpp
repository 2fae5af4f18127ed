#include "tools/stretch.h"

#include "controls/form.h"
#include "core/action_trace.h"
#include "core/control_window.h"
#include "core/document.h"
#include "core/edit_history.h"
#include "core/editor_page.h"
#include "core/language.h"
#include "core/time_page.h"
#include "core/timecode.h"
#include "tools/row_range.h"
#include "tools/scaled_time.h"

#include <QStringBuilder>

namespace kavro {

using namespace Qt::StringLiterals;

/// From the old place and length of a range to the new ones; read before the first line is written.
struct Stretch::Scale
{
    QString oldStart;
    QString newStart;
    double oldLength = 0; ///< milliseconds, as the next
    double newLength = 0;

    /// Seconds from the new start on, below 0 for a line that would come before it.
    [[nodiscard]] double offset(QStringView start) const
    {
        const double old = TimeCodeToMs(TimeCodeAdd(start, oldStart, u'-'));
        return old * newLength / (1000 * oldLength);
    }
};

Stretch::Stretch(Form &frmMain, SubtitleDocument &document, EditHistory &history,
                 ControlWindow &progress, Messages &messages, const LanguageTable &language,
                 ActionTrace &trace)
    : Label40(frmMain, u"Label40"_s),
      Label41(frmMain, u"Label41"_s),
      Label63(frmMain, u"Label63"_s),
      Label77(frmMain, u"Label77"_s),
      Command12(frmMain, u"Command12"_s),
      m_document(document),
      m_history(history),
      m_progress(progress),
      m_messages(messages),
      m_language(language),
      m_trace(trace)
{
    QObject::connect(&Label63, &Label::clicked, &Label63, [this] { stepToNextNode(); });
    QObject::connect(&Command12, &Button::clicked, &Command12, [this] { stretchRange(); });
}

void Stretch::stepToNextNode()
{
    m_trace.RecordAction({}, 527);
    stepRange(m_document, RangeFields::Stretch, Label77);
}

void Stretch::stretchRange()
{
    m_trace.RecordAction({}, 522);
    const SubtitleDocument::Act act(m_document);
    const QString first = m_document.times.rtfStretchFirst.text();
    const QString last = m_document.times.rtfStretchLast.text();
    m_history.LogHistory(m_language.ownText(u"Script Stretched"_s),
                         rangeDetail(m_document, m_language) % u' '
                             % m_language.ownText(u"[First: %1] [Last: %2]"_s).arg(first, last));
    const Grid &grid = m_document.editor.grdSubEdit;
    const RowRange range = rangeOf(m_document, RangeFields::Stretch);
    if (!checkRange(m_document, range, m_document.subtitleCount(), m_messages, m_language)) {
        return;
    }
    const QString oldStart = grid.text(range.first, StartColumn);
    const QString oldLength = TimeCodeAdd(grid.text(range.last, StartColumn), oldStart, u'-');
    const Scale scale{.oldStart = oldStart,
                      .newStart = first,
                      .oldLength = TimeCodeToMs(oldLength),
                      .newLength = TimeCodeToMs(TimeCodeAdd(last, first, u'-'))};
    if (!checkScale(scale, range)) {
        return;
    }
    {
        const Form::Busy busy(grid.form());
        writeStarts(scale, range);
    }
    m_progress.ProgressBar1.setValue(0);
    m_document.markEdited();
    m_document.RefreshCurrentRow();
}

bool Stretch::checkScale(const Scale &scale, const RowRange &range)
{
    const Grid &grid = m_document.editor.grdSubEdit;
    if (range.first <= range.last && scale.oldLength == 0) {
        showRefusal(u"Line %1 and line %2 start at the same time: there is no length to stretch."_s,
                    {QString::number(range.first), QString::number(range.last)}, m_messages,
                    m_language);
        return false;
    }
    for (int row = range.first; row <= range.last; ++row) {
        if (scale.offset(grid.text(row, StartColumn)) < 0) {
            showRefusal(u"Line %1 would start before the first time, %2."_s,
                        {QString::number(row), scale.newStart}, m_messages, m_language);
            return false;
        }
    }
    return true;
}

void Stretch::writeStarts(const Scale &scale, const RowRange &range)
{
    Grid &grid = m_document.editor.grdSubEdit;
    const Grid::Batch batch(grid);
    for (int row = range.first; row <= range.last; ++row) {
        const QString &start = grid.text(row, StartColumn);
        const QString length = TimeCodeAdd(grid.text(row, EndColumn), start, u'-');
        const QString moved = scaledTime(scale.offset(start));
        const QString newStart = TimeCodeAdd(scale.newStart, moved, u'+');
        grid.setText(row, StartColumn, newStart);
        grid.setText(row, EndColumn, TimeCodeAdd(newStart, length, u'+'));
    }
}

} // namespace kavro
