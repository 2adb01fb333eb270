// What a new database file holds, field by field, as another program reads it.

#include "SessionTest.h"

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

struct FieldRow {
    QString name;
    int type; ///< 3 whole number of 16 bits, 4 of 32, 10 text
    int size;
    bool autoIncrement;
    QString defaultValue; ///< "NULL": none
    bool allowZeroLength;
};

struct TableRow {
    QString name;
    QList<FieldRow> fields;
    QString index; ///< its name, which is that of its field too
    bool primary;
    bool unique;
};

FieldRow text(const QString& name, int size) {
    return {name, 10, size, false, u"NULL"_s, true};
}

FieldRow number(const QString& name) {
    return {name, 4, 4, false, u"NULL"_s, false};
}

FieldRow key(const QString& name) {
    return {name, 4, 4, true, u"NULL"_s, false};
}

QList<TableRow> expectedTables() {
    const QString unknown = u"unbekannte Referenz"_s;
    return {
        {u"Vokabular"_s,
         {
             key(u"ID"_s),
             text(u"Quelle"_s, 50),
             text(u"Eingabedatum"_s, 12),
             text(u"Aenderungsdatum"_s, 12),
             text(u"Beispielsatz"_s, 200),
             text(u"Lang1_Prefix"_s, 100),
             text(u"Lang1_Main"_s, 100),
             text(u"Lang1_Suffix"_s, 100),
             text(u"Lang1_Kommentar"_s, 100),
             text(u"Lang2_Prefix"_s, 100),
             text(u"Lang2_Main"_s, 100),
             text(u"Lang2_Suffix"_s, 100),
             text(u"Lang2_Kommentar"_s, 100),
             {u"Score"_s, 3, 2, false, u"6"_s, false},
             text(u"Zusatzinfo"_s, 200),
             text(u"Wortart"_s, 50),
         },
         u"ID"_s,
         true,
         true},
        {u"Bereiche"_s,
         {key(u"ID"_s), {u"Bereich_Text"_s, 10, 50, false, u"NULL"_s, false}},
         u"ID"_s,
         true,
         true},
        {u"Bereiche_Zwischen"_s, {number(u"IDV"_s), number(u"ID"_s)}, u"IDV"_s, true, false},
        {u"GrammatikalischeAttribute"_s,
         {key(u"IDA"_s), {u"Attribut_Text"_s, 10, 200, false, u"NULL"_s, false}},
         u"IDA"_s,
         true,
         true},
        {u"GrammatikalischeAttribute_Zwischen"_s,
         {number(u"IDV"_s), number(u"ID"_s)},
         u"IDV"_s,
         false,
         false},
        {u"FunktionaleAttribute"_s,
         {key(u"IDA"_s), {u"Attribut_Text"_s, 10, 200, false, u"NULL"_s, false}},
         u"IDA"_s,
         true,
         true},
        {u"FunktionaleAttribute_Zwischen"_s, {number(u"IDV"_s), number(u"ID"_s)}, u"IDV"_s, false, false},
        {u"Referenzen"_s,
         {
             {u"von"_s, 4, 4, false, u""_s, false},
             {u"nach"_s, 4, 4, false, u""_s, false},
             {u"Typ"_s, 10, 200, false, unknown, false},
             {u"SubTyp"_s, 10, 200, false, unknown, false},
         },
         u"von"_s,
         true,
         false},
        {u"Synonyme"_s,
         {
             {u"ID"_s, 4, 4, true, u""_s, false},
             {u"VID"_s, 4, 4, false, u""_s, false},
             {u"Sprache"_s, 4, 4, false, u""_s, false},
             {u"Prefix"_s, 10, 100, false, u""_s, true},
             {u"Main"_s, 10, 100, false, u""_s, true},
             {u"Suffix"_s, 10, 100, false, u""_s, true},
             {u"Kommentar"_s, 10, 100, false, u""_s, true},
         },
         u"VID"_s,
         true,
         false},
    };
}

} // namespace

class CreatedFile : public SessionTest {};

TEST_F(CreatedFile, HasTheNineTablesInTheirOrder) {
    QStringList names;
    for (const TableRow& table : expectedTables())
        names.append(table.name);
    EXPECT_EQ(handler.Database.TableNames(), names);
    EXPECT_EQ(stored(u"SELECT DISTINCT table_name FROM lmt_fields"_s).size(), 9);
}

TEST_F(CreatedFile, HasEveryFieldAsItIsPrescribed) {
    for (const TableRow& table : expectedTables()) {
        QStringList expected;
        for (const FieldRow& field : table.fields)
            expected.append(u"%1 | %2 | %3 | %4 | %5 | %6"_s.arg(field.name)
                                .arg(field.type)
                                .arg(field.size)
                                .arg(field.autoIncrement ? 16 : 0)
                                .arg(field.defaultValue)
                                .arg(field.allowZeroLength ? 1 : 0));
        EXPECT_EQ(
            stored(u"SELECT name, type, size, attributes, default_value, allow_zero_length FROM lmt_fields "
                   "WHERE table_name = '%1' ORDER BY position"_s.arg(table.name)),
            expected)
            << table.name.toStdString();
    }
}

