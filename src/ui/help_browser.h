#pragma once

#include "core/ports.h"

#include <QObject>
#include <QTextBrowser>

namespace kavro {

/// The help pages as the program asks for them; the views follow.
class HelpPages : public QObject, public HelpBrowser
{
    Q_OBJECT

public:
    void open(const QString &page) override;
    /// Full path of the page opened last, empty before the first.
    [[nodiscard]] const QString &current() const { return m_current; }

signals:
    void opened(const QString &page);

private:
    QString m_current;
};

/// Shows pages of this machine; nothing is fetched from elsewhere.
class HelpView : public QTextBrowser
{
    Q_OBJECT

public:
    explicit HelpView(QWidget *parent);

    /// Full path. A missing page is told in the view.
    void openPage(const QString &page);
    QVariant loadResource(int type, const QUrl &name) override;

protected:
    void doSetSource(const QUrl &name, QTextDocument::ResourceType type) override;
};

/// A page with its buttons back and forward, following the program's pages.
class HelpPanel : public QWidget
{
    Q_OBJECT

public:
    HelpPanel(HelpPages &pages, QWidget *parent);
};

} // namespace kavro
