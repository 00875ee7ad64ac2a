#include "effects/solids/FlyingTilesEngine.h"

#include <algorithm>
#include <vector>

#include "effects/solids/Sprite.h"

namespace neb::effects {
namespace {

struct Tile {
    QRect Area;         // in the picture
    int Column, Row;    // of One of all columns and rows: its middle
    int Order;          // of One: scattered, no two alike
    int Turn, Stray;    // scattered, -One..One
    std::int64_t X, Y;  // its middle, of One
};

// Where a tile is.
struct Flight {
    int Part;  // it rests at 0 and has gone at One
    int Lift;  // how high above the picture behind it, of One
    SpritePlace Place;
};

// Progress: 0 all tiles rest, One all have gone.
using Motion = Flight (*)(const Tile& T, QSize Size, int Progress);

// How far a tile has come that starts at Start and takes Share of the whole time.
int PartOf(int Progress, int Start, int Share) {
    return Clamp(static_cast<int>(std::int64_t{Progress - Start} * One / Share), 0, One);
}

// Half the diagonal, pixels of One.
std::int64_t ReachOf(QSize S) {
    return std::int64_t{
               Root(std::int64_t{S.width()} * S.width() + std::int64_t{S.height()} * S.height())}
           << 15;
}

Flight FlyApart(const Tile& T, QSize Size, int Progress) {
    const std::int64_t Reach = ReachOf(Size);
    const std::int64_t Dx = T.X - (std::int64_t{Size.width()} << 15);
    const std::int64_t Dy = T.Y - (std::int64_t{Size.height()} << 15);
    const int Angle = AngleOf(static_cast<int>(Dx >> 8), static_cast<int>(Dy >> 8)) + T.Stray / 24;
    const std::int64_t Far = std::int64_t{Root((Dx >> 8) * (Dx >> 8) + (Dy >> 8) * (Dy >> 8))} << 8;
    const int Start = static_cast<int>(Far * (One * 2 / 5) / (Reach + 1)) + T.Order / 8;
    const int Part = PartOf(Progress, Start, One * 19 / 40);
    const int Gone = Scale(Part, Part / 2 + Scale(Part, Part) / 2);
    const std::int64_t Way = ((Reach * 5 / 4 - Far / 2) * Gone) >> 16;
    return {Part,
            0,
            {T.X + ((Way * Cosine(Angle)) >> 16), T.Y + ((Way * Sine(Angle)) >> 16),
             Scale(Gone, T.Turn / 2), One + Scale(Gone, T.Stray / 16 - One * 3 / 16)}};
}

Flight Fall(const Tile& T, QSize Size, int Progress) {
    const int Start = Scale(One - T.Row, One / 4) + Scale(T.Order, One / 2);
    const int Part = PartOf(Progress, Start, One / 4);
    const int Gone = Scale(Part, Part);
    const std::int64_t Drop = ((std::int64_t{Size.height()} << 16) + ReachOf(Size) / 4) * Gone;
    const std::int64_t Drift = std::int64_t{Size.width()} * T.Stray / 32 * Part;
    return {Part,
            Clamp(Gone * 16, 0, One),
            {T.X + (Drift >> 16), T.Y + (Drop >> 16), Scale(Gone, T.Turn / 6), One}};
}

// Thrown from below the middle, backwards: Part is counted from the end of the flight.
Flight Thrown(const Tile& T, QSize Size, int Progress) {
    const int Start = Scale(T.Row, One / 2) + Scale(T.Order, One / 4);
    const int Part = PartOf(Progress, Start, One / 4);
    const int Gone = Scale(Part, Scale(Part, Part) / 2 + Part / 2);
    const std::int64_t Down = (std::int64_t{Size.height()} << 16) + ReachOf(Size) / 6 - T.Y;
    const std::int64_t Across = (std::int64_t{Size.width()} << 15) - T.X;
    return {Part,
            Clamp(Gone * 8, 0, One),
            {T.X + ((Across * Gone) >> 17), T.Y + ((Down * Gone) >> 16), Scale(Gone, T.Turn / 3),
             One + Gone / 8}};
}

Flight Shrink(const Tile& T, QSize, int Progress) {
    const int Start = Scale((T.Column + T.Row) / 2, One * 3 / 4);
    const int Part = PartOf(Progress, Start, One / 4);
    return {Part, 0, {T.X, T.Y, Ease(Part) / 4, One - Ease(Part)}};
}

// Out along its row or its column, by whole pixels.
Flight Slide(const Tile& T, QSize Size, int Progress) {
    const int Part = PartOf(Progress, Scale(T.Order, One * 7 / 10), One * 3 / 10);
    const bool Across = T.Turn > 0, Back = T.Stray > 0;
    const std::int64_t Length = std::int64_t{Across ? Size.width() : Size.height()} << 16;
    const std::int64_t Place = Across ? T.X : T.Y;
    const int Side = Across ? T.Area.width() : T.Area.height();
    const std::int64_t Out = (Back ? Place : Length - Place) + (std::int64_t{Side} << 16);
    const std::int64_t Way = ((Out * Ease(Part)) >> 32) * (Back ? -One : One);
    return {Part,
            Clamp(Ease(Part) * 16, 0, One),
            {T.X + (Across ? Way : 0), T.Y + (Across ? 0 : Way), 0, One}};
}

struct Style {
    Motion Move;
    bool Arrive;   // the new picture's tiles come, all backwards
    int Versions;  // smaller ones of the picture that are needed
    int Shadow;    // depth of the tiles' shadows, 0..256
};

int CellsAlong(int Length, QSize Size, int Count) {
    const int Longer = std::max(Size.width(), Size.height());
    return std::clamp((Count * Length + Longer / 2) / Longer, 1, Length);
}

// The first pixel of a cell.
int EdgeOf(int Cell, int Length, int Cells) {
    return static_cast<int>((std::int64_t{Cell} * Length + Cells - 1) / Cells);
}

Tile MakeTile(QSize Size, int X, int Y, int Across, int Down) {
    const int Left = EdgeOf(X, Size.width(), Across), Top = EdgeOf(Y, Size.height(), Down);
    const int Wide = EdgeOf(X + 1, Size.width(), Across) - Left;
    const int Tall = EdgeOf(Y + 1, Size.height(), Down) - Top;
    const int Index = Y * Across + X;
    const auto Scattered = [Index](std::uint32_t Seed) {
        return static_cast<int>(Hash(static_cast<std::uint32_t>(Index), 7, Seed) >> 15) - One;
    };
    const std::int64_t Place = std::int64_t{One} * Shuffled(Index, Across * Down);
    return {QRect(Left, Top, Wide, Tall),
            One * (2 * X + 1) / (2 * Across),
            One * (2 * Y + 1) / (2 * Down),
            static_cast<int>(Place / (Across * Down)),
            Scattered(1),
            Scattered(2),
            std::int64_t{2 * Left + Wide} << 15,
            std::int64_t{2 * Top + Tall} << 15};
}

class FlyingTilesEngine : public Engine {
  public:
    FlyingTilesEngine(const Pair& P, int Count, const Style& S)
        : mFace(S.Arrive ? P.New : P.Old, HalfSizes::Way::Both, S.Versions),
          mStyle(S),
          mAcross(CellsAlong(P.Old.Width, P.Size(), Count)),
          mDown(CellsAlong(P.Old.Height, P.Size(), Count)),
          mShadow(std::max(2, P.Old.Width / mAcross / 16)) {
        for (int Y = 0; Y < mDown; ++Y)
            for (int X = 0; X < mAcross; ++X)
                mTiles.push_back(MakeTile(P.Size(), X, Y, mAcross, mDown));
    }

