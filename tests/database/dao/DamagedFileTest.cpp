// Files that lost bytes, gained bytes, or had them changed.

#include "EngineTest.h"
#include "Exercise.h"

#include <random>

using namespace Qt::StringLiterals;

namespace dao {

class DamagedFile : public EngineTest {
protected:
    DamagedFile() {
        QStringList texts;
        for (int i = 0; i < 40; ++i)
            texts.append(u"Wört %1"_s.arg(i));
        addWords(texts);
        for (int i = 1; i < 40; ++i)
            addLink(i, i % 7);
        database.appendProperty(u"Wort"_s,
                                {u"Languages"_s, DataType::Text, u"Lang1=Deutsch@Lang2=Englisch"_s});
        database.appendRelation({u"WortLink"_s, u"Wort"_s, u"Link"_s, u"ID"_s, u"IDV"_s, 2});
        database.Close();
        // Texts beyond the size of their field, for a table of several pages.
        RawFile(file()).run(u"UPDATE Wort SET Main = Main || hex(zeroblob(200))"_s);
        good = bytes(u"test.lmt"_s);
    }

    /// Writes the bytes to a file of their own and uses it; a file that could not be opened, or that was only
    /// read, stays as it was.
    Outcome use(const QByteArray& content) {
        write(u"damaged"_s, content);
        const Outcome outcome = readEverything(path(u"damaged"_s));
        constexpr int ReadVersion = 19; // of the file's header: 2 stands for a write-ahead log
        if (!outcome.opened || content.at(ReadVersion) == good.at(ReadVersion)) {
            EXPECT_TRUE(bytes(u"damaged"_s) == content);
        }
        EXPECT_EQ(files().size(), 2) << files().join(u' ').toStdString();
        if (outcome.opened)
            changeEverything(path(u"damaged"_s));
        return outcome;
    }

    [[nodiscard]] std::size_t below(qsizetype bound) { return random() % static_cast<std::size_t>(bound); }

    QByteArray good;
    std::mt19937 random{20020301};
};

TEST_F(DamagedFile, AsItWasIsFine) {
    const Outcome outcome = use(good);
    EXPECT_TRUE(outcome.opened);
    EXPECT_FALSE(outcome.failed);
}

TEST_F(DamagedFile, WithBytesFlipped) {
    int refused = 0;
    for (int round = 0; round < 120; ++round) {
        SCOPED_TRACE(round);
        QByteArray content = good;
        for (auto flips = 1 + below(20); flips > 0; --flips)
            content[static_cast<qsizetype>(below(content.size()))] = static_cast<char>(random());
        refused += use(content).failed ? 1 : 0;
    }
    EXPECT_GT(refused, 30);
}

TEST_F(DamagedFile, WithItsHeaderChanged) {
    for (qsizetype at = 0; at < 100; ++at)
        for (const char value : {'\0', '\2', '\xff'}) {
            SCOPED_TRACE(at);
            QByteArray content = good;
            content[at] = value;
            (void)use(content);
        }
}

TEST_F(DamagedFile, WithBytesOfItsFirstPagesFlipped) {
    // The schema and the catalogue: what opening reads.
    for (int round = 0; round < 120; ++round) {
        SCOPED_TRACE(round);
        QByteArray content = good;
        for (auto flips = 1 + below(3); flips > 0; --flips)
            content[static_cast<qsizetype>(100 + below(3 * 4096))] = static_cast<char>(random());
        (void)use(content);
    }
}

TEST_F(DamagedFile, CutOff) {
    for (qsizetype length = 0; length < good.size(); length += 1 + static_cast<qsizetype>(below(700))) {
        SCOPED_TRACE(length);
        EXPECT_TRUE(use(good.first(length).append(QByteArray(20 > length ? 20 - length : 0, 'x'))).failed);
    }
    for (const qsizetype cut : {1, 4095, 4096, 8192})
        EXPECT_FALSE(use(good.chopped(cut)).opened) << cut;
}

TEST_F(DamagedFile, WithSomethingAppended) {
    EXPECT_FALSE(use(good + "x").opened);
    (void)use(good + QByteArray(4096, '\0'));
    (void)use(good + QByteArray(4096, '\xff'));
    (void)use(good + good);
}

TEST_F(DamagedFile, WithPagesZeroedSwappedOrRepeated) {
    constexpr qsizetype Page = 4096;
    const qsizetype pages = good.size() / Page;
    for (qsizetype a = 1; a < pages; ++a) {
        SCOPED_TRACE(a);
        (void)use(QByteArray(good).replace(a * Page, Page, QByteArray(Page, '\0')));
        (void)use(QByteArray(good).replace(a * Page, Page, QByteArray(Page, '\xff')));
        const auto b = static_cast<qsizetype>(1 + below(pages - 1));
        QByteArray swapped = good;
        swapped.replace(a * Page, Page, good.sliced(b * Page, Page));
        (void)use(swapped);
        swapped.replace(b * Page, Page, good.sliced(a * Page, Page));
        (void)use(swapped);
    }
}

TEST_F(DamagedFile, WithAStretchLostOrDoubled) {
    for (int round = 0; round < 60; ++round) {
        SCOPED_TRACE(round);
        const auto at = static_cast<qsizetype>(below(good.size() - 600));
        const auto length = static_cast<qsizetype>(1 + below(500));
        (void)use(QByteArray(good).remove(at, length));
        (void)use(QByteArray(good).insert(at, good.sliced(at, length)));
    }
}

TEST_F(DamagedFile, BesideAJournalOfNoise) {
    for (const QString& side : {u"damaged-journal"_s, u"damaged-wal"_s}) {
        write(u"damaged"_s, good);
        for (const QByteArray& noise : {QByteArray(), QByteArray("x"), QByteArray(5000, '\xd9'), good}) {
            write(side, noise);
            const Outcome outcome = readEverything(path(u"damaged"_s));
            EXPECT_TRUE(outcome.opened && !outcome.failed);
            EXPECT_TRUE(bytes(u"damaged"_s) == good) << side.toStdString();
        }
        QFile::remove(path(side));
    }
}

TEST_F(DamagedFile, OfAnyNoiseIsRefused) {
    for (int round = 0; round < 100; ++round) {
        QByteArray content("SQLite format 3\0", 16);
        for (auto length = below(9000) + 84; length > 0; --length)
            content += static_cast<char>(random());
        EXPECT_FALSE(use(content).opened);
    }
}

} // namespace dao
