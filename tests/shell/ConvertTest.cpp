// Conversion of files of older versions, by the command Open: what is asked, and every way to end.

#include "ConvertMessages.h"
#include "ConvertSupport.h"
#include "Globals.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

QString inLanguage(const QString& language, const QString& german, const QString& english) {
    return language == u"En"_s ? english : german;
}

/// A program with a database open that is told to open a file of an older version.
class Convert : public testing::TestWithParam<QString> {
protected:
    Convert() {
        program.startWithDatabase();
        writeFile(old, jetBytes(u"old2_jet3_cp1250.mdb"_s));
    }
    ~Convert() override {
        EXPECT_EQ(readFile(old), source) << "the old file is never touched";
        EXPECT_EQ(QDir(program.path(u"."_s)).entryList({u"*.part*"_s}, QDir::Files | QDir::Hidden),
                  QStringList());
    }
    [[nodiscard]] QString text(const QString& german, const QString& english) const {
        return inLanguage(GetParam(), german, english);
    }
    void expectQuestion(QMessageBox::StandardButton answer) {
        program.prompts.expectOpenFile(old);
        program.prompts.expect(
            {.icon = QMessageBox::Warning,
             .text =
                 text(u"Die Datei '%1' ist im alten mdb-Format. Um mit Ihrer Datenbank arbeiten zu "
                      u"können, muß sie ins aktuelle lmt-Format konvertiert werden. Soll die "
                      u"Konvertierung vorgenommen werden?"_s,
                      u"The file '%1' is in the old mdb-format. In order to work with the database is has "
                      u"to be converted into the new lmt-format. Shall the conversion be started?"_s)
                     .arg(old),
             .answer = answer,
             .title = text(u"Konvertieren"_s, u"Convert"_s),
             .buttons = QMessageBox::Yes | QMessageBox::No,
             .defaultButton = QMessageBox::Yes});
    }
    void expectOverwrite(const QString& file, QMessageBox::StandardButton answer) {
        program.prompts.expect({.icon = QMessageBox::Question,
                                .text = text(u"Datei %1 existiert bereits. Datei überschreiben?"_s,
                                             u"File %1 already exists. Overwrite file?"_s)
                                            .arg(file),
                                .answer = answer,
                                .title = {},
                                .buttons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel,
                                .defaultButton = QMessageBox::Yes});
    }
    void open() { program.choose("Datei_Open"); }
    void expectNothingOpen() {
        EXPECT_EQ(program.app().state().CurrentDBPath, QString());
        EXPECT_FALSE(program.app().state().DBHandler.Database.isOpen());
        EXPECT_FALSE(program.isEnabled("Command1"));
        EXPECT_EQ(program.recentDatabase(), program.path(u"vocab.lmt"_s));
    }
    void expectConverted(const QString& file) {
        EXPECT_EQ(program.app().state().CurrentDBPath, file);
        EXPECT_EQ(program.recentDatabase(), file);
        EXPECT_EQ(program.app().state().DBHandler.RecordsetAuswahl.RecordCount(), 9);
        EXPECT_EQ(program.label("Lang1Label"), u"Polnisch"_s);
        EXPECT_TRUE(program.isEnabled("Command1"));
    }

    TestProgram program{GetParam()};
    const QString old = program.path(u"alt.mdb"_s);
    const QString converted = program.path(u"alt.lmt"_s);
    const QByteArray source = jetBytes(u"old2_jet3_cp1250.mdb"_s);
};

INSTANTIATE_TEST_SUITE_P(Languages, Convert, testing::Values(u"En"_s, u"De"_s),
                         [](const auto& parameter) { return parameter.param.toStdString(); });

TEST_P(Convert, AnswerNoLeavesNothingOpen) {
    expectQuestion(QMessageBox::No);
    open();
    expectNothingOpen();
    EXPECT_FALSE(QFile::exists(converted));
}

TEST_P(Convert, AnswerYesAsksForANameAndOpensTheNewFile) {
    expectQuestion(QMessageBox::Yes);
    program.prompts.expectSaveFile(converted);
    open();
    EXPECT_EQ(program.prompts.lastFileRequest().title,
              text(u"Name für die konvertierte Datenbank"_s, u"Name for Converted Database"_s));
    EXPECT_EQ(program.prompts.lastFileRequest().filter,
              text(u"LMT-Dateien (*.lmt);;Alle Dateien (*)"_s, u"LMT-files (*.lmt);;all files (*)"_s));
    EXPECT_EQ(program.prompts.lastFileRequest().directory, converted) << "the name that is proposed";
    EXPECT_FALSE(program.prompts.lastFileRequest().confirmOverwrite) << "the program asks by itself";
    expectConverted(converted);
}

TEST_P(Convert, NameIsTakenAsItIs) {
    expectQuestion(QMessageBox::Yes);
    program.prompts.expectSaveFile(program.path(u"ohne Endung"_s));
    open();
    expectConverted(program.path(u"ohne Endung"_s));
}

TEST_P(Convert, CancelledNameLeavesNothingOpen) {
    expectQuestion(QMessageBox::Yes);
    program.prompts.expectSaveFile({});
    open();
    expectNothingOpen();
    EXPECT_FALSE(QFile::exists(converted));
}

