#pragma once

#include "controls/drop_list.h"
#include "controls/list_box.h"

#include <array>

namespace kavro {

/// The lists of formats and languages that a load keeps in step with the document.
struct FormatLists
{
    explicit FormatLists(Form &frmMain);

    DropList combo3; ///< format of the parts: index is FormatId - 1
    DropList Combo7; ///< format of the download list: index is FormatId, 0 for all
    /// Languages: 0 of the download list ("All Languages" first), 1 of the upload, 2 of the copy.
    std::array<DropList, 3> Combo8;
    Button Command39; ///< uploads the document
    ListBox List8;    ///< properties of the transfer
};

} // namespace kavro
