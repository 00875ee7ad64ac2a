// For each pixel the moment at which it turns from the old picture to the new one. The base of
// all wipes and dissolves: whole runs are copied, only the soft edge between them is mixed.
#pragma once

#include <cstdint>
#include <cstring>
#include <functional>
#include <span>
#include <vector>

#include "effects/drawing/Engine.h"

namespace neb::effects {

class RevealMap {
  public:
    static constexpr int Levels = 1 << 14;  // moments run from 0 to Levels - 1
    // Fills one row of moments.
    using RowMaker = std::function<void(int Y, std::int16_t* Row)>;

    // SoftBits: the softness of the edge is 2^SoftBits moments; 8 (hard) to 13.
    RevealMap(QSize Size, int SoftBits, const RowMaker& MakeRow);

    // How far the edge has come at a progress: a pixel is wholly new once its moment and the
    // softness lie behind the edge.
    int EdgeAt(int Progress) const;
    int SoftBits() const { return mSoftBits; }
    const std::int16_t* Row(int Y) const;
    // How many rows are kept; rows that repeat the one above or mirror one are kept once.
    int KeptRows() const { return static_cast<int>(mKept); }

    void Draw(const Frame& F, int Y0, int Y1) const;

    // One run of a row: all old, all new, or to be mixed.
    enum class Kind : std::uint8_t { Old, Mixed, New };
    // Calls Take(Kind, X0, X1) for the runs of a row from left to right.
    template <typename Taker>
    void ForRuns(int Y, int Edge, Taker&& Take) const;

  private:
    static constexpr int kTile = 32;
    static constexpr int kGroup = 8;  // tiles that are looked at together

    struct Run {
        Kind What;
        int X0, X1;
    };

    std::size_t RowOf(int Y) const { return mRowOf[static_cast<std::size_t>(Y)]; }
    bool SameAs(const std::int16_t* Moments, std::size_t Kept) const;
    std::size_t Keep(const std::int16_t* Moments);
    void AddRow(const std::int16_t* Moments, int Height);
    // The kinds of the tiles of a row, filled up with the last one to whole groups.
    const Kind* FindKinds(int Y, int Edge) const;
    // Good until the next call on this thread.
    std::span<const Run> FindRuns(int Y, int Edge) const;
    void DrawRow(const Frame& F, std::span<const Run> Runs, int Y, int Edge) const;

    int mWidth;
    int mTiles;
    int mGroups;
    int mSoftBits;
    std::size_t mKept = 0;
    std::vector<std::int16_t> mMoments;     // rows without repeats
    std::vector<std::int16_t> mLow, mHigh;  // the range of each tile of those rows
    std::vector<std::size_t> mRowOf;        // which of those rows a row of the picture has
};

// The plain use of a map: an engine that does nothing else.
std::unique_ptr<Engine> RevealEngine(RevealMap Map);

// Mixes by the moments of a run: weight 0 where the edge has not come, 256 where it has passed.
void MixByMoments(QRgb* Out, const QRgb* Old, const QRgb* New, const std::int16_t* Moments,
                  int Count, int Edge, int SoftBits);

template <typename Taker>
void RevealMap::ForRuns(int Y, int Edge, Taker&& Take) const {
    const Kind* Kinds = FindKinds(Y, Edge);
    int Start = 0;
    Kind Now = Kinds[0];
    for (int G = 0; G < mGroups; ++G) {
        Kind Same[kGroup];
        std::memset(Same, static_cast<int>(Now), sizeof Same);
        if (std::memcmp(Same, Kinds + G * kGroup, sizeof Same) == 0) continue;
        for (int T = G * kGroup; T < (G + 1) * kGroup; ++T) {
            if (Kinds[T] == Now) continue;
            if (T > 0) Take(Now, Start, T * kTile);
            Start = T * kTile;
            Now = Kinds[T];
        }
    }
    Take(Now, Start, mWidth);
}

}  // namespace neb::effects
