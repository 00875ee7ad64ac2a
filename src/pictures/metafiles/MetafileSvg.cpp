#include "pictures/metafiles/MetafileSvg.h"

#include <QBuffer>
#include <QImageReader>

#include "pictures/formats/ByteView.h"
#include "pictures/formats/DecodeHost.h"
#include "pictures/formats/PictureFaults.h"
#include "pictures/formats/PictureFormats.h"

namespace neb {
namespace {

// In all pictures that one drawing carries.
constexpr qint64 MostPixels = 60'000'000;

// The converter takes what it gets as whole; so the records are followed to the end mark here.
void CheckRecords(const ByteView& Emf) {
    constexpr quint32 EndRecord = 14;
    for (qint64 At = 0; Emf.Has(At, 8);) {
        const quint32 Length = Emf.U32(At + 4);
        if (Length < 8 || Length % 4) ThrowDamaged();
        if (!Emf.Has(At, Length)) break;
        if (Emf.U32(At) == EndRecord) return;
        At += Length;
    }
    ThrowEndsEarly();
}

// Pixels of a picture that the drawing carries along; more than all when it is none. Only plain
// pixel formats count: an SVG in its place could refer elsewhere.
qint64 CarriedPixels(QByteArrayView Target) {
    constexpr QByteArrayView Mark = ";base64,";
    constexpr qsizetype LongestHeader = 256 << 10;
    const qsizetype Comma = Target.first(std::min<qsizetype>(Target.size(), 64)).indexOf(Mark);
    if (!Target.startsWith("data:image/") || Comma < 0) return MostPixels + 1;
    QByteArrayView Data = Target.sliced(Comma + Mark.size());
    Data = Data.first(std::min(Data.size(), LongestHeader));
    QByteArray Header = QByteArray::fromBase64(Data.toByteArray());
    const ByteView View(Header);
    if (!LooksLikePng(View) && !LooksLikeJpeg(View)) return MostPixels + 1;
    QBuffer Buffer(&Header);
    const QSize Size = QImageReader(&Buffer, LooksLikePng(View) ? "png" : "jpeg").size();
    return Size.isEmpty() ? MostPixels + 1 : PixelCount(Size);
}

// A place in the drawing, or a carried picture; all those together have a limit of pixels.
bool StaysInside(QByteArrayView Target, qint64& PixelsLeft) {
    if (Target.startsWith('#')) return true;
    const qint64 Pixels = CarriedPixels(Target);
    if (Pixels > PixelsLeft) return false;
    PixelsLeft -= Pixels;
    return true;
}

// Behind "href", spaces, "=", spaces and a quotation mark; -1 where it is no attribute.
qsizetype TargetAt(const QByteArray& Svg, qsizetype At) {
    const auto SkipSpace = [&] {
        while (At < Svg.size() && std::isspace(static_cast<uchar>(Svg[At]))) ++At;
    };
    SkipSpace();
    if (At >= Svg.size() || Svg[At++] != '=') return -1;
    SkipSpace();
    return At < Svg.size() && (Svg[At] == '"' || Svg[At] == '\'') ? At + 1 : -1;
}

}  // namespace

QByteArray EmfToSvg(const QByteArray& Emf) {
    CheckRecords(Emf);
    return WithoutOutsideReferences(TheDecodeHost().SvgOf(Emf));
}

QByteArray WithoutOutsideReferences(QByteArray Svg) {
    // An entity could spell out what is looked for here.
    if (Svg.contains("<!DOCTYPE") || Svg.contains("<!ENTITY")) ThrowDamaged();
    constexpr QByteArrayView Word = "href";
    qint64 PixelsLeft = MostPixels;
    for (qsizetype At = 0; (At = Svg.indexOf(Word, At)) >= 0;) {
        const qsizetype Target = TargetAt(Svg, At + Word.size());
        if (Target >= 0 && !StaysInside(QByteArrayView(Svg).sliced(Target), PixelsLeft))
            Svg[At] = 'x';
        At += Word.size();
    }
    return Svg;
}

}  // namespace neb
