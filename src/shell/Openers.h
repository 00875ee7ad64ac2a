// The few windows that are opened from layers that do not know them. The start of the program
// fills the table; an entry that is empty belongs to a window that this build does not have.
#pragma once

#include <QString>
#include <cstdint>
#include <functional>
#include <memory>

namespace neb {

class Form;

struct Openers {
    // The slide show manager for an album (SlideShowID 0: none chosen).
    std::function<void(std::int32_t AlbumID, std::int32_t SlideShowID)> SlideShowMgr;
    // Preferences, modal; answers with the slide timeout in seconds that is then in force.
    std::function<double(std::int32_t AlbumID, std::int32_t SlideShowID, double SlideTimeout)>
        Preferences;
    // Puts a window as a child into the main window's frame, placed in the cascade.
    std::function<void(Form& Window)> ShowAsChild;
};

Openers& TheOpeners();

}  // namespace neb