TEST_P(Convert, ExistingFileIsReplacedAfterTheAnswerYes) {
    writeFile(converted, "before");
    expectQuestion(QMessageBox::Yes);
    program.prompts.expectSaveFile(converted);
    expectOverwrite(converted, QMessageBox::Yes);
    open();
    expectConverted(converted);
}

TEST_P(Convert, AnswerNoToOverwritingAsksForAnotherName) {
    const QString other = program.path(u"other.lmt"_s);
    writeFile(converted, "before");
    expectQuestion(QMessageBox::Yes);
    program.prompts.expectSaveFile(converted);
    expectOverwrite(converted, QMessageBox::No);
    program.prompts.expectSaveFile(other);
    open();
    expectConverted(other);
    EXPECT_EQ(readFile(converted), "before");
}

TEST_P(Convert, CancelOfOverwritingGivesUp) {
    writeFile(converted, "before");
    expectQuestion(QMessageBox::Yes);
    program.prompts.expectSaveFile(converted);
    expectOverwrite(converted, QMessageBox::Cancel);
    open();
    expectNothingOpen();
    EXPECT_EQ(readFile(converted), "before");
}

TEST_P(Convert, SourceIsRefusedAsTheTarget) {
    QFile::link(old, program.path(u"link.lmt"_s));
    expectQuestion(QMessageBox::Yes);
    for (const QString& name : {old, program.path(u"link.lmt"_s)}) {
        program.prompts.expectSaveFile(name);
        expectOverwrite(name, QMessageBox::Yes);
        program.prompts.expectExclamation(
            text(u"Die Datei '%1' wird gerade konvertiert und kann nicht überschrieben werden. Bitte wählen "
                 u"Sie einen anderen Namen."_s,
                 u"The file '%1' is the one being converted and cannot be overwritten. Please choose another "
                 u"name."_s)
                .arg(name));
    }
    program.prompts.expectSaveFile(converted);
    open();
    expectConverted(converted);
}

TEST_P(Convert, FolderThatDoesNotExistIsToldByItsName) {
    const QString nowhere = program.path(u"nowhere/alt.lmt"_s);
    expectQuestion(QMessageBox::Yes);
    program.prompts.expectSaveFile(nowhere);
    program.prompts.expectErrorContaining(nowhere);
    open();
    expectNothingOpen();
}

TEST_P(Convert, FolderInPlaceOfTheTargetIsTold) {
    QDir().mkpath(converted + "/x"_L1);
    expectQuestion(QMessageBox::Yes);
    program.prompts.expectSaveFile(converted);
    expectOverwrite(converted, QMessageBox::Yes);
    program.prompts.expectErrorContaining(converted);
    open();
    expectNothingOpen();
    EXPECT_TRUE(QFile::exists(converted + "/x"_L1));
}

TEST_P(Convert, StartsTheProgramWithTheNewFile) {
    program.end();
    program.rememberDatabase(old);
    program.prompts.expect({.icon = QMessageBox::Warning,
                            .text = ExpectedText::containing(old),
                            .answer = QMessageBox::Yes,
                            .title = text(u"Konvertieren"_s, u"Convert"_s)});
    program.prompts.expectSaveFile(converted);
    program.start();
    expectConverted(converted);
}

TEST_P(Convert, CancelledAtTheStartLeavesNothingOpen) {
    program.end();
    program.rememberDatabase(old);
    program.prompts.expect(
        {.icon = QMessageBox::Warning, .text = ExpectedText::containing(old), .answer = QMessageBox::Yes});
    program.prompts.expectSaveFile({});
    program.start();
    EXPECT_EQ(program.app().state().CurrentDBPath, QString());
    EXPECT_FALSE(program.app().state().FormIsLoading);
    EXPECT_TRUE(program.app().form1().isVisible());
    EXPECT_FALSE(program.isEnabled("Command1"));
}

TEST_P(Convert, WorksAgainAfterItWasGivenUp) {
    expectQuestion(QMessageBox::Yes);
    program.prompts.expectSaveFile({});
    open();
    expectQuestion(QMessageBox::Yes);
    program.prompts.expectSaveFile(converted);
    open();
    expectConverted(converted);
}

TEST(ProposedName, HasTheNewExtension) {
    setInterfaceLanguage(u"En"_s);
    EXPECT_EQ(proposedName(u"/a/alt.mdb"_s), u"/a/alt.lmt"_s);
    EXPECT_EQ(proposedName(u"/a/alt.MDB"_s), u"/a/alt.lmt"_s);
    EXPECT_EQ(proposedName(u"/a.b/x.y.mdb"_s), u"/a.b/x.y.lmt"_s);
    EXPECT_EQ(proposedName(u"/a/abc"_s), u"/a/abc.lmt"_s) << "nothing of the folder is cut off";
    EXPECT_EQ(proposedName(u"/a/alt.lmt"_s), u"/a/alt_converted.lmt"_s) << "not the old file itself";
}

} // namespace
} // namespace lingomat
