#include "support/files/modHostFilesAccess.h"

#include <fcntl.h>
#include <sys/stat.h>
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

QByteArray FileMark(const QString& Path) {
    struct stat Is = {};
    if (::stat(QFile::encodeName(ResolvePath(Path)).constData(), &Is) != 0) return {};
    QByteArray Mark;
    for (const auto Part : {static_cast<qint64>(Is.st_dev), static_cast<qint64>(Is.st_ino),
                            static_cast<qint64>(Is.st_size), static_cast<qint64>(Is.st_mtim.tv_sec),
                            static_cast<qint64>(Is.st_mtim.tv_nsec)})
        Mark += QByteArray::number(Part) + ' ';
    return Mark;
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
