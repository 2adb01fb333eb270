#include "KeyRecord.h"

#include "ErrorOf.h"

#include <limits>

using namespace lingomat;

namespace {

std::vector<qint16> keysOf(KeyRecord& record) {
    const auto keys = record.keys();
    return {keys.begin(), keys.end()};
}

TEST(KeyRecord, KeepsTheOrderAndTheCountInStep) {
    qint16 count = 0;
    KeyRecord record(count);
    for (const qint16 key : std::vector<qint16>{7, 3, 32767, -1, 3})
        record.append(key);
    EXPECT_EQ(keysOf(record), (std::vector<qint16>{7, 3, 32767, -1, 3}));
    EXPECT_EQ(count, 5);
    EXPECT_TRUE(record.contains(32767));
    EXPECT_TRUE(record.contains(-1));
    EXPECT_FALSE(record.contains(8));
    record.clear();
    EXPECT_EQ(count, 0);
    EXPECT_FALSE(record.contains(7));
}

TEST(KeyRecord, CountSetToNoneForgetsTheKeys) {
    qint16 count = 0;
    KeyRecord record(count);
    record.append(7);
    count = 0;
    EXPECT_FALSE(record.contains(7));
    record.append(8);
    EXPECT_EQ(keysOf(record), std::vector<qint16>{8});
    EXPECT_EQ(count, 1);
}

TEST(KeyRecord, TakesOutWhatAnotherOneHoldsAndKeepsTheOrder) {
    qint16 count = 0;
    qint16 otherCount = 0;
    KeyRecord record(count);
    KeyRecord other(otherCount);
    for (const qint16 key : std::vector<qint16>{5, 1, 9, 3})
        record.append(key);
    for (const qint16 key : std::vector<qint16>{9, 2, 5})
        other.append(key);
    record.removeAllOf(other);
    EXPECT_EQ(keysOf(record), (std::vector<qint16>{1, 3}));
    EXPECT_EQ(count, 2);
    EXPECT_FALSE(record.contains(9));
    EXPECT_TRUE(record.contains(3));
    EXPECT_EQ(otherCount, 3);
    otherCount = 0;
    record.append(2);
    record.removeAllOf(other);
    EXPECT_EQ(count, 3) << "what the other one has forgotten stays";
}

TEST(KeyRecord, KeyThatFindsNoRoomChangesNothing) {
    constexpr qint16 Most = std::numeric_limits<qint16>::max();
    qint16 count = 0;
    KeyRecord record(count);
    for (qint16 key = 1; key < Most; ++key)
        record.append(key);
    record.append(Most);
    EXPECT_EQ(dao::errorOf([&] { record.append(0); }), 6);
    EXPECT_EQ(count, Most);
    EXPECT_FALSE(record.contains(0));
}

} // namespace
