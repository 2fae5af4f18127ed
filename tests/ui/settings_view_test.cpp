#include "ui/settings_view.h"

#include "tests/support/test_program.h"
#include "ui/navigation_tree.h"
#include "ui/script_font.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QFontInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTest>

#include <gtest/gtest.h>

namespace kavro::test {
namespace {

using namespace Qt::StringLiterals;

class SettingsDialog : public ::testing::Test
{
protected:
    SettingsDialog()
    {
        run.start();
        run->splash.ExitfrmSplash();
        run->frmSettings.show();
        view = std::make_unique<SettingsView>(run->frmSettings, run->settingsWindow, run->settings,
                                              nullptr);
        view->show();
    }

    template <class T>
    T &find(const QString &name = {})
    {
        T *found = view->findChild<T *>(name);
        Q_ASSERT(found);
        return *found;
    }
    QString page() { return find<QStackedWidget>().currentWidget()->objectName(); }

    TestProgram run;
    std::unique_ptr<SettingsView> view;
};

TEST_F(SettingsDialog, ArrowKeysAndClicksTurnThePages)
{
    auto &tree = find<NavigationTree>();
    EXPECT_EQ(page(), u"startup"_s);
    EXPECT_EQ(tree.currentIndex().data().toString(), u"Startup"_s);
    QStringList pages;
    QList<int> codes;
    for (int step = 0; step < 6; ++step) {
        QTest::keyClick(&tree, Qt::Key_Down);
        pages.append(page());
        codes.append(run->trace.lastActionCode);
    }
    EXPECT_EQ(pages, QStringList({u"general"_s, u"general"_s, u"script"_s, u"audio"_s,
                                  u"defaults"_s, u"lng"_s}));
    EXPECT_EQ(codes, QList<int>({28, 28, 27, 24, 23, 25}));

    int acts = 0;
    QObject::connect(&run->settingsWindow.TV2, &TreeView::clicked, &tree, [&] { ++acts; });
    const QModelIndex first = tree.model()->index(0, 0);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualRect(first).center());
    EXPECT_EQ(page(), u"startup"_s);
    EXPECT_EQ(acts, 1) << "a click is one act";
}

TEST_F(SettingsDialog, ListsFollowTheirBoxAndTakeTypedText)
{
    auto &scripts = find<QComboBox>(u"cmbScript"_s);
    EXPECT_FALSE(scripts.isEnabled());
    EXPECT_FALSE(find<QComboBox>(u"List1"_s).isEnabled());
    run->settingsWindow.ShowTab(u"script");
    find<QCheckBox>(u"Check6(0)"_s).click();
    EXPECT_TRUE(scripts.isEnabled());
    view->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(view.get()));
    scripts.setFocus();
    scripts.lineEdit()->selectAll();
    QTest::keyClicks(scripts.lineEdit(), u"222"_s);
    QTest::keyClick(scripts.lineEdit(), Qt::Key_Tab);
    EXPECT_EQ(run->settings.cmbScript.selectedText(), u"222"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return scripts.currentText() == u"222"_s; }));
    scripts.setFocus();
    scripts.lineEdit()->selectAll();
    QTest::keyClicks(scripts.lineEdit(), u"999"_s);
    QTest::keyClick(scripts.lineEdit(), Qt::Key_Tab);
    EXPECT_EQ(run.takeMessages(), QStringList{u"Error applying script"_s});
    EXPECT_EQ(scripts.currentText(), u"222"_s);
}

TEST_F(SettingsDialog, EnterIsOk)
{
    QTest::keyClick(&find<QCheckBox>(u"Check7(6)"_s), Qt::Key_Return);
    EXPECT_FALSE(run->frmSettings.isOpen());
    EXPECT_FALSE(TestProgram::read(run.appPath(u"System/Settings/set.sdf"_s)).isNull());
}

TEST_F(SettingsDialog, EveryFieldHasAName)
{
    for (const QWidget *field : view->findChildren<QWidget *>()) {
        const bool isField = qobject_cast<const QComboBox *>(field) != nullptr
                             || qobject_cast<const QCheckBox *>(field) != nullptr;
        if (isField) {
            EXPECT_FALSE(field->accessibleName().isEmpty()) << qPrintable(field->objectName());
            EXPECT_FALSE(field->toolTip().isEmpty()) << qPrintable(field->objectName());
        }
    }
}

TEST_F(SettingsDialog, ScriptGivesItsViewsAFontThatHasIt)
{
    QLabel label;
    followScript(label, run->settings);
    const QFont own = label.font();
    const int scripts[] = {4, 7, 9, 10}; // Greek, Cyrillic, Hebrew, Arabic
    const QFontDatabase::WritingSystem systems[] = {QFontDatabase::Greek, QFontDatabase::Cyrillic,
                                                    QFontDatabase::Hebrew, QFontDatabase::Arabic};
    run->settings.Check6[0].check(true);
    for (std::size_t i = 0; i < std::size(scripts); ++i) {
        if (!QFontDatabase::families(systems[i]).isEmpty()) {
            run->settings.cmbScript.pick(scripts[i]);
            const QString family = QFontInfo(label.font()).family();
            EXPECT_TRUE(QFontDatabase::writingSystems(family).contains(systems[i]))
                << scripts[i] << ' ' << qPrintable(family);
        }
    }
    run->settings.Check6[0].check(false);
    EXPECT_EQ(label.font().families(), own.families());
}

} // namespace
} // namespace kavro::test
