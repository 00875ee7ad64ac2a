// What a show goes by in the settings file. The projector and preferences read the same keys, each
// with the defaults that its column of the table of settings has.
#pragma once

#include <cstdint>

#include "settings/SettingKeys.h"
#include "show/EffectChooser.h"

namespace neb {

class clsSettings;

// The show that the main window plays; 0 where none is chosen, never below.
struct ActiveShow {
    std::int32_t AlbumID = 0;
    std::int32_t SlideShowID = 0;
};

ActiveShow ReadActiveShow(const clsSettings& Settings);

// Where the show goes on and how long a slide stays up.
struct ShowSettings {
    std::int32_t ResumeSeq = 0;  // the slide on which the active show was left
    bool ResumeValid = false;    // the show is the active one of the preferences
    double SlideTimeout = 20;    // seconds
};

ShowSettings ReadShowSettings(const clsSettings& Settings, std::int32_t AlbumID,
                              std::int32_t SlideShowID);

EffectSettings ReadEffectSettings(const clsSettings& Settings, SettingReader Reader);
// Puts the speeds of the three levels.
void PutSpeeds(clsSettings& Settings, const EffectSettings& Effects);

// Whether a user wants an effect, by its place, 0 to 127.
bool ReadEffectSelected(const clsSettings& Settings, std::int32_t Place);
void PutEffectSelected(clsSettings& Settings, std::int32_t Place, bool Selected);
void ReadEffectSelections(const clsSettings& Settings, EffectTables& Tables);  // 1 to 127

// Writes at once the place at which the active show was left; BeganWith is the ResumeSeq that it
// read. Not when the user has named another place or another show in preferences meanwhile.
void KeepPlace(std::int32_t AlbumID, std::int32_t SlideShowID, std::int32_t BeganWith,
               std::int32_t SlideSeq);

}  // namespace neb
