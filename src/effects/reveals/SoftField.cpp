#include "effects/reveals/SoftField.h"

#include <algorithm>

#include "effects/drawing/Pixels.h"

namespace neb::effects {
namespace {

constexpr std::uint32_t kSeed = 20011;
constexpr int kStep = SoftField::Step;

std::uint32_t U(int I) {
    return static_cast<std::uint32_t>(I);
}

// One size of clouds: noise at the corners of cells, eased between. Columns are worked out once.
class Octave {
  public:
    Octave(int Cell, int Number, int Count) : mCell(std::max(2, Cell)), mSeed(kSeed + U(Number)) {
        for (int I = 0; I < Count; ++I) mColumns.push_back(PlaceOf(I * kStep));
        mNodes.resize(std::size_t(Count * kStep / mCell) + 2);
    }

    void Add(int Y, int Weight, int* Row) {
        const Place Down = PlaceOf(Y);
        for (std::size_t I = 0; I < mNodes.size(); ++I) {
            const int X = static_cast<int>(I);
            mNodes[I] = Between(Noise(X, Down.Cell), Noise(X, Down.Cell + 1), Down.Part);
        }
        for (std::size_t I = 0; I < mColumns.size(); ++I) {
            const int* N = mNodes.data() + mColumns[I].Cell;
            Row[I] += Weight * Between(N[0], N[1], mColumns[I].Part);
        }
    }

  private:
    struct Place {
        int Cell, Part;
    };
    Place PlaceOf(int At) const { return {At / mCell, Ease(At % mCell * One / mCell) >> 2}; }
    int Noise(int X, int Y) const { return static_cast<int>(Hash(U(X), U(Y), mSeed) >> 18); }
    static int Between(int A, int B, int Part) { return A + (((B - A) * Part) >> 14); }

