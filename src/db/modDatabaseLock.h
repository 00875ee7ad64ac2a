// Who has a database open says so by a lock beside its records, so that the program and the
// command line do not write it at the same time.
#pragma once

#include "support/files/InstanceLock.h"

namespace neb {

// The path for an InstanceLock; Dir is a database directory with closing separator.
inline QString DatabaseLockPath(const QString& Dir) {
    return Dir + QStringLiteral("InUse.lock");
}

}  // namespace neb
