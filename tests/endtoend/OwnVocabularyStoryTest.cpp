// A vocabulary of one's own: a new database, its entries typed through the grid, and what the file holds
// after each save, in both languages of the interface.

#include "TestProgram.h"

#include "FlexGrid.h"
#include "Globals.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

struct Word {
    QString prefix1;
    QString main1;
    QString suffix1;
    QString prefix2;
    QString main2;
    QString wortart;
};

const QList<Word>& words() {
    static const QList<Word> all{
        {u"der"_s, u"Apfel"_s, u"Äpfel"_s, u"la"_s, u"pomme"_s, u"Substantiv"_s},
        {u"das"_s, u"Brot"_s, u"-e"_s, u"le"_s, u"pain"_s, u"Substantiv"_s},
        {u"der"_s, u"Käse"_s, {}, u"le"_s, u"fromage"_s, u"Substantiv"_s},
        {u"das"_s, u"Ei"_s, u"-er"_s, u"l'"_s, u"œuf"_s, u"Substantiv"_s},
        {u"das"_s, u"Wasser"_s, {}, u"l'"_s, u"eau"_s, u"Substantiv"_s},
        {u"die"_s, u"Milch"_s, {}, u"le"_s, u"lait"_s, u"Substantiv"_s},
        {u"der"_s, u"Tisch"_s, u"-e"_s, u"la"_s, u"table"_s, u"Substantiv"_s},
        {u"der"_s, u"Stuhl"_s, u"Stühle"_s, u"la"_s, u"chaise"_s, u"Substantiv"_s},
        {u"das"_s, u"Fenster"_s, {}, u"la"_s, u"fenêtre"_s, u"Substantiv"_s},
        {u"die"_s, u"Tür"_s, u"-en"_s, u"la"_s, u"porte"_s, u"Substantiv"_s},
        {{}, u"gehen"_s, u"ging, gegangen"_s, {}, u"aller"_s, u"Verb"_s},
        {{}, u"kommen"_s, u"kam, gekommen"_s, {}, u"venir"_s, u"Verb"_s},
        {{}, u"sehen"_s, u"sah, gesehen"_s, {}, u"voir"_s, u"Verb"_s},
        {{}, u"hören"_s, {}, {}, u"entendre"_s, u"Verb"_s},
        {{}, u"sprechen"_s, u"sprach, gesprochen"_s, {}, u"parler"_s, u"Verb"_s},
        {{}, u"lesen"_s, u"las, gelesen"_s, {}, u"lire"_s, u"Verb"_s},
        {{}, u"schreiben"_s, u"schrieb, geschrieben"_s, {}, u"écrire"_s, u"Verb"_s},
        {{}, u"essen"_s, u"aß, gegessen"_s, {}, u"manger"_s, u"Verb"_s},
        {{}, u"trinken"_s, u"trank, getrunken"_s, {}, u"boire"_s, u"Verb"_s},
        {u"sich"_s, u"waschen"_s, u"wusch, gewaschen"_s, u"se"_s, u"laver"_s, u"Verb"_s},
        {{}, u"groß"_s, {}, {}, u"grand"_s, u"Adjektiv"_s},
        {{}, u"klein"_s, {}, {}, u"petit"_s, u"Adjektiv"_s},
        {{}, u"schön"_s, {}, {}, u"beau"_s, u"Adjektiv"_s},
        {{}, u"alt"_s, {}, {}, u"vieux"_s, u"Adjektiv"_s},
        {{}, u"neu"_s, {}, {}, u"nouveau"_s, u"Adjektiv"_s},
        {{}, u"heute"_s, {}, {}, u"aujourd'hui"_s, u"Adverb"_s},
        {{}, u"gestern"_s, {}, {}, u"hier"_s, u"Adverb"_s},
        {{}, u"morgen"_s, {}, {}, u"demain"_s, u"Adverb"_s},
        {{}, u"immer"_s, {}, {}, u"toujours"_s, u"Adverb"_s},
        {{}, u"nie"_s, {}, {}, u"jamais"_s, u"Adverb"_s},
    };
    return all;
}

/// Key by key. The toolkit's own typing knows no letters beyond ASCII.
void typeInto(QWidget& widget, const QString& text) {
    for (const QChar letter : text) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, letter);
        QCoreApplication::sendEvent(&widget, &press);
        QKeyEvent release(QEvent::KeyRelease, 0, Qt::NoModifier, letter);
        QCoreApplication::sendEvent(&widget, &release);
    }
}

constexpr int WordInDetail = 1; ///< the one that is given a value of every kind

