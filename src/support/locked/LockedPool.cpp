#include "support/locked/LockedPool.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include "support/Fault.h"
#include "support/work/ProcessEnd.h"

namespace neb {
namespace {

// Who has waited as long goes beside those who are at work.
constexpr std::chrono::milliseconds Patience(500);

}  // namespace

struct LockedPool::Shared {
    LockedProgram Program;
    int Most;
    std::mutex Lock;
    std::condition_variable Changed;
    std::vector<std::unique_ptr<LockedProcess>> Idle;
    int AtWork = 0;
    int Coming = 0;  // being made ready beside
    std::optional<LockReport> Known;

    std::unique_ptr<LockedProcess> Make() { return std::make_unique<LockedProcess>(Program); }
    // One that waits or, while there may be more, none: then the caller makes one.
    std::unique_ptr<LockedProcess> Take() {
        std::unique_lock Locked(Lock);
        const auto IsFree = [this] { return !Idle.empty() || AtWork + Coming < Most; };
        Changed.wait_for(Locked, Patience, IsFree);
        ++AtWork;
        if (Idle.empty()) return nullptr;
        auto Its = std::move(Idle.back());
        Idle.pop_back();
        return Its;
    }
    void Return(std::unique_ptr<LockedProcess> Its) {
        const bool Lives = Its && Its->End() == LockedEnd::None;
        std::vector<std::unique_ptr<LockedProcess>>
            Gone;  // their end is not waited for in the lock
        const std::lock_guard Locked(Lock);
        --AtWork;
        auto& To = Lives && static_cast<int>(Idle.size()) < Most ? Idle : Gone;
        To.push_back(std::move(Its));
        Changed.notify_one();
    }
    bool WantsMore() {
        const std::lock_guard Locked(Lock);
        if (!Idle.empty() || Coming > 0 || AtWork > Most) return false;
        ++Coming;
        return true;
    }
    void AddOne() {
        std::unique_ptr<LockedProcess> Made;
        try {
            Made = Make();
            Made->TakeMemoryAhead(Program.AheadBytes);
        } catch (const Fault&) {
            Made = nullptr;  // who needs one is told
        }
        const std::lock_guard Locked(Lock);
        --Coming;
        if (Made) {
            Known = Made->Report();
            Idle.push_back(std::move(Made));
        }
        Changed.notify_one();
    }
};

LockedPool::LockedPool(LockedProgram Program, int Most) : mShared(std::make_shared<Shared>()) {
    mShared->Program = std::move(Program);
    mShared->Most =
        Most > 0 ? Most : static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
}

LockedPool::~LockedPool() = default;

LockedPool::Lent::Lent(LockedPool& Pool) : mPool(Pool), mProcess(Pool.mShared->Take()) {
    if (mProcess) return;
    try {
        mProcess = mPool.mShared->Make();
    } catch (...) {
        mPool.mShared->Return(nullptr);
        throw;
    }
}

LockedPool::Lent::~Lent() {
    const bool Lives = mProcess->End() == LockedEnd::None;
    if (Lives) mProcess->LetGoOfMemory();
    mPool.mShared->Return(std::move(mProcess));
    if (!Lives) mPool.WarmUp();
}

void LockedPool::WarmUp() {
    if (!mShared->WantsMore()) return;
    std::thread([Mine = mShared, Counts = WorkOnThread()] { Mine->AddOne(); }).detach();
}

LockReport LockedPool::Report() {
    {
        const std::lock_guard Locked(mShared->Lock);
        if (mShared->Known) return *mShared->Known;
    }
    Lent Its(*this);
    const std::lock_guard Locked(mShared->Lock);
    mShared->Known = Its->Report();
    return *mShared->Known;
}

}  // namespace neb
