#include "FlexGridPrivate.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>
#include <cstdlib>

namespace lingomat {

namespace {

constexpr int BorderReach = 3; // pixels to either side of a row's border
constexpr int SmallestRow = 8; // pixels

std::optional<GridMove> moveOf(const QKeyEvent& event) {
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier);
    if (modifiers != Qt::NoModifier && modifiers != Qt::ControlModifier)
        return {};
    const bool control = modifiers == Qt::ControlModifier;
    switch (event.key()) {
    case Qt::Key_Left: return GridMove::Left;
    case Qt::Key_Right: return GridMove::Right;
    case Qt::Key_Up: return GridMove::Up;
    case Qt::Key_Down: return GridMove::Down;
    case Qt::Key_PageUp: return GridMove::PageUp;
    case Qt::Key_PageDown: return GridMove::PageDown;
    case Qt::Key_Home: return control ? GridMove::First : GridMove::RowStart;
    case Qt::Key_End: return control ? GridMove::Last : GridMove::RowEnd;
    default: return {};
    }
}

} // namespace

GridBounds FlexGrid::Private::bounds() const {
    const QRect area = q.viewport()->rect();
    const int top = std::max(0, q.rowAt(area.top()));
    const int bottom = q.rowAt(area.bottom());
    return {.first = {model.fixedRows(), model.fixedCols()},
            .last = {model.rows() - 1, model.cols() - 1},
            .rowIsShown = [this](int row) { return heightOf(row) > 0; },
            .colIsShown = [this](int col) { return widthOf(col) > 0; },
            .pageRows = (bottom < 0 ? model.rows() : bottom) - top};
}

/// A cell that is wider than the view shows its beginning. In a column without width only the row counts.
void FlexGrid::Private::scrollIntoView(GridCell cell) {
    if (widthOf(cell.col) == 0)
        cell.col = std::max(0, q.columnAt(0)) + model.fixedCols();
    q.scrollTo(model.itemOf(cell.row, cell.col), QAbstractItemView::EnsureVisible);
}

void FlexGrid::Private::moveByUser(GridCell to, bool extend) {
    const auto show = [this](GridCell cell) {
        flush();
        userScrolls = true;
        scrollIntoView(cell);
        userScrolls = false;
    };

    if (extend) {
        if (to == selectionEnd)
            return;
        selectionEnd = to;
        cursorChanged();
        show(to);
        Q_EMIT q.SelChange();
        return;
    }

    const bool moves = to != current;
    if (!moves && selectionEnd == current)
        return;
    if (moves)
        Q_EMIT q.LeaveCell();
    current = selectionEnd = to;
    clampCursor(); // who heard of it may have taken rows away
    show(current);
    if (moves)
        Q_EMIT q.EnterCell();
    Q_EMIT q.SelChange();
}

void FlexGrid::Private::clickHeader(int col) {
    moveByUser({current.row, col}, false);
    Q_EMIT q.headerClicked(col);
}

void FlexGrid::Private::pressMargin(int row) {
    moveByUser({row, std::max(current.col, model.fixedCols())}, false);
    Q_EMIT q.pressed(model.itemOf(current.row, current.col));
}

GridCell FlexGrid::Private::cellAt(QPoint position) const {
    const int row = q.rowAt(position.y());
    const int col = q.columnAt(position.x());
    return {row < 0 ? model.rows() - 1 : row + model.fixedRows(),
            col < 0 ? model.cols() - 1 : col + model.fixedCols()};
}

void FlexGrid::Private::noteMouse(GridCell cell) {
    mouse = cell;
    Q_EMIT q.mouseMoved();
}

/// The press may have scrolled the view under the mouse: only a mouse that moves to another cell drags.
bool FlexGrid::Private::dragsTo(QPoint position) {
    if (!pressed)
        return false;
    const bool hasMoved =
        (position - pressed->position).manhattanLength() >= QApplication::startDragDistance();
    pressed->drags = pressed->drags || (hasMoved && cellAt(position) != pressed->cell);
    return pressed->drags;
}

GridCell FlexGrid::Private::dragTarget(QPoint position) const {
    const QRect area = q.viewport()->rect();
    GridCell target = cellAt({std::clamp(position.x(), area.left(), area.right()), position.y()});
    // Beyond an edge the selection grows row by row, and the view goes along.
    if (position.y() < area.top())
        target.row = nextCell(bounds(), selectionEnd, GridMove::Up).row;
    else if (position.y() > area.bottom())
        target.row = nextCell(bounds(), selectionEnd, GridMove::Down).row;
    return target;
}

std::optional<int> FlexGrid::Private::borderAt(int y) const {
    // With a margin, that is where the borders are dragged.
    if (!rowsResizable || q.verticalHeader()->isVisible())
        return {};
    const int section = q.rowAt(y - BorderReach);
    if (section < 0)
        return {};
    const int border = q.rowViewportPosition(section) + q.rowHeight(section);
    if (std::abs(border - y) > BorderReach)
        return {};
    return section + model.fixedRows();
}

