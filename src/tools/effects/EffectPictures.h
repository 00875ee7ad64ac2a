// Pictures for nebctl effects: read from files, brought to one size, written as PNG or JPEG by
// the name's extension. All of them are Format_RGB32.
#pragma once

#include <QImage>
#include <QString>

namespace neb {

// One of the two pictures that lie beside the program for its speed test; Which: 1 or 2. Throws
// Fault that names the file, as do all of these.
QImage ProgramPicture(int Which);

// The whole picture within the size, in proportion and centred on black, as a show has it.
QImage FittedTo(const QImage& Picture, QSize Size);
// The middle of the picture, filling the size.
QImage Filling(const QImage& Picture, QSize Size);

// True when the extension is one that WritePicture knows.
bool MayWritePicture(const QString& File);
void WritePicture(const QString& File, const QImage& Picture);

}  // namespace neb
