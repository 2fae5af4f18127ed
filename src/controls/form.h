#pragma once

#include "controls/control.h"

#include <QHash>
#include <QList>
#include <QObject>

namespace kavro {

/// A window of the program as state: its caption, whether it is open, where its focus is, and the
/// one registry of its controls. A form doesn't own its controls; they must not outlive it.
class Form : public QObject
{
    Q_OBJECT

public:
    explicit Form(const QString &name);

    [[nodiscard]] const QString &name() const { return m_name; }
    [[nodiscard]] const QString &caption() const { return m_caption; }
    void setCaption(const QString &caption);

    /// True while the window is on the screen.
    [[nodiscard]] bool isOpen() const { return m_open; }
    /// Opens the window beside the others; a window a person must close first goes through
    /// `FormRunner::runModal`.
    void show();
    /// Closes the window; its controls keep their state.
    void hide();
    /// The window's own close button; the owner decides what it does.
    void requestClose() { emit closeRequested(); }

    /// The control of that name, "Text1(0)" for one of an array, in any case of letters; nullptr
    /// when there is none.
    [[nodiscard]] Control *control(QStringView name) const;
    /// All controls of the array `name`, by index; a single control gives a list of one.
    [[nodiscard]] QList<Control *> array(QStringView name) const;
    /// All controls in the order in which they were declared.
    [[nodiscard]] const QList<Control *> &controls() const { return m_controls; }

    /// While one lives, the wait cursor stands over the window. They nest.
    class Busy
    {
    public:
        explicit Busy(Form &form) : m_form(form) { m_form.addBusy(1); }
        ~Busy() { m_form.addBusy(-1); }
        Q_DISABLE_COPY_MOVE(Busy)

    private:
        Form &m_form;
    };
    [[nodiscard]] bool isBusy() const { return m_busy > 0; }

    [[nodiscard]] Control *focus() const { return m_focus; }
    /// Moves the focus; nullptr takes it away. The old holder's `lostFocus` comes before the new
    /// one's `gotFocus`; the present holder is told nothing.
    void setFocus(Control *control);

signals:
    void captionChanged(const QString &caption);
    void openChanged(bool open);
    void closeRequested();
    void busyChanged(bool busy);
    void focusChanged(kavro::Control *control);

private:
    friend class Control;
    void addBusy(int count);
    void enter(Control &control);
    void leave(Control &control);

    QString m_name;
    QString m_caption;
    bool m_open = false;
    int m_busy = 0;
    Control *m_focus = nullptr;
    QList<Control *> m_controls;
    QHash<QString, Control *> m_byName; ///< keys in lower case, with the index
};

} // namespace kavro
