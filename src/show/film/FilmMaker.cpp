#include "show/film/FilmMaker.h"

#include <QElapsedTimer>
#include <optional>

#include "db/clsDBEngine.h"
#include "pictures/PictureOfFile.h"
#include "show/film/FilmMakerFaults.h"
#include "show/film/FilmPictures.h"
#include "show/film/FilmSound.h"
#include "show/film/FilmStage.h"
#include "show/film/FilmWriter.h"
#include "support/Fault.h"
#include "support/Texts.h"

namespace neb {
namespace {

// Nobody wants the film any more. It passes through the steps of the show, which know faults alone.
struct Unwanted {};

constexpr qint64 ReportEveryMs = 100;  // of work
constexpr double ReportEvery = 1;      // seconds of the film

qint64 MsOf(double Seconds) {
    return qRound64(Seconds * 1000);
}

std::vector<FilmPictureAhead> PicturesOf(const FilmPlan& Plan) {
    std::vector<FilmPictureAhead> Foreseen;
    for (const RehearsalCue& Cue : Plan.Log.Cues) Foreseen.push_back({Cue.Picture, Cue.Caption});
    return Foreseen;
}

FilmPictures::Makers MakersFor(const FilmOrder& Order) {
    return {PictureOfFile, [Size = Order.Size, WithCaptions = Order.CaptionsInPicture](
                               const QImage& Picture, const QString& Caption) {
                return FilmStage::FitFor(Size, WithCaptions, Caption, Picture);
            }};
}

[[noreturn]] void ThrowEmpty(const RehearsalLog& Log, const FilmOrder& Order) {
    const QString Sentence =
        tr("No slide of the show comes up, so that there is "
           "nothing to make a film of.");
    const QString Box =
        Log.Boxes.empty() ? QString() : QStringLiteral(" ") + Log.Boxes.front().Text;
    throw Fault(Sentence + Box, Order.Path);
}

// One film, from the first frame to the last.
class Making {
  public:
    Making(clsDBEngine& Copy, const FilmOrder& Order, const FilmPlan& Plan, const FilmWatch& Watch)
        : mOrder(Order),
          mPlan(Plan),
          mWatch(Watch),
          mPictures(PicturesOf(Plan), MakersFor(Order), [this] { Wait(); }),
          mSound([this] { Wait(); }),
          mStage(Order.Size, Order.CaptionsInPicture),
          mTotal(Plan.Sheet.RunningTime),
          mRun(Copy, Copy.Albums.front()->AlbumID, ShowOf(Copy), Options()) {
        mSinceReport.start();
    }

    FilmReport Make() {
        try {
            Begin();
            Film();
            Finish();
        } catch (const Unwanted&) {
            mReport.End = FilmEnd::Stopped;
            mWriter.reset();
        }
        Fill();
        return std::move(mReport);
    }

  private:
    static std::int32_t ShowOf(const clsDBEngine& Copy) {
        return Copy.Albums.front()->SlideShows.front()->SlideShowID;
    }
    RehearsalOptions Options();
    void Begin();
    void Film();
    std::int32_t StopsBefore(RehearsalEnd End);
    void Finish();
    void Fill();

    bool TakePicture(const QString& Path);
    void CatchUp(double Seconds);
    void Show(const RehearsalCue& Cue, const FilmPicture& Picture);
    void DrawUntil(double Seconds);
    void Add(const QImage& Frame);
    void FlushRun();

    bool IsTimeToReport() const;
    void Wait();
    bool IsWanted(double Seconds);
    void Report(double Seconds);

    struct Coming {
        RehearsalCue Cue;
        FilmPicture Picture;
    };

