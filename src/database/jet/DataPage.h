#pragma once

// Private to the reader.

#include "PageFile.h"

#include <unordered_map>
#include <vector>

namespace jet {

/// A place in the file: a row of a data page. Such references are stored as 1 byte row and 3 bytes page.
struct RowPlace {
    quint32 page = 0;
    int row = 0;

    [[nodiscard]] static RowPlace at(ByteView bytes, qint64 offset) {
        return {bytes.u24(offset + 1), bytes.u8(offset)};
    }
};

/// The rows of one data page, by number.
class DataPage {
public:
    /// Errors: Damaged where it does not exist or is no data page.
    DataPage(const PageFile& file, quint32 page);

    /// Where the page claims more rows than fit, those whose slots make sense.
    [[nodiscard]] int rowCount() const { return m_rowCount; }
    [[nodiscard]] bool isDamaged() const { return m_isDamaged; }
    /// Deleted, or the target of a row that was moved: to be read only through its pointer.
    [[nodiscard]] bool isHidden(int row) const { return (slot(row) & Hidden) != 0; }
    /// Its contents are the RowPlace that the row was moved to.
    [[nodiscard]] bool isPointer(int row) const { return (slot(row) & Pointer) != 0; }
    /// Valid as long as the page is. Errors: Damaged.
    [[nodiscard]] ByteView row(int row) const;

private:
    static constexpr quint16 Hidden = 0x8000;
    static constexpr quint16 Pointer = 0x4000;
    static constexpr quint16 OffsetMask = 0x1FFF;

    [[nodiscard]] int plausibleRows() const;
    [[nodiscard]] qint64 slotsEnd(int rows) const { return m_slots + 2 * qint64{rows}; }
    [[nodiscard]] quint16 slot(int row) const { return m_view.u16(slotsEnd(row)); }

    QByteArray m_bytes;
    ByteView m_view;
    qint64 m_slots;
    int m_rowCount;
    bool m_isDamaged = false;
};

/// The places that were read. Nothing in a sound file is referred to twice; where something is, it could be
/// so without end. Takes a sixteenth of the size of the pages at most.
class UsedPlaces {
public:
    /// False for a place that was given before.
    [[nodiscard]] bool add(const RowPlace& place) {
        auto& rows = m_rows[place.page];
        const auto row = static_cast<std::size_t>(place.row);
        if (row >= rows.size())
            rows.resize(row + 1, false);
        const bool isNew = !rows[row];
        rows[row] = true;
        return isNew;
    }

private:
    std::unordered_map<quint32, std::vector<bool>> m_rows; ///< by page
};

} // namespace jet
