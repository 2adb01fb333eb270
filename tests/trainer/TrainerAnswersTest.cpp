#include "TrainingBench.h"

#include "DBEngine.h"
#include "Globals.h"
#include "TrainingWalk.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

const QString SynonymQuestion =
    u"The expression typed in, was recognized as Synonym for the required expression.\r"
    "Shall the input be regarded as correct?"_s;

QString referenceQuestion(const QString& type) {
    return u"The expression typed in, was recognized as the following Reference to the required expression: '"_s +
           type + u".\r'Shall the input be regarded as correct?"_s;
}

/// Entries to be asked for by typing, from German to English.
struct TypingBench : TrainingBench {
    explicit TypingBench(const QString& language = u"En"_s) : TrainingBench(0, language) { openFile(); }

    void begin() {
        listEntries();
        beginTyping();
    }
    void willAsk(const QString& question, bool yes) {
        context.prompts.expect({.icon = QMessageBox::Question,
                                .text = question,
                                .answer = yes ? QMessageBox::Yes : QMessageBox::No,
                                .buttons = QMessageBox::Yes | QMessageBox::No});
    }
    void willConfirmError(bool isError) {
        context.prompts.expectDialog("ConfirmForm", [isError](QDialog& form) {
            child<QPushButton>(form, isError ? "Ja" : "Nein").click();
        });
    }
    void expectRight() {
        EXPECT_TRUE(saysRight());
        EXPECT_FALSE(saysWrong());
        EXPECT_FALSE(shown("Suche"));
        EXPECT_FALSE(action("menSucheZuletzt").isEnabled());
        EXPECT_TRUE(context.prompts.isFinished());
    }
    void expectWrong(const QString& caption) {
        EXPECT_TRUE(saysWrong());
        EXPECT_FALSE(saysRight());
        EXPECT_EQ(child<QLabel>(trainer, "NichtWort").text(), caption);
        EXPECT_TRUE(shown("Suche"));
        EXPECT_TRUE(action("menSucheZuletzt").isEnabled());
        EXPECT_TRUE(context.prompts.isFinished());
    }
};

} // namespace

TEST(Answers, TheSolutionStandsBeforeTheVerdict) {
    TypingBench bench;
    bench.addEntry(u"Haus"_s, u"house"_s);
    bench.begin();
    bench.trainer.FehlerBestaetigen = true;
    bench.context.prompts.expectDialog("InputFenster", [&bench](QDialog& form) {
        EXPECT_EQ(bench.question(), u"Haus");
        EXPECT_EQ(bench.solution(), QString());
        child<QLineEdit>(form, "Text1").setText(u" mouse "_s);
        child<QPushButton>(form, "OK").click();
    });
    bench.context.prompts.expectDialog("ConfirmForm", [&bench](QDialog& form) {
        EXPECT_EQ(bench.solution(), u"house");
        EXPECT_FALSE(bench.saysWrong());
        EXPECT_EQ(child<QLabel>(form, "Typed").text(), u"mouse");
        EXPECT_EQ(child<QLabel>(form, "Stored").text(), u"house");
        child<QPushButton>(form, "Ja").click();
    });
    bench.step();
    bench.expectWrong(u"Not: mouse"_s);
    EXPECT_EQ(bench.trainer.ZeigeLoesung, 0);
    EXPECT_EQ(bench.trainer.LetzteEingabe, u"mouse");
    EXPECT_EQ(bench.context.prompts.beeps(), 1);
}

