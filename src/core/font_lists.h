#pragma once

#include "controls/control_array.h"
#include "controls/drop_list.h"

#include <array>

namespace kavro {

class LanguageTable;

/// Font and style of the current line, and what the format in force can hold of them.
struct FontLists
{
    explicit FontLists(Form &frmMain);

    /// 0: names of the screen's fonts; 1: regular, bold, italic, bold italic.
    std::array<DropList, 2> Combo9;
    ControlArray<Label, 0, 1> lblFont; ///< name the lists
    ControlArray<Label, 0, 1> Label48; ///< whether the format keeps the font, the style
    Button Command42;                  ///< gives the current line the font

    /// Fills the style list with the language's words and selects the first.
    void fillStyles(const LanguageTable &language);
};

} // namespace kavro
