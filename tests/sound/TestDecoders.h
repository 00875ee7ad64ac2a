// Sounds that a test can reckon with: every sample is known, and a decoder tells what was asked of
// it.
#pragma once

#include <chrono>
#include <cmath>
#include <functional>
#include <memory>
#include <numbers>
#include <thread>
#include <vector>

#include "sound/decoding/SoundDecoder.h"

namespace neb::sounds {

using Wave = std::function<float(qint64 Frame, int Channel)>;

struct TestSound {
    Wave Samples;
    qint64 Length = 44100;
    int Hertz = 44100;
    int Count = 2;              // channels
    qint64 BreaksOffAt = -1;    // damaged from there on
    int DelayMilliseconds = 0;  // of each reading
    bool* Gone = nullptr;       // set when the decoder goes
};

class TestDecoder : public SoundDecoder {
  public:
    explicit TestDecoder(TestSound Sound) : mSound(std::move(Sound)) {}
    ~TestDecoder() override {
        if (mSound.Gone) *mSound.Gone = true;
    }
    int Rate() const override { return mSound.Hertz; }
    int Channels() const override { return mSound.Count; }
    qint64 Frames() const override { return mSound.Length; }
    qint64 Read(float* Into, qint64 MaxFrames) override {
        if (mSound.DelayMilliseconds > 0)
            std::this_thread::sleep_for(std::chrono::milliseconds(mSound.DelayMilliseconds));
        const qint64 End = mSound.BreaksOffAt >= 0 ? mSound.BreaksOffAt : mSound.Length;
        const qint64 Part = std::max<qint64>(0, std::min(MaxFrames, End - mNext));
        for (qint64 I = 0; I < Part; ++I)
            for (int C = 0; C < mSound.Count; ++C) *Into++ = mSound.Samples(mNext + I, C);
        mNext += Part;
        return Part;
    }
    void Seek(qint64 Frame) override { mNext = Frame; }

  private:
    TestSound mSound;
    qint64 mNext = 0;
};

inline std::unique_ptr<SoundDecoder> Decoder(TestSound Sound) {
    return std::make_unique<TestDecoder>(std::move(Sound));
}

// A tone, at the very top of its swing at the start with Phase a quarter.
inline Wave Tone(double Hertz, double Level = 0.5, double Rate = 44100, double Phase = 0) {
    return [=](qint64 Frame, int) {
        const double Turns = Hertz * static_cast<double>(Frame) / Rate + Phase;
        return static_cast<float>(Level * std::sin(2 * std::numbers::pi * Turns));
    };
}

// Every frame different, exact in float: the left channel counts up, the right one down.
inline Wave Count() {
    return [](qint64 Frame, int Channel) {
        const auto Step = static_cast<float>(Frame + 1) / 1048576;
        return Channel == 0 ? Step : -Step;
    };
}

inline Wave Constant(float Level) {
    return [=](qint64, int) { return Level; };
}

using Samples = std::vector<float>;

inline float Left(const Samples& Of, size_t Frame) {
    return Of[2 * Frame];
}

// The largest step from one frame to the next on either side.
inline double LargestStep(const Samples& Of) {
    double Most = 0;
    for (size_t I = 2; I < Of.size(); ++I)
        Most = std::max(Most, static_cast<double>(std::abs(Of[I] - Of[I - 2])));
    return Most;
}

inline double Peak(const Samples& Of) {
    double Most = 0;
    for (const float Sample : Of) Most = std::max(Most, static_cast<double>(std::abs(Sample)));
    return Most;
}

// How much of a tone is in the left channel, as its level.
inline double ToneLevel(const Samples& Of, double Hertz, double Rate = 44100) {
    double Cos = 0, Sin = 0;
    const size_t Frames = Of.size() / 2;
    for (size_t I = 0; I < Frames; ++I) {
        const double Angle = 2 * std::numbers::pi * Hertz * static_cast<double>(I) / Rate;
        Cos += static_cast<double>(Of[2 * I]) * std::cos(Angle);
        Sin += static_cast<double>(Of[2 * I]) * std::sin(Angle);
    }
    return 2 * std::hypot(Cos, Sin) / static_cast<double>(Frames);
}

}  // namespace neb::sounds
