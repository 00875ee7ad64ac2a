// The view paced by its screen, as in a show.
#include "XShowRig.h"
#include "harness/HastyClock.h"

using namespace neb;
using namespace neb::test;

namespace {

constexpr double Hair = 0.001;

class XShowPaceTest : public XShowRig {
  protected:
    XShowPaceTest() {
        View.SetPacing(XShow::Pacing::Screen);
        View.SetShowOptionD(true);
    }
    // A second of a hundred steps from red to blue on the clock that stands, which is put on from
    // refresh to refresh; what was drawn in each, in steps, 0 for none.
    std::vector<int> RunASecond(HandClock& Hand, double Rate) {
        View.Rate = Rate;
        std::vector<int> Drawn;
        Begin("blue", 1, 100);
        const double Started = Hand.Ticks();
        for (int K = 0; K * 1000 / Rate < 999; ++K) {
            Hand.PutOn(Started + K * 1000 / Rate + Hair - Hand.Ticks());
            const auto Before = Steps.size();
            AwaitFrame(std::floor((K + 1) * 100 / Rate + Hair) > LastStep(Drawn));
            EXPECT_LE(Steps.size(), Before + 1) << "in one refresh";
            Drawn.push_back(Steps.size() > Before ? StepOfLast() : 0);
        }
        return Drawn;
    }
    void AwaitFrame(bool IsDue) {
        const auto Before = Steps.size();
        QElapsedTimer Watch;
        Watch.start();
        do LetRun(1);
        while (IsDue && Steps.size() == Before && Watch.elapsed() < 5000);
    }
    // The next refresh at 60 a second; its frame has come then, if it has one.
    void Refresh(HandClock& Hand) {
        const auto Before = Steps.size();
        Hand.PutOn(1000 / 60. + Hair);
        QElapsedTimer Watch;
        Watch.start();
        while (View.IsRunning() && Steps.size() == Before && Watch.elapsed() < 200) LetRun(1);
    }
    int StepOfLast() { return qRound(Steps.last().first().toDouble() * 100); }
    static int LastStep(const std::vector<int>& Drawn) {
        int Last = 0;
        for (const int Step : Drawn) Last = std::max(Last, Step);
        return Last;
    }
};

}  // namespace

TEST_F(XShowPaceTest, DrawsAtMostOneFrameARefreshForTheMomentAtWhichItIsSeen) {
    for (const auto& [Rate, Count] : {std::pair(60., 60), {75., 75}, {144., 100}}) {
        Put("red");
        const int Before = View.Frames().Frames();
        HandClock Hand;
        Ended.clear();
        std::vector<int> Expected;
        for (int K = 0; K * 1000 / Rate < 999; ++K) {
            const int Due = static_cast<int>(std::floor((K + 1) * 100 / Rate + Hair));
            Expected.push_back(Due > LastStep(Expected) ? Due : 0);
        }
        EXPECT_EQ(RunASecond(Hand, Rate), Expected) << Rate;
        EXPECT_EQ(View.Frames().Frames() - Before, Count);
        LetRun(20);
        EXPECT_EQ(Ended.size(), 0) << "its second is not over";
        EXPECT_EQ(At(50, 30), kBlue);
        Hand.PutOn(1000 / Rate);
        WaitForEnd();
        EXPECT_EQ(Ended.size(), 1);
        EXPECT_EQ(View.Frames().Late(), 0);
    }
    EXPECT_EQ(View.Frames().Transitions(), 3) << "plain changes are none";
}

TEST_F(XShowPaceTest, ShowsTheFramesOfDictatedStepsAndNoOthers) {
    View.resize(120, 40);
    Put("slope1 120x40");
    std::vector<QImage> Shown;
    View.AfterPaint = [&](const QImage& Painted) { Shown.push_back(Painted); };
    HandClock Hand;
    View.Rate = 60;
    Begin("slope5 120x40", 20, 200, 118);  // a step in 20 ms: five of them
    LetRun(20);
    for (int I = 0; I < 10; ++I) Refresh(Hand);
    WaitForEnd();
    const Transition T(118, Slope({120, 40}, 1), Slope({120, 40}, 5));
    ASSERT_GE(Shown.size(), 5U);
    for (int I = 1; I <= 5; ++I) {
        QImage Frame;
        T.Draw(I / 5., Frame);
        EXPECT_EQ(Shown[static_cast<size_t>(I) - 1].convertToFormat(QImage::Format_RGB32), Frame)
            << I;
    }
}

TEST_F(XShowPaceTest, CountsAFrameThatWasDrawnForTooLong) {
    Put("red");
    HandClock Hand;
    int Painted = 0;
    View.WhilePainting = [&] { Hand.PutOn(++Painted == 10 ? 45 : 0); };
    Begin("blue", 1, 100);
    AwaitFrame(true);
    for (int I = 0; I < 100 && View.IsRunning(); ++I) Refresh(Hand);
    WaitForEnd();
    EXPECT_EQ(View.Frames().Late(), 2) << "and the one that had to wait for it";
    EXPECT_EQ(View.Frames().Transitions(), 1);
}

TEST_F(XShowPaceTest, CountsAFrameThatAnotherWorkHeldUp) {
    Put("red");
    HandClock Hand;
    Begin("blue", 1, 100);
    AwaitFrame(true);
    Hand.PutOn(60);
    AwaitFrame(true);
    EXPECT_EQ(View.Frames().Frames(), 2);
    EXPECT_EQ(View.Frames().Late(), 1);
    EXPECT_EQ(StepOfLast(), 6) << "the steps of before are left out";
}

TEST_F(XShowPaceTest, WhatNobodySeesIsNoFrame) {
    View.hide();
    View.SetEffectStep(1);
    View.LoadPicture(QStringLiteral("red"));
    View.RunEffect();
    WaitForEnd();
    EXPECT_EQ(View.Frames().Frames(), 0);
}

TEST_F(XShowPaceTest, EndsOnceWhereverItIsStopped) {
    for (const int StopAt : {0, 1, 30, 59}) {
        Put("red");
        Ended.clear();
        HandClock Hand;
        Begin("blue", 1, 100);
        for (int I = 0; I < StopAt; ++I) {
            LetRun(2);
            Hand.PutOn(1000 / 60. + Hair);
        }
        View.StopEffect();
        LetRun(20);
        EXPECT_EQ(Ended.size(), 1) << StopAt;
        EXPECT_EQ(At(50, 30), kBlue);
    }
}

TEST_F(XShowPaceTest, ASecondIsASecondOnTheMachinesOwnClock) {
    Put("red");
    Begin("blue", 1, 100);
    QElapsedTimer Watch;
    Watch.start();
    while (View.IsRunning() && Watch.elapsed() < 5000)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_GE(Watch.elapsed(), 999);
    EXPECT_LT(Watch.elapsed(), 4000) << "an idle machine takes 1000";
    EXPECT_LE(Steps.size(), 62);
}

TEST_F(XShowPaceTest, AClockThatHurriesLeavesStepsOut) {
    Put("red");
    Steps.clear();
    const harness::HastyClock Hasty;
    Begin("blue", 1, 100);
    WaitForEnd();
    EXPECT_LT(Steps.size(), 60);
    EXPECT_EQ(Steps.last().first().toDouble(), 1.0);
}
