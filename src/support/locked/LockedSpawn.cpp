#include "support/locked/LockedSpawn.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>

#include <memory>
#include <new>
#include <vector>

#include "support/Fault.h"
#include "support/Texts.h"
#include "support/files/HostNames.h"
#include "support/locked/Descriptor.h"
#include "support/locked/LockedMessage.h"

extern char** environ;

namespace neb {
namespace {

[[noreturn]] void ThrowCannotStart(const QString& Path, int Error) {
    throw Fault(tr("No picture or sound can be read: a part of the program cannot be "
                   "started. (%1)")
                    .arg(qt_error_string(Error)),
                Path);
}

// The same for every user, whatever stands in the way of a library that looks for more.
std::vector<QByteArray> EnvironmentOf() {
    std::vector<QByteArray> All;
    for (char** Each = environ; *Each; ++Each) {
        const QByteArrayView Is(*Each);
        const bool IsOurs = Is.startsWith("QT_") || Is.startsWith("MALLOC_ARENA_MAX=") ||
                            Is.startsWith("XDG_RUNTIME_DIR=") || Is.startsWith("TMPDIR=");
        if (!IsOurs) All.emplace_back(*Each);
    }
    All.emplace_back("QT_QPA_PLATFORM=offscreen");
    All.emplace_back("MALLOC_ARENA_MAX=1");
    // No folder to leave anything in: without one of the user's own, Qt would make one.
    All.emplace_back("XDG_RUNTIME_DIR=/");
    All.emplace_back("TMPDIR=/dev/null");
    return All;
}

class SpawnActions {
  public:
    SpawnActions() {
        ::posix_spawn_file_actions_init(&mActions);
        ::posix_spawnattr_init(&mAttributes);
        sigset_t None, All;
        ::sigemptyset(&None);
        ::sigfillset(&All);
        ::posix_spawnattr_setsigmask(&mAttributes, &None);
        ::posix_spawnattr_setsigdefault(&mAttributes, &All);
        ::posix_spawnattr_setpgroup(&mAttributes, 0);  // Ctrl+C at a terminal is for us
        ::posix_spawnattr_setflags(
            &mAttributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETPGROUP);
    }
    ~SpawnActions() {
        ::posix_spawn_file_actions_destroy(&mActions);
        ::posix_spawnattr_destroy(&mAttributes);
    }
    SpawnActions(const SpawnActions&) = delete;
    SpawnActions& operator=(const SpawnActions&) = delete;

    // By way of a copy above all places: what is given may lie at the place of another.
    void Give(int From, int To) {
        constexpr int Above = LockedOut + 1;
        mHeld.push_back(std::make_unique<Descriptor>(::fcntl(From, F_DUPFD_CLOEXEC, Above)));
        if (**mHeld.back() < 0) throw std::bad_alloc();
        ::posix_spawn_file_actions_adddup2(&mActions, **mHeld.back(), To);
    }
    pid_t Start(const QByteArray& Path, const QByteArray& Role) {
        ::posix_spawn_file_actions_addclosefrom_np(&mActions, LockedOut + 1);
        QByteArray Program = Path, Argument = Role;
        char* const Words[] = {Program.data(), Argument.data(), nullptr};
        std::vector<QByteArray> Environment = EnvironmentOf();
        std::vector<char*> Pointers;
        for (QByteArray& Each : Environment) Pointers.push_back(Each.data());
        Pointers.push_back(nullptr);
        pid_t Pid = 0;
        const int Error =
            ::posix_spawn(&Pid, Path.constData(), &mActions, &mAttributes, Words, Pointers.data());
        if (Error != 0) ThrowCannotStart(HostName(Path.constData()), Error);
        return Pid;
    }

  private:
    posix_spawn_file_actions_t mActions;
    posix_spawnattr_t mAttributes;
    std::vector<std::unique_ptr<Descriptor>> mHeld;
};

}  // namespace

pid_t StartLocked(const QByteArray& Path, const QByteArray& Role,
                  std::span<const GivenFile> Files) {
    SpawnActions How;
    for (const auto& [From, To] : Files) How.Give(From, To);
    return How.Start(Path, Role);
}

}  // namespace neb
