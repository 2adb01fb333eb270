// A sound database that was cut off or had bytes changed. Whatever the damage, the program has to live, and
// may not make it worse.

#include "FaultSupport.h"

#include <QPushButton>

#include <gtest/gtest.h>

#include <random>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

class Damaged : public testing::Test {
protected:
    Damaged() {
        QList<TestEntry> entries = someEntries();
        for (int i = 0; i < 200; ++i)
            entries.append(
                {u"Wort %1"_s.arg(i), u"word %1"_s.arg(i), u"noun"_s, u"book"_s, {u"area %1"_s.arg(i % 7)}});
        writeDatabase(file, {.entries = entries});
        sound = readFile(file);
    }

    /// Opens the damaged file and, where that works, does what a person would do next.
    void tryOut(const QByteArray& bytes) {
        writeFile(file, bytes);
        faulty.open(file);
        if (!faulty.isOpen()) {
            EXPECT_FALSE(faulty.messages().isEmpty());
            EXPECT_EQ(readFile(file), bytes) << "a file that was refused is unchanged";
            return;
        }
        TestProgram& program = faulty.program();
        if (program.isEnabled("Command1")) {
            program.click("Command1");
            child<QPushButton>(program.app().form2(), "Command4").click();
        }
        EXPECT_TRUE(program.app().form1().isVisible());
    }

    FaultyFile faulty{Way::ByCommand};
    const QString file = faulty.path(u"faulty.lmt"_s);
    QByteArray sound;
};

TEST_F(Damaged, TruncatedFilesAreRefused) {
    QList<qsizetype> lengths{0, 1, 15, 16, 17, 99, 100, 101, 512, 1024, 4095, 4096, 4097, 8192, 12288};
    lengths << sound.size() / 3 << sound.size() / 2 << sound.size() - 4096 << sound.size() - 512
            << sound.size() - 1;
    for (const qsizetype length : lengths) {
        SCOPED_TRACE(length);
        ASSERT_LT(length, sound.size());
        tryOut(sound.first(length));
        EXPECT_FALSE(faulty.isOpen());
    }
    faulty.expectRefused();
}

TEST_F(Damaged, ChangedBytesNeverEndTheProgram) {
    for (unsigned seed = 1; seed <= 120; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        QByteArray bytes = sound;
        const auto pick = [&random](qsizetype below) {
            return static_cast<qsizetype>(random() % static_cast<unsigned>(below));
        };
        for (int changes = 1 << pick(9); changes > 0; --changes)
            bytes[pick(bytes.size())] = static_cast<char>(random());
        tryOut(bytes);
    }
}

TEST_F(Damaged, ChangedHeadersNeverEndTheProgram) {
    for (unsigned seed = 1; seed <= 120; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        QByteArray bytes = sound;
        for (int changes = 0; changes < 4; ++changes)
            bytes[static_cast<qsizetype>(16 + random() % 200)] = static_cast<char>(random());
        tryOut(bytes);
    }
}

TEST_F(Damaged, PagesInTheWrongOrderNeverEndTheProgram) {
    constexpr qsizetype page = 4096;
    const qsizetype pages = sound.size() / page;
    for (unsigned seed = 1; seed <= 40; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        QByteArray bytes = sound;
        const auto from = static_cast<qsizetype>(random() % static_cast<unsigned>(pages)) * page;
        const auto to = static_cast<qsizetype>(random() % static_cast<unsigned>(pages)) * page;
        bytes.replace(to, page, sound.sliced(from, page));
        tryOut(bytes);
    }
}

TEST_F(Damaged, AtTheStartToo) {
    for (const qsizetype length : {qsizetype{100}, sound.size() / 2}) {
        FaultyFile start(Way::AtStart);
        const QString damaged = start.path(u"damaged.lmt"_s);
        writeFile(damaged, sound.first(length));
        start.open(damaged);
        start.expectRefused();
        EXPECT_EQ(readFile(damaged), sound.first(length));
    }
}

} // namespace
} // namespace lingomat
