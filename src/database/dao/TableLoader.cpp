#include "TableLoader.h"

#include "Connection.h"
#include "FieldRules.h"

using namespace Qt::StringLiterals;

namespace dao {

struct TableLoader::Private {
    std::shared_ptr<Connection> connection;
    Table& table;
    QByteArray sql;
};

namespace {

QByteArray insertSql(const Table& table) {
    QByteArray names;
    QByteArray parameters;
    for (qsizetype i = 0; i < table.definition.Fields.size(); ++i) {
        const QByteArray separator = i == 0 ? "" : ", ";
        names += separator + quotedName(table.definition.Fields[i].Name);
        parameters += separator + '?' + QByteArray::number(i + 1);
    }
    return "INSERT INTO " + table.sqlName + '(' + names + ") VALUES(" + parameters + ')';
}

} // namespace

TableLoader::TableLoader(const Database& database, const QString& table) {
    (void)database.Table(table);
    Table& found = *database.connection().findTable(table);
    m_d.reset(new Private{database.m_connection, found, insertSql(found)});
}

TableLoader::~TableLoader() = default;

QStringList TableLoader::fieldNames() const {
    QStringList names;
    for (const Field& field : m_d->table.definition.Fields)
        names.append(field.Name);
    return names;
}

void TableLoader::add(const std::vector<Value>& row) {
    const TableDef& definition = m_d->table.definition;
    Connection& connection = *m_d->connection;
    connection.prepareToWrite();
    const StatementRun run(connection.statement(m_d->sql));
    for (qsizetype i = 0; i < definition.Fields.size(); ++i)
        run->bind(static_cast<int>(i) + 1, fitted(definition.Name, definition.Fields[i],
                                                  row.at(static_cast<std::size_t>(i)), EmptyTexts::Allowed));
    run->step();
    ++m_d->table.changes;
}

} // namespace dao
