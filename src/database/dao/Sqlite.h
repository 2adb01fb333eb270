#pragma once

// Private to the engine: the only header that lets SQLite in.

#include "EngineError.h"
#include "Value.h"

#include <sqlite3.h>

#include <QByteArray>
#include <QStringConverter>

#include <memory>

namespace dao {

struct SqliteCloser {
    void operator()(sqlite3* handle) const { sqlite3_close_v2(handle); }
};
using SqliteHandle = std::unique_ptr<sqlite3, SqliteCloser>;

/// The engine's error for the last failure on this connection.
[[nodiscard]] Error sqliteError(sqlite3* handle);
[[nodiscard]] Error sqliteError(int code, const char* message);

/// How texts pass between program and file: a mark of byte order in front is text like any other. Half a
/// character becomes the replacement sign (not "?", which would be a wildcard in a pattern).
inline constexpr auto ExactText =
    QStringConverter::Flag::Stateless | QStringConverter::Flag::ConvertInitialBom;
[[nodiscard]] QByteArray toUtf8(QStringView text);
[[nodiscard]] QString fromUtf8(QByteArrayView utf8);

/// A prepared statement. Parameters and columns as SQLite counts them: from 1 and from 0.
class Statement {
public:
    Statement(sqlite3* handle, const QByteArray& sql);

    void bind(int parameter, qint64 number);
    void bind(int parameter, const QString& text);
    void bind(int parameter, const Value& value);
    /// True with a row, false at the end.
    bool step();
    /// Makes the statement ready for another run.
    void reset() noexcept;

    [[nodiscard]] int columnCount() const { return sqlite3_column_count(m_statement.get()); }
    [[nodiscard]] int columnType(int column) const { return sqlite3_column_type(m_statement.get(), column); }
    [[nodiscard]] qint64 integer(int column) const { return sqlite3_column_int64(m_statement.get(), column); }
    [[nodiscard]] double real(int column) const { return sqlite3_column_double(m_statement.get(), column); }
    [[nodiscard]] QByteArrayView utf8(int column) const;
    [[nodiscard]] QString text(int column) const { return fromUtf8(utf8(column)); }
    [[nodiscard]] Value value(int column) const;

private:
    struct Finalizer {
        void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
    };
    void check(int code) const;

    std::unique_ptr<sqlite3_stmt, Finalizer> m_statement;
};

/// One run of a statement: resets it at the end, however that comes.
class StatementRun {
public:
    explicit StatementRun(Statement& statement) : m_statement(statement) {}
    ~StatementRun() { m_statement.reset(); }
    Q_DISABLE_COPY_MOVE(StatementRun)
    Statement* operator->() const { return &m_statement; }
    Statement& operator*() const { return m_statement; }

private:
    Statement& m_statement;
};

/// A name as SQL takes it: in double quotes, those within it doubled.
[[nodiscard]] QByteArray quotedName(const QString& name);

/// Registers the collation and the function that compiled criteria rely on.
void registerTextRules(sqlite3* handle);

} // namespace dao
