#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

#include "controls/forms/TestForm.h"

using namespace neb;
using namespace neb::harness;

namespace {

// A window as a child of a main window, whose only reference is the list of loaded forms.
struct FormInFrame : ::testing::Test {
    QMainWindow Main;
    NoFormsLeft Clean;
    QMdiArea* Area = new QMdiArea;
    QPointer<TestForm> Child;
    QPushButton* Button = nullptr;

    void SetUp() override {
        Main.setCentralWidget(Area);
        Main.resize(800, 600);
        Main.show();
        Child = OpenChild();
        Button = new QPushButton(QStringLiteral("Close"), Child);
        (new QVBoxLayout(Child))->addWidget(Button);
        Settle();
    }

    TestForm* OpenChild() {
        const auto Window = NewForm<TestForm>();
        Area->addSubWindow(Window.get());
        Window->ShowModeless();
        return Window.get();
    }

    QMdiSubWindow* Frame() const { return qobject_cast<QMdiSubWindow*>(Child->parentWidget()); }
};

}  // namespace

TEST_F(FormInFrame, IsShownInItsFrameAndActivated) {
    ASSERT_NE(nullptr, Frame());
    EXPECT_TRUE(Frame()->isVisible());
    EXPECT_TRUE(Child->isVisible());
    EXPECT_GE(Child->Activations, 1);
}

TEST_F(FormInFrame, TheCloseButtonOfItsFrameUnloadsItAndBothGo) {
    const QPointer<QMdiSubWindow> Its = Frame();
    EXPECT_TRUE(Its->close());
    Settle();
    EXPECT_TRUE(Its.isNull());
    EXPECT_TRUE(Child.isNull());
    EXPECT_TRUE(Area->subWindowList().isEmpty());
    EXPECT_TRUE(LoadedForms().empty());
}

TEST_F(FormInFrame, ItsOwnButtonMayUnloadIt) {
    const QPointer<QMdiSubWindow> Its = Frame();
    QObject::connect(Button, &QPushButton::clicked, [this] { Child->Unload(); });
    QTest::mouseClick(Button, Qt::LeftButton);
    Settle();
    EXPECT_TRUE(Its.isNull());
    EXPECT_TRUE(Child.isNull());
    EXPECT_TRUE(Area->subWindowList().isEmpty());
}

TEST_F(FormInFrame, ARefusedUnloadKeepsTheFrameOpenWhicheverWayItIsAsked) {
    Child->OnUnload = [] { return false; };
    EXPECT_FALSE(Frame()->close());
    EXPECT_FALSE(Child->Unload());
    Area->closeAllSubWindows();
    Settle();
    ASSERT_FALSE(Child.isNull());
    ASSERT_NE(nullptr, Frame());
    EXPECT_TRUE(Frame()->isVisible());
    EXPECT_TRUE(Child->isVisible());
    EXPECT_EQ(1, Area->subWindowList().size());
    Child->OnUnload = {};
    EXPECT_TRUE(Frame()->close());
    Settle();
    EXPECT_TRUE(Child.isNull());
}

TEST_F(FormInFrame, AHeldFormIsTakenOffTheScreenButNotDeleted) {
    const auto Held = LoadedForms().front();
    EXPECT_TRUE(Frame()->close());
    Settle();
    ASSERT_FALSE(Child.isNull());
    EXPECT_EQ(nullptr, Child->parentWidget());
    EXPECT_FALSE(Child->isVisible());
    EXPECT_FALSE(Child->IsLoaded());
}

TEST_F(FormInFrame, ItsFrameIsStillThereWhileItUnloads) {
    bool HadFrame = false;
    Child->OnUnload = [&] { return HadFrame = Frame() && Frame()->isVisible(); };
    EXPECT_TRUE(Frame()->close());
    EXPECT_TRUE(HadFrame);
}

TEST_F(FormInFrame, OneOfSeveralChildrenGoesAndTheOthersStay) {
    const QPointer<TestForm> Second = OpenChild(), Third = OpenChild();
    Settle();
    EXPECT_TRUE(Second->Unload());
    Settle();
    EXPECT_TRUE(Second.isNull());
    EXPECT_FALSE(Child.isNull());
    EXPECT_FALSE(Third.isNull());
    EXPECT_EQ(2, Area->subWindowList().size());
    Area->closeAllSubWindows();
    Settle();
    EXPECT_TRUE(Child.isNull());
    EXPECT_TRUE(Third.isNull());
}

TEST_F(FormInFrame, AMaximisedChildMayBeClosed) {
    Frame()->showMaximized();
    Settle();
    EXPECT_TRUE(Child->Unload());
    Settle();
    EXPECT_TRUE(Child.isNull());
    EXPECT_TRUE(Area->subWindowList().isEmpty());
}
