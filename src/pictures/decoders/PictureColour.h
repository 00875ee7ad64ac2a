// Brings the colours of a decoded picture into sRGB and puts transparency on white. Used by the
// picture decoders.
#pragma once

#include <QByteArray>
#include <QImage>

namespace neb {

// Any QImage format in; Format_RGB32 out. Profile: the picture's ICC profile, empty or unusable
// for sRGB. Alpha is laid on white after the colours are right.
QImage ToScreenColours(QImage Picture, const QByteArray& Profile);

// Four bytes a pixel of ink, 0 for none, in the buffer of a Format_RGB32 picture, are replaced by
// colours. Profile: of the inks; empty or unusable for plain ones.
void InksToScreenColours(QImage& Picture, const QByteArray& Profile);

// Sets the unused byte of every pixel of a Format_RGB32 picture, as it has to be.
void MakeOpaque(QImage& Picture);

// Many programs write the fourth byte of every pixel as zero and mean an opaque picture all the
// same: such a Format_ARGB32 picture becomes a Format_RGB32 one. Others stay as they are.
void MakeOpaqueIfAllClear(QImage& Picture);

// The profile of Adobe RGB (1998).
QByteArray AdobeRgbProfile();

}  // namespace neb
