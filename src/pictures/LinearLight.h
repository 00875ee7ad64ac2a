// Brightness as light adds up: mixing the numbers of sRGB themselves makes fine bright detail too
// dark. Used by what makes pictures larger or smaller.
#pragma once

#include <QtGlobal>
#include <array>

namespace neb {

// No light and all of it, as a whole number. Room is left above and below for what a sharp filter
// makes on its way.
inline constexpr int LinearBits = 14;
inline constexpr int FullLight = (1 << LinearBits) - 1;

struct LightTables {
    std::array<quint16, 256> ToLight;            // of a value of sRGB
    std::array<uchar, FullLight + 1> FromLight;  // the nearest value of sRGB
};
// The same on every machine; there and back changes nothing. Safe on worker threads.
const LightTables& Light();

}  // namespace neb
