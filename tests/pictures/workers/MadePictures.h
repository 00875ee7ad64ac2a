// Pictures of every format that something here writes, larger and odder than the sample files:
// noise and curves, turned, with profiles, fine and coarse. For the tests of the processes that
// read pictures.
#pragma once

#include "pictures/workers/ComparedReading.h"

namespace neb::tests {

// Colours that no coder finds easy, and that are the same everywhere.
QImage Woven(QSize Size, QImage::Format Format = QImage::Format_RGB32);
QByteArray ByQt(const QImage& Picture, const char* Format, int Quality = 90);
// Sixteen bits a sample, greys, inks, tiles; what the TIFF library and Magick++ share.
std::vector<NamedFile> MadeTiffs();
// Greys of sixteen bits, nearly all the same.
QByteArray FineTiff(QSize Size);
// By the other half of the library that reads them; nothing where it cannot.
std::vector<NamedFile> MadeHeifs();
std::vector<NamedFile> MadeJpegs();
std::vector<NamedFile> MadePictures();

}  // namespace neb::tests
