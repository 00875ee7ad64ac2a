// What the sound of a show does at a slide: which file plays, whether a running track is left
// alone, moved or replaced, and how long a fitted slide stays up. Plain rules: they are given the
// state of the player and answer with what to do; EngineSound carries it out.
#pragma once

#include <variant>
#include <vector>

#include "db/clsNEBSlideShowSoundTrack.h"
#include "show/ShowSound.h"

namespace neb {

// The player, at the moment of asking.
struct PlayerState {
    bool IsPlaying = false;
    double CurrentPosition = 0;  // seconds
    double Duration = 0;         // seconds; 0 with no file
    QString SoundFile;
};

// What the player, or the user, is told; each with what it needs.
namespace SoundDo {
struct Tell {
    QString Text;
    bool operator==(const Tell&) const = default;
};
struct SetPosition {
    double Seconds = 0;
    bool operator==(const SetPosition&) const = default;
};
struct Play {
    bool Repeat = false;
    bool operator==(const Play&) const = default;
};
}  // namespace SoundDo

using SoundAction = std::variant<SoundDo::Tell, SoundDo::SetPosition, SoundDo::Play>;
using SoundActions = std::vector<SoundAction>;

struct SoundTurn;
using SoundSequel = SoundActions (*)(const SoundTurn& At);

// The first half of a step: which file is to be loaded, before anybody has looked whether it is
// there.
struct SoundOrder {
    enum class Kind {
        GoOn,    // what is loaded stays
        Load,    // the file, in place of what was loaded
        Unload,  // silence
    };
    Kind What = Kind::Unload;
    QString Path;                     // of the clip or the track
    clsNEBSlideShowSoundTrack Track;  // that covers the slide, where it counts
    bool WatchRepeat = false;         // CheckRepeat is wanted after the step
    // The second half: with the file, and without it, when it is missing and nothing is loaded.
    SoundSequel Then = nullptr;
    SoundSequel Without = nullptr;
};

// Running seconds that a sound has come too late: since the slide came up that is up now, and since
// the sound was wanted first. 0 for one that came in time.
struct SoundDelay {
    double OfSlide = 0, OfSound = 0;
};

// What the second half is worked out from.
struct SoundTurn {
    const SoundOrder& Order;
    const SlideSound& Slide;
    StepCause Cause;            // of the slide's coming up
    const PlayerState& Before;  // as OrderSound was given it
    const PlayerState& Now;     // as the order has left it
    ShowSoundFields& Fields;
    SoundDelay Late = {};
};

// Chooses clip or track. DBPath ends in a separator. Sets FitToSong, FadeOnLast and TrackEndsHere
// of Fields where a track covers the slide; they are false before a step.
SoundOrder OrderSound(const SlideSound& Slide, const QString& DBPath, const PlayerState& Before,
                      ShowSoundFields& Fields);

// Moves a fitted track to a place in the track, counted from 1, of Interval seconds each; without
// Force only when it is more than a twentieth off.
SoundActions SyncSoundToSlide(std::int32_t Place, double Interval, bool Force, bool SoundRepeat,
                              const PlayerState& Now);

// The file that a slide's step will load or keep, empty for silence: for opening it ahead.
QString SoundPathOf(const SlideSound& Slide, const QString& DBPath);

}  // namespace neb
