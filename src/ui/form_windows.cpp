#include "ui/form_windows.h"

#include "controls/form.h"

#include <QApplication>
#include <QEventLoop>
#include <QTimer>

#include <utility>

namespace kavro {

namespace {

constexpr int lateMs = 200;

} // namespace

void FormWindows::add(Form &form, MakeWindow make, bool late)
{
    m_entries.insert(&form, {.make = std::move(make), .late = late, .window = {}});
    connect(&form, &Form::openChanged, this, [this, &form](bool open) { follow(form, open); });
    if (form.isOpen()) {
        follow(form, true);
    }
}

QDialog *FormWindows::window(const Form &form) const
{
    return m_entries.value(&form).window;
}

void FormWindows::clear()
{
    for (Entry &entry : m_entries) {
        delete entry.window;
    }
}

void FormWindows::runModal(Form &form)
{
    Q_ASSERT(m_entries.contains(&form));
    form.show();
    open(form);
    QDialog *dialog = window(form);
    dialog->hide();
    dialog->setWindowModality(Qt::ApplicationModal);
    dialog->show();
    QEventLoop loop;
    connect(&form, &Form::openChanged, &loop, [&loop](bool open) {
        if (!open) {
            loop.quit();
        }
    });
    if (form.isOpen()) {
        loop.exec();
    }
    dialog->setWindowModality(Qt::NonModal);
}

void FormWindows::follow(Form &form, bool opened)
{
    const Entry &entry = m_entries[&form];
    if (!opened) {
        if (entry.window != nullptr) {
            entry.window->hide();
        }
    } else if (entry.late) {
        openLate(form);
    } else {
        open(form);
    }
}

void FormWindows::openLate(Form &form)
{
    QTimer::singleShot(lateMs, &form, [this, &form] {
        if (!form.isOpen()) {
            return;
        }
        if (QApplication::activeModalWidget() != nullptr) {
            openLate(form);
        } else {
            open(form);
        }
    });
}

void FormWindows::open(Form &form)
{
    Entry &entry = m_entries[&form];
    if (entry.window == nullptr) {
        entry.window = entry.make(parent);
    }
    entry.window->show();
    entry.window->raise();
}

} // namespace kavro
