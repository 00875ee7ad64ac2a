#include "controls/forms/NebApplication.h"

#include <QPushButton>
#include <QTimer>
#include <new>
#include <stdexcept>

#include "controls/forms/ScreenPointer.h"
#include "controls/forms/TestForm.h"
#include "harness/ScriptedBoxes.h"
#include "support/Fault.h"

using namespace neb;
using namespace neb::harness;

namespace {

const QString Failed = QStringLiteral("Operation Failed");

// A button whose click raises what it is told to.
struct Unhandled : ::testing::Test {
    NoFormsLeft Clean;
    ScriptedBoxes Boxes;
    QPushButton Button;
    void ClickRaising(const std::function<void()>& Raise) {
        QObject::connect(&Button, &QPushButton::clicked, &Button, Raise);
        Button.show();
        QTest::mouseClick(&Button, Qt::LeftButton);
        Button.disconnect();
    }
    void TearDown() override { SetScreenPointer(Pointer::Default); }
};

}  // namespace

TEST_F(Unhandled, AFaultIsShownWithItsFileAndTheProgramGoesOn) {
    Boxes.Expect(QStringLiteral("The file cannot be read.\n/a/b.jpg"), Failed, BoxIcon::Critical,
                 BoxAnswer::Ok);
    ClickRaising([] {
        throw Fault(QStringLiteral("The file cannot be read."), QStringLiteral("/a/b.jpg"));
    });
    int Clicks = 0;
    ClickRaising([&] { ++Clicks; });
    EXPECT_EQ(1, Clicks);
    EXPECT_EQ(1, Boxes.ShownCount());
}

TEST_F(Unhandled, OtherExceptionsAndWantOfMemoryAreShownToo) {
    Boxes.Expect(QStringLiteral("bad luck"), Failed, BoxIcon::Critical, BoxAnswer::Ok);
    ClickRaising([] { throw std::runtime_error("bad luck"); });
    Boxes.Expect(QStringLiteral("There is not enough memory to do this."), Failed,
                 BoxIcon::Critical, BoxAnswer::Ok);
    ClickRaising([] { throw std::bad_alloc(); });
}

TEST_F(Unhandled, WhereNotEvenABoxCanBeShownTheProgramGoesOn) {
    struct NoBoxes : MessageBoxes {
        BoxAnswer Show(const BoxRequest&) override { throw std::bad_alloc(); }
    } None;
    MessageBoxes* const Before = std::exchange(TheServices().Boxes, &None);
    ClickRaising([] { throw std::bad_alloc(); });
    TheServices().Boxes = Before;
    Boxes.Expect(QStringLiteral("broken"), Failed);
    ClickRaising([] { throw Fault(QStringLiteral("broken")); });
    EXPECT_EQ(1, Boxes.ShownCount()) << "the next one is told again";
}

TEST_F(Unhandled, ThePointerIsNormalAgain) {
    SetScreenPointer(Pointer::Hourglass);
    Boxes.WhileNextIsOpen([] { EXPECT_EQ(Pointer::Default, ScreenPointer()); });
    Boxes.Expect(QStringLiteral("broken"), Failed);
    ClickRaising([] { throw Fault(QStringLiteral("broken")); });
    EXPECT_EQ(Pointer::Default, ScreenPointer());
}

TEST_F(Unhandled, AFaultInAnEventOfAModalWindowLeavesItOpen) {
    const auto Window = NewForm<TestForm>();
    Boxes.Expect(QStringLiteral("broken"), Failed);
    QTimer::singleShot(10, Window.get(), [] { throw Fault(QStringLiteral("broken")); });
    QTimer::singleShot(40, Window.get(), [&] {
        EXPECT_TRUE(Window->isVisible());
        Window->Unload();
    });
    Window->ShowModal();
    EXPECT_EQ(1, Boxes.ShownCount());
}

TEST_F(Unhandled, ATimerThatFailsAgainAndAgainDoesNotPileUpBoxes) {
    QTimer Tick;
    QObject::connect(&Tick, &QTimer::timeout, [] { throw Fault(QStringLiteral("broken")); });
    Boxes.WhileNextIsOpen([&] {
        QTest::qWait(60);
        Tick.stop();
    });
    Boxes.Expect(QStringLiteral("broken"), Failed);
    Tick.start(5);
    QTest::qWait(100);
    EXPECT_EQ(1, Boxes.ShownCount());
}

TEST_F(Unhandled, AnotherFaultThatComesWhileABoxIsUpIsShownAfterIt) {
    int Open = 0;
    Boxes.WhileNextIsOpen([&] {
        ++Open;
        QTimer::singleShot(5, &Button, [] { throw Fault(QStringLiteral("second")); });
        QTest::qWait(30);
        EXPECT_EQ(1, Boxes.ShownCount()) << "not on top of the first";
        --Open;
    });
    Boxes.Expect(QStringLiteral("first"), Failed);
    Boxes.WhileNextIsOpen([&] { EXPECT_EQ(0, Open); });
    Boxes.Expect(QStringLiteral("second"), Failed);
    ClickRaising([] { throw Fault(QStringLiteral("first")); });
    QTest::qWait(10);
    EXPECT_EQ(2, Boxes.ShownCount());
}

TEST(ScreenPointerTest, ScopesNestAndPutBackWhatTheyFound) {
    EXPECT_EQ(Pointer::Default, ScreenPointer());
    {
        const PointerScope Busy(Pointer::Hourglass);
        {
            const PointerScope Box(Pointer::Default);
            EXPECT_EQ(nullptr, QGuiApplication::overrideCursor());
        }
        EXPECT_EQ(Pointer::Hourglass, ScreenPointer());
        EXPECT_EQ(Qt::WaitCursor, QGuiApplication::overrideCursor()->shape());
    }
    EXPECT_EQ(nullptr, QGuiApplication::overrideCursor());
}

TEST(ScreenPointerTest, SettingItTwiceTakesOneSettingBack) {
    SetScreenPointer(Pointer::Hourglass);
    SetScreenPointer(Pointer::Hourglass);
    SetScreenPointer(Pointer::Default);
    EXPECT_EQ(nullptr, QGuiApplication::overrideCursor());
    SetScreenPointer(Pointer::Default);
    EXPECT_EQ(Pointer::Default, ScreenPointer());
}

TEST(ScreenPointerTest, AHiddenPointerStaysHiddenAfterwards) {
    QGuiApplication::setOverrideCursor(Qt::BlankCursor);
    {
        const PointerScope Busy(Pointer::Hourglass);
        EXPECT_EQ(Pointer::Hourglass, ScreenPointer());
    }
    EXPECT_EQ(Qt::BlankCursor, QGuiApplication::overrideCursor()->shape());
    QGuiApplication::restoreOverrideCursor();
}
