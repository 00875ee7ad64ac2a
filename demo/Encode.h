// A painted picture as the bytes of a picture file; used by the generators beside this.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

#include "Scenes.h"

namespace neb::demo {

// Must run once before Encode, on the thread that starts the others.
void InitEncoders();
// Format: the extension, lower case: jpg png bmp tif wbmp tga pcx psd. Throws Fault.
QByteArray Encode(const QImage& Image, const QString& Format, Turned Stored);

}  // namespace neb::demo
