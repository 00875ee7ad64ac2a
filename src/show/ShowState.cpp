#include "show/ShowState.h"

namespace neb {
namespace {

using Clock = ClockCommand;

constexpr ShowTransition ToPaused{SoundCommand::Pause, "Resume", "Stop", false, false,
                                  Clock::Hold,         false,    true};
constexpr ShowTransition Resumed{SoundCommand::Play, "Pause", nullptr, false, false,
                                 Clock::GoOn,        true,    true};
constexpr ShowTransition StartedAnew{SoundCommand::None, "Pause", "Stop", true, true,
                                     Clock::Start,       true,    true};
constexpr ShowTransition ToStopped{SoundCommand::Stop, "Play", "Resume", false, false,
                                   Clock::Hold,        false,  false};
constexpr ShowTransition ShownAgain{SoundCommand::Play, "Pause", "Stop", false, true,
                                    Clock::Start,       true,    true};

}  // namespace

const ShowTransition& PlayPauseTransition(const ShowState& State) {
    if (State.PlayCommand == u"Pause") return ToPaused;
    return IsPaused(State) ? Resumed : StartedAnew;
}

const ShowTransition& StopRestartTransition(const ShowState& State) {
    return State.StopCommand == u"Stop" ? ToStopped : ShownAgain;
}

bool IsPaused(const ShowState& State) {
    return State.PlayCommand == u"Resume";
}

void EnterStep(ShowState& State) {
    if (!IsPaused(State)) State = {QStringLiteral("Pause"), QStringLiteral("Stop")};
}

void EnterState(ShowState& State, const ShowTransition& Transition) {
    State.PlayCommand = QString::fromLatin1(Transition.PlayCommand);
    if (Transition.StopCommand) State.StopCommand = QString::fromLatin1(Transition.StopCommand);
}

}  // namespace neb
