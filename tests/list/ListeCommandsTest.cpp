// The commands round the grid, and when they can be had.

#include "StoredList.h"

#include "Globals.h"
#include "frmSuchen.h"

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

using Column = ListColumnNumbers;

struct CommandTexts {
    const char* name;
    QString german;
    QString english;
    QString germanTip;
    QString englishTip;
};

QList<CommandTexts> buttonTexts() {
    return {
        {"Command1", u"Schließen"_s, u"Close"_s,
         u"Schließt das Fenster, Änderungen können zu einem späteren Zeitpunkt übernommen werden."_s,
         u"Closes this window, changes can be saved later"_s},
        {"Command2", u"Übernehmen"_s, u"Apply"_s, u"Übernimmt alle Änderungen"_s, u"Saves all changes"_s},
        {"Command3", u"Neue Zeile"_s, u"New Row"_s, u"Fügt eine neue Zeile ein"_s, u"Adds a new row"_s},
        {"Command4", u"Löschen"_s, u"Delete"_s, u"Löscht die aktuelle Zeile"_s, u"Deletes the current row"_s},
        {"Command5", u"OK"_s, u"OK"_s, u"Übernimmt alle Änderungen und schließt das Fenster"_s,
         u"Saves all changes and closes this window"_s},
        {"Command6", u"Zeichen..."_s, u"Zeichen..."_s, u"Öffnet die Fonthilfe"_s, u"Öffnet die Fonthilfe"_s},
        {"Drucken", u"Drucken"_s, u"Drucken"_s, {}, {}},
        {"Referenzen", u"Referenzen..."_s, u"Referenzen..."_s,
         u"Zeigt alle Referenzen für die aktuelle Vokabel an"_s,
         u"Zeigt alle Referenzen für die aktuelle Vokabel an"_s},
    };
}

QList<CommandTexts> entryTexts() {
    return {
        {"mnNeueZeile", u"Neue Zeile"_s, u"New Row"_s, {}, {}},
        {"mnZeileLöschen", u"Zeile löschen"_s, u"Delete Row"_s, {}, {}},
        {"mnDrucken", u"Drucken..."_s, u"Print..."_s, {}, {}},
        {"mnSpeichern", u"Speichern"_s, u"Save"_s, {}, {}},
        {"mnSuchen", u"Suchen in Liste"_s, u"Find in List..."_s, {}, {}},
        {"mnSchließen", u"Schließen"_s, u"Close"_s, {}, {}},
        {"mnReferenzen", u"Referenzen..."_s, u"References..."_s, {}, {}},
        {"mnAnsichtOptionen", u"Optionen..."_s, u"Options..."_s, {}, {}},
        {"mnOptionen", u"Optionen..."_s, u"Options..."_s, {}, {}},
        {"mnSonderzeichen", u"Sonderzeichen"_s, u"Special Characters..."_s, {}, {}},
    };
}

TEST(ListeCommands, CaptionsAndTips) {
    for (const bool english : {true, false}) {
        ListBench bench(english ? u"En"_s : u"De"_s);
        bench.list.Form_Load();
        for (const CommandTexts& texts : buttonTexts()) {
            const auto& button = child<QPushButton>(bench.list, texts.name);
            EXPECT_EQ(button.text(), english ? texts.english : texts.german) << texts.name;
            EXPECT_EQ(button.toolTip(), english ? texts.englishTip : texts.germanTip) << texts.name;
        }
        for (const CommandTexts& texts : entryTexts())
            EXPECT_EQ(child<QAction>(bench.list, texts.name).text(), english ? texts.english : texts.german)
                << texts.name;
        EXPECT_EQ(child<QLabel>(bench.list, "Label1").text(), english ? u"Help: F1"_s : u"Hilfe: F1"_s);
    }
}

