#include "StatementCounter.h"

#include <sqlite3.h>

namespace dao {

namespace {

struct Counts {
    qint64 statements = 0;
    qint64 steps = 0;
};
Counts counts;

int count(unsigned /*event*/, void* /*context*/, void* statement, void* /*nanoseconds*/) {
    ++counts.statements;
    counts.steps += sqlite3_stmt_status(static_cast<sqlite3_stmt*>(statement), SQLITE_STMTSTATUS_VM_STEP, 1);
    return 0;
}

int watch(sqlite3* handle, const char** /*error*/, const sqlite3_api_routines* /*api*/) {
    return sqlite3_trace_v2(handle, SQLITE_TRACE_PROFILE, count, nullptr);
}

} // namespace

StatementCounter::StatementCounter() {
    // Registering the same entry point again does nothing.
    sqlite3_auto_extension(reinterpret_cast<void (*)()>(watch));
    restart();
}

void StatementCounter::restart() {
    counts = {};
}

qint64 StatementCounter::statements() const {
    return counts.statements;
}

qint64 StatementCounter::steps() const {
    return counts.steps;
}

} // namespace dao
