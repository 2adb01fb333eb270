#include "PageFile.h"

#include "JetError.h"
#include "JetFile.h"

#include <algorithm>
#include <cstring>
#include <numeric>

using namespace Qt::StringLiterals;

namespace jet {

namespace {

constexpr QByteArrayView Jet("\0\1\0\0Standard Jet DB", 19);
constexpr QByteArrayView Ace("\0\1\0\0Standard ACE DB", 19);
static_assert(SignatureLength == Jet.size());

constexpr qint64 VersionByte = 0x14;
constexpr qint64 CodePage = 0x3C;
constexpr qint64 EncodingKey = 0x3E;
constexpr qint64 Password = 0x42;
constexpr qint64 CreationDate = 0x72; ///< days, as a floating number; scrambles the password
constexpr quint32 FewestPages = 3;
constexpr qint64 LargestFile = Q_INT64_C(0x80000000); ///< the format's own limit: 2 GiB

/// The cipher of the header (RC4). It hides nothing: its key is the same for all files.
QByteArray deciphered(const QByteArray& bytes) {
    constexpr std::array<quint8, 4> key{0xC7, 0xDA, 0x39, 0x6B};
    std::array<quint8, 256> state{};
    std::iota(state.begin(), state.end(), quint8{0});
    quint8 j = 0;
    for (std::size_t i = 0; i < state.size(); ++i) {
        j = static_cast<quint8>(j + state[i] + key[i % key.size()]);
        std::swap(state[i], state[j]);
    }
    QByteArray plain = bytes;
    quint8 i = 0;
    j = 0;
    for (char& byte : plain) {
        ++i;
        j = static_cast<quint8>(j + state[i]);
        std::swap(state[i], state[j]);
        byte = static_cast<char>(static_cast<quint8>(byte) ^ state[static_cast<quint8>(state[i] + state[j])]);
    }
    return plain;
}

bool allZero(QByteArrayView bytes) {
    return std::all_of(bytes.begin(), bytes.end(), [](char byte) { return byte == 0; });
}

} // namespace

bool hasSignature(QByteArrayView start) {
    return start.startsWith(Jet) || start.startsWith(Ace);
}

PageFile::PageFile(std::unique_ptr<QIODevice> device) : m_device(std::move(device)) {
    readHeader();
    const qint64 size = m_device->size();
    if (size > LargestFile)
        damaged(u"It is larger than such a file can be."_s);
    m_pageCount = static_cast<quint32>(size / m_layout->pageSize);
    if (m_pageCount < FewestPages)
        damaged(u"Its end is missing."_s);
    m_cutOff = size % m_layout->pageSize != 0;
    decipherHeader(page(0));
    readOwners();
}

void PageFile::readHeader() {
    const QByteArray start = read(0, std::min<qint64>(VersionByte + 1, m_device->size()));
    if (start.startsWith(Ace))
        throw Error(Problem::Newer, u"It is of a newer database format, which cannot be read."_s);
    if (!start.startsWith(Jet))
        throw Error(Problem::NotJet, u"It is no Jet database."_s);
    if (start.size() <= VersionByte)
        damaged(u"Its end is missing."_s);
    const quint8 version = ByteView(start).u8(VersionByte);
    if (version > 1)
        throw Error(Problem::Newer, u"It is of a newer database format, which cannot be read."_s);
    m_layout = version == 0 ? &Jet3 : &Jet4;
}

void PageFile::decipherHeader(const QByteArray& raw) {
    const QByteArray plain =
        raw.first(HeaderStart) + deciphered(raw.sliced(HeaderStart, m_layout->headerLength));
    const ByteView header(plain);
    m_codePage = header.u16(CodePage);
    if (header.u32(EncodingKey) != 0)
        throw Error(Problem::Protected, u"It is encoded (or its header is damaged) and cannot be read."_s);
    if (hasPassword(header))
        throw Error(Problem::Protected,
                    u"It is protected by a password (or its header is damaged) and cannot be read."_s);
}

bool PageFile::hasPassword(ByteView header) const {
    QByteArray password = header.slice(Password, m_layout->passwordLength).bytes().toByteArray();
    if (m_layout->version == 3)
        return !allZero(password);
    double date = 0;
    const quint64 bits = header.u64(CreationDate);
    std::memcpy(&date, &bits, sizeof date);
    if (!(date >= 0 && date < 1e6)) // not a number, too
        return true;
    const auto mask = static_cast<quint32>(date);
    for (qsizetype i = 0; i < password.size(); ++i)
        password[i] = static_cast<char>(static_cast<quint8>(password[i]) ^ (mask >> i % 4 * 8 & 0xFF));
    return !allZero(password);
}

void PageFile::readOwners() {
    m_owners.reserve(m_pageCount);
    for (quint32 number = 0; number < m_pageCount; ++number) {
        const QByteArray start = read(qint64{number} * m_layout->pageSize, 8);
        const ByteView page(start);
        const bool isData = page.u8(0) == static_cast<quint8>(PageType::Data);
        m_owners.push_back(isData ? page.u32(4) : 0);
    }
}

QByteArray PageFile::read(qint64 at, qint64 length) const {
    QByteArray bytes;
    if (m_device->seek(at))
        bytes = m_device->read(length);
    if (bytes.size() != length)
        throw Error(Problem::Device, u"The system does not let it be read."_s);
    return bytes;
}

QByteArray PageFile::page(quint32 number) const {
    if (number >= m_pageCount)
        damaged(u"It refers to a page that does not exist."_s);
    HeldPage& held = m_held[number % m_held.size()];
    if (held.bytes.isEmpty() || held.number != number)
        held = {number, read(qint64{number} * m_layout->pageSize, m_layout->pageSize)};
    return held.bytes;
}

QByteArray PageFile::page(quint32 number, PageType type) const {
    const QByteArray bytes = page(number);
    if (ByteView(bytes).u8(0) != static_cast<quint8>(type))
        damaged(u"One of its pages is not of the type that it should be."_s);
    return bytes;
}

} // namespace jet
