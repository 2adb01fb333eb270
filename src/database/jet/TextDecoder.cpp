#include "TextDecoder.h"

#include "JetError.h"

using namespace Qt::StringLiterals;

namespace jet {

namespace {

constexpr int Western = 1252;
constexpr QByteArrayView CompressionMark("\xFF\xFE", 2);

QString fromUtf16(ByteView bytes) {
    if (bytes.size() % 2 != 0)
        damaged(u"A text ends within a character."_s);
    QString text;
    text.reserve(bytes.size() / 2);
    for (qint64 at = 0; at < bytes.size(); at += 2)
        text += QChar(bytes.u16(at));
    return text;
}

/// Single bytes, the lower halves of their characters; a zero changes to whole characters and back.
QString decompressed(ByteView bytes) {
    QString text;
    text.reserve(bytes.size());
    bool whole = false;
    for (qint64 at = 0; at < bytes.size();) {
        const quint8 byte = bytes.u8(at);
        if (byte == 0) {
            whole = !whole;
            ++at;
        } else if (!whole) {
            text += QChar(ushort{byte});
            ++at;
        } else if (at + 2 <= bytes.size()) {
            text += QChar(bytes.u16(at));
            at += 2;
        } else {
            damaged(u"A text ends within a character."_s);
        }
    }
    return text;
}

QString fromCodePage(ByteView bytes, const char16_t* upperHalf) {
    QString text;
    text.reserve(bytes.size());
    for (const char byte : bytes.bytes()) {
        const auto unit = static_cast<quint8>(byte);
        text += unit < 0x80 ? QChar(ushort{unit}) : QChar(upperHalf[unit - 0x80]);
    }
    return text;
}

} // namespace

TextDecoder::TextDecoder(int version, int codePage) {
    if (version > 3)
        return;
    m_upperHalf = upperHalfOf(codePage == 0 ? Western : codePage);
    if (m_upperHalf == nullptr)
        throw Error(Problem::Newer,
                    u"Its texts are of code page %1, which is not supported."_s.arg(codePage));
}

QString TextDecoder::decode(ByteView bytes) const {
    if (m_upperHalf != nullptr)
        return fromCodePage(bytes, m_upperHalf);
    if (bytes.bytes().startsWith(CompressionMark))
        return decompressed(bytes.from(CompressionMark.size()));
    return fromUtf16(bytes);
}

} // namespace jet
