#include "windows/film/FilmRun.h"

#include <algorithm>
#include <mutex>

#include "support/Fault.h"
#include "support/ReasonOf.h"
#include "support/Services.h"
#include "windows/film/FilmWorks.h"

namespace neb {
namespace {

constexpr int LookMs = 100;
constexpr double LongestTidyMs = 5000;

QImage Fitted(const QImage& Frame, QSize Room) {
    const QSize Size = Frame.size().scaled(Room, Qt::KeepAspectRatio).expandedTo({1, 1});
    if (Room.isEmpty() || Size.width() >= Frame.width()) return Frame.copy();
    return Frame.scaled(Size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

}  // namespace

// Of the thread: what it wants and uses. Behind the lock: what it hands over.
struct FilmRun::Work {
    FilmWanted What;
    FilmWorks Works;
    double Began = 0;
    bool IsStopping = false;
    std::optional<FilmReport> Made;

    std::mutex Lock;
    FilmStep Step;
    QImage Frame;  // null: the last one has been taken
    QSize Room;

    FilmReport Make(JobState& State);
    void PlanAnew(JobState& State);
    bool Prepare(JobState& State);
    int PlaceOf(std::int32_t SlideSeq) const;
    void Note(const FilmProgress& SoFar);
    void Look(const QImage& Seen);
};

// By now the preferences may be others, and files too: chapters and subtitles go by the plan, and
// must be those of the film that is made.
void FilmRun::Work::PlanAnew(JobState& State) {
    auto Now = std::make_shared<const FilmPlan>(
        Works.Plan(*What.Copy, What.Order, [&](std::int32_t) { return !State.Stop.load(); }));
    if (What.Plan && What.Plan->Log.Cues != Now->Log.Cues) What.Size.reset();
    What.Plan = std::move(Now);
}

// What has not been found out yet is now. False: it was stopped.
bool FilmRun::Work::Prepare(JobState& State) {
    PlanAnew(State);
    if (!What.Size && !State.Stop)
        What.Size = Works.Estimate(What.Order, *What.Plan, [&] { return !State.Stop; });
    if (State.Stop) return false;
    if (const auto Fits = Works.CheckRoom(What.Order, What.Size.value_or(0)); !Fits)
        throw Fault(Fits.Refusal().Text);
    return true;
}

FilmReport FilmRun::Work::Make(JobState& State) {
    if (!Prepare(State)) return {.End = FilmEnd::Stopped};
    const FilmWatch Watch{.GoesOn =
                              [&](const FilmProgress& SoFar) {
                                  Note(SoFar);
                                  return !State.Stop.load();
                              },
                          .Look = [this](const QImage& Seen, double) { Look(Seen); }};
    return Works.Make(*What.Copy, What.Order, *What.Plan, Watch);
}

int FilmRun::Work::PlaceOf(std::int32_t SlideSeq) const {
    const auto& Rows = What.Plan->Sheet.Rows;
    const auto Its = std::ranges::find(Rows, SlideSeq, &RehearsalRow::SlideSeq);
    return Its == Rows.end() ? 0 : static_cast<int>(Its - Rows.begin()) + 1;
}

void FilmRun::Work::Note(const FilmProgress& SoFar) {
    const FilmStep Now{PlaceOf(SoFar.SlideSeq), static_cast<int>(What.Plan->Sheet.Rows.size()),
                       SoFar.Total > 0 ? std::clamp(SoFar.Seconds / SoFar.Total, 0.0, 1.0) : 0,
                       SoFar.Bytes};
    const std::lock_guard Held(Lock);
    Step = Now;
}

// The film does not wait for who looks on: as long as a frame lies there no other is made small.
void FilmRun::Work::Look(const QImage& Seen) {
    QSize Wanted;
    {
        const std::lock_guard Held(Lock);
        if (!Frame.isNull()) return;
        Wanted = Room;
    }
    QImage Small = Fitted(Seen, Wanted);
    const std::lock_guard Held(Lock);
    Frame = std::move(Small);
}

FilmRun::FilmRun(QObject* Owner) : QObject(Owner), mWork(std::make_shared<Work>()) {
    mLook.setInterval(LookMs);
    connect(&mLook, &QTimer::timeout, this, &FilmRun::Look);
}

FilmRun::~FilmRun() = default;

void FilmRun::Begin(const FilmWanted& What) {
    const QSize Room = mWork->Room;
    mWork = std::make_shared<Work>();
    mWork->What = What;
    mWork->Works = TheFilmWorks();
    mWork->Room = Room;
    mWork->Began = TheServices().Time->Ticks();
    mJob = std::make_unique<Job<FilmReport>>(
        [Its = mWork](JobState& State) { return Its->Make(State); });
    mLook.start();
}

bool FilmRun::IsStopping() const {
    return mWork->IsStopping;
}

double FilmRun::SecondsAtWork() const {
    return (TheServices().Time->Ticks() - mWork->Began) / 1000;
}

const FilmOrder& FilmRun::Order() const {
    return mWork->What.Order;
}

void FilmRun::SetRoom(QSize Pixels) {
    const std::lock_guard Held(mWork->Lock);
    mWork->Room = Pixels;
}

void FilmRun::Stop() {
    if (!mJob) return;
    mWork->IsStopping = true;
    mJob->Cancel();
}

// A medium that hangs must not hold the window.
void FilmRun::Abandon() {
    mLook.stop();
    Stop();
    for (const double Began = TheServices().Time->Ticks();
         mJob && !mJob->Wait(10) && TheServices().Time->Ticks() - Began < LongestTidyMs;)
        DoEventsButInput();
    mJob.reset();
}

const FilmReport* FilmRun::Made() const {
    return mWork->Made ? &*mWork->Made : nullptr;
}

void FilmRun::Forget() {
    mWork->Made.reset();
}

void FilmRun::Look() {
    Hand();
    if (!mJob || !mJob->Wait(0)) return;
    mLook.stop();
    const auto Done = std::move(mJob);
    try {
        FilmReport Report = Done->Take();
        if (Report.End == FilmEnd::Made) mWork->Made = std::move(Report);
        Q_EMIT Ended();
    } catch (const std::exception& Problem) {
        Q_EMIT Failed(ReasonOf(Problem));
    }
}

void FilmRun::Hand() {
    FilmStep Step;
    QImage Frame;
    {
        const std::lock_guard Held(mWork->Lock);
        Step = mWork->Step;
        std::swap(Frame, mWork->Frame);
    }
    if (Step.Slides > 0) Q_EMIT Advanced(Step);
    if (!Frame.isNull()) Q_EMIT Seen(Frame);
}

}  // namespace neb
