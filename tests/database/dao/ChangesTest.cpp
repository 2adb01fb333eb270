// AddNew, Edit, Update, Delete, bookmarks.

#include "EngineTest.h"

using namespace Qt::StringLiterals;

namespace dao {

class Changes : public EngineTest {
protected:
    Changes() { addWords({u"a"_s, u"b"_s, u"c"_s}); }
};

TEST_F(Changes, AddNewLeavesTheCurrentRowWhereItIs) {
    Recordset recordset = words();
    recordset.MoveNext();
    recordset.AddNew();
    recordset.setField(u"Main"_s, u"d"_s);
    EXPECT_EQ(main(recordset), u"d") << "while the row is in work";
    recordset.Update();
    EXPECT_EQ(main(recordset), u"b");
    EXPECT_EQ(recordset.AbsolutePosition(), 1);
    EXPECT_EQ(recordset.RecordCount(), 4);
    EXPECT_EQ(stored(), u"a b c d");
    recordset.MoveLast();
    EXPECT_EQ(main(recordset), u"d");
    EXPECT_EQ(recordset.field(u"ID"_s), Value(4));
}

TEST_F(Changes, AddNewAtAnEndStaysAtThatEnd) {
    Recordset recordset = words();
    recordset.MoveLast();
    recordset.MoveNext();
    recordset.AddNew();
    recordset.setField(u"Main"_s, u"d"_s);
    recordset.Update();
    EXPECT_TRUE(recordset.EOF_());
    recordset.MovePrevious();
    EXPECT_EQ(main(recordset), u"d");
    recordset.MoveFirst();
    recordset.MovePrevious();
    recordset.AddNew();
    recordset.Update();
    EXPECT_TRUE(recordset.BOF());
    recordset.MoveNext();
    EXPECT_EQ(main(recordset), u"a");
}

TEST_F(Changes, KeyOfANewRowCanBeReadBeforeItIsWritten) {
    Recordset recordset = words();
    recordset.AddNew();
    EXPECT_EQ(recordset.field(u"ID"_s), Value(4));
    EXPECT_EQ(recordset.field(u"ID"_s), Value(4)) << "it is taken once";
    recordset.setField(u"Main"_s, u"d"_s);
    recordset.Update();
    recordset.MoveLast();
    EXPECT_EQ(recordset.field(u"ID"_s), Value(4));
    EXPECT_EQ(main(recordset), u"d");
    recordset.AddNew();
    recordset.Update();
    recordset.MoveLast();
    EXPECT_EQ(recordset.field(u"ID"_s), Value(5));
}

TEST_F(Changes, KeyOfANewRowIsKnownInATableThatNeverHadOne) {
    TableDef table = wortTable();
    table.Name = u"Leer"_s;
    database.appendTable(table);
    Recordset recordset = database.OpenRecordset(u"SELECT * FROM Leer"_s);
    recordset.AddNew();
    EXPECT_EQ(recordset.field(u"ID"_s), Value(1));
    recordset.Update();
    recordset.AddNew();
    EXPECT_EQ(recordset.field(u"ID"_s), Value(2));
}

TEST_F(Changes, KeyThatWasReadBelongsToNoOtherRow) {
    Recordset recordset = words();
    recordset.AddNew();
    EXPECT_EQ(recordset.field(u"ID"_s), Value(4));
    RawFile(file()).run(u"INSERT INTO Wort(Main) VALUES('other')"_s);
    recordset.setField(u"Main"_s, u"d"_s);
    recordset.Update();
    EXPECT_EQ(RawFile(file()).lines(u"SELECT ID, Main FROM Wort WHERE ID > 3 ORDER BY ID"_s),
              (QStringList{u"4 | d"_s, u"5 | other"_s}));
    recordset.AddNew();
    EXPECT_EQ(recordset.field(u"ID"_s), Value(6));
    recordset.CancelUpdate();
    recordset.AddNew();
    EXPECT_EQ(recordset.field(u"ID"_s), Value(7)) << "what was given up leaves a gap";
}

TEST_F(Changes, KeysEndWhereTheFieldDoes) {
    RawFile(file()).run(u"UPDATE sqlite_sequence SET seq = 2147483647 WHERE name = 'Wort'"_s);
    Recordset recordset = words();
    recordset.AddNew();
    EXPECT_EQ(errorOf([&] { (void)recordset.field(u"ID"_s); }), 6);
    RawFile(file()).run(u"UPDATE sqlite_sequence SET seq = 'x' WHERE name = 'Wort'"_s);
    EXPECT_EQ(recordset.field(u"ID"_s), Value(4)) << "the rows tell as well";
}

TEST_F(Changes, AddNewToAnEmptyRecordset) {
    Recordset recordset = links();
    EXPECT_TRUE(recordset.EOF_());
    recordset.AddNew();
    recordset.setField(u"IDV"_s, 1);
    recordset.Update();
    EXPECT_EQ(recordset.RecordCount(), 1);
    EXPECT_FALSE(recordset.BOF());
    recordset.setBookmark(recordset.LastModified());
    EXPECT_EQ(recordset.field(0), Value(1));
    EXPECT_TRUE(recordset.field(1).isNull());
}

TEST_F(Changes, LastModifiedBookmarksTheRowWritten) {
    Recordset recordset = words();
    EXPECT_EQ(errorOf([&] { (void)recordset.LastModified(); }), 3021);
    recordset.AddNew();
    recordset.setField(u"Main"_s, u"d"_s);
    recordset.Update();
    recordset.setBookmark(recordset.LastModified());
    EXPECT_EQ(main(recordset), u"d");
    recordset.MoveFirst();
    recordset.Edit();
    recordset.setField(u"Main"_s, u"A"_s);
    recordset.Update();
    recordset.MoveLast();
    recordset.setBookmark(recordset.LastModified());
    EXPECT_EQ(main(recordset), u"A");
}

TEST_F(Changes, ABookmarkLeadsBackToItsRow) {
    Recordset recordset = words();
    recordset.MoveNext();
    const auto bookmark = recordset.Bookmark();
    recordset.MoveLast();
    recordset.Delete();
    recordset.MoveFirst();
    recordset.Delete();
    recordset.setBookmark(bookmark);
    EXPECT_EQ(main(recordset), u"b");
    EXPECT_EQ(recordset.AbsolutePosition(), 0);
    for (const Recordset::BookmarkType other :
         {qint64{99}, qint64{-1}, bookmark - 1, bookmark + 1, std::numeric_limits<qint64>::max()})
        EXPECT_EQ(errorOf([&] { recordset.setBookmark(other); }), 3159) << other;
    EXPECT_EQ(main(recordset), u"b") << "a bookmark that leads nowhere moves nothing";
}

TEST_F(Changes, EditIsSeenOnceItIsUpdated) {
    Recordset recordset = words();
    recordset.MoveNext();
    recordset.Edit();
    recordset.setField(u"Main"_s, u"B"_s);
    recordset.setField(u"Score"_s, 12);
    EXPECT_EQ(main(recordset), u"B");
    EXPECT_EQ(stored(), u"a b c");
    recordset.Update();
    EXPECT_EQ(stored(), u"a B c");
    EXPECT_EQ(main(recordset), u"B");
    EXPECT_EQ(recordset.AbsolutePosition(), 1);
    EXPECT_EQ(RawFile(file()).lines(u"SELECT * FROM Wort WHERE ID = 2"_s),
              QStringList{u"2 | B | neu | 12 | NULL"_s});
}

TEST_F(Changes, EditWritesOnlyTheFieldsThatWereSet) {
    Recordset recordset = words();
    recordset.Edit();
    recordset.setField(u"Score"_s, 1);
    RawFile(file()).run(u"UPDATE Wort SET Main = 'other' WHERE ID = 1"_s);
    recordset.Update();
    EXPECT_EQ(RawFile(file()).lines(u"SELECT Main, Score FROM Wort WHERE ID = 1"_s),
              QStringList{u"other | 1"_s});
}

TEST_F(Changes, UpdateWithoutChangesIsFine) {
    Recordset recordset = words();
    recordset.Edit();
    recordset.Update();
    EXPECT_EQ(errorOf([&] { recordset.Update(); }), 3020);
    EXPECT_EQ(stored(), u"a b c");
    recordset.setBookmark(recordset.LastModified());
    EXPECT_EQ(main(recordset), u"a");
}

TEST_F(Changes, NeedAddNewOrEditFirst) {
    Recordset recordset = words();
    EXPECT_EQ(errorOf([&] { recordset.setField(u"Main"_s, u"x"_s); }), 3020);
    EXPECT_EQ(errorOf([&] { recordset.Update(); }), 3020);
    EXPECT_EQ(errorOf([&] { recordset.CancelUpdate(); }), 3020);
    recordset.AddNew();
    EXPECT_EQ(errorOf([&] { recordset.setField(u"nothing"_s, 1); }), 3265);
    EXPECT_EQ(errorOf([&] { recordset.setField(17, 1); }), 3265);
    recordset.CancelUpdate();
    EXPECT_EQ(errorOf([&] { recordset.CancelUpdate(); }), 3020);
    EXPECT_EQ(stored(), u"a b c");
    EXPECT_EQ(main(recordset), u"a");
}

TEST_F(Changes, AMoveDropsTheRowInWork) {
    const std::function<void(Recordset&)> moves[] = {
        [](Recordset& r) { r.MoveFirst(); },
        [](Recordset& r) { r.MoveLast(); },
        [](Recordset& r) { r.MoveNext(); },
        [](Recordset& r) { r.MovePrevious(); },
        [](Recordset& r) { r.FindFirst(u"ID = 2"_s); },
        [](Recordset& r) { r.FindFirst(u"ID = 99"_s); },
        [](Recordset& r) { r.FindNext(u"ID = 2"_s); },
        [](Recordset& r) { r.FindLast(u"ID = 2"_s); },
        [](Recordset& r) { r.FindPrevious(u"ID = 2"_s); },
        [](Recordset& r) { r.setBookmark(2); },
    };
    for (const auto& move : moves) {
        Recordset recordset = words();
        recordset.Edit();
        recordset.setField(u"Main"_s, u"x"_s);
        move(recordset);
        EXPECT_EQ(errorOf([&] { recordset.Update(); }), 3020);
        recordset = words();
        recordset.AddNew();
        move(recordset);
        EXPECT_EQ(errorOf([&] { recordset.Update(); }), 3020);
    }
    EXPECT_EQ(stored(), u"a b c");
}

TEST_F(Changes, AddNewAfterEditStartsANewRow) {
    Recordset recordset = words();
    recordset.Edit();
    recordset.setField(u"Main"_s, u"x"_s);
    recordset.AddNew();
    EXPECT_EQ(main(recordset), u"NULL");
    recordset.setField(u"Main"_s, u"d"_s);
    recordset.Update();
    EXPECT_EQ(stored(), u"a b c d");
    recordset.AddNew();
    recordset.Edit();
    EXPECT_EQ(main(recordset), u"a");
    recordset.CancelUpdate();
}

TEST_F(Changes, DeleteLeavesAHole) {
    Recordset recordset = words();
    recordset.MoveNext();
    recordset.Delete();
    EXPECT_EQ(stored(), u"a c");
    EXPECT_EQ(recordset.RecordCount(), 2);
    EXPECT_EQ(recordset.AbsolutePosition(), -1);
    EXPECT_FALSE(recordset.EOF_());
    EXPECT_FALSE(recordset.BOF());
    EXPECT_EQ(errorOf([&] { (void)main(recordset); }), 3167);
    EXPECT_EQ(errorOf([&] { recordset.Edit(); }), 3167);
    EXPECT_EQ(errorOf([&] { recordset.Delete(); }), 3167);
    EXPECT_EQ(errorOf([&] { (void)recordset.Bookmark(); }), 3167);
}

TEST_F(Changes, FromAHoleOneMovesToTheNeighbours) {
    const auto holeAt = [this](int position) {
        Recordset recordset = words();
        recordset.MoveFirst();
        for (int i = 0; i < position; ++i)
            recordset.MoveNext();
        recordset.Delete();
        return recordset;
    };
    Recordset middle = holeAt(1);
    middle.MoveNext();
    EXPECT_EQ(main(middle), u"c");
    addWords({u"d"_s});
    middle = holeAt(1); // "c"
    middle.MovePrevious();
    EXPECT_EQ(main(middle), u"a");
    Recordset first = holeAt(0); // "a"
    first.MovePrevious();
    EXPECT_TRUE(first.BOF());
    Recordset last = holeAt(0); // "d", the only one
    EXPECT_FALSE(last.EOF_()) << "not before it is moved";
    EXPECT_FALSE(last.BOF());
    last.MoveNext();
    EXPECT_TRUE(last.EOF_());
    EXPECT_TRUE(last.BOF());
    EXPECT_EQ(stored(), QString());
}

TEST_F(Changes, FromAHoleOneFindsTheNextAndThePrevious) {
    addWords({u"x"_s, u"a"_s});
    Recordset recordset = words();
    recordset.FindFirst(u"Main = 'b'"_s);
    recordset.Delete();
    recordset.FindNext(u"Main LIKE '?'"_s);
    EXPECT_EQ(main(recordset), u"c");
    recordset.Delete();
    recordset.FindPrevious(u"Main LIKE '?'"_s);
    EXPECT_EQ(main(recordset), u"a");
    recordset.Delete();
    recordset.FindNext(u"Main = 'none'"_s);
    EXPECT_TRUE(recordset.NoMatch());
    EXPECT_EQ(errorOf([&] { (void)main(recordset); }), 3167) << "still in the hole";
    recordset.FindNext(u"Main = 'a'"_s);
    EXPECT_EQ(main(recordset), u"a");
    EXPECT_EQ(recordset.AbsolutePosition(), 1);
}

TEST_F(Changes, AddingARowFromAHoleStaysInIt) {
    Recordset recordset = words();
    recordset.MoveNext();
    recordset.Delete();
    recordset.AddNew();
    recordset.setField(u"Main"_s, u"d"_s);
    recordset.Update();
    EXPECT_EQ(errorOf([&] { (void)main(recordset); }), 3167);
    recordset.MoveNext();
    EXPECT_EQ(main(recordset), u"c");
}

TEST_F(Changes, WalkAndDeleteReachesEveryRow) {
    addWords(QString(u"d e f g h i j k l m n o p"_s).split(u' '));
    Recordset recordset = words();
    int deleted = 0;
    for (recordset.FindFirst(u"ID LIKE '*'"_s); !recordset.EOF_() && !recordset.NoMatch();
         recordset.FindNext(u"ID LIKE '*'"_s)) {
        if (recordset.field(0).toInteger() % 2 == 0)
            continue;
        recordset.Edit();
        recordset.Delete();
        ++deleted;
    }
    EXPECT_EQ(deleted, 8);
    EXPECT_EQ(stored(), u"b d f h j l n p");
    for (recordset.MoveFirst(); !recordset.EOF_(); recordset.MoveNext())
        recordset.Delete();
    EXPECT_EQ(stored(), QString());
    EXPECT_EQ(recordset.RecordCount(), 0);
}

TEST_F(Changes, AKeyOfADeletedRowIsNotUsedAgain) {
    Recordset recordset = words();
    recordset.MoveLast();
    recordset.Delete();
    addWords({u"d"_s});
    recordset.Requery();
    recordset.MoveLast();
    EXPECT_EQ(recordset.field(0), Value(4));
    // The same where the key is the engine's own.
    addLink(1, 1);
    Recordset first = links();
    Recordset second = links();
    first.Delete();
    addLink(2, 2);
    EXPECT_EQ(errorOf([&] { (void)second.field(0); }), 3167);
}

TEST_F(Changes, ARowInsertedWithAKeyOfItsOwnTakesItsPlaceInTheOrder) {
    Recordset recordset = words();
    recordset.MoveNext();
    recordset.Delete(); // 2
    recordset.MoveNext();
    ASSERT_EQ(main(recordset), u"c");
    recordset.AddNew();
    recordset.setField(u"ID"_s, 2);
    recordset.setField(u"Main"_s, u"B"_s);
    recordset.Update();
    EXPECT_EQ(main(recordset), u"c");
    EXPECT_EQ(recordset.AbsolutePosition(), 2);
    EXPECT_EQ(walk(recordset), u"a B c");
    recordset.AddNew();
    recordset.setField(u"ID"_s, 2);
    EXPECT_EQ(errorOf([&] { recordset.Update(); }), 3022);
    EXPECT_EQ(stored(), u"a B c");
}

TEST_F(Changes, ARowThatCouldNotBeWrittenStaysInWork) {
    Recordset recordset = words();
    recordset.AddNew();
    recordset.setField(u"ID"_s, 1);
    recordset.setField(u"Main"_s, u"d"_s);
    ASSERT_EQ(errorOf([&] { recordset.Update(); }), 3022);
    recordset.setField(u"ID"_s, 7);
    recordset.Update();
    EXPECT_EQ(stored(), u"a b c d");
}

} // namespace dao
