#include "program/modMachineSettings.h"

#include "controls/forms/ScreenPointer.h"
#include "settings/modNEBSlideShow.h"
#include "support/modNumbers.h"
#include "windows/show/frmSpeedTest.h"

namespace neb {
namespace {

constexpr float EarnsLevel = 4.0F;  // seconds

template <typename Number>
QString ResultOr(Number Value, const char* Default) {
    return Value > 0 ? ShortestDecimal(Value) : QString::fromLatin1(Default);
}

QString ResultOr(std::int32_t Value, const char* Default) {
    return Value > 0 ? QString::number(Value) : QString::fromLatin1(Default);
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
    const std::pair<const char*, QString> Keys[] = {
        {"TimeoutH", ResultOr(Result.TimeoutH, "10")},
        {"StepH", ResultOr(Result.StepH, "33")},
        {"DelayH", ResultOr(Result.DelayH, "1000")},
        {"AvgTimeH", ResultOr(Result.AvgTimeH, "N/A")},
        {"TimeoutM", ResultOr(Result.TimeoutM, "10")},
        {"StepM", ResultOr(Result.StepM, "33")},
        {"DelayM", ResultOr(Result.DelayM, "1000")},
        {"AvgTimeM", ResultOr(Result.AvgTimeM, "N/A")},
        {"TimeoutL", ResultOr(Result.TimeoutL, "10")},
        {"StepL", ResultOr(Result.StepL, "33")},
        {"DelayL", ResultOr(Result.DelayL, "1000")},
        {"AvgTimeL", ResultOr(Result.AvgTimeL, "N/A")},
        {"Timeout", Result.Timeout >= 10 ? ShortestDecimal(Result.Timeout) : QString("10")},
        {"MaxEffectLevel", QString::number(MaxEffectLevelFor(Result))},
    };
    for (const auto& [Key, Value] : Keys) Settings.PutValue({}, QString::fromLatin1(Key), Value);
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
    if (!Settings.GetValue({}, QStringLiteral("Timeout"), {}).isEmpty()) return;
    const SpeedTestResult Result = Test();
    SetScreenPointer(Pointer::Default);
    StoreMachineSettings(Settings, Result);
}

}  // namespace neb
