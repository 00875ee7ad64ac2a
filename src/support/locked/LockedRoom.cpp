#include "support/locked/LockedRoom.h"

#include <sched.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include "support/locked/Lock.h"
#include "support/locked/LockReport.h"

namespace neb {
namespace {

[[noreturn]] void EndAsStartedByHand() {
    std::fputs("This is a part of NEB Slide Show, which the program starts by itself.\n", stderr);
    std::_Exit(2);
}

std::byte* MapOf(int File, int Mode, size_t& Bytes) {
    struct stat Is = {};
    if (::fstat(File, &Is) != 0 || Is.st_size <= 0) EndAsStartedByHand();
    Bytes = static_cast<size_t>(Is.st_size);
    void* const At = ::mmap(nullptr, Bytes, Mode, MAP_SHARED, File, 0);
    if (At == MAP_FAILED) EndAsStartedByHand();
    ::close(File);
    return static_cast<std::byte*>(At);
}

void ShutAllFrom(int First) {
    if (::close_range(static_cast<unsigned>(First), ~0U, 0) == 0) return;
    // An older kernel. Nothing of ours has as many.
    constexpr int Most = 1 << 16;
    for (int Each = First; Each < Most; ++Each) ::close(Each);
}

// Whether a page more would still be within so many bytes of address space.
bool IsWithin(rlim_t Bytes, rlim_t Hard) {
    const rlimit Trial = {Bytes, Hard};
    ::setrlimit(RLIMIT_AS, &Trial);
    const auto Page = static_cast<size_t>(::sysconf(_SC_PAGESIZE));
    void* const At = ::mmap(nullptr, Page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return At != MAP_FAILED && ::munmap(At, Page) == 0;
}

// Bytes of address space, by what the system still gives: where it would tell, in /proc, is not
// everywhere. 0: it is not to be limited.
std::int64_t OwnSpace() {
    if (IsWatchedBuild) return 0;
    rlimit Before = {};
    ::getrlimit(RLIMIT_AS, &Before);
    constexpr rlim_t Exact = 64 << 10;
    rlim_t Enough = std::min<rlim_t>(Before.rlim_max, 1ULL << 47), TooFew = 0;
    while (Enough - TooFew > Exact) {
        const rlim_t Middle = TooFew + (Enough - TooFew) / 2;
        (IsWithin(Middle, Before.rlim_max) ? Enough : TooFew) = Middle;
    }
    ::setrlimit(RLIMIT_AS, &Before);
    return static_cast<std::int64_t>(Enough);
}

// A library that has started a thread already would leave it outside: each has its own rights.
bool IsOfOneThread() {
    return ::unshare(CLONE_THREAD) == 0 || errno != EINVAL;
}

}  // namespace

LockedRoom::LockedRoom() {
    size_t Bytes = 0;
    const std::byte* const InAt = MapOf(LockedIn, PROT_READ, Bytes);
    mIn = {InAt, Bytes};
    std::byte* const OutAt = MapOf(LockedOut, PROT_READ | PROT_WRITE, Bytes);
    mOut = {OutAt, Bytes};
    ShutAllFrom(LockedIn);
}

void LockedRoom::Prepare() {
    const OwnSpaces Spaces = EnterOwnSpaces();
    mHasOwnRoot = Spaces.Root;
    mHasOwnNetwork = Spaces.Network;
}

void LockedRoom::Close(const LockNeeds& Needs) {
    const std::int64_t Space = OwnSpace();
    for (int Each = 0; Each < LockedTalk; ++Each)
        if (!IsWatchedBuild || Each != STDERR_FILENO) ::close(Each);
    ShutAllFrom(LockedTalk + 1);
    LockReport Report;
    Report.EmptyRoot = mHasOwnRoot && LeaveFiles();
    Report.OwnNetwork = mHasOwnNetwork;
    const bool IsAlone = IsOfOneThread();
    Report.NoNewPrivileges = GiveUpNewPrivileges() && IsAlone;
    Report.Landlock = IsAlone ? CloseByLandlock() : 0;
    Report.Limits = SetLimits(Needs);
    Report.SystemCalls = FilterSystemCalls(Needs);
    Send(LockedMessage(LockedReady, {Report.Packed(), Space}));
}

void LockedRoom::Send(const LockedMessage& Message) {
    if (::write(LockedTalk, &Message, sizeof(Message)) != sizeof(Message)) std::_Exit(1);
}

LockedMessage LockedRoom::Receive() {
    LockedMessage Message;
    const ssize_t Length = ::read(LockedTalk, static_cast<void*>(&Message), sizeof(Message));
    if (Length != sizeof(Message) || !Message.IsWhole()) std::_Exit(Length == 0 ? 0 : 1);
    return Message;
}

}  // namespace neb
