#include "albums/modImport.h"

#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "pictures/ImgX.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"
#include "support/modDEValidation.h"

namespace neb {

void MakeAlbumFolders(const clsDBEngine& theDB, std::int32_t AlbumID) {
    MakeDirs(AlbumFolder(theDB.DBPath(), AlbumID));
    MakeDirs(SoundTracksFolder(theDB.DBPath(), AlbumID));
    MakeDirs(SlidesFolder(theDB.DBPath(), AlbumID));
}

Answer<> NewAlbum(clsDBEngine& theDB, std::int32_t& AlbumID, const QString& AlbumName) {
    AlbumID = 0;
    Answer<> Saved = theDB.SaveAlbum(AlbumID, AlbumName);
    if (!Saved) return Saved;
    try {
        MakeAlbumFolders(theDB, AlbumID);
    } catch (const Fault&) {
        DropAlbum(theDB, std::exchange(AlbumID, 0));
        throw;
    }
    return Saved;
}

void DropAlbum(clsDBEngine& theDB, std::int32_t AlbumID) {
    DeleteTree(AlbumFolder(theDB.DBPath(), AlbumID));
    theDB.DeleteAlbum(AlbumID);
}

void StoreFile(const QString& Path, const QByteArray& Bytes) {
    try {
        WriteFile(Path, Bytes);
    } catch (const Fault&) {
        DropFile(Path);
        throw;
    }
}

void DropFile(const QString& Path) {
    try {
        DeleteFile(Path);
    } catch (const Fault&) {
        // it stays where it is and does no harm
    }
}

std::int32_t EnterPicture(clsDBEngine& theDB, clsNEBAlbum& Album, const QString& Caption,
                          const std::function<QByteArray()>& Jpeg, const QImage& Thumbnail) {
    std::int32_t SlideID = 0;
    clsNEBSlide* Slide = Album.SaveSlide2(SlideID, CleanText(Caption), {}, {}, false, false, theDB);
    const QString Stem = FileStem(SlideID);
    const QString Folder = SlidesFolder(theDB.DBPath(), Album.AlbumID);
    StoreFile(Folder + Stem + QStringLiteral(".jpg"), Jpeg());
    Slide->SlideLoc = Stem + QStringLiteral(".JPG");
    if (!Thumbnail.isNull()) StoreFile(Folder + ThumbnailName(SlideID), ThumbnailBmp(Thumbnail));
    return SlideID;
}

PictureImport::PictureImport(clsDBEngine& theDB, clsNEBAlbum& Album, QStringList Paths,
                             KeepGoing GoOn)
    : mDB(theDB),
      mAlbum(Album),
      mGoOn(std::move(GoOn)),
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
    while (!mAhead.Wait(10))
        if (!mGoOn()) return Outcome::Ended;
    if (!FileExists(Picture.Path)) {
        PassOver();
        return Outcome::Discarded;
    }
    mSlideID = EnterPicture(
        mDB, mAlbum, Picture.Caption, [&] { return TakeJpeg(Picture.Path); }, Picture.Thumbnail);
    return Outcome::Entered;
}

}  // namespace neb
