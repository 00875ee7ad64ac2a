// A show of sound tracks and a player that only keeps book, for tests of the sound's rules: a step
// is carried out on the player, and told as one line.
#pragma once

#include <gtest/gtest.h>

#include <QMap>
#include <QStringList>

#include "db/clsNEBSlideShow.h"
#include "show/SoundSteps.h"

namespace neb::test {

// The slide's own sound.
struct ClipOf {
    QString Name;
    bool Override = false;
    bool Repeat = false;
};

class SoundStepsRig : public ::testing::Test {
  protected:
    static constexpr double Timeout = 12;  // seconds that an unfitted slide stays up

    // Name is a file of that many seconds: 0 cannot be played, below 0 is missing.
    void AddTrack(const QString& Name, std::int32_t First, std::int32_t Last, double Seconds = 100,
                  bool Repeat = false, bool FitToSong = false, bool Fade = false) {
        Show.SaveSoundTrack(static_cast<std::int32_t>(Show.SoundTracks.size()) + 1, Name, First,
                            Last, Repeat, FitToSong, Fade);
        AddFile(QStringLiteral("SoundTracks/") + Name, Seconds);
    }
    void AddClip(const QString& Name, double Seconds = 5) {
        AddFile(QStringLiteral("Slides/") + Name, Seconds);
    }
    clsNEBSlideShowSoundTrack& Track(size_t Number = 1) { return *Show.SoundTracks[Number - 1]; }
    static QString Full(const QString& Name) { return QStringLiteral("/db/Albums/7/") + Name; }

    static std::string Line(std::initializer_list<const char*> Parts) {
        QStringList All;
        for (const char* Part : Parts) All << QString::fromLatin1(Part);
        return All.join(u'|').toStdString();
    }

    // A step of the show: what was done, and the word "watch" when CheckRepeat is wanted.
    std::string Step(std::int32_t SlideSeq, const ClipOf& Clip = {},
                     StepCause Cause = StepCause::Timer) {
        Fields.FitToSong = Fields.FadeOnLast = Fields.TrackEndsHere = false;
        Fields.SlideInterval = Timeout;
        const SlideSound Slide{7, &Show, SlideSeq, Clip.Name, Clip.Override, Clip.Repeat};
        const PlayerState Before = Player;
        mDone.clear();
        const SoundOrder Order = OrderSound(Slide, QStringLiteral("/db/"), Before, Fields);
        const SoundSequel Sequel = Obey(Order);
        const PlayerState Now = Player;
        CarryOut(Sequel({Order, Slide, Cause, Before, Now, Fields, Late}));
        if (Order.WatchRepeat) mDone << QStringLiteral("watch");
        return mDone.join(u'|').toStdString();
    }
    // The sound has gone on meanwhile.
    void StandAt(double Seconds, bool Playing = true) {
        Player.CurrentPosition = Seconds;
        Player.IsPlaying = Playing;
    }
    std::string Saved() const {
        return QStringLiteral("%1 %2 %3 clip %4")
            .arg(Fields.SavedSoundPos)
            .arg(Fields.SavedSoundSeq)
            .arg(Short(Fields.SavedSoundFile))
            .arg(Fields.LastClipSeq)
            .toStdString();
    }

    clsNEBSlideShow Show;
    ShowSoundFields Fields;
    PlayerState Player;
    QMap<QString, double> Files;
    SoundDelay Late;  // of the next file

  private:
    void AddFile(const QString& Name, double Seconds) {
        if (Seconds >= 0) Files[Full(Name)] = Seconds;
    }
    static QString Short(QString Path) { return Path.remove(QStringLiteral("/db/Albums/7/")); }

    void CarryOut(const SoundActions& Actions) {
        for (const SoundAction& Each : Actions)
            std::visit([this](const auto& This) { Do(This); }, Each);
    }
    // What follows once the player has done so.
    SoundSequel Obey(const SoundOrder& Order) {
        if (Order.What == SoundOrder::Kind::GoOn) return Order.Then;
        if (Order.What == SoundOrder::Kind::Unload) {
            mDone << QStringLiteral("unload");
            Player = {};
            return Order.Then;
        }
        mDone << QStringLiteral("load ") + Short(Order.Path);
        Player = {false, 0, Files.value(Order.Path), Order.Path};
        return Files.contains(Order.Path) ? Order.Then : Order.Without;
    }
    void Do(const SoundDo::Tell& This) { mDone << This.Text; }
    void Do(const SoundDo::SetPosition& This) {
        mDone << QStringLiteral("to %1").arg(This.Seconds);
        if (Player.Duration > 0) Player.CurrentPosition = This.Seconds;
    }
    void Do(const SoundDo::Play& This) {
        mDone << (This.Repeat ? QStringLiteral("play again and again") : QStringLiteral("play"));
        if (Player.Duration > 0) Player.IsPlaying = true;
    }

    QStringList mDone;
};

}  // namespace neb::test
