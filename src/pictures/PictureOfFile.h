// A picture file as the transition views show it: all of its pixels. Used by the program's windows,
// by films and by nebctl effects, so that all of them see the same.
#pragma once

#include <QImage>
#include <QString>

namespace neb {

// Format_RGB32. On any thread. Throws as ImgX::Load does.
QImage PictureOfFile(const QString& File);

}  // namespace neb
