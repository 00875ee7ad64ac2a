// The frame of an enhanced metafile: the whole picture with the margins around what is drawn, where
// the bounds are of the drawing alone. Used by the metafile decoder.
#pragma once

#include <QRectF>

#include "pictures/formats/ByteView.h"

namespace neb {

// In pixels of the device that the drawing was made for, counted from the upper left corner of its
// bounds. Where the header tells no frame, or one that lies beside the drawing, the bounds.
QRectF EmfFrame(const ByteView& Emf);

}  // namespace neb
