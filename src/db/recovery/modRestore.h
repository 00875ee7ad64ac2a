// An earlier state of a database in the place of the present one, and the two ways out of a damaged
// one. Used by the windows that restore and by nebctl.
#pragma once

#include <memory>
#include <optional>

#include "db/clsDBEngine.h"
#include "db/records/Generations.h"
#include "db/recovery/DatabaseHealth.h"

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
// raised accordingly, also above the files that lie in Albums.
void RestoreState(clsDBEngine& theDB, clsDBEngine& Then);

// Raises the counters that are not above these.
void RaiseCounters(clsDBEngine& theDB, const IDCounters& Free);

// The newest earlier state that has albums and is in order by itself. Reads the files.
std::optional<Generation> LastGoodGeneration(const QString& DBPath);

// What has become of the files that a damaged database had.
struct KeptFiles {
    QString Folder;        // copies of all record files as they lay, below Backups
    QStringList PutAside;  // journals that do not go with these records
};
// Both keep the files of records first, and leave a database that is sound; what is sound in it is
// not asked again. The lock on it is the caller's. ProgramPath as clsDBEngine has it. Both throw
// Fault; then the record files are as they were, but one that could not be used may lie in the
// folder alone.
//
// Goes on with the records that can be read and have an owner; counters above all that is there.
KeptFiles GoOnWithRest(const QString& DBPath, const QString& ProgramPath,
                       const DatabaseHealth& Health);
// Brings an earlier state back; what can be read of the present one is kept as another one, too.
KeptFiles RestoreInstead(const QString& DBPath, const QString& ProgramPath,
                         const DatabaseHealth& Health, const Generation& Which);

// Fills an engine with what can be read of a damaged database, to be looked at; the disk is left
// as it is.
void LoadRest(clsDBEngine& Into, const DatabaseHealth& Health);

// How much that is; nothing where it cannot be told.
struct RestThere {
    qint64 Albums = 0, Slides = 0, SlideShows = 0;
};
std::optional<RestThere> CountRest(const QString& DBPath, const DatabaseHealth& Health);

}  // namespace neb