class OwnVocabulary : public testing::TestWithParam<QString> {
protected:
    OwnVocabulary() : program(GetParam()) { program.startWithDatabase(); }

    QString text(const QString& inGerman, const QString& inEnglish) const {
        return GetParam() == u"En"_s ? inEnglish : inGerman;
    }
    Liste& list() { return program.app().liste(); }
    FlexGrid& grid() { return list().MSFlexGrid1(); }
    void press(const char* button) {
        auto& found = child<QPushButton>(list(), button);
        ASSERT_TRUE(found.isEnabled()) << button;
        found.click();
    }
    void chooseInList(const char* entry) {
        auto& found = child<QAction>(list(), entry);
        ASSERT_TRUE(found.isEnabled()) << entry;
        found.trigger();
    }

    void createDatabase() {
        program.prompts.expectSaveFile(path);
        program.prompts.expectDialog("SprachenEingabe", [](QDialog& form) {
            typeInto(child<QLineEdit>(form, "Sprache1"), u"Deutsch"_s);
            typeInto(child<QLineEdit>(form, "Sprache2"), u"Französisch"_s);
            child<QPushButton>(form, "OK").click();
        });
        program.choose("Menu_Datei_Neu");
        program.prompts.verify();
    }
    void openList() {
        program.click("Grid");
        ASSERT_TRUE(QTest::qWaitForWindowActive(&list()));
    }
    void select() {
        program.click("Command1");
        child<QPushButton>(program.app().form2(), "Command4").click();
        program.app().form1().Form_Activate();
    }

    void goTo(int row, int column) {
        grid().setFocus();
        grid().setRow(row);
        grid().setCol(column);
    }
    /// The value of an attribute dialog that comes up, typed as a new one.
    void willAssign(const QString& value) {
        program.prompts.expectDialog("AddListBox", [value](QDialog& form) {
            typeInto(child<QLineEdit>(form, "txtSelected"), value);
            child<QPushButton>(form, "Add").click();
            child<QPushButton>(form, "OK").click();
        });
    }
    /// Types an expression into the current cell: the first letter of its main part opens the editor.
    void typeExpression(const QString& prefix, const QString& main, const QString& suffix) {
        program.prompts.expectDialog("frmVokabelEingabe", [=](QDialog& form) {
            auto& field = child<QLineEdit>(form, "txtMain");
            EXPECT_EQ(field.text(), main.left(1));
            typeInto(field, main.mid(1));
            typeInto(child<QLineEdit>(form, "txtPrefix"), prefix);
            typeInto(child<QLineEdit>(form, "txtSuffix"), suffix);
            child<QPushButton>(form, "cmdOK").click();
        });
        typeInto(grid(), main.left(1));
        program.prompts.verify();
    }
    /// Types a text over the current cell, without leaving it.
    void typeOver(const QString& typed) {
        typeInto(grid(), typed.left(1));
        ASSERT_NE(QApplication::focusWidget(), &grid()) << "nothing lies over the cell";
        typeInto(*QApplication::focusWidget(), typed.mid(1));
    }
    static void pressKey(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }

    void typeEntry(const Word& word) {
        press("Command3");
        EXPECT_EQ(grid().Col(), Liste::ColSprache1);
        typeExpression(word.prefix1, word.main1, word.suffix1);
        pressKey(Qt::Key_Right);
        EXPECT_EQ(grid().Col(), Liste::ColSprache2);
        typeExpression(word.prefix2, word.main2, {});
        goTo(grid().Row(), Liste::ColWortart);
        typeOver(word.wortart);
        pressKey(Qt::Key_Return);
    }
    void typeDetails(int row) {
        for (const auto& [column, value] : {std::pair(int(Liste::ColGrammatikalisch), u"Neutrum"_s),
                                            std::pair(int(Liste::ColFunktional), u"Grundwort"_s),
                                            std::pair(int(Liste::ColBereich), u"Küche"_s)}) {
            goTo(row, column);
            willAssign(value);
            typeInto(grid(), u"x"_s);
            program.prompts.verify();
        }
        goTo(row, Liste::ColBeispielsatz);
        typeOver(u"Das tägliche Brot."_s);
        pressKey(Qt::Key_Tab);
        EXPECT_EQ(grid().Col(), Liste::ColZusatzinfo);
        typeOver(u"vom Bäcker"_s);
        pressKey(Qt::Key_Tab);
        EXPECT_EQ(grid().Col(), Liste::ColQuelle);
        typeOver(u"Lektion 1"_s);
        pressKey(Qt::Key_Return);
    }

