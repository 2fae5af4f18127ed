#include "formats/losses.h"

#include "core/text.h"
#include "formats/format_table.h"
#include "formats/positions.h"
#include "formats/write_frame.h"

#include <QStringBuilder>

using namespace Qt::StringLiterals;

namespace kavro {

namespace {

/// Digits of the milliseconds that the file has no place for.
int digitsLost(TimeKept kept)
{
    switch (kept) {
    case TimeKept::Milliseconds: return 0;
    case TimeKept::Hundredths: return 1;
    case TimeKept::Tenths: return 2;
    case TimeKept::Seconds: return 3;
    case TimeKept::Frames: return 0;
    }
    return 0;
}

bool hasLongHours(const QString &code, int digits)
{
    return digits == 1 && !code.startsWith(u'0');
}

} // namespace

void Losses::add(const WriteFrame &frame)
{
    const double rate = frame.frameRate();
    if (!keepsTime(frame.start(), rate) || !keepsTime(frame.end(), rate))
        ++m_milliseconds;
    if (hasLongHours(frame.start(), m_format.hourDigits)
        || hasLongHours(frame.end(), m_format.hourDigits))
        ++m_hours;
    if (frame.hasTextBehindGap())
        ++m_texts;
    if (m_format.fonts != FontSupport::StylePerLine && (frame.isBold() || frame.isItalic()))
        ++m_styles;
}

bool Losses::keepsTime(const QString &code, double frameRate) const
{
    if (m_format.timeKept == TimeKept::Frames)
        return timeOfFrame(frameOfTime(code, frameRate), frameRate) == code;
    for (const QChar digit : Right(code, digitsLost(m_format.timeKept))) {
        if (digit != u'0')
            return false;
    }
    return true;
}

QStringList Losses::lines() const
{
    QStringList lines;
    const auto tell = [&](int count, QStringView what) {
        if (count > 0) {
            lines.append(m_format.name % u" can't hold " % what % u" of " % QString::number(count)
                         % (count == 1 ? u" subtitle." : u" subtitles."));
        }
    };
    tell(m_milliseconds, u"the milliseconds");
    tell(m_hours, u"the hours above nine");
    tell(m_texts, u"the text behind an empty line");
    tell(m_styles, u"the style");
    return lines;
}

} // namespace kavro
