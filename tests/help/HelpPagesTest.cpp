// The help as it is delivered: nothing in it leads nowhere, and both languages tell the same.

#include "HelpBook.h"
#include "HelpSearch.h"
#include "HelpTopics.h"

#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QImageReader>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

constexpr qint64 LargestPictures = 1'500'000; ///< bytes, both languages together

QString folder(const QString& language) {
    return QStringLiteral(LINGOMAT_HELP "/") + language;
}

QStringList filesIn(const QString& path, const QString& pattern) {
    return QDir(path).entryList({pattern}, QDir::Files, QDir::Name);
}

QStringList anchorsOf(const HelpPage& page) {
    QStringList anchors;
    for (const HelpSection& section : page.sections) {
        if (!section.anchor.isEmpty())
            anchors.append(section.anchor);
    }
    return anchors;
}

class HelpPages : public testing::TestWithParam<QString> {
protected:
    HelpPages() : book(folder(GetParam())) {}

    /// Whether there is such a page, with that anchor if one is named.
    bool leadsSomewhere(const QString& target) const {
        const std::optional<HelpPage> page = book.page(target);
        const QString anchor = anchorOf(target);
        return page && (anchor.isEmpty() || anchorsOf(*page).contains(anchor));
    }

    HelpBook book;
};
INSTANTIATE_TEST_SUITE_P(Languages, HelpPages, testing::Values(u"en"_s, u"de"_s),
                         [](const auto& parameter) { return parameter.param.toStdString(); });

TEST_P(HelpPages, EveryPageIsWellFormedAndHasATitleAndAHeading) {
    for (const QString& name : filesIn(folder(GetParam()), u"*.html"_s)) {
        const std::optional<HelpPage> page = book.page(name);
        ASSERT_TRUE(page) << name.toStdString();
        EXPECT_FALSE(page->title.isEmpty()) << name.toStdString();
        ASSERT_GE(page->sections.size(), 2) << name.toStdString();
        EXPECT_FALSE(page->keywords.isEmpty()) << name.toStdString();
    }
}

TEST_P(HelpPages, NoLinkIsDangling) {
    for (const QString& name : filesIn(folder(GetParam()), u"*.html"_s)) {
        const std::optional<HelpPage> page = book.page(name);
        ASSERT_TRUE(page) << name.toStdString();
        for (const QString& link : page->links) {
            const QString target = link.startsWith(u'#') ? name + link : link;
            EXPECT_TRUE(leadsSomewhere(target)) << name.toStdString() << ": " << link.toStdString();
        }
    }
}

TEST_P(HelpPages, EveryPictureIsThereAndEveryFileIsShown) {
    QStringList shown;
    for (const QString& name : filesIn(folder(GetParam()), u"*.html"_s)) {
        const std::optional<HelpPage> page = book.page(name);
        ASSERT_TRUE(page) << name.toStdString();
        for (const QString& picture : page->pictures) {
            QImageReader reader(folder(GetParam()) + u'/' + picture);
            EXPECT_FALSE(reader.read().isNull()) << name.toStdString() << ": " << picture.toStdString();
            shown.append(picture.section(u'/', -1));
        }
    }
    for (const QString& file : filesIn(folder(GetParam()) + u"/pictures"_s, u"*"_s))
        EXPECT_TRUE(shown.contains(file)) << file.toStdString();
}

TEST_P(HelpPages, EveryPageStandsInTheContents) {
    QStringList listed{HelpBook::contentsPage()};
    const QList<HelpPage> pages = book.pages();
    for (const HelpPage& page : pages)
        listed.append(page.name);
    listed.sort();
    EXPECT_EQ(listed, filesIn(folder(GetParam()), u"*.html"_s));
}

TEST_P(HelpPages, EveryWindowAndControlFindsItsPlace) {
    for (const QString& target : allHelpTargets())
        EXPECT_TRUE(leadsSomewhere(target)) << target.toStdString();
}

