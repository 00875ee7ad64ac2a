#include "effects/solids/PanelView.h"

#include <algorithm>

namespace neb::effects {
namespace {

// Panels that join overlap by this much of One, so that no rounding opens a gap.
constexpr int kSeam = 512;

int CoverAt(const Panel& P, std::int64_t Along) {
    const std::int64_t FromStart = P.JoinsAtStart ? One : Along;
    const std::int64_t FromEnd = P.JoinsAtEnd ? One : P.Length - Along;
    const std::int64_t Inside = (std::min(FromStart, FromEnd) + One / 2) >> 8;
    return static_cast<int>(std::clamp<std::int64_t>(Inside, 0, 256));
}

struct Meeting {
    std::int64_t Along;  // the panel
    std::int64_t Zoom;
    bool Facing;
};

// Where the line of sight at place Sight meets the panel.
bool Meet(const Panel& P, std::int64_t Sight, std::int64_t Eye, Meeting& M) {
    const std::int64_t Down = (Eye * P.Cx - Sight * P.Cz) >> 16;
    if (Down > -64 && Down < 64) return false;
    M.Along = (Sight * (Eye + P.Z) - Eye * P.X) / Down;
    M.Facing = Down > 0;
    if (M.Along < (P.JoinsAtStart ? -kSeam : -One)) return false;
    if (M.Along > P.Length + (P.JoinsAtEnd ? kSeam : One)) return false;
    const std::int64_t Depth = Eye + P.Z + ((M.Along * P.Cz) >> 16);
    M.Zoom = Depth * One / Eye;
    return Depth > 0;
}

class Viewer {
  public:
    Viewer(const PanelScene& S, std::int64_t Eye, ViewLine* Lines, int Length)
        : mScene(S),
          mLines(Lines),
          mLength(Length),
          mEye(Eye),
          // Past this the places across, at most a quarter of the eye's distance from the middle,
          // would not fit their numbers.
          mMostZoom(std::min<std::int64_t>(24 * One, (std::int64_t{1} << 48) / Eye)) {}

    void Look(int Index) {
        const Panel& P = mScene.Panels[Index];
        const int A = LineOf(P.X, P.Z);
        const int B = LineOf(P.X + ((P.Length * P.Cx) >> 16), P.Z + ((P.Length * P.Cz) >> 16));
        const int From = std::max(0, std::min(A, B) - 2);
        const int To = std::min(mLength, std::max(A, B) + 3);
        for (int I = From; I < To; ++I) Put(mLines[I], P, Index, SightOf(I));
    }

  private:
    std::int64_t SightOf(int I) const { return std::int64_t{2 * I + 1 - mLength} << 15; }

    // The line on which a point is seen; far outside for points beside or behind the viewer.
    int LineOf(std::int64_t X, std::int64_t Z) const {
        if (mEye + Z <= 0) return X < 0 ? -mLength : 2 * mLength;
        const std::int64_t Line = (X * mEye / (mEye + Z) >> 16) + mLength / 2;
        return static_cast<int>(std::clamp<std::int64_t>(Line, -mLength, 2 * mLength));
    }

    // What is nearer is seen; where two panels meet, the one that has more of the line.
    static bool Hides(const ViewLine& L, std::int64_t Zoom, int Cover) {
        return L.Source && (L.Zoom < Zoom || (L.Zoom == Zoom && L.Cover > Cover));
    }

    void Put(ViewLine& L, const Panel& P, int Index, std::int64_t Sight) const {
        Meeting M{};
        if (!Meet(P, Sight, mEye, M) || M.Zoom > mMostZoom) return;
        const HalfSizes* Source = M.Facing ? P.Front : P.Back;
        const int Cover = CoverAt(P, M.Along);
        if (!Source || Cover == 0 || Hides(L, M.Zoom, Cover)) return;
        const std::int64_t U = M.Facing ? P.FrontStart + M.Along : P.BackStart + P.Length - M.Along;
        L = {Source, 2 * Index + M.Facing,     static_cast<int>(U) - One / 2,
             One,    static_cast<int>(M.Zoom), Cover,
             P.Shade};
    }

    const PanelScene& mScene;
    ViewLine* mLines;
    int mLength;
    std::int64_t mEye, mMostZoom;
};

void FindSteps(ViewLine* Lines, int Length) {
    for (int I = 0; I + 1 < Length; ++I)
        if (Lines[I].Panel == Lines[I + 1].Panel)
            Lines[I].Du = std::abs(Lines[I + 1].U - Lines[I].U);
    for (int I = 1; I < Length; ++I)
        if (Lines[I].Panel == Lines[I - 1].Panel &&
            (I + 1 == Length || Lines[I].Panel != Lines[I + 1].Panel))
            Lines[I].Du = Lines[I - 1].Du;
}

}  // namespace

void FindLines(const PanelScene& S, std::int64_t Eye, ViewLine* Lines, int Length, bool Mirrored) {
    std::fill_n(Lines, Length, ViewLine{});
    Viewer V(S, Eye, Lines, Length);
    for (int I = 0; I < S.Count; ++I) V.Look(I);
    FindSteps(Lines, Length);
    if (!Mirrored) return;
    std::reverse(Lines, Lines + Length);
    for (int I = 0; I < Length; ++I) Lines[I].U = ((Length - 1) << 16) - Lines[I].U;
}

NEB_WIDE void PlacesDown(int* V, const int* Start, const int* Step, int Y, int Count) {
    NEB_INDEPENDENT
    for (int I = 0; I < Count; ++I) V[I] = Start[I] + Y * Step[I];
}

}  // namespace neb::effects
