#include "tools/words/ToolDatabase.h"

#include "db/modDatabaseLock.h"
#include "db/records/RecordSums.h"
#include "db/recovery/modRestore.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"
#include "tools/words/modLocking.h"
#include "tools/words/modWords.h"

namespace neb {
namespace {

QString Describe(const Generation& Good) {
    return QStringLiteral("as they were saved on %1 (%2, %3, %4)")
        .arg(QDateTime::fromMSecsSinceEpoch(Good.Saved).toString(u"yyyy-MM-dd hh:mm:ss"),
             Counted(static_cast<int>(Good.Albums), "album"),
             Counted(static_cast<int>(Good.Slides), "slide"),
             Counted(static_cast<int>(Good.SlideShows), "slide show"));
}

// Behind the words for what is left; empty where it cannot be told.
QString CountsOfRest(const QString& Dir, const DatabaseHealth& Health) {
    const auto Left = CountRest(Dir, Health);
    if (!Left) return {};
    return QStringLiteral(" (%1, %2, %3)")
        .arg(Counted(static_cast<int>(Left->Albums), "album"),
             Counted(static_cast<int>(Left->Slides), "slide"),
             Counted(static_cast<int>(Left->SlideShows), "slide show"));
}

bool Refuse(const QString& Dir, const DatabaseHealth& Health, ToolIO& IO) {
    Fail(IO, QStringLiteral("The database in %1 is damaged:").arg(Dir));
    for (const QString& Each : Health.Wrong) Fail(IO, Each);
    const auto Good = LastGoodGeneration(Dir);
    const QString Left = CountsOfRest(Dir, Health);
    Fail(IO,
         (Good ? QStringLiteral("Nothing has been changed. --restore brings the albums back %1, "
                                "--go-on goes on with what is left%2; the present files are kept "
                                "in Backups.")
                     .arg(Describe(*Good), Left)
               : QStringLiteral("Nothing has been changed. --go-on goes on with what is left%1 and "
                                "keeps the present files in Backups; there are no earlier "
                                "albums to restore.")
                     .arg(Left)));
    return false;
}

void TellPutAside(const QStringList& Paths, ToolIO& IO) {
    for (const QString& Each : Paths)
        Fail(IO,
             QStringLiteral("Changes that do not go with these records are kept in %1.").arg(Each));
}

void TellMended(const QString& What, const KeptFiles& Kept, ToolIO& IO) {
    Fail(IO, QStringLiteral("%1 The files of before are kept in %2.").arg(What, Kept.Folder));
    TellPutAside(Kept.PutAside, IO);
}

bool Restore(const QString& Dir, const DatabaseHealth& Health, ToolIO& IO) {
    const auto Good = LastGoodGeneration(Dir);
    if (!Good) return Refuse(Dir, Health, IO);
    const KeptFiles Kept = RestoreInstead(Dir, AppPath(), Health, *Good);
    TellMended(QStringLiteral("The albums are back %1.").arg(Describe(*Good)), Kept, IO);
    return true;
}

bool GoOn(const QString& Dir, const DatabaseHealth& Health, ToolIO& IO) {
    const KeptFiles Kept = GoOnWithRest(Dir, AppPath(), Health);
    TellMended(QStringLiteral("What is left of the albums is in order again."), Kept, IO);
    return true;
}

// A database that may not be written is not locked either: nothing will be done to it.
bool IsFree(const QString& Dir, InstanceLock& Lock, FromElsewhere Other, ToolIO& IO) {
    return !MayWriteDatabase(Dir) || TakeLock(Lock, Dir, Other, IO);
}

bool IsWritable(const QString& Dir, ToolIO& IO) {
    if (MayWriteDatabase(Dir)) return true;
    Fail(IO, QStringLiteral("The database in %1 is read-only.").arg(Dir));
    return false;
}

// How it is then; nothing after lines on Err.
std::optional<DatabaseHealth> MendLocked(const QString& Dir, Mend How, ToolIO& IO) {
    DatabaseHealth Health = LookAtHealth(Dir);
    if (!Health.IsSound() && How == Mend::Not) {
        Refuse(Dir, Health, IO);
        return std::nullopt;
    }
    if (!IsWritable(Dir, IO)) return std::nullopt;
    if (Health.IsSound()) return Health;
    if (!(How == Mend::GoOn ? GoOn : Restore)(Dir, Health, IO)) return std::nullopt;
    return LookAtHealth(Dir);
}

}  // namespace

std::optional<OpenWays> TakeWays(QStringList& Words, ToolIO& IO) {
    const FromElsewhere Other = TakeOver(Words);
    const bool GoesOn = Words.removeAll(QStringLiteral("--go-on")) > 0;
    const bool Restores = Words.removeAll(QStringLiteral("--restore")) > 0;
    if (GoesOn && Restores) {
        Fail(IO, QStringLiteral("--go-on and --restore exclude each other."));
        return std::nullopt;
    }
    return OpenWays{GoesOn ? Mend::GoOn : Restores ? Mend::Restore : Mend::Not, Other};
}

void TellLeftBehind(ToolIO& IO, const LeftBehind& Found) {
    if (Found.Changes > 0)
        Fail(IO, QStringLiteral("brought back: %1 of a session that did not come to its end.")
                     .arg(Counted(Found.Changes, "change")));
    if (!Found.NotKept.isEmpty())
        Fail(IO, QStringLiteral("The state before an interrupted write could not be kept: %1")
                     .arg(QString(Found.NotKept).replace(u'\n', u' ')));
    TellPutAside(Found.PutAside, IO);
}

bool IsSoundOrMended(const QString& Dir, OpenWays Ways, ToolIO& IO) {
    InstanceLock Lock(DatabaseLockPath(Dir));
    return IsFree(Dir, Lock, Ways.Other, IO) && MendLocked(Dir, Ways.How, IO).has_value();
}

ToolDatabase::ToolDatabase(const QString& Dir) : mLock(DatabaseLockPath(Dir)) {
    mEngine.SetDBPath(Dir);
}

// Pictures of an interrupted import may lie above the counters.
std::unique_ptr<ToolDatabase> ToolDatabase::Open(const QString& Dir, OpenWays Ways, ToolIO& IO) {
    std::unique_ptr<ToolDatabase> Made(new ToolDatabase(Dir));
    const auto Health =
        IsFree(Dir, Made->mLock, Ways.Other, IO) ? MendLocked(Dir, Ways.How, IO) : std::nullopt;
    if (!Health) return nullptr;
    if (Health->IsNew) NoteRecords(Dir);
    Made->mEngine.InitializeDB();
    TellLeftBehind(IO, Made->mEngine.Found());
    RaiseCounters(Made->mEngine, Health->Free);
    return Made;
}

}  // namespace neb
