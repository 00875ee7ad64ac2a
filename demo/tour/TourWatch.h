// Looks at transitions and at the show on the screen, for the steps that wait for a moment in them
// and for what the tour tells.
#pragma once

#include <QString>
#include <functional>

namespace neb {

class XShow;

namespace demo {

// How far the watched view's transition has come, 0 to 1.
void WatchProgress(XShow& View);
double Progress();

// The view of the running show; a Fault when none runs.
XShow& ShowView();
std::function<bool()> ShowIsOver();
// The show has come to this place. A Fault when it has gone past it, as it would come to it again
// only in its next round.
std::function<bool()> SlideIsUp(int SlideSeq);
// The show stands at this place, its transition is over, or nearly all of the slide's time is: on a
// slow machine a transition may take all of it.
std::function<bool()> SlideStands(int SlideSeq);
// So many seconds have been heard since this was asked for the first time; or the time of the
// slide that is up comes to its end before.
std::function<bool()> IsListenedTo(double Seconds);
// A little before the middle of the transition to this place, or behind it: on a slow machine it
// may have but one step.
std::function<bool()> IsBetween(int SlideSeq);

// Which slide is on the screen and what sounds; nothing without a show.
QString TellShow();

}  // namespace demo
}  // namespace neb
