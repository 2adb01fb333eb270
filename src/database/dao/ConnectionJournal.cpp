// How changes are made safe. By itself a change is written with a rollback journal, which needs several
// waits for the disk but leaves a single file behind. In a burst it goes to a write-ahead log, which needs
// none; the log is folded into the file and given up when the burst ends.

#include "Connection.h"

namespace dao {

void Connection::beginBurst() {
    requireOpen();
    if (m_bursts++ > 0 || isReadOnly())
        return;
    prepareToWrite();
    try {
        execute("PRAGMA journal_mode = WAL");
        // Only in the log: with a rollback journal it would put the file itself at risk.
        if (keepsWriteAheadLog())
            execute("PRAGMA synchronous = NORMAL");
    } catch (const Error&) {
        // Another program is reading: the changes are slower, and just as safe.
    }
}

void Connection::endBurst() noexcept {
    if (--m_bursts > 0 || !isOpen())
        return;
    sqlite3_exec(m_handle.get(), "PRAGMA synchronous = EXTRA", nullptr, nullptr, nullptr);
    if (keepsWriteAheadLog())
        leaveWriteAheadLog();
}

bool Connection::keepsWriteAheadLog() {
    try {
        Statement mode(m_handle.get(), "PRAGMA journal_mode");
        return mode.step() && mode.text(0) == QLatin1String("wal");
    } catch (const Error&) {
        return false;
    }
}

/// Fails in silence while another program has the file open: the log then stays in use, every change in it
/// synchronised, and is given up at the next occasion.
void Connection::leaveWriteAheadLog() noexcept {
    sqlite3* const handle = m_handle.get();
    sqlite3_exec(handle, "PRAGMA wal_checkpoint(TRUNCATE)", nullptr, nullptr, nullptr);
    sqlite3_busy_timeout(handle, 0);
    sqlite3_exec(handle, "PRAGMA journal_mode = DELETE", nullptr, nullptr, nullptr);
    sqlite3_busy_timeout(handle, BusyTimeout);
}

} // namespace dao
