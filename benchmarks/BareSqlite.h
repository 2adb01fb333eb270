#pragma once

#include <QString>

#include <functional>
#include <memory>

/// What the same work costs with nothing but SQLite and prepared statements: the yardstick of the ratios.
class BareSqlite {
public:
    explicit BareSqlite(const QString& path);
    ~BareSqlite();
    Q_DISABLE_COPY_MOVE(BareSqlite)

    /// Reads every entry with all its fields, and for each the areas, the grammatical and the functional
    /// attributes. Gives the number of bytes read, so that nothing can be left out.
    [[nodiscard]] qint64 readEverything();

    /// Reads the parts of the second expression of every entry, which `take` is given.
    void readExpressions(
        const std::function<void(const QString& prefix, const QString& main, const QString& suffix)>& take);

    /// Reads the score of one entry by its key and writes another, durably.
    void changeScore(qint64 key, int score);

private:
    struct Statements;
    std::unique_ptr<Statements> m_statements;
};
