#include "effects/WipeEngine.h"

namespace neb::effects {
namespace {

WipePlace PlaceAt(int X, int Y, QSize Size, const WipeForm& Form) {
    const int W = Size.width(), H = Size.height();
    if (Form.FlipX) X = W - 1 - X;
    if (Form.FlipY) Y = H - 1 - Y;
    if (Form.Turned) return {Y, X, H, W, Form.Count};
    return {X, Y, W, H, Form.Count};
}

}  // namespace

RevealMap MakeWipeMap(QSize Size, WipeShape Shape, const WipeForm& Form) {
    return RevealMap(Size, Form.SoftBits, [&](int Y, std::int16_t* Row) {
        for (int X = 0; X < Size.width(); ++X) {
            const int Moment = Shape(PlaceAt(X, Y, Size, Form));
            const int Kept = Form.Backwards ? RevealMap::Levels - 1 - Moment : Moment;
            Row[X] = static_cast<std::int16_t>(Kept);
        }
    });
}

Recipe Wipe(WipeShape Shape, WipeForm Form) {
    return {"Wipe", [=](const Pair& P) { return RevealEngine(MakeWipeMap(P.Size(), Shape, Form)); },
            true};
}

}  // namespace neb::effects
