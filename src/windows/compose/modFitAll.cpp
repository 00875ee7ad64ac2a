#include "windows/compose/modFitAll.h"

#include <QElapsedTimer>

#include "controls/forms/ScreenPointer.h"
#include "show/rehearsal/Rehearsal.h"
#include "support/Fault.h"
#include "support/work/Job.h"

namespace neb {
namespace {

constexpr qint64 PatienceMs = 10000;
constexpr int LookMs = 5;

struct Lengths {
    std::vector<double> Seconds;  // by row
    QString Why;                  // the last of them cannot be measured; empty: all are
};

double Measured(const QString& Path) {
    const double Seconds = LengthOfSoundFile(Path);
    if (Seconds > 0) return Seconds;
    throw Fault(QStringLiteral("There is no sound in it."), Path);
}

Lengths MeasureAll(const QStringList& Paths, JobState& State) {
    Lengths All;
    try {
        for (const QString& Each : Paths) {
            if (State.Stop) break;
            All.Seconds.push_back(0);
            if (!Each.isEmpty()) All.Seconds.back() = Measured(Each);
            ++State.SoFar;
        }
    } catch (const Fault& Problem) {
        All.Why = Problem.Text();
    }
    return All;
}

BoxRequest RefuseRow(qsizetype Row, const QString& Why) {
    return Refuse(QStringLiteral("Sound track %1 cannot be measured.\n%2").arg(Row).arg(Why),
                  QStringLiteral("Fit All"));
}

// False where one file took too long.
bool WaitFor(const Job<Lengths>& Work) {
    QElapsedTimer Since;
    Since.start();
    for (std::int32_t SoFar = 0; !Work.Wait(LookMs); DoEventsButInput()) {
        if (Work.SoFar() != SoFar) Since.restart();
        SoFar = Work.SoFar();
        if (Since.hasExpired(PatienceMs)) return false;
    }
    return true;
}

}  // namespace

Answer<std::vector<ShowTrack>> FitAllAside(const ShowContent& Show, const QStringList& Paths) {
    // what no length can change is told at once
    const std::vector<double> Alike(Show.Tracks.size(), 1);
    if (Answer<std::vector<ShowTrack>> Fits = FitAllTracks(Show, Alike); !Fits) return Fits;
    const PointerScope Working(Pointer::Hourglass);
    Job<Lengths> Work([Paths](JobState& State) { return MeasureAll(Paths, State); });
    if (!WaitFor(Work))
        return RefuseRow(Work.SoFar() + 1, QStringLiteral("The file does not answer."));
    const Lengths All = Work.Take();
    if (!All.Why.isEmpty()) return RefuseRow(std::ssize(All.Seconds), All.Why);
    return FitAllTracks(Show, All.Seconds);
}

}  // namespace neb
