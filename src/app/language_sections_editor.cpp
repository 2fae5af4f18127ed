#include "app/language_sections.h"

namespace kavro {

namespace {

// clang-format off
constexpr LanguageRow editorTabs[] = {
    {0, u"SSTab2", u"Basic", u"Edit one line at a time", 0},
    {1, u"SSTab2", u"Search/Replace", u"Find a text or replace it", 1},
    {2, u"SSTab2", u"Filters", u"Reverse text, break long lines", 2},
    {3, u"SSTab2", u"Font", u"Font and style of a line", 3},
    {4, u"SSTab2", u"Time", u"Move and stretch times", 4},
};

constexpr LanguageRow timingTabs[] = {
    {0, u"SSTab3", u"Shift", u"Move a range of lines by one duration", 0},
    {1, u"SSTab3", u"Stretch", u"Spread a range of lines between two times", 1},
    {2, u"SSTab3", u"Time", u"Change the times of one line", 2},
    {3, u"SSTab3", u"Frame Rate", u"Convert all times to another frame rate", 3},
};

constexpr LanguageRow basic[] = {
    {0, u"Command10", u"Insert", u"Inserts a line"},
    {1, u"Command11", u"Delete", u"Deletes a line"},
    {2, u"Command14", u"Change.To", u"Change selected subtitleline to text on the right"},
    {3, u"Command47", u"Clip", u"Clip content to clipboard"},
};

constexpr LanguageRow searchReplace[] = {
    {0, u"Option1(0)", u"Search", u"Find the text"},
    {1, u"Option1(1)", u"Replace", u"Replace the text in all lines"},
    {2, u"Command2", u"Delete current record", u"Deletes the selected search from the list"},
    {3, u"cmdSearch", u"Go replacing", u"Finds the next place, or replaces in all lines"},
    {4, u"Label47", {}, u"Opens the list of stored searches"},
    {5, u"List4", {}, u"Stored searches and replacements"},
    {6, u"lblMatches", {}, u"Cels that hold the text, in all lines"},
    {7, u"lblSearch", u"Search for"},
    {8, u"lblReplace", u"Replace with"},
    {9, u"lblStored", u"Stored"},
};

constexpr LanguageRow filters[] = {
    {0, u"Command30", u"Apply filter", u"Runs what is ticked over all lines"},
    {1, u"Check4(0)", u"Reverse Hebrew", u"Reverse text"},
    {2, u"Check4(1)", u"Correct long lines", u"Reverse text"},
    {3, u"txtMaxCount", {}, u"Enter max character amount for a line"},
    {4, u"lblMaxCount", u"Most characters"},
};

constexpr LanguageRow font[] = {
    {0, u"Command42", u"Go replacing", u"Gives the line this font and style"},
    {1, u"Combo9(0)", {}, u"Font of the line"},
    {2, u"Combo9(1)", {}, u"Style of the line"},
    {3, u"Label20", {}, u"Opens the list of fonts"},
    {4, u"Label44", {}, u"Opens the list of styles"},
    {5, u"lblFont(0)", u"Font"},
    {6, u"lblFont(1)", u"Style"},
};

constexpr LanguageRow selection[] = {
    {0, u"SSTab1", u"Selection", u"All commands and pages in a tree", 0},
    {1, u"SSTab1", u"Help", u"The help page", 1},
};

constexpr LanguageRow shift[] = {
    {0, u"Command13", u"Execute shifting", u"Moves the lines of the range"},
    {1, u"Label26", u"Duration"},
    {2, u"Label39", u"Lines"},
    {3, u"rtfShiftDuration", {}, u"Enter how far the lines move, hh:mm:ss,mmm"},
    {4, u"Combo2", {}, u"Towards the beginning or the end"},
    {5, u"Text1(0)", {}, u"First line of the range"},
    {6, u"Text1(1)", {}, u"Last line of the range"},
    {7, u"Label5", u"Range", u"Next node, or all lines"},
};

constexpr LanguageRow stretch[] = {
    {0, u"Command12", u"Execute stretch", u"Spreads the lines of the range"},
    {1, u"Label40", u"First"},
    {2, u"Label41", u"Last"},
    {3, u"rtfStretchFirst", {}, u"Enter the start of the first line, hh:mm:ss,mmm"},
    {4, u"rtfStretchLast", {}, u"Enter the start of the last line, hh:mm:ss,mmm"},
    {5, u"Text1(2)", {}, u"First line of the range"},
    {6, u"Text1(3)", {}, u"Last line of the range"},
    {7, u"Label63", u"Range", u"Reset values to min. and max."},
};

constexpr LanguageRow time[] = {
    {0, u"Command15", u"Earlier", u"Moves subtileline x sec earlier defined in the box on the right"},
    {1, u"Command16", u"Later", u"Moves subtileline x sec later"},
    {2, u"Command17", u"Shorter", u"Decrease duration x sec"},
    {3, u"Command18", u"Longer", u"Increase duration x sec"},
    {4, u"Command19", u"Execute", u"Executes time change"},
    {5, u"rtfDurShift", {}, u"Enter the step, mm:ss,mmm"},
    {6, u"rtfTimeStart", {}, u"Start of the line, hh:mm:ss,mmm"},
    {7, u"rtfTimeEnd", {}, u"End of the line, hh:mm:ss,mmm"},
    {8, u"lblTime(0)", u"Start"},
    {9, u"lblTime(1)", u"End"},
    {10, u"lblTime(2)", u"Step"},
};

constexpr LanguageRow frameRate[] = {
    {0, u"Label32", u"From, to"},
    {1, u"Combo14(0)", {}, u"Frame rate of the movie that you have"},
    {2, u"Combo14(1)", {}, u"Frame rate that the subtitle was made for"},
    {3, u"Command52", u"Go converting frame rate", u"Converts all times"},
    {4, u"Label29", {}, u"Opens the list of frame rates"},
    {5, u"Label45", {}, u"Opens the list of frame rates"},
};

constexpr LanguageSection sections[] = {
    {u"Editor Tab 1", u"frmMain", editorTabs},
    {u"Editor Tab 2", u"frmMain", timingTabs},
    {u"Edit Basic", u"frmMain", basic},
    {u"Edit S/R", u"frmMain", searchReplace},
    {u"Edit Filters", u"frmMain", filters},
    {u"Edit Font", u"frmMain", font},
    {u"Selection", u"frmMain", selection},
    {u"Edit Shift", u"frmMain", shift},
    {u"Edit Stretch", u"frmMain", stretch},
    {u"Edit Time", u"frmMain", time},
    {u"Edit Frame Rate", u"frmMain", frameRate},
};
// clang-format on

} // namespace

std::span<const LanguageSection> editorSections()
{
    return sections;
}

} // namespace kavro
