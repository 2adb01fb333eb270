// Answers that are another word for what was asked, by a synonym or by a reference.

#include "TypingBench.h"

#include "Globals.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

TEST(NearAnswers, ASynonymIsAskedFor) {
    for (const bool yes : {true, false}) {
        TypingBench bench;
        const QString id = bench.addEntry(u"Haus"_s, u"house"_s);
        bench.addSynonym(id, 1, u"building"_s);
        bench.addSynonym(id, 2, u"home"_s, u"a"_s);
        bench.begin();
        bench.trainer.FehlerBestaetigen = true; // plays no part
        bench.willType(u"A HOME"_s);
        bench.willAsk(synonymQuestion(), yes);
        bench.step();
        if (yes)
            bench.expectRight();
        else
            bench.expectWrong(u"Not: A HOME"_s);
    }
}

TEST(NearAnswers, CaseCountsForTheExpressionButNotForItsSynonyms) {
    TypingBench bench;
    const QString id = bench.addEntry(u"house"_s, u"Haus"_s);
    bench.addEntry(u"house"_s, u"Haus"_s);
    bench.addSynonym(id, 2, u"HAUS"_s);
    bench.begin();
    bench.willType(u"haus"_s);
    bench.willAsk(synonymQuestion(), true);
    bench.step();
    bench.expectRight();
    bench.type(u"haus"_s);
    bench.expectWrong(u"Not: haus"_s);
}

TEST(NearAnswers, ASynonymOfTheOtherLanguageOrEntryIsNone) {
    TypingBench bench;
    const QString id = bench.addEntry(u"Haus"_s, u"house"_s);
    const QString other = bench.addEntry(u"Baum"_s, u"tree"_s);
    bench.addSynonym(id, 1, u"building"_s);
    bench.addSynonym(other, 2, u"building"_s);
    bench.begin();
    bench.type(u"building"_s);
    bench.expectWrong(u"Not: building"_s);
}

