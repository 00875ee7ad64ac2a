#include "pictures/workers/WarmDecoders.h"

#include <QImageReader>

namespace neb {

void WarmDecoders() {
    QImageReader::supportedImageFormats();
}

}  // namespace neb
