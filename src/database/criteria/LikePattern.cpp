#include "LikePattern.h"

#include "EngineError.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace criteria {

namespace {

[[noreturn]] void invalidPattern() {
    throw dao::Error(dao::ErrorNumber::InvalidPattern, u"Invalid pattern string"_s);
}

} // namespace

PatternKind patternKind(QStringView pattern) {
    if (pattern == u"*")
        return PatternKind::Anything;
    const bool plain = std::none_of(pattern.begin(), pattern.end(),
                                    [](QChar c) { return c == u'*' || c == u'?' || c == u'#' || c == u'['; });
    return plain ? PatternKind::Plain : PatternKind::Wildcards;
}

LikePattern::LikePattern(QStringView pattern) {
    const ComparisonForm form = comparisonForm(pattern);
    for (qsizetype i = 0; i < form.size(); ++i) {
        switch (form[i]) {
        case U'*':
            if (m_elements.empty() || m_elements.back().kind != Kind::AnyRun)
                m_elements.push_back({Kind::AnyRun});
            break;
        case U'?': m_elements.push_back({Kind::AnyCharacter}); break;
        case U'#': m_elements.push_back({Kind::Digit}); break;
        case U'[': {
            const auto* const open = form.begin() + i;
            const auto* const close = std::find(open, form.end(), U']');
            if (close == form.end())
                invalidPattern();
            const std::span body(open + 1, close);
            if (!body.empty())
                m_elements.push_back(parseSet(body));
            i = close - form.begin();
            break;
        }
        default: m_elements.push_back({Kind::Character, form[i]});
        }
    }
}

LikePattern::Element LikePattern::parseSet(std::span<const char32_t> body) {
    Element set{Kind::Set};
    // A lone "!" stands for itself.
    if (body.front() == U'!' && body.size() > 1) {
        set.negated = true;
        body = body.subspan(1);
    }
    for (std::size_t i = 0; i < body.size(); ++i) {
        const bool isRange = i + 2 < body.size() && body[i + 1] == U'-';
        if (!isRange) {
            set.ranges.push_back({body[i], body[i]});
            continue;
        }
        if (body[i] > body[i + 2])
            invalidPattern();
        set.ranges.push_back({body[i], body[i + 2]});
        i += 2;
    }
    return set;
}

bool LikePattern::Element::accepts(char32_t c) const {
    switch (kind) {
    case Kind::Character: return c == character;
    case Kind::AnyCharacter: return true;
    case Kind::Digit: return c >= U'0' && c <= U'9';
    case Kind::Set:
        return negated != std::any_of(ranges.begin(), ranges.end(),
                                      [c](const Range& r) { return c >= r.first && c <= r.last; });
    case Kind::AnyRun: break;
    }
    return false;
}

bool LikePattern::matches(QStringView text) const {
    const ComparisonForm form = comparisonForm(text);
    const qsizetype length = form.size();
    qsizetype at = 0;
    std::size_t element = 0;
    // Only the last star ever needs to be tried again: a shorter run for an earlier one gains nothing.
    std::size_t afterStar = 0;
    qsizetype starEnd = -1;
    while (true) {
        if (element < m_elements.size() && m_elements[element].kind == Kind::AnyRun) {
            afterStar = ++element;
            starEnd = at;
        } else if (element < m_elements.size() && at < length && m_elements[element].accepts(form[at])) {
            ++element;
            ++at;
        } else if (element == m_elements.size() && at == length) {
            return true;
        } else if (starEnd >= 0 && starEnd < length) {
            at = ++starEnd;
            element = afterStar;
        } else {
            return false;
        }
    }
}

} // namespace criteria