TEST(Answers, RightAndWrongMoveTheScoreInListAndFile) {
    TypingBench bench;
    bench.addEntry({{bench.context.state.Lang2MainField, u"house"_s}, {u"Score"_s, 3}});
    bench.addEntry({{bench.context.state.Lang2MainField, u"tree"_s}, {u"Score"_s, 6}});
    bench.addEntry({{bench.context.state.Lang2MainField, u"dog"_s}, {u"Score"_s, 1}});
    bench.begin();
    bench.type(u"house"_s);
    bench.expectRight();
    EXPECT_EQ(bench.score(1), u"2");
    EXPECT_EQ(bench.stored(1), u"2");
    EXPECT_EQ(bench.stored(1, u"Aenderungsdatum"_s), u"20010105");
    EXPECT_EQ(bench.trainer.AnzahlRichtig, 1);
    EXPECT_EQ(bench.context.prompts.beeps(), 0);
    bench.type(u"bush"_s);
    bench.expectWrong(u"Not: bush"_s);
    EXPECT_EQ(bench.score(2), u"6");
    EXPECT_EQ(bench.stored(2), u"6");
    EXPECT_EQ(bench.trainer.AnzahlRichtig, 1);
    bench.type(u"dog"_s);
    bench.expectRight();
    EXPECT_EQ(bench.score(3), u"1");
    EXPECT_EQ(bench.stored(3), u"1");
}

TEST(Answers, OddScoresCountAsNone) {
    TypingBench bench;
    bench.addEntry(u"a"_s, u"one"_s);
    bench.addEntry({{bench.context.state.Lang2MainField, u"two"_s}, {u"Score"_s, 7}});
    bench.begin();
    bench.list.MSFlexGrid1().setTextMatrix(1, Liste::ColScore, {});
    bench.type(u"one"_s);
    EXPECT_EQ(bench.stored(1), u"1");
    bench.type(u"wrong"_s);
    EXPECT_EQ(bench.score(2), u"1");
    EXPECT_EQ(bench.stored(2), u"1");
}

TEST(Answers, ASynonymIsAskedFor) {
    for (const bool yes : {true, false}) {
        TypingBench bench;
        const QString id = bench.addEntry(u"Haus"_s, u"house"_s);
        bench.addSynonym(id, 1, u"building"_s);
        bench.addSynonym(id, 2, u"home"_s, u"a"_s);
        bench.begin();
        bench.trainer.FehlerBestaetigen = true; // plays no part
        bench.willType(u"A HOME"_s);
        bench.willAsk(SynonymQuestion, yes);
        bench.step();
        if (yes)
            bench.expectRight();
        else
            bench.expectWrong(u"Not: A HOME"_s);
    }
}

TEST(Answers, CaseCountsForTheExpressionButNotForItsSynonyms) {
    TypingBench bench;
    const QString id = bench.addEntry(u"house"_s, u"Haus"_s);
    bench.addEntry(u"house"_s, u"Haus"_s);
    bench.addSynonym(id, 2, u"HAUS"_s);
    bench.begin();
    bench.willType(u"haus"_s);
    bench.willAsk(SynonymQuestion, true);
    bench.step();
    bench.expectRight();
    bench.type(u"haus"_s);
    bench.expectWrong(u"Not: haus"_s);
}

TEST(Answers, ASynonymOfTheOtherLanguageOrEntryIsNone) {
    TypingBench bench;
    const QString id = bench.addEntry(u"Haus"_s, u"house"_s);
    const QString other = bench.addEntry(u"Baum"_s, u"tree"_s);
    bench.addSynonym(id, 1, u"building"_s);
    bench.addSynonym(other, 2, u"building"_s);
    bench.begin();
    bench.type(u"building"_s);
    bench.expectWrong(u"Not: building"_s);
}

TEST(Answers, ANearMissByReferenceIsAskedFor) {
    for (const QString& type :
         {u"Similar meaning for expression in German"_s, u"Different meaning for expression in German"_s}) {
        for (const bool reversed : {false, true}) {
            for (const bool yes : {true, false}) {
                TypingBench bench;
                const QString house = bench.addEntry(u"Haus"_s, u"house"_s);
                const QString hut = bench.addEntry(u"Hütte"_s, u"hut"_s);
                bench.addSynonym(hut, 2, u"cabin"_s);
                reversed ? bench.addReference(hut, house, type) : bench.addReference(house, hut, type);
                bench.begin();
                bench.willType(yes ? u"HUT"_s : u"Cabin"_s);
                bench.willAsk(referenceQuestion(type), yes);
                bench.step();
                if (yes)
                    bench.expectRight();
                else
                    bench.expectWrong(u"Not: Cabin"_s);
            }
        }
    }
}

