#include "SelectionBench.h"

#include <QApplication>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

/// Texts that an entry of the file has, in every field that can be filtered.
const QStringList& storedTexts() {
    static const QStringList texts{u"l'eau"_s, u"a \"b\""_s, u"a[b"_s,  u"a]b"_s,        u"axyb"_s,
                                   u"axb"_s,   u"a7b"_s,     u"a%b"_s,  u"a_b"_s,        u"a;b"_s,
                                   u"a\\b"_s,  u"a -- b"_s,  u"a*b"_s,  u"a?b"_s,        u"a#b"_s,
                                   u"😀"_s,     u"Häuser"_s,  u"a\nb"_s, u"(x) OR (1=1"_s};
    return texts;
}

struct OddText {
    QString typed;
    QStringList found; ///< in any order
    bool malformed = false;
};

/// What a pattern finds.
QList<OddText> patterns() {
    const QStringList threeLong{u"a[b"_s, u"a]b"_s,  u"axb"_s, u"a7b"_s, u"a%b"_s, u"a_b"_s,
                                u"a;b"_s, u"a\\b"_s, u"a*b"_s, u"a?b"_s, u"a#b"_s, u"a\nb"_s};
    return {
        {u"l'eau"_s, {}, true},
        {u"'"_s, {}, true},
        {u"x' OR 'a'='a"_s, storedTexts()}, // a quote closes the text: what follows is read as a condition
        {u"a \"b\""_s, {u"a \"b\""_s}},
        {u"a[b"_s, {}, true},
        {u"a[[]b"_s, {u"a[b"_s}},
        {u"a]b"_s, {u"a]b"_s}},
        {u"a*b"_s, threeLong + QStringList{u"axyb"_s, u"a -- b"_s}},
        {u"a?b"_s, threeLong},
        {u"a#b"_s, {u"a7b"_s}},
        {u"a[*]b"_s, {u"a*b"_s}},
        {u"a[?]b"_s, {u"a?b"_s}},
        {u"a[#]b"_s, {u"a#b"_s}},
        {u"a%b"_s, {u"a%b"_s}},
        {u"a_b"_s, {u"a_b"_s}},
        {u"a;b"_s, {u"a;b"_s}},
        {u"a\\b"_s, {u"a\\b"_s}},
        {u"a -- b"_s, {u"a -- b"_s}},
        {u"(x) OR (1=1"_s, {u"(x) OR (1=1"_s}},
        {u"😀"_s, {u"😀"_s}},
        {u"?"_s, {u"😀"_s}}, // one character, though two units
        {u"häuser"_s, {u"Häuser"_s}},
        {u"Hauser"_s, {}},
    };
}

struct OddTexts : testing::Test {
    SelectionBench bench;

    void SetUp() override {
        bench.openDatabase();
        const SharedState& state = bench.context.state;
        for (const QString& text : storedTexts()) {
            const QString id = bench.add({.main1 = text,
                                          .fields = {{state.Lang1PrefixField, text},
                                                     {state.Lang1SuffixField, text},
                                                     {state.Lang1KommentarField, text},
                                                     {state.Lang2PrefixField, text},
                                                     {state.Lang2MainField, text},
                                                     {state.Lang2SuffixField, text},
                                                     {state.Lang2KommentarField, text},
                                                     {u"Wortart"_s, text},
                                                     {u"Quelle"_s, text},
                                                     {u"Beispielsatz"_s, text},
                                                     {u"Zusatzinfo"_s, text}}});
            linkNew(id, text, session().RecordsetBereiche, u"Bereich_Text"_s, u"ID"_s,
                    session().RecordsetBereiche_Z);
            linkNew(id, text, session().RecordsetGrammatikalisch, u"Attribut_Text"_s, u"IDA"_s,
                    session().RecordsetGrammatikalisch_Z);
            linkNew(id, text, session().RecordsetFunktional, u"Attribut_Text"_s, u"IDA"_s,
                    session().RecordsetFunktional_Z);
            bench.addReference(id, id, text);
        }
        bench.load();
    }

    CDBHandler& session() { return bench.context.state.DBHandler; }

