#include "support/files/modHostFilesAccess.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "support/Fault.h"
#include "support/Texts.h"
#include "support/files/HostNames.h"
#include "support/files/modHostFilesOpen.h"
#include "support/files/modHostFilesSteps.h"

namespace neb {

void ClearReadOnly(const QString& Path) {
    AnnounceStep(HostStep::Protect, Path);
    HostFile File(ResolvePath(Path));
    if (!File.ChangeRights(S_IWUSR, 0))
        throw Fault(
            tr("The file is read-only, and that cannot be changed. (%1)").arg(File.errorString()),
            Path);
}

void MakePrivate(const QString& Path) {
    AnnounceStep(HostStep::Protect, Path);
    HostFile File(ResolvePath(Path));
    if (!File.ChangeRights(0, S_IRWXG | S_IRWXO))
        throw Fault(
            QStringLiteral("The file cannot be kept from others. (%1)").arg(File.errorString()),
            Path);
}

namespace {

// For the user on whose behalf the program works, who need not be the one who started it.
bool Grants(const QString& Path, int Rights) {
    return ::faccessat(AT_FDCWD, HostBytes(ResolvePath(Path)).constData(), Rights, AT_EACCESS) == 0;
}

}  // namespace

bool CanWriteInto(const QString& Dir) {
    return FolderExists(Dir) && Grants(Dir, W_OK | X_OK);
}

bool MayWrite(const QString& Path) {
    return FolderExists(Path) ? CanWriteInto(Path) : Grants(Path, W_OK);
}

QString WhyUnseen(const QString& Path) {
    struct stat Is = {};
    if (::stat(HostBytes(ResolvePath(Path)).constData(), &Is) == 0) return {};
    return errno == ENOENT ? QString() : qt_error_string(errno);
}

QByteArray FileMark(const QString& Path) {
    struct stat Is = {};
    if (::stat(HostBytes(ResolvePath(Path)).constData(), &Is) != 0) return {};
    QByteArray Mark;
    for (const auto Part : {static_cast<qint64>(Is.st_dev), static_cast<qint64>(Is.st_ino),
                            static_cast<qint64>(Is.st_size), static_cast<qint64>(Is.st_mtim.tv_sec),
                            static_cast<qint64>(Is.st_mtim.tv_nsec)})
        Mark += QByteArray::number(Part) + ' ';
    return Mark;
}

int OpenForOther(const QString& Path) {
    const QByteArray Host = HostBytes(ResolvePath(Path));
    const int Descriptor = ::open(Host.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (Descriptor < 0)
        throw Fault(tr("The file cannot be read: %1.").arg(qt_error_string(errno)), Path);
    return Descriptor;
}

}  // namespace neb
