#include "controls/forms/NebApplication.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QToolTip>
#include <QWindow>
#include <new>
#include <stdexcept>

#include "controls/forms/ScreenPointer.h"
#include "controls/forms/TestForm.h"
#include "harness/ScriptedBoxes.h"
#include "harness/TempFolder.h"
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

// A window with a menu, and keys that were held back for a screen reader: the toolkit sends them
// itself when that has heard of them.
struct HeldBack : ::testing::Test {
    QMainWindow Window;
    QMenu& File = *Window.menuBar()->addMenu(QStringLiteral("&File"));
    HeldBack() {
        File.addAction(QStringLiteral("Exit"));
        Window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&Window));
    }
    static void Send(const QWidget& To, QEvent::Type Type) {
        const bool IsDown = Type == QEvent::KeyPress;
        QKeyEvent Late(Type, Qt::Key_Alt, IsDown ? Qt::AltModifier : Qt::NoModifier);
        QCoreApplication::sendEvent(To.windowHandle(), &Late);
    }
    void OpenByItsLetter() {
        QTest::keyClick(Window.windowHandle(), Qt::Key_F, Qt::AltModifier);
        ASSERT_TRUE(QTest::qWaitFor([this] { return File.isVisible(); }));
    }
};

}  // namespace

TEST_F(HeldBack, AnAltThatComesBehindItsLetterLeavesTheMenuOpen) {
    OpenByItsLetter();
    Send(Window, QEvent::KeyPress);
    Send(Window, QEvent::KeyRelease);
    EXPECT_TRUE(File.isVisible());
}

TEST_F(HeldBack, AnAltThatWasPressedInAnOpenMenuClosesIt) {
    OpenByItsLetter();
    Send(File, QEvent::KeyPress);
    EXPECT_FALSE(File.isVisible());
}

TEST_F(HeldBack, AnAltThatComesBehindTheLetterOfAButtonDoesNotGoToTheMenus) {
    auto* Button = new QPushButton(QStringLiteral("&Play"));
    Window.setCentralWidget(Button);
    Button->show();
    Button->setFocus();
    ASSERT_TRUE(Button->hasFocus());
    Send(Window, QEvent::KeyPress);
    Send(Window, QEvent::KeyRelease);
    EXPECT_EQ(Button, QApplication::focusWidget());
    EXPECT_EQ(nullptr, Window.menuBar()->activeAction());
}

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

// The name of a show that came from somebody else, say: a picture in it would be read here.
class TextOfOthers : public ::testing::Test {
  protected:
    TextOfOthers() {
        QImage Picture(400, 400, QImage::Format_RGB32);
        Picture.fill(Qt::red);
        EXPECT_TRUE(Picture.save(mFolder / QStringLiteral("a.png")));
        Text = QStringLiteral("<img src='%1'>").arg(mFolder / QStringLiteral("a.png"));
    }
    QString Text;

  private:
    const neb::harness::TempFolder mFolder;
};

TEST_F(TextOfOthers, StandsInALabelAsItIs) {
    QLabel Label(Text);
    EXPECT_LT(Label.sizeHint().height(), 100);
    EXPECT_EQ(Qt::PlainText, Label.textFormat());
    QLabel Marked;
    Marked.setTextFormat(Qt::RichText);
    Marked.setText(Text);
    EXPECT_GT(Marked.sizeHint().height(), 350) << "who asks for marks gets them";
}

TEST_F(TextOfOthers, StandsInAToolTipAsItIs) {
    QWidget Window;
    Window.resize(300, 200);
    Window.show();
    QToolTip::showText(Window.mapToGlobal(QPoint(9, 9)), Text, &Window);
    QLabel* Tip = nullptr;
    for (QWidget* Each : QApplication::topLevelWidgets())
        if (Each->inherits("QTipLabel")) Tip = qobject_cast<QLabel*>(Each);
    ASSERT_TRUE(Tip);
    EXPECT_EQ(Text, Tip->text());
    EXPECT_EQ(Qt::PlainText, Tip->textFormat());
    EXPECT_LT(Tip->sizeHint().height(), 100);
}

TEST_F(TextOfOthers, StandsInABoxAsItIs) {
    QMessageBox Box;
    Box.setText(Text);
    Box.show();
    EXPECT_LT(Box.height(), 350);
    for (const QLabel* Each : Box.findChildren<QLabel*>())
        EXPECT_NE(Qt::AutoText, Each->textFormat());
}
