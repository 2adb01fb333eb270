// Texts with characters that mean something to a query, in every box and list of the selection form.

#include "FaultSupport.h"

#include "FlexGrid.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabBar>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

const QStringList& nastyTexts() {
    static const QStringList all{u"'"_s,
                                 u"l'eau"_s,
                                 u"''"_s,
                                 u"\""_s,
                                 u"["_s,
                                 u"]"_s,
                                 u"[a"_s,
                                 u"[!a-"_s,
                                 u"[]"_s,
                                 u"*"_s,
                                 u"?"_s,
                                 u"#"_s,
                                 u"%"_s,
                                 u"_"_s,
                                 u";"_s,
                                 u"--"_s,
                                 u"/*"_s,
                                 u"\\"_s,
                                 u")"_s,
                                 u"("_s,
                                 u"x' OR '1'='1"_s,
                                 u"'; DROP TABLE Vokabular; --"_s,
                                 QString(QChar(u'\0')),
                                 u"a"_s + QChar(u'\0') + u"b"_s,
                                 u"\U0001F600"_s,
                                 QString(QChar(0xD83D)),
                                 u"\u0301"_s,
                                 u"\t"_s,
                                 u"@"_s,
                                 u"=1"_s,
                                 QString(5000, u'*'),
                                 QString(5000, u'['),
                                 QString(2000, u'\'')};
    return all;
}

constexpr const char* Boxes[] = {"Lang1Prefix",  "Lang1Main", "Lang1Suffix", "Lang1Kommentar",
                                 "Lang2Prefix",  "Lang2Main", "Lang2Suffix", "Lang2Kommentar",
                                 "Beispielsatz", "Zusatzinfo"};

class FilterTexts : public testing::Test {
protected:
    explicit FilterTexts(const QList<TestEntry>& entries = someEntries()) {
        writeDatabase(file, {.entries = entries});
        faulty.open(file);
        faulty.program().click("Command1");
    }
    Form2& form() { return faulty.program().app().form2(); }
    void run() { child<QPushButton>(form(), "Command4").click(); }
    void clearAll() { child<QPushButton>(form(), "Command2").click(); }
    int hits() { return faulty.program().app().liste().countRows(); }

    FaultyFile faulty{Way::ByCommand};
    const QString file = faulty.path(u"texts.lmt"_s);
};

TEST_F(FilterTexts, NoTextInABoxDoesHarm) {
    const QByteArray before = readFile(file);
    for (const char* box : Boxes) {
        for (const QString& text : nastyTexts()) {
            SCOPED_TRACE(std::string(box) + ": " + text.left(20).toStdString());
            child<QLineEdit>(form(), box).setText(text);
            run();
            ASSERT_TRUE(form().isVisible());
            child<QLineEdit>(form(), box).clear();
        }
    }
    clearAll();
    run();
    EXPECT_EQ(hits(), 4) << "the program works as before";
    EXPECT_EQ(readFile(file), before);
    EXPECT_EQ(readColumn(file, u"Vokabular"_s, u"ID"_s).size(), 4);
}

TEST_F(FilterTexts, NoTextInADateOrScoreBoxDoesHarm) {
    const QByteArray before = readFile(file);
    for (const char* box : {"MinScore", "MaxScore", "txtEingabeVonTag", "txtEingabeVonMonat",
                            "txtEingabeVonJahr", "txtEingabeBisTag", "txtEingabeBisMonat",
                            "txtEingabeBisJahr", "txtAenderungVonTag", "txtAenderungBisJahr"}) {
        for (const QString& text : nastyTexts()) {
            SCOPED_TRACE(std::string(box) + ": " + text.left(20).toStdString());
            child<QLineEdit>(form(), box).setText(text);
            run();
            ASSERT_TRUE(form().isVisible());
        }
        clearAll();
    }
    run();
    EXPECT_EQ(hits(), 4);
    EXPECT_EQ(readFile(file), before);
}

/// Entries whose list values are the nasty texts themselves, as far as they fit their fields.
QList<TestEntry> nastyEntries() {
    QList<TestEntry> entries = someEntries();
    for (const QString& text : nastyTexts()) {
        if (text.size() <= 50 && !text.contains(u';'))
            entries.append({u"Wort"_s, u"word"_s, text, text, {text}});
    }
    return entries;
}

class FilterLists : public FilterTexts {
protected:
    FilterLists() : FilterTexts(nastyEntries()) {}
};

TEST_F(FilterLists, NoValueInAListDoesHarm) {
    const QByteArray before = readFile(file);
    const auto all = readColumn(file, u"Vokabular"_s, u"ID"_s).size();
    struct Pair {
        int tab;
        const char* left;
    };
    for (const Pair& pair :
         {Pair{0, "lstQuelleLinks"}, Pair{1, "lstBereichLinks"}, Pair{2, "lstWortartLinks"}}) {
        child<QTabBar>(form(), "tbsOptions").setCurrentIndex(pair.tab);
        auto& left = child<QListWidget>(form(), pair.left);
        const int count = left.count();
        ASSERT_GT(count, 10) << pair.left;
        for (int row = 0; row < count; ++row) {
            SCOPED_TRACE(std::string(pair.left) + ": " + left.item(row)->text().toStdString());
            left.setCurrentRow(row);
            child<QPushButton>(form(), "cmdAdd").click();
            run();
            ASSERT_TRUE(form().isVisible());
            child<QPushButton>(form(), "cmdRemoveAll").click();
            ASSERT_EQ(left.count(), count);
        }
    }
    clearAll();
    run();
    EXPECT_EQ(hits(), all);
    EXPECT_EQ(readFile(file), before);
}

} // namespace
} // namespace lingomat
