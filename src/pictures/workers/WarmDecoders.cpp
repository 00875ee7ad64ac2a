#include "pictures/workers/WarmDecoders.h"

#include <QImageReader>

namespace neb {

void WarmDecoders() {
    QImageReader::supportedImageFormats();
}

void WarmDrawings() {
    WarmDecoders();
}

}  // namespace neb
