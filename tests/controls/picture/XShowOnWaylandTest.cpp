// The view on a Wayland desktop, which tells when it is ready for a frame. Where the tests run on
// another platform these are left out; the walk through Wayland runs them.
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include "XShowRig.h"
#include "controls/picture/ScreenRefresh.h"

using namespace neb;
using namespace neb::test;

namespace {

class XShowOnWayland : public XShowRig {
  protected:
    void SetUp() override {
        if (!QGuiApplication::platformName().startsWith(u"wayland"))
            GTEST_SKIP() << "this is no Wayland desktop";
        View.SetPacing(XShow::Pacing::Screen);
        View.SetShowOptionD(true);
        View.resize(640, 480);
        QElapsedTimer Watch;
        Watch.start();
        while (!View.windowHandle()->isExposed() && Watch.elapsed() < 5000) LetRun(5);
        ASSERT_TRUE(View.windowHandle()->isExposed());
        Put("slope1 640x480");
    }
};

}  // namespace

TEST_F(XShowOnWayland, TheDesktopTellsWhenItHasTakenTheFrameBefore) {
    ScreenRefresh Refresh(View);
    QSignalSpy Reached(&Refresh, &ScreenRefresh::Reached);
    const double Period = 1000 / View.screen()->refreshRate();
    const double Start = TheServices().Time->Ticks();
    int Told = 0;
    for (int I = 0; I < 30; ++I) {
        View.repaint();
        Refresh.WaitForRefresh(TheServices().Time->Ticks(), Period);
        QElapsedTimer Watch;
        Watch.start();
        while (Reached.size() <= I && Watch.elapsed() < 5000) LetRun(0);
        ASSERT_EQ(Reached.size(), I + 1);
        Told += Reached[I][0].toBool();
    }
    EXPECT_GT(Told, 15) << "a busy desktop is silent now and then";
    const double Taken = TheServices().Time->Ticks() - Start;
    EXPECT_GT(Taken, 25 * Period) << "no two of them in one refresh";
}

TEST_F(XShowOnWayland, ATransitionTakesItsSecondInNoMoreFramesThanThereAreRefreshes) {
    Begin("slope5 640x480", 1, 100, 1);
    const double Start = TheServices().Time->Ticks();
    WaitForEnd();
    const double Taken = TheServices().Time->Ticks() - Start;
    EXPECT_GE(Taken, 999);
    EXPECT_LT(Taken, 2000);
    EXPECT_LE(View.Frames().Frames(), Taken * View.screen()->refreshRate() / 1000 + 2);
    EXPECT_GE(View.Frames().Frames(), 10);
    std::printf("%s\n", qPrintable(View.Frames().Text()));
}

TEST_F(XShowOnWayland, AWindowThatIsHiddenOnTheWayComesToItsEndInTime) {
    Begin("slope5 640x480", 1, 100, 1);
    LetRun(200);
    View.hide();
    WaitForEnd();
    EXPECT_EQ(Ended.size(), 2);
    View.show();
}
