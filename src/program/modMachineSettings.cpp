#include "program/modMachineSettings.h"

#include <algorithm>

#include "controls/forms/ScreenPointer.h"
#include "settings/SettingKeys.h"
#include "settings/modNEBSlideShow.h"
#include "support/modNumbers.h"
#include "windows/frame/modNotice.h"
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
    int Level;
    std::int32_t GuessedStep, GuessedDelay;  // percent, 1/10 ms
};

// What is guessed for a level that was not measured: a second for a transition, in 50 frames, in 25
// for the heaviest. A machine four times as slow as the one on which the program's own table of
// times was made shows the slowest of each level in four seconds so, on a screen of 3840 by 2160.
using R = SpeedTestResult;
constexpr MeasuredLevel MeasuredLevels[] = {
    {u'H', &R::TimeoutH, &R::StepH, &R::DelayH, &R::AvgTimeH, 3, 4, 400},
    {u'M', &R::TimeoutM, &R::StepM, &R::DelayM, &R::AvgTimeM, 2, 2, 200},
    {u'L', &R::TimeoutL, &R::StepL, &R::DelayL, &R::AvgTimeL, 1, 2, 200},
};
constexpr int GuessedLevel = 2;

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

// A test that came to its end measured every level; a time of 0 is no result then.
bool IsGuessed(const SpeedTestResult& Result, const MeasuredLevel& Of) {
    return !Result.IsWhole && Result.*Of.Step < 1;
}

SpeedTestResult WithGuesses(SpeedTestResult Result) {
    for (const MeasuredLevel& Each : MeasuredLevels) {
        if (!IsGuessed(Result, Each)) continue;
        Result.*Each.Step = Each.GuessedStep;
        Result.*Each.Delay = Each.GuessedDelay;
    }
    return Result;
}

// The user's own time stays, unless the machine needs longer for its transitions.
double TimeoutAfter(const SpeedTestResult& Result, double Own) {
    return Result.Timeout > LeastTimeout ? std::max(Result.Timeout, Own) : Own;
}

}  // namespace

int MaxEffectLevelFor(const SpeedTestResult& Result) {
    for (const MeasuredLevel& Each : MeasuredLevels)
        if (Earns(Result.*Each.AvgTime) || (IsGuessed(Result, Each) && Each.Level <= GuessedLevel))
            return Each.Level;
    return 0;
}

void StoreMachineSettings(clsSettings& Settings, const SpeedTestResult& Result) {
    const SpeedTestResult Known = WithGuesses(Result);
    for (const MeasuredLevel& Each : MeasuredLevels) PutLevel(Settings, Each, Known);
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
    // An installation that had its settings before there was a choice keeps pictures as it did.
    if (!HasSetting(Settings, Setting::KeepPictures))
        PutText(Settings, Setting::KeepPictures, QStringLiteral("Screen"));
    StoreMachineSettings(Settings, Result);
    if (!Result.IsWhole)
        ShowNotice(QObject::tr("Graphics speed not measured: usual settings are used."));
}

void TestGraphicsSpeed(const std::function<SpeedTestResult()>& Test) {
    const SpeedTestResult Result = Test();
    SetScreenPointer(Pointer::Default);
    if (!Result.IsWhole)
        return ShowNotice(QObject::tr(
            "The test of the graphics speed was left: all settings stay as they were."));
    clsSettings Settings = OpenSettings();
    const double Own = ReadDecimal(Settings, Setting::Timeout);
    StoreMachineSettings(Settings, Result);
    PutDecimal(Settings, Setting::Timeout, TimeoutAfter(Result, Own));
    Settings.Save();
    static constexpr const char* Names[] = {"None", "Lite", "Normal", "Intense"};
    ShowNotice(
        QObject::tr("Graphics speed measured: this computer shows effects up to the level %1.")
            .arg(QLatin1String(Names[MaxEffectLevelFor(Result)])));
}

}  // namespace neb
