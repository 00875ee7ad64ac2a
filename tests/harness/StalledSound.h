// Sound devices whose files open when the test says so, as in a folder that does not answer. What
// plays them then are the devices behind them.
#pragma once

#include <atomic>
#include <chrono>
#include <memory>
#include <thread>

#include "sound/devices/SoundDevices.h"

namespace neb::harness {

// Shared with the threads that wait at it, which may outlive the test.
struct StallGate {
    std::atomic<bool> Open = false;
    std::atomic<int> Waiting = 0;
    std::atomic<bool> IsOver = false;  // the test has ended, and with it what is behind the gate

    // Whether there is anything behind it.
    bool Pass() {
        ++Waiting;
        while (!Open) std::this_thread::sleep_for(std::chrono::milliseconds(1));
        --Waiting;
        return !IsOver;
    }
};

class StalledGraph : public SoundGraph {
  public:
    StalledGraph(std::shared_ptr<StallGate> Gate, std::unique_ptr<SoundGraph> Behind)
        : mGate(std::move(Gate)), mBehind(std::move(Behind)) {}
    void RenderFile(const QString& Path) override {
        if (mGate->Pass()) mBehind->RenderFile(Path);
    }
    void Run() override { mBehind->Run(); }
    void Pause() override { mBehind->Pause(); }
    void Stop() override { mBehind->Stop(); }
    bool IsRunning() const override { return mBehind->IsRunning(); }
    void PutVolume(int Hundredths) override { mBehind->PutVolume(Hundredths); }
    int GetVolume() const override { return mBehind->GetVolume(); }
    double GetDuration() const override { return mBehind->GetDuration(); }
    double GetCurrentPosition() const override { return mBehind->GetCurrentPosition(); }
    void PutCurrentPosition(double Seconds) override { mBehind->PutCurrentPosition(Seconds); }
    void PutRepeat(bool On) override { mBehind->PutRepeat(On); }

  private:
    std::shared_ptr<StallGate> mGate;
    std::unique_ptr<SoundGraph> mBehind;
};

class StalledDevices : public SoundDevices {
  public:
    explicit StalledDevices(SoundDevices& Behind) : mBehind(Behind) {}
    ~StalledDevices() override {
        Gate->IsOver = true;
        Gate->Open = true;
    }

    std::unique_ptr<SoundGraph> CreateGraph() override {
        return std::make_unique<StalledGraph>(Gate, mBehind.CreateGraph());
    }
    bool RendersAside() const override { return true; }
    void LoadAhead(const QString& Path) override { mBehind.LoadAhead(Path); }
    std::unique_ptr<CaptureDevice> CreateCapture() override { return nullptr; }
    PlaybackState CheckPlayback() override { return mBehind.CheckPlayback(); }
    std::unique_ptr<SoundGraph> CreateSoundBuffer(const WaveFormat&, const QByteArray&) override {
        return nullptr;
    }

    const std::shared_ptr<StallGate> Gate = std::make_shared<StallGate>();

  private:
    SoundDevices& mBehind;
};

}  // namespace neb::harness
