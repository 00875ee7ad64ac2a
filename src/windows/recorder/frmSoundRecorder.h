// The dialog in which a user speaks a clip for a slide. The caller gives the path of the WAV file,
// shows the window modally and asks afterwards whether anything was saved.
#pragma once

#include "controls/forms/Form.h"

namespace neb {

class clsDirectSound;

namespace Ui {
class frmSoundRecorder;
}

class frmSoundRecorder : public Form {
    Q_OBJECT

  public:
    frmSoundRecorder();
    ~frmSoundRecorder() override;

    void SetSoundSavePath(const QString& Path) { mSoundSavePath = Path; }
    // True once the user has pressed Save and the file could be written.
    bool SoundRecorded() const { return mSoundRecorded; }
    const QString& RecorderMode() const { return mRecorderMode; }  // "Recording", "Playing" or ""

  protected:
    void Form_Load() override;
    bool Form_Unload() override;
    void changeEvent(QEvent* Event) override;

  private:
    void Run(unsigned Pressed);
    void Enable(unsigned On);
    void StartProgress();
    void Save();
    void Tick();
    void LoadIcons();
    void ReserveStatus();
    void ShowProgress();
    QString StatusText() const;
    QString IdleText() const;
    QString TimeText() const;

    std::unique_ptr<Ui::frmSoundRecorder> mUi;
    std::unique_ptr<clsDirectSound> mSound;
    QTimer* Timer1;
    QTimer* tmrMeter;
    QString mSoundSavePath;
    QString mRecorderMode;
    QString mRefusal;             // of the last command
    double mRecordedSeconds = 0;  // of the last recording
    double mShownSeconds = 0;     // of what runs, as last shown
    int mStillSteps = 0;          // of the meter since they last changed
    bool mSoundRecorded = false;
};

}  // namespace neb
