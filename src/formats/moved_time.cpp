#include "formats/moved_time.h"

#include "core/timecode.h"

namespace kavro {

namespace {

constexpr QStringView zero = u"00:00:00,000";

/// "hh:mm:ss,mmm" with minutes and seconds below 60.
bool isNormal(QStringView code)
{
    // The greatest digit of each place; other characters stand for themselves.
    constexpr QStringView greatest = u"99:59:59,999";
    if (code.size() != greatest.size())
        return false;
    for (qsizetype i = 0; i < greatest.size(); ++i) {
        const char16_t most = greatest[i].unicode();
        const char16_t least = most == u':' || most == u',' ? most : u'0';
        if (code[i] < least || code[i] > most)
            return false;
    }
    return true;
}

} // namespace

QString movedTime(QStringView code, QStringView offset, QChar op)
{
    return offset == zero && isNormal(code) ? code.toString() : TimeCodeAdd(code, offset, op);
}

} // namespace kavro
