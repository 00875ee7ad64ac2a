// The window of the sound recorder by the keyboard alone, its size, and its meter.
#include "RecorderWindowRig.h"

namespace neb::test {
namespace {

using SoundRecorderKeys = SoundRecorderWindow;

TEST_F(SoundRecorderKeys, EnterAloneRecordsStopsAndPlays) {
    Open([&] {
        Key(Qt::Key_Return);
        EXPECT_EQ(Mode(), "Recording");
        EXPECT_EQ(Focus(), "cmdStop");
        mSound.Buffer->Feed(Speech(22050));
        Key(Qt::Key_Return);
        EXPECT_EQ(On(), "Record Play Save");
        EXPECT_EQ(Focus(), "cmdPlay");
        Key(Qt::Key_Space);
        EXPECT_EQ(Mode(), "Playing");
        EXPECT_EQ(Focus(), "cmdStop");
        Key(Qt::Key_Space);
        EXPECT_EQ(Focus(), "cmdPlay") << "not on Save, which a key pressed too late would run";
        Key(Qt::Key_Tab);
        EXPECT_EQ(Focus(), "cmdSave");
        Key(Qt::Key_Tab);
        EXPECT_EQ(Focus(), "sdrVolume");
        Key(Qt::Key_Right);
        EXPECT_EQ(In<QSlider>("sdrVolume").value(), 51);
        Key(Qt::Key_Tab);
        EXPECT_EQ(Focus(), "cmdRecord");
        Key(Qt::Key_Backtab, Qt::ShiftModifier);
        Key(Qt::Key_Backtab, Qt::ShiftModifier);
        Key(Qt::Key_Return);
        EXPECT_FALSE(mWindow->IsLoaded());
    });
    EXPECT_EQ(ReadFile(SavePath()).mid(44), Speech(22050) + '\x80' + '\0');
}

TEST_F(SoundRecorderKeys, EveryButtonHasAnAccelerator) {
    Open([&] {
        const auto Runs = [this](Qt::Key Letter, const char* Result) {
            Key(Letter, Qt::AltModifier);
            return QTest::qWaitFor([&] { return On() == Result; }, 2000);
        };
        EXPECT_TRUE(Runs(Qt::Key_R, "Stop"));
        EXPECT_EQ(Mode(), "Recording");
        mSound.Buffer->Feed(Speech(300));
        EXPECT_TRUE(Runs(Qt::Key_T, "Record Play Save"));
        EXPECT_TRUE(Runs(Qt::Key_P, "Stop"));
        EXPECT_EQ(Mode(), "Playing");
        EXPECT_TRUE(Runs(Qt::Key_T, "Record Play Save"));
        Key(Qt::Key_V, Qt::AltModifier);
        EXPECT_EQ(Focus(), "sdrVolume");
        Key(Qt::Key_S, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !mWindow->IsLoaded(); }, 2000));
    });
    EXPECT_TRUE(mWindow->SoundRecorded());
}

// The button runs a moment after its key.
TEST_F(SoundRecorderKeys, AKeyPressedRightBeforeClosingRecordsNothing) {
    Open([&] {
        Key(Qt::Key_R, Qt::AltModifier);
        mWindow->close();
        EXPECT_FALSE(mWindow->IsLoaded());
        QTest::qWait(200);
    });
    EXPECT_FALSE(Told("record"));
}

TEST_F(SoundRecorderKeys, EnterOnTheVolumeIsForTheButtonThatComesNext) {
    Open([&] {
        In<QSlider>("sdrVolume").setFocus();
        for (const char* Expected : {"Stop", "Record Play Save", "Stop"}) {
            Key(Qt::Key_Return);
            EXPECT_EQ(On(), Expected);
            EXPECT_EQ(Focus(), "sdrVolume");
            mSound.Buffer->Feed(Speech(300));
        }
        EXPECT_EQ(Mode(), "Playing");
    });
}

TEST_F(SoundRecorderKeys, CutsNoTextInALargerType) {
    for (const double Size : {1.0, 1.5}) {
        QFont Font = QApplication::font();
        Font.setPointSizeF(Font.pointSizeF() * Size);
        mSound.Playback = PlaybackState::Allocated;  // its text is the longest
        Open([&] {
            mWindow->setFont(Font);
            mWindow->adjustSize();
            QTest::qWait(20);
            for (const QWidget* Each : mWindow->findChildren<QWidget*>()) {
                EXPECT_GE(Each->width(), Each->minimumSizeHint().width())
                    << Each->objectName().toStdString();
                EXPECT_GE(Each->height(), Each->minimumSizeHint().height())
                    << Each->objectName().toStdString();
                EXPECT_TRUE(mWindow->rect().contains(
                    QRect(Each->mapTo(mWindow.get(), QPoint()), Each->size())));
            }
            const QLabel& Label = In<QLabel>("lblStatus");
            EXPECT_GE(Label.height(), Label.heightForWidth(Label.width()));
        });
    }
}

TEST(LevelMeter, GoesUpAtOnceAndFallsCalmly) {
    LevelMeter Meter;
    Meter.SetLevel(0.5);
    EXPECT_NEAR(Meter.Shown(), 0.857, 0.001);
    double Before = Meter.Shown();
    int Steps = 0;
    for (; Meter.Shown() > 0 && Steps < 100; ++Steps) {
        Meter.SetLevel(0);
        EXPECT_LT(Meter.Shown(), Before);
        EXPECT_GT(Meter.Shown(), Before - 0.1);
        Before = Meter.Shown();
    }
    EXPECT_LT(Steps, 20);
    Meter.SetLevel(1);
    EXPECT_EQ(Meter.Shown(), 1);
    Meter.Clear();
    EXPECT_EQ(Meter.Shown(), 0);
}

TEST(LevelMeter, ShowsNoNoiseOfTheLastBitAndQuietSpeechClearly) {
    LevelMeter Meter;
    Meter.SetLevel(1 / 128.0);
    EXPECT_LT(Meter.Shown(), 0.02);
    Meter.SetLevel(0.05);
    EXPECT_GT(Meter.Shown(), 0.35);
}

}  // namespace
}  // namespace neb::test
