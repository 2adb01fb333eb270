// Areas and attributes of an entry: several values, packed into one text.

#include "SessionTest.h"

using namespace Qt::StringLiterals;

namespace lingomat {

class Arrays : public SessionTest {
protected:
    Arrays() {
        addEntry(u"erster"_s);
        addEntry(u"zweiter"_s);
    }

    void goTo(int entry) { handler.RecordsetVokabular.FindFirst(u"ID = %1"_s.arg(entry)); }

    bool store(const QString& packed) {
        return handler.SchreibeArrayToDB(packed, handler.RecordsetBereiche, handler.RecordsetBereiche_Z,
                                         handler.RecordsetVokabular);
    }
    /// The areas of an entry, in the order in which they were linked.
    [[nodiscard]] QString areas(int entry) const {
        return stored(u"SELECT Bereich_Text FROM Bereiche_Zwischen z JOIN Bereiche b ON b.ID = z.ID WHERE "
                      u"IDV = %1 "
                      "ORDER BY z._row"_s.arg(entry))
            .join(u';');
    }
    [[nodiscard]] QString allAreas() const {
        return stored(u"SELECT Bereich_Text FROM Bereiche ORDER BY ID"_s).join(u';');
    }
};

TEST_F(Arrays, EachItemBecomesAListRowAndALink) {
    EXPECT_TRUE(store(u"Tiere;Küche;"_s));
    EXPECT_EQ(areas(2), u"Tiere;Küche");
    EXPECT_EQ(areas(1), QString()) << "the current entry alone";
    EXPECT_EQ(allAreas(), u"Tiere;Küche");
    EXPECT_TRUE(reports.isEmpty());
}

TEST_F(Arrays, EntriesShareListRows) {
    store(u"Tiere;Küche;"_s);
    goTo(1);
    store(u"küche;Haus;"_s);
    EXPECT_EQ(areas(1), u"Küche;Haus") << "found without regard to case";
    EXPECT_EQ(allAreas(), u"Tiere;Küche;Haus");
}

TEST_F(Arrays, StoringReplacesWhatWasThere) {
    store(u"Tiere;Küche;"_s);
    goTo(1);
    store(u"Tiere;"_s);
    goTo(2);
    store(u"Haus;"_s);
    EXPECT_EQ(areas(2), u"Haus");
    EXPECT_EQ(areas(1), u"Tiere");
    EXPECT_EQ(allAreas(), u"Tiere;Küche;Haus") << "unused ones stay until the clean-up";
}

TEST_F(Arrays, TheEmptyTextRemovesAllLinksAndAddsNone) {
    store(u"Tiere;Küche;"_s);
    EXPECT_TRUE(store(QString()));
    EXPECT_EQ(areas(2), QString());
    EXPECT_TRUE(reports.isEmpty());
}

TEST_F(Arrays, WhatNothingClosesIsIgnored) {
    store(u"Verb;Nomen"_s);
    EXPECT_EQ(areas(2), u"Verb");
    EXPECT_EQ(allAreas(), u"Verb");
    store(u"Nomen"_s);
    EXPECT_EQ(areas(2), QString());
}

TEST_F(Arrays, AnItemWithAnApostropheIsAnErrorAndNothingIsUndone) {
    store(u"Tiere;"_s);
    EXPECT_TRUE(store(u"Haus;l'eau;Küche;"_s)) << "always true";
    ASSERT_EQ(reports.size(), 1);
    EXPECT_TRUE(reports.front().contains(u"l'eau"_s));
    EXPECT_EQ(areas(2), u"Haus") << "what was removed stays removed, what was added stays";
}

TEST_F(Arrays, AnEmptyItemIsRefusedByTheListsField) {
    store(u"Tiere;;Küche;"_s);
    EXPECT_EQ(areas(2), u"Tiere");
    ASSERT_EQ(reports.size(), 1);
    EXPECT_TRUE(reports.front().contains(u"zero-length"_s));
    EXPECT_EQ(allAreas(), u"Tiere");
    store(u"Haus;"_s);
    EXPECT_EQ(areas(2), u"Haus") << "the next one works again";
}

TEST_F(Arrays, AnItemBeyondTheFieldIsReported) {
    store(QString(50, u'x') + u';');
    EXPECT_TRUE(reports.isEmpty());
    store(QString(51, u'y') + u';');
    EXPECT_EQ(reports.size(), 1);
    EXPECT_EQ(areas(2), QString());
}

TEST_F(Arrays, WildcardsOfAnItemActAndTheFirstMatchWins) {
    store(u"Tiere;Tierpflege;"_s);
    store(u"Tier*;"_s);
    EXPECT_EQ(areas(2), u"Tiere");
    store(u"#?;"_s);
    EXPECT_EQ(areas(2), u"#?") << "which no row matched: a new one";
    store(u"[k;"_s);
    ASSERT_EQ(reports.size(), 1);
    EXPECT_EQ(reports.front(), u"Invalid pattern string");
}

TEST_F(Arrays, ItemsAreKeptAsTheyStand) {
    store(u" Tiere ;100%_x;a\"b;猫😀;"_s);
    EXPECT_EQ(areas(2), u" Tiere ;100%_x;a\"b;猫😀");
}

TEST_F(Arrays, TheListsRowsAndTheEntryStayCurrent) {
    store(u"Tiere;Küche;"_s);
    EXPECT_EQ(handler.RecordsetVokabular.field(0), dao::Value(2));
    EXPECT_EQ(handler.RecordsetBereiche.field(1).toText(), u"Küche");
    EXPECT_EQ(handler.RecordsetBereiche_Z.field(1), handler.RecordsetBereiche.field(0));
}

TEST_F(Arrays, ServeAttributesAsWell) {
    EXPECT_TRUE(handler.SchreibeArrayToDB(u"feminin;Plural;"_s, handler.RecordsetGrammatikalisch,
                                          handler.RecordsetGrammatikalisch_Z, handler.RecordsetVokabular));
    EXPECT_TRUE(handler.SchreibeArrayToDB(u"Slang;"_s, handler.RecordsetFunktional,
                                          handler.RecordsetFunktional_Z, handler.RecordsetVokabular));
    EXPECT_EQ(stored(u"SELECT IDV, Attribut_Text FROM GrammatikalischeAttribute_Zwischen JOIN "
                     u"GrammatikalischeAttribute "
                     "ON IDA = ID"_s),
              (QStringList{u"2 | feminin"_s, u"2 | Plural"_s}));
    EXPECT_EQ(
        stored(
            u"SELECT IDV, Attribut_Text FROM FunktionaleAttribute_Zwischen JOIN FunktionaleAttribute ON IDA = ID"_s),
        QStringList{u"2 | Slang"_s});
    EXPECT_EQ(allAreas(), QString());
}

TEST_F(Arrays, OfAnEntryWhoseNumberBeginsAnothersAreToldApart) {
    for (int entry = 3; entry <= 22; ++entry) {
        ASSERT_EQ(addEntry(u"x"_s), entry);
        store(u"Tiere;"_s);
    }
    goTo(2);
    store(u"Haus;"_s);
    goTo(2);
    store(QString());
    EXPECT_EQ(stored(u"SELECT count(*) FROM Bereiche_Zwischen"_s), QStringList{u"20"_s});
}

TEST_F(Arrays, WithoutACurrentEntryAreReported) {
    goTo(2);
    handler.RecordsetVokabular.Delete();
    EXPECT_TRUE(store(u"Tiere;"_s));
    EXPECT_EQ(reports, QStringList{u"Record is deleted."_s});
}

} // namespace lingomat
