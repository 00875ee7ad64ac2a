#include "pictures/PictureOfFile.h"

#include "pictures/ImgX.h"

namespace neb {

QImage PictureOfFile(const QString& File) {
    ImgX Picture;
    Picture.Load(File);
    return Picture.Picture();
}

}  // namespace neb
