#include "support/locked/LockedRoom.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

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

// Bytes of address space.
std::int64_t OwnSpace() {
    constexpr std::int64_t Unknown = 4LL << 30;
    std::FILE* const File = std::fopen("/proc/self/statm", "r");
    if (!File) return Unknown;
    long long Pages = 0;
    const bool Read = std::fscanf(File, "%lld", &Pages) == 1;
    std::fclose(File);
    return Read ? Pages * ::sysconf(_SC_PAGESIZE) : Unknown;
}

}  // namespace

LockedRoom::LockedRoom() {
    size_t Bytes = 0;
    const std::byte* const InAt = MapOf(LockedIn, PROT_READ, Bytes);
    mIn = {InAt, Bytes};
    std::byte* const OutAt = MapOf(LockedOut, PROT_READ | PROT_WRITE, Bytes);
    mOut = {OutAt, Bytes};
    ::close_range(LockedIn, ~0U, 0);
}

void LockedRoom::Prepare() {
    const OwnSpaces Spaces = EnterOwnSpaces();
    mHasOwnRoot = Spaces.Root;
    mHasOwnNetwork = Spaces.Network;
}

void LockedRoom::Close(const LockNeeds& Needs) {
    const std::int64_t Space = OwnSpace();
    ::close_range(0, LockedTalk - 1, 0);
    ::close_range(LockedTalk + 1, ~0U, 0);
    LockReport Report;
    Report.EmptyRoot = mHasOwnRoot && LeaveFiles();
    Report.OwnNetwork = mHasOwnNetwork;
    Report.NoNewPrivileges = GiveUpNewPrivileges();
    Report.Landlock = CloseByLandlock();
    Report.Limits = SetLimits(Needs);
    Report.SystemCalls = FilterSystemCalls(Needs);
    LockedMessage Ready;
    Ready = LockedMessage(LockedReady, {Report.Packed(), Space});
    Send(Ready);
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
