#pragma once

#include "ui/tool_page.h"

namespace kavro {

class TimeChange;
struct TimePage;

/// The page of the Time tool: the working copy of the current line's times.
class TimeChangeView : public ToolPage
{
    Q_OBJECT

public:
    TimeChangeView(TimeChange &change, TimePage &times, QWidget *parent);
};

} // namespace kavro
