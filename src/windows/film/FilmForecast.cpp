#include "windows/film/FilmForecast.h"

#include <tuple>

#include "support/ReasonOf.h"
#include "windows/film/FilmWorks.h"

namespace neb {
namespace {

constexpr int MomentMs = 400;
constexpr int ForecastLookMs = 50;

bool IsSamePlan(const FilmOrder& One, const FilmOrder& Other) {
    const auto Parts = [](const FilmOrder& Of) {
        return std::tuple(Of.AlbumID, Of.SlideShowID, Of.First, Of.Last, Of.Size,
                          Of.CaptionsInPicture);
    };
    return Parts(One) == Parts(Other);
}

// Where it goes does not change what it is.
bool IsSameFilm(const FilmOrder& One, const FilmOrder& Other) {
    const auto Parts = [](const FilmOrder& Of) {
        return std::tuple(Of.Format, Of.Rate, Of.Quality, Of.SubtitleTrack, Of.Date);
    };
    return IsSamePlan(One, Other) && Parts(One) == Parts(Other);
}

}  // namespace

FilmForecast::FilmForecast(QObject* Owner) : QObject(Owner) {
    mBegin.setSingleShot(true);
    mLook.setInterval(ForecastLookMs);
    connect(&mBegin, &QTimer::timeout, this, &FilmForecast::Begin);
    connect(&mLook, &QTimer::timeout, this, &FilmForecast::Look);
}

FilmForecast::~FilmForecast() = default;

bool FilmForecast::IsUnderWay() const {
    return mBegin.isActive() || mJob;
}

void FilmForecast::Follow(std::shared_ptr<const clsDBEngine> Show) {
    Cancel();
    mShow = std::move(Show);
    mAsked.reset();
    mKnown = {};
}

void FilmForecast::Ask(const FilmOrder& Order) {
    if (mAsked && IsSameFilm(*mAsked, Order) && (mKnown.Size || IsUnderWay())) return;
    if (mAsked && !IsSamePlan(*mAsked, Order)) mKnown = {};
    mKnown.Size.reset();
    Cancel();
    mBegin.start(mAsked ? MomentMs : 0);
    mAsked = Order;
    Q_EMIT Changed();
}

void FilmForecast::Cancel() {
    mBegin.stop();
    mLook.stop();
    mJob.reset();
}

// First the plan, which is soon there, then the size.
void FilmForecast::Begin() {
    const auto Copy =
        mKnown.Plan ? nullptr : CopyForRehearsal(*mShow, mAsked->AlbumID, mAsked->SlideShowID);
    mJob = std::make_unique<Job<Known>>(
        [Copy, Known = mKnown, Order = *mAsked, Works = TheFilmWorks()](JobState& State) mutable {
            if (!Copy) {
                Known.Size = Works.Estimate(Order, *Known.Plan, [&] { return !State.Stop; });
                return Known;
            }
            Known.Plan = std::make_shared<const FilmPlan>(
                Works.Plan(*Copy, Order, [&](std::int32_t) { return !State.Stop.load(); }));
            if (!State.Stop) Known.FirstLook = Works.FirstLook(Order, *Known.Plan);
            return Known;
        });
    mLook.start();
}

void FilmForecast::Look() {
    if (!mJob->Wait(0)) return;
    mLook.stop();
    try {
        Take();
    } catch (const std::exception& Problem) {
        Q_EMIT Failed(ReasonOf(Problem));
    }
}

// An encoder that knows nothing of the size ends it as well.
void FilmForecast::Take() {
    const bool HadPlan = mKnown.Plan != nullptr;
    const auto Done = std::move(mJob);
    mKnown = Done->Take();
    if (!HadPlan) mBegin.start(0);
    Q_EMIT Changed();
}

}  // namespace neb
