// The same for GIF and WebP, whose readers give what they have got of a cut picture.
#include "pictures/formats/PictureFormats.h"

namespace neb {
namespace {

constexpr int ImageBlock = 0x2C, ExtensionBlock = 0x21;
// Colours follow where the upper bit is set, as many as the lower three say.
qint64 GifColours(int Flags) {
    return Flags & 0x80 ? 3LL << ((Flags & 7) + 1) : 0;
}

// Behind pieces of up to 255 bytes, of which an empty one is the last; -1 where there is none.
qint64 BehindPieces(const ByteView& Gif, qint64 At) {
    while (Gif.Has(At, 1)) {
        const int Length = Gif.U8(At);
        At += 1 + Length;
        if (Length == 0) return At;
    }
    return -1;
}

}  // namespace

bool GifIsWhole(const ByteView& Bytes) {
    qint64 At = 13 + GifColours(Bytes.U8(10));
    while (At >= 0 && Bytes.Has(At, 1)) {
        const int Block = Bytes.U8(At);
        if (Block == ImageBlock)
            return BehindPieces(Bytes, At + 11 + GifColours(Bytes.U8(At + 9))) > 0;
        At = Block == ExtensionBlock ? BehindPieces(Bytes, At + 2) : At + 1;
    }
    return false;
}

// The last byte may be one that only fills up.
bool WebpIsWhole(const ByteView& Bytes) {
    return Bytes.Size() + 1 >= 8 + qint64(Bytes.U32(4));
}

}  // namespace neb
