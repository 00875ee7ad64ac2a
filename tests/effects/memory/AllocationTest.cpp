// A frame takes no memory once the first has been drawn: no pause, and nothing that can run out,
// in the middle of a show.
#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <thread>

#include "effects/EachNumber.h"
#include "effects/Pictures.h"
#include "effects/Transition.h"
#include "effects/memory/AllocationCount.h"

using namespace neb;
using namespace neb::effectstest;

namespace neb::effectstest {
INSTANTIATE_TEST_SUITE_P(Catalogue, EachNumber, testing::ValuesIn(KnownNumbers()), NumberAndName);
}

namespace {

// Runs the work on a fresh thread, which holds no room from earlier frames, and counts.
template <typename Start, typename Work>
int AllocationsOf(Start&& First, Work&& Then) {
    int Count = 0;
    std::thread([&] {
        First();
        const int Before = AllocationsOfThisThread();
        Then();
        Count = AllocationsOfThisThread() - Before;
    }).join();
    return Count;
}

}  // namespace

TEST(Allocations, AreCountedHoweverTheyAreMade) {
    if (!CountsAllocations()) GTEST_SKIP() << "a sanitizer brings an allocator of its own";
    const auto Nothing = [] {};
    // Kept, so that the compiler may not leave the allocation away.
    static std::atomic<void*> Room;
    EXPECT_EQ(AllocationsOf(Nothing, Nothing), 0);
    EXPECT_EQ(AllocationsOf(Nothing, [] { std::free(Room = std::malloc(10)); }), 1);
    EXPECT_EQ(AllocationsOf(Nothing, [] { std::free(Room = std::calloc(2, 5)); }), 1);
    EXPECT_EQ(AllocationsOf(Nothing, [] { ::operator delete(Room = ::operator new(10)); }), 1);
    EXPECT_EQ(AllocationsOf(Nothing, [] { std::free(Room = std::realloc(nullptr, 10)); }), 1);
    EXPECT_EQ(AllocationsOf(Nothing, [] { std::free(Room = std::aligned_alloc(64, 64)); }), 1);
    EXPECT_GE(AllocationsOf(Nothing, [] { QImage(9, 9, QImage::Format_RGB32).fill(0); }), 1);
}

// The first frame makes the thread's room, from which all later frames take their lines.
TEST_P(EachNumber, TakesNoMemoryInAFrameAfterTheFirst) {
    if (!CountsAllocations()) GTEST_SKIP() << "a sanitizer brings an allocator of its own";
    for (const QSize Size : {QSize(641, 359), QSize(40, 301), QSize(1280, 1), QSize(1920, 1080)}) {
        const Transition T(GetParam(), Scene(Size, 1), Scene(Size, 2));
        QImage Out(Size, QImage::Format_RGB32);
        const int Steps = Size.height() > 1000 ? 10 : 40;
        const auto First = [&] { T.Draw(1.0 / Steps, Out); };
        const auto All = [&] {
            for (int Step = 0; Step <= Steps; ++Step) T.Draw(1.0 * Step / Steps, Out);
        };
        EXPECT_EQ(AllocationsOf(First, All), 0) << Size.width() << "x" << Size.height();
    }
}
