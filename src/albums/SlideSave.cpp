#include "albums/SlideSave.h"

#include "albums/modImport.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "support/Fault.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

constexpr char NoAlbum[] = QT_TR_NOOP("Could not find the album.");
constexpr char MissingTitle[] = QT_TR_NOOP("Missing Slide");

QString PathOf(const QString& DBPath, const SlideInHand& InHand) {
    return SlidePath(DBPath, InHand.AlbumID(), InHand.PictureName());
}

void SetPlaying(clsNEBSlide& Record, const SlideInHand& InHand) {
    Record.Override = InHand.Override();
    Record.Repeat = InHand.Repeat();
}

QString RecordedSound(const clsDBEngine& theDB, std::int32_t AlbumID, std::int32_t SlideID) {
    return SlidesFolder(theDB.DBPath(), AlbumID) + FileStem(SlideID) + QStringLiteral(".wav");
}

void ClearSound(clsNEBSlide& Record) {
    Record.SoundTrackLoc.clear();
    Record.Override = Record.Repeat = false;
}

// The new picture as the slide's JPEG; its thumbnail is made anew when it is asked for.
void StorePicture(const clsDBEngine& theDB, Changes& Door, std::int32_t AlbumID,
                  const SlideInHand::JpegMaker& Jpeg, clsNEBSlide& Record) {
    if (!Jpeg) return;
    const QString Folder = SlidesFolder(theDB.DBPath(), AlbumID);
    const QString Name = FileStem(Record.SlideID) + QStringLiteral(".jpg");
    Door.StoreFile(Folder + Name, Jpeg());
    Door.DropFiles({Folder + ThumbnailName(Record.SlideID)});
    Record.SlideLoc = Name.toUpper();
}

// The slide's own files that it named before and names no more: those that came by a transfer have
// the endings that they had.
QStringList NoLongerNamed(const QString& Folder, const clsNEBSlide& Before,
                          const clsNEBSlide& Now) {
    const auto IsNamed = [&Now](const QString& Loc) {
        return Loc.compare(Now.SlideLoc, Qt::CaseInsensitive) == 0 ||
               Loc.compare(Now.SoundTrackLoc, Qt::CaseInsensitive) == 0;
    };
    QStringList Paths;
    for (const QString& Loc : {Before.SlideLoc, Before.SoundTrackLoc})
        if (!HoldsSeparator(Loc) && Loc.startsWith(FileStem(Now.SlideID) + u'.') && !IsNamed(Loc))
            Paths << Folder + Loc;
    return Paths;
}

// A new slide enters the album with its caption alone: its files are named after its number.
Answer<> EnterNew(Changes& Door, SlideInHand& InHand) {
    if (!InHand.IsNew()) return Done();
    clsNEBSlide Record;
    Record.SlideText = InHand.Caption();
    Answer<Announcement> Made = Door.SaveSlide(InHand.AlbumID(), Record);
    if (!Made) return Refuse(tr("Failed to save slide."));
    InHand.MoveTo(InHand.AlbumID(), Made->What().SlideID);
    Made->Never();  // the save that follows tells of it
    return Done();
}

// The record to be, its files in the album. Where one cannot be written, the record has what came
// before it: the caption at least.
clsNEBSlide WithFiles(const clsDBEngine& theDB, Changes& Door, const SlideInHand& InHand,
                      const SlideInHand::JpegMaker& Jpeg, clsNEBSlide Record) {
    Record.SlideText = InHand.Caption();
    try {
        StorePicture(theDB, Door, InHand.AlbumID(), Jpeg, Record);
        StoreSound(theDB, Door, InHand, Record);
    } catch (const Fault&) {
        const auto AsFarAsItCame = Door.SaveSlide(InHand.AlbumID(), Record);
        throw;
    }
    return Record;
}

}  // namespace

Answer<QString> StoredPicture(const QString& DBPath, const SlideInHand& InHand) {
    if (InHand.PictureName().isEmpty())
        return Refuse(tr("The Current Slide Appears to be Corrupt."));
    const QString Path = PathOf(DBPath, InHand);
    if (FileExists(Path)) return Path;
    return BoxRequest{.Text = tr("The graphic for the current slide appears to have been deleted.\n"
                                 "Double Slick on the Slide Spaceholder to browse for it."),
                      .Title = tr("Slide Missing")};
}

