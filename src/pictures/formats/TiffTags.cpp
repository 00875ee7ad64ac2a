#include "pictures/formats/TiffTags.h"

#include <QTransform>

namespace neb {
namespace {

constexpr quint16 OrientationTag = 0x0112, ExifTag = 0x8769, InteropTag = 0xA005;
constexpr int EntryLength = 12;
constexpr int LongestType = 12;
// Bytes a value, by the number of the type.
constexpr int TypeWidths[LongestType + 1] = {1, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8};

// Turns are clockwise, after the mirroring from left to right.
struct Turn {
    bool Mirror;
    int Degrees;
};
constexpr Turn Turns[] = {{false, 0},  {true, 0},   {false, 180}, {true, 180},
                          {true, 270}, {false, 90}, {true, 90},   {false, 270}};

}  // namespace

TiffTags::TiffTags(QByteArrayView Bytes) : mBytes(Bytes) {
    mBig = mBytes.Is(0, "MM");
    mValid = (mBig || mBytes.Is(0, "II")) && mBytes.U16(2, mBig) == 42;
    mFirst = mBytes.U32(4, mBig);
}

std::optional<qint64> TiffTags::EntryIn(quint32 Directory, quint16 Tag) const {
    if (!mValid) return std::nullopt;
    const int Count = mBytes.U16(Directory, mBig);
    for (qint64 At = qint64(Directory) + 2, I = 0; I < Count; ++I, At += EntryLength)
        if (mBytes.U16(At, mBig) == Tag && mBytes.Has(At, EntryLength)) return At;
    return std::nullopt;
}

TiffTags::Values TiffTags::ValuesOf(qint64 Entry) const {
    const int Type = std::min<int>(mBytes.U16(Entry + 2, mBig), LongestType);
    const quint32 Count = mBytes.U32(Entry + 4, mBig);
    const bool Inside = qint64(Count) * TypeWidths[Type] <= 4;
    return {Inside ? Entry + 8 : mBytes.U32(Entry + 8, mBig), Count, TypeWidths[Type]};
}

quint32 TiffTags::ValueAt(const Values& All, quint32 Index) const {
    const qint64 At = All.At + qint64(Index) * All.Width;
    return All.Width == 2 ? mBytes.U16(At, mBig) : mBytes.U32(At, mBig);
}

std::optional<quint32> TiffTags::ValueIn(quint32 Directory, quint16 Tag) const {
    const auto Entry = EntryIn(Directory, Tag);
    return Entry ? std::optional(ValueAt(ValuesOf(*Entry), 0)) : std::nullopt;
}

bool TiffTags::PiecesAreInside(quint16 PlaceTag, quint16 LengthTag) const {
    const auto Places = EntryIn(mFirst, PlaceTag), Lengths = EntryIn(mFirst, LengthTag);
    if (!Places || !Lengths) return true;
    const Values Place = ValuesOf(*Places), Length = ValuesOf(*Lengths);
    for (quint32 I = 0; I < std::min(Place.Count, Length.Count); ++I)
        if (!mBytes.Has(ValueAt(Place, I), ValueAt(Length, I))) return false;
    return true;
}

bool TiffTags::ValuesAreInside() const {
    const int Count = mBytes.U16(mFirst, mBig);
    if (!mBytes.Has(mFirst, 2 + qint64(Count) * EntryLength)) return false;
    for (qint64 I = 0; I < Count; ++I) {
        const Values All = ValuesOf(qint64(mFirst) + 2 + I * EntryLength);
        if (!mBytes.Has(All.At, qint64(All.Count) * All.Width)) return false;
    }
    return true;
}

bool TiffTags::IsWhole() const {
    constexpr quint16 Strips = 273, StripLengths = 279, Tiles = 324, TileLengths = 325;
    return ValuesAreInside() && PiecesAreInside(Strips, StripLengths) &&
           PiecesAreInside(Tiles, TileLengths);
}

std::optional<quint32> TiffTags::ValueBehind(quint16 PointerTag, quint16 Tag) const {
    const auto Directory = Value(PointerTag);
    return Directory ? ValueIn(*Directory, Tag) : std::nullopt;
}

QByteArrayView TiffTags::BytesIn(quint32 Directory, quint16 Tag) const {
    const auto Entry = EntryIn(Directory, Tag);
    if (!Entry) return {};
    const Values All = ValuesOf(*Entry);
    return mBytes.Part(All.At, qint64(All.Count) * All.Width);
}

QByteArrayView TiffTags::BytesBehind(quint16 PointerTag, quint16 Tag) const {
    const auto Directory = Value(PointerTag);
    return Directory ? BytesIn(*Directory, Tag) : QByteArrayView();
}

bool TiffTags::TellsOrientation() const {
    const quint32 Number = Value(OrientationTag).value_or(0);
    return Number >= 1 && Number <= 8;
}

int TiffTags::Orientation() const {
    return TellsOrientation() ? static_cast<int>(*Value(OrientationTag)) : 1;
}

bool TiffTags::IsAdobeRgb() const {
    const auto Interop = ValueBehind(ExifTag, InteropTag);
    if (!Interop) return false;
    const auto Index = EntryIn(*Interop, 1);
    return Index && mBytes.Is(*Index + 8, "R03");
}

QImage Upright(const QImage& Picture, int Orientation) {
    const Turn& How = Turns[Orientation - 1];
    QImage Result = How.Mirror ? Picture.mirrored(true, false) : Picture;
    if (How.Degrees == 180) return Result.mirrored(true, true);
    return How.Degrees ? Result.transformed(QTransform().rotate(How.Degrees)) : Result;
}

QSize UprightSize(QSize Stored, int Orientation) {
    return Orientation >= 5 ? Stored.transposed() : Stored;
}

}  // namespace neb
