// A few thousand random inputs through the same door as the fuzz program's, in every build.
#include <gtest/gtest.h>

#include <random>

#include "fuzz/RecordFuzzEntry.h"

namespace neb {
namespace {

// Small numbers often, so that records find their owners.
std::vector<char> RandomInput(std::mt19937& Random) {
    std::vector<char> Bytes(Random() % 6000);
    const unsigned Range = Random() % 2 ? 256 : 3;
    for (char& Byte : Bytes) Byte = static_cast<char>(Random() % Range);
    return Bytes;
}

TEST(RecordFuzz, RandomInputsAreReadAndReadBackTheSame) {
    std::mt19937 Random(4711);
    for (int Round = 0; Round < 4000; ++Round) {
        const std::vector<char> Bytes = RandomInput(Random);
        ASSERT_TRUE(fuzz::RunRecords(Bytes.data(), Bytes.size())) << "round " << Round;
    }
}

TEST(RecordFuzz, AnEmptyInputIsRead) {
    EXPECT_TRUE(fuzz::RunRecords("", 0));
}

}  // namespace
}  // namespace neb
