// What a JPEG says of how its picture lies. Used by what keeps JPEGs as they are.
#pragma once

#include <QByteArray>

namespace neb {

// A JPEG whose pixels have been turned upright, and what it says of how they lie is made to fit.
QByteArray SaidUpright(const QByteArray& Jpeg);

}  // namespace neb
