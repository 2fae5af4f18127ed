#pragma once

#include "controls/control_array.h"
#include "controls/grid.h"
#include "controls/list_box.h"
#include "controls/tab_strip.h"
#include "controls/text_box.h"

namespace kavro {

/// Columns of the document's grid.
enum Column {
    NumberColumn = 0,
    StartColumn = 1,
    EndColumn = 2,
    FirstTextColumn = 3,
    LastTextColumn = 5,
    ColumnCount = 6
};

/// The editor: the grid that is the document, what lies over its current cell, the preview lines,
/// and the buttons that the current row switches.
struct EditorPage
{
    explicit EditorPage(Form &frmMain);

    Grid grdSubEdit;
    ListBox lstFont;                    ///< the font of each row by row number, never shown
    TextBox rtfEdit;                    ///< the cell editor, laid over the current cell
    Button cmdInvCalc;                  ///< lends the calculator to the cell
    ControlArray<Button, 0, 0> btnNode; ///< starts or ends a node at the current row
    Frame errExp;                       ///< the finding of the current row
    Label lblErrExp;
    Label Label13;                       ///< row, column and caption of the current cell
    Label Label24;                       ///< start time without its last digit
    Label lblSubRowCount;                ///< row / rows
    ControlArray<TextBox, 0, 2> Label23; ///< the three preview lines
    TextBox rtfSubEditBasic;             ///< the edit box of the Basic page
    Button Command10;                    ///< inserts a line
    Button Command11;                    ///< deletes the line
    Button Command14;                    ///< writes the edit box into the cell
    Button Command47;                    ///< clips the edit box to the clipboard list
    Label Label74;                       ///< previous node
    Label Label75;                       ///< next node
    TabStrip SSTab2; ///< Basic, Search/Replace, Filters, Font, and the page that holds SSTab3
    TabStrip SSTab3; ///< Shift, Stretch, Time, Frame Rate
};

} // namespace kavro
