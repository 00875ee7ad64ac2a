#include "effects/RevealMap.h"

#include <algorithm>
#include <cstring>

#include "effects/Pixels.h"

namespace neb::effects {
namespace {

class PlainReveal : public Engine {
  public:
    explicit PlainReveal(RevealMap Map) : mMap(std::move(Map)) {}
    void Draw(const Frame& F, int Y0, int Y1) const override { mMap.Draw(F, Y0, Y1); }

  private:
    RevealMap mMap;
};

}  // namespace

std::unique_ptr<Engine> RevealEngine(RevealMap Map) {
    return std::make_unique<PlainReveal>(std::move(Map));
}

RevealMap::RevealMap(QSize Size, int SoftBits, const RowMaker& MakeRow)
    : mWidth(Size.width()), mTiles((Size.width() + kTile - 1) / kTile), mSoftBits(SoftBits) {
    std::vector<std::int16_t> Line(static_cast<std::size_t>(mWidth));
    mRowOf.reserve(static_cast<std::size_t>(Size.height()));
    for (int Y = 0; Y < Size.height(); ++Y) {
        MakeRow(Y, Line.data());
        AddRow(Line.data());
    }
}

void RevealMap::AddRow(const std::int16_t* Moments) {
    const auto Width = static_cast<std::size_t>(mWidth);
    const bool Repeats =
        !mRowOf.empty() && std::equal(Moments, Moments + Width, mMoments.end() - mWidth);
    if (!Repeats) {
        mMoments.insert(mMoments.end(), Moments, Moments + Width);
        for (int X = 0; X < mWidth; X += kTile) {
            const auto [Low, High] =
                std::minmax_element(Moments + X, Moments + std::min(X + kTile, mWidth));
            mSpans.push_back({*Low, *High});
        }
    }
    mRowOf.push_back(static_cast<int>(mMoments.size() / Width) - 1);
}

int RevealMap::EdgeAt(int Progress) const {
    return Scale(Levels + (1 << mSoftBits), Progress);
}

const std::int16_t* RevealMap::Row(int Y) const {
    return mMoments.data() + std::size_t(mRowOf[std::size_t(Y)]) * std::size_t(mWidth);
}

RevealMap::Kind RevealMap::KindOf(const Span& S, int Edge) const {
    if (Edge <= S.Low) return Kind::Old;
    if (Edge - S.High >= (1 << mSoftBits)) return Kind::New;
    return Kind::Mixed;
}

void RevealMap::Draw(const Frame& F, int Y0, int Y1) const {
    const int Edge = EdgeAt(F.Progress);
    for (int Y = Y0; Y < Y1; ++Y) {
        const QRgb* Old = F.Old.Row(Y);
        const QRgb* New = F.New.Row(Y);
        const std::int16_t* Moments = Row(Y);
        QRgb* Out = F.Row(Y);
        ForRuns(Y, Edge, [&](Kind What, int X0, int X1) {
            if (What == Kind::Mixed)
                MixByMoments(Out + X0, Old + X0, New + X0, Moments + X0, X1 - X0, Edge, mSoftBits);
            else
                CopySpan(Out + X0, (What == Kind::New ? New : Old) + X0, X1 - X0);
        });
    }
}

NEB_WIDE void MixByMoments(QRgb* Out, const QRgb* Old, const QRgb* New, const std::int16_t* Moments,
                           int Count, int Edge, int SoftBits) {
    constexpr int Chunk = 64;
    std::uint16_t Weights[Chunk * 4];
    const int Shift = SoftBits - 8;
    const auto Far = static_cast<std::int16_t>(Edge);
    for (int X = 0; X < Count; X += Chunk) {
        const int N = std::min(Chunk, Count - X);
        for (int I = 0; I < N; ++I) {
            const int W = Clamp((Far - Moments[X + I]) >> Shift, 0, 256);
            const std::uint64_t Four = static_cast<std::uint64_t>(W) * 0x0001000100010001u;
            std::memcpy(Weights + 4 * I, &Four, sizeof Four);
        }
        const auto* O = reinterpret_cast<const std::uint8_t*>(Old + X);
        const auto* P = reinterpret_cast<const std::uint8_t*>(New + X);
        auto* __restrict To = reinterpret_cast<std::uint8_t*>(Out + X);
        for (int I = 0; I < 4 * N; ++I) {
            const auto A = static_cast<std::uint16_t>(O[I] * (256 - Weights[I]));
            const auto B = static_cast<std::uint16_t>(P[I] * Weights[I]);
            To[I] = static_cast<std::uint8_t>(static_cast<std::uint16_t>(A + B + 128) >> 8);
        }
    }
}

}  // namespace neb::effects