TEST(Answers, OnlyReferencesOfTheLanguageThatIsAskedFromCount) {
    TypingBench bench;
    const QString house = bench.addEntry(u"Haus"_s, u"house"_s);
    const QString hut = bench.addEntry(u"Hütte"_s, u"hut"_s);
    bench.addReference(house, hut, u"Similar meaning for expression in English"_s);
    bench.addReference(house, hut, u"See also"_s);
    bench.begin();
    bench.type(u"hut"_s);
    bench.expectWrong(u"Not: hut"_s);
    bench.choose("Lang2Zuerst");
    bench.trainer.Command6_Click();
    bench.willType(u"Hütte"_s);
    bench.willAsk(referenceQuestion(u"Similar meaning for expression in English"_s), true);
    bench.step();
    bench.expectRight();
}

TEST(Answers, ADanglingReferenceIsToldAndTheAnswerGoesOn) {
    for (const auto& [language, text] : {std::pair{u"En"_s, u"Could not find vocabulary!"_s},
                                         std::pair{u"De"_s, u"Keine Vokabel zu Referenz gefunden!"_s}}) {
        TypingBench bench(language);
        const QString house = bench.addEntry(u"Haus"_s, u"house"_s);
        bench.addReference(house, u"999"_s, RefAehnlicheBedeutung + u"German"_s);
        bench.begin();
        bench.trainer.FehlerBestaetigen = true;
        bench.willType(u"hut"_s);
        bench.context.prompts.expect({.text = text});
        bench.willConfirmError(false);
        bench.step();
        bench.expectRight();
    }
}

TEST(Answers, AReferenceLoopEnds) {
    TypingBench bench;
    const QString a = bench.addEntry(u"Haus"_s, u"house"_s);
    const QString b = bench.addEntry(u"Hütte"_s, u"hut"_s);
    const QString type = u"Similar meaning for expression in German"_s;
    bench.addReference(a, b, type);
    bench.addReference(b, a, type);
    bench.addReference(a, a, type);
    bench.begin();
    bench.type(u"villa"_s);
    bench.expectWrong(u"Not: villa"_s);
}

TEST(Answers, ConfirmationHasTheLastWord) {
    TypingBench bench;
    bench.addEntry({{bench.context.state.Lang2MainField, u"house"_s}, {u"Score"_s, 3}});
    bench.addEntry(u"Baum"_s, u"tree"_s);
    bench.begin();
    bench.trainer.FehlerBestaetigen = true;
    bench.trainer.Schleife = true;
    bench.trainer.Command6_Click();
    bench.willType(u"mouse"_s);
    bench.willConfirmError(false);
    bench.step();
    bench.expectRight();
    EXPECT_EQ(bench.stored(1), u"2");
    EXPECT_EQ(bench.trainer.AnzahlRichtig, 1);
    EXPECT_EQ(bench.trainer.SchleifeStatus(1), LoopEntryDone);
    bench.willType(u"bush"_s);
    bench.context.prompts.expectDialog("ConfirmForm", [](QDialog& form) { form.close(); });
    bench.step();
    bench.expectWrong(u"Not: bush"_s);
}

