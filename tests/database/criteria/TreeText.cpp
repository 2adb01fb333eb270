#include "TreeText.h"

#include "Parser.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace criteria {

namespace {

QString sign(Operator op) {
    switch (op) {
    case Operator::Equal: return u" = "_s;
    case Operator::NotEqual: return u" <> "_s;
    case Operator::Less: return u" < "_s;
    case Operator::LessOrEqual: return u" <= "_s;
    case Operator::Greater: return u" > "_s;
    case Operator::GreaterOrEqual: return u" >= "_s;
    }
    return {};
}

QString describeName(const FieldName& name) {
    return name.table.isEmpty() ? name.field : name.table + u'.' + name.field;
}

QString describeLiteral(LiteralNumber literal, const LexedText& text) {
    const QString value = text.literals[static_cast<std::size_t>(literal.index)].toText();
    return literal.isText ? u'\'' + value + u'\'' : value;
}

QString describeOperand(const Operand& operand, const LexedText& text) {
    if (const auto* name = std::get_if<FieldName>(&operand))
        return describeName(*name);
    return describeLiteral(std::get<LiteralNumber>(operand), text);
}

} // namespace

QString describe(const Node& tree, const LexedText& text) {
    if (const auto* c = std::get_if<Comparison>(&tree.content))
        return describeOperand(c->left, text) + sign(c->op) + describeOperand(c->right, text);
    if (const auto* l = std::get_if<Like>(&tree.content))
        return describeOperand(l->subject, text) + (l->negated ? u" not like "_s : u" like "_s) +
               describeLiteral(l->pattern, text);
    if (const auto* t = std::get_if<NullTest>(&tree.content))
        return describeOperand(t->subject, text) + (t->negated ? u" is not null"_s : u" is null"_s);
    if (const auto* n = std::get_if<Negation>(&tree.content))
        return u"not("_s + describe(*n->operand, text) + u')';
    const auto& junction = std::get<Junction>(tree.content);
    QStringList parts;
    for (const Node& operand : junction.operands)
        parts.append(describe(operand, text));
    return (junction.kind == Junction::Kind::All ? u"and("_s : u"or("_s) + parts.join(u", "_s) + u')';
}

QString parsed(const QString& criterion) {
    try {
        const LexedText text = lex(criterion);
        return describe(parseCriterion(text), text);
    } catch (const SyntaxError&) {
        return u"syntax error"_s;
    }
}

QString parsedSelect(const QString& statement) {
    try {
        const LexedText text = lex(statement);
        const SelectStatement select = parseSelect(text);
        QStringList columns;
        for (const SelectColumn& column : select.columns) {
            if (!column.all)
                columns.append(describeName(column.name));
            else
                columns.append(column.name.table.isEmpty() ? u"*"_s : column.name.table + u".*"_s);
        }
        const QStringList tables(select.tables.begin(), select.tables.end());
        QString result = (select.distinct ? u"distinct "_s : QString()) + columns.join(u", "_s) +
                         u" from "_s + tables.join(u", "_s);
        if (select.where != nullptr)
            result += u" where "_s + describe(*select.where, text);
        return result;
    } catch (const SyntaxError&) {
        return u"syntax error"_s;
    }
}

} // namespace criteria
