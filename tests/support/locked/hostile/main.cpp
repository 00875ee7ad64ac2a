// Stands for a decoder that a picture has taken over: it does whatever it is told to, in the locked
// room of the program. Of the tests alone.
#include <seccomp.h>
#include <sys/prctl.h>

#include <cerrno>
#include <condition_variable>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <string>
#include <thread>

#include "support/locked/Lock.h"
#include "support/locked/LockReport.h"
#include "support/locked/hostile/HostileDeeds.h"

namespace neb {
namespace {

std::string Setting(const char* Name) {
    const char* const Text = std::getenv(Name);
    return Text ? Text : "";
}

bool Has(const char* Name, const char* Word) {
    return Setting(Name).find(Word) != std::string::npos;
}

// A system that has not got what is refused, or keeps it from its containers.
void StandInForPoorerSystem() {
    const scmp_filter_ctx Its = ::seccomp_init(SCMP_ACT_ALLOW);
    const auto Refuse = [Its](int Error, std::initializer_list<const char*> Names) {
        for (const char* const Name : Names)
            ::seccomp_rule_add(Its, SCMP_ACT_ERRNO(static_cast<unsigned>(Error)),
                               ::seccomp_syscall_resolve_name(Name), 0);
    };
    if (Has(RefuseThis, "namespaces"))
        Refuse(EPERM, {"unshare", "mount", "umount2", "pivot_root", "chroot", "fsopen", "setns"});
    if (Has(RefuseThis, "landlock"))
        Refuse(ENOSYS, {"landlock_create_ruleset", "landlock_add_rule", "landlock_restrict_self"});
    if (Has(RefuseThis, "filter")) {
        Refuse(ENOSYS, {"seccomp"});
        ::seccomp_rule_add(Its, SCMP_ACT_ERRNO(EINVAL), SCMP_SYS(prctl), 1,
                           SCMP_A0(SCMP_CMP_EQ, PR_SET_SECCOMP));
    }
    if (::seccomp_load(Its) != 0) std::_Exit(3);
    ::seccomp_release(Its);
}

// One measure with none of the others; the program itself knows of no such thing.
void CloseByOneAlone(LockedRoom& Room, const OwnSpaces& Spaces) {
    LockReport Report;
    Report.OwnNetwork = Spaces.Network;
    Report.EmptyRoot = Spaces.Root && LeaveFiles();
    if (Has(OnlyThis, "rights") || Has(OnlyThis, "landlock") || Has(OnlyThis, "filter"))
        Report.NoNewPrivileges = GiveUpNewPrivileges();
    if (Has(OnlyThis, "landlock")) Report.Landlock = CloseByLandlock();
    if (Has(OnlyThis, "limits")) Report.Limits = SetLimits({});
    if (Has(OnlyThis, "filter")) Report.SystemCalls = FilterSystemCalls({});
    Room.Send(LockedMessage(LockedReady, {Report.Packed(), 0}));
}

// A library that has started a thread before the door is shut.
void BeBusy() {
    std::thread([] {
        std::mutex Lock;
        std::unique_lock Locked(Lock);
        std::condition_variable().wait(Locked, [] { return false; });
    }).detach();
}

[[noreturn]] void Serve() {
    if (!Setting(RefuseThis).empty()) StandInForPoorerSystem();
    if (Has(BeLike, "tampering")) TamperWithBirthGifts();
    LockedRoom Room;
    if (Setting(OnlyThis).empty()) {
        Room.Prepare();
        if (Has(BeLike, "busy")) BeBusy();
        Room.Close({.Threads = Has(BeLike, "threads")});
    } else {
        CloseByOneAlone(Room, Has(OnlyThis, "namespaces") ? EnterOwnSpaces() : OwnSpaces());
    }
    for (;;) {
        const DeedDone Done = Do(Room, Room.Receive());
        Room.Send(LockedMessage(HostileKind::Done, {Done.Result, Done.Error}));
    }
}

}  // namespace
}  // namespace neb

int main() {
    neb::Serve();
}