TEST(Answers, MainOnlyMayBeChangedInTheWindow) {
    TypingBench bench;
    const SharedState& state = bench.context.state;
    bench.addEntry({{state.Lang2PrefixField, u"to"_s}, {state.Lang2MainField, u"go"_s}});
    bench.addEntry({{state.Lang2PrefixField, u"to"_s}, {state.Lang2MainField, u"see"_s}});
    bench.begin();
    bench.context.prompts.expectDialog("InputFenster", [](QDialog& form) {
        EXPECT_FALSE(child<QToolButton>(form, "Toolbar1_Button1").isChecked());
        child<QToolButton>(form, "Toolbar1_Button1").click();
        child<QLineEdit>(form, "Text1").setText(u"go"_s);
        child<QPushButton>(form, "OK").click();
    });
    bench.step();
    bench.expectRight();
    EXPECT_TRUE(bench.trainer.MainOnly);
    EXPECT_TRUE(bench.option("MainOnly").isChecked());
    bench.context.prompts.expectDialog("InputFenster", [](QDialog& form) {
        EXPECT_TRUE(child<QToolButton>(form, "Toolbar1_Button1").isChecked());
        EXPECT_EQ(child<QLineEdit>(form, "Text1").text(), QString());
        child<QPushButton>(form, "OK").click();
    });
    bench.step();
    bench.expectWrong(u"Not: "_s);
}

TEST(Answers, EqualCharactersCountEverywhere) {
    TypingBench bench;
    const QString id = bench.addEntry(u"Grüße"_s, u"¡hola!"_s);
    bench.addSynonym(id, 2, u"¿qué tal?"_s);
    const QString other = bench.addEntry(u"Gruß"_s, u"saludo¡"_s);
    bench.addReference(id, other, u"Similar meaning for expression in German"_s);
    bench.context.state.Exceptions.readExceptions([](int number) {
        return QStringList{u"!¡"_s, u"?¿"_s, u"eé"_s}.value(number - 1);
    });
    bench.begin();
    bench.type(u"!hola!"_s);
    bench.expectRight();
    bench.trainer.Command6_Click();
    bench.willType(u"?que TAL?"_s);
    bench.willAsk(SynonymQuestion, true);
    bench.step();
    bench.expectRight();
    bench.trainer.Command6_Click();
    bench.willType(u"saludo!"_s);
    bench.willAsk(referenceQuestion(u"Similar meaning for expression in German"_s), true);
    bench.step();
    bench.expectRight();
}

TEST(Answers, ClosingTheWindowIsAnEmptyAnswer) {
    TypingBench bench;
    bench.addEntry(u"Haus"_s, u"house"_s);
    bench.begin();
    bench.context.prompts.expectDialog("InputFenster", [](QDialog& form) {
        child<QLineEdit>(form, "Text1").setText(u"house"_s);
        form.close();
    });
    bench.step();
    bench.expectWrong(u"Not: "_s);
    EXPECT_EQ(bench.trainer.LetzteEingabe, QString());
}

TEST(Answers, AnyTextIsData) {
    TypingBench bench;
    const QString id = bench.addEntry(u"Haus"_s, u"l'eau * ? [a-z] # %"_s);
    bench.addSynonym(id, 2, u"d'or"_s);
    bench.begin();
    for (const QString& answer :
         {u"*"_s, u"l'eau"_s, u"%"_s, u"["_s, u"' OR 1=1 --"_s, u"x"_s.repeated(10000)}) {
        bench.trainer.Command6_Click();
        bench.type(answer);
        bench.expectWrong(u"Not: "_s + answer);
    }
    bench.trainer.Command6_Click();
    bench.type(u"l'eau * ? [a-z] # %"_s);
    bench.expectRight();
}

TEST(Answers, TheVerdictStaysUntilTheNextQuestion) {
    TypingBench bench;
    bench.addEntry(u"Haus"_s, u"house"_s);
    bench.addEntry(u"Baum"_s, u"tree"_s);
    bench.begin();
    bench.type(u"mouse"_s);
    ASSERT_TRUE(bench.saysWrong());
    bench.context.prompts.expectDialog("InputFenster", [&bench](QDialog& form) {
        EXPECT_FALSE(bench.saysWrong());
        EXPECT_FALSE(bench.shown("Suche"));
        EXPECT_EQ(child<QLabel>(bench.trainer, "NichtWort").text(), QString());
        child<QLineEdit>(form, "Text1").setText(u"tree"_s);
        child<QPushButton>(form, "OK").click();
    });
    bench.step();
    bench.expectRight();
    bench.choose("Lang2Zuerst");
    EXPECT_FALSE(bench.saysRight());
}

