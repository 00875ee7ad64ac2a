// From a Windows enhanced metafile to a drawing that can be painted without looking at anything
// but itself. Used by the metafile decoders.
#pragma once

#include <QByteArray>

namespace neb {

// The drawing as SVG, made by a program of its own with limits on its time and memory, so that a
// hostile file cannot harm this one. Throws Fault when it is damaged.
QByteArray EmfToSvg(const QByteArray& Emf);

// Takes the edge off all references to other files; pictures inside the drawing stay.
QByteArray WithoutOutsideReferences(QByteArray Svg);

}  // namespace neb
