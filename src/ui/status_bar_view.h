#pragma once

#include <QStatusBar>

class QLabel;

namespace kavro {

struct StatusPanels;

/// The foot of the main window: four panels and the document's encoding.
class StatusBarView : public QStatusBar
{
    Q_OBJECT

public:
    StatusBarView(StatusPanels &panels, QWidget *parent);

private:
    QLabel *makePanel(const QString &name, int stretch);
};

} // namespace kavro
