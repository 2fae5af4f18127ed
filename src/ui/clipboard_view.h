#pragma once

#include "ui/tool_page.h"

namespace kavro {

class Clipboard;
struct ClipboardPanel;

/// The page of the program's own clipboard: its items, and where they are copied.
class ClipboardView : public ToolPage
{
    Q_OBJECT

public:
    ClipboardView(ClipboardPanel &panel, Clipboard &clips, QWidget *parent);
};

} // namespace kavro
