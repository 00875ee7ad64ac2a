// Locked processes that are kept warm, one a processor at most, for work that comes from any
// thread. What has ended is replaced by one that waits already. Used by what reads foreign files.
#pragma once

#include <functional>
#include <memory>

#include "support/locked/LockedProcess.h"

namespace neb {

class LockedPool {
  public:
    // Most: processes at work at a time; 0: as many as there are processors. A caller who has
    // waited for half a second gets one beyond that: others may hang. MostIdle: that are kept
    // waiting for work; 0: as many as may be at work.
    explicit LockedPool(LockedProgram Program, int Most = 0, int MostIdle = 0);
    // Ends them all; nobody may be at work.
    ~LockedPool();
    LockedPool(const LockedPool&) = delete;
    LockedPool& operator=(const LockedPool&) = delete;

    // A process for as long as this lives. Throws Fault as LockedProcess does.
    class Lent {
      public:
        explicit Lent(LockedPool& Pool);
        ~Lent();
        Lent(const Lent&) = delete;
        Lent& operator=(const Lent&) = delete;
        LockedProcess& operator*() { return *mProcess; }
        LockedProcess* operator->() { return mProcess.get(); }

      private:
        LockedPool& mPool;
        std::unique_ptr<LockedProcess> mProcess;
    };

    // One more is made ready beside the caller, where none waits: for the next who asks.
    void WarmUp();
    // How far they are locked; starts one where none has been. Throws Fault.
    LockReport Report();

  private:
    friend class Lent;
    struct Shared;
    std::shared_ptr<Shared> mShared;
};

}  // namespace neb
