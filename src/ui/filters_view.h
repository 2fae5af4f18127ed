#pragma once

#include "ui/tool_page.h"

namespace kavro {

class Filters;

/// The page of the Filters tool.
class FiltersView : public ToolPage
{
    Q_OBJECT

public:
    FiltersView(Filters &filters, QWidget *parent);
};

} // namespace kavro
