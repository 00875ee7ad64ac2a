#include "support/work/LeftThread.h"

#include <chrono>

namespace neb {

LeftThread::LeftThread(std::function<void()> Work)
    : mEnd(std::make_shared<End>()), mThread([Reached = mEnd, Todo = std::move(Work)]() mutable {
          Todo();
          Todo = {};  // what it owned goes while somebody may still be waiting
          const std::lock_guard Lock(Reached->Mutex);
          Reached->IsReached = true;
          Reached->Changed.notify_all();
      }) {}

LeftThread::~LeftThread() {
    std::unique_lock Lock(mEnd->Mutex);
    const bool Reached =
        mEnd->Changed.wait_for(Lock, std::chrono::seconds(1), [this] { return mEnd->IsReached; });
    Lock.unlock();
    if (Reached)
        mThread.join();
    else
        mThread.detach();
}

}  // namespace neb
