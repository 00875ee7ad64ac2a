#include "controls/forms/frmLoading.h"

#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

#include "controls/forms/ScreenPointer.h"
#include "controls/forms/TestForm.h"
#include "harness/ScriptedBoxes.h"
#include "support/Fault.h"
#include "support/Services.h"

using namespace neb;
using namespace neb::harness;

namespace {

const QString AbortText = QStringLiteral("Are you sure you want to Abort the current process?");
const QString AbortTitle = QStringLiteral("Abort Confirmation");

struct LoadingTest : ::testing::Test {
    NoFormsLeft Clean;
    TestWorker Parent;
    std::shared_ptr<frmLoading> Meter = NewForm<frmLoading>();

    void Press(Qt::Key Key) const { QTest::keyClick(Meter.get(), Key); }
    // Ten items; what happens at one of them, while the window is up, is the test's.
    std::vector<int> CountTo10(int At, const std::function<void()>& Happens) {
        std::vector<int> Done;
        Parent.OnActivity = [this, At, Happens, &Done] {
            for (int I = 1; I <= 10 && !Parent.Aborted; ++I) {
                Done.push_back(I);
                if (I == At) QTimer::singleShot(0, Meter.get(), Happens);
                DoEvents();
            }
        };
        Meter->ShowProgressMeter(Parent);
        return Done;
    }
};

}  // namespace

TEST_F(LoadingTest, RunsTheWorkOnceInsideTheVisibleModalWindow) {
    Parent.OnActivity = [&] {
        EXPECT_TRUE(Meter->isVisible());
        EXPECT_TRUE(Meter->isModal());
        EXPECT_EQ(u"Loading Slides ...", Meter->windowTitle());
    };
    Meter->ShowProgressMeter(Parent);
    EXPECT_EQ(1, Parent.Activities);
    EXPECT_EQ(0, Parent.Operations);
}

TEST_F(LoadingTest, ClosesItselfWhenTheWorkerHasLeftItOpen) {
    Meter->ShowProgressMeter(Parent);
    EXPECT_FALSE(Meter->isVisible());
    EXPECT_FALSE(Meter->IsLoaded());
}

TEST_F(LoadingTest, MayBeUnloadedByTheWorkerWhichThenGoesOn) {
    bool After = false;
    Parent.OnActivity = [&] {
        Meter->ClearParent();
        EXPECT_TRUE(Meter->Unload());
        EXPECT_FALSE(Meter->isVisible());
        DoEvents();
        After = true;
    };
    Meter->ShowProgressMeter(Parent);
    EXPECT_TRUE(After);
    EXPECT_EQ(1, Parent.Activities);
    EXPECT_TRUE(LoadedForms().empty());
}

TEST_F(LoadingTest, ASecondActivationStartsNothing) {
    const auto Done = CountTo10(5, [&] {
        QEvent Again(QEvent::WindowActivate);
        QCoreApplication::sendEvent(Meter.get(), &Again);
        Meter->hide();
        Meter->show();
    });
    EXPECT_EQ(10u, Done.size());
    EXPECT_EQ(1, Parent.Activities);
}

TEST_F(LoadingTest, EscapeDoesNothingWhereTheWorkCannotBeStopped) {
    const ScriptedBoxes Boxes;
    EXPECT_EQ(10u, CountTo10(3, [&] { Press(Qt::Key_Escape); }).size());
    EXPECT_EQ(0, Boxes.ShownCount());
    EXPECT_EQ(0, Parent.Aborts);
}

TEST_F(LoadingTest, TheCloseButtonDoesNotCloseTheWindowUnderTheWork) {
    const ScriptedBoxes Boxes;
    const auto Done = CountTo10(3, [&] {
        EXPECT_FALSE(Meter->close());
        EXPECT_TRUE(Meter->isVisible());
    });
    EXPECT_EQ(10u, Done.size());
}