    void linkNew(const QString& id, const QString& text, dao::Recordset& table, const QString& textField,
                 const QString& keyField, dao::Recordset& links) {
        bench.addRow(table, {{textField, text}});
        table.setBookmark(table.LastModified());
        bench.addRow(links, {{u"IDV"_s, id.toInt()}, {u"ID"_s, table.field(keyField)}});
    }

    void runAndExpect(const OddText& odd) {
        SCOPED_TRACE(odd.typed.toStdString());
        auto& prompts = bench.context.prompts;
        if (odd.malformed)
            prompts.expectErrorContaining(QString());
        else if (odd.found.isEmpty())
            prompts.expectExclamation(u"There were no entries found.");
        bench.run();
        prompts.verify();
        if (!odd.malformed) {
            EXPECT_EQ(sorted(bench.listed()), sorted(odd.found));
        }
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        EXPECT_FALSE(bench.context.progress.isVisible());
    }

    static QStringList sorted(QStringList texts) {
        texts.sort();
        return texts;
    }
};

} // namespace

TEST_F(OddTexts, InEveryTextBoxFindWhatTheyMeanOrAreReported) {
    for (const char* box : {"Lang1Prefix", "Lang1Main", "Lang1Suffix", "Lang1Kommentar", "Lang2Prefix",
                            "Lang2Main", "Lang2Suffix", "Lang2Kommentar", "Beispielsatz", "Zusatzinfo"}) {
        SCOPED_TRACE(box);
        bench.click("Command2");
        const auto all = patterns();
        for (const OddText& odd : all) {
            bench.type(box, odd.typed);
            runAndExpect(odd);
        }
    }
    bench.click("Command2");
    runAndExpect({{}, storedTexts()});
}

TEST_F(OddTexts, InTheListsOfPatternsFindWhatTheyMean) {
    for (const QString& kind : {u"Wortart"_s, u"Quelle"_s}) {
        SCOPED_TRACE(kind.toStdString());
        const auto all = patterns();
        for (const OddText& odd : all) {
            if (!storedTexts().contains(odd.typed))
                continue;
            bench.click("Command2");
            bench.choose(kind, {odd.typed});
            runAndExpect(odd);
        }
    }
}

TEST_F(OddTexts, InTheListsOfEqualTextsFindThemselves) {
    for (const QString& kind : {u"Bereich"_s, u"Grammatikalisch"_s, u"Funktional"_s, u"Referenzen"_s}) {
        SCOPED_TRACE(kind.toStdString());
        for (const QString& text : storedTexts()) {
            bench.click("Command2");
            bench.choose(kind, {text});
            runAndExpect({text, {text}, text.contains(u'\'')});
        }
    }
}

TEST_F(OddTexts, NulInABoxIsJustACharacter) {
    bench.type("Lang1Main", u"a\0b"_s);
    runAndExpect({u"a NUL b"_s, {}});
    bench.click("Command2");
    runAndExpect({{}, storedTexts()});
}

TEST_F(OddTexts, InTheYearsAreCutToTheRange) {
    for (const char16_t* text : {u"'", u"\"", u"[", u"*", u"?", u"#", u"%", u"_", u";", u"😀", u"x"}) {
        for (const char* box : {"txtEingabeVonJahr", "txtEingabeBisJahr", "txtAenderungVonJahr"}) {
            SCOPED_TRACE(std::string(box) + ' ' + QString::fromUtf16(text).toStdString());
            bench.click("Command2");
            bench.type(box, QString::fromUtf16(text));
            EXPECT_TRUE(bench.text(box) == u"2001"_s || bench.text(box) == u"2002"_s);
        }
    }
}

TEST_F(OddTexts, InTheDaysGoIntoTheCriterionAsTheyStand) {
    bench.click("Command2");
    bench.type("txtEingabeVonMonat", u"02"_s);
    bench.type("txtEingabeVonTag", u"'"_s);
    EXPECT_EQ(bench.text("txtEingabeVonTag"), u"0'"_s);
    runAndExpect({u"0'"_s, {}, true});
    bench.type("txtEingabeVonTag", u"*"_s); // compared as a text: above every digit, below every letter
    runAndExpect({u"0*"_s, {}});
}