TEST(Answers, ARowThatIsNotInTheFileTouchesNoOther) {
    TypingBench bench;
    bench.addEntry({{bench.context.state.Lang2MainField, u"house"_s}, {u"Score"_s, 3}});
    bench.begin();
    bench.list.MSFlexGrid1().setTextMatrix(1, Liste::ColSchluessel, u"*"_s);
    bench.type(u"house"_s);
    bench.expectRight();
    EXPECT_EQ(bench.score(1), u"2");
    EXPECT_EQ(bench.stored(1), u"3");
    EXPECT_EQ(bench.trainer.CheckForSpecialRelation(u"house"_s), QString());
    EXPECT_FALSE(bench.trainer.IsSynonym(u"house"_s));
    EXPECT_FALSE(bench.trainer.PositioniereRecord(u"*"_s));
}

TEST(Answers, FaultsAreReportedAndTheSessionGoesOn) {
    TypingBench bench;
    for (const char16_t* word : {u"one", u"two", u"three"})
        bench.addEntry({{bench.context.state.Lang2MainField, QString::fromUtf16(word)}, {u"Score"_s, 3}});
    bench.begin();
    {
        dao::Database other = dao::DBEngine::OpenDatabase(bench.filePath());
        dao::Recordset rows = other.OpenRecordset(u"SELECT * FROM Vokabular"_s);
        rows.Delete();
    }
    bench.willType(u"one"_s);
    bench.context.prompts.expectErrorContaining(u""_s);
    bench.step();
    bench.expectRight();
    EXPECT_EQ(bench.score(1), u"2") << "the list keeps the new value";
    EXPECT_EQ(bench.stored(1), u"3") << "of the second entry, which is the first now";
    bench.type(u"two"_s);
    bench.expectRight();
    EXPECT_EQ(bench.stored(1), u"2");

    bench.context.state.DBHandler.Database.Close();
    bench.willType(u"three"_s);
    bench.context.prompts.expectErrorContaining(u""_s);
    bench.step();
    bench.expectRight();
    bench.expectEnd();
    bench.step();
}

TEST(Answers, RowAndScoreAreTheSameInEveryOrderAlsoAfterSorting) {
    for (const char* order : {"Reihenfolge_sequentiell", "Reihenfolge_shuffle", "Reihenfolge_random"}) {
        TrainingBench bench;
        bench.openFileWith(3);
        bench.draw({3, 1, 2});
        bench.choose(order);
        bench.draw({3});
        bench.trainer.Selbsttest = true;
        bench.step();
        FlexGrid& rows = bench.list.MSFlexGrid1();
        for (int row = 1; row <= 3; ++row)
            rows.setTextMatrix(row, Liste::ColWortart, QString::number(9 - row));
        rows.setCol(Liste::ColWortart);
        rows.Sort(); // the other way round
        ASSERT_EQ(rows.TextMatrix(1, Liste::ColSprache1), u"Wort 3");
        bench.willConfirm(true);
        bench.step();
        const QString word = bench.question().mid(5);
        for (int row = 1; row <= 3; ++row) {
            EXPECT_EQ(bench.stored(row), QString::number(row) == word ? u"2"_s : u"3"_s) << order;
            EXPECT_EQ(bench.score(4 - row), bench.stored(row));
        }
    }
}

