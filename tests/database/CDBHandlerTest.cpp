// Opening and closing a session.

#include "SessionTest.h"

using namespace Qt::StringLiterals;

namespace lingomat {

class Handler : public SessionTest {
protected:
    [[nodiscard]] QList<dao::Recordset*> recordsets() {
        return {&handler.RecordsetAuswahl,         &handler.RecordsetVokabular,
                &handler.RecordsetSuche,           &handler.RecordsetReferenzen,
                &handler.RecordsetGrammatikalisch, &handler.RecordsetGrammatikalisch_Z,
                &handler.RecordsetFunktional,      &handler.RecordsetFunktional_Z,
                &handler.RecordsetBereiche,        &handler.RecordsetBereiche_Z,
                &handler.RecordsetSynonyme};
    }
    [[nodiscard]] int openRecordsets() {
        int count = 0;
        for (const dao::Recordset* recordset : recordsets())
            count += recordset->isOpen() ? 1 : 0;
        return count;
    }
};

TEST_F(Handler, OpensElevenRecordsetsOnWholeTables) {
    EXPECT_EQ(openRecordsets(), 11);
    const std::pair<dao::Recordset*, QString> table[] = {
        {&handler.RecordsetAuswahl, u"ID 16"_s},         {&handler.RecordsetVokabular, u"ID 16"_s},
        {&handler.RecordsetSuche, u"ID 16"_s},           {&handler.RecordsetReferenzen, u"von 4"_s},
        {&handler.RecordsetGrammatikalisch, u"IDA 2"_s}, {&handler.RecordsetGrammatikalisch_Z, u"IDV 2"_s},
        {&handler.RecordsetFunktional, u"IDA 2"_s},      {&handler.RecordsetFunktional_Z, u"IDV 2"_s},
        {&handler.RecordsetBereiche, u"ID 2"_s},         {&handler.RecordsetBereiche_Z, u"IDV 2"_s},
        {&handler.RecordsetSynonyme, u"ID 7"_s},
    };
    for (const auto& [recordset, expected] : table)
        EXPECT_EQ(recordset->fieldName(0) + u' ' + QString::number(recordset->fieldCount()), expected);
}

TEST_F(Handler, EachRecordsetStandsOnItsOwnTable) {
    QStringList statements;
    const QString tables[] = {u"Vokabular"_s,
                              u"Referenzen"_s,
                              u"GrammatikalischeAttribute"_s,
                              u"GrammatikalischeAttribute_Zwischen"_s,
                              u"FunktionaleAttribute"_s,
                              u"FunktionaleAttribute_Zwischen"_s,
                              u"Bereiche"_s,
                              u"Bereiche_Zwischen"_s,
                              u"Synonyme"_s};
    const auto all = recordsets();
    for (std::size_t i = 0; i < std::size(tables); ++i) {
        dao::Recordset& recordset = *all[i == 0 ? 0 : static_cast<qsizetype>(i) + 2];
        recordset.AddNew();
        recordset.Update();
        EXPECT_EQ(stored(u"SELECT count(*) FROM "_s + tables[i]), QStringList{u"1"_s})
            << tables[i].toStdString();
    }
}

TEST_F(Handler, ThreeCursorsOverTheVocabularyMoveIndependently) {
    addEntry(u"a"_s);
    addEntry(u"b"_s);
    EXPECT_EQ(handler.RecordsetAuswahl.RecordCount(), 0) << "until it is queried anew";
    handler.RecordsetAuswahl.Requery();
    handler.RecordsetSuche.Requery();
    handler.RecordsetSuche.FindFirst(u"Lang1_Main = 'b'"_s);
    EXPECT_EQ(handler.RecordsetAuswahl.field(u"Lang1_Main"_s).toText(), u"a");
    EXPECT_EQ(handler.RecordsetSuche.field(u"Lang1_Main"_s).toText(), u"b");
}

TEST_F(Handler, AMissingTableEndsTheOpeningThere) {
    reopenAfter(u"DROP TABLE GrammatikalischeAttribute"_s);
    EXPECT_FALSE(handler.OpenAllRecordsets());
    ASSERT_EQ(reports.size(), 1);
    EXPECT_TRUE(reports.front().contains(u"'GrammatikalischeAttribute'"_s));
    EXPECT_EQ(openRecordsets(), 4) << "those before it stay open";
    EXPECT_TRUE(handler.RecordsetReferenzen.isOpen());
    EXPECT_EQ(dao::errorOf([&] { (void)handler.RecordsetSynonyme.RecordCount(); }), 91)
        << "the others are empty";
}

TEST_F(Handler, OpeningWithoutADatabaseIsReported) {
    handler.Database = dao::Database();
    EXPECT_FALSE(handler.OpenAllRecordsets());
    EXPECT_EQ(reports.size(), 1);
    EXPECT_EQ(openRecordsets(), 0);
}

TEST_F(Handler, ClosesRecordsetsAndFile) {
    handler.CloseAllDBObjects();
    EXPECT_TRUE(reports.isEmpty());
    EXPECT_EQ(openRecordsets(), 0);
    EXPECT_FALSE(handler.Database.isOpen());
}

TEST_F(Handler, TriesEveryStepOfClosing) {
    handler.RecordsetAuswahl.Close();
    handler.RecordsetBereiche = dao::Recordset();
    handler.CloseAllDBObjects();
    EXPECT_EQ(reports.size(), 2);
    EXPECT_EQ(openRecordsets(), 0);
    EXPECT_FALSE(handler.Database.isOpen());
    reports.clear();
    handler.CloseAllDBObjects();
    EXPECT_EQ(reports.size(), 12) << "eleven recordsets and the file";
}

TEST_F(Handler, ServesOneFileAfterAnother) {
    addEntry(u"a"_s);
    handler.CloseAllDBObjects();
    handler.Database = createDatabase(path(u"zweite.lmt"_s), u"Französisch"_s, u"Latein"_s);
    EXPECT_TRUE(handler.OpenAllRecordsets());
    EXPECT_TRUE(handler.GetLanguages());
    EXPECT_EQ(handler.Lang1Name, u"Französisch");
    EXPECT_EQ(handler.RecordsetVokabular.RecordCount(), 0);
    handler.CloseAllDBObjects();
    handler.Database = dao::DBEngine::OpenDatabase(file());
    EXPECT_TRUE(handler.OpenAllRecordsets());
    EXPECT_EQ(handler.RecordsetVokabular.RecordCount(), 1);
    EXPECT_TRUE(reports.isEmpty());
}

} // namespace lingomat
