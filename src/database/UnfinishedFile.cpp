#include "UnfinishedFile.h"

#include "EngineError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QStringList>

#include <filesystem>
#include <system_error>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

std::filesystem::path systemPath(const QString& path) {
    return QFile::encodeName(path).toStdString();
}

/// Short, so that it fits wherever the target's name does.
QString freeNameBeside(const QString& target) {
    const QDir folder = QFileInfo(target).absoluteDir();
    while (true) {
        const quint32 number = QRandomGenerator::global()->generate();
        const QFileInfo free(folder.filePath(u"lmt-%1.part"_s.arg(number, 8, 16, QChar(u'0'))));
        if (!free.exists() && !free.isSymLink())
            return free.filePath();
    }
}

/// What the engine keeps beside a file while it writes.
const QStringList& sideFiles() {
    static const QStringList endings{u"-journal"_s, u"-wal"_s, u"-shm"_s};
    return endings;
}

dao::Error cannotWrite(const QString& path) {
    return {dao::ErrorNumber::CannotOpenFile,
            u"Cannot write the file '%1'. Permission is missing."_s.arg(path)};
}

/// What a crash has left beside another file of that name would be taken for a part of this one.
void removeSideFiles(const QString& path) {
    for (const QString& ending : sideFiles()) {
        if (QFileInfo::exists(path + ending) && !QFile::remove(path + ending))
            throw cannotWrite(path);
    }
}

bool isWrittenOut(const QString& path) {
    return QFileInfo(path + "-journal"_L1).size() == 0 && QFileInfo(path + "-wal"_L1).size() == 0;
}

} // namespace

UnfinishedFile::UnfinishedFile(const QString& target) : m_target(target), m_path(freeNameBeside(target)) {}

UnfinishedFile::~UnfinishedFile() {
    if (m_done)
        return;
    QFile::remove(m_path);
    for (const QString& ending : sideFiles())
        QFile::remove(m_path + ending);
}

void UnfinishedFile::takePlace(bool replace) {
    if (!isWrittenOut(m_path)) // a part of the file would stay behind
        throw cannotWrite(m_path);
    if (!replace && QFileInfo::exists(m_target))
        throw dao::Error(dao::ErrorNumber::DatabaseExists, u"Database '%1' already exists."_s.arg(m_target));
    removeSideFiles(m_target);
    if (replace) {
        std::error_code error;
        std::filesystem::rename(systemPath(m_path), systemPath(m_target), error);
        m_done = !error;
    } else {
        m_done = QFile::rename(m_path, m_target); // refuses to replace
    }
    if (m_done)
        return;
    if (!replace && QFileInfo::exists(m_target))
        throw dao::Error(dao::ErrorNumber::DatabaseExists, u"Database '%1' already exists."_s.arg(m_target));
    throw cannotWrite(m_target);
}

bool isSameFile(const QString& a, const QString& b) {
    std::error_code error;
    return std::filesystem::equivalent(systemPath(a), systemPath(b), error) && !error;
}

} // namespace lingomat
