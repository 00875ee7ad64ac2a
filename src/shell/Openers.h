// The few windows that are opened from layers that do not know them. The start of the program
// fills the table; an entry that is empty belongs to a window that this build does not have.
#pragma once

#include <QString>
#include <cstdint>
#include <functional>
#include <memory>

namespace neb {

class Form;

// What the one-time speed test has measured; 0 stands for no result. Suffixes: H intense,
// M normal, L lite effects. Times in seconds, steps in percent, delays in 1/10 ms.
struct SpeedTestResult {
    double Timeout = 0, TimeoutH = 0, TimeoutM = 0, TimeoutL = 0;
    std::int32_t StepH = 0, StepM = 0, StepL = 0;
    std::int32_t DelayH = 0, DelayM = 0, DelayL = 0;
    float AvgTimeH = 0, AvgTimeM = 0, AvgTimeL = 0;
};

struct Openers {
    // The slide show manager for an album (SlideShowID 0: none chosen).
    std::function<void(std::int32_t AlbumID, std::int32_t SlideShowID)> SlideShowMgr;
    std::function<SpeedTestResult()> SpeedTest;
    // Puts a window as a child into the main window's frame, placed in the cascade.
    std::function<void(Form& Window)> ShowAsChild;
};

Openers& TheOpeners();

}  // namespace neb
