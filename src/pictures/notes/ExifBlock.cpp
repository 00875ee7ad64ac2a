#include "pictures/notes/ExifBlock.h"

#include <algorithm>

#include "pictures/formats/ByteView.h"

namespace neb {
namespace {

constexpr quint16 WidthTag = 0x0100, HeightTag = 0x0101, OrientationTag = 0x0112, ExifTag = 0x8769,
                  PlaceTag = 0x8825, MakerTag = 0x927C, PixelWidthTag = 0xA002,
                  PixelHeightTag = 0xA003, ShortType = 3;
constexpr int EntryLength = 12;
constexpr int TypeWidths[] = {1, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8};

}  // namespace

ExifBlock::ExifBlock(QByteArray& Block) : mBlock(Block) {
    const ByteView View(mBlock);
    mBig = View.Is(0, "MM");
    if (!(mBig || View.Is(0, "II")) || View.U16(2, mBig) != 42) return;
    mFirst = View.U32(4, mBig);
    const qint64 Next = mFirst + 2 + qint64(CountIn(mFirst)) * EntryLength;
    mSecond = Number(Next, 4);
}

quint32 ExifBlock::Number(qint64 At, int Width) const {
    const ByteView View(mBlock);
    return Width == 2 ? View.U16(At, mBig) : View.U32(At, mBig);
}

void ExifBlock::SetNumber(qint64 At, int Width, quint32 To) {
    if (At < 0 || At + Width > mBlock.size()) return;
    for (int I = 0; I < Width; ++I)
        mBlock[At + I] = static_cast<char>(To >> 8 * (mBig ? Width - 1 - I : I) & 255);
}

int ExifBlock::CountIn(qint64 Directory) const {
    return Directory > 0 ? static_cast<int>(Number(Directory, 2)) : 0;
}

ExifBlock::Entry ExifBlock::EntryAt(qint64 At) const {
    const quint32 Type = Number(At + 2, 2);
    const qint64 Length =
        qint64(Number(At + 4, 4)) * (Type < std::size(TypeWidths) ? TypeWidths[Type] : 1);
    return {At, Length <= 4 ? At + 8 : qint64(Number(At + 8, 4)), Length};
}

qint64 ExifBlock::Find(qint64 Directory, quint16 Tag) const {
    const int Count = CountIn(Directory);
    for (int I = 0; I < Count; ++I) {
        const qint64 At = Directory + 2 + qint64(I) * EntryLength;
        if (At + EntryLength > mBlock.size()) return 0;
        if (Number(At, 2) == Tag) return At;
    }
    return 0;
}

void ExifBlock::Set(qint64 Directory, quint16 Tag, quint32 To) {
    if (const qint64 At = Find(Directory, Tag))
        SetNumber(At + 8, Number(At + 2, 2) == ShortType ? 2 : 4, To);
}

qint64 ExifBlock::Details() const {
    const qint64 Pointer = Find(mFirst, ExifTag);
    return Pointer ? Number(Pointer + 8, 4) : 0;
}

void ExifBlock::SetUpright(QSize Pixels) {
    if (mFirst <= 0) return;
    const qint64 Details = this->Details();
    Set(mFirst, OrientationTag, 1);
    Set(mFirst, WidthTag, quint32(Pixels.width()));
    Set(mFirst, HeightTag, quint32(Pixels.height()));
    Set(Details, PixelWidthTag, quint32(Pixels.width()));
    Set(Details, PixelHeightTag, quint32(Pixels.height()));
    SetNumber(mFirst + 2 + qint64(CountIn(mFirst)) * EntryLength, 4, 0);
    mSecond = 0;
}

void ExifBlock::Clear(qint64 At, qint64 Length) {
    const qint64 From = std::clamp<qint64>(At, 0, mBlock.size());
    const qint64 To = std::clamp<qint64>(At + Length, From, mBlock.size());
    std::fill(mBlock.begin() + From, mBlock.begin() + To, '\0');
}

// Those behind it move up, with the place of the next directory that follows them.
void ExifBlock::Remove(qint64 Directory, qint64 At) {
    const int Count = CountIn(Directory);
    const qint64 End =
        std::min<qint64>(Directory + 2 + qint64(Count) * EntryLength + 4, mBlock.size());
    std::copy(mBlock.cbegin() + At + EntryLength, mBlock.cbegin() + End, mBlock.begin() + At);
    Clear(End - EntryLength, EntryLength);
    SetNumber(Directory, 2, quint32(Count - 1));
}

bool ExifBlock::DropPlaceOf(qint64 Directory) {
    const qint64 Pointer = Find(Directory, PlaceTag);
    if (!Pointer) return false;
    const qint64 Place = Number(Pointer + 8, 4);
    Remove(Directory, Pointer);
    const int Count = CountIn(Place);
    for (int I = 0; I < Count; ++I) {
        const qint64 At = Place + 2 + qint64(I) * EntryLength;
        if (At + EntryLength > mBlock.size()) break;
        const Entry Of = EntryAt(At);
        Clear(Of.Values, Of.Length);
    }
    Clear(Place, 2 + qint64(Count) * EntryLength + 4);
    return true;
}

void ExifBlock::DropMakersNotes(qint64 Directory) {
    const qint64 At = Find(Directory, MakerTag);
    if (!At) return;
    const Entry Notes = EntryAt(At);
    Clear(Notes.Values, Notes.Length);
    Remove(Directory, At);
}

bool ExifBlock::DropPlace() {
    bool Had = false;
    for (const qint64 Directory : {mFirst, mSecond, Details()})
        while (DropPlaceOf(Directory)) Had = true;
    if (Had) DropMakersNotes(Details());
    return Had;
}

}  // namespace neb
