#include "app/wizard_window.h"

#include "controls/form.h"
#include "core/settings_page.h"

namespace kavro {

using namespace Qt::StringLiterals;

WizardWindow::WizardWindow(Form &frmWizard, SettingsPage &settings)
    : List1(frmWizard, u"List1"_s),
      Label1(frmWizard, u"Label1"_s),
      cmdGo(frmWizard, u"cmdGo"_s),
      cmdOk(frmWizard, u"cmdOk"_s),
      chkLoadWizardAtStartup(frmWizard, u"chkLoadWizardAtStartup"_s),
      m_form(frmWizard),
      m_settings(settings)
{
    QObject::connect(&List1, &ListBox::selectedChanged, &List1, [this] { showJob(); });
    QObject::connect(&cmdGo, &Button::clicked, &cmdGo, [this] { go(List1.selectedText()); });
    QObject::connect(&cmdOk, &Button::clicked, &cmdOk, [this] { m_form.hide(); });
    QObject::connect(&m_form, &Form::closeRequested, &cmdOk, [this] { m_form.hide(); });
    CheckBox &showWizard = m_settings.Check7[SettingsPage::ShowWizard];
    QObject::connect(&showWizard, &CheckBox::valueChanged, &chkLoadWizardAtStartup,
                     [this](bool on) { chkLoadWizardAtStartup.setOn(on); });
    QObject::connect(&chkLoadWizardAtStartup, &CheckBox::clicked, &chkLoadWizardAtStartup,
                     [this, &showWizard] {
                         showWizard.setOn(chkLoadWizardAtStartup.isOn());
                         if (showWizard.isOn()) {
                             m_settings.Check7[SettingsPage::ShowTips].setOn(false);
                         }
                     });
    showJob();
}

void WizardWindow::show()
{
    m_form.show();
}

void WizardWindow::setJobs(const QList<Job> &jobs)
{
    m_jobs = jobs;
    QStringList names;
    for (const Job &job : jobs) {
        names.append(job.name);
    }
    List1.setItems(names);
    List1.setSelected(jobs.isEmpty() ? -1 : 0);
    showJob();
}

void WizardWindow::showJob()
{
    Label1.setCaption(m_jobs.value(List1.selected()).text);
    cmdGo.setEnabled(go && List1.selected() >= 0);
}

} // namespace kavro
