// The sound of a slide in the slide manager: recorded through the sound recorder, cleared, kept.
#include "SlideRig.h"
#include "sound/RecorderRig.h"
#include "windows/recorder/frmSoundRecorder.h"

namespace neb {
namespace {

using namespace harness;

class SlideDBMSound : public SlideRig {
  protected:
    // Presses Record in the slide manager and speaks; nothing: only stops and saves.
    void Record(const QByteArray& Words, bool Saves = true) {
        WhenOpen<frmSoundRecorder>([this, Words, Saves](frmSoundRecorder& Recorder) {
            AwaitDevices(Recorder);
            Press(Recorder, "cmdRecord");
            AwaitDevices(Recorder);
            if (!Words.isEmpty() && Sound.Buffer) Sound.Buffer->Feed(Words);
            Press(Recorder, "cmdStop");
            AwaitDevices(Recorder);
            if (Saves) Press(Recorder, "cmdSave");
            AwaitDevices(Recorder);
            Drop(Recorder);
        });
        Push("cmdRecord");
    }
    // All its buttons are off while they are busy.
    static void AwaitDevices(frmSoundRecorder& Recorder) {
        EXPECT_TRUE(QTest::qWaitFor([&] {
            return !Recorder.IsLoaded() || In<QWidget>(Recorder, "cmdRecord").isEnabled() ||
                   In<QWidget>(Recorder, "cmdStop").isEnabled();
        }));
    }
    QByteArray StoredSound(std::int32_t ID) {
        const QString File = Stored(FileStem(ID) + u".wav"_s);
        return FileExists(File) ? ReadFile(File) : QByteArray();
    }
    std::string SoundText() { return In<QLabel>(*W, "lblSound").text().toStdString(); }

