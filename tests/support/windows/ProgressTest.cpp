#include "support/windows/Progress.h"

#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

#include "harness/ScriptedBoxes.h"
#include "support/Fault.h"
#include "support/Services.h"
#include "support/windows/ScreenPointer.h"
#include "support/windows/TestForm.h"
#include "support/windows/frmLoading.h"
#include "support/windows/frmProgress.h"

using namespace neb;
using namespace neb::harness;

namespace {

const QString AbortText = QStringLiteral("Are you sure you want to Abort the current process?");
const QString AbortTitle = QStringLiteral("Abort Confirmation");

class Worker : public ProgressParent {
  public:
    std::function<void()> OnActivity, OnOperation;
    int Activities = 0, Operations = 0, Aborts = 0;
    bool Aborted = false;

    void DoActivity() override {
        ++Activities;
        if (OnActivity) OnActivity();
    }
    void StartOperation() override {
        ++Operations;
        if (OnOperation) OnOperation();
    }
    void DoAbort() override {
        ++Aborts;
        Aborted = true;
    }
};

struct LoadingTest : ::testing::Test {
    NoFormsLeft Clean;
    Worker Parent;
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

struct ProgressTest : ::testing::Test {
    NoFormsLeft Clean;
    Worker Parent;
    std::shared_ptr<frmProgress> Meter = NewForm<frmProgress>();
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
    Worker Slide;
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

namespace {

// A window that is the parent of its own long work, as the slide managers are.
class WorkingForm : public TestForm, public ProgressParent {
  public:
    std::shared_ptr<frmLoading> Loading;
    std::shared_ptr<frmProgress> Progress;
    std::function<void()> Work;
    void DoActivity() override { Work(); }
    void StartOperation() override { Work(); }
};

// Runs Show in a button of a window that only the list of forms holds, and unloads that window
// at a yield of the work.
struct ClosedAtAYield : ::testing::Test {
    NoFormsLeft Clean;
    QPointer<WorkingForm> Window;
    bool AliveAfterYield = false;

    void Run(const std::function<void(WorkingForm&)>& Show) {
        auto Made = NewForm<WorkingForm>();
        Window = Made.get();
        Made->Work = [this] {
            QTimer::singleShot(0, Window, [this] { Window->Unload(); });
            for (int I = 0; I < 20; ++I) DoEvents();
            AliveAfterYield = !Window.isNull();
        };
        auto* Button = new QPushButton(Made.get());
        QObject::connect(Button, &QPushButton::clicked, [&] { Show(*Window); });
        Made->ShowModeless();
        Made.reset();
        QTimer::singleShot(0, Button, [Button] { QTest::mouseClick(Button, Qt::LeftButton); });
        QTest::qWait(100);
    }
};

}  // namespace

TEST_F(ClosedAtAYield, AParentWindowOfALoadLivesUntilItsWorkHasReturned) {
    Run([](WorkingForm& Parent) {
        Parent.Loading = NewForm<frmLoading>();
        Parent.Loading->ShowProgressMeter(Parent);
    });
    EXPECT_TRUE(AliveAfterYield);
    EXPECT_TRUE(Window.isNull()) << "and no longer";
}

TEST_F(ClosedAtAYield, AParentWindowOfAnOperationLivesUntilItsWorkHasReturned) {
    Run([](WorkingForm& Parent) {
        Parent.Progress = NewForm<frmProgress>();
        Parent.Progress->ShowProgressMeter(Parent);
    });
    EXPECT_TRUE(AliveAfterYield);
    EXPECT_TRUE(Window.isNull()) << "and no longer";
}

TEST_F(ProgressTest, RunsTheOperationOnceAndCloses) {
    Parent.OnOperation = [&] {
        EXPECT_TRUE(Meter->isVisible());
        EXPECT_TRUE(Meter->isModal());
        EXPECT_EQ(u"Working ...", Meter->windowTitle());
        Meter->pgbLoadingProgress()->setValue(50);
        Meter->Refresh();
        DoEvents();
    };
    Meter->ShowProgressMeter(Parent);
    EXPECT_EQ(1, Parent.Operations);
    EXPECT_EQ(0, Parent.Activities);
    EXPECT_FALSE(Meter->isVisible());
    EXPECT_TRUE(LoadedForms().empty());
}

TEST_F(ProgressTest, MayBeUnloadedByTheWorker) {
    Parent.OnOperation = [&] {
        Meter->ClearParent();
        Meter->Unload();
    };
    Meter->ShowProgressMeter(Parent);
    EXPECT_EQ(1, Parent.Operations);
    EXPECT_TRUE(LoadedForms().empty());
}

TEST_F(ProgressTest, EscapeAndTheCloseButtonDoNothing) {
    const ScriptedBoxes Boxes;
    Parent.OnOperation = [&] {
        QTest::keyClick(Meter.get(), Qt::Key_Escape);
        EXPECT_FALSE(Meter->close());
        EXPECT_TRUE(Meter->isVisible());
    };
    Meter->ShowProgressMeter(Parent);
    EXPECT_EQ(1, Parent.Operations);
    EXPECT_EQ(0, Parent.Aborts);
    EXPECT_EQ(0, Boxes.ShownCount());
}

TEST_F(ProgressTest, ASecondActivationStartsNothing) {
    Parent.OnOperation = [&] {
        QEvent Again(QEvent::WindowActivate);
        QCoreApplication::sendEvent(Meter.get(), &Again);
        QTest::qWait(10);
    };
    Meter->ShowProgressMeter(Parent);
    EXPECT_EQ(1, Parent.Operations);
}

TEST_F(ProgressTest, AFaultOfTheOperationPassesOutWithTheWindowGone) {
    Parent.OnOperation = [] { throw Fault(QStringLiteral("disk full")); };
    EXPECT_THROW(Meter->ShowProgressMeter(Parent), Fault);
    EXPECT_TRUE(LoadedForms().empty());
}

TEST_F(ProgressTest, ClosesWhenItsParentHasGoneBeforeTheFirstActivation) {
    bool Stuck = false;
    QTimer::singleShot(500, Meter.get(), [&] {
        Stuck = true;
        Meter->Unload();
    });
    QObject Early;
    QMetaObject::invokeMethod(
        &Early, [&] { Meter->ClearParent(); }, Qt::QueuedConnection);
    Meter->ShowProgressMeter(Parent);
    EXPECT_EQ(0, Parent.Operations);
    EXPECT_FALSE(Stuck);
}
