// Another database than the program's own, opened for as long as a transfer needs it: found, locked
// against other programs, read. Used by the transfer windows and nebctl.
#pragma once

#include "db/clsDBEngine.h"
#include "db/records/modJournal.h"
#include "db/recovery/DatabaseHealth.h"
#include "support/files/InstanceLock.h"

namespace neb {

class OtherDatabase {
  public:
    enum class Use {
        Source,      // is read alone: nothing in it is changed, not even an unfinished write
        Destination  // must be writable; one that is not there begins as an empty one
    };
    // Dir is a database directory, with closing separator (DatabaseIn of settings finds it). The
    // reading runs beside the caller, whose window goes on painting. Refused when it is in use,
    // when it is to be written and read-only or damaged, and as a source when counters or records
    // of it are lost. Throws Fault.
    static Answer<std::shared_ptr<OtherDatabase>> Open(const QString& Dir, Use For,
                                                       FromElsewhere Other = FromElsewhere::Counts);

    clsDBEngine& Engine() { return mEngine; }
    const QString& DBPath() const { return mEngine.DBPath(); }
    Use For() const { return mFor; }
    // Forgets what was changed in memory and reads again. Throws Fault.
    void Reread();

  private:
    OtherDatabase(const QString& Dir, Use For);
    std::optional<BoxRequest> WhyNotLocked(FromElsewhere Other);

    const Use mFor;
    IDCounters mFree;  // above all that lies there
    InstanceLock mLock;
    clsDBEngine mEngine;
};

// What is said of a database whose counters are not to be relied on.
BoxRequest DamagedCounters(const QString& Dir);
// Whether two directories are one: the host's own comparison (case, links, closing separators).
bool IsSameDatabase(const QString& One, const QString& Other);

}  // namespace neb
