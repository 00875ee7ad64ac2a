#include "intake/BulkSlides.h"

#include <algorithm>

#include "db/clsNEBAlbum.h"

namespace neb {

void SlideFinder::Learn(const clsNEBAlbum& Album) {
    mPlaces.reserve(Album.Slides.size());
    for (size_t I = 0; I < Album.Slides.size(); ++I)
        mPlaces.emplace_back(Album.Slides[I]->SlideID, I);
    std::sort(mPlaces.begin(), mPlaces.end());
}

clsNEBSlide* SlideFinder::Find(clsNEBAlbum& Album, std::int32_t SlideID) {
    if (mPlaces.empty()) Learn(Album);
    const auto Found =
        std::lower_bound(mPlaces.begin(), mPlaces.end(), std::pair(SlideID, size_t{0}));
    if (Found != mPlaces.end() && Found->second < Album.Slides.size()) {
        clsNEBSlide* Slide = Album.Slides[Found->second].get();
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
