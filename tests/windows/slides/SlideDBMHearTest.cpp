// The sound of a slide in the slide manager: heard there, and chosen from a file.
#include <QMimeData>

#include "SlideRig.h"
#include "harness/SoundFiles.h"
#include "sound/RecorderRig.h"
#include "sound/workers/SoundReading.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

using namespace harness;

// A player whose time the test puts on, and that tells what it plays.
class HeardGraph : public SoundGraph {
  public:
    explicit HeardGraph(HeardGraph*& Current) : mCurrent(Current) { mCurrent = this; }
    ~HeardGraph() override {
        if (mCurrent == this) mCurrent = nullptr;
    }
    QByteArray File;
    bool Running = false;
    double Position = 0;

    void RenderFile(const QString& Path) override {
        OpenSound(Path);
        File = ReadFile(Path);
    }
    void Run() override { Running = true; }
    void Pause() override { Running = false; }
    void Stop() override { Running = false; }
    bool IsRunning() const override { return Running; }
    void PutVolume(int) override { ADD_FAILURE() << "a sound is heard as it is"; }
    int GetVolume() const override { return 0; }
    double GetDuration() const override { return 2; }
    double GetCurrentPosition() const override { return Position; }
    void PutCurrentPosition(double Seconds) override { Position = Seconds; }

  private:
    HeardGraph*& mCurrent;
};

class Loudspeakers : public test::FakeSound {
  public:
    HeardGraph* Heard = nullptr;  // the one that lives
    std::unique_ptr<SoundGraph> CreateGraph() override {
        return std::make_unique<HeardGraph>(Heard);
    }
};

class SlideDBMHear : public SlideRig {
  protected:
    static QByteArray Wave(double Seconds = 0.1) { return WaveBytes(Tone(Seconds, 8000), 8000); }
    std::int32_t AddHeard(const QString& Text, double Seconds = 0.1) {
        const auto ID = AddSound(AddSlide(Text), false, false);
        WriteFile(Stored(FileStem(ID) + u".wav"_s), Wave(Seconds));
        return ID;
    }
    void PickSound(const QString& File) {
        Dialogs.Answer = File;
        Push("cmdSoundFile");
    }
    std::string SoundText() { return In<QLabel>(*W, "lblSound").text().toStdString(); }
    std::string PlayText() {
        return In<QPushButton>(*W, "cmdPlaySound").text().remove(u'&').toStdString();
    }
    bool Hears(const QByteArray& File) {
        return Sound.Heard && Sound.Heard->Running && Sound.Heard->File == File;
    }

    Loudspeakers Sound;
};

TEST_F(SlideDBMHear, AStoredSoundIsPlayedAndStopped) {
    OpenSlide(AddHeard(u"a"_s));
    EXPECT_TRUE(IsOn("cmdPlaySound"));
    EXPECT_EQ("Play", PlayText());
    Push("cmdPlaySound");
    EXPECT_TRUE(Hears(Wave()));
    EXPECT_EQ("Stop", PlayText());
    EXPECT_EQ("Stop", In<QPushButton>(*W, "cmdPlaySound").accessibleName().toStdString());
    EXPECT_FALSE(Dirty());
    Push("cmdPlaySound");
    EXPECT_EQ(nullptr, Sound.Heard);
    EXPECT_EQ("Play", PlayText());
}

TEST_F(SlideDBMHear, ByTheKeyboardAsWell) {
    OpenSlide(AddHeard(u"a"_s));
    auto& Play = In<QPushButton>(*W, "cmdPlaySound");
    Play.setFocus();
    QTest::keyClick(&Play, Qt::Key_Space);
    EXPECT_TRUE(Hears(Wave()));
    QTest::keyClick(&Play, Qt::Key_Space);
    EXPECT_EQ(nullptr, Sound.Heard);
    QTest::keyClick(W, Qt::Key_K, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Hears(Wave()); }));
    QTest::keyClick(W, Qt::Key_K, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Sound.Heard == nullptr; }));
}

