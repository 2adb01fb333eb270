#pragma once

#include <QString>

#include <variant>

namespace dao {

/// What one field of one row holds: nothing (Null), a whole number, a floating number or a text.
class Value {
public:
    Value() = default; ///< Null
    Value(int number) : m_data(qint64{number}) {}
    Value(qint64 number) : m_data(number) {}
    Value(double number) : m_data(number) {}
    Value(QString text) : m_data(std::move(text)) {}

    [[nodiscard]] bool isNull() const { return std::holds_alternative<std::monostate>(m_data); }
    [[nodiscard]] bool isInteger() const { return std::holds_alternative<qint64>(m_data); }
    [[nodiscard]] bool isReal() const { return std::holds_alternative<double>(m_data); }
    [[nodiscard]] bool isText() const { return std::holds_alternative<QString>(m_data); }

    /// The text itself, or the decimal form of a number. Error 94 for Null.
    [[nodiscard]] QString toText() const;
    /// As toText(), with a replacement for Null.
    [[nodiscard]] QString toText(const QString& ifNull) const;
    /// The number, or the number that the text spells. Error 94 for Null, 13 for any other text, 6 for a
    /// floating number that no whole one comes near to.
    [[nodiscard]] qint64 toInteger() const;

    friend bool operator==(const Value&, const Value&) = default;

private:
    std::variant<std::monostate, qint64, double, QString> m_data;
};

} // namespace dao
