#include "ui/editor_page_view.h"

#include "app/program.h"
#include "ui/bind_buttons.h"
#include "ui/bind_text.h"
#include "ui/cell_editor.h"
#include "ui/elided_label.h"
#include "ui/finding_panel.h"
#include "ui/grid_view.h"
#include "ui/script_font.h"
#include "ui/tool_pages.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

/// The program's own widths, 15 twips to a pixel, or more where the desktop's font needs it. Few
/// lines have a third text, so the first two get more of the room.
QList<int> columnWidths(const QFontMetrics &metrics)
{
    const int time = metrics.horizontalAdvance(u"-00:00:00,000"_s) + metrics.averageCharWidth() * 2;
    const int number = metrics.horizontalAdvance(u" { 9999 }"_s) + metrics.averageCharWidth() * 2;
    return {std::max(800 / 15, number),
            std::max(1200 / 15, time),
            std::max(1200 / 15, time),
            240,
            240,
            160};
}

} // namespace

EditorPageView::EditorPageView(Program &program, QWidget *parent)
    : QWidget(parent), m_program(program), m_document(program.document)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(9, 9, 9, 9);
    layout->setSpacing(6);
    layout->addWidget(makePreview());
    layout->addWidget(makeGrid(), 1);
    layout->addWidget(makePositionLine());
    layout->addWidget(makeToolPages());
    connectKeys();
}

void EditorPageView::focusGrid()
{
    m_grid->setFocus();
}

void EditorPageView::finishEdit()
{
    m_cellEditor->finish();
}

QWidget *EditorPageView::makePreview()
{
    EditorPage &editor = m_document.editor;
    auto *frame = new QFrame(this);
    frame->setFrameShape(QFrame::StyledPanel);
    frame->setBackgroundRole(QPalette::Base);
    frame->setAutoFillBackground(true);
    auto *layout = new QGridLayout(frame);
    layout->setContentsMargins(12, 6, 12, 6);
    layout->setVerticalSpacing(0);
    layout->setColumnStretch(1, 1);
    for (int line = 0; line < 3; ++line) {
        auto *text = new ElidedLabel(Qt::ElideRight, frame);
        QFont font = text->font();
        font.setPointSizeF(font.pointSizeF() * 1.25);
        text->setFont(font);
        text->setAlignment(Qt::AlignCenter);
        text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        bindPreview(*text, editor.Label23[line], tr("Preview, line %1").arg(line + 1));
        followScript(*text, m_program.settings);
        layout->addWidget(text, line, 1);
    }
    auto *count = new QLabel(frame);
    bind(*count, editor.lblSubRowCount);
    layout->addWidget(count, 0, 2, Qt::AlignRight | Qt::AlignTop);
    return frame;
}

QWidget *EditorPageView::makeGrid()
{
    EditorPage &editor = m_document.editor;
    const auto finding = [this](int row) { return m_document.rowErrorText(row); };
    m_grid = new GridView(editor.grdSubEdit, tr("Subtitles"), finding, this);
    m_grid->setColumnWidths(columnWidths(m_grid->fontMetrics()), FirstTextColumn, LastTextColumn);
    followScript(*m_grid, m_program.settings);
    m_grid->setHint(tr("Open a subtitle file with Ctrl+O, or drop one here."));
    m_cellEditor = new CellEditor(*m_grid, editor.rtfEdit, tr("Current cell"));
    new FindingPanel(*m_grid, editor.errExp, editor.lblErrExp);

    // Where Change can't be pressed, as in the end row, there is nothing to edit.
    const auto editable = [&editor] { return editor.Command14.acceptsActs(); };
    connect(m_grid, &GridView::editAsked, this, [this, editable] {
        if (editable()) {
            m_cellEditor->begin();
        }
    });
    connect(m_grid, &GridView::typedOver, this, [this, editable](QEvent *event) {
        if (editable()) {
            m_cellEditor->beginWith(event);
        }
    });
    return m_grid;
}

QWidget *EditorPageView::makePositionLine()
{
    auto *line = new QWidget(this);
    auto *layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *position = new QLabel(line);
    bind(*position, m_document.editor.Label13);
    layout->addWidget(position, 1);
    layout->addWidget(makeNodeButtons());
    return line;
}

QWidget *EditorPageView::makeNodeButtons()
{
    EditorPage &editor = m_document.editor;
    auto *group = new QWidget(this);
    auto *layout = new QHBoxLayout(group);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    const auto add = [layout, group](auto &control) {
        auto *button = new QToolButton(group);
        bind(*button, control);
        // The grid keeps the focus, and without it there is no node to make.
        button->setFocusPolicy(Qt::TabFocus);
        button->setAutoRaise(true);
        layout->addWidget(button);
        return button;
    };
    layout->addWidget(new QLabel(tr("Node"), group));
    add(editor.Label74);
    add(editor.Label75);
    // Its place stays free in the rows that can't start a node.
    QSizePolicy policy = add(editor.btnNode[0])->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    layout->itemAt(layout->count() - 1)->widget()->setSizePolicy(policy);
    return group;
}

QWidget *EditorPageView::makeToolPages()
{
    auto *pages = new QWidget(this);
    auto *layout = new QHBoxLayout(pages);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);
    auto *text = new TextPages(m_program, pages);
    auto *timing = new TimingPages(m_program, pages);
    for (ToolPages *tabs : {static_cast<ToolPages *>(text), static_cast<ToolPages *>(timing)}) {
        connect(tabs, &ToolPages::aboutToAct, this, &EditorPageView::finishEdit);
        layout->addWidget(tabs, 1);
    }
    m_cellEditor->setCompanions([text](const QWidget *widget) {
        const QWidget *basic = text->page(0);
        return basic != nullptr && basic->isAncestorOf(widget);
    });
    return pages;
}

void EditorPageView::connectKeys()
{
    const auto press = [this](const QKeySequence &key, Button &button) {
        auto *shortcut = new QShortcut(key, m_grid);
        // In a field these keys are the field's.
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, &button, [&button] {
            if (button.acceptsActs()) {
                button.click();
            }
        });
    };
    auto *finding = new QShortcut(QKeySequence(Qt::ALT | Qt::Key_Return), this);
    finding->setKeys(
        {QKeySequence(Qt::ALT | Qt::Key_Return), QKeySequence(Qt::ALT | Qt::Key_Enter)});
    connect(finding, &QShortcut::activated, &m_document, &SubtitleDocument::toggleFinding);
    press(QKeySequence(Qt::Key_Insert), m_document.editor.Command10);
    press(QKeySequence(Qt::CTRL | Qt::Key_Delete), m_document.editor.Command11);
}

} // namespace kavro
