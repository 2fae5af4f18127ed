#include "app/language_sections.h"

namespace kavro {

namespace {

// clang-format off
constexpr LanguageRow mainMenu[] = {
    {0, u"mnuNewFile", u"New File", u"Starts a new, empty subtitle"},
    {1, u"mnuLoadFile", u"Load File ..", u"Loads a subtitle, a movie or a setting file"},
    {2, u"mnuAddFile", u"Add File ..", u"Puts the lines of a second file behind these"},
    {3, u"mnuSavesubfile", u"Save Subtitle File ..", u"Saves under another name or in another format"},
    {4, u"mnuSaveSettings", u"Save Settings", u"Asks for the name of a setting file"},
    {5, u"mnuDBManage", u"Manage", u"Opens the window of the collections"},
    {6, u"mnuPrint", u"Direct Print", u"Prints all lines"},
    {7, u"mnuExit", u"Exit", u"Ends the program"},
    {8, u"mnuPreview", u"Preview", u"Shows the file as it would be written"},
    {9, u"mnuSettings", u"Settings ..", u"Opens the window of the settings"},
    {10, u"mnuSystem", u"System ..", u"Shows variables and the last run of a macro"},
    {11, u"mnuHistory", u"History ..", u"Shows what was changed, and takes it back"},
    {12, u"mnuWizard", u"Show", u"Opens the wizard"},
    {13, u"mnuHelpIndex", u"Online Help", u"Opens the index of the help pages"},
    {14, u"mnuShowTips", u"Show Tips", u"Shows a tip"},
    {15, u"mnuAbout", u"About", u"Shows version and language pack"},
    {16, u"mnuFile", u"File"},
    {17, u"mnuCollection", u"Collection"},
    {18, u"mnuEdit", u"Edit"},
    {19, u"mnuView", u"View"},
    {20, u"mnuOptions", u"Options"},
    {21, u"mnuWizards", u"Wizard"},
    {22, u"mnuHelp", u"Help"},
    {23, u"mnuSave", u"Save", u"Saves where the file came from"},
    {24, u"mnuReopen", u"Reopen as", u"Reads the file again in another encoding"},
    {25, u"mnuUndo", u"Undo", u"Takes the last change back"},
    {26, u"mnuRedo", u"Redo", u"Makes the change again that was taken back"},
    {27, u"mnuGotoLine", u"Go to Line ..", u"Goes to a line by its number"},
    {28, u"mnuNextFinding", u"Next Finding", u"Goes to the next line with a fault"},
    {29, u"mnuPreviousFinding", u"Previous Finding", u"Goes to the line with a fault before this one"},
    {30, u"mnuSearchAgain", u"Search Again", u"Goes to the next place of the text that is searched for"},
    {31, u"mnuSearch", u"Search ..", u"Looks for a text in all lines"},
    {32, u"mnuReplace", u"Replace ..", u"Replaces a text in all lines"},
};

constexpr LanguageRow mainTabs[] = {
    {0, u"tabMain", u"Calculator", u"Reckon with times", 0},
    {1, u"tabMain", u"Partition", u"Cut the subtitle into several files", 1},
    {2, u"tabMain", u"Editor", u"Edit the lines", 2},
    {3, u"tabMain", u"Media Player", u"Time the lines while the movie plays", 3},
    {4, u"tabMain", u"Diagnose", u"Find faults and repair them", 4},
    {5, u"tabMain", u"Macro's", u"Write, record and run macros", 5},
    {6, u"tabMain", u"Online", u"Exchange subtitles with a server", 6},
};

constexpr LanguageRow calculatorTabs[] = {
    {0, u"tabCalculator", u"Advanced", u"A sheet of times, numbers and formulas", 0},
    {1, u"tabCalculator", u"Classic", u"Adds and subtracts two times", 1},
};

constexpr LanguageRow calculatorClassic[] = {
    {0, u"Label2", u"Result"},
    {1, u"Command3(0)", u"Clip.T", u"Clip the time to the clipboard"},
    {2, u"Command3(1)", u"Clip.F", u"Clip the number of frames to the clipboard"},
    {3, u"Label3", u"Results so far"},
    {4, u"Command1(0)", u"A + B", u"Adds B to A"},
    {5, u"Command1(1)", u"A - B", u"Subtracts B from A"},
    {6, u"Command1(2)", u"B - A", u"Subtracts A from B"},
    {7, u"Command1(3)", u"Take A", u"Takes A as the result, as it stands"},
    {8, u"CalcClear", u"Clear", u"Empties the list of results"},
    {9, u"Check1", u"Date", u"Add date to history list"},
    {10, u"Check2", u"Time", u"Add time to history list"},
    {11, u"Command21", u"Empty", u"Empties all fields"},
    {12, u"rtfCalcClassicA(0)", {}, u"Enter hours"},
    {13, u"rtfCalcClassicA(1)", {}, u"Enter minutes"},
    {14, u"rtfCalcClassicA(2)", {}, u"Enter seconds"},
    {15, u"rtfCalcClassicA(3)", {}, u"Enter x/1000"},
    {16, u"rtfCalcClassicB(0)", {}, u"Enter hours"},
    {17, u"rtfCalcClassicB(1)", {}, u"Enter minutes"},
    {18, u"rtfCalcClassicB(2)", {}, u"Enter seconds"},
    {19, u"rtfCalcClassicB(3)", {}, u"Enter x/1000"},
    // Their captions are the rates themselves, which the program reckons with.
    {20, u"optFrameRate(0)", {}, u"Set framerate to 23.97 fps"},
    {21, u"optFrameRate(1)", {}, u"Set framerate to 24 fps"},
    {22, u"optFrameRate(2)", {}, u"Set framerate to 25 fps"},
    {23, u"optFrameRate(3)", {}, u"Set framerate to 29.97 fps"},
    {24, u"optFrameRate(4)", {}, u"Set framerate to 30 fps"},
};

constexpr LangGroup previewGroup[] = {LangGroup::Preview};

constexpr LanguageRow calculatorAdvanced[] = {
    {51, u"cmdExecCalcData", u"Enter", u"Puts the entry into the cel"},
    {52, u"cmdAdvCalcClipIt", u"Clip", u"Clip the result of the cel to the clipboard"},
    {53, u"Label14", u"New Tablet", u"Makes a new, empty Tablet"},
    {54, u"Label65", {}, u"Opens the list of Tablets"},
    {55, u"Label16", {}, u"Opens the list of attributes"},
};

constexpr LanguageRow partition[] = {
    {0, u"command28", u"Preview", u"Show preview of subtitle file"},
    {1, u"command6", u"Delete", u"Deletes the part"},
    {2, u"command5", u"Make files", u"Writes one file for each part"},
    {3, u"command29(0)", u"Previous", u"Shows the part before this one"},
    {4, u"command29(1)", u"Next", u"Shows the next part"},
    {5, u"Label66", u"Clear", u"Deletes the part"},
    {6, u"Label31", {}, u"Opens the list of formats"},
    {7, u"Label6", u"Parts"},
    {8, u"Label8", u"Format of the files"},
};

constexpr LanguageSection sections[] = {
    {u"Main Menu", u"frmMain", mainMenu},
    {u"Main Tab", u"frmMain", mainTabs},
    {u"Calc Tab", u"frmMain", calculatorTabs},
    {u"Calculator Classic", u"frmMain", calculatorClassic},
    {u"Calculator Advanced", u"frmMain", calculatorAdvanced, previewGroup},
    {u"Partition", u"frmMain", partition},
};
// clang-format on

} // namespace

std::span<const LanguageSection> mainSections()
{
    return sections;
}

} // namespace kavro
