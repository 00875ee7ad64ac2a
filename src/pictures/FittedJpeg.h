// A picture as the JPEG that an album stores: fitted to the size at which pictures are kept there,
// with what its file says of it. Used by the import and by what saves slides.
#pragma once

#include <QByteArray>
#include <QString>

#include "pictures/PictureKeeping.h"

namespace neb {

class ImgX;

// A picture file as the JPEG bytes of a slide, of the quality of its keeping. Above SlideLimit a
// JPEG that fits comes as it is, byte for byte, or turned upright without loss where its sides
// allow. Throws as ImgX::Load does.
QByteArray FittedJpeg(const QString& File, const PictureKeeping& Keeping = {});
// The same from a picture in memory. One that was read from a JPEG, and since then only turned by
// quarters and flipped, comes without loss where its size allows. Throws FaultNotSaved when there
// is none.
QByteArray FittedJpeg(ImgX Picture, const PictureKeeping& Keeping = {});

}  // namespace neb
