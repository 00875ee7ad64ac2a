#include "sound/devices/SdlCapture.h"

#define SDL_MAIN_HANDLED
#include <SDL.h>

#include <algorithm>
#include <atomic>
#include <memory>
#include <mutex>

#include "sound/devices/SdlThread.h"

namespace neb {
namespace {

constexpr int MostWait = 2000;       // milliseconds
constexpr int PiecesPerSecond = 43;  // 512 samples of 22050

constexpr char Silence = '\x80';

SDL_AudioDeviceID OpenMicrophone(const SDL_AudioSpec& Wanted) {
    SDL_AudioSpec Obtained;
    return SDL_OpenAudioDevice(nullptr, 1, &Wanted, &Obtained, 0);
}

SDL_AudioSpec WantedFor(const WaveFormat& Format) {
    SDL_AudioSpec Wanted{};
    Wanted.freq = static_cast<int>(Format.SamplesPerSec);
    Wanted.format = AUDIO_U8;
    Wanted.channels = static_cast<Uint8>(Format.Channels);
    int Samples = 64;
    while (Samples * PiecesPerSecond < Wanted.freq - Samples) Samples *= 2;
    Wanted.samples = static_cast<Uint16>(Samples);
    return Wanted;
}

// What a microphone adds to and the window reads. Its jobs keep it alive until the microphone is
// closed.
class Recording : public std::enable_shared_from_this<Recording> {
  public:
    Recording(std::shared_ptr<SdlSession> Session, const WaveFormat& Format, std::int32_t Bytes)
        : mSession(std::move(Session)), mWanted(WantedFor(Format)), mBytes(Bytes, Silence) {
        mWanted.userdata = this;
        mWanted.callback = [](void* To, Uint8* Piece, int Length) {
            static_cast<Recording*>(To)->Add(Piece, Length);
        };
    }

    void Start() {
        SetTaking(true);
        PostToSdl([Self = shared_from_this()] { Self->Open(); });
    }
    void Stop() {
        SetTaking(false);
        PostToSdl([Self = shared_from_this()] { Self->Close(); });
    }
    std::int32_t Position() const {
        const std::lock_guard Lock(mMutex);
        return mPosition;
    }
    QByteArray Read(std::int32_t First, std::int32_t Count) const {
        const std::lock_guard Lock(mMutex);
        return mBytes.mid(First, Count);
    }

  private:
    void SetTaking(bool Taking) {
        const std::lock_guard Lock(mMutex);
        mTaking = Taking;
    }
    bool IsTaking() const {
        const std::lock_guard Lock(mMutex);
        return mTaking;
    }
    // On the thread of the jobs.
    void Open() {
        if (!IsTaking()) return;
        mDevice = OpenMicrophone(mWanted);
        if (mDevice) SDL_PauseAudioDevice(mDevice, 0);
    }
    void Close() {
        if (mDevice) SDL_CloseAudioDevice(mDevice);
        mDevice = 0;
    }
    // On the microphone's own thread, which may not close it.
    void Add(const Uint8* Piece, int Length) {
        if (!IsTaking()) return;
        if (HasGone() || !TakeAndAskForMore(Piece, Length)) Stop();
    }
    // The library makes up silence for a microphone that was pulled out.
    bool HasGone() const { return SDL_GetAudioDeviceStatus(mDevice) == SDL_AUDIO_STOPPED; }
    bool TakeAndAskForMore(const Uint8* Piece, std::int32_t Length) {
        const std::lock_guard Lock(mMutex);
        if (!mTaking) return true;
        const std::int32_t Room = static_cast<std::int32_t>(mBytes.size()) - mPosition;
        const std::int32_t Taken = std::min(Room, Length);
        std::copy_n(Piece, Taken, mBytes.begin() + mPosition);
        mPosition += Taken;
        return Taken < Room;
    }

    std::shared_ptr<SdlSession> mSession;
    SDL_AudioSpec mWanted;
    std::atomic<SDL_AudioDeviceID> mDevice = 0;  // set by the jobs alone
    mutable std::mutex mMutex;
    QByteArray mBytes;
    std::int32_t mPosition = 0;
    bool mTaking = false;
};

class SdlCaptureBuffer : public CaptureBuffer {
  public:
    explicit SdlCaptureBuffer(std::shared_ptr<Recording> Into) : mRecording(std::move(Into)) {}
    ~SdlCaptureBuffer() override { SdlCaptureBuffer::Stop(); }

    void Start() override {
        if (!std::exchange(mStarted, true)) mRecording->Start();
    }
    void Stop() override {
        if (mStarted) mRecording->Stop();
    }
    std::int32_t GetCurrentPosition() const override { return mRecording->Position(); }
    QByteArray ReadBuffer(std::int32_t First, std::int32_t Count) const override {
        const QByteArray Read = mRecording->Read(First, Count);
        return Read + QByteArray(Count - Read.size(), Silence);
    }

  private:
    std::shared_ptr<Recording> mRecording;
    bool mStarted = false;
};

class SdlMicrophone : public CaptureDevice {
  public:
    SdlMicrophone(std::shared_ptr<SdlSession> Session, int Known)
        : mSession(std::move(Session)), mKnown(Known) {}

    std::uint32_t GetCaps() const override { return Mono8At11025 | Mono8At22050; }
    std::unique_ptr<CaptureBuffer> CreateCaptureBuffer(const WaveFormat& Format,
                                                       std::int32_t Bytes) override {
        if (Format.FormatTag != 1 || Format.BitsPerSample != 8 || Bytes < 0 || HasGone())
            return nullptr;
        return std::make_unique<SdlCaptureBuffer>(
            std::make_shared<Recording>(mSession, Format, Bytes));
    }

  private:
    // Some systems name no devices, and open one all the same: those do not count as gone.
    bool HasGone() const {
        return mKnown > 0 && AskSdl<int>([] { return SDL_GetNumAudioDevices(1); }, MostWait) == 0;
    }

    std::shared_ptr<SdlSession> mSession;
    int mKnown;
};

struct Found {
    std::shared_ptr<SdlSession> Session;
    int Known = 0;
};

// Opened once for the answer, and closed again: nobody wants a microphone that listens unasked.
Found FindMicrophone() {
    Found Answer{SdlSession::Open()};
    if (!Answer.Session) return {};
    Answer.Known = SDL_GetNumAudioDevices(1);
    const SDL_AudioDeviceID Device = OpenMicrophone(WantedFor(WaveFormat{}));
    if (!Device) return {};
    SDL_CloseAudioDevice(Device);
    return Answer;
}

}  // namespace

std::unique_ptr<CaptureDevice> OpenSdlCapture() {
    const Found Answer = AskSdl<Found>(&FindMicrophone, MostWait);
    if (!Answer.Session) return nullptr;
    return std::make_unique<SdlMicrophone>(Answer.Session, Answer.Known);
}

}  // namespace neb
