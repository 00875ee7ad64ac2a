#include "show/SlideClock.h"

#include <gtest/gtest.h>

#include "support/Services.h"

namespace neb::test {
namespace {

class DayClock : public Clock {
  public:
    QDateTime Now() const override {
        return QDate(2004, 5, 6).startOfDay().addMSecs(qRound64(Seconds * 1000));
    }
    double Ticks() const override { return Seconds * 1000; }
    double Seconds = 40000;
};

struct SlideClockRun : ::testing::Test {
    double After(double Seconds) {
        Time.Seconds += Seconds;
        return Of.Elapsed();
    }
    DayClock Time;
    SlideClock Of{Time};
};

TEST_F(SlideClockRun, CountsFromItsStart) {
    Of.Start();
    EXPECT_EQ(After(0), 0);
    EXPECT_NEAR(After(3.5), 3.5, 1e-9);
    Of.Start();
    EXPECT_NEAR(After(0.25), 0.25, 1e-9);
    EXPECT_NEAR(Of.Due(10), 40013.5, 1e-9);
}

TEST_F(SlideClockRun, GoesOnOverMidnight) {
    Time.Seconds = 86390;
    Of.Start();
    EXPECT_NEAR(After(25), 15 + 10, 1e-9);
    EXPECT_NEAR(Of.Due(20), 86410, 1e-9);
    Of.StartAt(Of.Due(20));
    EXPECT_NEAR(Of.Elapsed(), 5, 1e-9);
}

// A clock in whole milliseconds may stand a hair before the moment at which a slide was due.
TEST_F(SlideClockRun, AStartThatLiesAMomentAheadIsNoDayAway) {
    for (const double Now : {40000.0, 86399.999}) {
        Time.Seconds = Now;
        Of.StartAt(Now + 0.002);
        EXPECT_EQ(Of.Elapsed(), 0) << Now;
        EXPECT_NEAR(After(5), 4.998, 1e-9) << Now;
    }
}

TEST_F(SlideClockRun, StandsStillWhileItIsHeldAndGoesOnFromThere) {
    Of.Start();
    After(3);
    Of.Hold();
    EXPECT_NEAR(After(1000), 3, 1e-9);
    Of.GoOn();
    EXPECT_NEAR(After(0), 3, 1e-9);
    EXPECT_NEAR(After(2), 5, 1e-9);
    Of.Hold();
    EXPECT_NEAR(After(86400 + 17), 5, 1e-9) << "a day, too";
    Of.GoOn();
    EXPECT_NEAR(After(1), 6, 1e-9);
}

TEST_F(SlideClockRun, GoesOnOverMidnightWhateverWasHeld) {
    Time.Seconds = 86390;
    Of.Start();
    After(9);
    Of.Hold();
    EXPECT_NEAR(After(-86399 + 4), 9, 1e-9);
    Of.GoOn();
    EXPECT_NEAR(After(2), 11, 1e-9) << "it began, as it were, before midnight";
}

TEST_F(SlideClockRun, AStartEndsAHoldAndGoingOnWithoutOneIsNothing) {
    Of.Start();
    After(3);
    Of.GoOn();
    EXPECT_NEAR(After(1), 4, 1e-9);
    Of.Hold();
    Of.Start();
    EXPECT_NEAR(After(2), 2, 1e-9);
}

// Else the show would stand still for as long as the clock was set back.
TEST_F(SlideClockRun, AClockThatWasSetBackEndsTheSlide) {
    Of.Start();
    EXPECT_TRUE(SlideClock::IsOver(After(-3600), 20));
}

TEST_F(SlideClockRun, ATimeIsOverToTheMillisecond) {
    for (int I = 0; I < 10000; ++I) {
        Time.Seconds = 40000 + I * 0.037;
        Of.Start();
        EXPECT_FALSE(SlideClock::IsOver(After(9.999), 10)) << I;
        EXPECT_TRUE(SlideClock::IsOver(After(0.001), 10)) << I;
    }
}

// Each sum is a hair off; that may not grow into a tick that comes too early for the slide.
TEST_F(SlideClockRun, ATimeIsOverOnTimeHoweverManyWereAddedUp) {
    for (const double Interval : {0.1, 0.3, 0.7, 1.1}) {
        Time.Seconds = 40000;
        Of.Start();
        for (int Slide = 1; Slide <= 10000; ++Slide) {
            Time.Seconds = 40000 + Slide * Interval;
            ASSERT_TRUE(SlideClock::IsOver(Of.Elapsed(), Interval)) << Interval << ' ' << Slide;
            Of.StartAt(Of.Due(Interval));
        }
    }
}

}  // namespace
}  // namespace neb::test