    test::FakeSound Sound;
};

TEST_F(SlideDBMSound, ARecordingIsStoredWithTheSlide) {
    const auto ID = AddSlide(u"a"_s);
    OpenSlide(ID);
    Record(test::Speech(5000));
    EXPECT_TRUE(Dirty());
    EXPECT_TRUE(IsOn("chkOverride"));
    EXPECT_TRUE(IsOn("chkRepeat"));
    EXPECT_TRUE(IsOn("cmdClearSound"));
    EXPECT_EQ("", StoredSound(ID)) << "it waits for the save";
    EXPECT_TRUE(FileExists(Db / u"Temp/tmp.wav"_s));
    QTest::mouseClick(&Check("chkOverride"), Qt::LeftButton);
    Push("cmdSave");
    EXPECT_EQ(ReadFile(Db / u"Temp/tmp.wav"_s), StoredSound(ID));
    EXPECT_TRUE(StoredSound(ID).contains(test::Speech(5000)));
    EXPECT_EQ("00000001.wav", Slide(ID).SoundTrackLoc.toStdString());
    EXPECT_TRUE(Slide(ID).Override);
    EXPECT_FALSE(Slide(ID).Repeat);
    EXPECT_TRUE(Check("chkOverride").isChecked());
    EXPECT_EQ("This slide has a sound.", SoundText());
}

TEST_F(SlideDBMSound, ANewSlideTakesItsRecordingAlong) {
    OpenAlbum();
    PickPicture(MakePicture(Pics / u"a.png"_s));
    Type(u"a"_s);
    Record(test::Speech(300));
    Push("cmdSave");
    EXPECT_TRUE(StoredSound(Chosen()).contains(test::Speech(300)));
}

TEST_F(SlideDBMSound, WithoutARecordingThereIsNothingToKeep) {
    const auto ID = AddSlide(u"a"_s);
    WriteFile(Db / u"Temp/tmp.wav"_s, "another slide's");
    OpenSlide(ID);
    Boxes.Expect(u"Unable to initialize sound card for capture."_s, {}, BoxAnswer::Ok);
    Sound.Unplugged = true;
    Record({});
    EXPECT_FALSE(Dirty());
    EXPECT_EQ("This slide has no sound.", SoundText());
}

TEST_F(SlideDBMSound, ARecorderThatIsClosedLeavesTheEarlierRecordingWaiting) {
    const auto ID = AddSlide(u"a"_s);
    OpenSlide(ID);
    Record(test::Speech(100));
    Record(test::Speech(200, 7), false);
    Push("cmdSave");
    EXPECT_TRUE(StoredSound(ID).contains(test::Speech(100)));
}

TEST_F(SlideDBMSound, WithoutAMicrophoneTheRecorderSaysSo) {
    OpenSlide(AddSlide(u"a"_s));
    Sound.HasMicrophone = false;
    const int Before = Boxes.ShownCount();
    class Any : public MessageBoxes {
        BoxAnswer Show(const BoxRequest&) override { return ++Count, BoxAnswer::Ok; }

      public:
        int Count = 0;
    } Notes;
    TheServices().Boxes = &Notes;
    Push("cmdRecord");
    TheServices().Boxes = &Boxes;
    EXPECT_EQ(1, Notes.Count);
    EXPECT_EQ(Before, Boxes.ShownCount());
    EXPECT_FALSE(Dirty());
}

TEST_F(SlideDBMSound, TwoWindowsRecordEachForItsOwnSlide) {
    const auto One = AddSlide(u"a"_s), Two = AddSlide(u"b"_s);
    frmSlideDBM& First = OpenSlide(One);
    Record(test::Speech(100));
    OpenSlide(Two);
    Record(test::Speech(200, 9));
    Push("cmdSave");
    Press(First, "cmdSave");
    EXPECT_TRUE(StoredSound(One).contains(test::Speech(100)));
    EXPECT_TRUE(StoredSound(Two).contains(test::Speech(200, 9)));
}

TEST_F(SlideDBMSound, AClearedSoundGoesWithTheSaveAndNotBefore) {
    const auto ID = AddSound(AddSlide(u"a"_s), true, true);
    OpenSlide(ID);
    EXPECT_EQ("This slide has a sound.", SoundText());
    Push("cmdClearSound");
    EXPECT_EQ("The sound goes with the next save.", SoundText());
    EXPECT_EQ("old sound", StoredSound(ID));
    Push("cmdSave");
    EXPECT_EQ("", StoredSound(ID));
    EXPECT_EQ("", Slide(ID).SoundTrackLoc.toStdString());
    EXPECT_FALSE(Slide(ID).Override);
    EXPECT_FALSE(IsOn("chkRepeat"));
}

TEST_F(SlideDBMSound, ARecordingAfterTheSoundWasClearedIsStored) {
    const auto ID = AddSound(AddSlide(u"a"_s), true, true);
    OpenSlide(ID);
    Push("cmdClearSound");
    Record(test::Speech(100));
    EXPECT_EQ("A new recording, not yet saved.", SoundText());
    Push("cmdSave");
    EXPECT_TRUE(StoredSound(ID).contains(test::Speech(100)));
    EXPECT_EQ("00000001.wav", Slide(ID).SoundTrackLoc.toStdString());
    EXPECT_TRUE(Slide(ID).Override);
}

TEST_F(SlideDBMSound, ASoundClearedAfterARecordingIsRemoved) {
    const auto ID = AddSound(AddSlide(u"a"_s), true, true);
    OpenSlide(ID);
    Record(test::Speech(100));
    Push("cmdClearSound");
    EXPECT_EQ("The sound goes with the next save.", SoundText());
    Push("cmdSave");
    EXPECT_EQ("", StoredSound(ID));
    EXPECT_EQ("", Slide(ID).SoundTrackLoc.toStdString());
}

TEST_F(SlideDBMSound, TheBoxesAreKeptWithASoundThatStays) {
    const auto ID = AddSound(AddSlide(u"a"_s), true, false);
    OpenSlide(ID);
    QTest::mouseClick(&Check("chkOverride"), Qt::LeftButton);
    QTest::mouseClick(&Check("chkRepeat"), Qt::LeftButton);
    Push("cmdSave");
    EXPECT_FALSE(Slide(ID).Override);
    EXPECT_TRUE(Slide(ID).Repeat);
    EXPECT_EQ("old sound", StoredSound(ID));
}

TEST_F(SlideDBMSound, AFullDiskKeepsTheRecordingForTheNextSave) {
    const auto ID = AddSound(AddSlide(u"a"_s), false, false);
    OpenSlide(ID);
    PickPicture(MakePicture(Pics / u"wide.png"_s, 90, 30));
    Push("cmdRotate1");
    Record(test::Speech(100));
    SetHostWatcher([](HostStep Step, const QString& Path, qint64& Length) {
        if (Step == HostStep::Write && Path.contains(u"00000001.wav")) Length = 5;
    });
    Boxes.Expect(
        u"The file cannot be written. (no space left on device)\n"_s + Stored(u"00000001.wav"_s),
        u"Operation Failed"_s);
    Push("cmdSave");
    EXPECT_EQ("old sound", StoredSound(ID));
    EXPECT_TRUE(Dirty());
    SetHostWatcher({});
    Push("cmdSave");
    EXPECT_TRUE(StoredSound(ID).contains(test::Speech(100)));
    EXPECT_EQ(QSize(30, 90), SizeOf(Stored(u"00000001.jpg"_s))) << "turned, as on the screen";
}

TEST_F(SlideDBMSound, ADiskThatIsFullForTheRecorderIsSaidAndKeepsTheWindows) {
    OpenSlide(AddSlide(u"a"_s));
    SetHostWatcher([](HostStep Step, const QString& Path, qint64& Length) {
        if (Step == HostStep::Write && Path.contains(u"tmp.wav")) Length = 5;
    });
    Boxes.Expect(
        u"The file cannot be written. (no space left on device)\n"_s + (Db / u"Temp/tmp.wav.new"_s),
        u"Operation Failed"_s);
    Record(test::Speech(100));
    EXPECT_FALSE(Dirty());
    EXPECT_FALSE(FileExists(Db / u"Temp/tmp.wav.new"_s));
}

}  // namespace
}  // namespace neb
