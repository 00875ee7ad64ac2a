// Runs a show without a screen and without waiting: the projector's own run of a show, on a clock
// that jumps from tick to tick and on sound devices that are silent. Writes down what came up when.
// Used by nebctl rehearse, the window of the rehearsal and tests of whole shows. Nothing on the
// disk is changed.
#pragma once

#include <array>
#include <functional>
#include <memory>

#include "show/ShowRun.h"
#include "show/rehearsal/RehearsalSound.h"

namespace neb {

// Whether the first bytes of a file are those of a picture; damage behind them is not seen.
bool BeginsLikePicture(const QString& Path);
// Seconds of a sound file. Throws Fault for what cannot be played.
double LengthOfSoundFile(const QString& Path);

// How the rehearsal looks at the files of the show; it asks only for those that are there.
struct RehearsalOptions {
    std::function<bool(const QString& Path)> CanReadPicture = BeginsLikePicture;
    std::function<double(const QString& Path)> LengthOfSound = LengthOfSoundFile;  // throws Fault
    // Asked all the while with the slide that is up (0: none yet); false ends a whole run.
    std::function<bool(std::int32_t SlideSeq)> GoesOn = {};
    // The part of the show that a whole run is about: from the place First, as if it were begun
    // there, up to and with Last; 0: to its end.
    std::int32_t First = 1, Last = 0;
    // Told at the very time of the clock, in the midst of the show's steps: that a slide of a whole
    // run has come up, and what the player is told. The latter may not throw.
    std::function<void(const RehearsalCue& Cue)> OnSlide = {};
    std::function<void(const SoundEvent& Event)> OnSound = {};

    bool IsWanted(std::int32_t SlideSeq) const {
        return (First <= 1 || SlideSeq >= First) && (Last == 0 || SlideSeq <= Last);
    }
};

enum class RehearsalEnd {
    CameRound,  // every place that the show comes to was up once, and its time is over
    Stopped,    // the show has stopped by itself: a slide could not be shown
    TooLong,    // given up after LongestRehearsal
    GivenUp,    // somebody did not want to wait for it
};
constexpr double LongestRehearsal = 7 * 86400;  // seconds

// It lives in a world of its own: what the program shows and plays meanwhile is not touched.
class Rehearsal : private ShowStage {
  public:
    Rehearsal(clsDBEngine& Engine, std::int32_t AlbumID, std::int32_t SlideShowID,
              RehearsalOptions Options = {});
    ~Rehearsal() override;
    Rehearsal(const Rehearsal&) = delete;
    Rehearsal& operator=(const Rehearsal&) = delete;

    // The first slide comes up, as when the projector's window opens.
    void Start();
    // Lets the time pass, with all ticks that fall into it, those at its very end included.
    void RunFor(double Seconds) { RunUntil(Now() + Seconds); }
    void RunUntil(double Seconds);  // from the start
    // In place of all these: the whole show, or the part of it that the options name. In a manual
    // one the next slide is asked for when a slide's time is over.
    RehearsalEnd RunWhole();
    // For the user's steps between the runs.
    ShowRun& Run() { return mRun; }

    double SlideTimeout() const { return mMemory.SlideTimeout; }  // seconds, as the settings say
    double Now() const { return mClock.Seconds(); }               // since the start
    bool Timer1On() const { return mTimers[0].On; }
    bool Timer2On() const { return mTimers[1].On; }
    const RehearsalLog& Log() const { return mLog; }
    const std::vector<RehearsalCue>& Cues() const { return mLog.Cues; }
    const std::vector<RehearsalSoundEvent>& SoundEvents() const { return mLog.SoundEvents; }
    const std::vector<RehearsalBox>& Boxes() const { return mLog.Boxes; }

  private:
    struct Ticking {
        qint64 Period;  // milliseconds; 0: once
        void (ShowRun::*Tick)();
        bool On = false;
        qint64 Due = 0;
        int Started = 0;  // the order of starting settles what falls due at once
    };
    class SoundSteps;

    void ShowCaption(const QString& Text) override { mNext.Caption = Text; }
    bool ShowPicture(const QString& Path, const EffectChoice& Choice) override;
    void Prefetch(const QString&) override {}
    void SetTimer1(bool On) override { SetTimer(mTimers[0], On); }
    void SetTimer2(bool On) override { SetTimer(mTimers[1], On); }
    void TickAfter(int Milliseconds) override;
    void Tell(const QString& Message) override { NoteBox(RehearsalBoxFrom::Run, Message); }

    void SetTimer(Ticking& Timer, bool On);
    Ticking* NextTimer();
    void Fire(Ticking& Timer);
    void AdvanceTo(qint64 Milliseconds);
    void TakeStep(const std::function<void()>& Step);
    RehearsalEnd RunRound();
    bool GoesOn() const;
    qint64 NextPress() const;
    bool IsRoundOver(std::int32_t SlideSeq) const;
    bool SlideComesUp(const SlideSound& Slide);
    void SlideIsUp(const SlideSound& Slide, const ShowSoundFields& Fields);
    void NoteBox(RehearsalBoxFrom From, const QString& Text);
    std::int32_t PlaceOnItsWay() const;

    const RehearsalOptions mOptions;
    RehearsalClock mClock;
    RehearsalLog mLog;
    RehearsalSound mSound;
    ShowMemory mMemory;
    std::array<Ticking, 3> mTimers{{{100, &ShowRun::Timer1_Timer},
                                    {1000, &ShowRun::Timer2_Timer},
                                    {0, &ShowRun::Timer1_Timer}}};
    int mStarts = 0;
    RehearsalCue mNext;    // the slide that is on its way
    qint64 mCueBegan = 0;  // milliseconds, of the slide that is up
    int mEffectDelay = 0, mEffectStep = 100;
    qint64 mPressed = 0;  // milliseconds, when the next slide was asked for
    bool mOneRound = false, mRoundIsOver = false;
    clsDBEngine& mEngine;
    ShowRun mRun;
};

}  // namespace neb
