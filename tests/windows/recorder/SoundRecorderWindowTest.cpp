// The window of the sound recorder: what its buttons do, and what it shows.
#include <QtEndian>

#include "RecorderWindowRig.h"
#include "sound/devices/SdlCapture.h"
#include "support/Fault.h"

namespace neb::test {
namespace {

TEST_F(SoundRecorderWindow, OpensReadyToRecordAndDoesNotListenYet) {
    Open([&] {
        EXPECT_EQ(mWindow->windowTitle(), "Slide Sound Recorder");
        EXPECT_EQ(On(), "Record");
        EXPECT_EQ(Mode(), "");
        EXPECT_EQ(Focus(), "cmdRecord");
        EXPECT_EQ(Status(), "Press Record and speak.");
        EXPECT_EQ(Time(), "0:00, 0:20 left");
        EXPECT_EQ(Timer1().interval(), 100);
        EXPECT_FALSE(Timer1().isActive());
        EXPECT_FALSE(Told("record"));
    });
    EXPECT_FALSE(mWindow->SoundRecorded());
}

TEST_F(SoundRecorderWindow, ItsControlsSayWhatTheyDo) {
    Open([&] {
        const char* const Texts[][3] = {{"cmdRecord", "Record", "Start Recording"},
                                        {"cmdStop", "Stop", "Stop Recording/Playing"},
                                        {"cmdPlay", "Play", "Play the recorded sound"},
                                        {"cmdSave", "Save", "Save the current recording"}};
        for (const auto& [Name, Caption, Tip] : Texts) {
            EXPECT_EQ(Button(Name).text().remove(u'&'), Caption);
            EXPECT_EQ(Button(Name).accessibleName(), Caption);
            EXPECT_EQ(Button(Name).toolTip(), Tip);
        }
        const QSlider& Volume = In<QSlider>("sdrVolume");
        EXPECT_EQ(Volume.toolTip(), "Volume to record at");
        EXPECT_EQ(Volume.minimum(), 1);
        EXPECT_EQ(Volume.maximum(), 100);
        EXPECT_EQ(Volume.value(), 50);
    });
}

TEST_F(SoundRecorderWindow, EachCommandSwitchesTheButtons) {
    Open([&] {
        Press("cmdRecord");
        EXPECT_EQ(Mode(), "Recording");
        EXPECT_EQ(On(), "Stop");
        EXPECT_FALSE(Timer1().isActive());
        mSound.Buffer->Feed(Speech(22050));
        Press("cmdStop");
        EXPECT_EQ(Mode(), "");
        EXPECT_EQ(On(), "Record Play Save");
        EXPECT_EQ(mSound.Told.back(), "stop recording");
        Press("cmdPlay");
        EXPECT_EQ(Mode(), "Playing");
        EXPECT_EQ(On(), "Stop");
        EXPECT_TRUE(Timer1().isActive());
        EXPECT_EQ(mSound.Told.back(), "play");
        Press("cmdStop");
        EXPECT_EQ(Mode(), "");
        EXPECT_EQ(On(), "Record Play Save");
        EXPECT_EQ(mSound.Told.back(), "stop playing");
        EXPECT_TRUE(Timer1().isActive()) << "only the end of a playback stops it";
        Press("cmdRecord");
        EXPECT_EQ(On(), "Stop");
    });
}

TEST_F(SoundRecorderWindow, SavesTheRecordingAndCloses) {
    Open([&] {
        Record(Speech(300));
        Press("cmdSave");
        EXPECT_FALSE(mWindow->IsLoaded());
    });
    EXPECT_TRUE(mWindow->SoundRecorded());
    EXPECT_EQ(ReadFile(SavePath()).mid(44), Speech(300) + '\x80' + '\0');
    EXPECT_TRUE(Told("microphone released"));
}

TEST_F(SoundRecorderWindow, ClosingInAnyOtherWayAsksAndWritesNothingWhenItIsDiscarded) {
    for (const bool ByEscape : {true, false}) {
        Open([&] {
            Record(Speech(300));
            for (const auto Answer : {BoxAnswer::Cancel, BoxAnswer::Discard}) {
                ExpectAsk(Answer);
                if (ByEscape)
                    Key(Qt::Key_Escape);
                else
                    mWindow->close();
                EXPECT_EQ(Answer == BoxAnswer::Cancel, mWindow->IsLoaded());
            }
        });
        EXPECT_FALSE(mWindow->SoundRecorded());
        EXPECT_FALSE(NameExists(SavePath()));
    }
}

TEST_F(SoundRecorderWindow, ClosingSavesTheRecordingWhenThatIsWanted) {
    Open([&] {
        Record(Speech(300));
        ExpectAsk(BoxAnswer::Save);
        mWindow->close();
        EXPECT_FALSE(mWindow->IsLoaded());
    });
    EXPECT_TRUE(mWindow->SoundRecorded());
    EXPECT_EQ(ReadFile(SavePath()).mid(44), Speech(300) + '\x80' + '\0');
}

TEST_F(SoundRecorderWindow, ClosingAsksNothingWhereNothingWasSpoken) {
    Open([&] {
        Press("cmdRecord");
        mWindow->close();
        EXPECT_FALSE(mWindow->IsLoaded());
    });
}

TEST_F(SoundRecorderWindow, ClosingWhileItRecordsStopsTheMicrophoneAndKeepsWhatWasSpoken) {
    Open([&] {
        Press("cmdRecord");
        mSound.Buffer->Feed(Speech(300));
        ExpectAsk(BoxAnswer::Cancel);
        Key(Qt::Key_Escape);
        EXPECT_TRUE(mWindow->IsLoaded());
        EXPECT_EQ(On(), "Record Play Save");
        EXPECT_TRUE(Told("stop recording"));
        ExpectAsk(BoxAnswer::Discard);
        Key(Qt::Key_Escape);
        EXPECT_FALSE(mWindow->IsLoaded());
        FakeSound::Settle();
        EXPECT_EQ(mSound.Buffer, nullptr);
    });
    EXPECT_FALSE(mWindow->SoundRecorded());
    EXPECT_FALSE(NameExists(SavePath()));
}

TEST_F(SoundRecorderWindow, ClosingWhileItPlaysStopsTheSound) {
    Open([&] {
        Record(Speech(300));
        Press("cmdPlay");
        ExpectAsk(BoxAnswer::Discard);
        mWindow->close();
        EXPECT_TRUE(Told("stop playing"));
        EXPECT_EQ(mSound.Player, nullptr);
    });
}

TEST_F(SoundRecorderWindow, TellsWhyThereIsNoRecordingAndDoesNotStayOpen) {
    mSound.HasMicrophone = false;
    mBoxes.Expect("Unable to initialize sound card for capture.", {}, BoxIcon::Plain,
                  BoxAnswer::Ok);
    Open([&] { ExpectGone(); });
    mSound.HasMicrophone = true;
    mSound.Caps = 0;
    mBoxes.Expect("Recording is not supported by your sound card.", {}, BoxIcon::Plain,
                  BoxAnswer::Ok);
    Open([&] { ExpectGone(); });
    TheServices().Sound = nullptr;
    mBoxes.Expect("Unable to use the sound system.", {}, BoxIcon::Plain, BoxAnswer::Ok);
    Open([&] { ExpectGone(); });
    EXPECT_FALSE(mWindow->SoundRecorded());
}

TEST_F(SoundRecorderWindow, TheEndOfThePlaybackReturnsTheButtonsWithin100Ms) {
    Open([&] {
        Record(Speech(22050));
        Press("cmdPlay");
        mSound.Player->PutOn(0.5);
        QTest::qWait(150);
        EXPECT_EQ(On(), "Stop") << "while it still plays";
        mSound.Player->PutOn(0.6);
        int Ticks = 0;
        QObject::connect(&Timer1(), &QTimer::timeout, mWindow.get(), [&] { ++Ticks; });
        EXPECT_TRUE(QTest::qWaitFor([&] { return On() != "Stop"; }));
        EXPECT_EQ(Ticks, 1);
        EXPECT_EQ(Timer1().interval(), 100);
        EXPECT_EQ(On(), "Record Play Save");
        EXPECT_EQ(Mode(), "");
        EXPECT_FALSE(Timer1().isActive());
        EXPECT_EQ(Focus(), "cmdPlay");
        Press("cmdPlay");
        EXPECT_TRUE(Timer1().isActive());
        EXPECT_EQ(mSound.Player->GetCurrentPosition(), 0);
    });
}

TEST_F(SoundRecorderWindow, ShowsTheTimeAndTheLevelWhileItRecordsAndPlays) {
    Open([&] {
        const LevelMeter& Meter = In<LevelMeter>("lvlSound");
        Press("cmdRecord");
        EXPECT_EQ(Status(), "Recording");
        EXPECT_EQ(Time(), "0:00, 0:20 left");
        EXPECT_EQ(Meter.Shown(), 0);
        mSound.Buffer->Feed(QByteArray(7 * 22050 + 1000, '\xC0'));
        EXPECT_TRUE(QTest::qWaitFor([&] { return Time() == "0:07, 0:13 left"; }));
        EXPECT_EQ(Status(), "Recording");
        EXPECT_GT(Meter.Shown(), 0.8);
        Press("cmdStop");
        EXPECT_EQ(Status(), "Recorded");
        EXPECT_EQ(Time(), "0:07");
        EXPECT_EQ(Meter.Shown(), 0);
        Press("cmdPlay");
        EXPECT_EQ(Time(), "0:00 of 0:07");
        mSound.Player->PutOn(3.5);
        EXPECT_TRUE(QTest::qWaitFor([&] { return Time() == "0:03 of 0:07"; }));
        EXPECT_EQ(Status(), "Playing");
        EXPECT_GT(Meter.Shown(), 0.8);
    });
}

TEST_F(SoundRecorderWindow, ARecordingEndsByItselfAfter20Seconds) {
    Open([&] {
        Press("cmdRecord");
        mSound.Buffer->Feed(Speech(30 * 22050));
        EXPECT_TRUE(QTest::qWaitFor([&] { return On() == "Record Play Save"; }));
        EXPECT_EQ(Status(), "Recorded: the 20 seconds are full.");
        EXPECT_EQ(Time(), "0:20");
        EXPECT_EQ(Mode(), "");
        EXPECT_EQ(Focus(), "cmdPlay");
        EXPECT_EQ(In<LevelMeter>("lvlSound").Shown(), 0);
        EXPECT_TRUE(Told("stop recording"));
        Press("cmdSave");
    });
    EXPECT_EQ(ReadFile(SavePath()).mid(44), Speech(20 * 22050) + '\x80' + '\0');
}

TEST_F(SoundRecorderWindow, NothingIsPlayedOrSavedOfARecordingOfNothing) {
    Open([&] {
        Record({});
        EXPECT_EQ(Status(), "Nothing was recorded.");
        Press("cmdPlay");
        EXPECT_EQ(Status(), "You Must First Record a Sound.");
        EXPECT_EQ(Mode(), "");
        EXPECT_EQ(On(), "Record Play Save");
        mBoxes.Expect("You Must First Record a Sound.", {}, BoxIcon::Plain, BoxAnswer::Ok);
        Press("cmdSave");
        EXPECT_TRUE(mWindow->IsLoaded());
        EXPECT_EQ(1, mBoxes.ShownCount());
        Record(Speech(300));
        EXPECT_EQ(Status(), "Recorded");
        Press("cmdSave");
        EXPECT_FALSE(mWindow->IsLoaded());
    });
    EXPECT_TRUE(mWindow->SoundRecorded());
    EXPECT_EQ(ReadFile(SavePath()).mid(44), Speech(300) + '\x80' + '\0');
}

TEST_F(SoundRecorderWindow, AFolderThatHasGoneIsToldAndLeavesWindowAndRecording) {
    Open([&] {
        mWindow->SetSoundSavePath(mFolder / "gone/clip.wav");
        Record(Speech(300));
        mBoxes.Expect("The file cannot be written. (No such file or directory)\n" +
                      (mFolder / "gone/clip.wav.new"));
        Press("cmdSave");
        EXPECT_FALSE(mWindow->SoundRecorded());
        EXPECT_EQ(On(), "Record Play Save");
        EXPECT_EQ(Status(), "Recorded");
        mWindow->SetSoundSavePath(SavePath());
        Press("cmdSave");
    });
    EXPECT_TRUE(mWindow->SoundRecorded());
}

TEST_F(SoundRecorderWindow, AFullDiskIsToldAndLeavesWindowAndRecording) {
    Open([&] {
        Record(Speech(300));
        SetHostWatcher([](HostStep, const QString&, qint64& Length) { Length = 0; });
        mBoxes.Expect("The file cannot be written. (no space left on device)\n" + SavePath() +
                      ".new");
        Press("cmdSave");
        EXPECT_TRUE(mWindow->IsLoaded());
        EXPECT_FALSE(mWindow->SoundRecorded());
        EXPECT_EQ(On(), "Record Play Save");
        EXPECT_TRUE(ListDir(mFolder.Path()).empty());
        SetHostWatcher({});
        Press("cmdSave");
    });
    EXPECT_TRUE(mWindow->SoundRecorded());
    EXPECT_EQ(ReadFile(SavePath()).mid(44), Speech(300) + '\x80' + '\0');
}

TEST_F(SoundRecorderWindow, AnOutputInUseIsToldInTheWindowAndSavingWorks) {
    mSound.Playback = PlaybackState::Allocated;
    const char* const HalfDuplex =
        "This card does not support full duplex.  You may still record sound.";
    Open([&] {
        EXPECT_EQ(Status(), HalfDuplex);
        EXPECT_EQ(On(), "Record");
        Record(Speech(300));
        EXPECT_EQ(Status(), "Recorded");
        Press("cmdPlay");
        EXPECT_EQ(Status(), HalfDuplex);
        QTest::qWait(150);
        EXPECT_EQ(On(), "Record Play Save");
        EXPECT_EQ(Status(), HalfDuplex);
        Press("cmdSave");
    });
    EXPECT_EQ(ReadFile(SavePath()).size(), 44 + 302);
}

TEST_F(SoundRecorderWindow, AMicrophonePulledOutBetweenTwoRecordingsIsTold) {
    Open([&] {
        Record(Speech(22050));
        mSound.Unplugged = true;
        Press("cmdRecord");
        EXPECT_EQ(Status(), "Unable to initialize sound card for capture.");
        EXPECT_EQ(On(), "Record Play Save");
        EXPECT_EQ(Mode(), "");
        EXPECT_EQ(Time(), "0:01");
        Press("cmdSave");
    });
    EXPECT_EQ(ReadFile(SavePath()).mid(44), Speech(22050) + '\x80' + '\0');
}

TEST_F(SoundRecorderWindow, AMicrophoneThatDoesNotBeginIsTold) {
    Open([&] {
        Press("cmdRecord");
        EXPECT_TRUE(QTest::qWaitFor([&] { return Status() == "Waiting for the microphone"; }));
        mSound.Buffer->Feed(Speech(500));
        EXPECT_TRUE(QTest::qWaitFor([&] { return Status() == "Recording"; }));
    });
}

TEST_F(SoundRecorderWindow, AMicrophoneThatFallsSilentInARecordingIsToldAndLeavesWhatItHeard) {
    Open([&] {
        Press("cmdRecord");
        mSound.Buffer->Feed(QByteArray(22050, '\xC0'));
        EXPECT_TRUE(QTest::qWaitFor([&] { return In<LevelMeter>("lvlSound").Shown() > 0.5; }));
        EXPECT_TRUE(QTest::qWaitFor([&] { return In<LevelMeter>("lvlSound").Shown() == 0; }));
        EXPECT_EQ(Status(), "Recording") << "a moment's silence is nothing";
        EXPECT_TRUE(QTest::qWaitFor([&] { return Status() == "Waiting for the microphone"; }));
        Press("cmdStop");
        EXPECT_EQ(Time(), "0:01");
        Press("cmdSave");
    });
    EXPECT_EQ(ReadFile(SavePath()).size(), 44 + 22050 + 2);
}

// With the sound library's microphone, which hears a plain file.
TEST_F(SoundRecorderWindow, RecordsFromARealMicrophoneWhatTheUserSays) {
    QByteArray Spoken;
    for (int I = 0; I < 22050; ++I) Spoken.append(static_cast<char>(I * I >> 3));
    WriteFile(mFolder / "in.raw", Spoken);
    qputenv("SDL_AUDIODRIVER", "disk");
    qputenv("SDL_DISKAUDIOFILEIN", (mFolder / "in.raw").toUtf8());
    mSound.Microphone = &OpenSdlCapture;
    Open([&] {
        Press("cmdRecord");
        EXPECT_TRUE(QTest::qWaitFor([&] { return In<LevelMeter>("lvlSound").Shown() > 0.5; }));
        EXPECT_EQ(Status(), "Recording");
        Press("cmdStop");
        Press("cmdSave");
    });
    for (const char* Name : {"SDL_AUDIODRIVER", "SDL_DISKAUDIOFILEIN"}) qunsetenv(Name);
    const QByteArray File = ReadFile(SavePath());
    ASSERT_GT(File.size(), 400);
    const auto Bytes = static_cast<qsizetype>(qFromLittleEndian<quint32>(File.constData() + 40));
    EXPECT_EQ(File.mid(44, Bytes), Spoken.left(Bytes - 1) + '\x80');
}

}  // namespace
}  // namespace neb::test
