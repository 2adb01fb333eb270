#include "FlexGrid.h"

#include "FlexGridPrivate.h"

#include <QHeaderView>

#include <algorithm>

namespace lingomat {

FlexGrid::FlexGrid(QWidget* parent) : QTableView(parent), m_d(std::make_unique<Private>(*this)) {
    m_d->setUp();
}

FlexGrid::~FlexGrid() {
    setModel(nullptr); // the model goes before the view does
}

const GridRow& FlexGrid::Private::currentRow() const {
    model.checkRow(current.row);
    model.checkCol(current.col);
    return model.row(current.row);
}

GridRow& FlexGrid::Private::currentRow() {
    model.checkRow(current.row);
    model.checkCol(current.col);
    return model.row(current.row);
}

void FlexGrid::Private::clampCursor() {
    const GridCell last{std::max(0, model.rows() - 1), std::max(0, model.cols() - 1)};
    for (GridCell* cell : {&current, &selectionEnd}) {
        cell->row = std::min(cell->row, last.row);
        cell->col = std::min(cell->col, last.col);
    }
    cursorChanged();
}

int FlexGrid::Private::widthOf(int col) const {
    const int width = widths[static_cast<size_t>(col)];
    return width < 0 ? defaultWidth : width;
}

int FlexGrid::Private::heightOf(int row) const {
    const int height = model.row(row).height;
    return height < 0 ? defaultHeight : height;
}

// Size.

int FlexGrid::Rows() const {
    return m_d->model.rows();
}

void FlexGrid::setRows(int rows) {
    m_d->model.setRows(rows);
    m_d->heightsChanged();
    m_d->contentsChanged();
    m_d->clampCursor();
}

int FlexGrid::Cols() const {
    return m_d->model.cols();
}

void FlexGrid::setCols(int cols) {
    m_d->model.setCols(cols);
    m_d->widths.resize(static_cast<size_t>(cols), -1);
    m_d->widthsChanged();
    m_d->clampCursor();
}

int FlexGrid::FixedRows() const {
    return m_d->model.fixedRows();
}

void FlexGrid::setFixedRows(int rows) {
    m_d->model.setFixedRows(std::clamp(rows, 0, 1));
    m_d->heightsChanged();
    m_d->cursorChanged();
}

int FlexGrid::FixedCols() const {
    return m_d->model.fixedCols();
}

void FlexGrid::setFixedCols(int cols) {
    m_d->model.setFixedCols(std::clamp(cols, 0, 1));
    m_d->widthsChanged();
    m_d->cursorChanged();
}

// The current cell.

int FlexGrid::Row() const {
    return m_d->current.row;
}

void FlexGrid::setRow(int row) {
    m_d->model.checkRow(row);
    m_d->current.row = row;
    m_d->selectionEnd.row = row;
    m_d->cursorChanged();
}

int FlexGrid::Col() const {
    return m_d->current.col;
}

void FlexGrid::setCol(int col) {
    m_d->model.checkCol(col);
    m_d->current.col = col;
    m_d->selectionEnd.col = col;
    m_d->cursorChanged();
}

int FlexGrid::RowSel() const {
    return m_d->selectionEnd.row;
}

void FlexGrid::setRowSel(int row) {
    m_d->model.checkRow(row);
    m_d->selectionEnd.row = row;
    m_d->cursorChanged();
}

int FlexGrid::ColSel() const {
    return m_d->selectionEnd.col;
}

void FlexGrid::setColSel(int col) {
    m_d->model.checkCol(col);
    m_d->selectionEnd.col = col;
    m_d->cursorChanged();
}

// Contents.

QString FlexGrid::Text() const {
    return std::as_const(*m_d).currentRow().text(m_d->current.col).toString();
}

void FlexGrid::setText(const QString& text) {
    m_d->currentRow().setText(m_d->current.col, text);
    if (m_d->fill == Fill::Repeat)
        m_d->fillSelection(text);
    m_d->contentsChanged();
}

void FlexGrid::Private::fillSelection(const QString& text) {
    const auto [firstRow, lastRow] = std::minmax(current.row, selectionEnd.row);
    const auto [firstCol, lastCol] = std::minmax(current.col, selectionEnd.col);
    for (int row = firstRow; row <= lastRow; ++row) {
        for (int col = firstCol; col <= lastCol; ++col)
            model.row(row).setText(col, text);
    }
}

FlexGrid::Fill FlexGrid::FillStyle() const {
    return m_d->fill;
}

void FlexGrid::setFillStyle(Fill style) {
    m_d->fill = style;
}

QString FlexGrid::TextMatrix(int row, int col) const {
    m_d->model.checkRow(row);
    m_d->model.checkCol(col);
    return std::as_const(m_d->model).row(row).text(col).toString();
}

void FlexGrid::setTextMatrix(int row, int col, const QString& text) {
    m_d->model.checkRow(row);
    m_d->model.checkCol(col);
    m_d->model.row(row).setText(col, text);
    m_d->contentsChanged();
}

void FlexGrid::AddItem(const QString& text) {
    GridRow& row = m_d->model.addRow();
    m_d->contentsChanged();
    if (text.isEmpty())
        return;
    int col = 0;
    for (const QStringView cell : QStringView(text).split(u'\t')) {
        if (col == Cols())
            return;
        row.setText(col++, cell);
    }
}

void FlexGrid::RemoveItem(int row) {
    m_d->model.removeRow(row);
    for (int* place : {&m_d->current.row, &m_d->selectionEnd.row}) {
        if (*place > row)
            --*place;
    }
    m_d->heightsChanged();
    m_d->contentsChanged();
    m_d->clampCursor();
}

void FlexGrid::Clear() {
    for (int row = 0; row < Rows(); ++row) {
        m_d->model.row(row).clearTexts();
        m_d->model.row(row).clearPictures();
    }
    m_d->contentsChanged();
}

QPixmap FlexGrid::CellPicture() const {
    const CellLook* look = std::as_const(*m_d).currentRow().look(m_d->current.col);
    return look ? look->picture : QPixmap();
}

void FlexGrid::setCellPicture(const QPixmap& picture) {
    GridRow& row = m_d->currentRow();
    if (picture.isNull() && !row.look(m_d->current.col))
        return;
    row.changeLook(m_d->current.col).picture = picture;
    m_d->contentsChanged();
}

int FlexGrid::CellPictureAlignment() const {
    const CellLook* look = std::as_const(*m_d).currentRow().look(m_d->current.col);
    return look ? look->pictureAlignment : 0;
}

void FlexGrid::setCellPictureAlignment(int alignment) {
    m_d->currentRow().changeLook(m_d->current.col).pictureAlignment = alignment;
    m_d->contentsChanged();
}

// Look of the current cell.

void FlexGrid::setCellFont(const QFont& font) {
    m_d->currentRow().changeLook(m_d->current.col).font = font;
    m_d->contentsChanged();
}

QFont FlexGrid::CellFont() const {
    const CellLook* look = std::as_const(*m_d).currentRow().look(m_d->current.col);
    return look && look->font ? *look->font : font();
}

void FlexGrid::setCellBackgroundRole(QPalette::ColorRole role) {
    m_d->currentRow().changeLook(m_d->current.col).background = role;
    m_d->contentsChanged();
}

void FlexGrid::setCellAlignment(int alignment) {
    m_d->currentRow().changeLook(m_d->current.col).alignment = alignment;
    m_d->contentsChanged();
}

// Geometry.

int FlexGrid::DefaultColWidth() const {
    return m_d->defaultWidth;
}

int FlexGrid::ColWidth(int col) const {
    m_d->model.checkCol(col);
    return m_d->widthOf(col);
}

void FlexGrid::setColWidth(int col, int width) {
    m_d->model.checkCol(col);
    m_d->widths[static_cast<size_t>(col)] = std::max(-1, width);
    m_d->widthsChanged();
}

int FlexGrid::DefaultRowHeight() const {
    return m_d->defaultHeight;
}

int FlexGrid::RowHeight(int row) const {
    m_d->model.checkRow(row);
    return m_d->heightOf(row);
}

void FlexGrid::setRowHeight(int row, int height) {
    m_d->model.checkRow(row);
    m_d->model.row(row).height = height < 0 || height == m_d->defaultHeight ? GridRow::DefaultHeight : height;
    m_d->heightsChanged();
}

int FlexGrid::ColAlignment(int col) const {
    m_d->model.checkCol(col);
    return m_d->model.alignment(col);
}

void FlexGrid::setColAlignment(int col, int alignment) {
    m_d->model.checkCol(col);
    m_d->model.setAlignment(col, alignment);
    m_d->contentsChanged();
}

int FlexGrid::TopRow() const {
    m_d->flush();
    if (m_d->pendingTopRow)
        return *m_d->pendingTopRow;
    return std::max(0, verticalHeader()->logicalIndexAt(0)) + FixedRows();
}

void FlexGrid::setTopRow(int row) {
    m_d->pendingTopRow = std::clamp(row, FixedRows(), std::max(FixedRows(), Rows() - 1));
    m_d->later();
}

void FlexGrid::showCell() {
    m_d->flush();
    m_d->scrollIntoView(m_d->current);
}

int FlexGrid::CellLeft() const {
    m_d->flush();
    if (Col() < FixedCols())
        return verticalHeader()->x();
    return viewport()->x() + columnViewportPosition(Col() - FixedCols());
}

int FlexGrid::CellTop() const {
    m_d->flush();
    if (Row() < FixedRows())
        return horizontalHeader()->y();
    return viewport()->y() + rowViewportPosition(Row() - FixedRows());
}

int FlexGrid::CellWidth() const {
    return ColWidth(Col());
}

int FlexGrid::CellHeight() const {
    return RowHeight(Row());
}

bool FlexGrid::AllowUserResizing() const {
    return m_d->colsResizable;
}

void FlexGrid::flush() {
    m_d->flush();
}

} // namespace lingomat
