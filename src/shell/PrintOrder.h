#pragma once

#include <vector>

namespace lingomat {

class IntegerArray;

/// The rows of the list (from 1) in the order in which they are printed: as they stand, or as the last
/// shuffle left them. A shuffle of another number of rows, or none, has no say.
[[nodiscard]] std::vector<int> printOrder(int rows, bool asInList, const IntegerArray& shuffled);

} // namespace lingomat
