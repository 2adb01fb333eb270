// Where a recordset stands and how it moves.

#include "EngineTest.h"

using namespace Qt::StringLiterals;

namespace dao {

class Cursor : public EngineTest {
protected:
    Cursor() { addWords({u"a"_s, u"b"_s, u"c"_s}); }
};

TEST_F(Cursor, OpensOnTheFirstRow) {
    const Recordset recordset = words();
    EXPECT_EQ(main(recordset), u"a");
    EXPECT_EQ(recordset.AbsolutePosition(), 0);
    EXPECT_EQ(recordset.RecordCount(), 3);
    EXPECT_FALSE(recordset.BOF());
    EXPECT_FALSE(recordset.EOF_());
    EXPECT_FALSE(recordset.NoMatch());
}

TEST_F(Cursor, WalksForwardToBehindTheLastRow) {
    Recordset recordset = words();
    EXPECT_EQ(walk(recordset), u"a b c");
    EXPECT_TRUE(recordset.EOF_());
    EXPECT_FALSE(recordset.BOF());
    EXPECT_EQ(recordset.AbsolutePosition(), -1);
    EXPECT_EQ(recordset.RecordCount(), 3);
    EXPECT_EQ(errorOf([&] { (void)main(recordset); }), 3021);
    EXPECT_EQ(errorOf([&] { recordset.MoveNext(); }), 3021);
    EXPECT_EQ(errorOf([&] { (void)recordset.Bookmark(); }), 3021);
    EXPECT_EQ(errorOf([&] { recordset.Edit(); }), 3021);
    EXPECT_EQ(errorOf([&] { recordset.Delete(); }), 3021);
    recordset.MovePrevious();
    EXPECT_EQ(main(recordset), u"c");
}

TEST_F(Cursor, WalksBackwardToBeforeTheFirstRow) {
    Recordset recordset = words();
    recordset.MoveLast();
    EXPECT_EQ(recordset.AbsolutePosition(), 2);
    QString seen;
    for (; !recordset.BOF(); recordset.MovePrevious())
        seen += main(recordset);
    EXPECT_EQ(seen, u"cba");
    EXPECT_FALSE(recordset.EOF_());
    EXPECT_EQ(recordset.AbsolutePosition(), -1);
    EXPECT_EQ(errorOf([&] { (void)main(recordset); }), 3021);
    EXPECT_EQ(errorOf([&] { recordset.MovePrevious(); }), 3021);
    recordset.MoveNext();
    EXPECT_EQ(main(recordset), u"a");
}

TEST_F(Cursor, MovesToFirstAndLastFromAnywhere) {
    Recordset recordset = words();
    recordset.MoveLast();
    recordset.MoveNext();
    recordset.MoveFirst();
    EXPECT_EQ(main(recordset), u"a");
    recordset.MovePrevious();
    recordset.MoveLast();
    EXPECT_EQ(main(recordset), u"c");
}

TEST_F(Cursor, WithoutRowsIsAtBothEnds) {
    Recordset recordset = database.OpenRecordset(u"SELECT * FROM Wort WHERE ID = 99"_s);
    EXPECT_TRUE(recordset.BOF());
    EXPECT_TRUE(recordset.EOF_());
    EXPECT_EQ(recordset.RecordCount(), 0);
    EXPECT_EQ(recordset.AbsolutePosition(), -1);
    EXPECT_EQ(errorOf([&] { recordset.MoveFirst(); }), 3021);
    EXPECT_EQ(errorOf([&] { recordset.MoveLast(); }), 3021);
    EXPECT_EQ(errorOf([&] { recordset.MoveNext(); }), 3021);
    EXPECT_EQ(errorOf([&] { recordset.MovePrevious(); }), 3021);
    EXPECT_EQ(errorOf([&] { (void)main(recordset); }), 3021);
    recordset.FindFirst(u"ID LIKE '*'"_s);
    EXPECT_TRUE(recordset.NoMatch());
    recordset.FindNext(u"ID LIKE '*'"_s);
    EXPECT_TRUE(recordset.NoMatch());
    recordset.FindLast(u"ID LIKE '*'"_s);
    recordset.FindPrevious(u"ID LIKE '*'"_s);
    EXPECT_TRUE(recordset.NoMatch());
    EXPECT_TRUE(recordset.BOF() && recordset.EOF_());
}

TEST_F(Cursor, WhereARowHoldsNullReadsNull) {
    Recordset recordset = words();
    recordset.AddNew();
    recordset.Update();
    recordset.MoveLast();
    EXPECT_TRUE(recordset.field(u"Main"_s).isNull());
    EXPECT_EQ(errorOf([&] { (void)recordset.field(u"Main"_s).toText(); }), 94);
}

TEST_F(Cursor, ReadsFieldsByPositionAndByName) {
    const Recordset recordset = words();
    EXPECT_EQ(recordset.fieldCount(), 5);
    EXPECT_EQ(recordset.fieldName(0), u"ID");
    EXPECT_EQ(recordset.fieldName(4), u"VID");
    EXPECT_EQ(recordset.field(0), Value(1));
    EXPECT_EQ(recordset.field(u"main"_s), Value(u"a"_s));
    EXPECT_EQ(recordset.field(u"Wort.Main"_s), Value(u"a"_s));
    for (const int position : {-1, 5, 1000000, std::numeric_limits<int>::min()}) {
        EXPECT_EQ(errorOf([&] { (void)recordset.field(position); }), 3265) << position;
        EXPECT_EQ(errorOf([&] { (void)recordset.fieldName(position); }), 3265) << position;
    }
    for (const QString& name :
         {QString(), u"x"_s, u"Main "_s, u"Link.Main"_s, u"Wort."_s, u".Main"_s, u"."_s, u"_row"_s})
        EXPECT_EQ(errorOf([&] { (void)recordset.field(name); }), 3265) << name.toStdString();
}

TEST_F(Cursor, OfNothingSaysSo) {
    Recordset recordset;
    EXPECT_FALSE(recordset.isOpen());
    const std::function<void()> uses[] = {
        [&] { recordset.Close(); },
        [&] { recordset.Requery(); },
        [&] { (void)recordset.EOF_(); },
        [&] { (void)recordset.BOF(); },
        [&] { (void)recordset.NoMatch(); },
        [&] { (void)recordset.RecordCount(); },
        [&] { (void)recordset.AbsolutePosition(); },
        [&] { recordset.MoveFirst(); },
        [&] { recordset.MoveLast(); },
        [&] { recordset.MoveNext(); },
        [&] { recordset.MovePrevious(); },
        [&] { recordset.FindFirst(u"ID = 1"_s); },
        [&] { recordset.FindNext(u"ID = 1"_s); },
        [&] { recordset.FindLast(u"ID = 1"_s); },
        [&] { recordset.FindPrevious(u"ID = 1"_s); },
        [&] { (void)recordset.field(0); },
        [&] { (void)recordset.field(u"ID"_s); },
        [&] { (void)recordset.fieldCount(); },
        [&] { (void)recordset.fieldName(0); },
        [&] { recordset.AddNew(); },
        [&] { recordset.Edit(); },
        [&] { recordset.setField(0, 1); },
        [&] { recordset.setField(u"ID"_s, 1); },
        [&] { recordset.Update(); },
        [&] { recordset.CancelUpdate(); },
        [&] { recordset.Delete(); },
        [&] { (void)recordset.Bookmark(); },
        [&] { recordset.setBookmark(1); },
        [&] { (void)recordset.LastModified(); },
    };
    for (const auto& use : uses)
        EXPECT_EQ(errorOf(use), 91);
    recordset = words();
    EXPECT_TRUE(recordset.isOpen());
    recordset.Close();
    EXPECT_FALSE(recordset.isOpen());
    for (const auto& use : uses)
        EXPECT_EQ(errorOf(use), 3420);
    recordset = words();
    EXPECT_EQ(main(recordset), u"a") << "a closed recordset can be set anew";
    database.Close();
    EXPECT_FALSE(recordset.isOpen());
    for (const auto& use : uses)
        EXPECT_EQ(errorOf(use), 3420);
}

TEST_F(Cursor, OutlivesTheDatabaseObjectItCameFrom) {
    Recordset recordset = words();
    database = Database();
    EXPECT_EQ(walk(recordset), u"a b c");
}

TEST_F(Cursor, RequeryGoesToTheFirstRowAndDropsTheRowInWork) {
    Recordset recordset = words();
    recordset.MoveLast();
    recordset.Edit();
    recordset.setField(u"Main"_s, u"x"_s);
    recordset.Requery();
    EXPECT_EQ(main(recordset), u"a");
    EXPECT_EQ(errorOf([&] { recordset.Update(); }), 3020);
    EXPECT_EQ(stored(), u"a b c");
}

} // namespace dao
