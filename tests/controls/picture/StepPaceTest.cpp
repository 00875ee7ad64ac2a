// Which steps are drawn when, on screens of any rate and machines of any speed.
#include "controls/picture/StepPace.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <vector>

#include "controls/picture/FrameCount.h"

using namespace neb;

namespace {

constexpr double Start = 5000;
constexpr double Rounding = 1e-3;

struct Frame {
    int Step;
    double Drawn, Seen;  // milliseconds since the start
    bool Late;
};

// What a view does that draws a frame in the given time.
std::vector<Frame> RunAt(double Rate, int Steps, double Delay,
                         const std::function<double(int Frame)>& Takes = {}) {
    StepPace Pace;
    Pace.Begin(Start, Start, Steps, Delay, Rate);
    std::vector<Frame> Frames;
    double Now = Start;
    for (int Step = 0; Step < Steps && Frames.size() < 1000;) {
        Now = Pace.DrawAt(Step + 1, Now);
        const int Before = std::exchange(Step, Pace.StepFor(Now));
        EXPECT_GT(Step, Before) << "drawn for nothing";
        const double Drawn = Now;
        if (Takes) Now += Takes(static_cast<int>(Frames.size()));
        Frames.push_back(
            {Step, Drawn - Start, Pace.SeenAt(Drawn) - Start, Pace.IsLate(Before, Now)});
        Now = Pace.SeenAt(Now);
    }
    EXPECT_NEAR(Pace.End() - Start, Steps * Delay, Rounding);
    return Frames;
}

}  // namespace

TEST(StepPace, AtMostOneFrameARefreshOfTheLatestStepThatIsDueWhenItIsSeen) {
    const std::pair<double, size_t> Expected[] = {{60, 60}, {75, 75}, {144, 100}, {59.94, 60}};
    for (const auto& [Rate, Count] : Expected) {
        const auto Frames = RunAt(Rate, 100, 10);
        EXPECT_EQ(Frames.size(), Count) << Rate;
        double Before = -1000 / Rate;
        for (const Frame& F : Frames) {
            EXPECT_GE(F.Drawn - Before, 1000 / Rate - Rounding) << Rate;
            EXPECT_EQ(F.Step, std::min(100, static_cast<int>((F.Seen + Rounding) / 10))) << Rate;
            EXPECT_FALSE(F.Late);
            Before = F.Drawn;
        }
    }
}

TEST(StepPace, TheWholeWayTakesTheSameTimeOnAnyScreen) {
    for (const double Rate : {24., 30., 60., 75., 120., 144., 165., 240.}) {
        for (const auto& [Steps, Delay] : {std::pair(100, 10.), {4, 100.}, {20, 7.5}, {1, 10.}}) {
            const Frame Last = RunAt(Rate, Steps, Delay).back();
            EXPECT_EQ(Last.Step, Steps);
            EXPECT_GE(Last.Seen + Rounding, Steps * Delay) << Rate << ": seen too soon";
            EXPECT_LT(Last.Seen, Steps * Delay + 1000 / Rate + Rounding) << Rate;
        }
    }
}

TEST(StepPace, FewStepsAreDrawnOnceEachWhenTheirTimeComes) {
    const auto Frames = RunAt(60, 4, 100);
    ASSERT_EQ(Frames.size(), 4U);
    for (int I = 0; I < 4; ++I) {
        EXPECT_EQ(Frames[static_cast<size_t>(I)].Step, I + 1);
        EXPECT_NEAR(Frames[static_cast<size_t>(I)].Seen, 100 * (I + 1), 1000 / 60. + Rounding);
    }
}

TEST(StepPace, ASlowMachineLeavesStepsOutAndKeepsTheTime) {
    const auto Frames = RunAt(60, 100, 10, [](int) { return 25.; });
    EXPECT_EQ(Frames.size(), 31U) << "every other refresh, and the end";
    EXPECT_LE(Frames.back().Drawn, 1000);
    for (size_t I = 1; I < Frames.size(); ++I) EXPECT_TRUE(Frames[I].Late) << I;
}

TEST(StepPace, AFrameIsLateFromOneRefreshAfterItsTimeOn) {
    const auto LateWith = [](double Takes) {
        int Late = 0;
        for (const Frame& F : RunAt(60, 100, 10, [=](int I) { return I == 20 ? Takes : 2; }))
            Late += F.Late;
        return Late;
    };
    EXPECT_EQ(LateWith(2), 0);
    EXPECT_EQ(LateWith(20), 0);
    EXPECT_EQ(LateWith(32), 0);
    EXPECT_EQ(LateWith(35), 2) << "and the one behind it";
    EXPECT_EQ(LateWith(300), 2);
}

TEST(StepPace, WhatHasBeenPreparedCountsForTheWaitForTheFirstStep) {
    StepPace Pace;
    Pace.Begin(Start, Start + 60, 4, 100, 60);
    EXPECT_NEAR(Pace.End(), Start + 400, Rounding);
    Pace.Begin(Start, Start + 250, 4, 100, 60);
    EXPECT_EQ(Pace.DrawAt(1, Start + 250), Start + 250);
    EXPECT_EQ(Pace.StepFor(Start + 250), 1) << "no step is lost by it";
    EXPECT_FALSE(Pace.IsLate(0, Start + 280));
    EXPECT_NEAR(Pace.End(), Start + 550, Rounding);
}

TEST(StepPace, WithoutADelayTheNewPictureIsSeenAtTheNextRefresh) {
    const auto Frames = RunAt(60, 100, 0);
    ASSERT_EQ(Frames.size(), 1U);
    EXPECT_EQ(Frames[0].Step, 100);
}

TEST(StepPace, RefreshesAreCountedFromTheLastOneThatTheDesktopTold) {
    StepPace Pace;
    Pace.Begin(Start, Start, 100, 10, 50);
    EXPECT_NEAR(Pace.SeenAt(Start + 5), Start + 20, Rounding);
    Pace.RefreshBegins(Start + 5);
    EXPECT_NEAR(Pace.SeenAt(Start + 5), Start + 25, Rounding);
    EXPECT_EQ(Pace.StepFor(Start + 5), 2);
}

TEST(StepPace, ARateThatCannotBeCountsAsSixty) {
    StepPace Pace;
    for (const double Rate : {0., -1., 5., 1e9, std::nan("")}) {
        Pace.Begin(Start, Start, 100, 10, Rate);
        EXPECT_NEAR(Pace.Period(), 16.667, 0.001);
    }
}

TEST(FrameCount, TellsWhatItHasCountedInGroups) {
    FrameCount Count;
    EXPECT_EQ(Count.Text(), QString());
    Count.Add(true, false);
    EXPECT_EQ(Count.Text(), QStringLiteral("1 transition, 1 frame, 0 late"));
    for (int I = 1; I < 250; ++I) Count.Add(true, false);
    for (int I = 250; I < 15000; ++I) Count.Add(false, I < 1252);
    EXPECT_EQ(Count.Text(), QStringLiteral("250 transitions, 15,000 frames, 1,002 late"));
}
