#include "ui/bind_look.h"

#include "controls/form.h"

#include <QWidget>

namespace kavro {

namespace {

void bind(QWidget &widget, Control &control, const QString &label, bool hides)
{
    widget.setObjectName(control.nameWithIndex());
    const auto follow = [&widget, &control, label, hides] {
        widget.setAccessibleName(accessibleNameOf(control, label));
        widget.setToolTip(control.toolTip());
        widget.setEnabled(control.acceptsActs());
        if (hides) {
            widget.setVisible(control.isVisible());
        }
    };
    QObject::connect(&control, &Control::lookChanged, &widget, follow);
    if (const auto *captioned = qobject_cast<CaptionControl *>(&control)) {
        QObject::connect(captioned, &CaptionControl::captionChanged, &widget, follow);
    }
    follow();
}

} // namespace

QString withoutMnemonic(const QString &text)
{
    return QString(text).replace(u'&', QLatin1String("&&"));
}

QString accessibleNameOf(const Control &control, const QString &label)
{
    if (const auto *captioned = qobject_cast<const CaptionControl *>(&control)) {
        const QString caption = captioned->caption();
        const bool says = std::any_of(caption.cbegin(), caption.cend(),
                                      [](QChar letter) { return letter.isLetterOrNumber(); });
        if (says) {
            return caption;
        }
    }
    return label.isEmpty() ? control.toolTip() : label;
}

void bindLook(QWidget &widget, Control &control, const QString &label)
{
    Q_ASSERT(widget.parentWidget() != nullptr);
    bind(widget, control, label, true);
}

void bindLookInPlace(QWidget &widget, Control &control, const QString &label)
{
    bind(widget, control, label, false);
}

void bindCursor(QWidget &window, Form &form)
{
    const auto follow = [&window](bool busy) {
        busy ? window.setCursor(Qt::WaitCursor) : window.unsetCursor();
    };
    QObject::connect(&form, &Form::busyChanged, &window, follow);
    follow(form.isBusy());
}

} // namespace kavro