TEST(ListeCommands, EntriesAreTheButtons) {
    StoredList bench;
    bench.fill({u"one"_s});
    bench.list.show();
    bench.entry("mnNeueZeile").trigger();
    EXPECT_EQ(bench.keys(), (QStringList{u"1"_s, u"*"_s}));
    bench.entry("mnZeileLöschen").trigger();
    EXPECT_EQ(bench.keys(), QStringList{u"1"_s});
    bench.change(1, Column::ColQuelle, u"book"_s);
    bench.entry("mnSpeichern").trigger();
    EXPECT_EQ(bench.list.pendingChanges(), 0);

    QSignalSpy characters(&bench.list, &Liste::specialCharactersRequested);
    bench.entry("mnSonderzeichen").trigger();
    bench.button("Command6").click();
    EXPECT_EQ(characters.count(), 2);

    QSignalSpy references(&bench.list, &Liste::referencesRequested);
    bench.list.SetzeMarke();
    bench.entry("mnReferenzen").trigger();
    bench.button("Referenzen").click();
    EXPECT_EQ(references.count(), 2);

    bench.entry("mnSchließen").trigger();
    EXPECT_FALSE(bench.list.isVisible());
}

// New row

TEST(ListeCommands, NewRowIsTheLastOneAndCurrent) {
    StoredList bench;
    bench.fill({u"one"_s, u"two"_s});
    QSignalSpy rows(&bench.list, &Liste::rowsChanged);
    bench.list.Command3_Click();
    EXPECT_EQ(bench.keys(), (QStringList{u"1"_s, u"2"_s, u"*"_s}));
    EXPECT_EQ(bench.grid.Row(), 3);
    EXPECT_EQ(bench.grid.Col(), Column::ColSprache1);
    EXPECT_EQ(bench.list.MarkierteZeile, 3);
    EXPECT_EQ(bench.list.AnzahlNeu, 1);
    EXPECT_EQ(rows.count(), 1);
    EXPECT_EQ(bench.list.windowTitle(), u"Vocab List - 3 entries"_s);
    EXPECT_TRUE(bench.button("Command2").isEnabled());
    EXPECT_TRUE(bench.entry("mnSpeichern").isEnabled());
    bench.list.Command3_Click();
    EXPECT_EQ(bench.list.AnzahlNeu, 2);
}

TEST(ListeCommands, NewRowScrollsIntoViewAndTakesTheFocus) {
    StoredList bench;
    bench.fill(QStringList(100, u"x"_s));
    bench.list.show();
    bench.list.activateWindow();
    bench.button("Command3").setFocus();
    bench.list.Command3_Click();
    bench.grid.flush();
    EXPECT_GT(bench.grid.TopRow(), 50);
    EXPECT_EQ(bench.list.focusWidget(), &bench.grid);
}

TEST(ListeCommands, NewRowOfAnEmptyListIsThePlaceholder) {
    StoredList bench;
    bench.fill({u"one"_s});
    bench.list.LoescheListe();
    ASSERT_EQ(bench.grid.Rows(), 2);
    ASSERT_EQ(bench.grid.RowHeight(1), 0);
    bench.list.Command3_Click();
    EXPECT_EQ(bench.grid.Rows(), 2);
    EXPECT_EQ(bench.grid.RowHeight(1), bench.grid.RowHeight(0));
    EXPECT_EQ(bench.list.windowTitle(), u"Vocab List - 1 entries"_s);
    EXPECT_TRUE(bench.context.state.SelectionValid);
}

TEST(ListeCommands, NewRowOfAListWithoutPlaceholder) {
    StoredList bench;
    ASSERT_EQ(bench.grid.Rows(), 1);
    QSignalSpy state(&bench.list, &Liste::stateChanged);
    bench.list.Command3_Click();
    EXPECT_EQ(bench.grid.Rows(), 2);
    EXPECT_GT(bench.grid.RowHeight(1), 0);
    EXPECT_TRUE(bench.context.state.SelectionValid);
    EXPECT_EQ(state.count(), 1);
    EXPECT_TRUE(bench.entry("mnSuchen").isEnabled());
}

TEST(ListeCommands, NewRowBeyondWhatCanBeCountedLosesNothing) {
    StoredList bench;
    bench.fill({u"one"_s});
    bench.list.AnzahlNeu = 32767;
    bench.context.prompts.expectError(u"Overflow"_s);
    bench.list.Command3_Click();
    EXPECT_EQ(bench.keys(), QStringList{u"1"_s});
    EXPECT_EQ(bench.list.AnzahlNeu, 32767);
}

