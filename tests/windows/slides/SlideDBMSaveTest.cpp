// What the slide manager keeps: checks in their order, the three ways of a picture, the three of a
// sound, and what is left when a file cannot be written.
#include <QFile>

#include "SlideRig.h"
#include "albums/SlideSave.h"
#include "harness/WithoutPrivileges.h"

namespace neb {
namespace {

using namespace harness;

class SlideDBMSave : public SlideRig {
  protected:
    // A full disk for files whose name ends so.
    static void FillDisk(const QString& Ending) {
        SetHostWatcher([Ending](HostStep Step, const QString& Path, qint64& Length) {
            if (Step == HostStep::Write && Path.contains(Ending)) Length = 1;
        });
    }
    void ExpectFullDisk(const QString& Name) {
        Boxes.Expect(u"The file cannot be written. (no space left on device)\n"_s + Stored(Name),
                     u"Operation Failed"_s);
    }
};

TEST_F(SlideDBMSave, ANewSlideIsStoredWithItsPictureFitted) {
    const auto Others = NewForm<Listener>();
    Others->Load();
    OpenAlbum();
    PickPicture(MakePicture(Pics / u"big.png"_s, 1025, 768, Qt::blue));
    Type(u"it's \"new\""_s);
    Push("cmdSave");
    ASSERT_EQ(1u, Album().Slides.size());
    const clsNEBSlide& Made = *Album().Slides[0];
    EXPECT_EQ(u"it’s “new”"_s.toStdString(), Made.SlideText.toStdString());
    EXPECT_EQ("00000001.JPG", Made.SlideLoc.toStdString());
    EXPECT_EQ("", Made.SoundTrackLoc.toStdString());
    EXPECT_EQ(QSize(1024, 767), SizeOf(Stored(u"00000001.jpg"_s)));
    EXPECT_EQ(Made.SlideID, Chosen());
    EXPECT_FALSE(Dirty());
    EXPECT_TRUE(IsOn("cmdDelete"));
    EXPECT_FALSE(FileExists(Stored(u"00000001Small.bmp"_s)));
    EXPECT_EQ("Album Add Slides 1 1", Others->Heard.join(u'|').toStdString());
    Others->Unload();
}

TEST_F(SlideDBMSave, APictureOfTheLimitsKeepsItsSizeAndDoubleIsHalved) {
    OpenAlbum();
    for (const auto& [From, To] : {std::pair{QSize(1024, 768), QSize(1024, 768)},
                                   std::pair{QSize(2048, 1536), QSize(1024, 768)}}) {
        Push("cmdNew");
        PickPicture(MakePicture(Pics / u"p.png"_s, From.width(), From.height()));
        Type(u"p"_s);
        Push("cmdSave");
        EXPECT_EQ(To, SizeOf(Stored(FileStem(Chosen()) + u".jpg"_s)));
    }
}

TEST_F(SlideDBMSave, ATurnedPictureIsStoredTurnedAndFitted) {
    const auto ID = AddSlide(u"a"_s, 1024, 768);
    OpenSlide(ID);
    Push("cmdRotate2");
    EXPECT_EQ(QSize(768, 1024), Shown().size());
    Push("cmdSave");
    EXPECT_EQ(QSize(576, 768), SizeOf(Stored(u"00000001.jpg"_s)));
    EXPECT_FALSE(FileExists(Stored(u"00000001Small.bmp"_s)));
    EXPECT_EQ(QSize(576, 768), Shown().size());
    EXPECT_FALSE(Dirty());
}

TEST_F(SlideDBMSave, AChosenPictureThatIsTurnedIsFittedAfterTheTurn) {
    OpenAlbum();
    PickPicture(MakePicture(Pics / u"tall.png"_s, 600, 1200));
    Push("cmdRotate1");
    Type(u"wide"_s);
    Push("cmdSave");
    EXPECT_EQ(QSize(1024, 512), SizeOf(Stored(u"00000001.jpg"_s)));
}

TEST_F(SlideDBMSave, ACaptionAloneLeavesPictureAndThumbnail) {
    const auto ID = AddSlide(u"a"_s);
    const QByteArray Before = ReadFile(Stored(u"00000001.jpg"_s));
    OpenSlide(ID);
    Type(u"b"_s);
    Push("cmdSave");
    EXPECT_EQ("b", Slide(ID).SlideText.toStdString());
    EXPECT_EQ("000001 b", Box("cboSlides").currentText().toStdString());
    EXPECT_EQ(Before, ReadFile(Stored(u"00000001.jpg"_s)));
    EXPECT_TRUE(FileExists(Stored(u"00000001Small.bmp"_s)));
}

TEST_F(SlideDBMSave, ANewPictureReplacesThePictureOfASlide) {
    const auto ID = AddSlide(u"a"_s, 40, 30, Qt::red);
    OpenSlide(ID);
    PickPicture(MakePicture(Pics / u"new.png"_s, 50, 50, Qt::blue));
    Push("cmdSave");
    const QImage Now = ReadBack(Stored(u"00000001.jpg"_s));
    EXPECT_EQ(QSize(50, 50), Now.size());
    EXPECT_GT(qBlue(Now.pixel(25, 25)), 200);
    EXPECT_EQ(1u, Album().Slides.size());
}

// The name of the slide shown before stays in use: such a slide has no picture, and says so.
TEST_F(SlideDBMSave, AfterNewACaptionAloneIsSavedAsASlideWithoutAPicture) {
    OpenSlide(AddSlide(u"a"_s));
    Push("cmdNew");
    Type(u"b"_s);
    Boxes.Expect(u"The Current Slide Appears to be Corrupt."_s);
    Push("cmdSave");
    ASSERT_EQ(2u, Album().Slides.size());
    EXPECT_EQ("", Slide(2).SlideLoc.toStdString());
    EXPECT_FALSE(FileExists(Stored(u"00000002.jpg"_s)));
    EXPECT_EQ(2, Chosen());
    EXPECT_TRUE(ShowsMessage());
}

TEST_F(SlideDBMSave, AfterNewThePictureThatWasDiscardedIsNotStored) {
    OpenSlide(AddSlide(u"a"_s));
    PickPicture(MakePicture(Pics / u"discarded.png"_s, 50, 20));
    ExpectDiscard(BoxAnswer::Discard);
    Push("cmdNew");
    EXPECT_TRUE(ShowsMessage());
    Type(u"b"_s);
    Boxes.Expect(u"The Current Slide Appears to be Corrupt."_s);
    Push("cmdSave");
    EXPECT_EQ("", Slide(2).SlideLoc.toStdString());
    EXPECT_FALSE(FileExists(Stored(u"00000002.jpg"_s)));
}

TEST_F(SlideDBMSave, ACancelledPictureOfANewSlideIsNotStored) {
    OpenAlbum();
    PickPicture(MakePicture(Pics / u"cancelled.png"_s));
    Push("cmdCancel");
    EXPECT_TRUE(ShowsMessage());
    Type(u"b"_s);
    Boxes.Expect(u"You must first select the picture you want to use for this slide."_s);
    Push("cmdSave");
    EXPECT_TRUE(Album().Slides.empty());
}

TEST_F(SlideDBMSave, AFreshWindowAsksForAPicture) {
    OpenAlbum();
    Type(u"b"_s);
    Boxes.Expect(u"You must first select the picture you want to use for this slide."_s,
                 u"Missing Slide"_s, BoxIcon::Information, BoxAnswer::Ok);
    Push("cmdSave");
    EXPECT_TRUE(Album().Slides.empty());
    EXPECT_EQ("b", Text());
    EXPECT_TRUE(Dirty());
}

TEST_F(SlideDBMSave, AsksWhenThereIsNoCaption) {
    OpenAlbum();
    PickPicture(MakePicture(Pics / u"a.png"_s));
    Type(u"  "_s);
    const QString Question =
        u"Are you sure you want to save the slide without a caption?\n"
        "NOTE: It may be hard to tell slides apart in the combo\n"
        "without captions."_s;
    Boxes.Expect(Question, u"Missing Caption Confirmation"_s, BoxIcon::Question, BoxAnswer::No);
    Push("cmdSave");
    EXPECT_TRUE(Album().Slides.empty());
    Boxes.Expect(Question, BoxAnswer::Yes);
    Push("cmdSave");
    EXPECT_EQ(1u, Album().Slides.size());
}

TEST_F(SlideDBMSave, APictureThatHasGoneSinceIsMissed) {
    const QString Gone = MakePicture(Pics / u"a.png"_s);
    const QString Message =
        u"The currently selected slide cannot be found.\n"
        "You must select a new picture you want to use for this slide."_s;
    const auto ID = AddSlide(u"x"_s);
    OpenSlide(ID);
    PickPicture(Gone);
    DeleteFile(Gone);
    Boxes.Expect(Message, u"Missing Slide"_s, BoxIcon::Information, BoxAnswer::Ok);
    Push("cmdSave");
    Push("cmdCancel");
    DeleteFile(Stored(u"00000001.jpg"_s));
    Type(u"y"_s);
    Boxes.Expect(Message);
    Push("cmdSave");
    EXPECT_EQ("x", Slide(ID).SlideText.toStdString());
    EXPECT_EQ("y", Text());
}

TEST_F(SlideDBMSave, WithoutAnAlbumItSaysSoAndKeepsTheChanges) {
    OpenWindow();
    PickPicture(MakePicture(Pics / u"a.png"_s));
    Type(u"a"_s);
    Boxes.Expect(u"Could not find the album."_s);
    Push("cmdSave");
    EXPECT_EQ("a", Text());
    EXPECT_TRUE(Dirty());
}

TEST_F(SlideDBMSave, AFullDiskKeepsTheOldPictureAndTheChangesOnTheScreen) {
    const auto ID = AddSlide(u"a"_s, 40, 30);
    const QByteArray Before = ReadFile(Stored(u"00000001.jpg"_s));
    OpenSlide(ID);
    Type(u"b"_s);
    Push("cmdRotate1");
    FillDisk(u".jpg"_s);
    ExpectFullDisk(u"00000001.jpg"_s);
    Push("cmdSave");
    EXPECT_EQ(Before, ReadFile(Stored(u"00000001.jpg"_s)));
    EXPECT_FALSE(FileExists(Stored(u"00000001.jpg.new"_s)));
    EXPECT_EQ("b", Slide(ID).SlideText.toStdString());
    EXPECT_EQ("00000001.JPG", Slide(ID).SlideLoc.toStdString());
    EXPECT_EQ(QSize(30, 40), Shown().size());
    EXPECT_TRUE(Dirty());
    SetHostWatcher({});
    Push("cmdSave");
    EXPECT_EQ(QSize(30, 40), SizeOf(Stored(u"00000001.jpg"_s)));
}

TEST_F(SlideDBMSave, AFullDiskLeavesANewSlideWithoutAPictureForTheNextSaveToComplete) {
    OpenAlbum();
    PickPicture(MakePicture(Pics / u"a.png"_s, 50, 20));
    Type(u"b"_s);
    FillDisk(u".jpg"_s);
    ExpectFullDisk(u"00000001.jpg"_s);
    Push("cmdSave");
    ASSERT_EQ(1u, Album().Slides.size());
    EXPECT_EQ("", Slide(1).SlideLoc.toStdString());
    EXPECT_EQ("b", Text());
    EXPECT_EQ(QSize(50, 20), Shown().size());
    EXPECT_TRUE(Dirty());
    EXPECT_EQ(1, Chosen());
    SetHostWatcher({});
    Push("cmdSave");
    ASSERT_EQ(1u, Album().Slides.size());
    EXPECT_EQ("00000001.JPG", Slide(1).SlideLoc.toStdString());
    EXPECT_EQ(QSize(50, 20), SizeOf(Stored(u"00000001.jpg"_s)));
    EXPECT_FALSE(Dirty());
}

TEST_F(SlideDBMSave, WantOfMemoryLeavesANewSlideForTheNextSaveToComplete) {
    OpenAlbum();
    PickPicture(MakePicture(Pics / u"a.png"_s, 50, 20));
    Type(u"b"_s);
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Write && Path.contains(u".jpg")) throw std::bad_alloc();
    });
    Boxes.Expect(u"There is not enough memory to do this."_s, u"Operation Failed"_s);
    Push("cmdSave");
    SetHostWatcher({});
    EXPECT_EQ(1, Chosen());
    EXPECT_TRUE(Dirty());
    Push("cmdSave");
    ASSERT_EQ(1u, Album().Slides.size());
    EXPECT_EQ(QSize(50, 20), SizeOf(Stored(u"00000001.jpg"_s)));
}

