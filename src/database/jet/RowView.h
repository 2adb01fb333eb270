#pragma once

// Private to the reader.

#include "TableDefinition.h"

#include <array>

namespace jet {

/// The fields of one row, as bytes. It is valid as long as the row's page.
class RowView {
public:
    /// Error: Damaged where the parts of the row do not fit together.
    RowView(const Layout& layout, const TableDefinition& table, ByteView row);

    /// Whether the row has a value for the column; for a Boolean, the value itself.
    [[nodiscard]] bool isSet(const StoredColumn& column) const;
    /// The field of a column that is set. Error: Damaged.
    [[nodiscard]] ByteView field(const StoredColumn& column) const;

private:
    void readOffsets(const Layout& layout, qint64 end);

    ByteView m_row;
    ByteView m_mask;
    ByteView m_fixed;
    int m_columns = 0;  ///< that the table had when the row was written
    int m_variable = 0; ///< fields of variable length
    std::array<quint16, MostColumns + 1> m_offsets{};
};

} // namespace jet
