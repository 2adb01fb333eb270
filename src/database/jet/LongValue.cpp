#include "LongValue.h"

#include "JetError.h"

using namespace Qt::StringLiterals;

namespace jet {

namespace {

constexpr quint32 FollowsFlag = 0x80000000;
constexpr quint32 OneRowFlag = 0x40000000;
constexpr quint32 LengthMask = 0x3FFFFFFF;
constexpr qint64 PlaceOffset = 4;
constexpr qint64 HeaderLength = 12;

QByteArray readRow(const PageFile& file, const RowPlace& place, UsedPlaces& used) {
    if (!used.add(place))
        damaged(u"A long value has no end."_s);
    const DataPage page(file, place.page);
    return page.row(place.row).bytes().toByteArray();
}

/// Each piece starts with the place of the next one.
QByteArray readChain(const PageFile& file, RowPlace place, qint64 length, UsedPlaces& used) {
    QByteArray value;
    while (value.size() < length) {
        const QByteArray row = readRow(file, place, used);
        const ByteView piece(row);
        value +=
            piece.slice(PlaceOffset, std::min(piece.size() - PlaceOffset, length - value.size())).bytes();
        place = RowPlace::at(piece, 0);
        if (piece.size() == PlaceOffset || (place.page == 0 && value.size() < length))
            damaged(u"A long value is not complete."_s);
    }
    return value;
}

} // namespace

QByteArray readLongValue(const PageFile& file, ByteView field, UsedPlaces& used) {
    const quint32 head = field.u32(0);
    const qint64 length = head & LengthMask;
    if (length > LongestValue)
        damaged(u"A long value has an impossible length."_s);
    if ((head & FollowsFlag) != 0)
        return field.slice(HeaderLength, length).bytes().toByteArray();
    const RowPlace place = RowPlace::at(field, PlaceOffset);
    if ((head & OneRowFlag) != 0) {
        const QByteArray row = readRow(file, place, used);
        return ByteView(row).first(length).bytes().toByteArray();
    }
    return readChain(file, place, length, used);
}

} // namespace jet
