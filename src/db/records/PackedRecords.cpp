#include "db/records/PackedRecords.h"

#include <QtEndian>
#include <cstring>

namespace neb {
namespace {

constexpr char Blank = ' ';
constexpr qsizetype MostBlanks = 255;  // of a piece; more would make much of very little

struct Piece {
    const char* Data;
    qsizetype Count;
    qsizetype BlankCount;
};

// The piece at Place, Place moved behind it; false when the bytes end within it.
bool NextPiece(const QByteArray& Bytes, qsizetype& Place, Piece& Next) {
    if (Bytes.size() - Place < 4) return false;
    const char* Head = Bytes.constData() + Place;
    Next = {Head + 4, qFromLittleEndian<quint16>(Head), qFromLittleEndian<quint16>(Head + 2)};
    Place += 4 + Next.Count;
    return Place <= Bytes.size();
}

// Collects pieces and hands on whole megabytes, so that a file is written in few calls.
class Collector {
  public:
    Collector(const std::function<void(const char*, qint64)>& Take, qint64 Length)
        : mTake(Take), mBuffer(std::min<qint64>(Room, Length), Qt::Uninitialized) {}
    void Add(const Piece& Next) {
        if (mUsed + Next.Count + Next.BlankCount > Room) Flush();
        std::memcpy(Reserve(Next.Count), Next.Data, static_cast<size_t>(Next.Count));
        std::memset(Reserve(Next.BlankCount), Blank, static_cast<size_t>(Next.BlankCount));
    }
    void Flush() {
        const qsizetype Full = std::min(mUsed, Whole);
        if (Full > 0) mTake(mBuffer.constData(), Full);
        mUsed -= Full;
        std::memmove(mBuffer.data(), mBuffer.constData() + Full, static_cast<size_t>(mUsed));
        if (mUsed > 0 && mLast) Flush();
    }
    void Finish() {
        mLast = true;
        Flush();
    }

  private:
    static constexpr qsizetype Whole = 1 << 20;
    static constexpr qsizetype Room = Whole + (1 << 18);
    char* Reserve(qsizetype Count) {
        char* Place = mBuffer.data() + mUsed;
        mUsed += Count;
        return Place;
    }
    const std::function<void(const char*, qint64)>& mTake;
    QByteArray mBuffer;
    qsizetype mUsed = 0;
    bool mLast = false;
};

}  // namespace

void PackedRecords::BeginRecord(qsizetype Length) {
    // Every field may need a head of its own.
    const qsizetype Needed = mUsed + Length + 16 * HeadLength;
    if (mBytes.size() < Needed) mBytes.resize(std::max(Needed, mBytes.size() * 2));
}

void PackedRecords::OpenPiece() {
    mHead = mUsed;
    mUsed += HeadLength;
}

void PackedRecords::ClosePiece(int BlankCount) {
    char* Head = mBytes.data() + mHead;
    qToLittleEndian(static_cast<quint16>(mUsed - mHead - HeadLength), Head);
    qToLittleEndian(static_cast<quint16>(BlankCount), Head + 2);
    mHead = -1;
}

void PackedRecords::Literal(const void* Bytes, size_t Count) {
    if (mHead < 0) OpenPiece();
    std::memcpy(mBytes.data() + mUsed, Bytes, Count);
    mUsed += static_cast<qsizetype>(Count);
    mLength += static_cast<qint64>(Count);
    if (mUsed - mHead > MaxLiteral) ClosePiece(0);
}

void PackedRecords::Blanks(int Count) {
    if (mHead < 0) OpenPiece();
    ClosePiece(Count);
    mLength += Count;
}

void PackedRecords::Finish() {
    if (mHead >= 0) ClosePiece(0);
    mBytes.resize(mUsed);
}

void PackedRecords::Unpack(const std::function<void(const char*, qint64)>& Take) const {
    Collector Out(Take, mLength);
    Piece Next{};
    for (qsizetype Place = 0; NextPiece(mBytes, Place, Next);) Out.Add(Next);
    Out.Finish();
}

QByteArray PackedRecords::Unpack() const {
    QByteArray Whole;
    Whole.reserve(mLength);
    Unpack([&](const char* Data, qint64 Length) { Whole.append(Data, Length); });
    return Whole;
}

std::optional<PackedRecords> PackedRecords::FromBytes(QByteArray Packed, qint64 Length) {
    qint64 Total = 0;
    qsizetype Place = 0;
    Piece Next{};
    while (Place < Packed.size()) {
        if (!NextPiece(Packed, Place, Next) || Next.BlankCount > MostBlanks) return std::nullopt;
        Total += Next.Count + Next.BlankCount;
    }
    if (Total != Length) return std::nullopt;
    PackedRecords Result;
    Result.mUsed = Packed.size();
    Result.mBytes = std::move(Packed);
    Result.mLength = Length;
    return Result;
}

}  // namespace neb
