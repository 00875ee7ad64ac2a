// Where the panels of each perspective effect stand at a moment.
#include <algorithm>
#include <cstdlib>

#include "effects/solids/PanelScene.h"

namespace neb::effects {
namespace {

int Dark(int Most, int Sine) {
    return Clamp(Scale(Most, std::abs(Sine)), 0, 256);
}

// A panel that has its middle at X and Z and is turned by an angle: its end away from the viewer.
Panel Turned(const HalfSizes* Front, std::int64_t X, std::int64_t Z, int Angle,
             std::int64_t Length) {
    Panel P;
    P.Front = Front;
    P.Cx = Cosine(Angle);
    P.Cz = Sine(Angle);
    P.X = X - ((Length / 2 * P.Cx) >> 16);
    P.Z = Z - ((Length / 2 * P.Cz) >> 16);
    P.Length = Length;
    return P;
}

// A panel that turns about its start.
Panel Hinged(const HalfSizes* Front, std::int64_t X, int Angle, std::int64_t Length) {
    Panel P;
    P.Front = Front;
    P.Cx = Cosine(Angle);
    P.Cz = Sine(Angle);
    P.X = X;
    P.Length = Length;
    return P;
}

// The face of a solid about a middle line: Apothem from it, at an angle round it.
Panel Face(const HalfSizes* Front, std::int64_t X, std::int64_t Z, std::int64_t Apothem, int Angle,
           std::int64_t Length) {
    return Turned(Front, X + ((Apothem * Sine(Angle)) >> 16), Z - ((Apothem * Cosine(Angle)) >> 16),
                  Angle, Length);
}

// How far a panel turns back that is hinged at the end of the view until it lies in the line of
// sight and is gone.
int LyingInSight(const Stage& S) {
    return One / 4 + AngleOf(static_cast<int>(S.Eye >> 15), static_cast<int>(S.Length >> 16));
}

// One of several strips side by side, and how far it has got on its own way, one after the other.
struct Strip {
    std::int64_t Start, Length;
    int Part;
};

constexpr int kStripShare = One * 11 / 20;  // of the whole time, for one strip

Strip StripAt(std::int64_t Length, int I, int Count, int Progress) {
    const std::int64_t Start = Length * I / Count, End = Length * (I + 1) / Count;
    const int Begin = static_cast<int>(std::int64_t{One - kStripShare} * I / (Count - 1));
    const int Way = Clamp(Progress - Begin, 0, kStripShare);
    return {Start, End - Start, Ease(static_cast<int>(std::int64_t{Way} * One / kStripShare))};
}

// At rest a strip goes on in its neighbours.
void JoinAtRest(Panel& P, const Strip& S) {
    P.JoinsAtStart = P.JoinsAtEnd = S.Part == 0 || S.Part == One;
}

}  // namespace

void PlanCube(PanelScene& Scene, const Stage& S, int Progress) {
    const int Angle = Scale(One / 4, Ease(Progress));
    const std::int64_t Half = S.Length / 2;
    // Pushed back so that the nearest edge just touches the glass.
    const std::int64_t Middle = Half + ((Half * (Sine(Angle) + Cosine(Angle) - One)) >> 16);
    Panel& Old = Scene.Add(Face(&S.Old, 0, Middle, Half, -Angle, S.Length));
    Old.Shade = Dark(140, Sine(Angle));
    Old.JoinsAtEnd = true;
    Panel& New = Scene.Add(Face(&S.New, 0, Middle, Half, One / 4 - Angle, S.Length));
    New.Shade = Dark(140, Cosine(Angle));
    New.JoinsAtStart = true;
}

void PlanFlip(PanelScene& Scene, const Stage& S, int Progress) {
    const int Angle = Scale(One / 2, Ease(Progress));
    const std::int64_t Back = (S.Length / 2 * Sine(Angle)) >> 16;
    Scene.SetBehind(S.New.At(0), 256 - Scale(40, Hump(Progress)));
    Panel& Card = Scene.Add(Turned(&S.Old, 0, Back, Angle, S.Length));
    Card.Back = &S.New;
    Card.Shade = Dark(140, Sine(Angle));
}

void PlanDoors(PanelScene& Scene, const Stage& S, int Progress) {
    const int Angle = Scale(LyingInSight(S), Ease(Progress));
    const std::int64_t Half = S.Length / 2, Rest = S.Length - Half;
    Scene.SetBehind(S.New.At(0), Scale(60, One - Ease(Progress)));
    Scene.Add(Hinged(&S.Old, -Half, Angle, Half)).Shade = Dark(140, Sine(Angle));
    Panel& Right = Scene.Add(Hinged(&S.Old, 0, -Angle, Rest));
    Right.X = Rest - ((Rest * Cosine(Angle)) >> 16);
    Right.Z = (Rest * Sine(Angle)) >> 16;
    Right.FrontStart = Half;
    Right.Shade = Dark(140, Sine(Angle));
}

void PlanCarousel(PanelScene& Scene, const Stage& S, int Progress) {
    constexpr int kApart = One / 5;
    const int Angle = Scale(kApart, Ease(Progress));
    const std::int64_t Radius = S.Length * 4 / 5;
    const std::int64_t Middle = Radius + ((S.Length * 3 / 4 * Hump(Progress)) >> 16);
    Scene.Mirroring = true;
    Scene.Add(Face(&S.Old, 0, Middle, Radius, -Angle, S.Length)).Shade = Dark(110, Sine(Angle));
    Scene.Add(Face(&S.New, 0, Middle, Radius, kApart - Angle, S.Length)).Shade =
        Dark(110, Sine(kApart - Angle));
}

void PlanLeaf(PanelScene& Scene, const Stage& S, int Progress) {
    const int Angle = Scale(One / 2, Ease(Progress));
    const std::int64_t Half = S.Length / 2, Rest = S.Length - Half;
    // The book is held a little further away while its leaf stands up.
    const std::int64_t Away = (S.Length * 2 / 5 * Hump(Progress)) >> 16;
    const auto Put = [&](const HalfSizes& Source, std::int64_t X, int Turn, std::int64_t Length) {
        Panel& P = Scene.Add(Hinged(&Source, X, Turn, Length));
        P.Z = Away;
        P.FrontStart = Half + X;
        P.JoinsAtStart = X == 0;
        P.JoinsAtEnd = X != 0;
        return &P;
    };
    Put(S.Old, -Half, 0, Half)->Shade = Clamp(Scale(120, -Cosine(Angle)), 0, 256);
    Put(S.New, 0, 0, Rest)->Shade = Clamp(Scale(120, Cosine(Angle)), 0, 256);
    Panel* Leaf = Put(S.Old, 0, -Angle, Rest);
    Leaf->Back = &S.New;
    Leaf->BackStart = Half - Rest;
    Leaf->Shade = Dark(90, Sine(Angle));
}

void PlanMap(PanelScene& Scene, const Stage& S, int Progress) {
    constexpr int kFolds = 8;
    const int Angle = Scale(One / 4, Ease(Progress));
    const std::int64_t Width = S.Length / kFolds, Step = (Width * Cosine(Angle)) >> 16;
    const std::int64_t Rise = (Width * Sine(Angle)) >> 16;
    Scene.SetBehind(S.New.At(0), Scale(70, One - Ease(Progress)));
    for (int I = 0; I < kFolds; ++I) {
        const bool Odd = I % 2 != 0;
        Panel& P = Scene.Add(Hinged(&S.Old, -S.Length / 2 + I * Step, Odd ? Angle : -Angle, Width));
        P.Z = Odd ? -Rise : 0;
        P.FrontStart = I * Width;
        P.Shade = Dark(Odd ? 60 : 130, Sine(Angle));
        P.JoinsAtStart = I > 0;
        P.JoinsAtEnd = I + 1 < kFolds;
    }
}

void PlanPrisms(PanelScene& Scene, const Stage& S, int Progress) {
    constexpr int kCount = 9, kThird = One / 3;
    // Light again at the end, when nothing but the finest gaps are left of it.
    Scene.SetBehind(S.New.At(0), Scale(200, Ease(std::min(One, 8 * (One - Progress)))));
    for (int I = 0; I < kCount; ++I) {
        const Strip T = StripAt(S.Length, I, kCount, Progress);
        const std::int64_t X = T.Start + T.Length / 2 - S.Length / 2;
        const std::int64_t Apothem = (T.Length * 18919) >> 16;  // half of it by the root of three
        const int Angle = Scale(kThird, T.Part);
        const auto Put = [&](const HalfSizes& Source, int Turn) {
            Panel& P = Scene.Add(Face(&Source, X, Apothem, Apothem, Turn, T.Length));
            P.FrontStart = T.Start;
            P.Shade = Dark(150, Sine(Turn));
            JoinAtRest(P, T);
        };
        if (Angle < kThird) Put(S.Old, -Angle);
        if (Angle > 0) Put(S.New, kThird - Angle);
    }
}

void PlanBars(PanelScene& Scene, const Stage& S, int Progress) {
    constexpr int kCount = 9;
    for (int I = 0; I < kCount; ++I) {
        const Strip T = StripAt(S.Length, I, kCount, Progress);
        const int Angle = Scale(One / 4, T.Part);
        const std::int64_t Half = T.Length / 2, X = T.Start + Half - S.Length / 2;
        const auto Put = [&](const HalfSizes& Source, int Turn) {
            Panel& P = Scene.Add(Face(&Source, X, Half, Half, Turn, T.Length));
            P.FrontStart = T.Start;
            P.Shade = Dark(150, Sine(Turn));
            JoinAtRest(P, T);
            return &P;
        };
        if (Angle < One / 4) Put(S.Old, -Angle)->JoinsAtEnd = true;
        if (Angle > 0) Put(S.New, One / 4 - Angle)->JoinsAtStart = true;
    }
}

void PlanFall(PanelScene& Scene, const Stage& S, int Progress) {
    const int Angle = Scale(LyingInSight(S), Ease(Progress));
    Scene.SetBehind(S.New.At(0), Scale(100, One - Ease(Progress)));
    Scene.Add(Hinged(&S.Old, -S.Length / 2, Angle, S.Length)).Shade = Dark(150, Sine(Angle));
}

}  // namespace neb::effects
