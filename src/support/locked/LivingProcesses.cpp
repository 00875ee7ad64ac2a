#include "support/locked/LivingProcesses.h"

#include <signal.h>

#include <mutex>
#include <set>

#include "support/work/ProcessEnd.h"

namespace neb {
namespace {

struct Living {
    std::mutex Lock;
    std::set<pid_t> All;
    bool AreOver = false;
};

// Never ended: threads may still be at work when all else is.
Living& TheLiving() {
    static auto* const Its = new Living;
    return *Its;
}

void EndAll() {
    const std::lock_guard Lock(TheLiving().Lock);
    TheLiving().AreOver = true;
    for (const pid_t Each : TheLiving().All) ::kill(Each, SIGKILL);
}

}  // namespace

void NoteLiving(pid_t Pid) {
    AtProcessEnd(&EndAll);
    const std::lock_guard Lock(TheLiving().Lock);
    TheLiving().All.insert(Pid);
    // A second try for what has just been ended would be waited for at the end of the program.
    if (TheLiving().AreOver) ::kill(Pid, SIGKILL);
}

void ForgetLiving(pid_t Pid) {
    const std::lock_guard Lock(TheLiving().Lock);
    TheLiving().All.erase(Pid);
}

}  // namespace neb
