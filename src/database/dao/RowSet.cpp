#include "RowSet.h"

namespace dao {

using Kind = criteria::CellView::Kind;

void RowSet::clear() {
    m_rows = 0;
    m_cells.clear();
    m_text.resize(0); // keeps the buffer
}

void RowSet::append(const Statement& statement, int firstColumn, const std::vector<bool>& wanted) {
    for (std::size_t i = 0; i < m_columns; ++i) {
        const int column = firstColumn + static_cast<int>(i);
        Cell cell{Kind::Null, 0, {0}};
        if (!wanted.empty() && !wanted[i]) {
            m_cells.push_back(cell);
            continue;
        }
        switch (statement.columnType(column)) {
        case SQLITE_NULL: break;
        case SQLITE_INTEGER:
            cell.kind = Kind::Integer;
            cell.integer = statement.integer(column);
            break;
        case SQLITE_FLOAT:
            cell.kind = Kind::Real;
            cell.real = statement.real(column);
            break;
        default: appendText(statement.utf8(column), cell);
        }
        m_cells.push_back(cell);
    }
    ++m_rows;
}

void RowSet::appendText(QByteArrayView utf8, Cell& cell) {
    const qsizetype start = m_text.size();
    m_text.resize(start + utf8.size()); // never more UTF-16 units than bytes
    QStringDecoder decoder(QStringDecoder::Utf8, ExactText);
    QChar* const begin = m_text.data() + start;
    const QChar* const end = decoder.appendToBuffer(begin, utf8);
    m_text.resize(start + (end - begin));
    cell.kind = Kind::Text;
    cell.offset = start;
    cell.length = static_cast<quint32>(m_text.size() - start);
}

criteria::CellView RowSet::cell(std::size_t row, int column) const {
    const Cell& cell = m_cells[row * m_columns + static_cast<std::size_t>(column)];
    switch (cell.kind) {
    case Kind::Integer: return criteria::CellView::ofInteger(cell.integer);
    case Kind::Real: return criteria::CellView::ofReal(cell.real);
    case Kind::Text: return criteria::CellView::ofText(QStringView(m_text).sliced(cell.offset, cell.length));
    case Kind::Null: break;
    }
    return {};
}

Value RowSet::value(std::size_t row, int column) const {
    const criteria::CellView view = cell(row, column);
    switch (view.kind) {
    case Kind::Integer: return view.integer;
    case Kind::Real: return view.real;
    case Kind::Text: return view.text.toString();
    case Kind::Null: break;
    }
    return {};
}

} // namespace dao
