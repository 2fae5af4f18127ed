#pragma once

#include "controls/control_array.h"
#include "controls/tree_view.h"
#include "core/diagnose_host.h"
#include "diagnose/scan.h"

#include <functional>
#include <optional>

namespace kavro {

class EditHistory;
struct MainMenu;

/// Finds faults of lines, counts words and times, and repairs what its boxes allow; the tree tells
/// what was found, and leads to the lines.
class Diagnose : public DiagnoseHost
{
public:
    /// All are borrowed and outlive the tool.
    struct Parts
    {
        SubtitleDocument &document;
        BasicEdit &basicEdit;
        EditHistory &history;
        StatusPanels &status;
        MainMenu &menu;
        const LanguageTable &language;
        MacroVariables &variables;
        ActionTrace &trace;
        Clock &clock;
    };

    Diagnose(Form &frmMain, const Parts &parts);

    /// Brings the page with the document's lines to the front.
    std::function<void()> showLines;

    void GoDiagnose() override;
    void diagnoseWithoutRepairs() override;

    /// Findings that the last scan left; the document's own count holds those of the outermost run
    /// alone.
    [[nodiscard]] int remaining() const { return m_remaining; }
    /// The row that a node of `tvDiag` leads to, from the sixth to the ninth letter of a text that
    /// begins with "Line"; 0 where those are no number, none for any other text.
    [[nodiscard]] std::optional<int> lineOf(int node) const;

    /// 0 to 3 check lines, 4 to 6 count, 7 to 9 repair; the numbers are those of `DiagnoseSwitch`.
    ControlArray<CheckBox, 0, DiagnoseSwitches::count - 1> Check3;
    ControlArray<Frame, 0, 2> fraCheck; ///< stand around the boxes that check, count, repair
    Button Command27;                   ///< runs the scan
    TreeView tvDiag;                    ///< what the last run found

private:
    void connectBoxes();
    void connectSteps();
    [[nodiscard]] DiagnoseSwitches switches() const;
    void scan(const DiagnoseSwitches &switches);
    void goToLine(int node);
    void stepToFinding(int direction);
    [[nodiscard]] bool hasFinding(int row) const;
    [[nodiscard]] bool hasFindings() const;
    [[nodiscard]] QString findingsLeft() const;
    void showFindings(bool scanned);

    Parts m_parts;
    int m_remaining = 0;
    QList<int> m_silentLines; ///< of the last scan
};

} // namespace kavro
