#pragma once

#include <QtGlobal>

#include <vector>

namespace lingomat {

/// 16-bit whole numbers that count from 1. An access beyond the bounds, or before the first redim, raises
/// error 9 (Subscript out of range).
class IntegerArray {
public:
    /// Gives the array so many cells, all 0.
    void redim(int size);
    [[nodiscard]] int size() const { return static_cast<int>(m_cells.size()); }

    [[nodiscard]] qint16 operator()(int index) const;
    [[nodiscard]] qint16& operator()(int index);

    friend bool operator==(const IntegerArray&, const IntegerArray&) = default;

private:
    void check(int index) const;

    std::vector<qint16> m_cells;
};

} // namespace lingomat
