// One piece of work on a thread of its own: what it does, how far it is, and its end. For work that
// reads files on media which may be slow or have gone: whoever has no more use for it lets go, and
// waits for nothing. WorkAside.h is for work that the user waits for, AheadQueue.h for many pieces.
#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <future>
#include <memory>
#include <thread>

#include "support/work/ProcessEnd.h"

namespace neb {

// What the work and the one who waits for it tell each other, each on its own thread.
struct JobState {
    std::atomic<std::int32_t> SoFar = 0;  // by the work: how much is done
    std::atomic<bool> Stop = false;       // by the other: the work is to end soon
};

template <class Result = void>
class Job {
  public:
    // Begins at once. What the work uses it must own.
    explicit Job(std::function<Result(JobState&)> Work) {
        std::packaged_task<Result(JobState&)> Task(std::move(Work));
        mResult = Task.get_future();
        std::thread([Counted = WorkOnThread(), State = mState, Mine = std::move(Task)]() mutable {
            Mine(*State);
        }).detach();
    }
    ~Job() { Cancel(); }
    Job(const Job&) = delete;
    Job& operator=(const Job&) = delete;

    // Whether the work has ended, after at most so many milliseconds.
    bool Wait(int Milliseconds) const {
        return mResult.wait_for(std::chrono::milliseconds(Milliseconds)) ==
               std::future_status::ready;
    }
    std::int32_t SoFar() const { return mState->SoFar; }
    void Cancel() { mState->Stop = true; }
    // Waits for the end. The result, or what the work threw; once.
    Result Take() { return mResult.get(); }

  private:
    std::shared_ptr<JobState> mState = std::make_shared<JobState>();
    std::future<Result> mResult;
};

}  // namespace neb
