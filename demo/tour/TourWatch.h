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
// The show stands at this place, its transition is over.
std::function<bool()> SlideStands(int SlideSeq);
// A little before the middle of the transition to this place, or behind it: on a slow machine it
// may have but one step.
std::function<bool()> IsBetween(int SlideSeq);

// Which slide is on the screen and what sounds; nothing without a show.
QString TellShow();

}  // namespace demo
}  // namespace neb
