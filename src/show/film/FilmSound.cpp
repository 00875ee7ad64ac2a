#include "show/film/FilmSound.h"

#include <algorithm>
#include <cmath>

#include "sound/decoding/SoundFormat.h"
#include "sound/devices/SoundShelf.h"
#include "support/Fault.h"

namespace neb {
namespace {

static_assert(kMixRate == FilmSoundRate);

// The voices decode a second ahead of it.
constexpr qint64 MostAtOnce = kMixRate / 10;

}  // namespace

FilmSound::FilmSound(FilmMeanwhile Meanwhile)
    : mMeanwhile(std::move(Meanwhile)), mShelf(std::make_shared<SoundShelf>()) {}

FilmSound::~FilmSound() = default;

qint64 FilmSound::SampleAt(double Ticks) {
    return std::llround(Ticks * kMixRate / 1000);
}

std::unique_ptr<SoundDecoder> FilmSound::Take(const QString& Path) {
    Job<std::unique_ptr<SoundDecoder>> Opening(
        [Shelf = mShelf, Path](JobState&) { return Shelf->Take(Path); });
    try {
        return AwaitForFilm(Opening, mMeanwhile);
    } catch (const Fault& Problem) {
        mFailed[Path] = Problem.What();
        throw;
    }
}

double FilmSound::LengthOf(const QString& Path) {
    std::unique_ptr<SoundDecoder> Decoder = Take(Path);
    const double Seconds = static_cast<double>(Decoder->Frames()) / Decoder->Rate();
    mShelf->Put(Path, std::move(Decoder));
    return Seconds;
}

void FilmSound::MixUntil(double Ticks, const Receiver& Give) {
    while (!mToDo.empty() && mToDo.front().Ticks <= Ticks) {
        Mix(SampleAt(mToDo.front().Ticks), Give);
        CarryOut(mToDo.front());
        mToDo.pop_front();
    }
    Mix(SampleAt(Ticks), Give);
}

void FilmSound::Mix(qint64 Until, const Receiver& Give) {
    while (mMixed < Until) {
        const qint64 Pairs = std::min(MostAtOnce, Until - mMixed);
        std::vector<float> Samples(2 * static_cast<size_t>(Pairs));
        mMixer.Feed();
        mMixer.Fill(Samples.data(), static_cast<int>(Pairs));
        mMixed += Pairs;
        Give(std::move(Samples));
    }
}

void FilmSound::CarryOut(const SoundEvent& Event) {
    using Kind = SoundEvent::Kind;
    static constexpr std::pair<Kind, void (FilmSound::*)(const SoundEvent&)> Acts[] = {
        {Kind::Loaded, &FilmSound::Load},     {Kind::Run, &FilmSound::Run},
        {Kind::Paused, &FilmSound::Halt},     {Kind::Stopped, &FilmSound::Halt},
        {Kind::Moved, &FilmSound::Move},      {Kind::Volume, &FilmSound::PutVolume},
        {Kind::Released, &FilmSound::Release}};
    if (Event.What == Kind::LoadedAhead) return mShelf->Prepare(Event.Path);
    if (!mVoice && Event.What != Kind::Loaded) return;  // it could not be opened: silence
    for (const auto& [What, Act] : Acts)
        if (What == Event.What) (this->*Act)(Event);
}

void FilmSound::Load(const SoundEvent& Event) {
    const auto Return = [Shelf = mShelf, Path = Event.Path](std::unique_ptr<SoundDecoder> Used) {
        Shelf->Put(Path, std::move(Used));
    };
    try {
        mVoice = std::make_shared<SoundVoice>(Take(Event.Path), Event.Hundredths, Return);
        mMixer.Add(mVoice);
    } catch (const Fault&) {  // noted
    }
}

void FilmSound::Run(const SoundEvent& Event) {
    mVoice->PutRepeat(Event.Repeats);
    mVoice->Run();
}

void FilmSound::Halt(const SoundEvent&) {
    mVoice->Halt();
}

void FilmSound::Move(const SoundEvent& Event) {
    mVoice->PutPosition(Event.Position);
}

void FilmSound::PutVolume(const SoundEvent& Event) {
    mVoice->PutVolume(Event.Hundredths);
}

void FilmSound::Release(const SoundEvent&) {
    mVoice->Release();
    mVoice.reset();
}

}  // namespace neb