void FlexGrid::keyPressEvent(QKeyEvent* event) {
    m_d->flush();
    if (event->matches(QKeySequence::Copy)) {
        QTableView::keyPressEvent(event);
        return;
    }
    const auto move = moveOf(*event);
    if (!move) {
        event->ignore();
        return;
    }
    const bool extend = event->modifiers().testFlag(Qt::ShiftModifier);
    const GridCell from = extend ? m_d->selectionEnd : m_d->current;
    m_d->moveByUser(nextCell(m_d->bounds(), from, *move), extend);
    event->accept();
}

void FlexGrid::mousePressEvent(QMouseEvent* event) {
    m_d->flush();
    const QPoint position = event->position().toPoint();
    m_d->mouse = m_d->cellAt(position);
    if (event->button() != Qt::LeftButton)
        return;
    if (const auto row = m_d->borderAt(position.y())) {
        m_d->borderDrag = {*row, rowViewportPosition(*row - FixedRows())};
        return;
    }
    const QModelIndex index = indexAt(position);
    if (!index.isValid())
        return;
    const QPersistentModelIndex item(index); // who hears of it may take rows away
    m_d->pressed = {item, m_d->mouse, position};
    m_d->moveByUser(m_d->mouse, event->modifiers().testFlag(Qt::ShiftModifier));
    Q_EMIT pressed(item);
}

void FlexGrid::mouseMoveEvent(QMouseEvent* event) {
    m_d->flush();
    const QPoint position = event->position().toPoint();
    if (m_d->borderDrag) {
        setRowHeight(m_d->borderDrag->row, std::max(SmallestRow, position.y() - m_d->borderDrag->top));
        return;
    }
    if (event->buttons() == Qt::NoButton) {
        if (m_d->borderAt(position.y()))
            viewport()->setCursor(Qt::SplitVCursor);
        else
            viewport()->unsetCursor();
    }
    m_d->noteMouse(m_d->cellAt(position));
    if (m_d->dragsTo(position) && event->buttons().testFlag(Qt::LeftButton))
        m_d->moveByUser(m_d->dragTarget(position), true);
}

void FlexGrid::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    m_d->flush();
    m_d->borderDrag.reset();
    const bool dragged = m_d->dragsTo(event->position().toPoint());
    const auto press = std::exchange(m_d->pressed, std::nullopt);
    if (press && !dragged && press->item.isValid())
        Q_EMIT clicked(press->item);
}

void FlexGrid::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
    const QModelIndex index = indexAt(event->position().toPoint());
    if (index.isValid() && event->button() == Qt::LeftButton)
        Q_EMIT doubleClicked(index);
}

/// A bar takes the focus while the mouse holds it. If the grid had it at once, a question that comes up upon
/// that would swallow the release, and the bar would scroll on and on. For the same reason what is to follow
/// waits until the bar has seen the release.
void FlexGrid::Private::holdBar(bool held) {
    barIsHeld = held;
    if (held)
        return;
    const auto letGo = [this] {
        if (std::exchange(scrollingHeld, false))
            Q_EMIT q.ScrollEnd();
        q.setFocus(Qt::MouseFocusReason);
    };
    QMetaObject::invokeMethod(&q, letGo, Qt::QueuedConnection);
}

bool FlexGrid::eventFilter(QObject* watched, QEvent* event) {
    const bool isPress = event->type() == QEvent::MouseButtonPress;
    if (watched == horizontalScrollBar() || watched == verticalScrollBar()) {
        if (isPress || event->type() == QEvent::MouseButtonRelease)
            m_d->holdBar(isPress);
        return QTableView::eventFilter(watched, event);
    }
    if (!isPress && event->type() != QEvent::MouseMove)
        return QTableView::eventFilter(watched, event);

    m_d->flush();
    const QPoint position = static_cast<QMouseEvent*>(event)->position().toPoint();
    if (watched == horizontalHeader()->viewport()) {
        const int section = horizontalHeader()->logicalIndexAt(position.x());
        m_d->noteMouse({0, section < 0 ? Cols() - 1 : section + FixedCols()});
    } else if (watched == verticalHeader()->viewport()) {
        const int section = verticalHeader()->logicalIndexAt(position.y());
        m_d->noteMouse({section < 0 ? Rows() - 1 : section + FixedRows(), 0});
    } else if (watched->inherits("QTableCornerButton")) {
        m_d->noteMouse({0, 0});
        if (isPress)
            m_d->clickHeader(0);
    }
    return QTableView::eventFilter(watched, event);
}

int FlexGrid::MouseCol() const {
    return m_d->mouse.col;
}

int FlexGrid::MouseRow() const {
    return m_d->mouse.row;
}

void FlexGrid::setAllowUserResizing(bool allowed) {
    if (std::exchange(m_d->colsResizable, allowed) != allowed)
        horizontalHeader()->setSectionResizeMode(allowed ? QHeaderView::Interactive : QHeaderView::Fixed);
}

void FlexGrid::setAllowUserResizingRows(bool allowed) {
    m_d->rowsResizable = allowed;
    verticalHeader()->setSectionResizeMode(allowed ? QHeaderView::Interactive : QHeaderView::Fixed);
}

void FlexGrid::keyboardSearch(const QString& /*search*/) {}

} // namespace lingomat
