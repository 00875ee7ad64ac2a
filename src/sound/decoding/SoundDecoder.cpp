#include "sound/decoding/SoundDecoder.h"

#include <algorithm>

#include "sound/decoding/SoundDecoderMpeg.h"
#include "sound/decoding/SoundDecoderRiff.h"
#include "sound/decoding/SoundDecoderWave.h"
#include "support/Fault.h"

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

std::unique_ptr<SoundDecoder> OpenSound(const QString& Path) {
    auto Source = std::make_unique<SoundSource>(Path);
    if (Source->Length() == 0)
        throw Fault(QStringLiteral("The file is empty; there is no sound in it."), Path);
    Source->Narrow(LeadingTags(*Source), Source->Length());
    if (!UnwrapRiff(*Source) && IsWaveFamily(Source->Peek(0, 4)))
        return std::make_unique<WaveSound>(std::move(Source));
    auto Parts = FindMpegParts(*Source);
    if (Parts.empty())
        throw Fault(QStringLiteral("The file is not a sound that this program can play."), Path);
    return std::make_unique<MpegSound>(std::move(Source), std::move(Parts));
}

}  // namespace neb