    const FilmOrder& mOrder;
    const FilmPlan& mPlan;
    const FilmWatch& mWatch;
    FilmReport mReport;
    FilmMakerFaults mFaults;
    FilmPictures mPictures;
    FilmSound mSound;
    FilmStage mStage;
    std::optional<FilmWriter> mWriter;
    FilmPicture mPicture;         // that was read last
    std::vector<Coming> mComing;  // slides that are up, but not yet on the stage
    qint64 mFrames = 0;           // drawn
    QImage mFrame;                // the last of them
    int mCount = 0;               // of its kind that the writer does not have yet
    QElapsedTimer mSinceReport;
    double mReported = 0;  // seconds of the film
    double mTotal;         // the same; as planned, until it is known
    std::int32_t mSlideSeq = 0;
    Rehearsal mRun;  // its player says good-bye to the sound
};

RehearsalOptions Making::Options() {
    RehearsalOptions Chosen;
    Chosen.First = mOrder.First;
    Chosen.Last = mOrder.Last;
    Chosen.CanReadPicture = [this](const QString& Path) { return TakePicture(Path); };
    Chosen.LengthOfSound = [this](const QString& Path) { return mSound.LengthOf(Path); };
    Chosen.OnSound = [this](const SoundEvent& Event) { mSound.Hear(Event); };
    Chosen.OnSlide = [this](const RehearsalCue& Cue) {
        mComing.push_back({Cue, std::exchange(mPicture, {})});
        mFaults.SlideIsUp(Cue.SlideSeq);
    };
    Chosen.GoesOn = [this](std::int32_t) {
        CatchUp(mRun.Now());
        return true;
    };
    return Chosen;
}

void Making::Begin() {
    Report(0);
    Job<FilmSetup> Setup(
        [Plan = mPlan, Order = mOrder](JobState&) { return SetupOf(Plan, Order); });
    mWriter.emplace(mOrder.Path, AwaitForFilm<FilmSetup>(Setup, [this] { Wait(); }));
    mWriter->SetMeanwhile([this] { Wait(); });
    if (mOrder.SubtitleFile) mWriter->PutBeside(SubtitleText(SubtitlesOf(mPlan)));
}

void Making::Film() {
    const RehearsalEnd End = mRun.RunWhole();
    if (mRun.Cues().empty()) ThrowEmpty(mRun.Log(), mOrder);
    CatchUp(mRun.Now());
    FlushRun();
    mFaults.TakeRun(mRun.Log(), mSound.Failed(), StopsBefore(End));
    mTotal = mRun.Now();
    Report(mTotal);
}

// The slide that was to come up when the show stopped by itself; 0: it did not.
std::int32_t Making::StopsBefore(RehearsalEnd End) {
    return End == RehearsalEnd::Stopped ? mRun.Run().Memory().CurrentSlideSeq : 0;
}

void Making::Finish() {
    if (!mWriter->Finish([this] { return !IsTimeToReport() || IsWanted(mTotal); }))
        throw Unwanted();
    mReport.Bytes = mWriter->BytesWritten();
}

void Making::Fill() {
    mReport.Seconds = mRun.Now();
    mReport.Cues = mRun.Cues();
    mReport.Faults = mFaults.Taken();
}

bool Making::TakePicture(const QString& Path) {
    try {
        mPicture = mPictures.Take(Path);
        return true;
    } catch (const Fault& Problem) {
        mFaults.PictureFailed(Path, Problem.What());
        return false;
    }
}

// All that is seen and heard before a moment; what happens at the moment itself may not be whole.
void Making::CatchUp(double Seconds) {
    for (const Coming& Each : std::exchange(mComing, {})) Show(Each.Cue, Each.Picture);
    mSound.MixUntil(static_cast<double>(MsOf(Seconds)),
                    [this](std::vector<float> Samples) { mWriter->AddSound(std::move(Samples)); });
    DrawUntil(Seconds);
}

void Making::Show(const RehearsalCue& Cue, const FilmPicture& Picture) {
    DrawUntil(Cue.At);
    mSlideSeq = Cue.SlideSeq;
    mStage.ShowSlide({Cue.At, Picture.Picture, Cue.Caption, Cue.EffectNumber, Cue.EffectDelay,
                      Cue.EffectStep, Picture.Fitted});
}

// Whole numbers tell whether a frame lies before a moment.
void Making::DrawUntil(double Seconds) {
    for (; mFrames * 1000 < MsOf(Seconds) * mOrder.Rate; ++mFrames) {
        const double At = static_cast<double>(mFrames) / mOrder.Rate;
        Add(mStage.FrameAt(At));
        if (IsTimeToReport() || At >= mReported + ReportEvery) Report(At);
    }
}

// Frames that are alike are one to the writer, but the sound beside them must not get too far
// ahead.
void Making::Add(const QImage& Frame) {
    if (Frame.cacheKey() != mFrame.cacheKey() || 2 * mCount >= mOrder.Rate) FlushRun();
    mFrame = Frame;
    ++mCount;
}

void Making::FlushRun() {
    if (mCount > 0) mWriter->AddFrame(mFrame, std::exchange(mCount, 0));
}

bool Making::IsTimeToReport() const {
    return mSinceReport.elapsed() >= ReportEveryMs;
}

void Making::Wait() {
    if (IsTimeToReport()) Report(mReported);
}

bool Making::IsWanted(double Seconds) {
    mReported = Seconds;
    mTotal = std::max(mTotal, Seconds);
    mSinceReport.start();
    const qint64 Bytes = mWriter ? mWriter->BytesWritten() : 0;
    return !mWatch.GoesOn || mWatch.GoesOn({Seconds, mTotal, Bytes, mSlideSeq});
}

void Making::Report(double Seconds) {
    const bool Looks = IsTimeToReport() || mReported == 0;
    if (!IsWanted(Seconds)) throw Unwanted();
    if (mWatch.Look && Looks && !mFrame.isNull()) mWatch.Look(mFrame, Seconds);
}

}  // namespace

FilmReport MakeFilm(clsDBEngine& Copy, const FilmOrder& Order, const FilmPlan& Plan,
                    const FilmWatch& Watch) {
    if (Plan.Log.Cues.empty()) ThrowEmpty(Plan.Log, Order);
    return Making(Copy, Order, Plan, Watch).Make();
}

}  // namespace neb
