#include "intake/modImport.h"

#include "db/clsDBEngine.h"
#include "platform/ImgX.h"
#include "support/Fault.h"
#include "support/modDEValidation.h"
#include "support/modHostFiles.h"
#include "support/modNumbers.h"

namespace neb {

QString AlbumFolder(const clsDBEngine& theDB, std::int32_t AlbumID) {
    return theDB.DBPath() + QStringLiteral("Albums/%1/").arg(AlbumID);
}

QString SlidesFolder(const clsDBEngine& theDB, std::int32_t AlbumID) {
    return AlbumFolder(theDB, AlbumID) + QStringLiteral("Slides/");
}

QString SoundTracksFolder(const clsDBEngine& theDB, std::int32_t AlbumID) {
    return AlbumFolder(theDB, AlbumID) + QStringLiteral("SoundTracks/");
}

void MakeAlbumFolders(const clsDBEngine& theDB, std::int32_t AlbumID) {
    MakeDirs(AlbumFolder(theDB, AlbumID));
    MakeDirs(SoundTracksFolder(theDB, AlbumID));
    MakeDirs(SlidesFolder(theDB, AlbumID));
}

void DropAlbum(clsDBEngine& theDB, std::int32_t AlbumID) {
    DeleteTree(AlbumFolder(theDB, AlbumID));
    theDB.DeleteAlbum(AlbumID);
}

QString SlideStem(std::int32_t SlideID) {
    return Format(SlideID, "00000000");
}

std::int32_t EnterPicture(clsDBEngine& theDB, clsNEBAlbum& Album, const QString& Caption,
                          const std::function<QByteArray()>& Jpeg, const QImage& Thumbnail) {
    std::int32_t SlideID = 0;
    clsNEBSlide* Slide =
        Album.SaveSlide2(SlideID, ConvertQuotes(Caption), {}, {}, false, false, theDB);
    const QString Stem = SlideStem(SlideID);
    const QString Folder = SlidesFolder(theDB, Album.AlbumID);
    WriteFile(Folder + Stem + QStringLiteral(".jpg"), Jpeg());
    Slide->SlideLoc = Stem + QStringLiteral(".JPG");
    if (!Thumbnail.isNull())
        WriteFile(Folder + Stem + QStringLiteral("Small.bmp"), ThumbnailBmp(Thumbnail));
    return SlideID;
}

PictureImport::PictureImport(clsDBEngine& theDB, clsNEBAlbum& Album, QStringList Paths,
                             std::function<void()> Idle)
    : mDB(theDB),
      mAlbum(Album),
      mIdle(std::move(Idle)),
      mAhead(std::vector<QString>(Paths.begin(), Paths.end()), &PictureImport::Prepare) {}

PictureImport::~PictureImport() = default;

PictureImport::Prepared PictureImport::Prepare(const QString& Path) {
    if (!FileExists(Path)) return {};
    return {true, FittedJpeg(Path)};
}

// What was prepared for a file that is gone is of no use, nor is the fault it may have met.
void PictureImport::PassOver() {
    try {
        mAhead.Take();
    } catch (const Fault&) {
        return;
    }
}

QByteArray PictureImport::TakeJpeg(const QString& Path) {
    Prepared Ready = mAhead.Take();
    return Ready.Exists ? Ready.Jpeg : FittedJpeg(Path);
}

PictureImport::Outcome PictureImport::EnterNext(const PictureToImport& Picture) {
    while (!mAhead.Wait(10)) mIdle();
    if (!FileExists(Picture.Path)) {
        PassOver();
        return Outcome::Discarded;
    }
    mSlideID = EnterPicture(
        mDB, mAlbum, Picture.Caption, [&] { return TakeJpeg(Picture.Path); }, Picture.Thumbnail);
    return Outcome::Entered;
}

}  // namespace neb
