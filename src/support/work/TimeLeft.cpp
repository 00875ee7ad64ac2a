#include "support/work/TimeLeft.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>

namespace neb {
namespace {

constexpr double GuessMs = 3000;      // before that, an estimate is a guess
constexpr double BetweenMs = 250;     // single items would make the pace jump
constexpr double PaceMs = 15000;      // the pace is that of so long ago, and since
constexpr double SmoothMs = 5000;     // the estimate follows the pace so fast
constexpr double FewSeconds = 10;     // that and less is not worth a figure
constexpr double OverTheBorder = .6;  // of a step: so far it goes before the text follows

double ShareOf(double PassedMs, double WithinMs) {
    return 1 - std::exp(-PassedMs / WithinMs);
}

// Between two figures that the text may tell around so many seconds.
double StepAt(double Seconds) {
    if (Seconds < 60) return 10;
    if (Seconds < 10 * 60) return 60;
    return Seconds < 60 * 60 ? 5 * 60 : 15 * 60;
}

double Rounded(double Seconds) {
    const double Step = StepAt(Seconds);
    return std::max(FewSeconds, std::round(Seconds / Step) * Step);
}

QString Minutes(int Count) {
    return Count == 1 ? QCoreApplication::translate("TimeLeft", "a minute")
                      : QCoreApplication::translate("TimeLeft", "%1 minutes").arg(Count);
}

QString Hours(int Count) {
    return Count == 1 ? QCoreApplication::translate("TimeLeft", "an hour")
                      : QCoreApplication::translate("TimeLeft", "%1 hours").arg(Count);
}

QString Span(int Seconds) {
    const int WholeHours = Seconds / 3600, Rest = Seconds % 3600 / 60;
    if (Seconds < 60) return QCoreApplication::translate("TimeLeft", "%1 seconds").arg(Seconds);
    if (WholeHours == 0) return Minutes(Rest);
    return Rest == 0 ? Hours(WholeHours)
                     : QCoreApplication::translate("TimeLeft", "%1 and %2")
                           .arg(Hours(WholeHours), Minutes(Rest));
}

}  // namespace

void TimeLeft::Note(double Part, double NowMs) {
    const Moment Now{std::clamp(Part, 0.0, 1.0), NowMs};
    if (!mStart || Now.Part < mLast.Part) return Begin(Now);
    if (NowMs - mLast.Ms < BetweenMs && Now.Part < 1) return;
    Follow(Now);
    mLast = Now;
}

void TimeLeft::Skip(double Ms) {
    if (mStart) mStart->Ms += Ms;
    mLast.Ms += Ms;
}

void TimeLeft::Begin(const Moment& Now) {
    mStart = mLast = Now;
    mPace = 0;
    mLeft.reset();
    mShown.reset();
}

// The pace of the beginning is the mean so far: of the first items nobody knows whether they are
// like the others.
void TimeLeft::Follow(const Moment& Now) {
    const double Passed = Now.Ms - mLast.Ms, Since = Now.Ms - mStart->Ms;
    const double Mean = (Now.Part - mStart->Part) / std::max(Since, 1.0);
    const double Latest = (Now.Part - mLast.Part) / std::max(Passed, 1.0);
    mPace = Since < PaceMs ? Mean : mPace + (Latest - mPace) * ShareOf(Passed, PaceMs);
    if (Since < GuessMs || mPace <= 0) return;
    const double Fresh = (1 - Now.Part) / mPace / 1000;
    const double Expected = mLeft ? std::max(0.0, *mLeft - Passed / 1000) : Fresh;
    mLeft = Expected + (Fresh - Expected) * ShareOf(Passed, SmoothMs);
    Show();
}

void TimeLeft::Show() {
    if (!mShown || std::abs(*mLeft - *mShown) > StepAt(*mShown) * OverTheBorder)
        mShown = Rounded(*mLeft);
}

QString TimeLeft::Text() const {
    if (!mShown) return {};
    if (*mShown <= FewSeconds) return QCoreApplication::translate("TimeLeft", "A few seconds left");
    return QCoreApplication::translate("TimeLeft", "About %1 left")
        .arg(Span(static_cast<int>(*mShown)));
}

}  // namespace neb
