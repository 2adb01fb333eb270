// Sound SQLite files whose tables or catalogue are not what they should be.

#include "EngineTest.h"
#include "Exercise.h"

using namespace Qt::StringLiterals;

namespace dao {

class HostileCatalogue : public EngineTest {
protected:
    HostileCatalogue() {
        addWords({u"a"_s, u"b"_s, u"c"_s});
        addLink(1, 1);
        addLink(1, 2);
        database.appendProperty(u"Wort"_s, {u"DBVersion"_s, DataType::Integer, 3});
        database.Close();
        good = bytes(u"test.lmt"_s);
    }

    /// Uses the good file after some SQL was run on it. Nothing but the engine's errors may come of that.
    Outcome use(const QString& sql) {
        SCOPED_TRACE(sql.toStdString());
        write(u"hostile"_s, good);
        RawFile(path(u"hostile"_s)).run(sql);
        const QByteArray before = bytes(u"hostile"_s);
        const Outcome outcome = readEverything(path(u"hostile"_s));
        EXPECT_TRUE(bytes(u"hostile"_s) == before);
        EXPECT_EQ(files().size(), 2) << files().join(u' ').toStdString();
        changeEverything(path(u"hostile"_s));
        return outcome;
    }
    /// The error of opening the good file after some SQL.
    [[nodiscard]] std::optional<int> openError(const QString& sql) {
        (void)use(sql);
        write(u"hostile"_s, good);
        RawFile(path(u"hostile"_s)).run(sql);
        return errorOf([&] { (void)DBEngine::OpenDatabase(path(u"hostile"_s)); });
    }

