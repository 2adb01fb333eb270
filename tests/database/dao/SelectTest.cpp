// The statements that open a recordset.

#include "EngineTest.h"

using namespace Qt::StringLiterals;

namespace dao {

class Select : public EngineTest {
protected:
    Select() {
        addWords({u"Haus"_s, u"Maus"_s, u"Hund"_s});
        for (const auto& [entry, item] : {std::pair{1, 10}, {1, 11}, {2, 10}, {3, 12}, {9, 10}})
            addLink(entry, item);
    }

    [[nodiscard]] Recordset open(const QString& statement) const { return database.OpenRecordset(statement); }
    /// All rows of a statement, columns joined by ",", rows by blanks.
    [[nodiscard]] QString rows(const QString& statement) const {
        Recordset recordset = open(statement);
        QStringList result;
        for (; !recordset.EOF_(); recordset.MoveNext()) {
            QStringList cells;
            for (int i = 0; i < recordset.fieldCount(); ++i)
                cells.append(recordset.field(i).toText(u"NULL"_s));
            result.append(cells.join(u','));
        }
        return result.join(u' ');
    }
};

TEST_F(Select, ColumnsAndConditionsOfOneTable) {
    EXPECT_EQ(rows(u"SELECT ID, Main FROM Wort"_s), u"1,Haus 2,Maus 3,Hund");
    EXPECT_EQ(rows(u"SELECT Main FROM Wort WHERE Main LIKE '*au*'"_s), u"Haus Maus");
    EXPECT_EQ(rows(u"select wort.main, ID from WORT where id > 1"_s), u"Maus,2 Hund,3");
    EXPECT_EQ(rows(u"SELECT * FROM Link WHERE IDV = 1 OR ID = 12"_s), u"1,10 1,11 3,12");
    EXPECT_EQ(rows(u"SELECT Link.* FROM Link WHERE IDV = 9"_s), u"9,10");
    EXPECT_EQ(rows(u"SELECT [Main] FROM [Wort] WHERE [Wort].[ID] = 2"_s), u"Maus");
    EXPECT_EQ(rows(u"SELECT Main FROM Wort WHERE VID IS NULL AND Score = 6"_s), u"Haus Maus Hund");
}

TEST_F(Select, RowsOfOneTableCanBeChanged) {
    Recordset recordset = open(u"SELECT ID, Main FROM Wort WHERE ID = 2"_s);
    recordset.Edit();
    recordset.setField(u"Main"_s, u"Mäuse"_s);
    recordset.Update();
    recordset.AddNew();
    recordset.setField(1, u"neu"_s);
    recordset.Update();
    EXPECT_EQ(stored(), u"Haus Mäuse Hund neu");
    EXPECT_EQ(RawFile(file()).lines(u"SELECT Typ, Score FROM Wort WHERE ID = 4"_s), QStringList{u"neu | 6"_s})
        << "fields that the statement leaves out take their defaults as well";
}

TEST_F(Select, JoinsTables) {
    EXPECT_EQ(rows(u"SELECT Wort.ID, Main, Link.ID FROM Wort, Link WHERE Wort.ID = Link.IDV"_s),
              u"1,Haus,10 1,Haus,11 2,Maus,10 3,Hund,12");
    EXPECT_EQ(rows(u"SELECT Main FROM Wort, Link WHERE Wort.ID = IDV AND Link.ID LIKE '10'"_s), u"Haus Maus");
    EXPECT_EQ(open(u"SELECT * FROM Wort, Link"_s).RecordCount(), 15);
    EXPECT_EQ(open(u"SELECT * FROM Wort, Link"_s).fieldCount(), 7);
    EXPECT_EQ(open(u"SELECT Link.*, Main FROM Wort, Link"_s).fieldCount(), 3);
}

TEST_F(Select, DistinctMergesEqualRowsAndOrdersThemByTheirColumns) {
    addWords({u"Aal"_s});
    addLink(4, 10);
    EXPECT_EQ(rows(u"SELECT DISTINCT ID FROM Link"_s), u"10 11 12");
    EXPECT_EQ(rows(u"SELECT DISTINCT Main FROM Wort, Link WHERE Wort.ID = Link.IDV"_s),
              u"Aal Haus Hund Maus");
    EXPECT_EQ(rows(u"SELECT DISTINCT Link.ID, Main FROM Wort, Link WHERE Wort.ID = Link.IDV"_s),
              u"10,Aal 10,Haus 10,Maus 11,Haus 12,Hund");
    EXPECT_EQ(
        rows(
            u"SELECT DISTINCT Wort.* FROM Wort, Link WHERE Wort.ID = Link.IDV AND (Link.ID = 10 OR Link.ID = 11)"_s),
        u"1,Haus,neu,6,NULL 2,Maus,neu,6,NULL 4,Aal,neu,6,NULL")
        << "the rows of one entry are one, and come in the order of the keys";
}

TEST_F(Select, DistinctMergesRowsOfATableWithoutAKeyOfItsOwn) {
    addLink(1, 10);
    addLink(1, 10);
    EXPECT_EQ(rows(u"SELECT DISTINCT * FROM Link"_s), u"1,10 1,11 2,10 3,12 9,10");
    EXPECT_EQ(open(u"SELECT * FROM Link"_s).RecordCount(), 7);
}

TEST_F(Select, DistinctOverAWholeTableWithAKeyCanBeChanged) {
    Recordset recordset = open(u"SELECT DISTINCT Wort.* FROM Wort"_s);
    recordset.Delete();
    EXPECT_EQ(stored(), u"Maus Hund");
}

TEST_F(Select, FieldsOfAJoinGoByTheirFullNameWhereTheShortOneIsShared) {
    const Recordset recordset = open(u"SELECT * FROM Wort, Link WHERE Wort.ID = Link.IDV"_s);
    EXPECT_EQ(recordset.field(u"Main"_s), Value(u"Haus"_s));
    EXPECT_EQ(recordset.field(u"Wort.ID"_s), Value(1));
    EXPECT_EQ(recordset.field(u"link.id"_s), Value(10));
    EXPECT_EQ(recordset.field(0), Value(1));
    EXPECT_EQ(recordset.field(6), Value(10));
    EXPECT_EQ(errorOf([&] { (void)recordset.field(u"ID"_s); }), 3265);
    EXPECT_EQ(recordset.fieldName(0), u"Wort.ID");
    EXPECT_EQ(recordset.fieldName(1), u"Main");
    EXPECT_EQ(recordset.fieldName(6), u"Link.ID");
}

TEST_F(Select, AJoinMovesAndFindsLikeAnyRecordset) {
    Recordset recordset = open(u"SELECT Main, Link.ID FROM Wort, Link WHERE Wort.ID = Link.IDV"_s);
    EXPECT_EQ(recordset.RecordCount(), 4);
    EXPECT_EQ(walk(recordset), u"Haus Haus Maus Hund");
    EXPECT_EQ(findAll(recordset, u"Link.ID = 10"_s), u"Haus Maus");
    EXPECT_EQ(findAll(recordset, u"Main LIKE 'h*'"_s), u"Haus Haus Hund");
    recordset.FindLast(u"Main LIKE 'h*'"_s);
    EXPECT_EQ(recordset.AbsolutePosition(), 3);
    recordset.FindPrevious(u"Main LIKE 'h*'"_s);
    EXPECT_EQ(recordset.AbsolutePosition(), 1);
    recordset.FindNext(u"Main = 'none'"_s);
    EXPECT_TRUE(recordset.NoMatch());
    EXPECT_EQ(recordset.AbsolutePosition(), 1);
    const auto bookmark = recordset.Bookmark();
    recordset.MoveLast();
    recordset.setBookmark(bookmark);
    EXPECT_EQ(recordset.field(1), Value(11));
    EXPECT_EQ(errorOf([&] { recordset.setBookmark(4); }), 3159);
    EXPECT_EQ(errorOf([&] { recordset.setBookmark(-1); }), 3159);
    EXPECT_EQ(errorOf([&] { recordset.FindFirst(u"Wort.ID = 1"_s); }), 3070) << "no column of the result";
    EXPECT_EQ(errorOf([&] { recordset.FindFirst(u"Main LIKE '[a'"_s); }), 93);
    recordset.FindFirst(u"Main = 'Maus'"_s);
    EXPECT_EQ(recordset.AbsolutePosition(), 2);
}

TEST_F(Select, AJoinIsReadOnlyAndACopy) {
    Recordset recordset = open(u"SELECT Main FROM Wort, Link WHERE Wort.ID = Link.IDV AND Link.ID = 12"_s);
    for (const auto change : {&Recordset::AddNew, &Recordset::Edit, &Recordset::Update,
                              &Recordset::CancelUpdate, &Recordset::Delete})
        EXPECT_EQ(errorOf([&, c = change] { (recordset.*c)(); }), 3027);
    EXPECT_EQ(errorOf([&] { recordset.setField(0, u"x"_s); }), 3027);
    EXPECT_EQ(errorOf([&] { (void)recordset.LastModified(); }), 3021);
    RawFile(file()).run(u"UPDATE Wort SET Main = 'Katze' WHERE ID = 3"_s);
    EXPECT_EQ(main(recordset), u"Hund");
    recordset.Requery();
    EXPECT_EQ(main(recordset), u"Katze");
}

TEST_F(Select, AnAmbiguousNameIsAnError) {
    for (const QString& statement :
         {u"SELECT ID FROM Wort, Link"_s, u"SELECT Main FROM Wort, Link WHERE ID = 1"_s,
          u"SELECT DISTINCT Main FROM Wort, Link WHERE Wort.ID = Link.IDV AND ID = 1"_s,
          u"SELECT Main FROM Wort, Wort"_s, u"SELECT * FROM Wort, Wort"_s,
          u"SELECT Wort.* FROM Wort, wort"_s})
        EXPECT_EQ(errorOf([&] { (void)open(statement); }), 3079) << statement.toStdString();
    Recordset recordset = open(u"SELECT * FROM Wort, Link"_s);
    EXPECT_EQ(errorOf([&] { recordset.FindFirst(u"ID = 1"_s); }), 3079);
    EXPECT_TRUE(descriptionOf([&] { recordset.FindFirst(u"ID = 1"_s); }).contains(u"'ID'"_s));
}

TEST_F(Select, ErrorsTellWhatIsWrong) {
    const std::pair<QString, int> table[] = {
        {u"SELECT"_s, 3075},
        {u""_s, 3075},
        {u"SELECT * FROM Wort WHERE Main = 'l'eau'"_s, 3075},
        {u"SELECT * FROM Wort; DROP TABLE Wort"_s, 3075},
        {u"DELETE FROM Wort"_s, 3075},
        {u"SELECT * FROM Wort ORDER BY ID"_s, 3075},
        {u"SELECT * FROM Wort WHERE ID = 1 --"_s, 3075},
        {u"SELECT * FROM Nichts"_s, 3078},
        {u"SELECT * FROM Wort, Nichts"_s, 3078},
        {u"SELECT * FROM sqlite_schema"_s, 3078},
        {u"SELECT * FROM lmt_fields"_s, 3078},
        {u"SELECT Nichts FROM Wort"_s, 3061},
        {u"SELECT Link.IDV FROM Wort"_s, 3061},
        {u"SELECT Link.* FROM Wort"_s, 3061},
        {u"SELECT * FROM Wort WHERE Nichts = 1"_s, 3061},
        {u"SELECT * FROM Wort WHERE rowid = 1"_s, 3061},
        {u"SELECT _row FROM Link"_s, 3061},
        {u"SELECT * FROM Wort WHERE Main = 1"_s, 3421},
        {u"SELECT * FROM Wort WHERE ID = Main"_s, 3421},
        {u"SELECT * FROM Wort WHERE Main LIKE '['"_s, 93},
    };
    for (const auto& [statement, number] : table)
        EXPECT_EQ(errorOf([&, s = statement] { (void)open(s); }), number) << statement.toStdString();
    EXPECT_TRUE(descriptionOf([&] { (void)open(u"SELECT * FROM Nichts"_s); }).contains(u"'Nichts'"_s));
    EXPECT_TRUE(descriptionOf([&] { (void)open(u"SELECT Foo FROM Wort"_s); }).contains(u"'Foo'"_s));
    EXPECT_TRUE(descriptionOf([&] { (void)open(u"SELECT x y"_s); }).contains(u"SELECT x y"_s));
    EXPECT_EQ(stored(), u"Haus Maus Hund");
}

TEST_F(Select, TheSameShapeWithOtherValuesYieldsOtherRows) {
    for (int round = 0; round < 2; ++round)
        for (int id = 1; id <= 3; ++id) {
            const QString word = QStringList{u"Haus"_s, u"Maus"_s, u"Hund"_s}[id - 1];
            EXPECT_EQ(rows(u"SELECT Main FROM Wort WHERE ID = %1"_s.arg(id)), word);
            EXPECT_EQ(rows(u"SELECT ID FROM Wort WHERE Main = '%1'"_s.arg(word)), QString::number(id));
        }
}

TEST_F(Select, ATableThatIsCreatedLaterCanBeSelected) {
    EXPECT_EQ(errorOf([&] { (void)open(u"SELECT * FROM Neu"_s); }), 3078);
    TableDef table = wortTable();
    table.Name = u"Neu"_s;
    database.appendTable(table);
    EXPECT_EQ(open(u"SELECT * FROM Neu"_s).RecordCount(), 0);
}

TEST_F(Select, MoreStatementsThanAreRememberedStillWork) {
    // Statements of 768 shapes: the names in every spelling, three operators.
    const auto condition = [](int number) {
        QString name = u"wort.main"_s;
        for (int letter = 0, bit = 0; letter < name.size(); ++letter)
            if (name[letter] != u'.' && (number >> bit++ & 1) != 0)
                name[letter] = name[letter].toUpper();
        return name + QStringList{u" = 'Haus'"_s, u" <= 'Haus'"_s, u" >= 'Haus'"_s}[number / 256];
    };
    Recordset early = open(u"SELECT Main FROM Wort WHERE ID = 1"_s);
    for (int round = 0; round < 2; ++round)
        for (int i = 0; i < 768; ++i) {
            ASSERT_EQ(main(open(u"SELECT * FROM Wort WHERE "_s + condition(i))), u"Haus");
            early.FindFirst(condition(i));
            ASSERT_FALSE(early.NoMatch());
        }
    EXPECT_EQ(main(early), u"Haus");
}

} // namespace dao
