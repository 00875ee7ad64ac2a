// A print document as a PDF file. A JPEG is in it with its own bytes, unharmed, once for all pages
// that show it; any other picture with its pixels, without loss, at as many as printing can show.
// Used by the preview's Save and by nebctl.
#pragma once

#include "printing/PrintDocument.h"

namespace neb {

// Writes beside the file and takes its place by a rename: the old or the new one is there, and
// nothing beside it. GoOn hears of every picture and text and may be empty; when it answers false,
// the answer is false and the old file stays. Throws Fault when the file cannot be written, or when
// not even the picture that stands in for others can be read. May run on a worker thread.
bool WritePdf(const PrintDocument& Document, const QString& Path, const PrintGoOn& GoOn = {});

}  // namespace neb
