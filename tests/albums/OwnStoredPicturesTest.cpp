// Which of an album's pictures are read without the processes behind the door: those whose bytes
// this program has made on this user's behalf, wherever they lie; whatever an album says of itself.
#include <QBuffer>

#include "albums/DiscRig.h"
#include "albums/StrayPictures.h"
#include "albums/modImport.h"
#include "db/AlbumSums.h"
#include "harness/CountedReading.h"
#include "pictures/ImgX.h"

namespace neb {
namespace {

using namespace harness;

QByteArray Saved(QSize Size, const char* Format) {
    QImage Picture(Size, QImage::Format_RGB32);
    for (int Y = 0; Y < Size.height(); ++Y)
        for (int X = 0; X < Size.width(); ++X) Picture.setPixel(X, Y, qRgb(X, Y, X * Y));
    QByteArray Bytes;
    QBuffer Into(&Bytes);
    Picture.save(&Into, Format, 90);
    return Bytes;
}

class OwnStoredPictures : public ::testing::Test {
  protected:
    OwnStoredPictures() {
        KeepOwnSumsIn(Own);
        Engine.SetDBPath(Database);
        Engine.InitializeDB();
        Engine.KeepSession();
        EXPECT_TRUE(NewAlbum(Door, Engine, u"Garden"_s));
    }
    ~OwnStoredPictures() override { KeepOwnSumsIn({}); }
    // The path of the picture that was stored.
    QString Import(const QByteArray& Source, const PictureKeeping& Keeping = {}) {
        const QString File = Dir / u"source"_s;
        WriteFile(File, Source);
        PictureImport Work(Door, Engine, 1, {File}, Keeping, [] { return true; });
        EXPECT_EQ(PictureImport::Outcome::Entered,
                  Work.EnterNext({File, u"Rose"_s, MakeThumbnail(File)}));
        return Slides + FileStem(Work.SlideID()) + u".jpg"_s;
    }
    // Pictures that have to be read behind the door. What is read looks the same either way.
    int ReadFor(const QString& Path) {
        Reading.Count();
        ImgX Picture;
        Picture.Load(Path);
        const int Read = Reading.Count();
        EXPECT_EQ(ReadingHere().Decode(ReadFile(Path), {}).Picture, Picture.Picture());
        return Read;
    }
    static QString ThumbnailOf(const QString& Path) { return Path.chopped(4) + u"Small.bmp"_s; }

    TempFolder Dir;
    const QString Own = Dir / u"own/"_s, Database = Dir / u"Database/"_s;
    const QString Slides = SlidesFolder(Database, 1);
    CountedReading Reading;
    clsDBEngine Engine;
    Changes Door{Engine};
};

TEST_F(OwnStoredPictures, AnImportedPictureAndItsThumbnailAreReadDirectly) {
    const QString Fitted = Import(Saved({1300, 900}, "JPEG"));
    EXPECT_EQ(0, ReadFor(Fitted));
    EXPECT_EQ(0, ReadFor(ThumbnailOf(Fitted)));
    EXPECT_EQ(0, Sha256Sum(AlbumFolder(Database, 1)));
    const QString Kept = Import(Saved({1300, 900}, "JPEG"), {{1920, 1080}, true});
    EXPECT_EQ(1, ReadFor(Kept)) << "byte for byte as it came";
    EXPECT_EQ(0, ReadFor(ThumbnailOf(Kept)));
}

TEST_F(OwnStoredPictures, EveryWayToReadAFileKnowsThem) {
    const QString Path = Import(Saved({1300, 900}, "PNG"));
    Reading.Count();
    ImgX Picture;
    Picture.LoadAtLeast(Path, {300, 200});
    (void)MakeThumbnail(Path);
    (void)ReadForList(Path, 144);
    (void)FittedJpeg(Path);
    EXPECT_EQ(0, Reading.Count());
}

TEST_F(OwnStoredPictures, APictureThatHasChangedSinceIsReadBehindTheDoor) {
    const QString Path = Import(Saved({1300, 900}, "PNG"));
    QByteArray Bytes = ReadFile(Path);
    Bytes[Bytes.size() / 2] = static_cast<char>(Bytes[Bytes.size() / 2] ^ 1);
    WriteFile(Path, Bytes);
    EXPECT_EQ(1, ReadFor(Path));
}

TEST_F(OwnStoredPictures, AnAlbumsOwnListVouchesForNothing) {
    const QString Path = Slides + u"00000009.jpg"_s;
    ImgX Plain;
    Plain.SetPicture(QImage(300, 200, QImage::Format_RGB32));
    WriteFile(Path, Plain.ToJpeg());
    ListStored(Path);
    EXPECT_EQ(0, Sha256Sum(AlbumFolder(Database, 1))) << "which has its line";
    EXPECT_EQ(1, ReadFor(Path));
    // nor do the files of the user's own folder, where somebody puts them into an album
    MakeDirs(Database + u"own/"_s);
    const QByteArray Sum = SumOfBytes(ReadFile(Path));
    WriteFile(Database + u"own/Own"_s + QLatin1Char(Sum[0]) + u".sums"_s, Sum + '\n');
    EXPECT_EQ(1, ReadFor(Path));
}

TEST_F(OwnStoredPictures, AnAdoptedStrayIsReadBehindTheDoor) {
    WriteFile(Slides + u"00000009.jpg"_s, Saved({300, 200}, "JPEG"));
    const auto Strays = FindStrayPictures(Engine);
    ASSERT_EQ(1u, Strays.size());
    Adoption Work(Engine, Door);
    const AdoptedPicture Made = Work.Adopt(Strays.front());
    EXPECT_EQ(1, ReadFor(Slides + FileStem(Made.SlideID) + u".jpg"_s));
    EXPECT_EQ(0, ReadFor(Slides + FileStem(Made.SlideID) + u"Small.bmp"_s));
}

TEST_F(OwnStoredPictures, AFolderForADiscIsOwnForItsUserAndForeignForOthers) {
    const QString Stored = Import(Saved({1300, 900}, "PNG"));
    const QString Copy = Dir / u"disc.jpg"_s;
    WriteFile(Copy, ReadFile(Stored));
    EXPECT_EQ(0, ReadFor(Copy)) << "the very bytes that were made here";
    KeepOwnSumsIn(Dir / u"somebody else/"_s);
    EXPECT_EQ(1, ReadFor(Copy));
    EXPECT_EQ(1, ReadFor(Stored));
}

}  // namespace
}  // namespace neb
