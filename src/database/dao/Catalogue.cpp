// How tables, their fields, indexes, properties and relations lie in the file.

#include "Connection.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace dao {

namespace {

/// Key column of a table that has no autoincrement field. Keys are never used twice, so that a keyset that
/// still holds the key of a deleted row cannot meet another row under it.
constexpr const char* OwnKeyColumn = "\"_row\"";

const char* const CatalogueTables[] = {
    "CREATE TABLE lmt_database(key TEXT PRIMARY KEY, value TEXT) WITHOUT ROWID",
    "CREATE TABLE lmt_fields(table_name TEXT, position INTEGER, name TEXT, type INTEGER, size INTEGER, "
    "attributes INTEGER, default_value, allow_zero_length INTEGER, PRIMARY KEY(table_name, position)) "
    "WITHOUT ROWID",
    "CREATE TABLE lmt_indexes(table_name TEXT, name TEXT, field TEXT, is_primary INTEGER, is_unique INTEGER, "
    "PRIMARY KEY(table_name, name)) WITHOUT ROWID",
    "CREATE TABLE lmt_properties(position INTEGER PRIMARY KEY, table_name TEXT, name TEXT, type INTEGER, "
    "value)",
    "CREATE TABLE lmt_relations(position INTEGER PRIMARY KEY, name TEXT, table_name TEXT, foreign_table "
    "TEXT, "
    "field TEXT, foreign_field TEXT, attributes INTEGER)",
};

void setKey(Table& table) {
    table.sqlName = quotedName(table.definition.Name);
    table.keyColumn = OwnKeyColumn;
    for (const Field& field : table.definition.Fields) {
        if (field.isAutoIncrement()) {
            table.keyColumn = quotedName(field.Name);
            table.keyIsField = true;
        }
    }
}

QByteArray columnSql(const Table& table, const Field& field) {
    const QByteArray name = quotedName(field.Name);
    if (table.keyIsField && field.isAutoIncrement())
        return name + " INTEGER PRIMARY KEY AUTOINCREMENT";
    return name + (field.Type == DataType::Text ? " TEXT" : " INTEGER");
}

QByteArray createTableSql(const Table& table) {
    QByteArray columns;
    if (!table.keyIsField)
        columns = QByteArray(OwnKeyColumn) + " INTEGER PRIMARY KEY AUTOINCREMENT";
    for (const Field& field : table.definition.Fields)
        columns += (columns.isEmpty() ? "" : ", ") + columnSql(table, field);
    return "CREATE TABLE " + table.sqlName + "(" + columns + ")";
}

QByteArray createIndexSql(const Table& table, const QString& name, const QString& field, bool unique) {
    return QByteArray(unique ? "CREATE UNIQUE INDEX " : "CREATE INDEX ") +
           quotedName(table.definition.Name + u'_' + name) + " ON " + table.sqlName + "(" +
           quotedName(field) + ")";
}

/// The indexes that the definition tells, and one for every other key that searches go by (a Long field).
QList<QByteArray> indexStatements(const Table& table) {
    QList<QByteArray> statements;
    QStringList indexed;
    const auto isKey = [&table](const QString& field) {
        return table.keyIsField && table.keyColumn == quotedName(field);
    };
    for (const Index& index : table.definition.Indexes) {
        if (isKey(index.FieldName))
            continue;
        statements.append(createIndexSql(table, index.Name, index.FieldName, index.Unique));
        indexed.append(index.FieldName);
    }
    for (const Field& field : table.definition.Fields)
        if (field.Type == DataType::Long && !isKey(field.Name) && !indexed.contains(field.Name))
            statements.append(createIndexSql(table, u"by_"_s + field.Name, field.Name, false));
    return statements;
}

template <typename... Values>
void insert(Connection& connection, const QByteArray& sql, const Values&... values) {
    connection.prepareToWrite();
    const StatementRun run(connection.statement(sql));
    int parameter = 0;
    (run->bind(++parameter, Value(values)), ...);
    run->step();
}

void insertProperty(Connection& connection, const QString& table, const Property& property) {
    insert(connection, "INSERT INTO lmt_properties(table_name, name, type, value) VALUES(?1, ?2, ?3, ?4)",
           table, property.Name, static_cast<int>(property.Type), property.Value);
}

[[noreturn]] void damagedCatalogue() {
    throw Error(ErrorNumber::UnrecognizedFormat,
                u"Unrecognized database format: the file's catalogue is damaged."_s);
}

DataType dataType(qint64 number) {
    switch (number) {
    case static_cast<int>(DataType::Integer): return DataType::Integer;
    case static_cast<int>(DataType::Long): return DataType::Long;
    case static_cast<int>(DataType::Text): return DataType::Text;
    default: damagedCatalogue();
    }
}

/// Only tables that lie in the file: a view in their place could yield rows without end.
void requireCatalogueTables(sqlite3* handle) {
    Statement tables(handle,
                     "SELECT count(*) FROM sqlite_schema WHERE type = 'table' AND rootpage > 0 AND name "
                     "IN ('lmt_fields', 'lmt_indexes', 'lmt_properties', 'lmt_relations')");
    if (!tables.step() || tables.integer(0) != 4)
        damagedCatalogue();
}

/// Whether a column is the row's own number in SQLite's sense: whole, unique and never Null. Keysets, and
/// walks that end, rely on that.
bool isRowNumber(sqlite3* handle, const Table& table) {
    Statement keys(handle, "SELECT name, upper(type) FROM pragma_table_info(?1) WHERE pk > 0");
    keys.bind(1, table.definition.Name);
    if (!keys.step() || quotedName(keys.text(0)).compare(table.keyColumn, Qt::CaseInsensitive) != 0 ||
        keys.text(1) != u"INTEGER"_s || keys.step())
        return false;
    // A key that is anything else has an index of its own.
    Statement keyIndex(handle, "SELECT 1 FROM pragma_index_list(?1) WHERE origin = 'pk'");
    keyIndex.bind(1, table.definition.Name);
    return !keyIndex.step();
}

/// The table has the fields that the catalogue tells, each named once.
bool hasFields(sqlite3* handle, const TableDef& definition) {
    QSet<QString> columns;
    Statement info(handle, "SELECT name FROM pragma_table_info(?1)");
    info.bind(1, definition.Name);
    while (info.step())
        columns.insert(info.text(0).toLower());
    return std::all_of(definition.Fields.begin(), definition.Fields.end(),
                       [&columns](const Field& field) { return columns.remove(field.Name.toLower()); });
}

} // namespace

