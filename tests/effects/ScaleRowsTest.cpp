#include "effects/drawing/ScaleRows.h"

#include <gtest/gtest.h>

#include <array>
#include <numeric>
#include <vector>

#include "effects/drawing/Pixels.h"

using namespace neb::effects;

namespace {

ScaledAxis AxisOf(int Size, std::int64_t Start, std::int64_t Length, bool Mirrored = false) {
    ScaledAxis A;
    A.Start = Start;
    A.Length = Length;
    A.Size = A.Pixels = Size;
    A.Mirrored = Mirrored;
    return A;
}

// Grown, of full size, shrunk, moved, mirrored beyond its sides; pictures of few pixels, too.
std::vector<ScaledAxis> SomeAxes() {
    std::vector<ScaledAxis> Out;
    for (const int Size : {1, 2, 3, 4, 5, 97, 300})
        for (const int Percent : {250, 133, 100, 99, 75, 51})
            for (const bool Mirrored : {false, true}) {
                const std::int64_t Length = (std::int64_t{Size} << 16) * Percent / 100;
                Out.push_back(AxisOf(Size, 0, Length, Mirrored));
                Out.push_back(AxisOf(Size, ((std::int64_t{Size} << 16) - Length) / 2 + 1234, Length,
                                     Mirrored));
            }
    return Out;
}

struct Columns {
    std::vector<int> Start;
    std::vector<std::int16_t> Share;
    ColumnTaps Taps;
    Columns(const ScaledAxis& A, int Count)
        : Start(std::size_t(Count)),
          Share(std::size_t(Count * kTaps)),
          Taps{Start.data(), Share.data()} {
        FillColumns(Taps, A, 0, Count);
    }
};

int PartOf(QRgb C, int Bit) {
    return static_cast<int>((C >> Bit) & 255u);
}

}  // namespace

TEST(ScaleRows, TheSharesOfAPixelAreWholeTogetherAndOfPixelsThatAreThere) {
    for (const ScaledAxis& A : SomeAxes())
        for (int X = -5; X < A.Size + 5; ++X) {
            const Taps T = TapFinder(A).At(X);
            ASSERT_EQ(std::accumulate(T.Share, T.Share + kTaps, 0), kShares);
            ASSERT_GE(T.Start, 0);
            for (int I = 0; I < kTaps; ++I) {
                ASSERT_GE(T.Share[I], 0);
                ASSERT_TRUE(T.Share[I] == 0 || T.Start + I < A.Pixels);
            }
            ASSERT_TRUE(A.Pixels < kTaps || T.Start + kTaps <= A.Pixels);
        }
}

TEST(ScaleRows, APictureOfFullSizeIsReadPixelForPixel) {
    const ScaledAxis A = AxisOf(50, 0, std::int64_t{50} << 16);
    EXPECT_TRUE(A.IsWhole());
    for (int X = 0; X < 50; ++X) {
        const Taps T = TapFinder(A).At(X);
        EXPECT_EQ(T.Share[X - T.Start], kShares) << X;
    }
}

TEST(ScaleRows, AShrunkPictureIsReadWithoutGaps) {
    for (const int Percent : {90, 75, 66, 51}) {
        const ScaledAxis A = AxisOf(200, 0, (std::int64_t{200} << 16) * Percent / 100);
        std::array<int, 204> Read{};
        for (int X = 0; X < 2 * Percent; ++X) {
            const Taps T = TapFinder(A).At(X);
            for (int I = 0; I < kTaps; ++I) Read[std::size_t(T.Start + I)] += T.Share[I];
        }
        // Each pixel of the picture counts for what it takes of the frame, nearly.
        for (std::size_t X = 2; X < 198; ++X)
            EXPECT_NEAR(Read[X], kShares * Percent / 100, kShares * 3 / 10) << X << " " << Percent;
    }
}

TEST(ScaleRows, ARowIsWhatEachOfItsPixelsIsAlone) {
    for (const ScaledAxis& A : SomeAxes()) {
        std::vector<QRgb> Row(std::size_t(std::max(kTaps, A.Pixels)));
        for (std::uint32_t X = 0; X < Row.size(); ++X) Row[X] = Hash(X, 1, 2) | kBlack;
        const Columns C(A, A.Size);
        std::vector<QRgb> Out(std::size_t(A.Size));
        ScaleRow(Out.data(), Row.data(), C.Taps, 0, A.Size);
        for (int X = 0; X < A.Size; ++X)
            for (int Bit = 0; Bit < 32; Bit += 8) {
                int Sum = kShares / 2;
                const Taps T = TapFinder(A).At(X);
                for (int I = 0; I < kTaps; ++I)
                    Sum += PartOf(Row[std::size_t(T.Start + I)], Bit) * T.Share[I];
                ASSERT_EQ(PartOf(Out[std::size_t(X)], Bit), Sum / kShares) << X << " " << A.Size;
            }
    }
}

TEST(ScaleRows, APartOfARowIsAsInTheWholeRow) {
    const ScaledAxis A = AxisOf(120, -30 * One, std::int64_t{200} << 16);
    std::vector<QRgb> Row(120), Whole(120), Part(120);
    for (std::uint32_t X = 0; X < Row.size(); ++X) Row[X] = Hash(X, 4, 2) | kBlack;
    const Columns C(A, 120);
    ScaleRow(Whole.data(), Row.data(), C.Taps, 0, 120);
    ScaleRow(Part.data(), Row.data(), C.Taps, 13, 90);
    for (std::size_t X = 13; X < 90; ++X) EXPECT_EQ(Part[X - 13], Whole[X]);
}

TEST(ScaleRows, TheRimIsCoveredByAsMuchAsLiesInIt) {
    const ScaledAxis A = AxisOf(10, 2 * One + One / 4, 3 * One);
    EXPECT_EQ(A.TouchedFrom(10), 2);
    EXPECT_EQ(A.FilledFrom(10), 3);
    EXPECT_EQ(A.FilledTo(10), 5);
    EXPECT_EQ(A.TouchedTo(10), 6);
    EXPECT_EQ(A.CoverageAt(1), 0);
    EXPECT_EQ(A.CoverageAt(2), 192);
    EXPECT_EQ(A.CoverageAt(4), 256);
    EXPECT_EQ(A.CoverageAt(5), 64);
    EXPECT_EQ(A.CoverageAt(6), 0);
}

TEST(ScaleRows, FourRowsAreMixedByTheirWeights) {
    const QRgb A[9] = {0xFF000000u}, B[9] = {0xFF404040u}, C[9] = {0xFF808080u},
               D[9] = {0xFFFFFFFFu};
    const QRgb* Rows[] = {A, B, C, D};
    const int Weights[] = {64, 64, 64, 64};
    QRgb Out[9];
    MixRows(Out, Rows, Weights, 9);
    EXPECT_EQ(Out[0], 0xFF707070u);
}
