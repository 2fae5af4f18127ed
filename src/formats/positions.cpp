#include "formats/positions.h"

#include "core/line_reader.h"
#include "core/text.h"
#include "core/timecode.h"
#include "formats/write_frame.h"

#include <QStringBuilder>

namespace kavro {

FileCount countAllLines(LineReader &lines)
{
    FileCount count;
    for (; !lines.atEnd(); lines.readLine())
        ++count.subtitles;
    return count;
}

// One character is found much sooner than a text in any case of letters.
qsizetype indexOfTag(QStringView line, QStringView tag)
{
    const QChar first = tag.front();
    if (first.isLetter())
        return line.indexOf(tag, 0, Qt::CaseInsensitive);
    qsizetype at = line.indexOf(first);
    while (at >= 0 && !line.sliced(at).startsWith(tag, Qt::CaseInsensitive))
        at = line.indexOf(first, at + 1);
    return at;
}

FileCount countLinesHolding(LineReader &lines, QStringView tag, double share)
{
    FileCount count;
    int ahead = 0;
    bool found = false;
    while (!lines.atEnd()) {
        if (indexOfTag(lines.readLine(), tag) >= 0) {
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

void putOneHourDigitTime(WriteFrame &frame, QStringView code)
{
    frame.put(Mid(code, 2, 7));
    frame.put(u".");
    frame.put(Mid(code, 10, 2));
}

QStringView valueBehind(QStringView line, QStringView tag)
{
    return Mid(line, InStr(line, tag) + tag.size());
}

QStringView textBehind(QStringView line, QStringView tag, qsizetype distance)
{
    return Mid(line, indexOfTag(line, tag) + 1 + distance);
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

double frameOfTime(QStringView code, double frameRate)
{
    return cutToWhole(TimeCodeToMs(code) / 1000 * frameRate);
}

QString frameText(QStringView code, double frameRate)
{
    return numberText(frameOfTime(code, frameRate));
}

double framesInSecond(QStringView code, double frameRate)
{
    return Val(Mid(code, 10, 2)) / 100 * frameRate;
}

} // namespace kavro
