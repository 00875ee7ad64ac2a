#include "db/records/RecordPacker.h"

#include <cstring>

namespace neb {
namespace {

constexpr qsizetype LeastRun = 8, MostAtOnce = 255;

qsizetype BlanksAt(QByteArrayView Bytes) {
    static constexpr char Sixteen[] = "                ";
    qsizetype Count = 0;
    while (Bytes.size() - Count >= 16 && std::memcmp(Bytes.data() + Count, Sixteen, 16) == 0)
        Count += 16;
    while (Count < Bytes.size() && Bytes[Count] == ' ') ++Count;
    return Count;
}

// Where the next blanks begin that are worth a piece.
qsizetype NextRun(QByteArrayView Bytes) {
    for (qsizetype Place = 0; (Place = Bytes.indexOf(' ', Place)) >= 0;) {
        const qsizetype Count = BlanksAt(Bytes.sliced(Place));
        if (Count >= LeastRun) return Place;
        Place += Count;
    }
    return Bytes.size();
}

}  // namespace

void RecordPacker::Add(QByteArrayView Bytes) {
    while (!Bytes.isEmpty()) {
        const qsizetype Run = NextRun(Bytes);
        AddLiteral(Bytes.first(Run));
        Bytes = Bytes.sliced(Run);
        const qsizetype Count = BlanksAt(Bytes);
        AddBlanks(Count);
        Bytes = Bytes.sliced(Count);
    }
}

PackedRecords RecordPacker::Finish() {
    mPacked.Finish();
    return std::move(mPacked);
}

void RecordPacker::AddLiteral(QByteArrayView Bytes) {
    for (; !Bytes.isEmpty(); Bytes = Bytes.sliced(std::min(MostAtOnce, Bytes.size()))) {
        const qsizetype Count = std::min(MostAtOnce, Bytes.size());
        mPacked.BeginRecord(Count);
        mPacked.Literal(Bytes.data(), static_cast<size_t>(Count));
    }
}

void RecordPacker::AddBlanks(qsizetype Count) {
    for (; Count > 0; Count -= std::min(MostAtOnce, Count)) {
        mPacked.BeginRecord(0);
        mPacked.Blanks(static_cast<int>(std::min(MostAtOnce, Count)));
    }
}

}  // namespace neb
