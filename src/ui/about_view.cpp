#include "ui/about_view.h"

#include "app/about_window.h"
#include "ui/bind_buttons.h"
#include "ui/bind_text.h"

#include <QGuiApplication>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace kavro {

AboutView::AboutView(Form &frmAbout, AboutWindow &about, QWidget *parent)
    : FormDialog(frmAbout, parent)
{
    constexpr int iconSize = 64;
    auto *icon = new QLabel(this);
    icon->setPixmap(QGuiApplication::windowIcon().pixmap(iconSize));
    auto *words = new QVBoxLayout;
    words->setSpacing(4);
    for (Label *label : {&about.lblTitle, &about.lblBuild, &about.lblProgrammed, &about.lblLanguage,
                         &about.lblAuthor})
    {
        auto *view = new QLabel(this);
        bind(*view, *label);
        if (label == &about.lblTitle) {
            QFont large = view->font();
            large.setPointSizeF(large.pointSizeF() * 1.6);
            view->setFont(large);
        }
        words->addWidget(view);
    }
    words->addStretch(1);
    auto *ok = new QPushButton(this);
    bind(*ok, about.cmdOk);
    ok->setDefault(true);

    auto *top = new QHBoxLayout;
    top->setSpacing(16);
    top->addWidget(icon, 0, Qt::AlignTop);
    top->addLayout(words, 1);
    QVBoxLayout *layout = makeLayout();
    layout->addLayout(top, 1);
    layout->addWidget(ok, 0, Qt::AlignRight);
    ok->setFocus();
    resize(400, 220);
}

} // namespace kavro
