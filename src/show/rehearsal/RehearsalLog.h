// What a rehearsal of a show has written down: which slide was up when, what its sound did, and the
// boxes that would have come up. Plain values; times are seconds from the start of the rehearsal.
#pragma once

#include <QString>
#include <cstdint>
#include <vector>

namespace neb {

// How the sound stands once a slide has come up.
enum class CueSoundKind {
    Silent,    // no file
    Starts,    // from its beginning
    Resumes,   // loaded again and taken up at Position
    Moves,     // the file that played before, at another place
    GoesOn,    // the file that played before, undisturbed
    Over,      // the file that played before has come to its end
    Unplayed,  // a file that is missing or cannot be played
};

struct CueSound {
    CueSoundKind Kind = CueSoundKind::Silent;
    QString File;         // path; empty when silent
    double Position = 0;  // seconds, as the slide comes up
    double Duration = 0;  // seconds of the whole file
    int Volume = 100;     // 0 to 100, as the slide comes up
    int EndVolume = 100;  // the same when it goes: less at a fade
    int Loops = 0;        // how often it began anew during the slide
    double EndsAt = -1;   // when it came to its end during the slide; below 0: it did not

    bool operator==(const CueSound&) const = default;
};

// A slide that has come up.
struct RehearsalCue {
    double At = 0;
    double Seconds = 0;         // how long it has been up so far
    std::int32_t SlideSeq = 0;  // its place in the show
    std::int32_t SlideID = 0;
    QString Caption;           // as a viewer reads it
    QString Picture;           // path of what is on the screen: the stand-in for a missing picture
    int EffectNumber = 0;      // 0: a plain change
    int EffectDelay = 0;       // tenths of a millisecond from step to step
    int EffectStep = 100;      // percent a step
    double EffectSeconds = 0;  // from the old picture to the new one
    double SlideInterval = 0;  // seconds that it may stay up
    bool FitToSong = false;    // its track sets them
    CueSound Sound;

    bool operator==(const RehearsalCue&) const = default;
};

enum class RehearsalSoundKind {
    Loaded,    // at its beginning, not playing
    Failed,    // could not be loaded: there is no sound
    Released,  // there is no sound any more
    Playing,   // from Position
    Paused,
    Stopped,
    Moved,  // to Position
    Ended,  // has come to its end
    Volume,
};

// What the sound device was told, or what it came to by itself.
struct RehearsalSoundEvent {
    double At = 0;
    RehearsalSoundKind Kind = RehearsalSoundKind::Released;
    QString File;         // path
    double Position = 0;  // seconds in the file
    double Duration = 0;  // seconds of the whole file
    int Volume = 100;     // 0 to 100

    bool operator==(const RehearsalSoundEvent&) const = default;
};

enum class RehearsalBoxFrom {
    Run,    // the show itself, which stops
    Sound,  // the sound of a slide
    Fault,  // something that nobody caught
};

// A box that would have come up; it waits for nobody here.
struct RehearsalBox {
    double At = 0;
    std::int32_t SlideSeq = 0;  // the slide that was on its way, or up
    QString Text;
    RehearsalBoxFrom From = RehearsalBoxFrom::Run;

    bool operator==(const RehearsalBox&) const = default;
};

struct RehearsalLog {
    std::vector<RehearsalCue> Cues;
    std::vector<RehearsalSoundEvent> SoundEvents;
    std::vector<RehearsalBox> Boxes;
};

}  // namespace neb
