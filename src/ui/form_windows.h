#pragma once

#include "core/ports.h"

#include <QDialog>
#include <QHash>
#include <QObject>
#include <QPointer>

#include <functional>

namespace kavro {

/// The windows of the program's forms, each made when its form is opened first.
class FormWindows : public QObject, public FormRunner
{
    Q_OBJECT

public:
    using MakeWindow = std::function<QDialog *(QWidget *parent)>;

    ~FormWindows() override { clear(); }

    /// From now on the form's window opens and closes with the form. A window that opens `late`
    /// isn't shown for a form that is closed again at once, and never over a question.
    void add(Form &form, MakeWindow make, bool late = false);

    void runModal(Form &form) override;

    /// Deletes the windows.
    void clear();

    /// The window of a form, nullptr before it was opened.
    [[nodiscard]] QDialog *window(const Form &form) const;

    /// Windows stand before this one; nullptr until there is one.
    QWidget *parent = nullptr;

private:
    struct Entry
    {
        MakeWindow make;
        bool late = false;
        QPointer<QDialog> window; ///< the window that it stands before may take it along
    };

    void follow(Form &form, bool open);
    void open(Form &form);
    void openLate(Form &form);

    QHash<const Form *, Entry> m_entries;
};

} // namespace kavro
