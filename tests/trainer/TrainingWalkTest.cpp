#include "TrainingWalk.h"

#include "EngineError.h"

#include <gtest/gtest.h>

#include <QList>

#include <cmath>

using namespace lingomat;

namespace {

/// Gives these numbers one after the other.
class Draws {
public:
    explicit Draws(QList<double> numbers) : m_numbers(std::move(numbers)) {}
    double next() { return m_numbers.takeFirst(); }
    [[nodiscard]] qsizetype left() const { return m_numbers.size(); }

private:
    QList<double> m_numbers;
};

/// A number that draws the given entry of `count`.
double drawing(int entry, int count) {
    return (entry - 0.5) / count;
}

IntegerArray arrayOf(const QList<qint16>& cells) {
    IntegerArray array;
    array.redim(static_cast<int>(cells.size()));
    for (int i = 1; i <= array.size(); ++i)
        array(i) = cells.at(i - 1);
    return array;
}

const double JustBelowOne = std::nextafter(1.0, 0.0);

} // namespace

TEST(IntegerArray, CountsFromOne) {
    IntegerArray array;
    array.redim(3);
    EXPECT_EQ(array.size(), 3);
    array(1) = 7;
    array(3) = -1;
    EXPECT_EQ(array, arrayOf({7, 0, -1}));
    array.redim(2);
    EXPECT_EQ(array, arrayOf({0, 0}));
}

TEST(IntegerArray, AnAccessBeyondTheBoundsIsError9) {
    IntegerArray array;
    const auto numberOfError = [&array](int index) {
        try {
            array(index) = 1;
        } catch (const dao::Error& error) {
            return static_cast<int>(error.Number());
        }
        return 0;
    };
    EXPECT_EQ(numberOfError(1), 9); // before the first redim
    array.redim(2);
    EXPECT_EQ(numberOfError(0), 9);
    EXPECT_EQ(numberOfError(-1), 9);
    EXPECT_EQ(numberOfError(3), 9);
    EXPECT_EQ(numberOfError(2), 0);
}

TEST(RandomDraw, YieldsEveryEntryAndNoOther) {
    EXPECT_EQ(drawnEntry(10, 0.0), 1);
    EXPECT_EQ(drawnEntry(10, 0.0999), 1);
    EXPECT_EQ(drawnEntry(10, 0.1), 2);
    EXPECT_EQ(drawnEntry(10, 0.95), 10);
    EXPECT_EQ(drawnEntry(0, 0.7), 1); // an empty session draws a row that does not exist
    for (int count = 1; count <= 32767; ++count)
        ASSERT_EQ(drawnEntry(count, JustBelowOne), count);
}

TEST(Shuffle, OneEntryTakesTheFirstDraw) {
    for (const double number : {0.0, 0.5, JustBelowOne}) {
        Draws draws({number});
        EXPECT_EQ(shuffledEntries(
                      1, [&] { return draws.next(); }, [](int) {}),
                  arrayOf({1}));
    }
}

TEST(Shuffle, ADrawnEntryIsDrawnAgain) {
    Draws draws({drawing(3, 4), drawing(3, 4), drawing(1, 4), drawing(3, 4), drawing(1, 4), drawing(4, 4),
                 drawing(4, 4), drawing(2, 4), drawing(2, 4)});
    QList<int> places;
    const IntegerArray entries = shuffledEntries(
        4, [&] { return draws.next(); }, [&](int place) { places += place; });
    EXPECT_EQ(entries, arrayOf({3, 1, 4, 2}));
    EXPECT_EQ(draws.left(), 1); // the draw behind the last place is not made
    EXPECT_EQ(places, QList<int>({1, 2, 3, 4}));
}

TEST(Shuffle, NothingIsDrawnForAnEmptySession) {
    Draws draws({});
    EXPECT_EQ(shuffledEntries(
                  0, [&] { return draws.next(); }, [](int) {})
                  .size(),
              0);
}

