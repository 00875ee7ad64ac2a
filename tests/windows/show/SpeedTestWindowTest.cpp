// The window of the speed test, with real transitions between two small pictures and a clock that
// each transition puts on.
#include "windows/show/frmSpeedTest.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QLabel>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include "controls/forms/ScreenPointer.h"
#include "controls/picture/XShow.h"
#include "harness/HastyClock.h"
#include "harness/ScriptedBoxes.h"
#include "harness/TempFolder.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

class SpeedTestWindow : public ::testing::Test {
  protected:
    SpeedTestWindow() {
        AppPathCache = mProgram.Path();
        MakePicture("SpeedTest1.bmp", Qt::red);
        MakePicture("SpeedTest2.bmp", Qt::blue);
        XShow::SetReader([this](const QString& File) {
            mRead.push_back(GetFileName(File).toStdString());
            const QImage Image = QImage::fromData(ReadFile(File));
            if (Image.isNull()) throw Fault("The picture cannot be read.", File);
            return Image;
        });
    }
    ~SpeedTestWindow() override {
        mWindow.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        XShow::SetReader({});
        AppPathCache.clear();
    }

    static QString GetFileName(const QString& Path) { return Path.section(u'/', -1); }

    void MakePicture(const QString& Name, QColor Colour) {
        QImage Image(40, 30, QImage::Format_RGB32);
        Image.fill(Colour);
        QByteArray Bytes;
        QBuffer Buffer(&Bytes);
        Buffer.open(QIODevice::WriteOnly);
        Image.save(&Buffer, "BMP");
        WriteFile(mProgram / Name, Bytes);
    }

    void ExpectNotification(std::function<void()> Meanwhile = {}) {
        mBoxes.WhileNextIsOpen([this, Meanwhile] {
            EXPECT_TRUE(mWindow->isVisible());
            mWindow->resize(80, 60);  // the rest is quicker so
            if (Meanwhile) Meanwhile();
        });
        mBoxes.Expect(SpeedTestQuestion(), "Speed Test Notification", BoxIcon::Information,
                      BoxAnswer::Yes);
    }
    void ExpectMissing() {
        mBoxes.Expect("Missing Component, Speed Test aborted.", {}, BoxIcon::Plain, BoxAnswer::Ok);
    }
    void ExpectTooSlow(std::function<void()> Meanwhile = {}) {
        mBoxes.WhileNextIsOpen(std::move(Meanwhile));
        mBoxes.Expect(
            "Your system may be too slow to properly show effects.\nSetting to lowest settings.",
            {}, BoxIcon::Plain, BoxAnswer::Ok);
    }

    QLabel* Line() const { return mWindow->findChild<QLabel*>("lblTitle"); }
    XShow* Show1() const { return mWindow->findChild<XShow*>("Show1"); }

