#include "formats/losses.h"

#include "core/language.h"
#include "core/text.h"
#include "core/timecode.h"
#include "formats/format_table.h"
#include "formats/positions.h"
#include "formats/write_frame.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace kavro {

namespace {

bool isNegative(QStringView code)
{
    return code.startsWith(u'-');
}

bool isZero(QStringView digits)
{
    return std::ranges::all_of(digits, [](QChar digit) { return digit == u'0'; });
}

bool isFrame(QStringView code, double frameRate)
{
    return cutToThousandths(frameOfTime(code, frameRate) / frameRate) == TimeCodeToMs(code);
}

/// True for frames that are read as they were written: whole, and two digits or none at all.
bool isFrameInSecond(QStringView code, double frameRate)
{
    if (!isZero(Right(code, 1))) {
        return false;
    }
    const double frames = framesInSecond(code, frameRate);
    const bool whole = std::abs(frames - std::round(frames)) <= 1e-9;
    return whole && (frames < 0.5 || frames > 9.5);
}

} // namespace

void Losses::add(const WriteFrame &frame)
{
    const QString &start = frame.start();
    const QString &end = frame.end();
    const double rate = frame.frameRate();
    m_signs += losesSign(start) || losesSign(end);
    m_hours += losesHours(start) || losesHours(end);
    m_milliseconds += losesMilliseconds(start, rate) || losesMilliseconds(end, rate);
    m_texts += frame.hasTextBehindGap();
    m_styles += m_format.fonts != FontSupport::StylePerLine && (frame.isBold() || frame.isItalic());
}

bool Losses::losesSign(QStringView code) const
{
    return m_format.hours != HoursKept::TwoCharacters && isNegative(code);
}

bool Losses::losesHours(QStringView code) const
{
    return m_format.hours == HoursKept::OneDigit && !isNegative(code) && !code.startsWith(u'0');
}

bool Losses::losesMilliseconds(QStringView code, double frameRate) const
{
    switch (m_format.timeKept) {
    case TimeKept::Milliseconds: return false;
    case TimeKept::Hundredths: return !isZero(Right(code, 1));
    case TimeKept::Tenths: return !isZero(Right(code, 2));
    case TimeKept::Seconds: return !isZero(Right(code, 3));
    case TimeKept::Frames: return !isNegative(code) && !isFrame(code, frameRate);
    case TimeKept::FramesInSecond: return !isFrameInSecond(code, frameRate);
    }
    return false;
}

QStringList Losses::lines(const LanguageTable &language) const
{
    const struct
    {
        int count;
        QString one;
        QString many;
    } losses[] = {
        {m_milliseconds, u"%1 can't hold the milliseconds of %2 subtitle."_s,
         u"%1 can't hold the milliseconds of %2 subtitles."_s},
        {m_hours, u"%1 can't hold the hours above nine of %2 subtitle."_s,
         u"%1 can't hold the hours above nine of %2 subtitles."_s},
        {m_signs, u"%1 can't hold the minus sign of %2 subtitle."_s,
         u"%1 can't hold the minus sign of %2 subtitles."_s},
        {m_texts, u"%1 can't hold the text behind an empty line of %2 subtitle."_s,
         u"%1 can't hold the text behind an empty line of %2 subtitles."_s},
        {m_styles, u"%1 can't hold the style of %2 subtitle."_s,
         u"%1 can't hold the style of %2 subtitles."_s},
    };
    QStringList lines;
    for (const auto &[count, one, many] : losses) {
        if (count > 0) {
            lines.append(language.ownText(count == 1 ? one : many)
                             .arg(m_format.name.toString(), QString::number(count)));
        }
    }
    return lines;
}

} // namespace kavro
