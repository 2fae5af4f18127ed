#pragma once

#include "controls/list_box.h"
#include "controls/text_box.h"

#include <QList>
#include <QString>

#include <functional>

namespace kavro {

struct SettingsPage;

/// The window of jobs that a person picks by name, `frmWizard`: the macros that are shown in it.
class WizardWindow
{
public:
    struct Job
    {
        QString name;
        QString text; ///< what it does, for the person
    };

    WizardWindow(Form &frmWizard, SettingsPage &settings);

    void show();
    /// Replaces the jobs; the first is selected. Without one there is nothing to go.
    void setJobs(const QList<Job> &jobs);

    /// Runs the job of that name; set by who has jobs.
    std::function<void(const QString &)> go;

    ListBox List1; ///< the jobs' names
    Label Label1;  ///< what the selected job does
    Button cmdGo;
    Button cmdOk;
    CheckBox chkLoadWizardAtStartup; ///< "Show Wizard" of the settings

private:
    void showJob();

    Form &m_form;
    SettingsPage &m_settings;
    QList<Job> m_jobs;
};

} // namespace kavro
