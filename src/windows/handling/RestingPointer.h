// The pointer over a show: hidden, there while the mouse moves, and gone again when it rests. It
// reads the moves of the whole window, whatever lies at the place. Used by ShowHands.
#pragma once

#include <QObject>
#include <QPoint>
#include <QTimer>
#include <functional>

class QMouseEvent;
class QWidget;

namespace neb {

class RestingPointer : public QObject {
    Q_OBJECT

  public:
    static constexpr int RestAfter = 2000;  // milliseconds

    // InUse: whether something is up that wants the pointer, which stays as long.
    RestingPointer(QWidget& Window, std::function<bool()> InUse);

    // To be called each time that the window has come up: its native side may be another.
    void Attach();
    // Shows the pointer, for as long as after a move.
    void Wake();

  Q_SIGNALS:
    void Moved(const QPoint& At);  // in the window
    void Left();                   // the window
    void Rested();

  protected:
    bool eventFilter(QObject* On, QEvent* Event) override;

  private:
    void OnMove(const QMouseEvent& Move);
    void Rest();

    QWidget& mWindow;
    const std::function<bool()> mInUse;
    QTimer mTimer;
    QPoint mPlace;  // on the screen
};

}  // namespace neb
