#include "diagnose/diagnose.h"

#include "controls/form.h"
#include "core/action_trace.h"
#include "core/document.h"
#include "core/edit_history.h"
#include "core/editor_page.h"
#include "core/language.h"
#include "core/main_menu.h"
#include "core/status_panels.h"
#include "core/text.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

/// Macro functions that switch a box on; the one that switches it off comes next. The last box is
/// recorded one below its own functions.
constexpr std::array<int, DiagnoseSwitches::count> switchCodes{701, 703, 705, 707, 709,
                                                               711, 713, 715, 717, 720};

constexpr int findingsPanel = 4;

/// The text of the common group that tells of no finding; behind it come those of one and of more.
constexpr int noFindingsText = 44;

} // namespace

Diagnose::Diagnose(Form &frmMain, const Parts &parts)
    : Check3(frmMain, u"Check3"_s),
      fraCheck(frmMain, u"fraCheck"_s),
      Command27(frmMain, u"Command27"_s),
      tvDiag(frmMain, u"tvDiag"_s),
      m_parts(parts)
{
    // A person who opens a file shall see its faults; what changes the document waits to be asked.
    for (CheckBox &box : Check3) {
        box.setOn(box.index() <= static_cast<int>(DiagnoseSwitch::CountTime));
    }
    connectBoxes();
    connectSteps();
    QObject::connect(&Command27, &Button::clicked, &Command27, [this] { GoDiagnose(); });
    QObject::connect(&tvDiag, &TreeView::clicked, &tvDiag, [this](int node) { goToLine(node); });
    QObject::connect(&m_parts.document, &SubtitleDocument::findingsGone, &tvDiag, [this] {
        m_silentLines.clear();
        showFindings(false);
    });
    showFindings(false);
}

void Diagnose::connectBoxes()
{
    for (CheckBox &box : Check3) {
        QObject::connect(&box, &CheckBox::clicked, &box, [this, &box] {
            const int on = switchCodes[static_cast<std::size_t>(box.index())];
            m_parts.trace.RecordAction({}, box.isOn() ? on : on + 1);
        });
    }
}

void Diagnose::connectSteps()
{
    Button &next = m_parts.menu.mnuNextFinding;
    Button &previous = m_parts.menu.mnuPreviousFinding;
    QObject::connect(&next, &Button::clicked, &next, [this] { stepToFinding(1); });
    QObject::connect(&previous, &Button::clicked, &previous, [this] { stepToFinding(-1); });
}

DiagnoseSwitches Diagnose::switches() const
{
    DiagnoseSwitches switches;
    for (const CheckBox &box : Check3) {
        switches.on[static_cast<std::size_t>(box.index())] = box.isOn();
    }
    return switches;
}

void Diagnose::GoDiagnose()
{
    scan(switches());
}

void Diagnose::diagnoseWithoutRepairs()
{
    DiagnoseSwitches checks = switches();
    for (const DiagnoseSwitch repair : {DiagnoseSwitch::RepairOverlapping,
                                        DiagnoseSwitch::RepairInvalid, DiagnoseSwitch::RepairEmpty})
    {
        checks.on[static_cast<std::size_t>(repair)] = false;
    }
    scan(checks);
}

void Diagnose::scan(const DiagnoseSwitches &switches)
{
    SubtitleDocument &document = m_parts.document;
    const SubtitleDocument::Act act(document);
    const Form::Busy busy(document.editor.grdSubEdit.form());
    const EditHistory::Bounded fewSnapshots(m_parts.history);
    DiagnoseScan scan({.document = document,
                       .basicEdit = m_parts.basicEdit,
                       .status = m_parts.status,
                       .language = m_parts.language,
                       .variables = m_parts.variables,
                       .trace = m_parts.trace,
                       .clock = m_parts.clock},
                      switches);
    scan.run();
    scan.tree().fill(tvDiag);
    m_remaining = scan.tree().remaining();
    m_silentLines = scan.silentLines();
    document.RefreshCurrentRow();
    showFindings(true);
}

std::optional<int> Diagnose::lineOf(int node) const
{
    const QString &text = tvDiag.node(node).text;
    const QString word = m_parts.language.ownText(u"Line"_s);
    const auto digits = static_cast<int>(word.size()) + 2; // behind a blank
    return text.startsWith(word)
               ? std::optional(static_cast<int>(std::lround(Val(Mid(text, digits, 4)))))
               : std::nullopt;
}

void Diagnose::goToLine(int node)
{
    Grid &grid = m_parts.document.editor.grdSubEdit;
    if (const std::optional<int> row = lineOf(node)) {
        grid.setCurrent(grid.has(*row, StartColumn) ? *row : grid.row(), StartColumn);
    }
}

/// Behind the last finding comes the first one.
void Diagnose::stepToFinding(int direction)
{
    Grid &grid = m_parts.document.editor.grdSubEdit;
    const int rows = grid.rows();
    for (int step = 1; step <= rows; ++step) {
        const int row = (grid.row() + direction * step + rows) % rows;
        if (hasFinding(row)) {
            if (showLines) {
                showLines();
            }
            grid.setRow(row);
            grid.setTopRow(row);
            return;
        }
    }
}

bool Diagnose::hasFinding(int row) const
{
    return row > 0
           && (!m_parts.document.rowErrorText(row).isEmpty() || m_silentLines.contains(row));
}

bool Diagnose::hasFindings() const
{
    int row = m_parts.document.editor.grdSubEdit.rows() - 1;
    while (row > 0 && !hasFinding(row)) {
        --row;
    }
    return row > 0;
}

QString Diagnose::findingsLeft() const
{
    QString text =
        m_parts.language.text(LangGroup::Common, noFindingsText + std::min(m_remaining, 2));
    return text.replace("%1"_L1, QString::number(m_remaining));
}

void Diagnose::showFindings(bool scanned)
{
    m_parts.status.StatusBar1.setPanel(findingsPanel, scanned ? findingsLeft() : QString());
    const bool found = hasFindings();
    m_parts.menu.mnuNextFinding.setEnabled(found);
    m_parts.menu.mnuPreviousFinding.setEnabled(found);
}

} // namespace kavro
