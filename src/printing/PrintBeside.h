// Long work of printing beside the window that waits for it: composing, writing, sending to a
// printer. The work runs on a thread of its own; what it tells of its progress reaches the caller
// on his thread, many times a second, and so does his wish to stop reach the work.
#pragma once

#include "printing/PrintDocument.h"
#include "support/work/Job.h"

namespace neb {

// Show is called on the caller's thread until the work is over, also while a slow medium does not
// answer; it lets events run, and ends the work by answering false. What the work needs it must
// own: it outlives nobody, but the caller's own variables may change while events run. The result
// of the work, or what it threw.
template <class Result>
Result RunBeside(std::function<Result(const PrintGoOn& GoOn)> Work, const PrintGoOn& Show) {
    struct Told {
        std::atomic<int> Done = 0, Total = 0;
    };
    const auto Progress = std::make_shared<Told>();
    Job<Result> Aside([Mine = std::move(Work), Progress](JobState& State) {
        return Mine([&](const PrintProgress& Now) {
            Progress->Total = Now.Total;
            Progress->Done = Now.Done;
            return !State.Stop;
        });
    });
    while (!Aside.Wait(20))
        if (!Show({Progress->Done, Progress->Total})) Aside.Cancel();
    return Aside.Take();
}

}  // namespace neb
