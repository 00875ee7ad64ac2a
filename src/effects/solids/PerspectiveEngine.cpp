#include "effects/solids/PerspectiveEngine.h"

#include <algorithm>

#include "effects/solids/PanelView.h"

namespace neb::effects {
namespace {

// Part of the columns of the view that shows one panel in one version of its picture.
struct Run {
    int X0, X1;
    const Picture* Source;
    int Shade;
    bool Growing;  // further away to the right
    bool Still;    // the picture as it is, pixel for pixel
};

// Of a run, and of a block of runs.
constexpr int kMostColumns = 128, kMostRows = 32;

// A stretch of a row: of it the middle part is wholly covered by the panel.
struct Stretch {
    int A, FullA, FullB, B;
};

bool IsStill(const ViewLine& L) {
    return L.Source && L.Shade == 0 && std::abs(L.Zoom - One) < 4 && std::abs(L.Du - One) < 64 &&
           ((L.U + 256) & (One - 1)) < 512;
}

class PerspectiveEngine : public Engine {
  public:
    PerspectiveEngine(const Pair& P, ScenePlanner Plan, Turning T)
        : mPlan(Plan),
          mTurning(T),
          mStage{Halved(P.Old), Halved(P.New), LengthOf(P),
                 std::int64_t{2 * std::max(P.Old.Width, P.Old.Height)} << 16} {}

    void Draw(const Frame& F, int Y0, int Y1) const override {
        PanelScene Scene;
        mPlan(Scene, mStage, F.Progress);
        if (mTurning.Mirrored) std::swap(Scene.Behind[0], Scene.Behind[1]);
        const int Length = mTurning.Upright ? F.Width : F.Height;
        ViewLine* Lines = Scratch<ViewLine, PerspectiveEngine>(Length);
        FindLines(Scene, mStage.Eye, Lines, Length, mTurning.Mirrored);
        if (mTurning.Upright)
            DrawUpright(F, Scene, Lines, Y0, Y1);
        else
            for (int Y = Y0; Y < Y1; ++Y) DrawLevel(F, Scene, Lines[Y], Y);
    }

  private:
    HalfSizes Halved(const Picture& P) const {
        return {P, mTurning.Upright ? HalfSizes::Way::Across : HalfSizes::Way::Down, 3};
    }
    std::int64_t LengthOf(const Pair& P) const {
        return std::int64_t{mTurning.Upright ? P.Old.Width : P.Old.Height} << 16;
    }

    void PutBehind(QRgb* Out, const PanelScene& S, const Frame& F, int Y, int A, int B) const {
        const int Middle = mTurning.Upright ? F.Width / 2 : (2 * Y < F.Height ? B : A);
        PutHalf(Out, S.Behind[0], Y, A, std::min(B, Middle));
        PutHalf(Out, S.Behind[1], Y, std::max(A, Middle), B);
    }
    static void PutHalf(QRgb* Out, const Backdrop& D, int Y, int A, int B) {
        if (A >= B) return;
        if (!D.Source) return FillSpan(Out + A, kBlack, B - A);
        if (D.Shade == 0) return CopySpan(Out + A, D.Source->Row(Y) + A, B - A);
        MixSpanWithColour(Out + A, D.Source->Row(Y) + A, kBlack, D.Shade, B - A);
    }

    // Upright axis: every column has its place along the panel, and is read downwards at its own
    // pace.
    struct Columns {
        int *U, *Start, *Zoom, *Cover, *V;
        Run* Runs;
        int Count;
    };

    static Columns FindColumns(const ViewLine* Lines, const Frame& F) {
        int* Room = Scratch<int, Columns>(5 * F.Width);
        Columns C{Room,
                  Room + F.Width,
                  Room + 2 * F.Width,
                  Room + 3 * F.Width,
                  Room + 4 * F.Width,
                  Scratch<Run, Columns>(F.Width),
                  0};
        for (int X = 0; X < F.Width; ++X) {
            const ViewLine& L = Lines[X];
            const int Level = L.Source ? L.Source->LevelFor(L.Du) : 0;
            C.U[X] = L.Source ? L.Source->AcrossAt(L.U, Level) : 0;
            C.Start[X] = PlaceAcross(0, F.Height, L.Zoom);
            C.Zoom[X] = L.Zoom;
            C.Cover[X] = L.Cover;
            const Picture* Source = L.Source ? &L.Source->At(Level) : nullptr;
            const bool Starts = X == 0 || Lines[X - 1].Panel != L.Panel;
            AddToRuns(C, {X, X + 1, Source, L.Shade, false, IsStill(L)}, Starts);
        }
        for (int R = 0; R < C.Count; ++R)
            C.Runs[R].Growing = C.Zoom[C.Runs[R].X1 - 1] > C.Zoom[C.Runs[R].X0];
        return C;
    }

