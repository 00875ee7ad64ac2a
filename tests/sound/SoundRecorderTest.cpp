// The recorder half of the sound class.
#include "sound/clsDirectSound.h"

#include "RecorderRig.h"
#include "harness/Refusals.h"
#include "sound/WaveFile.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb::test {
namespace {

class SoundRecorder : public RecorderRig {
  protected:
    SoundRecorder() : mEngine(std::make_unique<clsDirectSound>()) {}
    ~SoundRecorder() override { SetHostWatcher({}); }

    bool Supported() { return mEngine->RecordingSupported(nullptr); }
    std::string LastError() const { return mEngine->LastError().toStdString(); }
    void Record(const QByteArray& Bytes) {
        ASSERT_TRUE(mEngine->RecorderStartRecording());
        mSound.Buffer->Feed(Bytes);
        mEngine->RecorderStopRecording();
    }
    void ExpectNothingToSave() {
        EXPECT_FALSE(mEngine->RecorderSaveToFile(SavePath()));
        EXPECT_EQ(LastError(), "You Must First Record a Sound.");
        EXPECT_FALSE(NameExists(SavePath()));
        EXPECT_FALSE(mEngine->RecorderStartPlayback());
        EXPECT_EQ(LastError(), "You Must First Record a Sound.");
    }

