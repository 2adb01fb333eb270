// Tables, fields, indexes, properties and relations, and how they come back.

#include "EngineTest.h"

using namespace Qt::StringLiterals;

namespace dao {

class Schema : public EngineTest {
protected:
    void reopen() {
        database.Close();
        database = DBEngine::OpenDatabase(file());
    }
};

TEST_F(Schema, OfATableComesBackAsItWasGiven) {
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(database.TableNames(), (QStringList{u"Wort"_s, u"Link"_s}));
        const TableDef& table = database.Table(u"Wort"_s);
        const TableDef expected = wortTable();
        ASSERT_EQ(table.Fields.size(), expected.Fields.size());
        for (int i = 0; i < table.Fields.size(); ++i) {
            EXPECT_EQ(table.Fields[i].Name, expected.Fields[i].Name);
            EXPECT_EQ(table.Fields[i].Type, expected.Fields[i].Type);
            EXPECT_EQ(table.Fields[i].Size, expected.Fields[i].Size);
            EXPECT_EQ(table.Fields[i].Attributes, expected.Fields[i].Attributes);
            EXPECT_EQ(table.Fields[i].DefaultValue, expected.Fields[i].DefaultValue);
            EXPECT_EQ(table.Fields[i].AllowZeroLength, expected.Fields[i].AllowZeroLength);
        }
        ASSERT_EQ(table.Indexes.size(), 1);
        EXPECT_EQ(table.Indexes[0].Name, u"ID");
        EXPECT_EQ(table.Indexes[0].FieldName, u"ID");
        EXPECT_TRUE(table.Indexes[0].Primary && table.Indexes[0].Unique);
        const Index link = database.Table(u"Link"_s).Indexes.value(0);
        EXPECT_EQ(link.FieldName, u"IDV");
        EXPECT_TRUE(link.Primary);
        EXPECT_FALSE(link.Unique);
        reopen();
    }
}

TEST_F(Schema, NamesAreFoundWithoutRegardToCase) {
    EXPECT_EQ(database.Table(u"wORT"_s).Name, u"Wort");
    EXPECT_EQ(database.Table(u"Wort"_s).fieldIndex(u"sCORE"), 3);
    EXPECT_EQ(database.Table(u"Wort"_s).fieldIndex(u"nothing"), -1);
    EXPECT_EQ(errorOf([&] { (void)database.Table(u"Nichts"_s); }), 3265);
    EXPECT_EQ(errorOf([&] { (void)database.Table(QString()); }), 3265);
    EXPECT_EQ(errorOf([&] { (void)database.Table(u"lmt_fields"_s); }), 3265);
    EXPECT_TRUE(descriptionOf([&] { (void)database.Table(u"Nichts"_s); }).contains(u"'Nichts'"_s));
}

TEST_F(Schema, ASecondTableOfOneNameIsRefused) {
    EXPECT_EQ(errorOf([&] { database.appendTable(wortTable()); }), 3010);
    TableDef other = linkTable();
    other.Name = u"WORT"_s;
    EXPECT_EQ(errorOf([&] { database.appendTable(other); }), 3010);
    EXPECT_EQ(database.TableNames().size(), 2);
}

TEST_F(Schema, ATableThatCannotBeMadeLeavesNoTrace) {
    for (const QString& name : {u"sqlite_x"_s, u"lmt_fields"_s, u"a\0b"_s}) {
        TableDef table = linkTable();
        table.Name = name;
        EXPECT_NE(errorOf([&] { database.appendTable(table); }), std::nullopt) << name.toStdString();
    }
    TableDef twice = linkTable();
    twice.Name = u"Doppelt"_s;
    twice.Fields.append(twice.Fields.front());
    EXPECT_NE(errorOf([&] { database.appendTable(twice); }), std::nullopt);
    TableDef badIndex = linkTable();
    badIndex.Name = u"Index"_s;
    badIndex.Indexes = {{u"x"_s, u"nichts"_s, false, false}};
    EXPECT_NE(errorOf([&] { database.appendTable(badIndex); }), std::nullopt);
    EXPECT_EQ(database.TableNames(), (QStringList{u"Wort"_s, u"Link"_s}));
    reopen();
    EXPECT_EQ(database.TableNames(), (QStringList{u"Wort"_s, u"Link"_s}));
    EXPECT_EQ(
        RawFile(file()).cell(u"SELECT count(*) FROM lmt_fields WHERE table_name NOT IN ('Wort', 'Link')"_s),
        u"0");
}

TEST_F(Schema, UnusualNamesWork) {
    const QString nasty = u"it's \"a\" [t]able; --"_s;
    TableDef table{nasty,
                   {{u"select"_s, DataType::Text, 5, 0, {}, true},
                    {u"\"; DROP TABLE Wort"_s, DataType::Long, 4, 0, {}, false},
                    {u"Größe in µm"_s, DataType::Text, 5, 0, {}, true}},
                   {{u"\"x"_s, u"select"_s, false, true}},
                   {}};
    database.appendTable(table);
    TableDef group{u"Group"_s, {{u"Order"_s, DataType::Long, 4, dbAutoIncrField, {}, false}}, {}, {}};
    database.appendTable(group);
    reopen();
    EXPECT_EQ(database.Table(nasty).Fields[1].Name, u"\"; DROP TABLE Wort");
    Recordset recordset = database.OpenRecordset(u"SELECT * FROM Group WHERE Order > 0"_s);
    recordset.AddNew();
    recordset.Update();
    recordset.FindFirst(u"[Order] = 1"_s);
    EXPECT_FALSE(recordset.NoMatch());
}

