// The data that is delivered: whether it is what the sample databases promise.

#include "PackedList.h"
#include "QtPrinters.h"
#include "SampleFiles.h"
#include "SampleReader.h"

#include <QHash>
#include <QSet>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

SampleData readKind(const SampleKind& kind) {
    return readSampleData(QStringLiteral(SAMPLE_DATA_FOLDER), kind.pair);
}

SampleData germanEnglish() {
    return readKind(sampleKinds()[0]);
}

SampleData germanSpanish() {
    return readKind(sampleKinds()[1]);
}

struct MainParts {
    QString first;
    QString second;
};

QHash<QString, MainParts> mainPartsByKey(const SampleData& data) {
    QHash<QString, MainParts> parts;
    for (qsizetype i = 0; i < data.phrases.size(); ++i)
        parts.insert(phraseKey(i + 1), {data.phrases[i].first, data.phrases[i].second});
    for (const SampleEntry& entry : data.entries)
        parts.insert(entry.key, {entry.first.main, entry.second.main});
    return parts;
}

int countOf(const SampleData& data, const QString& german) {
    return static_cast<int>(
        std::count_if(data.phrases.begin(), data.phrases.end(),
                      [&](const SamplePhrase& phrase) { return phrase.first == german; }));
}

QSet<QString> typesOf(const SampleData& data) {
    QSet<QString> types;
    for (const SampleReference& reference : data.references)
        types.insert(reference.type);
    return types;
}

QSet<QString> itemsOf(const SampleData& data, QString SampleEntry::*list) {
    QSet<QString> items;
    for (const SampleEntry& entry : data.entries)
        for (const QString& item : splitPacked(entry.*list))
            items.insert(item);
    return items;
}

bool opensWhatItCloses(const QString& spanish) {
    return spanish.count(u'?') == spanish.count(u'¿') && spanish.count(u'!') == spanish.count(u'¡');
}

class SampleContent : public testing::TestWithParam<int> {
protected:
    const SampleKind& m_kind = sampleKinds()[static_cast<std::size_t>(GetParam())];
    const SampleData m_data = readKind(m_kind);
};

INSTANTIATE_TEST_SUITE_P(Kinds, SampleContent, testing::Values(0, 1), [](const auto& instance) {
    return instance.param == 0 ? "GermanEnglish" : "GermanSpanish";
});

} // namespace

TEST(GermanEnglish, PhraseTableHas179RowsAndBeginsAsItAlwaysDid) {
    const QStringList first{
        u"ja"_s,
        u"nein"_s,
        u"danke"_s,
        u"Vielen Dank"_s,
        u"bitte"_s,
        u"Entschuldigen Sie"_s,
        u"Guten Tag"_s,
        u"Auf Wiedersehen"_s,
        u"tschüß"_s,
        u"Guten Morgen"_s,
        u"Guten Abend"_s,
        u"Gute Nacht"_s,
        u"Ich verstehe nicht"_s,
        u"Sprechen Sie englisch?"_s,
        u"ich"_s,
        u"wir"_s,
        u"du"_s,
        u"Sie"_s,
        u"Wie heißen Sie?"_s,
        u"Sehr erfreut."_s,
        u"Wie geht's?"_s,
        u"gut"_s,
        u"schlecht"_s,
        u"Wo ist die Toilette?"_s,
    };
    const SampleData data = germanEnglish();

    ASSERT_EQ(data.phrases.size(), 179);
    for (qsizetype i = 0; i < first.size(); ++i)
        EXPECT_EQ(data.phrases[i].first, first[i]) << "row " << i + 1;
}

TEST(GermanEnglish, OneGermanWordThatAnswersToTwoEnglishOnesStandsTwice) {
    const SampleData data = germanEnglish();
    EXPECT_EQ(countOf(data, u"bitte"_s), 2);
    EXPECT_EQ(countOf(data, u"Guten Tag"_s), 2);
}

TEST(GermanEnglish, ValuesAreThoseThatTheProgramOffers) {
    const SampleData data = germanEnglish();
    const auto grammatical = itemsOf(data, &SampleEntry::grammatical);
    for (const QString& item : {u"masculine"_s, u"feminine"_s, u"neuter"_s, u"singular"_s, u"plural"_s})
        EXPECT_TRUE(grammatical.contains(item)) << item.toStdString();
    const auto functional = itemsOf(data, &SampleEntry::functional);
    EXPECT_EQ(functional, (QSet<QString>{u"colloquial"_s, u"formal"_s, u"vulgar"_s}));
}

