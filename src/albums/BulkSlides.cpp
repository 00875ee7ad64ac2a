#include "albums/BulkSlides.h"

#include "db/clsNEBAlbum.h"

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
    QString Told = QStringLiteral("%1 slides successfully %2.").arg(Done).arg(DoneWord);
    if (Failed > 0) Told += QStringLiteral("\nFailed to %1 %2 slides.").arg(DoWord).arg(Failed);
    return Told;
}

}  // namespace neb
