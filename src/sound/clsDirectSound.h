// The one class through which the program touches sound: a player of sound files (shows,
// slide windows) and a recorder of short clips (the sound recorder). Refusals leave a text in
// LastError. All calls come on the window's thread.
#pragma once

#include <QString>
#include <memory>

#include "sound/SoundOpening.h"
#include "support/Answer.h"

class QWidget;

namespace neb {

class clsDirectSound {
  public:
    // Null: a machine without sound. They outlive it.
    explicit clsDirectSound(SoundDevices* Devices = TheServices().Sound);
    ~clsDirectSound();  // stops what runs
    clsDirectSound(const clsDirectSound&) = delete;
    clsDirectSound& operator=(const clsDirectSound&) = delete;

    // The text of the last refusal; emptied at the start of most operations.
    const QString& LastError() const { return mLastError; }

    // The file player.
    const QString& SoundFile() const { return mSoundFile; }  // as last given to LoadFile
    bool RepeatFlag() const { return mRepeatFlag; }          // of the last Play
    // Loads a file, at its start and not playing, at the full level; false when it cannot be
    // played. The earlier sound is gone in any case.
    bool LoadFile(const QString& Path);
    // The same in two steps, for a file that may take its time: it is opened aside, and taken.
    std::unique_ptr<SoundOpening> Open(const QString& Path);
    bool TakeFile(const QString& Path, std::unique_ptr<SoundGraph> Graph);
    void UnloadFile();
    int GetVolume();            // hundredths of a decibel; -1 with no file
    void SetVolume(int Value);  // 0, silence, to 100; by VolumeScale.h
    // From where it stands, and again and again without a gap where it repeats; false with no file.
    bool Play(bool Repeat);
    bool StopSound();   // back to the start; always true
    bool PauseSound();  // always true
    // Once a second: starts a repeating sound again whose player has come to its end all the same.
    void CheckRepeat();
    double Duration() const;                  // seconds; 0 with no file
    double CurrentPosition() const;           // seconds; 0 with no file
    void SetCurrentPosition(double Seconds);  // nothing with no file. Throws Fault below 0
    bool IsPlaying() const;                   // false when paused, stopped or with no file
    // Opens and measures a file in the background that will be loaded soon.
    void LoadAhead(const QString& Path);

    // The recorder. True when there is a microphone; asks the machine once.
    bool RecordingSupported(QWidget* Owner);
    bool RecorderStartRecording();  // the first 20 seconds; replaces the last recording
    void RecorderStopRecording();
    bool RecorderStartPlayback();
    void RecorderStopPlayback();
    bool RecorderPlaybackComplete();
    // As a WAV file. Throws Fault when it cannot be written; the recording is kept.
    bool RecorderSaveToFile(const QString& Path);
    // The level to record at, from now on: 1 to 100, 50 as it comes, a quarter of a decibel a
    // step. Any other is refused.
    Answer<> SetRecorderVolume(int Value);
    // For a meter: seconds recorded so far or played so far, and the peak of the last moment, 0
    // to 1.
    double RecorderSeconds() const;
    double RecorderLevel() const;

  private:
    bool HoldDevices();

    SoundDevices* mDevices;
    QString mLastError;
    QString mSoundFile;
    bool mRepeatFlag = false;
    bool mIsStarted = false;
    std::unique_ptr<SoundGraph> mGraph;  // empty when no file is loaded
    std::shared_ptr<void> mHold;         // of the devices, from the first file on

    class Recorder;
    Recorder& TheRecorder();
    std::shared_ptr<Recorder> mRecorder;  // empty until a microphone is asked for
};

}  // namespace neb
