// What the sound of a show does at a slide: which file plays, whether a running track is left
// alone, moved or replaced, and how long a fitted slide stays up. Plain rules: they are given the
// state of the player and answer with what to do; ShowSound carries it out.
#pragma once

#include <functional>
#include <vector>

#include "presentation/ShowSound.h"

namespace neb {

class clsNEBSlideShowSoundTrack;

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

// What is left to do once the actions of the first half have been carried out.
enum class SoundSequel { None, Clip, OverridingClip, NewTrack, SameTrack };

struct SoundOpening {
    SoundActions Actions;
    SoundSequel Sequel = SoundSequel::None;
    QString Path;                                      // of the clip or the track
    const clsNEBSlideShowSoundTrack* Track = nullptr;  // that covers the slide, where it counts
    bool WatchRepeat = false;                          // CheckRepeat is wanted afterwards
};

using FileTest = std::function<bool(const QString& Path)>;

// The first half of the step: chooses clip or track, tells of a missing file, loads. DBPath ends in
// a separator. Sets FitToSong, FadeOnLast and TrackEndsHere of Fields.
SoundOpening OpenSoundStep(const SlideSound& Slide, const QString& DBPath,
                           const PlayerState& Before, const FileTest& Exists,
                           ShowSoundFields& Fields);
// The second half, with the player as the first half has left it: starts, moves, fits. Before is
// the state that the first half was given.
SoundActions CloseSoundStep(const SoundOpening& Opening, const SlideSound& Slide,
                            const PlayerState& Before, const PlayerState& Now,
                            ShowSoundFields& Fields);

// Moves a fitted track to a place, counted from 1, of Interval seconds each; without Force only
// when it is more than a twentieth off.
SoundActions SyncSoundToSlide(std::int32_t Place, double Interval, bool Force, bool SoundRepeat,
                              const PlayerState& Now);

// The file that a slide's step will load or keep, empty for silence: for opening it ahead.
QString SoundPathOf(const SlideSound& Slide, const QString& DBPath);

}  // namespace neb
