#include "ui/grid_view.h"

#include "ui/bind_look.h"
#include "ui/grid_delegate.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace kavro {

namespace {

constexpr int leastTextWidth = 80;

bool isTyping(const QKeyEvent &event)
{
    const auto modifiers = event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    // Space is a key of the player.
    return modifiers == Qt::NoModifier && !event.text().isEmpty() && event.text() != u" "
           && event.text().at(0).isPrint();
}

} // namespace

GridView::GridView(Grid &grid, const QString &label, GridModel::RowNote note, QWidget *parent)
    : QTableView(parent), m_grid(grid), m_model(grid, std::move(note))
{
    bindLookInPlace(*this, grid, label);
    setItemDelegate(new GridDelegate(this));
    setSelectionMode(SingleSelection);
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false); // Tab goes on to the next control
    setVerticalScrollMode(ScrollPerItem);
    setHorizontalScrollMode(ScrollPerPixel);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setSectionsClickable(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    setRowHeights();
    setModel(&m_model);
    connectGrid();
}

void GridView::connectGrid()
{
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &now) {
                if (!m_following && !m_model.isChanging() && now.isValid()) {
                    m_grid.moveTo(GridModel::rowOf(now), now.column());
                }
            });
    connect(this, &QTableView::clicked, &m_grid, [this](const QModelIndex &cell) {
        m_grid.click(GridModel::rowOf(cell), cell.column());
    });
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int value) {
        if (!m_following && !m_model.isChanging()) {
            m_grid.scrollTo(value + 1);
        }
        emit currentCellMoved();
    });
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, &GridView::currentCellMoved);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this,
            [this](int col, int, int width) {
                if (!m_stretching && col < m_widths.size()) {
                    m_widths[col] = width;
                    if (!isStretched(col)) {
                        stretchColumns();
                    }
                }
                emit currentCellMoved();
            });
    connect(&m_grid, &Grid::currentChanged, this, &GridView::showCurrent);
    connect(&m_grid, &Grid::topRowChanged, this, &GridView::showTopRow);
    // The model is connected ahead of these and has done its part.
    connect(&m_grid, &Grid::rowsInserted, this, &GridView::showCurrent);
    connect(&m_grid, &Grid::rowsRemoved, this, &GridView::showCurrent);
    connect(&m_grid, &Grid::reset, this, &GridView::showCurrent);
    showCurrent();
}

void GridView::setColumnWidths(const QList<int> &widths, int firstStretched, int lastStretched)
{
    Q_ASSERT(widths.size() == m_model.columnCount());
    m_widths = widths;
    m_firstStretched = firstStretched;
    m_lastStretched = lastStretched;
    for (int col = 0; col < widths.size(); ++col) {
        setColumnWidth(col, widths[col]);
    }
    stretchColumns();
}

void GridView::setHint(const QString &hint)
{
    m_hint = hint;
    viewport()->update();
}

QRect GridView::currentCell() const
{
    const QModelIndex cell = m_model.indexOf(m_grid.row(), m_grid.col());
    return cell.isValid() ? visualRect(cell) : QRect();
}

void GridView::showCurrent()
{
    const QScopedValueRollback following(m_following, true);
    const QModelIndex cell = m_model.indexOf(m_grid.row(), m_grid.col());
    if (cell != currentIndex()) {
        setAutoScroll(false);
        selectionModel()->setCurrentIndex(cell, QItemSelectionModel::ClearAndSelect
                                                    | QItemSelectionModel::Rows);
        setAutoScroll(true);
    } else if (cell.isValid() && !selectionModel()->isSelected(cell)) {
        selectionModel()->select(cell,
                                 QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    emit currentCellMoved();
}

void GridView::showTopRow()
{
    const QScopedValueRollback following(m_following, true);
    executeDelayedItemsLayout();
    verticalScrollBar()->setValue(m_grid.topRow() - 1);
}

void GridView::updateGeometries()
{
    const QScopedValueRollback following(m_following, true);
    QTableView::updateGeometries();
    // A top row that the view had no room for comes back when there is.
    verticalScrollBar()->setValue(m_grid.topRow() - 1);
    emit currentCellMoved();
}

void GridView::keyPressEvent(QKeyEvent *event)
{
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const int key = event->key();
    if (plain && (key == Qt::Key_F2 || key == Qt::Key_Return || key == Qt::Key_Enter)) {
        emit editAsked();
    } else if (isTyping(*event)) {
        emit typedOver(event);
    } else {
        QTableView::keyPressEvent(event);
    }
}

void GridView::inputMethodEvent(QInputMethodEvent *event)
{
    if (!event->commitString().isEmpty() || !event->preeditString().isEmpty()) {
        emit typedOver(event);
    }
}

void GridView::mousePressEvent(QMouseEvent *event)
{
    const QModelIndex cell = indexAt(event->position().toPoint());
    if (cell.isValid() && cell.column() == 0 && event->button() == Qt::LeftButton) {
        // The fixed column stands for its row; the column stays.
        const int row = GridModel::rowOf(cell);
        const int col = std::max(m_grid.col(), 1);
        m_grid.moveTo(row, col);
        m_grid.click(row, col);
        return;
    }
    QTableView::mousePressEvent(event);
}

void GridView::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QModelIndex cell = indexAt(event->position().toPoint());
    QTableView::mouseDoubleClickEvent(event);
    if (cell.isValid() && cell.column() > 0 && event->button() == Qt::LeftButton
        && event->modifiers() == Qt::NoModifier)
    {
        emit editAsked();
    }
}

void GridView::focusInEvent(QFocusEvent *event)
{
    // Qt would make the first cell current in a table that has none.
    const QScopedValueRollback following(m_following, true);
    QTableView::focusInEvent(event);
    showCurrent();
}

void GridView::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    if (!m_hint.isEmpty() && m_model.rowCount() <= 1) {
        QPainter painter(viewport());
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(viewport()->rect().adjusted(20, 20, -20, -20),
                         Qt::AlignCenter | Qt::TextWordWrap, m_hint);
    }
}

void GridView::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    stretchColumns();
}

void GridView::showEvent(QShowEvent *event)
{
    QTableView::showEvent(event);
    showTopRow();
}

void GridView::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        setRowHeights();
    }
}

void GridView::stretchColumns()
{
    const QScopedValueRollback stretching(m_stretching, true);
    int room = viewport()->width();
    int weight = 0;
    for (int col = 0; col < m_widths.size(); ++col) {
        room -= isStretched(col) ? 0 : columnWidth(col);
        weight += isStretched(col) ? m_widths[col] : 0;
    }
    for (int col = m_firstStretched; col <= m_lastStretched; ++col) {
        const int width = std::max(leastTextWidth, room * m_widths[col] / std::max(weight, 1));
        weight -= m_widths[col];
        room -= width;
        setColumnWidth(col, width);
    }
}

bool GridView::isStretched(int col) const
{
    return col >= m_firstStretched && col <= m_lastStretched;
}

void GridView::setRowHeights()
{
    // All rows are of one height: none is ever measured.
    verticalHeader()->setMinimumSectionSize(fontMetrics().height());
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + fontMetrics().height() / 2);
}

} // namespace kavro