TEST(NearAnswers, ANearMissByReferenceIsAskedFor) {
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
                bench.trainer.FehlerBestaetigen = true; // plays no part
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

TEST(NearAnswers, OnlyReferencesOfTheLanguageThatIsAskedFromCount) {
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

TEST(NearAnswers, ADanglingReferenceIsToldAndTheAnswerGoesOn) {
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

TEST(NearAnswers, AReferenceLoopEnds) {
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

TEST(NearAnswers, AreAskedForInGerman) {
    TypingBench bench(u"De"_s);
    const QString house = bench.addEntry(u"Haus"_s, u"house"_s);
    const QString hut = bench.addEntry(u"Hütte"_s, u"hut"_s);
    bench.addSynonym(house, 2, u"home"_s);
    const QString type = u"Ähnliche Bedeutung für Ausdruck auf German"_s;
    bench.addReference(house, hut, type);
    bench.begin();
    bench.willType(u"home"_s);
    bench.willAsk(synonymQuestion(), true);
    bench.step();
    bench.expectRight();
    bench.trainer.Command6_Click();
    bench.willType(u"hut"_s);
    bench.willAsk(referenceQuestion(type), false);
    bench.step();
    bench.expectWrong(u"Nicht: hut"_s);
}

TEST(NearAnswers, ADanglingReferenceEndsTheSearch) {
    TypingBench bench;
    const QString house = bench.addEntry(u"Haus"_s, u"house"_s);
    const QString hut = bench.addEntry(u"Hütte"_s, u"hut"_s);
    const QString type = u"Similar meaning for expression in German"_s;
    bench.addReference(house, u"999"_s, type);
    bench.addReference(house, hut, type);
    bench.begin();
    bench.willType(u"hut"_s);
    bench.context.prompts.expect({.text = u"Could not find vocabulary!"});
    bench.step();
    bench.expectWrong(u"Not: hut"_s);
}

TEST(NearAnswers, TheMainPartAloneIsEnoughWhereItIsAskedFor) {
    TypingBench bench;
    const SharedState& state = bench.context.state;
    const QString house = bench.addEntry(u"Haus"_s, u"house"_s);
    const QString hut = bench.addEntry({{state.Lang1MainField, u"Hütte"_s},
                                        {state.Lang2PrefixField, u"the"_s},
                                        {state.Lang2MainField, u"hut"_s}});
    bench.addSynonym(house, 2, u"home"_s, u"a"_s);
    bench.addSynonym(hut, 2, u"cabin"_s, u"log"_s);
    bench.addSynonym(hut, 1, u"Kate"_s);
    const QString type = u"Different meaning for expression in German"_s;
    bench.addReference(hut, house, type);
    bench.begin();
    struct Case {
        QString answer;
        bool whole;
        bool main;
        QString question;
    };
    for (const Case& test :
         {Case{u"a home"_s, true, false, synonymQuestion()}, Case{u"home"_s, false, true, synonymQuestion()},
          Case{u"the hut"_s, true, false, referenceQuestion(type)},
          Case{u"hut"_s, false, true, referenceQuestion(type)},
          Case{u"log cabin"_s, true, false, referenceQuestion(type)},
          Case{u"cabin"_s, false, true, referenceQuestion(type)}, Case{u"Kate"_s, false, false, {}},
          Case{u"Hütte"_s, false, false, {}}}) {
        for (const bool mainOnly : {false, true}) {
            SCOPED_TRACE(test.answer.toStdString() + (mainOnly ? ", main only" : ""));
            bench.trainer.MainOnly = mainOnly;
            bench.trainer.Command6_Click();
            bench.willType(test.answer);
            const bool asks = mainOnly ? test.main : test.whole;
            if (asks)
                bench.willAsk(test.question, true);
            bench.step();
            if (asks)
                bench.expectRight();
            else
                bench.expectWrong(u"Not: "_s + test.answer);
        }
    }
}

TEST(NearAnswers, EqualCharactersCountForASynonymOfAReferredEntry) {
    TypingBench bench;
    const QString house = bench.addEntry(u"Haus"_s, u"casa"_s);
    const QString hut = bench.addEntry(u"Hütte"_s, u"cabaña"_s);
    bench.addSynonym(hut, 2, u"¡choza!"_s);
    const QString type = u"Similar meaning for expression in German"_s;
    bench.addReference(house, hut, type);
    bench.context.state.Exceptions.readExceptions([](int number) {
        return QStringList{u"!¡"_s, u"nñ"_s}.value(number - 1);
    });
    bench.begin();
    for (const QString& answer : {u"cabana"_s, u"!CHOZA!"_s}) {
        bench.trainer.Command6_Click();
        bench.willType(answer);
        bench.willAsk(referenceQuestion(type), true);
        bench.step();
        bench.expectRight();
    }
}

TEST(NearAnswers, ALookUpThatFailsLeavesTheLaterOnesAndTheConfirmation) {
    TypingBench bench;
    const QString house = bench.addEntry(u"Haus"_s, u"house"_s);
    const QString hut = bench.addEntry(u"Hütte"_s, u"hut"_s);
    const QString type = u"Similar meaning for expression in German"_s;
    bench.addReference(house, hut, type);
    bench.begin();
    bench.trainer.FehlerBestaetigen = true;
    bench.context.state.DBHandler.RecordsetSynonyme.Close();
    bench.willType(u"hut"_s);
    bench.context.prompts.expectErrorContaining(u""_s);
    bench.willAsk(referenceQuestion(type), true);
    bench.step();
    bench.expectRight();

    bench.trainer.Command6_Click();
    bench.willType(u"villa"_s);
    bench.context.prompts.expectErrorContaining(u""_s);
    bench.context.prompts.expectErrorContaining(u""_s); // for the synonyms of the entry referred to
    bench.willConfirmError(false);
    bench.step();
    bench.expectRight();
}

TEST(NearAnswers, TheNameOfALanguageIsData) {
    for (const QString& name : {u"L'un"_s, u"[x"_s, u"*"_s, u"Engl?sh #"_s}) {
        TypingBench bench;
        bench.context.state.Lang1Name = name;
        const QString house = bench.addEntry(u"Haus"_s, u"house"_s);
        const QString hut = bench.addEntry(u"Hütte"_s, u"hut"_s);
        const QString villa = bench.addEntry(u"Villa"_s, u"villa"_s);
        const QString type = u"Similar meaning for expression in "_s + name;
        bench.addReference(house, hut, type);
        bench.addReference(house, villa, u"Similar meaning for expression in English 1"_s);
        bench.begin();
        bench.willType(u"hut"_s);
        bench.willAsk(referenceQuestion(type), true);
        bench.step();
        bench.expectRight();
        bench.trainer.Command6_Click();
        bench.type(u"villa"_s);
        bench.expectWrong(u"Not: villa"_s);
    }
}
