#pragma once

// Private to the engine.

#include "QueryPlan.h"
#include "Schema.h"
#include "Sqlite.h"

#include <QMap>
#include <QString>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>

namespace dao {

/// Marks a file as one of this program's ("LMT3"), and the layout of its tables.
inline constexpr qint64 ApplicationId = 0x4C4D5433;
inline constexpr qint64 LayoutVersion = 1;

/// How long a file that another program holds is waited for, in milliseconds.
inline constexpr int BusyTimeout = 2000;

[[nodiscard]] QString unrecognizedFormat(const QString& path);

/// A table of the open file.
struct Table {
    TableDef definition;
    QByteArray sqlName;
    QByteArray keyColumn; ///< the row key: the autoincrement field, or a column of the engine's own
    bool keyIsField = false;
    quint64 changes = 0; ///< grows with every row written through this connection
};

/// Where the tables of a connection come from that is no file of its own.
struct Origin {
    QString version;                ///< of the file's format, "3.0" or "4.0"
    QList<RowLoss> losses;          ///< what could not be read of it
    QMap<QString, QString> damaged; ///< tables that cannot be read at all, by lower-case name: why
};

/// An open file: its SQLite connection, its catalogue, the statements and plans compiled for it.
class Connection {
public:
    /// Copy: the tables of a file of another kind; they are kept beside it for as long as the connection is
    /// open, in memory and, where they are large, in a temporary file of SQLite's own.
    enum class Mode { ReadWrite, Create, Copy };
    Connection(const QString& path, Mode mode);
    Q_DISABLE_COPY_MOVE(Connection)
    ~Connection() = default;

    /// Error 3420 when the file was closed.
    void requireOpen() const;
    [[nodiscard]] bool isOpen() const { return m_handle != nullptr; }
    void close();

    [[nodiscard]] const QString& path() const { return m_path; }
    [[nodiscard]] bool isReadOnly() const;
    [[nodiscard]] const std::optional<Origin>& origin() const { return m_origin; }

    /// A prepared statement, kept for the next time.
    [[nodiscard]] Statement& statement(const QByteArray& sql);
    void execute(const QByteArray& sql);
    [[nodiscard]] int changedRows() const { return sqlite3_changes(m_handle.get()); }
    [[nodiscard]] qint64 lastKey() const { return sqlite3_last_insert_rowid(m_handle.get()); }

    /// Begins and ends a stretch of reading under one lock. Stretches nest.
    void beginReading();
    void endReading() noexcept;
    /// Called before every change: ends a stretch of reading, so that the change is durable by itself.
    void prepareToWrite();

    /// Begin and end a burst of changes. Bursts nest.
    void beginBurst();
    void endBurst() noexcept;

    /// None where there is none of that name. Error 3343 for a table that a damaged file did not yield.
    [[nodiscard]] Table* findTable(const QString& name);
    [[nodiscard]] QStringList tableNames() const;
    void addTable(const TableDef& definition);
    void addProperty(Table& table, const Property& property);
    void addRelation(const Relation& relation);
    [[nodiscard]] const QList<Relation>& relations() const { return m_relations; }
    void recordLocale(const QString& locale);

    /// Mode Copy: adds a table whose rows need not have keys of their own. The caller fills it through its
    /// SQL name and ends with seal(), after which nothing can be changed.
    Table& addCopiedTable(const TableDef& definition);
    void seal(Origin origin);

    /// The plan for a statement and its literals; compiled at the first use of its shape.
    [[nodiscard]] PlanMemo<SelectPlan>::Hit selectPlan(const QString& statement);

private:
    void open(Mode mode);
    void configure();
    [[nodiscard]] bool keepsWriteAheadLog();
    void leaveWriteAheadLog() noexcept;
    void createCatalogue();
    void checkFormat();
    void checkWholePages();
    void checkIntegrity();
    void readCatalogue();
    void readTables();
    void readTableDetails(); ///< indexes, properties, relations

    QString m_path;
    SqliteHandle m_handle;
    std::map<QByteArray, Statement, std::less<>> m_statements;
    std::map<QString, std::unique_ptr<Table>> m_tables; ///< by lower-case name
    QStringList m_tableNames;
    QList<Relation> m_relations;
    PlanMemo<SelectPlan> m_memo;
    int m_readers = 0;
    int m_bursts = 0;
    std::optional<Origin> m_origin;
    bool m_steady = false; ///< a stretch of reading is under way
    std::unordered_map<std::u16string, std::shared_ptr<const SelectPlan>> m_plans; ///< by shape
};

/// Runs a change of several statements as one: all of it or nothing.
class Transaction {
public:
    explicit Transaction(Connection& connection);
    ~Transaction();
    Q_DISABLE_COPY_MOVE(Transaction)
    void commit();
    void abandon() { m_done = true; } ///< the connection is closed, and has taken everything back

private:
    Connection& m_connection;
    bool m_done = false;
};

} // namespace dao
