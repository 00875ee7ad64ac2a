// One piece of work that may take its time, done on a worker thread while the windows keep
// painting. For windows in which the user waits for the result: the picture that he has chosen, the
// slide that he saves. AheadQueue.h is for many pieces, one after the other.
#pragma once

#include <chrono>
#include <future>

#include "support/Services.h"

namespace neb {

// Does Work, which must be safe on any thread, and returns when it has ended; get() of what is
// returned gives its result, or throws what it threw. Painting and timers go on meanwhile. The
// user's clicks and keys wait until afterwards, as if it had been done here. During work that is
// done in the twinkling of an eye nothing else runs at all.
template <class Function>
auto FinishAside(Function Work) -> std::shared_future<std::invoke_result_t<Function>> {
    using namespace std::chrono_literals;
    // what Work holds is let go of over there, too: that of a large picture takes its time
    auto Do = [Work = std::move(Work)]() mutable {
        auto Mine = std::move(Work);
        return Mine();
    };
    const auto Result = std::async(std::launch::async, std::move(Do)).share();
    for (auto Patience = 30ms; Result.wait_for(Patience) != std::future_status::ready;
         Patience = 5ms)
        DoEventsButInput();
    return Result;
}

}  // namespace neb
