// A running show as the desktop's media keys see it: what they may ask of it, and what is on the
// screen. Part of ShowDesk.
#pragma once

#include <QObject>

#include "support/MediaControls.h"

namespace neb {

class ShowRun;
class frmSlideShowProjector;

class ShowRemote : public QObject, private MediaPlayer {
    Q_OBJECT
  public:
    // Offers the show to the desktop as long as the object lives; both outlive it.
    ShowRemote(frmSlideShowProjector& Show, const ShowRun& Run);
    ~ShowRemote() override;
    // Another slide or another state may have come up.
    void Follow();

  private:
    // How long a slide has been up, in milliseconds, without the time in which the show stood.
    struct Played {
        double Before = 0, Since = 0;
        bool Goes = false;
        double Now() const;
        void Go(bool On);
    };

    void Obey(MediaCommand Command) override;
    MediaStatus Status() const override;
    double Position() const override;
    void CarryOut(MediaCommand Command);

    frmSlideShowProjector& mShow;
    const ShowRun& mRun;
    MediaStatus mTold;
    Played mPlayed;
};

}  // namespace neb
