// A slide that an album has, turned as it lies there: what the slide manager does by hand, for
// where an album is looked through.
#pragma once

#include <QByteArray>
#include <QString>

#include "albums/SlideInHand.h"

namespace neb {

// A slide turned and ready to be saved (SaveSlide), with the bytes of its new JPEG.
struct TurnedSlide {
    SlideInHand InHand;
    QByteArray Jpeg;
};
// Quarters: clockwise where positive. On any thread. Throws as ImgX::Load does.
TurnedSlide TurnSlide(const QString& DBPath, std::int32_t AlbumID, const clsNEBSlide& Stored,
                      int Quarters, const PictureKeeping& Keeping);

}  // namespace neb
