// What a picture's file says of the picture beside its pixels: when and by which camera it was
// taken, what people wrote about it, where it was. For what stores pictures: it goes along with
// them.
#pragma once

#include <QByteArray>
#include <QSize>

namespace neb {

// Of any format that has such notes (JPEG, TIFF, PNG, WebP, HEIC), for a picture that is written
// anew: ready to go into a JPEG. Empty where the file says nothing, or nothing that can be read.
// Pixels: of the new picture, which is upright and in sRGB. What was true of the old pixels alone
// (small pictures, profiles, the notes of the camera's maker) is left out. Never throws; safe on
// worker threads.
QByteArray NotesFor(QSize Pixels, const QByteArray& Source, bool KeepsPlace);

// A JPEG that is kept as it is, without where it was taken; the notes of the camera's maker, which
// may tell it as well, go with the place. The same bytes when it does not say.
QByteArray WithoutPlace(const QByteArray& Jpeg);

}  // namespace neb
