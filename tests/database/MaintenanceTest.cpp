// References, dependent rows of deleted entries, and the clean-up.

#include "SessionTest.h"

using namespace Qt::StringLiterals;

namespace lingomat {

class Maintenance : public SessionTest {
protected:
    void addReference(int from, int to, const QString& type, const QString& subType = u"x"_s) {
        addRow(handler.RecordsetReferenzen, 0, {from, to, type, subType});
    }
    void addSynonym(const dao::Value& entry, const QString& text) {
        addRow(handler.RecordsetSynonyme, 1, {entry, 1, u""_s, text});
    }
    [[nodiscard]] QList<dao::Recordset*> links() {
        return {&handler.RecordsetBereiche_Z, &handler.RecordsetGrammatikalisch_Z,
                &handler.RecordsetFunktional_Z};
    }
    [[nodiscard]] QStringList synonyms() const { return stored(u"SELECT Main FROM Synonyme ORDER BY ID"_s); }
};

TEST_F(Maintenance, AReferenceExistsInEitherDirection) {
    addReference(1, 2, u"Synonym"_s);
    EXPECT_TRUE(handler.CheckRelationExist(u"1"_s, u"2"_s, u"Synonym"_s));
    EXPECT_TRUE(handler.CheckRelationExist(u"2"_s, u"1"_s, u"Synonym"_s));
    EXPECT_TRUE(handler.CheckRelationExist(u"1"_s, u"2"_s, u"sYNONYM"_s));
    EXPECT_FALSE(handler.CheckRelationExist(u"1"_s, u"2"_s, u"Antonym"_s));
    EXPECT_FALSE(handler.CheckRelationExist(u"1"_s, u"2"_s, u"Syn*"_s)) << "the type is no pattern";
    EXPECT_FALSE(handler.CheckRelationExist(u"1"_s, u"1"_s, u"Synonym"_s));
    EXPECT_FALSE(handler.CheckRelationExist(u"1"_s, u"3"_s, u"Synonym"_s));
    EXPECT_FALSE(handler.CheckRelationExist(u"11"_s, u"2"_s, u"Synonym"_s));
    EXPECT_TRUE(reports.isEmpty());
}

TEST_F(Maintenance, TheSubTypeOfAReferenceTakesNoPart) {
    addReference(1, 2, u"Synonym"_s, u"genau"_s);
    addReference(3, 4, u"Antonym"_s, u"Synonym"_s);
    EXPECT_TRUE(handler.CheckRelationExist(u"1"_s, u"2"_s, u"Synonym"_s));
    EXPECT_FALSE(handler.CheckRelationExist(u"3"_s, u"4"_s, u"Synonym"_s));
}

TEST_F(Maintenance, AReferenceTypeWithAnApostropheIsAnError) {
    EXPECT_FALSE(handler.CheckRelationExist(u"1"_s, u"2"_s, u"l'eau"_s));
    EXPECT_EQ(reports.size(), 1);
}

TEST_F(Maintenance, DependentRowsOfADeletedEntryGoInAllTablesButSynonyms) {
    for (const int entry : {1, 10, 1, 11, 2, 1})
        for (dao::Recordset* recordset : links())
            addRow(*recordset, 0, {entry, entry});
    addReference(1, 2, u"a"_s);
    addReference(2, 1, u"b"_s);
    addReference(2, 10, u"c"_s);
    addReference(11, 2, u"d"_s);
    addReference(1, 1, u"e"_s);
    addSynonym(1, u"bleibt"_s);
    handler.DeleteRelationalEntriesForID(1);
    for (const QString& table : {u"Bereiche_Zwischen"_s, u"GrammatikalischeAttribute_Zwischen"_s,
                                 u"FunktionaleAttribute_Zwischen"_s})
        EXPECT_EQ(stored(u"SELECT IDV FROM %1 ORDER BY IDV"_s.arg(table)),
                  (QStringList{u"2"_s, u"10"_s, u"11"_s}))
            << table.toStdString();
    EXPECT_EQ(stored(u"SELECT Typ FROM Referenzen ORDER BY Typ"_s), (QStringList{u"c"_s, u"d"_s}));
    EXPECT_EQ(synonyms(), QStringList{u"bleibt"_s}) << "until the clean-up";
    EXPECT_TRUE(reports.isEmpty());
    EXPECT_TRUE(handler.BereinigeDB());
    EXPECT_TRUE(synonyms().isEmpty());
}

TEST_F(Maintenance, LinksOfOneEntryGoFromOneTable) {
    for (dao::Recordset* recordset : links())
        addRow(*recordset, 0, {32767, 1});
    handler.DeleteEntryForID(32767, handler.RecordsetFunktional_Z);
    EXPECT_TRUE(stored(u"SELECT * FROM FunktionaleAttribute_Zwischen"_s).isEmpty());
    EXPECT_EQ(stored(u"SELECT IDV FROM Bereiche_Zwischen"_s), QStringList{u"32767"_s});
}

TEST_F(Maintenance, AnErrorWhileDeletingIsReported) {
    handler.RecordsetGrammatikalisch_Z = dao::Recordset();
    addRow(handler.RecordsetBereiche_Z, 0, {1, 1});
    addReference(1, 2, u"a"_s);
    handler.DeleteRelationalEntriesForID(1);
    EXPECT_EQ(reports.size(), 1);
    EXPECT_TRUE(stored(u"SELECT * FROM Bereiche_Zwischen"_s).isEmpty()) << "what came before stays done";
    EXPECT_EQ(stored(u"SELECT Typ FROM Referenzen"_s), QStringList{u"a"_s}) << "what comes after is left";
}

TEST_F(Maintenance, TheCleanUpRemovesListRowsThatNoEntryUses) {
    const std::pair<dao::Recordset*, dao::Recordset*> pairs[] = {
        {&handler.RecordsetBereiche, &handler.RecordsetBereiche_Z},
        {&handler.RecordsetGrammatikalisch, &handler.RecordsetGrammatikalisch_Z},
        {&handler.RecordsetFunktional, &handler.RecordsetFunktional_Z}};
    for (const auto& [list, link] : pairs) {
        for (const QString& text : {u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s})
            addRow(*list, 1, {text});
        addRow(*link, 0, {7, 2});
        addRow(*link, 0, {8, 2});
        addRow(*link, 0, {7, 4});
        addRow(*link, 0, {5, 44}); // an entry's key is no item's key
    }
    EXPECT_TRUE(handler.BereinigeDB());
    for (const QString& table : {u"Bereiche"_s, u"GrammatikalischeAttribute"_s, u"FunktionaleAttribute"_s})
        EXPECT_EQ(stored(u"SELECT * FROM %1"_s.arg(table)), (QStringList{u"2 | b"_s, u"4 | d"_s}))
            << table.toStdString();
    EXPECT_EQ(stored(u"SELECT count(*) FROM Bereiche_Zwischen"_s), QStringList{u"4"_s})
        << "links are left alone";
    EXPECT_TRUE(handler.BereinigeDB()) << "a second time there is nothing to do";
    EXPECT_TRUE(reports.isEmpty());
}

TEST_F(Maintenance, UnusedListRowsLastUntilTheNextCleanUp) {
    addEntry(u"Haus"_s);
    const auto store = [this](const QString& packed) {
        (void)handler.SchreibeArrayToDB(packed, handler.RecordsetBereiche, handler.RecordsetBereiche_Z,
                                        handler.RecordsetVokabular);
    };
    store(u"Tiere;"_s);
    store(QString());
    handler.CloseAllDBObjects();
    handler.Database = dao::DBEngine::OpenDatabase(file());
    handler.OpenAllRecordsets();
    EXPECT_EQ(stored(u"SELECT Bereich_Text FROM Bereiche"_s), QStringList{u"Tiere"_s});
    handler.BereinigeDB();
    EXPECT_TRUE(stored(u"SELECT Bereich_Text FROM Bereiche"_s).isEmpty());
}

TEST_F(Maintenance, TheCleanUpRemovesSynonymsOfEntriesThatAreGone) {
    addEntry(u"Haus"_s);
    addEntry(u"Maus"_s);
    addSynonym(1, u"Gebäude"_s);
    addSynonym(3, u"weg"_s);
    addSynonym(2, u"Nager"_s);
    addSynonym(12, u"auch weg"_s);
    addSynonym(dao::Value(), u"ohne Eintrag"_s);
    EXPECT_TRUE(handler.BereinigeDB());
    EXPECT_EQ(synonyms(), (QStringList{u"Gebäude"_s, u"Nager"_s, u"ohne Eintrag"_s}))
        << "Null meets no pattern";
    handler.RecordsetVokabular.FindFirst(u"ID = 1"_s);
    handler.RecordsetVokabular.Delete();
    EXPECT_TRUE(handler.BereinigeDB());
    EXPECT_EQ(synonyms(), (QStringList{u"Nager"_s, u"ohne Eintrag"_s}));
}

TEST_F(Maintenance, ACleanUpThatFailsSaysSo) {
    addRow(handler.RecordsetBereiche, 1, {u"unbenutzt"_s});
    addRow(handler.RecordsetFunktional, 1, {u"unbenutzt"_s});
    handler.RecordsetGrammatikalisch = dao::Recordset();
    EXPECT_FALSE(handler.BereinigeDB());
    EXPECT_EQ(reports.size(), 1);
    EXPECT_TRUE(stored(u"SELECT * FROM Bereiche"_s).isEmpty()) << "what came before stays done";
    EXPECT_EQ(stored(u"SELECT Attribut_Text FROM FunktionaleAttribute"_s), QStringList{u"unbenutzt"_s});
}

TEST_F(Maintenance, WhetherAListRowIsInUse) {
    addRow(handler.RecordsetBereiche_Z, 0, {5, 17});
    EXPECT_TRUE(handler.SearchAttribut_Z(u"17"_s, handler.RecordsetBereiche_Z));
    EXPECT_FALSE(handler.SearchAttribut_Z(u"1"_s, handler.RecordsetBereiche_Z));
    EXPECT_FALSE(handler.SearchAttribut_Z(u"5"_s, handler.RecordsetBereiche_Z)) << "that is the entry";
    EXPECT_FALSE(handler.SearchAttribut_Z(u"17"_s, handler.RecordsetFunktional_Z));
}

} // namespace lingomat
