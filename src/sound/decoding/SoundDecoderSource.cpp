#include "sound/decoding/SoundDecoderSource.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <utility>

namespace neb {

namespace {

constexpr qint64 BlockLength = 1 << 16;

}  // namespace

SoundSource::SoundSource(std::unique_ptr<SoundBytes> Bytes)
    : mBytes(std::move(Bytes)), mWindow{0, mBytes->Length()} {
    Keep({});
}

void SoundSource::Narrow(qint64 First, qint64 Length) {
    First = std::clamp<qint64>(First, 0, mWindow.Length);
    mWindow.First += First;
    mWindow.Length = std::clamp<qint64>(Length, 0, mWindow.Length - First);
    Keep({});
}

void SoundSource::Keep(const std::vector<SoundPiece>& Pieces) {
    mParts.clear();
    mPlace = mLength = 0;
    for (const SoundPiece& Each : Pieces) {
        mParts.push_back({mLength, {mWindow.First + Each.First, Each.Length}});
        mLength += Each.Length;
    }
    if (!mParts.empty()) return;
    mParts.push_back({0, mWindow});
    mLength = mWindow.Length;
}

const SoundSource::Part& SoundSource::PartAt(qint64 Place) const {
    const auto Next =
        std::upper_bound(mParts.begin(), mParts.end(), Place,
                         [](qint64 Wanted, const Part& Each) { return Wanted < Each.Start; });
    return *std::prev(Next);
}

void SoundSource::Correct(qint64 At, const QByteArray& Bytes) {
    mCorrectAt = mWindow.First + At;
    mCorrect = Bytes;
    mBlock.clear();
}

bool SoundSource::LoadBlock(qint64 At) {
    mBlockAt = At;
    mBlock.resize(BlockLength);
    mBlock.resize(mBytes->ReadAt(At, mBlock.data(), BlockLength));
    for (qint64 I = 0; I < mCorrect.size(); ++I) {
        const qint64 Its = mCorrectAt + I - mBlockAt;
        if (Its >= 0 && Its < mBlock.size()) mBlock[Its] = mCorrect[I];
    }
    return !mBlock.isEmpty();
}

// As much as lies in one block.
qint64 SoundSource::ReadFile(char* Into, qint64 At, qint64 MaxLength) {
    const bool HasBlock = At >= mBlockAt && At < mBlockAt + mBlock.size();
    if (!HasBlock && !LoadBlock(At)) return 0;
    const qint64 Count = std::min(MaxLength, mBlockAt + mBlock.size() - At);
    std::memcpy(Into, mBlock.constData() + (At - mBlockAt), static_cast<size_t>(Count));
    return Count;
}

qint64 SoundSource::Read(void* Into, qint64 MaxLength) {
    const qint64 Wanted = std::clamp<qint64>(MaxLength, 0, mLength - mPlace);
    qint64 Total = 0;
    while (Total < Wanted) {
        const Part& Its = PartAt(mPlace);
        const qint64 Within = mPlace - Its.Start;
        const qint64 Count = ReadFile(static_cast<char*>(Into) + Total, Its.InFile.First + Within,
                                      std::min(Wanted - Total, Its.InFile.Length - Within));
        if (Count == 0) break;
        Total += Count;
        mPlace += Count;
    }
    return Total;
}

qint64 SoundSource::Seek(qint64 Offset, int Whence) {
    const qint64 Base = Whence == SEEK_SET ? 0 : Whence == SEEK_CUR ? mPlace : mLength;
    if (Offset < -Base || Offset > mLength - Base) return -1;
    return mPlace = Base + Offset;
}

QByteArray SoundSource::Peek(qint64 At, qint64 MaxLength) {
    const qint64 Before = mPlace;
    QByteArray Bytes;
    if (Seek(At, SEEK_SET) >= 0) {
        Bytes.resize(std::clamp<qint64>(MaxLength, 0, mLength - At));
        Bytes.resize(Read(Bytes.data(), Bytes.size()));
    }
    mPlace = Before;
    return Bytes;
}

}  // namespace neb
