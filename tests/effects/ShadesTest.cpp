#include "effects/reveals/Shades.h"

#include <gtest/gtest.h>

#include "effects/Pictures.h"

using namespace neb::effects;

namespace {

constexpr int kCount = 700, kSoft = 10;
constexpr Stop kStops[] = {neb::effects::Plain(0, 0), Covered(60, 40, 0xFFFF8000u, 200),
                           Lit(120, 128, 0xFF80C0FFu), Filtered(200, 200, 0xFF406080u),
                           neb::effects::Plain(256, 256)};

struct Row {
    QImage Old = neb::effectstest::Scene({kCount, 1}, 1);
    QImage New = neb::effectstest::Scene({kCount, 1}, 2);
    std::vector<std::int16_t> Moments;
    Row() {
        for (int X = 0; X < kCount; ++X) Moments.push_back(static_cast<std::int16_t>(X * 3));
    }
    const QRgb* OldAt(int X) const { return reinterpret_cast<const QRgb*>(Old.constBits()) + X; }
    const QRgb* NewAt(int X) const { return reinterpret_cast<const QRgb*>(New.constBits()) + X; }
    std::vector<QRgb> Drawn(const Shades& S, int Edge, int Piece) const {
        std::vector<QRgb> Out(kCount);
        for (int X = 0; X < kCount; X += Piece)
            S.Draw(&Out[static_cast<std::size_t>(X)], OldAt(X), NewAt(X), &Moments[std::size_t(X)],
                   std::min(Piece, kCount - X), Edge, kSoft);
        return Out;
    }
};

}  // namespace

TEST(Shades, DrawManyPixelsAsTheyDrawFew) {
    const Row R;
    const Shades S(kStops);
    for (const int Edge : {0, 300, 1024, 2000, 3500})
        EXPECT_EQ(R.Drawn(S, Edge, kCount), R.Drawn(S, Edge, 7));
}

TEST(Shades, LeaveAloneWhatTheEdgeHasNotReachedAndWhatItHasPassed) {
    const Row R;
    const auto Drawn = R.Drawn(Shades(kStops), 1500, kCount);
    for (int X = 500; X < kCount; ++X) ASSERT_EQ(Drawn[std::size_t(X)], *R.OldAt(X)) << X;
    for (int X = 0; X <= (1500 - 1024) / 3; ++X) ASSERT_EQ(Drawn[std::size_t(X)], *R.NewAt(X)) << X;
}

TEST(Shades, NeverRunOverWhite) {
    const Stop Bright[] = {neb::effects::Plain(0, 0), Lit(128, 128, 0xFFFFFFFFu),
                           neb::effects::Plain(256, 256)};
    const std::vector<QRgb> White(300, 0xFFFFFFFFu);
    std::vector<std::int16_t> Moments;
    for (int X = 0; X < 300; ++X) Moments.push_back(static_cast<std::int16_t>(X));
    std::vector<QRgb> Out(300);
    Shades(Bright).Draw(Out.data(), White.data(), White.data(), Moments.data(), 300, 300, 8);
    for (const QRgb C : Out) EXPECT_GE(qGreen(C), 253);
}
