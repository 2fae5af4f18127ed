#pragma once

#include "ui/tool_page.h"

namespace kavro {

struct FontLists;

/// The page of the Font tool: font and style of the current line.
class FontView : public ToolPage
{
    Q_OBJECT

public:
    FontView(FontLists &fonts, QWidget *parent);
};

} // namespace kavro
