#include "sound/decoding/SoundDecoderRiff.h"

#include <QtEndian>
#include <algorithm>
#include <limits>
#include <optional>

#include "sound/decoding/SoundDecoderSource.h"

namespace neb {

namespace {

constexpr quint16 MpegTags[] = {0x50, 0x55};  // format tags of MPEG sound
constexpr qint64 FormHeadLength = 12, ChunkHeadLength = 8;
constexpr int MostChunks = 1000;

struct Chunk {
    QByteArray Name;
    qint64 At = 0, Length = 0;  // of its content, as the file tells it
    qint64 Next() const { return At + Length + Length % 2; }
};

std::optional<Chunk> ChunkAt(SoundSource& Source, qint64 At) {
    const QByteArray Head = Source.Peek(At, ChunkHeadLength);
    if (Head.size() < ChunkHeadLength) return {};
    return Chunk{Head.left(4), At + ChunkHeadLength,
                 qFromLittleEndian<quint32>(Head.constData() + 4)};
}

bool SaysMpeg(const QByteArray& Format) {
    if (Format.size() < 2) return false;
    const auto Tag = qFromLittleEndian<quint16>(Format.constData());
    return std::find(std::begin(MpegTags), std::end(MpegTags), Tag) != std::end(MpegTags);
}

// Whether chunks go on from here to the very end, as they do behind a sound that really is empty.
bool ChunksFollow(SoundSource& Source, qint64 At) {
    for (int I = 0; I < MostChunks && At < Source.Length(); ++I) {
        const auto Its = ChunkAt(Source, At);
        if (!Its) return false;
        At = Its->Next();
    }
    return At == Source.Length() || At == Source.Length() + 1;  // the last may lack its padding
}

void CorrectLength(SoundSource& Source, const Chunk& Data) {
    const qint64 Rest = Source.Length() - Data.At;
    if (Data.Length != 0 || Rest <= 0 || ChunksFollow(Source, Data.At)) return;
    QByteArray Bytes(4, '\0');
    const qint64 Most = std::numeric_limits<quint32>::max();
    qToLittleEndian(static_cast<quint32>(std::min(Rest, Most)), Bytes.data());
    Source.Correct(Data.At - 4, Bytes);
}

}  // namespace

bool UnwrapRiff(SoundSource& Source) {
    const QByteArray Head = Source.Peek(0, FormHeadLength);
    if (!Head.startsWith("RIFF") || !Head.endsWith("WAVE")) return false;
    bool IsMpeg = false;
    auto Its = ChunkAt(Source, FormHeadLength);
    for (int I = 0; Its && Its->Name != "data" && I < MostChunks; ++I) {
        if (Its->Name == "fmt ") IsMpeg = SaysMpeg(Source.Peek(Its->At, 2));
        Its = ChunkAt(Source, Its->Next());
    }
    if (!Its || Its->Name != "data") return false;
    if (IsMpeg)
        Source.Narrow(Its->At, Its->Length > 0 ? Its->Length : Source.Length());
    else
        CorrectLength(Source, *Its);
    return IsMpeg;
}

}  // namespace neb
