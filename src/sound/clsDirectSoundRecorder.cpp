#include "sound/clsDirectSoundRecorder.h"

#include <algorithm>
#include <cstdlib>

#include "sound/WaveFile.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

constexpr std::int32_t MostSeconds = 20;
constexpr int MomentsPerSecond = 10;  // what the meter calls a moment
constexpr std::uint8_t SilentSample = 128;

struct RateOfCaps {
    std::uint32_t Caps;
    std::uint32_t Rate;
};
constexpr RateOfCaps Rates[] = {{CaptureDevice::Mono8At22050, 22050},
                                {CaptureDevice::Mono8At11025, 11025}};

constexpr char NoSound[] = QT_TR_NOOP("Unable to use the sound system.");
constexpr char NoCapture[] = QT_TR_NOOP("Unable to initialize sound card for capture.");
constexpr char NoFormat[] = QT_TR_NOOP("Recording is not supported by your sound card.");
constexpr char NotSupported[] = QT_TR_NOOP("Recording is not supported on your sound card.");
constexpr char HalfDuplex[] =
    QT_TR_NOOP("This card does not support full duplex.  You may still record sound.");
constexpr char NoRecording[] = QT_TR_NOOP("You Must First Record a Sound.");
constexpr char NoOutput[] = QT_TR_NOOP("There is no sound card to play the recording on.");

std::uint32_t RateFor(std::uint32_t Caps) {
    for (const RateOfCaps& Each : Rates)
        if (Caps & Each.Caps) return Each.Rate;
    return 0;
}

}  // namespace

clsDirectSound::Recorder::~Recorder() {
    StopRecording();
    StopPlayback();
}

bool clsDirectSound::Recorder::Refuse(const QString& Text) {
    mLastError = Text;
    return false;
}

bool clsDirectSound::Recorder::Supported() {
    mLastError.clear();
    return mInitialized || Initialize();
}

bool clsDirectSound::Recorder::Initialize() {
    if (!mDX) return Refuse(tr(NoSound));
    mCapture = mDX->CreateCapture();
    if (!mCapture) return Refuse(tr(NoCapture));
    mInitialized = true;
    if (!InitCapture()) return false;
    CheckOutput();
    return true;
}

bool clsDirectSound::Recorder::InitCapture() {
    const std::uint32_t Rate = RateFor(mCapture->GetCaps());
    if (Rate == 0) return Refuse(tr(NoFormat));
    WaveFormat Format;
    Format.SamplesPerSec = Format.AvgBytesPerSec = Rate;
    auto Buffer =
        mCapture->CreateCaptureBuffer(Format, static_cast<std::int32_t>(Rate) * MostSeconds);
    // Only now, so that a recording stays when the microphone for the next one has gone.
    if (!Buffer) return Refuse(tr(NoCapture));
    mCaptureBuffer = std::move(Buffer);
    mCaptureFormat = Format;
    return true;
}

void clsDirectSound::Recorder::CheckOutput() {
    const PlaybackState State = mDX->CheckPlayback();
    mHasOutput = State == PlaybackState::Ready;
    if (State == PlaybackState::Allocated) mLastError = tr(HalfDuplex);
}

bool clsDirectSound::Recorder::StartRecording() {
    mLastError.clear();
    if (!mInitialized) return Refuse(tr(NotSupported));
    StopRecording();
    StopPlayback();
    if (!InitCapture()) return false;
    mLevel.Begin(mVolume);
    mCaptureBuffer->Start();
    mRecording = true;
    return true;
}

void clsDirectSound::Recorder::StopRecording() {
    if (!mRecording) return;
    mCaptureBuffer->Stop();
    mHasRecording = true;
    mBufferBuilt = false;
    mRecording = false;
}

// What playing and saving ask for in the same words.
bool clsDirectSound::Recorder::HasClip() {
    mLastError.clear();
    if (!mInitialized) return Refuse(tr(NotSupported));
    StopRecording();
    if (!mHasRecording) return Refuse(tr(NoRecording));
    if (!mBufferBuilt) BuildPlaybackBuffer();
    return mBufferBuilt || Refuse(tr(NoRecording));
}

QByteArray clsDirectSound::Recorder::ReadRecorded(std::int32_t First, std::int32_t Count) const {
    QByteArray Samples = mCaptureBuffer->ReadBuffer(First, Count);
    mLevel.Apply(Samples, First);
    return Samples;
}

