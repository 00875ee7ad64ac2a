#include "show/film/FilmEstimate.h"

#include <QHash>
#include <algorithm>
#include <cmath>

#include "show/film/FilmEstimateTrials.h"
#include "show/film/FilmFile.h"
#include "support/Grouped.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/files/modHostFilesCopy.h"
#include "support/files/modHostFilesMounts.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

// Of the work that a few seconds allow, in pixels of all stills that are encoded.
constexpr double MostPixels = 12.0 * 1920 * 1080;
constexpr int LeastPictures = 5, MostPictures = 24;
constexpr int MostSounds = 4;
// A picture of the show, once, with all the time for which it is seen.
struct SeenPicture {
    size_t Cue = 0;  // the first that shows it
    qint64 Size = 0;
    double Seconds = 0;
    double Arrival = 0;  // bytes
};

std::vector<SeenPicture> PicturesOf(const std::vector<RehearsalCue>& Cues) {
    QHash<QString, size_t> Places;
    std::vector<SeenPicture> All;
    for (size_t I = 0; I < Cues.size(); ++I) {
        const auto Known = Places.constFind(Cues[I].Picture);
        const size_t Place = Known == Places.constEnd() ? All.size() : *Known;
        if (Place == All.size()) {
            Places.insert(Cues[I].Picture, Place);
            All.push_back({I, FileSize(Cues[I].Picture)});
        }
        All[Place].Seconds += Cues[I].Seconds;
    }
    return All;
}

// To which part of the film's time each belongs, of so many equal ones at most; to one of its own
// where there are no more pictures than that.
std::vector<size_t> PartsOf(const std::vector<SeenPicture>& Pictures, size_t Parts) {
    double All = 0, Before = 0;
    for (const SeenPicture& Each : Pictures) All += Each.Seconds;
    std::vector<size_t> Found;
    for (const SeenPicture& Each : Pictures) {
        const double Middle = (Before + Each.Seconds / 2) / std::max(All, 1e-9);
        const auto Part = static_cast<size_t>(Middle * static_cast<double>(Parts));
        Found.push_back(Pictures.size() <= Parts ? Found.size() : Part);
        Before += Each.Seconds;
    }
    return Found;
}

class Estimate {
  public:
    Estimate(const FilmOrder& Order, const FilmPlan& Plan, const std::function<bool()>& GoesOn)
        : mOrder(Order), mPlan(Plan), mCues(Plan.Log.Cues), mGoesOn(GoesOn), mTrials(Order) {}

    std::optional<qint64> Take() {
        const auto Bytes = static_cast<double>(mTrials.Empty(SetupOf(mPlan, mOrder)));
        if (mCues.empty()) return qRound64(Bytes);
        if (!LookAtPictures() || !LookAtTransitions() || !LookAtSounds()) return std::nullopt;
        return qRound64(Bytes + PictureBytes() + SoundBytes());
    }

  private:
    bool GoesOn() const { return !mGoesOn || mGoesOn(); }
    size_t TrialsOfPictures() const;
    bool LookAtPictures();
    void LookAtKeeping(const std::vector<SeenPicture>& Pictures);
    bool LookAtTransitions();
    bool LookAtSounds();
    double PictureBytes() const;
    double BytesOfCue(size_t Place) const;
    double SoundBytes() const;
    double ArrivalOf(size_t Place) const { return mArrivals.value(mCues[Place].Picture); }

    const FilmOrder& mOrder;
    const FilmPlan& mPlan;
    const std::vector<RehearsalCue>& mCues;
    const std::function<bool()>& mGoesOn;
    const FilmTrials mTrials;
    QHash<QString, double> mArrivals;  // by the pictures' paths
    FilmTrials::Keeping mKeeping;
    // As multiples of arrivals: a frame of a transition, and the picture behind it.
    double mMoving = 0, mAfter = 0;
    double mSounding = 0, mSilence = 0;
};

