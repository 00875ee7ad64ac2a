#include <QListWidget>
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

namespace {

// A list between three buttons, of which the last one is the default.
struct DefaultInFrame : FormInFrame {
    QListWidget* List = nullptr;
    QPushButton *First = nullptr, *Second = nullptr, *Default = nullptr;
    QStringList Pressed;

    QPushButton* Add(const QString& Name) {
        auto* Made = new QPushButton(Name, Child);
        Child->layout()->addWidget(Made);
        QObject::connect(Made, &QPushButton::clicked, [this, Name] { Pressed << Name; });
        return Made;
    }
    void SetUp() override {
        FormInFrame::SetUp();
        Child->Unload();
        const auto Window = NewForm<TestForm>();
        Child = Window.get();
        new QVBoxLayout(Child);
        First = Add(QStringLiteral("first"));
        Second = Add(QStringLiteral("second"));
        List = new QListWidget(Child);
        List->addItems({QStringLiteral("a"), QStringLiteral("b")});
        Child->layout()->addWidget(List);
        Default = Add(QStringLiteral("default"));
        Default->setDefault(true);
        Area->addSubWindow(Child);
        Window->ShowModeless();
        Main.activateWindow();
        First->setFocus();
        Settle();
    }
    QString PressEnter() {
        Pressed.clear();
        QTest::keyClick(Main.focusWidget(), Qt::Key_Return);
        return Pressed.join(u'|');
    }
};

}  // namespace

TEST_F(DefaultInFrame, EnterPressesTheDefaultButtonAfterTheFocusWasOnOthers) {
    QTest::keyClick(Main.focusWidget(), Qt::Key_Tab);
    ASSERT_TRUE(Second->hasFocus());
    QTest::keyClick(Main.focusWidget(), Qt::Key_Tab);
    ASSERT_TRUE(List->hasFocus());
    EXPECT_EQ(QStringLiteral("default"), PressEnter());
    EXPECT_FALSE(First->isDefault() || Second->isDefault());
}

TEST_F(DefaultInFrame, EnterPressesTheDefaultButtonAfterATourOfAllOfThem) {
    List->setFocus();
    for (int I = 0; I < 4; ++I) QTest::keyClick(Main.focusWidget(), Qt::Key_Tab);
    ASSERT_TRUE(List->hasFocus());
    EXPECT_EQ(QStringLiteral("default"), PressEnter());
    EXPECT_TRUE(Default->isDefault());
}

TEST_F(DefaultInFrame, AButtonThatHasTheFocusIsTheDefaultMeanwhile) {
    List->setFocus();
    QTest::keyClick(Main.focusWidget(), Qt::Key_Backtab);
    ASSERT_TRUE(Second->hasFocus());
    EXPECT_TRUE(Second->isDefault());
    EXPECT_FALSE(Default->isDefault());
    EXPECT_EQ(QStringLiteral("second"), PressEnter());
    Second->setAutoDefault(false);
    List->setFocus();
    Second->setFocus();
    EXPECT_EQ(QStringLiteral("default"), PressEnter());
}

TEST_F(DefaultInFrame, AnotherWindowThatIsEnteredInBetweenChangesNothing) {
    const QPointer<TestForm> Other = OpenChild();
    auto* Theirs = new QPushButton(Other);
    Theirs->show();
    Theirs->setFocus();
    Settle();
    Area->setActiveSubWindow(Frame());
    Second->setFocus();
    List->setFocus();
    EXPECT_EQ(QStringLiteral("default"), PressEnter());
}
