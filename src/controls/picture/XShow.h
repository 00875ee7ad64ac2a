// The transition view: shows one picture and runs a transition to the next one, step by step by
// the clock and by the screen. Used by the projector, the speed test and the preview of the
// effects.
#pragma once

#include <QTimer>
#include <QWidget>
#include <memory>

#include "controls/picture/FrameCount.h"
#include "controls/picture/ScreenRefresh.h"
#include "controls/picture/StepPace.h"
#include "controls/picture/XShowLoader.h"
#include "effects/Transition.h"

namespace neb {

class XShow : public QWidget {
    Q_OBJECT
  public:
    // How a transition is paced.
    enum class Pacing {
        Screen,     // in its time: of the steps those that a refresh of the screen can show
        EveryStep,  // every step is drawn, however long that takes
    };
    enum class Arrival { Here, Unreadable, OnItsWay };

    explicit XShow(QWidget* Parent = nullptr);
    ~XShow() override;

    // What reads the picture files, for all views; called on worker threads. Patience: how long
    // AskForPicture waits, milliseconds.
    static void SetReader(ShownReader Reader, int Patience = 50);

    // Takes the picture that comes next, without showing it; a running transition goes on to
    // its own picture. Throws Fault when it cannot be read; what was loaded before stays.
    void LoadPicture(const QString& File);
    // The same for a show, which does not wait for a medium that hangs: what is not here after a
    // moment comes later, with one of the signals of pictures, unless another is asked for.
    Arrival AskForPicture(const QString& File);
    // Nothing more is heard of a picture that is on its way.
    void ForgetPicture() { mArrival.stop(); }
    // Begins to read a picture that LoadPicture will soon be asked for.
    void Prefetch(const QString& File);

    // Runs the transition to the loaded picture; with none loaded nothing changes. One that
    // runs is stopped first; when the answer to its EffectEnded starts another, that one stays.
    void RunEffect();
    // Ends a running transition at once, with the new picture up.
    void StopEffect();
    bool IsRunning() const { return mRunning; }

    // Taken by the next RunEffect. Numbers outside the catalogue change the picture plainly.
    int EffectNumber() const { return mNumber; }
    void SetEffectNumber(int Number) { mNumber = Number; }
    QString EffectName() const;  // of EffectNumber
    // The least time from step to step, 0 to 1000 tenths of a millisecond; kept in that range.
    int EffectDelay() const { return mDelay; }
    void SetEffectDelay(int Delay);
    // The progress of a step, 1 to 100 percent; kept in that range.
    int EffectStep() const { return mStepPercent; }
    void SetEffectStep(int Percent);
    void SetPacing(Pacing By) { mPacing = By; }
    // Of all transitions so far that were paced by the screen and seen on it.
    const FrameCount& Frames() const { return mFrames; }

    bool ShowOptionA() const { return mLayout.Fitted; }        // fitted to the view
    bool ShowOptionB() const { return mLayout.InProportion; }  // in its own proportion
    bool ShowOptionC() const { return mLayout.Centred; }       // centred
    bool ShowOptionD() const { return mWhole; }  // each step is on the screen before the next
    void SetShowOptionA(bool On);
    void SetShowOptionB(bool On);
    void SetShowOptionC(bool On);
    void SetShowOptionD(bool On) { mWhole = On; }

    QSize sizeHint() const override { return {640, 480}; }

  Q_SIGNALS:
    // Comes exactly once for each RunEffect, after IsRunning has become false.
    void EffectEnded();
    // A step has been drawn; Progress up to 1.
    void EffectStepped(double Progress);
    // Of the picture that was on its way: it is loaded, it cannot be read; and, before either of
    // them, that it has been waited for for a second.
    void PictureCame();
    void PictureFailed();
    void PictureLate();
    // The picture was clicked with the left button.
    void SurfaceClick();
    // Button: 1 left, 2 right, 4 middle. Shift: 1 Shift, 2 Ctrl, 4 Alt, added up. X, Y: place.
    void SurfaceMouseDown(int Button, int Shift, int X, int Y);

  protected:
    virtual double RefreshRate() const;  // of the screen that the view is on; a second
    void paintEvent(QPaintEvent* Event) override;
    void resizeEvent(QResizeEvent* Event) override;
    void mousePressEvent(QMouseEvent* Event) override;
    void mouseDoubleClickEvent(QMouseEvent* Event) override;
    void mouseReleaseEvent(QMouseEvent* Event) override;

  private:
    XShowLayout LayoutNow() const;
    void ChangeLayout(bool XShowLayout::*Option, bool On);
    void TakeNext(const XShowLayout& Layout);
    bool FitAgain();  // whether the present step was drawn anew
    void MakeTransition();
    void StartSteps();
    bool TakePicture();
    void LookForPicture();
    void AwaitStep();
    void AwaitRefresh(double Earliest);
    void OnTime();
    void OnRefresh();
    void DoStep(int Step);
    void DrawStep();
    void ShowStep();
    void CountFrame(int StepBefore);
    void Finish();
    double ProgressNow() const;
    const QImage& Visible() const;

    XShowLoader mLoader;
    XShowLayout mLayout;  // without the view's size
    LoadedPicture mOld;   // while a transition runs
    LoadedPicture mNow;   // on the screen, or on its way there
    LoadedPicture mNext;  // loaded; null source: nothing
    std::unique_ptr<Transition> mTransition;
    QImage mFrame;  // of the present step, between the two pictures; kept for the next transition
    StepPace mPace;
    ScreenRefresh mRefresh;
    FrameCount mFrames;
    QTimer mArrival;    // looks for the picture that is on its way
    double mAsked = 0;  // since when, in ticks; told of as late: infinite

    int mNumber = 1;
    int mDelay = 0;
    int mStepPercent = 100;
    Pacing mPacing = Pacing::Screen;
    bool mWhole = false;
    bool mPressed = false;

    bool mRunning = false;
    int mRunCount = 0;
    int mRunNumber = 0, mRunStep = 100;
    double mRunDelay = 0;       // milliseconds
    int mStep = 0, mSteps = 0;  // of the running transition
    double mDue = 0;            // when the next step may be drawn, in ticks
};

}  // namespace neb
