#include "tools/modCheckSums.h"

#include "support/files/CheckSums.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

constexpr std::pair<SumsFinding::Kind, const char*> Words[] = {
    {SumsFinding::Kind::Changed, "changed"},
    {SumsFinding::Kind::Missing, "missing"},
    {SumsFinding::Kind::Unreadable, "cannot be read"},
};

QString LineFor(const SumsFinding& Finding) {
    for (const auto& [Kind, Word] : Words)
        if (Kind == Finding.Is) return QLatin1String(Word) + QStringLiteral(": ") + Finding.Path;
    return Finding.Path;
}

}  // namespace

void CompareWithSums(const QString& Dir, Findings& Found, ToolIO& IO) {
    if (!FileExists(Dir + QLatin1String(SumsName)))
        return Found.Add(
            QStringLiteral("there is no %1 in %2, so that the files cannot be compared")
                .arg(QLatin1String(SumsName), Dir));
    ProgressLine Progress(IO, "Comparing");
    const auto Findings = CheckSums(Dir, [&Progress](const SumsProgress& Now) {
        const auto Total = static_cast<size_t>(std::max<qint64>(1, Now.OfBytes));
        Progress.Show(std::min(Total, static_cast<size_t>(Now.Bytes)), Total);
        return true;
    });
    for (const SumsFinding& Each : *Findings) Found.Add(LineFor(Each));
}

}  // namespace neb
