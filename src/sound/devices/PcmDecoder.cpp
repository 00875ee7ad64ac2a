#include "sound/devices/PcmDecoder.h"

#include <QtEndian>
#include <algorithm>

#include "sound/decoding/SoundFormat.h"
#include "support/Fault.h"
#include "support/Texts.h"

namespace neb {
namespace {

constexpr std::uint32_t MostRate = 384000;

bool IsPlayable(const WaveFormat& Format) {
    return Format.FormatTag == 1 && Format.Channels >= 1 && Format.Channels <= 8 &&
           Format.SamplesPerSec >= kLeastRate && Format.SamplesPerSec <= MostRate &&
           (Format.BitsPerSample == 8 || Format.BitsPerSample == 16);
}

float FromByte(const char* At) {
    return static_cast<float>(static_cast<std::uint8_t>(*At) - 128) / 128;
}

float FromTwoBytes(const char* At) {
    return static_cast<float>(qFromLittleEndian<std::int16_t>(At)) / 32768;
}

}  // namespace

PcmDecoder::PcmDecoder(const WaveFormat& Format, QByteArray Bytes)
    : mBytes(std::move(Bytes)),
      mRate(static_cast<int>(Format.SamplesPerSec)),
      mChannels(Format.Channels),
      mSampleBytes(Format.BitsPerSample / 8) {
    if (!IsPlayable(Format)) throw Fault(tr("The recording is of a kind that cannot be played."));
}

qint64 PcmDecoder::Frames() const {
    return mBytes.size() / (mChannels * mSampleBytes);
}

qint64 PcmDecoder::Read(float* Into, qint64 MaxFrames) {
    const qint64 Count = std::min(MaxFrames, Frames() - mNext);
    const char* At = mBytes.constData() + mNext * mChannels * mSampleBytes;
    const auto Convert = mSampleBytes == 1 ? &FromByte : &FromTwoBytes;
    for (qint64 I = 0; I < Count * mChannels; ++I, At += mSampleBytes) *Into++ = Convert(At);
    mNext += Count;
    return Count;
}

}  // namespace neb
