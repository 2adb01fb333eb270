#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

struct sqlite3;

namespace dao {

/// A database file as another program sees it: a SQLite connection of its own beside the engine's.
class RawFile {
public:
    explicit RawFile(const QString& path);

    /// Runs one or more statements; fails the test where that fails.
    void run(const QString& sql);
    /// As run(), but tells by its result whether it worked.
    [[nodiscard]] bool tryRun(const QString& sql);

    /// Every row of a query, "NULL" for Null.
    [[nodiscard]] std::vector<QStringList> rows(const QString& sql);
    /// The rows of a query, the columns of each joined by " | ".
    [[nodiscard]] QStringList lines(const QString& sql);
    /// First column of the first row; "nothing" without a row.
    [[nodiscard]] QString cell(const QString& sql);

private:
    struct Closer {
        void operator()(sqlite3* handle) const;
    };
    std::unique_ptr<sqlite3, Closer> m_handle;
};

} // namespace dao