// Delete row

TEST(ListeCommands, DeletedRowLeavesAndTheNextOneIsCurrent) {
    StoredList bench;
    bench.fill({u"one"_s, u"two"_s, u"three"_s});
    QSignalSpy rows(&bench.list, &Liste::rowsChanged);
    bench.grid.setRow(2);
    bench.grid.setCol(Column::ColQuelle);
    bench.list.Command4_Click();
    EXPECT_EQ(bench.keys(), (QStringList{u"1"_s, u"3"_s}));
    EXPECT_EQ(bench.grid.Row(), 2);
    EXPECT_EQ(bench.grid.Col(), Column::ColQuelle);
    EXPECT_EQ(bench.list.MarkierteZeile, 2);
    EXPECT_EQ(bench.list.AnzahlGeloescht, 1);
    EXPECT_EQ(rows.count(), 1);
    EXPECT_EQ(bench.list.windowTitle(), u"Vocab List - 2 entries"_s);
    EXPECT_TRUE(bench.button("Command2").isEnabled());
}

TEST(ListeCommands, DeletingTheOnlyRowLeavesThePlaceholder) {
    StoredList bench;
    bench.fill({u"one"_s});
    bench.grid.setRow(1);
    bench.list.SetzeMarke();
    bench.list.Command4_Click();
    EXPECT_EQ(bench.grid.Rows(), 2);
    EXPECT_EQ(bench.grid.RowHeight(1), 0);
    for (int column = 1; column < bench.grid.Cols(); ++column)
        EXPECT_EQ(bench.cell(1, column), QString()) << column;
    EXPECT_EQ(bench.list.windowTitle(), u"Vocab List - 0 entries"_s);
    EXPECT_FALSE(bench.context.state.SelectionValid);
    for (const char* command : {"Command4", "Referenzen"})
        EXPECT_FALSE(bench.button(command).isEnabled()) << command;
    for (const char* entry : {"mnZeileLöschen", "mnReferenzen", "mnSuchen"})
        EXPECT_FALSE(bench.entry(entry).isEnabled()) << entry;
    EXPECT_TRUE(bench.button("Command2").isEnabled());
    bench.grid.setRow(1);
    bench.grid.setCol(Column::ColMarke);
    EXPECT_TRUE(bench.grid.CellPicture().isNull());

    bench.list.Command3_Click();
    EXPECT_EQ(bench.keys(), QStringList{u"*"_s});
    bench.save();
    EXPECT_EQ(bench.storedMains(), QStringList{u""_s});
}

TEST(ListeCommands, DeletingBeepsInTheHeader) {
    StoredList bench;
    bench.fill({u"one"_s});
    bench.grid.setRow(0);
    bench.list.ConditionToUI();
    EXPECT_FALSE(bench.button("Command4").isEnabled());
    bench.list.Command4_Click();
    EXPECT_EQ(bench.context.prompts.beeps(), 1);
    EXPECT_EQ(bench.keys(), QStringList{u"1"_s});
}

TEST(ListeCommands, NewRowThatIsDeletedAgainIsNotCountedAndNothingIsLeftToSave) {
    StoredList bench;
    bench.fill({u"one"_s});
    bench.list.Command3_Click();
    bench.list.Command4_Click();
    EXPECT_EQ(bench.list.AnzahlNeu, 0);
    EXPECT_FALSE(bench.button("Command2").isEnabled());
    EXPECT_FALSE(bench.entry("mnSpeichern").isEnabled());
}

TEST(ListeCommands, NewRowThatWasGivenUpCanBeDeletedWithoutHidingAnotherChange) {
    StoredList bench;
    bench.fill({u"one"_s});
    bench.list.Command3_Click();
    bench.list.AnzahlNeu = 0; // the user agreed to lose it
    bench.change(1, Column::ColQuelle, u"book"_s);
    bench.remove(2);
    EXPECT_EQ(bench.list.AnzahlNeu, 0);
    EXPECT_TRUE(bench.button("Command2").isEnabled());
}

