#include "effects/PerspectiveEngine.h"

#include <algorithm>

#include "effects/Sampling.h"

namespace neb::effects {
namespace {

// A panel seen from above: a line from a point in a direction, in the plane of the turning.
// Lengths are of One, the direction a unit of One, Z away from the viewer.
struct Panel {
    const Picture* Front;  // seen from the front; null: not drawn
    const Picture* Back;   // seen from behind, mirrored; null: not drawn
    std::int64_t X, Z;     // of its start, X from the middle of the view
    int Cx, Cz;
    std::int64_t Length;
    std::int64_t TextureStart;
    int Shade;                  // darkness 0..256
    bool JoinsAtStart = false;  // another panel goes on there: no soft edge
    bool JoinsAtEnd = false;
};

struct Scene {
    Panel Panels[2];
    const Picture* Behind;  // what is seen past the panels; null: black
};

// What one line of the view shows.
struct Line {
    const Picture* Source;
    int U, Du;  // place in the picture along the turning, and picture per pixel
    int Zoom;   // picture per pixel across it
    int Cover;  // 0..256
    int Shade;
};

using Planner = Scene (*)(const Frame& F, std::int64_t Length, int Part);

constexpr int kDistance = 2;  // of the viewer, in lengths of the view

// Panels that join overlap by this much of One, so that no rounding opens a gap.
constexpr int kSeam = 512;

int CoverAt(const Panel& P, std::int64_t Along) {
    const std::int64_t FromStart = P.JoinsAtStart ? One : Along;
    const std::int64_t FromEnd = P.JoinsAtEnd ? One : P.Length - Along;
    return Clamp(static_cast<int>((std::min(FromStart, FromEnd) + One / 2) >> 8), 0, 256);
}

// Where the line of sight at place Sight meets the panel: along the panel, and how deep.
bool Meet(const Panel& P, std::int64_t Sight, std::int64_t Eye, std::int64_t& Along, int& Zoom,
          bool& Facing) {
    const std::int64_t Down = (Eye * P.Cx - Sight * P.Cz) >> 16;
    if (Down > -64 && Down < 64) return false;
    Along = (Sight * (Eye + P.Z) - Eye * P.X) / Down;
    Facing = Down > 0;
    if (Along < (P.JoinsAtStart ? -kSeam : -One)) return false;
    if (Along > P.Length + (P.JoinsAtEnd ? kSeam : One)) return false;
    const std::int64_t Depth = Eye + P.Z + ((Along * P.Cz) >> 16);
    if (Depth <= 0) return false;
    Zoom = static_cast<int>((Depth << 16) / Eye);
    return true;
}

Line LookAt(const Scene& S, std::int64_t Sight, std::int64_t Length) {
    Line Best{nullptr, 0, One, 0, 0, 0};
    for (const Panel& P : S.Panels) {
        std::int64_t Along = 0;
        int Zoom = 0;
        bool Facing = false;
        if (!Meet(P, Sight, Length * kDistance, Along, Zoom, Facing)) continue;
        const Picture* Source = Facing ? P.Front : P.Back;
        if (!Source || (Best.Source && Best.Zoom < Zoom)) continue;
        const std::int64_t U = P.TextureStart + (Facing ? Along : P.Length - Along);
        Best = {Source, static_cast<int>(U) - One / 2, One, Zoom, CoverAt(P, Along), P.Shade};
    }
    return Best;
}

class PerspectiveEngine : public Engine {
  public:
    PerspectiveEngine(Planner Plan, Turning T) : mPlan(Plan), mTurning(T) {}

    void Draw(const Frame& F, int Y0, int Y1) const override {
        const int Length = mTurning.Upright ? F.Width : F.Height;
        const Scene S = mPlan(F, std::int64_t{Length} << 16, Ease(F.Progress));
        Line* Lines = Scratch<Line, PerspectiveEngine>(Length);
        FindLines(S, Lines, Length);
        for (int Y = Y0; Y < Y1; ++Y) {
            QRgb* Out = F.Row(Y);
            if (S.Behind)
                CopySpan(Out, S.Behind->Row(Y), F.Width);
            else
                FillSpan(Out, kBlack, F.Width);
            if (mTurning.Upright)
                DrawAcross(F, Lines, Out, Y);
            else
                DrawDown(F, Lines[Y], Out);
        }
    }

  private:
    void FindLines(const Scene& S, Line* Lines, int Length) const {
        for (int I = 0; I < Length; ++I) {
            const std::int64_t Sight = std::int64_t{2 * I + 1 - Length} << 15;
            Lines[I] = LookAt(S, Sight, std::int64_t{Length} << 16);
        }
        for (int I = 0; I + 1 < Length; ++I)
            if (Lines[I].Source == Lines[I + 1].Source)
                Lines[I].Du = std::abs(Lines[I + 1].U - Lines[I].U);
        if (Length > 1) Lines[Length - 1].Du = Lines[Length - 2].Du;
        if (mTurning.Mirrored) Mirror(Lines, Length);
    }

