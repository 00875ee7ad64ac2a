#include "sound/decoding/SoundDecoder.h"

#include <algorithm>
#include <utility>

#include "sound/decoding/SongTags.h"
#include "sound/decoding/SoundDecoderMpeg.h"
#include "sound/decoding/SoundDecoderRiff.h"
#include "sound/decoding/SoundDecoderWave.h"
#include "support/Fault.h"
#include "support/Texts.h"

namespace neb {

namespace {

// How the files begin that libsndfile reads.
constexpr const char* WaveFamily[] = {"RIFF", "RIFX", "RF64", "riff", "FORM",
                                      ".snd", "dns.", "caff", "fLaC", "OggS"};

bool IsWaveFamily(const QByteArray& Head) {
    return std::any_of(std::begin(WaveFamily), std::end(WaveFamily),
                       [&](const char* Magic) { return Head.startsWith(Magic); });
}

}  // namespace

std::unique_ptr<SoundDecoder> DecodeSound(std::unique_ptr<SoundBytes> Bytes) {
    auto Source = std::make_unique<SoundSource>(std::move(Bytes));
    if (Source->Length() == 0) throw Fault(tr("The file is empty; there is no sound in it."));
    Source->Narrow(LeadingTags(*Source), Source->Length());
    if (!UnwrapRiff(*Source) && IsWaveFamily(Source->Peek(0, 4)))
        return std::make_unique<WaveSound>(std::move(Source));
    auto Parts = FindMpegParts(*Source);
    if (Parts.empty()) throw Fault(tr("The file is not a sound that this program can play."));
    return std::make_unique<MpegSound>(std::move(Source), std::move(Parts));
}

SongTags DecodeTags(std::unique_ptr<SoundBytes> Bytes) {
    SoundSource Source(std::move(Bytes));
    const SongTags Found = MpegTags(Source);
    return Found == SongTags() ? WaveTags(Source) : Found;
}

}  // namespace neb
