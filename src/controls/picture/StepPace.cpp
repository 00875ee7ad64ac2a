#include "controls/picture/StepPace.h"

#include <algorithm>
#include <cmath>

namespace neb {
namespace {

constexpr double OrdinaryRate = 60, LeastRate = 20, MostRate = 1000;
constexpr double Hair = 1e-6;  // refreshes and steps that fall together do so in spite of rounding

}  // namespace

void StepPace::Begin(double Asked, double Ready, int Steps, double Delay, double Rate) {
    mPeriod = 1000 / (Rate >= LeastRate && Rate <= MostRate ? Rate : OrdinaryRate);
    mOrigin = std::max(Asked, Ready - Delay);
    mRefresh = Ready;
    mFirstSeen = Ready + mPeriod;
    mSteps = Steps;
    mDelay = Delay;
}

double StepPace::RefreshFrom(double Time) const {
    return mRefresh + std::ceil((Time - mRefresh) / mPeriod - Hair) * mPeriod;
}

double StepPace::SeenAt(double Now) const {
    return mRefresh + (std::floor((Now - mRefresh) / mPeriod + Hair) + 1) * mPeriod;
}

int StepPace::StepFor(double Now) const {
    const double Since = SeenAt(Now) - mOrigin;
    if (Since >= mSteps * mDelay) return mSteps;
    return std::clamp(static_cast<int>(std::floor(Since / mDelay + Hair)), 0, mSteps);
}

double StepPace::DrawAt(int Step, double Earliest) const {
    return std::max(Earliest, RefreshFrom(DueOf(Step) - mPeriod));
}

bool StepPace::IsLate(int StepBefore, double Came) const {
    const double Due = std::max(RefreshFrom(DueOf(StepBefore + 1)), mFirstSeen);
    return Came > Due + mPeriod + Hair;
}

}  // namespace neb
