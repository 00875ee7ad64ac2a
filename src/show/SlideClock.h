// How long the running slide has been up, over midnight too. Used by ShowRun; all in seconds, the
// moments since midnight.
#pragma once

#include <optional>

namespace neb {

class Clock;

class SlideClock {
  public:
    explicit SlideClock(const Clock& Time) : mTime(Time) {}

    void Start();  // now
    // At a moment that has just passed, so that what a tick came late does not add up.
    void StartAt(double Moment);
    // Stands still, and goes on from there: a pause is no part of a slide's time. Starting it sets
    // it going, too.
    void Hold();
    void GoOn();
    // 0 up to 86400.
    double Elapsed() const;
    // The moment at which a slide of this time is over; from midnight on it may lie above 86400.
    double Due(double Interval) const { return mStart + Interval; }

    // Whether so much time is the whole of a slide's.
    static bool IsOver(double Elapsed, double Interval);

  private:
    const Clock& mTime;
    double mStart = 0;
    std::optional<double> mHeld;  // what had elapsed; none while it runs
};

}  // namespace neb
