#include "pictures/PictureResize.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace neb {
namespace {

// Weights are whole numbers of this many bits, so that the result is the same on every machine.
constexpr int WeightBits = 14;
constexpr int Half = 1 << (WeightBits - 1);

double Sinc(double X) {
    return X == 0 ? 1 : std::sin(M_PI * X) / (M_PI * X);
}

double LanczosAt(double X) {
    return std::abs(X) < 3 ? Sinc(X) * Sinc(X / 3) : 0;
}

// Which source pixels make up a target pixel, and how much each counts.
struct Taps {
    int First;
    std::vector<qint16> Weights;
};

// How far from the middle a filter reaches and how it falls off, for Step source pixels a target
// pixel.
std::vector<double> RawWeights(ResizeFilter Filter, double Middle, double Step, int First,
                               int Last) {
    std::vector<double> Weights;
    const double Wide = std::max(Step, 1.0);
    for (int I = First; I <= Last; ++I) {
        const double Left = std::max<double>(I, Middle - Wide / 2);
        const double Right = std::min<double>(I + 1, Middle + Wide / 2);
        Weights.push_back(Filter == ResizeFilter::Area ? std::max(0.0, Right - Left)
                                                       : LanczosAt((I + 0.5 - Middle) / Wide));
    }
    return Weights;
}

// Rounded so that the sum is exact: a plain area stays as it is.
std::vector<qint16> Rounded(const std::vector<double>& Raw) {
    double Sum = 0;
    for (double Weight : Raw) Sum += Weight;
    std::vector<qint16> Weights;
    int Left = 1 << WeightBits;
    for (double Weight : Raw) {
        Weights.push_back(static_cast<qint16>(std::lround(Weight / Sum * (1 << WeightBits))));
        Left -= Weights.back();
    }
    *std::max_element(Weights.begin(), Weights.end()) += static_cast<qint16>(Left);
    return Weights;
}

Taps TapsFor(ResizeFilter Filter, int Target, double Step, int SourceLength) {
    const double Reach = (Filter == ResizeFilter::Area ? 0.5 : 3) * std::max(Step, 1.0);
    const double Middle = (Target + 0.5) * Step;
    const int First = std::max(0, static_cast<int>(std::floor(Middle - Reach)));
    const int Last = std::min(SourceLength - 1, static_cast<int>(std::ceil(Middle + Reach)));
    return {First, Rounded(RawWeights(Filter, Middle, Step, First, Last))};
}

std::vector<Taps> AllTaps(ResizeFilter Filter, int From, int To) {
    std::vector<Taps> All;
    for (int I = 0; I < To; ++I) All.push_back(TapsFor(Filter, I, double(From) / To, From));
    return All;
}

inline uchar ToByte(int Sum) {
    return static_cast<uchar>(std::clamp(Sum >> WeightBits, 0, 255));
}

// Sum gets the weighted rows on top, two at a time: half the walks over Sum. The short factors
// let the compiler use multiplications of eight numbers at once.
void AddRows(int* __restrict Sum, const uchar* __restrict A, const uchar* __restrict B,
             qint16 WeightA, qint16 WeightB, int Length) {
    for (int I = 0; I < Length; ++I)
        Sum[I] += WeightA * static_cast<qint16>(A[I]) + WeightB * static_cast<qint16>(B[I]);
}

void StoreRow(const int* __restrict Sum, uchar* __restrict To, int Length) {
    for (int I = 0; I < Length; ++I) To[I] = ToByte(Sum[I]);
}

QImage ResizeRows(const QImage& Picture, int Height, ResizeFilter Filter) {
    QImage Result(Picture.width(), Height, QImage::Format_RGB32);
    const int Length = Picture.width() * 4;
    std::vector<int> Sum(static_cast<size_t>(Length));
    const auto All = AllTaps(Filter, Picture.height(), Height);
    for (int Y = 0; Y < Height; ++Y) {
        const Taps& Row = All[Y];
        const int Count = static_cast<int>(Row.Weights.size());
        std::fill(Sum.begin(), Sum.end(), Half);
        for (int I = 0; I < Count; I += 2) {
            const int Next = std::min(I + 1, Count - 1);
            AddRows(Sum.data(), Picture.constScanLine(Row.First + I),
                    Picture.constScanLine(Row.First + Next), Row.Weights[I],
                    Next > I ? Row.Weights[Next] : qint16(0), Length);
        }
        StoreRow(Sum.data(), Result.scanLine(Y), Length);
    }
    return Result;
}

void ResizeLine(const uchar* From, uchar* To, const std::vector<Taps>& All) {
    for (const Taps& Pixel : All) {
        int Sums[4] = {Half, Half, Half, Half};
        const uchar* At = From + Pixel.First * 4;
        for (const qint16 Weight : Pixel.Weights) {
            for (int C = 0; C < 4; ++C) Sums[C] += Weight * static_cast<qint16>(At[C]);
            At += 4;
        }
        for (int C = 0; C < 4; ++C) To[C] = ToByte(Sums[C]);
        To += 4;
    }
}

QImage ResizeColumns(const QImage& Picture, int Width, ResizeFilter Filter) {
    QImage Result(Width, Picture.height(), QImage::Format_RGB32);
    const auto All = AllTaps(Filter, Picture.width(), Width);
    for (int Y = 0; Y < Picture.height(); ++Y)
        ResizeLine(Picture.constScanLine(Y), Result.scanLine(Y), All);
    return Result;
}

}  // namespace

QImage ResizePicture(const QImage& Picture, QSize Size, ResizeFilter Filter) {
    QImage Result = Picture;
    if (Size.height() != Result.height()) Result = ResizeRows(Result, Size.height(), Filter);
    if (Size.width() != Result.width()) Result = ResizeColumns(Result, Size.width(), Filter);
    return Result;
}

}  // namespace neb
