#include "Value.h"

#include "EngineError.h"

using namespace Qt::StringLiterals;

namespace dao {

QString Value::toText() const {
    if (isNull())
        throw Error(ErrorNumber::InvalidUseOfNull, u"Invalid use of Null"_s);
    return toText({});
}

QString Value::toText(const QString& ifNull) const {
    if (const auto* text = std::get_if<QString>(&m_data))
        return *text;
    if (const auto* number = std::get_if<qint64>(&m_data))
        return QString::number(*number);
    if (const auto* real = std::get_if<double>(&m_data))
        return QString::number(*real, 'g', 15);
    return ifNull;
}

qint64 Value::toInteger() const {
    if (isNull())
        throw Error(ErrorNumber::InvalidUseOfNull, u"Invalid use of Null"_s);
    if (const auto* number = std::get_if<qint64>(&m_data))
        return *number;
    if (const auto* real = std::get_if<double>(&m_data)) {
        constexpr double Beyond = 9223372036854775808.0; // the first that 64 bits cannot hold
        if (!(*real >= -Beyond && *real < Beyond))
            throw Error(ErrorNumber::Overflow, u"Overflow"_s);
        return qRound64(*real);
    }
    bool isNumber = false;
    const qint64 number = std::get<QString>(m_data).trimmed().toLongLong(&isNumber);
    if (!isNumber)
        throw Error(ErrorNumber::TypeMismatch, u"Type mismatch"_s);
    return number;
}

} // namespace dao
