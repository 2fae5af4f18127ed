#include "ui/bind_buttons.h"

#include "controls/control.h"
#include "ui/bind_look.h"

#include <QAction>
#include <QCheckBox>
#include <QRadioButton>

namespace kavro {

void bind(QAbstractButton &view, ClickControl &control)
{
    bindLook(view, control);
    const auto show = [&view, &control] { view.setText(withoutMnemonic(control.caption())); };
    QObject::connect(&control, &CaptionControl::captionChanged, &view, show);
    QObject::connect(&view, &QAbstractButton::clicked, &control, [&control] { control.click(); });
    show();
}

void bind(QCheckBox &view, CheckBox &box)
{
    bindLook(view, box);
    const auto caption = [&view, &box] { view.setText(withoutMnemonic(box.caption())); };
    QObject::connect(&box, &CheckBox::captionChanged, &view, caption);
    caption();
    view.setChecked(box.isOn());
    // `clicked` is a person's alone, `setChecked` doesn't raise it.
    QObject::connect(&view, &QCheckBox::clicked, &box, [&box](bool on) { box.check(on); });
    QObject::connect(&box, &CheckBox::valueChanged, &view,
                     [&view](bool on) { view.setChecked(on); });
}

void bind(QRadioButton &view, OptionButton &option)
{
    bindLook(view, option);
    const auto caption = [&view, &option] { view.setText(withoutMnemonic(option.caption())); };
    QObject::connect(&option, &OptionButton::captionChanged, &view, caption);
    caption();
    view.setChecked(option.isOn());
    QObject::connect(&view, &QRadioButton::clicked, &option, [&option] { option.click(); });
    QObject::connect(&option, &OptionButton::valueChanged, &view,
                     [&view](bool on) { view.setChecked(on); });
}

void bind(QAction &action, Button &button)
{
    action.setObjectName(button.nameWithIndex());
    const auto follow = [&action, &button] {
        action.setText(withoutMnemonic(button.caption()));
        action.setToolTip(button.toolTip());
        action.setEnabled(button.isEnabled());
        action.setVisible(button.isVisible());
    };
    QObject::connect(&button, &Control::lookChanged, &action, follow);
    QObject::connect(&button, &CaptionControl::captionChanged, &action, follow);
    QObject::connect(&action, &QAction::triggered, &button, [&button] { button.click(); });
    follow();
}

} // namespace kavro
