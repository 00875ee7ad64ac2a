#include "effects/solids/PageEngine.h"

#include <algorithm>
#include <vector>

#include "effects/drawing/Sampling.h"
#include "effects/solids/PageShading.h"

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
constexpr int kBendStep = One / 16;

// The curl at a distance from the axis.
struct Bend {
    int Arc;    // the length of the sheet up to there, of One
    int Light;  // of its back, 0..256
};

// The same of one frame: how far a pixel there reads from its own place, and how much of the sheet
// there is, of its back and of its front.
struct Fold {
    int U, V, Seen;
};

// What the pixels of one part of the sheet show.
struct Part {
    enum Which { Back, Front, Flap };
    int *U, *V, *Seen, *Light;
    QRgb* Read;
    static Part Room(Which W, int Width) {
        int* I = Scratch<int, Part>(12 * Width) + W * 4 * Width;
        return {I, I + Width, I + 2 * Width, I + 3 * Width, Scratch<QRgb, Part>(Width)};
    }
};

// What a row leaves to the next one of a sheet that is drawn straight to a side: there all rows
// are alike.
struct Kept {
    bool Valid = false;
    Span Front{};  // where the front of the curl is seen
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
        FillBends();
    }

    void Draw(const Frame& F, int Y0, int Y1) const override {
        const Sheet S = SheetOf(Ease(F.Progress));
        FillFolds(S, true);
        FillFolds(S, false);
        Kept Rows, None;
        for (int Y = Y0; Y < Y1; ++Y) {
            const std::int64_t D = DistanceAt(Y);
            const Span All{0, F.Width};
            if (!mForm.FromMiddle) {
                DrawLine({F, Y, mNx, mNy, D, 0, F.Width}, S, Rows);
                continue;
            }
            const Span One = Between(All, D, mNx, -kFar, 0),
                       Other = Between(All, -D, -mNx, -kFar, -1);
            DrawLine({F, Y, mNx, mNy, D, One.A, One.B}, S, None);
            DrawLine({F, Y, -mNx, -mNy, -D, Other.A, Other.B}, S, None);
        }
    }

  private:
    Sheet SheetOf(int Progress) const {
        Sheet S{};
        S.End = mForm.FromMiddle ? 0 : mReach;
        S.Radius = mRadius;
        S.Axis = S.End - (((S.End + mReach + 2 * mRadius) * Progress) >> 16);
        S.HalfTurn = (mRadius * 205887) >> 16;  // pi of One
        S.FlapEnd = 2 * S.Axis - S.End + S.HalfTurn;
        S.Lift = static_cast<int>(
            std::clamp<std::int64_t>((S.End - S.Axis) * 256 / (2 * mRadius), 0, 256));
        return S;
    }

    // What the curl is like at each distance from the axis, up to the radius.
    void FillBends() {
        int Angle = 0;
        for (std::int64_t Off = 0; Off <= mRadius; Off += kBendStep) {
            const int Height = static_cast<int>(Off * One / mRadius);
            while (Angle < One / 4 && Sine(Angle) < Height) ++Angle;
            // Between two angles; a full turn, One, is 2 pi, here 411775 of One.
            const int High = Sine(Angle), Low = Sine(Angle - 1);
            const int Part = High > Low ? (Height - Low) * 64 / (High - Low) : 64;
            const std::int64_t Fine = std::int64_t{64} * (Angle - 1) + Part;
            const std::int64_t Radians = std::max<std::int64_t>(0, Fine * 411775) >> 14;  // of 2^24
            const std::int64_t Arc = mRadius * Radians >> 24;
            mBends.push_back({static_cast<int>(Arc), LightAt(Height)});
        }
    }

    std::int64_t DistanceAt(int Y) const {
        const std::int64_t Dx = 1 - mSize.width(), Dy = 2 * Y + 1 - mSize.height();
        return (Dx * mNx + Dy * mNy) / 2;
    }

    static Span Within(const Line& L, std::int64_t Low, std::int64_t High) {
        return Between({L.X0, L.X1}, L.D, L.Nx, Low, High);
    }

    void DrawLine(const Line& L, const Sheet& S, Kept& K) const {
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
        DrawCurl(L, S, Within(L, S.Axis, S.Axis + S.Radius), K);
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
        return static_cast<int>(Inside) * SidesAt(F, U, V) >> 8;
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
        const Part Room = Part::Room(Part::Flap, L.F.Width);
        const Place Start = At(X.A);
        StepSpan(Room.U, Start.U, StepU, Count);
        StepSpan(Room.V, Start.V, StepV, Count);
        SamplePlaces(Out + X.A, L.F.Old, Room.U, Room.V, Count);
        BackSpan(Out + X.A, Count);
    }

    // The part in the air: the sheet rises to the radius and comes back over itself. Its front is
    // seen only where its back does not hide it.
    void DrawCurl(const Line& L, const Sheet& S, Span X, Kept& K) const {
        if (X.A >= X.B) return;
        const Part Back = Part::Room(Part::Back, L.F.Width);
        const Part Front = Part::Room(Part::Front, L.F.Width);
        const bool Again = K.Valid;
        PutPlaces(Back, L, S, X, true, Again);
        if (!Again) K.Front = NotHidden(Back, L, S, X);
        PutPlaces(Front, L, S, K.Front, false, Again);
        K.Valid = L.Ny == 0;
        QRgb* Out = L.F.Row(L.Y);
        if (K.Front.A < K.Front.B) DrawFront(Out, Front, L.F.Old, K.Front);
        const int Count = X.B - X.A;
        SamplePlaces(Back.Read, L.F.Old, Back.U + X.A, Back.V + X.A, Count);
        CurlSpan(Out + X.A, Back.Read, Back.Light + X.A, Back.Seen + X.A, Count);
    }

    static Span NotHidden(const Part& Back, const Line& L, const Sheet& S, Span X) {
        Span Out{X.B, X.A};
        for (int I = X.A; I < X.B; ++I) {
            const bool Rim = S.Radius - (L.At(I) - S.Axis) < 2 * One;
            if (Back.Seen[I] < (Rim ? 1 : 256)) Out = {std::min(Out.A, I), I + 1};
        }
        return Out;
    }

    static void DrawFront(QRgb* Out, const Part& P, const Picture& Old, Span X) {
        SamplePlaces(P.Read, Old, P.U + X.A, P.V + X.A, X.B - X.A);
        for (int I = X.A; I < X.B; ++I)
            if (P.Seen[I]) Out[I] = Mix(Out[I], P.Read[I - X.A], P.Seen[I]);
    }

    // The places of the curl's back or front. Drawn straight to a side all pixels of a row are
    // alike, or all of a column.
    void PutPlaces(const Part& P, const Line& L, const Sheet& S, Span X, bool Back,
                   bool Again) const {
        if (X.A >= X.B) return;
        if (Again) return std::fill(P.V + X.A, P.V + X.B, L.Y << 16);
        const int End = L.Nx == 0 ? X.A + 1 : X.B;
        const Fold* F = Folds(Back);
        for (int I = X.A; I < End; ++I) {
            const auto Bend = static_cast<std::size_t>((L.At(I) - S.Axis) / kBendStep);
            PutPlace(P, L, I, Bend, F[Bend]);
        }
        if (End == X.B) return;
        StepSpan(P.U + X.A, X.A << 16, One, X.B - X.A);
        for (int* Same : {P.V, P.Seen, P.Light}) std::fill(Same + End, Same + X.B, Same[X.A]);
    }

    Fold* Folds(bool Back) const {
        const int Count = static_cast<int>(mBends.size());
        return Scratch<Fold, PageEngine>(2 * Count) + (Back ? Count : 0);
    }

    void FillFolds(const Sheet& S, bool Back) const {
        Fold* Out = Folds(Back);
        for (std::size_t I = 0; I < mBends.size(); ++I) {
            const std::int64_t Off = static_cast<std::int64_t>(I) * kBendStep + kBendStep / 2;
            const std::int64_t Arc = mBends[I].Arc, Along = Back ? S.HalfTurn - Arc : Arc;
            const std::int64_t Inside = (S.End - S.Axis - Along + One / 2) >> 8;
            const int Rim =
                static_cast<int>(std::clamp<std::int64_t>((S.Radius - Off) >> 8, 0, 256));
            Out[I] = {static_cast<int>(((Along - Off) * mNx) >> 16),
                      static_cast<int>(((Along - Off) * mNy) >> 16),
                      static_cast<int>(std::clamp<std::int64_t>(Inside, 0, 256)) * Rim >> 8};
        }
    }

    static int SidesAt(const Frame& F, int U, int V) {
        return std::min(Coverage(U + One / 2, F.Width << 16),
                        Coverage(V + One / 2, F.Height << 16));
    }

    void PutPlace(const Part& P, const Line& L, int I, std::size_t Bend, const Fold& At) const {
        const bool Other = L.Nx != mNx || L.Ny != mNy;
        P.U[I] = (I << 16) + (Other ? -At.U : At.U);
        P.V[I] = (L.Y << 16) + (Other ? -At.V : At.V);
        P.Seen[I] = At.Seen == 0 ? 0 : At.Seen * SidesAt(L.F, P.U[I], P.V[I]) >> 8;
        P.Light[I] = mBends[Bend].Light;
    }

    QSize mSize;
    PageForm mForm;
    int mNx, mNy;
    std::int64_t mReach, mRadius;
    bool mStraight;
    std::vector<Bend> mBends;
};

}  // namespace

Recipe PageTurn(PageForm Form) {
    return {"Page", [=](const Pair& P) { return std::make_unique<PageEngine>(P.Size(), Form); }};
}

}  // namespace neb::effects