    static void Mirror(Line* Lines, int Length) {
        std::reverse(Lines, Lines + Length);
        for (int I = 0; I < Length; ++I) Lines[I].U = ((Length - 1) << 16) - Lines[I].U;
    }

    // The place in the picture for a pixel across the turning.
    static int AcrossAt(int Place, int Size, int Zoom) {
        const std::int64_t Off = std::int64_t{2 * Place + 1 - Size} * Zoom / 2;
        return static_cast<int>(Off + (std::int64_t{Size} << 15) - One / 2);
    }

    static void Put(QRgb& Out, const Line& L, int V, int Seen) {
        QRgb C = SampleArea(*L.Source, L.U, V, L.Du, L.Zoom);
        if (L.Shade) C = Darken(C, L.Shade);
        Out = Seen == 256 ? C : Mix(Out, C, Seen);
    }

    static void DrawAcross(const Frame& F, const Line* Lines, QRgb* Out, int Y) {
        for (int X = 0; X < F.Width; ++X) {
            const Line& L = Lines[X];
            if (!L.Source) continue;
            const int V = AcrossAt(Y, F.Height, L.Zoom);
            const int Seen = L.Cover * Coverage(V + One / 2, F.Height << 16) >> 8;
            if (Seen) Put(Out[X], L, V, Seen);
        }
    }

    static void DrawDown(const Frame& F, const Line& L, QRgb* Out) {
        if (!L.Source) return;
        // The picture's two sides lie where its places reach 0 and its width.
        const std::int64_t Half = (std::int64_t{F.Width} << 31) / std::max(1, L.Zoom);
        const std::int64_t Middle = std::int64_t{F.Width} << 15;
        const int X0 = static_cast<int>(std::max<std::int64_t>(0, ((Middle - Half) >> 16) - 1));
        const int X1 =
            static_cast<int>(std::min<std::int64_t>(F.Width, ((Middle + Half) >> 16) + 2));
        QRgb* Row = Scratch<QRgb, PerspectiveEngine>(F.Width);
        SampleRow(Row, *L.Source, AcrossAt(X0, F.Width, L.Zoom), L.Zoom, L.U, L.Du, X1 - X0);
        DarkenSpan(Row, L.Shade, X1 - X0);
        for (int X = X0; X < X1; ++X) {
            const int U = AcrossAt(X, F.Width, L.Zoom);
            const int Seen = L.Cover * Coverage(U + One / 2, F.Width << 16) >> 8;
            Out[X] = Seen == 256 ? Row[X - X0] : Mix(Out[X], Row[X - X0], Seen);
        }
    }

    Planner mPlan;
    Turning mTurning;
};

int Dark(int Sine) {
    return Clamp(Scale(140, std::abs(Sine)), 0, 256);
}

Scene PlanCube(const Frame& F, std::int64_t Length, int Part) {
    const int Angle = Scale(One / 4, Part);
    const int S = Sine(Angle), C = Cosine(Angle);
    const std::int64_t Half = Length / 2;
    // Pushed back so that the nearest edge just touches the glass.
    const std::int64_t Middle = Half + ((Half * (S + C - One)) >> 16);
    const auto At = [Half](std::int64_t A, std::int64_t B) { return (Half * (A + B)) >> 16; };
    Scene Out{};
    Out.Panels[0] = {&F.Old,  nullptr, At(-C, -S), Middle + At(S, -C), C, -S, Length, 0,
                     Dark(S), false,   true};
    Out.Panels[1] = {&F.New,  nullptr, At(C, -S), Middle + At(-S, -C), S, C, Length, 0,
                     Dark(C), true,    false};
    return Out;
}

Scene PlanFlip(const Frame& F, std::int64_t Length, int Part) {
    const int Angle = Scale(One / 2, Part);
    const int S = Sine(Angle), C = Cosine(Angle);
    const std::int64_t Half = Length / 2;
    const std::int64_t Middle = (Half * S) >> 16;
    Scene Out{};
    Out.Panels[0] = {&F.Old, &F.New, (-Half * C) >> 16, Middle - ((Half * S) >> 16), C, S, Length,
                     0,      Dark(S)};
    return Out;
}

Scene PlanDoors(const Frame& F, std::int64_t Length, int Part) {
    // Past the right angle, until each wing lies in the line of sight and is gone.
    const int Angle = Scale(One / 4 + AngleOf(2 * kDistance, 1), Part);
    const int S = Sine(Angle), C = Cosine(Angle);
    const std::int64_t Half = Length / 2;
    Scene Out{};
    Out.Behind = &F.New;
    Out.Panels[0] = {&F.Old, nullptr, -Half, 0, C, S, Half, 0, Dark(S)};
    Out.Panels[1] = {&F.Old,           nullptr, Half - ((Half * C) >> 16),
                     (Half * S) >> 16, C,       -S,
                     Length - Half,    Half,    Dark(S)};
    return Out;
}

Recipe Make(Planner Plan, Turning T) {
    return {"Perspective",
            [=](const Pair&) { return std::make_unique<PerspectiveEngine>(Plan, T); }};
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

}  // namespace neb::effects
