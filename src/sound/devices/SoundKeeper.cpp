#include "sound/devices/SoundKeeper.h"

#include <algorithm>
#include <array>
#include <condition_variable>
#include <mutex>
#include <optional>

#include "sound/decoding/SoundFormat.h"

namespace neb {
namespace {

using SteadyClock = std::chrono::steady_clock;
using Moment = SteadyClock::time_point;
using std::chrono::milliseconds;

constexpr milliseconds ClockStep{15};
constexpr milliseconds WatchStep{100};
constexpr milliseconds LastBuffers{50};  // two of the device
// After a longer gap (the machine was asleep) the time between is not made up for.
constexpr qint64 MostBehind = kMixRate / 2;

}  // namespace

struct SoundKeeper::Core : std::enable_shared_from_this<Core> {
    enum class Stage { Closed, Opening, Open };
    enum class Step { Wait, Open, Close, Rest };

    std::shared_ptr<SoundMixer> Mixer;
    std::unique_ptr<SoundOutput> Output;  // known to the keeper's own thread alone
    KeeperTimes Times;
    std::function<void()> Rest;

    mutable std::mutex Mutex;  // guards what follows; whoever pulls holds it meanwhile
    std::condition_variable Changed;
    int Holds = 0;
    bool Ending = false;
    bool Rested = true;
    Moment WantedUntil{};  // when nobody holds it
    Moment WantedSince{};
    Moment NextTry{};
    Moment LastPull{};
    Moment ClockStart{};
    qint64 ClockPulled = 0;  // frames
    Stage Now = Stage::Closed;
    Puller Source = Puller::Nobody;
    quint64 Sessions = 0;       // counts the openings
    quint64 Session = 0;        // of the device that may pull; 0: none
    bool SessionHeard = false;  // it has pulled
    std::optional<PlaybackState> Known;
    KeeperTimes::Span NextPause{};  // after the next attempt that fails
    std::array<float, 2 * kDeviceFrames> Unheard{};

