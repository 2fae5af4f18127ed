#include "core/language_defaults.h"

namespace kavro {

namespace {

using enum LangGroup;

// clang-format off
constexpr DefaultText texts[] = {
    {Preview, 0, u"Preview", u"Show preview of subtitle file"},
    {Preview, 1, u"Preview.Exit", u"Exit preview of subtitle file"},

    {CopyFirst, 0, u"Copy.To.A", u"Copy item to calculator field 'A'"},
    {CopyFirst, 1, u"Copy.To.First", u"Copy item to 'First' field"},
    {CopyFirst, 2, u"Copy.To.Start", u"Copy item to 'Start' field"},
    {CopyFirst, 3, u"Copy.To.Duration", u"Copy item to 'Duration'"},
    {CopyFirst, 4, u"Copy.To.Spreadsheet", u"Copy item to 'Spreadsheet'"},
    {CopyFirst, 5, u"Copy.To.Partitionlist", u"Copy item to 'Partition List'"},

    {CopySecond, 0, u"Copy.To.B", u"Copy item to calculator field 'B'"},
    {CopySecond, 1, u"Copy.To.Last", u"Copy item to 'Last' field"},
    {CopySecond, 2, u"Copy.To.End", u"Copy item to 'End' field"},

    {Player, 0, u"Running"},
    {Player, 1, u"Stopped"},
    {Player, 2, u"Paused"},
    {Player, 3, u"Updating file info. Please wait"},
    {Player, 4, u"Media Player"},

    {Common, 0, u"Row"},
    {Common, 1, u"Col"},
    {Common, 2, u"functions left"},
    {Common, 3, u"Execute list"},
    {Common, 4, u"updated"},
    {Common, 5, u"file(s)"},
    {Common, 6, u"Closing"},
    {Common, 7, u"Closed"},
    {Common, 8, u"Chatting with"},
    {Common, 9, u"Waiting for call on address"},
    {Common, 10, u"Start"},
    {Common, 11, u"End"},
    {Common, 12, u"Text"},
    {Common, 13, u"Beginning"},
    {Common, 14, u"Filename"},
    {Common, 15, u"File Time"},
    {Common, 16, u"Original Name"},
    {Common, 17, u"FTP Name"},
    {Common, 18, u"Format"},
    {Common, 19, u"Language"},
    {Common, 20, u"Editor"},
    {Common, 21, u"Function"},
    {Common, 22, u"Timecode"},
    {Common, 23, u"Value"},
    {Common, 24, u"Convert"},
    {Common, 25, u"Regular"},
    {Common, 26, u"Bold"},
    {Common, 27, u"Italic"},
    {Common, 28, u"All Formats"},
    {Common, 29, u"All Languages"},
    {Common, 30, u"No Action"},
    {Common, 31, u"Scanning Database"},
    {Common, 32, u"Record.Start"},
    {Common, 33, u"Record.Stop"},
    {Common, 34, u"Recording macro"},
    {Common, 35, u"This will permanently delete the selected item./nAre you sure you want to continue?    "},
    {Common, 36, u"This will only remove the selected item from the index./nYou can restore the item with the 'Restore' function./nAre you sure you want to continue?"},
    {Common, 37, u"Delete Item"},
    {Common, 38, u"Remove Item"},
    {Common, 39, u"Ready"},
    {Common, 40, u"Error loading languagefile."},
    {Common, 41, u"Language file error"},
    {Common, 42, u"Not found:"},
    {Common, 43, u"Matches:"},
    {Common, 44, u"No findings"},
    {Common, 45, u"1 finding remains"},
    {Common, 46, u"%1 findings remain"},

    {User, 0, u"Please enter a Nickname before connecting."},
    {User, 1, u"Failed to load copy file."},
    {User, 2, u"Enter at least 3 characters."},

    {File, 0, u"Load a file."},
    {File, 1, u"Save subtitle file."},
    {File, 2, u"Save setting file."},

    {Variables, 0, u"Defined Variables:"},

    {About, 1, u"Language pack:"},
    {About, 2, u"Author:"},
    {About, 3, u"Programmed by"},
    {About, 4, u"Build"},

    {Report, 0, u"Media analiser started ... "},
    {Report, 1, u"Date: "},
    {Report, 2, u"File information:"}, // a path follows on a line of its own, or the format of a movie on this one
    {Report, 3, u"Subtitle analiser started ... "},
    {Report, 4, u"  Format: "},
    {Report, 5, u"  Lines: "},
    {Report, 6, u"Reading of the file has ended."}, // closes a log, and is a message when it broke off
    {Report, 7, u"An error was found while reading the file."},
    {Report, 8, u"Do you want to be asked about further errors in this file?"},
    {Report, 9, u"File with errors"},
    {Report, 10, u"Writing file"},
    {Report, 11, u"Writing of the file has ended."},
    {Report, 12, u"Warning"},
    {Report, 13, u"Error"},
    {Report, 14, u"File not loaded"},
    {Report, 15, u"Ready."},
    {Report, 16, u"------------------------------------------------------------"},
    {Report, 17, u"Loading file"},
    {Report, 18, u"The file can't be added: a document holds 99 nodes at most."},
    {Report, 19, u"Not supported"},
    {Report, 20, u"Supported"},
};
// clang-format on

} // namespace

std::span<const DefaultText> defaultTexts()
{
    return texts;
}

} // namespace kavro
