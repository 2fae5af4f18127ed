#include "app/help_window.h"

#include "app/help_pages.h"
#include "controls/form.h"
#include "core/folders.h"
#include "core/language.h"
#include "core/ports.h"

namespace kavro {

using namespace Qt::StringLiterals;

HelpWindow::HelpWindow(Form &frmHelp, HelpBrowser &browser, const LanguageTable &language,
                       const Folders &folders)
    : cmdOk(frmHelp, u"cmdOk"_s),
      m_form(frmHelp),
      m_browser(browser),
      m_language(language),
      m_folders(folders)
{
    QObject::connect(&cmdOk, &Button::clicked, &cmdOk, [this] { m_form.hide(); });
    QObject::connect(&m_form, &Form::closeRequested, &cmdOk, [this] { m_form.hide(); });
}

void HelpWindow::ShowHelpPage(int index)
{
    const QString page = helpPage(index);
    if (!page.isEmpty()) {
        m_browser.open(m_folders.path(Folder::Help, m_language.languageFolder + u'/' + page));
    }
}

void HelpWindow::showIndex()
{
    m_browser.open(m_folders.path(Folder::Root, u"help/index.htm"));
}

void HelpWindow::show()
{
    m_browser.open(m_folders.path(Folder::System, u"helpcenter.htm"));
    m_form.show();
}

} // namespace kavro
