#include "ui/window_parent.h"

#include <QApplication>
#include <QWidget>

namespace kavro {

QWidget *windowParent()
{
    if (QWidget *modal = QApplication::activeModalWidget()) {
        return modal;
    }
    if (QWidget *active = QApplication::activeWindow()) {
        return active;
    }
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->windowType() == Qt::Window) {
            return window;
        }
    }
    return nullptr;
}

} // namespace kavro
