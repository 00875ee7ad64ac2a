// A print document as a file of the program's own (".ppd"), to be looked at and printed later,
// wherever its pictures have gone meanwhile: it holds their bytes. The layout is told in
// docs/PPD-FORMAT.md. Used by the preview's Save and Load.
#pragma once

#include <memory>

#include "printing/PrintDocument.h"

namespace neb {

// Writes beside the file and takes its place by a rename: the old or the new one is there, and
// nothing beside it. GoOn hears of every picture and may be empty; when it answers false, the
// answer is false and the old file stays. A picture that cannot be read is kept as the stand-in.
// Throws Fault when the file cannot be written. May run on a worker thread.
bool WritePpd(const PrintDocument& Document, const QString& Path, const PrintGoOn& GoOn = {});

// The document in a file. Its pictures stay in the file, which is held open: memory stays flat, and
// the document is whole even when the file is replaced or deleted meanwhile. StandIn is its own
// for pictures that cannot be decoded. GoOn hears of every picture; nothing when it answers false.
// Throws Fault for what is no such file, is damaged, cut off, or of a later version.
std::shared_ptr<PrintDocument> ReadPpd(const QString& Path, const PrintPicture& StandIn,
                                       const PrintGoOn& GoOn = {});

}  // namespace neb
