#include "windows/compose/SongReading.h"

#include "show/SongName.h"

namespace neb {
namespace {

constexpr int SongLookMs = 30;

QHash<QString, QString> ReadNames(const QStringList& Paths, const JobState& State) {
    QHash<QString, QString> Names;
    for (const QString& Each : Paths)
        if (!State.Stop) Names.insert(Each, SongName(Each));
    return Names;
}

}  // namespace

SongReading::SongReading(QObject* Owner) : QObject(Owner) {
    mLook.setInterval(SongLookMs);
    connect(&mLook, &QTimer::timeout, this, &SongReading::Look);
}

void SongReading::Ask(const QStringList& Paths) {
    mJob.reset();
    if (Paths.isEmpty()) return mLook.stop();
    mJob = std::make_unique<Job<QHash<QString, QString>>>(
        [Paths](JobState& State) { return ReadNames(Paths, State); });
    mLook.start();
}

void SongReading::Look() {
    if (!mJob->Wait(0)) return;
    mNames = mJob->Take();
    mJob.reset();
    mLook.stop();
    Q_EMIT Read();
}

}  // namespace neb