void clsDirectSound::Recorder::BuildPlaybackBuffer() {
    StopPlayback();
    mPlayBuffer.reset();
    mBytes.clear();
    const std::int32_t RecordedBytes = mCaptureBuffer->GetCurrentPosition();
    if (RecordedBytes == 0) return;
    mBytes = ReadRecorded(0, RecordedBytes + 1);
    // Beyond the recording there is nothing to hear, whatever the device has there.
    mBytes[RecordedBytes] = static_cast<char>(SilentSample);
    mBufferBuilt = true;
}

bool clsDirectSound::Recorder::StartPlayback() {
    if (!HasClip()) return false;
    if (mPlaying) StopPlayback();
    if (!mHasOutput) CheckOutput();
    if (!mHasOutput) return Refuse(mLastError.isEmpty() ? tr(NoOutput) : mLastError);
    if (!mPlayBuffer) mPlayBuffer = mDX->CreateSoundBuffer(mCaptureFormat, mBytes);
    if (!mPlayBuffer) return Refuse(tr(NoOutput));
    mPlayBuffer->Run();
    mPlaying = true;
    return true;
}

void clsDirectSound::Recorder::StopPlayback() {
    mLastError.clear();
    if (!std::exchange(mPlaying, false)) return;
    mPlayBuffer->Stop();
    mPlayBuffer->PutCurrentPosition(0);
}

bool clsDirectSound::Recorder::PlaybackComplete() const {
    mLastError.clear();
    if (!mPlaying) return false;
    // A sound buffer stops at its end by itself, which a graph does not.
    return !mPlayBuffer->IsRunning() ||
           mPlayBuffer->GetCurrentPosition() >= mPlayBuffer->GetDuration();
}

bool clsDirectSound::Recorder::SaveToFile(const QString& Path) {
    if (!HasClip()) return false;
    ReplaceFile(Path, WaveFileBytes(mCaptureFormat, mBytes));
    return true;
}

Answer<> clsDirectSound::Recorder::SetVolume(int Value) {
    if (Value < 1 || Value > 100) return neb::Refuse(tr("Volume must be >0 and <=100"));
    mVolume = Value;
    if (mRecording) mLevel.ChangeAt(Position(), Value);
    return Done();
}

std::int32_t clsDirectSound::Recorder::Position() const {
    if (mPlaying)
        return static_cast<std::int32_t>(mPlayBuffer->GetCurrentPosition() *
                                         mCaptureFormat.AvgBytesPerSec);
    return mRecording || mHasRecording ? mCaptureBuffer->GetCurrentPosition() : 0;
}

double clsDirectSound::Recorder::Seconds() const {
    return static_cast<double>(Position()) / mCaptureFormat.AvgBytesPerSec;
}

QByteArray clsDirectSound::Recorder::LastMoment() const {
    if (!mRecording && !mPlaying) return {};
    const std::int32_t Last = Position();
    const auto Moment = static_cast<std::int32_t>(mCaptureFormat.AvgBytesPerSec / MomentsPerSecond);
    const std::int32_t First = std::max(0, Last - Moment);
    return mPlaying ? mBytes.mid(First, Last - First) : ReadRecorded(First, Last - First);
}

double clsDirectSound::Recorder::Level() const {
    int Peak = 0;
    for (const char Sample : LastMoment())
        Peak = std::max(Peak, std::abs(static_cast<std::uint8_t>(Sample) - SilentSample));
    return Peak / static_cast<double>(SilentSample);
}

// ---- clsDirectSound passes on ----

bool clsDirectSound::RecordingSupported(QWidget*) {
    return TheRecorder().Supported();
}

bool clsDirectSound::RecorderStartRecording() {
    return TheRecorder().StartRecording();
}

void clsDirectSound::RecorderStopRecording() {
    TheRecorder().StopRecording();
}

bool clsDirectSound::RecorderStartPlayback() {
    return TheRecorder().StartPlayback();
}

void clsDirectSound::RecorderStopPlayback() {
    TheRecorder().StopPlayback();
}

bool clsDirectSound::RecorderPlaybackComplete() {
    return TheRecorder().PlaybackComplete();
}

bool clsDirectSound::RecorderSaveToFile(const QString& Path) {
    return TheRecorder().SaveToFile(Path);
}

Answer<> clsDirectSound::SetRecorderVolume(int Value) {
    return TheRecorder().SetVolume(Value);
}

double clsDirectSound::RecorderSeconds() const {
    return mRecorder ? mRecorder->Seconds() : 0;
}

double clsDirectSound::RecorderLevel() const {
    return mRecorder ? mRecorder->Level() : 0;
}

clsDirectSound::Recorder& clsDirectSound::TheRecorder() {
    if (!mRecorder) mRecorder = std::make_shared<Recorder>(mDevices, mLastError);
    return *mRecorder;
}

}  // namespace neb