void Connection::createCatalogue() {
    Transaction transaction(*this);
    execute("PRAGMA application_id = " + QByteArray::number(ApplicationId));
    execute("PRAGMA user_version = " + QByteArray::number(LayoutVersion));
    for (const char* const sql : CatalogueTables)
        execute(sql);
    transaction.commit();
}

void Connection::recordLocale(const QString& locale) {
    insert(*this, "INSERT OR REPLACE INTO lmt_database VALUES(?1, ?2)", u"locale"_s, locale);
}

void Connection::addTable(const TableDef& definition) {
    if (findTable(definition.Name) != nullptr)
        throw Error(ErrorNumber::TableExists, u"Table '%1' already exists."_s.arg(definition.Name));
    auto table = std::make_unique<Table>();
    table->definition = definition;
    setKey(*table);

    Transaction transaction(*this);
    execute(createTableSql(*table));
    for (const QByteArray& sql : indexStatements(*table))
        execute(sql);
    int position = 0;
    for (const Field& field : definition.Fields)
        insert(*this, "INSERT INTO lmt_fields VALUES(?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8)", definition.Name,
               ++position, field.Name, static_cast<int>(field.Type), field.Size, field.Attributes,
               field.DefaultValue, field.AllowZeroLength ? 1 : 0);
    for (const Index& index : definition.Indexes)
        insert(*this, "INSERT INTO lmt_indexes VALUES(?1, ?2, ?3, ?4, ?5)", definition.Name, index.Name,
               index.FieldName, index.Primary ? 1 : 0, index.Unique ? 1 : 0);
    for (const Property& property : definition.Properties)
        insertProperty(*this, definition.Name, property);
    transaction.commit();

    m_tableNames.append(definition.Name);
    m_tables.emplace(definition.Name.toLower(), std::move(table));
}