    void Draw(const Frame& F, int Y0, int Y1) const override {
        const int Count = static_cast<int>(mTiles.size());
        Flyer* Flyers = Scratch<Flyer, FlyingTilesEngine>(Count);
        auto* Rests = Scratch<std::uint8_t, FlyingTilesEngine>(Count);
        const int Flying = Place(Flyers, Rests, F);
        for (int Top = Y0; Top < Y1; Top += Sprite::kBand) {
            const int Under = std::min(Top + Sprite::kBand, Y1);
            for (int Y = Top; Y < Under; ++Y) DrawResting(F, Rests, Y);
            for (int I = 0; I < Flying; ++I) DrawFlyer(F, Flyers[I], Top, Under);
        }
    }

  private:
    struct Flyer {
        Sprite Shape;
        int Shadow;
    };

    // Finds the tiles that fly, and which rest; how many fly.
    int Place(Flyer* Flyers, std::uint8_t* Rests, const Frame& F) const {
        const int Progress = mStyle.Arrive ? One - F.Progress : F.Progress;
        int Flying = 0;
        for (const Tile& T : mTiles) {
            const Flight Now = mStyle.Move(T, {F.Width, F.Height}, Progress);
            *Rests++ = Now.Part == 0;
            if (Now.Part == 0 || Now.Part == One) continue;
            const int Depth = Scale(mStyle.Shadow, Now.Lift);
            Flyers[Flying++] = {Sprite(mFace, T.Area, Now.Place), Depth};
        }
        return Flying;
    }

    void DrawFlyer(const Frame& F, const Flyer& Now, int Y0, int Y1) const {
        for (int Y = Y0; Now.Shadow && Y < Y1; ++Y)
            Now.Shape.DrawShadow(F.Row(Y), Y, F.Width, mShadow, Now.Shadow);
        Now.Shape.DrawRows(F, Y0, Y1);
    }

    // The tiles at rest and what lies behind the others, in runs.
    void DrawResting(const Frame& F, const std::uint8_t* Rests, int Y) const {
        const Picture& Face = mStyle.Arrive ? F.New : F.Old;
        const Picture& Back = mStyle.Arrive ? F.Old : F.New;
        const std::uint8_t* Row = Rests + std::int64_t{Y} * mDown / F.Height * mAcross;
        for (int From = 0, To = 0; From < mAcross; From = To) {
            while (To < mAcross && Row[To] == Row[From]) ++To;
            const int X0 = EdgeOf(From, F.Width, mAcross), X1 = EdgeOf(To, F.Width, mAcross);
            CopySpan(F.Row(Y) + X0, (Row[From] ? Face : Back).Row(Y) + X0, X1 - X0);
        }
    }

    HalfSizes mFace;
    Style mStyle;
    int mAcross, mDown;
    int mShadow;  // how far it reaches
    std::vector<Tile> mTiles;
};

Recipe Make(int Count, Style S) {
    return {"Flying Tiles",
            [=](const Pair& P) { return std::make_unique<FlyingTilesEngine>(P, Count, S); }};
}

}  // namespace

Recipe TilesFlyApart(int Count) {
    return Make(Count, {FlyApart, false, 1, 0});
}
Recipe TilesFall(int Count) {
    return Make(Count, {Fall, false, 0, 0});
}
Recipe TilesFlyIn(int Count) {
    return Make(Count, {Thrown, true, 0, 110});
}
Recipe TilesShrink(int Count) {
    return Make(Count, {Shrink, false, 4, 0});
}
Recipe TilesSlide(int Count) {
    return Make(Count, {Slide, true, 0, 90});
}

}  // namespace neb::effects
