#include "tools/modRewrite.h"

#include "db/records/modJournal.h"
#include "db/recovery/DatabaseHealth.h"
#include "tools/modHistory.h"
#include "tools/words/ToolDatabase.h"
#include "tools/words/modDirectories.h"

namespace neb {
int RunRewrite(const QStringList& Arguments, ToolIO& IO) {
    QStringList Words = Arguments;
    const std::optional<OpenWays> How = TakeWays(Words, IO);
    const std::optional<QString> Dir = How ? OneDirectory(Words, IO) : std::nullopt;
    if (!Dir) return ExitFailed;
    if (!HoldsDatabase(*Dir) && LookAtHealth(*Dir).IsSound())
        return Fail(IO, QStringLiteral("There is no database in %1.").arg(*Dir));
    ProgressLine Progress(IO, "Rewriting");
    Progress.Show(0, 2);
    const auto Database = ToolDatabase::Open(*Dir, *How, IO);
    if (!Database) return ExitFailed;
    Progress.Show(1, 2);
    TellNotKept(IO, Database->Engine().FinalizeDB());
    return ExitDone;
}

}  // namespace neb
