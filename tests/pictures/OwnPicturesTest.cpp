// What the program has made itself is read directly, and nothing else is.
#include <QBuffer>
#include <random>
#include <thread>

#include "harness/CountedReading.h"
#include "pictures/NotedPictures.h"
#include "pictures/workers/OwnPictures.h"
#include "pictures/workers/OwnSums.h"
#include "support/files/CheckSums.h"

using namespace neb;
using namespace neb::tests;

namespace {

const PictureKeeping FullHd{{1920, 1080}, true};

QImage Photo(QSize Size, unsigned Seed = 1) {
    std::mt19937 Random(Seed);
    QImage Picture(Size, QImage::Format_RGB32);
    for (int Y = 0; Y < Size.height(); ++Y)
        for (int X = 0; X < Size.width(); ++X)
            Picture.setPixel(X, Y, qRgb(X & 255, Y & 255, int(Random() & 255)));
    return Picture;
}

QByteArray Saved(const QImage& Picture, const char* Format) {
    QByteArray Bytes;
    QBuffer Into(&Bytes);
    Picture.save(&Into, Format, 90);
    return Bytes;
}

class OwnPictures : public ::testing::Test {
  protected:
    OwnPictures() { KeepOwnSumsIn(mOwn); }
    ~OwnPictures() override { KeepOwnSumsIn({}); }
    QByteArray Fitted(const QByteArray& Source, const PictureKeeping& Keeping = {}) {
        WriteFile(mFile, Source);
        QByteArray Jpeg = FittedJpeg(mFile, Keeping);
        mReading.Count();
        return Jpeg;
    }
    // Whether somebody behind the door has to read it. It looks the same either way.
    bool IsRead(const QByteArray& Bytes, const NeededSize& Needed = {}) {
        const DecodedPicture Made = DecodePicture(Bytes, Needed), Same = DecodeHere(Bytes, Needed);
        EXPECT_EQ(Same.Picture, Made.Picture);
        EXPECT_EQ(Same.Full, Made.Full);
        EXPECT_EQ(QImage::Format_RGB32, Made.Picture.format());
        return mReading.Count() > 0;
    }

