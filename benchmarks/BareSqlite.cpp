#include "BareSqlite.h"

#include <sqlite3.h>

#include <array>
#include <stdexcept>

namespace {

struct CloseConnection {
    void operator()(sqlite3* connection) const { sqlite3_close(connection); }
};
struct FinalizeStatement {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Connection = std::unique_ptr<sqlite3, CloseConnection>;
using Statement = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

Connection open(const QString& path) {
    sqlite3* connection = nullptr;
    const int result =
        sqlite3_open_v2(path.toUtf8().constData(), &connection, SQLITE_OPEN_READWRITE, nullptr);
    Connection owner(connection);
    if (result != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(connection));
    return owner;
}

Statement prepare(const Connection& connection, const char* sql) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(connection.get(), sql, -1, &statement, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(connection.get()));
    return Statement(statement);
}

/// Size of all texts of the current row, each fetched as the UTF-16 that the program works with.
qint64 readRow(sqlite3_stmt* statement) {
    qint64 bytes = 0;
    const int columns = sqlite3_column_count(statement);
    for (int column = 0; column < columns; ++column) {
        if (sqlite3_column_text16(statement, column) != nullptr)
            bytes += sqlite3_column_bytes16(statement, column);
    }
    return bytes;
}

QString readText(sqlite3_stmt* statement, int column) {
    const void* text = sqlite3_column_text16(statement, column);
    const int units = sqlite3_column_bytes16(statement, column) / 2;
    return QString(static_cast<const QChar*>(text), units);
}

qint64 readLinked(sqlite3_stmt* statement, qint64 key) {
    sqlite3_bind_int64(statement, 1, key);
    qint64 bytes = 0;
    while (sqlite3_step(statement) == SQLITE_ROW)
        bytes += readRow(statement);
    sqlite3_reset(statement);
    return bytes;
}

void stepOnce(sqlite3_stmt* statement, int expected) {
    const int result = sqlite3_step(statement);
    sqlite3_reset(statement);
    if (result != expected)
        throw std::runtime_error(sqlite3_errstr(result));
}

} // namespace

struct BareSqlite::Statements {
    explicit Statements(const QString& path) : connection(open(path)) {
        // As durable as the engine's own writing, and with as much memory.
        prepareAndRun("PRAGMA synchronous = EXTRA");
        prepareAndRun("PRAGMA cache_size = -16000");
        entries = prepare(connection, "SELECT * FROM Vokabular");
        lookups[0] = prepare(connection,
                             "SELECT b.Bereich_Text FROM Bereiche_Zwischen z JOIN Bereiche b ON b.ID = z.ID "
                             "WHERE z.IDV = ?1");
        lookups[1] = prepare(connection, "SELECT a.Attribut_Text FROM GrammatikalischeAttribute_Zwischen z "
                                         "JOIN GrammatikalischeAttribute a ON a.IDA = z.ID WHERE z.IDV = ?1");
        lookups[2] = prepare(connection, "SELECT a.Attribut_Text FROM FunktionaleAttribute_Zwischen z "
                                         "JOIN FunktionaleAttribute a ON a.IDA = z.ID WHERE z.IDV = ?1");
        expressions = prepare(connection, "SELECT Lang2_Prefix, Lang2_Main, Lang2_Suffix FROM Vokabular");
        find = prepare(connection, "SELECT * FROM Vokabular WHERE ID = ?1");
        change = prepare(connection, "UPDATE Vokabular SET Score = ?2 WHERE ID = ?1");
    }

    void prepareAndRun(const char* sql) const {
        const Statement statement = prepare(connection, sql);
        sqlite3_step(statement.get());
    }

    Connection connection;
    Statement entries;
    std::array<Statement, 3> lookups;
    Statement expressions;
    Statement find;
    Statement change;
};

BareSqlite::BareSqlite(const QString& path) : m_statements(std::make_unique<Statements>(path)) {}

BareSqlite::~BareSqlite() = default;

qint64 BareSqlite::readEverything() {
    qint64 bytes = 0;
    m_statements->prepareAndRun("BEGIN"); // one lock for the whole run
    sqlite3_stmt* entries = m_statements->entries.get();
    while (sqlite3_step(entries) == SQLITE_ROW) {
        bytes += readRow(entries);
        const qint64 key = sqlite3_column_int64(entries, 0);
        for (const Statement& lookup : m_statements->lookups)
            bytes += readLinked(lookup.get(), key);
    }
    sqlite3_reset(entries);
    m_statements->prepareAndRun("COMMIT");
    return bytes;
}

void BareSqlite::readExpressions(
    const std::function<void(const QString& prefix, const QString& main, const QString& suffix)>& take) {
    m_statements->prepareAndRun("BEGIN");
    sqlite3_stmt* rows = m_statements->expressions.get();
    while (sqlite3_step(rows) == SQLITE_ROW)
        take(readText(rows, 0), readText(rows, 1), readText(rows, 2));
    sqlite3_reset(rows);
    m_statements->prepareAndRun("COMMIT");
}

void BareSqlite::changeScore(qint64 key, int score) {
    sqlite3_stmt* find = m_statements->find.get();
    sqlite3_bind_int64(find, 1, key);
    stepOnce(find, SQLITE_ROW);
    sqlite3_stmt* change = m_statements->change.get();
    sqlite3_bind_int64(change, 1, key);
    sqlite3_bind_int(change, 2, score);
    stepOnce(change, SQLITE_DONE);
}
