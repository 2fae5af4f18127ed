#include "app/about_window.h"

#include "app/version.h"
#include "controls/form.h"
#include "core/language.h"

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

enum AboutText { PackText = 1, AuthorText = 2, ProgrammedText = 3, BuildText = 4 };

constexpr QStringView makers = u"Kavro contributors";

} // namespace

AboutWindow::AboutWindow(Form &frmAbout, const LanguageTable &language)
    : lblTitle(frmAbout, u"lblTitle"_s),
      lblBuild(frmAbout, u"lblBuild"_s),
      lblProgrammed(frmAbout, u"lblProgrammed"_s),
      lblLanguage(frmAbout, u"lblLanguage"_s),
      lblAuthor(frmAbout, u"lblAuthor"_s),
      cmdOk(frmAbout, u"cmdOk"_s),
      m_form(frmAbout),
      m_language(language)
{
    QObject::connect(&cmdOk, &Button::clicked, &cmdOk, [this] { m_form.hide(); });
    QObject::connect(&m_form, &Form::closeRequested, &cmdOk, [this] { m_form.hide(); });
}

void AboutWindow::show()
{
    const auto line = [this](int item, QStringView value) {
        return m_language.text(LangGroup::About, item) + u' ' + value.toString();
    };
    lblTitle.setCaption(titleWithVersion());
    lblBuild.setCaption(line(BuildText, buildNumber()));
    lblProgrammed.setCaption(line(ProgrammedText, makers));
    lblLanguage.setCaption(line(PackText, m_language.languageName));
    lblAuthor.setCaption(line(AuthorText, m_language.languageAuthor));
    lblAuthor.setVisible(!m_language.languageAuthor.isEmpty());
    m_form.show();
}

} // namespace kavro