    const harness::TempFolder mFolder;
    const QString mFile = mFolder / QStringLiteral("picture.any");
    const QString mOwn = mFolder / QStringLiteral("own/");
    harness::CountedReading mReading;
};

TEST_F(OwnPictures, ThumbnailsAreReadDirectly) {
    for (unsigned Seed = 0; Seed < 20; ++Seed)
        EXPECT_FALSE(IsRead(ThumbnailBmp(Photo(ThumbnailSize, Seed))));
    KeepOwnSumsIn({});
    EXPECT_FALSE(IsRead(ThumbnailBmp(Photo(ThumbnailSize)))) << "their form alone counts";
    const QString Small = mFolder / QStringLiteral("00000001Small.bmp");
    WriteFile(Small, ThumbnailBmp(Photo(ThumbnailSize)));
    EXPECT_EQ(Photo(ThumbnailSize), Loaded(Small).Picture());
    EXPECT_EQ(0, mReading.Count());
}

TEST_F(OwnPictures, BitmapsOfAnyOtherFormAreNoThumbnails) {
    const QByteArray Whole = ThumbnailBmp(Photo(ThumbnailSize));
    constexpr int Headers = 54;
    for (int I = 0; I < Headers; ++I) {
        QByteArray Changed = Whole;
        Changed[I] = static_cast<char>(Changed[I] ^ 1);
        EXPECT_TRUE(OwnThumbnail(Changed).isNull()) << "byte " << I;
    }
    EXPECT_TRUE(OwnThumbnail(Whole + '\0').isNull());
    EXPECT_TRUE(OwnThumbnail(Whole.chopped(1)).isNull());
    EXPECT_TRUE(OwnThumbnail(Whole.first(Headers)).isNull());
    EXPECT_TRUE(OwnThumbnail({}).isNull());
    EXPECT_TRUE(IsRead(ThumbnailBmp(Photo({71, 72}))));
    EXPECT_TRUE(IsRead(ThumbnailBmp(Photo({72, 73}))));
}

TEST_F(OwnPictures, AJpegThatWasWrittenAnewIsReadDirectly) {
    for (const char* Format : {"PNG", "JPEG", "BMP"}) {
        const QByteArray Jpeg = Fitted(Saved(Photo({1300, 900}), Format));
        EXPECT_FALSE(IsRead(Jpeg)) << Format;
        EXPECT_FALSE(IsRead(Jpeg, [](QSize) { return QSize(100, 80); }));
    }
    const QByteArray Large = Fitted(Saved(Photo({2000, 1500}), "PNG"), FullHd);
    EXPECT_FALSE(IsRead(Large));
}

TEST_F(OwnPictures, WhatAPictureSaysBesideItsPixelsDoesNotMakeItAForeignOne) {
    const QByteArray Source =
        WithMore(Saved(Photo({1300, 900}), "JPEG"), ExifPartOf(CameraBlock(6, {1300, 900})));
    const QByteArray Jpeg = Fitted(Source);
    EXPECT_FALSE(IsRead(Jpeg));
    EXPECT_TRUE(std::ranges::any_of(PartsOf(Jpeg)->Head, &JpegPart::IsExif));
}

TEST_F(OwnPictures, APictureInMemoryIsOneThatWeWrite) {
    ImgX Picture;
    Picture.SetPicture(Photo({800, 600}));
    const QByteArray Jpeg = FittedJpeg(Picture);
    EXPECT_FALSE(IsRead(Jpeg));
}

TEST_F(OwnPictures, AJpegThatIsKeptAsItCameIsReadBehindTheDoor) {
    // even one that begins as ours do
    ImgX Plain;
    Plain.SetPicture(Photo({800, 600}));
    const QByteArray Foreign = Plain.ToJpeg();
    ASSERT_EQ(Foreign, Fitted(Foreign, FullHd));
    EXPECT_TRUE(IsRead(Foreign));
    const QByteArray Camera = Saved(Photo({800, 600}), "JPEG");
    ASSERT_EQ(Camera, Fitted(Camera, FullHd));
    EXPECT_TRUE(IsRead(Camera));
}

TEST_F(OwnPictures, AJpegThatWasTurnedWithoutLossIsReadBehindTheDoor) {
    WriteFile(mFile, Saved(Photo({800, 608}), "JPEG"));
    ImgX Picture = Loaded(mFile);
    Picture.Rotate(90);
    const QByteArray Turned = FittedJpeg(Picture, FullHd);
    mReading.Count();
    EXPECT_TRUE(IsRead(Turned));
}

TEST_F(OwnPictures, AChangedByteIsReadBehindTheDoor) {
    const QByteArray Jpeg = Fitted(Saved(Photo({200, 150}), "PNG"));
    const auto IsOwn = [](const QByteArray& Bytes) {
        return OwnPicture(Bytes, [](QSize) { return QSize(1, 1); }).has_value();
    };
    EXPECT_TRUE(IsOwn(Jpeg));
    std::mt19937 Random(4711);
    for (int Round = 0; Round < 300; ++Round) {
        QByteArray Changed = Jpeg;
        const auto At = qsizetype(Random() % unsigned(Jpeg.size()));
        Changed[At] = static_cast<char>(Changed[At] ^ (1 << Random() % 8));
        EXPECT_FALSE(IsOwn(Changed)) << "byte " << At;
    }
    EXPECT_FALSE(IsOwn(Jpeg + '\0'));
    EXPECT_FALSE(IsOwn(Jpeg.chopped(1)));
    EXPECT_FALSE(IsOwn({}));
}

TEST_F(OwnPictures, WhatAnotherUserMadeIsReadBehindTheDoor) {
    const QByteArray Jpeg = Fitted(Saved(Photo({200, 150}), "PNG"));
    KeepOwnSumsIn(mFolder / QStringLiteral("other user/"));
    EXPECT_TRUE(IsRead(Jpeg));
    KeepOwnSumsIn({});
    EXPECT_TRUE(IsRead(Jpeg));
    KeepOwnSumsIn(mOwn);
    EXPECT_FALSE(IsRead(Jpeg));
}

TEST_F(OwnPictures, WhereTheSumsAreGoneOrCannotBeKeptAllIsReadBehindTheDoor) {
    const QByteArray Source = Saved(Photo({200, 150}), "PNG"), Jpeg = Fitted(Source);
    DeleteTree(mOwn);
    EXPECT_TRUE(IsRead(Jpeg)) << "at once";
    WriteFile(mFolder / QStringLiteral("own"), "a file in the place of the folder");
    EXPECT_EQ(Jpeg, Fitted(Source));
    EXPECT_TRUE(IsRead(Jpeg));
}

TEST_F(OwnPictures, ASumIsKeptOnceHoweverOftenThePictureIsMade) {
    const QByteArray Source = Saved(Photo({200, 150}), "PNG");
    const QByteArray Sum = SumOfBytes(Fitted(Source));
    Fitted(Source);
    const QString Place = mOwn + QStringLiteral("Own") + QLatin1Char(Sum[0]) + ".sums";
    EXPECT_EQ(Sum + '\n', ReadFile(Place));
}

TEST_F(OwnPictures, HalfALineOfAPowerFailureTakesNoOtherAlong) {
    const QByteArray One(64, 'a'), Two = 'a' + QByteArray(63, 'b');
    MakeDirs(mOwn);
    WriteFile(mOwn + QStringLiteral("Owna.sums"), One.first(40));
    OwnSums Sums(mOwn);
    EXPECT_FALSE(Sums.Has(One));
    Sums.Note(Two);
    EXPECT_TRUE(Sums.Has(Two));
    EXPECT_FALSE(Sums.Has(One));
    EXPECT_TRUE(OwnSums(mOwn).Has(Two)) << "in another program, too";
    EXPECT_FALSE(Sums.Has(Two.first(63)));
    EXPECT_FALSE(Sums.Has({}));
}

TEST_F(OwnPictures, ManyThreadsNoteTheirsAtATime) {
    OwnSums Sums(mOwn);
    std::vector<std::thread> Threads;
    const auto SumAt = [](int I) { return SumOfBytes(QByteArray::number(I)); };
    for (int Each = 0; Each < 4; ++Each)
        Threads.emplace_back([&, Each] {
            for (int I = 0; I < 100; ++I) Sums.Note(SumAt(100 * Each + I));
        });
    for (std::thread& Each : Threads) Each.join();
    for (int I = 0; I < 400; ++I) EXPECT_TRUE(Sums.Has(SumAt(I))) << I;
    EXPECT_FALSE(Sums.Has(SumAt(400)));
}

// One that has been taken over by a picture.
class HostileNotes : public harness::CountedReading {
  public:
    explicit HostileNotes(const QByteArray& Notes) : mNotes(Notes) {}
    QByteArray NotesFor(QSize, const QByteArray&, bool) override { return mNotes; }

