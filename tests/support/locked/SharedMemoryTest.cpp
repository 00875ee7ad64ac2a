// The memory that a locked process writes, as the program looks at it.
#include "support/locked/SharedMemory.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <array>

namespace neb {
namespace {

constexpr qint64 Page = 4096;
constexpr qint64 Bytes = 4 * Page;

TEST(SharedMemory, ShowsNothingThatNobodyHasWritten) {
    const SharedMemory Its("test", Bytes, true);
    EXPECT_FALSE(Its.Written(0, Page));
    Its.MakeRoom();
    EXPECT_FALSE(Its.Written(0, Page));
}

TEST(SharedMemory, ShowsWhatIsWrittenWhereItLies) {
    const SharedMemory Its("test", Bytes, true);
    std::array<char, 2 * Page> Text;
    Text.fill('t');
    ASSERT_EQ(ssize_t(Text.size()), ::pwrite(Its.File(), Text.data(), Text.size(), Page));
    ASSERT_EQ(Its.At() + Page, Its.Written(Page, 2 * Page));
    EXPECT_EQ('t', Its.Written(Page, 2 * Page)[2 * Page - 1]);
    EXPECT_FALSE(Its.Written(0, 2 * Page));
    EXPECT_FALSE(Its.Written(2 * Page, 2 * Page));
}

TEST(SharedMemory, ShowsNothingOutsideOfIt) {
    const SharedMemory Its("test", Bytes, true);
    ASSERT_EQ(1, ::pwrite(Its.File(), "t", 1, Bytes - 1));
    EXPECT_TRUE(Its.Written(Bytes - 1, 1));
    EXPECT_FALSE(Its.Written(Bytes - 1, 2));
    EXPECT_FALSE(Its.Written(-1, 1));
}

}  // namespace
}  // namespace neb