TEST(GermanSpanish, ValuesAreThoseThatTheProgramOffers) {
    const SampleData data = germanSpanish();
    const auto grammatical = itemsOf(data, &SampleEntry::grammatical);
    for (const QString& item : {u"männlich"_s, u"weiblich"_s, u"sächlich"_s, u"Singular"_s, u"Plural"_s})
        EXPECT_TRUE(grammatical.contains(item)) << item.toStdString();
    const auto functional = itemsOf(data, &SampleEntry::functional);
    EXPECT_EQ(functional, (QSet<QString>{u"Umgangssprache"_s, u"formell"_s, u"vulgär"_s}));
}

TEST(GermanEnglish, AllStandardTypesOfReferencesAndSomeOwnOnesOccur) {
    QSet<QString> types = typesOf(germanEnglish());
    for (const QString& type :
         {u"Derived from"_s, u"Opposite of"_s, u"See also"_s, u"Different meaning for expression in German"_s,
          u"Different meaning for expression in English"_s, u"Similar meaning for expression in German"_s,
          u"Similar meaning for expression in English"_s})
        EXPECT_TRUE(types.remove(type)) << type.toStdString();
    EXPECT_GE(types.size(), 2);
}

TEST(GermanSpanish, AllStandardTypesOfReferencesAndSomeOwnOnesOccur) {
    QSet<QString> types = typesOf(germanSpanish());
    for (const QString& type :
         {u"Abgeleitet bzw. Grundform von"_s, u"Gegenteil von"_s, u"Siehe auch"_s,
          u"Andere Bedeutung für Ausdruck auf Deutsch"_s, u"Andere Bedeutung für Ausdruck auf Spanisch"_s,
          u"Ähnliche Bedeutung für Ausdruck auf Deutsch"_s,
          u"Ähnliche Bedeutung für Ausdruck auf Spanisch"_s})
        EXPECT_TRUE(types.remove(type)) << type.toStdString();
    EXPECT_GE(types.size(), 2);
}

TEST(GermanEnglish, GenderAgreesWithTheGermanArticle) {
    const QHash<QString, QString> gender{
        {u"der"_s, u"masculine;"_s}, {u"die"_s, u"feminine;"_s}, {u"das"_s, u"neuter;"_s}};
    for (const SampleEntry& entry : germanEnglish().entries) {
        const bool fits = entry.wortart == u"noun"_s
                              ? entry.grammatical.startsWith(gender.value(entry.first.prefix, u"?"_s)) ||
                                    (entry.first.prefix == u"die"_s && entry.grammatical == u"plural;"_s)
                              : entry.first.prefix.isEmpty() || entry.first.prefix == u"sich"_s;
        EXPECT_TRUE(fits) << entry.key.toStdString();
    }
}

TEST(GermanSpanish, GenderAgreesWithTheSpanishArticle) {
    // Feminine in spite of their article, which avoids the clash of two stressed vowels.
    const QSet<QString> feminineWithEl{u"agua"_s, u"águila"_s, u"hambre"_s};
    const QHash<QString, QString> gender{{u"el"_s, u"männlich;"_s},
                                         {u"la"_s, u"weiblich;"_s},
                                         {u"los"_s, u"männlich;Plural;"_s},
                                         {u"las"_s, u"weiblich;Plural;"_s},
                                         {u"lo"_s, u"sächlich;"_s}};
    for (const SampleEntry& entry : germanSpanish().entries) {
        if (entry.wortart != u"Substantiv"_s)
            continue;
        const QString expected = feminineWithEl.contains(entry.second.main)
                                     ? u"weiblich;"_s
                                     : gender.value(entry.second.prefix, u"an article"_s);
        EXPECT_TRUE(entry.grammatical.startsWith(expected)) << entry.key.toStdString();
    }
}

TEST(GermanEnglish, EnglishVerbsCarryTo) {
    for (const SampleEntry& entry : germanEnglish().entries)
        EXPECT_EQ(entry.wortart == u"verb"_s, entry.second.prefix == u"to"_s) << entry.key.toStdString();
}

