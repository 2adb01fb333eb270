#pragma once

// Private to the reader.

#include <QByteArrayView>

namespace jet {

[[noreturn]] void outsideOfBytes();

/// Some bytes of a file. Numbers are little-endian. Every access is checked: one that leaves the bytes raises
/// an Error (Damaged). Positions may come from the file as they are, negative or huge.
class ByteView {
public:
    ByteView() = default;
    explicit ByteView(QByteArrayView bytes) : m_bytes(bytes) {}

    [[nodiscard]] qint64 size() const { return m_bytes.size(); }
    [[nodiscard]] bool isEmpty() const { return m_bytes.isEmpty(); }
    [[nodiscard]] QByteArrayView bytes() const { return m_bytes; }

    [[nodiscard]] quint8 u8(qint64 at) const { return static_cast<quint8>(number<1>(at)); }
    [[nodiscard]] quint16 u16(qint64 at) const { return static_cast<quint16>(number<2>(at)); }
    [[nodiscard]] quint32 u24(qint64 at) const { return static_cast<quint32>(number<3>(at)); }
    [[nodiscard]] quint32 u32(qint64 at) const { return static_cast<quint32>(number<4>(at)); }
    [[nodiscard]] quint64 u64(qint64 at) const { return number<8>(at); }

    [[nodiscard]] ByteView slice(qint64 at, qint64 length) const {
        // No sum: it could overflow.
        if (at < 0 || length < 0 || at > size() || length > size() - at)
            outsideOfBytes();
        return ByteView(m_bytes.sliced(at, length));
    }
    [[nodiscard]] ByteView first(qint64 length) const { return slice(0, length); }
    [[nodiscard]] ByteView from(qint64 at) const { return slice(at, size() - at); }

private:
    template <int Length>
    [[nodiscard]] quint64 number(qint64 at) const {
        const ByteView part = slice(at, Length);
        quint64 value = 0;
        for (int i = Length; i-- > 0;)
            value = value << 8 | static_cast<quint8>(part.m_bytes[i]);
        return value;
    }

    QByteArrayView m_bytes;
};

} // namespace jet
