#include "effects/FadeEngine.h"

#include <vector>

#include "effects/LightMix.h"

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

// Out turns into a brown print of itself, Weight of 256 of the way.
NEB_WIDE void ToneSpan(QRgb* Out, int Weight, int Count) {
    const auto W = static_cast<std::uint32_t>(Weight), Kept = 256 - W;
    NEB_INDEPENDENT
    for (int I = 0; I < Count; ++I) {
        const std::uint32_t R = (Out[I] >> 16) & 255u, G = (Out[I] >> 8) & 255u, B = Out[I] & 255u;
        const std::uint32_t Light = R * 77 + G * 150 + B * 29;  // of 256 * 255
        const std::uint32_t Red = (Light * 236 + 20 * 65280) >> 16;
        const std::uint32_t Green = (Light * 218 + 12 * 65280) >> 16;
        const std::uint32_t Blue = (Light * 180 + 6 * 65280) >> 16;
        Out[I] = kBlack | (((R * Kept + Red * W + 128) >> 8) << 16) |
                 (((G * Kept + Green * W + 128) >> 8) << 8) | ((B * Kept + Blue * W + 128) >> 8);
    }
}

class OldPrintEngine : public Engine {
  public:
    void Draw(const Frame& F, int Y0, int Y1) const override {
        const int Tone = Ease(Clamp(5 * Side(F.Progress) / 2, 0, One)) >> 8;
        const int Weight = Ease(Clamp((F.Progress - 3 * One / 10) * 5 / 2, 0, One)) >> 8;
        for (int Y = Y0; Y < Y1; ++Y) {
            MixSpan(F.Row(Y), F.Old.Row(Y), F.New.Row(Y), Weight, F.Width);
            if (Tone) ToneSpan(F.Row(Y), Tone, F.Width);
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

Recipe FadeThrough(QRgb Colour) {
    return {"Fade", [=](const Pair&) { return std::make_unique<FadeThroughEngine>(Colour); }};
}

Recipe FadeThroughOldPrint() {
    return {"Fade", [](const Pair&) { return std::make_unique<OldPrintEngine>(); }};
}

}  // namespace neb::effects
