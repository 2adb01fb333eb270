#include "Evaluator.h"

#include "TextRules.h"

#include <algorithm>

namespace criteria {

namespace {

QString cellText(const CellView& cell) {
    switch (cell.kind) {
    case CellView::Kind::Integer: return QString::number(cell.integer);
    case CellView::Kind::Real: return QString::number(cell.real, 'g', 15);
    case CellView::Kind::Text: return cell.text.toString();
    case CellView::Kind::Null: break;
    }
    return {};
}

template <typename T>
int threeWay(T a, T b) {
    return a < b ? -1 : a > b ? 1 : 0;
}

int compareCells(const CellView& a, const CellView& b) {
    if (a.kind == CellView::Kind::Text)
        return compareText(a.text, b.text);
    if (a.kind == CellView::Kind::Integer && b.kind == CellView::Kind::Integer)
        return threeWay(a.integer, b.integer);
    const auto number = [](const CellView& c) {
        return c.kind == CellView::Kind::Real ? c.real : static_cast<double>(c.integer);
    };
    return threeWay(number(a), number(b));
}

bool holds(Operator op, int order) {
    switch (op) {
    case Operator::Equal: return order == 0;
    case Operator::NotEqual: return order != 0;
    case Operator::Less: return order < 0;
    case Operator::LessOrEqual: return order <= 0;
    case Operator::Greater: return order > 0;
    case Operator::GreaterOrEqual: return order >= 0;
    }
    return false;
}

} // namespace

Evaluator::Evaluator(const Node& tree, std::vector<dao::Value> literals)
    : m_tree(tree), m_literals(std::move(literals)), m_patterns(m_literals.size()) {
    m_texts.reserve(m_literals.size());
    for (const dao::Value& literal : m_literals)
        m_texts.push_back(literal.toText(QString()));
    compilePatterns(tree);
}

void Evaluator::compilePatterns(const Node& node) {
    if (const auto* l = std::get_if<Like>(&node.content)) {
        const auto index = static_cast<std::size_t>(l->pattern.index);
        if (l->kind == PatternKind::Wildcards)
            m_patterns[index].emplace(m_texts[index]);
    } else if (const auto* negation = std::get_if<Negation>(&node.content)) {
        compilePatterns(*negation->operand);
    } else if (const auto* j = std::get_if<Junction>(&node.content)) {
        for (const Node& operand : j->operands)
            compilePatterns(operand);
    }
}

CellView Evaluator::cell(const Operand& operand, const RowView& row) const {
    if (const auto* name = std::get_if<FieldName>(&operand))
        return row.cell(name->column);
    const auto index = static_cast<std::size_t>(std::get<LiteralNumber>(operand).index);
    const dao::Value& literal = m_literals[index];
    if (literal.isText())
        return CellView::ofText(m_texts[index]);
    if (literal.isInteger())
        return CellView::ofInteger(literal.toInteger());
    return CellView::ofReal(m_texts[index].toDouble());
}

Evaluator::Truth Evaluator::negated(Truth t) {
    return t == Truth::Unknown ? t : truthOf(t == Truth::False);
}

Evaluator::Truth Evaluator::truth(const Node& node, const RowView& row) const {
    if (const auto* c = std::get_if<Comparison>(&node.content))
        return comparison(*c, row);
    if (const auto* l = std::get_if<Like>(&node.content))
        return l->negated ? negated(like(*l, row)) : like(*l, row);
    if (const auto* t = std::get_if<NullTest>(&node.content))
        return truthOf((cell(t->subject, row).kind == CellView::Kind::Null) != t->negated);
    if (const auto* n = std::get_if<Negation>(&node.content))
        return negated(truth(*n->operand, row));
    return junction(std::get<Junction>(node.content), row);
}

Evaluator::Truth Evaluator::comparison(const Comparison& c, const RowView& row) const {
    const CellView left = cell(c.left, row);
    const CellView right = cell(c.right, row);
    if (left.kind == CellView::Kind::Null || right.kind == CellView::Kind::Null)
        return Truth::Unknown;
    return truthOf(holds(c.op, compareCells(left, right)));
}

Evaluator::Truth Evaluator::like(const Like& l, const RowView& row) const {
    const CellView subject = cell(l.subject, row);
    if (subject.kind == CellView::Kind::Null)
        return Truth::Unknown;
    if (l.kind == PatternKind::Anything)
        return Truth::True;
    const auto index = static_cast<std::size_t>(l.pattern.index);
    if (l.kind == PatternKind::Wildcards)
        return truthOf(m_patterns[index]->matches(cellText(subject)));
    if (subject.kind == CellView::Kind::Text)
        return truthOf(compareText(subject.text, m_texts[index]) == 0);
    return truthOf(cellText(subject) == m_texts[index]);
}

Evaluator::Truth Evaluator::junction(const Junction& j, const RowView& row) const {
    const Truth decisive = j.kind == Junction::Kind::All ? Truth::False : Truth::True;
    Truth result = j.kind == Junction::Kind::All ? Truth::True : Truth::False;
    for (const Node& operand : j.operands) {
        const Truth t = truth(operand, row);
        if (t == decisive)
            return decisive;
        if (t == Truth::Unknown)
            result = Truth::Unknown;
    }
    return result;
}

} // namespace criteria
