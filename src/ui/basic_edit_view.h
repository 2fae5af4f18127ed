#pragma once

#include "ui/tool_page.h"

namespace kavro {

struct EditorPage;
struct SettingsPage;

/// The page of the Basic tool: the edit box of the current cell, and what is done with it and with
/// its line.
class BasicEditView : public ToolPage
{
    Q_OBJECT

public:
    BasicEditView(EditorPage &editor, SettingsPage &settings, QWidget *parent);
};

} // namespace kavro
