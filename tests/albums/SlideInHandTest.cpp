// The slide in hand: what is stored of it, what the user has made of it, and what of that is to be
// saved.
#include <gtest/gtest.h>

#include "albums/SlideInHand.h"
#include "harness/TempFolder.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

using namespace harness;
using namespace Qt::StringLiterals;
using Sound = SlideInHand::Sound;

constexpr std::int32_t Garden = 3, Lake = 4;

clsNEBSlide Rose() {
    clsNEBSlide Slide;
    Slide.SlideID = 7;
    Slide.SlideText = u"Rose"_s;
    Slide.SlideLoc = u"00000007.JPG"_s;
    Slide.SoundTrackLoc = u"00000007.wav"_s;
    Slide.Override = true;
    return Slide;
}

ImgX Picture(int Width, int Height) {
    QImage Plain(Width, Height, QImage::Format_RGB32);
    Plain.fill(Qt::blue);
    ImgX Made;
    Made.SetPicture(Plain);
    return Made;
}

QSize SizeOf(const SlideInHand::JpegMaker& Jpeg) {
    return QImage::fromData(Jpeg()).size();
}

class InHand : public ::testing::Test {
  protected:
    InHand() {
        Slide.Take(Garden, Rose());
        Slide.SetPicture(Picture(40, 30));
    }
    SlideInHand Slide;
    TempFolder Pics;
};

TEST_F(InHand, AsTakenItIsAsStoredAndThereIsNothingToSave) {
    EXPECT_EQ(Garden, Slide.AlbumID());
    EXPECT_EQ(7, Slide.SlideID());
    EXPECT_FALSE(Slide.IsNew());
    EXPECT_FALSE(Slide.IsChanged());
    EXPECT_EQ(u"Rose"_s, Slide.Caption());
    EXPECT_EQ(u"00000007.JPG"_s, Slide.PictureName());
    EXPECT_TRUE(Slide.HasSound());
    EXPECT_EQ(Sound::AsStored, Slide.SoundState());
    EXPECT_TRUE(Slide.Override());
    EXPECT_FALSE(Slide.Repeat());
    EXPECT_FALSE(Slide.Jpeg()) << "the stored picture stands";
}

TEST_F(InHand, EveryEditCountsAsAChange) {
    const std::function<void()> Edits[] = {
        [this] { Slide.SetCaption(u"Tulip"_s); },
        [this] { Slide.SetPlaying(false, true); },
        [this] { Slide.ChoosePicture(u"/far/a.png"_s); },
        [this] { Slide.Turn(Picture(30, 40)); },
        [this] { Slide.Record("words"); },
        [this] { Slide.ClearSound(); },
    };
    for (const auto& Edit : Edits) {
        Slide.Take(Garden, Rose());
        Slide.SetPicture(Picture(40, 30));
        EXPECT_FALSE(Slide.IsChanged());
        Edit();
        EXPECT_TRUE(Slide.IsChanged());
    }
}

TEST_F(InHand, TakenAnewItForgetsWhatWasMade) {
    Slide.SetCaption(u"Tulip"_s);
    Slide.ChoosePicture(u"/far/a.png"_s);
    Slide.Turn(Picture(30, 40));
    Slide.Record("words");
    Slide.Take(Garden, Rose());
    EXPECT_FALSE(Slide.IsChanged());
    EXPECT_EQ(u"Rose"_s, Slide.Caption());
    EXPECT_EQ(u"00000007.JPG"_s, Slide.PictureName());
    EXPECT_EQ(Sound::AsStored, Slide.SoundState());
    EXPECT_TRUE(Slide.NewSound().isEmpty());
    EXPECT_FALSE(Slide.Jpeg());
}

TEST_F(InHand, ANewSlideHasTheNameOfTheStoredPictureBeforeAndNoPictureToSave) {
    Slide.ChoosePicture(u"/far/a.png"_s);
    Slide.TakeNew(Garden);
    EXPECT_TRUE(Slide.IsNew());
    EXPECT_EQ(u""_s, Slide.Caption());
    EXPECT_EQ(u"00000007.JPG"_s, Slide.PictureName());
    EXPECT_FALSE(Slide.Jpeg());
    EXPECT_FALSE(Slide.HasSound());
    EXPECT_FALSE(Slide.Override());
}

