// The colours that the program has where the desktop wants others than the toolkit gives: dark,
// light, and both with all the contrast that there is.
#pragma once

#include <QPalette>

namespace neb {

enum class Shade { Dark, Light };

// Complete, for every role and group.
QPalette PaletteOf(Shade Is, bool HighContrast);

// What there is already is dark or light, and of high contrast where that is wanted.
bool Suits(const QPalette& There, Shade Wanted, bool HighContrast);

}  // namespace neb
