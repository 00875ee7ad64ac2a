// Which transition the next slide of a show gets, and how fast it runs. The projector asks it once
// a slide; preferences use the same tables for the list of effects.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

namespace neb {

constexpr std::int32_t EffectPlaces = 127;

// One entry a place; place 0 is unused.
template <class T>
using EffectArray = std::array<T, EffectPlaces + 1>;

struct EffectTables {
    EffectTables();

    EffectArray<std::int32_t> EffectIDs;     // effect number at each place
    EffectArray<std::uint8_t> EffectLevels;  // 1 lite, 2 normal, 3 intense
    EffectArray<bool> EffectSelected;        // the user's own list
    std::int32_t EffectCount = EffectPlaces;
    std::int32_t CurrentEffect = 0;  // place of the effect in use; 0 for none
};

// Delays in 1/10 ms, steps in percent. Suffixes: H intense, M normal, L lite effects.
struct EffectSettings {
    bool UseEffectLevel = true;       // effects by level, not by the user's list
    std::int32_t MaxEffectLevel = 1;  // 0 to 3; 0 is a plain change of pictures
    std::int32_t LevelDelay = 1000, LevelStep = 25;
    std::int32_t DelayH = 1000, StepH = 25;
    std::int32_t DelayM = 1000, StepM = 25;
    std::int32_t DelayL = 1000, StepL = 25;
};

struct EffectChoice {
    std::optional<std::int32_t> EffectDelay, EffectStep;  // empty: stays as it is
    std::optional<std::int32_t> EffectNumber;             // empty: stays as it is
};

// Moves Tables.CurrentEffect to the next usable place, round the list in its order. Still: nothing
// shall move on the screen, so that a fade takes the place of whatever is there.
EffectChoice ChooseEffect(EffectTables& Tables, const EffectSettings& Settings, bool Still = false);

}  // namespace neb
