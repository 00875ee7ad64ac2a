#include "sound/devices/SdlOutput.h"

#define SDL_MAIN_HANDLED
#include <SDL.h>

#include <QByteArrayView>
#include <mutex>
#include <utility>

#include "sound/decoding/SoundFormat.h"
#include "sound/devices/SdlThread.h"

namespace neb {
namespace {

constexpr int EndWait = 1000;  // milliseconds

bool SaysBusy(QByteArrayView Error) {
    return Error.contains("busy") || Error.contains("Busy");
}

}  // namespace

// Its jobs keep it alive until the library has let go of it.
class SdlOutput::Device {
  public:
    explicit Device(Pull Next) : mNext(std::move(Next)) {}

    // Open and Close on the thread of the jobs.
    PlaybackState Open() {
        mSession = SdlSession::Open();
        if (!mSession) return PlaybackState::Missing;
        const SDL_AudioDeviceID Opened = OpenDefault();
        if (!Opened) {
            const bool Busy = SaysBusy(SDL_GetError());
            mSession.reset();
            return Busy ? PlaybackState::Allocated : PlaybackState::Missing;
        }
        Put(Opened);
        SDL_PauseAudioDevice(Opened, 0);
        return PlaybackState::Ready;
    }
    // The library starts anew each time: a sound server that has come back is found.
    void Close() {
        if (const SDL_AudioDeviceID Opened = Put(0)) SDL_CloseAudioDevice(Opened);
        mSession.reset();
    }
    bool IsAlive() const {
        const std::lock_guard Lock(mMutex);
        return mOpened && SDL_GetAudioDeviceStatus(mOpened) != SDL_AUDIO_STOPPED;
    }

  private:
    SDL_AudioDeviceID OpenDefault() {
        SDL_AudioSpec Wanted{}, Obtained;
        Wanted.freq = kMixRate;
        Wanted.format = AUDIO_F32SYS;
        Wanted.channels = 2;
        Wanted.samples = kDeviceFrames;
        Wanted.userdata = this;
        Wanted.callback = [](void* Of, Uint8* Into, int Bytes) {
            static_cast<Device*>(Of)->mNext(reinterpret_cast<float*>(Into),
                                            Bytes / static_cast<int>(2 * sizeof(float)));
        };
        return SDL_OpenAudioDevice(nullptr, 0, &Wanted, &Obtained, 0);
    }
    SDL_AudioDeviceID Put(SDL_AudioDeviceID Now) {
        const std::lock_guard Lock(mMutex);
        return std::exchange(mOpened, Now);
    }

    const Pull mNext;
    std::shared_ptr<SdlSession> mSession;
    mutable std::mutex mMutex;
    SDL_AudioDeviceID mOpened = 0;
};

SdlOutput::SdlOutput() = default;

SdlOutput::~SdlOutput() {
    SdlOutput::Close();
    // Once for the device, once for the library, whose end the first leaves behind in the queue.
    const std::function<bool()> Reached = [] { return true; };
    if (AskSdl<bool>(Reached, EndWait)) AskSdl<bool>(Reached, EndWait);
}

void SdlOutput::Open(Pull Next, Answer Done) {
    Close();
    mDevice = std::make_shared<Device>(std::move(Next));
    PostToSdl([Opened = mDevice, Tell = std::move(Done)] { Tell(Opened->Open()); });
}

bool SdlOutput::IsAlive() const {
    return mDevice && mDevice->IsAlive();
}

void SdlOutput::Close() {
    if (!mDevice) return;
    PostToSdl([Closed = std::exchange(mDevice, nullptr)] { Closed->Close(); });
}

}  // namespace neb
