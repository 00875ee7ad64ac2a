// JPEGs turned and flipped without loss: their coefficients change places, and no pixel is made
// anew. Used by what stores pictures; safe on worker threads.
#pragma once

#include <QByteArray>
#include <optional>

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

// All that the file says of the picture stays, as it is. Nothing where it cannot be done without
// loss: the sides are no multiples of the blocks, or the library does not know how it is stored.
std::optional<QByteArray> TurnedJpeg(const QByteArray& Jpeg, PictureTurn Turn);

}  // namespace neb
