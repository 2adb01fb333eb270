#include "Database.h"

#include "Connection.h"
#include "RecordsetPrivate.h"

using namespace Qt::StringLiterals;

namespace dao {

Database::Database(std::shared_ptr<Connection> connection) : m_connection(std::move(connection)) {}

Connection& Database::connection() const {
    if (m_connection == nullptr)
        throw Error(ErrorNumber::ObjectNotSet, u"Object variable or With block variable not set"_s);
    m_connection->requireOpen();
    return *m_connection;
}

void Database::Close() {
    connection().close();
}

bool Database::isOpen() const {
    return m_connection != nullptr && m_connection->isOpen();
}

QString Database::Name() const {
    return connection().path();
}

QString Database::Version() const {
    if (const auto& origin = connection().origin())
        return origin->version;
    return QString::number(LayoutVersion) + u".0"_s;
}

bool Database::isReadOnly() const {
    return connection().isReadOnly();
}

bool Database::isJet() const {
    return connection().origin().has_value();
}

QList<RowLoss> Database::RowLosses() const {
    const auto& origin = connection().origin();
    return origin ? origin->losses : QList<RowLoss>();
}

QStringList Database::TableNames() const {
    return connection().tableNames();
}

const TableDef& Database::Table(const QString& name) const {
    const dao::Table* const table = connection().findTable(name);
    if (table == nullptr)
        throw Error(ErrorNumber::ItemNotFound, u"Item not found in this collection: '%1'."_s.arg(name));
    return table->definition;
}

void Database::appendTable(const TableDef& table) {
    connection().addTable(table);
}

void Database::appendProperty(const QString& table, const Property& property) {
    dao::Table* const found = connection().findTable(table);
    if (found == nullptr)
        throw Error(ErrorNumber::ItemNotFound, u"Item not found in this collection: '%1'."_s.arg(table));
    connection().addProperty(*found, property);
}

void Database::appendRelation(const Relation& relation) {
    connection().addRelation(relation);
}

QList<Relation> Database::Relations() const {
    return connection().relations();
}

Recordset Database::OpenRecordset(const QString& statement, RecordsetType /*type*/) const {
    (void)connection();
    return Recordset(openCursor(m_connection, statement));
}

SteadyReading::SteadyReading(const Database& database) : m_connection(database.m_connection) {
    database.connection().beginReading();
}

SteadyReading::~SteadyReading() {
    m_connection->endReading();
}

WriteBurst::WriteBurst(const Database& database) : m_connection(database.m_connection) {
    database.connection().beginBurst();
}

WriteBurst::~WriteBurst() {
    m_connection->endBurst();
}

WriteBatch::WriteBatch(const Database& database)
    : m_connection(database.m_connection),
      m_transaction(std::make_unique<Transaction>(database.connection())) {}

WriteBatch::~WriteBatch() {
    if (!m_connection->isOpen())
        m_transaction->abandon();
}

void WriteBatch::commit() {
    m_transaction->commit();
}

} // namespace dao
