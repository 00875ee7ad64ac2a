// What the keys of a running show ask for. Used by ShowHands.
#pragma once

class QKeyEvent;

namespace neb {

// What somebody may ask of a running show, by a key, the menu, the mouse or a finger.
enum class ShowCommand {
    None,
    Next,
    Previous,
    First,
    Last,
    Space,  // pauses an automatic show, moves a manual one on
    PlayPause,
    Pause,
    StopRestart,
    Stop,
    Goto,
    Black,
    Captions,
    Card,
    Menu,
    Click,
    Leave,
};

// None for a key that the show does not know. A key counts by its letter and, where the letter says
// nothing, by its place: who has learned W, S, P, R, 8 and 2 finds them on a Cyrillic keyboard,
// too.
ShowCommand CommandOf(const QKeyEvent& Event);

}  // namespace neb
