#include "SampleFiles.h"

#include "CDBCreator.h"
#include "CDBHandler.h"
#include "EngineError.h"
#include "SampleError.h"
#include "SampleWriter.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <filesystem>
#include <system_error>

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

std::filesystem::path nativePath(const QString& path) {
    return std::filesystem::path(path.toStdU16String());
}

void replaceFile(const QString& from, const QString& to) {
    std::error_code error;
    std::filesystem::rename(nativePath(from), nativePath(to), error);
    if (error)
        throw SampleError(u"%1: %2"_s.arg(to, QString::fromStdString(error.message())));
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
    // Beside the target, so that the last step is a mere renaming; a run that was killed before leaves
    // nothing that a later one would trip over.
    const QTemporaryDir folder(QFileInfo(path).path() + "/samples-XXXXXX"_L1);
    if (!folder.isValid())
        throw SampleError(u"%1: %2"_s.arg(path, folder.errorString()));
    const QString unfinished = folder.filePath(kind.fileName);
    try {
        writeDatabase(unfinished, kind, data, today);
    } catch (const dao::Error& error) {
        throw SampleError(u"%1: %2"_s.arg(path, error.Description()));
    }
    replaceFile(unfinished, path);
}

} // namespace lingomat
