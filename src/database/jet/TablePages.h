#pragma once

// Private to the reader.

#include "TableDefinition.h"

#include <optional>
#include <vector>

namespace jet {

/// What a usage map says.
struct MappedPages {
    std::vector<quint32> pages; ///< the table's data pages, in order
    bool isComplete = true;     ///< no page that it names lies behind the end of the file
};

/// The data pages of a table by its usage map. Nothing where the map cannot be used. Pages that are another
/// table's, or no data pages, are left out: the map also lists what holds the table's indexes.
[[nodiscard]] std::optional<MappedPages> pagesByUsageMap(const PageFile& file, const TableDefinition& table);

/// All data pages that name the table as their owner, those included that it has given up.
[[nodiscard]] std::vector<quint32> pagesByOwner(const PageFile& file, const TableDefinition& table);

} // namespace jet
