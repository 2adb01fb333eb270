#include "EqualCharacters.h"

#include <algorithm>

namespace lingomat {

namespace {

/// Length, in UTF-16 units, of the character that begins at `position`.
qsizetype characterLength(QStringView text, qsizetype position) {
    const bool isPair = position + 1 < text.size() && text.at(position).isHighSurrogate() &&
                        text.at(position + 1).isLowSurrogate();
    return isPair ? 2 : 1;
}

QString firstCharacter(const QString& text) {
    return text.left(characterLength(text, 0));
}

QString lastCharacter(const QString& text) {
    const bool isPair = text.size() >= 2 && characterLength(text, text.size() - 2) == 2;
    return text.right(isPair ? 2 : 1);
}

} // namespace

void EqualCharacters::readExceptions(const std::function<QString(int number)>& storedValue) {
    QList<Pair> pairs;
    while (pairs.size() < MaximumCount) {
        const int number = static_cast<int>(pairs.size()) + 1;
        const QString value = storedValue(number);
        if (value.isEmpty() || value == missingValue()) {
            m_count = number - 1;
            break;
        }
        pairs.append({firstCharacter(value), lastCharacter(value)});
    }
    m_pairs = pairs;
}

void EqualCharacters::clear() {
    m_pairs.clear();
    m_count = 0;
}

const EqualCharacters::Pair* EqualCharacters::pair(int number) const {
    return number >= 1 && number <= m_count ? &m_pairs.at(number - 1) : nullptr;
}

std::optional<QString> EqualCharacters::left(int number) const {
    const Pair* found = pair(number);
    return found ? std::optional(found->left) : std::nullopt;
}

std::optional<QString> EqualCharacters::right(int number) const {
    const Pair* found = pair(number);
    return found ? std::optional(found->right) : std::nullopt;
}

QStringView EqualCharacters::mapped(QStringView character) const {
    const auto end = m_pairs.begin() + m_count;
    const auto found = std::find_if(m_pairs.begin(), end,
                                    [&](const Pair& candidate) { return candidate.left == character; });
    return found == end ? character : QStringView(found->right);
}

QString EqualCharacters::WorkInException(const QString& text) const {
    QString result;
    result.reserve(text.size());
    const QStringView view(text);
    for (qsizetype position = 0; position < view.size();) {
        const qsizetype length = characterLength(view, position);
        result += mapped(view.mid(position, length));
        position += length;
    }
    return result;
}

int TextualStrComp(const QString& a, const QString& b) {
    const qsizetype shorter = std::min(a.size(), b.size());
    const auto [inA, inB] = std::mismatch(a.begin(), a.begin() + shorter, b.begin());
    if (inA == a.begin() + shorter) {
        return 0;
    }
    return *inA < *inB ? -1 : 1;
}

} // namespace lingomat
