#include "FieldRules.h"

#include "EngineError.h"

using namespace Qt::StringLiterals;

namespace dao {

namespace {

qint64 wholeNumber(const Value& value) {
    try {
        return value.toInteger();
    } catch (const Error& error) {
        if (error.Number() == ErrorNumber::Overflow)
            throw;
        throw Error(ErrorNumber::DataConversion, u"Data type conversion error."_s);
    }
}

} // namespace

Value fitted(const QString& table, const Field& field, const Value& value, EmptyTexts rule) {
    if (value.isNull())
        return value;
    if (field.Type != DataType::Text) {
        const qint64 number = wholeNumber(value);
        if (field.Type == DataType::Integer)
            requireRange<qint16>(number);
        else
            requireRange<qint32>(number);
        return number;
    }
    const QString text = value.toText();
    if (text.size() > field.Size)
        throw Error(
            ErrorNumber::TextTooLong,
            u"The field '%1.%2' is too small to accept the amount of data you attempted to add."_s.arg(
                table, field.Name));
    if (text.isEmpty() && !field.AllowZeroLength && rule == EmptyTexts::AsTheFieldSays)
        throw Error(ErrorNumber::EmptyTextNotAllowed,
                    u"Field '%1.%2' cannot be a zero-length string."_s.arg(table, field.Name));
    return text;
}

Value defaultValue(const QString& table, const Field& field) {
    const Value& value = field.DefaultValue;
    if (value.isNull() || value.toText().isEmpty())
        return {};
    return fitted(table, field, value);
}

} // namespace dao
