#pragma once

#include "ui/tool_page.h"

namespace kavro {

class Shift;
struct TimePage;

/// The page of the Shift tool.
class ShiftView : public ToolPage
{
    Q_OBJECT

public:
    ShiftView(Shift &shift, TimePage &times, QWidget *parent);
};

} // namespace kavro
