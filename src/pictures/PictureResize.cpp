#include "pictures/PictureResize.h"

#include <algorithm>
#include <cmath>
#include <thread>
#include <utility>

#include "pictures/LinearLight.h"
#include "pictures/ResizeLanes.h"

namespace neb {
namespace {

constexpr int MostThreads = 8;

double Sinc(double X) {
    return X == 0 ? 1 : std::sin(M_PI * X) / (M_PI * X);
}

double LanczosAt(double X) {
    return std::abs(X) < 3 ? Sinc(X) * Sinc(X / 3) : 0;
}

// Through its points and smooth between them.
double CubicAt(double X) {
    const double A = std::abs(X);
    if (A < 1) return (1.5 * A - 2.5) * A * A + 1;
    return A < 2 ? ((-0.5 * A + 2.5) * A - 4) * A + 2 : 0;
}

// One side of the picture: from how many pixels to how many, and by which filter.
struct Side {
    ResizeFilter Filter;
    int From, To;

    double Step() const { return double(From) / To; }
    double Wide() const { return std::max(Step(), 1.0); }
    double Reach() const {
        if (Filter == ResizeFilter::Area) return 0.5 * Wide();
        return Step() > 1 ? 3 * Wide() : 2;
    }
    // How much the source pixel I counts for the target pixel around Middle.
    double WeightAt(int I, double Middle) const {
        if (Filter == ResizeFilter::Area)
            return std::max(0.0, std::min<double>(I + 1, Middle + Wide() / 2) -
                                     std::max<double>(I, Middle - Wide() / 2));
        const double Away = (I + 0.5 - Middle) / Wide();
        return Step() > 1 ? LanczosAt(Away) : CubicAt(Away);
    }
};

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

void DropZeros(Taps& Of) {
    const auto Counts = [](qint16 Weight) { return Weight != 0; };
    auto& All = Of.Weights;
    All.erase(std::find_if(All.rbegin(), All.rend(), Counts).base(), All.end());
    const auto First = std::find_if(All.begin(), All.end(), Counts);
    Of.First += static_cast<int>(First - All.begin());
    All.erase(All.begin(), First);
}

// A sharp filter swings over at an edge, which shows as a halo: nothing becomes brighter or darker
// than what lies under the pixel and its neighbours.
void Bound(Taps& Of, const Side& Along, double Middle) {
    const int Last = Of.First + Of.Count() - 1;
    const int Low = static_cast<int>(std::floor(Middle - Along.Wide() + 0.5));
    const int High = static_cast<int>(std::ceil(Middle + Along.Wide() - 0.5)) - 1;
    Of.Near = std::clamp(Low, Of.First, Last) - Of.First;
    Of.NearCount = std::clamp(High, Of.First, Last) - Of.First - Of.Near + 1;
}

Taps TapsFor(const Side& Along, int Target) {
    const double Middle = (Target + 0.5) * Along.Step();
    const int First = std::max(0, static_cast<int>(std::floor(Middle - Along.Reach())));
    const int Last = std::min(Along.From - 1, static_cast<int>(std::ceil(Middle + Along.Reach())));
    std::vector<double> Raw;
    for (int I = First; I <= Last; ++I) Raw.push_back(Along.WeightAt(I, Middle));
    Taps Made{First, Rounded(Raw)};
    DropZeros(Made);
    if (Along.Filter == ResizeFilter::Sharp) Bound(Made, Along, Middle);
    if (Made.Count() % 2 != 0) Made.Weights.push_back(0);
    return Made;
}

std::vector<Taps> AllTaps(const Side& Along) {
    std::vector<Taps> All;
    for (int I = 0; I < Along.To; ++I) All.push_back(TapsFor(Along, I));
    return All;
}

int MostTaps(const std::vector<Taps>& All) {
    int Most = 0;
    for (const Taps& Each : All) Most = std::max(Most, Each.Count());
    return Most;
}

void ToLight(const QRgb* From, qint16* To, int Width) {
    const auto& Of = Light().ToLight;
    for (int X = 0; X < Width; ++X) {
        const QRgb Pixel = From[X];
        const quint64 Lights = quint64(Of[Pixel & 255]) | quint64(Of[Pixel >> 8 & 255]) << 16 |
                               quint64(Of[Pixel >> 16 & 255]) << 32;
        std::memcpy(To + X * 4, &Lights, sizeof Lights);
    }
}

QRgb FromLight(const qint16* Pixel) {
    const auto& Of = Light().FromLight;
    quint64 Lights;
    std::memcpy(&Lights, Pixel, sizeof Lights);
    const auto Value = [&](int Shift) { return QRgb(Of[Lights >> Shift & FullLight]); };
    return 0xFF000000 | Value(32) << 16 | Value(16) << 8 | Value(0);
}

// Goes down a part of the target with as many lines of the source in light as one target line
// needs.
class Band {
  public:
    Band(const QImage& Source, const std::vector<Taps>& Rows, const std::vector<Taps>& Columns)
        : mSource(Source),
          mRows(Rows),
          mColumns(Columns),
          mLength((Source.width() * 4 + 4 + 7) / 8 * 8),
          mHeld(MostTaps(Rows) + 1, -1),
          mKept(mHeld.size() * mLength),
          mBlended(mLength),
          mLines(mHeld.size()) {}

