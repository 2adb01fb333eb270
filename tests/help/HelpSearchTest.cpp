#include "HelpSearch.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

HelpPage page(const char16_t* name, const char16_t* title, const char16_t* text,
              const char16_t* keywords = u"") {
    HelpPage made;
    made.name = QString::fromUtf16(name);
    made.title = QString::fromUtf16(title);
    made.keywords = QString::fromUtf16(keywords);
    made.sections = {{u"top"_s, made.title, QString::fromUtf16(text)}};
    return made;
}

QStringList found(const QList<HelpPage>& pages, const QString& question) {
    QStringList names;
    const QList<HelpHit> hits = searchHelp(pages, question);
    for (const HelpHit& hit : hits)
        names.append(hit.title);
    return names;
}

const QList<HelpPage>& pages() {
    static const QList<HelpPage> all{
        page(u"a.html", u"Selection", u"Choose what to learn. Wildcards stand for letters."),
        page(u"b.html", u"Wildcards", u"The star stands for any letters."),
        page(u"c.html", u"Größe und Straße", u"Ein Überblick über die Fenster.", u"asterisk"),
    };
    return all;
}

TEST(HelpSearch, ATitleComesBeforeTheText) {
    EXPECT_EQ(found(pages(), u"wildcards"_s), QStringList({u"Wildcards"_s, u"Selection"_s}));
}

TEST(HelpSearch, EveryWordHasToStandOnThePage) {
    EXPECT_EQ(found(pages(), u"letters star"_s), QStringList({u"Wildcards"_s}));
    EXPECT_EQ(found(pages(), u"letters moon"_s), QStringList());
}

TEST(HelpSearch, TheBeginningOfAWordIsEnoughItsMiddleIsNot) {
    EXPECT_EQ(found(pages(), u"wild"_s).size(), 2);
    EXPECT_EQ(found(pages(), u"cards"_s).size(), 0);
}

TEST(HelpSearch, CaseAccentsAndSharpSDoNotMatter) {
    for (const char16_t* question : {u"STRASSE", u"straße", u"grosse", u"uberblick", u"ÜBERBLICK"})
        EXPECT_EQ(found(pages(), QString::fromUtf16(question)).size(), 1)
            << QString::fromUtf16(question).toStdString();
}

TEST(HelpSearch, KeywordsFindAPageThatDoesNotSayThem) {
    const QList<HelpHit> hits = searchHelp(pages(), u"asterisk"_s);
    ASSERT_EQ(hits.size(), 1);
    EXPECT_EQ(hits[0].page, u"c.html"_s);
    EXPECT_EQ(hits[0].excerpt, u"Ein Überblick über die Fenster."_s);
}

TEST(HelpSearch, NothingButSignsFindsNothing) {
    EXPECT_EQ(found(pages(), QString()).size(), 0);
    EXPECT_EQ(found(pages(), u" *.? "_s).size(), 0);
}

TEST(HelpSearch, AHitLeadsToTheSectionThatHoldsMost) {
    HelpPage two = page(u"d.html", u"Trainer", u"It asks for answers.");
    two.sections.append({u"loop"_s, u"The loop"_s, u"Wrong answers come back at once, again and again."_s});
    const QList<HelpHit> hits = searchHelp({two}, u"answers wrong"_s);
    ASSERT_EQ(hits.size(), 1);
    EXPECT_EQ(hits[0].page, u"d.html#loop"_s);
    EXPECT_TRUE(hits[0].excerpt.startsWith(u"Wrong answers"_s)) << hits[0].excerpt.toStdString();
}

TEST(HelpSearch, AnExcerptOfALongTextIsCutAtWords) {
    const QString filling = u"word "_s.repeated(60);
    HelpPage longPage = page(u"e.html", u"E", u"");
    longPage.sections[0].text = filling + u"needle "_s + filling;
    const QString excerpt = searchHelp({longPage}, u"needle"_s).first().excerpt;
    EXPECT_TRUE(excerpt.startsWith(u"… word"_s)) << excerpt.toStdString();
    EXPECT_TRUE(excerpt.endsWith(u"word …"_s)) << excerpt.toStdString();
    EXPECT_LT(excerpt.size(), 170);
}

TEST(HelpSearch, PlacesAreThoseOfTheOriginalText) {
    using Places = QList<std::pair<qsizetype, qsizetype>>;
    EXPECT_EQ(findWords(u"Die Straße, strasse"_s, searchWords(u"strasse"_s)), Places({{4, 6}, {12, 7}}));
    EXPECT_EQ(findWords(u"über ubers"_s, searchWords(u"ÜBER"_s)), Places({{0, 4}, {5, 4}}));
}

} // namespace
} // namespace lingomat