    QByteArray good;
};

TEST_F(HostileCatalogue, WithoutATableOfTheCatalogue) {
    for (const QString& table :
         {u"lmt_fields"_s, u"lmt_indexes"_s, u"lmt_properties"_s, u"lmt_relations"_s}) {
        EXPECT_EQ(openError(u"DROP TABLE "_s + table), 3343) << table.toStdString();
        EXPECT_EQ(openError(u"DROP TABLE %1; CREATE TABLE %1(x)"_s.arg(table)), 3343) << table.toStdString();
        EXPECT_EQ(openError(u"DROP TABLE %1; CREATE VIEW %1 AS SELECT 1 AS table_name"_s.arg(table)), 3343);
    }
    (void)use(u"DROP TABLE lmt_database"_s);
}

TEST_F(HostileCatalogue, WhoseTableIsAViewWithoutEnd) {
    const QString endless =
        u"CREATE VIEW %1 AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) "
        "SELECT 'Wort' AS table_name, i AS position, 'a' AS name, 10 AS type, 5 AS size, 0 AS attributes, "
        "NULL AS default_value, 0 AS allow_zero_length, i AS ID, 'x' AS Main, 'x' AS Typ, 1 AS Score, "
        "1 AS VID, 'x' AS field, 0 AS is_primary, 0 AS is_unique, 'x' AS value, '' AS foreign_table, "
        "'' AS foreign_field FROM n"_s;
    for (const QString& table : {u"lmt_fields"_s, u"lmt_indexes"_s, u"lmt_properties"_s, u"lmt_relations"_s})
        EXPECT_EQ(openError(u"DROP TABLE %1; "_s.arg(table) + endless.arg(table)), 3343)
            << table.toStdString();
    EXPECT_EQ(openError(u"DROP TABLE Wort; "_s + endless.arg(u"Wort"_s)), std::nullopt);
    const Database opened = DBEngine::OpenDatabase(path(u"hostile"_s));
    EXPECT_EQ(errorOf([&] { (void)opened.OpenRecordset(u"SELECT * FROM Wort"_s); }), 3078);
}

TEST_F(HostileCatalogue, WithFieldsOfNoType) {
    for (const QString& type :
         {u"99"_s, u"0"_s, u"-1"_s, u"NULL"_s, u"'Text'"_s, u"x'00'"_s, u"4294967299"_s})
        EXPECT_EQ(openError(u"UPDATE lmt_fields SET type = "_s + type), 3343) << type.toStdString();
    EXPECT_EQ(openError(u"UPDATE lmt_properties SET type = 99"_s), 3343);
}

TEST_F(HostileCatalogue, WithSizesAndFlagsBeyondReason) {
    for (const QString& value : {u"-1"_s, u"0"_s, u"9223372036854775807"_s, u"-9223372036854775808"_s,
                                 u"NULL"_s, u"'many'"_s, u"1e300"_s, u"zeroblob(100000)"_s})
        for (const QString& column : {u"size"_s, u"attributes"_s, u"allow_zero_length"_s, u"default_value"_s})
            (void)use(u"UPDATE lmt_fields SET %1 = %2"_s.arg(column, value));
}

TEST_F(HostileCatalogue, WithDefaultsThatTheFieldsRefuse) {
    (void)use(u"UPDATE lmt_fields SET default_value = 'no number' WHERE name = 'Score'"_s);
    (void)use(u"UPDATE lmt_fields SET default_value = 99999999999 WHERE name = 'Score'"_s);
    (void)use(u"UPDATE lmt_fields SET default_value = hex(zeroblob(200000))"_s);
    (void)use(u"UPDATE lmt_fields SET default_value = 1.5"_s);
}

TEST_F(HostileCatalogue, WithFieldsThatTheTableDoesNotHave) {
    for (const QString& sql : {
             u"UPDATE lmt_fields SET name = 'Nichts' WHERE name = 'Main'"_s,
             u"UPDATE lmt_fields SET name = NULL WHERE name = 'Main'"_s,
             u"UPDATE lmt_fields SET name = '' WHERE name = 'Main'"_s,
             u"UPDATE lmt_fields SET name = '\"; DROP TABLE Wort; --' WHERE name = 'Main'"_s,
             u"UPDATE lmt_fields SET name = 'rowid' WHERE name = 'Main'"_s,
             u"INSERT INTO lmt_fields VALUES('Wort', 17, 'Neu', 10, 5, 0, NULL, 0)"_s,
             u"ALTER TABLE Wort DROP COLUMN Main"_s,
             u"ALTER TABLE Link DROP COLUMN ID"_s.replace(u"ALTER"_s, u"DROP INDEX \"Link_by_ID\"; ALTER"_s),
         })
        EXPECT_EQ(openError(sql), 3343) << sql.toStdString();
}

TEST_F(HostileCatalogue, WithAFieldNamedTwice) {
    EXPECT_EQ(openError(u"UPDATE lmt_fields SET name = 'ID' WHERE name = 'VID'"_s), 3343);
    EXPECT_EQ(openError(u"UPDATE lmt_fields SET name = 'mAIN' WHERE name = 'Typ'"_s), 3343);
    EXPECT_EQ(
        openError(u"INSERT INTO lmt_fields SELECT table_name, position + 10, name, type, size, attributes, "
                  "default_value, allow_zero_length FROM lmt_fields"_s),
        3343);
}

TEST_F(HostileCatalogue, WithNamesInOtherSpelling) {
    const Outcome outcome = use(u"UPDATE lmt_fields SET name = 'MAIN' WHERE name = 'Main'"_s);
    EXPECT_TRUE(outcome.opened && !outcome.failed);
    (void)use(u"UPDATE lmt_fields SET table_name = 'WORT' WHERE table_name = 'Wort'"_s);
}

// A key that can come twice would send a walk round in circles.
TEST_F(HostileCatalogue, WhoseKeysAreNone) {
    const QString columns = u"Main TEXT, Typ TEXT, Score INTEGER, VID INTEGER"_s;
    const QString rows =
        u"INSERT INTO Wort VALUES(1.2, 'a', 'x', 1, 1), (1.5, 'b', 'x', 1, 1), (1, 'c', 'x', 1, 1), "
        "('x', 'd', 'x', 1, 1), (NULL, 'e', 'x', 1, 1), (2, 'f', 'x', 1, 1), (2, 'g', 'x', 1, 1)"_s;
    EXPECT_EQ(openError(u"DROP TABLE Wort; CREATE TABLE Wort(ID, %1); "_s.arg(columns) + rows), 3343);
    EXPECT_EQ(openError(u"DROP TABLE Wort; CREATE TABLE Wort(ID INTEGER, %1); "_s.arg(columns) + rows), 3343);
    EXPECT_EQ(openError(u"DROP TABLE Wort; CREATE TABLE Wort(ID INT PRIMARY KEY, %1)"_s.arg(columns)), 3343);
    EXPECT_EQ(
        openError(u"DROP TABLE Wort; CREATE TABLE Wort(ID INTEGER PRIMARY KEY DESC, %1)"_s.arg(columns)),
        3343);
    EXPECT_EQ(openError(u"DROP TABLE Wort; CREATE TABLE Wort(ID INTEGER PRIMARY KEY, %1) WITHOUT ROWID"_s.arg(
                  columns)),
              3343);
    EXPECT_EQ(openError(u"DROP TABLE Wort; CREATE TABLE Wort(ID INTEGER, %1, PRIMARY KEY(ID, Main))"_s.arg(
                  columns)),
              3343);
    EXPECT_EQ(openError(u"UPDATE lmt_fields SET attributes = 0 WHERE name = 'ID'"_s), 3343)
        << "a key of its own, not there";
    EXPECT_EQ(openError(u"UPDATE lmt_fields SET attributes = 16 WHERE name = 'VID'"_s), 3343);
    EXPECT_EQ(openError(u"UPDATE lmt_fields SET attributes = 16 WHERE name = 'IDV'"_s), 3343);
    EXPECT_EQ(openError(u"DROP TABLE Link; CREATE TABLE Link(_row INTEGER, IDV INTEGER, ID INTEGER)"_s),
              3343);
}

TEST_F(HostileCatalogue, MadeByAnotherProgramWithTheSameColumnsIsFine) {
    EXPECT_EQ(
        openError(
            u"DROP TABLE Wort; CREATE TABLE Wort(Score INT, VID, Typ, Main, extra, ID INTEGER NOT NULL, "
            "PRIMARY KEY(ID)); INSERT INTO Wort(ID, Main) VALUES(5, 'x')"_s),
        std::nullopt);
    const Database opened = DBEngine::OpenDatabase(path(u"hostile"_s));
    Recordset recordset = opened.OpenRecordset(u"SELECT * FROM Wort"_s);
    EXPECT_EQ(walk(recordset), u"x");
}

TEST_F(HostileCatalogue, WithoutTablesOrWithTablesUnknown) {
    EXPECT_EQ(openError(u"DELETE FROM lmt_fields"_s), std::nullopt);
    EXPECT_TRUE(DBEngine::OpenDatabase(path(u"hostile"_s)).TableNames().isEmpty());
    EXPECT_EQ(openError(u"DROP TABLE Wort"_s), std::nullopt);
    EXPECT_EQ(DBEngine::OpenDatabase(path(u"hostile"_s)).TableNames(), QStringList{u"Link"_s});
    EXPECT_EQ(openError(u"CREATE TABLE Fremd(a)"_s), std::nullopt);
    EXPECT_EQ(DBEngine::OpenDatabase(path(u"hostile"_s)).TableNames().size(), 2)
        << "what the catalogue does not know";
}

TEST_F(HostileCatalogue, WithItsOwnTablesAmongTheCataloguesTables) {
    for (const QString& table :
         {u"lmt_fields"_s, u"sqlite_sequence"_s, u"sqlite_schema"_s, u"lmt_database"_s})
        (void)use(u"INSERT INTO lmt_fields VALUES('%1', 1, 'name', 10, 50, 0, NULL, 1)"_s.arg(table));
}

TEST_F(HostileCatalogue, WithValuesOfOtherTypesInTheRows) {
    (void)use(u"UPDATE Wort SET Score = 'six', VID = x'00ff', Main = 17, Typ = 1.5"_s);
    (void)use(u"UPDATE Wort SET Main = x'c328a0ff', Typ = CAST(x'eda080' AS TEXT)"_s);
    (void)use(u"UPDATE Wort SET Main = hex(zeroblob(300000)), Score = 9223372036854775807"_s);
    (void)use(
        u"UPDATE Wort SET ID = -9223372036854775808 WHERE ID = 1; UPDATE Wort SET ID = 9223372036854775807 WHERE ID = 2"_s);
    (void)use(u"UPDATE sqlite_sequence SET seq = 9223372036854775807"_s);
    (void)use(u"UPDATE sqlite_sequence SET seq = 'x'"_s);
    (void)use(u"UPDATE lmt_properties SET value = x'00', name = NULL, table_name = NULL"_s);
}

TEST_F(HostileCatalogue, WithCodeThatRunsByItself) {
    for (const QString& event : {u"INSERT"_s, u"UPDATE"_s, u"DELETE"_s}) {
        EXPECT_EQ(openError(u"CREATE TRIGGER t AFTER %1 ON Wort BEGIN DELETE FROM Link; END"_s.arg(event)),
                  std::nullopt);
        (void)changeEverything(path(u"hostile"_s));
        EXPECT_NE(RawFile(path(u"hostile"_s)).cell(u"SELECT count(*) FROM Link"_s), u"0")
            << "triggers stay silent";
    }
    (void)use(u"CREATE TABLE x(a DEFAULT (randomblob(1000000000)))"_s);
    (void)use(u"ALTER TABLE Wort ADD COLUMN g AS (upper(Main))"_s);
    (void)use(u"CREATE INDEX i ON Wort(upper(Main))"_s);
    (void)use(u"CREATE INDEX i ON Wort(Main) WHERE Main LIKE '%a'"_s);
}

} // namespace dao
