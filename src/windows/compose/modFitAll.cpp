#include "windows/compose/modFitAll.h"

#include <QElapsedTimer>
#include <algorithm>

#include "controls/forms/ScreenPointer.h"
#include "controls/forms/frmProgress.h"
#include "support/Fault.h"
#include "support/Texts.h"
#include "support/work/Job.h"
#include "windows/frame/modNotice.h"

namespace neb {
namespace {

constexpr qint64 PatienceMs = 10000;
constexpr int LookMs = 5;
constexpr qint64 ShortMs = 400;

struct Lengths {
    std::vector<double> Seconds;  // by row
    QString Why;                  // the last of them cannot be measured; empty: all are
};

double Measured(const QString& Path, const SongMeasure& Measure) {
    const double Seconds = Measure(Path);
    if (Seconds > 0) return Seconds;
    throw Fault(tr("There is no sound in it."), Path);
}

Lengths MeasureAll(const QStringList& Paths, const SongMeasure& Measure, JobState& State) {
    Lengths All;
    try {
        for (const QString& Each : Paths) {
            if (State.Stop) break;
            All.Seconds.push_back(0);
            if (!Each.isEmpty()) All.Seconds.back() = Measured(Each, Measure);
            ++State.SoFar;
        }
    } catch (const Fault& Problem) {
        All.Why = Problem.Text();
    }
    return All;
}

BoxRequest RefuseRow(qsizetype Row, const QString& Why) {
    return Refuse(tr("Sound track %1 cannot be measured.\n%2").arg(Row).arg(Why), tr("Fit All"));
}

enum class End { Done, TookTooLong, Stopped };

// A few songs are measured before a window could be read.
bool IsShort(const Job<Lengths>& Work) {
    QElapsedTimer Since;
    Since.start();
    while (!Work.Wait(LookMs) && !Since.hasExpired(ShortMs)) DoEventsButInput();
    return Work.Wait(0);
}

// Of so many rows those that have a song.
int SongsIn(const QStringList& Paths, qsizetype Rows) {
    const auto Last = Paths.begin() + std::min(Rows, Paths.size());
    return static_cast<int>(
        std::count_if(Paths.begin(), Last, [](const QString& Each) { return !Each.isEmpty(); }));
}

// TookTooLong: over one file.
End WaitUnder(frmProgress& Bar, const Job<Lengths>& Work, const QStringList& Paths) {
    const QString Words = frmProgress::tr("Sound track %1 of %2");
    Bar.setWindowTitle(frmProgress::tr("Measuring Sound Tracks ..."));
    Bar.SupportsStop(true);
    QElapsedTimer Since;
    Since.start();
    for (std::int32_t SoFar = -1; !Work.Wait(LookMs); DoEvents()) {
        if (Bar.IsStopped()) return End::Stopped;
        if (Since.hasExpired(PatienceMs)) return End::TookTooLong;
        if (Work.SoFar() == SoFar) continue;
        Since.restart();
        SoFar = Work.SoFar();
        Bar.ShowCount(SongsIn(Paths, SoFar + 1), SongsIn(Paths, Paths.size()), Words);
        Bar.Refresh();
    }
    return End::Done;
}

End WaitFor(Form& Asker, const Job<Lengths>& Work, const QStringList& Paths) {
    if (IsShort(Work)) return End::Done;
    auto Ended = End::Done;
    RunUnderProgress(Asker, [&](frmProgress& Bar) { Ended = WaitUnder(Bar, Work, Paths); });
    return Ended;
}

}  // namespace

Answer<std::vector<ShowTrack>> FitAllAside(Form& Asker, const ShowContent& Show,
                                           const QStringList& Paths, const SongMeasure& Measure) {
    // what no length can change is told at once
    const std::vector<double> Alike(Show.Tracks.size(), 1);
    if (Answer<std::vector<ShowTrack>> Fits = FitAllTracks(Show, Alike); !Fits) return Fits;
    const PointerScope Working(Pointer::Hourglass);
    Job<Lengths> Work(
        [Paths, Measure](JobState& State) { return MeasureAll(Paths, Measure, State); });
    const End Ended = WaitFor(Asker, Work, Paths);
    if (Ended == End::Stopped) {
        ShowNotice(frmProgress::tr("Stopped; the sound tracks are as they were."));
        return Show.Tracks;
    }
    if (Ended == End::TookTooLong)
        return RefuseRow(Work.SoFar() + 1, tr("The file does not answer."));
    const Lengths All = Work.Take();
    if (!All.Why.isEmpty()) return RefuseRow(std::ssize(All.Seconds), All.Why);
    return FitAllTracks(Show, All.Seconds);
}

}  // namespace neb
