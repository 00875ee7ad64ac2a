#include "albums/BulkSlides.h"

#include "db/clsDBEngine.h"
#include "support/Texts.h"

namespace neb {

// From the end, so that the first of two slides with one ID is the one that is found.
void SlideFinder::Learn(const clsNEBAlbum& Album) {
    mPlaces.reserve(static_cast<qsizetype>(Album.Slides.size()));
    for (size_t I = Album.Slides.size(); I-- > 0;) mPlaces.insert(Album.Slides[I]->SlideID, I);
}

clsNEBSlide* SlideFinder::Find(clsNEBAlbum& Album, std::int32_t SlideID) {
    if (mPlaces.isEmpty()) Learn(Album);
    const auto Found = mPlaces.constFind(SlideID);
    if (Found != mPlaces.cend() && *Found < Album.Slides.size()) {
        clsNEBSlide* Slide = Album.Slides[*Found].get();
        if (Slide->SlideID == SlideID) return Slide;
    }
    return Album.GetSlide(SlideID);
}

QString SlideTally::Text(const QString& DoneWord, const QString& DoWord) const {
    QString Told = tr("%1 slides successfully %2.").arg(Done).arg(DoneWord);
    if (Failed > 0) Told += tr("\nFailed to %1 %2 slides.").arg(DoWord).arg(Failed);
    return Told;
}

void CaptionEdits::Begin(std::int32_t AlbumID) {
    mAlbumID = AlbumID;
    mTyped.clear();
}

void CaptionEdits::Note(std::int32_t SlideID, const QString& Caption, const clsNEBSlide* Stored) {
    if (Stored && Stored->SlideText == Caption)
        mTyped.remove(SlideID);
    else
        mTyped[SlideID] = Caption;
}

QString CaptionEdits::ShownOf(const clsNEBSlide& Slide) const {
    return mTyped.value(Slide.SlideID, Slide.SlideText);
}

CaptionSave::CaptionSave(clsDBEngine& theDB, const QObject* Asker, std::int32_t AlbumID)
    : mDB(theDB),
      mAlbumID(AlbumID),
      mDoor(theDB, Asker),
      mSaved(mDoor.AsOne(Change::Kind::CaptionsSaved, AlbumID)) {}

bool CaptionSave::Save(std::int32_t SlideID, const QString& Caption) {
    clsNEBAlbum* Album = mDB.GetAlbum(mAlbumID);
    clsNEBSlide* Slide = Album ? mFinder.Find(*Album, SlideID) : nullptr;
    if (Slide && Slide->SlideText == Caption) return true;
    mTally.Count(Slide != nullptr);
    if (Slide) mDoor.SaveCaption(mAlbumID, *Slide, Caption).Never();
    return Slide != nullptr;
}

CaptionSave::~CaptionSave() {
    if (mTally.Done == 0) mSaved.Never();
}

void CaptionSave::Tell() {
    if (mTally.Done > 0) mSaved.Now();
}

SlideTally DeleteSlides(clsDBEngine& theDB, const QObject* Asker, std::int32_t AlbumID,
                        const std::vector<std::int32_t>& SlideIDs, const KeepGoing& GoesOn) {
    SlideTally Tally;
    Changes Door(theDB, Asker);
    for (const std::int32_t SlideID : SlideIDs) {
        Answer<Announcement> Deleted = Door.DeleteSlide(AlbumID, SlideID);
        Tally.Count(static_cast<bool>(Deleted));
        if (Deleted) Deleted->Now();
        if (!GoesOn()) break;
    }
    if (clsNEBAlbum* Album = theDB.GetAlbum(AlbumID)) Album->SortSlides();
    return Tally;
}

}  // namespace neb
