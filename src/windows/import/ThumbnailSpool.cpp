#include "windows/import/ThumbnailSpool.h"

#include <cstring>

namespace neb {
namespace {

constexpr int PixelBytes = 3;

qsizetype LengthOf(QSize Size) {
    return qsizetype(Size.width()) * Size.height() * PixelBytes;
}

// Row after row without gaps.
void Append(QByteArray& Bytes, const QImage& Picture) {
    const QImage Rows = Picture.convertToFormat(QImage::Format_RGB888);
    for (int Y = 0; Y < Rows.height(); ++Y)
        Bytes.append(reinterpret_cast<const char*>(Rows.constScanLine(Y)),
                     Rows.width() * PixelBytes);
}

}  // namespace

int ThumbnailSpool::Put(const ListedPicture& Picture, const PictureFacts& Facts) {
    Kept Entry{-1, Picture.Full, Picture.Shown.size(), Facts};
    if (!Picture.Thumbnail.isNull()) {
        QByteArray Bytes;
        Append(Bytes, Picture.Thumbnail);
        Append(Bytes, Picture.Shown);
        Entry.Place = mFile.Append(Bytes).value_or(-1);
    }
    mKept.push_back(Entry);
    return static_cast<int>(mKept.size()) - 1;
}

QImage ThumbnailSpool::Read(qint64 Place, QSize Size) {
    const QByteArray Bytes = mFile.Read(Place, LengthOf(Size));
    if (Bytes.size() != LengthOf(Size)) return {};
    QImage Picture(Size, QImage::Format_RGB888);
    const auto Row = static_cast<size_t>(Size.width()) * PixelBytes;
    for (int Y = 0; Y < Size.height(); ++Y)
        std::memcpy(Picture.scanLine(Y), Bytes.constData() + static_cast<size_t>(Y) * Row, Row);
    return Picture.convertToFormat(QImage::Format_RGB32);
}

QImage ThumbnailSpool::Thumbnail(int Number) {
    const Kept& Entry = At(Number);
    return Entry.Place < 0 ? QImage() : Read(Entry.Place, ThumbnailSize);
}

ShapedPicture ThumbnailSpool::Shown(int Number) {
    const Kept& Entry = At(Number);
    if (Entry.Place < 0) return {};
    if (Entry.Shown.isEmpty()) return {Read(Entry.Place, ThumbnailSize), Entry.Full};
    return {Read(Entry.Place + LengthOf(ThumbnailSize), Entry.Shown), Entry.Full};
}

}  // namespace neb
