// From record files to the objects of an engine, and back into the image that is written to the
// disk. The engine calls it, and a transfer, which writes a journal before its records change.
#pragma once

#include "db/Changes.h"
#include "db/clsDBEngine.h"
#include "db/records/modJournal.h"

namespace neb {

// Albums, slides, shows, details and tracks, in this order. A record whose owner is not there is
// dropped.
void LoadAlbumTree(clsDBEngine& Engine, const RecordSource& Source);

// All files as they are to be written, Words.dat where there is any need of it, in the order of the
// collections. With: as they will be once this album stands there, at the end when it is a new one.
RecordImage BuildImage(const clsDBEngine& Engine, const AlbumToPut* With = nullptr);

// The records of what has just been changed alone: the album's own, and of what it holds the slide,
// the show or everything that the change is about; and the counters.
RecordImage BuildPart(const clsDBEngine& Engine, const Change& What);

}  // namespace neb
