// From a Windows enhanced metafile to a drawing that can be painted without looking at anything
// but itself. Used by the metafile decoders.
#pragma once

#include <QByteArray>

namespace neb {

// The drawing as SVG, made by a process of its own, for which this one asks whoever stands before
// its door. Throws Fault when it is damaged.
QByteArray EmfToSvg(const QByteArray& Emf);

// Takes the edge off all references to other files; pictures inside the drawing stay.
QByteArray WithoutOutsideReferences(QByteArray Svg);

}  // namespace neb