TEST(GermanSpanish, QuestionsAndExclamationsOpenWithTheInvertedMark) {
    const SampleData data = germanSpanish();
    for (const SamplePhrase& phrase : data.phrases)
        EXPECT_TRUE(opensWhatItCloses(phrase.second)) << phrase.second.toStdString();
    for (const SampleEntry& entry : data.entries) {
        EXPECT_TRUE(opensWhatItCloses(entry.second.main)) << entry.second.main.toStdString();
        EXPECT_TRUE(opensWhatItCloses(entry.samplePhrase)) << entry.samplePhrase.toStdString();
    }
}

TEST_P(SampleContent, IsLargeEnoughToShowSomething) {
    EXPECT_GE(m_data.phrases.size(), 150);
    EXPECT_GE(m_data.entries.size(), 250);
    EXPECT_GE(m_data.synonyms.size(), 60);
    EXPECT_GE(m_data.references.size(), 80);
    EXPECT_GE(itemsOf(m_data, &SampleEntry::areas).size(), 15);
}

TEST_P(SampleContent, EveryScoreAndSeveralYearsOccur) {
    QSet<int> scores;
    QSet<QString> years;
    for (const SampleEntry& entry : m_data.entries) {
        scores.insert(entry.score);
        years.insert(entry.entered.first(4));
        EXPECT_GE(entry.entered, u"20000101"_s) << entry.key.toStdString();
        EXPECT_LE(entry.changed, u"20251231"_s) << entry.key.toStdString();
    }
    EXPECT_EQ(scores, (QSet<int>{1, 2, 3, 4, 5, 6}));
    EXPECT_GE(years.size(), 4);
}

TEST_P(SampleContent, EveryEntryHasAreaSourceAndSamplePhrase) {
    for (const SampleEntry& entry : m_data.entries) {
        EXPECT_FALSE(entry.areas.isEmpty()) << entry.key.toStdString();
        EXPECT_FALSE(entry.source.isEmpty()) << entry.key.toStdString();
        EXPECT_FALSE(entry.samplePhrase.isEmpty()) << entry.key.toStdString();
    }
}

TEST_P(SampleContent, ValuesOfFiltersHoldNoWildcardAndNoQuote) {
    const auto plain = [](const QString& text) {
        return std::none_of(text.begin(), text.end(),
                            [](QChar each) { return u"@;'*?#[\""_s.contains(each); });
    };
    for (const SampleEntry& entry : m_data.entries) {
        EXPECT_TRUE(plain(entry.wortart)) << entry.wortart.toStdString();
        EXPECT_TRUE(plain(entry.source)) << entry.source.toStdString();
    }
    for (const QString& type : typesOf(m_data))
        EXPECT_TRUE(plain(type)) << type.toStdString();
}

TEST_P(SampleContent, DifferentMeaningsBelongToOneExpression) {
    const auto parts = mainPartsByKey(m_data);
    for (const SampleReference& reference : m_data.references) {
        if (!reference.type.startsWith(u"Different meaning"_s) &&
            !reference.type.startsWith(u"Andere Bedeutung"_s))
            continue;
        const MainParts from = parts.value(reference.from);
        const MainParts to = parts.value(reference.to);
        const bool first = reference.type.endsWith(m_kind.language1);
        EXPECT_EQ((first ? from.first : from.second).toCaseFolded(),
                  (first ? to.first : to.second).toCaseFolded())
            << reference.from.toStdString() << " and " << reference.to.toStdString();
    }
}

TEST_P(SampleContent, SynonymsAreOtherWordsThanTheEntryItself) {
    const auto parts = mainPartsByKey(m_data);
    QSet<QString> seen;
    for (const SampleSynonym& synonym : m_data.synonyms) {
        const MainParts entry = parts.value(synonym.key);
        const QString& word = synonym.parts.main;
        EXPECT_NE(word, synonym.language == 1 ? entry.first : entry.second);
        const QString identity = synonym.key + u'/' + QString::number(synonym.language) + u'/' + word;
        EXPECT_FALSE(seen.contains(identity)) << identity.toStdString();
        seen.insert(identity);
    }
}

TEST_P(SampleContent, NoEntryStandsTwice) {
    QSet<QString> seen;
    for (const SampleEntry& entry : m_data.entries) {
        const QString identity = generiereAusdruck(entry.first) + u" = "_s + generiereAusdruck(entry.second);
        EXPECT_FALSE(seen.contains(identity)) << identity.toStdString();
        seen.insert(identity);
    }
}

} // namespace lingomat
