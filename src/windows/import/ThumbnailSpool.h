// What an import window knows of the pictures it has read, by number: their thumbnails, which lie
// in a file because ten thousand of them would fill the memory, and what their files tell. A row of
// its lists holds the number alone.
#pragma once

#include <vector>

#include "controls/grid/ShapedPicture.h"
#include "pictures/ImgX.h"
#include "pictures/PictureFacts.h"
#include "support/files/SpoolFile.h"

namespace neb {

class ThumbnailSpool {
  public:
    // The number under which it is found from now on. A picture for which the file has no room has
    // no thumbnail.
    int Put(const ListedPicture& Picture, const PictureFacts& Facts);

    const PictureFacts& Facts(int Number) const { return At(Number).Facts; }
    // 72 by 72, stretched, as it goes to the disk; null: there is none.
    QImage Thumbnail(int Number);
    // As a list draws it, sharp on the screen for which it was read.
    ShapedPicture Shown(int Number);

  private:
    struct Kept {
        qint64 Place = -1;  // in the file; -1: there is none
        QSize Full;
        QSize Shown;  // of the larger one behind the thumbnail; empty: there is none
        PictureFacts Facts;
    };

    const Kept& At(int Number) const { return mKept.at(static_cast<size_t>(Number)); }
    QImage Read(qint64 Place, QSize Size);

    SpoolFile mFile;
    std::vector<Kept> mKept;
};

}  // namespace neb