TEST_P(HelpPages, TheContentsNameEachPageByItsTitle) {
    const auto check = [this](const auto& self, const QList<HelpEntry>& entries) -> void {
        for (const HelpEntry& entry : entries) {
            if (anchorOf(entry.page).isEmpty()) {
                const std::optional<HelpPage> page = book.page(entry.page);
                ASSERT_TRUE(page) << entry.page.toStdString();
                EXPECT_EQ(page->title, entry.title) << entry.page.toStdString();
            }
            self(self, entry.children);
        }
    };
    check(check, book.contents());
}

TEST_P(HelpPages, ASearchIsQuick) {
    QElapsedTimer timer;
    timer.start();
    const QList<HelpPage> pages = book.pages();
    const qsizetype found = searchHelp(pages, GetParam() == u"en"_s ? u"score"_s : u"fehlerscore"_s).size();
    EXPECT_GE(found, 3);
    EXPECT_LT(timer.elapsed(), 2000) << "reading and searching all pages takes a few hundredths of a second";
}

/// Every text that stands between quotes in the program, without the marks of mnemonics.
QSet<QString> textsOfTheProgram() {
    static const QRegularExpression literal(u"\"((?:[^\"\\\\]|\\\\.)*)\""_s);
    QSet<QString> texts;
    QDirIterator files(QStringLiteral(LINGOMAT_SOURCES), {u"*.cpp"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly))
            continue;
        auto found = literal.globalMatch(QString::fromUtf8(file.readAll()));
        while (found.hasNext())
            texts.insert(found.next().captured(1).remove(u'&').trimmed());
    }
    return texts;
}

// Captions stand in <b>, words that only weigh more in <strong>.
TEST_P(HelpPages, CaptionsAreQuotedAsTheyStandInTheProgram) {
    static const QRegularExpression caption(u"<b>(.*?)</b>"_s,
                                            QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression tag(u"<[^>]*>"_s);
    const QSet<QString> texts = textsOfTheProgram();
    for (const QString& name : filesIn(folder(GetParam()), u"*.html"_s)) {
        QFile file(book.pathOf(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        auto found = caption.globalMatch(QString::fromUtf8(file.readAll()));
        while (found.hasNext()) {
            QString text = found.next().captured(1).remove(tag).simplified();
            text.replace(u"&gt;"_s, u">"_s).replace(u"&lt;"_s, u"<"_s);
            EXPECT_TRUE(texts.contains(text) || texts.contains(text + u':'))
                << name.toStdString() << ": " << text.toStdString();
        }
    }
}

TEST(HelpLanguages, HaveTheSamePagesAnchorsAndPictures) {
    const QStringList pages = filesIn(folder(u"en"_s), u"*.html"_s);
    EXPECT_EQ(pages, filesIn(folder(u"de"_s), u"*.html"_s));
    EXPECT_EQ(filesIn(folder(u"en/pictures"_s), u"*"_s), filesIn(folder(u"de/pictures"_s), u"*"_s));
    for (const QString& name : pages) {
        const std::optional<HelpPage> english = HelpBook(folder(u"en"_s)).page(name);
        const std::optional<HelpPage> german = HelpBook(folder(u"de"_s)).page(name);
        ASSERT_TRUE(english && german) << name.toStdString();
        EXPECT_EQ(anchorsOf(*english), anchorsOf(*german)) << name.toStdString();
        EXPECT_EQ(english->pictures, german->pictures) << name.toStdString();
        EXPECT_EQ(english->sections.size(), german->sections.size()) << name.toStdString();
    }
}

TEST(HelpLanguages, PicturesStaySmall) {
    qint64 bytes = 0;
    QDirIterator pictures(QStringLiteral(LINGOMAT_HELP), {u"*.png"_s}, QDir::Files,
                          QDirIterator::Subdirectories);
    while (pictures.hasNext()) {
        pictures.next();
        bytes += pictures.fileInfo().size();
    }
    EXPECT_LE(bytes, LargestPictures);
}

} // namespace
} // namespace lingomat