TEST_F(SlideDBMHear, AtItsEndTheButtonComesBack) {
    OpenSlide(AddHeard(u"a"_s));
    Push("cmdPlaySound");
    Sound.Heard->Position = 1.9;
    QTest::qWait(250);
    EXPECT_EQ("Stop", PlayText());
    Sound.Heard->Position = 2;
    EXPECT_TRUE(QTest::qWaitFor([&] { return PlayText() == "Play"; }));
    EXPECT_EQ(nullptr, Sound.Heard) << "the loudspeakers are let go of";
}

TEST_F(SlideDBMHear, ItStopsWhereAModalWindowComesUpAsAShowIs) {
    OpenSlide(AddHeard(u"a"_s));
    Push("cmdPlaySound");
    EXPECT_TRUE(Hears(Wave()));
    QDialog Over(W);
    Over.setModal(true);
    Over.show();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Sound.Heard == nullptr; }));
    EXPECT_EQ("Play", PlayText());
}

TEST_F(SlideDBMHear, ItStopsWhenTheSlideChangesAndWhenTheWindowCloses) {
    const auto One = AddHeard(u"a"_s), Two = AddHeard(u"b"_s, 0.2);
    OpenSlide(One);
    Push("cmdPlaySound");
    Push("cmdNext");
    EXPECT_EQ(Two, Chosen());
    EXPECT_EQ(nullptr, Sound.Heard);
    Push("cmdPlaySound");
    EXPECT_TRUE(Hears(Wave(0.2)));
    Push("cmdNew");
    EXPECT_EQ(nullptr, Sound.Heard);
    EXPECT_FALSE(IsOn("cmdPlaySound"));
    Choose("cboSlides", One);
    Push("cmdPlaySound");
    EXPECT_TRUE(Hears(Wave()));
    Push("cmdClose");
    EXPECT_EQ(nullptr, Sound.Heard);
}

TEST_F(SlideDBMHear, WithoutASoundThereIsNothingToPlay) {
    OpenSlide(AddSlide(u"a"_s));
    EXPECT_FALSE(IsOn("cmdPlaySound"));
    Choose("cboSlides", AddHeard(u"b"_s));
    OpenSlide(AddHeard(u"c"_s));
    EXPECT_TRUE(IsOn("cmdPlaySound"));
    Push("cmdPlaySound");
    Push("cmdClearSound");
    EXPECT_FALSE(IsOn("cmdPlaySound"));
    EXPECT_EQ(nullptr, Sound.Heard);
    Push("cmdCancel");
    EXPECT_TRUE(IsOn("cmdPlaySound"));
}

TEST_F(SlideDBMHear, ASoundThatIsMissingOrDamagedIsTold) {
    const auto ID = AddHeard(u"a"_s);
    const QString File = Stored(u"00000001.wav"_s);
    OpenSlide(ID);
    DeleteFile(File);
    Boxes.Expect(u"The sound of this slide cannot be found.\n"_s + File, u"Sound Missing"_s,
                 BoxIcon::Information, BoxAnswer::Ok);
    Push("cmdPlaySound");
    EXPECT_EQ("Play", PlayText());
    WriteFile(File, "no sound at all, but some words of it");
    Boxes.Expect(u"The file is not a sound that this program can play.\n"_s + File,
                 u"Operation Failed"_s);
    Push("cmdPlaySound");
    EXPECT_EQ("Play", PlayText());
    WriteFile(File, Wave());
    TheServices().Sound = nullptr;
    Boxes.Expect(u"Unable to use the sound system."_s, {}, BoxAnswer::Ok);
    Push("cmdPlaySound");
    TheServices().Sound = &Sound;
    EXPECT_EQ(3, Boxes.ShownCount());
}

