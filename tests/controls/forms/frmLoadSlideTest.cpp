#include "controls/forms/frmLoadSlide.h"

#include <QPushButton>
#include <QScreen>
#include <QWindow>

#include "controls/forms/TestForm.h"
#include "support/Fault.h"
#include "support/Services.h"

using namespace neb;
using namespace neb::harness;

namespace {

// A desktop that never reports the activation of a window that it does not show.
class NeverActivated : public frmLoadSlide {
  protected:
    void showEvent(QShowEvent* Event) override { QDialog::showEvent(Event); }
};

struct LoadSlideTest : ::testing::Test {
    NoFormsLeft Clean;
    TestWorker Buffer;
    std::shared_ptr<frmLoadSlide> Window = NewForm<frmLoadSlide>();
};

void ActivateAgain(QWidget& Window) {
    QEvent Again(QEvent::WindowActivate);
    QCoreApplication::sendEvent(&Window, &Again);
    QTest::qWait(5);
}

}  // namespace

TEST_F(LoadSlideTest, RunsTheLoadOnceAndCloses) {
    Window->LoadSlide(Buffer);
    EXPECT_EQ(1, Buffer.Activities);
    EXPECT_TRUE(LoadedForms().empty());
    EXPECT_FALSE(Window->Timer1.isActive());
    EXPECT_EQ(u"Loading Slide", Window->windowTitle());
}

TEST_F(LoadSlideTest, IsNeverSeenAndStandsPastTheEdgeOfTheScreen) {
    Buffer.OnActivity = [&] {
        QTest::qWait(20);
        EXPECT_FALSE(Window->windowHandle() && Window->windowHandle()->isVisible());
        const QRect Screen = Window->screen()->virtualGeometry();
        EXPECT_FALSE(Screen.intersects(Window->frameGeometry()));
        EXPECT_GE(Window->x(), Screen.right() + 13);
        EXPECT_GE(Window->y(), Screen.bottom() + 13);
    };
    Window->LoadSlide(Buffer);
    EXPECT_EQ(1, Buffer.Activities);
}

TEST_F(LoadSlideTest, KeepsTheUserFromOtherWindowsAllTheSame) {
    QPushButton Other;
    int Clicks = 0;
    QObject::connect(&Other, &QPushButton::clicked, [&] { ++Clicks; });
    Other.show();
    QTest::qWait(10);
    Buffer.OnActivity = [&] {
        QTest::mouseClick(Other.windowHandle(), Qt::LeftButton, {}, Other.rect().center());
        DoEvents();
    };
    Window->LoadSlide(Buffer);
    EXPECT_EQ(0, Clicks);
    QTest::mouseClick(Other.windowHandle(), Qt::LeftButton, {}, Other.rect().center());
    EXPECT_EQ(1, Clicks) << "afterwards it answers again";
}

TEST_F(LoadSlideTest, ItsTimerRunsFromTheLoadWithFiveSeconds) {
    Window->Load();
    EXPECT_TRUE(Window->Timer1.isActive());
    EXPECT_EQ(5000, Window->Timer1.interval());
    Window->Unload();
    EXPECT_FALSE(Window->Timer1.isActive());
}

TEST_F(LoadSlideTest, TheTimerStartsTheLoadWhenNoActivationComesAndOnlyOnce) {
    const auto Silent = NewForm<NeverActivated>();
    Silent->Timer1.setInterval(20);
    Buffer.OnActivity = [&] {
        EXPECT_FALSE(Silent->Timer1.isActive());
        ActivateAgain(*Silent);
        QTest::qWait(50);
    };
    Silent->LoadSlide(Buffer);
    EXPECT_EQ(1, Buffer.Activities);
    EXPECT_TRUE(LoadedForms().empty());
}

TEST_F(LoadSlideTest, TheTimerDoesNotStartALoadThatTheActivationHasStarted) {
    Window->Timer1.setInterval(10);
    Buffer.OnActivity = [] { QTest::qWait(60); };
    Window->LoadSlide(Buffer);
    EXPECT_EQ(1, Buffer.Activities);
}

TEST_F(LoadSlideTest, AFaultOfTheLoadPassesOutWithTheWindowGone) {
    Buffer.OnActivity = [] { throw Fault(QStringLiteral("no picture")); };
    EXPECT_THROW(Window->LoadSlide(Buffer), Fault);
    EXPECT_TRUE(LoadedForms().empty());
}

TEST_F(LoadSlideTest, AFaultOfALoadThatTheTimerStartedPassesOutAsWell) {
    const auto Silent = NewForm<NeverActivated>();
    Silent->Timer1.setInterval(20);
    Buffer.OnActivity = [] { throw Fault(QStringLiteral("no picture")); };
    bool Hung = false;
    QTimer::singleShot(500, Silent.get(), [&] {
        Hung = true;
        Silent->Unload();
    });
    EXPECT_THROW(Silent->LoadSlide(Buffer), Fault);
    EXPECT_FALSE(Hung);
}

TEST_F(LoadSlideTest, MayBeUnloadedByTheLoadItself) {
    Buffer.OnActivity = [&] {
        Window->ClearParent();
        Window->Unload();
    };
    Window->LoadSlide(Buffer);
    EXPECT_EQ(1, Buffer.Activities);
    EXPECT_TRUE(LoadedForms().empty());
}

TEST_F(LoadSlideTest, EscapeDoesNothing) {
    Buffer.OnActivity = [&] {
        QTest::keyClick(Window.get(), Qt::Key_Escape);
        EXPECT_TRUE(Window->IsLoaded());
    };
    Window->LoadSlide(Buffer);
    EXPECT_EQ(1, Buffer.Activities);
}