  private:
    const QByteArray mNotes;
};

TEST_F(OwnPictures, PartsThatAreNoNotesDoNotComeIntoAnOwnJpeg) {
    const QByteArray Source = Saved(Photo({200, 150}), "PNG"), Jpeg = Fitted(Source);
    const QByteArray Exif = ExifPartOf(CameraBlock(1, {200, 150}));
    const QByteArray Table = JpegPartOf(0xDB, '\0' + QByteArray(64, '\1'));
    const QByteArray Colours = JpegPartOf(0xE2, QByteArray("ICC_PROFILE\0\1\1", 14) + "profile");
    for (const QByteArray& Notes :
         {Table, Exif + Table, Colours, Exif + '\xFF', Exif + "rest", Exif.chopped(1),
          QByteArray("\xFF\xE1\0\1", 4), QByteArray("\xFF"), QByteArray("\xFF\xD9", 2),
          JpegPartOf(0xEE, "Adobe\0"), JpegPartOf(0xFE, "words")}) {
        HostileNotes Reader(Notes);
        EXPECT_EQ(Jpeg, Fitted(Source)) << Notes.toHex().toStdString();
    }
    HostileNotes Reader(Exif + JpegPartOf(PhotoshopMarker, PhotoshopMark + "words"));
    EXPECT_LT(Jpeg.size() + Exif.size(), Fitted(Source).size()) << "true ones do";
}

}  // namespace