TEST(Answers, SelfAssessment) {
    TrainingBench bench;
    bench.openFileWith(3);
    bench.trainer.Selbsttest = true;
    bench.step();
    bench.willConfirm(true);
    bench.step();
    EXPECT_EQ(bench.stored(1), u"2");
    EXPECT_EQ(bench.trainer.AnzahlRichtig, 1);
    EXPECT_FALSE(bench.saysRight());
    bench.step();
    bench.willConfirm(false);
    bench.step();
    EXPECT_EQ(bench.stored(2), u"4");
    EXPECT_EQ(bench.trainer.AnzahlRichtig, 1);
    EXPECT_FALSE(bench.saysWrong());
    bench.step();
    bench.context.prompts.expectDialog("ConfirmDlg", [](QDialog& form) { form.close(); });
    bench.step();
    EXPECT_EQ(bench.stored(3), u"4") << "closing leaves the last answer";
}

TEST(Answers, FiftyOfThemFlowByTheKeyboardAlone) {
    TrainingBench bench;
    bench.openFileWith(50);
    bench.trainer.show();
    bench.trainer.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&bench.trainer));
    bench.beginTyping();
    for (int entry = 1; entry <= 50; ++entry) {
        bench.context.prompts.expectDialog("InputFenster", [entry](QDialog& form) {
            ASSERT_TRUE(form.focusWidget());
            QTest::keyClicks(form.focusWidget(), u"word %1"_s.arg(entry));
            QTest::keyClick(form.focusWidget(), Qt::Key_Return);
        });
        QTest::keyClick(bench.trainer.focusWidget(), Qt::Key_Return);
        ASSERT_TRUE(bench.saysRight()) << entry;
    }
    EXPECT_EQ(bench.trainer.AnzahlRichtig, 50);
    EXPECT_EQ(bench.stored(50), u"2");
}

TEST(Answers, TheBoxStandsExactlyOverTheSolution) {
    TrainingBench bench;
    bench.openFileWith(1);
    bench.trainer.resize(720, 480);
    bench.trainer.move(30, 30);
    bench.trainer.show();
    QApplication::processEvents();
    bench.beginTyping();
    bench.context.prompts.expectDialog("InputFenster", [&bench](QDialog& form) {
        const auto& box = child<QLineEdit>(form, "Text1");
        const FlexGrid& grid = bench.grid;
        const int top = 2 * grid.RowHeight(0) + grid.RowHeight(1);
        EXPECT_EQ(box.mapToGlobal(QPoint(0, 0)), grid.viewport()->mapToGlobal(QPoint(0, top)));
        EXPECT_EQ(box.size(), QSize(grid.viewport()->width(), grid.RowHeight(3)));
        form.close();
    });
    bench.step();
}

TEST(Answers, TheVerdictIsToldByColourAndByASign) {
    TrainingBench bench;
    bench.openFileWith(2);
    bench.trainer.show();
    bench.beginTyping();
    bench.type(u"word 1"_s);
    const auto colours = [&bench](const char* name) {
        auto& box = child<QLabel>(bench.trainer, name);
        const QImage picture = box.grab().toImage();
        QSet<QRgb> found;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.height(); ++x) // the sign stands at the left, in a square
                found += picture.pixel(x, y);
        EXPECT_LE(box.sizeHint().height(), box.height() + 4);
        return found;
    };
    EXPECT_EQ(child<QLabel>(bench.trainer, "Richtig").text(), u"OK");
    QSet<QRgb> right = colours("Richtig");
    EXPECT_TRUE(right.contains(qRgb(0, 255, 0)));
    EXPECT_TRUE(right.contains(qRgb(0, 0, 0)));
    bench.type(u"wrong"_s);
    QSet<QRgb> wrong = colours("NichtWort");
    EXPECT_TRUE(wrong.contains(qRgb(255, 0, 0)));
    EXPECT_TRUE(wrong.contains(qRgb(0, 0, 0)));
    const auto& box = child<QLabel>(bench.trainer, "NichtWort");
    EXPECT_EQ(box.x(), 0);
    EXPECT_GE(box.width(), box.sizeHint().width()) << "all of a short answer is seen";
    EXPECT_GT(bench.button("Suche").x(), box.x() + box.width());
}