TEST_F(SlideDBMSave, OtherWindowsHearOfASlideThatIsThereWithoutItsPicture) {
    const auto Others = NewForm<Listener>();
    Others->Load();
    OpenAlbum();
    PickPicture(MakePicture(Pics / u"a.png"_s));
    Type(u"b"_s);
    FillDisk(u".jpg"_s);
    ExpectFullDisk(u"00000001.jpg"_s);
    Push("cmdSave");
    EXPECT_EQ("Album Add Slides 1 1", Others->Heard.join(u'|').toStdString());
    Others->Unload();
}

TEST_F(SlideDBMSave, ANewSlideThatCouldNotBeStoredCanBeTakenBack) {
    OpenAlbum();
    PickPicture(MakePicture(Pics / u"a.png"_s));
    Type(u"b"_s);
    FillDisk(u".jpg"_s);
    ExpectFullDisk(u"00000001.jpg"_s);
    Push("cmdSave");
    Boxes.Expect(u"The Current Slide Appears to be Corrupt."_s);
    Push("cmdCancel");
    EXPECT_EQ("b", Text());
    EXPECT_FALSE(Dirty());
    Boxes.Expect(
        u"Are you sure you want to delete the selected slide defintion?\n"
        "WARNING: If you procede the slide will be deleted from all\n"
        "Slide Shows that use it?"_s,
        BoxAnswer::Yes);
    Boxes.Expect(u"Slide Deleted Successfully."_s);
    Push("cmdDelete");
    EXPECT_TRUE(Album().Slides.empty());
}

