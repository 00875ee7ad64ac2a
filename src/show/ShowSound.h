// What a running show asks of its sound, and the fields of the show that the sound step reads and
// writes. The projector calls it at every change of state, every slide and every tick.
#pragma once

#include <QString>
#include <cstdint>
#include <functional>
#include <memory>

namespace neb {

class clsNEBSlideShow;

// Fields of the projector, as far as sound has a say in them.
struct ShowSoundFields {
    double SlideInterval = 20;  // seconds that the running slide stays up
    bool FitToSong = false;     // the running track sets SlideInterval
    bool FadeOnLast = false;
    bool TrackEndsHere = false;  // the running slide is the track's last
    bool SoundRepeat = false;    // the repeat flag of what was last started
    QString CurrentSoundFile;    // path last loaded with success
    // Where a track stood when the first of a run of overriding clips took its place.
    double SavedSoundPos = 0;        // seconds; 0 for none
    std::int32_t SavedSoundSeq = 0;  // SlideSeq of that slide; 0 for none
    QString SavedSoundFile;          // the track's file
    std::int32_t LastClipSeq = 0;    // SlideSeq of the last overriding clip; 0 for none
};

// Why a slide comes up.
enum class StepCause {
    Start,    // the show begins, at its first slide or where it was left
    User,     // one of the user's four steps
    Timer,    // the slide before it had its time
    Restart,  // the slide of a stopped show once more
};

// Whether a fitted track that plays on is to be moved to the slide.
constexpr bool Repositions(StepCause Cause) {
    return Cause == StepCause::Start || Cause == StepCause::User;
}

// The slide that has just come up.
struct SlideSound {
    std::int32_t AlbumID = 0;
    const clsNEBSlideShow* SlideShow = nullptr;  // its sound tracks, in stored order
    std::int32_t SlideSeq = 0;                   // the place in the show, from 1
    QString SoundTrackLoc;                       // the slide's own clip; empty: none
    bool Override = false;                       // of the clip
    bool Repeat = false;                         // of the clip
};

class ShowSound {
  public:
    virtual ~ShowSound() = default;
    virtual void Play(bool Repeat) = 0;  // from where it stands
    virtual void PauseSound() = 0;
    virtual void StopSound() = 0;           // and back to the start
    virtual void SetVolume(int Value) = 0;  // 0 to 100
    virtual void CheckRepeat() = 0;         // once a second
    // The last stage of showing a slide. In a pause the sound is made ready, at its place, and Play
    // lets it be heard. A file that takes its time is taken up later. True: CheckRepeat is wanted
    // again.
    virtual bool SoundStep(const SlideSound& Slide, StepCause Cause, ShowSoundFields& Fields) = 0;
    // Ten times a second: a sound that has come late begins where it would be by now; Elapsed is
    // how long the slide has been up, in seconds. True when one has come.
    virtual bool TakeLate(double /*Elapsed*/, ShowSoundFields&) { return false; }
    // Opens the sound of the slide that comes next in the background.
    virtual void LoadAhead(const SlideSound&) {}
    // The end of the show: stops and unloads. Nothing sounds afterwards; every later call does
    // nothing.
    virtual void Release() {}
};

// A show without sound: no file is ever loaded.
class SilentShowSound : public ShowSound {
  public:
    void Play(bool) override {}
    void PauseSound() override {}
    void StopSound() override {}
    void SetVolume(int) override {}
    void CheckRepeat() override {}
    bool SoundStep(const SlideSound&, StepCause, ShowSoundFields&) override { return false; }
};

// Says something to whoever watches the show, and returns at once.
using ShowTeller = std::function<void(const QString& Message)>;

// How each run of a show comes by its sound.
using ShowSoundMaker = std::function<std::unique_ptr<ShowSound>(const ShowTeller& Tell)>;

}  // namespace neb
