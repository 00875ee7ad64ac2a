#include "support/files/modHostFilesSpelling.h"

#include <QDir>

#include "support/files/modHostFiles.h"

namespace neb {

QString CleanPath(const QString& Path) {
    return QDir::cleanPath(AbsolutePath(Path));
}

}  // namespace neb