TEST_F(SlideDBMSave, AFolderThatMayNotBeWrittenIsSaidAndTheNextSaveSucceeds) {
    constexpr auto Read = QFileDevice::Permissions(0x5555),
                   Write = QFileDevice::Permissions(0x7755);
    const auto ID = AddSlide(u"a"_s, 40, 30);
    const QByteArray Before = ReadFile(Stored(u"00000001.jpg"_s));
    OpenSlide(ID);
    Type(u"b"_s);
    Push("cmdRotate1");
    ASSERT_TRUE(QFile::setPermissions(Db.Path(), Write));
    ASSERT_TRUE(QFile::setPermissions(Stored({}), Read));
    {
        const WithoutPrivileges User;
        Boxes.Expect(
            u"The file cannot be written. (Permission denied)\n"_s + Stored(u"00000001.jpg"_s),
            u"Operation Failed"_s);
        Push("cmdSave");
    }
    EXPECT_EQ(Before, ReadFile(Stored(u"00000001.jpg"_s)));
    EXPECT_EQ(QSize(30, 40), Shown().size());
    EXPECT_EQ("b", Text());
    EXPECT_TRUE(Dirty());
    ASSERT_TRUE(QFile::setPermissions(Stored({}), Write));
    Push("cmdSave");
    EXPECT_EQ(QSize(30, 40), SizeOf(Stored(u"00000001.jpg"_s)));
    EXPECT_FALSE(Dirty());
}

