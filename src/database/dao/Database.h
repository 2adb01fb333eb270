#pragma once

#include "Recordset.h"
#include "Schema.h"

#include <QString>
#include <QStringList>

#include <memory>

namespace dao {

class Connection;
class Transaction;

/// Kind of a recordset. The engine knows one: a keyset whose rows are read live.
enum class RecordsetType { Dynaset = 2 };

/// An open database file. A default-constructed object stands for "no database": every use of it raises
/// 91, every use after Close 3420. Copies share the one connection, which ends with the last of them.
class Database {
public:
    Database() = default;

    /// Closes the file. Recordsets that are still open become invalid (3420). Closing twice raises 3420.
    void Close();

    [[nodiscard]] bool isOpen() const;
    [[nodiscard]] QString Name() const; ///< full path of the file
    [[nodiscard]] QString
    Version() const; ///< version of the file's layout; serves as a test for "is there a database"
    [[nodiscard]] bool isReadOnly() const;

    /// Whether the file is of the format Jet 3 or 4. Such a database is a copy of the file's tables, taken
    /// when it was opened: it can be read and not changed.
    [[nodiscard]] bool isJet() const;
    /// What could not be read of a damaged file, as far as its tables go; table "MSysObjects" is the list of
    /// these. Empty for a sound one.
    [[nodiscard]] QList<RowLoss> RowLosses() const;

    [[nodiscard]] QStringList TableNames() const;
    /// A table's definition. Error 3265 where there is none of that name (case does not count), 3343 where a
    /// damaged file holds no more of it than the name.
    [[nodiscard]] const TableDef& Table(const QString& name) const;

    /// Creates the table with its fields, indexes and properties. A second table of one name raises 3010.
    void appendTable(const TableDef& table);
    /// Adds a property to an existing table.
    void appendProperty(const QString& table, const Property& property);
    void appendRelation(const Relation& relation);
    [[nodiscard]] QList<Relation> Relations() const;

    /// Opens `SELECT [DISTINCT] * | list FROM t1, t2, ... [WHERE expression]`.
    /// Errors: 3075 syntax, 3078 unknown table, 3061 unknown field, 3079 ambiguous field, 93 pattern.
    [[nodiscard]] Recordset OpenRecordset(const QString& statement,
                                          RecordsetType type = RecordsetType::Dynaset) const;

private:
    friend class DBEngine;
    friend class Workspace;
    friend class SteadyReading;
    friend class WriteBurst;
    friend class WriteBatch;
    friend class TableLoader;
    explicit Database(std::shared_ptr<Connection> connection);
    [[nodiscard]] Connection& connection() const;

    std::shared_ptr<Connection> m_connection;
};

/// While it lives, all reading sees one state of the file and takes one lock in all: for long runs of many
/// small look-ups. Other programs cannot write meanwhile, so it must not outlive a run. A change through the
/// same database ends it early.
class SteadyReading {
public:
    explicit SteadyReading(const Database& database);
    ~SteadyReading();
    SteadyReading(const SteadyReading&) = delete;
    SteadyReading& operator=(const SteadyReading&) = delete;

private:
    std::shared_ptr<Connection> m_connection;
};

/// While it lives, changes cost little each: for commands that write many rows. Every change still reaches
/// the file whole before its call returns, so that the program may die at any moment; against a loss of
/// power all of them are safe when the burst ends. Elsewhere each change is by itself.
class WriteBurst {
public:
    explicit WriteBurst(const Database& database);
    ~WriteBurst();
    WriteBurst(const WriteBurst&) = delete;
    WriteBurst& operator=(const WriteBurst&) = delete;

private:
    std::shared_ptr<Connection> m_connection;
};

/// While it lives, rows that are written reach the file together, at commit(), or not at all: for filling a
/// new database. No tables may be added meanwhile.
class WriteBatch {
public:
    explicit WriteBatch(const Database& database);
    ~WriteBatch(); ///< without commit(): takes everything back
    WriteBatch(const WriteBatch&) = delete;
    WriteBatch& operator=(const WriteBatch&) = delete;
    void commit();

private:
    std::shared_ptr<Connection> m_connection;
    std::unique_ptr<Transaction> m_transaction;
};

} // namespace dao
