// The keys of the settings file that a show goes by, and how they are read. The projector and
// preferences read the same keys with corrections of their own.
#pragma once

#include <QString>
#include <cstdint>

#include "show/EffectChooser.h"

namespace neb {

class clsSettings;

// The show that the main window plays; 0 where none is chosen, never below.
struct ActiveShow {
    std::int32_t AlbumID = 0;
    std::int32_t SlideShowID = 0;
};

ActiveShow ReadActiveShow(const clsSettings& Settings);
// The place on which the active show was left, as it stands in the file.
std::int32_t ReadNextSlideSeq(const clsSettings& Settings);
// Seconds. Default stands for a missing value and for one that is not above 0.
double ReadSlideTimeout(const clsSettings& Settings, std::int32_t Default);

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
void PutEffectSelected(clsSettings& Settings, std::int32_t Place, bool Selected);
void ReadEffectSelections(const clsSettings& Settings, EffectTables& Tables);  // 1 to 127

// Writes the place of the active show at once.
void SaveNextSlideSeq(std::int32_t SlideSeq);

}  // namespace neb
