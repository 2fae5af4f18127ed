#include "app/language_sections.h"

namespace kavro {

namespace {

// clang-format off
constexpr LanguageRow windowTexts[] = {
    {0, u"", u"Back"},
    {1, u"", u"Changes"},
    {2, u"", u"Choose one subtitle format in the list of file types."},
    {3, u"", u"Clipped items"},
    {4, u"", u"Current cell"},
    {5, u"", u"Direction"},
    {6, u"", u"Duration"},
    {7, u"", u"End of the line"},
    {8, u"", u"File"},
    {9, u"", u"File of the part"},
    {10, u"", u"Findings"},
    {11, u"", u"First line"},
    {12, u"", u"Font"},
    {13, u"", u"Format"},
    {14, u"", u"Format of the files"},
    {15, u"", u"Forward"},
    {16, u"", u"From"},
    {17, u"", u"Help page"},
    {18, u"", u"Last line"},
    {19, u"", u"Left panel"},
    {20, u"", u"Line"},
    {21, u"", u"Lines of the file"},
    {22, u"", u"Most characters of a line"},
    {23, u"", u"Name"},
    {24, u"", u"Node"},
    {25, u"", u"Open a subtitle file with Ctrl+O, or drop one here."},
    {26, u"", u"Pages"},
    {27, u"", u"Panel"},
    {28, u"", u"Parts"},
    {29, u"", u"Preview, line %1"},
    {30, u"", u"Program tree"},
    {31, u"", u"Progress"},
    {32, u"", u"Replace with"},
    {33, u"", u"Report"},
    {34, u"", u"Save as current loaded media name"},
    {35, u"", u"Search for"},
    {36, u"", u"Selected item"},
    {37, u"", u"Start of the first line"},
    {38, u"", u"Start of the last line"},
    {39, u"", u"Start of the line"},
    {40, u"", u"State"},
    {41, u"", u"Status"},
    {42, u"", u"Step"},
    {43, u"", u"Stored"},
    {44, u"", u"Style"},
    {45, u"", u"Subtitles"},
    {46, u"", u"Text"},
    {47, u"", u"Text of the current cell"},
    {48, u"", u"This help page is missing"},
    {49, u"", u"Timing"},
    {50, u"", u"To"},
    {51, u"", u"Type the name of a part's file, and then its length."},
    {52, u"", u"Value"},
    {53, u"", u"What was found"},
    {54, u"", u"Macros that are marked for the wizard stand here."},
};

/// Texts of the desktop's own windows: the menu of a field, the file window.
constexpr LanguageRow toolkitTexts[] = {
    {0, u"", u"&Undo"},
    {1, u"", u"&Redo"},
    {2, u"", u"Cu&t"},
    {3, u"", u"&Copy"},
    {4, u"", u"&Paste"},
    {5, u"", u"Delete"},
    {6, u"", u"Select All"},
    {7, u"", u"Look in:"},
    {8, u"", u"File &name:"},
    {9, u"", u"Files of type:"},
    {10, u"", u"&Open"},
    {11, u"", u"&Save"},
    {12, u"", u"Cancel"},
    {13, u"", u"Parent Directory"},
    {14, u"", u"Create New Folder"},
    {15, u"", u"List View"},
    {16, u"", u"Detail View"},
    {17, u"", u"Size"},
    {18, u"", u"Type"},
    {19, u"", u"Date Modified"},
    {20, u"", u"&Rename"},
    {21, u"", u"&Delete"},
    {22, u"", u"Show &hidden files"},
    {23, u"", u"&New Folder"},
};

constexpr LanguageSection sections[] = {
    {u"Window Texts", u"frmMain", windowTexts, {}, LanguageTarget::Texts},
    {u"Toolkit Texts", u"frmMain", toolkitTexts, {}, LanguageTarget::Texts},
};
// clang-format on

} // namespace

std::span<const LanguageSection> windowSections()
{
    return sections;
}

} // namespace kavro
