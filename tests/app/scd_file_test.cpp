#include "tests/support/test_program.h"

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

TEST(SettingFile, BringsClipboardPartsAndFont)
{
    TestProgram run;
    const QString file = run.write(u"film.srt"_s, twoSubtitles());
    run.start();
    run->dropFile(run.write(u"film.scd"_s, file
                                               + u"\n{clipboard}\na>00:00:01,000\n{other}\nb\n"
                                                 "{partitionlist}\nfirst>00:10:00,000\n"
                                                 "second>x>y\nno length\n{system font}\n2\n"_s));
    EXPECT_EQ(run->document.subFileName, file);
    EXPECT_EQ(run->document.subtitleCount(), 2);
    EXPECT_EQ(run->clipboard.List1.items(), QStringList({u"a>00:00:01,000"_s, u"b"_s}));
    EXPECT_EQ(run->clipboard.List1.selected(), 0);
    EXPECT_TRUE(run->clipboard.command4[4].isEnabled());
    const Grid &parts = run->partition.grid;
    ASSERT_EQ(parts.rows(), 5);
    EXPECT_EQ(parts.text(1, 0), u"1"_s);
    EXPECT_EQ(parts.text(1, 1), u"first"_s);
    EXPECT_EQ(parts.text(1, 2), u"00:10:00,000"_s);
    EXPECT_EQ(parts.text(2, 2), u"x>y"_s);
    EXPECT_EQ(parts.text(3, 2), QString());
    EXPECT_EQ(parts.text(4, 0), QString());
    EXPECT_EQ(run->trace.lastActionCode, 102);
}

TEST(SettingFile, DamagedOnesAreToldAndStopNothing)
{
    TestProgram run;
    run.start();
    for (const QString &content : {QString(), u"\n"_s, u"/no/such/file.srt\n{system font}\n99\n"_s,
                                   QString(2 << 20, u'x'), u"{clipboard}\n"_s})
    {
        run->dropFile(run.write(u"bad.scd"_s, content));
        EXPECT_EQ(run.takeMessages().size(), 1);
        EXPECT_EQ(run->document.subtitleCount(), 0);
        EXPECT_EQ(run->fonts.Combo9[0].selectedText(), u"Arial"_s);
    }
    run->dropFile(run.path(u"missing.scd"_s));
    EXPECT_EQ(run.takeMessages().size(), 1);
}

} // namespace
} // namespace kavro::test
