// The catalogue of the transitions: one table of numbers, names and recipes. A new effect is a
// new row. Used by Transition, XShow and the lists of effects in the windows.
#pragma once

#include <QString>

#include "effects/drawing/Engine.h"

namespace neb {

// Numbers run from 1 to this.
constexpr int EffectCount() {
    return 127;
}

// True when the number has a row; the others change the picture plainly, at once.
bool EffectIsKnown(int Number);
// A name that a person understands; "Plain Change" for numbers without a row.
QString EffectName(int Number);
// The engine's name, for reports; empty for numbers without a row.
QString EffectEngine(int Number);

namespace effects {
// The recipe of a number, null when it has no row.
const Recipe* FindRecipe(int Number);
}  // namespace effects

}  // namespace neb