size_t Estimate::TrialsOfPictures() const {
    const double Pixels = static_cast<double>(mOrder.Size.width()) * mOrder.Size.height();
    return static_cast<size_t>(
        std::clamp(static_cast<int>(MostPixels / Pixels), LeastPictures, MostPictures));
}

// In the order of the sizes of their files, which go with what is to be seen in them, each trial
// stands for its neighbours.
bool Estimate::LookAtPictures() {
    std::vector<SeenPicture> Pictures = PicturesOf(mCues);
    std::ranges::sort(Pictures, {}, &SeenPicture::Size);
    const std::vector<size_t> Parts = PartsOf(Pictures, TrialsOfPictures());
    std::vector<SeenPicture> Tried;
    for (size_t Begin = 0, End = 0; Begin < Pictures.size(); Begin = End) {
        if (!GoesOn()) return false;
        while (End < Pictures.size() && Parts[End] == Parts[Begin]) ++End;
        SeenPicture& Middle = Tried.emplace_back(Pictures[(Begin + End) / 2]);
        Middle.Arrival = mTrials.Arrival(mTrials.Still(mCues[Middle.Cue]));
        for (size_t I = Begin; I < End; ++I)
            mArrivals[mCues[Pictures[I].Cue].Picture] = Middle.Arrival;
    }
    LookAtKeeping(Tried);
    return GoesOn();
}

// Of the picture that weighs most.
void Estimate::LookAtKeeping(const std::vector<SeenPicture>& Pictures) {
    const auto Weight = [](const SeenPicture& Each) { return Each.Arrival * Each.Seconds; };
    const SeenPicture& Heaviest = *std::ranges::max_element(Pictures, {}, Weight);
    mKeeping = mTrials.KeepingOf(mTrials.Still(mCues[Heaviest.Cue]));
}

// In the order of the effects, of which each has a price of its own.
bool Estimate::LookAtTransitions() {
    std::vector<size_t> Moving;
    for (size_t I = 1; I < mCues.size(); ++I)
        if (MovingFrames(mCues[I], mOrder.Rate) >= 2) Moving.push_back(I);
    std::ranges::stable_sort(Moving, {}, [&](size_t Place) { return mCues[Place].EffectNumber; });
    const size_t Trials = std::min(static_cast<size_t>(mTrials.MostTransitions()), Moving.size());
    FilmTrials::Moved All;
    for (size_t I = 0; I < Trials; ++I) {
        if (!GoesOn()) return false;
        const size_t Place = Moving[(2 * I + 1) * Moving.size() / (2 * Trials)];
        const FilmTrials::Moved Each = mTrials.Moving(mCues[Place - 1], mCues[Place]);
        All.Bytes += Each.Bytes;
        All.Arrivals += Each.Arrivals;
        All.After += Each.After;
        All.Arrival += Each.Arrival;
    }
    if (All.Arrivals > 0) mMoving = All.Bytes / All.Arrivals;
    if (All.Arrival > 0) mAfter = All.After / All.Arrival;
    return GoesOn();
}

bool Sounds(const RehearsalCue& Cue) {
    const CueSoundKind Kind = Cue.Sound.Kind;
    return Kind != CueSoundKind::Silent && Kind != CueSoundKind::Over &&
           Kind != CueSoundKind::Unplayed && Cue.Sound.Volume + Cue.Sound.EndVolume > 0;
}

bool Estimate::LookAtSounds() {
    std::vector<const RehearsalCue*> Sounding;
    for (const RehearsalCue& Cue : mCues)
        if (Sounds(Cue)) Sounding.push_back(&Cue);
    const size_t Trials = std::min<size_t>(MostSounds, Sounding.size());
    double Sum = 0;
    for (size_t I = 0; I < Trials; ++I) {
        if (!GoesOn()) return false;
        Sum += mTrials.Sound(Sounding[(2 * I + 1) * Sounding.size() / (2 * Trials)]);
    }
    if (Trials > 0) mSounding = Sum / static_cast<double>(Trials);
    mSilence = mTrials.Sound(nullptr);
    return GoesOn();
}

