// Devices that take seconds: the window of the sound recorder lives meanwhile, says what it waits
// for, and can be closed.
#include "RecorderWindowRig.h"
#include "harness/Heartbeat.h"

namespace neb::test {
namespace {

using namespace std::chrono_literals;
using harness::Heartbeat;

// The most that a window may stand still, in milliseconds.
constexpr double Patience = 100;

class SoundRecorderPatience : public SoundRecorderWindow {
  protected:
    // Presses a button and looks at the window while the devices are busy.
    void PressAndWait(const char* Name, const char* Says) {
        Heartbeat Heart;
        Click(Name);
        EXPECT_EQ(Status(), Says);
        EXPECT_EQ(On(), "");
        AwaitDevices();
        EXPECT_LT(Heart.LongestStandstill(), Patience) << Name;
        EXPECT_GE(Heart.Beats(), 10) << Name;
    }
};

TEST_F(SoundRecorderPatience, TheWindowLivesWhileTheMicrophoneIsOpened) {
    mSound.Delay = 2s;
    Heartbeat Heart;
    Open([&] {
        EXPECT_EQ(Status(), "Opening the microphone...");
        EXPECT_EQ(On(), "");
        EXPECT_EQ(Mode(), "");
        AwaitDevices();
        EXPECT_EQ(Status(), "Press Record and speak.");
        EXPECT_EQ(On(), "Record");
        EXPECT_EQ(Focus(), "cmdRecord");
        EXPECT_LT(Heart.LongestStandstill(), Patience);
    });
}

TEST_F(SoundRecorderPatience, EveryCommandWaitsAside) {
    Open([&] {
        mSound.Delay = 800ms;
        PressAndWait("cmdRecord", "Opening the microphone...");
        EXPECT_EQ(On(), "Stop");
        EXPECT_EQ(Mode(), "Recording");
        EXPECT_EQ(Focus(), "cmdStop");
        mSound.Buffer->Feed(Speech(22050));
        PressAndWait("cmdStop", "Closing the microphone...");
        EXPECT_EQ(On(), "Record Play Save");
        EXPECT_EQ(Focus(), "cmdPlay");
        EXPECT_EQ(Time(), "0:01");
        Press("cmdSave");
        EXPECT_FALSE(mWindow->IsLoaded());
    });
    EXPECT_EQ(ReadFile(SavePath()).mid(44), Speech(22050) + '\x80' + '\0');
}

TEST_F(SoundRecorderPatience, TheCheckOfTheOutputIsMadeAside) {
    mSound.Playback = PlaybackState::Allocated;
    Open([&] {
        Record(Speech(300));
        mSound.Delay = 800ms;
        PressAndWait("cmdPlay", "Opening the loudspeakers...");
        EXPECT_EQ(Status(), "This card does not support full duplex.  You may still record sound.");
        EXPECT_EQ(On(), "Record Play Save");
        EXPECT_EQ(Focus(), "cmdPlay");
        Press("cmdSave");
    });
}

TEST_F(SoundRecorderPatience, IsClosedAtOnceWhileTheMicrophoneIsOpened) {
    mSound.Delay = 2s;
    Open([&] {
        Heartbeat Heart;
        QTest::keyClick(mWindow.get(), Qt::Key_Escape);
        EXPECT_FALSE(mWindow->IsLoaded());
        EXPECT_LT(Heart.LongestStandstill(), 1000);
    });
    EXPECT_TRUE(Told("microphone released"));
    EXPECT_EQ(0, mBoxes.ShownCount());
}

TEST_F(SoundRecorderPatience, IsClosedAtOnceWhileAFirstRecordingBegins) {
    Open([&] {
        mSound.Delay = 2s;
        Click("cmdRecord");
        Heartbeat Heart;
        mWindow->close();
        EXPECT_FALSE(mWindow->IsLoaded());
        EXPECT_LT(Heart.LongestStandstill(), 1000);
    });
    EXPECT_EQ(mSound.Buffer, nullptr);
}

TEST_F(SoundRecorderPatience, AMicrophoneThatIsLateAndMissingIsToldOverTheWindow) {
    mSound.Delay = 500ms;
    mSound.HasMicrophone = false;
    mBoxes.Expect("Unable to initialize sound card for capture.", {}, BoxIcon::Plain,
                  BoxAnswer::Ok);
    Open([&] {
        EXPECT_EQ(0, mBoxes.ShownCount());
        ExpectGone();
    });
    EXPECT_EQ(1, mBoxes.ShownCount());
}

TEST_F(SoundRecorderPatience, ClosingWhileItRecordsPaintsOnUntilTheMicrophoneIsClosed) {
    Open([&] {
        Press("cmdRecord");
        mSound.Buffer->Feed(Speech(300));
        mSound.Delay = 800ms;
        mSound.Buffer->SetDelay(800ms);
        ExpectAsk(BoxAnswer::Save);
        Heartbeat Heart;
        mWindow->close();
        EXPECT_FALSE(mWindow->IsLoaded());
        EXPECT_LT(Heart.LongestStandstill(), Patience);
        EXPECT_GE(Heart.Beats(), 10);
    });
    EXPECT_EQ(ReadFile(SavePath()).mid(44), Speech(300) + '\x80' + '\0');
}

TEST_F(SoundRecorderPatience, AVolumeSetMeanwhileIsTheLevelToRecordAt) {
    mSound.Delay = 300ms;
    Open([&] {
        In<QSlider>("sdrVolume").setValue(74);
        AwaitDevices();
        Record(QByteArray(300, '\x90'));
        Press("cmdSave");
    });
    EXPECT_EQ(ReadFile(SavePath()).mid(44), QByteArray(300, '\xA0') + '\x80' + '\0');
}

// What is pressed while the devices are busy is for nobody.
TEST_F(SoundRecorderPatience, NothingIsBegunTwice) {
    Open([&] {
        mSound.Delay = 500ms;
        for (int I = 0; I < 3; ++I) {
            Click("cmdRecord");
            QTest::keyClick(mWindow.get(), Qt::Key_R, Qt::AltModifier);
            QTest::keyClick(mWindow.get(), Qt::Key_Return);
        }
        AwaitDevices();
        EXPECT_EQ(1, std::count(mSound.Told.begin(), mSound.Told.end(), "record"));
    });
}

}  // namespace
}  // namespace neb::test
