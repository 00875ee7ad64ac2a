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

bool NewAlbum(clsDBEngine& theDB, std::int32_t& AlbumID, const QString& AlbumName) {
    AlbumID = 0;
    if (!theDB.SaveAlbum(AlbumID, AlbumName)) return false;
    try {
        MakeAlbumFolders(theDB, AlbumID);
    } catch (const Fault&) {
        DropAlbum(theDB, std::exchange(AlbumID, 0));
        throw;
    }
    return true;
}

void DropAlbum(clsDBEngine& theDB, std::int32_t AlbumID) {
    DeleteTree(AlbumFolder(theDB, AlbumID));
    theDB.DeleteAlbum(AlbumID);
}

QString SlideStem(std::int32_t SlideID) {
    return Format(SlideID, "00000000");
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
    mSlideID = 0;
    clsNEBSlide* Slide =
        mAlbum.SaveSlide2(mSlideID, ConvertQuotes(Picture.Caption), {}, {}, false, false, mDB);
    const QString Stem = SlideStem(mSlideID);
    const QString Folder = SlidesFolder(mDB, mAlbum.AlbumID);
    StoreFile(Folder + Stem + QStringLiteral(".jpg"), TakeJpeg(Picture.Path));
    Slide->SlideLoc = Stem + QStringLiteral(".JPG");
    if (!Picture.Thumbnail.isNull())
        StoreFile(Folder + Stem + QStringLiteral("Small.bmp"), ThumbnailBmp(Picture.Thumbnail));
    return Outcome::Entered;
}

}  // namespace neb
