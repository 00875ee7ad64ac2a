#include "sound/devices/SdlThread.h"

#define SDL_MAIN_HANDLED
#include <SDL.h>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

namespace neb {
namespace {

class JobThread {
  public:
    JobThread() {
        std::thread([this] { Run(); }).detach();
    }
    void Post(std::function<void()> Job) {
        const std::lock_guard Lock(mMutex);
        mJobs.push_back(std::move(Job));
        mChanged.notify_one();
    }

  private:
    [[noreturn]] void Run() {
        for (;;) Take()();
    }
    std::function<void()> Take() {
        std::unique_lock Lock(mMutex);
        mChanged.wait(Lock, [this] { return !mJobs.empty(); });
        std::function<void()> Job = std::move(mJobs.front());
        mJobs.pop_front();
        return Job;
    }

    std::mutex mMutex;
    std::condition_variable mChanged;
    std::deque<std::function<void()>> mJobs;
};

}  // namespace

void PostToSdl(std::function<void()> Job) {
    // Never ended: it may be waiting for a sound server when the program ends.
    static JobThread* const Thread = new JobThread;
    Thread->Post(std::move(Job));
}

std::shared_ptr<SdlSession> SdlSession::Open() {
    SDL_SetMainReady();
    // Ctrl-C and a session's end are the program's own business.
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "NEB Slide Show");
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) return nullptr;
    return std::shared_ptr<SdlSession>(new SdlSession);
}

SdlSession::~SdlSession() {
    PostToSdl([] { SDL_QuitSubSystem(SDL_INIT_AUDIO); });
}

}  // namespace neb
