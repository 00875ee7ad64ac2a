// The decoders behind PictureDecoder: one function a family of formats, and what they share.
// Used by PictureDecoder.cpp and the decoders alone.
#pragma once

#include "pictures/formats/ByteView.h"
#include "pictures/formats/PictureDecoder.h"

namespace neb {

struct PictureSource {
    const QByteArray& Bytes;
    const char* Format;        // the library's name of the format
    const NeededSize& Needed;  // may be empty: all pixels
};

DecodedPicture DecodeJpeg(const PictureSource& Source);
DecodedPicture DecodeByQt(const PictureSource& Source);
DecodedPicture DecodeBmp(const PictureSource& Source);
DecodedPicture DecodePcx(const PictureSource& Source);
DecodedPicture DecodePsd(const PictureSource& Source);
DecodedPicture DecodeTga(const PictureSource& Source);
DecodedPicture DecodeTiff(const PictureSource& Source);
DecodedPicture DecodeByMagick(const PictureSource& Source);
DecodedPicture DecodeHeif(const PictureSource& Source);
DecodedPicture DecodeJp2(const PictureSource& Source);
DecodedPicture DecodeEmf(const PictureSource& Source);
DecodedPicture DecodeWmf(const PictureSource& Source);

// Whether the bytes are of the format. They only look at the start and at what must be there.
bool LooksLikeJpeg(const ByteView& Bytes);
bool LooksLikePng(const ByteView& Bytes);
bool LooksLikeBmp(const ByteView& Bytes);
bool LooksLikeTiff(const ByteView& Bytes);
bool LooksLikePsd(const ByteView& Bytes);
bool LooksLikePcd(const ByteView& Bytes);
bool LooksLikeEmf(const ByteView& Bytes);
bool LooksLikeWmf(const ByteView& Bytes);
bool LooksLikePcx(const ByteView& Bytes);
bool LooksLikeWbmp(const ByteView& Bytes);
bool LooksLikeTga(const ByteView& Bytes);
bool LooksLikeGif(const ByteView& Bytes);
bool LooksLikeWebp(const ByteView& Bytes);
bool LooksLikeHeic(const ByteView& Bytes);  // AVIF, too
bool LooksLikeJp2(const ByteView& Bytes);

// Whether the first picture of the file is all there.
bool GifIsWhole(const ByteView& Bytes);
bool WebpIsWhole(const ByteView& Bytes);
// Throws FaultEndsEarly when the file has fewer pixels than its header promises.
void CheckIsWhole(const PictureSource& Source);

struct BmpHeader {
    QSize Size;  // both sides positive
    int Depth;   // bits a pixel
    quint32 Packing;
    qint64 Pixels;  // where they begin
};
BmpHeader BmpLayout(const ByteView& Bytes);

// Bytes that a whole WBMP file of this header has.
qint64 WbmpNeeds(const ByteView& Bytes);
// Pixels of its picture; empty for one beyond all limits.
QSize WbmpSize(const ByteView& Bytes);

// What the first chunk of that name in a PNG file holds; nothing when there is none or it is cut.
std::optional<QByteArrayView> PngChunk(const ByteView& Bytes, QByteArrayView Name);

// A picture's share of the memory that all decoding together may take (DecodeHost.h), held while it
// is decoded, so that several large ones wait for each other.
class DecodeBudget {
  public:
    // Throws FaultTooLarge when the picture alone is beyond the limit.
    DecodeBudget(QSize Size, qint64 Bytes);
    ~DecodeBudget();
    DecodeBudget(const DecodeBudget&) = delete;
    DecodeBudget& operator=(const DecodeBudget&) = delete;

  private:
    QSize mSize;
    qint64 mBytes;
};

inline qint64 PixelCount(QSize Size) {
    return qint64(Size.width()) * Size.height();
}
// Largest width or height of any picture.
inline constexpr int LongestSide = 50000;

}  // namespace neb