TEST(Shuffle, EveryEntryStandsThereOnce) {
    quint32 state = 1;
    const auto next = [&state] {
        state = state * 1664525u + 1013904223u;
        return state / 4294967296.0;
    };
    const IntegerArray entries = shuffledEntries(1000, next, [](int) {});
    QList<int> sorted;
    for (int place = 1; place <= 1000; ++place)
        sorted += entries(place);
    EXPECT_NE(sorted.first(), 1);
    std::sort(sorted.begin(), sorted.end());
    for (int place = 1; place <= 1000; ++place)
        ASSERT_EQ(sorted.at(place - 1), place);
}

TEST(Loop, BeginsWithEveryEntryOpen) {
    EXPECT_EQ(openLoop(3), arrayOf({1, 2, 3}));
}

TEST(Loop, GoesToTheNextOpenEntry) {
    constexpr qint16 x = LoopEntryDone;
    constexpr int none = -1; // no round began
    struct {
        const char* what;
        QList<qint16> status;
        int position;
        int roundPosition;
        int answeredRight;
        bool isOpen;
        int toPosition;
        int toRoundPosition;
        int left;
    } const table[] = {
        {"the first of all", {1, 2, 3}, 1, 0, 0, true, 1, 1, none},
        {"the next", {x, 2, 3}, 2, 1, 1, true, 2, 2, none},
        {"the last", {x, 2, 3}, 3, 2, 1, true, 3, 3, none},
        {"one answered is passed over", {1, x, 3}, 2, 1, 1, true, 3, 2, none},
        {"a new round counts anew", {1, x, 3}, 4, 3, 1, true, 1, 1, 2},
        {"a new round passes over as well", {x, 2, x}, 4, 3, 2, true, 2, 1, 1},
        {"round the end from an answered one", {1, 2, x}, 3, 2, 1, true, 1, 1, 2},
        {"the only open one again", {x, 2, x}, 3, 1, 2, true, 2, 1, 1},
        {"all wrong: the round stays as long", {1, 2, 3}, 4, 3, 0, true, 1, 1, 3},
        {"nothing open, from the start", {x, x, x}, 1, 0, 3, false, 1, 0, none},
        {"nothing open, from the middle", {x, x, x}, 2, 5, 3, false, 2, 0, none},
        {"nothing open, from behind the end", {x, x, x}, 4, 1, 3, false, 1, 0, none},
        {"one entry, open", {1}, 1, 0, 0, true, 1, 1, none},
        {"one entry, wrong once", {1}, 2, 1, 0, true, 1, 1, 1},
        {"one entry, done", {x}, 2, 1, 1, false, 1, 0, none},
    };
    for (const auto& row : table) {
        SCOPED_TRACE(row.what);
        const IntegerArray status = arrayOf(row.status);
        const LoopPlace place = nextOpenPlace(row.position, row.roundPosition,
                                              {.status = status,
                                               .entries = status.size(),
                                               .rows = status.size() + 1,
                                               .answeredRight = row.answeredRight});
        EXPECT_EQ(place.isOpen, row.isOpen);
        EXPECT_EQ(place.position, row.toPosition);
        EXPECT_EQ(place.roundPosition, row.toRoundPosition);
        EXPECT_EQ(place.left.value_or(none), row.left);
    }
}

TEST(Loop, WithoutEntriesThereIsNothingToLookUp) {
    EXPECT_THROW(
        static_cast<void>(nextOpenPlace(1, 0, {.status = {}, .entries = 0, .rows = 1, .answeredRight = 0})),
        dao::Error);
}

TEST(Loop, AListThatGrewMeanwhileEndsInAnErrorNotInARunaway) {
    const IntegerArray status = arrayOf({LoopEntryDone, LoopEntryDone});
    for (const int rows : {2, 6})
        EXPECT_THROW(static_cast<void>(nextOpenPlace(
                         2, 0, {.status = status, .entries = 2, .rows = rows, .answeredRight = 2})),
                     dao::Error);
}