TEST_F(LoadingTest, EscapeAnsweredYesAbortsAtTheNextPoll) {
    ScriptedBoxes Boxes;
    Meter->SupportsAbort(true);
    bool StoodStill = false;
    size_t Before = 0;
    std::vector<int>* Seen = nullptr;
    std::vector<int> Done;
    Seen = &Done;
    Boxes.WhileNextIsOpen([&] {
        Before = Seen->size();
        QTest::qWait(20);
        StoodStill = Seen->size() == Before;
    });
    Boxes.Expect(AbortText, AbortTitle, BoxIcon::Question, BoxAnswer::Yes);
    Parent.OnActivity = [&] {
        for (int I = 1; I <= 10 && !Parent.Aborted; ++I) {
            Done.push_back(I);
            if (I == 4) QTimer::singleShot(0, Meter.get(), [&] { Press(Qt::Key_Escape); });
            DoEvents();
        }
    };
    Meter->ShowProgressMeter(Parent);
    EXPECT_TRUE(StoodStill);
    EXPECT_EQ(Before, Done.size());
    EXPECT_LT(Done.size(), 10u);
    EXPECT_EQ(1, Parent.Aborts);
    EXPECT_EQ(1, Parent.Activities);
}

TEST_F(LoadingTest, EscapeAnsweredNoLeavesTheWorkRunningFromWhereItStood) {
    ScriptedBoxes Boxes;
    Meter->SupportsAbort(true);
    Boxes.Expect(AbortText, AbortTitle, BoxIcon::Question, BoxAnswer::No);
    const auto Done = CountTo10(4, [&] { Press(Qt::Key_Escape); });
    EXPECT_EQ((std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}), Done);
    EXPECT_EQ(0, Parent.Aborts);
    EXPECT_EQ(1, Parent.Activities);
}

TEST_F(LoadingTest, TheStopButtonAsksAsEscapeDoes) {
    ScriptedBoxes Boxes;
    auto* cmdStop = Meter->findChild<QPushButton*>(QStringLiteral("cmdStop"));
    ASSERT_NE(nullptr, cmdStop);
    Meter->SupportsAbort(true);
    Boxes.Expect(AbortText, AbortTitle, BoxAnswer::Yes);
    const auto Done = CountTo10(2, [&] { QTest::mouseClick(cmdStop, Qt::LeftButton); });
    EXPECT_LT(Done.size(), 10u);
    EXPECT_EQ(1, Parent.Aborts);
}

TEST_F(LoadingTest, OtherKeysDoNotAskToAbort) {
    const ScriptedBoxes Boxes;
    Meter->SupportsAbort(true);
    const auto Done = CountTo10(2, [&] {
        for (const Qt::Key Key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_A, Qt::Key_F4}) Press(Key);
    });
    EXPECT_EQ(10u, Done.size());
}

TEST_F(LoadingTest, SupportsAbortCalledBeforeTheShowSurvivesTheLoad) {
    Meter->SupportsAbort(true);
    EXPECT_TRUE(Meter->IsLoaded());
    auto* cmdStop = Meter->findChild<QPushButton*>(QStringLiteral("cmdStop"));
    Parent.OnActivity = [&] { EXPECT_TRUE(cmdStop->isEnabled()); };
    Meter->ShowProgressMeter(Parent);
    EXPECT_EQ(1, Parent.Activities);
}

TEST_F(LoadingTest, TheWorkerItselfMaySwitchTheAbortOnAndOff) {
    ScriptedBoxes Boxes;
    Parent.OnActivity = [&] {
        Press(Qt::Key_Escape);
        Meter->SupportsAbort(true);
        Boxes.Expect(AbortText, AbortTitle, BoxAnswer::No);
        Press(Qt::Key_Escape);
        Meter->SupportsAbort(false);
        Press(Qt::Key_Escape);
    };
    Meter->ShowProgressMeter(Parent);
    EXPECT_EQ(1, Boxes.ShownCount());
}

TEST_F(LoadingTest, AnAbortAfterTheParentHasGoneReachesNobody) {
    ScriptedBoxes Boxes;
    Meter->SupportsAbort(true);
    Boxes.WhileNextIsOpen([&] { Meter->ClearParent(); });
    Boxes.Expect(AbortText, AbortTitle, BoxAnswer::Yes);
    CountTo10(2, [&] { Press(Qt::Key_Escape); });
    EXPECT_EQ(0, Parent.Aborts);
}

