#include "effects/PageEngine.h"

#include <algorithm>
#include <array>

#include "effects/Sampling.h"

namespace neb::effects {
namespace {

// Distances are of One and grow against the way the sheet is drawn, from the middle.
struct Sheet {
    std::int64_t Reach;      // the sheet's end, and minus its other end
    std::int64_t Radius;     // of the curl
    std::int64_t Axis;       // where the sheet leaves the table
    std::int64_t HalfTurn;   // the sheet's length round the curl
    std::int64_t FlapEnd;    // how far the sheet, turned over, reaches back
    std::int64_t PerRadius;  // 2^48 divided by the radius
    int Lift;                // of the shadow: 0 before the sheet has risen, 256 when a curl is up
};

constexpr QRgb kPaper = 0xFFF4F1EAu;
constexpr int kArcSteps = 256;

class PageEngine : public Engine {
  public:
    PageEngine(QSize Size, int X, int Y) : mSize(Size) {
        const int Length = std::max(1, Root((std::int64_t{X} * X + std::int64_t{Y} * Y) << 20));
        mNx = static_cast<int>((-std::int64_t{X} << 26) / Length);
        mNy = static_cast<int>((-std::int64_t{Y} << 26) / Length);
        mReach = (std::abs(std::int64_t{mNx}) * Size.width() +
                  std::abs(std::int64_t{mNy}) * Size.height()) /
                 2;
        mRadius = std::max<std::int64_t>(One, mReach / 6);
        FillArcs();
    }

    void Draw(const Frame& F, int Y0, int Y1) const override {
        const Sheet S = SheetOf(Ease(F.Progress));
        for (int Y = Y0; Y < Y1; ++Y) DrawRow(F, S, Y);
    }

  private:
    Sheet SheetOf(int Part) const {
        Sheet S{};
        S.Reach = mReach;
        S.Radius = mRadius;
        S.Axis = mReach - (((2 * mReach + 2 * mRadius) * Part) >> 16);
        S.HalfTurn = (mRadius * 205887) >> 16;  // pi of One
        S.FlapEnd = 2 * S.Axis - S.Reach + S.HalfTurn;
        S.PerRadius = (std::int64_t{1} << 48) / mRadius;
        S.Lift = static_cast<int>(
            std::clamp<std::int64_t>((S.Reach - S.Axis) * 256 / (2 * mRadius), 0, 256));
        return S;
    }

    // For a height over the axis, of the radius, the length of the sheet up to there.
    void FillArcs() {
        int Angle = 0;
        for (int I = 0; I <= kArcSteps; ++I) {
            while (Angle < One / 4 && Sine(Angle) < I * (One / kArcSteps)) ++Angle;
            // The angle in radians: a full turn is 2 pi, here 411775 of One.
            mArcs[static_cast<std::size_t>(I)] = Scale(411775, Angle);
        }
    }

    int ArcAt(std::int64_t Off) const {  // Off of One: 0 at the axis, One at the radius
        const int Place = static_cast<int>(std::clamp<std::int64_t>(Off, 0, One));
        const auto I = static_cast<std::size_t>(Place >> 8);
        if (I >= kArcSteps) return mArcs[kArcSteps];
        return mArcs[I] + (((mArcs[I + 1] - mArcs[I]) * (Place & 255)) >> 8);
    }

    std::int64_t DistanceAt(int X, int Y) const {
        const std::int64_t Dx = 2 * X + 1 - mSize.width(), Dy = 2 * Y + 1 - mSize.height();
        return (Dx * mNx + Dy * mNy) / 2;
    }

    void DrawRow(const Frame& F, const Sheet& S, int Y) const {
        QRgb* Out = F.Row(Y);
        const QRgb* Old = F.Old.Row(Y);
        const QRgb* New = F.New.Row(Y);
        // The lifted part lies over the table from here to there; the rest is plain.
        const std::int64_t Near = std::min(S.FlapEnd - ShadowReach(S), S.Axis);
        const std::int64_t Far = S.Axis + S.Radius + ShadowReach(S);
        const QRgb* Plain = DistanceAt(0, Y) <= Near ? Old : New;
        int X0 = 0, X1 = F.Width;
        while (X0 < X1 && IsPlain(X0, Y, Near, Far)) ++X0;
        CopySpan(Out, Plain, X0);
        Plain = DistanceAt(X1 - 1, Y) <= Near ? Old : New;
        while (X1 > X0 && IsPlain(X1 - 1, Y, Near, Far)) --X1;
        CopySpan(Out + X1, Plain + X1, F.Width - X1);
        for (int X = X0; X < X1; ++X) Out[X] = Curled(F, S, X, Y, DistanceAt(X, Y));
    }

    bool IsPlain(int X, int Y, std::int64_t Near, std::int64_t Far) const {
        const std::int64_t D = DistanceAt(X, Y);
        return D <= Near || D >= Far;
    }

    static std::int64_t ShadowReach(const Sheet& S) { return S.Radius; }

