#include "ui/program_icon.h"

#include <QIcon>
#include <QImage>
#include <QPixmap>

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

TEST(ProgramIcon, HasAPictureOfItsOwnForEachSize)
{
    const QIcon icon = programIcon();
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        EXPECT_TRUE(icon.availableSizes().contains(QSize(size, size))) << size;
        const QImage image = icon.pixmap(QSize(size, size)).toImage();
        // The caret is yellow, whatever the size.
        int yellow = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor color = image.pixelColor(x, y);
                yellow += color.red() > 200 && color.blue() < 100 ? 1 : 0;
            }
        }
        EXPECT_GT(yellow, size * size / 100) << size;
    }
}

} // namespace
} // namespace kavro::test
