#include "program/modMachineSettings.h"

#include "controls/forms/ScreenPointer.h"
#include "settings/SettingKeys.h"
#include "settings/modNEBSlideShow.h"
#include "support/modNumbers.h"
#include "windows/show/frmSpeedTest.h"

namespace neb {
namespace {

constexpr float EarnsLevel = 4.0F;     // seconds
constexpr double LeastTimeout = 10.0;  // the same

struct MeasuredLevel {
    QChar Suffix;  // of its keys
    double SpeedTestResult::*Timeout;
    std::int32_t SpeedTestResult::*Step;
    std::int32_t SpeedTestResult::*Delay;
    float SpeedTestResult::*AvgTime;
};
using R = SpeedTestResult;
constexpr MeasuredLevel MeasuredLevels[] = {
    {u'H', &R::TimeoutH, &R::StepH, &R::DelayH, &R::AvgTimeH},
    {u'M', &R::TimeoutM, &R::StepM, &R::DelayM, &R::AvgTimeM},
    {u'L', &R::TimeoutL, &R::StepL, &R::DelayL, &R::AvgTimeL},
};

template <typename Number>
void PutResult(clsSettings& Settings, const SettingAt& At, Number Value, Number Least) {
    const bool Found = Value > 0 && Value >= Least;
    PutText(Settings, At,
            Found ? ShortestDecimal(Value) : QLatin1String(RowOf(At.Which).Unmeasured));
}

void PutLevel(clsSettings& Settings, const MeasuredLevel& Of, const SpeedTestResult& Result) {
    PutResult(Settings, {Setting::TestTimeout, Of.Suffix}, Result.*Of.Timeout, 0.0);
    PutResult(Settings, {Setting::Step, Of.Suffix}, double(Result.*Of.Step), 0.0);
    PutResult(Settings, {Setting::Delay, Of.Suffix}, double(Result.*Of.Delay), 0.0);
    PutResult(Settings, {Setting::AvgTime, Of.Suffix}, Result.*Of.AvgTime, 0.0F);
}

bool Earns(float AvgTime) {
    return AvgTime > 0 && AvgTime < EarnsLevel;
}

}  // namespace

int MaxEffectLevelFor(const SpeedTestResult& Result) {
    if (Earns(Result.AvgTimeH)) return 3;
    if (Earns(Result.AvgTimeM)) return 2;
    return Earns(Result.AvgTimeL) ? 1 : 0;
}

void StoreMachineSettings(clsSettings& Settings, const SpeedTestResult& Result) {
    for (const MeasuredLevel& Each : MeasuredLevels) PutLevel(Settings, Each, Result);
    PutResult(Settings, Setting::Timeout, Result.Timeout, LeastTimeout);
    PutNumber(Settings, Setting::MaxEffectLevel, MaxEffectLevelFor(Result));
    Settings.Save();
}

SpeedTestResult RunSpeedTest() {
    const auto Window = NewForm<frmSpeedTest>();
    try {
        Window->ShowModal();
    } catch (const std::exception&) {
        // what was measured until then counts
    }
    return Window->Result();
}

void EnsureMachineSettings(const std::function<SpeedTestResult()>& Test) {
    clsSettings Settings = OpenSettings();
    if (HasSetting(Settings, Setting::Timeout)) return;
    const SpeedTestResult Result = Test();
    SetScreenPointer(Pointer::Default);
    StoreMachineSettings(Settings, Result);
}

}  // namespace neb
