#include "pictures/workers/OwnThumbnail.h"

namespace neb {
namespace {

void Append(QByteArray& Bytes, quint32 Number, int Length) {
    for (int I = 0; I < Length; ++I) Bytes.append(static_cast<char>(Number >> 8 * I & 255));
}

QByteArray BmpHeaders(QSize Size, int Stride) {
    constexpr int Headers = 54, InfoHeader = 40, DotsAMetre = 3780;
    const auto Pixels = static_cast<quint32>(Stride * Size.height());
    QByteArray Bytes("BM");
    Append(Bytes, Headers + Pixels, 4);
    Append(Bytes, 0, 4);
    Append(Bytes, Headers, 4);
    Append(Bytes, InfoHeader, 4);
    Append(Bytes, static_cast<quint32>(Size.width()), 4);
    Append(Bytes, static_cast<quint32>(Size.height()), 4);
    Append(Bytes, 1, 2);
    Append(Bytes, 24, 2);
    Append(Bytes, 0, 4);
    Append(Bytes, Pixels, 4);
    Append(Bytes, DotsAMetre, 4);
    Append(Bytes, DotsAMetre, 4);
    Append(Bytes, 0, 4);
    Append(Bytes, 0, 4);
    return Bytes;
}

constexpr int OwnStride = ThumbnailSize.width() * 3;
static_assert(OwnStride % 4 == 0, "rows are filled up to four bytes");

}  // namespace

QByteArray ThumbnailBmp(const QImage& Picture) {
    const QImage Rows = Picture.convertToFormat(QImage::Format_BGR888);
    const int Stride = (Rows.width() * 3 + 3) / 4 * 4;
    QByteArray Bytes = BmpHeaders(Rows.size(), Stride);
    for (int Y = Rows.height() - 1; Y >= 0; --Y) {
        Bytes.append(reinterpret_cast<const char*>(Rows.constScanLine(Y)), Rows.width() * 3);
        Bytes.append(Stride - Rows.width() * 3, '\0');
    }
    return Bytes;
}

QImage OwnThumbnail(const QByteArray& Bytes) {
    static const QByteArray Headers = BmpHeaders(ThumbnailSize, OwnStride);
    constexpr int Rows = ThumbnailSize.height();
    if (Bytes.size() != Headers.size() + OwnStride * Rows || !Bytes.startsWith(Headers)) return {};
    QImage Picture(ThumbnailSize, QImage::Format_RGB32);
    for (int Y = 0; Y < Rows; ++Y) {
        const auto* From = reinterpret_cast<const uchar*>(Bytes.constData()) + Headers.size() +
                           (Rows - 1 - Y) * OwnStride;
        auto* To = reinterpret_cast<QRgb*>(Picture.scanLine(Y));
        for (int X = 0; X < ThumbnailSize.width(); ++X, From += 3)
            To[X] = qRgb(From[2], From[1], From[0]);
    }
    return Picture;
}

}  // namespace neb