TEST_F(SlideDBMSave, StoredNamesAreFoundWhateverTheirCase) {
    const auto ID = AddSlide(u"a"_s);
    ASSERT_EQ("00000001.JPG", Slide(ID).SlideLoc.toStdString());
    EXPECT_FALSE(ListDir(Stored({})).empty());
    EXPECT_EQ("00000001.jpg", ListMask(Stored(u"*.jpg"_s)).join(u',').toStdString());
    OpenSlide(ID);
    EXPECT_FALSE(ShowsMessage());
    Type(u"b"_s);
    Push("cmdSave");
    EXPECT_EQ("b", Slide(ID).SlideText.toStdString());
}

TEST(SlideSave, TheWalkGoesRoundOverTheSlidesAlone) {
    for (const auto& [Index, Last, Next, Previous] : {std::array{-1, 3, 1, 3},
                                                      {0, 3, 1, 3},
                                                      {1, 3, 2, 3},
                                                      {2, 3, 3, 1},
                                                      {3, 3, 1, 2},
                                                      {1, 1, 1, 1},
                                                      {0, 0, -1, -1},
                                                      {-1, -1, -1, -1}}) {
        EXPECT_EQ(Next, NextSlideIndex(Index, Last)) << Index << ' ' << Last;
        EXPECT_EQ(Previous, PreviousSlideIndex(Index, Last)) << Index << ' ' << Last;
    }
}

