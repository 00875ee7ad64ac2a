// In which order pictures are listed before they come into an album, and what they are called then.
// The import windows and nebctl share it.
#pragma once

#include <QString>

#include "pictures/PictureFacts.h"

namespace neb {

enum class PictureOrder { ByName, ByTime };

// By the bare names as people read them, so that IMG_2 comes before IMG_10, letters in any case;
// equal names by their letters' codes. Whole paths are compared folder by folder.
bool IsNamedBefore(const QString& PathA, const QString& PathB);

// The caption that is proposed for a picture: its own words where it has some, else the file's base
// name, else, for a name that cameras give, when it was taken.
QString ProposedCaption(const QString& Path, const PictureFacts& Facts);

}  // namespace neb
