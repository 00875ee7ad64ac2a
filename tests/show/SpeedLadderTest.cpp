// The ladder of the speed test with a clock that a test puts on: what is measured, when a level
// ends and what it leaves behind.
#include "show/SpeedLadder.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

namespace neb {
namespace {

using Steps = std::vector<int>;

// Seconds that a transition takes.
using Machine = std::function<double(int Effect, int Step)>;

struct TestRun {
    SpeedLadder Ladder;
    double Clock = 40000;
    Steps Taken;               // of all levels
    std::vector<int> Effects;  // of the rounds
    std::vector<std::string> Titles;
    int Warnings = 0;

    float Now() const { return static_cast<float>(Clock >= 86400 ? Clock - 86400 : Clock); }

    SpeedLadder::Verdict Round(const Machine& Takes) {
        Ladder.StartRound();
        Titles.push_back(Ladder.Title().toStdString());
        Taken.push_back(Ladder.EffectStep());
        do {
            EXPECT_EQ(Ladder.EffectDelay(), 100);
            Effects.push_back(Ladder.EffectNumber());
            Clock += Takes(Ladder.EffectNumber(), Ladder.EffectStep());
        } while (Ladder.SecondTransition());
        return Ladder.RoundOver(Now());
    }

    // One level; what comes after it.
    SpeedLadder::Next Level(const Machine& Takes) {
        Taken.clear();
        Ladder.StartLevel(Now());
        SpeedLadder::Verdict Verdict{};
        do {
            Verdict = Round(Takes);
            Warnings += Verdict.TooSlow;
        } while (Verdict.Then == SpeedLadder::Next::Round);
        return Verdict.Then;
    }

