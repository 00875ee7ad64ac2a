// For each pixel the moment at which it turns from the old picture to the new one. The base of
// all wipes and dissolves: whole runs are copied, only the soft edge between them is mixed.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "effects/Engine.h"

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

    void Draw(const Frame& F, int Y0, int Y1) const;

    // One run of a row: all old, all new, or to be mixed.
    enum class Kind { Old, New, Mixed };
    // Calls Take(Kind, X0, X1) for the runs of a row from left to right.
    template <typename Taker>
    void ForRuns(int Y, int Edge, Taker&& Take) const;

  private:
    static constexpr int kTile = 64;
    struct Span {
        std::int16_t Low, High;
    };
    Kind KindOf(const Span& S, int Edge) const;
    void AddRow(const std::int16_t* Moments);

    int mWidth;
    int mTiles;
    int mSoftBits;
    std::vector<std::int16_t> mMoments;  // rows without repeats
    std::vector<Span> mSpans;            // the range of each tile of those rows
    std::vector<int> mRowOf;             // which of those rows a row of the picture has
};

// The plain use of a map: an engine that does nothing else.
std::unique_ptr<Engine> RevealEngine(RevealMap Map);

// Mixes by the moments of a run: weight 0 where the edge has not come, 256 where it has passed.
void MixByMoments(QRgb* Out, const QRgb* Old, const QRgb* New, const std::int16_t* Moments,
                  int Count, int Edge, int SoftBits);

template <typename Taker>
void RevealMap::ForRuns(int Y, int Edge, Taker&& Take) const {
    const Span* Spans = mSpans.data() + mRowOf[static_cast<std::size_t>(Y)] * mTiles;
    int Start = 0;
    Kind Now = KindOf(Spans[0], Edge);
    for (int T = 1; T < mTiles; ++T) {
        const Kind Next = KindOf(Spans[T], Edge);
        if (Next == Now) continue;
        Take(Now, Start, T * kTile);
        Start = T * kTile;
        Now = Next;
    }
    Take(Now, Start, mWidth);
}

}  // namespace neb::effects
