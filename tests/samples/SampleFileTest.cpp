// The databases that are made: read over a connection of their own.

#include "CDBCreator.h"
#include "CDBHandler.h"
#include "EngineError.h"
#include "QtPrinters.h"
#include "SampleError.h"
#include "SampleFiles.h"
#include "SampleReader.h"
#include "SampleWriter.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

const QDate Today{2026, 3, 1};

SampleKind smallKind() {
    return {u"Small.lmt"_s, u"a-b"_s, u"German"_s, u"English"_s};
}

/// Two phrases, two entries, one synonym, two references.
SampleData smallData() {
    SampleData data;
    data.phrases = {{u"ja"_s, u"yes"_s}, {u"nein"_s, u"no"_s}};
    SampleEntry dog;
    dog.key = u"hund"_s;
    dog.wortart = u"noun"_s;
    dog.first = {u"der"_s, u"Hund"_s, u"-e"_s, u"Tier"_s};
    dog.second = {u"the"_s, u"dog"_s, u"s"_s, u"pet"_s};
    dog.areas = u"Animals;Home;"_s;
    dog.grammatical = u"masculine;"_s;
    dog.functional = u"formal;"_s;
    dog.source = u"Lesson 1"_s;
    dog.samplePhrase = u"Der Hund bellt."_s;
    dog.additionalInfo = u"It's a dog's life."_s;
    dog.entered = u"20200102"_s;
    dog.changed = u"20210304"_s;
    dog.score = 2;
    SampleEntry cat = dog;
    cat.key = u"katze"_s;
    cat.first.main = u"Katze"_s;
    cat.areas = u"Home;"_s;
    cat.functional.clear();
    data.entries = {dog, cat};
    data.synonyms = {{u"katze"_s, 2, {u"the"_s, u"puss"_s, u""_s, u"colloquial"_s}}};
    data.references = {{u"hund"_s, u"katze"_s, u"See also"_s},
                       {u"phrase-2"_s, u"phrase-1"_s, u"Opposite of"_s}};
    return data;
}

/// All rows of a statement, each as its fields joined by "|".
QStringList rows(const QString& path, const QString& statement) {
    const dao::Database database = dao::DBEngine::OpenDatabase(path);
    QStringList texts;
    for (dao::Recordset set = database.OpenRecordset(statement); !set.EOF_(); set.MoveNext()) {
        QStringList cells;
        for (int field = 0; field < set.fieldCount(); ++field)
            cells.append(set.field(field).toText(u"Null"_s));
        texts.append(cells.join(u'|'));
    }
    return texts;
}

qsizetype countRows(const QString& path, const QString& table) {
    return rows(path, u"SELECT * FROM "_s + table).size();
}

class SmallFile : public testing::Test {
protected:
    void SetUp() override { makeSampleFile(m_path, smallKind(), smallData(), Today); }

    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(u"Small.lmt"_s);
};

/// A new database open for writing.
class Session {
public:
    Session() {
        m_handler.Lang1Name = u"German"_s;
        m_handler.Lang2Name = u"English"_s;
        m_handler.Database = m_creator.CreateNewDatabase(path(), true, m_handler);
        m_handler.OpenAllRecordsets();
    }

    CDBHandler& handler() { return m_handler; }
    [[nodiscard]] QString path() const { return m_folder.filePath(u"new.lmt"_s); }

private:
    static void fail(const QString& text) { ADD_FAILURE() << text.toStdString(); }

    QTemporaryDir m_folder;
    CDBHandler m_handler{fail};
    CDBCreator m_creator{{fail, fail, [] {}}};
};

} // namespace

TEST_F(SmallFile, PhrasesComeFirstAndBearTheDayOfTheBuild) {
    EXPECT_EQ(rows(m_path, u"SELECT * FROM Vokabular WHERE ID < 3"_s),
              (QStringList{u"1||20260301|20260301|||ja||||yes|||6||"_s,
                           u"2||20260301|20260301|||nein||||no|||6||"_s}));
}

