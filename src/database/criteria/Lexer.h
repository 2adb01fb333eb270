#pragma once

#include "LikePattern.h"
#include "Value.h"

#include <QStringView>

#include <string>
#include <vector>

namespace criteria {

enum class TokenKind {
    Name,    ///< a bare or bracketed name
    Literal, ///< a text or a number
    Equal,
    NotEqual,
    Less,
    LessOrEqual,
    Greater,
    GreaterOrEqual,
    Open,
    Close,
    Comma,
    Dot,
    Star,
    And,
    Or,
    Not,
    Like,
    Is,
    Null,
    Select,
    Distinct,
    From,
    Where,
    End,
};

struct Token {
    TokenKind kind;
    QStringView name; ///< of a Name, or the digits of a number; a view into the text
    int literal = -1; ///< of a Literal: its place in LexedText::literals
};

/// A text in tokens, its literals set apart.
struct LexedText {
    std::vector<Token> tokens; ///< the last one is End
    std::vector<dao::Value> literals;
    /// The same for all texts that differ in nothing but their literals, where a literal behind `LIKE` also
    /// tells its kind of pattern: what was compiled for one serves for all.
    std::u16string shape;
};

/// What a text that is no sentence of the language throws; the parser's callers know the number to give it.
struct SyntaxError {};

/// The result holds views into the text, which has to outlive it.
[[nodiscard]] LexedText lex(QStringView text);

} // namespace criteria
