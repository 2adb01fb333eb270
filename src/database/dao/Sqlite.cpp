#include "Sqlite.h"

#include <QString>

using namespace Qt::StringLiterals;

namespace dao {

Error sqliteError(int code, const char* message) {
    const QString detail = QString::fromUtf8(message);
    switch (code & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return {
            ErrorNumber::CouldNotUpdate,
            u"The database is currently in use by another program. Nothing was changed; please try again."_s};
    case SQLITE_READONLY: return {ErrorNumber::ReadOnly, u"Cannot update. The database is read-only."_s};
    case SQLITE_FULL: return {ErrorNumber::DiskFull, u"The disk is full. Nothing was changed."_s};
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return {ErrorNumber::UnrecognizedFormat,
                u"Unrecognized database format: the file is damaged or not a vocabulary database."_s};
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
    case SQLITE_AUTH:
    case SQLITE_IOERR:
        return {ErrorNumber::CannotOpenFile,
                u"The database file cannot be read or written (%1)."_s.arg(detail)};
    case SQLITE_CONSTRAINT:
        return {ErrorNumber::DuplicateKey,
                u"The change was not made because it would create duplicate values in an index or key."_s};
    default: return {ErrorNumber::ObjectInvalid, u"The database reports an error: %1."_s.arg(detail)};
    }
}

Error sqliteError(sqlite3* handle) {
    return sqliteError(sqlite3_extended_errcode(handle), sqlite3_errmsg(handle));
}

Statement::Statement(sqlite3* handle, const QByteArray& sql) {
    sqlite3_stmt* raw = nullptr;
    const int code = sqlite3_prepare_v3(handle, sql.constData(), static_cast<int>(sql.size()) + 1,
                                        SQLITE_PREPARE_PERSISTENT, &raw, nullptr);
    m_statement.reset(raw);
    if (code != SQLITE_OK)
        throw sqliteError(handle);
}

void Statement::check(int code) const {
    if (code != SQLITE_OK)
        throw sqliteError(sqlite3_db_handle(m_statement.get()));
}

void Statement::bind(int parameter, qint64 number) {
    check(sqlite3_bind_int64(m_statement.get(), parameter, number));
}

void Statement::bind(int parameter, const QString& text) {
    const QByteArray utf8 = toUtf8(text);
    check(sqlite3_bind_text64(m_statement.get(), parameter, utf8.constData(),
                              static_cast<sqlite3_uint64>(utf8.size()), SQLITE_TRANSIENT, SQLITE_UTF8));
}

void Statement::bind(int parameter, const Value& value) {
    if (value.isNull())
        check(sqlite3_bind_null(m_statement.get(), parameter));
    else if (value.isInteger())
        bind(parameter, value.toInteger());
    else if (value.isReal())
        check(sqlite3_bind_double(m_statement.get(), parameter, value.toText().toDouble()));
    else
        bind(parameter, value.toText());
}

bool Statement::step() {
    const int code = sqlite3_step(m_statement.get());
    if (code == SQLITE_ROW)
        return true;
    if (code == SQLITE_DONE)
        return false;
    throw sqliteError(sqlite3_db_handle(m_statement.get()));
}

void Statement::reset() noexcept {
    sqlite3_reset(m_statement.get());
}

QByteArrayView Statement::utf8(int column) const {
    // The text has to be asked for before its length.
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(m_statement.get(), column));
    return {text, sqlite3_column_bytes(m_statement.get(), column)};
}

Value Statement::value(int column) const {
    switch (columnType(column)) {
    case SQLITE_NULL: return {};
    case SQLITE_INTEGER: return integer(column);
    case SQLITE_FLOAT: return real(column);
    default: return text(column);
    }
}

QByteArray toUtf8(QStringView text) {
    return QStringEncoder(QStringEncoder::Utf8, ExactText).encode(text);
}

QString fromUtf8(QByteArrayView utf8) {
    return QStringDecoder(QStringDecoder::Utf8, ExactText).decode(utf8);
}

QByteArray quotedName(const QString& name) {
    return '"' + name.toUtf8().replace('"', "\"\"") + '"';
}

} // namespace dao
