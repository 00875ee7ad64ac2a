#include "tools/modCheckSums.h"

#include "albums/PictureCheck.h"
#include "db/modDatabaseLock.h"
#include "db/records/modJournal.h"
#include "support/files/CheckSums.h"
#include "support/files/modHostFiles.h"
#include "tools/words/modWords.h"

namespace neb {
namespace {

constexpr std::pair<SumsFinding::Kind, const char*> FindingWords[] = {
    {SumsFinding::Kind::Changed, "changed"},
    {SumsFinding::Kind::Missing, "missing"},
    {SumsFinding::Kind::Unreadable, "cannot be read"},
};

QString LineFor(const SumsFinding& Finding) {
    for (const auto& [Kind, Word] : FindingWords)
        if (Kind == Finding.Is) return QLatin1String(Word) + QStringLiteral(": ") + Finding.Path;
    return Finding.Path;
}

void ShowProgress(ProgressLine& Progress, const SumsProgress& Now) {
    const auto Total = static_cast<size_t>(std::max<qint64>(1, Now.OfBytes));
    Progress.Show(std::min(Total, static_cast<size_t>(Now.Bytes)), Total);
}

void TellOfLists(const PicturesChecked& Checked, ToolIO& IO) {
    if (Checked.NewLists > 0)
        PrintLine(IO.Err, Counted(Checked.NewLists, "album") +
                              QStringLiteral(" had no check sums and could not be compared; from "
                                             "now on they are kept."));
    if (Checked.WithoutLists > 0)
        PrintLine(IO.Err, Counted(Checked.WithoutLists, "album") +
                              QStringLiteral(" had no check sums and could not be compared."));
}

}  // namespace

void CompareWithSums(const QString& Dir, Findings& Found, ToolIO& IO) {
    ProgressLine Progress(IO, "Comparing");
    const auto Findings = CheckSums(Dir, [&Progress](const SumsProgress& Now) {
        ShowProgress(Progress, Now);
        return true;
    });
    for (const SumsFinding& Each : *Findings) Found.Add(LineFor(Each));
}

void CheckStoredFiles(const clsDBEngine& Engine, Findings& Found, ToolIO& IO) {
    using Kind = PictureFinding::Kind;
    InstanceLock Lock(DatabaseLockPath(Engine.DBPath()));
    const bool MayWrite = MayWriteDatabase(Engine.DBPath()) && Lock.TryLock();
    PicturesChecked Checked;
    {
        ProgressLine Progress(IO, "Comparing");
        const auto Lists = MayWrite ? SumsLists::PutRight : SumsLists::LeftAlone;
        Checked = CheckAllPictures(Engine, Lists, [&Progress](const SumsProgress& Now) {
            ShowProgress(Progress, Now);
            return true;
        });
    }
    for (const PictureFinding& Each : Checked.Found)
        if (Each.Is != Kind::Missing && Each.Is != Kind::Stray) Found.Add(Each.Line());
    TellOfLists(Checked, IO);
}

}  // namespace neb
