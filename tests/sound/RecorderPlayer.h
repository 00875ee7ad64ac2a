// A player of recordings whose time the test puts on, and that tells what was asked of it. Part of
// the machine of RecorderRig.h.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>

#include "sound/devices/SoundDevices.h"

namespace neb::test {

using Journal = std::vector<std::string>;

class FakePlayer : public SoundGraph {
  public:
    FakePlayer(Journal& Told, FakePlayer*& Current, const WaveFormat& Format,
               const QByteArray& Bytes)
        : mTold(Told), mCurrent(Current), mFormat(Format), mBytes(Bytes) {
        mCurrent = this;
        mTold.emplace_back("player of " + std::to_string(Bytes.size()));
    }
    ~FakePlayer() override {
        if (mCurrent == this) mCurrent = nullptr;
        mTold.push_back(mRunning ? "player released while it plays" : "player released");
    }
    void PutOn(double Seconds) {
        if (mRunning) mPosition = std::min(GetDuration(), mPosition + Seconds);
    }
    const QByteArray& Bytes() const { return mBytes; }
    const WaveFormat& Format() const { return mFormat; }

    void RenderFile(const QString&) override { ADD_FAILURE() << "a recording is no file"; }
    void Run() override {
        mRunning = true;
        mTold.emplace_back("play");
    }
    void Pause() override { ADD_FAILURE() << "nobody pauses a recording"; }
    void Stop() override {
        mRunning = false;
        mTold.emplace_back("stop playing");
    }
    bool IsRunning() const override { return mRunning; }
    void PutVolume(int) override { ADD_FAILURE() << "the volume is applied to nothing"; }
    int GetVolume() const override { return 0; }
    double GetDuration() const override {
        return static_cast<double>(mBytes.size()) / mFormat.AvgBytesPerSec;
    }
    double GetCurrentPosition() const override { return mPosition; }
    void PutCurrentPosition(double Seconds) override { mPosition = Seconds; }

  private:
    Journal& mTold;
    FakePlayer*& mCurrent;
    WaveFormat mFormat;
    QByteArray mBytes;
    double mPosition = 0;
    bool mRunning = false;
};

}  // namespace neb::test
