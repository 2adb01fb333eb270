#pragma once

// Private to the reader.

#include "DataPage.h"
#include "JetFile.h"
#include "TextDecoder.h"

#include <vector>

namespace jet {

/// The most that a table can have.
inline constexpr int MostColumns = 255;

/// A column, and where a row holds its field.
struct StoredColumn : Column {
    int number = 0; ///< its bit in a row's Null mask
    bool isFixed = false;
    int fixedOffset = 0;   ///< from the start of the fixed data
    int fixedLength = 0;   ///< in bytes
    int variableIndex = 0; ///< among the fields of variable length
};

struct TableDefinition {
    quint32 page = 0; ///< where it starts; the table's data pages name it as their owner
    /// Rows that the table is said to have; 0 where that is not known.
    quint32 rowCount = 0;
    RowPlace usageMap;
    std::vector<StoredColumn> columns; ///< by number

    [[nodiscard]] const StoredColumn* findColumn(QStringView name) const;
};

/// Error: Damaged.
[[nodiscard]] TableDefinition readDefinition(const PageFile& file, const TextDecoder& decoder, quint32 page);

} // namespace jet
