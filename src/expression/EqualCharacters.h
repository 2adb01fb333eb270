#pragma once

#include <QList>
#include <QString>

#include <functional>
#include <optional>

namespace lingomat {

/// The pairs of characters that count as equal when texts are compared: "!" and "¡", "?" and "¿".
///
/// Two texts are compared by mapping both with WorkInException first; there is no way back. A character
/// outside the basic plane is one character here.
class EqualCharacters {
public:
    /// Never more pairs than this are looked at.
    static constexpr int MaximumCount = 10;
    /// What `storedValue` gives for a number that has no pair; too long to be one.
    [[nodiscard]] static QString missingValue() { return QStringLiteral("~äü"); }

    /// Reads the pairs number 1, 2 and so on up to the first that is empty or missing. The first character
    /// of a value is the left one of the pair, the last one the right.
    ///
    /// The end of the list sets ExceptionCount. With all ten there is no end, so the count stays what it
    /// was: ten pairs read into a new object are ten pairs that nobody uses.
    void readExceptions(const std::function<QString(int number)>& storedValue);

    /// Forgets every pair.
    void clear();

    [[nodiscard]] int ExceptionCount() const { return m_count; }
    /// One side of the pair with that number, from 1 to ExceptionCount; nothing for any other number.
    [[nodiscard]] std::optional<QString> left(int number) const;
    [[nodiscard]] std::optional<QString> right(int number) const;

    /// The text with every left character replaced by the right one of the first pair that has it, once.
    [[nodiscard]] QString WorkInException(const QString& text) const;

private:
    struct Pair {
        QString left;
        QString right;
    };

    [[nodiscard]] const Pair* pair(int number) const;
    [[nodiscard]] QStringView mapped(QStringView character) const;

    QList<Pair> m_pairs; ///< as long as m_count or longer
    int m_count = 0;
};

/// -1, 0 or 1 by the first place where the texts differ, by character code. A text and a longer one that
/// begins with it count as equal, and so do the empty text and any other.
[[nodiscard]] int TextualStrComp(const QString& a, const QString& b);

} // namespace lingomat
