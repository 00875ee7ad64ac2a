#include "effects/reveals/WipeEngine.h"

#include <algorithm>

#include "effects/drawing/Fixed.h"

namespace neb::effects {
namespace {

// An edge that sets out and arrives gently: half as fast at both ends as without easing.
int Gentle(int Progress) {
    return (Progress + Ease(Progress)) / 2;
}

class WipeEngine : public Engine {
  public:
    explicit WipeEngine(RevealMap Map) : mMap(std::move(Map)) {}
    void Draw(const Frame& F, int Y0, int Y1) const override {
        Frame Eased = F;
        Eased.Progress = Gentle(F.Progress);
        mMap.Draw(Eased, Y0, Y1);
    }

  private:
    RevealMap mMap;
};

// Columns and rows of the whole picture change places, in squares that stay in the cache.
std::vector<std::int16_t> Transposed(const WipeRows& Rows, QSize From) {
    constexpr int Side = 32;
    const int W = From.width(), H = From.height();
    const auto Wide = static_cast<std::size_t>(W), High = static_cast<std::size_t>(H);
    std::vector<std::int16_t> Band(Side * Wide), Out(Wide * High);
    for (int Y0 = 0; Y0 < H; Y0 += Side) {
        const int N = std::min(Side, H - Y0);
        for (int Y = 0; Y < N; ++Y) Rows.Fill(Y0 + Y, Band.data() + std::size_t(Y) * Wide);
        for (std::size_t X = 0; X < Wide; ++X)
            for (std::size_t Y = 0; Y < std::size_t(N); ++Y)
                Out[X * High + std::size_t(Y0) + Y] = Band[Y * Wide + X];
    }
    return Out;
}

// The rows of a shape with columns and rows changed.
class TurnedRows : public WipeRows {
  public:
    TurnedRows(QSize Size, const WipeRows& Rows) : mWidth(Size.width()), mOneRow(Rows.OneRow()) {
        mMoments = Transposed(Rows, mOneRow ? QSize(Size.height(), 1) : Size.transposed());
    }
    void Fill(int Y, std::int16_t* Row) const override {
        const std::int16_t* From = mMoments.data() + std::ptrdiff_t{Y} * (mOneRow ? 1 : mWidth);
        if (mOneRow)
            std::fill_n(Row, mWidth, *From);
        else
            std::copy_n(From, mWidth, Row);
    }

  private:
    int mWidth;
    bool mOneRow;
    std::vector<std::int16_t> mMoments;
};

std::unique_ptr<WipeRows> MakeRows(QSize Size, WipeShape Shape, const WipeForm& Form) {
    if (!Form.Turned) return Shape.Make(Size, Form.Count);
    return std::make_unique<TurnedRows>(Size, *Shape.Make(Size.transposed(), Form.Count));
}

}  // namespace

RevealMap MakeWipeMap(QSize Size, WipeShape Shape, const WipeForm& Form) {
    const auto Rows = MakeRows(Size, Shape, Form);
    const int W = Size.width(), H = Size.height();
    return RevealMap(Size, Form.SoftBits, [&](int Y, std::int16_t* Row) {
        Rows->Fill(Form.FlipY ? H - 1 - Y : Y, Row);
        if (Form.FlipX) std::reverse(Row, Row + W);
        if (!Form.Backwards) return;
        for (int X = 0; X < W; ++X)
            Row[X] = static_cast<std::int16_t>(RevealMap::Levels - 1 - Row[X]);
    });
}

Recipe Wipe(WipeShape Shape, WipeForm Form) {
    return {"Wipe",
            [=](const Pair& P) {
                return std::make_unique<WipeEngine>(MakeWipeMap(P.Size(), Shape, Form));
            },
            true};
}

}  // namespace neb::effects