TEST_F(InHand, ANewSlideHasNoPictureAfterOneThatLiesOutsideTheAlbum) {
    clsNEBSlide Far = Rose();
    Far.SlideLoc = u"/far/a.png"_s;
    Slide.Take(Garden, Far);
    EXPECT_TRUE(Slide.Jpeg()) << "it comes into the album with the next save";
    Slide.TakeNew(Garden);
    EXPECT_EQ(u"/far/a.png"_s, Slide.PictureName());
    EXPECT_FALSE(Slide.Jpeg());
    Slide.ChoosePicture(u"/far/a.png"_s);
    EXPECT_TRUE(Slide.Jpeg()) << "chosen, it is wanted";
}

TEST(SlideInHandFresh, AFirstSlideHasNoNameAtAll) {
    SlideInHand Slide;
    Slide.TakeNew(Garden);
    EXPECT_EQ(QString(), Slide.PictureName());
    Slide.ChoosePicture(u"/far/a.png"_s);
    Slide.TakeNew(Garden);
    EXPECT_EQ(QString(), Slide.PictureName()) << "it was discarded";
}

TEST_F(InHand, TheNewPictureIsMadeFromTheTurnedPixelsElseFromTheChosenFile) {
    const QString File = Pics / u"a.png"_s;
    Picture(50, 20).Picture().save(File);
    Slide.ChoosePicture(File);
    EXPECT_EQ(QSize(50, 20), SizeOf(Slide.Jpeg()));
    Slide.SetPicture(Picture(50, 20));
    Slide.Turn(Picture(20, 50));
    EXPECT_EQ(QSize(20, 50), SizeOf(Slide.Jpeg()));
    Slide.ChoosePicture(File);
    Slide.SetPicture(Picture(50, 20));
    EXPECT_EQ(QSize(50, 20), SizeOf(Slide.Jpeg())) << "the turn went with its picture";
}

TEST_F(InHand, ThePictureIsKeptAsItsKeepingSays) {
    const PictureKeeping Large{{1920, 1080}, true};
    const QString File = Pics / u"a.png"_s;
    Picture(1300, 900).Picture().save(File);
    Slide.ChoosePicture(File);
    EXPECT_EQ(QSize(1024, 709), SizeOf(Slide.Jpeg()));
    EXPECT_EQ(QSize(1300, 900), SizeOf(Slide.Jpeg(Large)));
    Slide.SetPicture(Picture(1300, 900));
    Slide.Turn(Picture(900, 1300));
    EXPECT_EQ(QSize(532, 768), SizeOf(Slide.Jpeg()));
    EXPECT_EQ(QSize(748, 1080), SizeOf(Slide.Jpeg(Large)));
}

TEST_F(InHand, AJpegThatIsOnlyTurnedLosesNothing) {
    const QString File = Pics / u"a.jpg"_s;
    ASSERT_TRUE(Picture(64, 48).Picture().save(File, "JPEG", 60));
    ImgX Turned;
    Turned.Load(File);
    Turned.Rotate(90);
    Slide.Turn(Turned);
    Turned.Rotate(-90);
    EXPECT_EQ(QSize(48, 64), SizeOf(Slide.Jpeg()));
    Slide.Turn(Turned);
    EXPECT_EQ(ReadFile(File), Slide.Jpeg()()) << "turned there and back";
}

TEST_F(InHand, ThePictureBeforeIsGivenBack) {
    EXPECT_EQ(40, Slide.Turn(Picture(30, 40))->Width());
    EXPECT_EQ(30, Slide.SetPicture({})->Width());
    EXPECT_FALSE(Slide.SetPicture(Picture(1, 1)));
}

