#include "effects/solids/RollEngine.h"

#include <algorithm>
#include <array>

#include "effects/drawing/HalfSizes.h"
#include "effects/solids/PageShading.h"

namespace neb::effects {
namespace {

constexpr int kSteps = 1024;
constexpr int kPi = 205887;  // of One

// For a height on the roll, -One..One of its radius from its upper to its lower side: the angle
// from its top, in radians of One.
constexpr auto kAngleShift = 16 - 10;
const std::array<int, kSteps + 1>& Arcs() {
    static const auto Table = [] {
        std::array<int, kSteps + 1> Out{};
        int Angle = 0;
        for (int I = 0; I <= kSteps; ++I) {
            while (Angle < One / 4 && Sine(Angle) < I * (One / kSteps)) ++Angle;
            Out[static_cast<std::size_t>(I)] = Scale(2 * kPi, Angle);
        }
        return Out;
    }();
    return Table;
}

int AngleAt(int Height) {
    const int Size = std::min(std::abs(Height), One);
    const auto I = static_cast<std::size_t>(Size >> kAngleShift);
    const int Rest = Size & ((1 << kAngleShift) - 1);
    const auto& T = Arcs();
    const int Angle = I >= kSteps ? T[kSteps] : T[I] + (((T[I + 1] - T[I]) * Rest) >> kAngleShift);
    return Height < 0 ? -Angle : Angle;
}

// Light falls from above the viewer's head: brightest a little over the middle.
int LightOn(int Height) {
    const int Size = std::min(std::abs(Height), One);
    const int Depth = Root((std::int64_t{One} - Size) * (std::int64_t{One} + Size));
    const int Facing =
        std::clamp(Scale(Depth, One * 94 / 100) - Scale(Height, One * 34 / 100), 0, One);
    return 70 + Scale(186, Facing);
}

// The picture that is rolled, how far down it lies flat, and the roll there; of One.
struct Roll {
    const HalfSizes& Sheet;
    const Picture& Table;
    std::int64_t Axis, Radius;
};

class RollEngine : public Engine {
  public:
    RollEngine(const Pair& P, bool Unrolls)
        : mUnrolls(Unrolls), mSheet(Unrolls ? P.New : P.Old, HalfSizes::Way::Down, 3) {}

    void Draw(const Frame& F, int Y0, int Y1) const override {
        const int Part = Ease(F.Progress);
        const Roll R = RollAt(F, mUnrolls ? One - Part : Part);
        for (int Y = Y0; Y < Y1; ++Y) DrawRow(F, R, Y);
    }

  private:
    // The further it has been rolled the thicker it is; when little has been, it is so thin that
    // its end lies inside.
    Roll RollAt(const Frame& F, int Part) const {
        const std::int64_t Length = std::int64_t{F.Height} << 16, Thickest = Length / 11;
        const std::int64_t Axis = Length - (((Length + 3 * Thickest) * Part) >> 16);
        const std::int64_t Rolled = Length - std::max<std::int64_t>(0, Axis);
        const int Share = Root((Rolled << 32) / Length);
        const std::int64_t Radius = std::min((Thickest * Share) >> 16, Rolled / 5);
        return {mSheet, mUnrolls ? F.Old : F.New, Axis, std::max<std::int64_t>(1, Radius)};
    }

    void DrawRow(const Frame& F, const Roll& R, int Y) const {
        QRgb* Out = F.Row(Y);
        const std::int64_t Off = (std::int64_t{Y} << 16) + One / 2 - R.Axis;
        const std::int64_t Past = std::abs(Off) - R.Radius;
        if (Past > -One / 2) {
            const Picture& Below = Off < 0 ? R.Sheet.At(0) : R.Table;
            CopySpan(Out, Below.Row(Y), F.Width);
            DarkenSpan(Out, ShadowAt(R, Off, Past), F.Width);
        }
        if (Past >= One / 2) return;
        QRgb* Row = Scratch<QRgb, RollEngine>(F.Width);
        ReadRoll(Row, R, Off);
        const int Seen = Clamp(static_cast<int>((One / 2 - Past) >> 8), 0, 256);
        if (Seen == 256)
            CopySpan(Out, Row, F.Width);
        else
            MixSpan(Out, Out, Row, Seen, F.Width);
    }

    // Deeper below the roll than above it.
    static int ShadowAt(const Roll& R, std::int64_t Off, std::int64_t Past) {
        const std::int64_t Reach = Off < 0 ? R.Radius : 2 * R.Radius;
        if (Past >= Reach) return 0;
        const int Left = 256 - static_cast<int>(std::max<std::int64_t>(0, Past) * 256 / Reach);
        return (Left * Left >> 8) * (Off < 0 ? 90 : 150) >> 8;
    }

    // The place in the picture that is on top at a distance from the roll's middle.
    static std::int64_t PlaceOn(const Roll& R, std::int64_t Off) {
        const int Height =
            static_cast<int>(std::clamp<std::int64_t>(Off * One / R.Radius, -One, One));
        return std::max<std::int64_t>(0, R.Axis) + ((R.Radius * (kPi - AngleAt(Height))) >> 16) -
               One / 2;
    }

    void ReadRoll(QRgb* Row, const Roll& R, std::int64_t Off) const {
        const std::int64_t Shrink = PlaceOn(R, Off - One / 2) - PlaceOn(R, Off + One / 2);
        const int Level = R.Sheet.LevelFor(static_cast<int>(Shrink));
        const Picture& P = R.Sheet.At(Level);
        const int V = Clamp(R.Sheet.DownAt(static_cast<int>(PlaceOn(R, Off)), Level), 0,
                            (P.Height - 1) << 16);
        const int Y = V >> 16, Low = (V >> 8) & 255;
        if (Low)
            MixSpan(Row, P.Row(Y), P.Row(Y + 1), Low, P.Width);
        else
            CopySpan(Row, P.Row(Y), P.Width);
        const int Height =
            static_cast<int>(std::clamp<std::int64_t>(Off * One / R.Radius, -One, One));
        MixSpanWithColour(Row, Row, kPaper, mUnrolls ? 70 : 256 - kThrough, P.Width);
        DarkenSpan(Row, 256 - LightOn(Height), P.Width);
    }

    bool mUnrolls;
    HalfSizes mSheet;
};

Recipe Make(bool Unrolls) {
    return {"Roll", [=](const Pair& P) { return std::make_unique<RollEngine>(P, Unrolls); }};
}

}  // namespace

Recipe RollUp() {
    return Make(false);
}
Recipe UnrollDown() {
    return Make(true);
}

}  // namespace neb::effects
