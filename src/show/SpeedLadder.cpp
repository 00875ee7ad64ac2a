#include "show/SpeedLadder.h"

#include <algorithm>

#include "support/Texts.h"

namespace neb {
namespace {

constexpr double Limit = 4.0;        // seconds of a transition
constexpr float DayOfTimer = 86400;  // seconds
constexpr double TimeoutAfterRetreat = 10;
constexpr std::int32_t Ladder[] = {100, 50, 35, 25, 20, 10, 5, 1};
constexpr std::int32_t Largest = Ladder[0];
constexpr std::int32_t Smallest = Ladder[std::size(Ladder) - 1];

const std::int32_t* RungOf(std::int32_t Step) {
    return std::find(std::begin(Ladder), std::end(Ladder), Step);
}

}  // namespace

struct SpeedLadder::Level {
    bool SpeedLadder::*Done;
    const char* Kind;
    int Effects[2];
    double SpeedTestResult::*Timeout;
    std::int32_t SpeedTestResult::*Delay;
    std::int32_t SpeedTestResult::*Step;
    float SpeedTestResult::*AvgTime;
    Next Then;
};

using R = SpeedTestResult;
const SpeedLadder::Level SpeedLadder::Levels[3] = {
    {&SpeedLadder::IntenseDone,
     QT_TR_NOOP("Intense"),
     {118, 121},
     &R::TimeoutH,
     &R::DelayH,
     &R::StepH,
     &R::AvgTimeH,
     Next::Level},
    {&SpeedLadder::NormalDone,
     QT_TR_NOOP("Normal"),
     {56, 1},
     &R::TimeoutM,
     &R::DelayM,
     &R::StepM,
     &R::AvgTimeM,
     Next::Level},
    {&SpeedLadder::SimpleDone,
     QT_TR_NOOP("Simple"),
     {70, 85},
     &R::TimeoutL,
     &R::DelayL,
     &R::StepL,
     &R::AvgTimeL,
     Next::End},
};

const SpeedLadder::Level& SpeedLadder::Present() const {
    if (!IntenseDone) return Levels[0];
    return NormalDone ? Levels[2] : Levels[1];
}

void SpeedLadder::StartLevel(float Now) {
    StartTime = Now;
    Delay = 100;
    Step = Largest;
}

bool SpeedLadder::SecondTransition() {
    if (Phase == 2) return false;
    Phase = 2;
    return true;
}

int SpeedLadder::EffectNumber() const {
    return Present().Effects[Phase - 1];
}

QString SpeedLadder::Title() const {
    return tr("Testing Graphics Performance - %1 Effects (%2)")
        .arg(tr(Present().Kind))
        .arg(Step == 35 ? 33 : Step);
}

// The clock runs from the start of the level: the time of a round holds those before it.
SpeedLadder::Verdict SpeedLadder::RoundOver(float Now) {
    EndTime = Now < StartTime ? Now + DayOfTimer : Now;
    AvgTime = (double{EndTime} - double{StartTime}) / 2;
    if (AvgTime > Limit) {
        const bool TooSlow = TakeBack();
        return {CloseLevel(), TooSlow};
    }
    if (Step == Smallest) return {CloseLevel(), false};
    PrevTime = AvgTime;
    Step = RungOf(Step)[1];
    return {Next::Round, false};
}

// Back to the last step that was in time; true when there was none.
bool SpeedLadder::TakeBack() {
    if (Step == Largest) {
        mResult.Timeout = AvgTime * 2;
        return true;
    }
    mResult.Timeout = TimeoutAfterRetreat;
    AvgTime = PrevTime;
    Step = RungOf(Step)[-1];
    return false;
}

SpeedLadder::Next SpeedLadder::CloseLevel() {
    const Level& Closed = Present();
    mResult.*Closed.Timeout = mResult.Timeout;
    mResult.*Closed.Delay = Delay;
    mResult.*Closed.Step = Step;
    mResult.*Closed.AvgTime = static_cast<float>(AvgTime);
    this->*Closed.Done = true;
    mResult.IsWhole = SimpleDone;
    return Closed.Then;
}

}  // namespace neb
