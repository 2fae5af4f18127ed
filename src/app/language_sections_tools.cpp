#include "app/language_sections.h"

namespace kavro {

namespace {

// clang-format off
constexpr LangGroup playerGroup[] = {LangGroup::Player};

constexpr LanguageRow mediaPlayer[] = {
    {51, u"Command8(0)", u"Play", u"Plays the movie"},
    {52, u"Command8(1)", u"Stop", u"Stops, and goes back to the beginning"},
    {53, u"Command8(2)", u"Clip it", u"Clip the place in the movie to the clipboard"},
    {54, u"Command8(3)", u"Pauze", u"Halts the movie where it is"},
    {55, u"Command8(4)", u"Forward", u"One second on"},
    {56, u"Command8(5)", u"Back", u"One second back"},
    {57, u"Check8", u"Use delay", u"This will set the delay time for 'Clip it'"},
    {58, u"Command49(0)", u"Set.Start", u"Takes the place in the movie as start"},
    {59, u"Command49(1)", u"Set.End", u"Takes the place in the movie as end"},
    {60, u"Label30", u"Set", u"Select player starting time"},
    {61, u"Label62", u"Reset", u"Select player starting time"},
    {62, u"rtfDelay", {}, u"Enter delay time in ms (Range = 000ms - 999ms)"},
    {63, u"Label27", u"Movie Player [stop]"},
    {64, u"Combo1", {}, u"All lines with their times"},
    {65, u"Slider1", {}, u"Place in the movie"},
    {66, u"txtDuration", {}, u"Place in the movie"},
};

constexpr LanguageRow mainWindow[] = {
    {0, u"cmdInvCalc", u"...", u"Takes the time to the calculator"},
    {1, u"btnNode(0)", u"{ }", u"Starts or ends a node at this line"},
    {2, u"Label74", u"<", u"Previous node"},
    {3, u"Label75", u">", u"Next node"},
    {4, u"command55(0)", {}, u"Opens and closes the panel at the bottom"},
    {5, u"lblEncoding", {}, u"Encoding of the file"},
    {6, u"lstEncoding", {}, u"Reads the file again in another encoding"},
    {7, u"lblSubRowCount", {}, u"Number of the line / number of lines"},
    {8, u"Label24", {}, u"Start of the line, clock of the script player"},
    {9, u"lblErrExp", {}, u"What Diagnose found at this line"},
    {10, u"Combo13", {}, u"Recent files"},
};

constexpr LanguageRow diagnose[] = {
    {0, u"Check3(0)", u"Empty", u"Checks for empty lines"},
    {1, u"Check3(1)", u"Overlapping", u"Checks for overlapping lines"},
    {2, u"Check3(2)", u"Invalid time", u"Checks for invalid time lines"},
    {3, u"Check3(3)", u"Negative", u"Checks for negative lines"},
    {4, u"Check3(4)", u"Words", u"Count the amount of words"},
    {5, u"Check3(5)", u"Multilines", u"Count the number of multi lines"},
    {6, u"Check3(6)", u"Displaying time", u"Calculates the total displaying time"},
    {7, u"Check3(7)", u"Overlapping", u"Repairs overlapping lines"},
    {8, u"Check3(8)", u"Invalid", u"Repairs invalid lines"},
    {9, u"Check3(9)", u"Empty", u"Repairs invalid lines"},
    {10, u"Command27", u"Go diagnose", u"Looks through all lines"},
    {11, u"fraCheck(0)", u"Check lines"},
    {12, u"fraCheck(1)", u"Count"},
    {13, u"fraCheck(2)", u"Repair"},
};

constexpr LanguageRow macro[] = {
    {0, u"Command31", u"Run", u"Runs the macro"},
    {1, u"Command32(0)", u"Insert", u"Inserts the function as a line"},
    {2, u"Command32(1)", u"Up", u"Moves the line up"},
    {3, u"Command32(2)", u"Down", u"Moves the line down"},
    {4, u"Command32(3)", u"Delete", u"Deletes the line"},
    {5, u"Command32(4)", u"Record.Start", u"Starts and stops the recorder"},
    {6, u"Command34", u"New", u"Makes a new macro"},
    {7, u"Command35", u"Delete", u"Deletes the macro"},
    {8, u"Command36", u"Rename", u"Gives the macro the name in the field"},
    {9, u"Label17", u"Export", u"Writes the macro to a file"},
    {10, u"Combo6", {}, u"Group of functions"},
    {11, u"Command53", u"Set data", u"Gives the line its data and remark"},
    {12, u"Label69", u"Check", u"Tests the lines of the macro without running it"},
    {13, u"Check5", u"Show in wizard", u"Offers the macro in the wizard"},
};

constexpr LanguageRow macroTabs[] = {
    {0, u"SSTab4", u"Edit", u"The lines of the macro", 0},
    {1, u"SSTab4", u"Wizard", u"How the wizard offers the macro", 1},
};

constexpr LanguageRow wizardEdit[] = {
    {0, u"Label71", u"Description in the wizard"},
    {1, u"Check6", u"Edit the description", u"The description can be changed"},
};

constexpr LanguageRow preview[] = {
    {0, u"", u"Preview"},
    {1, u"Command1", u"Close", u"Closes the preview"},
};

constexpr LanguageRow transferTabs[] = {
    {0, u"SSTab5", u"Download", u"Subtitles on the server", 0},
    {1, u"SSTab5", u"Upload", u"Send the subtitle to the server", 1},
};

constexpr LanguageRow download[] = {
    {0, u"Command37", u"Download", u"Fetches the selected subtitle"},
    {1, u"Command38", u"Update", u"Fetches the list anew"},
    {2, u"Command46", u"Search", u"Looks for the text in the list"},
};

constexpr LanguageRow upload[] = {
    {0, u"Command39", u"Send", u"Sends the subtitle to the server"},
    {1, u"Command40", u"Clear", u"Clears the fields of this page"},
};

constexpr LanguageRow bottomTabs[] = {
    {0, u"tabClipboard", u"Clipboard", u"Times and texts that were clipped", 0},
    {1, u"tabClipboard", u"Script Player", u"Play the lines by a clock, without a movie", 1},
    {2, u"tabClipboard", u"Help", u"How to use the help", 2},
    {3, u"tabClipboard", u"Info", u"About the file", 3},
};

constexpr LangGroup copyGroups[] = {LangGroup::CopyFirst, LangGroup::CopySecond};

// The captions of command4(0) and (1) come from the groups.
constexpr LanguageRow clipboard[] = {
    {102, u"command4(2)", u"Change", u"Writes the field into the selected item"},
    {103, u"command4(3)", u"Delete", u"Deletes the selected item"},
    {104, u"command4(4)", u"Clear", u"Deletes all items"},
    {105, u"command9", u"Length", u"Adds the time between two items"},
};

constexpr LanguageRow scriptPlayer[] = {
    {0, u"Command20(0)", u"Play", u"Starts the clock at this line"},
    {1, u"Command20(1)", u"Stop", u"Stops the clock and sets it to zero"},
    {2, u"Command41", u"Sync", u"Sets the clock to this line"},
};

constexpr LanguageSection sections[] = {
    {u"Media Player", u"frmMain", mediaPlayer, playerGroup},
    {u"Main Window", u"frmMain", mainWindow},
    {u"Diagnose", u"frmMain", diagnose},
    {u"Macro", u"frmMain", macro},
    {u"Macro Tab", u"frmMain", macroTabs},
    {u"Wizard Edit", u"frmMain", wizardEdit},
    {u"Preview", u"frmPreview", preview},
    {u"File Transfer Tab", u"frmMain", transferTabs},
    {u"File Transfer Download", u"frmMain", download},
    {u"File Transfer Upload", u"frmMain", upload},
    {u"Secondary Tab", u"frmMain", bottomTabs},
    {u"Clipboard", u"frmMain", clipboard, copyGroups},
    {u"Script Player", u"frmMain", scriptPlayer},
};
// clang-format on

} // namespace

std::span<const LanguageSection> toolSections()
{
    return sections;
}

} // namespace kavro
