#include "effects/Sampling.h"

#include <gtest/gtest.h>

#include "effects/Pictures.h"

using namespace neb::effects;
using namespace neb::effectstest;

namespace {

Picture PictureOf(const QImage& P) {
    return {reinterpret_cast<const QRgb*>(P.constBits()), P.bytesPerLine() / qsizetype{4},
            P.width(), P.height()};
}

}  // namespace

TEST(SamplePlaces, ReadsManyPlacesAsItReadsEachAlone) {
    for (const QSize Size : {QSize(1, 1), QSize(1, 9), QSize(9, 1), QSize(2, 2), QSize(37, 21)}) {
        const QImage Image = Scene(Size, 3);
        const Picture P = PictureOf(Image);
        std::vector<int> U, V;
        for (std::uint32_t I = 0; I < 1003; ++I) {
            U.push_back(static_cast<int>(Hash(I, 0, 1) % 45u << 16 | Hash(I, 1, 1) >> 16) -
                        4 * One);
            V.push_back(static_cast<int>(Hash(I, 2, 1) % 29u << 16 | Hash(I, 3, 1) >> 16) -
                        4 * One);
        }
        U[5] = V[6] = INT_MIN;
        U[7] = V[8] = INT_MAX;
        std::vector<QRgb> Out(U.size());
        SamplePlaces(Out.data(), P, U.data(), V.data(), static_cast<int>(Out.size()));
        for (std::size_t I = 0; I < Out.size(); ++I)
            ASSERT_EQ(Out[I], Sample(P, U[I], V[I])) << I << " " << Size.width();
    }
}
