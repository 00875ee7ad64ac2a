// The recorder half of clsDirectSound, and nobody else's: records a short clip from the microphone,
// plays it back and gives the bytes of its WAV file.
#pragma once

#include "sound/RecordingLevel.h"
#include "sound/clsDirectSound.h"

namespace neb {

class clsDirectSound::Recorder {
  public:
    Recorder(SoundDevices* Devices, QString& LastError) : mLastError(LastError), mDX(Devices) {}
    ~Recorder();  // stops what runs
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;

    // As the operations of clsDirectSound; refusals leave their text in its LastError.
    bool Supported();
    bool StartRecording();
    void StopRecording();
    bool StartPlayback();
    void StopPlayback();
    bool PlaybackComplete() const;
    bool SaveToFile(const QString& Path);
    Answer<> SetVolume(int Value);
    double Seconds() const;
    double Level() const;

  private:
    bool Refuse(const QString& Text);
    bool Initialize();
    bool InitCapture();
    void CheckOutput();
    bool HasClip();
    void BuildPlaybackBuffer();
    QByteArray ReadRecorded(std::int32_t First, std::int32_t Count) const;  // at the level
    std::int32_t Position() const;  // bytes, of what runs; else of what was recorded
    QByteArray LastMoment() const;

    QString& mLastError;
    int mVolume = 50;
    RecordingLevel mLevel;  // of the last recording
    bool mInitialized = false;
    bool mHasRecording = false;
    bool mBufferBuilt = false;
    bool mPlaying = false;
    bool mRecording = false;
    bool mHasOutput = false;
    WaveFormat mCaptureFormat;
    QByteArray mBytes;  // of the recording, once it is built, and one more
    SoundDevices* mDX;
    // In the order of creation, so that they are released in the reverse of it.
    std::unique_ptr<CaptureDevice> mCapture;
    std::unique_ptr<CaptureBuffer> mCaptureBuffer;
    std::unique_ptr<SoundGraph> mPlayBuffer;
};

}  // namespace neb
