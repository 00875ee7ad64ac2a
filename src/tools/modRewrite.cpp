#include "tools/modRewrite.h"

#include "db/clsDBEngine.h"
#include "db/modDatabaseLock.h"
#include "db/records/modJournal.h"
#include "support/files/modHostFiles.h"
#include "tools/modCommands.h"
#include "tools/modHistory.h"
#include "tools/words/modLocking.h"

namespace neb {
int RunRewrite(const QStringList& Arguments, ToolIO& IO) {
    QStringList Words = Arguments;
    const FromElsewhere Other = TakeOver(Words);
    const std::optional<QString> Dir = OneDirectory(Words, IO);
    if (!Dir) return ExitFailed;
    // Loading a directory without counters forgets whatever records lie there; writing that back
    // would be the end of them.
    if (!HoldsDatabase(*Dir))
        return Fail(IO, QStringLiteral("There is no database in %1.").arg(*Dir));
    if (!MayWriteDatabase(*Dir))
        return Fail(IO, QStringLiteral("The database in %1 is read-only.").arg(*Dir));
    InstanceLock Lock(DatabaseLockPath(*Dir));
    if (!TakeLock(Lock, *Dir, Other, IO)) return ExitFailed;
    ProgressLine Progress(IO, "Rewriting");
    Progress.Show(0, 2);
    clsDBEngine Engine;
    Engine.SetDBPath(*Dir);
    Engine.InitializeDB();
    Progress.Show(1, 2);
    TellNotKept(IO, Engine.FinalizeDB());
    return ExitDone;
}

}  // namespace neb
