#include "effects/whole/MosaicEngine.h"

#include <algorithm>
#include <vector>

#include "effects/drawing/Pyramid.h"
#include "effects/drawing/Sampling.h"

namespace neb::effects {
namespace {

// Tiles lie evenly about the middle, so that none of them wanders as they grow.
struct Tiling {
    int Length, Side, First;  // First: the first tile's start, 0 or below
    int StartOf(int Tile) const { return std::max(0, First + Tile * Side); }
    int EndOf(int Tile) const { return std::min(Length, First + (Tile + 1) * Side); }
    int TileAt(int Place) const { return (Place - First) / Side; }
};

Tiling MakeTiling(int Length, int Side) {
    const int Half = Length / 2 % Side;
    return {Length, Side, Half == 0 ? 0 : Half - Side};
}

class MosaicEngine : public Engine {
  public:
    MosaicEngine(const Pair& P, int Largest)
        : mLargest(std::max(2, std::max(P.Old.Width, P.Old.Height) * Largest / 100)),
          mOld(P.Old, LevelOfSide(mLargest) + 1),
          mNew(P.New, LevelOfSide(mLargest) + 1) {}

    void Draw(const Frame& F, int Y0, int Y1) const override {
        const int Side = SideAt(F.Progress);
        // The colours change over while the tiles are largest.
        const int Weight = Clamp((F.Progress - One * 2 / 5) * 5 >> 8, 0, 256);
        if (Side == 1) return DrawPixels(F, Weight, Y0, Y1);
        const Tiling Across = MakeTiling(F.Width, Side), Down = MakeTiling(F.Height, Side);
        for (int T = Down.TileAt(Y0); T <= Down.TileAt(Y1 - 1); ++T) {
            const int Top = std::max(Y0, Down.StartOf(T)), End = std::min(Y1, Down.EndOf(T));
            DrawTileRow(Across, Down.First + T * Side, Weight, F.Row(Top));
            for (int Y = Top + 1; Y < End; ++Y) CopySpan(F.Row(Y), F.Row(Top), F.Width);
        }
    }

  private:
    static int LevelOfSide(int Side) {
        int Level = 0;
        while (Side >> (Level + 1)) ++Level;
        return Level;
    }

    // Slow to begin with, but never so slow that nothing happens.
    int SideAt(int Progress) const {
        const int H = Hump(Progress);
        return 1 + Scale(mLargest - 1, Scale(H, (One + H) / 2));
    }

    static void DrawPixels(const Frame& F, int Weight, int Y0, int Y1) {
        for (int Y = Y0; Y < Y1; ++Y)
            MixSpan(F.Row(Y), F.Old.Row(Y), F.New.Row(Y), Weight, F.Width);
    }

    void DrawTileRow(const Tiling& Across, int Top, int Weight, QRgb* Out) const {
        const int Tiles = Across.TileAt(Across.Length - 1) + 1;
        QRgb* Colours = Scratch<QRgb, MosaicEngine>(3 * Tiles);
        QRgb* Old = Colours + 2 * Tiles;
        if (Weight < 256) FindColours(mOld, Across, Top, Tiles, Colours);
        if (Weight > 0) {
            CopySpan(Old, Colours, Tiles);
            FindColours(mNew, Across, Top, Tiles, Colours);
            MixSpan(Colours, Old, Colours, Weight, Tiles);
        }
        // Small tiles four pixels at a time, the next one putting right what is too much.
        const int Quick = Across.Side <= 4 ? std::max(1, Tiles - 4) : 1;
        for (int T = 1; T < Quick; ++T)
            for (int I = 0; I < 4; ++I) Out[Across.First + T * Across.Side + I] = Colours[T];
        FillSpan(Out, Colours[0], Across.EndOf(0));
        for (int T = Quick; T < Tiles; ++T)
            FillSpan(Out + Across.StartOf(T), Colours[T], Across.EndOf(T) - Across.StartOf(T));
    }

    // The colour of a tile is what the two levels whose pixels are nearest to its size show in
    // its middle.
    static void FindColours(const Pyramid& P, const Tiling& Across, int Top, int Tiles,
                            QRgb* Colours) {
        const int Level = LevelOfSide(Across.Side);
        const int Coarser = ((Across.Side << 8) >> Level) - 256;
        FindMiddles(P.Level(Level), Level, Across, Top, Tiles, Colours);
        if (Coarser == 0) return;
        FindMiddles(P.Level(Level + 1), Level + 1, Across, Top, Tiles, Colours + Tiles);
        MixSpan(Colours, Colours, Colours + Tiles, Coarser, Tiles);
    }

    static void FindMiddles(const Picture& P, int Level, const Tiling& Across, int Top, int Tiles,
                            QRgb* Colours) {
        const auto MiddleOf = [=](std::int64_t Start) {
            return static_cast<int>((2 * Start + Across.Side) * (One / 2) >> Level) - One / 2;
        };
        int* U = Scratch<int, Tiling>(2 * Tiles);
        int* V = U + Tiles;
        for (int T = 0; T < Tiles; ++T) U[T] = MiddleOf(Across.First + T * Across.Side);
        std::fill_n(V, Tiles, MiddleOf(Top));
        SamplePlaces(Colours, P, U, V, Tiles);
    }

