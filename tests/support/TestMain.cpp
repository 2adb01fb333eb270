#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdio>

namespace {

/// Temporary files go to memory where the system has a place for that: databases wait for the disk at every
/// change, which a test has no use for.
void keepTemporaryFilesInMemory() {
    const QFileInfo memory(QStringLiteral("/dev/shm"));
    if (qEnvironmentVariableIsEmpty("TMPDIR") && memory.isDir() && memory.isWritable())
        qputenv("TMPDIR", "/dev/shm");
}

/// Points every place where a program keeps something of the user's into a folder that goes with the test.
bool isolate(const QTemporaryDir& home) {
    if (!home.isValid())
        return false;
    const auto put = [&home](const char* variable, const char* folder) {
        const QString path = home.filePath(QString::fromLatin1(folder));
        return QDir().mkpath(path) && qputenv(variable, QFile::encodeName(path));
    };
    return put("HOME", ".") && put("XDG_CONFIG_HOME", "config") && put("XDG_DATA_HOME", "data") &&
           put("XDG_CACHE_HOME", "cache");
}

} // namespace

int main(int argc, char** argv) {
    keepTemporaryFilesInMemory();
    const QTemporaryDir home;
    if (!isolate(home)) {
        std::fputs("no temporary folder for the test\n", stderr);
        return 1;
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");

    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
