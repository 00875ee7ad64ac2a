// The microphone, with plain files in its place: the sound library's "disk" driver.
#include "sound/devices/SdlCapture.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QThread>
#include <csignal>

#include "harness/ByTheClock.h"
#include "harness/TempFolder.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

class SdlCapture : public ::testing::Test {
  protected:
    SdlCapture() {
        harness::GoByTheClock();
        Speak(NoisyBytes(30000));
    }
    ~SdlCapture() override {
        for (const char* Name : {"SDL_AUDIODRIVER", "SDL_DISKAUDIOFILEIN"}) qunsetenv(Name);
    }

    static QByteArray NoisyBytes(int Count) {
        QByteArray Bytes;
        for (std::uint32_t I = 1; Bytes.size() < Count; ++I)
            Bytes.append(static_cast<char>((I * 2654435761U) >> 24));
        return Bytes;
    }
    // What the microphone will hear; then silence.
    void Speak(const QByteArray& Bytes) {
        mSpoken = Bytes;
        WriteFile(mFolder / "in.raw", Bytes);
        qputenv("SDL_AUDIODRIVER", "disk");
        qputenv("SDL_DISKAUDIOFILEIN", (mFolder / "in.raw").toUtf8());
    }
    static WaveFormat FormatAt(std::uint32_t Rate) {
        WaveFormat Format;
        Format.SamplesPerSec = Format.AvgBytesPerSec = Rate;
        return Format;
    }
    static std::unique_ptr<CaptureBuffer> MakeBuffer(std::int32_t Bytes,
                                                     std::uint32_t Rate = 22050) {
        const auto Microphone = OpenSdlCapture();
        return Microphone ? Microphone->CreateCaptureBuffer(FormatAt(Rate), Bytes) : nullptr;
    }
    static bool WaitFor(const CaptureBuffer& Buffer, std::int32_t Bytes) {
        QElapsedTimer Since;
        Since.start();
        while (Buffer.GetCurrentPosition() < Bytes && Since.elapsed() < 5000) QThread::msleep(1);
        return Buffer.GetCurrentPosition() >= Bytes;
    }

    harness::TempFolder mFolder;
    QByteArray mSpoken;
};

TEST_F(SdlCapture, RecordsWhatTheMicrophoneHearsToTheByte) {
    for (const std::uint32_t Rate : {22050U, 11025U}) {
        const auto Buffer = MakeBuffer(20 * 22050, Rate);
        ASSERT_NE(nullptr, Buffer);
        QElapsedTimer Since;
        Since.start();
        Buffer->Start();
        ASSERT_TRUE(WaitFor(*Buffer, static_cast<std::int32_t>(Rate) / 4));
        EXPECT_GE(Since.elapsed(), 200) << "in real time";
        Buffer->Stop();
        const std::int32_t Recorded = Buffer->GetCurrentPosition();
        EXPECT_EQ(Buffer->ReadBuffer(0, Recorded), mSpoken.left(Recorded)) << Rate;
        EXPECT_LT(Recorded, static_cast<std::int32_t>(Rate));
    }
}

TEST_F(SdlCapture, SaysThatItRecordsAtBothRates) {
    const auto Microphone = OpenSdlCapture();
    ASSERT_NE(nullptr, Microphone);
    EXPECT_EQ(Microphone->GetCaps(), CaptureDevice::Mono8At11025 | CaptureDevice::Mono8At22050);
}

TEST_F(SdlCapture, EndsByItselfWhenTheBytesAreFullAndStaysThere) {
    const auto Buffer = MakeBuffer(3001);
    ASSERT_NE(nullptr, Buffer);
    Buffer->Start();
    ASSERT_TRUE(WaitFor(*Buffer, 3001));
    QThread::msleep(60);
    EXPECT_EQ(Buffer->GetCurrentPosition(), 3001);
    EXPECT_EQ(Buffer->ReadBuffer(0, 3001), mSpoken.left(3001));
    Buffer->Start();
    Buffer->Stop();
    QThread::msleep(60);
    EXPECT_EQ(Buffer->GetCurrentPosition(), 3001) << "records once";
}

