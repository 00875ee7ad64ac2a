#include "show/ShowSettings.h"

#include <algorithm>

#include "settings/SettingKeys.h"
#include "settings/modNEBSlideShow.h"
#include "support/modNumbers.h"

namespace neb {
namespace {

// The speed of one level; the suffixes of the keys are those of the members.
struct LevelSpeed {
    QChar Suffix;
    std::int32_t EffectSettings::*Delay;
    std::int32_t EffectSettings::*Step;
};
constexpr LevelSpeed LevelSpeeds[] = {
    {u'H', &EffectSettings::DelayH, &EffectSettings::StepH},
    {u'M', &EffectSettings::DelayM, &EffectSettings::StepM},
    {u'L', &EffectSettings::DelayL, &EffectSettings::StepL},
};

SettingAt EffectAt(std::int32_t Place) {
    return {Setting::EffectSelected, Format(Place, "000")};
}

}  // namespace

ActiveShow ReadActiveShow(const clsSettings& Settings) {
    return {ReadNumber(Settings, Setting::ActiveAlbum),
            ReadNumber(Settings, Setting::ActiveSlideShow)};
}

ShowSettings ReadShowSettings(const clsSettings& Settings, std::int32_t AlbumID,
                              std::int32_t SlideShowID) {
    constexpr SettingReader Me = SettingReader::Show;
    ShowSettings Read;
    Read.ResumeValid = ReadDecimal(Settings, Setting::ActiveAlbum, Me) == AlbumID &&
                       ReadDecimal(Settings, Setting::ActiveSlideShow, Me) == SlideShowID;
    if (Read.ResumeValid) Read.ResumeSeq = ReadNumber(Settings, Setting::NextSlideSeq, Me);
    Read.SlideTimeout = ReadDecimal(Settings, Setting::Timeout, Me);
    return Read;
}

EffectSettings ReadEffectSettings(const clsSettings& Settings, SettingReader Reader) {
    EffectSettings Read;
    Read.UseEffectLevel = ReadFlag(Settings, Setting::UseEffectLevel);
    Read.MaxEffectLevel = ReadNumber(Settings, Setting::MaxEffectLevel, Reader);
    for (const LevelSpeed& Each : LevelSpeeds) {
        Read.*Each.Delay = ReadNumber(Settings, {Setting::Delay, Each.Suffix}, Reader);
        Read.*Each.Step = ReadNumber(Settings, {Setting::Step, Each.Suffix}, Reader);
    }
    const std::int32_t Level = Read.MaxEffectLevel;
    Read.LevelDelay = Level == 3 ? Read.DelayH : Level == 2 ? Read.DelayM : Read.DelayL;
    Read.LevelStep = Level == 3 ? Read.StepH : Level == 2 ? Read.StepM : Read.StepL;
    return Read;
}

void PutSpeeds(clsSettings& Settings, const EffectSettings& Effects) {
    for (const LevelSpeed& Each : LevelSpeeds)
        PutNumber(Settings, {Setting::Delay, Each.Suffix}, Effects.*Each.Delay);
    for (const LevelSpeed& Each : LevelSpeeds)
        PutNumber(Settings, {Setting::Step, Each.Suffix}, Effects.*Each.Step);
}

bool ReadEffectSelected(const clsSettings& Settings, std::int32_t Place) {
    return ReadFlag(Settings, EffectAt(Place));
}

void PutEffectSelected(clsSettings& Settings, std::int32_t Place, bool Selected) {
    PutFlag(Settings, EffectAt(Place), Selected);
}

void ReadEffectSelections(const clsSettings& Settings, EffectTables& Tables) {
    for (std::int32_t Place = 1; Place <= EffectPlaces; ++Place)
        Tables.EffectSelected[static_cast<size_t>(Place)] = ReadEffectSelected(Settings, Place);
}

void KeepPlace(std::int32_t AlbumID, std::int32_t SlideShowID, std::int32_t BeganWith,
               std::int32_t SlideSeq) {
    clsSettings Settings = OpenSettings();
    const ShowSettings Now = ReadShowSettings(Settings, AlbumID, SlideShowID);
    if (!Now.ResumeValid || Now.ResumeSeq != BeganWith) return;
    PutNumber(Settings, Setting::NextSlideSeq, SlideSeq);
    Settings.Save();
}

}  // namespace neb
