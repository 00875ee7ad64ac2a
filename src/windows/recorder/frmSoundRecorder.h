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

    void SetSoundSavePath(const QString& Path) { mClip.SavePath = Path; }
    // True once the user has pressed Save and the file could be written.
    bool SoundRecorded() const { return mClip.IsSaved; }
    const QString& RecorderMode() const { return mClip.Mode; }  // "Recording", "Playing" or ""

  protected:
    void Form_Load() override;
    bool Form_QueryUnload() override;
    bool Form_Unload() override;
    void changeEvent(QEvent* Event) override;

  private:
    // What the window is about.
    struct ClipInHand {
        QString SavePath;
        QString Mode;        // as RecorderMode
        double Seconds = 0;  // of the last recording
        bool IsSaved = false;
    };
    // Of what runs.
    struct Progress {
        double Seconds = 0;  // as last shown
        int StillSteps = 0;  // of the meter since they last changed
    };

    void SetVolume(int Value);
    void Run(unsigned Pressed);
    void Enable(unsigned On);
    void StartProgress();
    void Save();
    void Keep();
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
    ClipInHand mClip;
    Progress mProgress;
    QString mRefusal;  // of the last command
};

}  // namespace neb
