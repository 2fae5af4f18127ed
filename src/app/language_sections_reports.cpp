#include "app/language_sections.h"

namespace kavro {

namespace {

// clang-format off
constexpr LanguageRow faults[] = {
    {0, u"", u"It is a folder, not a file."},
    {1, u"", u"The file doesn't exist."},
    {2, u"", u"It brings more than 32 MiB."},
    {3, u"", u"The file is empty."},
    {4, u"", u"It is no text file, it holds bytes of the value 0."},
    {5, u"", u"It has a line that is longer than 1 MiB."},
    {6, u"", u"the encoding lacks a character of the text"},
    {7, u"", u"It isn't loaded as a subtitle."},
    {8, u"", u"It is no subtitle file of a format that Kavro knows."},
    {9, u"", u"no subtitle format was chosen"},
    {10, u"", u"The snapshot is damaged."},
    {11, u"", u"No snapshot was written."},
    {12, u"", u"This version has no media player yet."},
    // What the system says of a file, in its own words.
    {20, u"", u"Operation not permitted"},
    {21, u"", u"No such file or directory"},
    {22, u"", u"Input/output error"},
    {23, u"", u"No such device or address"},
    {24, u"", u"Permission denied"},
    {25, u"", u"Device or resource busy"},
    {26, u"", u"File exists"},
    {27, u"", u"No such device"},
    {28, u"", u"Not a directory"},
    {29, u"", u"Is a directory"},
    {30, u"", u"Too many open files in system"},
    {31, u"", u"Too many open files"},
    {32, u"", u"Text file busy"},
    {33, u"", u"File too large"},
    {34, u"", u"No space left on device"},
    {35, u"", u"Read-only file system"},
    {36, u"", u"Too many links"},
    {37, u"", u"Broken pipe"},
    {38, u"", u"File name too long"},
    {39, u"", u"Directory not empty"},
    {40, u"", u"Too many levels of symbolic links"},
    {41, u"", u"Connection timed out"},
    {42, u"", u"Transport endpoint is not connected"},
    {43, u"", u"Stale file handle"},
    {44, u"", u"Disk quota exceeded"},
    {45, u"", u"Unknown error"},
    {46, u"", u"file to open is a directory"},
};

constexpr LanguageRow notes[] = {
    {0, u"", u"Calculating nodes"},
    {1, u"", u"Creating preview. Please wait..."},
    {2, u"", u"Done"},
    {3, u"", u"Press a key to continue or wait %1 second..."},
    {4, u"", u"Press a key to continue or wait %1 seconds..."},
    {5, u"", u"Add subtitle file"},
    {6, u"", u"Supported files"},
    {7, u"", u"Kavro Setting file"},
    {8, u"", u"Video"},
    {9, u"", u"Audio Files"},
    {10, u"", u"Macro Files"},
    {11, u"", u"Calculator Tablet Files"},
    {12, u"", u"  Length: %1"},
    {13, u"", u"  Frames: %1 at %2 fps"},
    {14, u"", u"Line #%1 = '%2'"},
    {15, u"", u"%1 can't hold the milliseconds of %2 subtitle."},
    {16, u"", u"%1 can't hold the milliseconds of %2 subtitles."},
    {17, u"", u"%1 can't hold the hours above nine of %2 subtitle."},
    {18, u"", u"%1 can't hold the hours above nine of %2 subtitles."},
    {19, u"", u"%1 can't hold the minus sign of %2 subtitle."},
    {20, u"", u"%1 can't hold the minus sign of %2 subtitles."},
    {21, u"", u"%1 can't hold the text behind an empty line of %2 subtitle."},
    {22, u"", u"%1 can't hold the text behind an empty line of %2 subtitles."},
    {23, u"", u"%1 can't hold the style of %2 subtitle."},
    {24, u"", u"%1 can't hold the style of %2 subtitles."},
    {25, u"", u"That the %1 file was not found? "},
    {26, u"", u"Re-install the language pack."},
    {27, u"", u" by: "},
};

// "Line" and its like stand in the window's own texts as well.
constexpr LanguageRow findings[] = {
    {0, u"", u"Scan"},
    {1, u"", u"Summary"},
    {2, u"", u"Solutions"},
    {3, u"", u"Lines"},
    {4, u"", u"Words"},
    {5, u"", u"Multi Lines"},
    {6, u"", u"Date"},
    {7, u"", u"Time"},
    {8, u"", u"Count"},
    {9, u"", u"Frames"},
    {10, u"", u"Detected"},
    {11, u"", u"Fixed"},
    {12, u"", u"Remaining"},
    {13, u"", u"None loaded"},
    {14, u"", u"Unknown"},
    {15, u"", u"Not counted"},
    {16, u"", u"%1 seconds."},
    {17, u"", u"%1 (%2 fps)"},
    {18, u"", u"Node[%1] = %2 to %3"},
    {19, u"", u"End.Time %p > Start.Time %c. Diff = %d"},
    {20, u"", u"%o set to %s"},
    {21, u"", u"Mark [Repair.Overlapping] to repair"},
    {22, u"", u"End.Time < Start.Time. Diff = %d"},
    {23, u"", u"%e set to %s"},
    {24, u"", u"Mark [Repair.Invalid] to repair"},
    {25, u"", u"Start.Time < 0 or invalid"},
    {26, u"", u"%s set to 00:00:00,000"},
    {27, u"", u"Line %cEnd.Time < 0 or invalid"},
    {28, u"", u"Complete line is empty"},
    {29, u"", u"Line removed from subtitle"},
    {30, u"", u"Put spoken text in cel [%r,3..5] or mark [Repair.Empty]"},
    {31, u"", u"Cel [%r,3] is empty while cel [%r,4] contains data"},
    {32, u"", u"Data moved from cel [%r,4] to cel [%r,3]"},
    {33, u"", u"Put spoken text in cel [%r,3] or mark [Repair.Empty]"},
    {34, u"", u"Cel [%r,3] is empty while cel [%r,4] and cel [%r,5] contains data"},
    {35, u"", u"Data moved from cel [%r,5] to cel [%r,4] to cel [%r,3]"},
    {36, u"", u"Cel [%r,3] is empty while cel [%r,5] contains data"},
    {37, u"", u"Data moved from cel [%r,5] to cel [%r,3]"},
    {38, u"", u"Cel [%r,4] is empty while cel [%r,5] contains data"},
    {39, u"", u"Data moved from cel [%r,5] to cel [%r,4]"},
    {40, u"", u"Put spoken text in cel [%r,5] or mark [Repair.Empty]"},
    {41, u"", u"Saved Empty line"},
    {42, u"", u"Put spoken text in cel [%r,3]"},
};

constexpr LanguageRow changes[] = {
    {0, u"", u"Replace"},
    {1, u"", u"[Original: %1] [To: %2]"},
    {2, u"", u"Row %1 deleted"},
    {3, u"", u"Cel %1, %2 changed"},
    {4, u"", u"[Cel %1:=%2]"},
    {5, u"", u"Script Shifted"},
    {6, u"", u"[Range: %1 to %2]"},
    {7, u"", u"[Duration: %1] [Direction: %2]"},
    {8, u"", u"Script Stretched"},
    {9, u"", u"[First: %1] [Last: %2]"},
    {10, u"", u"Line Shifted/Stretched"},
    {11, u"", u"[Duration: %1] [Start: %2] [End: %3]"},
    {12, u"", u"Changed Framerate"},
    {13, u"", u"[From: %1] [To: %2]"},
    {14, u"", u"Changed Font"},
    {15, u"", u"Reversed hebrew"},
    {16, u"", u"Corrected long lines"},
    {17, u"", u"[No details]"},
    {18, u"", u"[Correct amount:=%1]"},
};

constexpr LanguageSection sections[] = {
    {u"Faults", u"frmMain", faults, {}, LanguageTarget::Texts},
    {u"Notes", u"frmMain", notes, {}, LanguageTarget::Texts},
    {u"Findings", u"frmMain", findings, {}, LanguageTarget::Texts},
    {u"Changes", u"frmHistory", changes, {}, LanguageTarget::Texts},
};
// clang-format on

} // namespace

std::span<const LanguageSection> reportSections()
{
    return sections;
}

} // namespace kavro
