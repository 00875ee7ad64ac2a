#include "windows/lists/ScreenPicture.h"

#include <QMutex>
#include <utility>

#include "controls/picture/PictureView.h"
#include "pictures/ImgX.h"

namespace neb {
namespace {

QMutex gLock;

ScreenReader& Reader() {
    static ScreenReader Instance;
    return Instance;
}

ScreenReader ReaderNow() {
    const QMutexLocker Lock(&gLock);
    return Reader();
}

QImage LoadAtLeast(const QString& File, QSize Most) {
    ImgX Picture;
    Picture.LoadAtLeast(File, Most);
    return Picture.Picture();
}

}  // namespace

QImage ReadForScreen(const QString& File, QSize Most) {
    const ScreenReader Read = ReaderNow();
    return PictureView::ForScreens(Read ? Read(File, Most) : LoadAtLeast(File, Most), Most);
}

void SetScreenReader(ScreenReader NewReader) {
    const QMutexLocker Lock(&gLock);
    Reader() = std::move(NewReader);
}

}  // namespace neb
