#include "effects/reveals/RevealMap.h"

#include <algorithm>

#include "effects/drawing/Pixels.h"

namespace neb::effects {
namespace {

class PlainReveal : public Engine {
  public:
    explicit PlainReveal(RevealMap Map) : mMap(std::move(Map)) {}
    void Draw(const Frame& F, int Y0, int Y1) const override { mMap.Draw(F, Y0, Y1); }

  private:
    RevealMap mMap;
};

NEB_WIDE void FindRange(const std::int16_t* Moments, int Count, std::int16_t& Low,
                        std::int16_t& High) {
    std::int16_t Least = Moments[0], Most = Moments[0];
    for (int I = 1; I < Count; ++I) {
        Least = std::min(Least, Moments[I]);
        Most = std::max(Most, Moments[I]);
    }
    Low = Least;
    High = Most;
}

// Adds up what holds of a tile: the edge has come to it, the edge has left it.
NEB_WIDE void Classify(const std::int16_t* Low, const std::int16_t* High, std::uint8_t* Kinds,
                       int Count, std::int16_t Edge, std::int16_t Passed) {
    NEB_INDEPENDENT
    for (int I = 0; I < Count; ++I)
        Kinds[I] = static_cast<std::uint8_t>((Low[I] < Edge ? 1 : 0) + (High[I] <= Passed ? 1 : 0));
}

}  // namespace

std::unique_ptr<Engine> RevealEngine(RevealMap Map) {
    return std::make_unique<PlainReveal>(std::move(Map));
}

RevealMap::RevealMap(QSize Size, int SoftBits, const RowMaker& MakeRow)
    : mWidth(Size.width()),
      mTiles((Size.width() + kTile - 1) / kTile),
      mGroups((mTiles + kGroup - 1) / kGroup),
      mSoftBits(SoftBits) {
    const auto Height = static_cast<std::size_t>(Size.height());
    std::vector<std::int16_t> Line(static_cast<std::size_t>(mWidth));
    mMoments.reserve(Height * Line.size());  // only what is written takes up memory
    mLow.reserve(Height * static_cast<std::size_t>(mTiles));
    mHigh.reserve(Height * static_cast<std::size_t>(mTiles));
    mRowOf.reserve(Height);
    for (int Y = 0; Y < Size.height(); ++Y) {
        MakeRow(Y, Line.data());
        AddRow(Line.data(), Size.height());
    }
}

bool RevealMap::SameAs(const std::int16_t* Moments, std::size_t Kept) const {
    const auto Width = static_cast<std::size_t>(mWidth);
    return std::equal(Moments, Moments + Width, mMoments.data() + Kept * Width);
}

std::size_t RevealMap::Keep(const std::int16_t* Moments) {
    mMoments.insert(mMoments.end(), Moments, Moments + mWidth);
    for (int X = 0; X < mWidth; X += kTile) {
        std::int16_t Low, High;
        FindRange(Moments + X, std::min(kTile, mWidth - X), Low, High);
        mLow.push_back(Low);
        mHigh.push_back(High);
    }
    return mKept++;
}

void RevealMap::AddRow(const std::int16_t* Moments, int Height) {
    const int Y = static_cast<int>(mRowOf.size()), Mirror = Height - 1 - Y;
    if (Y > 0 && SameAs(Moments, RowOf(Y - 1)))
        mRowOf.push_back(RowOf(Y - 1));
    else if (Mirror < Y && Y > 0 && SameAs(Moments, RowOf(Mirror)))
        mRowOf.push_back(RowOf(Mirror));
    else
        mRowOf.push_back(Keep(Moments));
}

int RevealMap::EdgeAt(int Progress) const {
    return Scale(Levels + (1 << mSoftBits), Progress);
}

const std::int16_t* RevealMap::Row(int Y) const {
    return mMoments.data() + RowOf(Y) * static_cast<std::size_t>(mWidth);
}

const RevealMap::Kind* RevealMap::FindKinds(int Y, int Edge) const {
    auto* Kinds = Scratch<Kind, RevealMap>(mGroups * kGroup);
    const std::size_t First = RowOf(Y) * static_cast<std::size_t>(mTiles);
    Classify(mLow.data() + First, mHigh.data() + First, reinterpret_cast<std::uint8_t*>(Kinds),
             mTiles, static_cast<std::int16_t>(Edge),
             static_cast<std::int16_t>(Edge - (1 << mSoftBits)));
    std::fill(Kinds + mTiles, Kinds + mGroups * kGroup, Kinds[mTiles - 1]);
    return Kinds;
}

std::span<const RevealMap::Run> RevealMap::FindRuns(int Y, int Edge) const {
    Run* Room = Scratch<Run, RevealMap>(mTiles);
    std::size_t Count = 0;
    ForRuns(Y, Edge, [&](Kind What, int X0, int X1) { Room[Count++] = {What, X0, X1}; });
    return {Room, Count};
}

void RevealMap::DrawRow(const Frame& F, std::span<const Run> Runs, int Y, int Edge) const {
    const QRgb* Old = F.Old.Row(Y);
    const QRgb* New = F.New.Row(Y);
    const std::int16_t* Moments = Row(Y);
    QRgb* Out = F.Row(Y);
    for (const auto& [What, X0, X1] : Runs)
        if (What == Kind::Mixed)
            MixByMoments(Out + X0, Old + X0, New + X0, Moments + X0, X1 - X0, Edge, mSoftBits);
        else
            CopySpan(Out + X0, (What == Kind::New ? New : Old) + X0, X1 - X0);
}

// The rows of a straight edge are all alike, those of many others by turns.
void RevealMap::Draw(const Frame& F, int Y0, int Y1) const {
    const int Edge = EdgeAt(F.Progress);
    std::span<const Run> Runs;
    for (int Y = Y0; Y < Y1; ++Y) {
        if (Y == Y0 || RowOf(Y) != RowOf(Y - 1)) Runs = FindRuns(Y, Edge);
        DrawRow(F, Runs, Y, Edge);
    }
}

}  // namespace neb::effects
