// A machine for the sound recorder: a microphone whose bytes the test feeds, and a player whose
// time the test puts on. Both tell what was asked of them.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <thread>

#include "RecorderPlayer.h"
#include "harness/ScriptedBoxes.h"
#include "harness/TempFolder.h"
#include "sound/RecorderJobs.h"
#include "sound/devices/SoundDevices.h"
#include "support/Services.h"

namespace neb::test {

class FakeCaptureBuffer : public CaptureBuffer {
  public:
    FakeCaptureBuffer(Journal& Told, FakeCaptureBuffer*& Current, const WaveFormat& Format,
                      std::int32_t Bytes, std::chrono::milliseconds Delay)
        : mTold(Told), mCurrent(Current), mFormat(Format), mSize(Bytes), mDelay(Delay) {
        mCurrent = this;
        mTold.emplace_back("buffer of " + std::to_string(Bytes));
    }
    ~FakeCaptureBuffer() override {
        if (mCurrent == this) mCurrent = nullptr;
        mTold.push_back(mRunning ? "buffer released while it records" : "buffer released");
    }
    // What the user says.
    void Feed(const QByteArray& Bytes) {
        if (mRunning) mBytes = (mBytes + Bytes).left(mSize);
    }
    const WaveFormat& Format() const { return mFormat; }
    void SetDelay(std::chrono::milliseconds Delay) { mDelay = Delay; }

    void Start() override {
        std::this_thread::sleep_for(mDelay);
        mRunning = true;
        mTold.emplace_back("record");
    }
    void Stop() override {
        std::this_thread::sleep_for(mDelay);
        mRunning = false;
        mTold.emplace_back("stop recording");
    }
    std::int32_t GetCurrentPosition() const override {
        return static_cast<std::int32_t>(mBytes.size());
    }
    // Beyond the recording it gives garbage, as a device may.
    QByteArray ReadBuffer(std::int32_t First, std::int32_t Count) const override {
        const QByteArray Read = mBytes.mid(First, Count);
        return Read + QByteArray(Count - Read.size(), '\x55');
    }

  private:
    Journal& mTold;
    FakeCaptureBuffer*& mCurrent;
    WaveFormat mFormat;
    qsizetype mSize;
    std::chrono::milliseconds mDelay;
    QByteArray mBytes;
    bool mRunning = false;
};

class FakeSound : public SoundDevices {
  public:
    FakeSound() : mBefore(TheServices().Sound) { TheServices().Sound = this; }
    ~FakeSound() override {
        Settle();
        TheServices().Sound = mBefore;
    }
    // Until what was begun aside is over, of windows that are gone, too.
    static void Settle() { EXPECT_TRUE(RecorderJobs::AwaitAll(std::chrono::seconds(20))); }

    bool HasMicrophone = true;
    // Another in place of the scripted one.
    std::function<std::unique_ptr<CaptureDevice>()> Microphone;
    bool Unplugged = false;  // after it was opened
    std::uint32_t Caps = CaptureDevice::Mono8At11025 | CaptureDevice::Mono8At22050;
    PlaybackState Playback = PlaybackState::Ready;
    bool PlayerFails = false;
    std::chrono::milliseconds Delay{0};  // of each opening, start, stop and check
    int Opened = 0;                      // microphones
    Journal Told;
    FakeCaptureBuffer* Buffer = nullptr;  // the last that lives
    FakePlayer* Player = nullptr;         // the last that lives

    std::unique_ptr<SoundGraph> CreateGraph() override { return nullptr; }
    void LoadAhead(const QString&) override {}
    std::unique_ptr<CaptureDevice> CreateCapture() override;
    PlaybackState CheckPlayback() override {
        std::this_thread::sleep_for(Delay);
        return Playback;
    }
    std::unique_ptr<SoundGraph> CreateSoundBuffer(const WaveFormat& Format,
                                                  const QByteArray& Bytes) override {
        if (PlayerFails) return nullptr;
        return std::make_unique<FakePlayer>(Told, Player, Format, Bytes);
    }

  private:
    SoundDevices* mBefore;
};

class FakeMicrophone : public CaptureDevice {
  public:
    explicit FakeMicrophone(FakeSound& Sound) : mSound(Sound) {}
    ~FakeMicrophone() override {
        std::this_thread::sleep_for(mSound.Delay);
        mSound.Told.emplace_back("microphone released");
    }
    std::uint32_t GetCaps() const override { return mSound.Caps; }
    std::unique_ptr<CaptureBuffer> CreateCaptureBuffer(const WaveFormat& Format,
                                                       std::int32_t Bytes) override {
        if (mSound.Unplugged) return nullptr;
        return std::make_unique<FakeCaptureBuffer>(mSound.Told, mSound.Buffer, Format, Bytes,
                                                   mSound.Delay);
    }

  private:
    FakeSound& mSound;
};

inline std::unique_ptr<CaptureDevice> FakeSound::CreateCapture() {
    ++Opened;
    std::this_thread::sleep_for(Delay);
    if (Microphone) return Microphone();
    return HasMicrophone ? std::make_unique<FakeMicrophone>(*this) : nullptr;
}

// Bytes that are told apart: 0, 1, 2 ... 250, 0, 1 ...
inline QByteArray Speech(int Count, int From = 0) {
    QByteArray Bytes;
    for (int I = 0; I < Count; ++I) Bytes.append(static_cast<char>((From + I) % 251));
    return Bytes;
}

class RecorderRig : public ::testing::Test {
  protected:
    QString SavePath() const { return mFolder / QStringLiteral("clip.wav"); }

    FakeSound mSound;
    harness::ScriptedBoxes mBoxes;
    harness::TempFolder mFolder;
};

}  // namespace neb::test
