#include "core/control_window.h"

#include "controls/form.h"
#include "core/settings_page.h"

namespace kavro {

using namespace Qt::StringLiterals;

ControlWindow::ControlWindow(Form &frmControl, SettingsPage &settings)
    : Text1(frmControl, u"Text1"_s),
      ProgressBar1(frmControl, u"ProgressBar1"_s),
      lblEnd(frmControl, u"lblEnd"_s),
      chkClose(frmControl, u"chkClose"_s),
      cmdOk(frmControl, u"cmdOk"_s),
      m_form(frmControl),
      m_settings(settings)
{
    chkClose.setOn(m_settings.Check3.isOn());
    QObject::connect(&m_settings.Check3, &CheckBox::valueChanged, &chkClose, &CheckBox::setOn);
    QObject::connect(&chkClose, &CheckBox::valueChanged, &m_settings.Check3, &CheckBox::setOn);
    QObject::connect(&cmdOk, &Button::clicked, &m_form, &Form::hide);
    QObject::connect(&m_form, &Form::closeRequested, &m_form, &Form::hide);
}

void ControlWindow::open(const QString &caption)
{
    m_form.setCaption(caption);
    Text1[0].setText({});
    lblEnd.setCaption({});
    ProgressBar1.setValue(0);
    if (!quiet) {
        m_form.show();
    }
}

void ControlWindow::append(const QString &text)
{
    Text1[0].setText(Text1[0].text() + text);
}

void ControlWindow::setCaption(const QString &caption)
{
    m_form.setCaption(caption);
}

void ControlWindow::finish()
{
    if (m_settings.Check3.isOn()) {
        m_form.hide();
    }
}

} // namespace kavro
