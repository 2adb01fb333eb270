#include "QueryPlan.h"

#include "Connection.h"
#include "EngineError.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace dao {

namespace {

/// More shapes than a program has; beyond it a user's own filters have piled up.
constexpr std::size_t MaximumFindPlans = 200;

Error querySyntax(const QString& statement) {
    return {ErrorNumber::QuerySyntax, u"Syntax error in query expression '%1'."_s.arg(statement)};
}

Error findSyntax(const QString& criterion) {
    return {ErrorNumber::FindSyntax, u"Syntax error in expression '%1'."_s.arg(criterion)};
}

QString fullName(const criteria::FieldName& name) {
    return name.table.isEmpty() ? name.field : name.table + u'.' + name.field;
}

Error ambiguous(const criteria::FieldName& name) {
    return {ErrorNumber::AmbiguousField,
            u"The field '%1' could refer to more than one of the tables listed."_s.arg(fullName(name))};
}

int findIn(const std::vector<criteria::Column>& columns, QStringView table, QStringView field) {
    int found = UnknownColumn;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const criteria::Column& column = columns[i];
        if (column.field.size() != field.size() || column.field.compare(field, Qt::CaseInsensitive) != 0)
            continue;
        if (!table.isEmpty() && column.table.compare(table, Qt::CaseInsensitive) != 0)
            continue;
        if (found != UnknownColumn)
            return AmbiguousColumn;
        found = static_cast<int>(i);
    }
    return found;
}

/// Compiles one SELECT.
class SelectCompiler {
public:
    SelectCompiler(Connection& connection, const criteria::LexedText& text)
        : m_connection(connection),
          m_statement(criteria::parseSelect(text)),
          m_plan(std::make_shared<SelectPlan>()) {}

    std::shared_ptr<SelectPlan> run() {
        collectTables();
        for (const criteria::SelectColumn& column : m_statement.columns)
            addColumn(column);
        const bool allColumns = m_statement.columns.size() == 1 && m_statement.columns.front().all;
        // Rows that hold their key differ anyhow: DISTINCT adds nothing.
        const bool plainRows = !m_statement.distinct || (allColumns && m_plan->tables.front()->keyIsField);
        m_plan->isDynaset = m_plan->tables.size() == 1 && plainRows;
        const QByteArray condition = compileWhere();
        if (m_plan->isDynaset)
            buildDynaset(condition);
        else
            buildJoin(condition);
        return m_plan;
    }

private:
    void collectTables() {
        for (const QString& name : m_statement.tables) {
            Table* const table = m_connection.findTable(name);
            if (table == nullptr)
                throw Error(ErrorNumber::TableNotFound,
                            u"The database engine cannot find the input table or query '%1'."_s.arg(name));
            if (std::find(m_plan->tables.begin(), m_plan->tables.end(), table) != m_plan->tables.end())
                throw ambiguous({{}, name});
            m_plan->tables.push_back(table);
            for (int i = 0; i < table->definition.Fields.size(); ++i) {
                const Field& field = table->definition.Fields[i];
                m_all.push_back({table->definition.Name, field.Name, holdsText(field.Type),
                                 table->sqlName + '.' + quotedName(field.Name)});
                m_allFields.push_back(i);
            }
        }
    }

    void addColumn(const criteria::SelectColumn& column) {
        if (!column.all) {
            const auto index = static_cast<std::size_t>(find(column.name));
            return addColumn(index);
        }
        const qsizetype before = static_cast<qsizetype>(m_plan->columns.size());
        for (std::size_t i = 0; i < m_all.size(); ++i)
            if (column.name.table.isEmpty() ||
                m_all[i].table.compare(column.name.table, Qt::CaseInsensitive) == 0)
                addColumn(i);
        if (static_cast<qsizetype>(m_plan->columns.size()) == before)
            throw unknownField(column.name.table + u".*"_s);
    }

    void addColumn(std::size_t index) {
        m_plan->columns.push_back(m_all[index]);
        m_plan->fields.push_back(m_allFields[index]);
    }

    static Error unknownField(const QString& name) {
        return {ErrorNumber::TooFewParameters,
                u"Too few parameters. Expected 1 (unknown field '%1')."_s.arg(name)};
    }

    [[nodiscard]] int find(const criteria::FieldName& name) const {
        const int index = findIn(m_all, name.table, name.field);
        if (index == AmbiguousColumn)
            throw ambiguous(name);
        if (index == UnknownColumn)
            throw unknownField(fullName(name));
        return index;
    }

    QByteArray compileWhere() {
        if (m_statement.where == nullptr)
            return {};
        criteria::resolve(*m_statement.where, m_all,
                          [this](const criteria::FieldName& name) { return find(name); });
        criteria::Sql sql = criteria::compile(*m_statement.where, m_all, 1);
        m_plan->parameters = std::move(sql.parameters);
        return " WHERE " + sql.text;
    }

