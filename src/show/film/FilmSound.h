// The sound of a film: what the player of a rehearsal is told, carried out at its very sample on
// the voices of a mixer. Used by FilmMaker, on any one thread.
#pragma once

#include <QMap>
#include <deque>
#include <memory>
#include <vector>

#include "films/FilmEncoder.h"
#include "show/film/FilmMakerWait.h"
#include "sound/devices/ClockedSound.h"
#include "sound/mixing/SoundMixer.h"

namespace neb {

class SoundShelf;

class FilmSound {
  public:
    // Takes pairs of samples, a tenth of a second of them at most.
    using Receiver = std::function<void(std::vector<float> Samples)>;

    explicit FilmSound(FilmMeanwhile Meanwhile);
    ~FilmSound();

    // For RehearsalOptions. LengthOf throws Fault, and what Meanwhile throws; Hear does not throw.
    double LengthOf(const QString& Path);
    void Hear(const SoundEvent& Event) { mToDo.push_back(Event); }
    // Gives the samples from where it was to this moment, in milliseconds from the start; what was
    // heard by then is carried out on the way.
    void MixUntil(double Ticks, const Receiver& Give);

    // Why files that were to be heard are not, by their paths.
    const QMap<QString, QString>& Failed() const { return mFailed; }

    // Of the samples, counted in pairs, the one that falls on a moment.
    static qint64 SampleAt(double Ticks);

  private:
    std::unique_ptr<SoundDecoder> Take(const QString& Path);
    void Mix(qint64 Until, const Receiver& Give);
    void CarryOut(const SoundEvent& Event);
    void Load(const SoundEvent& Event);
    void Run(const SoundEvent& Event);
    void Halt(const SoundEvent& Event);
    void Move(const SoundEvent& Event);
    void PutVolume(const SoundEvent& Event);
    void Release(const SoundEvent& Event);

    const FilmMeanwhile mMeanwhile;
    const std::shared_ptr<SoundShelf> mShelf;
    SoundMixer mMixer{SoundMixer::Feeding::ByCaller};
    std::shared_ptr<SoundVoice> mVoice;  // none where nothing is loaded
    std::deque<SoundEvent> mToDo;        // in the order of time
    QMap<QString, QString> mFailed;
    qint64 mMixed = 0;  // pairs
};

}  // namespace neb
