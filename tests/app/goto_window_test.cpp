#include "tests/support/test_program.h"

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

TEST(GotoWindow, LeadsToALineThatIsThere)
{
    struct Case
    {
        QStringView typed;
        int row; ///< where the current cell comes to stand
        bool refused;
        bool cancel = false;
    };
    static constexpr Case cases[] = {
        {u"2", 2, false},   {u" 1 ", 1, false},        {u"0", 2, true},
        {u"3", 2, true},    {u"-1", 2, true},          {u"", 2, true},
        {u"line", 2, true}, {u"99999999999", 2, true}, {u"1", 2, false, true}};
    TestProgram run;
    run.start(run.write(u"film.srt"_s, twoSubtitles()));
    Grid &grid = run->editor.grdSubEdit;
    for (const Case &c : cases) {
        grid.setCurrent(2, 4);
        bool open = false;
        run.doors.forms.during = [&](Form &form) {
            EXPECT_EQ(run->goTo.txtLine.text(), u"2"_s) << "the current line stands in it";
            run->goTo.txtLine.type(c.typed.toString());
            (c.cancel ? run->goTo.cmdCancel : run->goTo.cmdOk).click();
            open = form.isOpen();
        };
        run->menu.mnuGotoLine.click();
        EXPECT_EQ(grid.row(), c.row) << qPrintable(c.typed.toString());
        EXPECT_EQ(grid.col(), 4) << "the column stays";
        EXPECT_EQ(open, c.refused) << "a window that refuses stays open";
        EXPECT_EQ(run.takeMessages().size(), c.refused ? 1 : 0);
        EXPECT_TRUE(c.refused || c.cancel || grid.topRow() == c.row);
    }
    EXPECT_FALSE(run->document.fileChanged());
}

} // namespace
} // namespace kavro::test
