#include "tools/scaled_time.h"

#include "core/text.h"
#include "core/timecode.h"

namespace kavro {

QString scaledTime(double seconds)
{
    const QString text = numberText(seconds);
    const qsizetype point = text.indexOf(u'.');
    return SecondsToTimeCode(point < 0 ? text : Left(text, point + 4));
}

} // namespace kavro
