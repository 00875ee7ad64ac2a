#include "controls/forms/Form.h"

#include <QAccessible>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

#include "controls/forms/TestForm.h"
#include "harness/ScriptedBoxes.h"
#include "support/Fault.h"

using namespace neb;
using namespace neb::harness;

namespace {

struct FormTest : ::testing::Test {
    NoFormsLeft Clean;
    std::shared_ptr<TestForm> Window = NewForm<TestForm>();
};

std::string TextOf(const std::function<void()>& Action) {
    try {
        Action();
    } catch (const Fault& Problem) {
        return Problem.Text().toStdString();
    }
    return "no fault";
}

}  // namespace

TEST_F(FormTest, LoadsOnceHoweverOftenItIsAsked) {
    EXPECT_FALSE(Window->IsLoaded());
    Window->Load();
    Window->Load();
    Window->ShowModeless();
    EXPECT_EQ(1, Window->Loads);
    EXPECT_TRUE(Window->IsLoaded());
}

// Within the main window it is no window of the desktop's, and yet a dialog with a name.
TEST_F(FormTest, IsCalledByItsTitleToThoseWhoHearIt) {
    QWidget Main;
    Window->setParent(&Main, Qt::Widget);
    Window->setWindowTitle(QStringLiteral("Print Album"));
    QAccessibleInterface* Told = QAccessible::queryAccessibleInterface(Window.get());
    EXPECT_EQ("Print Album", Told->text(QAccessible::Name).toStdString());
    Window->setParent(nullptr);
}

TEST_F(FormTest, ListsLoadedFormsInTheOrderOfLoading) {
    const auto Second = NewForm<TestForm>(), Third = NewForm<TestForm>();
    Third->Load();
    Window->Load();
    Second->Load();
    const std::vector<std::shared_ptr<Form>> All{Third, Window, Second};
    EXPECT_EQ(All, LoadedForms());
    EXPECT_TRUE(Window->Unload());
    const std::vector<std::shared_ptr<Form>> Rest{Third, Second};
    EXPECT_EQ(Rest, LoadedForms());
    EXPECT_FALSE(Window->IsLoaded());
}

TEST_F(FormTest, ItAsksBeforeItGoesAndStaysWhenTheAnswerIsNo) {
    Window->Load();
    Window->OnQuery = [] { return false; };
    EXPECT_FALSE(Window->Unload());
    EXPECT_TRUE(Window->IsLoaded());
    EXPECT_EQ(0, Window->Unloads);
    EXPECT_EQ(1, Window->Finished) << "what is being typed counts";
    Window->OnQuery = {};
    EXPECT_TRUE(Window->Unload());
    EXPECT_EQ(2, Window->Queries);
    EXPECT_TRUE(Window->QueryUnload()) << "it has gone";
    EXPECT_EQ(2, Window->Queries);
}

TEST_F(FormTest, OneThatWasAskedGoesWithoutBeingAskedAgain) {
    Window->Load();
    EXPECT_TRUE(Window->QueryUnload());
    EXPECT_TRUE(Window->IsLoaded());
    EXPECT_TRUE(Window->UnloadAsked());
    EXPECT_FALSE(Window->IsLoaded());
    EXPECT_EQ(1, Window->Queries);
    EXPECT_EQ(1, Window->Unloads);
}

TEST_F(FormTest, WhileItAsksItIsThereAndGoesForNobody) {
    Window->Load();
    bool Went = true, Asked = true;
    Window->OnQuery = [&] {
        EXPECT_TRUE(Window->IsLoaded()) << "it may have to save";
        Went = Window->Unload();
        Asked = Window->QueryUnload();
        return true;
    };
    EXPECT_TRUE(Window->Unload());
    EXPECT_FALSE(Went);
    EXPECT_FALSE(Asked);
    EXPECT_EQ(1, Window->Queries);
}

TEST_F(FormTest, AFaultWhileItAsksLeavesItOnTheScreen) {
    Window->ShowModeless();
    for (const bool ByFrame : {false, true}) {
        Window->OnQuery = []() -> bool { throw Fault(QStringLiteral("full")); };
        if (ByFrame) {
            ScriptedBoxes Boxes;
            Boxes.Expect(QStringLiteral("full"), QStringLiteral("Operation Failed"), BoxAnswer::Ok);
            Window->close();
        } else {
            EXPECT_EQ("full", TextOf([&] { Window->Unload(); }));
        }
        EXPECT_TRUE(Window->IsLoaded());
        EXPECT_TRUE(Window->isVisible());
    }
    Window->OnQuery = {};
    EXPECT_TRUE(Window->Unload());
}

