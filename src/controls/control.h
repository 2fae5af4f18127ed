#pragma once

#include "controls/color.h"

#include <QObject>
#include <QString>

namespace kavro {

class Form;

/// The keys that controls of the program act on.
enum class Key { Enter, Escape, Tab };

/// One control of a form as plain state, under its name in the program.
///
/// Setting is not picking: the `set...` functions of the derived classes are the program's own
/// writes and raise a change signal when the value changes; the acts (`click`, `pick`, `type`,
/// `slide`, ...) stand for the user and raise the act's signal each time, also on the value that
/// stands already. Whether a user may act is asked by the view, never by the act itself.
class Control : public QObject
{
    Q_OBJECT

public:
    static constexpr int noIndex = -1;

    /// Registers under `name`, or under name(index), with `form`, which must outlive the control.
    Control(Form &form, const QString &name, int index = noIndex);
    ~Control() override;

    [[nodiscard]] Form &form() const { return m_form; }
    [[nodiscard]] const QString &name() const { return m_name; }
    /// The number within a control array, `noIndex` for a single control.
    [[nodiscard]] int index() const { return m_index; }
    /// "Check3(7)".
    [[nodiscard]] QString nameWithIndex() const;
    /// "frmMain.Check3(7)".
    [[nodiscard]] QString fullName() const;

    [[nodiscard]] bool isEnabled() const { return m_enabled; }
    [[nodiscard]] bool isVisible() const { return m_visible; }
    [[nodiscard]] const QString &toolTip() const { return m_toolTip; }
    [[nodiscard]] Color foreColor() const { return m_foreColor; }
    [[nodiscard]] Color backColor() const { return m_backColor; }
    /// True when a user may act on the control now.
    [[nodiscard]] virtual bool acceptsActs() const { return m_enabled && m_visible; }

    void setEnabled(bool enabled);
    void setVisible(bool visible);
    void setToolTip(const QString &toolTip);
    void setForeColor(Color color);
    void setBackColor(Color color);

    /// A key pressed in the control.
    void press(Key key) { emit keyPressed(key); }

    [[nodiscard]] bool hasFocus() const;
    /// Moves the form's focus here.
    void setFocus();

signals:
    /// Anything that a view shows of every control has changed: enabled, visible, tool tip,
    /// colours.
    void lookChanged();
    void keyPressed(kavro::Key key);
    void gotFocus();
    /// `next` takes the focus, nullptr when it leaves the form.
    void lostFocus(kavro::Control *next);

private:
    Form &m_form;
    QString m_name;
    int m_index;
    bool m_enabled = true;
    bool m_visible = true;
    QString m_toolTip;
    Color m_foreColor;
    Color m_backColor;
};

/// A control that shows a caption.
class CaptionControl : public Control
{
    Q_OBJECT

public:
    using Control::Control;

    [[nodiscard]] const QString &caption() const { return m_caption; }
    void setCaption(const QString &caption);

signals:
    void captionChanged(const QString &caption);

private:
    QString m_caption;
};

/// A part of a window that is shown and hidden as a whole.
class Frame : public CaptionControl
{
    Q_OBJECT

public:
    using CaptionControl::CaptionControl;
};

/// A caption that can be clicked.
class ClickControl : public CaptionControl
{
    Q_OBJECT

public:
    using CaptionControl::CaptionControl;

    /// Act: a click.
    void click() { emit clicked(); }

signals:
    void clicked();
};

/// A text on a form. Nearly all labels of the program can be clicked.
class Label : public ClickControl
{
    Q_OBJECT

public:
    using ClickControl::ClickControl;
};

/// A button or a menu entry.
class Button : public ClickControl
{
    Q_OBJECT

public:
    using ClickControl::ClickControl;
};

/// A box that holds 0 or 1.
class CheckBox : public CaptionControl
{
    Q_OBJECT

public:
    using CaptionControl::CaptionControl;

    [[nodiscard]] bool isOn() const { return m_on; }
    /// 0 or 1.
    [[nodiscard]] int value() const { return m_on ? 1 : 0; }
    void setOn(bool on);
    /// Act: the user switches the box to `on`.
    void check(bool on);

signals:
    void valueChanged(bool on);
    void clicked();

private:
    bool m_on = false;
};

/// One of several choices. The group is the control array that the button belongs to.
class OptionButton : public CaptionControl
{
    Q_OBJECT

public:
    using CaptionControl::CaptionControl;

    [[nodiscard]] bool isOn() const { return m_on; }
    [[nodiscard]] int value() const { return m_on ? 1 : 0; }
    /// Chooses this one and takes the choice from its siblings.
    void setOn();
    /// Act: the user chooses this one.
    void click();

signals:
    void valueChanged(bool on);
    void clicked();

private:
    void store(bool on);

    bool m_on = false;
};

} // namespace kavro
