// Fingers on a show: a tap on the right or left third and a swipe step, a tap in the middle is a
// click, a long press asks for the menu. Used by ShowHands.
#pragma once

#include <QObject>
#include <QPoint>
#include <QTimer>
#include <functional>

#include "windows/handling/ShowKeys.h"

class QTouchEvent;
class QWidget;

namespace neb {

class TouchGestures : public QObject {
    Q_OBJECT

  public:
    // Mine: whether a finger that comes down at a place of the window is for the show; any other
    // one acts as a mouse on what lies there.
    TouchGestures(QWidget& Window, std::function<bool(const QPoint& At)> Mine);

    // As RestingPointer::Attach.
    void Attach();

  Q_SIGNALS:
    void Made(neb::ShowCommand Command);  // Next, Previous or Click
    void Held(const QPoint& At);          // a long press, in the window

  protected:
    bool eventFilter(QObject* On, QEvent* Event) override;

  private:
    // Spoiled: what the fingers do is the show's, but has no meaning any more.
    enum class Finger { Up, Down, Spoiled };

    bool Begin(const QTouchEvent& Touch);
    void Move(const QTouchEvent& Touch);
    void End(const QTouchEvent& Touch);
    void Spoil();
    bool IsTap(const QPoint& Way) const;
    ShowCommand CommandOfTap() const;
    ShowCommand CommandOfSwipe(const QPoint& Way) const;

    QWidget& mWindow;
    const std::function<bool(const QPoint& At)> mMine;
    QTimer mHold;
    QPoint mFrom;  // in the window
    Finger mFinger = Finger::Up;
};

}  // namespace neb
