// Sounds for the tests: WAV files of any format made here, and the samples of a decoder at once.
#pragma once

#include <QtEndian>
#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <numbers>
#include <vector>

#include "harness/TempFolder.h"
#include "sound/workers/SoundReading.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb::tests {

struct WavShape {
    int Rate = 44100;
    int Channels = 2;
    int Bits = 16;
    bool IsFloat = false;
};

// What the made files hold: a tone of its own in each channel, at half of the full level.
inline double ToneAt(const WavShape& Shape, qint64 Frame, int Channel) {
    const double Pitch = 220.0 * (Channel + 1);
    return 0.5 * std::sin(2 * std::numbers::pi * Pitch * double(Frame) / Shape.Rate);
}

template <class Number>
void Append(QByteArray& Bytes, Number Value) {
    const Number Little = qToLittleEndian(Value);
    Bytes.append(reinterpret_cast<const char*>(&Little), sizeof Little);
}

inline void AppendSample(QByteArray& Bytes, const WavShape& Shape, double Value) {
    if (Shape.IsFloat) {
        if (Shape.Bits == 32) return Append(Bytes, static_cast<float>(Value));
        return Append(Bytes, Value);
    }
    const auto Scaled = static_cast<qint32>(std::lround(Value * std::ldexp(1.0, Shape.Bits - 1)));
    if (Shape.Bits == 8) return Append(Bytes, static_cast<quint8>(Scaled + 128));
    QByteArray Whole;
    Append(Whole, Scaled);
    Bytes += Whole.left(Shape.Bits / 8);
}

inline QByteArray ToneBytes(const WavShape& Shape, qint64 Frames) {
    QByteArray Bytes;
    for (qint64 I = 0; I < Frames; ++I)
        for (int C = 0; C < Shape.Channels; ++C) AppendSample(Bytes, Shape, ToneAt(Shape, I, C));
    return Bytes;
}

inline QByteArray Chunk(const char* Name, const QByteArray& Bytes) {
    QByteArray All(Name);
    Append(All, static_cast<quint32>(Bytes.size()));
    return All + Bytes + QByteArray(Bytes.size() % 2, '\0');
}

inline QByteArray FormatChunk(const WavShape& Shape, quint16 Tag) {
    QByteArray Bytes;
    const int Align = std::max(1, Shape.Channels * Shape.Bits / 8);
    Append(Bytes, Tag);
    Append(Bytes, static_cast<quint16>(Shape.Channels));
    Append(Bytes, static_cast<quint32>(Shape.Rate));
    Append(Bytes, static_cast<quint32>(Shape.Rate * Align));
    Append(Bytes, static_cast<quint16>(Align));
    Append(Bytes, static_cast<quint16>(Shape.Bits));
    return Chunk("fmt ", Bytes);
}

inline QByteArray Riff(const QByteArray& Chunks) {
    return Chunk("RIFF", "WAVE" + Chunks);
}

inline QByteArray WavBytes(const WavShape& Shape, qint64 Frames) {
    return Riff(FormatChunk(Shape, Shape.IsFloat ? 3 : 1) +
                Chunk("data", ToneBytes(Shape, Frames)));
}

// The same file with another number in the length of its data chunk.
inline QByteArray WithDataLength(QByteArray Wav, quint32 Length) {
    qToLittleEndian(Length, Wav.data() + Wav.indexOf("data") + 4);
    return Wav;
}

inline QString SoundFile(const char* Name) {
    return harness::DataFile("sound/") + QString::fromLatin1(Name);
}

inline std::vector<float> ReadFrames(SoundDecoder& Sound, qint64 Most) {
    std::vector<float> Samples(static_cast<size_t>(Most * Sound.Channels()));
    Samples.resize(static_cast<size_t>(Sound.Read(Samples.data(), Most) * Sound.Channels()));
    return Samples;
}

// From the start to the end, in blocks of an odd length; says how many frames there were.
inline std::vector<float> ReadThrough(SoundDecoder& Sound, qint64* Frames = nullptr) {
    std::vector<float> All;
    Sound.Seek(0);
    while (true) {
        const auto Block = ReadFrames(Sound, 4999);
        if (Block.empty()) break;
        All.insert(All.end(), Block.begin(), Block.end());
    }
    if (Frames) *Frames = static_cast<qint64>(All.size()) / Sound.Channels();
    return All;
}

inline qint64 CountThrough(SoundDecoder& Sound) {
    qint64 Frames = 0;
    ReadThrough(Sound, &Frames);
    return Frames;
}

// The largest difference of two rows of samples; infinite when one is longer.
inline double Difference(const std::vector<float>& One, const std::vector<float>& Other) {
    if (One.size() != Other.size()) return std::numeric_limits<double>::infinity();
    double Worst = 0;
    for (size_t I = 0; I < One.size(); ++I)
        Worst = std::max<double>(Worst, std::fabs(One[I] - Other[I]));
    return Worst;
}

// The largest difference between a straight read and what comes after jumps to many places.
inline double WorstAfterJumps(SoundDecoder& Sound, qint64 Step = 997, qint64 Length = 600) {
    const auto All = ReadThrough(Sound);
    double Worst = 0;
    for (qint64 At = Sound.Frames() - 1; At >= 0; At -= Step) {
        const qint64 End = std::min(At + Length, Sound.Frames());
        Sound.Seek(At);
        Worst = std::max(
            Worst, Difference(ReadFrames(Sound, End - At), {All.begin() + At * Sound.Channels(),
                                                            All.begin() + End * Sound.Channels()}));
    }
    return Worst;
}

inline double Loudest(const std::vector<float>& Samples) {
    double Peak = 0;
    for (float Each : Samples) Peak = std::max<double>(Peak, std::fabs(Each));
    return Peak;
}

// The sentence of the fault, empty when the sound opens.
inline QString RefusalOf(const QString& Path) {
    try {
        OpenSound(Path);
        return {};
    } catch (const Fault& Reason) {
        return Reason.File() == Path ? Reason.What() : QStringLiteral("a fault without its path");
    }
}

inline std::unique_ptr<SoundDecoder> OpenBytes(const harness::TempFolder& Folder,
                                               const QByteArray& Bytes) {
    const QString Path = Folder / QStringLiteral("sound.bin");
    DeleteFile(Path);  // some disks make a file that is written over wait for the platter
    WriteFile(Path, Bytes);
    return OpenSound(Path);
}

}  // namespace neb::tests
