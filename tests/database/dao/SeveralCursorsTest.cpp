// Several recordsets over one table, and a second program on the same file.

#include "EngineTest.h"

using namespace Qt::StringLiterals;

namespace dao {

class SeveralCursors : public EngineTest {
protected:
    SeveralCursors() { addWords({u"a"_s, u"b"_s, u"c"_s}); }
};

TEST_F(SeveralCursors, MoveIndependently) {
    Recordset first = words();
    Recordset second = words();
    Recordset third = words();
    second.MoveLast();
    third.FindFirst(u"Main = 'b'"_s);
    EXPECT_EQ(main(first), u"a");
    EXPECT_EQ(main(second), u"c");
    EXPECT_EQ(main(third), u"b");
    first.FindFirst(u"Main = 'none'"_s);
    EXPECT_FALSE(second.NoMatch());
}

TEST_F(SeveralCursors, RowsThatOneAddsAppearInTheOthersAfterRequery) {
    Recordset first = words();
    Recordset second = words();
    first.AddNew();
    first.setField(u"Main"_s, u"d"_s);
    first.Update();
    EXPECT_EQ(first.RecordCount(), 4);
    EXPECT_EQ(second.RecordCount(), 3);
    EXPECT_EQ(walk(second), u"a b c");
    second.Requery();
    EXPECT_EQ(second.RecordCount(), 4);
    EXPECT_EQ(walk(second), u"a b c d");
}

TEST_F(SeveralCursors, ChangesOfOneAreReadByTheOthersAtOnce) {
    Recordset first = words();
    const Recordset second = words();
    ASSERT_EQ(main(second), u"a");
    first.Edit();
    first.setField(u"Main"_s, u"A"_s);
    first.Update();
    EXPECT_EQ(main(second), u"A");
}

TEST_F(SeveralCursors, ARowThatAnotherDeletedIsTold) {
    Recordset first = words();
    Recordset second = words();
    ASSERT_EQ(main(second), u"a");
    first.Delete();
    EXPECT_EQ(second.RecordCount(), 3) << "the key is still held";
    EXPECT_FALSE(second.EOF_());
    EXPECT_EQ(errorOf([&] { (void)main(second); }), 3167);
    EXPECT_EQ(errorOf([&] { second.Edit(); }), 3167);
    EXPECT_EQ(errorOf([&] { second.Delete(); }), 3167);
    second.MoveNext();
    EXPECT_EQ(main(second), u"b");
    second.Requery();
    EXPECT_EQ(second.RecordCount(), 2);
    EXPECT_EQ(main(second), u"b");
}

TEST_F(SeveralCursors, ARowDeletedWhileItIsEditedCannotBeUpdated) {
    Recordset first = words();
    Recordset second = words();
    second.Edit();
    second.setField(u"Main"_s, u"A"_s);
    first.Delete();
    EXPECT_EQ(errorOf([&] { second.Update(); }), 3167);
    EXPECT_EQ(stored(), u"b c");
}

TEST_F(SeveralCursors, ASearchPassesOverRowsThatAnotherDeleted) {
    Recordset first = words();
    Recordset second = words();
    first.MoveNext();
    first.Delete();
    second.FindNext(u"ID LIKE '*'"_s);
    EXPECT_EQ(main(second), u"c");
    EXPECT_EQ(second.AbsolutePosition(), 2);
    second.FindPrevious(u"ID LIKE '*'"_s);
    EXPECT_EQ(main(second), u"a");
}

TEST_F(SeveralCursors, EditsOfTheSameRowMeetFieldByField) {
    Recordset first = words();
    Recordset second = words();
    first.Edit();
    second.Edit();
    first.setField(u"Main"_s, u"A"_s);
    second.setField(u"Score"_s, 1);
    first.Update();
    second.Update();
    EXPECT_EQ(RawFile(file()).lines(u"SELECT Main, Score FROM Wort WHERE ID = 1"_s), QStringList{u"A | 1"_s});
}

TEST_F(SeveralCursors, AnotherProgramsChangesAreReadByTheNextMove) {
    Recordset recordset = words();
    RawFile(file()).run(u"UPDATE Wort SET Main = 'C' WHERE ID = 3; DELETE FROM Wort WHERE ID = 2; "
                        "INSERT INTO Wort(Main) VALUES('d')"_s);
    recordset.MoveNext();
    EXPECT_EQ(errorOf([&] { (void)main(recordset); }), 3167);
    recordset.MoveNext();
    EXPECT_EQ(main(recordset), u"C");
    recordset.Requery();
    EXPECT_EQ(walk(recordset), u"a C d");
    recordset.FindFirst(u"Main = 'd'"_s);
    EXPECT_FALSE(recordset.NoMatch());
}

TEST_F(SeveralCursors, TwoOpenDatabasesShareTheFile) {
    const Database other = DBEngine::OpenDatabase(file());
    Recordset mine = words();
    Recordset theirs = other.OpenRecordset(u"SELECT * FROM Wort"_s);
    mine.Edit();
    mine.setField(u"Main"_s, u"A"_s);
    mine.Update();
    theirs.MoveLast();
    theirs.Edit();
    theirs.setField(u"Main"_s, u"C"_s);
    theirs.Update();
    theirs.AddNew();
    theirs.setField(u"Main"_s, u"d"_s);
    theirs.Update();
    mine.Requery();
    EXPECT_EQ(walk(mine), u"A b C d");
    theirs.Requery();
    EXPECT_EQ(walk(theirs), u"A b C d");
    mine.AddNew();
    mine.Update();
    mine.setBookmark(mine.LastModified());
    EXPECT_EQ(mine.field(0), Value(5));
}

} // namespace dao
