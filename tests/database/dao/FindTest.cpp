// FindFirst, FindNext, FindLast, FindPrevious.

#include "EngineTest.h"

using namespace Qt::StringLiterals;

namespace dao {

class Find : public EngineTest {
protected:
    Find() {
        addWords({u"Haus"_s, u"Maus"_s, u"Hund"_s, u"haus"_s, u"Häuser"_s, u"猫"_s, u"l'eau"_s, u"100%"_s});
    }
};

TEST_F(Find, FirstNextLastPrevious) {
    Recordset recordset = words();
    const QString criterion = u"Main LIKE 'h*'"_s;
    recordset.FindFirst(criterion);
    EXPECT_EQ(recordset.AbsolutePosition(), 0);
    recordset.FindNext(criterion);
    EXPECT_EQ(recordset.AbsolutePosition(), 2);
    recordset.FindNext(criterion);
    EXPECT_EQ(recordset.AbsolutePosition(), 3);
    recordset.FindPrevious(criterion);
    EXPECT_EQ(recordset.AbsolutePosition(), 2);
    recordset.FindLast(criterion);
    EXPECT_EQ(recordset.AbsolutePosition(), 4);
    recordset.FindPrevious(criterion);
    EXPECT_EQ(recordset.AbsolutePosition(), 3);
    recordset.FindFirst(criterion);
    EXPECT_EQ(recordset.AbsolutePosition(), 0);
    EXPECT_FALSE(recordset.NoMatch());
}

TEST_F(Find, ASearchThatFailsLeavesTheRowAndSaysSo) {
    Recordset recordset = words();
    recordset.MoveNext();
    for (const auto find :
         {&Recordset::FindFirst, &Recordset::FindNext, &Recordset::FindLast, &Recordset::FindPrevious}) {
        (recordset.*find)(u"Main = 'x'"_s);
        EXPECT_TRUE(recordset.NoMatch());
        EXPECT_EQ(main(recordset), u"Maus");
        EXPECT_FALSE(recordset.EOF_());
    }
    recordset.FindNext(u"Main = 'Haus' AND ID = 1"_s);
    EXPECT_TRUE(recordset.NoMatch()) << "it lies before";
    recordset.FindPrevious(u"Main = 'Hund'"_s);
    EXPECT_TRUE(recordset.NoMatch()) << "it lies behind";
    recordset.FindNext(u"Main = 'Maus'"_s);
    EXPECT_TRUE(recordset.NoMatch()) << "the current row is not among those behind it";
    recordset.FindPrevious(u"Main = 'Maus'"_s);
    EXPECT_TRUE(recordset.NoMatch());
    recordset.FindFirst(u"Main = 'Maus'"_s);
    EXPECT_FALSE(recordset.NoMatch());
}

TEST_F(Find, FromAnEndGoesIntoTheRows) {
    Recordset recordset = words();
    recordset.MoveLast();
    recordset.MoveNext();
    recordset.FindNext(u"ID LIKE '*'"_s);
    EXPECT_TRUE(recordset.NoMatch());
    EXPECT_TRUE(recordset.EOF_());
    recordset.FindPrevious(u"ID LIKE '*'"_s);
    EXPECT_EQ(main(recordset), u"100%");
    recordset.MoveFirst();
    recordset.MovePrevious();
    recordset.FindPrevious(u"ID LIKE '*'"_s);
    EXPECT_TRUE(recordset.NoMatch());
    EXPECT_TRUE(recordset.BOF());
    recordset.FindNext(u"ID LIKE '*'"_s);
    EXPECT_EQ(main(recordset), u"Haus");
}

TEST_F(Find, WalksOverAllMatches) {
    Recordset recordset = words();
    EXPECT_EQ(findAll(recordset, u"ID LIKE '*'"_s), u"Haus Maus Hund haus Häuser 猫 l'eau 100%");
    EXPECT_EQ(findAll(recordset, u"Main LIKE 'haus'"_s), u"Haus haus");
    EXPECT_EQ(findAll(recordset, u"Main = 'HAUS'"_s), u"Haus haus");
    EXPECT_EQ(findAll(recordset, u"Main LIKE '*ä*'"_s), u"Häuser");
    EXPECT_EQ(findAll(recordset, u"Main = 'l''eau'"_s), u"l'eau");
    EXPECT_EQ(findAll(recordset, u"Main LIKE '*%'"_s), u"100%");
    EXPECT_EQ(findAll(recordset, u"Main LIKE '?'"_s), u"猫");
    EXPECT_EQ(findAll(recordset, u"Main LIKE '###*'"_s), u"100%");
    EXPECT_EQ(findAll(recordset, u"Main LIKE '[!hm]*'"_s), u"猫 l'eau 100%");
    EXPECT_EQ(findAll(recordset, u"ID LIKE '3'"_s), u"Hund");
    EXPECT_EQ(findAll(recordset, u"ID > 2 AND NOT (Main LIKE '*u*' OR ID >= 7)"_s), u"猫");
    EXPECT_EQ(findAll(recordset, u"Score = 6 AND Typ = 'NEU' AND ID < 3"_s), u"Haus Maus");
    EXPECT_EQ(findAll(recordset, u"VID IS NULL AND ID <= 2"_s), u"Haus Maus");
    EXPECT_EQ(findAll(recordset, u"VID LIKE '*'"_s), QString()) << "Null meets nothing";
    EXPECT_EQ(findAll(recordset, u"Wort.ID = 8"_s), u"100%");
    EXPECT_EQ(findAll(recordset, u"1 = 2"_s), QString());
}

TEST_F(Find, WalksBackwardOverAllMatches) {
    Recordset recordset = words();
    QStringList seen;
    for (recordset.FindLast(u"Main LIKE 'h*'"_s); !recordset.NoMatch();
         recordset.FindPrevious(u"Main LIKE 'h*'"_s))
        seen.append(main(recordset));
    EXPECT_EQ(seen.join(u' '), u"Häuser haus Hund Haus");
}

TEST_F(Find, ManyRowsAreAllMetOnceAndInOrder) {
    RawFile(file()).run(u"WITH RECURSIVE n(i) AS (SELECT 9 UNION ALL SELECT i + 1 FROM n WHERE i < 3000) "
                        "INSERT INTO Wort(ID, Main, Score, VID) SELECT i, 'w' || i, i % 7, i % 3 FROM n"_s);
    Recordset recordset = words();
    int next = 9;
    for (recordset.FindFirst(u"Main LIKE 'w*'"_s); !recordset.NoMatch();
         recordset.FindNext(u"Main LIKE 'w*'"_s))
        ASSERT_EQ(recordset.field(0), Value(next++));
    EXPECT_EQ(next, 3001);
    for (recordset.FindLast(u"Main LIKE 'w*'"_s); !recordset.NoMatch();
         recordset.FindPrevious(u"Main LIKE 'w*'"_s))
        ASSERT_EQ(recordset.field(0), Value(--next));
    EXPECT_EQ(next, 9);
    int count = 0;
    for (recordset.FindFirst(u"VID LIKE '2'"_s); !recordset.NoMatch(); recordset.FindNext(u"VID LIKE '2'"_s))
        ++count;
    EXPECT_EQ(count, 997);
}

// A walk reads ahead what it was asked for before; that must not show.
TEST_F(Find, AFieldThatAWalkHasNotAskedForSoFarIsReadAllTheSame) {
    RawFile(file()).run(u"WITH RECURSIVE n(i) AS (SELECT 9 UNION ALL SELECT i + 1 FROM n WHERE i < 400) "
                        "INSERT INTO Wort SELECT i, 'w' || i, 't' || (i % 9), i % 7, i % 3 FROM n"_s);
    Recordset recordset = words();
    const QString criterion = u"Main LIKE 'w*'"_s;
    int id = 9;
    for (recordset.FindFirst(criterion); !recordset.NoMatch(); recordset.FindNext(criterion), ++id) {
        ASSERT_EQ(recordset.field(u"ID"_s), Value(id));
        if (id % 50 != 0)
            continue;
        EXPECT_EQ(main(recordset), u"w"_s + QString::number(id));
        EXPECT_EQ(recordset.field(u"Typ"_s).toText(), u"t"_s + QString::number(id % 9));
        EXPECT_EQ(recordset.field(u"Score"_s), Value(id % 7));
    }
    EXPECT_EQ(id, 401);
}

TEST_F(Find, ARowFoundOnAWalkIsEditedWhole) {
    RawFile(file()).run(u"WITH RECURSIVE n(i) AS (SELECT 9 UNION ALL SELECT i + 1 FROM n WHERE i < 200) "
                        "INSERT INTO Wort SELECT i, 'w' || i, 'typ', i % 7, i % 3 FROM n"_s);
    Recordset recordset = words();
    const QString criterion = u"Main LIKE 'w*'"_s;
    for (recordset.FindFirst(criterion); recordset.field(0) != Value(150); recordset.FindNext(criterion)) {
    }
    recordset.Edit();
    EXPECT_EQ(main(recordset), u"w150");
    EXPECT_EQ(recordset.field(u"Typ"_s).toText(), u"typ");
    recordset.setField(u"Score"_s, 12);
    EXPECT_EQ(recordset.field(u"VID"_s), Value(0));
    recordset.Update();
    EXPECT_EQ(RawFile(file()).lines(u"SELECT * FROM Wort WHERE ID = 150"_s),
              QStringList{u"150 | w150 | typ | 12 | 0"_s});
    recordset.FindNext(criterion);
    EXPECT_EQ(recordset.field(0), Value(151));
    recordset.Delete();
    recordset.FindNext(criterion);
    EXPECT_EQ(main(recordset), u"w152");
}

TEST_F(Find, CriteriaMayAlternateDuringAWalk) {
    Recordset recordset = words();
    recordset.FindFirst(u"Main LIKE 'h*'"_s);
    recordset.FindNext(u"Main LIKE 'm*'"_s);
    EXPECT_EQ(main(recordset), u"Maus");
    recordset.FindNext(u"Main LIKE 'h*'"_s);
    EXPECT_EQ(main(recordset), u"Hund");
    recordset.FindPrevious(u"Main LIKE 'm*'"_s);
    EXPECT_EQ(main(recordset), u"Maus");
    recordset.FindNext(u"Main LIKE 'h*'"_s);
    EXPECT_EQ(main(recordset), u"Hund");
    recordset.MoveFirst();
    recordset.FindNext(u"Main LIKE 'h*'"_s);
    EXPECT_EQ(main(recordset), u"Hund");
    recordset.MoveLast();
    recordset.FindNext(u"Main LIKE 'h*'"_s);
    EXPECT_TRUE(recordset.NoMatch());
}

TEST_F(Find, TheSameShapeWithOtherValuesFindsOtherRows) {
    Recordset recordset = words();
    for (int round = 0; round < 2; ++round)
        for (int id = 1; id <= 8; ++id) {
            for (const QString& form :
                 {u"ID=%1"_s, u"ID LIKE '%1'"_s, u"%1 = ID"_s, u"(ID = %1)"_s, u"ID=0%1"_s}) {
                recordset.FindFirst(form.arg(id));
                EXPECT_FALSE(recordset.NoMatch()) << form.toStdString();
                EXPECT_EQ(recordset.field(0), Value(id)) << form.toStdString();
            }
            recordset.FindFirst(u"ID=-%1"_s.arg(id));
            EXPECT_TRUE(recordset.NoMatch());
        }
    recordset.FindFirst(u"ID=2x"_s.left(4));
    EXPECT_EQ(main(recordset), u"Maus");
    EXPECT_EQ(errorOf([&] { recordset.FindFirst(u"ID=2x"_s); }), 3077);
    EXPECT_EQ(errorOf([&] { recordset.FindFirst(u"ID=2 3"_s); }), 3077);
    EXPECT_EQ(errorOf([&] { recordset.FindFirst(u"ID="_s); }), 3077);
}

TEST_F(Find, ChangesOfTheRowsInBetweenAreSeen) {
    Recordset recordset = words();
    Recordset other = words();
    recordset.FindFirst(u"Main LIKE 'h*'"_s);
    recordset.FindNext(u"Main LIKE 'h*'"_s);
    ASSERT_EQ(main(recordset), u"Hund");
    recordset.MoveFirst();
    recordset.FindFirst(u"Main LIKE 'h*'"_s);
    other.FindFirst(u"Main = 'Hund'"_s);
    other.Edit();
    other.setField(u"Main"_s, u"Katze"_s);
    other.Update();
    recordset.FindNext(u"Main LIKE 'h*'"_s);
    EXPECT_EQ(recordset.AbsolutePosition(), 3) << "no longer the one that was changed";
    other.FindFirst(u"Main = 'l''eau'"_s);
    other.Edit();
    other.setField(u"Main"_s, u"Hut"_s);
    other.Update();
    recordset.FindNext(u"Main LIKE 'h*'"_s);
    recordset.FindNext(u"Main LIKE 'h*'"_s);
    EXPECT_EQ(main(recordset), u"Hut");
}

TEST_F(Find, AnErrorMovesNothing) {
    const std::pair<QString, int> table[] = {
        {u"Main = 'l'eau'"_s, 3077},
        {u""_s, 3077},
        {u"Main"_s, 3077},
        {u"Main LIKE '[a'"_s, 93},
        {u"Main LIKE '[z-a]'"_s, 93},
        {u"Unbekannt = 1"_s, 3070},
        {u"Link.ID = 1"_s, 3070},
        {u"Main = 1"_s, 3421},
        {u"ID = '1'"_s, 3421},
        {u"[a b] LIKE '*'"_s, 3070},
        {u"ID = 1;"_s, 3077},
    };
    Recordset recordset = words();
    recordset.MoveNext();
    for (const auto& [criterion, number] : table) {
        for (const auto find :
             {&Recordset::FindFirst, &Recordset::FindNext, &Recordset::FindLast, &Recordset::FindPrevious})
            EXPECT_EQ(errorOf([&, c = criterion, f = find] { (recordset.*f)(c); }), number)
                << criterion.toStdString();
        EXPECT_EQ(main(recordset), u"Maus");
    }
    recordset.FindFirst(u"Main = 'Hund'"_s);
    EXPECT_EQ(main(recordset), u"Hund") << "an error leaves the recordset usable";
}

TEST_F(Find, AnErrorTellsTheTextItIsAbout) {
    Recordset recordset = words();
    EXPECT_EQ(descriptionOf([&] { recordset.FindFirst(u"Main = 'l'eau'"_s); }),
              u"Syntax error in expression 'Main = 'l'eau''.");
    EXPECT_TRUE(descriptionOf([&] { recordset.FindFirst(u"Foo = 1"_s); }).contains(u"'Foo'"_s));
    EXPECT_EQ(descriptionOf([&] { recordset.FindFirst(u"Main LIKE '[a'"_s); }), u"Invalid pattern string");
}

TEST_F(Find, AnInvalidPatternIsAnErrorAlsoWithoutRows) {
    Recordset recordset = links();
    EXPECT_EQ(errorOf([&] { recordset.FindFirst(u"ID LIKE '[1'"_s); }), 93);
    EXPECT_EQ(errorOf([&] { (void)database.OpenRecordset(u"SELECT * FROM Link WHERE ID LIKE '[1'"_s); }), 93);
    EXPECT_EQ(
        errorOf([&] {
            (void)database.OpenRecordset(
                u"SELECT DISTINCT Wort.ID FROM Wort, Link WHERE Wort.ID = Link.IDV AND Main LIKE '[z-a]'"_s);
        }),
        93);
}

TEST_F(Find, RowsOfAnotherWriterAreNotAmongTheKeys) {
    Recordset recordset = words();
    addWords({u"Hof"_s});
    recordset.FindFirst(u"Main = 'Hof'"_s);
    EXPECT_TRUE(recordset.NoMatch());
    recordset.FindLast(u"ID LIKE '*'"_s);
    EXPECT_EQ(main(recordset), u"100%");
    recordset.Requery();
    recordset.FindFirst(u"Main = 'Hof'"_s);
    EXPECT_FALSE(recordset.NoMatch());
}

TEST_F(Find, StaysWithinTheRowsOfItsStatement) {
    Recordset recordset = database.OpenRecordset(u"SELECT * FROM Wort WHERE Main LIKE 'h*'"_s);
    EXPECT_EQ(recordset.RecordCount(), 4);
    recordset.FindFirst(u"Main = 'Maus'"_s);
    EXPECT_TRUE(recordset.NoMatch());
    EXPECT_EQ(findAll(recordset, u"ID LIKE '*'"_s), u"Haus Hund haus Häuser");
    recordset.FindLast(u"ID LIKE '*'"_s);
    EXPECT_EQ(main(recordset), u"Häuser");
    recordset.FindPrevious(u"Main LIKE '?aus'"_s);
    recordset.FindPrevious(u"Main LIKE '?aus'"_s);
    EXPECT_EQ(main(recordset), u"Haus") << "over the mouse, which is none of its rows";
}

TEST_F(Find, AHitOfAnOrOfThousands) {
    QString criterion = u"ID = 100000"_s;
    for (int i = 1; i < 5000; ++i)
        criterion += u" OR ID = %1"_s.arg(100000 + i);
    Recordset recordset = words();
    recordset.FindFirst(criterion + u" OR ID LIKE '5'"_s);
    EXPECT_EQ(main(recordset), u"Häuser");
}

} // namespace dao