    static void AddToRuns(Columns& C, const Run& New, bool Starts) {
        Run* Last = C.Count > 0 ? &C.Runs[C.Count - 1] : nullptr;
        if (Starts || Last->Source != New.Source || Last->Still != New.Still ||
            New.X0 - Last->X0 >= kMostColumns)
            C.Runs[C.Count++] = New;
        else
            ++Last->X1;
    }

    // In blocks, so that what a row reads is still at hand when the next one comes to it.
    void DrawUpright(const Frame& F, const PanelScene& S, const ViewLine* Lines, int Y0,
                     int Y1) const {
        const Columns C = FindColumns(Lines, F);
        for (int Top = Y0; Top < Y1; Top += kMostRows)
            for (int R = 0; R < C.Count; ++R)
                for (int Y = Top; Y < std::min(Y1, Top + kMostRows); ++Y)
                    DrawRun(F, S, C, C.Runs[R], Y);
    }

    void DrawRun(const Frame& F, const PanelScene& S, const Columns& C, const Run& R, int Y) const {
        QRgb* Out = F.Row(Y);
        if (!R.Source) return PutBehind(Out, S, F, Y, R.X0, R.X1);
        const Stretch Seen = SeenOf(C, R, F.Height, Y);
        PutBehind(Out, S, F, Y, R.X0, Seen.FullA);
        PutBehind(Out, S, F, Y, Seen.FullB, R.X1);
        DrawStretch(Out, C, R, Seen, F.Height, Y);
        if (S.Mirroring && 2 * Y > F.Height) PutReflection(Out, C, R, Seen, F.Height, Y);
    }

    // Columns within the panel's height at a row; along a panel the height grows or shrinks evenly.
    static Stretch SeenOf(const Columns& C, const Run& R, int Height, int Y) {
        const int Off = std::abs(2 * Y + 1 - Height);
        const auto Limit = [&](int Edge) {
            const std::int64_t Reach = (std::int64_t{Height} << 16) + Edge;
            return Off == 0 ? INT32_MAX
                            : static_cast<int>(std::min<std::int64_t>(INT32_MAX, Reach / Off));
        };
        const int Touch = Limit(One), Full = Limit(-One);
        Stretch S{R.X0, R.X0, R.X1, R.X1};
        const int Nearest = std::min(C.Zoom[R.X0], C.Zoom[R.X1 - 1]);
        const int Furthest = std::max(C.Zoom[R.X0], C.Zoom[R.X1 - 1]);
        if (Nearest > Touch) return {R.X0, R.X0, R.X0, R.X0};
        if (Furthest > Full) {
            const int *From = C.Zoom + R.X0, *To = C.Zoom + R.X1;
            const auto Find = [&](int Most) {
                const int* At =
                    R.Growing ? std::partition_point(From, To, [=](int Z) { return Z <= Most; })
                              : std::partition_point(From, To, [=](int Z) { return Z > Most; });
                return static_cast<int>(At - C.Zoom);
            };
            (R.Growing ? S.B : S.A) = Find(Touch);
            (R.Growing ? S.FullB : S.FullA) = Find(Full);
        }
        while (S.FullA < S.FullB && C.Cover[S.FullA] < 256) ++S.FullA;
        while (S.FullB > S.FullA && C.Cover[S.FullB - 1] < 256) --S.FullB;
        return S;
    }

    static void DrawStretch(QRgb* Out, const Columns& C, const Run& R, const Stretch& S, int Height,
                            int Y) {
        for (int X = S.A; X < S.FullA; ++X) Soften(Out[X], C, R, X, Height, Y);
        for (int X = S.FullB; X < S.B; ++X) Soften(Out[X], C, R, X, Height, Y);
        const int Count = S.FullB - S.FullA;
        if (Count <= 0) return;
        if (R.Still) {
            const int From = (C.U[S.FullA] + 256) >> 16;
            return CopySpan(Out + S.FullA, R.Source->Row(Y) + From, Count);
        }
        PlacesDown(C.V, C.Start + S.FullA, C.Zoom + S.FullA, Y, Count);
        SamplePlaces(Out + S.FullA, *R.Source, C.U + S.FullA, C.V, Count);
        DarkenSpan(Out + S.FullA, R.Shade, Count);
    }

    static void Soften(QRgb& Out, const Columns& C, const Run& R, int X, int Height, int Y) {
        const int V = C.Start[X] + Y * C.Zoom[X];
        const int Seen = C.Cover[X] * Coverage(V + One / 2, Height << 16) >> 8;
        if (Seen) Out = Mix(Out, Darken(Sample(*R.Source, C.U[X], V), R.Shade), Seen);
    }