TEST_F(Schema, AUniqueIndexRefusesASecondRow) {
    TableDef table = linkTable();
    table.Name = u"Einmal"_s;
    table.Indexes = {{u"i"_s, u"ID"_s, false, true}};
    database.appendTable(table);
    Recordset recordset = database.OpenRecordset(u"SELECT * FROM Einmal"_s);
    const auto add = [&recordset](int number) {
        recordset.AddNew();
        recordset.setField(u"ID"_s, number);
        recordset.Update();
    };
    add(1);
    EXPECT_EQ(errorOf([&] { add(1); }), 3022);
    add(2);
    EXPECT_EQ(recordset.RecordCount(), 2);
}

TEST_F(Schema, ThePrimaryFlagAloneRefusesNothing) {
    addLink(1, 1);
    addLink(1, 1);
    EXPECT_EQ(links().RecordCount(), 2);
}

TEST_F(Schema, PropertiesHangOnTheirTable) {
    database.appendProperty(u"wort"_s, {u"Languages"_s, DataType::Text, u"Lang1=Ä'\"@Lang2=猫"_s});
    database.appendProperty(u"Wort"_s, {u"DBVersion"_s, DataType::Integer, 3});
    EXPECT_EQ(errorOf([&] { database.appendProperty(u"Nichts"_s, {u"x"_s, DataType::Text, u"y"_s}); }), 3265);
    for (int round = 0; round < 2; ++round) {
        const QList<Property>& properties = database.Table(u"Wort"_s).Properties;
        ASSERT_EQ(properties.size(), 2);
        EXPECT_EQ(properties[0].Name, u"Languages");
        EXPECT_EQ(properties[0].Type, DataType::Text);
        EXPECT_EQ(properties[0].Value, Value(u"Lang1=Ä'\"@Lang2=猫"_s));
        EXPECT_EQ(properties[1].Name, u"DBVersion");
        EXPECT_EQ(properties[1].Type, DataType::Integer);
        EXPECT_EQ(properties[1].Value, Value(3));
        EXPECT_TRUE(database.Table(u"Link"_s).Properties.isEmpty());
        reopen();
    }
}

TEST_F(Schema, PropertiesOfADefinitionAreWrittenWithIt) {
    TableDef table = linkTable();
    table.Name = u"Mit"_s;
    table.Properties = {{u"a"_s, DataType::Long, 70000}};
    database.appendTable(table);
    reopen();
    EXPECT_EQ(database.Table(u"Mit"_s).Properties.value(0).Value, Value(70000));
}

TEST_F(Schema, RelationsAreRecordedAndNotEnforced) {
    database.appendRelation({u"WortLink"_s, u"Wort"_s, u"Link"_s, u"ID"_s, u"IDV"_s, dbRelationDontEnforce});
    for (int round = 0; round < 2; ++round) {
        const QList<Relation> relations = database.Relations();
        ASSERT_EQ(relations.size(), 1);
        EXPECT_EQ(relations[0].Name, u"WortLink");
        EXPECT_EQ(relations[0].Table, u"Wort");
        EXPECT_EQ(relations[0].ForeignTable, u"Link");
        EXPECT_EQ(relations[0].FieldName, u"ID");
        EXPECT_EQ(relations[0].ForeignName, u"IDV");
        EXPECT_EQ(relations[0].Attributes, 2);
        reopen();
    }
    addLink(99, 1);
    EXPECT_EQ(links().RecordCount(), 1);
}

TEST_F(Schema, TheFileIsMarkedAndTellsItsLocale) {
    RawFile raw(file());
    EXPECT_EQ(raw.cell(u"PRAGMA application_id"_s), QString::number(0x4C4D5433));
    EXPECT_EQ(raw.cell(u"PRAGMA user_version"_s), u"1");
    EXPECT_EQ(raw.cell(u"SELECT value FROM lmt_database WHERE key = 'locale'"_s), u";LANGID=0x0409");
    EXPECT_EQ(raw.cell(u"PRAGMA integrity_check"_s), u"ok");
    EXPECT_EQ(raw.cell(u"PRAGMA journal_mode"_s), u"delete") << "a closed database is one file";
}

TEST_F(Schema, CanBeMadeDuringSteadyReading) {
    const SteadyReading steady(database);
    EXPECT_EQ(words().RecordCount(), 0);
    TableDef table = linkTable();
    table.Name = u"Neu"_s;
    database.appendTable(table);
    database.appendProperty(u"Neu"_s, {u"a"_s, DataType::Long, 1});
    EXPECT_EQ(RawFile(file()).cell(u"SELECT count(*) FROM lmt_fields WHERE table_name = 'Neu'"_s), u"2");
    EXPECT_EQ(RawFile(file()).cell(u"SELECT value FROM lmt_properties"_s), u"1");
}

} // namespace dao
