// The keys of the settings file that a show goes by, and how they are read. The projector and
// preferences read the same keys with corrections of their own.
#pragma once

#include <QString>
#include <cstdint>

#include "presentation/EffectChooser.h"

namespace neb {

class clsSettings;

// A flag in the settings file: "TRUE", "T", "1", "-1", "YES", "ON" in any case, and nothing at
// all, are true; everything else is false.
bool FlagValue(const QString& Text);

// Where the show goes on and how long a slide stays up.
struct ShowSettings {
    std::int32_t ResumeSeq = 0;  // the slide on which the active show was left
    bool ResumeValid = false;    // the show is the active one of the preferences
    double SlideTimeout = 20;    // seconds
};

ShowSettings ReadShowSettings(const clsSettings& Settings, std::int32_t AlbumID,
                              std::int32_t SlideShowID);

// LevelIfOutOfRange stands for a "MaxEffectLevel" that is not 0 to 3.
EffectSettings ReadEffectSettings(const clsSettings& Settings, std::int32_t LevelIfOutOfRange);

// The key in section "Effect Selections" of an effect's place, 0 to 127.
QString EffectKey(std::int32_t Place);
bool ReadEffectSelected(const clsSettings& Settings, std::int32_t Place);
void ReadEffectSelections(const clsSettings& Settings, EffectTables& Tables);  // 1 to 127

// Writes the place of the active show at once.
void SaveNextSlideSeq(std::int32_t SlideSeq);

}  // namespace neb
