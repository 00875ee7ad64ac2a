#include "settings/ProgramFiles.h"

#include "support/files/modHostFiles.h"
#include "support/files/modHostFilesSpelling.h"
#include "support/modFUFL.h"

namespace neb {

QString ProgramFilesOf(const QString& ProgramDir) {
    const QString Installed =
        CleanPath(ProgramDir + QStringLiteral("/../share/neb-slide-show")) + u'/';
    return FileExists(Installed + QStringLiteral("NoSlide.bmp")) ? Installed
                                                                 : WithSeparator(ProgramDir);
}

}  // namespace neb