    // Runs the window until it closes; a transition takes that many seconds by its effect and
    // step (all a hundredth by default). AtStep is called at each step of each transition.
    using Machine = std::function<double(int Effect, int Step)>;
    void Run(Machine Takes = {}, std::function<void()> AtStep = {}) {
        mWindow = NewForm<frmSpeedTest>();
        QObject::connect(Show1(), &XShow::EffectStepped, mWindow.get(), [=, this](double Progress) {
            if (Progress >= 1) {
                const int Effect = Show1()->EffectNumber(), Step = Show1()->EffectStep();
                mClock.Seconds += Takes ? Takes(Effect, Step) : 0.01;
                mEffects.push_back(Effect);
            }
            if (mTitles.empty() || mTitles.back() != mWindow->windowTitle().toStdString())
                mTitles.push_back(mWindow->windowTitle().toStdString());
            EXPECT_EQ(ScreenPointer(), Pointer::Hourglass);
            if (AtStep) AtStep();
        });
        QTimer::singleShot(120'000, mWindow.get(), &Form::Unload);
        mWindow->ShowModal();
        EXPECT_FALSE(mWindow->isVisible());
        EXPECT_FALSE(Show1()->IsRunning()) << "nothing goes on behind a closed window";
        EXPECT_EQ(ScreenPointer(), Pointer::Default);
    }

    harness::TempFolder mProgram;
    harness::ScriptedBoxes mBoxes;
    harness::HastyClock mClock;
    std::shared_ptr<frmSpeedTest> mWindow;
    std::vector<std::string> mRead, mTitles;
    std::vector<int> mEffects;
};

TEST_F(SpeedTestWindow, GoesDownTheWholeLadderOnAQuickMachineAndCloses) {
    ExpectNotification();
    Run();
    const SpeedTestResult& R = mWindow->Result();
    EXPECT_EQ(R.StepH, 1);
    EXPECT_EQ(R.StepM, 1);
    EXPECT_EQ(R.StepL, 1);
    EXPECT_TRUE(R.IsWhole);
    EXPECT_NEAR(static_cast<double>(R.AvgTimeH), 0.08, 0.01);
    EXPECT_NEAR(static_cast<double>(R.AvgTimeL), 0.08, 0.01);
    ASSERT_EQ(mTitles.size(), 24U);
    EXPECT_EQ(mTitles[0], "Testing Graphics Performance - Intense Effects (100)");
    EXPECT_EQ(mTitles[2], "Testing Graphics Performance - Intense Effects (33)");
    EXPECT_EQ(mTitles[9], "Testing Graphics Performance - Normal Effects (50)");
    EXPECT_EQ(mTitles[23], "Testing Graphics Performance - Simple Effects (1)");
    ASSERT_EQ(mEffects.size(), 48U);
    for (std::size_t I = 0; I < 48; ++I) {
        const int Expected[] = {118, 121, 56, 1, 70, 85};
        EXPECT_EQ(mEffects[I], Expected[I / 16 * 2 + I % 2]) << I;
        EXPECT_EQ(mRead[I], I % 2 ? "SpeedTest2.bmp" : "SpeedTest1.bmp") << I;
    }
}

TEST_F(SpeedTestWindow, RunsItsTransitionsAtADelayOf100AndFitsThePicture) {
    ExpectNotification();
    int Steps = 0;
    Run({}, [&] {
        EXPECT_EQ(Show1()->EffectDelay(), 100);
        EXPECT_TRUE(Show1()->ShowOptionA());
        EXPECT_EQ(Show1()->geometry(), mWindow->rect().adjusted(0, 0, 0, -Line()->height()));
        EXPECT_EQ(Line()->geometry().bottom(), mWindow->rect().bottom());
        EXPECT_EQ(Line()->text(), mWindow->windowTitle()) << "the title of a full screen";
        if (++Steps == 3) mWindow->resize(120, 70);
        if (Steps == 6) mWindow->Unload();
    });
    EXPECT_EQ(Steps, 6);
}

TEST_F(SpeedTestWindow, FillsTheScreenAsAShowDoesAndSaysHowToLeave) {
    mBoxes.WhileNextIsOpen([this] {
        EXPECT_EQ(mWindow->geometry(), mWindow->screen()->geometry());
        EXPECT_TRUE(mWindow->isFullScreen());
        EXPECT_GT(Show1()->height(), mWindow->height() * 9 / 10);
        EXPECT_TRUE(mWindow->findChild<QLabel*>("lblHint")->isVisible());
        mWindow->Unload();
    });
    mBoxes.Expect(SpeedTestQuestion(), BoxAnswer::Yes);
    mWindow = NewForm<frmSpeedTest>();
    mWindow->ShowModal();
}

TEST_F(SpeedTestWindow, AMachineTooSlowIsToldAtEachLevelAndGetsTheLowestSettings) {
    ExpectNotification();
    for (int Level = 0; Level < 3; ++Level) ExpectTooSlow();
    Run([](int, int) { return 5.0; });
    const SpeedTestResult& R = mWindow->Result();
    EXPECT_EQ(R.Timeout, 10);
    EXPECT_EQ(R.StepH, 100);
    EXPECT_EQ(R.StepL, 100);
    EXPECT_FLOAT_EQ(R.AvgTimeM, 5);
}

TEST_F(SpeedTestWindow, TheTimeOfTheTooSlowBoxIsNoPartOfTheNextLevel) {
    ExpectNotification();
    ExpectTooSlow([this] { mClock.Seconds += 600; });
    Run([](int Effect, int) { return Effect > 100 ? 5.0 : 0.01; });
    EXPECT_EQ(mWindow->Result().StepM, 1);
}

TEST_F(SpeedTestWindow, SaysWhatItIsAndMayBeSkipped) {
    mBoxes.Expect(SpeedTestQuestion(), BoxAnswer::No);
    Run();
    EXPECT_TRUE(mBoxes.Last().Text.startsWith("NEB Slide Show will now test your graphics speed."));
    EXPECT_EQ("&Skip", mBoxes.Last().NoWords);
    EXPECT_EQ(BoxAnswer::Yes, mBoxes.Last().Default);
    EXPECT_TRUE(mEffects.empty());
    EXPECT_FALSE(mWindow->Result().IsWhole);
    EXPECT_EQ(mWindow->Result().StepH, 0);
}

TEST_F(SpeedTestWindow, AMissingPictureEndsTheTestBeforeItBegins) {
    for (const char* Name : {"SpeedTest1.bmp", "SpeedTest2.bmp"}) {
        DeleteFile(mProgram / Name);
        ExpectMissing();
        Run();
        EXPECT_EQ(mWindow->Result().StepH, 0);
        EXPECT_TRUE(mRead.empty());
        MakePicture(Name, Qt::green);
    }
}

TEST_F(SpeedTestWindow, APictureThatCannotBeReadEndsTheTestLikeAMissingOne) {
    WriteFile(mProgram / "SpeedTest2.bmp", "no picture");
    ExpectNotification();
    ExpectMissing();
    Run();
    EXPECT_EQ(mEffects, (std::vector<int>{118}));
    EXPECT_EQ(mWindow->Result().StepH, 0);
}

TEST_F(SpeedTestWindow, ClosingLeavesWhatWasMeasuredUntilThen) {
    for (const bool ByEscape : {true, false}) {
        ExpectNotification();
        mEffects.clear();
        Run({}, [&] {
            if (mEffects.size() < 16 + 5) return;
            if (ByEscape)
                QTest::keyClick(mWindow.get(), Qt::Key_Escape);
            else
                mWindow->close();
        });
        EXPECT_EQ(mEffects.size(), 21U) << "nothing goes on behind a closed window";
        EXPECT_EQ(mWindow->Result().StepH, 1);
        EXPECT_EQ(mWindow->Result().StepM, 0);
        EXPECT_EQ(mWindow->Result().AvgTimeL, 0);
        EXPECT_FALSE(mWindow->Result().IsWhole);
    }
}

TEST_F(SpeedTestWindow, ClosingInTheMiddleOfATransitionEndsIt) {
    ExpectNotification();
    int Steps = 0;
    Run({}, [&] {
        if (++Steps == 5) mWindow->close();
    });
    EXPECT_EQ(Steps, 5);
    EXPECT_FALSE(Show1()->IsRunning());
    EXPECT_EQ(mWindow->Result().StepH, 0);
}

TEST_F(SpeedTestWindow, MayBeUnloadedWhileItsBoxesAreUp) {
    ExpectNotification([this] { mWindow->Unload(); });
    Run();
    EXPECT_TRUE(mEffects.empty());
    ExpectNotification();
    ExpectTooSlow([this] { mWindow->Unload(); });
    Run([](int, int) { return 5.0; });
    EXPECT_EQ(mEffects.size(), 2U);
    EXPECT_EQ(mWindow->Result().StepH, 100) << "measured before the box";
    EXPECT_EQ(mWindow->Result().StepM, 0);
}

TEST_F(SpeedTestWindow, AskedForNoMoreThanOnceHoweverOftenItIsActivated) {
    ExpectNotification();
    int Steps = 0;
    Run({}, [&] {
        QEvent Again(QEvent::WindowActivate);
        QCoreApplication::sendEvent(mWindow.get(), &Again);
        if (++Steps == 10) mWindow->Unload();
    });
    EXPECT_EQ(mBoxes.ShownCount(), 1);
}

}  // namespace
}  // namespace neb
