#pragma once

#include <QtGlobal>

namespace dao {

/// Counts what the engine asks of SQLite, on connections that were opened after the first counter was made.
/// Steps of SQLite's virtual machine are the same in every run, on every machine.
class StatementCounter {
public:
    StatementCounter();

    void restart();
    [[nodiscard]] qint64 statements() const; ///< runs that have ended since the start
    [[nodiscard]] qint64 steps() const;      ///< and the steps of these
};

} // namespace dao
