#include "effects/PageEngine.h"

#include <algorithm>
#include <array>

#include "effects/PageShading.h"
#include "effects/Sampling.h"

namespace neb::effects {
namespace {

// Distances are of One and grow against the way the sheet is drawn, from the middle.
struct Sheet {
    std::int64_t End;       // the sheet's end; its other one is minus the reach
    std::int64_t Radius;    // of the curl
    std::int64_t Axis;      // where the sheet leaves the table
    std::int64_t HalfTurn;  // the sheet's length round the curl
    std::int64_t FlapEnd;   // how far the sheet, turned over, reaches back
    int Lift;               // of the shadow: 0 before the sheet has risen, 256 when a curl is up
};

// A row of the frame, or the part of it that a sheet has; D is the distance at pixel 0.
struct Line {
    const Frame& F;
    int Y;
    int Nx, Ny;  // the unit direction against which the sheet is drawn, of One
    std::int64_t D;
    int X0, X1;
    std::int64_t At(int X) const { return D + std::int64_t{X} * Nx; }
};

struct Span {
    int A, B;
};

std::int64_t DivideDown(std::int64_t A, std::int64_t B) {
    return A / B - (A % B < 0);
}

// The pixels X of Within for which Low < First + X * Step <= High.
Span Between(Span Within, std::int64_t First, int Step, std::int64_t Low, std::int64_t High) {
    if (Step == 0) return First > Low && First <= High ? Within : Span{Within.A, Within.A};
    const std::int64_t Size = std::abs(Step);
    const std::int64_t A =
        Step > 0 ? DivideDown(Low - First, Size) + 1 : DivideDown(First - High + Size - 1, Size);
    const std::int64_t B =
        Step > 0 ? DivideDown(High - First, Size) + 1 : DivideDown(First - Low - 1, Size) + 1;
    const auto Fit = [&](std::int64_t X) {
        return static_cast<int>(std::clamp<std::int64_t>(X, Within.A, Within.B));
    };
    return {Fit(A), std::max(Fit(A), Fit(B))};
}

constexpr std::int64_t kFar = std::int64_t{1} << 40;
constexpr int kArcSteps = 256;

// What the pixels of the curl show of the sheet's back.
struct Curl {
    int *U, *V, *Seen, *Light;
    QRgb* Read;
    static Curl Room(int Width) {
        int* I = Scratch<int, Curl>(4 * Width);
        return {I, I + Width, I + 2 * Width, I + 3 * Width, Scratch<QRgb, Curl>(Width)};
    }
};

class PageEngine : public Engine {
  public:
    PageEngine(QSize Size, const PageForm& Form) : mSize(Size), mForm(Form) {
        const std::int64_t X = Form.X, Y = Form.Y;
        const int Length = std::max(1, Root((X * X + Y * Y) << 20));
        mNx = static_cast<int>((-X << 26) / Length);
        mNy = static_cast<int>((-Y << 26) / Length);
        mReach = (std::abs(std::int64_t{mNx}) * Size.width() +
                  std::abs(std::int64_t{mNy}) * Size.height()) /
                 2;
        mRadius = std::max<std::int64_t>(One, mReach / (Form.FromMiddle ? 10 : 6));
        mStraight = mNx == 0 || mNy == 0;
        FillArcs();
    }

    void Draw(const Frame& F, int Y0, int Y1) const override {
        const Sheet S = SheetOf(Ease(F.Progress));
        for (int Y = Y0; Y < Y1; ++Y) {
            const std::int64_t D = DistanceAt(Y);
            const Span All{0, F.Width};
            if (!mForm.FromMiddle) {
                DrawLine({F, Y, mNx, mNy, D, 0, F.Width}, S);
                continue;
            }
            const Span One = Between(All, D, mNx, -kFar, 0),
                       Other = Between(All, -D, -mNx, -kFar, -1);
            DrawLine({F, Y, mNx, mNy, D, One.A, One.B}, S);
            DrawLine({F, Y, -mNx, -mNy, -D, Other.A, Other.B}, S);
        }
    }

