#include "SessionTest.h"

using namespace Qt::StringLiterals;

namespace lingomat {

class Synonyms : public SessionTest {
protected:
    bool store(qint16 key, const QString& main, const QString& vid = u"5"_s,
               const QString& language = u"2"_s) {
        return handler.StoreSynonyme(key, vid, language, u"das"_s, main, u"es"_s, u"k"_s,
                                     [this](const QString& newKey) { keys.append(newKey); });
    }
    [[nodiscard]] QStringList rows() const {
        return stored(
            u"SELECT ID, VID, Sprache, Prefix, Main, Suffix, Kommentar FROM Synonyme ORDER BY ID"_s);
    }

    QStringList keys; ///< as the form's list of keys receives them
};

TEST_F(Synonyms, ANewOneTellsItsKey) {
    EXPECT_TRUE(store(CDBHandler::NewSynonym, u"Haus"_s));
    EXPECT_TRUE(store(CDBHandler::NewSynonym, u"Heim"_s, u"6"_s, u"1"_s));
    EXPECT_EQ(rows(),
              (QStringList{u"1 | 5 | 2 | das | Haus | es | k"_s, u"2 | 6 | 1 | das | Heim | es | k"_s}));
    EXPECT_EQ(keys, (QStringList{u"1"_s, u"2"_s}));
    EXPECT_EQ(handler.RecordsetSynonyme.field(0), dao::Value(2)) << "the new one is current";
    EXPECT_TRUE(reports.isEmpty());
}

TEST_F(Synonyms, AnExistingOneIsRewrittenButKeepsItsEntryAndLanguage) {
    store(CDBHandler::NewSynonym, u"Haus"_s);
    store(CDBHandler::NewSynonym, u"Heim"_s);
    keys.clear();
    EXPECT_TRUE(store(1, u"Gebäude"_s, u"99"_s, u"9"_s));
    EXPECT_EQ(rows(),
              (QStringList{u"1 | 5 | 2 | das | Gebäude | es | k"_s, u"2 | 5 | 2 | das | Heim | es | k"_s}));
    EXPECT_TRUE(keys.isEmpty());
}

TEST_F(Synonyms, OneThatIsGoneIsToldToTheUser) {
    EXPECT_FALSE(store(7, u"Haus"_s));
    EXPECT_FALSE(handler.DeleteSynonym(7));
    EXPECT_EQ(reports,
              (QStringList{u"Synonym not found in database!"_s, u"Synonym not found in database!"_s}));
    EXPECT_TRUE(rows().isEmpty());
}

TEST_F(Synonyms, TheMessageComesInTheLanguageOfTheInterface) {
    CDBHandler german([this](const QString& text) { reports.append(text); },
                      [] { return u"Synonym nicht in Datenbank gefunden!"_s; });
    german.Database = handler.Database;
    german.OpenAllRecordsets();
    EXPECT_FALSE(german.DeleteSynonym(1));
    EXPECT_EQ(reports, QStringList{u"Synonym nicht in Datenbank gefunden!"_s});
}

TEST_F(Synonyms, AreDeletedByTheirKey) {
    for (int i = 0; i < 12; ++i)
        store(CDBHandler::NewSynonym, QString::number(i + 1));
    EXPECT_TRUE(handler.DeleteSynonym(1));
    EXPECT_EQ(rows().size(), 11);
    EXPECT_FALSE(handler.DeleteSynonym(1));
    EXPECT_TRUE(handler.DeleteSynonym(12));
    EXPECT_EQ(stored(u"SELECT ID FROM Synonyme ORDER BY ID"_s).join(u' '), u"2 3 4 5 6 7 8 9 10 11");
}

TEST_F(Synonyms, EmptyPartsAreFine) {
    EXPECT_TRUE(handler.StoreSynonyme(-1, u"5"_s, u"1"_s, QString(), u"x"_s, QString(), QString(),
                                      [](const QString& /*key*/) {}));
    EXPECT_EQ(rows(), QStringList{u"1 | 5 | 1 |  | x |  | "_s});
}

TEST_F(Synonyms, EntryAndLanguageAreNumbersOf16Bits) {
    EXPECT_TRUE(store(CDBHandler::NewSynonym, u"Haus"_s, u"32767"_s));
    EXPECT_FALSE(store(CDBHandler::NewSynonym, u"Haus"_s, u"32768"_s));
    EXPECT_FALSE(store(CDBHandler::NewSynonym, u"Haus"_s, u"5"_s, u"40000"_s));
    EXPECT_EQ(reports, (QStringList{u"Overflow"_s, u"Overflow"_s}));
    reports.clear();
    EXPECT_FALSE(store(CDBHandler::NewSynonym, u"Haus"_s, u"x"_s));
    EXPECT_FALSE(store(CDBHandler::NewSynonym, u"Haus"_s, QString()));
    EXPECT_EQ(reports, (QStringList{u"Type mismatch"_s, u"Type mismatch"_s}));
    EXPECT_EQ(rows().size(), 1) << "nothing half written";
    EXPECT_TRUE(store(CDBHandler::NewSynonym, u"Heim"_s)) << "the next one works again";
    EXPECT_EQ(keys.size(), 2);
}

TEST_F(Synonyms, ATextBeyondItsFieldIsReportedAndNothingIsWritten) {
    store(CDBHandler::NewSynonym, u"Haus"_s);
    EXPECT_FALSE(store(1, QString(101, u'x')));
    EXPECT_FALSE(store(CDBHandler::NewSynonym, QString(101, u'x')));
    EXPECT_EQ(reports.size(), 2);
    EXPECT_EQ(rows(), QStringList{u"1 | 5 | 2 | das | Haus | es | k"_s});
}

} // namespace lingomat
