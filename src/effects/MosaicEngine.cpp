#include "effects/MosaicEngine.h"

#include <algorithm>

#include "effects/Pixels.h"

namespace neb::effects {
namespace {

constexpr int kLargestSide = 256;  // the sums of so many bytes fit 16 bits

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

NEB_WIDE void AddRow(std::uint16_t* Sums, const QRgb* Row, int Count) {
    const auto* From = reinterpret_cast<const std::uint8_t*>(Row);
    for (int I = 0; I < 4 * Count; ++I) Sums[I] = static_cast<std::uint16_t>(Sums[I] + From[I]);
}

// One divided by a number of pixels, of 2^32; nearly all tiles ask for the same number.
class Share {
  public:
    std::uint64_t Of(int Count) {
        const auto N = static_cast<std::uint64_t>(Count);
        if (Count != mCount) mShare = ((std::uint64_t{1} << 32) + N / 2) / N;
        mCount = Count;
        return mShare;
    }

  private:
    int mCount = 0;
    std::uint64_t mShare = 0;
};

// The mean of Width sums of four parts each.
QRgb Average(const std::uint16_t* Sums, int Width, std::uint64_t OneByCount) {
    std::uint32_t Part[4] = {0, 0, 0, 0};
    for (int X = 0; X < Width; ++X)
        for (int K = 0; K < 4; ++K) Part[K] += Sums[4 * X + K];
    QRgb Out = 0;
    for (int K = 0; K < 4; ++K)
        Out |= static_cast<QRgb>((Part[K] * OneByCount + (std::uint64_t{1} << 31)) >> 32)
               << (8 * K);
    return Out;
}

class MosaicEngine : public Engine {
  public:
    MosaicEngine(QSize Size, int Largest)
        : mLargest(
              std::clamp(std::max(Size.width(), Size.height()) * Largest / 100, 2, kLargestSide)) {}

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
        auto* Colours = Scratch<QRgb, MosaicEngine>(2 * Tiles);
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
        auto* Sums = Scratch<std::uint16_t, MosaicEngine>(4 * P.Width);
        std::fill_n(Sums, 4 * P.Width, std::uint16_t{0});
        for (int Y = Top; Y < End; ++Y) AddRow(Sums, P.Row(Y), P.Width);
        Share Shares;
        for (int T = 0; T < Tiles; ++T) {
            const int X = Across.StartOf(T), Width = Across.EndOf(T) - X;
            Colours[T] = Average(Sums + 4 * X, Width, Shares.Of(Width * (End - Top)));
        }
    }

    int mLargest;
};

}  // namespace

Recipe Mosaic(int Largest) {
    return {"Mosaic",
            [=](const Pair& P) { return std::make_unique<MosaicEngine>(P.Size(), Largest); }};
}

}  // namespace neb::effects
