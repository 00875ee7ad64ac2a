#include "effects/SlideEngine.h"

#include <algorithm>

#include "effects/Pixels.h"

namespace neb::effects {
namespace {

// One moving piece: frame places From..To of the moving direction show the picture's places
// moved back by Shift.
struct Piece {
    const Picture* Source;
    int From, To;
    int Shift;
};

// What a frame consists of along the moving direction, and where its shadow falls.
struct Layout {
    Piece Pieces[3];
    int ShadowFrom = 0, ShadowTo = 0;  // darkest at ShadowFrom; may run backwards
    int SecondFrom = 0, SecondTo = 0;
};

using Planner = Layout (*)(const Frame& F, int Length, int Moved);

class SlideEngine : public Engine {
  public:
    SlideEngine(Planner Plan, bool Across, bool Mirrored)
        : mPlan(Plan), mAcross(Across), mMirrored(Mirrored) {}

    void Draw(const Frame& F, int Y0, int Y1) const override {
        const int Length = mAcross ? F.Width : F.Height;
        const int Moved = (Scale(2 * Length, Ease(F.Progress)) + 1) / 2;
        const Layout L =
            mMirrored ? Turn(mPlan(F, Length, Moved), Length) : mPlan(F, Length, Moved);
        const int Depth = Scale(110, Hump(F.Progress));
        for (int Y = Y0; Y < Y1; ++Y) {
            if (mAcross)
                DrawAcross(F, L, Depth, Y);
            else
                DrawDown(F, L, Depth, Y);
        }
    }

  private:
    static Layout Turn(Layout L, int Length) {
        for (Piece& P : L.Pieces) P = {P.Source, Length - P.To, Length - P.From, -P.Shift};
        L.ShadowFrom = Length - L.ShadowFrom;
        L.ShadowTo = Length - L.ShadowTo;
        L.SecondFrom = Length - L.SecondFrom;
        L.SecondTo = Length - L.SecondTo;
        return L;
    }

    // Strength of a shadow at a place, 0..256.
    static int ShadowAt(int From, int To, int Depth, int Place) {
        const int Width = std::abs(To - From);
        if (Width == 0) return 0;
        const int Off = To > From ? Place - From : From - 1 - Place;
        if (Off < 0 || Off >= Width) return 0;
        const int Left = Width - Off;
        return static_cast<int>(std::int64_t{Depth} * Left * Left / (std::int64_t{Width} * Width));
    }

    static void Darken(QRgb* Row, int Width, int From, int To, int Depth) {
        const int X0 = std::max(0, std::min(From, To)), X1 = std::min(Width, std::max(From, To));
        for (int X = X0; X < X1; ++X) Row[X] = Mix(Row[X], kBlack, ShadowAt(From, To, Depth, X));
    }

    static void DrawAcross(const Frame& F, const Layout& L, int Depth, int Y) {
        QRgb* Out = F.Row(Y);
        for (const Piece& P : L.Pieces)
            if (P.To > P.From)
                CopySpan(Out + P.From, P.Source->Row(Y) + P.From - P.Shift, P.To - P.From);
        Darken(Out, F.Width, L.ShadowFrom, L.ShadowTo, Depth);
        Darken(Out, F.Width, L.SecondFrom, L.SecondTo, Depth);
    }

    static void DrawDown(const Frame& F, const Layout& L, int Depth, int Y) {
        const int Shadow = std::max(ShadowAt(L.ShadowFrom, L.ShadowTo, Depth, Y),
                                    ShadowAt(L.SecondFrom, L.SecondTo, Depth, Y));
        for (const Piece& P : L.Pieces) {
            if (Y < P.From || Y >= P.To) continue;
            const QRgb* From = P.Source->Row(Y - P.Shift);
            if (Shadow)
                MixSpanWithColour(F.Row(Y), From, kBlack, Shadow, F.Width);
            else
                CopySpan(F.Row(Y), From, F.Width);
        }
    }

    Planner mPlan;
    bool mAcross;
    bool mMirrored;
};

int ShadowWidth(int Length) {
    return Length / 24;
}

// All plans move towards lower places; the engine mirrors them for the other way.
Layout PlanPush(const Frame& F, int Length, int Moved) {
    return {{{&F.Old, 0, Length - Moved, -Moved},
             {&F.New, Length - Moved, Length, Length - Moved},
             {}}};
}

Layout PlanCover(const Frame& F, int Length, int Moved) {
    const int Edge = Length - Moved;
    return {
        {{&F.Old, 0, Edge, 0}, {&F.New, Edge, Length, Edge}, {}}, Edge, Edge - ShadowWidth(Length)};
}

Layout PlanUncover(const Frame& F, int Length, int Moved) {
    const int Edge = Length - Moved;
    return {{{&F.Old, 0, Edge, -Moved}, {&F.New, Edge, Length, 0}, {}},
            Edge,
            Edge + ShadowWidth(Length)};
}

Layout PlanOpen(const Frame& F, int Length, int Moved) {
    const int Half = Length / 2;
    const int A = Half - Half * Moved / Length, B = Half + (Length - Half) * Moved / Length;
    const int Wide = std::min(ShadowWidth(Length), (B - A) / 2);
    return {{{&F.Old, 0, A, A - Half}, {&F.New, A, B, 0}, {&F.Old, B, Length, B - Half}},
            A,
            A + Wide,
            B,
            B - Wide};
}

Layout PlanClose(const Frame& F, int Length, int Moved) {
    const int Half = Length / 2;
    const int A = Half * Moved / Length, B = Length - (Length - Half) * Moved / Length;
    const int Wide = std::min(ShadowWidth(Length), (B - A) / 2);
    return {{{&F.New, 0, A, A - Half}, {&F.Old, A, B, 0}, {&F.New, B, Length, B - Half}},
            A,
            A + Wide,
            B,
            B - Wide};
}

Recipe Make(const char* Name, Planner Plan, bool Across, bool Mirrored) {
    return {Name,
            [=](const Pair&) { return std::make_unique<SlideEngine>(Plan, Across, Mirrored); }};
}

Recipe MakeHeading(const char* Name, Planner Plan, Heading Way) {
    const bool Across = Way == Heading::Left || Way == Heading::Right;
    return Make(Name, Plan, Across, Way == Heading::Right || Way == Heading::Down);
}

}  // namespace

Recipe Push(Heading Way) {
    return MakeHeading("Slide", PlanPush, Way);
}
Recipe Cover(Heading Way) {
    return MakeHeading("Slide", PlanCover, Way);
}
Recipe Uncover(Heading Way) {
    return MakeHeading("Slide", PlanUncover, Way);
}
Recipe DoorsOpen(bool Across) {
    return Make("Doors", PlanOpen, Across, false);
}
Recipe DoorsClose(bool Across) {
    return Make("Doors", PlanClose, Across, false);
}

}  // namespace neb::effects
