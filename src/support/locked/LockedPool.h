// Locked processes that are kept warm, one a processor at most, for work that comes from any
// thread. What has ended is replaced by one that waits already; those that nobody wants any more go
// after a while, but for one. Used by what reads foreign files.
#pragma once

#include <chrono>
#include <functional>
#include <memory>

#include "support/locked/LockedProcess.h"

namespace neb {

// What is read by locked processes, and how far they are locked.
struct NamedLock {
    QString Name;
    LockReport Report;
};

class LockedPool {
  public:
    // Most: processes at work at a time; 0: as many as there are processors. A caller who has
    // waited for half a second gets one beyond that: others may hang. Rest: after which one of
    // several that wait for work goes. MostIdle: that are kept waiting; 0: as many as Most.
    explicit LockedPool(LockedProgram Program, int Most = 0,
                        std::chrono::milliseconds Rest = std::chrono::seconds(30),
                        int MostIdle = 0);
    // Ends them all; nobody may be at work.
    ~LockedPool();
    LockedPool(const LockedPool&) = delete;
    LockedPool& operator=(const LockedPool&) = delete;

    enum class Wanted {
        Any,
        Fresh  // that has done nothing yet, which could have spoilt it
    };
    // A process for as long as this lives. Throws Fault as LockedProcess does.
    class Lent {
      public:
        explicit Lent(LockedPool& Pool, Wanted Which = Wanted::Any);
        ~Lent();
        Lent(const Lent&) = delete;
        Lent& operator=(const Lent&) = delete;
        LockedProcess& operator*() { return *mProcess; }
        LockedProcess* operator->() { return mProcess.get(); }

        // Whether it has done nothing before.
        bool IsFresh() const { return mIsFresh; }
        // It is not kept for others.
        void Retire() { mIsKept = false; }

      private:
        LockedPool& mPool;
        std::unique_ptr<LockedProcess> mProcess;
        bool mIsFresh = true, mIsKept = true;
    };

    // One more is made ready beside the caller, where none waits: for the next who asks.
    void WarmUp();
    // How far they are locked; starts one where none has been. Throws Fault.
    LockReport Report();
    // That wait for work; for tests.
    int Waiting() const;

  private:
    friend class Lent;
    struct Shared;
    std::shared_ptr<Shared> mShared;
};

}  // namespace neb
