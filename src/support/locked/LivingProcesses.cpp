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
};

// Never ended: threads may still be at work when all else is.
Living& TheLiving() {
    static auto* const Its = new Living;
    return *Its;
}

void EndAll() {
    const std::lock_guard Lock(TheLiving().Lock);
    for (const pid_t Each : TheLiving().All) ::kill(Each, SIGKILL);
}

}  // namespace

void NoteLiving(pid_t Pid) {
    AtProcessEnd(&EndAll);
    const std::lock_guard Lock(TheLiving().Lock);
    TheLiving().All.insert(Pid);
}

void ForgetLiving(pid_t Pid) {
    const std::lock_guard Lock(TheLiving().Lock);
    TheLiving().All.erase(Pid);
}

}  // namespace neb
