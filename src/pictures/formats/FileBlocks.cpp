#include "pictures/formats/FileBlocks.h"

#include "pictures/formats/PictureFormats.h"
#include "pictures/formats/PngTexts.h"

namespace neb {
namespace {

constexpr QByteArrayView ExifMark("Exif\0\0", 6);

QByteArray WithoutMark(QByteArrayView Block) {
    return (Block.startsWith(ExifMark) ? Block.sliced(ExifMark.size()) : Block).toByteArray();
}

struct Box {
    qint64 Header, Length;  // of both together; all zero where there is none, or one without sense
};

Box BoxAt(const ByteView& Boxes, qint64 At) {
    if (!Boxes.Has(At, 8)) return {0, 0};
    const quint32 Short = Boxes.U32(At, true);
    const bool Long = Short == 1;
    const qint64 Header = Long ? 16 : 8;
    // A file beyond four gigabytes is not read at all.
    const qint64 Length = Long         ? (Boxes.U32(At + 8, true) ? 0 : Boxes.U32(At + 12, true))
                          : Short == 0 ? Boxes.Size() - At
                                       : Short;
    return Length < Header ? Box{0, 0} : Box{Header, Length};
}

// PNG got a chunk of its own for EXIF only late; before, and by some programs still, it stands in a
// text.
QByteArray ExifOfPng(const ByteView& Png) {
    if (const auto Chunk = PngChunk(Png, "eXIf")) return WithoutMark(*Chunk);
    const QByteArray Plain = PngRawProfile(Png, "exif");
    if (!Plain.isEmpty()) return WithoutMark(Plain);
    const QByteArray Segment = PngRawProfile(Png, "APP1");
    return Segment.startsWith(ExifMark) ? WithoutMark(Segment) : QByteArray();
}

}  // namespace

QByteArrayView JpegSegment(const ByteView& Jpeg, QByteArrayView Mark) {
    constexpr quint8 Application1 = 0xE1, StartOfScan = 0xDA, Filling = 0xFF;
    for (qint64 At = 2; Jpeg.U8(At) == 0xFF && Jpeg.U8(At + 1) != StartOfScan;) {
        if (Jpeg.U8(At + 1) == Filling) {
            ++At;
            continue;
        }
        const qint64 Length = Jpeg.U16(At + 2, true);
        if (Length < 2) break;
        const QByteArrayView Body = Jpeg.Part(At + 4, Length - 2);
        if (Jpeg.U8(At + 1) == Application1 && Body.startsWith(Mark))
            return Body.sliced(Mark.size());
        At += 2 + Length;
    }
    return {};
}

QByteArrayView WebpChunk(const ByteView& Webp, QByteArrayView Name) {
    for (qint64 At = 12; Webp.Has(At, 8);) {
        const qint64 Length = Webp.U32(At + 4);
        if (Webp.Is(At, Name)) return Webp.Part(At + 8, Length);
        At += 8 + Length + (Length & 1);
    }
    return {};
}

QByteArrayView FileBox(const ByteView& Boxes, QByteArrayView Type, QByteArrayView Mark) {
    qint64 At = 0;
    for (Box Is = BoxAt(Boxes, At); Is.Header > 0; Is = BoxAt(Boxes, At += Is.Length)) {
        const QByteArrayView Body = Boxes.Part(At + Is.Header, Is.Length - Is.Header);
        if (Boxes.Is(At + 4, Type) && Body.startsWith(Mark)) return Body.sliced(Mark.size());
    }
    return {};
}

bool BoxesAreWhole(const ByteView& Boxes) {
    qint64 At = 0;
    for (Box Is = BoxAt(Boxes, At); Is.Header > 0; Is = BoxAt(Boxes, At)) At += Is.Length;
    return At == Boxes.Size();
}

// Behind the mark: the kind, a name that is filled up to an even length, and the bytes, which are
// too.
std::vector<PhotoshopResource> ResourcesIn(QByteArrayView Bytes) {
    std::vector<PhotoshopResource> Found;
    const ByteView View(Bytes);
    for (qint64 At = 0; View.Is(At, "8BIM");) {
        const qint64 Data = At + 6 + ((View.U8(At + 6) + 2) & ~1);
        const qint64 Length = View.U32(Data, true);
        const qint64 Next = Data + 4 + ((Length + 1) & ~qint64(1));
        Found.push_back(
            {View.U16(At + 4, true), View.Part(At, Next - At), View.Part(Data + 4, Length)});
        At = Next;
    }
    return Found;
}

QByteArrayView PsdResource(const ByteView& Psd, int Kind) {
    constexpr qint64 ColoursAt = 26;
    const qint64 At = ColoursAt + 4 + Psd.U32(ColoursAt, true);
    for (const PhotoshopResource& Each : ResourcesIn(Psd.Part(At + 4, Psd.U32(At, true))))
        if (Each.Kind == Kind) return Each.Content;
    return {};
}

QByteArray ExifBlockOf(const QByteArray& File) {
    const ByteView View(File);
    if (LooksLikeJpeg(View)) return JpegSegment(View, ExifMark).toByteArray();
    if (LooksLikePng(View)) return ExifOfPng(View);
    if (LooksLikeWebp(View)) return WithoutMark(WebpChunk(View, "EXIF"));
    if (LooksLikeTiff(View)) return File;
    if (LooksLikePsd(View)) return WithoutMark(PsdResource(View, ExifResourceKind));
    return FileBox(View, "uuid", "JpgTiffExif->JP2").toByteArray();
}

}  // namespace neb
