#pragma once

#include <QtGlobal>

#include <bitset>
#include <span>
#include <vector>

namespace lingomat {

/// Keys of entries in the order in which they were recorded, beside a count that other forms may set to 0:
/// keys behind the count are forgotten.
///
/// A key may stand here several times.
class KeyRecord {
public:
    /// `count` is kept in step and has to outlive the record.
    explicit KeyRecord(qint16& count) : m_count(count) {}
    Q_DISABLE_COPY_MOVE(KeyRecord)
    ~KeyRecord() = default;

    void append(qint16 key); ///< error 6 when the count has no room for one more
    [[nodiscard]] bool contains(qint16 key);
    [[nodiscard]] std::span<const qint16> keys();
    /// Takes out what stands in the other record; the order of the rest is kept.
    void removeAllOf(KeyRecord& other);
    void clear();

private:
    /// Forgets the keys behind the count.
    void followCount();

    qint16& m_count;
    std::vector<qint16> m_keys;
    std::bitset<0x10000> m_known; ///< by the key's bits
};

} // namespace lingomat
