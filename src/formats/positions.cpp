#include "formats/positions.h"

#include "core/line_reader.h"
#include "core/text.h"
#include "core/timecode.h"

#include <QStringBuilder>

namespace kavro {

FileCount countAllLines(LineReader &lines)
{
    FileCount count;
    for (; !lines.atEnd(); lines.readLine())
        ++count.subtitles;
    return count;
}

FileCount countLinesHolding(LineReader &lines, QStringView tag, double share)
{
    FileCount count;
    int ahead = 0;
    bool found = false;
    while (!lines.atEnd()) {
        if (lines.readLine().contains(tag, Qt::CaseInsensitive)) {
            found = true;
            count.subtitles += share;
        } else if (!found) {
            ++ahead;
        }
    }
    count.headerLines = ahead;
    return count;
}

QString timeWithOneHourDigit(QStringView line, qsizetype at)
{
    return u'0' % Mid(line, at, 7) % u',' % Mid(line, at + 8, 2) % u'0';
}

QString oneHourDigitTime(QStringView code)
{
    return Mid(code, 2, 7) % u'.' % Mid(code, 10, 2);
}

QStringView valueBehind(QStringView line, QStringView tag)
{
    return Mid(line, InStr(line, tag) + tag.size());
}

QStringView textBehind(QStringView line, QStringView tag, qsizetype distance)
{
    return Mid(line, line.indexOf(tag, 0, Qt::CaseInsensitive) + 1 + distance);
}

QStringView digitsOf(QStringView text)
{
    qsizetype length = 0;
    while (length < text.size() && Val(text.sliced(length, 1)) != 0)
        ++length;
    return text.first(length);
}

QString timeOfFrame(QStringView frame, double frameRate)
{
    return SecondsToTimeCode(secondsText(Val(frame) / frameRate));
}

QString frameOfTime(QStringView code, double frameRate)
{
    return numberText(cutToWhole(TimeCodeToMs(code) / 1000 * frameRate));
}

} // namespace kavro
