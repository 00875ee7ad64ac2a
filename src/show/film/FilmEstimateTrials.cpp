#include "show/film/FilmEstimateTrials.h"

#include <algorithm>
#include <cmath>

#include "effects/EffectSteps.h"
#include "pictures/ImgX.h"
#include "show/film/FilmWriter.h"
#include "sound/workers/SoundReading.h"
#include "support/Fault.h"

namespace neb {
namespace {

// How the encoders spend their bytes on pictures.
struct SpendingRow {
    FilmFormat Format;
    double GroupSeconds;  // so often a frame is written in full; 0: each is
    int Settling;         // frames until a still picture is as fine as it will be
    int MostMoving;       // frames of a transition, for a trial
    int MostTransitions;
};
constexpr SpendingRow Spending[] = {
    {FilmFormat::Mp4, 3, 15, 40, 14},
    {FilmFormat::WebM, 3, 30, 24, 8},
    {FilmFormat::Lossless, 0, 1, 3, 12},
};

const SpendingRow& SpendingOf(FilmFormat Format) {
    return *std::ranges::find(Spending, Format, &SpendingRow::Format);
}

constexpr QSize MostKeepingSize(1920, 1080);
constexpr double MovingPixels = 640 * 360;
constexpr int SoundSize = 32;  // pixels, of the frames beside the sound
constexpr double SoundSeconds = 5;
constexpr double FrameInContainer = 45;  // bytes of a frame that shows nothing new

// The middle of it, of even sides.
QImage Middle(const QImage& Frame, QSize Most) {
    const QSize Size = Frame.size().boundedTo(Most);
    const QPoint From((Frame.width() - Size.width()) / 2, (Frame.height() - Size.height()) / 2);
    return Size == Frame.size() ? Frame : Frame.copy(QRect(From, Size));
}

// Of the same shape with even sides, and so few pixels that a trial of it is quick.
QSize SmallerFilm(QSize Film) {
    const double Scale =
        std::sqrt(MovingPixels / (static_cast<double>(Film.width()) * Film.height()));
    if (Scale >= 1) return Film;
    const auto Even = [&](int Side) { return 2 * std::max(1, static_cast<int>(Side * Scale / 2)); };
    return {Even(Film.width()), Even(Film.height())};
}

QImage PictureFor(QSize Film, const QString& Path) {
    try {
        ImgX Picture;
        Picture.LoadAtLeast(Path, Film);
        return Picture.Picture();
    } catch (const Fault&) {
        return {};
    }
}

FilmSlide SlideOf(const RehearsalCue& Cue, QSize Film) {
    FilmSlide Slide;
    Slide.Picture = PictureFor(Film, Cue.Picture);
    Slide.Caption = Cue.Caption;
    Slide.EffectNumber = Cue.EffectNumber;
    Slide.EffectDelay = Cue.EffectDelay;
    Slide.EffectStep = Cue.EffectStep;
    return Slide;
}

// Pairs of samples; as many as there are, and then silence.
std::vector<float> SamplesOf(const RehearsalCue& Cue, qint64 Frames) {
    std::vector<float> Pairs(static_cast<size_t>(2 * Frames), 0.F);
    try {
        const auto Sound = OpenSound(Cue.Sound.File);
        const int Channels = Sound->Channels();
        std::vector<float> Read(static_cast<size_t>(Channels * Frames));
        Sound->Seek(static_cast<qint64>(Cue.Sound.Position * Sound->Rate()));
        const qint64 Got = Sound->Read(Read.data(), Frames);
        const float Volume = static_cast<float>(Cue.Sound.Volume) / 100;
        for (qint64 I = 0; I < 2 * Got; ++I)
            Pairs[static_cast<size_t>(I)] =
                Volume * Read[static_cast<size_t>(I / 2 * Channels + I % 2 % Channels)];
    } catch (const Fault&) {
        Pairs.assign(Pairs.size(), 0.F);
    }
    return Pairs;
}

}  // namespace

int MovingFrames(const RehearsalCue& Cue, int Rate) {
    if (EffectStepCount(std::clamp(Cue.EffectStep, 1, 100)) < 2) return 0;
    return static_cast<int>(std::min(Cue.EffectSeconds, Cue.Seconds) * Rate);
}

FilmTrials::FilmTrials(const FilmOrder& Order) : mOrder(Order) {}

FilmSetup FilmTrials::SetupFor(QSize Size) const {
    FilmSetup Setup;
    Setup.Format = mOrder.Format;
    Setup.Width = Size.width();
    Setup.Height = Size.height();
    Setup.Rate = mOrder.Rate;
    Setup.Quality = mOrder.Quality;
    Setup.Threads = mOrder.Threads;
    return Setup;
}

qint64 FilmTrials::Empty(const FilmSetup& Setup) const {
    FilmWriter Writer(Setup);
    Writer.Finish();
    return Writer.BytesWritten();
}

double FilmTrials::Bytes(const std::vector<Run>& Frames) const {
    const FilmSetup Setup = SetupFor(Frames.front().Frame.size());
    FilmWriter Writer(Setup);
    for (const Run& Each : Frames) Writer.AddFrame(Each.Frame, Each.Count);
    Writer.Finish();
    return static_cast<double>(Writer.BytesWritten() - EmptyOf(Setup));
}

// Opening an encoder for large frames takes its time.
qint64 FilmTrials::EmptyOf(const FilmSetup& Setup) const {
    const auto Known = mEmpty.try_emplace({Setup.Width, Setup.Height}, -1).first;
    if (Known->second < 0) Known->second = Empty(Setup);
    return Known->second;
}

int FilmTrials::Group() const {
    const double Seconds = SpendingOf(mOrder.Format).GroupSeconds;
    return std::max(1, static_cast<int>(std::lround(Seconds * mOrder.Rate)));
}

QImage FilmTrials::StillOf(const FilmSlide& Slide, QSize Size) const {
    FilmStage Stage(Size, mOrder.CaptionsInPicture);
    Stage.ShowSlide(Slide);
    return Stage.FrameAt(Stage.StillFrom());
}

QImage FilmTrials::Still(const RehearsalCue& Cue) const {
    return StillOf(SlideOf(Cue, mOrder.Size), mOrder.Size);
}

double FilmTrials::Arrival(const QImage& Frame) const {
    return Bytes({{Frame, SpendingOf(mOrder.Format).Settling}});
}

// One that settles at once is written anew as it was.
FilmTrials::Keeping FilmTrials::KeepingOf(const QImage& Frame) const {
    const int Settling = SpendingOf(mOrder.Format).Settling;
    if (Group() == 1) return {1, 0};
    if (Settling == 1) return {1, FrameInContainer};
    const QImage Part = Middle(Frame, MostKeepingSize);
    const double Settled = Bytes({{Part, Settling}}), Kept = Bytes({{Part, Group()}});
    const double Renewed = Bytes({{Part, Group() + Settling}}) - Kept;
    return {Renewed / Settled, std::max(0.0, (Kept - Settled) / (Group() - Settling))};
}

// The last frames of the transition, as many as a trial has time for, behind the first of
// them as a still.
std::vector<FilmTrials::Run> FilmTrials::FramesOf(const FilmSlide& Old, const FilmSlide& New,
                                                  int All) const {
    FilmStage Stage(SmallerFilm(mOrder.Size), mOrder.CaptionsInPicture);
    Stage.ShowSlide(Old);
    FilmSlide Coming = New;
    Coming.At = std::ceil(Stage.StillFrom()) + 1;
    Stage.ShowSlide(Coming);
    const int Most = std::min(All, SpendingOf(mOrder.Format).MostMoving);
    const int Apart = Group() == 1 ? std::max(1, All / (Most + 1)) : 1;
    const int From = All - Most * Apart;
    std::vector<Run> Frames;
    for (int I = 0; I <= Most; ++I) {
        const double At = Coming.At + static_cast<double>(From + I * Apart) / mOrder.Rate;
        Frames.push_back({Stage.FrameAt(At), 1});
    }
    Frames.front().Count = SpendingOf(mOrder.Format).Settling;
    return Frames;
}

FilmTrials::Moved FilmTrials::Moving(const RehearsalCue& Old, const RehearsalCue& New) const {
    const QSize Size = SmallerFilm(mOrder.Size);
    const FilmSlide From = SlideOf(Old, Size), To = SlideOf(New, Size);
    const std::vector<Run> Frames = FramesOf(From, To, MovingFrames(New, mOrder.Rate));
    const double Gone = Arrival(StillOf(From, Size)), Come = Arrival(StillOf(To, Size));
    const double Whole = Bytes(Frames);
    std::vector<Run> Settled = Frames;
    Settled.back().Count += SpendingOf(mOrder.Format).Settling;
    return {std::max(0.0, Whole - Bytes({Frames.front()})),
            (Gone + Come) / 2 * static_cast<double>(Frames.size() - 1),
            std::max(0.0, Bytes(Settled) - Whole), Come};
}

int FilmTrials::MostTransitions() const {
    return SpendingOf(mOrder.Format).MostTransitions;
}

double FilmTrials::Sound(const RehearsalCue* Cue) const {
    const auto Frames = static_cast<qint64>(SoundSeconds * FilmSoundRate);
    const FilmSetup Setup = SetupFor({SoundSize, SoundSize});
    QImage Dark(SoundSize, SoundSize, QImage::Format_RGB32);
    Dark.fill(Qt::black);
    const int Count = static_cast<int>(SoundSeconds * mOrder.Rate);
    FilmWriter Writer(Setup);
    const std::vector<float> Samples =
        Cue ? SamplesOf(*Cue, Frames) : std::vector<float>(static_cast<size_t>(2 * Frames), 0.F);
    for (int Done = 0; Done < Count; ++Done) {
        const auto At = [&](int Frame) { return Samples.begin() + 2 * (Frames * Frame / Count); };
        Writer.AddFrame(Dark);
        Writer.AddSound({At(Done), At(Done + 1)});
    }
    Writer.Finish();
    const double Pictures = Bytes({{Dark, Count}});
    return std::max(0.0, static_cast<double>(Writer.BytesWritten() - EmptyOf(Setup)) - Pictures) /
           SoundSeconds;
}

}  // namespace neb
