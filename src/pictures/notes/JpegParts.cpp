#include "pictures/notes/JpegParts.h"

#include <algorithm>

#include "pictures/formats/ByteView.h"
#include "pictures/formats/TiffTags.h"
#include "pictures/formats/XmpPacket.h"
#include "pictures/notes/JpegMarks.h"

namespace neb {
namespace {

using namespace jpeg;

constexpr qsizetype LongestContent = 65533;

bool IsOf(const JpegPart& Part, int Marker, const QByteArray& Mark) {
    return Part.Marker == Marker && Part.Content.startsWith(Mark);
}

// The next part at or behind a place; nothing when there is none, or one that is cut.
std::optional<JpegPart> PartAt(const ByteView& Bytes, qsizetype At) {
    if (Bytes.U8(At) != 0xFF) return std::nullopt;
    qsizetype Behind = At;
    while (Bytes.U8(Behind) == 0xFF) ++Behind;
    const int Marker = Bytes.U8(Behind++);
    if (Marker == EndOfImage) return JpegPart{Marker, At, Behind - At, {}};
    const int Length = Bytes.U16(Behind, true);
    if (Marker < FirstFrame || Length < 2 || !Bytes.Has(Behind, Length)) return std::nullopt;
    return JpegPart{Marker, At, Behind + Length - At, Bytes.Part(Behind + 2, Length - 2)};
}

// From within the pixels to the next marker that is none of theirs.
qsizetype BehindScan(const QByteArray& Bytes, qsizetype At) {
    for (; (At = Bytes.indexOf('\xFF', At)) >= 0; ++At) {
        const int Next = At + 1 < Bytes.size() ? uchar(Bytes[At + 1]) : 0;
        if (Next >= FirstFrame && (Next < FirstRestart || Next > LastRestart)) return At;
    }
    return Bytes.size();
}

qsizetype EndOf(const QByteArray& Bytes, JpegPart Scan) {
    std::optional<JpegPart> Next = Scan;
    while (Next && Next->Marker != EndOfImage) {
        const qsizetype Behind = Next->At + Next->Length;
        Next = PartAt(Bytes, Next->Marker == StartOfScan ? BehindScan(Bytes, Behind) : Behind);
    }
    return Next ? Next->At + Next->Length : Bytes.size();
}

QSize SizeIn(const JpegPart& Frame) {
    const ByteView View(Frame.Content);
    return {View.U16(3, true), View.U16(1, true)};
}

}  // namespace

bool JpegPart::IsExif() const {
    return IsOf(*this, ExifMarker, ExifMark);
}

bool JpegPart::IsXmp() const {
    return IsOf(*this, ExifMarker, XmpMark);
}

QByteArrayView JpegPart::Xmp() const {
    return Content.sliced(XmpMark.size());
}

bool JpegPart::IsMoreXmp() const {
    return IsOf(*this, ExifMarker, MoreXmpMark);
}

bool JpegPart::IsPhotoshop() const {
    return IsOf(*this, PhotoshopMarker, PhotoshopMark);
}

int JpegParts::Orientation() const {
    const auto Block = std::ranges::find_if(Head, &JpegPart::IsExif);
    return Block == Head.end() ? 1 : TiffTags(Block->Exif()).Orientation();
}

bool JpegParts::IsTurnedByXmp() const {
    const auto Block = std::ranges::find_if(Head, &JpegPart::IsExif);
    if (Block != Head.end() && TiffTags(Block->Exif()).TellsOrientation()) return false;
    const auto Packet = std::ranges::find_if(Head, &JpegPart::IsXmp);
    if (Packet == Head.end()) return false;
    const int Told = XmpValue(Packet->Xmp().toByteArray(), XmpTiff, u"Orientation").toInt();
    return Told > 1 && Told <= 8;
}

std::optional<JpegParts> PartsOf(const QByteArray& Jpeg) {
    if (!Jpeg.startsWith("\xFF\xD8")) return std::nullopt;
    JpegParts Found;
    for (qsizetype At = 2;;) {
        const auto Part = PartAt(Jpeg, At);
        if (!Part || Part->Marker == EndOfImage) return std::nullopt;
        if (IsFrame(Part->Marker)) Found.Stored = SizeIn(*Part);
        if (Part->Marker == StartOfScan) {
            Found.End = EndOf(Jpeg, *Part);
            return Found;
        }
        Found.Head.push_back(*Part);
        At += Part->Length;
    }
}

QByteArray JpegPartOf(int Marker, const QByteArray& Content) {
    if (Content.size() > LongestContent) return {};
    const auto Length = static_cast<int>(Content.size()) + 2;
    QByteArray Part("\xFF");
    for (const int Byte : {Marker, Length >> 8, Length & 255}) Part.append(static_cast<char>(Byte));
    return Part + Content;
}

QByteArray ExifPartOf(const QByteArray& Block) {
    return JpegPartOf(ExifMarker, ExifMark + Block);
}

QByteArray WithParts(const QByteArray& Jpeg, const JpegParts& Parts,
                     const std::function<QByteArray(const JpegPart&)>& Changed) {
    QByteArray Result = Jpeg.left(2);
    Result.reserve(Jpeg.size());
    for (const JpegPart& Part : Parts.Head) Result += Changed(Part);
    return Result += QByteArrayView(Jpeg).sliced(
               Parts.Head.empty() ? 2 : Parts.Head.back().At + Parts.Head.back().Length);
}

QByteArray WithMore(const QByteArray& Jpeg, const QByteArray& Further) {
    const auto First = PartAt(Jpeg, 2);
    const bool Leads = First && First->Marker == 0xE0;
    const qsizetype At = Leads ? First->At + First->Length : 2;
    return Jpeg.left(At) + Further + Jpeg.mid(At);
}

}  // namespace neb
