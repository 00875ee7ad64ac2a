// The window of the sound recorder, with a user in it.
#include <QAbstractButton>
#include <QElapsedTimer>
#include <QLabel>
#include <QSlider>
#include <QTest>
#include <QTimer>
#include <QtEndian>

#include "RecorderRig.h"
#include "platform/sound/SdlCapture.h"
#include "presentation/LevelMeter.h"
#include "presentation/frmSoundRecorder.h"
#include "support/Fault.h"
#include "support/modHostFiles.h"

namespace neb::test {
namespace {

class SoundRecorderWindow : public RecorderRig {
  protected:
    ~SoundRecorderWindow() override {
        SetHostWatcher({});
        mWindow.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    // Shows the window modally, as a slide window does; User is at it once it stands there.
    void Open(const std::function<void()>& User) {
        mWindow = NewForm<frmSoundRecorder>();
        mWindow->SetSoundSavePath(SavePath());
        QTimer::singleShot(0, mWindow.get(), [this, User] {
            (void)QTest::qWaitForWindowActive(mWindow.get());  // else it has no shortcuts yet
            User();
            mWindow->Unload();
        });
        mWindow->ShowModal();
        EXPECT_FALSE(mWindow->isVisible());
        EXPECT_FALSE(Timer1().isActive());
    }

    template <class Control>
    Control& In(const char* Name) const {
        return *mWindow->findChild<Control*>(QString::fromLatin1(Name));
    }
    QAbstractButton& Button(const char* Name) const { return In<QAbstractButton>(Name); }
    QTimer& Timer1() const { return In<QTimer>("Timer1"); }
    void Press(const char* Name) const { QTest::mouseClick(&Button(Name), Qt::LeftButton); }
    void Key(Qt::Key Pressed, Qt::KeyboardModifiers With = {}) const {
        QTest::keyClick(mWindow->focusWidget(), Pressed, With);
    }
    std::string Focus() const { return mWindow->focusWidget()->objectName().toStdString(); }
    std::string Mode() const { return mWindow->RecorderMode().toStdString(); }
    std::string Status() const { return In<QLabel>("lblStatus").text().toStdString(); }
    std::string Time() const { return In<QLabel>("lblTime").text().toStdString(); }
    // Which buttons are on, as "Record Stop".
    std::string On() const {
        QStringList Names;
        for (const char* Name : {"cmdRecord", "cmdPlay", "cmdStop", "cmdSave"})
            if (Button(Name).isEnabled()) Names << QString::fromLatin1(Name).mid(3);
        return Names.join(u' ').toStdString();
    }
    void Record(const QByteArray& Bytes) {
        Press("cmdRecord");
        mSound.Buffer->Feed(Bytes);
        Press("cmdStop");
    }
    bool Told(const char* What) const {
        return std::count(mSound.Told.begin(), mSound.Told.end(), What) > 0;
    }

    std::shared_ptr<frmSoundRecorder> mWindow;
};

TEST_F(SoundRecorderWindow, OpensReadyToRecordAndDoesNotListenYet) {
    Open([&] {
        EXPECT_EQ(mWindow->windowTitle(), "Slide Sound Recorder");
        EXPECT_EQ(On(), "Record");
        EXPECT_EQ(Mode(), "");
        EXPECT_EQ(Focus(), "cmdRecord");
        EXPECT_EQ(Status(), "Press Record and speak.");
        EXPECT_EQ(Time(), "0:00 of 0:20");
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

TEST_F(SoundRecorderWindow, ClosingInAnyOtherWayWritesNothing) {
    for (const bool ByEscape : {true, false}) {
        Open([&] {
            Record(Speech(300));
            if (ByEscape)
                Key(Qt::Key_Escape);
            else
                mWindow->close();
            EXPECT_FALSE(mWindow->IsLoaded());
        });
        EXPECT_FALSE(mWindow->SoundRecorded());
        EXPECT_FALSE(NameExists(SavePath()));
    }
}

TEST_F(SoundRecorderWindow, ClosingWhileItRecordsStopsTheMicrophoneAndWritesNothing) {
    Open([&] {
        Press("cmdRecord");
        mSound.Buffer->Feed(Speech(300));
        Key(Qt::Key_Escape);
        EXPECT_FALSE(mWindow->IsLoaded());
        EXPECT_TRUE(Told("stop recording"));
        EXPECT_EQ(mSound.Buffer, nullptr);
    });
    EXPECT_FALSE(mWindow->SoundRecorded());
    EXPECT_FALSE(NameExists(SavePath()));
}

TEST_F(SoundRecorderWindow, ClosingWhileItPlaysStopsTheSound) {
    Open([&] {
        Record(Speech(300));
        Press("cmdPlay");
        mWindow->close();
        EXPECT_TRUE(Told("stop playing"));
        EXPECT_EQ(mSound.Player, nullptr);
    });
}

TEST_F(SoundRecorderWindow, TellsWhyThereIsNoRecordingAndDoesNotStayOpen) {
    mSound.HasMicrophone = false;
    mBoxes.Expect("Unable to initialize sound card for capture.", {}, BoxIcon::Plain,
                  BoxAnswer::Ok);
    Open([&] { ADD_FAILURE() << "the window stands there"; });
    mSound.HasMicrophone = true;
    mSound.Caps = 0;
    mBoxes.Expect("Recording is not supported by your sound card.", {}, BoxIcon::Plain,
                  BoxAnswer::Ok);
    Open([&] { ADD_FAILURE() << "the window stands there"; });
    TheServices().Sound = nullptr;
    mBoxes.Expect("Unable to initialize DirectX 8.", {}, BoxIcon::Plain, BoxAnswer::Ok);
    Open([&] { ADD_FAILURE() << "the window stands there"; });
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
        QElapsedTimer Since;
        Since.start();
        while (On() == "Stop" && Since.elapsed() < 3000) QTest::qWait(1);
        EXPECT_LE(Since.elapsed(), 100 + 30)
            << "one step of the timer, and what a busy machine adds";
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
        EXPECT_EQ(Status(), "Waiting for the microphone");
        EXPECT_EQ(Meter.Shown(), 0);
        mSound.Buffer->Feed(QByteArray(7 * 22050 + 1000, '\xC0'));
        EXPECT_TRUE(QTest::qWaitFor([&] { return Status() == "Recording"; }));
        EXPECT_EQ(Time(), "0:07 of 0:20");
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

TEST_F(SoundRecorderWindow, ARecordingOfMoreThan20SecondsGoesOnShowingItUntilStop) {
    Open([&] {
        Press("cmdRecord");
        mSound.Buffer->Feed(Speech(30 * 22050));
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return Status() == "Recording: the 20 seconds are full."; }));
        EXPECT_EQ(Time(), "0:20 of 0:20");
        EXPECT_EQ(Mode(), "Recording");
        EXPECT_EQ(On(), "Stop");
        EXPECT_TRUE(QTest::qWaitFor([&] { return In<LevelMeter>("lvlSound").Shown() == 0; }))
            << "nothing is listened to any more";
        Press("cmdStop");
        Press("cmdSave");
    });
    EXPECT_EQ(ReadFile(SavePath()).mid(44), Speech(20 * 22050) + '\x80' + '\0');
}

TEST_F(SoundRecorderWindow, SavingARecordingOfNothingWritesNoFileAndClosesAllTheSame) {
    Open([&] {
        Record({});
        EXPECT_EQ(Status(), "Nothing was recorded.");
        Press("cmdPlay");
        EXPECT_EQ(Status(), "You Must First Record a Sound.");
        EXPECT_EQ(On(), "Stop");
        Press("cmdStop");
        EXPECT_EQ(On(), "Record Play Save");
        Press("cmdSave");
        EXPECT_FALSE(mWindow->IsLoaded());
    });
    EXPECT_TRUE(mWindow->SoundRecorded());
    EXPECT_FALSE(NameExists(SavePath()));
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
        EXPECT_EQ(On(), "Stop");
        EXPECT_EQ(Status(), HalfDuplex);
        Press("cmdStop");
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
        EXPECT_EQ(On(), "Stop");
        Press("cmdStop");
        EXPECT_EQ(Time(), "0:01");
        Press("cmdSave");
    });
    EXPECT_EQ(ReadFile(SavePath()).mid(44), Speech(22050) + '\x80' + '\0');
}

TEST_F(SoundRecorderWindow, TheVolumeIsKeptAndChangesNothing) {
    Open([&] {
        In<QSlider>("sdrVolume").setValue(1);
        In<QSlider>("sdrVolume").setValue(100);
        Record(Speech(300));
        Press("cmdSave");
    });
    EXPECT_EQ(ReadFile(SavePath()).mid(44), Speech(300) + '\x80' + '\0');
}

TEST_F(SoundRecorderWindow, EnterAloneRecordsStopsAndPlays) {
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

TEST_F(SoundRecorderWindow, EveryButtonHasAnAccelerator) {
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

TEST_F(SoundRecorderWindow, EnterOnTheVolumeIsForTheButtonThatComesNext) {
    Open([&] {
        In<QSlider>("sdrVolume").setFocus();
        for (const char* Expected : {"Stop", "Record Play Save", "Stop"}) {
            Key(Qt::Key_Return);
            EXPECT_EQ(On(), Expected);
            EXPECT_EQ(Focus(), "sdrVolume");
        }
        EXPECT_EQ(Mode(), "Playing");
    });
}

TEST_F(SoundRecorderWindow, AMicrophoneThatFallsSilentInARecordingIsToldAndLeavesWhatItHeard) {
    Open([&] {
        Press("cmdRecord");
        mSound.Buffer->Feed(QByteArray(22050, '\xC0'));
        EXPECT_TRUE(QTest::qWaitFor([&] { return Status() == "Recording"; }));
        EXPECT_TRUE(QTest::qWaitFor([&] { return In<LevelMeter>("lvlSound").Shown() == 0; }));
        EXPECT_TRUE(QTest::qWaitFor([&] { return Status() == "Waiting for the microphone"; }));
        Press("cmdStop");
        EXPECT_EQ(Time(), "0:01");
        Press("cmdSave");
    });
    EXPECT_EQ(ReadFile(SavePath()).size(), 44 + 22050 + 2);
}

TEST_F(SoundRecorderWindow, CutsNoTextInALargerType) {
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
