// How long a show keeps the screen from blanking: while it runs, and ten minutes of a pause.
#include "ProjectorRig.h"

namespace neb::test {
namespace {

using Projector = frmSlideShowProjector;

// Its ticks go on by the real clock and by what a test adds.
class LeapingClock : public SetClock {
  public:
    double Ticks() const override { return SetClock::Ticks() + Leapt; }
    double Leapt = 0;
};

class BlankingOfAShow : public ProjectorRig {
  protected:
    BlankingOfAShow() {
        TheServices().Time = &Leaping;
        AddSlides(2);
    }
    void WaitMinutes(double Minutes) {
        Leaping.Leapt += Minutes * 60000;
        Spin(1200);  // it looks every second
    }
    LeapingClock Leaping;
};

TEST_F(BlankingOfAShow, IsHeldTenMinutesOfAPauseAndAgainWhenTheShowGoesOn) {
    Run([&](Projector& Window) {
        EXPECT_EQ(1, Blanking.Held);
        Window.PlayPause();
        WaitMinutes(9.8);
        EXPECT_EQ(1, Blanking.Held) << "a pause for a question or two";
        WaitMinutes(0.2);
        EXPECT_EQ(0, Blanking.Held);
        Window.PlayPause();
        EXPECT_EQ(1, Blanking.Held);
    });
    EXPECT_EQ(0, Blanking.Held);
    EXPECT_EQ(2, Blanking.Asked);
}

TEST_F(BlankingOfAShow, IsLetGoInAStoppedShowAsWellAndOnceOnly) {
    Run([&](Projector& Window) {
        Window.StopRestart();
        WaitMinutes(10.1);
        EXPECT_EQ(0, Blanking.Held);
    });
    EXPECT_EQ(0, Blanking.Held);
}

TEST_F(BlankingOfAShow, IsHeldThroughAnHourOfARunningShow) {
    Put("Timeout", "10000");
    Run([&](Projector&) {
        WaitMinutes(60);
        EXPECT_EQ(1, Blanking.Held);
    });
}

TEST_F(BlankingOfAShow, CountsEachPauseByItself) {
    Run([&](Projector& Window) {
        Window.PlayPause();
        WaitMinutes(6);
        Window.PlayPause();
        Window.PlayPause();
        WaitMinutes(6);
        EXPECT_EQ(1, Blanking.Held);
    });
}

}  // namespace
}  // namespace neb::test
