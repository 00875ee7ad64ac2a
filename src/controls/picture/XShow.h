// The transition view: shows one picture and runs a transition to the next one, step by step by
// the clock. Used by the projector, the speed test and the preview of the effects.
#pragma once

#include <QTimer>
#include <QWidget>
#include <memory>

#include "controls/picture/XShowLoader.h"
#include "effects/Transition.h"

namespace neb {

class XShow : public QWidget {
    Q_OBJECT
  public:
    explicit XShow(QWidget* Parent = nullptr);
    ~XShow() override;

    // What reads the picture files, for all views; called on worker threads, too.
    static void SetReader(PictureReader Reader);

    // Takes the picture that comes next, without showing it; a running transition goes on to
    // its own picture. Throws Fault when it cannot be read; what was loaded before stays.
    void LoadPicture(const QString& File);
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
    // The picture was clicked with the left button.
    void SurfaceClick();
    // Button: 1 left, 2 right, 4 middle. Shift: 1 Shift, 2 Ctrl, 4 Alt, added up. X, Y: place.
    void SurfaceMouseDown(int Button, int Shift, int X, int Y);

  protected:
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
    void AwaitStep();
    void OnTimer();
    void DoStep();
    void DrawStep();
    void ShowStep();
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
    QTimer mTimer;

    int mNumber = 1;
    int mDelay = 0;
    int mStepPercent = 100;
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
