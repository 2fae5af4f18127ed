#include "app/language_sections.h"

namespace kavro {

namespace {

// clang-format off
constexpr LangGroup aboutGroup[] = {LangGroup::About};

constexpr LanguageRow about[] = {
    {51, u"", u"About"},
    {52, u"cmdOk", u"OK", u"Closes the window"},
};

constexpr LangGroup fileGroup[] = {LangGroup::File};

constexpr LanguageRow fileHandling[] = {
    {51, u"", u"File"},
    {52, u"Check1", u"Save as current loaded media name", u"The subtitle gets the name of the movie"},
    {53, u"cmdAction(0)", u"Cancel", u"Closes the window without a choice"},
    {54, u"cmdAction(1)", u"OK", u"Takes the file"},
    {55, u"Label2", {}, u"Opens the list of folders"},
    {56, u"Label31", {}, u"Opens the list of drives"},
    {57, u"Label6", {}, u"Opens the list of file types"},
    {58, u"Label7", {}, u"Reads the folder again"},
    {59, u"txtFilename", {}, u"Name of the file"},
};

constexpr LangGroup systemGroup[] = {LangGroup::Variables};

constexpr LanguageRow system[] = {
    {51, u"", u"System"},
    {52, u"SSTab1", u"System", u"What the program knows at this moment", 0},
    {53, u"SSTab1", u"Macro", u"What macros have stored and done", 1},
    {54, u"SSTab2", u"Variables", u"The variables that macros have set", 0},
    {55, u"SSTab2", u"Execute list", u"The last macro as it was run", 1},
    {56, u"Command1", u"Close", u"Closes the window"},
};

constexpr LanguageRow history[] = {
    {0, u"", u"Undo any Changes"},
    {1, u"Command1(0)", u"Close", u"Closes the window and changes nothing"},
    {2, u"Command1(1)", u"Restore", u"Goes back to before the selected change"},
};

constexpr LanguageRow goToLine[] = {
    {0, u"", u"Go to Line"},
    {1, u"Label1", u"Line"},
    {2, u"txtLine", {}, u"Enter the number of the line"},
    {3, u"cmdOk", u"OK", u"Goes to the line"},
    {4, u"cmdCancel", u"Cancel", u"Closes the window and stays"},
};

constexpr LanguageRow wizard[] = {
    {0, u"", u"Wizard"},
    {1, u"cmdGo", u"Go", u"Runs the selected job"},
    {2, u"cmdOk", u"OK", u"Closes the window"},
    {3, u"chkLoadWizardAtStartup", u"Show wizard at start", u"Opens this window each time the program starts"},
};

constexpr LanguageRow dataBase[] = {
    {0, u"", u"Collections"},
    {1, u"Label5", u"Add", u"Stores the file with its nodes as a collection"},
    {2, u"Label6", u"Extract", u"Takes the item into the editor"},
    {3, u"Label13(0)", u"Delete", u"Deletes the item with its lines"},
    {4, u"Label13(1)", u"Remove", u"Hides the item; 'Restore' brings it back"},
    {5, u"Label14", u"Rename", u"Gives the item the name in the field"},
    {6, u"Label15", u"Restore", u"Brings all removed items back"},
    {7, u"Command14", u"Rename", u"Gives the collection the name in the field"},
    {8, u"txtItem", {}, u"Name of the item"},
    {9, u"txtFile", {}, u"Name of the collection"},
    {10, u"Label8", {}, u"Opens the list of languages"},
    {11, u"Label11", {}, u"Opens the list of formats"},
    {12, u"Label53", {}, u"Opens the list of editors"},
};

constexpr LanguageRow help[] = {
    {0, u"", u"Help"},
    {1, u"cmdOk", u"OK", u"Closes the window"},
    {2, u"frmTip.", u"Tip of the day"},
    {3, u"frmTip.cmdNextTip", u"Next tip", u"Shows another tip"},
    {4, u"frmTip.cmdOk", u"OK", u"Closes the window"},
    {5, u"frmTip.chkLoadTipsAtStartup", u"Show tips at start", u"Opens this window each time the program starts"},
};

constexpr LangGroup reportGroup[] = {LangGroup::Report};

constexpr LanguageRow control[] = {
    {51, u"chkClose", u"Close Automatic", u"Close this window when the work is done"},
    {52, u"cmdOk", u"OK", u"Closes the window"},
};

constexpr LangGroup userGroup[] = {LangGroup::User};

constexpr LanguageRow messageBoxes[] = {
    {51, u"cmdAction(0)", u"Cancel"},
    {52, u"cmdAction(1)", u"OK"},
    {53, u"cmdAction(2)", u"No"},
    {54, u"cmdAction(3)", u"Yes"},
    {55, u"Label2(0)", u"Name"},
    {56, u"Label2(1)", u"Value"},
};

constexpr LanguageRow commonTips[] = {
    {0, u"combo3", {}, u"Format of the part files"},
    {1, u"Combo7", {}, u"Show subtitles of this format alone"},
    {2, u"rtfCalc", {}, u"Enter the data of the cel"},
    {3, u"rtfCalcAdvDataInput", {}, u"Enter the data of the cel"},
    {4, u"rtfSplitEdit", {}, u"Enter name or length of the part"},
    {5, u"rtfSubEditBasic", {}, u"Text of the cel; Enter writes it back"},
    {6, u"rtfEdit", {}, u"Text of the cel; Enter keeps it, Escape drops it"},
    {7, u"rtfSearch", {}, u"Enter text to search for"},
    {8, u"rtfReplace", {}, u"Enter text to replace the searched text"},
    {9, u"rtfMacroName", {}, u"Enter the name of the macro"},
    {10, u"rtfClipBoard", {}, u"The selected item of the clipboard"},
    {11, u"cmdInvokeCalc(0)", u"...", u"Takes the time to the calculator"},
    {12, u"cmdInvokeCalc(1)", u"...", u"Takes the time to the calculator"},
    {13, u"cmdInvokeCalc(2)", u"...", u"Takes the time to the calculator"},
    {14, u"cmdInvokeCalc(3)", u"...", u"Takes the time to the calculator"},
    {15, u"cmdInvokeCalc(4)", u"...", u"Takes the time to the calculator"},
    {16, u"cmdInvSplitCalc", u"...", u"Takes the length to the calculator"},
    {17, u"Combo8(0)", {}, u"Show subtitles in this language alone"},
    {18, u"Combo8(1)", {}, u"Language of the subtitle"},
    {19, u"Combo8(2)", {}, u"Language of the copy"},
};

constexpr LangGroup commonGroup[] = {LangGroup::Common};
// clang-format on

} // namespace

std::span<const LanguageSection> dialogSections()
{
    static const LanguageSection sections[] = {
        {u"About", u"frmAbout", about, aboutGroup},
        {u"File Handling", u"frmFile", fileHandling, fileGroup},
        {u"SysVarHelp", u"frmSystem", variableHelpRows(), {}, LanguageTarget::VariableHelp},
        {u"System", u"frmSystem", system, systemGroup},
        {u"History", u"frmHistory", history},
        {u"Go To Line", u"frmGoto", goToLine},
        {u"Wizard", u"frmWizard", wizard},
        {u"DataBase", u"frmDbase", dataBase},
        {u"Help", u"frmHelp", help},
        {u"Control", u"frmControl", control, reportGroup},
        {u"MSG Boxes", u"frmMessageBox", messageBoxes, userGroup},
        {u"Common Tooltip", u"frmMain", commonTips},
        {u"Other", u"frmMain", {}, commonGroup},
    };
    return sections;
}

} // namespace kavro