Answer<> CheckPicture(const QString& DBPath, const SlideInHand& InHand) {
    if (InHand.PictureName().isEmpty())
        return Refuse(tr("You must first select the picture you want to use for this slide."),
                      tr(MissingTitle));
    if (InHand.IsPictureLoose() || FileExists(PathOf(DBPath, InHand))) return Done();
    return Refuse(tr("The currently selected slide cannot be found.\n"
                     "You must select a new picture you want to use for this slide."),
                  tr(MissingTitle));
}

Answer<Announcement> SaveSlide(clsDBEngine& theDB, const QObject* Asker, SlideInHand& InHand,
                               const SlideInHand::JpegMaker& Jpeg) {
    clsNEBAlbum* Album = theDB.GetAlbum(InHand.AlbumID());
    if (!Album) return Refuse(tr(NoAlbum));
    Changes Door(theDB, Asker);
    const Answer<> Entered = EnterNew(Door, InHand);
    if (!Entered) return Entered.Refusal();
    const clsNEBSlide* Stored = Album->GetSlide(InHand.SlideID());
    if (!Stored) return Refuse(tr("Could not find the slide."));
    const clsNEBSlide Before = *Stored;
    if (InHand.IsTurned()) Door.Call(tr("Turn Slide"));
    const bool DropsSound = InHand.SoundState() == SlideInHand::Sound::Cleared;
    const clsNEBSlide Record = WithFiles(theDB, Door, InHand, Jpeg, Before);
    InHand.Take(InHand.AlbumID(), Record);
    Answer<Announcement> Saved = Door.SaveSlide(InHand.AlbumID(), Record);
    QStringList Unnamed =
        NoLongerNamed(SlidesFolder(theDB.DBPath(), InHand.AlbumID()), Before, Record);
    if (DropsSound) Unnamed << RecordedSound(theDB, InHand.AlbumID(), Record.SlideID);
    if (Saved && !Unnamed.isEmpty() && theDB.IsSessionStored()) Door.DropFiles(Unnamed);
    return Saved;
}

TurnedSlide TurnSlide(const QString& DBPath, std::int32_t AlbumID, const clsNEBSlide& Stored,
                      int Quarters, const PictureKeeping& Keeping) {
    TurnedSlide Made;
    Made.InHand.Take(AlbumID, Stored);
    ImgX Picture;
    Picture.Load(SlidePath(DBPath, AlbumID, Stored.SlideLoc));
    Made.InHand.SetPicture(Picture);
    Picture.Rotate(90 * Quarters);
    Made.InHand.Turn(std::move(Picture));
    Made.Jpeg = Made.InHand.Jpeg(Keeping)();
    Made.InHand.Turn(ImgX());  // its pixels are of no more use
    return Made;
}

Answer<Announcement> DeleteSlide(clsDBEngine& theDB, const QObject* Asker, std::int32_t AlbumID,
                                 std::int32_t SlideID) {
    clsNEBAlbum* Album = theDB.GetAlbum(AlbumID);
    if (!Album) return Refuse(tr(NoAlbum));
    Answer<Announcement> Deleted = Changes(theDB, Asker).DeleteSlide(AlbumID, SlideID);
    Album->SortSlides();
    return Deleted;
}

void StoreSound(const clsDBEngine& theDB, Changes& Door, const SlideInHand& InHand,
                clsNEBSlide& Record) {
    using Sound = SlideInHand::Sound;
    const Sound Is = InHand.SoundState();
    if (Is == Sound::Cleared) return ClearSound(Record);
    if (Is == Sound::Recorded || Is == Sound::Chosen) {
        const QString Name = FileStem(Record.SlideID) + InHand.NewEnding();
        Door.StoreFile(SlidesFolder(theDB.DBPath(), InHand.AlbumID()) + Name, InHand.NewSound());
        Record.SoundTrackLoc = Name;
    } else if (!InHand.HasSound()) {
        return;
    }
    SetPlaying(Record, InHand);
}

QString StoredSound(const QString& DBPath, const SlideInHand& InHand) {
    return SlidePath(DBPath, InHand.AlbumID(), InHand.SoundName().trimmed());
}

int NextSlideIndex(int Index, int Last) {
    const int Next = Index < 1 || Index == Last ? 1 : Index + 1;
    return Next <= Last ? Next : -1;
}

int PreviousSlideIndex(int Index, int Last) {
    const int Previous = Index <= 1 ? Last : Index - 1;
    return Previous >= 1 && Previous <= Last ? Previous : -1;
}

}  // namespace neb
