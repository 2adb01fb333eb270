#include "UnfinishedFile.h"

#include "ErrorOf.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

class Unfinished : public testing::Test {
protected:
    [[nodiscard]] QString path(const QString& name) const { return m_folder.filePath(name); }
    static void write(const QString& path, const QByteArray& bytes) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    static QByteArray read(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }
    [[nodiscard]] QStringList files() const {
        return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

private:
    QTemporaryDir m_folder;
};

TEST_F(Unfinished, LiesBesideItsPlaceAndTakesItWhenItIsComplete) {
    UnfinishedFile file(path(u"new.lmt"_s));
    EXPECT_EQ(QFileInfo(file.path()).absolutePath(), QFileInfo(path(u"new.lmt"_s)).absolutePath());
    EXPECT_FALSE(QFile::exists(file.path()));
    write(file.path(), "all");
    EXPECT_FALSE(QFile::exists(path(u"new.lmt"_s)));
    file.takePlace(false);
    EXPECT_EQ(files(), QStringList({u"new.lmt"_s}));
    EXPECT_EQ(read(path(u"new.lmt"_s)), "all");
}

TEST_F(Unfinished, ReplacesOnlyWhenTold) {
    write(path(u"new.lmt"_s), "before");
    {
        UnfinishedFile file(path(u"new.lmt"_s));
        write(file.path(), "after");
        EXPECT_EQ(dao::errorOf([&] { file.takePlace(false); }), 3204);
        EXPECT_EQ(read(path(u"new.lmt"_s)), "before");
        file.takePlace(true);
    }
    EXPECT_EQ(read(path(u"new.lmt"_s)), "after");
    EXPECT_EQ(files().size(), 1);
}

TEST_F(Unfinished, GoesWithWhatTheEngineLeftBesideIt) {
    write(path(u"new.lmt"_s), "before");
    {
        const UnfinishedFile file(path(u"new.lmt"_s));
        for (const auto& ending : {u""_s, u"-journal"_s, u"-wal"_s, u"-shm"_s})
            write(file.path() + ending, "half");
    }
    EXPECT_EQ(files(), QStringList({u"new.lmt"_s}));
    EXPECT_EQ(read(path(u"new.lmt"_s)), "before");
}

TEST_F(Unfinished, PlaceThatIsAFolderIsAnError) {
    QDir().mkpath(path(u"new.lmt/x"_s));
    UnfinishedFile file(path(u"new.lmt"_s));
    write(file.path(), "all");
    EXPECT_EQ(dao::errorOf([&] { file.takePlace(true); }), 3051);
}

TEST_F(Unfinished, SameFileIsSeenThroughLinks) {
    write(path(u"a"_s), "a");
    write(path(u"b"_s), "a");
    QFile::link(path(u"a"_s), path(u"link"_s));
    EXPECT_TRUE(isSameFile(path(u"a"_s), path(u"a"_s)));
    EXPECT_TRUE(isSameFile(path(u"a"_s), path(u"link"_s)));
    EXPECT_TRUE(isSameFile(path(u"a"_s), path(u"./a"_s)));
    EXPECT_FALSE(isSameFile(path(u"a"_s), path(u"b"_s)));
    EXPECT_FALSE(isSameFile(path(u"a"_s), path(u"none"_s)));
}

} // namespace
} // namespace lingomat
