#include "CellDecoder.h"

#include "JetError.h"

#include <QDateTime>

#include <cmath>
#include <cstring>

using namespace Qt::StringLiterals;

namespace jet {

namespace {

template <typename Number, typename Bits>
Number reinterpreted(Bits bits) {
    static_assert(sizeof(Number) == sizeof(Bits));
    Number number;
    std::memcpy(&number, &bits, sizeof number);
    return number;
}

/// Days since the end of 1899; the fraction is the time of day, also before that day.
QString dateText(double days) {
    constexpr double earliest = -657434; // the year 100
    constexpr double latest = 2958466;   // the year 10000
    constexpr double secondsPerDay = 86400;
    if (!(days >= earliest && days < latest))
        damaged(u"A date is out of range."_s);
    const double wholeDays = std::trunc(days);
    const auto seconds = static_cast<int>(std::lround(std::abs(days - wholeDays) * secondsPerDay));
    const QDateTime moment(QDate(1899, 12, 30).addDays(static_cast<qint64>(wholeDays)), QTime(0, 0), Qt::UTC);
    const QDateTime exact = moment.addSecs(seconds);
    return seconds == 0 ? exact.toString(u"yyyy-MM-dd"_s) : exact.toString(u"yyyy-MM-dd HH:mm:ss"_s);
}

} // namespace

Cell decodeCell(ColumnType type, ByteView bytes, const TextDecoder& decoder) {
    switch (type) {
    case ColumnType::Boolean: return qint64{bytes.u8(0) != 0 ? -1 : 0};
    case ColumnType::Byte: return qint64{bytes.u8(0)};
    case ColumnType::Integer: return qint64{static_cast<qint16>(bytes.u16(0))};
    case ColumnType::Long: return qint64{static_cast<qint32>(bytes.u32(0))};
    case ColumnType::Currency: return static_cast<double>(static_cast<qint64>(bytes.u64(0))) / 10000;
    case ColumnType::Single: return double{reinterpreted<float>(bytes.u32(0))};
    case ColumnType::Double: return reinterpreted<double>(bytes.u64(0));
    case ColumnType::DateTime: return dateText(reinterpreted<double>(bytes.u64(0)));
    case ColumnType::Text:
    case ColumnType::Memo: return decoder.decode(bytes);
    case ColumnType::Binary:
    case ColumnType::LongBinary:
    case ColumnType::Guid:
    case ColumnType::Numeric: break;
    }
    return {};
}

} // namespace jet
