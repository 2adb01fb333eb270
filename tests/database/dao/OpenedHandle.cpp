#include "OpenedHandle.h"

#include "Sqlite.h"

namespace dao {

namespace {

sqlite3* last = nullptr;

int remember(sqlite3* handle, const char** /*error*/, const sqlite3_api_routines* /*api*/) {
    last = handle;
    return SQLITE_OK;
}

} // namespace

OpenedHandle::OpenedHandle() {
    sqlite3_auto_extension(reinterpret_cast<void (*)()>(remember));
}

void OpenedHandle::waitNoLongerThan(int milliseconds) const {
    sqlite3_busy_timeout(last, milliseconds);
}

int OpenedHandle::waitsFor() const {
    Statement timeout(last, "PRAGMA busy_timeout");
    return timeout.step() ? static_cast<int>(timeout.integer(0)) : -1;
}

} // namespace dao
