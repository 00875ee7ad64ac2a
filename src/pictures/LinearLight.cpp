#include "pictures/LinearLight.h"

#include <cmath>

namespace neb {
namespace {

double LightOf(double Value) {
    return Value <= 0.04045 ? Value / 12.92 : std::pow((Value + 0.055) / 1.055, 2.4);
}

double ValueOf(double Light) {
    return Light <= 0.0031308 ? Light * 12.92 : 1.055 * std::pow(Light, 1 / 2.4) - 0.055;
}

LightTables MakeTables() {
    LightTables Made;
    for (size_t I = 0; I < Made.ToLight.size(); ++I)
        Made.ToLight[I] = static_cast<quint16>(std::lround(LightOf(double(I) / 255) * FullLight));
    for (size_t I = 0; I < Made.FromLight.size(); ++I)
        Made.FromLight[I] = static_cast<uchar>(std::lround(ValueOf(double(I) / FullLight) * 255));
    return Made;
}

}  // namespace

const LightTables& Light() {
    static const LightTables Tables = MakeTables();
    return Tables;
}

}  // namespace neb
