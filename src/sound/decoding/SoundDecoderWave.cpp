#include "sound/decoding/SoundDecoderWave.h"

#include <sndfile.h>

#include <algorithm>
#include <array>
#include <vector>

#include "sound/decoding/SongTags.h"
#include "sound/decoding/SoundFormat.h"
#include "support/Fault.h"
#include "support/Texts.h"

namespace neb {

namespace {

constexpr int MostChannels = 8;
constexpr int MostRate = 1000000;                // frames a second
constexpr qint64 MostFrames = qint64(1) << 40;   // 288 days; beyond that it is no length
constexpr qint64 MostCounted = qint64(1) << 32;  // 27 hours; a bound on time, not on sounds
constexpr qint64 SkippedAtOnce = 4096;

SoundSource& Its(void* Source) {
    return *static_cast<SoundSource*>(Source);
}

SF_VIRTUAL_IO Callbacks() {
    SF_VIRTUAL_IO Io = {};
    Io.get_filelen = [](void* Source) -> sf_count_t { return Its(Source).Length(); };
    Io.seek = [](sf_count_t Offset, int Whence, void* Source) -> sf_count_t {
        return Its(Source).Seek(Offset, Whence);
    };
    Io.read = [](void* Into, sf_count_t Count, void* Source) -> sf_count_t {
        return Its(Source).Read(Into, Count);
    };
    Io.write = [](const void*, sf_count_t, void*) -> sf_count_t { return 0; };
    Io.tell = [](void* Source) -> sf_count_t { return Its(Source).Place(); };
    return Io;
}

void Check(bool Good, const QString& Sentence) {
    if (!Good) throw Fault(Sentence);
}

}  // namespace

SongTags WaveTags(SoundSource& Source) {
    SF_VIRTUAL_IO Io = Callbacks();
    SF_INFO Info = {};
    Source.Seek(0, SEEK_SET);
    const std::unique_ptr<SNDFILE, decltype(&sf_close)> File(
        sf_open_virtual(&Io, SFM_READ, &Info, &Source), &sf_close);
    if (!File) return {};
    const auto Text = [&](int Kind) {
        return TagText(QByteArray(sf_get_string(File.get(), Kind)));
    };
    return {Text(SF_STR_TITLE), Text(SF_STR_ARTIST)};
}

void WaveSound::Closer::operator()(sf_private_tag* File) const {
    sf_close(File);
}

// What the file says of itself.
struct WaveSound::Shape {
    int Rate, Channels;
    qint64 Frames;
    bool CanSeek;
};

WaveSound::Shape WaveSound::Open() {
    SF_VIRTUAL_IO Io = Callbacks();
    SF_INFO Info = {};
    mSource->Seek(0, SEEK_SET);
    mFile.reset(sf_open_virtual(&Io, SFM_READ, &Info, mSource.get()));
    return mFile ? Shape{Info.samplerate, Info.channels, Info.frames, Info.seekable != 0} : Shape{};
}

WaveSound::WaveSound(std::unique_ptr<SoundSource> Source) : mSource(std::move(Source)) {
    const Shape Its = Open();
    Check(Its.Channels > 0 && Its.Rate >= kLeastRate && Its.Rate <= MostRate,
          tr("The sound is damaged, or of a kind that this program cannot play."));
    Check(Its.Channels <= MostChannels,
          tr("The sound has %1 channels; this program plays %2 at most.")
              .arg(Its.Channels)
              .arg(MostChannels));
    mRate = Its.Rate;
    mChannels = Its.Channels;
    mCanSeek = Its.CanSeek;
    // The length that the file tells may be wrong (it was cut, or a recording was never closed):
    // then what can be decoded counts.
    mFrames = Its.Frames;
    if (!IsThere(Its.Frames - 1)) mFrames = Open().Channels == mChannels ? Skip(MostCounted) : 0;
    Check(MoveTo(0) || mFrames == 0, tr("The sound is damaged and cannot be played."));
}

WaveSound::~WaveSound() = default;

bool WaveSound::IsThere(qint64 Frame) {
    std::array<float, MostChannels> Samples;
    return Frame >= 0 && Frame < MostFrames && MoveTo(Frame) && Decode(Samples.data(), 1) == 1;
}

qint64 WaveSound::Skip(qint64 MaxFrames) {
    std::vector<float> Samples(static_cast<size_t>(SkippedAtOnce * mChannels));
    qint64 Total = 0;
    while (Total < MaxFrames) {
        const qint64 Count = Decode(Samples.data(), std::min(SkippedAtOnce, MaxFrames - Total));
        if (Count <= 0) break;
        Total += Count;
    }
    return Total;
}

qint64 WaveSound::Decode(float* Into, qint64 MaxFrames) {
    return sf_readf_float(mFile.get(), Into, MaxFrames);
}

// A few old kinds (GSM) can only be read from the start, and some decoders go on after an error
// only then.
bool WaveSound::MoveTo(qint64 Frame) {
    if (mCanSeek && sf_seek(mFile.get(), Frame, SEEK_SET) == Frame) return true;
    return Open().Channels == mChannels && Skip(Frame) == Frame;
}

}  // namespace neb
