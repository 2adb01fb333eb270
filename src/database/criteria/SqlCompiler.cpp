#include "SqlCompiler.h"

#include "EngineError.h"

using namespace Qt::StringLiterals;

namespace criteria {

namespace {

template <typename... Handlers>
struct Overloaded : Handlers... {
    using Handlers::operator()...;
};

const char* sqlOperator(Operator op) {
    switch (op) {
    case Operator::Equal: return " = ";
    case Operator::NotEqual: return " <> ";
    case Operator::Less: return " < ";
    case Operator::LessOrEqual: return " <= ";
    case Operator::Greater: return " > ";
    case Operator::GreaterOrEqual: return " >= ";
    }
    return " = ";
}

class Resolver {
public:
    Resolver(std::span<const Column> columns, const std::function<int(const FieldName&)>& find)
        : m_columns(columns), m_find(find) {}

    void run(Node& node) {
        std::visit(Overloaded{
                       [this](Comparison& c) {
                           if (operandIsText(c.left) != operandIsText(c.right))
                               throw dao::Error(dao::ErrorNumber::DataConversion,
                                                u"Data type mismatch in criteria expression."_s);
                       },
                       [this](Like& like) { (void)operandIsText(like.subject); },
                       [this](NullTest& test) { (void)operandIsText(test.subject); },
                       [this](Negation& negation) { run(*negation.operand); },
                       [this](Junction& junction) {
                           for (Node& operand : junction.operands)
                               run(operand);
                       },
                   },
                   node.content);
    }

private:
    bool operandIsText(Operand& operand) {
        if (const auto* literal = std::get_if<LiteralNumber>(&operand))
            return literal->isText;
        auto& name = std::get<FieldName>(operand);
        name.column = m_find(name);
        return m_columns[static_cast<std::size_t>(name.column)].isText;
    }

    std::span<const Column> m_columns;
    const std::function<int(const FieldName&)>& m_find;
};

class Compiler {
public:
    Compiler(std::span<const Column> columns, int firstParameter)
        : m_columns(columns), m_firstParameter(firstParameter) {}

    Sql run(const Node& tree) {
        m_sql.text = node(tree);
        return std::move(m_sql);
    }

private:
    QByteArray node(const Node& tree) {
        return std::visit(Overloaded{
                              [this](const Comparison& c) { return comparison(c); },
                              [this](const Like& l) { return like(l); },
                              [this](const NullTest& t) {
                                  return operand(t.subject) + (t.negated ? " IS NOT NULL" : " IS NULL");
                              },
                              [this](const Negation& n) { return "NOT (" + node(*n.operand) + ")"; },
                              [this](const Junction& j) { return junction(j.kind, j.operands); },
                          },
                          tree.content);
    }

    // A long chain is compiled as a balanced tree: SQLite bounds the depth of an expression.
    QByteArray junction(Junction::Kind kind, std::span<const Node> operands) {
        if (operands.size() == 1)
            return node(operands.front());
        const std::size_t half = operands.size() / 2;
        const char* const word = kind == Junction::Kind::All ? " AND " : " OR ";
        const QByteArray left = junction(kind, operands.first(half));
        return "(" + left + word + junction(kind, operands.subspan(half)) + ")";
    }

    QByteArray comparison(const Comparison& c) {
        const QByteArray left = operand(c.left);
        QByteArray sql = left + sqlOperator(c.op) + operand(c.right);
        if (isText(c.left))
            sql += QByteArray(" COLLATE ") + FoldedCollation;
        return sql;
    }

    QByteArray like(const Like& l) {
        QByteArray sql;
        const QByteArray subject = operand(l.subject);
        if (l.kind == PatternKind::Anything) {
            // Unknown, not false, for Null.
            sql = "(" + subject + " IS NOT NULL OR NULL)";
        } else if (l.kind == PatternKind::Wildcards) {
            const QByteArray pattern = parameter(l.pattern, Parameter::Form::Pattern);
            sql = QByteArray(PatternFunction) + "(" + pattern + ", " + subject + ")";
        } else if (isText(l.subject)) {
            sql = subject + " = " + parameter(l.pattern, Parameter::Form::AsItIs) + " COLLATE " +
                  FoldedCollation;
        } else {
            sql = subject + " = " + parameter(l.pattern, Parameter::Form::WholeNumber);
        }
        return l.negated ? "NOT (" + sql + ")" : sql;
    }

    [[nodiscard]] bool isText(const Operand& operand) const {
        if (const auto* literal = std::get_if<LiteralNumber>(&operand))
            return literal->isText;
        return column(std::get<FieldName>(operand)).isText;
    }

    [[nodiscard]] const Column& column(const FieldName& name) const {
        return m_columns[static_cast<std::size_t>(name.column)];
    }

    QByteArray operand(const Operand& operand) {
        if (const auto* literal = std::get_if<LiteralNumber>(&operand))
            return parameter(*literal, Parameter::Form::AsItIs);
        return column(std::get<FieldName>(operand)).sql;
    }

    QByteArray parameter(LiteralNumber literal, Parameter::Form form) {
        const auto number = m_firstParameter + static_cast<int>(m_sql.parameters.size());
        m_sql.parameters.push_back({literal.index, form});
        return "?" + QByteArray::number(number);
    }

    std::span<const Column> m_columns;
    int m_firstParameter;
    Sql m_sql;
};

} // namespace

void resolve(Node& tree, std::span<const Column> columns, const std::function<int(const FieldName&)>& find) {
    Resolver(columns, find).run(tree);
}

Sql compile(const Node& tree, std::span<const Column> columns, int firstParameter) {
    return Compiler(columns, firstParameter).run(tree);
}

dao::Value plainWholeNumber(const QString& text) {
    bool isNumber = false;
    const qint64 number = text.toLongLong(&isNumber);
    if (!isNumber || QString::number(number) != text)
        return QString();
    return number;
}

dao::Value boundValue(const Parameter& parameter, std::span<const dao::Value> literals) {
    const dao::Value& literal = literals[static_cast<std::size_t>(parameter.literal)];
    if (parameter.form == Parameter::Form::WholeNumber)
        return plainWholeNumber(literal.toText());
    if (parameter.form == Parameter::Form::Pattern)
        (void)LikePattern(literal.toText());
    return literal;
}

} // namespace criteria
