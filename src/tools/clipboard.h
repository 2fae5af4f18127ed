#pragma once

#include "controls/text_box.h"

#include <functional>
#include <span>

namespace kavro {

class LanguageTable;
class Messages;
class TabStrip;
struct ActionTrace;
struct ClipItem;
struct ClipboardPanel;
struct EditorPage;
struct PartitionPage;
struct TimePage;

/// The program's own clipboard: times and texts that the pages clip and copy.
///
/// Where a copy goes is told by the pages that show.
class Clipboard
{
public:
    /// All are borrowed and outlive the clipboard.
    struct Parts
    {
        ClipboardPanel &panel;
        EditorPage &editor;
        TimePage &times;
        PartitionPage &partition;
        TextBox &rtfShiftDuration;
        const TabStrip &tabMain;
        const TabStrip &tabCalculator;
        Messages &messages;
        const LanguageTable &language;
        ActionTrace &trace;
    };

    Clipboard(Form &frmMain, const Parts &parts);

    /// Puts the item into the current cel of the spreadsheet.
    std::function<void(const ClipItem &)> copyToCel;
    /// Puts the item into the fields of the classic calculator: 0 those of A, 1 those of B.
    std::function<void(const ClipItem &, int)> copyToClassic;

    TextBox rtfClipBoard; ///< the selected item, to be changed

private:
    struct Target;

    static std::span<const Target> targets();
    void connectPanel();
    void press(int button);
    void copyItem(int button);        ///< command4(0), command4(1)
    void changeItem();                ///< command4(2)
    void deleteItem();                ///< command4(3)
    void clearItems();                ///< command4(4)
    void clipEditBox();               ///< Command47
    [[nodiscard]] bool requireItem(); ///< says so when none is selected
    void toSpreadsheet(const ClipItem &item, int button);
    void toClassic(const ClipItem &item, int button);
    void toPartition(const ClipItem &item, int button);
    void toShift(const ClipItem &item, int button);
    void toStretch(const ClipItem &item, int button);
    void toTime(const ClipItem &item, int button);

    Parts m_parts;
};

} // namespace kavro
