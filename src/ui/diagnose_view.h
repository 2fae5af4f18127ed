#pragma once

#include "diagnose/switches.h"
#include "ui/tool_page.h"

namespace kavro {

class Diagnose;
class Frame;

/// The page of Diagnose: what is looked for, counted and repaired, and the tree of what was found.
class DiagnoseView : public ToolPage
{
    Q_OBJECT

public:
    DiagnoseView(Diagnose &diagnose, QWidget *parent);

signals:
    /// A person wants to see the current line: Enter or a double click in the tree.
    void lineAsked();

private:
    QWidget *makeGroup(Diagnose &diagnose, Frame &frame, DiagnoseSwitch first, DiagnoseSwitch last);
};

} // namespace kavro
