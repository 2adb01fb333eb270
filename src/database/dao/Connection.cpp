#include "Connection.h"

#include <QFileInfo>

#include <mutex>

using namespace Qt::StringLiterals;

namespace dao {

namespace {

constexpr std::size_t MaximumPlans = 500;
constexpr qint64 CheapCheckBytes = 4 * 1024 * 1024;

/// A connection stays with one thread, and nobody asks SQLite for its memory statistics: neither needs a
/// mutex. Without effect where somebody else in the process was first.
void configureLibrary() {
    static std::once_flag once;
    std::call_once(once, [] {
        sqlite3_config(SQLITE_CONFIG_MULTITHREAD);
        sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
    });
}

Error damagedFile(const QString& path) {
    return {ErrorNumber::UnrecognizedFormat,
            u"Unrecognized database format: the file '%1' is damaged."_s.arg(path)};
}

} // namespace

Connection::Connection(const QString& path, Mode mode) : m_path(path) {
    try {
        open(mode);
        if (mode == Mode::Copy)
            return;
        if (mode == Mode::Create)
            createCatalogue();
        else
            checkFormat();
        readCatalogue();
        if (keepsWriteAheadLog()) // left behind by a program that died in a burst
            leaveWriteAheadLog();
    } catch (const Error& error) {
        if (error.Number() == ErrorNumber::CouldNotUpdate)
            throw Error(ErrorNumber::CannotOpenFile,
                        u"Cannot open the file '%1'. It is in use by another program."_s.arg(m_path));
        throw;
    }
}

void Connection::open(Mode mode) {
    configureLibrary();
    const int flags = mode == Mode::Create ? SQLITE_OPEN_CREATE : 0;
    sqlite3* raw = nullptr;
    // Without a name it is a temporary database.
    const QByteArray name = mode == Mode::Copy ? QByteArray() : m_path.toUtf8();
    const int code =
        sqlite3_open_v2(name.constData(), &raw, flags | SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    m_handle.reset(raw);
    if (code != SQLITE_OK)
        throw sqliteError(code, raw != nullptr ? sqlite3_errmsg(raw) : "out of memory");
    configure();
}

void Connection::configure() {
    sqlite3* const handle = m_handle.get();
    sqlite3_extended_result_codes(handle, 1);
    sqlite3_busy_timeout(handle, BusyTimeout);
    // A file may come from anywhere: nothing in it gets to run code or to bend the schema.
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    // A quoted name is a name, never a text, so that one which does not exist is an error.
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
    registerTextRules(handle);
    // Set where they do not touch the file: the journal stands beside it only while a change is written,
    // and a change that has returned survives a loss of power.
    execute("PRAGMA synchronous = EXTRA");
    execute("PRAGMA temp_store = MEMORY");
    execute("PRAGMA cell_size_check = ON");
    execute("PRAGMA cache_size = -16000");
}

void Connection::requireOpen() const {
    if (!isOpen())
        throw Error(ErrorNumber::ObjectInvalid, u"Object invalid or no longer set."_s);
}

void Connection::close() {
    requireOpen();
    m_memo.clear();
    m_plans.clear();
    m_statements.clear();
    if (keepsWriteAheadLog())
        leaveWriteAheadLog();
    m_handle.reset();
}

bool Connection::isReadOnly() const {
    return m_origin || sqlite3_db_readonly(m_handle.get(), "main") == 1;
}

Statement& Connection::statement(const QByteArray& sql) {
    requireOpen();
    const auto known = m_statements.find(sql);
    if (known != m_statements.end())
        return known->second;
    return m_statements.emplace(sql, Statement(m_handle.get(), sql)).first->second;
}

void Connection::execute(const QByteArray& sql) {
    Statement once(m_handle.get(), sql);
    while (once.step()) {
    }
}

void Connection::beginReading() {
    requireOpen();
    if (m_readers == 0) {
        execute("BEGIN");
        m_steady = true;
    }
    ++m_readers;
}

void Connection::endReading() noexcept {
    if (--m_readers > 0 || !isOpen() || !m_steady)
        return;
    m_steady = false;
    try {
        execute("COMMIT");
    } catch (const Error&) {
        sqlite3_exec(m_handle.get(), "ROLLBACK", nullptr, nullptr, nullptr);
    }
}

void Connection::prepareToWrite() {
    if (!m_steady)
        return;
    m_steady = false;
    if (sqlite3_get_autocommit(m_handle.get()) == 0) // else an error has ended it already
        execute("COMMIT");
}

Table* Connection::findTable(const QString& name) {
    requireOpen();
    if (m_origin)
        if (const auto damaged = m_origin->damaged.constFind(name.toLower());
            damaged != m_origin->damaged.constEnd())
            throw Error(ErrorNumber::UnrecognizedFormat, *damaged);
    const auto found = m_tables.find(name.toLower());
    return found == m_tables.end() ? nullptr : found->second.get();
}

QStringList Connection::tableNames() const {
    return m_tableNames;
}

PlanMemo<SelectPlan>::Hit Connection::selectPlan(const QString& statement) {
    requireOpen();
    if (auto hit = m_memo.find(statement))
        return std::move(*hit);
    const criteria::LexedText text = lexStatement(statement);
    if (m_plans.size() >= MaximumPlans)
        m_plans.clear();
    auto& plan = m_plans[text.shape];
    if (plan == nullptr)
        plan = compileSelect(*this, statement, text);
    m_memo.remember(statement, text, plan);
    return {plan, text.literals};
}

void Connection::checkFormat() {
    Statement& application = statement("PRAGMA application_id");
    const StatementRun run(application);
    if (!run->step() || run->integer(0) != ApplicationId)
        throw Error(ErrorNumber::UnrecognizedFormat, unrecognizedFormat(m_path));
    Statement& layout = statement("PRAGMA user_version");
    const StatementRun layoutRun(layout);
    if (!layoutRun->step() || layoutRun->integer(0) != LayoutVersion)
        throw Error(ErrorNumber::UnrecognizedFormat,
                    u"The file '%1' was made by a later version of the program."_s.arg(m_path));
    checkWholePages();
    if (QFileInfo(m_path).size() <= CheapCheckBytes)
        checkIntegrity();
}

/// SQLite reads what is missing of a last page as zeros, which may be the end of a text.
void Connection::checkWholePages() {
    Statement& pageSize = statement("PRAGMA page_size");
    const StatementRun run(pageSize);
    if (!run->step() || QFileInfo(m_path).size() % run->integer(0) != 0)
        throw damagedFile(m_path);
}

void Connection::checkIntegrity() {
    Statement check(m_handle.get(), "PRAGMA quick_check(1)");
    if (!check.step() || check.text(0) != u"ok"_s)
        throw damagedFile(m_path);
}

QString unrecognizedFormat(const QString& path) {
    return u"Unrecognized database format '%1'."_s.arg(path);
}

Transaction::Transaction(Connection& connection) : m_connection(connection) {
    m_connection.prepareToWrite();
    m_connection.execute("BEGIN IMMEDIATE");
}

Transaction::~Transaction() {
    if (m_done)
        return;
    try {
        m_connection.execute("ROLLBACK");
    } catch (const Error&) {
        // SQLite has rolled back by itself, which is what was wanted.
    }
}

void Transaction::commit() {
    m_connection.execute("COMMIT");
    m_done = true;
}

} // namespace dao
