// Writes the sample pictures into a folder; used by neb-make-samples and its test.
#pragma once

#include <QSize>
#include <QString>

#include "Scenes.h"

namespace neb::demo {

// Percent: the size of each picture in hundredths of its own, 1 to 100.
QSize SizeAt(const Scene& Picture, int Percent);
// Paints all pictures on all processors and writes them. Throws Fault.
void WriteSamples(const QString& Folder, int Percent);

}  // namespace neb::demo
