#include "SampleReader.h"
#include "QtPrinters.h"
#include "SampleError.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

const QString EntryHeader =
    u"key\tpart of speech\tL1 prefix\tL1 main\tL1 suffix\tL1 comment\tL2 prefix\tL2 main\t"
    "L2 suffix\tL2 comment\tareas\tgrammatical\tfunctional\tsource\tsample phrase\t"
    "additional info\tentered\tchanged\tscore\n"_s;
const QString SynonymHeader = u"key\tlanguage\tprefix\tmain\tsuffix\tcomment\n"_s;
const QString ReferenceHeader = u"from\tto\ttype\n"_s;

/// A good row: a dog with everything.
QStringList dog() {
    return {u"hund"_s,          u"noun"_s,       u"der"_s,      u"Hund"_s,     u"-e"_s,
            u"Tier"_s,          u""_s,           u"dog"_s,      u""_s,         u"pet"_s,
            u"Home;Animals;"_s, u"masculine;"_s, u"formal;"_s,  u"Lesson 1"_s, u"Der Hund bellt."_s,
            u"An info."_s,      u"20200102"_s,   u"20210304"_s, u"4"_s};
}

QStringList cat() {
    QStringList row = dog();
    row[0] = u"katze"_s;
    row[3] = u"Katze"_s;
    row[7] = u"cat"_s;
    return row;
}

/// The four files of one pair of languages in a folder of the test's own.
class DataFolder {
public:
    DataFolder() {
        write(u"phrases"_s, u"ja\tyes\nnein\tno\n"_s);
        writeEntries({dog(), cat()});
        write(u"synonyms"_s, SynonymHeader + u"hund\t1\tder\tKöter\t\tabwertend\n"_s);
        write(u"references"_s,
              ReferenceHeader + u"hund\tkatze\tSee also\nphrase-1\tphrase-2\tOpposite of\n"_s);
    }

    void write(const QString& kind, const QString& text) { writeBytes(kind, text.toUtf8()); }

