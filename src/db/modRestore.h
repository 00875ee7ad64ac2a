// An earlier state of a database in the place of the present one. Used by the window that restores
// and by nebctl.
#pragma once

#include <memory>

#include "db/clsDBEngine.h"
#include "db/records/Generations.h"

namespace neb {

// The records of a generation, to be looked at and restored; none when it is damaged or gone.
// DBPath is that of the database that it belongs to. Throws Fault when it cannot be read.
std::unique_ptr<clsDBEngine> OpenGeneration(const Generation& Which, const QString& DBPath);

// Makes Then the state of theDB, on the disk and in memory; the present one, with all changes of
// the session, is a generation afterwards. All or nothing, as clsDBEngine::ReplaceBy says; throws
// Fault, also when the present state cannot be kept. Nobody may be at work with theDB.
//
// The counters never go down: pictures that came since then stay in their folders, so that their
// records can come back, and no new picture may take the name of one of them. Those of Then are
// raised accordingly.
void RestoreState(clsDBEngine& theDB, clsDBEngine& Then);

}  // namespace neb