    [[nodiscard]] QByteArray columnList() const {
        QByteArray list;
        for (const criteria::Column& column : m_plan->columns)
            list += (list.isEmpty() ? "" : ", ") + column.sql;
        return list;
    }

    void buildDynaset(const QByteArray& condition) {
        const Table& table = *m_plan->tables.front();
        m_plan->sql = "SELECT " + table.keyColumn + " FROM " + table.sqlName + condition + " ORDER BY " +
                      table.keyColumn;
        m_plan->rowSql =
            "SELECT " + columnList() + " FROM " + table.sqlName + " WHERE " + table.keyColumn + " = ?1";
    }

    void buildJoin(const QByteArray& condition) {
        QByteArray from;
        for (const Table* table : m_plan->tables)
            from += (from.isEmpty() ? "" : ", ") + table->sqlName;
        // In the order of the first table's rows, which costs nothing where that table is searched by a key.
        QByteArray order = m_plan->tables.front()->sqlName + '.' + m_plan->tables.front()->keyColumn;
        if (m_statement.distinct) {
            order.clear();
            for (std::size_t i = 1; i <= m_plan->columns.size(); ++i)
                order += (i == 1 ? "" : ", ") + QByteArray::number(static_cast<qulonglong>(i));
        }
        m_plan->sql = QByteArray(m_statement.distinct ? "SELECT DISTINCT " : "SELECT ") + columnList() +
                      " FROM " + from + condition + " ORDER BY " + order;
    }

    Connection& m_connection;
    criteria::SelectStatement m_statement;
    std::shared_ptr<SelectPlan> m_plan;
    std::vector<criteria::Column> m_all;
    std::vector<int> m_allFields;
};

} // namespace

int SelectPlan::findColumn(const QString& name) const {
    if (const auto known = m_columnNumbers.constFind(name); known != m_columnNumbers.constEnd())
        return *known;
    int number = findIn(columns, {}, name);
    const qsizetype dot = name.indexOf(u'.');
    if (number == UnknownColumn && dot > 0)
        number = findIn(columns, QStringView(name).first(dot), QStringView(name).sliced(dot + 1));
    if (number >= 0) // of other names there is no end
        m_columnNumbers.insert(name, number);
    return number;
}

PlanMemo<FindPlan>::Hit SelectPlan::findPlan(const QString& criterion) const {
    if (auto hit = m_memo.find(criterion))
        return std::move(*hit);
    try {
        const criteria::LexedText text = criteria::lex(criterion);
        auto plan = compileFind(text);
        m_memo.remember(criterion, text, plan);
        return {std::move(plan), text.literals};
    } catch (const criteria::SyntaxError&) {
        throw findSyntax(criterion);
    }
}

std::shared_ptr<const FindPlan> SelectPlan::compileFind(const criteria::LexedText& text) const {
    if (const auto known = m_findPlans.find(text.shape); known != m_findPlans.end())
        return known->second;
    auto plan = std::make_shared<FindPlan>();
    plan->tree = criteria::parseCriterion(text);
    criteria::resolve(plan->tree, columns, [this](const criteria::FieldName& name) {
        const int index = findIn(columns, name.table, name.field);
        if (index == AmbiguousColumn)
            throw ambiguous(name);
        if (index == UnknownColumn)
            throw Error(
                ErrorNumber::UnknownFieldName,
                u"The database engine does not recognize '%1' as a valid field name or expression."_s.arg(
                    fullName(name)));
        return index;
    });
    if (isDynaset) {
        constexpr int FirstLiteral = 4;
        criteria::Sql condition = criteria::compile(plan->tree, columns, FirstLiteral);
        const Table& table = *tables.front();
        QByteArray rows = "SELECT " + table.keyColumn;
        for (const criteria::Column& column : columns)
            rows += ", " + column.sql;
        rows += " FROM " + table.sqlName + " WHERE " + table.keyColumn + " >= ?1 AND " + table.keyColumn +
                " <= ?2 AND " + condition.text + " ORDER BY " + table.keyColumn;
        plan->forward = rows + " LIMIT ?3";
        plan->backward = rows + " DESC LIMIT ?3";
        plan->parameters = std::move(condition.parameters);
    }
    if (m_findPlans.size() >= MaximumFindPlans)
        m_findPlans.clear();
    m_findPlans.emplace(text.shape, plan);
    return plan;
}

std::shared_ptr<const SelectPlan> compileSelect(Connection& connection, const QString& statement,
                                                const criteria::LexedText& text) {
    try {
        return SelectCompiler(connection, text).run();
    } catch (const criteria::SyntaxError&) {
        throw querySyntax(statement);
    }
}

criteria::LexedText lexStatement(const QString& statement) {
    try {
        return criteria::lex(statement);
    } catch (const criteria::SyntaxError&) {
        throw querySyntax(statement);
    }
}

} // namespace dao
