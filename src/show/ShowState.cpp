#include "show/ShowState.h"

namespace neb {
namespace {

constexpr ShowTransition ToPaused{
    SoundCommand::Pause, "Resume", "Stop", false, false, false, false, true};
constexpr ShowTransition Resumed{
    SoundCommand::Play, "Pause", nullptr, false, false, true, true, true};
constexpr ShowTransition StartedAnew{
    SoundCommand::None, "Pause", "Stop", true, true, true, true, true};
constexpr ShowTransition ToStopped{
    SoundCommand::Stop, "Play", "Resume", false, false, false, false, false};
constexpr ShowTransition ShownAgain{
    SoundCommand::Play, "Pause", "Stop", false, true, true, true, true};

}  // namespace

const ShowTransition& PlayPauseTransition(const ShowState& State) {
    if (State.PlayCommand == u"Pause") return ToPaused;
    return State.PlayCommand == u"Resume" ? Resumed : StartedAnew;
}

const ShowTransition& StopRestartTransition(const ShowState& State) {
    return State.StopCommand == u"Stop" ? ToStopped : ShownAgain;
}

void EnterState(ShowState& State, const ShowTransition& Transition) {
    State.PlayCommand = QString::fromLatin1(Transition.PlayCommand);
    if (Transition.StopCommand) State.StopCommand = QString::fromLatin1(Transition.StopCommand);
}

}  // namespace neb
