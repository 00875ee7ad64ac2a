#include "albums/modImport.h"

#include "db/AlbumSums.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "pictures/ImgX.h"
#include "support/Fault.h"
#include "support/ReasonOf.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/modDEValidation.h"

namespace neb {

void MakeAlbumFolders(const clsDBEngine& theDB, std::int32_t AlbumID) {
    const QString Album = AlbumFolder(theDB.DBPath(), AlbumID);
    const bool IsNew = !NameExists(Album);
    MakeDirsIn(theDB.DBPath(), Album);
    if (IsNew) BeginAlbumSums(Album);
    MakeDirsIn(theDB.DBPath(), SoundTracksFolder(theDB.DBPath(), AlbumID));
    MakeDirsIn(theDB.DBPath(), SlidesFolder(theDB.DBPath(), AlbumID));
}

Answer<Announcement> NewAlbum(Changes& Door, clsDBEngine& theDB, const QString& AlbumName) {
    Answer<Announcement> Made = Door.MakeAlbum(AlbumName);
    if (!Made) return Made;
    try {
        MakeAlbumFolders(theDB, Made->What().AlbumID);
    } catch (...) {
        Made->Never();
        DropAlbum(theDB, Made->What().AlbumID);
        throw;
    }
    return Made;
}

void DropAlbum(clsDBEngine& theDB, std::int32_t AlbumID) {
    Changes Door(theDB);
    Door.ForGood();  // the user has not had it yet
    if (auto Deleted = Door.DeleteAlbum(AlbumID)) Deleted->Never();
    if (theDB.IsSessionStored()) DeleteTree(AlbumFolder(theDB.DBPath(), AlbumID));
}

void DropFile(const QString& Path) {
    try {
        DeleteFile(Path);
    } catch (const std::exception&) {
        // it stays where it is and does no harm
    }
}

Answer<std::int32_t> EnterPicture(Changes& Door, const clsDBEngine& theDB, std::int32_t AlbumID,
                                  const PictureToEnter& Picture) {
    if (!theDB.GetAlbum(AlbumID)) return Refuse(tr("The Album was not found."));
    const std::int32_t SlideID = Door.FreeSlideID(AlbumID);
    const QString Folder = SlidesFolder(theDB.DBPath(), AlbumID);
    clsNEBSlide Slide;
    Slide.SlideID = SlideID;
    Slide.SlideText = CleanText(Picture.Caption);
    const QString Jpeg = Folder + FileStem(SlideID) + QStringLiteral(".jpg");
    StoreNew(Jpeg, Picture.Jpeg());
    Slide.SlideLoc = FileStem(SlideID) + QStringLiteral(".JPG");
    try {
        if (!Picture.Thumbnail.isNull())
            StoreNew(Folder + ThumbnailName(SlideID), ThumbnailBmp(Picture.Thumbnail));
    } catch (...) {
        DropStored({Jpeg});
        throw;
    }
    const Answer<Announcement> Saved = Door.EnterSlide(AlbumID, Slide);
    if (!Saved) return Saved.Refusal();
    return SlideID;
}

PictureImport::PictureImport(Changes& Door, const clsDBEngine& theDB, std::int32_t AlbumID,
                             QStringList Paths, const PictureKeeping& Keeping, KeepGoing GoOn)
    : mDoor(Door),
      mDB(theDB),
      mAlbumID(AlbumID),
      mKeeping(Keeping),
      mGoOn(std::move(GoOn)),
      mAhead(std::vector<QString>(Paths.begin(), Paths.end()),
             [Keeping](const QString& Path) { return Prepare(Path, Keeping); }) {}

PictureImport::~PictureImport() = default;

PictureImport::Prepared PictureImport::Prepare(const QString& Path, const PictureKeeping& Keeping) {
    if (!FileExists(Path)) return {};
    return {true, FittedJpeg(Path, Keeping)};
}

// Nothing where the picture is to be left out. What was prepared for a file that is gone is of no
// use, nor is the fault it may have met.
std::optional<QByteArray> PictureImport::TakeJpeg(const QString& Path) {
    try {
        Prepared Ready = mAhead.Take();
        if (FileExists(Path)) return Ready.Exists ? Ready.Jpeg : FittedJpeg(Path, mKeeping);
        mReason = tr("The file is not there any more.");
    } catch (const std::exception& Problem) {
        mReason = FileExists(Path) ? SentenceOf(Problem) : tr("The file is not there any more.");
    }
    return std::nullopt;
}

PictureImport::Outcome PictureImport::EnterNext(const PictureToImport& Picture) {
    while (!mAhead.Wait(10))
        if (!mGoOn()) return Outcome::Ended;
    const std::optional<QByteArray> Jpeg = TakeJpeg(Picture.Path);
    if (!Jpeg) return Outcome::LeftOut;
    Answer<std::int32_t> Entered = EnterPicture(
        mDoor, mDB, mAlbumID, {Picture.Caption, [&Jpeg] { return *Jpeg; }, Picture.Thumbnail});
    if (!Entered) throw Fault(Entered.Refusal().Text);
    mSlideID = *Entered;
    return Outcome::Entered;
}

}  // namespace neb