    QRgb Curled(const Frame& F, const Sheet& S, int X, int Y, std::int64_t D) const {
        const std::int64_t Off = D - S.Axis;
        if (Off <= 0) {
            const QRgb Flat = Shaded(F.Old.Row(Y)[X], ShadowBefore(S, D));
            return OverBack(F, S, X, Y, D, S.Axis + S.HalfTurn - Off, 0, Flat);
        }
        const QRgb Below = Shaded(F.New.Row(Y)[X], ShadowBehind(S, D));
        if (Off >= S.Radius) return Below;
        const int Height = static_cast<int>((Off * S.PerRadius) >> 32);
        const std::int64_t Arc = (S.Radius * ArcAt(Height)) >> 16;
        const QRgb Front = OverFront(F, S, X, Y, D, S.Axis + Arc, Below);
        const QRgb Back = OverBack(F, S, X, Y, D, S.Axis + S.HalfTurn - Arc, Height, Front);
        const std::int64_t Left = S.Radius - Off;
        return Left >= One ? Back : Mix(Below, Back, static_cast<int>(Left >> 8));
    }

    // Darkness on the table just beyond the curl, and on the sheet just before the flap.
    static int ShadowBehind(const Sheet& S, std::int64_t D) {
        return Fading(S, std::max<std::int64_t>(0, D - S.Axis) / 2);
    }
    // A sheet drawn by its corner has no straight end that could throw one.
    int ShadowBefore(const Sheet& S, std::int64_t D) const {
        const bool Straight = mNx == 0 || mNy == 0;
        return !Straight || D >= S.FlapEnd ? 0 : Fading(S, S.FlapEnd - D) / 2;
    }
    // Way: from 0, darkest, to the radius.
    static int Fading(const Sheet& S, std::int64_t Way) {
        if (Way >= S.Radius) return 0;
        const int Left = 256 - static_cast<int>((Way * S.PerRadius) >> 40);
        return ((Left * Left) >> 8) * S.Lift * 150 >> 16;
    }
    static QRgb Shaded(QRgb C, int Darkness) { return Darkness ? Darken(C, Darkness) : C; }

    // How much of the sheet there is at a distance along it: soft at its end, 0 beyond.
    static int InSheet(const Sheet& S, std::int64_t Along) {
        return static_cast<int>(std::clamp<std::int64_t>((S.Reach - Along + One / 2) >> 8, 0, 256));
    }

    // The sheet's own colour at a distance along it, seen at D; 0 where the sheet's sides end.
    int SheetAt(const Frame& F, const Sheet& S, int X, int Y, std::int64_t D, std::int64_t Along,
                QRgb& Colour) const {
        const int Inside = InSheet(S, Along);
        if (Inside == 0) return 0;
        const std::int64_t Move = Along - D;
        const std::int64_t U = (std::int64_t{X} << 16) + ((Move * mNx) >> 16);
        const std::int64_t V = (std::int64_t{Y} << 16) + ((Move * mNy) >> 16);
        const int Sides = std::min(Coverage(static_cast<int>(U) + One / 2, F.Width << 16),
                                   Coverage(static_cast<int>(V) + One / 2, F.Height << 16));
        if (Sides == 0) return 0;
        Colour = Sample(F.Old, static_cast<int>(U), static_cast<int>(V));
        return Inside * Sides >> 8;
    }

    QRgb OverFront(const Frame& F, const Sheet& S, int X, int Y, std::int64_t D, std::int64_t Along,
                   QRgb Below) const {
        QRgb C = 0;
        const int Seen = SheetAt(F, S, X, Y, D, Along, C);
        return Seen == 256 ? C : (Seen ? Mix(Below, C, Seen) : Below);
    }

    QRgb OverBack(const Frame& F, const Sheet& S, int X, int Y, std::int64_t D, std::int64_t Along,
                  int Height, QRgb Below) const {
        QRgb C = 0;
        const int Seen = SheetAt(F, S, X, Y, D, Along, C);
        if (Seen == 0) return Below;
        C = BackAt(C, Height);
        return Seen == 256 ? C : Mix(Below, C, Seen);
    }

    // The back is paper through which the picture shows faintly; it darkens down the curl.
    static QRgb BackAt(QRgb C, int Height) {
        constexpr int Through = 51;
        const int Down = (Height >> 8) * (Height >> 8) >> 8;
        const int Light = 244 - (Down * 120 >> 8);
        const auto Faint = static_cast<std::uint64_t>(Through * Light >> 8);
        const auto Bright = static_cast<std::uint64_t>(Light) - Faint;
        const std::uint64_t Lanes = Spread(C) * Faint + Spread(kPaper) * Bright + kHalves;
        return Gather((Lanes >> 8) & kLaneBytes) | kBlack;
    }

    QSize mSize;
    int mNx, mNy;  // the unit direction against which the sheet is drawn, of One
    std::int64_t mReach, mRadius;
    std::array<int, kArcSteps + 1> mArcs{};
};

}  // namespace

Recipe PageTurn(int X, int Y) {
    return {"Page", [=](const Pair& P) { return std::make_unique<PageEngine>(P.Size(), X, Y); }};
}

}  // namespace neb::effects
