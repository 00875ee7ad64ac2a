#include "Ranges.h"

#include "Noise.h"
#include "Props.h"

namespace neb::demo {
namespace {

// Spurs run down from the ridge, so the light changes along lines that spread to the foot.
float SlopeLight(const Range& Hills, float X, float Down, float LightX) {
    const float Scale = Hills.Often * 2.6F;
    const float Bend = 0.25F * Fbm(X * Scale, Down * Scale * 1.2F, 2, Hills.Seed + 9);
    const float Side = 0.03F * std::clamp((LightX - X) * 6, -1.0F, 1.0F);
    const float Px = X * Scale + Bend, Py = Down * Scale * 0.8F + 3;
    return Ridged(Px + Side, Py, 4, Hills.Seed + 5) - Ridged(Px - Side, Py, 4, Hills.Seed + 5);
}

}  // namespace

float RidgeAt(const Range& Hills, float X) {
    return Hills.Base - Hills.High * Outline(X * Hills.Often + 3.7F, Hills.Rough, Hills.Seed);
}

void PaintRange(Picture& Target, const Range& Hills, float LightX) {
    std::vector<float> Ridge(static_cast<size_t>(Target.Width()));
    for (size_t I = 0; I < Ridge.size(); ++I)
        Ridge[I] = RidgeAt(Hills, (static_cast<float>(I) + 0.5F) * Target.Unit());
    const float Top = *std::min_element(Ridge.begin(), Ridge.end());
    Target.ShadeRows(Top - Target.Unit(), 1, [&](float X, float Y, Rgb Behind) {
        const float Down = Y - Ridge[static_cast<size_t>(X / Target.Unit())];
        const float Cover = Clamp01(Down / Target.Unit() + 0.5F);
        if (Cover <= 0) return Behind;
        if (Down > Hills.Depth + 0.06F) return Hills.Mist;
        const float Veil = Smooth(0, Hills.Depth, Down + 0.05F * Fbm(X * 2.2F, Y * 7, 3, 300));
        Rgb C = Hills.Colour;
        if (Hills.Relief > 0 && Veil < 0.95F)
            C = C * (1 + Hills.Relief *
                             std::clamp(3.2F * SlopeLight(Hills, X, Down, LightX), -0.8F, 0.9F));
        C = Mix(C, Hills.Mist, Veil);
        return Mix(Behind, C, Cover);
    });
}

}  // namespace neb::demo