TEST_F(CreatedFile, HoldsItsFieldsAsColumnsOfTheSameNames) {
    for (const TableRow& table : expectedTables()) {
        QStringList expected;
        for (const FieldRow& field : table.fields)
            expected.append(field.name + (field.type == 10 ? u" | TEXT"_s : u" | INTEGER"_s));
        QStringList columns = stored(u"SELECT name, type FROM pragma_table_info('%1')"_s.arg(table.name));
        columns.removeAll(u"_row | INTEGER"_s); // of tables without a key of their own
        EXPECT_EQ(columns, expected) << table.name.toStdString();
    }
}

TEST_F(CreatedFile, HasOneIndexPerTable) {
    for (const TableRow& table : expectedTables())
        EXPECT_EQ(
            stored(
                u"SELECT name, field, is_primary, is_unique FROM lmt_indexes WHERE table_name = '%1'"_s.arg(
                    table.name)),
            QStringList{
                u"%1 | %1 | %2 | %3"_s.arg(table.index).arg(table.primary ? 1 : 0).arg(table.unique ? 1 : 0)})
            << table.name.toStdString();
}

TEST_F(CreatedFile, HasThreeRelationsThatAreNotEnforced) {
    EXPECT_EQ(
        stored(u"SELECT name, table_name, foreign_table, field, foreign_field, attributes FROM lmt_relations "
               "ORDER BY position"_s),
        (QStringList{
            u"VokabularBereiche_Z | Vokabular | Bereiche_Zwischen | ID | IDV | 2"_s,
            u"VokabularGrammatikalischeAttribute_Z | Vokabular | GrammatikalischeAttribute_Zwischen | ID | IDV | 2"_s,
            u"VokabularFunktionaleAttribute_Z | Vokabular | FunktionaleAttribute_Zwischen | ID | IDV | 2"_s,
        }));
}

TEST_F(CreatedFile, HasTwoPropertiesAtTheVocabularyTableAndNowhereElse) {
    EXPECT_EQ(
        stored(
            u"SELECT table_name, name, type, value, typeof(value) FROM lmt_properties ORDER BY position"_s),
        (QStringList{u"Vokabular | Languages | 10 | Lang1=Deutsch@Lang2=Englisch | text"_s,
                     u"Vokabular | DBVersion | 3 | 3 | integer"_s}));
}

TEST_F(CreatedFile, IsEmptyAndRecordsItsLocale) {
    for (const TableRow& table : expectedTables())
        EXPECT_EQ(stored(u"SELECT count(*) FROM "_s + table.name), QStringList{u"0"_s})
            << table.name.toStdString();
    EXPECT_EQ(stored(u"SELECT value FROM lmt_database WHERE key = 'locale'"_s),
              QStringList{u";LANGID=0x0409;CP=1252;COUNTRY=0"_s});
    EXPECT_EQ(stored(u"PRAGMA integrity_check"_s), QStringList{u"ok"_s});
}

TEST_F(CreatedFile, ScoreOfANewRowIs6WithoutBeingWritten) {
    addEntry(u"Haus"_s);
    EXPECT_EQ(stored(u"SELECT Score, typeof(Score) FROM Vokabular"_s), QStringList{u"6 | integer"_s});
}

TEST_F(CreatedFile, AReferenceWithoutATypeIsOfAnUnknownOne) {
    addRow(handler.RecordsetReferenzen, 0, {1, 2});
    EXPECT_EQ(stored(u"SELECT von, nach, Typ, SubTyp FROM Referenzen"_s),
              QStringList{u"1 | 2 | unbekannte Referenz | unbekannte Referenz"_s});
    handler.RecordsetReferenzen.AddNew();
    for (const QString& field : {u"Typ"_s, u"SubTyp"_s})
        EXPECT_EQ(dao::errorOf([&] { handler.RecordsetReferenzen.setField(field, QString()); }), 3315);
}

TEST_F(CreatedFile, EveryTextFieldRefusesATextBeyondItsSize) {
    for (const TableRow& table : expectedTables()) {
        dao::Recordset recordset = handler.Database.OpenRecordset(u"SELECT * FROM "_s + table.name);
        recordset.AddNew();
        for (const FieldRow& field : table.fields) {
            if (field.type != 10)
                continue;
            SCOPED_TRACE((table.name + u'.' + field.name).toStdString());
            EXPECT_EQ(dao::errorOf([&] { recordset.setField(field.name, QString(field.size, u'ä')); }),
                      std::nullopt);
            EXPECT_EQ(dao::errorOf([&] { recordset.setField(field.name, QString(field.size + 1, u'ä')); }),
                      3163);
            EXPECT_EQ(dao::errorOf([&] { recordset.setField(field.name, QString()); }),
                      field.allowZeroLength ? std::nullopt : std::optional(3315));
        }
        recordset.Update();
    }
}

TEST_F(CreatedFile, TakesSeveralRowsOfOneEntryInEveryDependentTable) {
    for (dao::Recordset* recordset : {&handler.RecordsetBereiche_Z, &handler.RecordsetGrammatikalisch_Z,
                                      &handler.RecordsetFunktional_Z, &handler.RecordsetReferenzen})
        for (int i = 0; i < 3; ++i)
            addRow(*recordset, 0, {7, 1});
    for (int i = 0; i < 3; ++i)
        addRow(handler.RecordsetSynonyme, 1, {7, 1});
    for (const QString& table : {u"Bereiche_Zwischen"_s, u"GrammatikalischeAttribute_Zwischen"_s,
                                 u"FunktionaleAttribute_Zwischen"_s, u"Referenzen"_s, u"Synonyme"_s})
        EXPECT_EQ(stored(u"SELECT count(*) FROM "_s + table), QStringList{u"3"_s});
}

} // namespace lingomat
