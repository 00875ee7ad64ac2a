#include "controls/forms/frmProgress.h"

#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

#include "controls/forms/TestForm.h"
#include "controls/forms/frmLoading.h"
#include "harness/HastyClock.h"
#include "harness/ScriptedBoxes.h"
#include "support/Fault.h"
#include "support/Services.h"

using namespace neb;
using namespace neb::harness;

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

struct ProgressTest : ::testing::Test {
    NoFormsLeft Clean;
    TestWorker Parent;
    std::shared_ptr<frmProgress> Meter = NewForm<frmProgress>();
};

struct UnderProgress : ::testing::Test {
    UnderProgress() { Window->ShowModeless(); }

    NoFormsLeft Clean;
    std::shared_ptr<TestForm> Window = NewForm<TestForm>();
};

}  // namespace

TEST_F(UnderProgress, WorkRunsOnceUnderABarThatGoesWithIt) {
    QPointer<frmProgress> Shown;
    int Runs = 0;
    RunUnderProgress(*Window, [&](frmProgress& Bar) {
        ++Runs;
        Shown = &Bar;
        EXPECT_TRUE(Bar.isVisible() && Bar.isModal());
    });
    EXPECT_EQ(1, Runs);
    EXPECT_TRUE(!Shown || !Shown->IsLoaded());
    EXPECT_EQ(1u, LoadedForms().size());
}

TEST_F(UnderProgress, AFaultPassesOutAndTheBarIsGone) {
    const auto Fails = [](frmProgress&) { throw Fault(QStringLiteral("full")); };
    EXPECT_THROW(RunUnderProgress(*Window, Fails), Fault);
    EXPECT_EQ(1u, LoadedForms().size());
}

TEST_F(UnderProgress, TheWindowThatAsksMayGoWhileItRuns) {
    QPointer<TestForm> Asks = Window.get();
    TestForm& Asker = *std::exchange(Window, nullptr);
    RunUnderProgress(Asker, [&](frmProgress&) {
        Asks->Unload();
        for (int I = 0; I < 20; ++I) DoEvents();
        EXPECT_TRUE(Asks) << "it stands until the work is over";
    });
    Settle();
    EXPECT_FALSE(Asks);
}

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

TEST_F(ProgressTest, CannotBeStoppedWhereTheWorkDoesNotAllowIt) {
    Parent.OnOperation = [&] {
        EXPECT_FALSE(Meter->findChild<QPushButton*>("cmdStop")->isVisible());
        QTest::keyClick(Meter.get(), Qt::Key_Escape);
        EXPECT_FALSE(Meter->IsStopped());
        EXPECT_TRUE(Meter->isVisible());
    };
    Meter->ShowProgressMeter(Parent);
    EXPECT_EQ(1, Parent.Operations);
}

TEST_F(ProgressTest, IsStoppedByItsButtonOrByEscWithoutAQuestion) {
    for (const bool ByKey : {false, true}) {
        const auto Shown = NewForm<frmProgress>();
        Parent.OnOperation = [&] {
            Shown->SupportsStop(true);
            EXPECT_FALSE(Shown->IsStopped());
            auto* Button = Shown->findChild<QPushButton*>("cmdStop");
            if (ByKey)
                QTest::keyClick(Shown.get(), Qt::Key_Escape);
            else
                QTest::mouseClick(Button, Qt::LeftButton);
            EXPECT_TRUE(Shown->IsStopped());
            EXPECT_FALSE(Button->isEnabled()) << "it is seen to have been pressed";
            EXPECT_TRUE(Shown->isVisible()) << "until the work has ended";
        };
        Shown->ShowProgressMeter(Parent);
    }
    EXPECT_EQ(2, Parent.Operations);
}

TEST_F(ProgressTest, TellsTheCountAndTheTimeLeft) {
    const HastyClock Clock;  // each look takes 10 ms
    const auto Text = [&](const char* Label) {
        return Meter->findChild<QLabel*>(Label)->text().toStdString();
    };
    Parent.OnOperation = [&] {
        for (int I = 0; I <= 500; ++I) {
            Meter->ShowCount(I, 5000);
            Meter->Refresh();
            EXPECT_TRUE(I > 100 || Text("lblTimeLeft").empty()) << I;
        }
        EXPECT_EQ("Picture 500 of 5,000", Text("lblCount"));
        EXPECT_EQ("About 50 seconds left", Text("lblTimeLeft"));
        EXPECT_EQ(5000, Meter->pgbLoadingProgress()->maximum());
    };
    Meter->ShowProgressMeter(Parent);
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
