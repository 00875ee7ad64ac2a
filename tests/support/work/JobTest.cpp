// One piece of work beside the caller: its result, its progress, and an end that waits for nothing.
#include "support/work/Job.h"

#include <gtest/gtest.h>

#include <semaphore>

#include "support/Fault.h"

namespace neb {
namespace {

TEST(Job, GivesTheResultOfItsWork) {
    Job<int> Adds([](JobState&) { return 19 + 23; });
    EXPECT_EQ(42, Adds.Take());
}

TEST(Job, RunsBesideItsCallerAndTellsHowFarItIs) {
    std::binary_semaphore Half(0), Rest(0);
    Job<> Counts([&](JobState& State) {
        State.SoFar = 50;
        Half.release();
        Rest.acquire();
        State.SoFar = 100;
    });
    Half.acquire();
    EXPECT_EQ(50, Counts.SoFar());
    EXPECT_FALSE(Counts.Wait(1));
    Rest.release();
    Counts.Take();
    EXPECT_EQ(100, Counts.SoFar());
}

TEST(Job, ThrowsWhatItsWorkThrew) {
    Job<int> Fails([](JobState&) -> int { throw Fault(QStringLiteral("no medium")); });
    EXPECT_TRUE(Fails.Wait(10000));
    EXPECT_THROW(Fails.Take(), Fault);
}

TEST(Job, IsToldToEndWhenItIsCancelled) {
    Job<bool> Waits([](JobState& State) {
        while (!State.Stop) std::this_thread::yield();
        return true;
    });
    EXPECT_FALSE(Waits.Wait(0));
    Waits.Cancel();
    EXPECT_TRUE(Waits.Take());
}

TEST(Job, IsLeftWithoutAWaitAndThenEnds) {
    const auto Go = std::make_shared<std::binary_semaphore>(0);
    const auto Saw = std::make_shared<std::promise<bool>>();
    {
        const Job<> Hangs([Go, Saw](JobState& State) {
            Go->acquire();
            Saw->set_value(State.Stop);
        });
    }
    Go->release();
    EXPECT_TRUE(Saw->get_future().get());
}

}  // namespace
}  // namespace neb