    void Make(int First, int Last, uchar* To, qsizetype Stride) {
        for (int Y = First; Y < Last; ++Y)
            MakeLine(mRows[Y], reinterpret_cast<QRgb*>(To + Y * Stride));
    }

  private:
    const qint16* InLight(int Y) {
        const size_t Place = Y % mHeld.size();
        qint16* const Line = mKept.data() + Place * mLength;
        if (std::exchange(mHeld[Place], Y) != Y)
            ToLight(reinterpret_cast<const QRgb*>(mSource.constScanLine(Y)), Line, mSource.width());
        return Line;
    }
    void MakeLine(const Taps& Row, QRgb* To) {
        const int Last = mSource.height() - 1;
        for (int I = 0; I < Row.Count(); ++I) mLines[I] = InLight(std::min(Row.First + I, Last));
        BlendLines<VectorLanes>(mLines.data(), Row, mBlended.data(), mLength);
        for (const Taps& Pixel : mColumns) {
            qint16 Lights[4];
            BlendPixels<VectorLanes>(mBlended.data(), Pixel, Lights);
            *To++ = FromLight(Lights);
        }
    }

    const QImage& mSource;
    const std::vector<Taps>& mRows;
    const std::vector<Taps>& mColumns;
    const int mLength;       // numbers of a line, with room behind it
    std::vector<int> mHeld;  // which source line is in light at each place; -1: none yet
    std::vector<qint16> mKept, mBlended;
    std::vector<const qint16*> mLines;
};

// Each part on a thread of its own, the first one here.
void MakeSideBySide(std::vector<Band>& Parts, QImage& Into) {
    const int Bands = static_cast<int>(Parts.size());
    const auto Make = [&Parts, Bands, Bits = Into.bits(), Stride = Into.bytesPerLine(),
                       Height = qint64(Into.height())](int Part) {
        const auto Start = [&](int Of) { return static_cast<int>(Height * Of / Bands); };
        Parts[Part].Make(Start(Part), Start(Part + 1), Bits, Stride);
    };
    std::vector<std::jthread> Beside;
    for (int Part = 1; Part < Bands; ++Part) Beside.emplace_back(Make, Part);
    Make(0);
}

}  // namespace

QImage ResizePicture(const QImage& Picture, QSize Size, ResizeFilter Filter, int Threads) {
    if (Size == Picture.size()) return Picture;
    const auto Columns = AllTaps({Filter, Picture.width(), Size.width()});
    const auto Rows = AllTaps({Filter, Picture.height(), Size.height()});
    QImage Result(Size, QImage::Format_RGB32);
    if (Result.isNull()) throw std::bad_alloc();
    const int Bands = std::clamp(Threads, 1, std::min(MostThreads, Size.height()));
    std::vector<Band> Parts(Bands, Band(Picture, Rows, Columns));
    MakeSideBySide(Parts, Result);
    return Result;
}

QImage ResizeAtOnce(const QImage& Picture, QSize Size) {
    return ResizePicture(Picture, Size, ResizeFilter::Sharp,
                         static_cast<int>(std::thread::hardware_concurrency()));
}

}  // namespace neb
