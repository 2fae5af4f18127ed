#pragma once

class QWidget;

namespace kavro {

struct SettingsPage;

/// Shows a view's text in a font that has the writing system of the settings, as long as that
/// setting is on; else in the view's own font of now.
void followScript(QWidget &view, SettingsPage &settings);

} // namespace kavro