    QStringList column(const char* field) {
        return readColumn(path, u"Vokabular"_s, QString::fromLatin1(field));
    }
    /// The stored field of the entry with that main part in language 1.
    QString stored(const char* field, const QString& main) {
        return column(field).value(column("Lang1_Main").indexOf(main));
    }
    int rowOf(const QString& main) {
        for (int row = 1; row < grid().Rows(); ++row)
            if (grid().TextMatrix(row, Liste::ColHaupt1) == main)
                return row;
        return 0;
    }
    void saveAndExpectNothingPending() {
        press("Command2");
        EXPECT_EQ(list().pendingChanges(), 0);
        EXPECT_FALSE(child<QPushButton>(list(), "Command2").isEnabled());
    }
    void createAndTypeEverything() {
        createDatabase();
        openList();
        for (const Word& word : words())
            typeEntry(word);
        typeDetails(WordInDetail + 1);
    }
    void startAgainAndSelect() {
        program.end();
        program.start();
        ASSERT_EQ(program.app().state().CurrentDBPath, path);
        select();
        openList();
    }

    TestProgram program;
    const QString path = program.path(u"französisch.lmt"_s);
};

INSTANTIATE_TEST_SUITE_P(Languages, OwnVocabulary, testing::Values(u"En"_s, u"De"_s),
                         [](const auto& parameter) { return parameter.param.toStdString(); });

TEST_P(OwnVocabulary, WhatIsTypedIsInTheFileAfterTheSaveAndNotBefore) {
    createAndTypeEverything();
    EXPECT_EQ(list().AnzahlNeu, words().size());
    EXPECT_EQ(list().countRows(), words().size());
    EXPECT_EQ(column("ID"), QStringList());

    saveAndExpectNothingPending();
    QStringList mains;
    for (const Word& word : words()) {
        SCOPED_TRACE(word.main1.toStdString());
        mains += word.main1;
        EXPECT_EQ(stored("Lang1_Prefix", word.main1), word.prefix1);
        EXPECT_EQ(stored("Lang1_Suffix", word.main1), word.suffix1);
        EXPECT_EQ(stored("Lang2_Prefix", word.main1), word.prefix2);
        EXPECT_EQ(stored("Lang2_Main", word.main1), word.main2);
        EXPECT_EQ(stored("wortart", word.main1), word.wortart);
        EXPECT_EQ(stored("Eingabedatum", word.main1), u"20020301");
        EXPECT_EQ(stored("Aenderungsdatum", word.main1), u"20020301");
        EXPECT_EQ(stored("Score", word.main1), u"6");
        EXPECT_EQ(grid().TextMatrix(rowOf(word.main1), Liste::ColSchluessel), stored("ID", word.main1));
    }
    QStringList all = column("Lang1_Main");
    all.sort();
    mains.sort();
    EXPECT_EQ(all, mains);

    const QString& detailed = words()[WordInDetail].main1;
    EXPECT_EQ(stored("Beispielsatz", detailed), u"Das tägliche Brot.");
    EXPECT_EQ(stored("Zusatzinfo", detailed), u"vom Bäcker");
    EXPECT_EQ(stored("Quelle", detailed), u"Lektion 1");
    EXPECT_EQ(readColumn(path, u"Bereiche"_s, u"Bereich_Text"_s), QStringList{u"Küche"_s});
    EXPECT_EQ(readColumn(path, u"Bereiche_Zwischen"_s, u"IDV"_s), QStringList{stored("ID", detailed)});
    EXPECT_EQ(readColumn(path, u"GrammatikalischeAttribute"_s, u"Attribut_Text"_s),
              QStringList{u"Neutrum"_s});
    EXPECT_EQ(readColumn(path, u"FunktionaleAttribute"_s, u"Attribut_Text"_s), QStringList{u"Grundwort"_s});
}

