#include "ui/editor_page_view.h"

#include "core/document.h"
#include "core/editor_page.h"
#include "ui/basic_edit_view.h"
#include "ui/bind_text.h"
#include "ui/cell_editor.h"
#include "ui/elided_label.h"
#include "ui/finding_panel.h"
#include "ui/grid_view.h"

#include <QGridLayout>
#include <QLabel>
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

EditorPageView::EditorPageView(SubtitleDocument &document, QWidget *parent)
    : QWidget(parent), m_document(document)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(9, 9, 9, 9);
    layout->setSpacing(6);
    layout->addWidget(makePreview());
    layout->addWidget(makeGrid(), 1);
    layout->addWidget(makePositionLine());
    auto *basic = new BasicEditView(document.editor, this);
    m_cellEditor->setCompanion(basic);
    layout->addWidget(basic);
    setFocusProxy(m_grid);
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
    m_grid->setColumnWidths(columnWidths(m_grid->fontMetrics()), FirstTextColumn);
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
    auto *position = new QLabel(this);
    bind(*position, m_document.editor.Label13);
    return position;
}

} // namespace kavro
