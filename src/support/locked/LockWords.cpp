#include "support/locked/LockWords.h"

#include <algorithm>

#include "support/Texts.h"

namespace neb {

LockReport Weaker(const LockReport& One, const LockReport& Other) {
    return {std::min(One.SystemCalls, Other.SystemCalls),
            std::min(One.Landlock, Other.Landlock),
            One.EmptyRoot && Other.EmptyRoot,
            One.OwnNetwork && Other.OwnNetwork,
            One.NoNewPrivileges && Other.NoNewPrivileges,
            One.Limits && Other.Limits};
}

QString LockSentence(const LockReport& Report) {
    if (Report.IsFull()) return tr("Foreign pictures and sounds are read in a locked room.");
    if (Report.IsLocked())
        return tr(
            "Foreign pictures and sounds are read in a locked room, with fewer "
            "locks than this program knows: nebctl sandbox lists them.");
    return tr(
        "This system cannot lock the room in which foreign pictures and sounds "
        "are read: nebctl sandbox tells what is missing.");
}

QStringList LockLines(const LockReport& Report) {
    const auto Line = [](const char* What, bool Is, const QString& Yes, const char* No) {
        return QStringLiteral("%1  %2")
            .arg(QLatin1String(What), -14)
            .arg(Is ? Yes : QLatin1String(No));
    };
    return {
        Line("System calls", Report.SystemCalls > 0,
             QStringLiteral("%1 are allowed, any other ends the reader").arg(Report.SystemCalls),
             "NOT LIMITED: there is no filter for them here"),
        Line("Privileges", Report.NoNewPrivileges, QStringLiteral("none can be gained"),
             "NOT FIXED: more could be gained"),
        Line("Limits", Report.Limits,
             QStringLiteral("no file opened or written; memory and time from the file's size"),
             "NOT SET"),
        Line("Files", Report.Landlock > 0,
             QStringLiteral("closed by Landlock, version %1").arg(Report.Landlock),
             "not closed by Landlock: there is none here"),
        Line("Root", Report.EmptyRoot, QStringLiteral("empty"),
             "that of the system: no namespaces here"),
        Line("Network", Report.OwnNetwork, QStringLiteral("one of its own that leads nowhere"),
             "that of the system: no namespaces here")};
}

}  // namespace neb
