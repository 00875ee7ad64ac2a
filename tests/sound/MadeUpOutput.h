// Loudspeakers that a test opens, plugs out and pulls through by hand.
#pragma once

#include <atomic>
#include <memory>
#include <mutex>
#include <vector>

#include "SdlRig.h"
#include "harness/ByTheClock.h"

namespace neb::sounds {

// What is plugged in, for the test and for the output.
struct Plug {
    std::atomic<bool> Answers = true;  // otherwise opening takes for ever
    std::atomic<PlaybackState> State = PlaybackState::Ready;
    std::atomic<bool> Alive = true;
    std::atomic<int> Openings = 0;
    std::atomic<int> Closings = 0;

    void Opened(SoundOutput::Pull Next, SoundOutput::Answer Done) {
        {
            const std::lock_guard Lock(mMutex);
            mPulls.push_back(std::move(Next));
            mLate = Done;
        }
        ++Openings;
        if (Answers) Done(State);
    }
    void AnswerNow() {
        const std::lock_guard Lock(mMutex);
        std::exchange(mLate, {})(State);
    }
    // As the device that was opened last, or one before it.
    Samples Pull(int Frames, size_t Before = 0) {
        SoundOutput::Pull Next;
        {
            const std::lock_guard Lock(mMutex);
            Next = mPulls.at(mPulls.size() - 1 - Before);
        }
        Samples Heard(2 * static_cast<size_t>(Frames), 9.F);
        Next(Heard.data(), Frames);
        return Heard;
    }
    void Forget() {
        const std::lock_guard Lock(mMutex);
        mPulls.clear();
        mLate = {};
    }

  private:
    std::mutex mMutex;
    std::vector<SoundOutput::Pull> mPulls;
    SoundOutput::Answer mLate;
};

class MadeUpOutput : public SoundOutput {
  public:
    explicit MadeUpOutput(std::shared_ptr<Plug> Of) : mPlug(std::move(Of)) {}
    ~MadeUpOutput() override { mPlug->Forget(); }
    void Open(Pull Next, Answer Done) override { mPlug->Opened(std::move(Next), std::move(Done)); }
    bool IsAlive() const override { return mPlug->Alive; }
    void Close() override { ++mPlug->Closings; }

  private:
    std::shared_ptr<Plug> mPlug;
};

// Players of one endless sound, over a plug. Short waits, so that a test is.
struct PluggedPlayers {
    std::shared_ptr<Plug> Socket = std::make_shared<Plug>();
    std::atomic<int> Rests = 0;
    KeeperTimes Times{100ms, 150ms, 60ms, 60ms, 60ms};
    TestSound Sound{Constant(0.5F), 4410000};
    std::unique_ptr<SoundPlayers> Players;
    std::unique_ptr<SoundGraph> Graph;

    void Make() {
        harness::GoByTheClock();
        Players = std::make_unique<SoundPlayers>(
            DecoderSource{
                [this](const QString&) { return Decoder(Sound); }, {}, [this] { ++Rests; }},
            std::make_unique<MadeUpOutput>(Socket), Times);
    }
    // A player that runs and has something decoded ahead.
    void Start() {
        if (!Players) Make();
        Graph = Players->CreateGraph();
        Graph->RenderFile(QString());
        std::this_thread::sleep_for(20ms);
        Graph->Run();
    }
    SoundKeeper::Puller Pulling() const { return Players->Keeper().Pulling(); }
    bool PulledBy(SoundKeeper::Puller Wanted) const {
        return WaitUntil([&] { return Pulling() == Wanted; });
    }
    bool Opened(int Count) const {
        return WaitUntil([&] { return Socket->Openings == Count; });
    }
    double Position() const { return Graph->GetCurrentPosition(); }
};

}  // namespace neb::sounds
