// The full-screen window that runs one slide show: pictures with their transitions, captions and
// the right-click menu. What comes up when is ShowRun's, what keys, mouse and fingers do
// ShowHands'. Opened through RunSlideShow of modSlideShows.
#pragma once

#include <exception>
#include <optional>

#include "controls/forms/Form.h"
#include "show/ShowRun.h"
#include "windows/handling/ShowKeys.h"
#include "windows/show/ShowDesk.h"

namespace neb {

namespace Ui {
class frmSlideShowProjector;
}

class ShowHands;

class frmSlideShowProjector : public Form, private ShowStage {
    Q_OBJECT

  public:
    explicit frmSlideShowProjector(ShowWorld World = DesktopShowWorld());
    ~frmSlideShowProjector() override;

    // Both before LoadSlideShow.
    void SetAlbumID(std::int32_t ID) { mRun.AlbumID = ID; }
    void SetAlbumName(const QString& Name) { mAlbumName = Name; }
    // A place from 1, instead of the one where the show was left.
    void BeginAt(std::int32_t SlideSeq) { mRun.BeginAt(SlideSeq); }
    // Shows the window modally; returns when it has closed. Throws Fault when the first slide or
    // the saving of the place failed.
    void LoadSlideShow(std::int32_t SlideShowID);
    // Halts the show and the window for another window's work, and takes both up again.
    void StopMe();
    void ReStartMe();

    // What a key, the menu or the desktop asks for.
    void Do(ShowCommand Command);
    // The user's commands.
    void PlayPause() { mRun.PlayPause(); }
    void StopRestart() { mRun.StopRestart(); }
    void NextSlide() { mRun.NextSlide(); }
    void PreviousSlide() { mRun.PreviousSlide(); }
    void GotoStart() { mRun.GotoStart(); }
    void GotoEnd() { mRun.GotoEnd(); }
    void GotoSlide(std::int32_t SlideSeq) { mRun.GotoSlide(SlideSeq); }
    // At this place of the screen.
    void ShowPopupMenu(const QPoint& GlobalPlace);
    void EditPreferences();
    // The ticks: every 100 ms the clock of the slides, every 1000 ms the loop of the sound.
    void Timer1_Timer() { mRun.Timer1_Timer(); }
    void Timer2_Timer() { mRun.Timer2_Timer(); }

    const ShowState& State() const { return mRun.State(); }
    const EffectTables& Effects() const { return mRun.Effects(); }
    const EffectSettings& Settings() const { return mRun.Settings(); }
    double SlideInterval() const { return mRun.SoundFields().SlideInterval; }  // seconds
    const QString& CurrentFile() const { return mRun.CurrentFile(); }
    const QString& SlideShowName() const { return mRun.SlideShowName(); }

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    bool Form_Unload() override;
    void resizeEvent(QResizeEvent* Event) override;
    void showEvent(QShowEvent* Event) override;
    void keyPressEvent(QKeyEvent* Event) override;
    void mousePressEvent(QMouseEvent* Event) override;
    void mouseReleaseEvent(QMouseEvent* Event) override;

  private:
    void ShowCaption(const QString& Text) override;
    bool ShowPicture(const QString& Path, const EffectChoice& Choice) override;
    void Prefetch(const QString& Path) override;
    void SetTimer1(bool On) override;
    void SetTimer2(bool On) override;
    void TickAfter(int Milliseconds) override;
    void Tell(const QString& Message) override;

    void PrepareControls();
    void PictureCame();
    void LogFrames();
    void ResizeControls();
    void ConnectHands();
    void Leave();
    void SwitchCaptions();
    void SaySlide();
    void SayState();
    void SurfaceMouseDown(int Button);
    void RunCommand(const QString& Word);
    void SaveNextSlideSeq();

    std::unique_ptr<Ui::frmSlideShowProjector> mUi;
    ShowRun mRun;
    std::unique_ptr<ShowHands> mHands;
    std::optional<ShowDesk> mDesk;
    QString mAlbumName;
    QString mSaid;  // of the slide that is up
    QTimer* Timer1;
    QTimer* Timer2;
    std::exception_ptr mSaveFault;
};

}  // namespace neb
