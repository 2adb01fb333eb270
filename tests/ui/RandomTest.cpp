#include "FixedRandom.h"
#include "FormContext.h"

#include <gtest/gtest.h>

#include <array>
#include <stdexcept>

namespace lingomat {

TEST(Random, DrawsLieInTheHalfOpenUnitRange) {
    ClockSeededRandom random;
    for (int i = 0; i < 10000; ++i) {
        const double draw = random.next();
        ASSERT_GE(draw, 0.0);
        ASSERT_LT(draw, 1.0);
    }
}

TEST(Random, DrawsAreEvenAlsoWhenEachIsReseeded) {
    ClockSeededRandom random;
    std::array<int, 4> quarters{};
    for (int i = 0; i < 4000; ++i) {
        random.reseed();
        ++quarters.at(static_cast<size_t>(random.next() * 4));
    }
    for (const int count : quarters) {
        EXPECT_GT(count, 700);
        EXPECT_LT(count, 1300);
    }
}

TEST(FixedRandom, GivesTheDrawsItWasTold) {
    FixedRandom random({0.25, 0.5});
    random.reseed();
    EXPECT_EQ(random.next(), 0.25);
    EXPECT_EQ(random.next(), 0.5);
    EXPECT_THROW(static_cast<void>(random.next()), std::out_of_range);
    EXPECT_EQ(random.reseeds(), 1);
    EXPECT_EQ(random.drawn(), 3);
}

} // namespace lingomat
