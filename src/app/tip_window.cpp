#include "app/tip_window.h"

#include "controls/form.h"
#include "core/folders.h"
#include "core/language.h"
#include "core/line_reader.h"
#include "core/ports.h"
#include "core/settings_page.h"

namespace kavro {

using namespace Qt::StringLiterals;

TipWindow::TipWindow(Form &frmTip, SettingsPage &settings, const LanguageTable &language,
                     Folders &folders, RandomNumbers &random)
    : lblTipText(frmTip, u"lblTipText"_s),
      cmdNextTip(frmTip, u"cmdNextTip"_s),
      cmdOk(frmTip, u"cmdOk"_s),
      chkLoadTipsAtStartup(frmTip, u"chkLoadTipsAtStartup"_s),
      m_form(frmTip),
      m_settings(settings),
      m_language(language),
      m_folders(folders),
      m_random(random)
{
    QObject::connect(&cmdNextTip, &Button::clicked, &cmdNextTip, [this] { pickTip(); });
    QObject::connect(&cmdOk, &Button::clicked, &cmdOk, [this] { m_form.hide(); });
    QObject::connect(&m_form, &Form::closeRequested, &cmdOk, [this] { m_form.hide(); });
    QObject::connect(&m_settings.Check7[SettingsPage::ShowTips], &CheckBox::valueChanged,
                     &chkLoadTipsAtStartup, [this](bool on) { chkLoadTipsAtStartup.setOn(on); });
    QObject::connect(&chkLoadTipsAtStartup, &CheckBox::clicked, &chkLoadTipsAtStartup, [this] {
        const bool on = chkLoadTipsAtStartup.isOn();
        m_settings.Check7[SettingsPage::ShowTips].setOn(on);
        if (on) {
            m_settings.Check7[SettingsPage::ShowWizard].setOn(false);
        }
    });
}

void TipWindow::show()
{
    chkLoadTipsAtStartup.setOn(true);
    const QString name = u"tip.sdf"_s;
    if (!LoadTips(m_folders.path(Folder::Help, m_language.languageFolder + u'/' + name))) {
        lblTipText.setCaption(m_language.ownText(u"That the %1 file was not found? "_s).arg(name)
                              + u"\r\n\r\n"_s
                              + m_language.ownText(u"Re-install the language pack."_s));
    }
    m_form.show();
}

bool TipWindow::LoadTips(const QString &file)
{
    m_tips.clear();
    LineReader reader;
    if (file.isEmpty() || !reader.open(file).ok()) {
        return false;
    }
    while (!reader.atEnd()) {
        m_tips.append(reader.readLine().toString());
    }
    pickTip();
    return true;
}

void TipWindow::DisplayCurrentTip()
{
    if (!m_tips.isEmpty()) {
        lblTipText.setCaption(m_tips.value(m_current - 1));
    }
}

void TipWindow::pickTip()
{
    const double count = static_cast<double>(m_tips.size());
    m_current = static_cast<qsizetype>(m_random.next() * count) + 1;
    DisplayCurrentTip();
}

} // namespace kavro
