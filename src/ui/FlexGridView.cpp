#include "FlexGridPrivate.h"
#include "GridPainting.h"

#include <QEvent>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

namespace lingomat {

namespace {

constexpr int SmallestSection = 4; // pixels
constexpr int DefaultWidthInDigits = 12;
constexpr int RowPadding = 8; // pixels

} // namespace

FlexGrid::Private::Private(FlexGrid& grid) : q(grid) {
    defaultWidth = q.fontMetrics().horizontalAdvance(u'0') * DefaultWidthInDigits;
    defaultHeight = q.fontMetrics().height() + RowPadding;
    model.setCols(2);
    model.setRows(2);
    model.setFixedRows(1);
    model.setFixedCols(1);
    widths.resize(2, -1);
    current = selectionEnd = {1, 1};
}

void FlexGrid::Private::setUp() {
    q.setModel(&model);
    q.setVerticalHeader(new GridMargin(&q));
    q.setItemDelegate(new GridDelegate(q));
    q.setEditTriggers(QAbstractItemView::NoEditTriggers);
    q.setSelectionMode(QAbstractItemView::ContiguousSelection);
    q.setAlternatingRowColors(true);
    q.setWordWrap(false);
    q.setCornerButtonEnabled(false);
    q.setTabKeyNavigation(false);
    q.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    q.setVerticalScrollMode(QAbstractItemView::ScrollPerItem); // a whole row on top

    QHeaderView* heads = q.horizontalHeader();
    heads->setHighlightSections(false);
    heads->setSectionsClickable(true);
    heads->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    heads->setSectionResizeMode(QHeaderView::Interactive);
    q.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    for (QHeaderView* header : {heads, q.verticalHeader()}) {
        header->setMinimumSectionSize(SmallestSection);
        // The view would select whole columns and rows.
        QObject::disconnect(header, &QHeaderView::sectionPressed, &q, nullptr);
        QObject::disconnect(header, &QHeaderView::sectionEntered, &q, nullptr);
        header->viewport()->setMouseTracking(true);
        header->viewport()->installEventFilter(&q);
    }
    q.viewport()->setMouseTracking(true);
    const auto widgets = q.findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    for (QWidget* widget : widgets) {
        if (widget->inherits("QTableCornerButton"))
            widget->installEventFilter(&q);
    }

    QObject::connect(heads, &QHeaderView::sectionClicked, &q,
                     [this](int section) { clickHeader(section + model.fixedCols()); });
    QObject::connect(q.verticalHeader(), &QHeaderView::sectionPressed, &q,
                     [this](int section) { pressMargin(section + model.fixedRows()); });
    QObject::connect(heads, &QHeaderView::sectionResized, &q, [this](int section, int /*before*/, int width) {
        if (!m_flushing)
            q.setColWidth(section + model.fixedCols(), width);
    });
    QObject::connect(q.verticalHeader(), &QHeaderView::sectionResized, &q,
                     [this](int section, int, int height) {
                         if (!m_flushing)
                             q.setRowHeight(section + model.fixedRows(), height);
                     });
    watchScrolling(*q.horizontalScrollBar());
    watchScrolling(*q.verticalScrollBar());
    q.verticalHeader()->setDefaultSectionSize(defaultHeight);
    flush();
}

void FlexGrid::Private::watchScrolling(QScrollBar& bar) {
    QObject::connect(&bar, &QScrollBar::actionTriggered, &q, [this, &bar] {
        if (bar.sliderPosition() != bar.value())
            userScrolls = true; // the value follows
    });
    QObject::connect(&bar, &QScrollBar::valueChanged, &q, [this] {
        if (!std::exchange(userScrolls, false))
            return;
        Q_EMIT q.Scroll();
        scrollingHeld = barIsHeld;
        if (!barIsHeld)
            Q_EMIT q.ScrollEnd();
    });
    bar.setFocusPolicy(Qt::ClickFocus);
    bar.installEventFilter(&q);
}

void FlexGrid::Private::later() {
    if (m_flushQueued)
        return;
    m_flushQueued = true;
    QMetaObject::invokeMethod(
        &q,
        [this] {
            m_flushQueued = false;
            flush();
        },
        Qt::QueuedConnection);
}

void FlexGrid::Private::contentsChanged() {
    m_contentsChanged = true;
    later();
}

void FlexGrid::Private::widthsChanged() {
    m_widthsChanged = true;
    later();
}

void FlexGrid::Private::heightsChanged() {
    m_heightsChanged = true;
    later();
}

void FlexGrid::Private::cursorChanged() {
    m_cursorChanged = true;
    later();
}

void FlexGrid::Private::flush() {
    if (m_flushing)
        return;
    const QScopedValueRollback guard(m_flushing, true);
    applyShape();
    if (std::exchange(m_widthsChanged, false))
        applyWidths();
    if (std::exchange(m_heightsChanged, false))
        applyHeights();
    if (std::exchange(m_contentsChanged, false))
        model.announceContents();
    if (std::exchange(m_cursorChanged, false))
        applyCursor();
    if (pendingTopRow && q.isVisible())
        applyTopRow();
}

void FlexGrid::Private::applyShape() {
    switch (model.sync()) {
    case FlexGridModel::Sync::Nothing: return;
    case FlexGridModel::Sync::Rows: m_heightsChanged = true; break;
    case FlexGridModel::Sync::Everything:
        m_appliedHeights.clear();
        m_widthsChanged = m_heightsChanged = true;
        break;
    }
    m_contentsChanged = m_cursorChanged = true;
}

void FlexGrid::Private::applyWidths() {
    QHeaderView& heads = *q.horizontalHeader();
    const int fixed = model.fixedCols();
    for (int col = fixed; col < model.cols(); ++col) {
        const int section = col - fixed;
        const int width = widthOf(col);
        heads.setSectionHidden(section, width == 0);
        if (width > 0)
            heads.resizeSection(section, width);
    }
    const int margin = fixed > 0 ? widthOf(0) : 0;
    q.verticalHeader()->setVisible(margin > 0);
    if (margin > 0)
        q.verticalHeader()->setFixedWidth(margin);
}

void FlexGrid::Private::applyHeights() {
    const int fixed = model.fixedRows();
    const int head = fixed > 0 && model.rows() > 0 ? heightOf(0) : 0;
    q.horizontalHeader()->setVisible(head > 0);
    if (head > 0)
        q.horizontalHeader()->setFixedHeight(head);

    QList<std::pair<int, int>> heights;
    for (int row = fixed; row < model.rows(); ++row) {
        const int height = std::as_const(model).row(row).height;
        if (height != GridRow::DefaultHeight)
            heights.emplaceBack(row - fixed, height);
    }
    if (heights == m_appliedHeights)
        return;
    QHeaderView& margin = *q.verticalHeader();
    for (const auto& [section, height] : std::as_const(m_appliedHeights)) {
        if (section >= margin.count())
            continue;
        margin.setSectionHidden(section, false);
        margin.resizeSection(section, defaultHeight);
    }
    for (const auto& [section, height] : std::as_const(heights)) {
        margin.setSectionHidden(section, height == 0);
        if (height > 0)
            margin.resizeSection(section, height);
    }
    m_appliedHeights = heights;
}

void FlexGrid::Private::repaintRow(int row) {
    const int section = row - model.fixedRows();
    if (section < 0 || section >= model.rowCount())
        return;
    q.viewport()->update(0, q.rowViewportPosition(section), q.viewport()->width(), q.rowHeight(section));
}

void FlexGrid::Private::applyCursor() {
    QItemSelectionModel* selection = q.selectionModel();
    const QModelIndex item = model.itemOf(current.row, current.col);
    const auto rows = std::minmax(current.row, selectionEnd.row);
    const auto cols = std::minmax(current.col, selectionEnd.col);
    const QModelIndex upperLeft = model.itemOf(rows.first, cols.first);
    const QModelIndex lowerRight = model.itemOf(rows.second, cols.second);

    q.setAutoScroll(false); // the cursor moves, the view stays
    selection->setCurrentIndex(item, QItemSelectionModel::NoUpdate);
    if (upperLeft.isValid() && lowerRight.isValid())
        selection->select(QItemSelection(upperLeft, lowerRight), QItemSelectionModel::ClearAndSelect);
    else
        selection->clearSelection();
    q.setAutoScroll(true);

    repaintRow(m_paintedRow);
    m_paintedRow = current.row;
    repaintRow(m_paintedRow);
}

void FlexGrid::Private::applyTopRow() {
    const int section = *std::exchange(pendingTopRow, std::nullopt) - model.fixedRows();
    q.executeDelayedItemsLayout();
    q.updateGeometries();
    const QHeaderView& margin = *q.verticalHeader();
    int shownBefore = section;
    if (margin.hiddenSectionCount() > 0) {
        shownBefore = 0;
        for (int i = 0; i < section; ++i)
            shownBefore += margin.isSectionHidden(i) ? 0 : 1;
    }
    q.verticalScrollBar()->setValue(shownBefore);
}

void FlexGrid::Private::followFont() {
    const int width = q.fontMetrics().horizontalAdvance(u'0') * DefaultWidthInDigits;
    const int height = q.fontMetrics().height() + RowPadding;
    if (width == defaultWidth && height == defaultHeight)
        return;
    const auto scaled = [](int size, int from, int to) {
        return size > 0 ? std::max(1, static_cast<int>(std::lround(static_cast<double>(size) * to / from)))
                        : size;
    };
    for (int& own : widths)
        own = scaled(own, defaultWidth, width);
    for (int row = 0; row < model.rows(); ++row)
        model.row(row).height = scaled(model.row(row).height, defaultHeight, height);
    defaultWidth = width;
    defaultHeight = height;

    flush();
    const QScopedValueRollback guard(m_flushing, true);
    q.verticalHeader()->setDefaultSectionSize(defaultHeight);
    m_appliedHeights.clear();
    applyHeights();
    applyWidths();
}

bool FlexGrid::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::Paint)
        m_d->flush();
    return QTableView::viewportEvent(event);
}

void FlexGrid::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        m_d->followFont();
}

void FlexGrid::showEvent(QShowEvent* event) {
    QTableView::showEvent(event);
    m_d->later();
}

void FlexGrid::setTakesInputMethods(bool takes) {
    m_d->takesInputMethods = takes;
    setAttribute(Qt::WA_InputMethodEnabled, takes);
}

// The base class switches input methods off for cells that it does not edit itself.

void FlexGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    setAttribute(Qt::WA_InputMethodEnabled, m_d->takesInputMethods);
}

void FlexGrid::focusInEvent(QFocusEvent* event) {
    QTableView::focusInEvent(event);
    setAttribute(Qt::WA_InputMethodEnabled, m_d->takesInputMethods);
    m_d->cursorChanged(); // the frame of the current cell tells the focus
}

void FlexGrid::focusOutEvent(QFocusEvent* event) {
    QTableView::focusOutEvent(event);
    m_d->cursorChanged();
}

} // namespace lingomat
