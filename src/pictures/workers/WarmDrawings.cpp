// What draws metafiles has fonts, and the letters of all the pages of codes that Windows had.
#include <QImage>
#include <QPainter>
#include <QStringDecoder>
#include <QSvgRenderer>

#include "pictures/metafiles/MappedFonts.h"
#include "pictures/workers/WarmDecoders.h"

namespace neb {

void WarmDrawings() {
    WarmDecoders();
    MapFonts();
}

}  // namespace neb
