// What the sound of a show does at a slide: which file plays, whether a running track is left
// alone, moved or replaced, and how long a fitted slide stays up. Plain rules: they are given the
// state of the player and answer with what to do; ShowSound carries it out.
#pragma once

#include <functional>
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

struct SoundAction {
    enum class Kind { Tell, LoadFile, UnloadFile, SetPosition, Play };
    Kind What = Kind::Tell;
    QString Text;         // of the box, or the path
    double Position = 0;  // seconds
    bool Repeat = false;

    bool operator==(const SoundAction&) const = default;
};
using SoundActions = std::vector<SoundAction>;

// How a step goes on once the actions of a stage have been carried out; None: it is over.
enum class SoundSequel {
    None,
    MissingOverridingClip,
    OverridingClip,
    MissingTrack,
    NewTrack,    // loaded
    StartTrack,  // loaded and measured
    SameTrack,
    MissingClip,
    Clip,
    Silence,
};

// A part of a step in which nothing is asked of the player: a box lets other steps run, so what
// comes after one looks at the player anew.
struct SoundStage {
    SoundActions Actions;
    SoundSequel Sequel = SoundSequel::None;
    QString Path;                     // of the clip or the track
    clsNEBSlideShowSoundTrack Track;  // that covers the slide, where it counts
    bool WatchRepeat = false;         // CheckRepeat is wanted after the step
};

using FileTest = std::function<bool(const QString& Path)>;

// The first stage of a step: chooses clip or track, tells of a missing file, loads. DBPath ends in
// a separator. Sets FitToSong, FadeOnLast and TrackEndsHere of Fields where a track covers the
// slide; they are false before a step.
SoundStage OpenSoundStep(const SlideSound& Slide, const QString& DBPath, const PlayerState& Before,
                         const FileTest& Exists, ShowSoundFields& Fields);
// The stage that follows, with the player as the actions of Stage have left it: starts, moves,
// fits, saves. Before is the state that OpenSoundStep was given. Called until there is no Sequel.
SoundStage NextSoundStage(const SoundStage& Stage, const SlideSound& Slide,
                          const PlayerState& Before, const PlayerState& Now,
                          ShowSoundFields& Fields);

// Moves a fitted track to a place, counted from 1, of Interval seconds each; without Force only
// when it is more than a twentieth off.
SoundActions SyncSoundToSlide(std::int32_t Place, double Interval, bool Force, bool SoundRepeat,
                              const PlayerState& Now);

// The file that a slide's step will load or keep, empty for silence: for opening it ahead.
QString SoundPathOf(const SlideSound& Slide, const QString& DBPath);

}  // namespace neb
