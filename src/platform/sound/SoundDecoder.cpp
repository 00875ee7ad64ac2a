#include "platform/sound/SoundDecoder.h"

#include <QtEndian>
#include <algorithm>

#include "platform/sound/SoundDecoderMpeg.h"
#include "platform/sound/SoundDecoderWave.h"
#include "support/Fault.h"

namespace neb {

namespace {

// How the files begin that libsndfile reads.
constexpr const char* WaveFamily[] = {"RIFF", "RIFX", "RF64", "riff", "FORM",
                                      ".snd", "dns.", "caff", "fLaC", "OggS"};

constexpr quint16 MpegTags[] = {0x50, 0x55};  // format tags of MPEG sound in a WAV file
constexpr qint64 FormHeadLength = 12, ChunkHeadLength = 8;
constexpr int MostChunks = 1000;

bool IsWaveFamily(const QByteArray& Head) {
    return std::any_of(std::begin(WaveFamily), std::end(WaveFamily),
                       [&](const char* Magic) { return Head.startsWith(Magic); });
}

bool SaysMpeg(const QByteArray& Format) {
    if (Format.size() < 2) return false;
    const auto Tag = qFromLittleEndian<quint16>(Format.constData());
    return std::find(std::begin(MpegTags), std::end(MpegTags), Tag) != std::end(MpegTags);
}

// Narrows a WAV file that is but a wrapping of MPEG frames to these. The length of a recording
// that was never closed is 0 or reaches beyond the file: it ends with the file.
bool UnwrapMpeg(SoundSource& Source) {
    const QByteArray Head = Source.Peek(0, FormHeadLength);
    if (!Head.startsWith("RIFF") || !Head.endsWith("WAVE")) return false;
    bool IsMpeg = false;
    qint64 At = FormHeadLength;
    for (int I = 0; I < MostChunks; ++I) {
        const QByteArray Chunk = Source.Peek(At, ChunkHeadLength);
        if (Chunk.size() < ChunkHeadLength) break;
        const qint64 Length = qFromLittleEndian<quint32>(Chunk.constData() + 4);
        At += ChunkHeadLength;
        if (Chunk.startsWith("fmt ")) IsMpeg = SaysMpeg(Source.Peek(At, 2));
        if (Chunk.startsWith("data")) {
            if (IsMpeg) Source.Narrow(At, Length > 0 ? Length : Source.Length());
            return IsMpeg;
        }
        At += Length + Length % 2;
    }
    return false;
}

}  // namespace

std::unique_ptr<SoundDecoder> OpenSound(const QString& Path) {
    auto Source = std::make_unique<SoundSource>(Path);
    if (Source->Length() == 0)
        throw Fault(QStringLiteral("The file is empty; there is no sound in it."), Path);
    Source->Narrow(LeadingTags(*Source), Source->Length());
    if (!UnwrapMpeg(*Source) && IsWaveFamily(Source->Peek(0, 4)))
        return std::make_unique<WaveSound>(std::move(Source));
    auto Parts = FindMpegParts(*Source);
    if (Parts.empty())
        throw Fault(QStringLiteral("The file is not a sound that this program can play."), Path);
    return std::make_unique<MpegSound>(std::move(Source), std::move(Parts));
}

}  // namespace neb
