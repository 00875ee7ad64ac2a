#include "effects/whole/Sheets.h"

#include <algorithm>

#include "effects/drawing/Pixels.h"

namespace neb::effects {
namespace {

constexpr int kSlow = One / 16;

// One direction of a sheet: the frame's pixels that it touches and those it fills.
struct Extent {
    int From, To;          // touched
    int Whole, Rest;       // how far it has moved: whole pixels, and 1/256 of one
    int FirstIn, LastOut;  // of the picture

    Extent(int First, int Last, int Moved)
        : From(First + (Moved >> 8)),
          To(Last + (Moved >> 8) + ((Moved & 255) != 0)),
          Whole(Moved >> 8),
          Rest(Moved & 255),
          FirstIn(First),
          LastOut(Last) {}
    int FilledFrom() const { return From + (Rest != 0); }
    int FilledTo() const { return To - (Rest != 0); }
    // How much of a touched pixel it covers, 1..256.
    int CoverageAt(int Place) const {
        if (Rest != 0 && Place == From) return 256 - Rest;
        return Rest != 0 && Place == To - 1 ? Rest : 256;
    }
    // The place of the picture that comes first of the two that a frame's pixel shows.
    int Before(int Place) const { return std::max(FirstIn, Place - Whole - 1); }
    int At(int Place) const { return std::min(LastOut - 1, Place - Whole); }
};

Area AreaOf(const Sheet& S) {
    const Extent X(S.Part.X0, S.Part.X1, S.Dx), Y(S.Part.Y0, S.Part.Y1, S.Dy);
    return {X.From, Y.From, X.To, Y.To};
}

class RowPainter {
  public:
    RowPainter(const Frame& F, const Arrangement& A, const Shadow& Soft)
        : mF(F), mA(A), mSoft(Soft) {}

    void Draw(int Y) const {
        if (mA.Still != Side::None) DrawStill(Y);
        for (int I = 0; I < mA.Count; ++I) DrawSheet(SheetAt(I), Y);
    }

  private:
    const Sheet& SheetAt(int I) const { return mA.Sheets[static_cast<std::size_t>(I)]; }
    const Picture& PictureOf(Side S) const { return S == Side::Old ? mF.Old : mF.New; }

    // What the sheets leave free of the still picture.
    void DrawStill(int Y) const {
        int X = 0;
        for (int I = 0; I < mA.Count; ++I) {
            const Sheet& S = SheetAt(I);
            const Extent Across(S.Part.X0, S.Part.X1, S.Dx), Down(S.Part.Y0, S.Part.Y1, S.Dy);
            if (Y < Down.FilledFrom() || Y >= Down.FilledTo()) continue;
            DrawGap(Y, X, std::min(Across.FilledFrom(), mF.Width));
            X = std::max(X, Across.FilledTo());
        }
        DrawGap(Y, X, mF.Width);
    }

    void DrawGap(int Y, int X0, int X1) const {
        if (X0 >= X1) return;
        CopySpan(mF.Row(Y) + X0, PictureOf(mA.Still).Row(Y) + X0, X1 - X0);
        for (int I = 0; I < mA.Count; ++I)
            mSoft.Fall(mF.Row(Y), Y, X0, X1, AreaOf(SheetAt(I)), SheetAt(I).Depth);
    }

    void DrawSheet(const Sheet& S, int Y) const {
        const Extent Down(S.Part.Y0, S.Part.Y1, S.Dy), Across(S.Part.X0, S.Part.X1, S.Dx);
        if (Y < Down.From || Y >= Down.To || Across.From >= mF.Width || Across.To <= 0) return;
        const int Weight = S.Filled ? 256 : Down.CoverageAt(Y);
        const QRgb* Row = PictureOf(S.From).Row(Down.At(Y));
        if (Down.Rest != 0) {
            const QRgb* Above = PictureOf(S.From).Row(Down.Before(Y));
            QRgb* Room = Scratch<QRgb, Extent>(mF.Width);
            const int X = S.Part.X0;
            MixSpan(Room + X, Above + X, Row + X, 256 - Down.Rest, S.Part.X1 - X);
            Row = Room;
        }
        PutRow(mF.Row(Y), Row, Across, Weight, S.Filled);
    }

    // Row: the picture's row; it comes into the frame's at its place.
    void PutRow(QRgb* Out, const QRgb* Row, const Extent& E, int Weight, bool Filled) const {
        const int X0 = std::max(0, E.FilledFrom()), X1 = std::min(mF.Width, E.FilledTo());
        if (X0 < X1) PutSpan(Out + X0, Row + X0 - E.Whole, E.Rest, Weight, X1 - X0);
        if (E.Rest == 0) return;
        const auto PutRim = [&](int X) {
            if (X < 0 || X >= mF.Width) return;
            const int Part = Filled ? 256 : E.CoverageAt(X) * Weight >> 8;
            Out[X] = Mix(Out[X], Row[X == E.From ? E.FirstIn : E.LastOut - 1], Part);
        };
        PutRim(E.From);
        PutRim(E.To - 1);
    }

    void PutSpan(QRgb* Out, const QRgb* Row, int Rest, int Weight, int Count) const {
        if (Rest == 0 && Weight == 256) return CopySpan(Out, Row, Count);
        if (Rest == 0) return MixSpan(Out, Out, Row, Weight, Count);
        if (Weight == 256) return MixSpan(Out, Row - 1, Row, 256 - Rest, Count);
        QRgb* Room = Scratch<QRgb, RowPainter>(mF.Width);
        MixSpan(Room, Row - 1, Row, 256 - Rest, Count);
        MixSpan(Out, Out, Room, Weight, Count);
    }

    const Frame& mF;
    const Arrangement& mA;
    const Shadow& mSoft;
};

}  // namespace

void DrawSheets(const Frame& F, const Arrangement& A, int Y0, int Y1) {
    const Shadow Soft({F.Width, F.Height});
    const RowPainter Painter(F, A, Soft);
    for (int Y = Y0; Y < Y1; ++Y) Painter.Draw(Y);
}

int Travelled(int Length, int Progress) {
    const int Way = Scale(std::int64_t{Length} << 8, Ease(Progress));
    const bool Slow = Progress < kSlow || Progress > One - kSlow;
    return Slow ? Way : (Way + 128) & ~255;
}

}  // namespace neb::effects
