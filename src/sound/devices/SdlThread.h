// The one thread on which the sound library opens and closes devices: it allows no two at a time, a
// device may take its time to open, and a sound server that hangs must not hang the windows. Used
// by whatever plays or records through the library.
#pragma once

#include <chrono>
#include <functional>
#include <future>
#include <memory>

namespace neb {

// Runs jobs one after another in the order given, on a thread of their own. Returns at once. What
// a job uses it must own.
void PostToSdl(std::function<void()> Job);

// The library's audio, held open for as long as somebody holds this. Made and released on any
// thread.
class SdlSession {
  public:
    ~SdlSession();
    SdlSession(const SdlSession&) = delete;
    SdlSession& operator=(const SdlSession&) = delete;
    // On the thread of the jobs alone; null when there is no sound at all.
    static std::shared_ptr<SdlSession> Open();

  private:
    SdlSession() = default;
};

// What a job answers, or nothing (a Result made of {}) when it takes longer than that. A late
// answer is dropped.
template <class Result>
Result AskSdl(std::function<Result()> Job, int MostMilliseconds) {
    const auto Promise = std::make_shared<std::promise<Result>>();
    std::future<Result> Answer = Promise->get_future();
    PostToSdl([Promise, Job = std::move(Job)] { Promise->set_value(Job()); });
    const auto Most = std::chrono::milliseconds(MostMilliseconds);
    return Answer.wait_for(Most) == std::future_status::ready ? Answer.get() : Result{};
}

}  // namespace neb