    void writeBytes(const QString& kind, const QByteArray& bytes) {
        QFile file(m_folder.filePath(kind + u"-a-b.tsv"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    void writeEntries(const QList<QStringList>& rows) {
        QString text = EntryHeader;
        for (const QStringList& row : rows)
            text += row.join(u'\t') + u'\n';
        write(u"entries"_s, text);
    }

    void remove(const QString& kind) { QFile::remove(m_folder.filePath(kind + u"-a-b.tsv"_s)); }

    [[nodiscard]] SampleData read() const { return readSampleData(m_folder.path(), u"a-b"_s); }

    /// What reading complains about; empty when it does not.
    [[nodiscard]] QString complaint() const {
        try {
            (void)read();
            return {};
        } catch (const SampleError& error) {
            return error.description();
        }
    }

private:
    QTemporaryDir m_folder;
};

struct BadCell {
    const char* name;
    int column;
    QString text;
    QString complaint; ///< behind file and line
};

void PrintTo(const BadCell& cell, std::ostream* out) {
    *out << cell.name;
}

class BadCells : public testing::TestWithParam<BadCell> {};

} // namespace

TEST(SampleReader, ReadsEveryColumnOfEveryFile) {
    const SampleData data = DataFolder().read();

    ASSERT_EQ(data.phrases.size(), 2);
    EXPECT_EQ(data.phrases[1].first, u"nein"_s);
    EXPECT_EQ(data.phrases[1].second, u"no"_s);
    ASSERT_EQ(data.entries.size(), 2);
    const SampleEntry& entry = data.entries[0];
    EXPECT_EQ(entry.key, u"hund"_s);
    EXPECT_EQ(entry.wortart, u"noun"_s);
    EXPECT_EQ(entry.first, (ExpressionParts{u"der"_s, u"Hund"_s, u"-e"_s, u"Tier"_s}));
    EXPECT_EQ(entry.second, (ExpressionParts{u""_s, u"dog"_s, u""_s, u"pet"_s}));
    EXPECT_EQ(entry.areas, u"Home;Animals;"_s);
    EXPECT_EQ(entry.grammatical, u"masculine;"_s);
    EXPECT_EQ(entry.functional, u"formal;"_s);
    EXPECT_EQ(entry.source, u"Lesson 1"_s);
    EXPECT_EQ(entry.samplePhrase, u"Der Hund bellt."_s);
    EXPECT_EQ(entry.additionalInfo, u"An info."_s);
    EXPECT_EQ(entry.entered, u"20200102"_s);
    EXPECT_EQ(entry.changed, u"20210304"_s);
    EXPECT_EQ(entry.score, 4);
    ASSERT_EQ(data.synonyms.size(), 1);
    EXPECT_EQ(data.synonyms[0].key, u"hund"_s);
    EXPECT_EQ(data.synonyms[0].language, 1);
    EXPECT_EQ(data.synonyms[0].parts, (ExpressionParts{u"der"_s, u"Köter"_s, u""_s, u"abwertend"_s}));
    ASSERT_EQ(data.references.size(), 2);
    EXPECT_EQ(data.references[0].from, u"hund"_s);
    EXPECT_EQ(data.references[0].to, u"katze"_s);
    EXPECT_EQ(data.references[0].type, u"See also"_s);
}

TEST_P(BadCells, AreRefusedWithFileAndLine) {
    QStringList row = cat();
    row[GetParam().column] = GetParam().text;
    DataFolder folder;
    folder.writeEntries({dog(), row});

    EXPECT_EQ(folder.complaint(), u"entries-a-b.tsv, line 3: "_s + GetParam().complaint);
}

INSTANTIATE_TEST_SUITE_P(
    SampleReader, BadCells,
    testing::Values(BadCell{"KeyTwice", 0, u"hund"_s, u"the key 'hund' stands here a second time"_s},
                    BadCell{"KeyOfAPhrase", 0, u"phrase-2"_s,
                            u"the key 'phrase-2' stands here a second time"_s},
                    BadCell{"KeyWithUmlaut", 0, u"käse"_s, u"'käse' is no key"_s},
                    BadCell{"NoPartOfSpeech", 1, u""_s, u"column 2 is empty"_s},
                    BadCell{"NoMainPart", 3, u""_s, u"column 4 is empty"_s},
                    BadCell{"LongMainPart", 7, QString(101, u'x'),
                            u"'"_s + QString(101, u'x') + u"' is longer than 100 characters"_s},
                    BadCell{"LongSource", 13, QString(51, u'x'),
                            u"'"_s + QString(51, u'x') + u"' is longer than 50 characters"_s},
                    BadCell{"LongArea", 10, QString(51, u'x') + u';',
                            u"'"_s + QString(51, u'x') + u"' is longer than 50 characters"_s},
                    BadCell{"OpenList", 10, u"Home;Animals"_s, u"'Home;Animals' does not end in ';'"_s},
                    BadCell{"EmptyItem", 10, u"Home;;"_s, u"'' is no item of a list"_s},
                    BadCell{"AreaWithApostrophe", 10, u"Women's;"_s, u"'Women's' is no item of a list"_s},
                    BadCell{"AttributeWithWildcard", 11, u"what?;"_s, u"'what?' is no item of a list"_s},
                    BadCell{"AttributeWithAt", 12, u"a@b;"_s, u"'a@b' is no item of a list"_s},
                    BadCell{"ItemTwiceButForCase", 10, u"Home;home;"_s, u"'home' stands twice in a list"_s},
                    BadCell{"DayThatIsNone", 16, u"20200230"_s, u"'20200230' is no date"_s},
                    BadCell{"DisplayDate", 17, u"04.03.21"_s, u"'04.03.21' is no date"_s},
                    BadCell{"ChangedBeforeEntered", 17, u"20200101"_s, u"changed before it was entered"_s},
                    BadCell{"ScoreTooLow", 18, u"0"_s, u"'0' is no number from 1 to 6"_s},
                    BadCell{"ScoreTooHigh", 18, u"7"_s, u"'7' is no number from 1 to 6"_s},
                    BadCell{"ScoreNoNumber", 18, u"x"_s, u"'x' is no number from 1 to 6"_s},
                    BadCell{"BlankAtTheEnd", 7, u"cat "_s, u"blanks at the ends of 'cat '"_s},
                    BadCell{"CarriageReturn", 7, u"c\rat"_s, u"'c\rat' holds a control character"_s},
                    BadCell{"Decomposed", 3, u"Ka\u0308se"_s, u"'Ka\u0308se' is not in composed form"_s},
                    BadCell{"ExtraTab", 7, u"cat\tkitten"_s, u"20 cells instead of 19"_s}),
    [](const auto& instance) { return instance.param.name; });

TEST(SampleReader, MissingFileIsNamed) {
    DataFolder folder;
    folder.remove(u"synonyms"_s);
    EXPECT_TRUE(folder.complaint().contains(u"synonyms-a-b.tsv"_s)) << folder.complaint().toStdString();
}

TEST(SampleReader, HeaderIsChecked) {
    DataFolder folder;
    folder.write(u"references"_s, u"from\tto\tkind\n"_s);
    EXPECT_EQ(folder.complaint(), u"references-a-b.tsv, line 1: column 3 is not 'type'"_s);
}

TEST(SampleReader, EmptyFileLacksItsHeader) {
    DataFolder folder;
    folder.write(u"references"_s, u""_s);
    EXPECT_EQ(folder.complaint(), u"references-a-b.tsv: the file is empty"_s);
}

TEST(SampleReader, TextThatIsNotUtf8IsRefused) {
    DataFolder folder;
    folder.writeBytes(u"phrases"_s, "tsch\xfc\xdf\tbye\n");
    EXPECT_EQ(folder.complaint(), u"phrases-a-b.tsv: the file is not UTF-8"_s);
}

TEST(SampleReader, PhraseNeedsBothHalves) {
    DataFolder folder;
    folder.write(u"phrases"_s, u"ja\tyes\nnein\t\n"_s);
    EXPECT_EQ(folder.complaint(), u"phrases-a-b.tsv, line 2: column 2 is empty"_s);
}

TEST(SampleReader, BlankLineIsNoPhrase) {
    DataFolder folder;
    folder.write(u"phrases"_s, u"ja\tyes\n\nnein\tno\n"_s);
    EXPECT_EQ(folder.complaint(), u"phrases-a-b.tsv, line 2: 1 cells instead of 2"_s);
}

TEST(SampleReader, SynonymNeedsAnEntryAndALanguage) {
    DataFolder folder;
    folder.write(u"synonyms"_s, SynonymHeader + u"kuh\t1\tdie\tKuh\t\t\n"_s);
    EXPECT_EQ(folder.complaint(), u"synonyms-a-b.tsv, line 2: no entry has the key 'kuh'"_s);
    folder.write(u"synonyms"_s, SynonymHeader + u"hund\t3\tder\tKöter\t\t\n"_s);
    EXPECT_EQ(folder.complaint(), u"synonyms-a-b.tsv, line 2: '3' is no number from 1 to 2"_s);
}

TEST(SampleReader, ReferenceNeedsTwoEntriesAndAType) {
    DataFolder folder;
    folder.write(u"references"_s, ReferenceHeader + u"hund\tphrase-3\tSee also\n"_s);
    EXPECT_EQ(folder.complaint(), u"references-a-b.tsv, line 2: no entry has the key 'phrase-3'"_s);
    folder.write(u"references"_s, ReferenceHeader + u"hund\thund\tSee also\n"_s);
    EXPECT_EQ(folder.complaint(), u"references-a-b.tsv, line 2: 'hund' refers to itself"_s);
    folder.write(u"references"_s, ReferenceHeader + u"hund\tkatze\t\n"_s);
    EXPECT_EQ(folder.complaint(), u"references-a-b.tsv, line 2: column 3 is empty"_s);
}

TEST(SampleReader, ReferenceCountsOnceInEitherDirection) {
    DataFolder folder;
    folder.write(u"references"_s, ReferenceHeader + u"hund\tkatze\tSee also\nkatze\thund\tSee also\n"_s);
    EXPECT_EQ(folder.complaint(), u"references-a-b.tsv, line 3: the reference stands here a second time"_s);
    folder.write(u"references"_s, ReferenceHeader + u"hund\tkatze\tSee also\nkatze\thund\tOpposite of\n"_s);
    EXPECT_EQ(folder.complaint(), QString());
}

} // namespace lingomat
