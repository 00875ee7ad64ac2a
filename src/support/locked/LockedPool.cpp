#include "support/locked/LockedPool.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include "support/work/ProcessEnd.h"

namespace neb {
namespace {

using Clock = std::chrono::steady_clock;

// Who has waited as long goes beside those who are at work.
constexpr std::chrono::milliseconds Patience(500);
// Who has lent as often is in use; a second one waits then, for when the first goes down.
constexpr int OftenLent = 8;

struct Member {
    std::unique_ptr<LockedProcess> Process;
    bool IsFresh = true;
    Clock::time_point Since = {};  // waiting
};

}  // namespace

struct LockedPool::Shared : std::enable_shared_from_this<Shared> {
    LockedProgram Program;
    int Most, MostIdle;
    std::chrono::milliseconds Rest;
    mutable std::mutex Lock;
    std::condition_variable Changed, Over;
    std::vector<Member> Idle;  // the fresh ones first
    int AtWork = 0;
    int Coming = 0;    // being made ready beside
    int Awaiting = 0;  // callers who wait for those
    int Lent = 0;
    bool HadTrouble = false, IsOver = false, HasKeeper = false;
    std::optional<LockReport> Known;

    std::unique_ptr<LockedProcess> Make() const { return std::make_unique<LockedProcess>(Program); }
    bool HasIdle(Wanted Which) const {
        return !Idle.empty() && (Which == Wanted::Any || Idle.front().IsFresh);
    }
    // One that waits or, while there may be more, none: then the caller makes one.
    Member Take(Wanted Which) {
        std::vector<Member> Gone;  // their end is not waited for in the lock
        Gone.reserve(static_cast<size_t>(MostIdle));
        std::unique_lock Locked(Lock);
        const bool Awaits = Coming > Awaiting;  // one of those that come is for us
        Awaiting += Awaits;
        Changed.wait_for(Locked, Patience, [&] {
            const bool MayMake = AtWork + Coming < Most && !(Awaits && Coming > 0);
            return HasIdle(Which) || MayMake;
        });
        Awaiting -= Awaits;
        ++AtWork;
        ++Lent;
        while (HasIdle(Which)) {
            const auto At = Which == Wanted::Any ? Idle.end() - 1 : Idle.begin();
            Member Its = std::move(*At);
            Idle.erase(At);
            if (Its.Process->StaysQuiet()) return Its;
            Gone.push_back(std::move(Its));  // ended from outside meanwhile
        }
        return {};
    }
    // Without a process: it has ended, or has never come.
    void Return(std::unique_ptr<LockedProcess> Its) noexcept {
        {
            const std::lock_guard Locked(Lock);
            --AtWork;
            HadTrouble = HadTrouble || !Its;
            if (Its && !IsOver && static_cast<int>(Idle.size()) < MostIdle)
                Idle.push_back({std::move(Its), false, Clock::now()});
        }
        Changed.notify_all();
    }
    bool WantsOne() const { return !IsOver && Idle.empty() && Coming == 0 && AtWork < Most; }
    bool WantsSpare() const {
        const int All = static_cast<int>(Idle.size()) + AtWork + Coming;
        return !IsOver && (HadTrouble || Lent >= OftenLent) && All < std::min(2, Most);
    }
    void BringOne(bool (Shared::*IsWanted)() const) noexcept {
        {
            const std::lock_guard Locked(Lock);
            if (!(this->*IsWanted)()) return;
            ++Coming;
        }
        try {
            std::thread([Mine = shared_from_this(), Counts = WorkOnThread()] {
                Mine->AddOne();
            }).detach();
        } catch (...) {  // no thread to be had: who needs one makes it
            Came(nullptr);
        }
    }
    void AddOne() noexcept {
        try {
            auto Made = Make();
            Made->MakeRoom();
            Came(std::move(Made));
        } catch (...) {  // who needs one is told
            Came(nullptr);
        }
    }
    void Came(std::unique_ptr<LockedProcess> Made) noexcept {
        {
            const std::lock_guard Locked(Lock);
            --Coming;
            if (Made) Known = Made->Report();
            if (Made && !IsOver && static_cast<int>(Idle.size()) < MostIdle)
                Idle.insert(Idle.begin(), Member{std::move(Made), true, Clock::now()});
        }
        Changed.notify_all();
    }

    // Sees to it that those go of which there are too many. It sleeps, and is no work that the end
    // of the program would wait for.
    void SeeToKeeper() noexcept {
        {
            const std::lock_guard Locked(Lock);
            if (HasKeeper || IsOver || Idle.size() < 2) return;
            HasKeeper = true;
        }
        try {
            std::thread([Mine = shared_from_this()] { Mine->KeepFew(); }).detach();
        } catch (...) {  // another time
            const std::lock_guard Locked(Lock);
            HasKeeper = false;
        }
    }
    void KeepFew() noexcept {
        std::unique_lock Locked(Lock);
        while (!IsOver && Idle.size() > 1) {
            const auto Oldest = std::min_element(
                Idle.begin(), Idle.end(),
                [](const Member& A, const Member& B) { return A.Since < B.Since; });
            const auto Until = Oldest->Since + Rest;
            if (Until > Clock::now()) {
                Over.wait_until(Locked, Until);
                continue;
            }
            Member Gone = std::move(*Oldest);
            Idle.erase(Oldest);
            Locked.unlock();
            Gone.Process.reset();
            Locked.lock();
        }
        HasKeeper = false;
    }
    void End() {
        std::vector<Member> Gone;
        const std::lock_guard Locked(Lock);
        IsOver = true;
        Gone.swap(Idle);
        Over.notify_all();
    }
};

LockedPool::LockedPool(LockedProgram Program, int Most, std::chrono::milliseconds Rest,
                       int MostIdle)
    : mShared(std::make_shared<Shared>()) {
    mShared->Program = std::move(Program);
    mShared->Most =
        Most > 0 ? Most : static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
    mShared->MostIdle = MostIdle > 0 ? MostIdle : mShared->Most;
    mShared->Rest = Rest;
    // What comes back needs no memory.
    mShared->Idle.reserve(static_cast<size_t>(mShared->MostIdle) + 1);
}

LockedPool::~LockedPool() {
    mShared->End();
}

LockedPool::Lent::Lent(LockedPool& Pool, Wanted Which) : mPool(Pool) {
    Member Its = mPool.mShared->Take(Which);
    mIsFresh = Its.IsFresh;
    mProcess = std::move(Its.Process);
    if (mProcess) return;
    try {
        mProcess = mPool.mShared->Make();
    } catch (...) {
        mPool.mShared->Return(nullptr);
        throw;
    }
}

LockedPool::Lent::~Lent() {
    Shared& Its = *mPool.mShared;
    const bool Lives = mProcess->StaysQuiet();
    if (Lives && mIsKept) mProcess->LetGoOfMemory();
    if (!Lives || !mIsKept) mProcess.reset();
    Its.Return(std::move(mProcess));
    if (!Lives || !mIsKept) Its.BringOne(&Shared::WantsOne);
    Its.BringOne(&Shared::WantsSpare);
    Its.SeeToKeeper();
}

void LockedPool::WarmUp() {
    mShared->BringOne(&Shared::WantsOne);
}

int LockedPool::Waiting() const {
    const std::lock_guard Locked(mShared->Lock);
    return static_cast<int>(mShared->Idle.size());
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
