// A settings file on which the speed test has already run, for tests of what comes after it.
#pragma once

#include "program/modMachineSettings.h"
#include "settings/modNEBSlideShow.h"

namespace neb::test {

// For the settings under the documents folder in force.
inline void MarkAsMeasured() {
    clsSettings Settings = OpenSettings();
    StoreMachineSettings(Settings, {});
}

}  // namespace neb::test
