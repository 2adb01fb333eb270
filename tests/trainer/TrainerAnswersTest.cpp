#include "TypingBench.h"

#include "TrainingWalk.h"

#include <gtest/gtest.h>

#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace lingomat;

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
    bench.willAsk(synonymQuestion(), true);
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

TEST(Answers, AnEmptyAnswerIsRightWhereNothingIsStored) {
    TypingBench bench;
    bench.addEntry(u"Haus"_s, QString());
    bench.begin();
    bench.type(u"  "_s);
    bench.expectRight();
}

TEST(Answers, ChainsOfEqualCharactersTakeBothSidesEquallyFar) {
    TypingBench bench;
    bench.addEntry(u"Anfang"_s, u"abc!"_s);
    bench.context.state.Exceptions.readExceptions([](int number) {
        return QStringList{u"ab"_s, u"bc"_s, u"!¡"_s, u"¡!"_s}.value(number - 1);
    });
    bench.begin();
    bench.trainer.MainOnly = true;
    bench.type(u"abc!"_s);
    bench.expectRight();
}

TEST(Answers, WithoutTypingAnyRenderingTakesTheVerdictAway) {
    TypingBench bench;
    bench.addEntry(u"Haus"_s, u"house"_s);
    bench.addEntry(u"Baum"_s, u"tree"_s);
    bench.begin();
    bench.type(u"mouse"_s);
    bench.trainer.Command6_Click();
    bench.expectWrong(u"Not: mouse"_s); // while answers are typed, it stands until the next question
    bench.choose("Selbsttest");
    bench.expectWrong(u"Not: mouse"_s);
    bench.trainer.Command6_Click();
    EXPECT_FALSE(bench.saysWrong());
    EXPECT_FALSE(bench.shown("Suche"));
    EXPECT_FALSE(bench.action("menSucheZuletzt").isEnabled());
    EXPECT_EQ(child<QLabel>(bench.trainer, "NichtWort").text(), QString());
}

TEST(Answers, ALanguageSwapTakesTheVerdictAway) {
    TypingBench bench;
    bench.addEntry(u"Haus"_s, u"house"_s);
    bench.begin();
    bench.type(u"mouse"_s);
    bench.choose("Lang2Zuerst");
    EXPECT_FALSE(bench.saysWrong());
    EXPECT_EQ(child<QLabel>(bench.trainer, "NichtWort").text(), QString());
    EXPECT_FALSE(bench.shown("Suche"));
    EXPECT_FALSE(bench.action("menSucheZuletzt").isEnabled());
}
