#include "Parser.h"

#include <optional>

namespace criteria {

namespace {

/// Brackets and NOTs inside one another beyond this are refused: each level costs stack.
constexpr int MaximumDepth = 200;

std::optional<Operator> comparisonOperator(TokenKind kind) {
    switch (kind) {
    case TokenKind::Equal: return Operator::Equal;
    case TokenKind::NotEqual: return Operator::NotEqual;
    case TokenKind::Less: return Operator::Less;
    case TokenKind::LessOrEqual: return Operator::LessOrEqual;
    case TokenKind::Greater: return Operator::Greater;
    case TokenKind::GreaterOrEqual: return Operator::GreaterOrEqual;
    default: return std::nullopt;
    }
}

class Parser {
public:
    explicit Parser(const LexedText& text) : m_text(text) {}

    Node criterion() {
        Node result = disjunction();
        expect(TokenKind::End);
        return result;
    }

    SelectStatement select() {
        SelectStatement result;
        expect(TokenKind::Select);
        result.distinct = accept(TokenKind::Distinct);
        do
            result.columns.push_back(selectColumn());
        while (accept(TokenKind::Comma));
        expect(TokenKind::From);
        do
            result.tables.push_back(name());
        while (accept(TokenKind::Comma));
        if (accept(TokenKind::Where))
            result.where = std::make_unique<Node>(disjunction());
        expect(TokenKind::End);
        return result;
    }

private:
    [[nodiscard]] const Token& current() const { return m_text.tokens[m_at]; }

    bool accept(TokenKind kind) {
        if (current().kind != kind)
            return false;
        ++m_at;
        return true;
    }

    void expect(TokenKind kind) {
        if (!accept(kind))
            throw SyntaxError();
    }

    QString name() {
        const QStringView result = current().name;
        expect(TokenKind::Name);
        return result.toString();
    }

    SelectColumn selectColumn() {
        if (accept(TokenKind::Star))
            return {true, {}};
        const QString first = name();
        if (!accept(TokenKind::Dot))
            return {false, {{}, first}};
        if (accept(TokenKind::Star))
            return {true, {first, {}}};
        return {false, {first, name()}};
    }

    Node disjunction() { return junction(Junction::Kind::Any, TokenKind::Or, &Parser::conjunction); }
    Node conjunction() { return junction(Junction::Kind::All, TokenKind::And, &Parser::condition); }

    Node junction(Junction::Kind kind, TokenKind separator, Node (Parser::*part)()) {
        Node first = (this->*part)();
        if (current().kind != separator)
            return first;
        Junction result{kind, {}};
        result.operands.push_back(std::move(first));
        while (accept(separator))
            result.operands.push_back((this->*part)());
        return {std::move(result)};
    }

    Node condition() {
        if (++m_depth > MaximumDepth)
            throw SyntaxError();
        Node result = nestedCondition();
        --m_depth;
        return result;
    }

    Node nestedCondition() {
        if (accept(TokenKind::Not))
            return {Negation{std::make_unique<Node>(condition())}};
        if (accept(TokenKind::Open)) {
            Node inner = disjunction();
            expect(TokenKind::Close);
            return inner;
        }
        return test(operand());
    }

    Node test(Operand subject) {
        if (accept(TokenKind::Is)) {
            const bool negated = accept(TokenKind::Not);
            expect(TokenKind::Null);
            return {NullTest{std::move(subject), negated}};
        }
        const bool negated = accept(TokenKind::Not);
        if (accept(TokenKind::Like))
            return {like(std::move(subject), negated)};
        const auto op = comparisonOperator(current().kind);
        if (negated || !op)
            throw SyntaxError();
        ++m_at;
        return {Comparison{*op, std::move(subject), operand()}};
    }

    Like like(Operand subject, bool negated) {
        const LiteralNumber pattern = literal();
        const QString text = m_text.literals[static_cast<std::size_t>(pattern.index)].toText();
        return {std::move(subject), pattern, patternKind(text), negated};
    }

    LiteralNumber literal() {
        const int index = current().literal;
        expect(TokenKind::Literal);
        return {index, m_text.literals[static_cast<std::size_t>(index)].isText()};
    }

    Operand operand() {
        if (current().kind == TokenKind::Literal)
            return literal();
        QString first = name();
        if (!accept(TokenKind::Dot))
            return FieldName{{}, std::move(first)};
        return FieldName{std::move(first), name()};
    }

    const LexedText& m_text;
    std::size_t m_at = 0;
    int m_depth = 0;
};

} // namespace

Node parseCriterion(const LexedText& text) {
    return Parser(text).criterion();
}

SelectStatement parseSelect(const LexedText& text) {
    return Parser(text).select();
}

} // namespace criteria
