#include "effects/warps/LensEngine.h"

#include <algorithm>

#include "effects/warps/PolarEngine.h"

namespace neb::effects {
namespace {

class LensEngine : public PolarEngine {
  public:
    // As high as the picture.
    explicit LensEngine(QSize Size)
        : PolarEngine(Size, Bend::Alike), mRadius(Size.height() / 2 + 2) {}

  protected:
    Ring RingAt(int Distance, int, bool) const override {
        const int Place = static_cast<int>(std::int64_t{Distance} * One / mRadius);
        if (Place >= One) return {Distance << 16, 0, 0, ShadowAt(Place)};
        // Half as large again in the middle, squeezed next to the rim.
        const int Square = Scale(Place, Place), Rise = Scale(Square, Square);
        const int Ratio = One * 5 / 8 + Rise * 3 / 8;
        return {Distance * Ratio, 0, 0, -Scale(Rise, Rise) * 2 / 5};
    }

    Point CentreAt(int Progress) const override {
        const int Margin = mRadius * 9 / 8, W = mSize.width();
        const int P = (Progress + Ease(Progress)) / 2;
        const int Sway = Scale(mSize.height() / 8, Sine(Progress));
        return {2 * (Scale(W + 2 * Margin, P) - Margin), mSize.height() + Sway};
    }

    void FillLine(const Frame& F, int Y, int Bits, WarpNode* Nodes, int Count) const override {
        PolarEngine::FillLine(F, Y, Bits, Nodes, Count);
        const Point Centre = CentreAt(F.Progress);
        const std::int64_t Dy = 2 * Y + 1 - Centre.Y;
        for (int N = 0; N < Count; ++N) {
            const std::int64_t Dx = 2 * (N << Bits) + 1 - Centre.X;
            const int Far = Root(64 * (Dx * Dx + Dy * Dy));  // sixteenths of a pixel
            const auto Inside = static_cast<int>(std::int64_t{mRadius} * 16 - Far);
            const auto Behind = static_cast<int>(-8 * Dx);
            Nodes[N].At[NewWeight] = One / 2 + std::max(Inside, Behind) * (One / 16);
            if (Inside > 0) Nodes[N].At[Light] += GleamAt(Dx, Dy);
        }
    }

  private:
    // A soft shadow about the rim.
    static int ShadowAt(int Place) {
        const int Near = Clamp(One - (Place - One) * 8, 0, One);
        return -Scale(Near, Near) * 2 / 5;
    }

    // The light of a window, up and to the left on the glass.
    int GleamAt(std::int64_t Dx, std::int64_t Dy) const {
        const std::int64_t X = Dx * One / (2 * mRadius) + One * 7 / 16;
        const std::int64_t Y = Dy * One / (2 * mRadius) + One * 7 / 16;
        const auto Off = static_cast<int>(std::min<std::int64_t>(One, ((X * X + Y * Y) * 6) >> 16));
        return Ease(One - Off) / 4;
    }

    int mRadius;
};

}  // namespace

Recipe LensPass() {
    return {"Lens", [](const Pair& P) { return std::make_unique<LensEngine>(P.Size()); }};
}

}  // namespace neb::effects
