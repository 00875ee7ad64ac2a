// The one-time settings of a machine: what the speed test has measured, or the defaults.
#pragma once

#include <functional>

#include "settings/clsSettings.h"
#include "show/SpeedLadder.h"

namespace neb {

// The speed test in its window, modal; what it has found, as far as it came.
SpeedTestResult RunSpeedTest();

// Runs the speed test when the settings have no "Timeout" yet, and stores what it found.
void EnsureMachineSettings(const std::function<SpeedTestResult()>& Test = &RunSpeedTest);

// Writes the keys of a result, 0 or below being no result, and saves the file.
void StoreMachineSettings(clsSettings& Settings, const SpeedTestResult& Result);
// The highest effect level, 3 down to 1, whose transitions took less than 4 seconds; else 0.
int MaxEffectLevelFor(const SpeedTestResult& Result);

}  // namespace neb
