#include "show/SlideClock.h"

#include <cmath>

#include "support/Services.h"

namespace neb {
namespace {

constexpr double Day = 86400;
// The clock counts milliseconds; sums of them are a hair off.
constexpr double HalfAnInstant = 0.0005;
// A start that lies so little ahead is no day away.
constexpr double JustAhead = 1;

}  // namespace

void SlideClock::Start() {
    StartAt(mTime.Timer());
}

void SlideClock::StartAt(double Moment) {
    mStart = std::fmod(Moment + Day, Day);
    mHeld.reset();
}

void SlideClock::Hold() {
    mHeld = Elapsed();
}

void SlideClock::GoOn() {
    if (mHeld) StartAt(mTime.Timer() - *mHeld);
}

double SlideClock::Elapsed() const {
    if (mHeld) return *mHeld;
    const double Since = std::fmod(mTime.Timer() - mStart + Day, Day);
    return Since > Day - JustAhead ? 0 : Since;
}

bool SlideClock::IsOver(double Elapsed, double Interval) {
    return Elapsed + HalfAnInstant >= Interval;
}

}  // namespace neb