    const SpeedTestResult& All(const Machine& Takes) {
        while (Level(Takes) == SpeedLadder::Next::Level) {
        }
        return Ladder.Result();
    }
};

Machine Always(double Seconds) {
    return [Seconds](int, int) { return Seconds; };
}

const Steps Whole = {100, 50, 35, 25, 20, 10, 5, 1};

TEST(SpeedLadder, AMachineThatDoesEverythingInATenthOfASecondRunsAllRungsOfAllLevels) {
    TestRun Try;
    const Machine Quick = Always(0.125);
    EXPECT_EQ(Try.Level(Quick), SpeedLadder::Next::Level);
    EXPECT_EQ(Try.Taken, Whole);
    EXPECT_EQ(Try.Level(Quick), SpeedLadder::Next::Level);
    EXPECT_EQ(Try.Taken, Whole);
    EXPECT_EQ(Try.Level(Quick), SpeedLadder::Next::End);
    EXPECT_EQ(Try.Taken, Whole);
    const SpeedTestResult& R = Try.Ladder.Result();
    EXPECT_EQ((Steps{R.StepH, R.StepM, R.StepL}), (Steps{1, 1, 1}));
    EXPECT_EQ((Steps{R.DelayH, R.DelayM, R.DelayL}), (Steps{100, 100, 100}));
    EXPECT_FLOAT_EQ(R.AvgTimeH, 1) << "eight rounds of an eighth of a second";
    EXPECT_FLOAT_EQ(R.AvgTimeM, 1);
    EXPECT_FLOAT_EQ(R.AvgTimeL, 1);
    EXPECT_EQ(R.Timeout, 0) << "nothing was too slow";
    EXPECT_EQ(R.TimeoutH + R.TimeoutM + R.TimeoutL, 0);
    EXPECT_EQ(Try.Warnings, 0);
}

TEST(SpeedLadder, EachLevelHasItsTwoEffects) {
    TestRun Try;
    Try.All(Always(5));
    EXPECT_EQ(Try.Effects, (Steps{118, 121, 56, 1, 70, 85}));
}

TEST(SpeedLadder, TheTitleTellsTheLevelAndTheStepWithAnOddFigureFor35) {
    TestRun Try;
    Try.All(Always(0.1));
    std::vector<std::string> Expected;
    for (const char* Kind : {"Intense", "Normal", "Simple"})
        for (const char* Step : {"100", "50", "33", "25", "20", "10", "5", "1"})
            Expected.push_back(std::string("Testing Graphics Performance - ") + Kind +
                               " Effects (" + Step + ")");
    EXPECT_EQ(Try.Titles, Expected);
}

TEST(SpeedLadder, ALevelTooSlowAtOnceIsToldAndTheOthersAreStillRun) {
    TestRun Try;
    const SpeedTestResult& R = Try.All([](int Effect, int) { return Effect > 100 ? 5.0 : 0.125; });
    EXPECT_EQ(Try.Warnings, 1);
    EXPECT_EQ(R.StepH, 100);
    EXPECT_FLOAT_EQ(R.AvgTimeH, 5);
    EXPECT_EQ(R.TimeoutH, 10) << "twice the time";
    EXPECT_EQ(R.StepM, 1);
    EXPECT_EQ(R.StepL, 1);
}

TEST(SpeedLadder, TheTimeoutOfALevelTooSlowAtOnceIsTwiceItsTime) {
    TestRun Try;
    const SpeedTestResult& R = Try.All(Always(7.5));
    EXPECT_EQ(Try.Warnings, 3);
    EXPECT_EQ(R.Timeout, 15);
    EXPECT_EQ((Steps{R.StepH, R.StepM, R.StepL}), (Steps{100, 100, 100}));
}

TEST(SpeedLadder, TheTimeoutGoesOnFromLevelToLevel) {
    TestRun Try;
    const SpeedTestResult& R = Try.All([](int Effect, int Step) {
        if (Effect > 100) return 6.0;                       // 12 seconds of Timeout
        return Effect == 56 || Effect == 1 ? 0.125          // reaches 1: sets none
                                           : 100.0 / Step;  // retreats
    });
    EXPECT_EQ(R.TimeoutH, 12);
    EXPECT_EQ(R.TimeoutM, 12);
    EXPECT_EQ(R.TimeoutL, 10);
    EXPECT_EQ(R.Timeout, 10);
}

TEST(SpeedLadder, ALevelThatReachesTheEndAfterNothingWasSlowHasNoTimeout) {
    TestRun Try;
    const SpeedTestResult& R =
        Try.All([](int Effect, int) { return Effect == 70 || Effect == 85 ? 5.0 : 0.1; });
    EXPECT_EQ(R.TimeoutH, 0);
    EXPECT_EQ(R.TimeoutM, 0);
    EXPECT_EQ(R.TimeoutL, 10);
}

TEST(SpeedLadder, TheTimeOfALevelIsARunningTotal) {
    TestRun Try;
    Try.Level(Always(1.5));
    EXPECT_EQ(Try.Taken, (Steps{100, 50, 35}));
    EXPECT_EQ(Try.Ladder.Result().StepH, 50);
    EXPECT_FLOAT_EQ(Try.Ladder.Result().AvgTimeH, 3);
    EXPECT_EQ(Try.Ladder.Result().TimeoutH, 10);
    EXPECT_EQ(Try.Warnings, 0);
}

TEST(SpeedLadder, FourSecondsAreStillInTime) {
    TestRun Try;
    Try.Level(Always(2));
    EXPECT_EQ(Try.Taken, (Steps{100, 50, 35}));
    EXPECT_EQ(Try.Ladder.Result().StepH, 50);
    EXPECT_FLOAT_EQ(Try.Ladder.Result().AvgTimeH, 4);
}

TEST(SpeedLadder, EveryRungGoesBackToTheOneBeforeIt) {
    for (std::size_t Rung = 1; Rung < Whole.size(); ++Rung) {
        TestRun Try;
        Try.Level([&](int, int Step) { return Step == Whole[Rung] ? 9.0 : 0.25; });
        EXPECT_EQ(Try.Ladder.Result().StepH, Whole[Rung - 1]);
        EXPECT_FLOAT_EQ(Try.Ladder.Result().AvgTimeH, static_cast<float>(Rung) * 0.25F);
        EXPECT_EQ(Try.Ladder.Result().Timeout, 10);
    }
}

TEST(SpeedLadder, ARoundThatEndsAfterMidnightIsCorrected) {
    TestRun Try;
    Try.Clock = 86399;
    Try.Level(Always(1.5));
    EXPECT_LT(Try.Now(), 100) << "it is the next day";
    EXPECT_FLOAT_EQ(Try.Ladder.Result().AvgTimeH, 3);
    EXPECT_EQ(Try.Ladder.Result().StepH, 50);
}

TEST(SpeedLadder, NothingIsMeasuredBeforeTheFirstLevelHasEnded) {
    TestRun Try;
    Try.Ladder.StartLevel(Try.Now());
    Try.Round(Always(0.5));
    Try.Round(Always(0.5));
    const SpeedTestResult& R = Try.Ladder.Result();
    EXPECT_EQ(R.Timeout + R.TimeoutH + R.StepH + R.DelayH + static_cast<double>(R.AvgTimeH), 0);
}

}  // namespace
}  // namespace neb
