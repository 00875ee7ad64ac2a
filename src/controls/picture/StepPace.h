// When the steps of a transition are due, and which of them a refresh of the screen shows: no more
// than one frame a refresh, each of the latest step that is due when it will be seen. Used by XShow
// alone. All times are milliseconds on the program's clock.
#pragma once

namespace neb {

class StepPace {
  public:
    // Asked for at Asked and prepared at Ready: what has been prepared counts for the wait for the
    // first step. Delay: from step to step. Rate: refreshes a second; 60 where it cannot be.
    void Begin(double Asked, double Ready, int Steps, double Delay, double Rate);
    // A refresh of the screen has begun just now; those that follow are counted from here.
    void RefreshBegins(double Now) { mRefresh = Now; }

    double Period() const { return mPeriod; }
    // When the last step is due.
    double End() const { return DueOf(mSteps); }
    // When what is drawn now will be seen: at the end of the present refresh.
    double SeenAt(double Now) const;
    // The latest step that is due by then; up to the number of steps.
    int StepFor(double Now) const;
    // The first refresh from Earliest on in which this step, or a later one, is to be drawn.
    double DrawAt(int Step, double Earliest) const;
    // Whether the frame that came after this step stood on the screen more than one refresh after
    // the one that should have shown something newer.
    bool IsLate(int StepBefore, double Came) const;

  private:
    double DueOf(int Step) const { return mOrigin + Step * mDelay; }
    double RefreshFrom(double Time) const;  // the first one at that time or later

    double mOrigin = 0, mDelay = 0, mPeriod = 1;
    double mRefresh = 0;    // when some refresh began
    double mFirstSeen = 0;  // nothing can be seen before
    int mSteps = 0;
};

}  // namespace neb
