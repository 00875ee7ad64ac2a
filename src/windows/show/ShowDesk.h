// What a running show wants of the desktop, as long as it runs: a screen, which does not blank, and
// the media keys. The projector makes it when it is loaded and lets it go when it is unloaded.
#pragma once

#include "windows/show/BlankingHold.h"
#include "windows/show/ShowRemote.h"

namespace neb {

class ShowDesk : public QObject {
    Q_OBJECT
  public:
    // Puts the window on its screen, before it is shown. Both outlive the object.
    ShowDesk(frmSlideShowProjector& Show, const ShowRun& Run);

    // The show has begun to run or stands still.
    void FollowState(bool Running);
    // Another slide or caption comes up.
    void FollowSlide();
    // Preferences have been changed, or the screens: the show goes where it belongs now.
    void FollowScreen();

  Q_SIGNALS:
    // All that there is to tell of a step is on the screen.
    void SlideIsUp();

  private:
    frmSlideShowProjector& mShow;
    BlankingHold mScreenStaysOn;
    ShowRemote mRemote;
    bool mFollowsSoon = false;
};

}  // namespace neb