TEST_F(LoadingTest, AFaultOfTheWorkPassesOutWithTheWindowGoneAndThePointerBack) {
    Parent.OnActivity = [] {
        const PointerScope Busy(Pointer::Hourglass);
        EXPECT_EQ(Pointer::Hourglass, ScreenPointer());
        throw Fault(QStringLiteral("cannot read"), QStringLiteral("a.jpg"));
    };
    EXPECT_THROW(Meter->ShowProgressMeter(Parent), Fault);
    EXPECT_FALSE(Meter->isVisible());
    EXPECT_TRUE(LoadedForms().empty());
    EXPECT_EQ(Pointer::Default, ScreenPointer());
}

TEST_F(LoadingTest, AFaultAfterTheWorkerHasUnloadedTheWindowStillPassesOut) {
    Parent.OnActivity = [&] {
        Meter->Unload();
        throw Fault(QStringLiteral("cannot read"));
    };
    EXPECT_THROW(Meter->ShowProgressMeter(Parent), Fault);
    EXPECT_TRUE(LoadedForms().empty());
}

TEST_F(LoadingTest, OutlivesItsLastReferenceWhenItsParentIsClosedAtAYield) {
    const QPointer<frmLoading> Watched = Meter.get();
    bool Closing = false;
    int Items = 0;
    Parent.OnActivity = [&] {
        QTimer::singleShot(0, Meter.get(), [&] {
            Closing = true;
            Meter->ClearParent();
            Meter.reset();
        });
        for (; Items < 10 && !Closing; ++Items) DoEvents();
        EXPECT_FALSE(Watched.isNull());
    };
    Meter->ShowProgressMeter(Parent);
    EXPECT_LT(Items, 10);
    Settle();
    EXPECT_TRUE(Watched.isNull());
    EXPECT_TRUE(LoadedForms().empty());
}

TEST_F(LoadingTest, ClosesWhenItsParentHasGoneBeforeTheFirstActivation) {
    bool Stuck = false;
    QTimer::singleShot(500, Meter.get(), [&] {
        Stuck = true;
        Meter->Unload();
    });
    Meter->Load();
    QObject Early;
    QMetaObject::invokeMethod(
        &Early, [&] { Meter->ClearParent(); }, Qt::QueuedConnection);
    Meter->ShowProgressMeter(Parent);
    EXPECT_EQ(0, Parent.Activities);
    EXPECT_FALSE(Stuck);
}

TEST_F(LoadingTest, CarriesASlideLoadInsideTheOpenWindowAndLeavesItsBarInPlace) {
    TestWorker Slide;
    Slide.OnActivity = [&] {
        EXPECT_EQ(7, Meter->pgbLoadingProgress()->value());
        Meter->ClearAltParent();
    };
    Parent.OnActivity = [&] {
        Meter->pgbLoadingProgress()->setMaximum(20);
        Meter->pgbLoadingProgress()->setValue(7);
        Meter->LoadSlide(Slide);
        EXPECT_EQ(1, Slide.Activities) << "at once";
        EXPECT_TRUE(Meter->isVisible());
        EXPECT_EQ(7, Meter->pgbLoadingProgress()->value());
        EXPECT_EQ(20, Meter->pgbLoadingProgress()->maximum());
        EXPECT_EQ(1u, LoadedForms().size()) << "no second window";
    };
    Meter->ShowProgressMeter(Parent);
    EXPECT_EQ(1, Parent.Activities);
}

TEST_F(LoadingTest, ShowsThePictureAtHandAndClearsItWithAnEmptyOne) {
    const auto* Picture1 = Meter->findChild<QLabel*>(QStringLiteral("Picture1"));
    ASSERT_NE(nullptr, Picture1);
    QImage Thumbnail(72, 72, QImage::Format_RGB32);
    Thumbnail.fill(Qt::red);
    Parent.OnActivity = [&] {
        Meter->ShowPicture(Thumbnail);
        Meter->Refresh();
        EXPECT_EQ(QSize(72, 72), Picture1->pixmap().size());
        QTest::qWait(30);
        Meter->ShowPicture({});
        Meter->Refresh();
        EXPECT_TRUE(Picture1->pixmap().isNull());
    };
    Meter->ShowProgressMeter(Parent);
}
