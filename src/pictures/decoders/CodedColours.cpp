#include "pictures/decoders/CodedColours.h"

#include <lcms2.h>

#include <array>
#include <cmath>
#include <memory>

namespace neb {
namespace {

constexpr int Gamma22 = 4, Gamma28 = 5, Linear = 8, Quantizer = 16, LogGamma = 18;
constexpr int Steps = 4096;
constexpr double WhiteNits = 203, PeakNits = 1000, MostNits = 10000;

// Up to here light stays as it is; above, what reaches far beyond white is drawn together.
double BelowWhite(double Light) {
    constexpr double Knee = 0.7;
    return Light < Knee ? Light : 1 - (1 - Knee) * std::exp((Knee - Light) / (1 - Knee));
}

// SMPTE ST 2084: numbers stand for light in absolute terms.
double LightOfQuantizer(double Number) {
    constexpr double M1 = 2610.0 / 16384, M2 = 2523.0 / 32, C1 = 3424.0 / 4096, C2 = 2413.0 / 128,
                     C3 = 2392.0 / 128;
    const double Root = std::pow(Number, 1 / M2);
    const double Light = std::pow(std::max(Root - C1, 0.0) / (C2 - C3 * Root), 1 / M1);
    return BelowWhite(Light * MostNits / WhiteNits);
}

// ITU-R BT.2100, as a screen of a thousand nits shows it.
double LightOfLogGamma(double Number) {
    constexpr double A = 0.17883277, B = 1 - 4 * A, System = 1.2;
    const double C = 0.5 - A * std::log(4 * A);
    const double Scene =
        Number <= 0.5 ? Number * Number / 3 : (std::exp((Number - C) / A) + B) / 12;
    return BelowWhite(std::pow(Scene, System) * PeakNits / WhiteNits);
}

struct FreeCurve {
    void operator()(cmsToneCurve* Curve) const { cmsFreeToneCurve(Curve); }
};
using CurveHandle = std::unique_ptr<cmsToneCurve, FreeCurve>;

CurveHandle CurveBy(double (*Light)(double)) {
    std::array<cmsUInt16Number, Steps> Table{};
    for (int I = 0; I < Steps; ++I) {
        const double Value = std::clamp(Light(double(I) / (Steps - 1)), 0.0, 1.0);
        Table[static_cast<size_t>(I)] = static_cast<cmsUInt16Number>(std::lround(Value * 65535));
    }
    return CurveHandle(cmsBuildTabulatedToneCurve16(nullptr, Steps, Table.data()));
}

CurveHandle CurveOf(int Transfer) {
    constexpr cmsFloat64Number Srgb[] = {2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045};
    if (Transfer == Quantizer) return CurveBy(LightOfQuantizer);
    if (Transfer == LogGamma) return CurveBy(LightOfLogGamma);
    if (Transfer == Linear) return CurveHandle(cmsBuildGamma(nullptr, 1));
    if (Transfer == Gamma22) return CurveHandle(cmsBuildGamma(nullptr, 2.2));
    if (Transfer == Gamma28) return CurveHandle(cmsBuildGamma(nullptr, 2.8));
    // The curve of television is that of cameras; its pictures are looked at by the screen's.
    return CurveHandle(cmsBuildParametricToneCurve(nullptr, 4, Srgb));
}

bool MakesSense(const QPointF& Colour) {
    return Colour.x() > 0 && Colour.y() > 0 && Colour.x() + Colour.y() <= 1;
}

QByteArray BytesOf(cmsHPROFILE Profile) {
    cmsUInt32Number Length = 0;
    if (!cmsSaveProfileToMem(Profile, nullptr, &Length)) return {};
    QByteArray Bytes(static_cast<qsizetype>(Length), '\0');
    return cmsSaveProfileToMem(Profile, Bytes.data(), &Length) ? Bytes : QByteArray();
}

// Where none are told, or senseless ones, those of the screen.
std::array<QPointF, 4> PointsOf(const CodedColours& Colours) {
    const std::array<QPointF, 4> Told = {Colours.White, Colours.Red, Colours.Green, Colours.Blue};
    if (std::all_of(Told.begin(), Told.end(), MakesSense)) return Told;
    return {QPointF(0.3127, 0.3290), {0.64, 0.33}, {0.30, 0.60}, {0.15, 0.06}};
}

}  // namespace

QByteArray ProfileOf(const CodedColours& Colours) {
    const auto Points = PointsOf(Colours);
    const auto At = [&](size_t I) { return cmsCIExyY{Points[I].x(), Points[I].y(), 1}; };
    const cmsCIExyY White = At(0);
    const cmsCIExyYTRIPLE Primaries = {At(1), At(2), At(3)};
    const CurveHandle Curve = CurveOf(Colours.Transfer);
    cmsToneCurve* const Curves[] = {Curve.get(), Curve.get(), Curve.get()};
    const cmsHPROFILE Profile = cmsCreateRGBProfile(&White, &Primaries, Curves);
    if (!Profile) return {};
    const QByteArray Bytes = BytesOf(Profile);
    cmsCloseProfile(Profile);
    return Bytes;
}

}  // namespace neb