TEST_F(FormTest, ALoadedFormOutlivesItsLastReferenceAndGoesAfterItsUnload) {
    Window->Load();
    const QPointer<Form> Watched = Window.get();
    Window.reset();
    Settle();
    ASSERT_FALSE(Watched.isNull());
    EXPECT_TRUE(Watched->Unload());
    EXPECT_FALSE(Watched.isNull()) << "not in the middle of its own call";
    Settle();
    EXPECT_TRUE(Watched.isNull());
}

TEST_F(FormTest, AnUnloadedFormLivesAsLongAsSomebodyHoldsIt) {
    Window->ShowModeless();
    const QPointer<Form> Watched = Window.get();
    EXPECT_TRUE(Window->Unload());
    Settle();
    ASSERT_FALSE(Watched.isNull());
    Window.reset();
    Settle();
    EXPECT_TRUE(Watched.isNull());
}

TEST_F(FormTest, UnloadingTwiceRunsTheHandlerOnce) {
    Window->ShowModeless();
    EXPECT_TRUE(Window->Unload());
    EXPECT_TRUE(Window->Unload());
    EXPECT_EQ(1, Window->Unloads);
    EXPECT_FALSE(Window->isVisible());
}

TEST_F(FormTest, ARefusedUnloadLeavesTheWindowAsItWas) {
    Window->OnUnload = [] { return false; };
    Window->ShowModeless();
    EXPECT_FALSE(Window->Unload());
    EXPECT_TRUE(Window->isVisible());
    EXPECT_TRUE(Window->IsLoaded());
    EXPECT_FALSE(Window->close()) << "nor by its close button";
    EXPECT_TRUE(Window->isVisible());
    Window->OnUnload = {};
    EXPECT_TRUE(Window->Unload());
}

TEST_F(FormTest, AFaultDuringTheUnloadLeavesAWindowThatCanBeUnloadedAgain) {
    Window->OnUnload = []() -> bool { throw Fault(QStringLiteral("disk full")); };
    Window->ShowModeless();
    EXPECT_EQ("disk full", TextOf([&] { Window->Unload(); }));
    EXPECT_TRUE(Window->IsLoaded());
    EXPECT_TRUE(Window->isVisible());
    Window->OnUnload = {};
    EXPECT_TRUE(Window->Unload());
    EXPECT_FALSE(Window->isVisible());
    EXPECT_TRUE(LoadedForms().empty());
}

TEST_F(FormTest, AnUnloadFromInsideTheUnloadHandlerIsNotAllowedToFinishItEarly) {
    bool Inner = true;
    Window->OnUnload = [&] {
        Inner = Window->Unload();
        return true;
    };
    Window->Load();
    EXPECT_TRUE(Window->Unload());
    EXPECT_FALSE(Inner);
    EXPECT_EQ(1, Window->Unloads);
}

TEST_F(FormTest, AFaultDuringTheLoadPassesOutAndLeavesNoForm) {
    Window->OnLoad = [] { throw Fault(QStringLiteral("no album")); };
    EXPECT_EQ("no album", TextOf([&] { Window->ShowModeless(); }));
    EXPECT_TRUE(LoadedForms().empty());
    EXPECT_FALSE(Window->isVisible());
}

TEST_F(FormTest, AFaultDuringTheLoadLeavesNoFormEvenIfItRefusesToGo) {
    Window->OnLoad = [] { throw Fault(QStringLiteral("no album")); };
    Window->OnUnload = [] { return false; };
    EXPECT_EQ("no album", TextOf([&] { Window->ShowModal(); }));
    EXPECT_TRUE(LoadedForms().empty());
}

TEST_F(FormTest, AFormThatUnloadsItselfWhileLoadingIsNotShown) {
    Window->OnLoad = [&] { Window->Unload(); };
    Window->ShowModal();
    EXPECT_FALSE(Window->isVisible());
    EXPECT_EQ(0, Window->Activations);
    EXPECT_TRUE(LoadedForms().empty());
}

TEST_F(FormTest, AModalFormBlocksUntilItIsUnloaded) {
    bool Blocked = true;
    QTimer::singleShot(20, Window.get(), [&] {
        EXPECT_TRUE(Window->isModal());
        EXPECT_TRUE(Blocked);
        Window->Unload();
    });
    Window->ShowModal();
    Blocked = false;
    EXPECT_EQ(1, Window->Unloads);
    EXPECT_FALSE(Window->isVisible());
}

TEST_F(FormTest, EscapeAndTheCloseButtonUnloadTheWindow) {
    QTimer::singleShot(20, Window.get(), [&] { QTest::keyClick(Window.get(), Qt::Key_Escape); });
    Window->ShowModal();
    EXPECT_EQ(1, Window->Unloads);
    const auto Other = NewForm<TestForm>();
    QTimer::singleShot(20, Other.get(), [&] { EXPECT_TRUE(Other->close()); });
    Other->ShowModal();
    EXPECT_EQ(1, Other->Unloads);
    EXPECT_FALSE(Other->isVisible());
}