    std::unique_ptr<clsDirectSound> mEngine;
};

TEST_F(SoundRecorder, WithoutSoundAtAllIsNotSupported) {
    mEngine = std::make_unique<clsDirectSound>(nullptr);
    EXPECT_FALSE(Supported());
    EXPECT_EQ(LastError(), "Unable to use the sound system.");
}

TEST_F(SoundRecorder, WithoutAMicrophoneIsNotSupportedUntilOneIsPluggedIn) {
    mSound.HasMicrophone = false;
    EXPECT_FALSE(Supported());
    EXPECT_EQ(LastError(), "Unable to initialize sound card for capture.");
    mSound.HasMicrophone = true;
    EXPECT_TRUE(Supported());
    EXPECT_EQ(LastError(), "");
}

TEST_F(SoundRecorder, AMicrophoneWithoutFormatsIsNotSupported) {
    mSound.Caps = ~(CaptureDevice::Mono8At11025 | CaptureDevice::Mono8At22050);
    EXPECT_FALSE(Supported());
    EXPECT_EQ(LastError(), "Recording is not supported by your sound card.");
    // It is initialized all the same, and says so when asked again.
    EXPECT_TRUE(Supported());
    EXPECT_EQ(LastError(), "");
    EXPECT_FALSE(mEngine->RecorderStartRecording());
    EXPECT_EQ(LastError(), "Recording is not supported by your sound card.");
    ExpectNothingToSave();
}

TEST_F(SoundRecorder, AskedTwiceInitializesOnce) {
    EXPECT_TRUE(Supported());
    EXPECT_TRUE(Supported());
    EXPECT_EQ(mSound.Opened, 1);
    EXPECT_EQ(mSound.Told, (Journal{"buffer of 441000"})) << "and does not listen yet";
}

TEST_F(SoundRecorder, NothingWorksBeforeItIsAskedWhetherItIsSupported) {
    const std::string Refusal = "Recording is not supported on your sound card.";
    EXPECT_FALSE(mEngine->RecorderStartRecording());
    EXPECT_EQ(LastError(), Refusal);
    EXPECT_FALSE(mEngine->RecorderStartPlayback());
    EXPECT_EQ(LastError(), Refusal);
    EXPECT_FALSE(mEngine->RecorderSaveToFile(SavePath()));
    EXPECT_EQ(LastError(), Refusal);
    EXPECT_FALSE(mEngine->RecorderPlaybackComplete());
    EXPECT_EQ(LastError(), "");
    mEngine->RecorderStopRecording();
    mEngine->RecorderStopPlayback();
    EXPECT_EQ(mEngine->RecorderSeconds(), 0);
    EXPECT_EQ(mEngine->RecorderLevel(), 0);
    EXPECT_FALSE(NameExists(SavePath()));
}

TEST_F(SoundRecorder, RecordsAtTheHigherRateThatThereIs) {
    for (const std::uint32_t Caps : {0x10U, 0x01U, 0x11U}) {
        mSound.Caps = Caps;
        mEngine = std::make_unique<clsDirectSound>();
        ASSERT_TRUE(Supported());
        const std::uint32_t Rate = Caps & 0x10 ? 22050 : 11025;
        const WaveFormat& Format = mSound.Buffer->Format();
        EXPECT_EQ(Format.FormatTag, 1);
        EXPECT_EQ(Format.Channels, 1);
        EXPECT_EQ(Format.SamplesPerSec, Rate);
        EXPECT_EQ(Format.AvgBytesPerSec, Rate);
        EXPECT_EQ(Format.BlockAlign, 1);
        EXPECT_EQ(Format.BitsPerSample, 8);
        EXPECT_EQ(mSound.Told.back(), "buffer of " + std::to_string(Rate * 20));
    }
}

TEST_F(SoundRecorder, AnOutputInUseIsToldAndRecordingWorksAllTheSame) {
    const std::string HalfDuplex =
        "This card does not support full duplex.  You may still record sound.";
    mSound.Playback = PlaybackState::Allocated;
    EXPECT_TRUE(Supported());
    EXPECT_EQ(LastError(), HalfDuplex);
    Record(Speech(100));
    EXPECT_FALSE(mEngine->RecorderStartPlayback());
    EXPECT_EQ(LastError(), HalfDuplex);
    EXPECT_FALSE(mEngine->RecorderPlaybackComplete());
    mEngine->RecorderStopPlayback();
    EXPECT_TRUE(mEngine->RecorderSaveToFile(SavePath()));
    EXPECT_EQ(ReadFile(SavePath()).size(), 44 + 102);
    mSound.Playback = PlaybackState::Ready;
    EXPECT_TRUE(mEngine->RecorderStartPlayback()) << "once the other program has let go";
    EXPECT_EQ(LastError(), "");
}

TEST_F(SoundRecorder, AMachineWithoutAnOutputRecordsAndSaves) {
    mSound.Playback = PlaybackState::Missing;
    EXPECT_TRUE(Supported());
    EXPECT_EQ(LastError(), "");
    Record(Speech(100));
    EXPECT_FALSE(mEngine->RecorderStartPlayback());
    EXPECT_EQ(LastError(), "There is no sound card to play the recording on.");
    EXPECT_TRUE(mEngine->RecorderSaveToFile(SavePath()));
    EXPECT_EQ(LastError(), "");
}

TEST_F(SoundRecorder, AnOutputThatGoesIsToldWhenItIsWanted) {
    ASSERT_TRUE(Supported());
    mSound.PlayerFails = true;
    Record(Speech(100));
    EXPECT_FALSE(mEngine->RecorderStartPlayback());
    EXPECT_EQ(LastError(), "There is no sound card to play the recording on.");
    EXPECT_FALSE(mEngine->RecorderPlaybackComplete());
}

TEST_F(SoundRecorder, RecordsPlaysAndTellsTheEnd) {
    ASSERT_TRUE(Supported());
    Record(Speech(5000));
    ASSERT_TRUE(mEngine->RecorderStartPlayback());
    ASSERT_NE(mSound.Player, nullptr);
    EXPECT_EQ(mSound.Player->Bytes(), Speech(5000) + '\x80');
    EXPECT_EQ(mSound.Player->Format().SamplesPerSec, 22050U);
    mSound.Player->PutOn(0.1);
    EXPECT_FALSE(mEngine->RecorderPlaybackComplete());
    EXPECT_NEAR(mEngine->RecorderSeconds(), 0.1, 0.001);
    mSound.Player->PutOn(5);
    EXPECT_TRUE(mEngine->RecorderPlaybackComplete());
    EXPECT_TRUE(mEngine->RecorderPlaybackComplete()) << "until it is stopped";
    mEngine->RecorderStopPlayback();
    EXPECT_FALSE(mEngine->RecorderPlaybackComplete());
    EXPECT_EQ(mSound.Player->GetCurrentPosition(), 0);
}

TEST_F(SoundRecorder, PlaysAnyNumberOfTimesFromTheStartAndBuildsItsBufferOnce) {
    ASSERT_TRUE(Supported());
    Record(Speech(5000));
    mSound.Told.clear();
    ASSERT_TRUE(mEngine->RecorderStartPlayback());
    mSound.Player->PutOn(0.1);
    ASSERT_TRUE(mEngine->RecorderStartPlayback()) << "while it plays";
    EXPECT_EQ(mSound.Player->GetCurrentPosition(), 0);
    mSound.Player->PutOn(5);
    mEngine->RecorderStopPlayback();
    ASSERT_TRUE(mEngine->RecorderStartPlayback());
    EXPECT_EQ(mSound.Player->GetCurrentPosition(), 0);
    EXPECT_EQ(mSound.Told,
              (Journal{"player of 5001", "play", "stop playing", "play", "stop playing", "play"}));
}

TEST_F(SoundRecorder, TheSavedFileIsTheRecordingToTheByte) {
    ASSERT_TRUE(Supported());
    Record(Speech(7));
    EXPECT_TRUE(mEngine->RecorderSaveToFile(SavePath()));
    QByteArray Golden(
        "RIFF\x2C\0\0\0WAVEfmt \x10\0\0\0\1\0\1\0\x22\x56\0\0\x22\x56\0\0\1\0\x08\0"
        "data\x08\0\0\0",
        44);
    Golden.append("\0\1\2\3\4\5\6\x80", 8);
    EXPECT_EQ(ReadFile(SavePath()).toHex(), Golden.toHex());
    EXPECT_EQ(ListDir(mFolder.Path()).size(), 1U);
}

TEST_F(SoundRecorder, ALongRecordingHoldsItsFirst20SecondsAndThenSilence) {
    mSound.Caps = CaptureDevice::Mono8At11025;
    ASSERT_TRUE(Supported());
    Record(Speech(25 * 11025));
    EXPECT_EQ(mEngine->RecorderSeconds(), 20);
    ASSERT_TRUE(mEngine->RecorderSaveToFile(SavePath()));
    EXPECT_EQ(ReadFile(SavePath()).mid(44), Speech(20 * 11025) + '\x80' + '\0');
}

TEST_F(SoundRecorder, SavingBeforeAnyRecordingIsRefused) {
    ASSERT_TRUE(Supported());
    ExpectNothingToSave();
}

TEST_F(SoundRecorder, ARecordingOfNothingIsNone) {
    ASSERT_TRUE(Supported());
    Record({});
    ExpectNothingToSave();
}

TEST_F(SoundRecorder, NoEarlierRecordingComesOutInsteadOfOneOfNothing) {
    ASSERT_TRUE(Supported());
    Record(Speech(100));
    ASSERT_TRUE(mEngine->RecorderStartPlayback());
    Record({});
    ExpectNothingToSave();
}

TEST_F(SoundRecorder, ANewRecordingReplacesTheOld) {
    ASSERT_TRUE(Supported());
    Record(Speech(1000));
    ASSERT_TRUE(mEngine->RecorderStartPlayback());
    Record(Speech(500, 40));
    ASSERT_TRUE(mEngine->RecorderStartPlayback());
    EXPECT_EQ(mSound.Player->Bytes(), Speech(500, 40) + '\x80');
}

TEST_F(SoundRecorder, RecordingStopsWhatRuns) {
    ASSERT_TRUE(Supported());
    Record(Speech(1000));
    ASSERT_TRUE(mEngine->RecorderStartPlayback());
    mSound.Told.clear();
    ASSERT_TRUE(mEngine->RecorderStartRecording());
    ASSERT_TRUE(mEngine->RecorderStartRecording());
    EXPECT_EQ(mSound.Told,
              (Journal{"stop playing", "buffer of 441000", "buffer released", "record",
                       "stop recording", "buffer of 441000", "buffer released", "record"}));
}

TEST_F(SoundRecorder, PlayingAndSavingStopTheRecording) {
    ASSERT_TRUE(Supported());
    for (const bool Save : {true, false}) {
        ASSERT_TRUE(mEngine->RecorderStartRecording());
        mSound.Buffer->Feed(Speech(300));
        EXPECT_TRUE(Save ? mEngine->RecorderSaveToFile(SavePath())
                         : mEngine->RecorderStartPlayback());
        mSound.Buffer->Feed(Speech(300));
        EXPECT_EQ(mSound.Buffer->GetCurrentPosition(), 300);
    }
}

TEST_F(SoundRecorder, AMicrophonePulledOutLeavesTheLastRecording) {
    ASSERT_TRUE(Supported());
    Record(Speech(100));
    mSound.Unplugged = true;
    EXPECT_FALSE(mEngine->RecorderStartRecording());
    EXPECT_EQ(LastError(), "Unable to initialize sound card for capture.");
    EXPECT_TRUE(mEngine->RecorderSaveToFile(SavePath()));
    EXPECT_EQ(ReadFile(SavePath()).mid(44), Speech(100) + "\x80" + '\0');
}

TEST_F(SoundRecorder, AFullDiskLeavesTheOldFileTheRecordingAndNoHalfFile) {
    WriteFile(SavePath(), "the old clip");
    ASSERT_TRUE(Supported());
    Record(Speech(1000));
    for (const HostStep Failing : {HostStep::Write, HostStep::Sync, HostStep::Rename}) {
        SetHostWatcher([=](HostStep Step, const QString& Path, qint64& Length) {
            if (Step == HostStep::Write) Length /= Failing == HostStep::Write ? 2 : 1;
            if (Step == Failing && Step != HostStep::Write) throw Fault("No.", Path);
        });
        EXPECT_THROW(mEngine->RecorderSaveToFile(SavePath()), Fault);
        SetHostWatcher({});
        EXPECT_EQ(ReadFile(SavePath()), "the old clip");
        EXPECT_EQ(ListDir(mFolder.Path()).size(), 1U);
    }
    EXPECT_TRUE(mEngine->RecorderSaveToFile(SavePath()));
    EXPECT_EQ(ReadFile(SavePath()).size(), 44 + 1002);
}

TEST_F(SoundRecorder, AFileInNoFolderIsAFault) {
    ASSERT_TRUE(Supported());
    Record(Speech(10));
    EXPECT_THROW(mEngine->RecorderSaveToFile(mFolder / "none/clip.wav"), Fault);
    EXPECT_TRUE(mEngine->RecorderStartPlayback());
}

TEST_F(SoundRecorder, TheVolumeIsFrom1To100) {
    for (const int Right : {1, 50, 100}) EXPECT_TRUE(mEngine->SetRecorderVolume(Right));
    for (const int Wrong : {0, 101, -5})
        neb::harness::ExpectRefused(mEngine->SetRecorderVolume(Wrong),
                                    QStringLiteral("Volume must be >0 and <=100"));
}

TEST_F(SoundRecorder, RecordsAtTheVolumeThatWasSet) {
    ASSERT_TRUE(Supported());
    EXPECT_TRUE(mEngine->SetRecorderVolume(74));  // 6 decibels more: twice as much
    Record("\x80\x90\x70");
    ASSERT_TRUE(mEngine->RecorderStartPlayback());
    EXPECT_EQ(mSound.Player->Bytes().toHex(), "80a06080");
    EXPECT_TRUE(mEngine->SetRecorderVolume(26));
    ASSERT_TRUE(mEngine->RecorderSaveToFile(SavePath()));
    EXPECT_EQ(ReadFile(SavePath()).mid(44).toHex(), "80a06080") << "what was recorded stays";
    Record("\x80\x90\x70");
    ASSERT_TRUE(mEngine->RecorderStartPlayback());
    EXPECT_EQ(mSound.Player->Bytes().toHex(), "80887880");
}

TEST_F(SoundRecorder, AVolumeThatIsChangedMeanwhileIsForWhatFollows) {
    ASSERT_TRUE(Supported());
    ASSERT_TRUE(mEngine->RecorderStartRecording());
    mSound.Buffer->Feed(QByteArray(3000, '\x90'));
    EXPECT_EQ(mEngine->RecorderLevel(), 0.125);
    EXPECT_TRUE(mEngine->SetRecorderVolume(74));
    mSound.Buffer->Feed(QByteArray(3000, '\x90'));
    EXPECT_EQ(mEngine->RecorderLevel(), 0.25) << "the meter shows what is recorded";
    mEngine->RecorderStopRecording();
    ASSERT_TRUE(mEngine->RecorderSaveToFile(SavePath()));
    EXPECT_EQ(ReadFile(SavePath()).mid(44),
              QByteArray(3000, '\x90') + QByteArray(3000, '\xA0') + '\x80' + '\0');
}

TEST_F(SoundRecorder, TellsSecondsAndLevelWhileItRecords) {
    ASSERT_TRUE(Supported());
    ASSERT_TRUE(mEngine->RecorderStartRecording());
    EXPECT_EQ(mEngine->RecorderSeconds(), 0);
    EXPECT_EQ(mEngine->RecorderLevel(), 0);
    mSound.Buffer->Feed("\x80\x40\x80" + QByteArray(22050 - 3, '\x80'));
    EXPECT_EQ(mEngine->RecorderSeconds(), 1);
    EXPECT_EQ(mEngine->RecorderLevel(), 0) << "of the last moment alone";
    mSound.Buffer->Feed("\x40\x80");
    EXPECT_EQ(mEngine->RecorderLevel(), 0.5);
    mSound.Buffer->Feed(QByteArray(1, '\0'));
    EXPECT_EQ(mEngine->RecorderLevel(), 1);
    mEngine->RecorderStopRecording();
    EXPECT_EQ(mEngine->RecorderLevel(), 0);
}

TEST_F(SoundRecorder, TellsTheLevelOfWhatItPlays) {
    ASSERT_TRUE(Supported());
    Record(QByteArray(11025, '\xA0') + QByteArray(11025, '\x80'));
    ASSERT_TRUE(mEngine->RecorderStartPlayback());
    mSound.Player->PutOn(0.2);
    EXPECT_EQ(mEngine->RecorderLevel(), 0.25);
    mSound.Player->PutOn(0.5);
    EXPECT_EQ(mEngine->RecorderLevel(), 0);
}

TEST_F(SoundRecorder, IsReleasedInTheReverseOfItsCreationWithNothingRunning) {
    ASSERT_TRUE(Supported());
    Record(Speech(100));
    ASSERT_TRUE(mEngine->RecorderStartPlayback());
    mSound.Told.clear();
    mEngine.reset();
    EXPECT_EQ(mSound.Told, (Journal{"stop playing", "player released", "buffer released",
                                    "microphone released"}));
}

TEST_F(SoundRecorder, ReleasedWhileItRecordsItStops) {
    ASSERT_TRUE(Supported());
    ASSERT_TRUE(mEngine->RecorderStartRecording());
    mSound.Told.clear();
    mEngine.reset();
    EXPECT_EQ(mSound.Told, (Journal{"stop recording", "buffer released", "microphone released"}));
}

}  // namespace
}  // namespace neb::test
