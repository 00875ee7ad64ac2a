#include "show/film/FilmFrames.h"

#include <algorithm>
#include <cstring>

#include "effects/XShowBands.h"

namespace neb {
namespace {

// From is as wide; its first row comes to row Top.
void CopyRows(QImage& To, int Top, const QImage& From) {
    const auto Length = static_cast<std::size_t>(From.width()) * sizeof(QRgb);
    for (int Y = 0; Y < From.height(); ++Y)
        std::memcpy(To.scanLine(Top + Y), From.constScanLine(Y), Length);
}

}  // namespace

QImage FilmFrames::Still(const QImage& Picture) {
    if (Picture.size() == mFilm) return Picture;
    QImage& On = TakeSheet();
    CopyRows(On, 0, Picture);
    return On;
}

// Straight into the upper rows of the sheet.
QImage FilmFrames::Moving(const Transition& Of, double Progress) {
    QImage& On = TakeSheet();
    QImage Rows(On.bits(), Of.Size().width(), Of.Size().height(), On.bytesPerLine(),
                QImage::Format_RGB32);
    DrawInBands(Of, Progress, Rows);
    return On;
}

QImage& FilmFrames::TakeSheet() {
    const auto IsFree = [](const Sheet& Each) { return Each.Image.isDetached(); };
    auto Free = std::find_if(mSheets.begin(), mSheets.end(), IsFree);
    if (Free == mSheets.end()) {
        mSheets.push_back({QImage(mFilm, QImage::Format_RGB32)});
        Free = mSheets.end() - 1;
    }
    PutCaption(*Free);
    return Free->Image;
}

void FilmFrames::PutCaption(Sheet& On) const {
    if (On.Caption == mCaption.cacheKey()) return;
    CopyRows(On.Image, mFilm.height() - mCaption.height(), mCaption);
    On.Caption = mCaption.cacheKey();
}

}  // namespace neb
