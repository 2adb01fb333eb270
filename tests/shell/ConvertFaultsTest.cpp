// Files that are damaged or lack something, and a disk that is full: a message, and never half a database.

#include "ConvertSupport.h"

#include <QDir>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

/// While it lives, no file grows beyond that many bytes.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &m_before); }
    Q_DISABLE_COPY_MOVE(FullDisk)

private:
    rlimit m_before{};
};

class ConvertFault : public testing::Test {
protected:
    ConvertFault() {
        program.promptsInPlace = &prompts;
        program.startWithDatabase();
        prompts.texts.clear();
        prompts.newFile = program.path(u"new.lmt"_s);
    }
    void open(const QString& file) {
        const QByteArray before = readFile(file);
        prompts.fileToOpen = file;
        program.choose("Datei_Open");
        EXPECT_EQ(readFile(file), before) << "the old file is never touched";
        EXPECT_EQ(QDir(program.path(u"."_s)).entryList({u"*.part*"_s}, QDir::Files | QDir::Hidden),
                  QStringList());
    }
    void openJet(const QString& name) {
        const QString file = program.path(u"file"_s + name.right(4));
        writeFile(file, jetBytes(u"damaged/"_s + name));
        open(file);
    }
    void openOld(const OldDatabase& database) {
        const QString file = program.path(u"old.mdb"_s);
        QFile::remove(file);
        writeOldDatabase(file, database);
        open(file);
    }
    [[nodiscard]] bool isConverted() {
        return program.app().state().CurrentDBPath == prompts.newFile && QFile::exists(prompts.newFile);
    }
    void expectRefused(const QString& text) {
        EXPECT_EQ(prompts.told(text), 1) << prompts.texts.join(u'\n').toStdString();
        EXPECT_FALSE(QFile::exists(prompts.newFile));
        EXPECT_EQ(program.app().state().CurrentDBPath, QString());
        EXPECT_FALSE(program.app().state().DBHandler.Database.isOpen());
        EXPECT_FALSE(program.isEnabled("Command1"));
    }

    ConvertingPrompts prompts;
    TestProgram program;
};

TEST_F(ConvertFault, LostRowsAreToldWithTheirNumber) {
    openJet(u"vok_row_tails.mdb"_s);
    EXPECT_EQ(prompts.told(u"Vokabular: 19"_s), 1) << prompts.texts.join(u'\n').toStdString();
    EXPECT_TRUE(isConverted());
    EXPECT_EQ(tableRows(prompts.newFile, u"Vokabular"_s).size(), 17);
}

TEST_F(ConvertFault, LostRowsOfOtherTablesAreToldWhereTheyAreCarriedOver) {
    openJet(u"bereiche_zwischen_random.lmt"_s);
    EXPECT_EQ(prompts.told(u"Bereiche_Zwischen: 255"_s), 1);
    EXPECT_TRUE(isConverted());
    EXPECT_EQ(tableRows(prompts.newFile, u"Bereiche_Zwischen"_s).size(), 36);
    EXPECT_EQ(tableRows(prompts.newFile, u"Vokabular"_s).size(), 203);
}

TEST_F(ConvertFault, FileWithoutAReadableEntryIsRefused) {
    openJet(u"trunc_half.lmt"_s);
    expectRefused(u"None of its entries can be read."_s);
}

TEST_F(ConvertFault, MissingFieldIsToldByItsName) {
    openJet(u"missing_fields.mdb"_s);
    expectRefused(u"Lang2_Kommentar"_s);
    openOld({.rows = {{}}, .missingFields = {u"Bereich"_s}});
    expectRefused(u"'Bereich'"_s);
}

TEST_F(ConvertFault, MissingTableIsToldByItsName) {
    openJet(u"missing_tables.lmt"_s);
    expectRefused(u"Bereiche_Zwischen"_s);
}

TEST_F(ConvertFault, TextThatDoesNotFitIsToldWithItsEntry) {
    openOld({.rows = {{}, {{u"Quelle"_s, QString(51, u'x')}}}});
    expectRefused(
        u"Vokabular.Quelle' is too small to accept the amount of data you attempted to add. (ID 2)"_s);
}

