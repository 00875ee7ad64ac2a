#include "albums/SlideSave.h"

#include "albums/modImport.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "pictures/ImgX.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

void SetPlaying(clsNEBSlide& Slide, const SlideEdits& Edits) {
    Slide.Override = Edits.Override;
    Slide.Repeat = Edits.Repeat;
}

void ClearSound(const QString& File, clsNEBSlide& Slide) {
    DeleteFile(File);
    Slide.SoundTrackLoc.clear();
    Slide.Override = Slide.Repeat = false;
}

}  // namespace

std::function<QByteArray()> JpegToStore(const QString& SlideLoc, const ImgX* Edited) {
    if (Edited) return [Picture = *Edited] { return FittedJpeg(Picture); };
    if (HoldsSeparator(SlideLoc)) return [SlideLoc] { return FittedJpeg(SlideLoc); };
    return {};
}

void StorePicture(const clsDBEngine& theDB, std::int32_t AlbumID, clsNEBSlide& Slide,
                  const SlideEdits& Edits) {
    if (!Edits.Jpeg) return;
    const QString Folder = SlidesFolder(theDB.DBPath(), AlbumID);
    const QString Stem = FileStem(Slide.SlideID);
    ReplaceFile(Folder + Stem + QStringLiteral(".jpg"), Edits.Jpeg());
    DropFile(Folder + ThumbnailName(Slide.SlideID));
    Slide.SlideLoc = (Stem + QStringLiteral(".jpg")).toUpper();
}

void StoreSound(const clsDBEngine& theDB, std::int32_t AlbumID, clsNEBSlide& Slide,
                const SlideEdits& Edits) {
    const QString Name = FileStem(Slide.SlideID) + QStringLiteral(".wav");
    const QString File = SlidesFolder(theDB.DBPath(), AlbumID) + Name;
    if (Edits.SoundCleared) return ClearSound(File, Slide);
    if (!Edits.Recording) {
        if (!Edits.SoundLoc.isEmpty()) SetPlaying(Slide, Edits);
        return;
    }
    ReplaceFile(File, *Edits.Recording);
    Slide.SoundTrackLoc = Name;
    SetPlaying(Slide, Edits);
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
