#pragma once

// Private to the reader.

#include <QtGlobal>

namespace jet {

/// Where things lie: offsets and sizes in bytes that differ between the two formats.
struct Layout {
    int version;             ///< 3 or 4
    int pageSize;            ///< also the unit of page numbers
    int headerLength;        ///< enciphered bytes of page 0, from HeaderStart
    int passwordLength;      ///< in the header
    int dataRowCount;        ///< of a data page: number of its rows; their slots follow
    int tableRowCount;       ///< of a definition: number of rows, 32 bit
    int tableColumnCount;    ///< 16 bit
    int tableIndexCount;     ///< 32 bit
    int tableUsageMap;       ///< row and page of the map of the table's pages
    int tableColumns;        ///< the columns, behind the indexes
    int indexLength;         ///< per index, before the columns
    int columnLength;        ///< per column
    int columnNumber;        ///< within a column, 16 bit
    int columnVariableIndex; ///< 16 bit
    int columnFlags;         ///< 8 bit
    int columnFixedOffset;   ///< 16 bit
    int columnSize;          ///< 16 bit
    int countLength;         ///< of the counts within a row and of the lengths of names: 1 or 2
    int unitLength;          ///< bytes per unit of a text's declared size
};

inline constexpr Layout Jet3{.version = 3,
                             .pageSize = 2048,
                             .headerLength = 126,
                             .passwordLength = 20,
                             .dataRowCount = 8,
                             .tableRowCount = 12,
                             .tableColumnCount = 25,
                             .tableIndexCount = 31,
                             .tableUsageMap = 35,
                             .tableColumns = 43,
                             .indexLength = 8,
                             .columnLength = 18,
                             .columnNumber = 1,
                             .columnVariableIndex = 3,
                             .columnFlags = 13,
                             .columnFixedOffset = 14,
                             .columnSize = 16,
                             .countLength = 1,
                             .unitLength = 1};

inline constexpr Layout Jet4{.version = 4,
                             .pageSize = 4096,
                             .headerLength = 128,
                             .passwordLength = 40,
                             .dataRowCount = 12,
                             .tableRowCount = 16,
                             .tableColumnCount = 45,
                             .tableIndexCount = 51,
                             .tableUsageMap = 55,
                             .tableColumns = 63,
                             .indexLength = 12,
                             .columnLength = 25,
                             .columnNumber = 5,
                             .columnVariableIndex = 7,
                             .columnFlags = 15,
                             .columnFixedOffset = 21,
                             .columnSize = 23,
                             .countLength = 2,
                             .unitLength = 2};

inline constexpr int HeaderStart = 0x18; ///< of page 0

/// First byte of a page.
enum class PageType : quint8 { Data = 1, Definition = 2, UsageMap = 5 };

/// The definition of the table that lists all tables.
inline constexpr quint32 CataloguePage = 2;

} // namespace jet
