#include "effects/whole/FadeEngine.h"

#include <vector>

#include "effects/drawing/LightMix.h"

namespace neb::effects {
namespace {

// As two projectors fade over, the new picture's lamp reaching the middle a little before the
// corners.
class CrossFadeEngine : public Engine {
  public:
    explicit CrossFadeEngine(QSize Size)
        : mAcross(MakeDelays(Size.width())), mDown(MakeDelays(Size.height())) {}

    void Draw(const Frame& F, int Y0, int Y1) const override {
        const int Edge = Scale(2 * kLate + (1 << kSoftBits), F.Progress);
        for (int Y = Y0; Y < Y1; ++Y)
            MixLightByMoments(F.Row(Y), F.Old.Row(Y), F.New.Row(Y), mAcross.data(),
                              Edge - mDown[static_cast<std::size_t>(Y)], kSoftBits, Y, F.Width);
    }

  private:
    static constexpr int kSoftBits = 14;
    static constexpr int kLate = 1200;  // how much later a side begins than the middle

    static std::vector<std::int16_t> MakeDelays(int Length) {
        std::vector<std::int16_t> Out;
        for (int I = 0; I < Length; ++I) {
            const std::int64_t Off = 2 * std::int64_t{I} + 1 - Length;
            const std::int64_t All = std::int64_t{Length} * Length;
            Out.push_back(static_cast<std::int16_t>(kLate * Off * Off / All));
        }
        return Out;
    }

    std::vector<std::int16_t> mAcross, mDown;
};

class SimpleFadeEngine : public Engine {
  public:
    void Draw(const Frame& F, int Y0, int Y1) const override {
        const int Weight = (Ease(F.Progress) + 128) >> 8;
        for (int Y = Y0; Y < Y1; ++Y)
            MixSpan(F.Row(Y), F.Old.Row(Y), F.New.Row(Y), Weight, F.Width);
    }
};

class FadeThroughEngine : public Engine {
  public:
    explicit FadeThroughEngine(QRgb Colour) : mColour(Colour) {}
    void Draw(const Frame& F, int Y0, int Y1) const override {
        const bool Leaving = F.Progress < One / 2;
        const Picture& From = Leaving ? F.Old : F.New;
        const int Weight = (Hump(F.Progress) + 128) >> 8;
        for (int Y = Y0; Y < Y1; ++Y)
            MixSpanWithColour(F.Row(Y), From.Row(Y), mColour, Weight, F.Width);
    }

  private:
    QRgb mColour;
};

// Turns pixels into those of a brown print of them, Weight of 256 of the way. Out may be From.
NEB_WIDE void ToneSpan(QRgb* Out, const QRgb* From, int Weight, int Count) {
    const auto W = static_cast<std::uint32_t>(Weight), Kept = 256 - W;
    NEB_INDEPENDENT
    for (int I = 0; I < Count; ++I) {
        const std::uint32_t C = From[I], R = (C >> 16) & 255u, G = (C >> 8) & 255u, B = C & 255u;
        const std::uint32_t Light = ((5 * R + 9 * G + 2 * B) * W) >> 4;  // of 255 * 256
        const std::uint32_t Pair = (C & 0x00FF00FFu) * Kept;             // red and blue at once
        const std::uint32_t Red = (Pair >> 16) + ((Light * 236) >> 8) + 20 * W + 128;
        const std::uint32_t Green = G * Kept + ((Light * 220) >> 8) + 12 * W + 128;
        const std::uint32_t Blue = (Pair & 0xFFFFu) + ((Light * 184) >> 8) + 6 * W + 128;
        Out[I] = kBlack | ((Red >> 8) << 16) | ((Green >> 8) << 8) | (Blue >> 8);
    }
}

class OldPrintEngine : public Engine {
  public:
    void Draw(const Frame& F, int Y0, int Y1) const override {
        const int Tone = Ease(Clamp(5 * Side(F.Progress) / 2, 0, One)) >> 8;
        const int Weight = Ease(Clamp((F.Progress - 3 * One / 10) * 5 / 2, 0, One)) >> 8;
        for (int Y = Y0; Y < Y1; ++Y) {
            const QRgb* From = Weight == 0 ? F.Old.Row(Y) : F.New.Row(Y);
            if (Weight > 0 && Weight < 256) {
                MixSpan(F.Row(Y), F.Old.Row(Y), F.New.Row(Y), Weight, F.Width);
                From = F.Row(Y);
            }
            ToneSpan(F.Row(Y), From, Tone, F.Width);
        }
    }

  private:
    static int Side(int Progress) { return Progress < One / 2 ? Progress : One - Progress; }
};

}  // namespace

Recipe CrossFade() {
    return {"Fade", [](const Pair& P) { return std::make_unique<CrossFadeEngine>(P.Size()); },
            true};
}

Recipe SimpleFade() {
    return {"Fade", [](const Pair&) { return std::make_unique<SimpleFadeEngine>(); }, true};
}

Recipe FadeThrough(QRgb Colour) {
    return {"Fade", [=](const Pair&) { return std::make_unique<FadeThroughEngine>(Colour); }};
}

Recipe FadeThroughOldPrint() {
    return {"Fade", [](const Pair&) { return std::make_unique<OldPrintEngine>(); }};
}

}  // namespace neb::effects
