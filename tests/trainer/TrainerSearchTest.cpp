#include "TrainingBench.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

struct SearchBench : TrainingBench {
    explicit SearchBench(const QString& language = u"En"_s) : TrainingBench(0, language) { openFile(); }

    /// Announces the dialog, and what its grid holds row by row.
    void willShow(const QList<QStringList>& rows) {
        context.prompts.expectDialog("Bedeutung", [rows](QDialog& form) {
            const auto& found = child<FlexGrid>(form, "MSFlexGrid1");
            QList<QStringList> shown;
            for (int row = 0; row < found.Rows(); ++row)
                shown += {found.TextMatrix(row, 0), found.TextMatrix(row, 1), found.TextMatrix(row, 2)};
            EXPECT_EQ(shown.mid(1), rows);
            EXPECT_EQ(found.ColWidth(2), 0);
            EXPECT_EQ(found.Row(), 1);
            EXPECT_EQ(found.Col(), 2);
            EXPECT_TRUE(child<QLineEdit>(form, "Text1").hasFocus() || !form.isActiveWindow());
            QTest::keyClick(&child<QLineEdit>(form, "Text1"), Qt::Key_Return);
            EXPECT_FALSE(form.isVisible());
        });
    }
    void search() { button("Suche").click(); }
};

} // namespace

TEST(Search, RanksWhatTheAnswerCouldHaveMeant) {
    SearchBench bench;
    const SharedState& state = bench.context.state;
    bench.addEntry(u"Frage"_s, u"question"_s);
    bench.addEntry({{state.Lang1MainField, u"Haus am See"_s}, {state.Lang2MainField, u"lakehouse"_s}});
    bench.addEntry({{state.Lang1MainField, u"HAUS"_s}, {state.Lang2MainField, u"HOUSE"_s}});
    bench.addEntry({{state.Lang1MainField, u"Haus"_s},
                    {state.Lang2PrefixField, u"the"_s},
                    {state.Lang2MainField, u"house"_s},
                    {state.Lang2KommentarField, u"place"_s}});
    bench.addEntry({{state.Lang1MainField, u"Heim"_s}, {state.Lang2MainField, u"house"_s}});
    bench.addEntry({{state.Lang1MainField, u"Häuser"_s}, {state.Lang2MainField, u"houses"_s}});
    bench.listEntries();
    bench.beginTyping();
    bench.type(u" house "_s);
    bench.willShow({{u"house"_s, u"Heim"_s, u"100"_s},
                    {u"HOUSE"_s, u"HAUS"_s, u"95"_s},
                    {u"the house (place)"_s, u"Haus"_s, u"90"_s},
                    {u"lakehouse"_s, u"Haus am See"_s, u"80"_s},
                    {u"houses"_s, u"Häuser"_s, u"80"_s}});
    bench.search();
    EXPECT_TRUE(bench.context.prompts.isFinished());
    EXPECT_FALSE(bench.context.progress.isVisible());
}

TEST(Search, HeadingsAreTheCaptionsOfTheTrainer) {
    for (const auto& [language, title, label] :
         {std::tuple{u"En"_s, u"Possible Meanings"_s, u"Possibly confused with:"_s},
          std::tuple{u"De"_s, u"Mögliche Bedeutung"_s, u"Möglicherweise verwechselt mit:"_s}}) {
        SearchBench bench(language);
        bench.addEntry(u"Haus"_s, u"house"_s);
        bench.listEntries();
        bench.choose("Lang2Zuerst");
        bench.beginTyping();
        bench.type(u"Hau"_s);
        bench.context.prompts.expectDialog("Bedeutung", [&](QDialog& form) {
            EXPECT_EQ(form.windowTitle(), title);
            EXPECT_EQ(child<QLabel>(form, "Label1").text(), label);
            const auto& found = child<FlexGrid>(form, "MSFlexGrid1");
            EXPECT_EQ(found.TextMatrix(0, 0), u"German");
            EXPECT_EQ(found.TextMatrix(0, 1), u"English");
            EXPECT_EQ(found.TextMatrix(1, 0), u"Haus");
            EXPECT_EQ(found.TextMatrix(1, 1), u"house");
            QTest::keyClick(&child<QPushButton>(form, "OK"), Qt::Key_Escape);
        });
        bench.action("menSucheZuletzt").trigger();
    }
}

