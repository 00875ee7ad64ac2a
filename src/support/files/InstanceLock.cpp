#include "support/files/InstanceLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QList>
#include <QSysInfo>
#include <cerrno>
#include <csignal>
#include <utility>

#include "support/files/HostNames.h"
#include "support/files/NameCache.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

// Lines of the file: the process, the program, the machine's name and its ID, and the ID of the
// running system, which all containers on a machine share.
enum Line { Process, Program, Machine, MachineID, SystemID, LineCount };
using Holder = QList<QByteArray>;

constexpr int MostLockTries = 20;
constexpr qint64 MostText = 4096;

Holder Myself() {
    return {QByteArray::number(::getpid()), QCoreApplication::applicationName().toUtf8(),
            QSysInfo::machineHostName().toUtf8(), QSysInfo::machineUniqueId(),
            QSysInfo::bootUniqueId()};
}

// Empty when it names nobody: it was cut short, or found no room.
Holder HolderIn(const QByteArray& Text) {
    const Holder Lines = Text.split('\n');
    return Lines.size() > LineCount ? Lines.first(LineCount) : Holder();
}

bool IsOfThisMachine(const Holder& Other) {
    const Holder Me = Myself();
    const auto IsSame = [&](Line Each) { return !Me[Each].isEmpty() && Me[Each] == Other[Each]; };
    const bool HasID = !Other[MachineID].isEmpty() && !Me[MachineID].isEmpty();
    return IsSame(SystemID) || (HasID ? IsSame(MachineID) : IsSame(Machine));
}

// For a place where the host knows no locks.
bool IsAlive(const Holder& Other) {
    const int Number = Other[Process].toInt();
    return Number > 0 && (::kill(Number, 0) == 0 || errno == EPERM);
}

// A file that is open, until it goes.
class Handle {
  public:
    explicit Handle(int Descriptor = -1) : mDescriptor(Descriptor) {}
    Handle(Handle&& Other) noexcept : mDescriptor(std::exchange(Other.mDescriptor, -1)) {}
    Handle& operator=(Handle&& Other) noexcept {
        std::swap(mDescriptor, Other.mDescriptor);
        return *this;
    }
    ~Handle() {
        if (mDescriptor >= 0) ::close(mDescriptor);
    }
    explicit operator bool() const { return mDescriptor >= 0; }
    int operator*() const { return mDescriptor; }

  private:
    int mDescriptor;
};

// Who may write into the directory may see who does, and take over what was left.
void ShareWithTheDirectory(int Descriptor, const QByteArray& Path) {
    struct stat Folder = {};
    const QByteArray Dir = HostBytes(GetFilePath(HostName(Path)));
    if (::stat(Dir.isEmpty() ? "." : Dir.constData(), &Folder) == 0)
        static_cast<void>(::fchmod(Descriptor, Folder.st_mode & 0666));
}

enum class Claim { Mine, Another, Unknown };  // Unknown: the host has no locks there

Claim ClaimFile(int Descriptor) {
    if (::flock(Descriptor, LOCK_EX | LOCK_NB) == 0) return Claim::Mine;
    return errno == EWOULDBLOCK ? Claim::Another : Claim::Unknown;
}

// Whether the name still leads to what was opened: who lets go of a lock deletes its file.
bool IsStillAt(int Descriptor, const QByteArray& Path) {
    struct stat Opened = {}, Named = {};
    return ::fstat(Descriptor, &Opened) == 0 && ::stat(Path.constData(), &Named) == 0 &&
           Opened.st_ino == Named.st_ino && Opened.st_dev == Named.st_dev;
}

QByteArray TextOf(int Descriptor) {
    QByteArray Text(MostText, '\0');
    const ssize_t Count = ::pread(Descriptor, Text.data(), MostText, 0);
    return Text.first(std::max<ssize_t>(Count, 0));
}

LockAnswer Unlockable() {
    return {LockAnswer::State::CannotLock, {}, qt_error_string(errno)};
}

}  // namespace

struct InstanceLock::State {
    explicit State(const QString& Path) : Name(HostBytes(ResolvePath(Path))) {}

    // Nothing: somebody was quicker, look again.
    std::optional<LockAnswer> Try(FromElsewhere Other) {
        Handle There(::open(Name.constData(), O_RDWR | O_CLOEXEC));
        const bool MayWrite = static_cast<bool>(There);
        if (!There && errno == ENOENT) return Make();
        if (!There) There = Handle(::open(Name.constData(), O_RDONLY | O_CLOEXEC));
        if (!There) return errno == ENOENT ? std::nullopt : std::optional(Unlockable());
        const Claim Is = ClaimFile(*There);
        if (Is == Claim::Another) return LockAnswer{LockAnswer::State::HeldHere};
        if (!IsStillAt(*There, Name)) return std::nullopt;
        const Holder Left = HolderIn(TextOf(*There));
        if (!Left.isEmpty() && !IsOfThisMachine(Left) && Other == FromElsewhere::Counts)
            return LockAnswer{LockAnswer::State::HeldElsewhere, QString::fromUtf8(Left[Machine])};
        if (Is == Claim::Unknown && !Left.isEmpty() && IsOfThisMachine(Left) && IsAlive(Left))
            return LockAnswer{LockAnswer::State::HeldHere};
        return MayWrite ? Keep(std::move(There)) : Renew(std::move(There));
    }
    std::optional<LockAnswer> Make() {
        Handle Made(::open(Name.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
        if (!Made) return errno == EEXIST ? std::nullopt : std::optional(Unlockable());
        ShareWithTheDirectory(*Made, Name);
        if (ClaimFile(*Made) == Claim::Another || !IsStillAt(*Made, Name)) return std::nullopt;
        NoteNameMade(HostName(Name));
        return Keep(std::move(Made));
    }
    // That of another user, which cannot be written. Where it cannot be replaced either, as among
    // everybody's files, it is held as it is.
    std::optional<LockAnswer> Renew(Handle Old) {
        if (::unlink(Name.constData()) == 0) return Make();
        mHeld = std::move(Old);
        return LockAnswer{};
    }
    // A full disk has no room for the text, perhaps; the host's lock needs none.
    LockAnswer Keep(Handle Mine) {
        const QByteArray Text = Myself().join('\n') + '\n';
        if (::ftruncate(*Mine, 0) == 0 &&
            ::pwrite(*Mine, Text.constData(), static_cast<size_t>(Text.size()), 0) == Text.size())
            static_cast<void>(::fsync(*Mine));
        mHeld = std::move(Mine);
        return {};
    }
    // The file first: whoever opens it meanwhile sees that it has gone.
    void LetGo() {
        if (!mHeld) return;
        if (IsStillAt(*mHeld, Name) && ::unlink(Name.constData()) == 0)
            NoteNameGone(HostName(Name));
        mHeld = Handle();
    }

    const QByteArray Name;
    Handle mHeld;
};

InstanceLock::InstanceLock(const QString& Path) : mState(std::make_unique<State>(Path)) {}

InstanceLock::~InstanceLock() {
    mState->LetGo();
}

LockAnswer InstanceLock::TryLock(FromElsewhere Other) {
    if (mState->mHeld) return {};
    for (int I = 0; I < MostLockTries; ++I)
        if (auto Answered = mState->Try(Other)) return *Answered;
    return {LockAnswer::State::HeldHere};
}

}  // namespace neb
