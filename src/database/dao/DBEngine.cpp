#include "DBEngine.h"

#include "Connection.h"
#include "JetCopy.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace dao {

namespace {

constexpr QByteArrayView SqliteMagic("SQLite format 3\0", 16);

Error invalidPath(const QString& path) {
    return {ErrorNumber::InvalidPath,
            u"'%1' is not a valid path. Make sure that the path name is spelled correctly."_s.arg(path)};
}

Error cannotOpen(const QString& path) {
    return {
        ErrorNumber::CannotOpenFile,
        u"Cannot open the file '%1'. It is in use by another program, or permission is missing."_s.arg(path)};
}

enum class FileKind { Own, Jet };

/// Looks at the file before SQLite does: an empty file would pass for an empty database there.
FileKind databaseKind(const QString& path) {
    const QFileInfo info(path);
    if (path.isEmpty() || path.contains(QChar::Null) || info.isDir())
        throw invalidPath(path);
    if (!info.exists())
        throw Error(ErrorNumber::FileNotFound, u"Could not find file '%1'."_s.arg(path));
    QFile file(path);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly))
        throw cannotOpen(path);
    const QByteArray start = file.read(std::max(SqliteMagic.size(), JetSignatureLength));
    if (isJetFile(start))
        return FileKind::Jet;
    if (!start.startsWith(SqliteMagic))
        throw Error(ErrorNumber::UnrecognizedFormat, unrecognizedFormat(path));
    return FileKind::Own;
}

} // namespace

Database DBEngine::OpenDatabase(const QString& path) {
    if (databaseKind(path) == FileKind::Jet)
        return Database(copyOfJetFile(path));
    return Database(std::make_shared<Connection>(path, Connection::Mode::ReadWrite));
}

Workspace DBEngine::Workspaces(int number) {
    if (number != 0)
        throw Error(ErrorNumber::ItemNotFound, u"Item not found in this collection."_s);
    return {};
}

Database Workspace::CreateDatabase(const QString& path, const QString& locale) const {
    const QFileInfo info(path);
    if (path.isEmpty() || path.contains(QChar::Null) || !info.dir().exists())
        throw invalidPath(path);
    if (info.exists() || info.isSymLink())
        throw Error(ErrorNumber::DatabaseExists, u"Database '%1' already exists."_s.arg(path));
    QFile file(path);
    // NewOnly: no file that appears in between is taken over.
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        throw cannotOpen(path);
    file.close();
    auto connection = std::make_shared<Connection>(path, Connection::Mode::Create);
    connection->recordLocale(locale);
    return Database(std::move(connection));
}

} // namespace dao
