#include "PropertyBlock.h"

#include "CellDecoder.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace jet {

namespace {

constexpr QByteArrayView Magic3("KKD\0", 4);
constexpr QByteArrayView Magic4("MR2\0", 4);
constexpr quint16 NamesBlock = 0x80;
constexpr qint64 BlockHeader = 6;  // length 32, type 16
constexpr qint64 RecordHeader = 8; // length 16, flag 8, type 8, name 16, data length 16

QStringList readNames(ByteView bytes, const TextDecoder& decoder) {
    QStringList names;
    for (qint64 at = 0; at < bytes.size();) {
        const qint64 length = bytes.u16(at);
        names.append(decoder.decode(bytes.slice(at + 2, length)));
        at += 2 + length;
    }
    return names;
}

class BlockReader {
public:
    explicit BlockReader(const TextDecoder& decoder) : m_decoder(decoder) {}

    void read(ByteView bytes) {
        if (!bytes.bytes().startsWith(Magic3) && !bytes.bytes().startsWith(Magic4))
            damaged(u"Its properties do not start as they should."_s);
        for (qint64 at = Magic3.size(); at < bytes.size();) {
            const qint64 length = bytes.u32(at);
            if (length < BlockHeader)
                damaged(u"A block of its properties has no length."_s);
            const ByteView block = bytes.slice(at, length);
            if (block.u16(4) == NamesBlock)
                m_names = readNames(block.from(BlockHeader), m_decoder);
            else
                readValues(block.from(BlockHeader));
            at += length;
        }
    }

    QList<Property> properties;

private:
    /// The properties of the table itself, or of the column that is named first.
    void readValues(ByteView bytes) {
        constexpr qint64 nameLengthAt = 4;
        constexpr qint64 nameAt = 6;
        const qint64 nameLength = bytes.u16(nameLengthAt);
        if (bytes.u32(0) < nameAt + nameLength)
            damaged(u"A block of its properties has no length."_s);
        (void)bytes.slice(nameAt, nameLength);
        if (nameLength != 0)
            return;
        for (qint64 at = bytes.u32(0); at < bytes.size();) {
            const qint64 length = bytes.u16(at);
            if (length < RecordHeader)
                damaged(u"One of its properties has no length."_s);
            readRecord(bytes.slice(at, length));
            at += length;
        }
    }

    void readRecord(ByteView record) {
        const auto type = static_cast<ColumnType>(record.u8(3));
        const int name = record.u16(4);
        const ByteView data = record.slice(RecordHeader, record.u16(6));
        if (name >= m_names.size())
            damaged(u"One of its properties has no name."_s);
        properties.append({m_names[name], type, decodeCell(type, data, m_decoder)});
    }

    const TextDecoder& m_decoder;
    QStringList m_names;
};

} // namespace

PropertyBlock readProperties(ByteView bytes, const TextDecoder& decoder) {
    BlockReader reader(decoder);
    bool isDamaged = false;
    try {
        reader.read(bytes);
    } catch (const Error&) {
        isDamaged = true;
    }
    return {reader.properties, isDamaged};
}

} // namespace jet
