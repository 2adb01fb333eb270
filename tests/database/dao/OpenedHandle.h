#pragma once

struct sqlite3;

namespace dao {

/// The SQLite connection that was opened last, by whomever: a way into the engine's own, for its wait.
class OpenedHandle {
public:
    OpenedHandle();

    /// Sets how long the connection waits for a file that another one holds, in milliseconds.
    void waitNoLongerThan(int milliseconds) const;
    [[nodiscard]] int waitsFor() const;
};

} // namespace dao
