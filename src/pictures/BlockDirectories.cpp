#include "pictures/BlockDirectories.h"

#include <algorithm>
#include <optional>

#include "pictures/formats/ByteView.h"

namespace neb {
namespace {

constexpr quint16 ExifPointer = 0x8769;
// Descriptions, times, packets; those of other programs; comments; fractions of seconds.
constexpr quint16 Wanted[] = {0x010E, 0x0132, 0x02BC, 0x83BB, 0x8649, 0x8769, 0x9003, 0x9004,
                              0x9286, 0x9290, 0x9291, 0x9292, 0x9C9B, 0x9C9C, 0x9C9F};

class TagReader {
  public:
    explicit TagReader(const FileBytes& Read) : mRead(Read) {}

    ExifTags Run() {
        const QByteArray Head = mRead(0, 8);
        const ByteView View(Head);
        mFound.IsBigEndian = View.Is(0, "MM");
        if (!(View.Is(0, "MM") || View.Is(0, "II")) || U16(View, 2) != 42) return {};
        TakeDirectory(U32(View, 4));
        const QByteArray Behind = mFound.Values.take(ExifPointer);
        if (Behind.size() >= 4) TakeDirectory(U32(ByteView(Behind), 0));
        return std::move(mFound);
    }

  private:
    quint16 U16(const ByteView& View, qint64 At) const { return View.U16(At, mFound.IsBigEndian); }
    quint32 U32(const ByteView& View, qint64 At) const { return View.U32(At, mFound.IsBigEndian); }

    void TakeDirectory(qint64 At) {
        constexpr qint64 EntryLength = 12;
        const QByteArray Count = mRead(At, 2);
        const QByteArray Entries = mRead(At + 2, U16(Count, 0) * EntryLength);
        for (qint64 I = 0; I + EntryLength <= Entries.size(); I += EntryLength)
            TakeEntry(Entries.mid(I, EntryLength));
    }
    void TakeEntry(const QByteArray& Entry) {
        constexpr int Widths[] = {1, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8, 4};
        const quint16 Tag = U16(Entry, 0), Type = U16(Entry, 2);
        const bool IsWanted = std::ranges::find(Wanted, Tag) != std::end(Wanted);
        if (!IsWanted || Type >= std::size(Widths) || mFound.Values.contains(Tag)) return;
        const qint64 Length = qint64(U32(Entry, 4)) * Widths[Type];
        mFound.Values.insert(Tag,
                             Length <= 4 ? Entry.mid(8, Length) : mRead(U32(Entry, 8), Length));
    }

    const FileBytes& mRead;
    ExifTags mFound;
};

// Numbers in a row, in the order of the network.
class Numbers {
  public:
    explicit Numbers(QByteArrayView Bytes) : mBytes(Bytes) {}
    quint64 Next(int Width) {
        quint64 Number = 0;
        for (int I = 0; I < Width; ++I) Number = Number << 8 | mBytes.U8(mAt++);
        return Number;
    }
    QByteArray Text(int Width) {
        return mBytes.Part(std::exchange(mAt, mAt + Width), Width).toByteArray();
    }
    QByteArray TextToEnd() {
        const QByteArray Rest = mBytes.Part(mAt, mBytes.Size()).toByteArray();
        const qsizetype End = Rest.indexOf('\0');
        mAt += End < 0 ? Rest.size() : End + 1;
        return End < 0 ? Rest : Rest.first(End);
    }
    bool AtEnd() const { return mAt >= mBytes.Size(); }

  private:
    ByteView mBytes;
    qint64 mAt = 0;
};

struct Box {
    QByteArray Type;
    qint64 At, Length;  // of what is in it; a length that is not told is as far as possible
};

Box BoxAt(const FileBytes& Read, qint64 At) {
    const QByteArray Bytes = Read(At, 16);
    Numbers Head(Bytes);
    const auto Short = static_cast<qint64>(Head.Next(4));
    const QByteArray Type = Head.Text(4);
    if (Short != 1) return {Type, At + 8, Short == 0 ? -1 : Short - 8};
    return {Type, At + 16, static_cast<qint64>(std::min<quint64>(Head.Next(8), 1ull << 62)) - 16};
}

// The first of its type among those from a place on.
std::optional<Box> FindBox(const FileBytes& Read, qint64 At, const char* Type) {
    constexpr int MostBoxes = 1000;
    for (int I = 0; I < MostBoxes; ++I) {
        const Box Each = BoxAt(Read, At);
        if (Each.Type.size() < 4) break;
        if (Each.Type == Type) return Each;
        if (Each.Length < 0) break;
        At = Each.At + Each.Length;
    }
    return std::nullopt;
}

class HeifReader {
  public:
    explicit HeifReader(const FileBytes& Read) : mRead(Read) {}

