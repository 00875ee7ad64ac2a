#include "support/files/modHostFilesOpen.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "support/files/HostNames.h"

namespace neb {
namespace {

constexpr mode_t RightsOfNew = 0666;  // less those that the user withholds from every new file

int FlagsFor(QIODevice::OpenMode Mode) {
    int Flags = O_CLOEXEC;
    if ((Mode & QIODevice::ReadWrite) == QIODevice::ReadWrite)
        Flags |= O_RDWR;
    else
        Flags |= Mode & QIODevice::WriteOnly ? O_WRONLY : O_RDONLY;
    if (Mode & QIODevice::WriteOnly && !(Mode & QIODevice::ExistingOnly)) Flags |= O_CREAT;
    if (Mode & QIODevice::Append) Flags |= O_APPEND;
    const bool Replaces = Mode & QIODevice::Truncate;
    const bool WritesOnly =
        (Mode & (QIODevice::ReadWrite | QIODevice::Append)) == QIODevice::WriteOnly;
    return Replaces || WritesOnly ? Flags | O_TRUNC : Flags;
}

// A folder opens to be read, but has no bytes.
int OpenFile(const QByteArray& Path, QIODevice::OpenMode Mode) {
    const int Handle = ::open(Path.constData(), FlagsFor(Mode), RightsOfNew);
    struct stat Is = {};
    if (Handle < 0 || Mode & QIODevice::WriteOnly) return Handle;
    if (::fstat(Handle, &Is) != 0 || !S_ISDIR(Is.st_mode)) return Handle;
    ::close(Handle);
    errno = EISDIR;
    return -1;
}

}  // namespace

bool HostFile::Fail() {
    setErrorString(qt_error_string(errno));
    return false;
}

bool HostFile::open(OpenMode Mode) {
    const int Handle = OpenFile(HostBytes(mPath), Mode);
    return Handle >= 0 ? QFile::open(Handle, Mode, AutoCloseHandle) : Fail();
}

bool HostFile::Delete() {
    return ::unlink(HostBytes(mPath).constData()) == 0 || Fail();
}

bool HostFile::ChangeRights(mode_t Give, mode_t Take) {
    const QByteArray Path = HostBytes(mPath);
    struct stat Is = {};
    if (::stat(Path.constData(), &Is) != 0) return Fail();
    return ::chmod(Path.constData(), ((Is.st_mode | Give) & ~Take) & 07777) == 0 || Fail();
}

HostInfo::HostInfo(const QString& Path) : mPath(Path) {
    struct stat Is = {};
    if (::stat(HostBytes(Path).constData(), &Is) == 0) mIs = Is;
}

bool HostInfo::IsLink() const {
    struct stat Own = {};
    return ::lstat(HostBytes(mPath).constData(), &Own) == 0 && S_ISLNK(Own.st_mode);
}

QDateTime HostInfo::Changed() const {
    if (!mIs) return {};
    return QDateTime::fromMSecsSinceEpoch(mIs->st_mtim.tv_sec * qint64(1000) +
                                          mIs->st_mtim.tv_nsec / 1'000'000);
}

}  // namespace neb
