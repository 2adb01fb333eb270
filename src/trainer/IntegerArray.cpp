#include "IntegerArray.h"

#include "EngineError.h"

namespace lingomat {

void IntegerArray::redim(int size) {
    m_cells.assign(static_cast<size_t>(size), 0);
}

qint16 IntegerArray::operator()(int index) const {
    check(index);
    return m_cells[static_cast<size_t>(index) - 1];
}

qint16& IntegerArray::operator()(int index) {
    check(index);
    return m_cells[static_cast<size_t>(index) - 1];
}

void IntegerArray::check(int index) const {
    if (index < 1 || index > size())
        throw dao::Error(dao::ErrorNumber::SubscriptOutOfRange, QStringLiteral("Subscript out of range"));
}

} // namespace lingomat
