// The contact sheet of all transitions, each half way from one picture to the other, with number
// and name. Used by nebctl effects sheet.
#pragma once

#include <QImage>

namespace neb {

// The pictures may be of any size; what is seen of them is their middle.
QImage PaintEffectSheet(const QImage& Old, const QImage& New);

}  // namespace neb