TEST_F(ConvertFault, ValueOfAnotherTypeIsTold) {
    openJet(u"other_types.mdb"_s);
    expectRefused(u"Data type conversion error."_s);
}

TEST_F(ConvertFault, LaterVersionIsToldAndNotConverted) {
    openJet(u"future_version.lmt"_s);
    EXPECT_EQ(prompts.questions, 0);
    expectRefused(u"was made by a later version of the program and cannot be opened."_s);
}

TEST_F(ConvertFault, DamagedVersionIsNotTakenForTheOldestOne) {
    openJet(u"prop_magic.mdb"_s);
    EXPECT_EQ(prompts.questions, 0);
    expectRefused(u"property 'DBVersion'"_s);
    EXPECT_EQ(prompts.told(u"not a valid language database"_s), 1);
}

TEST_F(ConvertFault, FailureLeavesAnExistingFileAsItWas) {
    writeFile(prompts.newFile, "before");
    openJet(u"missing_main.mdb"_s);
    EXPECT_EQ(prompts.told(u"already exists"_s), 1);
    EXPECT_EQ(prompts.told(u"Spanisch_Main"_s) + prompts.told(u"Spanisch_Prefix"_s), 1)
        << prompts.texts.join(u'\n').toStdString();
    EXPECT_EQ(readFile(prompts.newFile), "before");
    EXPECT_EQ(program.app().state().CurrentDBPath, QString());
}

TEST_F(ConvertFault, FullDiskIsToldAndLeavesNothing) {
    QList<OldRow> many;
    for (int i = 0; i < 3000; ++i)
        many.append({{u"Lang1_Main"_s, QString(90, u'x')}, {u"Bereich"_s, u"Sport%1@"_s.arg(i % 50)}});
    const QString file = program.path(u"old.mdb"_s);
    writeOldDatabase(file, {.rows = many});
    prompts.fileToOpen = file;
    for (const rlim_t limit : {rlim_t{0}, rlim_t{20000}, rlim_t{150000}, rlim_t{400000}}) {
        SCOPED_TRACE(limit);
        prompts.texts.clear();
        {
            const FullDisk full(limit);
            program.choose("Datei_Open");
        }
        EXPECT_EQ(prompts.texts.size(), 1) << prompts.texts.join(u'\n').toStdString();
        EXPECT_FALSE(QFile::exists(prompts.newFile));
        EXPECT_EQ(QDir(program.path(u"."_s)).entryList({u"*.part*"_s}, QDir::Files), QStringList());
        EXPECT_EQ(program.app().state().CurrentDBPath, QString());
    }
    program.choose("Datei_Open");
    EXPECT_TRUE(isConverted()) << "with room, it works";
}

TEST_F(ConvertFault, EveryDamagedFileIsAnswered) {
    for (const QString& name : damagedJetFiles()) {
        SCOPED_TRACE(name.toStdString());
        QFile::remove(prompts.newFile);
        prompts.texts.clear();
        openJet(name.section(u'/', 1));
        EXPECT_TRUE(program.app().form1().isVisible());
        const bool converted = isConverted();
        EXPECT_EQ(QFile::exists(prompts.newFile), converted);
        EXPECT_TRUE(converted || !prompts.texts.isEmpty());
    }
}

TEST_F(ConvertFault, EveryDamagedFileIsAnsweredAtTheStart) {
    for (const QString& name : damagedJetFiles().filter(u"_random"_s)) {
        SCOPED_TRACE(name.toStdString());
        const QString file = program.path(u"start.mdb"_s);
        writeFile(file, jetBytes(name));
        program.end();
        QFile::remove(prompts.newFile);
        prompts.texts.clear();
        program.rememberDatabase(file);
        program.start();
        EXPECT_TRUE(program.app().form1().isVisible());
        EXPECT_FALSE(program.app().state().FormIsLoading);
        EXPECT_EQ(QFile::exists(prompts.newFile), isConverted());
        EXPECT_TRUE(isConverted() || !prompts.texts.isEmpty());
    }
}

} // namespace
} // namespace lingomat