TEST_F(SmallFile, EntriesFollowWithAllTheirFields) {
    EXPECT_EQ(rows(m_path, u"SELECT * FROM Vokabular WHERE ID > 2"_s),
              (QStringList{u"3|Lesson 1|20200102|20210304|Der Hund bellt.|der|Hund|-e|Tier|the|dog|s|pet|2|"
                           "It's a dog's life.|noun"_s,
                           u"4|Lesson 1|20200102|20210304|Der Hund bellt.|der|Katze|-e|Tier|the|dog|s|pet|2|"
                           "It's a dog's life.|noun"_s}));
}

TEST_F(SmallFile, AreasAndAttributesAreListedOnceAndLinked) {
    EXPECT_EQ(rows(m_path, u"SELECT * FROM Bereiche"_s), (QStringList{u"1|Animals"_s, u"2|Home"_s}));
    EXPECT_EQ(rows(m_path, u"SELECT * FROM Bereiche_Zwischen"_s),
              (QStringList{u"3|1"_s, u"3|2"_s, u"4|2"_s}));
    EXPECT_EQ(rows(m_path, u"SELECT * FROM GrammatikalischeAttribute"_s), (QStringList{u"1|masculine"_s}));
    EXPECT_EQ(rows(m_path, u"SELECT * FROM GrammatikalischeAttribute_Zwischen"_s),
              (QStringList{u"3|1"_s, u"4|1"_s}));
    EXPECT_EQ(rows(m_path, u"SELECT * FROM FunktionaleAttribute"_s), (QStringList{u"1|formal"_s}));
    EXPECT_EQ(rows(m_path, u"SELECT * FROM FunktionaleAttribute_Zwischen"_s), (QStringList{u"3|1"_s}));
}

TEST_F(SmallFile, SynonymsAndReferencesNameTheEntriesByTheirIdentifiers) {
    EXPECT_EQ(rows(m_path, u"SELECT * FROM Synonyme"_s), (QStringList{u"1|4|2|the|puss||colloquial"_s}));
    EXPECT_EQ(rows(m_path, u"SELECT * FROM Referenzen"_s),
              (QStringList{u"3|4|See also|unbekannte Referenz"_s, u"2|1|Opposite of|unbekannte Referenz"_s}));
}

TEST_F(SmallFile, ReplacesAnOlderFileAndLeavesNothingElse) {
    makeSampleFile(m_path, smallKind(), {}, Today);
    EXPECT_EQ(countRows(m_path, u"Vokabular"_s), 0);
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{u"Small.lmt"_s});
}

TEST_F(SmallFile, FailureLeavesTheOlderFileAsItIs) {
    SampleData bad = smallData();
    bad.entries[1].first.suffix = QString(101, u'x');
    EXPECT_THROW(makeSampleFile(m_path, smallKind(), bad, Today), SampleError);
    EXPECT_EQ(countRows(m_path, u"Vokabular"_s), 4);
}

TEST_F(SmallFile, ReportedFailureOfTheMaintenanceEndsInAnError) {
    SampleData bad = smallData();
    bad.entries[0].areas = u"it's;"_s;
    EXPECT_THROW(makeSampleFile(m_path, smallKind(), bad, Today), SampleError);
}

TEST(SampleFile, FolderThatDoesNotExistIsAnError) {
    const QTemporaryDir folder;
    EXPECT_THROW(makeSampleFile(folder.filePath(u"none/Small.lmt"_s), smallKind(), smallData(), Today),
                 SampleError);
}

TEST(SampleWriter, FirstHalfAddsARowWithEmptyTextsAndTheDefaultScore) {
    Session session;
    const SampleData none;
    SampleWriter(session.handler(), none, Today).schreibeVokabel1(u"vielleicht"_s);
    EXPECT_EQ(rows(session.path(), u"SELECT * FROM Vokabular"_s),
              (QStringList{u"1||20260301|20260301|||vielleicht|||||||6||"_s}));
}

