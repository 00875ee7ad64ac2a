#include "pictures/workers/OwnSums.h"

#include "support/Fault.h"
#include "support/files/modHostFiles.h"
#include "support/files/modHostFilesLines.h"

namespace neb {

// One file for each first digit: a single one would have to be read whole for every picture.
QString OwnSums::PlaceOf(const QByteArray& Sum) const {
    return mFolder + QStringLiteral("Own") + QLatin1Char(Sum.front()) + QStringLiteral(".sums");
}

void OwnSums::Note(const QByteArray& Sum) {
    if (mFolder.isEmpty() || Sum.isEmpty() || Has(Sum)) return;
    const std::lock_guard Lock(mLock);
    try {
        MakeDirs(mFolder);
        AppendLines(PlaceOf(Sum), Sum + '\n');
    } catch (const Fault&) {
        return;
    }
}

bool OwnSums::Has(const QByteArray& Sum) const {
    if (mFolder.isEmpty() || Sum.isEmpty()) return false;
    const std::lock_guard Lock(mLock);
    try {
        return FileExists(PlaceOf(Sum)) && ReadFile(PlaceOf(Sum)).contains(Sum + '\n');
    } catch (const Fault&) {
        return false;
    }
}

}  // namespace neb