double Estimate::PictureBytes() const {
    double Bytes = 0;
    for (size_t I = 0; I < mCues.size(); ++I) Bytes += BytesOfCue(I);
    return Bytes;
}

// Where there is no transition the encoder begins a new group of frames.
double Estimate::BytesOfCue(size_t Place) const {
    const RehearsalCue& Cue = mCues[Place];
    const double Frames = Cue.Seconds * mOrder.Rate, Arrival = ArrivalOf(Place);
    const double Moving = MovingFrames(Cue, mOrder.Rate);
    const double Before = Place > 0 ? ArrivalOf(Place - 1) : 0;
    const double Moved = mMoving * Moving * (Before + Arrival) / 2;
    if (mTrials.Group() == 1) return Moved + (Frames - Moving) * Arrival;
    const double Still = Frames - Moving, Groups = Still / mTrials.Group();
    const double Cut = Place > 0 ? mKeeping.Renewal : 1;
    const double Comes = Moving == 0 ? Cut : mAfter;
    const double Renewals = Moving == 0 ? std::floor(Groups) : Groups;
    return Moved + Arrival * (Comes + mKeeping.Renewal * Renewals) + mKeeping.EachFrame * Still;
}

double Estimate::SoundBytes() const {
    double Bytes = 0;
    for (const RehearsalCue& Cue : mCues)
        Bytes += Cue.Seconds * (Sounds(Cue) ? mSounding : mSilence);
    return Bytes;
}

// The kind of file system on which a folder lies; empty where that is not known.
QString KindOfDisk(const QString& Dir) {
    const QString Real = WithSeparator(RealDir(Dir));
    qsizetype Longest = 0;
    QString Kind;
    for (const Mount& Each : Mounts()) {
        const QString Path = WithSeparator(Each.Path);
        if (!Real.startsWith(Path) || Path.size() < Longest) continue;
        Longest = Path.size();
        Kind = Each.Kind;
    }
    return Kind;
}

constexpr qint64 MostOnFat = (qint64(4) << 30) - 1;
constexpr const char* FatKinds[] = {"vfat", "msdos", "fat"};

bool IsFat(const QString& Kind) {
    return std::ranges::any_of(FatKinds,
                               [&](const char* Fat) { return Kind == QLatin1String(Fat); });
}

}  // namespace

std::optional<qint64> EstimateFilm(const FilmOrder& Order, const FilmPlan& Plan,
                                   const std::function<bool()>& GoesOn) {
    return Estimate(Order, Plan, GoesOn).Take();
}

Answer<> CheckRoomOnDisk(const FilmDisk& Disk, qint64 Estimate) {
    const QString Title = tr("Operation Unsuccessful");
    const qint64 Needed = Estimate + Estimate / 3;
    if (IsFat(Disk.Kind) && Needed > MostOnFat)
        return Refuse(tr("The film needs up to %1, and a file on this disk can be 4 GB "
                         "large at most:\n%2")
                          .arg(ShortSize(Needed), Disk.Folder),
                      Title);
    const qint64 Ours = Disk.Room - RoomToLeave(Disk.Room);
    if (Disk.Room < 0 || Ours >= Needed) return Done();
    return Refuse(tr("There is not enough room: the film needs up to %1, and of %2 that "
                     "are free it takes %3 at most, in\n%4")
                      .arg(ShortSize(Needed), ShortSize(Disk.Room), ShortSize(Ours), Disk.Folder),
                  Title);
}

Answer<> CheckRoomForFilm(const FilmOrder& Order, qint64 Estimate) {
    const QString Dir = GetFilePath(AbsolutePath(Order.Path));
    return CheckRoomOnDisk({Dir, FreeSpace(Dir), KindOfDisk(Dir)}, Estimate);
}

}  // namespace neb