TEST_P(OwnVocabulary, TheNextRunSelectsTrainsAndChangesIt) {
    createAndTypeEverything();
    press("Command5");
    EXPECT_FALSE(list().isVisible());
    program.today = {2002, 3, 2};
    startAgainAndSelect();
    EXPECT_EQ(list().countRows(), words().size());
    const int detailed = rowOf(words()[WordInDetail].main1);
    EXPECT_EQ(grid().TextMatrix(detailed, Liste::ColBereich), u"Küche;");
    EXPECT_EQ(grid().TextMatrix(detailed, Liste::ColGrammatikalisch), u"Neutrum;");
    EXPECT_EQ(grid().TextMatrix(detailed, Liste::ColFunktional), u"Grundwort;");

    // One judged answer.
    program.click("Command2");
    auto& trainer = program.app().trainer();
    child<QToolButton>(trainer, "Toolbar1_Button8").click();
    child<QPushButton>(trainer, "Command3").click();
    const QString asked = grid().TextMatrix(1, Liste::ColHaupt1);
    program.prompts.expectDialog("ConfirmDlg",
                                 [](QDialog& form) { child<QPushButton>(form, "JaButton").click(); });
    child<QPushButton>(trainer, "Command3").click();
    EXPECT_EQ(stored("Score", asked), u"5");

    // A source for five rows at once.
    openList();
    goTo(10, Liste::ColQuelle);
    for (int further = 0; further < 4; ++further)
        QTest::keyClick(&grid(), Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(grid().RowSel(), 14);
    program.prompts.expect({.icon = QMessageBox::Question,
                            .text = text(u"Änderungen für alle selektierten Zellen vornehmen?"_s,
                                         u"Shall the changes be applied to all selected rows?"_s),
                            .answer = QMessageBox::Yes});
    typeOver(u"Wörterbuch"_s);
    pressKey(Qt::Key_Return);
    program.prompts.verify();
    EXPECT_EQ(list().AnzahlGeaendert, 5);
    QStringList changed;
    for (int row = 10; row <= 14; ++row)
        changed += grid().TextMatrix(row, Liste::ColHaupt1);

    // Sorted with changes pending, then searched.
    goTo(1, Liste::ColSprache1);
    chooseInList("WordSortByMain");
    program.prompts.expectDialog("frmSuchen", [this](QDialog& form) {
        typeInto(child<QLineEdit>(form, "txtAusdruck"), u"der st"_s);
        EXPECT_EQ(grid().TextMatrix(grid().Row(), Liste::ColHaupt1), u"Stuhl");
        child<QPushButton>(form, "Command1").click();
    });
    chooseInList("mnSuchen");
    program.prompts.verify();

    // Half of it goes.
    const int half = static_cast<int>(words().size()) / 2;
    QStringList gone;
    for (int deleted = 0; deleted < half; ++deleted) {
        goTo(1, Liste::ColSprache1);
        const QString main = grid().TextMatrix(1, Liste::ColHaupt1);
        gone += main;
        press("Command4");
        EXPECT_EQ(rowOf(main), 0);
    }
    EXPECT_EQ(list().AnzahlGeloescht, half);
    EXPECT_EQ(column("ID").size(), words().size()) << "nothing is deleted before the save";

    saveAndExpectNothingPending();
    EXPECT_EQ(column("ID").size(), words().size() - half);
    for (const Word& word : words()) {
        SCOPED_TRACE(word.main1.toStdString());
        EXPECT_EQ(column("Lang1_Main").contains(word.main1), !gone.contains(word.main1));
        if (gone.contains(word.main1))
            continue;
        const bool wasChanged = changed.contains(word.main1);
        const bool isDetailed = word.main1 == words()[WordInDetail].main1;
        const QString source = wasChanged ? u"Wörterbuch"_s : isDetailed ? u"Lektion 1"_s : QString();
        EXPECT_EQ(stored("Quelle", word.main1), source);
        EXPECT_EQ(stored("Eingabedatum", word.main1), u"20020301");
        if (word.main1 != asked) {
            EXPECT_EQ(stored("Aenderungsdatum", word.main1), wasChanged ? u"20020302" : u"20020301");
        }
    }

    startAgainAndSelect();
    EXPECT_EQ(list().countRows(), static_cast<int>(words().size()) - half);
}

TEST_P(OwnVocabulary, ClosingTheListKeepsEverythingPending) {
    createDatabase();
    openList();
    typeEntry(words()[0]);
    press("Command1");
    EXPECT_FALSE(list().isVisible());
    openList();
    EXPECT_EQ(list().AnzahlNeu, 1);
    EXPECT_EQ(grid().TextMatrix(1, Liste::ColHaupt1), words()[0].main1);

    const QString question = text(u"Es wurden noch nicht alle Änderungen gesichert! Wirklich fortsetzen?"_s,
                                  u"Not all changes have been saved! Do you really want to proceed?"_s);
    program.prompts.expectYesNo(question, false);
    program.choose("Datei_Open");
    EXPECT_EQ(list().AnzahlNeu, 1);
    EXPECT_EQ(program.app().state().CurrentDBPath, path);

    program.prompts.expectYesNo(question, true);
    program.prompts.expectSaveFile({});
    program.choose("Menu_Datei_Neu");
    EXPECT_EQ(list().AnzahlNeu, 0) << "a cancelled file dialog has dropped the changes all the same";
    EXPECT_EQ(column("ID"), QStringList());
}

} // namespace
} // namespace lingomat
