// What a save leaves behind when the engine fails at one of its steps.

#include "StoredList.h"

#include "Globals.h"

#include <QLabel>
#include <QProgressBar>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

using Column = ListColumnNumbers;

/// Makes every write of a row whose source is "refused" fail: its place in the index cannot be computed.
void refuseOneSource(StoredList& bench) {
    bench.file().run(u"CREATE INDEX refusal ON Vokabular(abs(CASE Quelle WHEN 'refused' THEN "
                     "-9223372036854775807 - 1 ELSE 0 END))"_s);
}

void expectNothingPending(StoredList& bench) {
    EXPECT_EQ(bench.list.pendingChanges(), 0);
    EXPECT_FALSE(bench.button("Command2").isEnabled());
    EXPECT_FALSE(child<QProgressBar>(bench.list, "ProgressBar1").isVisible());
}

TEST(ListeSaveFaults, RowThatCannotBeWrittenIsToldAndTheOthersAreSaved) {
    StoredList bench;
    bench.fill({u"one"_s, u"two"_s, u"three"_s});
    refuseOneSource(bench);
    bench.change(1, Column::ColQuelle, u"a"_s);
    bench.change(2, Column::ColQuelle, u"refused"_s);
    bench.change(3, Column::ColQuelle, u"c"_s);
    bench.context.prompts.expectErrorContaining(u"overflow"_s);
    bench.save();
    EXPECT_EQ(bench.stored("SELECT Quelle, Aenderungsdatum FROM Vokabular ORDER BY ID"),
              (QStringList{u"a | 20020301"_s, u"NULL | NULL"_s, u"c | 20020301"_s}))
        << "of a row everything is written or nothing";
    EXPECT_EQ(bench.cell(2, Column::ColQuelle), u"refused"_s) << "the text stays in the list";
    expectNothingPending(bench);
    EXPECT_EQ(bench.grid.Row(), 3);
}

TEST(ListeSaveFaults, NewRowThatCannotBeAddedLeavesTheOthersAlone) {
    StoredList bench;
    bench.fill({u"one"_s});
    refuseOneSource(bench);
    bench.addNew(Column::ColHaupt1, u"two"_s);
    bench.addNew(Column::ColQuelle, u"refused"_s);
    bench.addNew(Column::ColHaupt1, u"four"_s);
    bench.context.prompts.expectErrorContaining(u"overflow"_s);
    bench.save();
    EXPECT_EQ(bench.storedMains(), (QStringList{u"one"_s, u"four"_s, u"two"_s})) << "the last row goes first";
    const QStringList keys = bench.keys();
    EXPECT_EQ(keys[1], bench.file().cell(u"SELECT ID FROM Vokabular WHERE Lang1_Main = 'two'"_s));
    EXPECT_EQ(keys[2], u"*"_s);
    EXPECT_EQ(keys[3], bench.file().cell(u"SELECT ID FROM Vokabular WHERE Lang1_Main = 'four'"_s));
    expectNothingPending(bench);
}

TEST(ListeSaveFaults, FailedCleanUpEndsTheSaveAndKeepsTheLists) {
    StoredList bench;
    bench.fill({u"one"_s, u"two"_s, u"three"_s});
    bench.file().run(u"INSERT INTO Synonyme(VID, Sprache) VALUES(2, 1)"_s);
    bench.context.state.DBHandler.RecordsetSynonyme.Requery();
    bench.file().run(u"ALTER TABLE Synonyme RENAME TO Elsewhere"_s);
    bench.change(2, Column::ColQuelle, u"book"_s);
    bench.addNew(Column::ColHaupt1, u"four"_s);
    bench.remove(1);
    QSignalSpy state(&bench.list, &Liste::stateChanged);
    bench.context.prompts.expectErrorContaining(u"Synonyme"_s);
    bench.save();
    EXPECT_EQ(bench.storedMains(), (QStringList{u"two"_s, u"three"_s})) << "deletions are done";
    EXPECT_EQ(bench.stored("SELECT Quelle FROM Vokabular"), (QStringList{u"NULL"_s, u"NULL"_s}));
    EXPECT_EQ(bench.list.AnzahlGeloescht, 1);
    EXPECT_EQ(bench.list.AnzahlGeaendert, 1);
    EXPECT_EQ(bench.list.AnzahlNeu, 1);
    EXPECT_TRUE(bench.button("Command2").isEnabled());
    EXPECT_EQ(child<QProgressBar>(bench.list, "ProgressBar1").value(), 0);
    EXPECT_EQ(state.count(), 0);

    bench.file().run(u"ALTER TABLE Elsewhere RENAME TO Synonyme"_s);
    bench.save();
    EXPECT_EQ(bench.stored("SELECT Lang1_Main, Quelle FROM Vokabular ORDER BY ID"),
              (QStringList{u"two | book"_s, u"three | NULL"_s, u"four | "_s}));
    expectNothingPending(bench);
}

