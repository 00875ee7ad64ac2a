// Colours that a file names by numbers instead of by a profile, as films do and pictures made of
// their coders (HEIC, AVIF). Used by their decoder.
#pragma once

#include <QByteArray>
#include <QPointF>

namespace neb {

struct CodedColours {
    int Transfer = 0;  // by the table that all such files share (ITU-T H.273): 13 is that of sRGB
    QPointF White, Red, Green, Blue;  // as x and y
};

// A profile that means the same; colours that make no sense are taken for those of the screen.
// Light beyond white, as far as the numbers reach there, comes out close to white.
QByteArray ProfileOf(const CodedColours& Colours);

}  // namespace neb
