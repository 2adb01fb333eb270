#include "FlexGridModel.h"

#include "EngineError.h"
#include "Globals.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

void check(bool exists) {
    if (!exists)
        throw dao::Error(dao::ErrorNumber::SubscriptOutOfRange, u"Subscript out of range"_s);
}

/// The control's numbers go by columns of three: left, centre, right; within each top, centre, bottom. A row
/// is as high as its line, so that only the first matters.
Qt::Alignment alignmentFlags(int alignment) {
    const Qt::Alignment horizontal = alignment < 3   ? Qt::AlignLeft
                                     : alignment < 6 ? Qt::AlignHCenter
                                     : alignment < 9 ? Qt::AlignRight
                                                     : Qt::AlignLeft;
    return horizontal | Qt::AlignVCenter;
}

} // namespace

FlexGridModel::FlexGridModel(QObject* parent) : QAbstractTableModel(parent) {}

void FlexGridModel::setRows(int rows) {
    check(rows >= m_fixedRows);
    const auto before = m_rows.size();
    m_rows.resize(static_cast<size_t>(rows));
    for (size_t i = before; i < m_rows.size(); ++i)
        m_rows[i] = std::make_unique<GridRow>();
}

void FlexGridModel::setCols(int cols) {
    check(cols >= m_fixedCols);
    if (cols < m_cols) {
        for (const auto& row : m_rows)
            row->truncate(cols);
    }
    m_cols = cols;
    m_alignments.resize(static_cast<size_t>(cols), 1);
}

void FlexGridModel::checkRow(int row) const {
    check(row >= 0 && row < rows());
}

void FlexGridModel::checkCol(int col) const {
    check(col >= 0 && col < cols());
}

GridRow& FlexGridModel::addRow() {
    return *m_rows.emplace_back(std::make_unique<GridRow>());
}

void FlexGridModel::removeRow(int row) {
    check(row >= m_fixedRows && row < rows());
    m_rows.erase(m_rows.begin() + row);
}

void FlexGridModel::reorder(const std::vector<int>& order) {
    const auto first = static_cast<size_t>(m_fixedRows);
    std::vector<std::unique_ptr<GridRow>> reordered;
    reordered.reserve(m_rows.size());
    for (size_t i = 0; i < first; ++i)
        reordered.push_back(std::move(m_rows[i]));
    for (const int place : order)
        reordered.push_back(std::move(m_rows[first + static_cast<size_t>(place)]));
    m_rows = std::move(reordered);
}

FlexGridModel::Shape FlexGridModel::shape() const {
    return {std::max(0, rows() - m_fixedRows), std::max(0, m_cols - m_fixedCols), m_fixedRows, m_fixedCols};
}

FlexGridModel::Sync FlexGridModel::sync() {
    const Shape now = shape();
    if (now == m_told)
        return Sync::Nothing;

    const bool onlyRows =
        now.cols == m_told.cols && now.fixedRows == m_told.fixedRows && now.fixedCols == m_told.fixedCols;
    if (!onlyRows) {
        beginResetModel();
        m_told = now;
        endResetModel();
        return Sync::Everything;
    }
    // Wherever rows came or went: to the view they do so at the end, and all the others change.
    if (now.rows > m_told.rows) {
        beginInsertRows({}, m_told.rows, now.rows - 1);
        m_told = now;
        endInsertRows();
    } else {
        beginRemoveRows({}, now.rows, m_told.rows - 1);
        m_told = now;
        endRemoveRows();
    }
    return Sync::Rows;
}

void FlexGridModel::announceContents() {
    if (m_told.cols == 0)
        return;
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, m_told.cols - 1);
    if (m_told.rows == 0)
        return;
    Q_EMIT headerDataChanged(Qt::Vertical, 0, m_told.rows - 1);
    Q_EMIT dataChanged(index(0, 0), index(m_told.rows - 1, m_told.cols - 1));
}

QModelIndex FlexGridModel::itemOf(int row, int col) const {
    return index(row - m_told.fixedRows, col - m_told.fixedCols);
}

int FlexGridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_told.rows;
}

int FlexGridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_told.cols;
}

QVariant FlexGridModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    return cellData(index.row() + m_told.fixedRows, index.column() + m_told.fixedCols, role);
}

QVariant FlexGridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    const bool horizontal = orientation == Qt::Horizontal;
    const bool hasHeader = horizontal ? m_told.fixedRows > 0 : m_told.fixedCols > 0;
    if (!hasHeader)
        return {};
    const int row = horizontal ? 0 : section + m_told.fixedRows;
    const int col = horizontal ? section + m_told.fixedCols : 0;
    // A picture in the margin marks its row; who cannot see it is told.
    if (role == Qt::AccessibleTextRole && !cellData(row, col, PictureRole).isNull())
        return uiText(u"markiert"_s, u"marked"_s);
    return cellData(row, col, role);
}

QVariant FlexGridModel::cellData(int row, int col, int role) const {
    if (row >= rows() || col >= cols())
        return {}; // gone, but the view does not know yet
    const GridRow& cells = this->row(row);
    const CellLook* look = cells.look(col);
    switch (role) {
    case Qt::DisplayRole: return cells.text(col).toString();
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(
            alignmentFlags(look && look->alignment ? *look->alignment : alignment(col)));
    case Qt::FontRole: return look && look->font ? QVariant(*look->font) : QVariant();
    case PictureRole: return look && !look->picture.isNull() ? QVariant(look->picture) : QVariant();
    case BackgroundPaletteRole: return look ? look->background : QPalette::NoRole;
    default: return {};
    }
}

} // namespace lingomat
