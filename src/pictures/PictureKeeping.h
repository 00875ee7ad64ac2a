// How pictures are kept in an album: at which size at most, and what stays in their files. The
// windows and the command that take pictures hand it to what stores them.
#pragma once

#include <QSize>

namespace neb {

// The least of all limits, in pixels: what every album had before there was a choice.
inline constexpr QSize SlideLimit(1024, 768);
// No limit but that of the JPEG format, in pixels: pictures keep their own size.
inline constexpr QSize OwnSize(65500, 65500);

struct PictureKeeping {
    QSize Limit = SlideLimit;  // pixels; never below SlideLimit on either side
    bool KeepsPlace = true;    // where a picture was taken stays in its file

    // 1 to 100, for a picture that is written anew.
    int Quality() const { return Limit == SlideLimit ? 100 : 92; }
    bool operator==(const PictureKeeping&) const = default;
};

// The size at which a picture of that size is stored as a slide: left alone within the limits,
// else made smaller with its proportions, halves rounded to even. No side vanishes: 1 at least.
QSize FitSize(QSize Full, QSize Limit = SlideLimit);

}  // namespace neb