TEST_F(SlideDBMHear, ASoundFileIsChosenHeardAndStoredWithItsOwnEnding) {
    for (const char* Name :
         {"sound/short.ogg", "sound/short.flac", "sound/short.aiff", "sound/cbr.mp3"}) {
        const QByteArray File = ReadFile(DataFile(Name));
        const auto ID = AddSlide(QString::fromLatin1(Name));
        OpenSlide(ID);
        PickSound(DataFile(Name));
        EXPECT_EQ("A new sound, not yet saved.", SoundText());
        EXPECT_TRUE(Dirty());
        EXPECT_TRUE(IsOn("chkRepeat"));
        Push("cmdPlaySound");
        EXPECT_TRUE(Hears(File)) << Name;
        Push("cmdSave");
        EXPECT_EQ(nullptr, Sound.Heard);
        const QString Loc = FileStem(ID) + GetFileExt(QString::fromLatin1(Name));
        EXPECT_EQ(Loc, Slide(ID).SoundTrackLoc);
        EXPECT_EQ(File, ReadFile(Stored(Loc)));
        EXPECT_EQ("This slide has a sound.", SoundText());
        Push("cmdPlaySound");
        EXPECT_TRUE(Hears(File)) << Name;
        W->Unload();
    }
    EXPECT_TRUE(Dialogs.Filters.startsWith(u"All Sound Files|"));
}

TEST_F(SlideDBMHear, AChosenSoundTakesThePlaceOfTheOneBefore) {
    const auto ID = AddHeard(u"a"_s);
    OpenSlide(ID);
    PickSound(DataFile("sound/short.ogg"));
    EXPECT_TRUE(FileExists(Stored(u"00000001.wav"_s)));
    Push("cmdSave");
    EXPECT_FALSE(FileExists(Stored(u"00000001.wav"_s)));
    EXPECT_EQ("00000001.ogg", Slide(ID).SoundTrackLoc.toStdString());
    Push("cmdClearSound");
    Push("cmdSave");
    EXPECT_FALSE(FileExists(Stored(u"00000001.ogg"_s)));
    EXPECT_EQ("", Slide(ID).SoundTrackLoc.toStdString());
}

TEST_F(SlideDBMHear, ASoundUnderAnotherNameIsKnownByItsContent) {
    const auto ID = AddSlide(u"a"_s);
    WriteFile(Pics / u"voice.jpg"_s, Wave());
    OpenSlide(ID);
    PickSound(Pics / u"voice.jpg"_s);
    Push("cmdSave");
    EXPECT_EQ("00000001.wav", Slide(ID).SoundTrackLoc.toStdString());
    EXPECT_EQ(Wave(), ReadFile(Stored(u"00000001.wav"_s)));
}

TEST_F(SlideDBMHear, AFileThatIsNoSoundIsToldAndNotTaken) {
    OpenSlide(AddSlide(u"a"_s));
    WriteFile(Pics / u"words.ogg"_s, "no sound at all, but some words of it");
    Boxes.Expect(
        u"The file is not a sound that this program can play.\n"_s + (Pics / u"words.ogg"_s),
        u"Operation Failed"_s);
    PickSound(Pics / u"words.ogg"_s);
    EXPECT_FALSE(Dirty());
    EXPECT_EQ("This slide has no sound.", SoundText());
    PickSound({});
    EXPECT_FALSE(Dirty());
}

TEST_F(SlideDBMHear, ASoundFileMayBeDroppedOnTheWindow) {
    const auto ID = AddSlide(u"a"_s);
    OpenSlide(ID);
    QMimeData Data;
    Data.setUrls({QUrl::fromLocalFile(DataFile("sound/short.flac"))});
    QDragEnterEvent Enter(W->rect().center(), Qt::CopyAction, &Data, Qt::LeftButton, {});
    QApplication::sendEvent(W, &Enter);
    EXPECT_TRUE(Enter.isAccepted());
    QDropEvent Drop(QPointF(W->rect().center()), Qt::CopyAction, &Data, Qt::LeftButton, {});
    QApplication::sendEvent(W, &Drop);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Dirty(); }));
    EXPECT_EQ("A new sound, not yet saved.", SoundText());
    EXPECT_FALSE(Shown().isNull()) << "the picture stays";
}

TEST_F(SlideDBMHear, InADatabaseForLookingOnlySoundsAreHeardAllTheSame) {
    const auto ID = AddHeard(u"a"_s);
    const QScopedValueRollback Only(ReadOnlyDB, true);
    OpenSlide(ID);
    EXPECT_FALSE(IsOn("cmdSoundFile"));
    EXPECT_TRUE(IsOn("cmdPlaySound"));
    Push("cmdPlaySound");
    EXPECT_TRUE(Hears(Wave()));
}

}  // namespace
}  // namespace neb
