#include "RowView.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace jet {

RowView::RowView(const Layout& layout, const TableDefinition& table, ByteView row) : m_row(row) {
    m_columns = layout.countLength == 1 ? row.u8(0) : row.u16(0);
    if (m_columns < 1 || m_columns > MostColumns)
        damaged(u"A row has an impossible number of columns."_s);
    const qint64 maskLength = (m_columns + 7) / 8;
    const qint64 maskAt = row.size() - maskLength;
    m_mask = row.slice(maskAt, maskLength);
    const bool hasVariable =
        std::any_of(table.columns.begin(), table.columns.end(), [this](const StoredColumn& column) {
            return !column.isFixed && column.number < m_columns;
        });
    qint64 fixedEnd = maskAt;
    if (hasVariable) {
        readOffsets(layout, maskAt);
        fixedEnd = m_offsets[0];
    }
    m_fixed = row.slice(layout.countLength, fixedEnd - layout.countLength);
}

/// In front of `end`, backwards: the number of fields, the offset of each, the end of the last.
void RowView::readOffsets(const Layout& layout, qint64 end) {
    qint64 at = end - layout.countLength;
    m_variable = layout.countLength == 1 ? m_row.u8(at) : m_row.u16(at);
    if (m_variable > MostColumns)
        damaged(u"A row has an impossible number of fields."_s);

    // Where offsets have one byte, a table tells the field that is the first beyond each 256 bytes.
    qint64 jumps = 0;
    const qint64 jumpsEnd = at;
    if (layout.countLength == 1) {
        jumps = (m_row.size() - 1) / 256;
        at -= jumps;
    }
    for (int i = 0; i <= m_variable; ++i) {
        at -= layout.countLength;
        int offset = layout.countLength == 1 ? m_row.u8(at) : m_row.u16(at);
        for (qint64 jump = 1; jump <= jumps; ++jump)
            if (m_row.u8(jumpsEnd - jump) <= i)
                offset += 256;
        m_offsets[static_cast<std::size_t>(i)] = static_cast<quint16>(offset);
    }
    const auto first = m_offsets.begin();
    const auto last = first + m_variable;
    // No two fields share bytes.
    if (!std::is_sorted(first, last + 1) || *first < layout.countLength || *last > at)
        damaged(u"The fields of a row do not follow each other."_s);
}

bool RowView::isSet(const StoredColumn& column) const {
    if (column.number >= m_columns)
        return false;
    return (m_mask.u8(column.number / 8) >> column.number % 8 & 1) != 0;
}

ByteView RowView::field(const StoredColumn& column) const {
    if (column.isFixed)
        return m_fixed.slice(column.fixedOffset, column.fixedLength);
    if (column.variableIndex >= m_variable)
        damaged(u"A row lacks a field."_s);
    const auto index = static_cast<std::size_t>(column.variableIndex);
    return m_row.slice(m_offsets[index], m_offsets[index + 1] - m_offsets[index]);
}

} // namespace jet
