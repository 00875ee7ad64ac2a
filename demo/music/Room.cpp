#include "Room.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "sound/WaveFile.h"

namespace neb::demo {
namespace {

constexpr double EchoShare = 0.16;
constexpr double EchoFeedback = 0.34;
constexpr double SilenceAtEnd = 0.25;         // seconds
constexpr double Peak = 0.70794578438413791;  // 3 dB below full

class DelayLine {
  public:
    explicit DelayLine(double Frames) : mRing(static_cast<size_t>(Frames)) {}
    double Out() const { return mRing[mAt]; }
    void In(double Sample) {
        mRing[mAt] = Sample;
        mAt = (mAt + 1) % mRing.size();
    }

  private:
    std::vector<double> mRing;
    size_t mAt = 0;
};

void AddEcho(Stereo& Sound, double Beat) {
    DelayLine ToLeft(Beat * Sound.Rate);
    DelayLine ToRight(Beat * Sound.Rate);
    for (size_t I = 0; I < Sound.Left.size(); ++I) {
        const double Dry = (Sound.Left[I] + Sound.Right[I]) / 2;
        const double FromLeft = ToLeft.Out();
        const double FromRight = ToRight.Out();
        Sound.Left[I] += FromLeft * EchoShare;
        Sound.Right[I] += FromRight * EchoShare;
        ToLeft.In(Dry + FromRight * EchoFeedback);
        ToRight.In(FromLeft * EchoFeedback * 2);
    }
}

// Four walls, each sending what reaches it on to all of them, a little duller each time.
class Hall {
  public:
    explicit Hall(int Rate)
        : mWalls{DelayLine(0.0353 * Rate), DelayLine(0.0438 * Rate), DelayLine(0.0538 * Rate),
                 DelayLine(0.0636 * Rate)} {}

    struct Sides {
        double Left, Right;
    };
    Sides Next(double Left, double Right) {
        std::array<double, 4> From{};
        for (size_t I = 0; I < 4; ++I) {
            mDull[I] += (mWalls[I].Out() - mDull[I]) * 0.62;
            From[I] = mDull[I] * 0.86;
        }
        const double Half = (From[0] + From[1] + From[2] + From[3]) / 2;
        for (size_t I = 0; I < 4; ++I) mWalls[I].In((I % 2 ? Right : Left) + Half - From[I]);
        return {From[0] + From[2], From[1] + From[3]};
    }

  private:
    std::array<DelayLine, 4> mWalls;
    std::array<double, 4> mDull{};
};

void AddHall(Stereo& Sound, double Share) {
    Hall Around(Sound.Rate);
    for (size_t I = 0; I < Sound.Left.size(); ++I) {
        const Hall::Sides Wet = Around.Next(Sound.Left[I], Sound.Right[I]);
        Sound.Left[I] += Wet.Left * Share;
        Sound.Right[I] += Wet.Right * Share;
    }
}

double Loudest(const std::vector<double>& Side) {
    double Most = 0;
    for (const double Sample : Side) Most = std::max(Most, std::fabs(Sample));
    return Most;
}

// Squared, so that it nears silence without a corner.
void FadeSide(std::vector<double>& Side, int Rate, double FadeOut) {
    for (size_t I = 0; I < Side.size(); ++I) {
        const double Left = static_cast<double>(Side.size() - I) / Rate - SilenceAtEnd;
        const double Share = std::clamp(Left / FadeOut, 0.0, 1.0);
        Side[I] *= Share * Share;
    }
}

void Put(QByteArray& Samples, double Value) {
    const auto Whole = static_cast<int>(std::floor(std::clamp(Value, -1.0, 1.0) * 32767 + 0.5));
    Samples.append(static_cast<char>(Whole & 0xff));
    Samples.append(static_cast<char>(Whole >> 8));
}

WaveFormat FormatOf(int Rate, int Channels) {
    WaveFormat Format;
    Format.BitsPerSample = 16;
    Format.Channels = static_cast<std::uint16_t>(Channels);
    Format.BlockAlign = static_cast<std::uint16_t>(Channels * 2);
    Format.SamplesPerSec = static_cast<std::uint32_t>(Rate);
    Format.AvgBytesPerSec = Format.SamplesPerSec * Format.BlockAlign;
    return Format;
}

}  // namespace

void FoldToMono(Stereo& Sound) {
    for (size_t I = 0; I < Sound.Left.size(); ++I)
        Sound.Left[I] = Sound.Right[I] = (Sound.Left[I] + Sound.Right[I]) / 2;
}

void AddRoom(Stereo& Sound, double Beat, double Share) {
    AddEcho(Sound, Beat);
    AddHall(Sound, Share);
}

void Master(Stereo& Sound, double FadeOut) {
    // The fade may take the loudest moment down, so it comes first.
    FadeSide(Sound.Left, Sound.Rate, FadeOut);
    FadeSide(Sound.Right, Sound.Rate, FadeOut);
    const double Gain = Peak / std::max({Loudest(Sound.Left), Loudest(Sound.Right), 1e-9});
    for (double& Sample : Sound.Left) Sample *= Gain;
    for (double& Sample : Sound.Right) Sample *= Gain;
}

QByteArray AsWave(const Stereo& Sound, bool Mono) {
    QByteArray Samples;
    Samples.reserve(static_cast<qsizetype>(Sound.Left.size()) * 4);
    for (size_t I = 0; I < Sound.Left.size(); ++I) {
        Put(Samples, Sound.Left[I]);
        if (!Mono) Put(Samples, Sound.Right[I]);
    }
    return WaveFileBytes(FormatOf(Sound.Rate, Mono ? 1 : 2), Samples);
}

}  // namespace neb::demo
