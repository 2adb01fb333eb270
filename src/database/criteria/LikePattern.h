#pragma once

#include "TextRules.h"

#include <QString>

#include <span>
#include <vector>

namespace criteria {

/// What a pattern of `LIKE` amounts to.
enum class PatternKind {
    Plain,    ///< no wildcard: an equality
    Anything, ///< "*" alone: everything but Null
    Wildcards,
};

[[nodiscard]] PatternKind patternKind(QStringView pattern);

/// A compiled pattern: `*` any run, `?` one character, `#` one digit, `[a-z]` one of a set, `[!a-z]` one
/// outside it, `[*]` a literal star. Case does not count, accents do.
class LikePattern {
public:
    /// Error 93 for a set that is not closed or a range that runs backwards.
    explicit LikePattern(QStringView pattern);

    [[nodiscard]] bool matches(QStringView text) const;

private:
    struct Range {
        char32_t first;
        char32_t last;
    };
    enum class Kind { Character, AnyCharacter, AnyRun, Digit, Set };
    struct Element {
        Kind kind;
        char32_t character = 0;
        bool negated = false;
        std::vector<Range> ranges = {};

        [[nodiscard]] bool accepts(char32_t c) const;
    };

    static Element parseSet(std::span<const char32_t> body);

    std::vector<Element> m_elements;
};

} // namespace criteria
