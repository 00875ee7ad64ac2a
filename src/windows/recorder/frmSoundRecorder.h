// The dialog in which a user speaks a clip for a slide. The caller gives the path of the WAV file,
// shows the window modally and asks afterwards whether anything was saved.
#pragma once

#include <QPushButton>

#include "controls/forms/Form.h"
#include "sound/RecorderJobs.h"

namespace neb {

namespace Ui {
class frmSoundRecorder;
}

class frmSoundRecorder : public Form {
    Q_OBJECT

  public:
    frmSoundRecorder();
    ~frmSoundRecorder() override;

    void SetSoundSavePath(const QString& Path) { mClip.SavePath = Path; }
    // True once the user has pressed Save and there was something to write, and it was written.
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
        QString Mode;          // as RecorderMode
        double Seconds = 0;    // of the last recording
        bool IsThere = false;  // a recording has ended, and be it of nothing
        bool IsSaved = false;
        void NoteEnd(double After) {
            Seconds = After;
            IsThere = true;
        }
    };
    // Of what runs.
    struct Progress {
        double Seconds = 0;  // as last shown
        int StillSteps = 0;  // of the meter since they last changed
        QString Refusal;     // of the last command
    };
    // What the devices are busy with, which may take them seconds. The window lives meanwhile, its
    // buttons are off, and it can be closed.
    struct Step {
        std::function<void(bool Did)> Then;  // none: nothing is under way
        QString Text;                        // what the window says meanwhile
        unsigned On = 0;                     // the buttons that worked before
        QPushButton* Keyboard = nullptr;     // the one that had it; none: another control
    };
    struct Command;
    static const Command* CommandFor(unsigned Pressed, const QString& Mode);

    void SetUpButtons();
    void SetVolume(int Value);
    void Run(unsigned Pressed);
    void Done(const Command& Chosen, bool Did);
    void Opened(bool Did);
    void Save();
    void Saved(bool Did);
    bool MayDiscard();

    void Begin(RecorderJobs::Operation Do, const QString& Text, std::function<void(bool)> Then);
    bool IsWaiting() const { return mStep.Then != nullptr; }
    void Wait();
    void Finish();
    void AwaitStep();

    unsigned ButtonsOn() const;
    void SwitchButtons(unsigned On);
    void Enable(unsigned On);
    void StartProgress();
    void Tick();
    void MeterTick();
    void LoadIcons();
    void ReserveTexts();
    void ShowProgress();
    QString StatusText() const;
    QString IdleText() const;
    QString TimeText() const;

    std::unique_ptr<Ui::frmSoundRecorder> mUi;
    std::unique_ptr<RecorderJobs> mJobs;  // none before the window is loaded and after
    QTimer* Timer1;
    QTimer* tmrMeter;
    ClipInHand mClip;
    Progress mProgress;
    Step mStep;
};

}  // namespace neb
