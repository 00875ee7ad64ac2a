// What the sound of a show does at a slide: which file plays, whether a running track is left
// alone, moved or replaced, and how long a fitted slide stays up. Plain rules: they are given the
// state of the player and answer with what to do; EngineSound carries it out.
#pragma once

#include <functional>
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
struct LoadFile {
    QString Path;
    bool operator==(const LoadFile&) const = default;
};
struct UnloadFile {
    bool operator==(const UnloadFile&) const = default;
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

using SoundAction = std::variant<SoundDo::Tell, SoundDo::LoadFile, SoundDo::UnloadFile,
                                 SoundDo::SetPosition, SoundDo::Play>;
using SoundActions = std::vector<SoundAction>;

struct SoundTurn;

// A part of a step in which nothing is asked of the player: a box lets time pass, so what comes
// after one looks at the player anew.
struct SoundStage {
    SoundActions Actions;
    // How the step goes on once they have been carried out; null: it is over.
    SoundStage (*Next)(const SoundTurn& At) = nullptr;
    QString Path;                     // of the clip or the track
    clsNEBSlideShowSoundTrack Track;  // that covers the slide, where it counts
    bool WatchRepeat = false;         // CheckRepeat is wanted after the step
};

// What the stage that follows is worked out from.
struct SoundTurn {
    const SoundStage& Stage;
    const SlideSound& Slide;
    StepCause Cause;            // of the slide's coming up
    const PlayerState& Before;  // as OpenSoundStep was given it
    const PlayerState& Now;     // as the actions of Stage have left it
    ShowSoundFields& Fields;
};

using FileTest = std::function<bool(const QString& Path)>;

// The first stage of a step: chooses clip or track, tells of a missing file, loads; those that
// follow start, move, fit and save. DBPath ends in a separator. Sets FitToSong, FadeOnLast and
// TrackEndsHere of Fields where a track covers the slide; they are false before a step.
SoundStage OpenSoundStep(const SlideSound& Slide, const QString& DBPath, const PlayerState& Before,
                         const FileTest& Exists, ShowSoundFields& Fields);

// Moves a fitted track to a place, counted from 1, of Interval seconds each; without Force only
// when it is more than a twentieth off.
SoundActions SyncSoundToSlide(std::int32_t Place, double Interval, bool Force, bool SoundRepeat,
                              const PlayerState& Now);

// The file that a slide's step will load or keep, empty for silence: for opening it ahead.
QString SoundPathOf(const SlideSound& Slide, const QString& DBPath);

}  // namespace neb
