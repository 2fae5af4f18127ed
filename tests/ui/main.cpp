#include <QApplication>
#include <QTemporaryFile>

#include <gtest/gtest.h>

#include <clocale>

int main(int argc, char *argv[])
{
    // What a developer's own desktop is set to stays out of the tests.
    for (const char *const name : {"QT_SCALE_FACTOR", "QT_FONT_DPI", "QT_STYLE_OVERRIDE",
                                   "QT_QPA_PLATFORMTHEME", "KAVRO_THEME"})
    {
        qunsetenv(name);
    }
    // A screen on which the main window has room; the plugin's own is 800 by 800.
    QTemporaryFile screen;
    if (screen.open()) {
        screen.write(R"({"screens": [{"name": "one", "x": 0, "y": 0, "width": 1280, "height": 800,
                         "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
        screen.close();
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screen.fileName().toLocal8Bit());
    }
    const QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
