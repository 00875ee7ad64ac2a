// What preferences hold, and the rules for it: how it is read from the settings file, what a user
// may enter, and how it is written back. The window shows it and asks for every decision here.
#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "show/EffectChooser.h"
#include "support/Texts.h"
#include "support/modDEValidation.h"

namespace neb {

class clsSettings;

struct PreferencesState {
    std::int32_t AlbumID = 0;  // of the active show; 0: none
    QString AlbumName;
    std::int32_t SlideShowID = 0;  // 0: none
    std::int32_t NextSlideSeq = 0;
    double SlideTimeout = 20;  // seconds
    QString ShowScreen;        // as ScreenChoice.h says it
    QString KeepPictures;      // a key of albums/KeepingChoice.h
    bool KeepPlace = true;     // where a picture was taken stays in its file
    EffectSettings Effects;
    EffectArray<bool> EffectSelected{};        // numbers 0 to 127
    EffectArray<std::uint8_t> EffectLevels{};  // numbers 0 to 127; 1 lite, 2 normal, 3 intense
};

// All effect levels are 1 until the database has been asked.
PreferencesState ReadPreferences(const clsSettings& Settings);
// Puts every key, in the order of the file. The caller saves.
void PutPreferences(clsSettings& Settings, const PreferencesState& State);

// The effect levels 1 to 3 by name, and where their speed lies.
struct EffectLevelRow {
    const char* Name;
    std::int32_t EffectSettings::*Step;   // percent
    std::int32_t EffectSettings::*Delay;  // 1/10 ms
};
constexpr EffectLevelRow EffectLevelRows[] = {
    {QT_TR_NOOP("Lite"), &EffectSettings::StepL, &EffectSettings::DelayL},
    {QT_TR_NOOP("Normal"), &EffectSettings::StepM, &EffectSettings::DelayM},
    {QT_TR_NOOP("Intense"), &EffectSettings::StepH, &EffectSettings::DelayH},
};

// What the text of a field says: a number with the point of the user's country or that of the
// settings file; a whole number from 0. Blanks around it do not matter; nothing for any other text.
std::optional<double> DecimalIn(const QString& Text);
std::optional<std::int32_t> WholeNumberIn(const QString& Text);

// The speed of one level as it was entered; nothing where that is no whole number.
struct SpeedEntry {
    std::optional<std::int32_t> Step, Delay;
};
struct EffectSpeed {
    std::int32_t Step = 0;   // 1 to 100
    std::int32_t Delay = 0;  // 0 to 1000
};

// Why an entry is refused, and where it stands.
struct EntryProblem {
    enum class Field { Timeout, Delay, Step };
    Field Where;
    int Level = 0;  // 1 to 3 for a delay or a step
    QString Message;
};

// The delay is looked at first.
std::optional<EntryProblem> CheckSpeed(const SpeedEntry& Entry, int Level);
EffectSpeed SpeedOf(const SpeedEntry& Entry);  // of one that passed

// All that a user has entered.
struct PreferencesEntries {
    struct Choice {
        std::int32_t ID;
        QString Name;
    };
    std::optional<Choice> Album, SlideShow;
    std::int32_t NextSlide = 0;          // below 1: none
    std::optional<double> SlideTimeout;  // seconds; nothing where that is no number
    std::int32_t MaxEffectLevel = 0;
    bool UseEffectLevel = true;
    struct Flag {
        std::int32_t Effect;  // number, 0 to 127
        bool Selected;
    };
    std::vector<Flag> Effects;  // what the list holds
    SpeedEntry Speeds[std::size(EffectLevelRows)];
    QString ShowScreen, KeepPictures;
    bool KeepPlace = true;
};

// The first entry that cannot be taken over.
std::optional<EntryProblem> CheckEntries(const PreferencesEntries& Entries);
// Takes over entries that passed. With no album chosen the show keeps its number.
void TakeEntries(PreferencesState& State, const PreferencesEntries& Entries);

// The place with which another show begins when it becomes the active one; the active one itself
// goes on where it was left.
std::int32_t NextSlideFor(const PreferencesState& State, std::int32_t SlideShowID);

// The keys of the timeout field: digits, and one point.
void FilterTimeoutKey(const EntryState& Field, std::int16_t& KeyAscii);
// The file name of the picture that a preview goes to; the two take turns.
QString PreviewPictureAfter(const QString& Last);

}  // namespace neb