TEST(SampleWriter, SecondHalfFillsTheCurrentRowAndMovesOn) {
    Session session;
    const SampleData none;
    SampleWriter writer(session.handler(), none, Today);
    writer.schreibeVokabel1(u"ja"_s);
    writer.schreibeVokabel1(u"nein"_s);
    session.handler().RecordsetVokabular.MoveFirst();
    writer.schreibeVokabel2(u"yes"_s);
    EXPECT_EQ(session.handler().RecordsetVokabular.AbsolutePosition(), 1);
    writer.schreibeVokabel2(u"no"_s);
    EXPECT_TRUE(session.handler().RecordsetVokabular.EOF_());
    EXPECT_EQ(rows(session.path(), u"SELECT Lang1_Main, Lang2_Main FROM Vokabular"_s),
              (QStringList{u"ja|yes"_s, u"nein|no"_s}));
    EXPECT_THROW(writer.schreibeVokabel2(u"none"_s), dao::Error);
}

class DeliveredFile : public testing::TestWithParam<int> {};

INSTANTIATE_TEST_SUITE_P(Kinds, DeliveredFile, testing::Values(0, 1), [](const auto& instance) {
    return instance.param == 0 ? "Example" : "ExampleGerman";
});

TEST_P(DeliveredFile, IsADatabaseOfTheCurrentFormatWithAllThatTheDataHolds) {
    const SampleKind& kind = sampleKinds()[static_cast<std::size_t>(GetParam())];
    const SampleData data = readSampleData(QStringLiteral(SAMPLE_DATA_FOLDER), kind.pair);
    const QTemporaryDir folder;
    const QString path = folder.filePath(kind.fileName);
    makeSampleFile(path, kind, data, Today);

    CDBHandler handler([](const QString& text) { ADD_FAILURE() << text.toStdString(); });
    handler.Database = dao::DBEngine::OpenDatabase(path);
    EXPECT_EQ(handler.GetDBVersion(), 3);
    EXPECT_TRUE(handler.GetLanguages());
    EXPECT_EQ(handler.Lang1Name, GetParam() == 0 ? u"German"_s : u"Deutsch"_s);
    EXPECT_EQ(handler.Lang2Name, GetParam() == 0 ? u"English"_s : u"Spanisch"_s);

    ASSERT_TRUE(handler.OpenAllRecordsets());
    EXPECT_EQ(handler.RecordsetVokabular.RecordCount(), data.phrases.size() + data.entries.size());
    EXPECT_EQ(handler.RecordsetSynonyme.RecordCount(), data.synonyms.size());
    EXPECT_EQ(handler.RecordsetReferenzen.RecordCount(), data.references.size());

    handler.RecordsetVokabular.MoveFirst();
    for (const SamplePhrase& phrase : data.phrases) {
        EXPECT_EQ(handler.RecordsetVokabular.field(handler.Lang1MainField).toText(), phrase.first);
        EXPECT_EQ(handler.RecordsetVokabular.field(handler.Lang2MainField).toText(), phrase.second);
        handler.RecordsetVokabular.MoveNext();
    }
    handler.CloseAllDBObjects();
}

TEST_P(DeliveredFile, CleaningUpFindsNothingToRemove) {
    const SampleKind& kind = sampleKinds()[static_cast<std::size_t>(GetParam())];
    const SampleData data = readSampleData(QStringLiteral(SAMPLE_DATA_FOLDER), kind.pair);
    const QTemporaryDir folder;
    const QString path = folder.filePath(kind.fileName);
    makeSampleFile(path, kind, data, Today);
    const auto bytes = [&path] {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const QByteArray before = bytes();

    CDBHandler handler([](const QString& text) { ADD_FAILURE() << text.toStdString(); });
    handler.Database = dao::DBEngine::OpenDatabase(path);
    ASSERT_TRUE(handler.OpenAllRecordsets());
    EXPECT_TRUE(handler.BereinigeDB());
    handler.CloseAllDBObjects();
    EXPECT_EQ(bytes(), before);
}

} // namespace lingomat