TEST_F(FormTest, AWindowThatWasNeverLoadedCanStillBeClosed) {
    Window->show();
    EXPECT_TRUE(Window->close());
    EXPECT_FALSE(Window->isVisible());
    EXPECT_EQ(0, Window->Unloads);
}

TEST_F(FormTest, AFaultInTheActivationOfAModalFormUnloadsItAndPassesOut) {
    Window->OnActivate = [] { throw Fault(QStringLiteral("broken")); };
    EXPECT_EQ("broken", TextOf([&] { Window->ShowModal(); }));
    EXPECT_FALSE(Window->isVisible());
    EXPECT_TRUE(LoadedForms().empty());
}

TEST_F(FormTest, AFaultInTheActivationOfAModalFormClosesItEvenIfItRefusesToGo) {
    Window->OnActivate = [] { throw Fault(QStringLiteral("broken")); };
    Window->OnUnload = [] { return false; };
    bool Stuck = false;
    QTimer::singleShot(500, Window.get(), [&] {
        Stuck = Window->isVisible();
        Window->OnUnload = {};
        Window->Unload();
    });
    EXPECT_EQ("broken", TextOf([&] { Window->ShowModal(); }));
    EXPECT_FALSE(Stuck);
}

TEST_F(FormTest, TheFirstFaultIsTheOneThatPassesOutWhenTheUnloadFailsAsWell) {
    Window->OnActivate = [] { throw Fault(QStringLiteral("first")); };
    Window->OnUnload = []() -> bool { throw Fault(QStringLiteral("second")); };
    QTimer::singleShot(500, Window.get(), [&] {
        Window->OnUnload = {};
        Window->Unload();
    });
    EXPECT_EQ("first", TextOf([&] { Window->ShowModal(); }));
    EXPECT_TRUE(LoadedForms().empty());
}

namespace {
// Some desktops report the activation from inside the showing.
class EagerForm : public TestForm {
  protected:
    void showEvent(QShowEvent* Event) override {
        TestForm::showEvent(Event);
        QEvent Activated(QEvent::WindowActivate);
        QCoreApplication::sendEvent(this, &Activated);
    }
};
}  // namespace

TEST_F(FormTest, AnActivationFromInsideTheShowingDoesNotLeaveTheModalWaitHanging) {
    const auto Eager = NewForm<EagerForm>();
    Eager->OnActivate = [&] { Eager->Unload(); };
    bool Hung = false;
    QTimer Rescue;
    QObject::connect(&Rescue, &QTimer::timeout, [&] {
        Hung = true;
        Eager->QDialog::done(0);
    });
    Rescue.start(500);
    Eager->ShowModal();
    EXPECT_FALSE(Hung);
    EXPECT_EQ(1, Eager->Unloads);
}

TEST_F(FormTest, ItsOwnButtonMayUnloadItAsItsLastReference) {
    auto* Button = new QPushButton(Window.get());
    const QPointer<Form> Watched = Window.get();
    QObject::connect(Button, &QPushButton::clicked, [Form = Window.get()] { Form->Unload(); });
    Window->ShowModeless();
    Window.reset();
    QTest::mouseClick(Button, Qt::LeftButton);
    Settle();
    EXPECT_TRUE(Watched.isNull());
}

TEST_F(FormTest, ACommandFinishesEditsBeforeItRuns) {
    Window->Load();
    int FinishedBefore = 0;
    Window->Command([&] { FinishedBefore = Window->Finished; });
    EXPECT_EQ(1, FinishedBefore);
}

TEST_F(FormTest, NoCommandBeginsWhileTheFormIsBusyOrNotLoaded) {
    int Runs = 0;
    Window->Command([&] { ++Runs; });
    EXPECT_EQ(0, Runs) << "not loaded yet";
    Window->Load();
    Window->Busy = true;
    Window->Command([&] { ++Runs; });
    EXPECT_EQ(0, Runs);
    EXPECT_EQ(0, Window->Finished) << "what is being typed is left alone";
    Window->Busy = false;
    Window->Command([&] { ++Runs; });
    EXPECT_EQ(1, Runs);
    Window->Unload();
    Window->Command([&] { ++Runs; });
    EXPECT_EQ(1, Runs) << "unloaded";
}

TEST_F(FormTest, AFormThatItsOwnCommandClosesLivesUntilTheCommandIsOver) {
    const QPointer<Form> Watched = Window.get();
    TestForm* Shown = Window.get();
    Shown->ShowModeless();
    Shown->Command([&] {
        Shown->Unload();
        Window.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_FALSE(Watched.isNull());
    });
    Settle();
    EXPECT_TRUE(Watched.isNull());
}