TEST(ListeCommands, DeletingARowThatTheFileRefusedHidesNoOtherNewRow) {
    StoredList bench;
    bench.fill({u"one"_s});
    bench.list.Command3_Click();
    bench.list.AnzahlNeu = 0; // as after a save that failed for this row
    bench.list.Command3_Click();
    EXPECT_EQ(bench.list.AnzahlNeu, 1);
    bench.remove(2);
    EXPECT_EQ(bench.list.AnzahlNeu, 1);
    EXPECT_TRUE(bench.button("Command2").isEnabled());
}

TEST(ListeCommands, TheMarkFollowsARowThatAnotherFormHasChosen) {
    StoredList bench;
    bench.fill({u"one"_s, u"two"_s, u"three"_s});
    bench.grid.setRow(1);
    bench.list.SetzeMarke();
    bench.grid.setRow(3);
    bench.list.Form_Activate();
    EXPECT_EQ(bench.list.MarkierteZeile, 3);
}

// Closing

TEST(ListeCommands, CloseKeepsRowsAndCounters) {
    StoredList bench;
    bench.fill({u"one"_s, u"two"_s});
    bench.list.show();
    bench.addNew(Column::ColHaupt1, u"three"_s);
    bench.change(1, Column::ColQuelle, u"book"_s);
    bench.remove(2);
    bench.button("Command1").click();
    EXPECT_FALSE(bench.list.isVisible());
    bench.list.show();
    EXPECT_EQ(bench.keys(), (QStringList{u"1"_s, u"*"_s}));
    EXPECT_EQ(bench.list.pendingChanges(), 3);
    EXPECT_TRUE(bench.button("Command2").isEnabled());
    EXPECT_EQ(bench.storedMains(), (QStringList{u"one"_s, u"two"_s})) << "nothing is saved by it";
}

TEST(ListeCommands, OkSavesAndCloses) {
    StoredList bench;
    bench.fill({u"one"_s});
    bench.list.show();
    bench.addNew(Column::ColHaupt1, u"two"_s);
    bench.button("Command5").click();
    EXPECT_FALSE(bench.list.isVisible());
    EXPECT_EQ(bench.storedMains(), (QStringList{u"one"_s, u"two"_s}));
}

TEST(ListeCommands, OkWithoutChangesOnlyCloses) {
    StoredList bench;
    bench.fill({u"one"_s});
    bench.list.show();
    QSignalSpy state(&bench.list, &Liste::stateChanged);
    bench.context.state.DBHandler.Database.Close(); // any use of it would be an error
    bench.button("Command5").click();
    EXPECT_FALSE(bench.list.isVisible());
    EXPECT_EQ(state.count(), 0);
}

// Search

TEST(ListeCommands, SearchRunsOverTheListAndMarksWhatItFinds) {
    for (const bool second : {false, true}) {
        StoredList bench;
        bench.addEntry({{u"Lang1_Main"_s, u"c"_s}, {u"Lang2_Main"_s, u"x"_s}});
        bench.addEntry({{u"Lang1_Main"_s, u"a"_s}, {u"Lang2_Main"_s, u"z"_s}});
        bench.addEntry({{u"Lang1_Main"_s, u"b"_s}, {u"Lang2_Main"_s, u"y"_s}});
        bench.listEverything();
        bench.context.prompts.expectDialog("frmSuchen", [&](QDialog& dialog) {
            EXPECT_EQ(child<QRadioButton>(dialog, "Option1").text(), u"German"_s);
            EXPECT_EQ(child<QRadioButton>(dialog, "Option2").text(), u"English"_s);
            EXPECT_EQ(static_cast<frmSuchen&>(dialog).Aufrufer, u"Liste"_s);
            if (second)
                child<QRadioButton>(dialog, "Option2").click();
            QTest::keyClicks(&child<QLineEdit>(dialog, "txtAusdruck"), second ? u"Z"_s : u"C"_s);
            dialog.close();
        });
        bench.entry("mnSuchen").trigger();
        EXPECT_EQ(bench.keys(),
                  second ? (QStringList{u"1"_s, u"3"_s, u"2"_s}) : (QStringList{u"2"_s, u"3"_s, u"1"_s}));
        EXPECT_EQ(bench.list.MarkierteZeile, 3);
    }
}

