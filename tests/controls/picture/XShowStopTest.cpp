// The view stopped, started again and deleted at every moment of a transition.
#include <QEventLoop>
#include <QMouseEvent>
#include <QTimer>

#include "XShowRig.h"

using namespace neb;
using namespace neb::test;

using XShowStopTest = XShowRig;

namespace {

// A view of its own that a test may delete.
struct LooseView {
    LooseView() {
        XShow::SetReader(ReadByName);
        View->SetPacing(XShow::Pacing::EveryStep);
        View->resize(100, 60);
        View->show();
        View->LoadPicture(QStringLiteral("red"));
        View->SetEffectStep(10);
        QObject::connect(View, &XShow::EffectEnded, View, [this] { ++Ended; });
    }
    ~LooseView() {
        delete View;
        XShow::SetReader({});
    }

    QPointer<WatchedShow> View = new WatchedShow;
    int Ended = 0;
};

}  // namespace

TEST_F(XShowStopTest, StoppedBeforeTheFirstStepItEndsOnceAndTakesNoStep) {
    Begin("red", 1, 1000);
    View.StopEffect();
    LetRun(30);
    EXPECT_EQ(Ended.size(), 1);
    EXPECT_TRUE(Steps.isEmpty());
    EXPECT_EQ(At(50, 30), kRed);
}

TEST_F(XShowStopTest, StoppedAtAnyStepByWhoeverHearsOfIt) {
    for (int Stop = 1; Stop <= 10; ++Stop) {
        Ended.clear();
        int Heard = 0;
        QObject Listener;
        QObject::connect(&View, &XShow::EffectStepped, &Listener, [&] {
            if (++Heard == Stop) View.StopEffect();
        });
        Begin(Stop % 2 ? "blue" : "red", 10);
        WaitForEnd();
        LetRun(10);
        EXPECT_EQ(Ended.size(), 1) << Stop;
        EXPECT_EQ(Heard, Stop);
        EXPECT_EQ(At(50, 30), Stop % 2 ? kBlue : kRed);
    }
}

TEST_F(XShowStopTest, StoppedWhileItPaintsItEndsOnceAndTakesNoFurtherStep) {
    for (const bool Whole : {true, false}) {
        View.SetShowOptionD(Whole);
        Put("red");
        HandClock Hand;
        Begin("blue", 10, 100);
        StepOn(Hand, 3);
        LetRun();
        Ended.clear();
        Steps.clear();
        View.WhilePainting = [this] { View.StopEffect(); };
        Hand.PutOn(1000);
        LetRun(40);
        View.WhilePainting = {};
        EXPECT_FALSE(View.IsRunning());
        EXPECT_EQ(Ended.size(), 1);
        EXPECT_LE(Steps.size(), Whole ? 0 : 1) << "a step that was not stopped before its painting";
        EXPECT_EQ(At(50, 30), kBlue);
    }
}

TEST_F(XShowStopTest, StoppedFromAnEventLoopInsideAStep) {
    QEventLoop Inner;
    bool Entered = false;
    QObject::connect(&View, &XShow::EffectStepped, &View, [&] {
        if (std::exchange(Entered, true)) return;
        QTimer::singleShot(20, &View, [&] {
            View.StopEffect();
            Inner.quit();
        });
        Inner.exec();
    });
    Begin("red", 1, 100);
    WaitForEnd();
    const auto Before = Steps.size();
    LetRun(40);
    EXPECT_EQ(Ended.size(), 1);
    EXPECT_EQ(Steps.size(), Before);
}

TEST_F(XShowStopTest, EndsOnceWhenAnEventLoopInsideAStepSeesItToItsEnd) {
    for (const int At : {1, 4, 5}) {
        Ended.clear();
        int Heard = 0;
        QObject Listener;
        QObject::connect(&View, &XShow::EffectStepped, &Listener, [&] {
            if (++Heard == At) LetRun(40);
        });
        Begin("red", 20);
        WaitForEnd();
        LetRun(20);
        EXPECT_EQ(Ended.size(), 1) << At;
        EXPECT_EQ(Heard, 5);
    }
}

TEST_F(XShowStopTest, ATransitionBegunInsideAStepTakesThePlaceOfTheFirst) {
    for (const int At : {1, 3, 5}) {
        Put("red");
        Ended.clear();
        int Heard = 0;
        QObject Listener;
        QObject::connect(&View, &XShow::EffectStepped, &Listener, [&] {
            if (++Heard == At) Begin("green", 50);
        });
        Begin("blue", 20);
        WaitForEnd();
        EXPECT_EQ(Ended.size(), 2) << At;
        EXPECT_EQ(Heard, At + 2);
        EXPECT_EQ(this->At(50, 30), kGreen);
    }
}

