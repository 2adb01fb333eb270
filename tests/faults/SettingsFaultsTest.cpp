// Settings that are damaged or cannot be written.

#include "FaultSupport.h"

#include "Globals.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <random>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

class Settings : public testing::Test {
protected:
    Settings() {
        program.promptsInPlace = &prompts;
        QDir().mkpath(program.settingsFolder());
    }
    [[nodiscard]] QString settingsFile() const { return program.settingsFolder() + "/LMT.ini"_L1; }
    void expectRunning() {
        EXPECT_TRUE(program.app().form1().isVisible());
        program.click("Command4");
        EXPECT_FALSE(program.app().form1().isVisible());
    }

    RecordingPrompts prompts;
    TestProgram program;
};

TEST_F(Settings, DamagedFileIsAFirstStartThatKeepsACopy) {
    const QByteArray damaged = QByteArray("\xff\xfe\0[[Parameters\nRecentDB\n=\n[x\n", 30);
    writeFile(settingsFile(), damaged);
    program.installSample();
    program.start();
    EXPECT_EQ(program.app().state().CurrentDBPath, program.sample());
    EXPECT_EQ(readFile(settingsFile() + ".damaged"_L1), damaged);
    expectRunning();
}

TEST_F(Settings, RandomBytesNeverEndTheProgram) {
    program.installSample();
    program.start();
    program.click("Command4");
    program.end();
    const QByteArray sound = readFile(settingsFile());
    for (unsigned seed = 1; seed <= 25; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        QByteArray bytes = sound;
        for (int changes = 0; changes < 6; ++changes)
            bytes[static_cast<qsizetype>(random() % static_cast<unsigned>(bytes.size()))] =
                static_cast<char>(random());
        writeFile(settingsFile(), bytes);
        program.start();
        expectRunning();
    }
}

TEST_F(Settings, FolderInPlaceOfTheFileIsTold) {
    ASSERT_TRUE(QDir().mkpath(settingsFile() + "/x"_L1));
    program.installSample();
    program.start();
    EXPECT_FALSE(prompts.texts.isEmpty());
    EXPECT_EQ(program.app().state().CurrentDBPath, program.sample()) << "the program comes up all the same";
    expectRunning();
}

TEST_F(Settings, FileThatCannotBeWrittenIsTold) {
    for (const auto& [language, text] :
         {std::pair{u"En"_s, u"The settings could not be saved"_s},
          std::pair{u"De"_s, u"Die Einstellungen konnten nicht gespeichert werden"_s}}) {
        RecordingPrompts recording;
        TestProgram each(language);
        each.promptsInPlace = &recording;
        each.installSample();
        QDir().mkpath(each.settingsFolder());
        chmod(QFile::encodeName(each.path(u"."_s)).constData(), 0755);
        chmod(QFile::encodeName(each.settingsFolder()).constData(), 0555);
        {
            const OrdinaryUser user;
            each.start();
            EXPECT_TRUE(recording.texts.value(0).contains(text)) << recording.texts.join(u'\n').toStdString();
            EXPECT_EQ(each.app().state().CurrentDBPath, each.sample());
            EXPECT_TRUE(each.app().form1().isVisible());
            each.click("Command4");
            EXPECT_FALSE(each.app().form1().isVisible());
        }
        EXPECT_EQ(QDir(each.settingsFolder()).entryList(QDir::Files).size(), 0);
        chmod(QFile::encodeName(each.settingsFolder()).constData(), 0755);
    }
}

TEST_F(Settings, PathsOfEveryKindComeBack) {
    for (const auto& name :
         {u"a b"_s, u"ä%20=;[x]"_s, u"l'eau"_s, u"\"q\""_s, u"#1,2"_s, u"日本"_s, u"\U0001F600"_s}) {
        SCOPED_TRACE(name.toStdString());
        const QString file = program.path(name + ".lmt"_L1);
        writeDatabase(file, {.entries = someEntries()});
        program.installSample();
        program.start();
        prompts.fileToOpen = file;
        program.choose("Datei_Open");
        EXPECT_EQ(program.app().state().CurrentDBPath, file);
        program.click("Command4");
        program.start();
        EXPECT_EQ(program.app().state().CurrentDBPath, file);
        program.click("Command4");
    }
}

} // namespace
} // namespace lingomat
