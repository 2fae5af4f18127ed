#include "app/language_sections.h"

namespace kavro {

namespace {

// clang-format off
constexpr LanguageRow settingsNodes[settingsNodeCount] = {
    {0, u"", u"Startup"},
    {1, u"", u"System"},
    {2, u"", u"Defaults"},
    {3, u"", u"Language"},
    {4, u"", u"General"},
    {5, u"", u"Script"},
    {6, u"", u"Audio"},
};

constexpr LanguageRow settings[] = {
    {0, u"", u"Settings"},
    {1, u"Check7(0)", u"Check for updates", u"Ask the server for a newer version"},
    {2, u"Check7(1)", u"Load last file(s)", u"Load the files of the last run at start"},
    {3, u"Check7(2)", u"Update FTP list", u"Fetch the list of subtitles on the server"},
    {4, u"Check7(3)", u"Check for news", u"Fetch the message of the server"},
    {5, u"Check7(4)", u"Show tips", u"Show a tip at start"},
    {6, u"Check7(5)", u"Show Wizard", u"Show the wizard at start"},
    {7, u"Check7(6)", u"Auto Help", u"Open the help page of each page and command"},
    {8, u"Check7(7)", u"Check exists", u"Drop files that are gone from the list of recent files"},
    {9, u"Check7(8)", u"Auto set stretch", u"Fill the stretch values with 'Start' and 'End' in the movie player"},
    {10, u"Check7(9)", u"Script player on", u"Select the script player when a movie is selected"},
    {11, u"Check7(10)", u"Load subtitle", u"Load the subtitle when a movie file is selected"},
    {12, u"Check5(0)", u"File Download", u"Play a sound when a download has succeeded"},
    {13, u"Check5(1)", u"Incoming Data", u"Play a sound when data comes in"},
    {14, u"Check6(0)", u"Enable script", u"Advanced edit function will be disabled"},
    {15, u"Check6(1)", u"Auto select", u"Choose the proper script when a file is downloaded"},
    {16, u"Check1(0)", u"Enable Date", u"Add date to history list"},
    {17, u"Check1(1)", u"Enable Time", u"Add time to history list"},
    {18, u"Check2", u"Use language pack", u"Show all texts in another language"},
    {19, u"Check3", u"Close Automatic", u"Close the report window when the work is done"},
    {20, u"Check4", u"Save as same format", u"The save window starts with the format of the file"},
    {21, u"List1", {}, u"The language packs that were found"},
    {22, u"Combo2", {}, u"Frame rate at start"},
    {23, u"cmbScript", {}, u"Writing system, and code page of files that are not Unicode"},
    {24, u"Label1", {}, u"Opens the list of language packs"},
    {25, u"Label37", {}, u"Opens the list of frame rates"},
    {26, u"Label65", {}, u"Opens the list of scripts"},
    {27, u"Command1(0)", u"Cancel", u"Stores nothing"},
    {28, u"Command1(1)", u"OK", u"Stores the settings and uses them"},
    {29, u"lblFrameRate", u"Frame rate"},
};

constexpr LanguageSection sections[] = {
    {u"Settings Nodes", u"frmSettings", settingsNodes, {}, LanguageTarget::SettingsNodes},
    {u"Settings", u"frmSettings", settings},
    {u"Main Nodes", u"frmMain", {}, {}, LanguageTarget::MainNodes},
};
// clang-format on

} // namespace

std::span<const LanguageSection> settingsSections()
{
    return sections;
}

} // namespace kavro
