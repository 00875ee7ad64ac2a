#include "tools/modSandbox.h"

#include <algorithm>

#include "pictures/workers/ReadingLocked.h"
#include "support/locked/LockWords.h"
#include "tools/words/JsonWriter.h"

namespace neb {
namespace {

void PrintText(const std::vector<NamedLock>& All, ToolIO& IO) {
    for (const NamedLock& Each : All) {
        PrintLine(IO.Out, Each.Name);
        for (const QString& Line : LockLines(Each.Report))
            PrintLine(IO.Out, QStringLiteral("  ") + Line);
    }
}

void PrintJson(const std::vector<NamedLock>& All, ToolIO& IO) {
    JsonWriter Json(IO.Out);
    Json.BeginObject();
    Json.BeginList("Readers");
    for (const auto& [Name, Report] : All) {
        Json.BeginObject();
        Json.Value("Name", Name);
        Json.Value("SystemCalls", static_cast<std::int32_t>(Report.SystemCalls));
        Json.Value("NoNewPrivileges", Report.NoNewPrivileges);
        Json.Value("Limits", Report.Limits);
        Json.Value("Landlock", static_cast<std::int32_t>(Report.Landlock));
        Json.Value("EmptyRoot", Report.EmptyRoot);
        Json.Value("OwnNetwork", Report.OwnNetwork);
        Json.EndObject();
    }
    Json.EndList();
    Json.EndObject();
}

}  // namespace

int RunSandbox(const QStringList& Arguments, ToolIO& IO) {
    const bool AsJson = Arguments == QStringList(QStringLiteral("--json"));
    if (!Arguments.isEmpty() && !AsJson)
        return Fail(IO, QStringLiteral("nebctl sandbox takes --json or nothing."));
    const std::vector<NamedLock> All = TheLockedReading().Reports();
    AsJson ? PrintJson(All, IO) : PrintText(All, IO);
    const bool AreFull =
        std::ranges::all_of(All, [](const NamedLock& Each) { return Each.Report.IsFull(); });
    return AreFull ? ExitDone : ExitFound;
}

}  // namespace neb