    int mLargest;
    Pyramid mOld, mNew;
};

// Squares of the sizes 2^Least to 2^Most, each size cut from the next: in a ring that grows out of
// the middle the squares first double and then halve.
class RingEngine : public Engine {
  public:
    explicit RingEngine(const Pair& P)
        : mMost(LevelOfParts(P.Size(), 24)),
          mLeast(std::max(1, mMost - 3)),
          mOld(P.Old, mMost),
          mNew(P.New, mMost) {
        for (int L = 0; L <= mMost; ++L) mWays.push_back(MakeWays(L));
    }

    void Draw(const Frame& F, int Y0, int Y1) const override {
        Turn* Turns = Scratch<Turn, RingEngine>(kWays);
        for (int Way = 0; Way < kWays; ++Way) Turns[Way] = TurnAt(Way, F.Progress);
        const int Side = 1 << mLeast, Cells = (F.Width + Side - 1) >> mLeast;
        Cell* Row = Scratch<Cell, RingEngine>(Cells);
        for (int Y = Y0; Y < Y1; ++Y) {
            if (Y == Y0 || Y % Side == 0) FindCells(Row, Turns, Y >> mLeast, Cells);
            DrawRow(F, Row, Y, Cells);
        }
    }

  private:
    static constexpr int kWays = 1024;
    // What a square at some way from the middle looks like: cut into squares of a level (0: not at
    // all), and how much of the new picture it has.
    struct Turn {
        int Level, Weight;
    };
    enum class Kind { Old, New, Square };
    struct Cell {
        Kind What;
        QRgb Colour;
    };

    Turn TurnAt(int Way, int Progress) const {
        constexpr int Width = One * 3 / 4;  // of the ring
        const int Begin = static_cast<int>(std::int64_t{Way} * One / kWays);
        const std::int64_t Behind = Scale(One + Width, Progress) - Begin;
        const int Part = static_cast<int>(std::clamp<std::int64_t>(Behind * One / Width, 0, One));
        const int Larger = Scale(mMost - mLeast + 1, Hump(Part));
        const int Level = std::min(mMost, mLeast + Larger);
        const bool Cut = Part > 0 && Part < One && Level >= mLeast;
        return {Cut ? Level : 0, Clamp((Part - One * 2 / 5) * 5 >> 8, 0, 256)};
    }

    // How far the squares of a level lie from the middle, kWays - 1 at most.
    std::vector<std::uint16_t> MakeWays(int Level) const {
        std::vector<std::uint16_t> Out;
        const Picture Whole = mOld.Level(0), P = mOld.Level(Level);
        const std::int64_t Width = Whole.Width, Height = Whole.Height, Side = 1 << Level;
        const int Reach = Root((Width * Width + Height * Height) * 256) + 64;
        for (int Y = 0; Y < P.Height && Level >= mLeast; ++Y)
            for (int X = 0; X < P.Width; ++X) {
                const std::int64_t Dx = (2 * X + 1) * Side - Width,
                                   Dy = (2 * Y + 1) * Side - Height;
                const std::int64_t Way = Root((Dx * Dx + Dy * Dy) * 256);
                Out.push_back(static_cast<std::uint16_t>(
                    std::min<std::int64_t>(kWays - 1, Way * kWays / Reach)));
            }
        return Out;
    }

    void FindCells(Cell* Row, const Turn* Turns, int Y, int Cells) const {
        for (int X = 0; X < Cells; ++X) Row[X] = CellAt(Turns, X, Y);
    }

    Cell CellAt(const Turn* Turns, int X, int Y) const {
        int Weight = 0;
        for (int Level = mMost; Level >= mLeast; --Level) {
            const int Up = Level - mLeast, Cx = X >> Up, Cy = Y >> Up;
            const Picture Old = mOld.Level(Level), New = mNew.Level(Level);
            const auto At = std::size_t(Cy) * std::size_t(Old.Width) + std::size_t(Cx);
            const Turn& T = Turns[mWays[std::size_t(Level)][At]];
            Weight = T.Weight;
            if (T.Level >= Level)
                return {Kind::Square, Mix(Old.Row(Cy)[Cx], New.Row(Cy)[Cx], Weight)};
        }
        return {Weight < 128 ? Kind::Old : Kind::New, kBlack};
    }

    void DrawRow(const Frame& F, const Cell* Row, int Y, int Cells) const {
        const QRgb* Old = F.Old.Row(Y);
        const QRgb* New = F.New.Row(Y);
        QRgb* Out = F.Row(Y);
        for (int C = 0; C < Cells;) {
            const int First = C, X = C << mLeast;
            while (C < Cells && Row[C].What == Row[First].What &&
                   Row[C].Colour == Row[First].Colour)
                ++C;
            const int Count = std::min(F.Width, C << mLeast) - X;
            if (Row[First].What == Kind::Square)
                FillSpan(Out + X, Row[First].Colour, Count);
            else
                CopySpan(Out + X, (Row[First].What == Kind::Old ? Old : New) + X, Count);
        }
    }

    int mMost, mLeast;
    Pyramid mOld, mNew;
    std::vector<std::vector<std::uint16_t>> mWays;
};

}  // namespace

Recipe Mosaic(int Largest) {
    return {"Mosaic", [=](const Pair& P) { return std::make_unique<MosaicEngine>(P, Largest); }};
}

Recipe MosaicRing() {
    return {"Mosaic", [](const Pair& P) { return std::make_unique<RingEngine>(P); }};
}

}  // namespace neb::effects
