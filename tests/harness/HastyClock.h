// A clock for what waits on the screen: its ticks hurry on with every look at them, so that no wait
// takes any time, and its time of day is what the test says.
#pragma once

#include "support/Services.h"

namespace neb::harness {

class HastyClock : public Clock {
  public:
    HastyClock() : mBefore(TheServices().Time) { TheServices().Time = this; }
    ~HastyClock() override { TheServices().Time = mBefore; }
    HastyClock(const HastyClock&) = delete;
    HastyClock& operator=(const HastyClock&) = delete;

    QDateTime Now() const override {
        return QDate(2004, 5, 6).startOfDay().addMSecs(qRound64(Seconds * 1000));
    }
    double Ticks() const override { return mTicks += 10; }

    double Seconds = 40000;  // since midnight; a day and more is the next morning

  private:
    Clock* mBefore;
    mutable double mTicks = 0;
};

}  // namespace neb::harness
