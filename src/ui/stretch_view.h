#pragma once

#include "ui/tool_page.h"

namespace kavro {

class Stretch;
struct TimePage;

/// The page of the Stretch tool.
class StretchView : public ToolPage
{
    Q_OBJECT

public:
    /// @param lines  names the range, here as on the page of Shift
    StretchView(Stretch &stretch, Label &lines, TimePage &times, QWidget *parent);
};

} // namespace kavro