TEST_F(SdlCapture, NothingIsAddedAfterTheStop) {
    const auto Buffer = MakeBuffer(22050);
    ASSERT_NE(nullptr, Buffer);
    Buffer->Start();
    ASSERT_TRUE(WaitFor(*Buffer, 1));
    Buffer->Stop();
    const std::int32_t Recorded = Buffer->GetCurrentPosition();
    QThread::msleep(80);
    EXPECT_EQ(Buffer->GetCurrentPosition(), Recorded);
    Buffer->Start();
    QThread::msleep(80);
    EXPECT_EQ(Buffer->GetCurrentPosition(), Recorded) << "records once";
}

TEST_F(SdlCapture, WhatIsNotRecordedIsSilence) {
    const auto Buffer = MakeBuffer(100);
    ASSERT_NE(nullptr, Buffer);
    EXPECT_EQ(Buffer->GetCurrentPosition(), 0);
    EXPECT_EQ(Buffer->ReadBuffer(90, 30), QByteArray(30, '\x80'));
    EXPECT_EQ(Buffer->ReadBuffer(500, 3), QByteArray(3, '\x80'));
}

TEST_F(SdlCapture, TheWindowsThreadNeverWaitsWhileARecordingRuns) {
    const auto Buffer = MakeBuffer(22050);
    ASSERT_NE(nullptr, Buffer);
    QElapsedTimer Since;
    Since.start();
    Buffer->Start();
    EXPECT_LT(Since.restart(), 50);
    ASSERT_TRUE(WaitFor(*Buffer, 1));
    Since.restart();
    Buffer->Stop();
    EXPECT_LT(Since.elapsed(), 50);
}

TEST_F(SdlCapture, MayBeReleasedAtAnyMoment) {
    for (int Wait = 0; Wait < 40; Wait += 4) {
        const auto Buffer = MakeBuffer(700);
        ASSERT_NE(nullptr, Buffer);
        Buffer->Start();
        QThread::msleep(static_cast<unsigned long>(Wait));
    }
}

TEST_F(SdlCapture, OutlivesTheMicrophoneThatMadeIt) {
    auto Microphone = OpenSdlCapture();
    ASSERT_NE(nullptr, Microphone);
    const auto Buffer = Microphone->CreateCaptureBuffer(FormatAt(22050), 22050);
    ASSERT_NE(nullptr, Buffer);
    Buffer->Start();
    Microphone.reset();
    EXPECT_TRUE(WaitFor(*Buffer, 2000));
}

TEST_F(SdlCapture, RecordsNothingButUnsigned8BitSound) {
    const auto Microphone = OpenSdlCapture();
    ASSERT_NE(nullptr, Microphone);
    WaveFormat Format;
    Format.BitsPerSample = 16;
    EXPECT_EQ(Microphone->CreateCaptureBuffer(Format, 100), nullptr);
}

TEST_F(SdlCapture, ThereIsNoneWithoutSound) {
    qputenv("SDL_AUDIODRIVER", "none-existent");
    EXPECT_EQ(OpenSdlCapture(), nullptr);
}

TEST_F(SdlCapture, ThereIsNoneWhenItCannotBeOpened) {
    qputenv("SDL_DISKAUDIOFILEIN", (mFolder / "none" + "/in.raw").toUtf8());
    EXPECT_EQ(OpenSdlCapture(), nullptr);
}

// The file is there when the microphone is looked for, and gone when it is to be recorded from.
TEST_F(SdlCapture, AMicrophoneThatGoesBeforeTheStartRecordsNothing) {
    const auto Buffer = MakeBuffer(22050);
    ASSERT_NE(nullptr, Buffer);
    DeleteFile(mFolder / "in.raw");
    Buffer->Start();
    QThread::msleep(80);
    Buffer->Stop();
    EXPECT_EQ(Buffer->GetCurrentPosition(), 0);
}

TEST_F(SdlCapture, LeavesTheProgramsSignalsAlone) {
    const auto Microphone = OpenSdlCapture();
    ASSERT_NE(Microphone, nullptr);
    for (const int Signal : {SIGINT, SIGTERM})
        EXPECT_EQ(std::signal(Signal, SIG_DFL), SIG_DFL) << Signal;
}

}  // namespace
}  // namespace neb