    void Run();
    Step Next(Moment At);
    Step Watch(Moment At);
    Step Forget();
    bool IsWanted(Moment At) const { return Holds > 0 || At < WantedUntil; }
    void Want(Moment At);
    Moment WakeAt(Moment At) const;
    void Carry(Step What);
    quint64 BeginSession();
    void OpenOutput();
    void Answered(PlaybackState State);
    void PullByDevice(quint64 Which, float* Into, int Frames);
    void PullByClock(Moment At);
    void StartClock(Moment At);
    bool HasGone(Moment At) const;
};

void SoundKeeper::Core::Want(Moment At) {
    if (IsWanted(At)) return;
    WantedSince = NextTry = At;
    NextPause = Times.Retry;
    Known.reset();
    Rested = false;
}

void SoundKeeper::Core::Run() {
    std::unique_lock Lock(Mutex);
    while (!Ending) {
        const Moment At = SteadyClock::now();
        const Step What = Next(At);
        if (What == Step::Wait) {
            Changed.wait_until(Lock, WakeAt(At));
            continue;
        }
        Lock.unlock();
        Carry(What);
        Lock.lock();
    }
    // What has just been released is still to fade out.
    if (Source == Puller::Device) Changed.wait_for(Lock, LastBuffers);
    Session = 0;
    Source = Puller::Nobody;
    Lock.unlock();
    Output.reset();
}

Moment SoundKeeper::Core::WakeAt(Moment At) const {
    if (!IsWanted(At)) return At + std::chrono::hours(1);
    return At + (Source == Puller::Clock ? ClockStep : WatchStep);
}

SoundKeeper::Core::Step SoundKeeper::Core::Next(Moment At) {
    if (!IsWanted(At)) return Forget();
    const Step What = Watch(At);
    const bool Late = At - WantedSince >= Times.FirstWait || (Known && Now == Stage::Closed);
    if (Source == Puller::Nobody && Late) StartClock(At);
    if (Source == Puller::Clock) PullByClock(At);
    return What;
}

SoundKeeper::Core::Step SoundKeeper::Core::Forget() {
    Source = Puller::Nobody;
    if (Now != Stage::Open) return std::exchange(Rested, true) ? Step::Wait : Step::Rest;
    Session = 0;
    Now = Stage::Closed;
    return Step::Close;
}

bool SoundKeeper::Core::HasGone(Moment At) const {
    return At - LastPull > Times.Stall || !Output->IsAlive();
}

SoundKeeper::Core::Step SoundKeeper::Core::Watch(Moment At) {
    if (Now == Stage::Open && HasGone(At)) {
        Session = 0;
        Now = Stage::Closed;
        // The default device may be another by now; one that never worked is not worth the haste.
        NextTry = SessionHeard ? At : At + Times.Retry;
        if (Source != Puller::Clock) StartClock(At);
        return Step::Close;
    }
    if (Now != Stage::Closed || At < NextTry) return Step::Wait;
    Now = Stage::Opening;
    return Step::Open;
}

void SoundKeeper::Core::Carry(Step What) {
    if (What == Step::Close) Output->Close();
    if (What == Step::Open) OpenOutput();
    if (What == Step::Rest && Rest) Rest();
}

quint64 SoundKeeper::Core::BeginSession() {
    const std::lock_guard Lock(Mutex);
    SessionHeard = false;
    return Session = ++Sessions;
}

void SoundKeeper::Core::OpenOutput() {
    const quint64 Which = BeginSession();
    const auto Self = shared_from_this();
    Output->Open(
        [Self, Which](float* Into, int Frames) { Self->PullByDevice(Which, Into, Frames); },
        [Self](PlaybackState State) { Self->Answered(State); });
}

void SoundKeeper::Core::Answered(PlaybackState State) {
    const std::lock_guard Lock(Mutex);
    if (Now != Stage::Opening) return;
    const Moment At = SteadyClock::now();
    Known = State;
    Now = State == PlaybackState::Ready ? Stage::Open : Stage::Closed;
    LastPull = std::max(LastPull, At);
    NextTry = At + NextPause;
    NextPause =
        State == PlaybackState::Ready ? Times.Retry : std::min(2 * NextPause, Times.MostRetry);
    Changed.notify_all();
}

// What is left of a device that was given up gets silence.
void SoundKeeper::Core::PullByDevice(quint64 Which, float* Into, int Frames) {
    const std::lock_guard Lock(Mutex);
    if (Which != Session) {
        std::fill_n(Into, 2 * static_cast<size_t>(Frames), 0.F);
        return;
    }
    Source = Puller::Device;
    SessionHeard = true;
    LastPull = SteadyClock::now();
    Mixer->Fill(Into, Frames);
}

void SoundKeeper::Core::StartClock(Moment At) {
    Source = Puller::Clock;
    ClockStart = At;
    ClockPulled = 0;
}

void SoundKeeper::Core::PullByClock(Moment At) {
    const auto Gone = std::chrono::duration_cast<std::chrono::microseconds>(At - ClockStart);
    qint64 Due = Gone.count() * kMixRate / 1000000 - ClockPulled;
    if (Due > MostBehind) {
        StartClock(At);
        return;
    }
    ClockPulled += Due;
    for (; Due > 0; Due -= kDeviceFrames)
        Mixer->Fill(Unheard.data(), static_cast<int>(std::min<qint64>(Due, kDeviceFrames)));
}

SoundKeeper::SoundKeeper(std::shared_ptr<SoundMixer> Mixer, std::unique_ptr<SoundOutput> Output,
                         KeeperTimes Times, std::function<void()> Rest)
    : mCore(std::make_shared<Core>()), mThread([Shared = mCore] { Shared->Run(); }) {
    // The thread waits for the first holder before it looks at any of these.
    const std::lock_guard Lock(mCore->Mutex);
    mCore->Mixer = std::move(Mixer);
    mCore->Output = std::move(Output);
    mCore->Times = Times;
    mCore->Rest = std::move(Rest);
}

SoundKeeper::~SoundKeeper() {
    const std::lock_guard Lock(mCore->Mutex);
    mCore->Ending = true;
    mCore->Changed.notify_all();
}

std::shared_ptr<void> SoundKeeper::Hold() {
    {
        const std::lock_guard Lock(mCore->Mutex);
        mCore->Want(SteadyClock::now());
        ++mCore->Holds;
        mCore->Changed.notify_all();
    }
    return std::shared_ptr<void>(nullptr, [Shared = mCore](void*) {
        const std::lock_guard Lock(Shared->Mutex);
        --Shared->Holds;
        Shared->WantedUntil = SteadyClock::now() + Shared->Times.Linger;
        Shared->Changed.notify_all();
    });
}

PlaybackState SoundKeeper::Check(milliseconds Most) {
    std::unique_lock Lock(mCore->Mutex);
    const Moment At = SteadyClock::now();
    mCore->Want(At);
    mCore->WantedUntil = std::max(mCore->WantedUntil, At + mCore->Times.Linger);
    mCore->Changed.notify_all();
    mCore->Changed.wait_for(Lock, Most, [this] { return mCore->Known.has_value(); });
    return mCore->Known.value_or(PlaybackState::Ready);
}

SoundKeeper::Puller SoundKeeper::Pulling() const {
    const std::lock_guard Lock(mCore->Mutex);
    return mCore->Source;
}

}  // namespace neb
