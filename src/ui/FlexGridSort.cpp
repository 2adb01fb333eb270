#include "Collation.h"
#include "FlexGridPrivate.h"

#include <algorithm>
#include <numeric>

namespace lingomat {

void FlexGrid::Sort() {
    FlexGridModel& model = m_d->model;
    model.checkCol(Col());
    const int first = FixedRows();
    const int count = Rows() - first;
    if (count < 2)
        return;

    const QCollator collator = interfaceCollator();
    std::vector<QCollatorSortKey> keys;
    keys.reserve(static_cast<size_t>(count));
    for (int i = 0; i < count; ++i)
        keys.push_back(collator.sortKey(std::as_const(model).row(first + i).text(Col()).toString()));

    std::vector<int> order(static_cast<size_t>(count));
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&keys](int left, int right) {
        return keys[static_cast<size_t>(left)] < keys[static_cast<size_t>(right)];
    });
    model.reorder(order);
    m_d->heightsChanged();
    m_d->contentsChanged();
}

} // namespace lingomat
