// The four states of a running show: loaded, running, paused, stopped. The words that the menu
// offers next are the state; the projector carries out what a change of state asks for.
#pragma once

#include <QString>

namespace neb {

struct ShowState {
    QString PlayCommand;  // "" before the start, then "Pause", "Resume" or "Play"
    QString StopCommand;  // "" before the start, then "Stop" or "Resume"
};

enum class SoundCommand { None, Pause, Play, Stop };
// Of the clock of the slides: a pause holds it, and a slide keeps what is left of its time.
enum class ClockCommand { Hold, GoOn, Start };

// What a change of state does, in the order of the fields.
struct ShowTransition {
    SoundCommand Sound;
    const char* PlayCommand;  // the new word
    const char* StopCommand;  // the new word; null: stays
    bool ToStart;             // go to the resume point or to slide 1
    bool ShowsSlide;
    ClockCommand Clock;
    bool Timer1, Timer2;
};

// What the user's play command and stop command do in a state.
const ShowTransition& PlayPauseTransition(const ShowState& State);
const ShowTransition& StopRestartTransition(const ShowState& State);

bool IsPaused(const ShowState& State);
// The words of a running show: one of the user's steps sets a stopped show going, and leaves a
// paused one paused.
void EnterStep(ShowState& State);

// The new words; everything else is the projector's to do.
void EnterState(ShowState& State, const ShowTransition& Transition);

}  // namespace neb
