#include "tools/modRestoreState.h"

#include "db/recovery/StateDifferences.h"
#include "db/recovery/modRestore.h"
#include "tools/modHistory.h"
#include "tools/words/ToolDatabase.h"
#include "tools/words/modDirectories.h"
#include "tools/words/modWords.h"

namespace neb {
namespace {

constexpr int MostStates = 1'000'000;

struct RestoreOrder {
    QString Dir;
    int Number = 0;  // as the history counts
};

std::optional<RestoreOrder> ReadRestoreOrder(QStringList Words, ToolIO& IO) {
    const auto Number = Words.size() == 2 ? WholeNumber(Words[1], 1, MostStates) : std::nullopt;
    if (!Number) {
        Fail(IO, QStringLiteral("A database directory and a number of nebctl history are wanted; "
                                "see nebctl restore --help."));
        return std::nullopt;
    }
    const std::optional<QString> Dir = OneDirectory({Words[0]}, IO);
    if (!Dir) return std::nullopt;
    return RestoreOrder{*Dir, *Number};
}

void PrintAll(ToolIO& IO, const QStringList& Lines) {
    for (const QString& Line : Lines) PrintLine(IO.Out, Line);
}

QString WhatIsMissing(qsizetype Count) {
    return Count == 1 ? QStringLiteral("1 picture or sound that the records name is missing.")
                      : QStringLiteral("%1 pictures or sounds that the records name are missing.")
                            .arg(Count);
}

int Restore(clsDBEngine& Engine, const Generation& Which, ToolIO& IO) {
    const auto Then = OpenGeneration(Which, Engine.DBPath());
    if (!Then) return Fail(IO, QStringLiteral("It is damaged: %1").arg(Which.Path));
    PrintAll(IO, Compare(*Then, Engine).Sentences());
    const QStringList Missing = MissingFiles(*Then);
    for (const QString& Each : Missing) PrintLine(IO.Out, QStringLiteral("missing: ") + Each);
    try {
        RestoreState(Engine, *Then);
    } catch (const Fault& Problem) {
        if (ReadJournal(Engine.DBPath()) != JournalState::Whole) throw;
        return Fail(IO, QStringLiteral("The albums are restored, but the records are not all "
                                       "written; nebctl rewrite or the next start of the program "
                                       "will do it. %1")
                            .arg(Problem.Text().replace(u'\n', u' ')));
    }
    PrintLine(IO.Out, QStringLiteral("The albums are as they were saved on %1. Those of before are "
                                     "kept; see nebctl history.")
                          .arg(TextOfTime(Which)));
    if (Missing.isEmpty()) return ExitDone;
    PrintLine(IO.Out, WhatIsMissing(Missing.size()));
    return ExitFound;
}

}  // namespace

int RunRestore(const QStringList& Arguments, ToolIO& IO) {
    QStringList Words = Arguments;
    const std::optional<OpenWays> How = TakeWays(Words, IO);
    const std::optional<RestoreOrder> Order = How ? ReadRestoreOrder(Words, IO) : std::nullopt;
    if (!Order) return ExitFailed;
    const std::vector<Generation> All = ListGenerations(Order->Dir);
    if (static_cast<size_t>(Order->Number) > All.size())
        return Fail(IO, QStringLiteral("There is no earlier state %1; nebctl history lists those "
                                       "that there are: %2.")
                            .arg(Order->Number)
                            .arg(All.size()));
    const auto Database = ToolDatabase::Open(Order->Dir, *How, IO);
    if (!Database) return ExitFailed;
    return Restore(Database->Engine(), All[static_cast<size_t>(Order->Number) - 1], IO);
}

}  // namespace neb