TEST(Search, WithoutAMatchThereIsNoWindow) {
    for (const auto& [language, text] :
         {std::pair{u"En"_s, u"No entry found for expression."_s},
          std::pair{u"De"_s, u"Zu dem eingegebenen Ausdruck konnte kein Eintrag gefunden werden."_s}}) {
        SearchBench bench(language);
        bench.addEntry(u"Haus"_s, u"house"_s);
        bench.listEntries();
        bench.beginTyping();
        bench.type(u"x*"_s);
        bench.context.prompts.expect({.text = text});
        bench.button("Suche").click();
    }
}

TEST(Search, AnEmptyAnswerFitsEveryEntry) {
    SearchBench bench;
    bench.addEntry(u"Haus"_s, u"house"_s);
    bench.addEntry(u"Baum"_s, u"tree"_s);
    bench.listEntries();
    bench.beginTyping();
    bench.type(QString());
    bench.willShow({{u"house"_s, u"Haus"_s, u"80"_s}, {u"tree"_s, u"Baum"_s, u"80"_s}});
    bench.search();
}

TEST(Search, AClosedFileIsReported) {
    SearchBench bench;
    bench.addEntry(u"Haus"_s, u"house"_s);
    bench.listEntries();
    bench.beginTyping();
    bench.type(u"x"_s);
    bench.context.state.DBHandler.Database.Close();
    bench.context.prompts.expectErrorContaining(u""_s);
    bench.button("Suche").click();
    EXPECT_FALSE(bench.context.progress.isVisible());
}

TEST(Search, ShowsItsProgress) {
    for (const auto& [language, title] : {std::pair{u"En"_s, u"Searching in database"_s},
                                          std::pair{u"De"_s, u"Datenbank wird durchsucht"_s}}) {
        SearchBench bench(language);
        for (const char16_t* word : {u"house", u"tree", u"dog"})
            bench.addEntry(QString::fromUtf16(word).toUpper(), QString::fromUtf16(word));
        bench.listEntries();
        bench.beginTyping();
        bench.type(u"tre"_s);
        bench.willShow({{u"tree"_s, u"TREE"_s, u"80"_s}});
        bench.search();
        EXPECT_EQ(bench.context.progress.windowTitle(), title);
        EXPECT_EQ(bench.context.progress.minimum(), 0);
        EXPECT_EQ(bench.context.progress.maximum(), 3);
        EXPECT_FALSE(bench.context.progress.isVisible());
    }
}

TEST(Search, TakesEqualCharactersIntoAccountAndTheWholeExpressionAlways) {
    SearchBench bench;
    const SharedState& state = bench.context.state;
    bench.addEntry(u"Frage"_s, u"question"_s);
    bench.addEntry({{state.Lang1MainField, u"gehen"_s},
                    {state.Lang2PrefixField, u"to"_s},
                    {state.Lang2MainField, u"gö"_s}});
    bench.context.state.Exceptions.readExceptions(
        [](int number) { return number == 1 ? u"oö"_s : QString(); });
    bench.listEntries();
    bench.beginTyping();
    bench.trainer.MainOnly = true; // has no say here
    bench.type(u"to go"_s);
    bench.willShow({{u"to gö"_s, u"gehen"_s, u"100"_s}});
    bench.search();
}

TEST(Search, AnEmptyExpressionInTheFirstPlaceCountsAsNoMatch) {
    SearchBench bench;
    bench.addEntry(u"Baum"_s, u"tree"_s);
    bench.addEntry(u"Haus"_s, QString());
    bench.listEntries();
    bench.beginTyping();
    bench.type(QString());
    bench.context.prompts.expect({.text = u"No entry found for expression."});
    bench.search();
}

TEST(Search, EquallyGoodMatchesStayInTheOrderOfTheTable) {
    SearchBench bench;
    for (const char16_t* word : {u"hut 3", u"hut", u"hut 1", u"HUT", u"hut 2"})
        bench.addEntry(QString::fromUtf16(word).toUpper(), QString::fromUtf16(word));
    bench.listEntries();
    bench.beginTyping();
    bench.type(u"hut"_s);
    bench.willShow({{u"hut"_s, u"HUT"_s, u"100"_s},
                    {u"HUT"_s, u"HUT"_s, u"95"_s},
                    {u"hut 3"_s, u"HUT 3"_s, u"80"_s},
                    {u"hut 1"_s, u"HUT 1"_s, u"80"_s},
                    {u"hut 2"_s, u"HUT 2"_s, u"80"_s}});
    bench.search();
}
