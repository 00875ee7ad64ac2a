#include "effects/FadeEngine.h"

#include "effects/Pixels.h"

namespace neb::effects {
namespace {

class CrossFadeEngine : public Engine {
  public:
    void Draw(const Frame& F, int Y0, int Y1) const override {
        const int Weight = (F.Progress + 128) >> 8;
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

}  // namespace

Recipe CrossFade() {
    return {"Fade", [](const Pair&) { return std::make_unique<CrossFadeEngine>(); }, true};
}

Recipe FadeThrough(QRgb Colour) {
    return {"Fade", [=](const Pair&) { return std::make_unique<FadeThroughEngine>(Colour); }};
}

}  // namespace neb::effects
