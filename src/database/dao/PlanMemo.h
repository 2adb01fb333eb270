#pragma once

// Private to the engine.

#include "Lexer.h"
#include "Value.h"

#include <QString>

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <vector>

namespace dao {

/// Remembers the plans of the last few texts, so that a text that comes again, or comes again with another
/// whole number in it, is not taken apart anew. Look-ups by key come by the ten thousand.
template <typename Plan>
class PlanMemo {
public:
    struct Hit {
        std::shared_ptr<const Plan> plan;
        std::vector<Value> literals;
    };

    [[nodiscard]] std::optional<Hit> find(const QString& text) const {
        for (const Entry& entry : m_entries) {
            if (entry.plan == nullptr)
                continue;
            if (!entry.number && text == entry.before)
                return Hit{entry.plan, entry.literals};
            if (entry.number)
                if (const auto number = numberIn(text, entry))
                    return Hit{entry.plan, {*number}};
        }
        return std::nullopt;
    }

    void remember(const QString& text, const criteria::LexedText& lexed, std::shared_ptr<const Plan> plan) {
        Entry& entry = m_entries[m_next];
        m_next = (m_next + 1) % m_entries.size();
        entry = {text, {}, false, lexed.literals, std::move(plan)};
        if (lexed.literals.size() != 1 || !lexed.literals.front().isInteger())
            return;
        const auto token =
            std::find_if(lexed.tokens.begin(), lexed.tokens.end(),
                         [](const criteria::Token& t) { return t.kind == criteria::TokenKind::Literal; });
        const qsizetype at = token->name.data() - QStringView(text).data();
        entry.before = text.first(at);
        entry.after = text.sliced(at + token->name.size());
        entry.number = true;
    }

    void clear() { m_entries = {}; }

private:
    struct Entry {
        QString before; ///< the whole text where no number varies
        QString after;
        bool number = false;
        std::vector<Value> literals;
        std::shared_ptr<const Plan> plan;
    };

    static std::optional<qint64> numberIn(const QString& text, const Entry& entry) {
        constexpr qsizetype LongestNumber = 18; // digits that surely fit 64 bits
        const qsizetype length = text.size() - entry.before.size() - entry.after.size();
        if (length < 1 || length > LongestNumber || !text.startsWith(entry.before) ||
            !text.endsWith(entry.after))
            return std::nullopt;
        qint64 number = 0;
        for (const QChar c : QStringView(text).sliced(entry.before.size(), length)) {
            if (c < u'0' || c > u'9')
                return std::nullopt;
            number = number * 10 + (c.unicode() - u'0');
        }
        return number;
    }

    std::array<Entry, 8> m_entries;
    std::size_t m_next = 0;
};

} // namespace dao
