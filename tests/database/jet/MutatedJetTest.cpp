// Damage by the thousand, the same in every run. tests/fuzz looks for more.

#include "JetFiles.h"
#include "JetMutations.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

TEST(MutatedJet, NeverDoesHarmOrGrows) {
    constexpr unsigned seeds = 800;
    for (const auto& name : {u"old2.mdb"_s, u"old2_jet3.mdb"_s, u"old2_moved.mdb"_s, u"old1_jet3.mdb"_s}) {
        const QByteArray sound = jetBytes(name);
        for (unsigned seed = 1; seed <= seeds; ++seed) {
            SCOPED_TRACE(name.toStdString() + ", " + std::to_string(seed));
            const QByteArray bytes = mutated(sound, seed);
            const JetExercise exercise = exerciseJet(bytes);
            ASSERT_LE(exercise.rows, bytes.size());
            ASSERT_LE(exercise.characters, 2 * bytes.size()) << "more text than the file can hold";
        }
    }
}

TEST(MutatedJet, SoundBytesComeThrough) {
    const JetExercise exercise = exerciseJet(jetBytes(u"old2.mdb"_s));
    EXPECT_TRUE(exercise.opened);
    EXPECT_EQ(exercise.tables, 1);
    EXPECT_EQ(exercise.rows, 36);
    EXPECT_NE(mutated(jetBytes(u"old2.mdb"_s), 1), jetBytes(u"old2.mdb"_s));
}

TEST(MutatedJet, EveryLengthOfAFileIsAnswered) {
    const QByteArray sound = jetBytes(u"old2_jet3_cp1250.mdb"_s);
    for (qsizetype length = 0; length < sound.size(); length += length < 400 ? 1 : 509)
        EXPECT_LE(exerciseJet(sound.first(length)).rows, 9) << length;
}

} // namespace
} // namespace lingomat
