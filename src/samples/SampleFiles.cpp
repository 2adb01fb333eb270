#include "SampleFiles.h"

#include "CDBCreator.h"
#include "CDBHandler.h"
#include "EngineError.h"
#include "SampleError.h"
#include "SampleWriter.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

/// Collects what goes wrong instead of showing it.
class Failures {
public:
    void add(const QString& description) { m_descriptions.append(description); }
    /// Throws when there are any.
    void check(const QString& path) const {
        if (!m_descriptions.isEmpty())
            throw SampleError(u"%1: %2"_s.arg(path, m_descriptions.join(u' ')));
    }

private:
    QStringList m_descriptions;
};

void writeDatabase(const QString& path, const SampleKind& kind, const SampleData& data, QDate today) {
    Failures failures;
    const auto report = [&failures](const QString& description) { failures.add(description); };
    CDBHandler handler(report);
    handler.Lang1Name = kind.language1;
    handler.Lang2Name = kind.language2;
    CDBCreator creator({.fileExists = report, .reportError = report, .internalError = [] {}});
    handler.Database = creator.CreateNewDatabase(path, true, handler);
    failures.check(path);
    handler.OpenAllRecordsets();
    failures.check(path);
    SampleWriter(handler, data, today).writeAll();
    handler.CloseAllDBObjects();
    failures.check(path);
}

/// Where a database is written before it goes to its place. Every change is forced to the disk by itself,
/// some thousands of them, which takes minutes on a slow one; so the folder lies in memory if there is one.
QString workFolder() {
    const QFileInfo memory(u"/dev/shm"_s);
    return memory.isDir() && memory.isWritable() ? memory.filePath() : QDir::tempPath();
}

/// The target is the whole copy or what it was before.
void copyFile(const QString& from, const QString& to) {
    QFile source(from);
    QSaveFile target(to);
    if (!source.open(QIODevice::ReadOnly))
        throw SampleError(u"%1: %2"_s.arg(from, source.errorString()));
    if (!target.open(QIODevice::WriteOnly))
        throw SampleError(u"%1: %2"_s.arg(to, target.errorString()));
    target.write(source.readAll());
    if (!target.commit())
        throw SampleError(u"%1: %2"_s.arg(to, target.errorString()));
}

} // namespace

const std::array<SampleKind, 2>& sampleKinds() {
    static const std::array<SampleKind, 2> kinds{{
        {u"Example.lmt"_s, u"german-english"_s, u"German"_s, u"English"_s},
        {u"ExampleGerman.lmt"_s, u"german-spanish"_s, u"Deutsch"_s, u"Spanisch"_s},
    }};
    return kinds;
}

void makeSampleFile(const QString& path, const SampleKind& kind, const SampleData& data, QDate today) {
    const QTemporaryDir folder(workFolder() + "/lingomat-samples-XXXXXX"_L1);
    if (!folder.isValid())
        throw SampleError(u"%1: %2"_s.arg(path, folder.errorString()));
    const QString unfinished = folder.filePath(kind.fileName);
    try {
        writeDatabase(unfinished, kind, data, today);
    } catch (const dao::Error& error) {
        throw SampleError(u"%1: %2"_s.arg(path, error.Description()));
    }
    copyFile(unfinished, path);
}

} // namespace lingomat
