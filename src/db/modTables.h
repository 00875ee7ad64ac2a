// The two small tables of the engine, as free functions on their rows: named properties and the
// times of the transition effects. Only the engine calls them.
#pragma once

#include <span>
#include <vector>

#include "db/records/RecordSource.h"
#include "support/modDEComboUFL.h"

namespace neb {

using PropertyRows = std::vector<PropertyRecord>;
using EffectStatRows = std::vector<EffectStatRecord>;

// Names compare as 20-character fields: one that is not padded to that width never matches.
void SetProperty(PropertyRows& Rows, const QString& Name, const QString& Value);
QString PropertyValueOf(const PropertyRows& Rows, const QString& Name);  // padded; empty: none
void FillWithProperties(const PropertyRows& Rows, ComboList& Combo);
void ReadProperties(PropertyRows& Rows, const RecordSource& Source);

void SetEffectStat(EffectStatRows& Rows, std::int32_t Effect, double AvgTime);
void FillWithEffectStats(const EffectStatRows& Rows, ComboList& Combo);
// From the database; when it has none, from EffectStats.dat, else EffectStats.txt, of ProgramPath
// (with closing separator; empty: nowhere). A text file that ends early is a Fault.
void ReadEffectStats(EffectStatRows& Rows, const RecordSource& Source, const QString& ProgramPath);
// Writes 1, 2 or 3 for each effect with a time; Classes begins at the effect LowerBound.
void ClassifyByTime(const EffectStatRows& Rows, std::span<std::uint8_t> Classes,
                    std::int32_t MaxEffect, std::int32_t LowerBound);

}  // namespace neb