    int mCell;
    std::uint32_t mSeed;
    std::vector<Place> mColumns;
    std::vector<int> mNodes;
};

// A sliding mean, Reach to both sides; the ends go on for ever.
void BlurLine(int* Line, int Count, int Reach, int* Room) {
    const std::int64_t Share = (std::int64_t{1} << 32) / (2 * Reach + 1);
    const auto At = [&](int I) { return Room[Clamp(I, 0, Count - 1)]; };
    std::copy_n(Line, Count, Room);
    std::int64_t Sum = 0;
    for (int I = -Reach; I <= Reach; ++I) Sum += At(I);
    for (int I = 0; I < Count; ++I) {
        Line[I] = static_cast<int>((Sum * Share) >> 32);
        Sum += At(I + Reach + 1) - At(I - Reach);
    }
}

NEB_WIDE void AddLine(int* Sums, const int* Line, int Sign, int Count) {
    NEB_INDEPENDENT
    for (int I = 0; I < Count; ++I) Sums[I] += Line[I] * Sign;
}

NEB_WIDE void MixLines(std::uint16_t* Out, const std::uint16_t* Upper, const std::uint16_t* Lower,
                       int Low, int Count) {
    const auto A = static_cast<std::uint16_t>(kStep - Low), B = static_cast<std::uint16_t>(Low);
    NEB_INDEPENDENT
    for (int I = 0; I < Count; ++I) {
        const auto Sum = static_cast<std::uint16_t>(Upper[I] * A + Lower[I] * B);
        Out[I] = static_cast<std::uint16_t>(Sum >> 2);
    }
}

NEB_WIDE void Widen(std::int16_t* Out, const std::uint16_t* Points, int Count) {
    NEB_INDEPENDENT
    for (int I = 0; I < Count; ++I) {
        const auto A = Points[I], B = Points[I + 1];
        Out[4 * I] = static_cast<std::int16_t>(A);
        Out[4 * I + 1] = static_cast<std::int16_t>(static_cast<std::uint16_t>(A * 3 + B) >> 2);
        Out[4 * I + 2] = static_cast<std::int16_t>(static_cast<std::uint16_t>(A + B) >> 1);
        Out[4 * I + 3] = static_cast<std::int16_t>(static_cast<std::uint16_t>(A + B * 3) >> 2);
    }
}

NEB_WIDE void AddBytes(std::uint16_t* Sums, const QRgb* Row, int Count) {
    const auto* From = reinterpret_cast<const std::uint8_t*>(Row);
    NEB_INDEPENDENT
    for (int I = 0; I < 4 * Count; ++I) Sums[I] = static_cast<std::uint16_t>(Sums[I] + From[I]);
}

// The brightness of one block of the picture, 0..255 * 64, by the usual weights.
int LightOf(const std::uint16_t* Sums, int Width, int Rows) {
    std::uint32_t Blue = 0, Green = 0, Red = 0;
    for (int X = 0; X < Width; ++X) {
        Blue += Sums[4 * X];
        Green += Sums[4 * X + 1];
        Red += Sums[4 * X + 2];
    }
    return static_cast<int>((Red * 19 + Green * 38 + Blue * 7) / U(Width * Rows));
}

}  // namespace

SoftField::SoftField(QSize Size, const RowMaker& MakeRow)
    : mWidth(Size.width()),
      mAcross(Size.width() / Step + 2),
      mDown(Size.height() / Step + 2),
      mPoints(std::size_t(mAcross) * std::size_t(mDown)) {
    for (int Y = 0; Y < mDown; ++Y) MakeRow(Y * Step, mAcross, Line(Y));
}

void SoftField::Blur(int Reach, int Times) {
    const int R = std::max(1, Reach / Step);
    const std::int64_t Share = (std::int64_t{1} << 32) / (2 * R + 1);
    const auto Longer = static_cast<std::size_t>(std::max(mAcross, mDown));
    std::vector<int> Room(Longer);
    std::vector<int> Sums(Room.size()), Old(mPoints);
    const auto Before = [&](int Y) {
        return Old.data() + std::size_t(Clamp(Y, 0, mDown - 1)) * std::size_t(mAcross);
    };
    for (int T = 0; T < Times; ++T) {
        for (int Y = 0; Y < mDown; ++Y) BlurLine(Line(Y), mAcross, R, Room.data());
        Old = mPoints;
        std::fill(Sums.begin(), Sums.end(), 0);
        for (int Y = -R; Y <= R; ++Y) AddLine(Sums.data(), Before(Y), 1, mAcross);
        for (int Y = 0; Y < mDown; ++Y) {
            for (int X = 0; X < mAcross; ++X)
                Line(Y)[X] = static_cast<int>((Sums[std::size_t(X)] * Share) >> 32);
            AddLine(Sums.data(), Before(Y + R + 1), 1, mAcross);
            AddLine(Sums.data(), Before(Y - R), -1, mAcross);
        }
    }
}

void SoftField::Add(const SoftField& Other, int Parts) {
    AddLine(mPoints.data(), Other.mPoints.data(), Parts, static_cast<int>(mPoints.size()));
}

void SoftField::EvenOut(bool Backwards) {
    const auto [Low, High] = std::minmax_element(mPoints.begin(), mPoints.end());
    const std::int64_t First = *Low, Range = std::int64_t{*High} - First + 1;
    const std::int64_t Ratio = (std::int64_t{Levels} << 20) / Range;
    const auto Bin = [&](int P) { return static_cast<std::size_t>(((P - First) * Ratio) >> 20); };
    std::vector<std::int64_t> Below(Levels + 2, 0);
    for (const int P : mPoints) ++Below[Bin(P) + 1];
    for (std::size_t I = 1; I < Below.size(); ++I) Below[I] += Below[I - 1];
    const auto All = static_cast<std::int64_t>(mPoints.size());
    std::vector<int> Moments(Levels + 1);
    for (std::size_t I = 0; I < Moments.size(); ++I) {
        const std::int64_t Rank = (Below[I] + Below[I + 1]) * (Levels - 1) / (2 * All);
        Moments[I] = static_cast<int>(Backwards ? Levels - 1 - Rank : Rank);
    }
    mMoments.reserve(mPoints.size());
    for (const int P : mPoints) mMoments.push_back(static_cast<std::uint16_t>(Moments[Bin(P)]));
    mPoints = {};
}

void SoftField::FillRow(int Y, std::int16_t* Row) const {
    auto* Points = Scratch<std::uint16_t, SoftField>(mAcross);
    const std::uint16_t* Upper = mMoments.data() + std::size_t(Y / Step) * std::size_t(mAcross);
    MixLines(Points, Upper, Upper + mAcross, Y % Step, mAcross);
    const int Whole = mWidth / Step;
    Widen(Row, Points, Whole);
    for (int X = Whole * Step, Part = 0; X < mWidth; ++X, ++Part)
        Row[X] = static_cast<std::int16_t>(
            (Points[Whole] * (Step - Part) + Points[Whole + 1] * Part) / Step);
}

SoftField MakeClouds(QSize Size, int Count) {
    const int Cell = std::max(4, std::max(Size.width(), Size.height()) / std::max(1, Count));
    std::vector<Octave> Octaves;
    for (int I = 0; I < 4; ++I) Octaves.emplace_back(Cell >> I, I, Size.width() / kStep + 2);
    return SoftField(Size, [&](int Y, int Points, int* Row) {
        std::fill_n(Row, Points, 0);
        for (int I = 0; I < 4; ++I) Octaves[std::size_t(I)].Add(Y, 8 >> I, Row);
    });
}

SoftField MakeBrightness(const Picture& P) {
    std::vector<std::uint16_t> Sums(4 * std::size_t(P.Width));
    return SoftField({P.Width, P.Height}, [&](int Y, int Points, int* Row) {
        const int Top = std::min(Y, P.Height - 1), Rows = std::min(kStep, P.Height - Top);
        std::fill(Sums.begin(), Sums.end(), std::uint16_t{0});
        for (int I = 0; I < Rows; ++I) AddBytes(Sums.data(), P.Row(Top + I), P.Width);
        for (int I = 0; I < Points; ++I) {
            const int X = std::min(I * kStep, P.Width - 1), Width = std::min(kStep, P.Width - X);
            Row[I] = LightOf(Sums.data() + 4 * X, Width, Rows);
        }
    });
}

int PartOf(QSize Size, int Divisor) {
    return std::max(kStep, std::max(Size.width(), Size.height()) / Divisor);
}

}  // namespace neb::effects