TEST(ListeCommands, SearchNeedsARow) {
    StoredList bench;
    bench.listEverything();
    EXPECT_FALSE(bench.entry("mnSuchen").isEnabled());
    bench.list.mnSuchen_Click(); // opens nothing
}

// References

class ReferencesOfANewRow : public testing::TestWithParam<const char*> {
protected:
    ReferencesOfANewRow()
        : bench(QString::fromLatin1(GetParam())), wanted(&bench.list, &Liste::referencesRequested) {
        bench.fill({u"one"_s});
        bench.change(1, Column::ColQuelle, u"book"_s);
        row = bench.addNew(Column::ColHaupt1, u"two"_s);
        bench.grid.setCol(Column::ColQuelle);
    }
    void expectQuestion(QMessageBox::StandardButton answer) {
        const QString german =
            u"Die Referenzen können erst dann bearbeitet werden, wenn der Vokabeleintrag in die Datenbank "
            "zurückgeschrieben wurde. Sollen die Daten der aktuellen Zeile, sowie eventuelle weitere "
            "gemachte "
            "Änderungen jetzt gesichert werden?"_s;
        const QString english =
            u"The References can only be processed, after the vocab entry has been saved to the database.\n"
            "Shall the data of the current row as well as possible further changes be saved now?"_s;
        bench.context.prompts.expect({.icon = QMessageBox::Warning,
                                      .text = interfaceIsEnglish() ? english : german,
                                      .answer = answer,
                                      .buttons = QMessageBox::Yes | QMessageBox::No});
    }
    StoredList bench;
    QSignalSpy wanted;
    int row = 0;
};

TEST_P(ReferencesOfANewRow, StayUntouchedAfterNo) {
    expectQuestion(QMessageBox::No);
    bench.list.Referenzen_Click();
    EXPECT_EQ(wanted.count(), 0);
    EXPECT_EQ(bench.list.AnzahlNeu, 1);
    EXPECT_EQ(bench.list.AnzahlGeaendert, 1);
    EXPECT_EQ(bench.grid.Col(), Column::ColQuelle);
    EXPECT_EQ(bench.grid.Row(), row);
    EXPECT_EQ(bench.storedMains(), QStringList{u"one"_s});
}

TEST_P(ReferencesOfANewRow, AreShownAfterYesAndEverythingIsSaved) {
    expectQuestion(QMessageBox::Yes);
    bench.list.Referenzen_Click();
    EXPECT_EQ(wanted.count(), 1);
    EXPECT_EQ(bench.list.pendingChanges(), 0);
    EXPECT_EQ(bench.cell(row, Column::ColSchluessel), u"2"_s);
    EXPECT_EQ(bench.stored("SELECT Lang1_Main, Quelle FROM Vokabular ORDER BY ID"),
              (QStringList{u"one | book"_s, u"two | "_s}));
}

INSTANTIATE_TEST_SUITE_P(InBothLanguages, ReferencesOfANewRow, testing::Values("En", "De"));

TEST(ListeCommands, ReferencesOfAStoredRowAreShownAtOnce) {
    StoredList bench;
    bench.fill({u"one"_s});
    QSignalSpy wanted(&bench.list, &Liste::referencesRequested);
    bench.grid.setRow(1);
    bench.grid.setCol(Column::ColQuelle);
    bench.list.Referenzen_Click();
    EXPECT_EQ(wanted.count(), 1);
    EXPECT_EQ(bench.grid.Col(), Column::ColQuelle);
}

TEST(ListeCommands, ReferencesNeedAMarkedRow) {
    StoredList bench;
    bench.fill({u"one"_s});
    bench.list.ResetMarke();
    EXPECT_FALSE(bench.button("Referenzen").isEnabled());
    bench.grid.setRow(1);
    bench.list.SetzeMarke();
    EXPECT_TRUE(bench.button("Referenzen").isEnabled());
    EXPECT_TRUE(bench.entry("mnReferenzen").isEnabled());
}

} // namespace
} // namespace lingomat
