#include "app/splash_window.h"

#include "app/version.h"
#include "controls/form.h"
#include "core/language.h"

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

constexpr int countdownSeconds = 6;
constexpr Color green = Color::fromBgr(0x8000);

} // namespace

SplashWindow::SplashWindow(Form &frmSplash, const LanguageTable &language)
    : lblVersion(frmSplash, u"lblVersion"_s),
      lblBuild(frmSplash, u"lblBuild"_s),
      Label1(frmSplash, u"Label1"_s),
      pMove(frmSplash, u"pMove"_s),
      Timer2(frmSplash, u"Timer2"_s, 1000),
      m_form(frmSplash),
      m_language(language)
{
    QObject::connect(&Timer2, &Timer::fired, &Timer2, [this] { countDown(); });
    QObject::connect(&m_form, &Form::closeRequested, &Timer2, [this] { ExitfrmSplash(); });
    for (Label *label : {&lblVersion, &lblBuild, &Label1}) {
        QObject::connect(label, &Label::clicked, label, [this] { ExitfrmSplash(); });
        QObject::connect(label, &Label::keyPressed, label, [this] { ExitfrmSplash(); });
    }
}

void SplashWindow::open()
{
    m_seconds = countdownSeconds;
    lblVersion.setCaption(titleWithVersion());
    lblBuild.setCaption(buildNumber());
    m_form.show();
}

void SplashWindow::finish()
{
    Timer2.setOn(true);
    Label1.setCaption(m_language.ownText(u"Done"_s));
    Label1.setForeColor(green);
}

void SplashWindow::countDown()
{
    --m_seconds;
    const QString text = m_seconds > 1 ? u"Press a key to continue or wait %1 seconds..."_s
                                       : u"Press a key to continue or wait %1 second..."_s;
    Label1.setCaption(m_language.ownText(text).arg(m_seconds));
    if (m_seconds <= 0) {
        ExitfrmSplash();
    }
}

void SplashWindow::ExitfrmSplash()
{
    if (!m_form.isOpen()) {
        return;
    }
    Timer2.setOn(false);
    m_form.hide();
    if (gone) {
        gone();
    }
}

} // namespace kavro