    // Below the panel its mirror image, fainter the further down.
    static void PutReflection(QRgb* Out, const Columns& C, const Run& R, const Stretch& S,
                              int Height, int Y) {
        const auto PlaceAt = [&](int X) {
            return ((2 * Height - 1) << 16) - C.Start[X] - Y * C.Zoom[X];
        };
        const auto DarknessAt = [&](int V) {
            const int Depth = (((Height - 1) << 16) - V) / Height;
            return Clamp(170 + R.Shade / 3 + (Depth >> 7), 0, 256);
        };
        const auto Put = [&](int A, int B) {
            while (A < B && DarknessAt(PlaceAt(A)) == 256) ++A;
            while (A < B && DarknessAt(PlaceAt(B - 1)) == 256) --B;
            if (A >= B) return;
            for (int X = A; X < B; ++X) C.V[X - A] = PlaceAt(X);
            SamplePlaces(Out + A, *R.Source, C.U + A, C.V, B - A);
            for (int X = A; X < B; ++X) Out[X] = Darken(Out[X], DarknessAt(C.V[X - A]));
        };
        Put(R.X0, S.A);
        Put(S.B, R.X1);
    }

    // Level axis: a row is a straight cut through one panel.
    void DrawLevel(const Frame& F, const PanelScene& S, const ViewLine& L, int Y) const {
        QRgb* Out = F.Row(Y);
        if (!L.Source || L.Zoom <= 0) return PutBehind(Out, S, F, Y, 0, F.Width);
        const auto Edge = [&](int Soft) {
            const std::int64_t Half = ((std::int64_t{F.Width} << 16) + Soft) / L.Zoom;
            return static_cast<int>(std::clamp<std::int64_t>((F.Width - Half) / 2, 0, F.Width / 2));
        };
        if (IsStill(L) && L.Cover == 256)
            return CopySpan(Out, L.Source->At(0).Row((L.U + 256) >> 16), F.Width);
        const int A = Edge(One), FullA = L.Cover < 256 ? F.Width / 2 : Edge(-One);
        const int B = F.Width - A, FullB = std::max(FullA, F.Width - FullA);
        PutBehind(Out, S, F, Y, 0, FullA);
        PutBehind(Out, S, F, Y, FullB, F.Width);
        QRgb* Row = Scratch<QRgb, PerspectiveEngine>(F.Width);
        ReadLevel(Row, L, F.Width, A, B);
        CopySpan(Out + FullA, Row + FullA - A, FullB - FullA);
        const auto Soften = [&](int X) {
            const int U = PlaceAcross(X, F.Width, L.Zoom);
            const int Seen = L.Cover * Coverage(U + One / 2, F.Width << 16) >> 8;
            Out[X] = Mix(Out[X], Row[X - A], Seen);
        };
        for (int X = A; X < FullA; ++X) Soften(X);
        for (int X = FullB; X < B; ++X) Soften(X);
    }

    static void ReadLevel(QRgb* Row, const ViewLine& L, int Width, int A, int B) {
        int* U = Scratch<int, PerspectiveEngine>(2 * Width);
        int* V = U + Width;
        const int Level = L.Source->LevelFor(L.Du);
        StepSpan(U, PlaceAcross(A, Width, L.Zoom), L.Zoom, B - A);
        std::fill_n(V, B - A, L.Source->DownAt(L.U, Level));
        SamplePlaces(Row, L.Source->At(Level), U, V, B - A);
        DarkenSpan(Row, L.Shade, B - A);
    }

    ScenePlanner mPlan;
    Turning mTurning;
    Stage mStage;
};

Recipe Make(ScenePlanner Plan, Turning T) {
    return {"Perspective",
            [=](const Pair& P) { return std::make_unique<PerspectiveEngine>(P, Plan, T); }};
}

}  // namespace

Recipe CubeTurn(Turning T) {
    return Make(PlanCube, T);
}
Recipe CardFlip(Turning T) {
    return Make(PlanFlip, T);
}
Recipe SwingDoors(Turning T) {
    return Make(PlanDoors, T);
}
Recipe Carousel(Turning T) {
    return Make(PlanCarousel, T);
}
Recipe BookLeaf(Turning T) {
    return Make(PlanLeaf, T);
}
Recipe MapFold(Turning T) {
    return Make(PlanMap, T);
}
Recipe PrismsTurn(Turning T) {
    return Make(PlanPrisms, T);
}
Recipe SlatsTurn(Turning T) {
    return Make(PlanBars, T);
}
Recipe FallBack(Turning T) {
    return Make(PlanFall, T);
}

}  // namespace neb::effects