TEST(ListeSaveFaults, EntryThatAnotherProgramDeletedMeanwhileIsToldAndNoOtherIsTouched) {
    StoredList bench;
    bench.fill({u"one"_s, u"two"_s, u"three"_s});
    bench.change(1, Column::ColQuelle, u"a"_s);
    bench.change(2, Column::ColQuelle, u"b"_s);
    bench.change(3, Column::ColQuelle, u"c"_s);
    bench.file().run(u"DELETE FROM Vokabular WHERE ID = 2"_s);
    bench.context.prompts.expectError(u"No current record."_s);
    bench.save();
    EXPECT_EQ(bench.stored("SELECT Lang1_Main, Quelle FROM Vokabular ORDER BY ID"),
              (QStringList{u"one | a"_s, u"three | c"_s}));
}

TEST(ListeSaveFaults, LinksThatCannotBeRemovedDoNotKeepTheEntry) {
    StoredList bench;
    bench.fill({u"one"_s, u"two"_s});
    bench.file().run(u"INSERT INTO Referenzen(von, nach, Typ, SubTyp) VALUES(1, 2, 'a', 'b')"_s);
    bench.context.state.DBHandler.RecordsetReferenzen.Requery();
    bench.file().run(u"ALTER TABLE Referenzen RENAME TO Elsewhere"_s);
    bench.remove(1);
    bench.context.prompts.expectErrorContaining(u"Referenzen"_s);
    bench.save();
    EXPECT_EQ(bench.storedMains(), QStringList{u"two"_s});
    expectNothingPending(bench);
}

TEST(ListeSaveFaults, ApostropheInAnAttributeIsToldAndNothingElseIsLost) {
    StoredList bench;
    bench.fill({u"one"_s, u"two"_s});
    bench.change(1, Column::ColBereich, u"old;"_s);
    bench.save();
    bench.change(1, Column::ColBereich, u"home;l'eau;work;"_s);
    bench.change(1, Column::ColQuelle, u"book"_s);
    bench.change(1, Column::ColFunktional, u"formal;"_s);
    bench.change(2, Column::ColBereich, u"work;"_s);
    bench.context.prompts.expectErrorContaining(u"l'eau"_s);
    bench.save();
    EXPECT_EQ(bench.stored("SELECT Quelle FROM Vokabular ORDER BY ID"), (QStringList{u"book"_s, u""_s}));
    EXPECT_EQ(bench.stored("SELECT IDV, Bereich_Text FROM Bereiche_Zwischen z JOIN Bereiche b ON z.ID = b.ID "
                           "ORDER BY 1"),
              (QStringList{u"1 | home"_s, u"2 | work"_s}))
        << "what stood there before is removed, what comes behind is not reached";
    EXPECT_EQ(bench.stored("SELECT IDV FROM FunktionaleAttribute_Zwischen"), QStringList{u"1"_s});
}

TEST(ListeSaveFaults, TextThatIsTooLongIsToldAndWhatStandsBeforeItIsWritten) {
    StoredList bench;
    bench.fill({u"one"_s});
    bench.change(1, Column::ColHaupt1, u"uno"_s);
    bench.change(1, Column::ColWortart, QString(51, u'x'));
    bench.change(1, Column::ColQuelle, u"book"_s);
    bench.context.prompts.expectErrorContaining(u"too small to accept"_s);
    bench.save();
    EXPECT_EQ(bench.stored("SELECT Lang1_Main, Wortart, Quelle, Aenderungsdatum FROM Vokabular"),
              QStringList{u"uno | NULL | NULL | 20020301"_s});
    EXPECT_EQ(bench.cell(1, Column::ColWortart).size(), 51);
}

TEST(ListeSaveFaults, WithoutADatabaseEverythingStaysPending) {
    StoredList bench;
    bench.fill({u"one"_s});
    bench.change(1, Column::ColQuelle, u"book"_s);
    bench.addNew(Column::ColHaupt1, u"two"_s);
    bench.context.state.DBHandler.CloseAllDBObjects();
    bench.context.prompts.expectErrorContaining(u""_s);
    bench.save();
    EXPECT_EQ(bench.list.pendingChanges(), 2);
    EXPECT_FALSE(child<QLabel>(bench.list, "lblProgress").isVisible());
}

TEST(ListeSaveFaults, FileThatAnotherProgramHoldsIsToldRowByRow) {
    StoredList bench;
    bench.fill({u"one"_s});
    bench.change(1, Column::ColQuelle, u"book"_s);
    dao::RawFile other = bench.file();
    other.run(u"BEGIN IMMEDIATE"_s);
    bench.context.prompts.expectErrorContaining(u"in use by another program"_s);
    bench.save();
    other.run(u"ROLLBACK"_s);
    EXPECT_EQ(bench.stored("SELECT Quelle FROM Vokabular"), QStringList{u"NULL"_s});
    expectNothingPending(bench);
    bench.change(1, Column::ColQuelle, u"page"_s);
    bench.save();
    EXPECT_EQ(bench.stored("SELECT Quelle FROM Vokabular"), QStringList{u"page"_s});
}

} // namespace
} // namespace lingomat
