// The size at which pictures are kept at most, as users choose it: the rows of every list that
// offers it, and what the settings hold of it. Preferences, the windows that take pictures and
// nebctl ask here.
#pragma once

#include <QString>
#include <optional>
#include <span>

#include "pictures/PictureKeeping.h"

namespace neb {

class clsSettings;

struct KeepingRow {
    const char* Key;    // in the settings
    const char* Title;  // as a user reads it; "%1" is the largest screen in pixels
};
std::span<const KeepingRow> KeepingRows();
// "The largest screen (2560 x 1440)"; a size of the user's own that is no row: "2560 x 1440".
QString KeepingTitle(const QString& Key, QSize LargestScreen);

// "1920x1080", in either case; nothing for another text or a side of no pixels. Sides below
// SlideLimit's are raised to it, those above OwnSize's cut to that.
std::optional<QSize> LimitIn(const QString& Text);
// What a key stands for; SlideLimit for one that says nothing.
QSize LimitOf(const QString& Key, QSize LargestScreen);

// What the settings say; LargestScreen in pixels, empty where there is none.
PictureKeeping ReadKeeping(const clsSettings& Settings, QSize LargestScreen);

}  // namespace neb