TEST_F(InHand, OfClearingAndRecordingTheLaterOneCounts) {
    Slide.ClearSound();
    Slide.Record("words");
    EXPECT_EQ(Sound::Recorded, Slide.SoundState());
    EXPECT_EQ("words", Slide.NewSound());
    EXPECT_EQ(".wav", Slide.NewEnding().toStdString());
    Slide.ChooseSound("music", u".flac"_s);
    EXPECT_EQ(Sound::Chosen, Slide.SoundState());
    EXPECT_EQ("music", Slide.NewSound());
    EXPECT_EQ(".flac", Slide.NewEnding().toStdString());
    Slide.ClearSound();
    EXPECT_EQ(Sound::Cleared, Slide.SoundState());
    EXPECT_TRUE(Slide.NewSound().isEmpty());
}

TEST_F(InHand, HowASoundIsPlayedIsOfNoConcernWithoutOne) {
    clsNEBSlide Silent = Rose();
    Silent.SoundTrackLoc.clear();
    Slide.Take(Garden, Silent);
    EXPECT_FALSE(Slide.Override());
}

TEST_F(InHand, TurnedPixelsStandByThemselvesOnceTheirSlideHasGone) {
    Slide.MoveTo(Garden, 7);
    Slide.Turn(Picture(30, 40));
    EXPECT_FALSE(Slide.IsPictureLoose()) << "its file is there to be looked for";
    Slide.MoveTo(Garden, 0);
    EXPECT_TRUE(Slide.IsPictureLoose());
    Slide.MoveTo(Lake, 9);
    EXPECT_TRUE(Slide.IsPictureLoose()) << "in the album, and not yet stored";
    EXPECT_EQ(QSize(30, 40), SizeOf(Slide.Jpeg()));
    Slide.ChoosePicture(u"/far/a.png"_s);
    Slide.Turn(Picture(30, 40));
    EXPECT_FALSE(Slide.IsPictureLoose()) << "a chosen file is looked for";
    Slide.Take(Garden, Rose());
    Slide.Turn(Picture(30, 40));
    EXPECT_FALSE(Slide.IsPictureLoose());
}

TEST_F(InHand, PixelsThatWereNotTurnedGoWithTheirFile) {
    Slide.SetCaption(u"Tulip"_s);
    Slide.MoveTo(Garden, 0);
    EXPECT_FALSE(Slide.IsPictureLoose());
    EXPECT_EQ(u"Tulip"_s, Slide.Caption());
    EXPECT_TRUE(Slide.IsChanged());
}

// What an album has stays as large as it is; but for one of the least size, which has always been
// fitted anew.
TEST_F(InHand, ATurnMakesAStoredPictureOfTheLeastSizeAloneSmaller) {
    const auto TurnedSize = [this](QSize Stored, QSize Limit) {
        ImgX Turned = Picture(Stored.width(), Stored.height());
        Turned.Rotate(90);
        Slide.Turn(std::move(Turned));
        return SizeOf(Slide.Jpeg({Limit, true}));
    };
    EXPECT_EQ(QSize(576, 768), TurnedSize({1024, 768}, SlideLimit));
    EXPECT_EQ(QSize(768, 1024), TurnedSize({1024, 768}, {1920, 1080}));
    EXPECT_EQ(QSize(1080, 1920), TurnedSize({1920, 1080}, SlideLimit));
    EXPECT_EQ(QSize(1080, 1920), TurnedSize({1920, 1080}, {1920, 1080}));
}

TEST_F(InHand, ATurnedFileIsFittedAsItsKeepingSays) {
    Slide.ChoosePicture(Pics / u"large.png"_s);
    ImgX Turned = Picture(1920, 1080);
    Turned.Rotate(90);
    Slide.Turn(std::move(Turned));
    EXPECT_EQ(QSize(432, 768), SizeOf(Slide.Jpeg()));
    EXPECT_EQ(QSize(608, 1080), SizeOf(Slide.Jpeg({{1920, 1080}, true})));
}

}  // namespace
}  // namespace neb
