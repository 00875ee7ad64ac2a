// What the routines that change the disk tell a test's watcher; for modHostFiles alone.
#pragma once

#include "support/files/modHostFiles.h"

QT_BEGIN_NAMESPACE
class QFile;
QT_END_NAMESPACE

namespace neb {

void AnnounceStep(HostStep Step, const QString& Path);
// How many of these bytes a write may write: all, unless a watcher stands in for a full disk.
qint64 AllowedToWrite(const QString& Path, qint64 Length);
// All of it, with as many calls as the host needs: one that wrote a part only does not know why.
// False: the file's error tells.
bool WriteEach(QFile& File, const char* Data, qint64 Length);
[[noreturn]] void FailNoSpace(const QString& Path);

}  // namespace neb
