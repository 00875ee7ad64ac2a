// From record files to the objects of an engine, and back into the image that is written to the
// disk. Only the engine calls it.
#pragma once

#include "db/clsDBEngine.h"
#include "db/records/modJournal.h"

namespace neb {

// Albums, slides, shows, details and tracks, in this order. A record whose owner is not there is
// dropped.
void LoadAlbumTree(clsDBEngine& Engine, const RecordSource& Source);

// All eight files as they are to be written, in the order of the collections.
RecordImage BuildImage(const clsDBEngine& Engine);

}  // namespace neb
