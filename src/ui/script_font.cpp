#include "ui/script_font.h"

#include "core/settings_page.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QWidget>

#include <algorithm>

namespace kavro {

namespace {

struct ScriptRow
{
    int characterSet;
    QFontDatabase::WritingSystem system;
};

constexpr ScriptRow scripts[] = {
    {2, QFontDatabase::Symbol},
    {128, QFontDatabase::Japanese},
    {129, QFontDatabase::Korean},
    {134, QFontDatabase::SimplifiedChinese},
    {136, QFontDatabase::TraditionalChinese},
    {161, QFontDatabase::Greek},
    {163, QFontDatabase::Vietnamese},
    {177, QFontDatabase::Hebrew},
    {178, QFontDatabase::Arabic},
    {204, QFontDatabase::Cyrillic},
    {222, QFontDatabase::Thai},
};

QFontDatabase::WritingSystem writingSystem(int characterSet)
{
    const auto found = std::ranges::find(scripts, characterSet, &ScriptRow::characterSet);
    return found == std::end(scripts) ? QFontDatabase::Latin : found->system;
}

/// The families of `own`, or one that has the writing system ahead of them.
QStringList familiesFor(const QFont &own, QFontDatabase::WritingSystem system)
{
    QStringList families = own.families();
    if (!QFontDatabase::writingSystems(QFontInfo(own).family()).contains(system)) {
        families = QFontDatabase::families(system).mid(0, 1) + families;
    }
    return families;
}

} // namespace

void followScript(QWidget &view, SettingsPage &settings)
{
    const auto show = [&view, &settings, own = view.font()] {
        QFont font = view.font();
        font.setFamilies(
            settings.Check6[0].isOn() ? familiesFor(
                own, writingSystem(SettingsPage::characterSetOf(settings.cmbScript.selectedText())))
                                      : own.families());
        if (font != view.font()) {
            view.setFont(font);
        }
    };
    QObject::connect(&settings.Check6[0], &CheckBox::valueChanged, &view, show);
    QObject::connect(&settings.cmbScript, &ListBox::selectedChanged, &view, show);
    if (settings.Check6[0].isOn()) {
        show();
    }
}

} // namespace kavro
