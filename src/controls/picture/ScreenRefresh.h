// Waits for the moment at which the next frame is to be drawn. On Wayland the compositor says when
// it is ready for one, so that none is drawn in vain and none is torn; elsewhere a steady timer at
// the rate of the screen stands in for it. Used by XShow alone.
#pragma once

#include <QPointer>
#include <QTimer>
#include <QWindow>

namespace neb {

class ScreenRefresh : public QObject {
    Q_OBJECT

  public:
    explicit ScreenRefresh(QWidget& View);

    // Reached comes at that time on the program's clock, in milliseconds; one wait at a time, the
    // latest counts.
    void WaitUntil(double Due);
    // The same, but where the desktop tells when it is ready for a frame, then. Period: of the
    // screen, milliseconds.
    void WaitForRefresh(double Due, double Period);
    void Stop();

  Q_SIGNALS:
    // Told: by the desktop, and not by the clock alone.
    void Reached(bool Told);

  protected:
    bool eventFilter(QObject* Watched, QEvent* Event) override;

  private:
    enum class Wait { None, ForTime, ForAsking, ForDesktop };
    void Begin(Wait For, double Due);
    void OnTimer();
    bool Ask();
    void Reach(bool Told);

    QWidget& mView;
    QPointer<QWindow> mWindow;  // the one that is watched
    QTimer mTimer;
    Wait mWait = Wait::None;
    double mDue = 0;
    double mPeriod = 0;
};

}  // namespace neb
