// Whole shows on a clock that jumps, told as lines: what sounded when, and which slide was up.
// Loaded is at the beginning and not playing; "25.5 move a@30" is the device's own word.
#pragma once

#include <QMap>
#include <cmath>

#include "RehearsalRig.h"
#include "support/modFUFL.h"

namespace neb::test {

inline const QMap<RehearsalSoundKind, QString> SoundWords = {
    {RehearsalSoundKind::Loaded, "load"},   {RehearsalSoundKind::Failed, "fail"},
    {RehearsalSoundKind::Released, "free"}, {RehearsalSoundKind::Playing, "play"},
    {RehearsalSoundKind::Paused, "pause"},  {RehearsalSoundKind::Stopped, "stop"},
    {RehearsalSoundKind::Moved, "move"},    {RehearsalSoundKind::Ended, "end"},
    {RehearsalSoundKind::Volume, "volume"}};

class SimulationRig : public RehearsalRig {
  protected:
    // Lengths in seconds of the files that there are.
    void AddTrack(const QString& Name, double Seconds, int First, int Last, bool Fit = false,
                  bool Repeat = false, bool Fade = false) {
        MakeSound(SoundTracksFolder(Engine.DBPath(), Album) + Name, Seconds);
        SlideShow->SaveSoundTrack(static_cast<std::int32_t>(SlideShow->SoundTracks.size()) + 1,
                                  Name, First, Last, Repeat, Fit, Fade);
    }
    void AddClip(int Place, const QString& Name, double Seconds, bool Override,
                 bool Repeat = false) {
        MakeSound(SlidesFolder(Engine.DBPath(), Album) + Name, Seconds);
        Slide(Place).SoundTrackLoc = Name;
        Slide(Place).Override = Override;
        Slide(Place).Repeat = Repeat;
    }
    void MakeSound(const QString& Path, double Seconds) {
        WriteFile(Path, "sound");
        mLengths[GetFileBaseName(Path)] = Seconds;
    }
    RehearsalOptions Options() {
        RehearsalOptions Chosen;
        Chosen.LengthOfSound = [this](const QString& Path) {
            return mLengths.value(GetFileBaseName(Path));
        };
        return Chosen;
    }
    // "0 load a|0 play a@0|15 end a@15": all but the volumes.
    static std::string Heard(const Rehearsal& Of) {
        QStringList Log;
        for (const RehearsalSoundEvent& Event : Of.SoundEvents()) {
            if (Event.Kind == RehearsalSoundKind::Volume) continue;
            QString Text = u"%1 %2"_s.arg(Event.At).arg(SoundWords[Event.Kind]);
            if (Event.Kind != RehearsalSoundKind::Released)
                Text += u' ' + GetFileBaseName(Event.File);
            if (Event.Kind != RehearsalSoundKind::Released &&
                Event.Kind != RehearsalSoundKind::Loaded)
                Text += u"@%1"_s.arg(std::round(Event.Position * 1000) / 1000);
            Log << Text;
        }
        return Log.join(u'|').toStdString();
    }
    // The show from its start for so many seconds.
    std::string HeardFor(double Seconds) {
        Rehearsal Of(Engine, Album, Show, Options());
        Of.Start();
        Of.RunFor(Seconds);
        return Heard(Of);
    }
    static std::string Places(const Rehearsal& Of) {
        QStringList Shown;
        for (const RehearsalCue& Cue : Of.Cues()) Shown << u"%1@%2"_s.arg(Cue.SlideSeq).arg(Cue.At);
        return Shown.join(u' ').toStdString();
    }

    QHash<QString, double> mLengths;
};

}  // namespace neb::test
