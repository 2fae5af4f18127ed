#include "app/language_sections.h"

namespace kavro {

namespace {

// Type, ":=", description, "#", remark.
// clang-format off
constexpr LanguageRow rows[] = {
    {0, u"", u"String:=FTP address used by Kavro#Stored in file ..\\System\\i.set"},
    {1, u"", u"Integer:=Value represents the action taken by internet kernel#Read Only"},
    {2, u"", u"Boolean:=Subtitle change#True:=Changed, False:=Not changed"},
    {3, u"", u"String:=Loaded language#Read Only"},
    {4, u"", u"String:=Language author#Read Only"},
    {5, u"", u"String:=Used language file#Read Only"},
    {6, u"", u"String:=The location of the language files#Read Only"},
    {12, u"", u"Boolean:=Macro executing control#True:=Executed, False:Terminated or Not started. Read Only"},
    {18, u"", u"String:=Local IP Address#Read Only"},
    {19, u"", u"String:=Local Host Name#Read Only"},
    {21, u"", u"String:=Kavro version number#Read Only"},
    {22, u"", u"String:=Kavro build number#Read Only"},
    {23, u"", u"String:=Kavro version name#Read Only"},
    {27, u"", u"Integer:=Number of nodes in current file#read only"},
    {31, u"", u"Integer:=Number of errors detected by Diagnose#Read Only"},
    {44, u"", u"Integer:=Messagewindow button control#0=cancel, 1=ok, 2=no, 3=yes"},
    {45, u"", u"String:=Current Tablet name#Read Only"},
    {46, u"", u"String:=Current Tablet file#Read Only"},
    {47, u"", u"Boolean:=Macro input control#True:=Show inputbox, False:=Hide inputbox"},
    {48, u"", u"String:=Current fontname#Read Only"},
    {49, u"", u"Integer:=Calculator invoke control#-1:=Not active, 0:=Stretch first, 1:=Stretch last,2:=Shift dur., 3:=Time start, 4:=Time end, 10:=Editor, 11:=Part."},
    {50, u"", u"Integer:=File Index#See also sysVar[84 to 99]. Read Only"},
    {51, u"", u"Integer:=Search Index#Displays row number. Read Only"},
    {52, u"", u"Boolean:=File Change#True:=Changed, False:=Not Changed"},
    {53, u"", u"Integer:=Play Timer Control#0:=Mediaplayer, 1:=Scriptplayer"},
    {54, u"", u"Boolean:=Editor Block Control#True:=Blocked, False:=Not Blocked"},
    {55, u"", u"Long:=Script Time#Read Only"},
    {56, u"", u"String:=Sub FileName#Read Only"},
    {57, u"", u"String:=FTP FileName#Read Only"},
    {58, u"", u"String:=Current loaded player file#Read Only"},
    {61, u"", u"Integer:=X value for loop start#Read Only"},
    {62, u"", u"Integer:=Y value for loop end#Read Only"},
    {63, u"", u"Integer:=Loop counter for sysVar[61] and sysVar[62]#Read Only"},
    {64, u"", u"Integer:=Loop value counter#Read Only"},
    {71, u"", u"String:=Framerate#Values:=23.970, 24.000, 25.000, 29.970, 30.000 .Read Only"},
    {72, u"", u"Integer:=Subtitle Error Counter#Read Only"},
    {75, u"", u"String:=URL used by Kavro#Stored in file ..\\System\\i.set"},
    {84, u"", u"String:=File Type#See also sysVar[50]. Read Only"},
    {85, u"", u"String:=File Type#See also sysVar[50]. Read Only"},
    {86, u"", u"String:=File Type#See also sysVar[50]. Read Only"},
    {87, u"", u"String:=File Type#See also sysVar[50]. Read Only"},
    {88, u"", u"String:=File Type#See also sysVar[50]. Read Only"},
    {89, u"", u"String:=File Type#See also sysVar[50]. Read Only"},
    {90, u"", u"String:=File Type#See also sysVar[50]. Read Only"},
    {91, u"", u"String:=File Type#See also sysVar[50]. Read Only"},
    {92, u"", u"String:=File Type#See also sysVar[50]. Read Only"},
    {93, u"", u"String:=File Type#See also sysVar[50]. Read Only"},
    {94, u"", u"String:=File Type#See also sysVar[50]. Read Only"},
    {95, u"", u"String:=File Type#See also sysVar[50]. Read Only"},
    {96, u"", u"String:=File Type#See also sysVar[50]. Read Only"},
    {97, u"", u"String:=File Type#See also sysVar[50]. Read Only"},
    {98, u"", u"String:=File Type#See also sysVar[50]. Read Only"},
    {99, u"", u"String:=File Type#See also sysVar[50]. Read Only"},
    {111, u"", u"String:=Total current script lines#Read Only"},
    {112, u"", u"Integer:=Represents the pressed button#Read Only"},
    {113, u"", u"Integer:=Macro key code to be pressed#Read Only"},
    {114, u"", u"String:=Macro name to be executed by user command#Read Only"},
    {115, u"", u"Integer:=Key code pressed by user#Read Only"},
    {116, u"", u"Boolean:=Macro executing watch.#True=Execute, False=Do not execute"},
    {117, u"", u"Boolean:=File loading watch.#True=Succesfull, False=Failed or not loaded"},
    {121, u"", u"String:=Current Editor.Basic data.#Read Only"},
    {133, u"", u"Integer:=Clipboard items amount.#Read Only"},
};
// clang-format on

} // namespace

std::span<const LanguageRow> variableHelpRows()
{
    return rows;
}

} // namespace kavro
