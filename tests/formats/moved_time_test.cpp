#include "formats/moved_time.h"

#include "core/timecode.h"

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

TEST(MovedTime, IsWhatTimeCodeAddGives)
{
    const QStringView codes[] = {u"00:00:00,000", u"99:59:59,999", u"01:23:45,678", u"00:60:00,000",
                                 u"00:00:60,000", u"00.00.01.500", u"00:00:01,50",  u"-1:59:59,000",
                                 u" 1:00:00,000", u"0x:00:00,000", u"/0:00:00,000", u"",
                                 u"soon",         u"00:00:01,5 0", u"00:00:01,0000"};
    const QStringView offsets[] = {u"00:00:00,000", u"", u"0", u"00:00:01,500", u"99:00:00,000"};
    for (const QStringView code : codes) {
        for (const QStringView offset : offsets) {
            for (const QChar op : {QChar(u'+'), QChar(u'-')})
                EXPECT_EQ(movedTime(code, offset, op), TimeCodeAdd(code, offset, op))
                    << code.toString().toStdString() << op.toLatin1()
                    << offset.toString().toStdString();
        }
    }
}

} // namespace
} // namespace kavro::test
