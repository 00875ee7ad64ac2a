// Sounds made by rule, as samples and as WAV files, for tests that listen to what comes out.
#pragma once

#include <QByteArray>
#include <QtEndian>
#include <cmath>
#include <numbers>
#include <vector>

namespace neb::harness {

constexpr double ToneLevel = 0.8;

// Mono samples, -1 to 1.
inline std::vector<float> Tone(double Seconds, int Rate, double Hertz = 1000) {
    std::vector<float> Samples(static_cast<size_t>(Seconds * Rate));
    for (size_t I = 0; I < Samples.size(); ++I)
        Samples[I] = static_cast<float>(
            ToneLevel * std::sin(2 * std::numbers::pi * Hertz * static_cast<double>(I) / Rate));
    return Samples;
}

// Rises so evenly that each sample tells its own time, up to some 30 seconds.
constexpr double RampStart = 0.1, RampRise = 0.025;  // a second
inline std::vector<float> Ramp(double Seconds, int Rate) {
    std::vector<float> Samples(static_cast<size_t>(Seconds * Rate));
    for (size_t I = 0; I < Samples.size(); ++I)
        Samples[I] = static_cast<float>(RampStart + RampRise * static_cast<double>(I) / Rate);
    return Samples;
}
inline double RampTime(float Sample) {
    return (static_cast<double>(Sample) - RampStart) / RampRise;
}

// A mono WAV file of 32-bit floating point samples.
inline QByteArray WaveBytes(const std::vector<float>& Samples, int Rate) {
    const auto Number = [](quint32 Value) {
        const quint32 Little = qToLittleEndian(Value);
        return QByteArray(reinterpret_cast<const char*>(&Little), 4);
    };
    const QByteArray Data(reinterpret_cast<const char*>(Samples.data()),
                          static_cast<qsizetype>(Samples.size() * sizeof(float)));
    const auto Size = static_cast<quint32>(Data.size()), Speed = static_cast<quint32>(Rate);
    return "RIFF" + Number(36 + Size) + "WAVEfmt " + Number(16) + QByteArray("\x03\0\x01\0", 4) +
           Number(Speed) + Number(Speed * 4) + QByteArray("\x04\0\x20\0", 4) + "data" +
           Number(Size) + Data;
}

}  // namespace neb::harness
