// What windows want of the main window, and of windows that they do not know. The start of the
// program fills the table; an entry that is empty belongs to a window that this build does not
// have.
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
    // A slide of a show in the slide show manager that has it in hand, or in a new one.
    std::function<void(std::int32_t AlbumID, std::int32_t SlideShowID, std::int32_t SlideID)>
        SlideOfShow;
    // Puts a window as a child into the main window's frame, placed in the cascade.
    std::function<void(Form& Window)> ShowAsChild;
    // Writes a text in the status bar; modNotice is for those who have one to tell.
    std::function<void(const QString& Text)> Notice;
};

Openers& TheOpeners();

}  // namespace neb
