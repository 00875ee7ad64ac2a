#include "windows/show/ShowDesk.h"

#include "windows/show/ShowScreen.h"
#include "windows/show/frmSlideShowProjector.h"

namespace neb {

ShowDesk::ShowDesk(frmSlideShowProjector& Show, const ShowRun& Run)
    : mShow(Show), mScreenStaysOn(tr("A slide show is running")), mRemote(Show, Run) {
    FillScreen(Show, ShowScreen());
    connect(&TheScreens(), &ScreenWatch::Changed, this, &ShowDesk::FollowScreen);
}

void ShowDesk::FollowState(bool Running) {
    mScreenStaysOn.Follow(Running);
    FollowSlide();
}

// A step says one after the other what comes up; the desktop hears of it when it is complete.
void ShowDesk::FollowSlide() {
    if (std::exchange(mFollowsSoon, true)) return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            mFollowsSoon = false;
            mRemote.Follow();
            Q_EMIT SlideIsUp();
        },
        Qt::QueuedConnection);
}

void ShowDesk::FollowScreen() {
    QScreen* Screen = ShowScreen();
    if (Screen && !FillsScreen(mShow, *Screen)) FillScreen(mShow, Screen);
}

}  // namespace neb