// What happens to a sound below the window.
class SlideSaveSound : public SlideRig {
  protected:
    SlideSaveSound() : ID(AddSound(AddSlide(u"a"_s), true, false)) {
        InHand.Take(AlbumID, Slide(ID));
    }
    clsNEBSlide Stored() {
        clsNEBSlide Record = Slide(ID);
        Changes Door(Engine);
        StoreSound(Engine, Door, InHand, Record);
        return Record;
    }
    QString File() { return SlideRig::Stored(u"00000001.wav"_s); }
    std::int32_t ID;
    SlideInHand InHand;
};

TEST_F(SlideSaveSound, AClearedSoundGoesWithItsSettings) {
    InHand.SetPlaying(true, true);
    InHand.ClearSound();
    const clsNEBSlide Record = Stored();
    EXPECT_TRUE(FileExists(File())) << "the record goes first";
    EXPECT_TRUE(SaveSlide(Engine, nullptr, InHand, {}));
    EXPECT_FALSE(FileExists(File()));
    EXPECT_EQ("", Record.SoundTrackLoc.toStdString());
    EXPECT_FALSE(Record.Override);
    EXPECT_FALSE(Record.Repeat);
}

TEST_F(SlideSaveSound, ARecordingReplacesTheSoundAndTheOneBeforeItThatWasCleared) {
    InHand.ClearSound();
    InHand.Record("new");
    InHand.SetPlaying(false, true);
    const clsNEBSlide Record = Stored();
    EXPECT_EQ("new", ReadFile(File()));
    EXPECT_EQ("00000001.wav", Record.SoundTrackLoc.toStdString());
    EXPECT_FALSE(Record.Override);
    EXPECT_TRUE(Record.Repeat);
}

TEST_F(SlideSaveSound, ASoundThatStaysTakesItsSettingsAndNoneLeavesThem) {
    InHand.SetPlaying(false, true);
    EXPECT_FALSE(Stored().Override);
    EXPECT_TRUE(Stored().Repeat);
    EXPECT_EQ("old sound", ReadFile(File()));
    clsNEBSlide Silent = Slide(ID);
    Silent.SoundTrackLoc.clear();
    InHand.Take(AlbumID, Silent);
    InHand.SetCaption(u"b"_s);
    EXPECT_TRUE(Stored().Override) << "there was no sound";
}

TEST_F(SlideSaveSound, AFullDiskKeepsTheOldSound) {
    InHand.Record("new recording");
    clsNEBSlide Record = Slide(ID);
    SetHostWatcher([](HostStep Step, const QString&, qint64& Length) {
        if (Step == HostStep::Write) Length = 3;
    });
    Changes Door(Engine);
    EXPECT_THROW(StoreSound(Engine, Door, InHand, Record), Fault);
    SetHostWatcher({});
    EXPECT_EQ("old sound", ReadFile(File()));
    EXPECT_TRUE(Record.Override);
    EXPECT_TRUE(ListMask(SlideRig::Stored(u"*.new"_s)).isEmpty());
}

}  // namespace
}  // namespace neb
