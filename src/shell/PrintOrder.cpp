#include "PrintOrder.h"

#include "IntegerArray.h"

#include <numeric>

namespace lingomat {

std::vector<int> printOrder(int rows, bool asInList, const IntegerArray& shuffled) {
    std::vector<int> order(static_cast<size_t>(rows));
    std::iota(order.begin(), order.end(), 1);
    if (asInList || shuffled.size() != rows)
        return order;
    for (int& place : order)
        place = shuffled(place);
    return order;
}

} // namespace lingomat
