#include "sound/WaveFile.h"

namespace neb {
namespace {

constexpr std::uint32_t FormatLength = 16;
constexpr std::uint32_t HeaderLength = 44;
constexpr std::uint32_t RiffStart = 8;  // what the RIFF size does not count

template <class Number>
void Append(QByteArray& Bytes, Number Value) {
    for (unsigned Shift = 0; Shift < 8 * sizeof(Number); Shift += 8)
        Bytes.append(static_cast<char>(static_cast<std::uint64_t>(Value) >> Shift & 0xFF));
}

void AppendFormat(QByteArray& Bytes, const WaveFormat& Format) {
    Append(Bytes, Format.FormatTag);
    Append(Bytes, Format.Channels);
    Append(Bytes, Format.SamplesPerSec);
    Append(Bytes, Format.AvgBytesPerSec);
    Append(Bytes, Format.BlockAlign);
    Append(Bytes, Format.BitsPerSample);
}

}  // namespace

QByteArray WaveFileBytes(const WaveFormat& Format, const QByteArray& Samples) {
    const auto Length = static_cast<std::uint32_t>(Samples.size());
    const std::uint32_t Padding = Length % 2;
    QByteArray Bytes;
    Bytes.reserve(HeaderLength + Length + Padding);
    Bytes.append("RIFF");
    Append(Bytes, HeaderLength - RiffStart + Length + Padding);
    Bytes.append("WAVEfmt ");
    Append(Bytes, FormatLength);
    AppendFormat(Bytes, Format);
    Bytes.append("data");
    Append(Bytes, Length);
    Bytes.append(Samples);
    return Bytes.append(static_cast<qsizetype>(Padding), '\0');
}

}  // namespace neb
