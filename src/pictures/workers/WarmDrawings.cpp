// What draws metafiles: the fonts of the system, and what writes with them.
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QThreadPool>

#include "pictures/metafiles/MappedFonts.h"
#include "pictures/workers/WarmDecoders.h"

// Qt shares large pictures among threads, which nobody can start behind the door, unless it is on
// one of them already. The name that a program defines goes before that of a library.
bool QThreadPool::contains(const QThread*) const {
    return true;
}

namespace neb {
namespace {

// Thai has its words found by a library with a dictionary; a letter that the font does not have is
// looked for in all the others.
void DrawLetters() {
    QImage Sheet(64, 64, QImage::Format_RGB32);
    QPainter Painter(&Sheet);
    QSvgRenderer(QByteArray("<svg xmlns='http://www.w3.org/2000/svg' width='64' height='64'>"
                            "<text y='40'>Aa \u0E44\u0E17\u0E22 \u6F22 \u05D0 \u0627</text></svg>"))
        .render(&Painter);
}

}  // namespace

void WarmDrawings() {
    WarmDecoders();
    MapFonts();
    DrawLetters();
}

}  // namespace neb
