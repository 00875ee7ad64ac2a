#include "effects/whole/BlurEngine.h"

#include <algorithm>

#include "effects/drawing/Pixels.h"
#include "effects/drawing/Pyramid.h"

namespace neb::effects {
namespace {

// Where the rows of a level lie in a larger one: each pixel becomes 2^Shift by 2^Shift.
int PlaceIn(int Place, int Shift) {
    return (((2 * Place + 1) << 15) >> Shift) - One / 2;
}

constexpr int kNoRow = -10;  // and no row follows it

// Two rows of a small picture that follow each other, made when they are first asked for.
struct TwoRows {
    QRgb* Bits;
    int Width, First = kNoRow;
};

// A row of Count pixels of a picture 2^Shift times as large, Low of the second row.
void EnlargeBetween(QRgb* Out, const TwoRows& Small, int Low, int Shift, int Count) {
    QRgb* Row = Scratch<QRgb, TwoRows>(Small.Width);
    MixSpan(Row, Small.Bits, Small.Bits + Small.Width, Low >> 8, Small.Width);
    Enlarge(Out, Row, Small.Width, Shift, Count);
}

class BlurEngine : public Engine {
  public:
    explicit BlurEngine(const Pair& P)
        : mDepth(std::min(kDeepest, LevelOfParts(P.Size(), 28))),
          mOld(P.Old, mDepth + 1),
          mNew(P.New, mDepth + 1) {
        mOld.Soften();
        mNew.Soften();
    }

    void Draw(const Frame& F, int Y0, int Y1) const override {
        const int Blur = mDepth * Hump(F.Progress);
        Look L{Blur >> 16, (Blur & (One - 1)) >> 8, WeightAt(F.Progress), {}, {}};
        QRgb* Room = Scratch<QRgb, BlurEngine>(6 * F.Width + 6);
        L.Rows = {Room, mOld.Level(L.Level).Width};
        L.Coarse = {Room + 2 * F.Width + 2, mOld.Level(L.Level + 1).Width};
        L.Room = Room + 4 * F.Width + 4;
        for (int Y = Y0; Y < Y1; ++Y) {
            if (L.Level == 0)
                MakeRow(F.Row(Y), L, Y);
            else
                DrawRow(F.Row(Y), L, Y, F.Width);
        }
    }

  private:
    static constexpr int kDeepest = 7;

    // What a frame looks like, and the rows that it was last drawn from.
    struct Look {
        int Level, Coarser;  // how much of the level after, 0..255
        int Weight;          // of the new picture
        TwoRows Rows, Coarse;
        QRgb* Room = nullptr;
    };

    // The pictures change over while they are blurred most.
    static int WeightAt(int Progress) {
        return Ease(Clamp((Progress - 3 * One / 10) * 5 / 2, 0, One)) >> 8;
    }

    void MixLevel(QRgb* Out, int Level, int Weight, int Y) const {
        const Picture Old = mOld.Level(Level), New = mNew.Level(Level);
        const int Row = Clamp(Y, 0, Old.Height - 1);
        MixSpan(Out, Old.Row(Row), New.Row(Row), Weight, Old.Width);
    }

    // A row of the level as blurred as the frame is.
    void MakeRow(QRgb* Out, Look& L, int Y) const {
        MixLevel(Out, L.Level, L.Weight, Y);
        if (L.Coarser == 0) return;
        const int Width = mOld.Level(L.Level).Width, V = PlaceIn(Y, 1);
        KeepRows(L.Coarse, V >> 16,
                 [&](QRgb* To, int Row) { MixLevel(To, L.Level + 1, L.Weight, Row); });
        EnlargeBetween(L.Room, L.Coarse, V & (One - 1), 1, Width);
        MixSpan(Out, Out, L.Room, L.Coarser, Width);
    }

    void DrawRow(QRgb* Out, Look& L, int Y, int Width) const {
        const int V = PlaceIn(Y, L.Level);
        const int Last = mOld.Level(L.Level).Height - 1;
        KeepRows(L.Rows, V >> 16, [&](QRgb* To, int Row) { MakeRow(To, L, Clamp(Row, 0, Last)); });
        EnlargeBetween(Out, L.Rows, V & (One - 1), L.Level, Width);
    }

    template <typename Maker>
    static void KeepRows(TwoRows& Rows, int First, Maker&& Make) {
        if (Rows.First == First) return;
        QRgb* Second = Rows.Bits + Rows.Width;
        if (Rows.First + 1 == First)
            CopySpan(Rows.Bits, Second, Rows.Width);
        else
            Make(Rows.Bits, First);
        Make(Second, First + 1);
        Rows.First = First;
    }

    int mDepth;
    Pyramid mOld, mNew;
};

}  // namespace

Recipe BlurDissolve() {
    return {"Blur", [](const Pair& P) { return std::make_unique<BlurEngine>(P); }};
}

}  // namespace neb::effects
