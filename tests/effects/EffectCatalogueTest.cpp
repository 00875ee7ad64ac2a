#include "effects/EffectCatalogue.h"

#include <gtest/gtest.h>

#include <set>

using namespace neb;

namespace {

std::vector<int> KnownNumbers() {
    std::vector<int> Out;
    for (int N = 1; N <= EffectCount(); ++N)
        if (EffectIsKnown(N)) Out.push_back(N);
    return Out;
}

}  // namespace

TEST(EffectCatalogue, EveryNumberHasAName) {
    for (int N = 1; N <= EffectCount(); ++N) EXPECT_FALSE(EffectName(N).isEmpty()) << N;
}

TEST(EffectCatalogue, NoTwoRowsHaveOneName) {
    std::set<QString> Names;
    for (const int N : KnownNumbers()) EXPECT_TRUE(Names.insert(EffectName(N)).second) << N;
}

TEST(EffectCatalogue, NumbersWithoutARowSayThatTheyChangePlainly) {
    for (const int N : {-1, 0, 128, 100000}) {
        EXPECT_FALSE(EffectIsKnown(N)) << N;
        EXPECT_EQ(EffectName(N), QStringLiteral("Plain Change"));
        EXPECT_TRUE(EffectEngine(N).isEmpty());
    }
    for (int N = 1; N <= EffectCount(); ++N)
        EXPECT_EQ(EffectName(N) == QStringLiteral("Plain Change"), !EffectIsKnown(N)) << N;
}

TEST(EffectCatalogue, TheFirstTwentyNumbersAndThoseOfTheSpeedTestAreTaken) {
    for (int N = 1; N <= 20; ++N) EXPECT_TRUE(EffectIsKnown(N)) << N;
    for (const int N : {118, 121, 56, 1, 70, 85}) EXPECT_TRUE(EffectIsKnown(N)) << N;
}

TEST(EffectCatalogue, ThereIsChoiceEnough) {
    std::set<QString> Engines;
    for (const int N : KnownNumbers()) Engines.insert(EffectEngine(N));
    EXPECT_GE(KnownNumbers().size(), 36u);
    EXPECT_GE(Engines.size(), 8u);
}

TEST(EffectCatalogue, EveryNumberIsTaken) {
    EXPECT_EQ(KnownNumbers().size(), std::size_t(EffectCount()));
    EXPECT_EQ(EffectCount(), 127);
}
