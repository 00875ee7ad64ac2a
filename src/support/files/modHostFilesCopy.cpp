#include "support/files/modHostFilesCopy.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <vector>

#include "support/Fault.h"
#include "support/Texts.h"
#include "support/files/HostNames.h"
#include "support/files/NameCache.h"
#include "support/files/modHostFilesOpen.h"
#include "support/files/modHostFilesSteps.h"

namespace neb {
namespace {

constexpr qint64 CopiedPiece = 1 << 22;

class BytesCopy {
  public:
    BytesCopy(const QString& From, const QString& To) : mFrom(From), mTo(To) {
        if (!mFrom.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) FailRead();
        if (!mTo.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered))
            FailWrite();
        NoteNameMade(To);
        mLeft = mFrom.size();
    }

    bool Run(const std::function<bool(qint64)>& GoOn) {
        while (mLeft > 0) {
            const qint64 Count = CopyPiece(std::min(mLeft, CopiedPiece));
            mLeft -= Count;
            if (!GoOn(Count)) return false;
        }
        return true;
    }

  private:
    qint64 CopyPiece(qint64 Length) {
        const qint64 Allowed = AllowedToWrite(mTo.fileName(), Length);
        qint64 Count = mByHost ? CopyByHost(Allowed) : -1;
        if (Count < 0) Count = CopyByHand(Allowed);
        if (Allowed < Length) FailNoSpace(mTo.fileName());
        if (Count == 0)
            throw Fault(tr("The file cannot be read: it has become shorter."), mFrom.fileName());
        return Count;
    }

    // Inside the host, which may even share the room on the disk. Not every medium can: -1.
    qint64 CopyByHost([[maybe_unused]] qint64 Length) {
#ifdef __linux__
        const ssize_t Count = ::copy_file_range(mFrom.handle(), nullptr, mTo.handle(), nullptr,
                                                static_cast<size_t>(Length), 0);
        if (Count > 0 || Length == 0) return Count;
        if (Count < 0 && errno == ENOSPC) FailNoSpace(mTo.fileName());
#endif
        mByHost = false;
        return -1;
    }
    qint64 CopyByHand(qint64 Length) {
        mRoom.resize(static_cast<size_t>(Length));
        mFrom.seek(mFrom.size() - mLeft);
        mTo.seek(mFrom.size() - mLeft);
        const qint64 Count = mFrom.read(mRoom.data(), Length);
        if (Count < 0) FailRead();
        if (!WriteEach(mTo, mRoom.data(), Count)) FailWrite();
        return Count;
    }

    [[noreturn]] void FailRead() const {
        throw Fault(tr("The file cannot be read: %1.").arg(mFrom.errorString()), mFrom.fileName());
    }
    [[noreturn]] void FailWrite() const {
        throw Fault(tr("The file cannot be written: %1.").arg(mTo.errorString()), mTo.fileName());
    }

    HostFile mFrom, mTo;
    qint64 mLeft = 0;
    bool mByHost = true;
    std::vector<char> mRoom;
};

}  // namespace

bool CopyBytes(const QString& From, const QString& To,
               const std::function<bool(qint64 Piece)>& GoOn) {
    return BytesCopy(From, To).Run(GoOn);
}

void SyncVolume(const QString& Dir) {
    AnnounceStep(HostStep::SyncVolume, Dir);
#ifdef __linux__
    const int Handle = ::open(HostBytes(ResolvePath(Dir)).constData(), O_RDONLY);
    const bool Done = Handle >= 0 && ::syncfs(Handle) == 0;
    const QString Reason = qt_error_string(errno);
    if (Handle >= 0) ::close(Handle);
    if (!Done)
        throw Fault(tr("What was copied cannot be brought to the disk: %1.").arg(Reason), Dir);
#endif
}

bool IsSameVolume([[maybe_unused]] const QString& One, [[maybe_unused]] const QString& Other) {
#ifdef __linux__
    struct stat First = {}, Second = {};
    if (::stat(HostBytes(ResolvePath(One)).constData(), &First) != 0 ||
        ::stat(HostBytes(ResolvePath(Other)).constData(), &Second) != 0)
        return true;
    return First.st_dev == Second.st_dev;
#else
    return true;
#endif
}

bool MayWriteIn(const QString& Dir) {
    const QByteArray Native = HostBytes(ResolvePath(Dir));
    return ::faccessat(AT_FDCWD, Native.constData(), W_OK | X_OK, AT_EACCESS) == 0;
}

qint64 FreeSpace(const QString& Dir) {
    struct statvfs Medium = {};
    if (::statvfs(HostBytes(ResolvePath(Dir)).constData(), &Medium) != 0) return -1;
    return static_cast<qint64>(Medium.f_bavail) * static_cast<qint64>(Medium.f_frsize);
}

bool IsSameDir(const QString& One, const QString& Other) {
    if (One == Other) return true;
    std::error_code Problem;
    return std::filesystem::equivalent(HostBytes(ResolvePath(One)).constData(),
                                       HostBytes(ResolvePath(Other)).constData(), Problem) &&
           !Problem;
}

}  // namespace neb