// The answer to the end of the first begins a transition of its own, which is the latest wish.
TEST_F(XShowStopTest, ATransitionBegunByTheAnswerToAnEndOutlivesTheOneThatEndedIt) {
    int Answers = 0;
    QObject::connect(&View, &XShow::EffectEnded, &View, [&] {
        if (++Answers == 1) Begin("green", 50);
    });
    Begin("red", 10, 100);
    View.LoadPicture(QStringLiteral("blue"));
    View.RunEffect();
    EXPECT_TRUE(View.IsRunning());
    WaitForEnd();
    LetRun(20);
    EXPECT_EQ(Answers, 2);
    EXPECT_EQ(At(50, 30), kGreen);
}

TEST_F(XShowStopTest, StoppedWithNothingLoadedItStillEndsOnce) {
    View.RunEffect();
    View.StopEffect();
    LetRun(20);
    EXPECT_EQ(Ended.size(), 1);
}

TEST_F(XShowStopTest, APictureThatCannotBeReadLeavesTheTransitionAlone) {
    HandClock Hand;
    Begin("red", 10, 50);
    StepOn(Hand, 2);
    View.Prefetch(QStringLiteral("bad"));
    EXPECT_THROW(View.LoadPicture(QStringLiteral("bad")), Fault);
    EXPECT_TRUE(View.IsRunning());
    View.Prefetch(QStringLiteral("blue"));
    View.LoadPicture(QStringLiteral("blue"));
    StepOn(Hand, 8);
    EXPECT_EQ(Ended.size(), 1);
    EXPECT_EQ(At(50, 30), kRed);
}

TEST(XShowDeletion, InTheMiddleOfATransitionNothingIsHeardOfIt) {
    LooseView Loose;
    Loose.View->RunEffect();
    LetRun(5);
    delete Loose.View;
    LetRun(20);
    EXPECT_LE(Loose.Ended, 1);
}

TEST(XShowDeletion, InsideAnyStepIsSafe) {
    for (int Step = 1; Step <= 10; ++Step) {
        LooseView Loose;
        Loose.View->SetShowOptionD(Step % 2);
        int Heard = 0;
        QObject::connect(Loose.View, &XShow::EffectStepped, qApp, [&] {
            if (++Heard == Step) delete Loose.View;
        });
        Loose.View->RunEffect();
        LetRun(20);
        EXPECT_EQ(Heard, Step);
        EXPECT_FALSE(Loose.View);
        EXPECT_EQ(Loose.Ended, 0);
    }
}

TEST(XShowDeletion, InsideItsEndIsSafeHoweverItCame) {
    using Ending = void (*)(XShow&);
    const Ending Endings[] = {
        [](XShow&) { LetRun(30); },
        [](XShow& View) { View.StopEffect(); },
        [](XShow& View) { View.RunEffect(); },
    };
    for (const Ending End : Endings) {
        LooseView Loose;
        QObject::connect(Loose.View, &XShow::EffectEnded, qApp, [&] { delete Loose.View; });
        Loose.View->RunEffect();
        End(*Loose.View);
        EXPECT_FALSE(Loose.View);
        EXPECT_EQ(Loose.Ended, 1);
    }
}

TEST(XShowDeletion, InsideItsClicksIsSafe) {
    for (const bool Down : {true, false}) {
        LooseView Loose;
        const auto Delete = [&] { delete Loose.View; };
        if (Down)
            QObject::connect(Loose.View, &XShow::SurfaceMouseDown, qApp, Delete);
        else
            QObject::connect(Loose.View, &XShow::SurfaceClick, qApp, Delete);
        for (const auto Type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent Event(Type, QPointF(5, 5), QPointF(5, 5), Qt::LeftButton, Qt::LeftButton,
                              Qt::NoModifier);
            if (Loose.View) QCoreApplication::sendEvent(Loose.View, &Event);
        }
        EXPECT_FALSE(Loose.View);
    }
}

TEST(XShowDeletion, WhileAPictureIsReadAheadAndATransitionRuns) {
    LooseView Loose;
    Loose.View->RunEffect();
    Loose.View->Prefetch(QStringLiteral("slope3 900x700"));
    LetRun(2);
    delete Loose.View;
    LetRun(5);
    EXPECT_EQ(gReads > 0, true);
}
