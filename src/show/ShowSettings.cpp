#include "show/ShowSettings.h"

#include <QStringList>

#include "settings/modNEBSlideShow.h"
#include "support/FlagText.h"
#include "support/modNumbers.h"

namespace neb {
namespace {

QString Head(const clsSettings& Settings, const char* Key, const char* Default) {
    return Settings.GetValue({}, QString::fromLatin1(Key), QString::fromLatin1(Default));
}

std::int32_t Number(const clsSettings& Settings, const char* Key) {
    return CInt(Val(Head(Settings, Key, "0")));
}

std::int32_t AtLeastOne(const clsSettings& Settings, const char* Key, const char* Default,
                        std::int32_t Correction) {
    const std::int32_t Value = CInt(Val(Head(Settings, Key, Default)));
    return Value < 1 ? Correction : Value;
}

std::int32_t Delay(const clsSettings& Settings, const char* Key) {
    return AtLeastOne(Settings, Key, "1000", 1000);
}

std::int32_t Step(const clsSettings& Settings, const char* Key) {
    return AtLeastOne(Settings, Key, "25", 20);
}

std::int32_t MaxLevel(const clsSettings& Settings, std::int32_t LevelIfOutOfRange) {
    const std::int32_t Level = CInt(Val(Head(Settings, "MaxEffectLevel", "1")));
    return Level < 0 || Level > 3 ? LevelIfOutOfRange : Level;
}

bool IsNumber(const clsSettings& Settings, const char* Key, std::int32_t Wanted) {
    return Val(Head(Settings, Key, "0")) == Wanted;
}

QString EffectSection() {
    return QStringLiteral("Effect Selections");
}

}  // namespace

ActiveShow ReadActiveShow(const clsSettings& Settings) {
    return {std::max(0, Number(Settings, "ActiveAlbum")),
            std::max(0, Number(Settings, "ActiveSlideShow"))};
}

std::int32_t ReadNextSlideSeq(const clsSettings& Settings) {
    return Number(Settings, "NextSlideSeq");
}

double ReadSlideTimeout(const clsSettings& Settings, std::int32_t Default) {
    const double Timeout =
        Val(Settings.GetValue({}, QStringLiteral("Timeout"), QString::number(Default)));
    return Timeout > 0 ? Timeout : Default;
}

ShowSettings ReadShowSettings(const clsSettings& Settings, std::int32_t AlbumID,
                              std::int32_t SlideShowID) {
    ShowSettings Read;
    if (IsNumber(Settings, "ActiveAlbum", AlbumID) &&
        IsNumber(Settings, "ActiveSlideShow", SlideShowID)) {
        Read.ResumeSeq = ReadNextSlideSeq(Settings);
        Read.ResumeValid = true;
    }
    Read.SlideTimeout = ReadSlideTimeout(Settings, 10);
    return Read;
}

EffectSettings ReadEffectSettings(const clsSettings& Settings, std::int32_t LevelIfOutOfRange) {
    EffectSettings Read;
    Read.UseEffectLevel = FlagValue(Head(Settings, "UseEffectLevel", "True"));
    Read.MaxEffectLevel = MaxLevel(Settings, LevelIfOutOfRange);
    Read.DelayH = Delay(Settings, "DelayH");
    Read.DelayM = Delay(Settings, "DelayM");
    Read.DelayL = Delay(Settings, "DelayL");
    Read.StepH = Step(Settings, "StepH");
    Read.StepM = Step(Settings, "StepM");
    Read.StepL = Step(Settings, "StepL");
    const std::int32_t Level = Read.MaxEffectLevel;
    Read.LevelDelay = Level == 3 ? Read.DelayH : Level == 2 ? Read.DelayM : Read.DelayL;
    Read.LevelStep = Level == 3 ? Read.StepH : Level == 2 ? Read.StepM : Read.StepL;
    return Read;
}

QString EffectKey(std::int32_t Place) {
    return QStringLiteral("Effect.") + Format(Place, "000");
}

bool ReadEffectSelected(const clsSettings& Settings, std::int32_t Place) {
    return FlagValue(Settings.GetValue(EffectSection(), EffectKey(Place), {}));
}

void PutEffectSelected(clsSettings& Settings, std::int32_t Place, bool Selected) {
    Settings.PutValue(EffectSection(), EffectKey(Place), FlagText(Selected));
}

void ReadEffectSelections(const clsSettings& Settings, EffectTables& Tables) {
    for (std::int32_t Place = 1; Place <= EffectPlaces; ++Place)
        Tables.EffectSelected[static_cast<size_t>(Place)] = ReadEffectSelected(Settings, Place);
}

void SaveNextSlideSeq(std::int32_t SlideSeq) {
    clsSettings Settings = OpenSettings();
    Settings.PutValue({}, QStringLiteral("NextSlideSeq"), QString::number(SlideSeq));
    Settings.Save();
}

}  // namespace neb
