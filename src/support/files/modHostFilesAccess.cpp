#include "support/files/modHostFilesAccess.h"

#include <fcntl.h>
#include <unistd.h>

#include <QFile>
#include <cerrno>

#include "support/Fault.h"
#include "support/files/modHostFilesSteps.h"

namespace neb {

void ClearReadOnly(const QString& Path) {
    AnnounceStep(HostStep::Protect, Path);
    QFile File(ResolvePath(Path));
    constexpr auto Write = QFileDevice::WriteOwner | QFileDevice::WriteUser;
    if (!File.setPermissions(File.permissions() | Write))
        throw Fault(QStringLiteral("The file is read-only, and that cannot be changed. (%1)")
                        .arg(File.errorString()),
                    Path);
}

bool CanWriteInto(const QString& Dir) {
    return FolderExists(Dir) &&
           ::access(QFile::encodeName(ResolvePath(Dir)).constData(), W_OK | X_OK) == 0;
}

int OpenForOther(const QString& Path) {
    const QByteArray Host = QFile::encodeName(ResolvePath(Path));
    const int Descriptor = ::open(Host.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (Descriptor < 0)
        throw Fault(QStringLiteral("The file cannot be read: %1.").arg(qt_error_string(errno)),
                    Path);
    return Descriptor;
}

}  // namespace neb