    std::vector<HeifItem> Run() {
        const auto Meta = FindBox(mRead, 0, "meta");
        if (!Meta || Meta->Length < 4) return {};
        mMeta = mRead(Meta->At + 4, Meta->Length - 4);
        TakeNames(Inside("iinf"));
        mInline = Inside("idat");
        return TakePlaces(Inside("iloc"));
    }

  private:
    QByteArray Inside(const char* Type) const {
        const FileBytes InMeta = [this](qint64 At, qint64 Length) { return mMeta.mid(At, Length); };
        const auto Found = FindBox(InMeta, 0, Type);
        return Found && Found->Length > 0 ? mMeta.mid(Found->At, Found->Length) : QByteArray();
    }

    void TakeNames(const QByteArray& Table) {
        Numbers Head(Table);
        const bool IsLong = Head.Next(4) >> 24 != 0;
        const FileBytes InTable = [&](qint64 At, qint64 Length) { return Table.mid(At, Length); };
        for (qint64 At = IsLong ? 8 : 6; At < Table.size();) {
            const Box Each = BoxAt(InTable, At);
            if (Each.Length <= 0) return;
            TakeName(Table.mid(Each.At, Each.Length));
            At = Each.At + Each.Length;
        }
    }
    void TakeName(const QByteArray& Entry) {
        Numbers Fields(Entry);
        const int Version = static_cast<int>(Fields.Next(4) >> 24);
        if (Version < 2) return;
        const quint64 Number = Fields.Next(Version == 2 ? 2 : 4);
        Fields.Next(2);
        QByteArray Type = Fields.Text(4);
        if (Type == "mime") {
            Fields.TextToEnd();
            Type = Fields.TextToEnd();
        }
        if (Type == "Exif" || Type.contains('/')) mTypes.insert(Number, Type);
    }

    struct Widths {
        int Place, Length, Base, Index;
    };
    std::vector<HeifItem> TakePlaces(const QByteArray& Table) {
        std::vector<HeifItem> Items;
        Numbers Fields(Table);
        const int Version = static_cast<int>(Fields.Next(4) >> 24);
        const auto Sizes = static_cast<int>(Fields.Next(2));
        const Widths Wide{Sizes >> 12, Sizes >> 8 & 15, Sizes >> 4 & 15, Version ? Sizes & 15 : 0};
        const quint64 Count = Fields.Next(Version < 2 ? 2 : 4);
        for (quint64 I = 0; I < Count && !Fields.AtEnd(); ++I) {
            const quint64 Number = Fields.Next(Version < 2 ? 2 : 4);
            const bool IsInline = Version > 0 && (Fields.Next(2) & 15) == 1;
            QByteArray Bytes = TakeExtents(Fields, Wide, IsInline, mTypes.contains(Number));
            if (mTypes.contains(Number)) Items.push_back({mTypes[Number], std::move(Bytes)});
        }
        return Items;
    }
    QByteArray TakeExtents(Numbers& Fields, const Widths& Wide, bool IsInline, bool IsWanted) {
        QByteArray Bytes;
        Fields.Next(2);
        const auto Base = static_cast<qint64>(Fields.Next(Wide.Base));
        const auto Count = static_cast<int>(Fields.Next(2));
        for (int I = 0; I < Count && !Fields.AtEnd(); ++I) {
            Fields.Next(Wide.Index);
            const auto At = static_cast<qint64>(Fields.Next(Wide.Place) & 0xFFFFFFFFFFFF) + Base;
            const auto Length = static_cast<qint64>(Fields.Next(Wide.Length) & 0xFFFFFFFFFFFF);
            if (!IsWanted || Length > MostBytes - mTaken) continue;
            mTaken += Length;
            Bytes += IsInline ? mInline.mid(At, Length) : mRead(At, Length);
        }
        return Bytes;
    }

    // Of all items together: a table may name the same bytes any number of times.
    static constexpr qint64 MostBytes = 8 << 20;
    const FileBytes& mRead;
    qint64 mTaken = 0;
    QByteArray mMeta, mInline;
    QHash<quint64, QByteArray> mTypes;
};

}  // namespace

ExifTags ReadExifTags(const FileBytes& Read) {
    return TagReader(Read).Run();
}

std::vector<HeifItem> ReadHeifItems(const FileBytes& Read) {
    return HeifReader(Read).Run();
}

}  // namespace neb
