#include "effects/FlashCount.h"

#include <algorithm>
#include <cmath>

namespace neb::effectstest {
namespace {

constexpr double kChange = 0.1, kBright = 0.8, kSecond = 10000;  // a second of tenths of ms

const std::array<double, 256>& Linear() {
    static const auto Table = [] {
        std::array<double, 256> T{};
        for (std::size_t I = 0; I < T.size(); ++I) {
            const double C = static_cast<double>(I) / 255;
            T[I] = C <= 0.04045 ? C / 12.92 : std::pow((C + 0.055) / 1.055, 2.4);
        }
        return T;
    }();
    return Table;
}

double LuminanceOf(QRgb P) {
    const auto& T = Linear();
    const auto At = [&T](int Part) { return T[static_cast<std::size_t>(Part)]; };
    return 0.2126 * At(qRed(P)) + 0.7152 * At(qGreen(P)) + 0.0722 * At(qBlue(P));
}

struct Point {
    double Time, Value;
};

std::vector<Point> Shown(const Curve& C, Setting S) {
    std::vector<Point> Out;
    const int Last = static_cast<int>(C.size()) - 1;
    for (int I = 0; (I - 1) * S.Step < Last; ++I)
        Out.push_back(
            {double(I) * S.Delay, C[static_cast<std::size_t>(std::min(Last, I * S.Step))]});
    return Out;
}

// A change of brightness in one direction, from one turning point to the next.
struct Change {
    double Time;  // when it had come as far as counts
    double From, To;
    bool Counts() const { return std::min(From, To) < kBright; }
    bool Rises() const { return To > From; }
};

// Follows the curve; what wavers by less than a tenth is no turn.
std::vector<Change> ChangesOf(const std::vector<Point>& Points) {
    std::vector<Change> Out;
    double Low = Points[0].Value, High = Low;  // since the last turning point
    for (const Point& P : Points) {
        Low = std::min(Low, P.Value);
        High = std::max(High, P.Value);
        const bool MayRise = Out.empty() || !Out.back().Rises();
        const bool MayFall = Out.empty() || Out.back().Rises();
        if (MayRise && P.Value - Low >= kChange)
            Out.push_back({P.Time, Low, High = P.Value});
        else if (MayFall && High - P.Value >= kChange)
            Out.push_back({P.Time, High, Low = P.Value});
        else if (!Out.empty())
            Out.back().To = Out.back().Rises() ? High : Low;
    }
    return Out;
}

// The times of changes that count and oppose the one before.
std::vector<double> Opposing(const std::vector<Change>& Changes) {
    std::vector<double> Times;
    bool Rose = false;
    for (const Change& C : Changes) {
        if (!C.Counts() || (!Times.empty() && C.Rises() == Rose)) continue;
        Times.push_back(C.Time);
        Rose = C.Rises();
    }
    return Times;
}

}  // namespace

Luminances LuminancesOf(const QImage& Frame) {
    Luminances Sums{};
    std::array<int, kFields> Counts{};
    for (int Y = 0; Y < Frame.height(); ++Y) {
        const auto* Row = reinterpret_cast<const QRgb*>(Frame.constScanLine(Y));
        for (int X = 0; X < Frame.width(); ++X) {
            const int Field = 1 + Y * 3 / Frame.height() * 3 + X * 3 / Frame.width();
            Sums[static_cast<std::size_t>(Field)] += LuminanceOf(Row[X]);
            ++Counts[static_cast<std::size_t>(Field)];
        }
    }
    for (std::size_t I = 1; I < kFields; ++I) {
        Sums[0] += Sums[I];
        Sums[I] /= Counts[I];
    }
    Sums[0] /= double(Frame.width()) * Frame.height();
    return Sums;
}

int MostFlashesInASecond(const Curve& C, Setting S) {
    const std::vector<double> Times = Opposing(ChangesOf(Shown(C, S)));
    std::size_t Most = 0, First = 0;
    for (std::size_t Last = 0; Last < Times.size(); ++Last) {
        while (Times[Last] - Times[First] > kSecond) ++First;
        Most = std::max(Most, Last - First + 1);
    }
    return static_cast<int>(Most / 2);
}

}  // namespace neb::effectstest
