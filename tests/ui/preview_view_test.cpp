#include "ui/preview_view.h"

#include "tests/support/test_program.h"

#include <QCoreApplication>
#include <QListView>

#include <gtest/gtest.h>

#include <ctime>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

TEST(PreviewView, ShowsTheLinesOfEachPreview)
{
    TestProgram run;
    run.start(run.write(u"film.srt"_s, twoSubtitles()));
    PreviewView view(run->frmPreview, run->scriptPreview, nullptr);
    auto *lines = view.findChild<QListView *>();
    ASSERT_NE(lines, nullptr);
    EXPECT_EQ(lines->model()->rowCount(), 0);
    run->menu.mnuPreview.click();
    QCoreApplication::processEvents();
    EXPECT_EQ(lines->model()->rowCount(), run->scriptPreview.List1.count());
    EXPECT_GT(lines->model()->rowCount(), 0);
    EXPECT_EQ(lines->model()->index(0, 0).data().toString(), u"1"_s);
    run->document.startNew();
    run->menu.mnuPreview.click();
    QCoreApplication::processEvents();
    EXPECT_EQ(lines->model()->rowCount(), 3);
}

TEST(PreviewView, AFullDocumentShowsFast)
{
    TestProgram run;
    run.start();
    PreviewView view(run->frmPreview, run->scriptPreview, nullptr);
    view.show();
    QStringList lines;
    for (int line = 0; line < 5 * SubtitleDocument::maxSubtitles; ++line) {
        lines.append(u"Line %1"_s.arg(line));
    }
    const std::clock_t begun = std::clock(); // the process's own time
    run->scriptPreview.List1.setItems(lines);
    QCoreApplication::processEvents();
    view.grab();
    EXPECT_LT((std::clock() - begun) * 1000 / CLOCKS_PER_SEC, 500);
}

} // namespace
} // namespace kavro::test
