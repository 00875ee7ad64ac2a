// The full-screen window that runs one slide show: pictures with their transitions, captions, the
// clock of the slides, keys and the right-click menu. Opened through RunSlideShow of modSlideShows.
#pragma once

#include <exception>
#include <optional>

#include "presentation/BlankingHold.h"
#include "presentation/DetailChooser.h"
#include "presentation/EffectChooser.h"
#include "presentation/ShowSound.h"
#include "presentation/ShowState.h"
#include "support/windows/Form.h"

namespace neb {

namespace Ui {
class frmSlideShowProjector;
}

class clsNEBAlbum;

class frmSlideShowProjector : public Form {
    Q_OBJECT

  public:
    frmSlideShowProjector();
    ~frmSlideShowProjector() override;

    std::int32_t AlbumID = 0;  // set before LoadSlideShow
    QString AlbumName;
    // Shows the window modally; returns when it has closed. Throws Fault when the first slide or
    // the saving of the place failed.
    void LoadSlideShow(std::int32_t SlideShowID);
    // Halts the show and the window for another window's work, and takes both up again.
    void StopMe();
    void ReStartMe();

    // The user's commands.
    void PlayPause();
    void StopRestart();
    void NextSlide();
    void PreviousSlide();
    void GotoStart();
    void GotoEnd();
    void ShowPopupMenu();
    void EditPreferences();
    // The ticks: every 100 ms the clock of the slides, every 1000 ms the loop of the sound.
    void Timer1_Timer();
    void Timer2_Timer();

    const ShowState& State() const { return mState; }
    const EffectTables& Effects() const { return mEffects; }
    const EffectSettings& Settings() const { return mSettings; }
    double SlideInterval() const { return mSoundFields.SlideInterval; }  // seconds
    const QString& CurrentFile() const { return mCurrentFile; }
    const QString& SlideShowName() const { return mSlideShowName; }

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    bool Form_Unload() override;
    void resizeEvent(QResizeEvent* Event) override;
    void keyPressEvent(QKeyEvent* Event) override;
    void mouseReleaseEvent(QMouseEvent* Event) override;

  private:
    void PrepareControls();
    void FillScreen();
    void InitEffectTables();
    void LoadSettings();
    void ReloadEffectSettings();
    void ResizeControls();
    void SurfaceClick();
    void SurfaceMouseDown(int Button);
    void RunCommand(const QString& Word);
    void SaveNextSlideSeq();

    void Enter(const ShowTransition& Transition);
    void GotoFirstSlide();
    void SetTimers(bool Timer1On, bool Timer2On);
    void ResetSlideClock();
    void UserStep(std::int32_t SlideSeq);
    void AdvanceSlide();
    bool ShowCurrentSlide();
    bool ShowPlace(clsNEBAlbum& Album, const clsNEBSlideShow& SlideShow);
    bool Fail(const QString& Message);
    void StopShow();
    bool DisplaySlideFile(const QString& File);
    bool DisplayPicture(const QString& Path);
    QString SlidePath(const QString& SlideLoc) const;
    void PrefetchNext(clsNEBAlbum& Album, const clsNEBSlideShow& SlideShow);
    void SetFadeVolume(float Elapsed);

    std::unique_ptr<Ui::frmSlideShowProjector> mUi;
    std::optional<BlankingHold> mScreenStaysOn;
    std::shared_ptr<ShowSound> mSound;
    ShowSoundFields mSoundFields;
    ShowState mState;
    EffectTables mEffects;
    EffectSettings mSettings;
    std::int32_t mSlideShowID = 0;
    QString mSlideShowName;
    std::int32_t mProgressionMethod = 0;  // 0 automatic, 1 manual
    std::int32_t mSlideCount = 0;
    std::int32_t mLastSeq = 0;
    std::int32_t mResumeSeq = 0;
    bool mResumeValid = false;
    bool mResumeAfterRestart = false;
    bool mStarted = false;
    float mSlideStartTime = 0;  // seconds since midnight
    QString mCurrentFile;
    QTimer* Timer1;
    QTimer* Timer2;
    std::exception_ptr mSaveFault;
};

}  // namespace neb
