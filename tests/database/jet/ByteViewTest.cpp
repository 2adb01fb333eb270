#include "ByteView.h"
#include "JetError.h"

#include <gtest/gtest.h>

#include <limits>

namespace jet {
namespace {

const QByteArrayView Bytes("\x01\x02\x03\x04\xF5\xF6\xF7\xF8", 8);

TEST(ByteView, NumbersAreLittleEndianAndWithoutSign) {
    const ByteView view(Bytes);
    EXPECT_EQ(view.u8(4), 0xF5);
    EXPECT_EQ(view.u16(0), 0x0201);
    EXPECT_EQ(view.u24(3), 0xF6F504u);
    EXPECT_EQ(view.u32(4), 0xF8F7F6F5u);
    EXPECT_EQ(view.u64(0), Q_UINT64_C(0xF8F7F6F504030201));
}

TEST(ByteView, LastByteCanBeReadAndTheOneBehindItCannot) {
    const ByteView view(Bytes);
    EXPECT_EQ(view.u8(7), 0xF8);
    EXPECT_THROW((void)view.u8(8), Error);
    EXPECT_EQ(view.u16(6), 0xF8F7);
    EXPECT_THROW((void)view.u16(7), Error);
    EXPECT_THROW((void)view.u24(6), Error);
    EXPECT_THROW((void)view.u32(5), Error);
    EXPECT_THROW((void)view.u64(1), Error);
    EXPECT_THROW((void)ByteView().u8(0), Error);
}

TEST(ByteView, SlicesAreCheckedWithoutOverflow) {
    constexpr qint64 huge = std::numeric_limits<qint64>::max();
    constexpr qint64 tiny = std::numeric_limits<qint64>::min();
    const ByteView view(Bytes);
    EXPECT_EQ(view.slice(8, 0).size(), 0);
    EXPECT_EQ(view.slice(2, 6).u8(0), 3);
    EXPECT_EQ(view.from(8).size(), 0);
    for (const auto& [at, length] : {std::pair<qint64, qint64>{0, 9},
                                     {9, 0},
                                     {-1, 1},
                                     {1, -1},
                                     {1, huge},
                                     {huge, 1},
                                     {huge, huge},
                                     {tiny, 1},
                                     {0, tiny}})
        EXPECT_THROW((void)view.slice(at, length), Error) << at << ", " << length;
    EXPECT_THROW((void)view.from(9), Error);
    EXPECT_THROW((void)view.from(-1), Error);
    EXPECT_THROW((void)view.first(-1), Error);
}

TEST(ByteView, SliceOfASliceStaysInside) {
    const ByteView part = ByteView(Bytes).slice(2, 3);
    EXPECT_THROW((void)part.u32(0), Error) << "the bytes behind it belong to somebody else";
}

} // namespace
} // namespace jet
