#pragma once

#include "controls/control_array.h"
#include "controls/list_box.h"

#include <QStringList>

namespace kavro {

class Form;
class FormRunner;
class LanguageTable;
class Messages;
class SubtitleDocument;
class SubtitleWriter;
struct StatusPanels;

/// The window that shows the whole document as its format would write it, `frmPreview`.
class ScriptPreview
{
public:
    /// All are borrowed and outlive the window.
    struct Parts
    {
        SubtitleDocument &document;
        SubtitleWriter &writer;
        StatusPanels &status;
        Messages &messages;
        const LanguageTable &language;
        FormRunner &forms;
    };

    ScriptPreview(Form &frmPreview, const Parts &parts);

    /// Writes the document into a preview file and shows it until the window is closed. A run that
    /// fails is told, and opens no window.
    void mnuPreview();

    ListBox List1;                     ///< the file, an entry a line
    ControlArray<Label, 0, 2> lblData; ///< name of the document, its format, number of lines
    Button Command1;                   ///< closes the window
    Frame pMove;                       ///< the bar that the window is dragged by

private:
    [[nodiscard]] bool makeLines(QStringList &lines);

    Form &m_form;
    Parts m_parts;
};

} // namespace kavro
