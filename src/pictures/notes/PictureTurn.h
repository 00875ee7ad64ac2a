// How a picture is turned and mirrored, without a pixel made anew. Used by the picture object and
// by what stores pictures.
#pragma once

namespace neb {

// What brings a picture from one way of lying to another: mirrored from left to right first, then
// turned clockwise.
struct PictureTurn {
    bool Mirrored = false;
    int Quarters = 0;  // 0 to 3

    // The one that brings a picture upright that was stored in an orientation of EXIF, 1 to 8.
    static PictureTurn ToUpright(int Orientation);
    // This one, and another after it.
    PictureTurn Then(PictureTurn Next) const;
    bool IsNone() const { return !Mirrored && Quarters == 0; }
    bool operator==(const PictureTurn&) const = default;
};

}  // namespace neb
