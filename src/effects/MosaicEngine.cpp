#include "effects/MosaicEngine.h"

#include <algorithm>

#include "effects/Pixels.h"

namespace neb::effects {
namespace {

struct ColourSum {
    std::uint64_t Low, High;  // red and blue, alpha and green, in halves of 32 bits
};

void Add(ColourSum& S, QRgb C) {
    S.Low += (C & 255u) | (std::uint64_t{C & 0xFF0000u} << 16);
    S.High += ((C >> 8) & 255u) | (std::uint64_t{C >> 24} << 32);
}

QRgb Average(const ColourSum& S, std::uint32_t Count) {
    const auto Part = [Count](std::uint64_t Sum) {
        return (static_cast<std::uint32_t>(Sum) + Count / 2) / Count;
    };
    return Part(S.Low) | Part(S.High) << 8 | Part(S.Low >> 32) << 16 | Part(S.High >> 32) << 24;
}

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

void AddRow(ColourSum* Sums, const QRgb* Row, const Tiling& Across) {
    const int Tiles = Across.TileAt(Across.Length - 1) + 1;
    for (int T = 0; T < Tiles; ++T) {
        ColourSum S = Sums[T];
        for (int X = Across.StartOf(T); X < Across.EndOf(T); ++X) Add(S, Row[X]);
        Sums[T] = S;
    }
}

class MosaicEngine : public Engine {
  public:
    MosaicEngine(QSize Size, int Largest)
        : mLargest(std::max(2, std::max(Size.width(), Size.height()) * Largest / 100)) {}

    void Draw(const Frame& F, int Y0, int Y1) const override {
        const int Side = SideAt(F.Progress);
        const Tiling Across = MakeTiling(F.Width, Side), Down = MakeTiling(F.Height, Side);
        // The colours change over while the tiles are largest.
        const int Weight = Clamp((F.Progress - One * 2 / 5) * 5 >> 8, 0, 256);
        for (int T = Down.TileAt(Y0); T <= Down.TileAt(Y1 - 1); ++T) {
            const int Top = std::max(Y0, Down.StartOf(T)), End = std::min(Y1, Down.EndOf(T));
            DrawTileRow(F, Across, Down.StartOf(T), Down.EndOf(T), Weight, F.Row(Top));
            for (int Y = Top + 1; Y < End; ++Y) CopySpan(F.Row(Y), F.Row(Top), F.Width);
        }
    }

  private:
    int SideAt(int Progress) const {
        return 1 + Scale(mLargest - 1, Scale(Hump(Progress), Hump(Progress)));
    }

    static void DrawTileRow(const Frame& F, const Tiling& Across, int Top, int End, int Weight,
                            QRgb* Out) {
        const int Tiles = Across.TileAt(F.Width - 1) + 1;
        auto* Colours = Scratch<QRgb>(2 * Tiles);
        FindColours(F.Old, Across, Top, End, Colours, Weight < 256);
        FindColours(F.New, Across, Top, End, Colours + Tiles, Weight > 0);
        for (int T = 0; T < Tiles; ++T) {
            const QRgb C = Mix(Colours[T], Colours[Tiles + T], Weight);
            FillSpan(Out + Across.StartOf(T), C, Across.EndOf(T) - Across.StartOf(T));
        }
    }

    static void FindColours(const Picture& P, const Tiling& Across, int Top, int End, QRgb* Colours,
                            bool Wanted) {
        const int Tiles = Across.TileAt(P.Width - 1) + 1;
        std::fill_n(Colours, Tiles, kBlack);
        if (!Wanted) return;
        auto* Sums = Scratch<ColourSum>(Tiles);
        std::fill_n(Sums, Tiles, ColourSum{0, 0});
        for (int Y = Top; Y < End; ++Y) AddRow(Sums, P.Row(Y), Across);
        for (int T = 0; T < Tiles; ++T) {
            const int Count = (Across.EndOf(T) - Across.StartOf(T)) * (End - Top);
            Colours[T] = Average(Sums[T], static_cast<std::uint32_t>(Count));
        }
    }

    int mLargest;
};

}  // namespace

Recipe Mosaic(int Largest) {
    return {"Mosaic", [=](QSize Size) { return std::make_unique<MosaicEngine>(Size, Largest); }};
}

}  // namespace neb::effects
