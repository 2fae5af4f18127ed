#include "ui/help_browser.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

namespace kavro {

using namespace Qt::StringLiterals;

void HelpPages::open(const QString &page)
{
    m_current = page;
    emit opened(page);
}

HelpView::HelpView(QWidget *parent) : QTextBrowser(parent)
{
    setFrameShape(NoFrame);
    setAccessibleName(tr("Help page"));
    setOpenExternalLinks(false);
    document()->setDocumentMargin(12);
}

void HelpView::openPage(const QString &page)
{
    setSource(QUrl::fromLocalFile(page));
}

QVariant HelpView::loadResource(int type, const QUrl &name)
{
    const QUrl url = source().resolved(name);
    if (!url.isLocalFile()) {
        return {};
    }
    if (type == QTextDocument::HtmlResource && !QFileInfo(url.toLocalFile()).isFile()) {
        return u"<h3>%1</h3><p>%2</p>"_s.arg(tr("This help page is missing"),
                                             url.toLocalFile().toHtmlEscaped());
    }
    return QTextBrowser::loadResource(type, name);
}

void HelpView::doSetSource(const QUrl &name, QTextDocument::ResourceType type)
{
    if (source().resolved(name).isLocalFile()) {
        QTextBrowser::doSetSource(name, type);
    }
}

HelpPanel::HelpPanel(HelpPages &pages, QWidget *parent) : QWidget(parent)
{
    auto *view = new HelpView(this);
    view->setObjectName(u"brwHelp"_s);
    auto *buttons = new QHBoxLayout;
    const auto addButton = [this, buttons](QStyle::StandardPixmap icon, const QString &name) {
        auto *button = new QToolButton(this);
        button->setIcon(style()->standardIcon(icon));
        button->setAutoRaise(true);
        button->setEnabled(false);
        button->setFocusPolicy(Qt::TabFocus);
        button->setToolTip(name);
        button->setAccessibleName(name);
        buttons->addWidget(button);
        return button;
    };
    QToolButton *back = addButton(QStyle::SP_ArrowBack, tr("Back"));
    QToolButton *forward = addButton(QStyle::SP_ArrowForward, tr("Forward"));
    buttons->addStretch();
    connect(back, &QToolButton::clicked, view, &QTextBrowser::backward);
    connect(forward, &QToolButton::clicked, view, &QTextBrowser::forward);
    connect(view, &QTextBrowser::backwardAvailable, back, &QToolButton::setEnabled);
    connect(view, &QTextBrowser::forwardAvailable, forward, &QToolButton::setEnabled);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(buttons);
    layout->addWidget(view, 1);
    connect(&pages, &HelpPages::opened, view, &HelpView::openPage);
    if (!pages.current().isEmpty()) {
        view->openPage(pages.current());
    }
}

} // namespace kavro
