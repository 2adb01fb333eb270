#include "ListBench.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

QStringList sorted(QStringList values) {
    values.sort();
    return values;
}

QStringList valuesOf(ListBench& bench, const char16_t* kind) {
    return sorted(bench.context.values.values(QString::fromUtf16(kind)));
}

} // namespace

TEST(GetProperties, DoesNothingWithoutADatabase) {
    ListBench bench;
    bench.context.values.AddToComboBoxes(u"old"_s, u"Quelle"_s);
    bench.list.GetProperties();
    EXPECT_EQ(valuesOf(bench, u"Quelle"), QStringList{u"old"_s});
    EXPECT_EQ(valuesOf(bench, u"Wortart"), QStringList{});
}

TEST(GetProperties, AnEmptyDatabaseHasTheStandardValues) {
    ListBench bench;
    bench.openDatabase();
    bench.list.GetProperties();
    EXPECT_EQ(valuesOf(bench, u"Wortart"), sorted({u"noun"_s, u"adjective"_s, u"verb"_s}));
    EXPECT_EQ(valuesOf(bench, u"Grammatikalisch"),
              sorted({u"masculine"_s, u"feminine"_s, u"neuter"_s, u"singular"_s, u"plural"_s}));
    EXPECT_EQ(valuesOf(bench, u"Funktionales"), sorted({u"colloquial"_s, u"formal"_s, u"vulgar"_s}));
    EXPECT_EQ(valuesOf(bench, u"Bereich"), QStringList{});
    EXPECT_EQ(valuesOf(bench, u"Quelle"), QStringList{});
}

TEST(GetProperties, StandardValuesAreGermanInGerman) {
    ListBench bench(u"De"_s);
    bench.openDatabase();
    bench.list.GetProperties();
    EXPECT_EQ(valuesOf(bench, u"Wortart"), sorted({u"Substantiv"_s, u"Adjektiv"_s, u"Verb"_s}));
    EXPECT_EQ(valuesOf(bench, u"Grammatikalisch"),
              sorted({u"männlich"_s, u"weiblich"_s, u"sächlich"_s, u"Singular"_s, u"Plural"_s}));
    EXPECT_EQ(valuesOf(bench, u"Funktionales"), sorted({u"Umgangssprache"_s, u"formell"_s, u"vulgär"_s}));
}

TEST(GetProperties, CollectsWhatTheTablesHold) {
    ListBench bench;
    bench.openDatabase();
    CDBHandler& session = bench.context.state.DBHandler;
    bench.addEntry({{u"Quelle"_s, u"Book"_s}, {u"Wortart"_s, u"noun"_s}});
    bench.addEntry({{u"Quelle"_s, u"Radio"_s}, {u"Wortart"_s, u"adverb"_s}});
    bench.addEntry({{u"Quelle"_s, u" Book "_s}, {u"Wortart"_s, QString()}});
    bench.addEntry({});
    bench.addRow(session.RecordsetGrammatikalisch, {{u"Attribut_Text"_s, u"dual"_s}});
    bench.addRow(session.RecordsetFunktional, {{u"Attribut_Text"_s, u"archaic"_s}});
    bench.addRow(session.RecordsetBereiche, {{u"Bereich_Text"_s, u"Animals"_s}});
    bench.addRow(session.RecordsetBereiche, {{u"Bereich_Text"_s, u"Food"_s}});

    bench.list.GetProperties();
    EXPECT_EQ(valuesOf(bench, u"Quelle"), sorted({u"Book"_s, u"Radio"_s}));
    EXPECT_EQ(valuesOf(bench, u"Wortart"), sorted({u"noun"_s, u"adjective"_s, u"verb"_s, u"adverb"_s}));
    EXPECT_EQ(valuesOf(bench, u"Bereich"), sorted({u"Animals"_s, u"Food"_s}));
    EXPECT_TRUE(valuesOf(bench, u"Grammatikalisch").contains(u"dual"_s));
    EXPECT_TRUE(valuesOf(bench, u"Funktionales").contains(u"archaic"_s));
    EXPECT_FALSE(valuesOf(bench, u"Funktionales").contains(u"dual"_s));
}

TEST(GetProperties, ForgetsTheValuesOfTheFileBefore) {
    ListBench bench;
    bench.openDatabase();
    for (const QString& kind :
         {u"Wortart"_s, u"Grammatikalisch"_s, u"Funktionales"_s, u"Bereich"_s, u"Quelle"_s})
        bench.context.values.AddToComboBoxes(u"from before"_s, kind);
    bench.list.GetProperties();
    for (const char16_t* kind : {u"Wortart", u"Grammatikalisch", u"Funktionales", u"Bereich", u"Quelle"})
        EXPECT_FALSE(valuesOf(bench, kind).contains(u"from before"_s));
}

TEST(GetProperties, LeavesTheSelectionWhereItStands) {
    ListBench bench;
    bench.openDatabase();
    bench.addEntry({{u"Quelle"_s, u"Book"_s}});
    bench.addEntry({{u"Quelle"_s, u"Radio"_s}});
    bench.selection().MoveFirst();
    bench.list.GetProperties();
    EXPECT_EQ(bench.selection().AbsolutePosition(), 0);
}

TEST(GetProperties, ReportsWhatFails) {
    ListBench bench;
    bench.openDatabase();
    bench.context.state.DBHandler.RecordsetBereiche.Close();
    bench.context.prompts.expectErrorContaining(QString());
    bench.list.GetProperties();
}
