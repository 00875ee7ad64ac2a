// How a command of nebctl that writes takes the lock of its database, and what it says where it
// cannot.
#pragma once

#include <QStringList>

#include "support/files/InstanceLock.h"
#include "tools/words/ToolIO.h"

namespace neb {

// Takes "--take-over" out of the words.
FromElsewhere TakeOver(QStringList& Words);
// False after a line on Err. Dir is the database directory as it is to be named.
bool TakeLock(InstanceLock& Lock, const QString& Dir, FromElsewhere Other, ToolIO& IO);

}  // namespace neb
