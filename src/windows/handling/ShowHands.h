// What hands do to a running show: its keys, the pointer, fingers, the black screen, the card with
// the keys, the field for a slide, the line at the lower edge. The projector hands over its keys
// and clicks, and carries out what is asked for by the signals.
#pragma once

#include <QObject>

#include "windows/handling/GotoField.h"
#include "windows/handling/KeyCard.h"
#include "windows/handling/PlaceLine.h"
#include "windows/handling/RestingPointer.h"
#include "windows/handling/ShowWait.h"
#include "windows/handling/TouchGestures.h"
#include "windows/handling/WordsOfFailure.h"

namespace neb {

class clsDBEngine;

class ShowHands : public QObject {
    Q_OBJECT

  public:
    // All outlive this object; Engine: null when no database is open.
    ShowHands(QWidget& Window, ShowRun& Run, const clsDBEngine* Engine);

    // Each time that the window has come up.
    void Attach();
    void Press(const QKeyEvent& Key);
    void Do(ShowCommand Command);
    // A left click on the picture or beside it.
    void Click();
    // What the show has told of its trouble, for FollowShow.
    void Note(const QString& Trouble) { mTrouble = Trouble; }
    // The show goes, halts or has another slide: once it has done so, one that has stopped before
    // it had anything to show says so.
    void FollowShow() { mFollow.start(); }

  Q_SIGNALS:
    void LeaveAsked();
    void MenuAsked(const QPoint& At);  // in the window
    void CaptionsAsked();              // off or on

  protected:
    bool eventFilter(QObject* On, QEvent* Event) override;

  private:
    struct Row;
    static const Row Rows[];

    ShowCaptions Captions() const;
    bool IsRunning() const;
    bool HasFailed() const;
    bool WantsPointer() const;
    bool WantsFinger(const QPoint& At) const;
    bool CloseCard();
    bool LiftBlack();
    void Goto(std::int32_t SlideSeq);
    void PlayPause();
    void Pause();
    void Stop();
    void OpenGoto();
    void DoBlack();
    void OpenCard();
    void OpenMenu();
    void TellFailure();
    bool IsUnderABox() const;

    QWidget& mWindow;
    ShowRun& mRun;
    const clsDBEngine* mEngine;
    RestingPointer mPointer;
    TouchGestures mFingers;
    ShowWait mUnderBlack, mUnderCard;
    QString mTrouble;
    QTimer mFollow;
    // Children of the window, the upper ones last.
    QWidget* mBlack;
    PlaceLine* mLine;
    WordsOfFailure* mNotice;
    KeyCard* mCard;
    GotoField* mField;
};

}  // namespace neb
