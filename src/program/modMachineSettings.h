// The settings of a machine: what the speed test has measured, else what suits most machines.
#pragma once

#include <functional>

#include "settings/clsSettings.h"
#include "show/SpeedLadder.h"

namespace neb {

// The speed test in its window, modal; what it has found, as far as it came.
SpeedTestResult RunSpeedTest();

// Runs the speed test when the settings have no "Timeout" yet, and stores what it found. A test
// that was left early or could not run is said so in the status bar.
void EnsureMachineSettings(const std::function<SpeedTestResult()>& Test = &RunSpeedTest);

// Runs it once more, as the user has asked. One that comes to its end is stored, but for a time of
// the slides that does; one that is left changes nothing. Either is said in the status bar.
void TestGraphicsSpeed(const std::function<SpeedTestResult()>& Test = &RunSpeedTest);

// Writes the keys of a result, 0 or below being no result, and saves the file. Where the test did
// not come to its end, levels that it has not reached get a speed that suits most machines.
void StoreMachineSettings(clsSettings& Settings, const SpeedTestResult& Result);
// The highest effect level, 3 down to 1, whose transitions took less than 4 seconds; else 0. Levels
// that a test which was left has not reached count up to 2.
int MaxEffectLevelFor(const SpeedTestResult& Result);

}  // namespace neb