Table& Connection::addCopiedTable(const TableDef& definition) {
    auto table = std::make_unique<Table>();
    table->definition = definition;
    table->sqlName = quotedName(definition.Name);
    QString key = u"_row"_s;
    while (definition.fieldIndex(key) >= 0)
        key += u'_';
    table->keyColumn = quotedName(key);
    QByteArray columns = table->keyColumn + " INTEGER PRIMARY KEY";
    for (const Field& field : definition.Fields)
        columns += ", " + quotedName(field.Name) + (holdsText(field.Type) ? " TEXT" : "");
    execute("CREATE TABLE " + table->sqlName + "(" + columns + ")");
    m_tableNames.append(definition.Name);
    return *m_tables.emplace(definition.Name.toLower(), std::move(table)).first->second;
}

void Connection::seal(Origin origin) {
    execute("PRAGMA query_only = ON");
    m_origin = std::move(origin);
}

void Connection::addProperty(Table& table, const Property& property) {
    insertProperty(*this, table.definition.Name, property);
    table.definition.Properties.append(property);
}

void Connection::addRelation(const Relation& relation) {
    insert(*this,
           "INSERT INTO lmt_relations(name, table_name, foreign_table, field, foreign_field, attributes) "
           "VALUES(?1, ?2, ?3, ?4, ?5, ?6)",
           relation.Name, relation.Table, relation.ForeignTable, relation.FieldName, relation.ForeignName,
           relation.Attributes);
    m_relations.append(relation);
}

void Connection::readCatalogue() {
    try {
        requireCatalogueTables(m_handle.get());
        readTables();
        readTableDetails();
    } catch (const Error& error) {
        if (error.Number() == ErrorNumber::ObjectInvalid) // a column that is missing
            damagedCatalogue();
        throw;
    }
}

void Connection::readTables() {
    Statement fields(
        m_handle.get(),
        "SELECT f.table_name, f.name, f.type, f.size, f.attributes, f.default_value, "
        "f.allow_zero_length FROM lmt_fields f JOIN sqlite_schema s "
        "ON s.type = 'table' AND s.rootpage > 0 AND s.name = f.table_name ORDER BY s.rowid, f.position");
    while (fields.step()) {
        const QString tableName = fields.text(0);
        auto& table = m_tables[tableName.toLower()];
        if (table == nullptr) {
            table = std::make_unique<Table>();
            table->definition.Name = tableName;
            m_tableNames.append(tableName);
        }
        table->definition.Fields.append(
            {fields.text(1), dataType(fields.integer(2)), static_cast<int>(fields.integer(3)),
             static_cast<int>(fields.integer(4)), fields.value(5), fields.integer(6) != 0});
    }
    for (const auto& [name, table] : m_tables) {
        setKey(*table);
        if (!isRowNumber(m_handle.get(), *table) || !hasFields(m_handle.get(), table->definition))
            damagedCatalogue();
    }
}

void Connection::readTableDetails() {
    Statement indexes(m_handle.get(),
                      "SELECT table_name, name, field, is_primary, is_unique FROM lmt_indexes");
    while (indexes.step())
        if (Table* const table = findTable(indexes.text(0)))
            table->definition.Indexes.append(
                {indexes.text(1), indexes.text(2), indexes.integer(3) != 0, indexes.integer(4) != 0});

    Statement properties(m_handle.get(),
                         "SELECT table_name, name, type, value FROM lmt_properties ORDER BY position");
    while (properties.step())
        if (Table* const table = findTable(properties.text(0)))
            table->definition.Properties.append(
                {properties.text(1), dataType(properties.integer(2)), properties.value(3)});

    Statement relations(m_handle.get(),
                        "SELECT name, table_name, foreign_table, field, foreign_field, attributes "
                        "FROM lmt_relations ORDER BY position");
    while (relations.step())
        m_relations.append({relations.text(0), relations.text(1), relations.text(2), relations.text(3),
                            relations.text(4), static_cast<int>(relations.integer(5))});
}

} // namespace dao