  private:
    Sheet SheetOf(int Part) const {
        Sheet S{};
        S.End = mForm.FromMiddle ? 0 : mReach;
        S.Radius = mRadius;
        S.Axis = S.End - (((S.End + mReach + 2 * mRadius) * Part) >> 16);
        S.HalfTurn = (mRadius * 205887) >> 16;  // pi of One
        S.FlapEnd = 2 * S.Axis - S.End + S.HalfTurn;
        S.Lift = static_cast<int>(
            std::clamp<std::int64_t>((S.End - S.Axis) * 256 / (2 * mRadius), 0, 256));
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

    std::int64_t ArcAt(int Height) const {  // Height 0..One, of the radius
        const auto I = static_cast<std::size_t>(Height >> 8);
        if (I >= kArcSteps) return (mRadius * mArcs[kArcSteps]) >> 16;
        const int Arc = mArcs[I] + (((mArcs[I + 1] - mArcs[I]) * (Height & 255)) >> 8);
        return (mRadius * Arc) >> 16;
    }

    std::int64_t DistanceAt(int Y) const {
        const std::int64_t Dx = 1 - mSize.width(), Dy = 2 * Y + 1 - mSize.height();
        return (Dx * mNx + Dy * mNy) / 2;
    }

    static Span Within(const Line& L, std::int64_t Low, std::int64_t High) {
        return Between({L.X0, L.X1}, L.D, L.Nx, Low, High);
    }

    void DrawLine(const Line& L, const Sheet& S) const {
        const Span Flat = Within(L, -kFar, S.Axis), Bare = Within(L, S.Axis, kFar);
        CopySpan(L.F.Row(L.Y) + Flat.A, L.F.Old.Row(L.Y) + Flat.A, Flat.B - Flat.A);
        CopySpan(L.F.Row(L.Y) + Bare.A, L.F.New.Row(L.Y) + Bare.A, Bare.B - Bare.A);
        // The shadow on the table beyond the curl, and on the sheet just before the flap: a sheet
        // drawn by its corner has no straight end that could throw one.
        PutShadow(L, Within(L, S.Axis, S.Axis + 2 * S.Radius), S.Axis, 2 * S.Radius, S.Lift * 150);
        const std::int64_t Before = std::min(S.FlapEnd, S.Axis);
        if (mStraight)
            PutShadow(L, Within(L, Before - S.Radius, Before), S.FlapEnd, -S.Radius, S.Lift * 75);
        DrawFlap(L, S);
        DrawCurl(L, S, Within(L, S.Axis, S.Axis + S.Radius));
    }

    // Darkest, Most of One, at From, and gone after Reach.
    static void PutShadow(const Line& L, Span X, std::int64_t From, std::int64_t Reach, int Most) {
        const auto Way = [&](std::int64_t D) { return static_cast<int>(D * (256 * One) / Reach); };
        if (X.A < X.B)
            FadeSpan(L.F.Row(L.Y) + X.A, Way(L.At(X.A) - From), Way(L.Nx), Most, X.B - X.A);
    }

    // How much of a place of the sheet there is: soft at its end and its sides.
    static int SeenAt(const Frame& F, const Sheet& S, std::int64_t Along, int U, int V) {
        const std::int64_t Inside =
            std::clamp<std::int64_t>((S.End - Along + One / 2) >> 8, 0, 256);
        const int Sides =
            std::min(Coverage(U + One / 2, F.Width << 16), Coverage(V + One / 2, F.Height << 16));
        return static_cast<int>(Inside) * Sides >> 8;
    }

    struct Place {
        int U, V;
    };
    static Place PlaceAt(const Line& L, int X, std::int64_t Move) {
        return {(X << 16) + static_cast<int>((Move * L.Nx) >> 16),
                (L.Y << 16) + static_cast<int>((Move * L.Ny) >> 16)};
    }

    // The sheet turned over, lying on itself: there places move evenly from pixel to pixel.
    void DrawFlap(const Line& L, const Sheet& S) const {
        const auto AlongAt = [&](int X) { return 2 * S.Axis + S.HalfTurn - L.At(X); };
        const auto At = [&](int X) { return PlaceAt(L, X, AlongAt(X) - L.At(X)); };
        const Place First = At(0);
        const int StepU = One - static_cast<int>((std::int64_t{2} * L.Nx * L.Nx) >> 16);
        const int StepV = -static_cast<int>((std::int64_t{2} * L.Nx * L.Ny) >> 16);
        Span X = Within(L, S.FlapEnd - One, S.Axis);
        X = Between(X, First.U, StepU, -One, std::int64_t{L.F.Width} << 16);
        X = Between(X, First.V, StepV, -One, std::int64_t{L.F.Height} << 16);
        QRgb* Out = L.F.Row(L.Y);
        const auto Soften = [&](int I) {
            const Place P = At(I);
            const int Seen = SeenAt(L.F, S, AlongAt(I), P.U, P.V);
            if (Seen < 256) Out[I] = Mix(Out[I], BackOf(Sample(L.F.Old, P.U, P.V)), Seen);
            return Seen < 256;
        };
        while (X.A < X.B && Soften(X.A)) ++X.A;
        while (X.B > X.A && Soften(X.B - 1)) --X.B;
        const int Count = X.B - X.A;
        if (Count <= 0) return;
        const Curl Room = Curl::Room(L.F.Width);
        const Place Start = At(X.A);
        StepSpan(Room.U, Start.U, StepU, Count);
        StepSpan(Room.V, Start.V, StepV, Count);
        SamplePlaces(Out + X.A, L.F.Old, Room.U, Room.V, Count);
        BackSpan(Out + X.A, Count);
    }

    // The part in the air: the sheet rises to the radius and comes back over itself.
    void DrawCurl(const Line& L, const Sheet& S, Span X) const {
        const int Count = X.B - X.A;
        if (Count <= 0) return;
        QRgb* Out = L.F.Row(L.Y) + X.A;
        const Curl C = Curl::Room(L.F.Width);
        const std::int64_t PerRadius = (std::int64_t{1} << 48) / S.Radius;
        for (int I = 0; I < Count; ++I) {
            const std::int64_t Off = L.At(X.A + I) - S.Axis;
            const int Height = static_cast<int>((Off * PerRadius) >> 32);
            const std::int64_t Arc = ArcAt(Height);
            const std::int64_t Turned = S.HalfTurn - Arc - Off, Rising = Arc - Off;
            const Place P = PlaceAt(L, X.A + I, Turned);
            const int Rim = static_cast<int>(std::min<std::int64_t>(256, (S.Radius - Off) >> 8));
            C.U[I] = P.U;
            C.V[I] = P.V;
            C.Seen[I] = SeenAt(L.F, S, S.Axis + Off + Turned, P.U, P.V) * Rim >> 8;
            C.Light[I] = LightAt(Height);
            if (C.Seen[I] < 256)
                PutFront(Out[I], L, S, PlaceAt(L, X.A + I, Rising), S.Axis + Arc, Rim);
        }
        SamplePlaces(C.Read, L.F.Old, C.U, C.V, Count);
        CurlSpan(Out, C.Read, C.Light, C.Seen, Count);
    }

    static void PutFront(QRgb& Out, const Line& L, const Sheet& S, Place P, std::int64_t Along,
                         int Rim) {
        const int Seen = SeenAt(L.F, S, Along, P.U, P.V) * Rim >> 8;
        if (Seen) Out = Mix(Out, Sample(L.F.Old, P.U, P.V), Seen);
    }

    QSize mSize;
    PageForm mForm;
    int mNx, mNy;
    std::int64_t mReach, mRadius;
    bool mStraight;
    std::array<int, kArcSteps + 1> mArcs{};
};

}  // namespace

Recipe PageTurn(PageForm Form) {
    return {"Page", [=](const Pair& P) { return std::make_unique<PageEngine>(P.Size(), Form); }};
}

}  // namespace neb::effects
