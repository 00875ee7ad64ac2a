#include "show/EffectChooser.h"

#include <numeric>

namespace neb {
namespace {

constexpr EffectChoice PlainChange{0, 100, {}};
constexpr std::int32_t CrossFade = 1;  // of the catalogue

// The first selected place of From to To; 0 when there is none.
std::int32_t SelectedPlace(const EffectTables& Tables, std::int32_t From, std::int32_t To) {
    for (std::int32_t Place = From; Place <= To; ++Place)
        if (Tables.EffectSelected[static_cast<size_t>(Place)]) return Place;
    return 0;
}

// One round of the list, the place in use last, so that a single selected effect serves always.
void WalkSelection(EffectTables& Tables) {
    const std::int32_t Here = Tables.CurrentEffect;
    std::int32_t Found = SelectedPlace(Tables, Here + 1, Tables.EffectCount);
    if (!Found) Found = SelectedPlace(Tables, 1, Here);
    Tables.CurrentEffect = Found;
}

void WalkLevels(EffectTables& Tables, std::int32_t MaxLevel) {
    for (std::int32_t Try = 0; Try < Tables.EffectCount; ++Try) {
        Tables.CurrentEffect = Tables.CurrentEffect % Tables.EffectCount + 1;
        if (Tables.EffectLevels[static_cast<size_t>(Tables.CurrentEffect)] <= MaxLevel) return;
    }
}

EffectChoice SpeedOfLevel(int Level, const EffectSettings& S) {
    const EffectChoice ByLevel[] = {
        {}, {S.DelayL, S.StepL, {}}, {S.DelayM, S.StepM, {}}, {S.DelayH, S.StepH, {}}};
    return Level >= 1 && Level <= 3 ? ByLevel[Level] : EffectChoice{};
}

}  // namespace

EffectTables::EffectTables() {
    std::iota(EffectIDs.begin(), EffectIDs.end(), 0);
    EffectLevels.fill(1);
    EffectSelected.fill(true);
}

EffectChoice ChooseEffect(EffectTables& Tables, const EffectSettings& Settings, bool Still) {
    if (Settings.UseEffectLevel && Settings.MaxEffectLevel == 0) return PlainChange;
    if (Settings.UseEffectLevel)
        WalkLevels(Tables, Settings.MaxEffectLevel);
    else
        WalkSelection(Tables);
    if (Tables.CurrentEffect == 0) return PlainChange;
    const auto Place = static_cast<size_t>(Tables.CurrentEffect);
    EffectChoice Choice = SpeedOfLevel(Tables.EffectLevels[Place], Settings);
    Choice.EffectNumber = Still ? CrossFade : Tables.EffectIDs[Place];
    return Choice;
}

}  // namespace neb
