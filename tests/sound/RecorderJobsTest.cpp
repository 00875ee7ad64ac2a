// The recorder's operations on a thread aside, with devices that take their time.
#include "RecorderRig.h"
#include "harness/ByTheClock.h"
#include "sound/clsDirectSound.h"
#include "support/Fault.h"

namespace neb::test {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

class RecorderJobsTest : public RecorderRig {
  protected:
    static bool IsSupported(clsDirectSound& Sound) { return Sound.RecordingSupported(nullptr); }

    Clock::time_point mStart = Clock::now();
    std::unique_ptr<RecorderJobs> mJobs = std::make_unique<RecorderJobs>();
};

TEST_F(RecorderJobsTest, WhatIsQuicklyDoneIsOverAtOnce) {
    mJobs->Begin(&IsSupported);
    ASSERT_TRUE(mJobs->IsOver(5s));
    EXPECT_TRUE(mJobs->Answer());
    EXPECT_TRUE(mJobs->IsOver());
    mSound.HasMicrophone = false;
    RecorderJobs Others;
    Others.Begin(&IsSupported);
    ASSERT_TRUE(Others.IsOver(5s));
    EXPECT_FALSE(Others.Answer());
    EXPECT_EQ(Others.Recorder().LastError(), "Unable to initialize sound card for capture.");
}

TEST_F(RecorderJobsTest, NobodyWaitsForDevicesThatTakeTheirTime) {
    harness::GoByTheClock();
    mSound.Delay = 2s;
    mJobs->Begin(&IsSupported);
    EXPECT_FALSE(mJobs->IsOver());
    EXPECT_LT(Clock::now() - mStart, 1s);
    ASSERT_TRUE(mJobs->IsOver(20s));
    EXPECT_GE(Clock::now() - mStart, 4s) << "the microphone and the check of the output";
    EXPECT_TRUE(mJobs->Answer());
    const auto Done = Clock::now();
    mJobs.reset();
    EXPECT_LT(Clock::now() - Done, 1s) << "nor for one to close";
    FakeSound::Settle();
    EXPECT_EQ(mSound.Told.back(), "microphone released");
}

TEST_F(RecorderJobsTest, WhatIsUnderWayWhenItsWindowGoesComesToItsEnd) {
    mSound.Delay = 300ms;
    mJobs->Begin(&IsSupported);
    mJobs.reset();
    EXPECT_FALSE(RecorderJobs::AwaitAll(1ms));
    FakeSound::Settle();
    EXPECT_EQ(mSound.Told, (Journal{"buffer of 441000", "buffer released", "microphone released"}));
}

TEST_F(RecorderJobsTest, AFaultIsThrownWhereTheAnswerIsAskedFor) {
    mJobs->Begin([](clsDirectSound&) -> bool { throw Fault(QStringLiteral("No room.")); });
    ASSERT_TRUE(mJobs->IsOver(5s));
    EXPECT_THROW(mJobs->Answer(), Fault);
    mJobs->Begin(&IsSupported);
    ASSERT_TRUE(mJobs->IsOver(5s));
    EXPECT_TRUE(mJobs->Answer()) << "and the next goes its way";
}

}  // namespace
}  // namespace neb::test
