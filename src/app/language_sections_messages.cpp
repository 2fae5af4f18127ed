#include "app/language_sections.h"

namespace kavro {

namespace {

// clang-format off
constexpr LanguageRow messageTexts[] = {
    {0, u"", u"Error applying script"},
    {1, u"", u"Script Error"},
    {2, u"", u"You have to restart Kavro before the change can be applied. Press 'Ok' to continue."},
    {3, u"", u"Language pack change"},
    {4, u"", u"The settings can't be stored./n%1"},
    {5, u"", u"The folder '%1' can't be used./n%2"},
    {6, u"", u"Warning"},
    {7, u"", u"Warning: File not saved"},
    {8, u"", u"File %1/nhas been changed and not saved./nDo you want to save now?/nIf you choose 'No', all changes are lost."},
    {9, u"", u"Kavro is about to load '%1',/nbut file '%2'/nhas been changed and not saved./n/nDo you want to save now?/nIf you choose 'No', all changes are lost."},
    {10, u"", u"File %1 has been changed and not saved./n/nDo you want to continue creating new file?"},
    {11, u"", u"File contains%1 errors. Do you want to save this file anyway."},
    {12, u"", u"File Error"},
    {13, u"", u"File exists"},
    {14, u"", u"File %1 already exists. /n/nDo you want to overwrite this file?"},
    {15, u"", u"A subtitle can't be saved under the entry '%1'. Please choose its format."},
    {16, u"", u"No file name was given."},
    {17, u"", u"File '%1' can't be loaded./n%2"},
    {18, u"", u"File '%1' can't be played./n%2"},
    {19, u"", u"Media Player"},
    {20, u"", u"Loading '%1' instead of '%2' format."},
    {21, u"", u"Wrong format."},
    {22, u"", u"File '%1' reached limit of 9999 lines. File contains%2 lines. Select 'Cancel' to exit."},
    {23, u"", u"Reading limit"},
    {24, u"", u"File.Add Error"},
    {25, u"", u"There is no line '%1'./nThe lines run from 1 to %2."},
    {26, u"", u"Wrong language pack version. You are trying to load version %1./nPack will not be loaded."},
    {27, u"", u"You can not add a file while there is no primairy file loaded first. Please load a primairy file first. Press Ok to continue."},
    {28, u"", u"You can not save a file that has not been loaded yet. Please load a primairy file first. Press Ok to continue."},
    {29, u"", u"You can not print the content of a file that has not been loaded yet. Please load a primairy file first. Press Ok to continue."},
    {30, u"", u"You can not view any content because you have to load a subtitle file first. Press Ok to continue."},
    {31, u"", u"The program ended before the changes of this file were saved:/n%1/n%2 subtitles, kept at %3./nDo you want to bring them back? If you choose 'No', they are lost."},
    {32, u"", u"Unsaved changes"},
    {33, u"", u"The history can't keep the document as it stands./n%1/n/nThe change is made all the same; 'Undo' takes it back."},
    {34, u"", u"The document can't be brought back to '%1'./n%2"},
    {35, u"", u"History"},
    {36, u"", u"History file does not match current version./nHistory data not loaded."},
    {37, u"", u"Version Mismatch"},
    {38, u"", u"File %1 holds characters that the encoding %2 has not./n/nDo you want to write it as UTF-8?"},
    {39, u"", u"The file ends before row %1, which ends at '%2'./nRows that were not written: %3."},
    {40, u"", u"Error writing file (%1)."},
    {41, u"", u"%1 calculating Preview file. Negative time calculated during Partitioning./nPlease do not partition in subtitle display time. Continue?"},
    {42, u"", u"%1 creating %2. Negative time calculated during Partitioning./nPlease do not partition in subtitle display time. Continue?"},
    {43, u"", u"There is no line here that a node could start at."},
    {44, u"", u"A document can't have more than %1 nodes./nPlease end one before you start another."},
    {45, u"", u"The preview '%1' can't be read./n%2"},
    {46, u"", u"There is no subtitle to make parts of. Please load a file first."},
    {47, u"", u"Part %1 has no name that a file can have: '%2'./nNothing was written."},
    {48, u"", u"There is no preview of part %1."},
    {49, u"", u"A subtitle can't have more than 9999 lines. No line was inserted."},
    {50, u"", u"Insert"},
    {51, u"", u"Please select an item from the Clipboard 1st."},
    {52, u"", u"The document has no line./nNothing was changed."},
    {53, u"", u"The first and the last line of the range must lie in 1 to %1./nNothing was changed."},
    {54, u"", u"Please choose both frame rates./nNothing was changed."},
    {55, u"", u"Line %1 has the time %2, which lies before zero and can't be converted./nNothing was changed."},
    {56, u"", u"Line %1 and line %2 start at the same time: there is no length to stretch./nNothing was changed."},
    {57, u"", u"Line %1 would start before the first time, %2./nNothing was changed."},
    {58, u"", u"No line is selected./nNothing was changed."},
    {59, u"", u"The program ended before the changes of this file were saved:/n%1/n%2 subtitles, kept at %3. The file itself was written once more after that./nDo you want to bring the changes back? If you choose 'No', they are lost."},
};

constexpr LanguageSection sections[] = {
    {u"Messages", u"frmMessageBox", messageTexts, {}, LanguageTarget::Texts},
};
// clang-format on

} // namespace

std::span<const LanguageSection> messageSections()
{
    return sections;
}

} // namespace kavro
