#pragma once

#include <QWidget>

namespace kavro {

class Program;

/// The panel below the pages, `tabClipboard`, and the button that folds it away.
class BottomPanel : public QWidget
{
    Q_OBJECT

public:
    BottomPanel(Program &program, QWidget *parent);
};

} // namespace kavro
