#include "tools/modCheck.h"

#include "db/records/modJournal.h"
#include "support/files/CheckSums.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"
#include "tools/modCheckFiles.h"
#include "tools/modCheckRecords.h"
#include "tools/modCheckSums.h"
#include "tools/modCommands.h"

namespace neb {
namespace {

// The records as the next start will see them. Also says what became of the last write.
RecordSource CheckJournal(const QString& Dir, Findings& Found) {
    RecordImage Image;
    const JournalState State = ReadJournal(Dir, &Image);
    if (State == JournalState::None) return RecordsInDirectory(Dir);
    Found.Add(State == JournalState::Whole
                  ? QStringLiteral("the last write did not come to its end; the next start of the "
                                   "program will complete it")
                  : QStringLiteral("a write was given up at its beginning; the next start of the "
                                   "program will forget it"));
    return State == JournalState::Whole ? RecordsInImage(std::move(Image))
                                        : RecordsInDirectory(Dir);
}

// A directory without any record file is a new database, and nothing is wrong with it.
bool HasRecordFiles(const RecordSource& Source) {
    return std::any_of(AllRecordFiles.begin(), AllRecordFiles.end(),
                       [&](RecordFile File) { return Source(File).has_value(); });
}

void CheckDatabase(const QString& Dir, Findings& Found, ToolIO& IO) {
    ProgressLine Progress(IO, "Checking");
    const RecordSource Source = CheckJournal(Dir, Found);
    if (HasRecordFiles(Source)) CheckRecords(Source, Found);
    // Pictures that still wait in Temp would all be called missing.
    if (!CommittedPlaces(Dir).empty())
        return Found.Add(
            QStringLiteral("the files of a transfer are not all in their places yet; "
                           "the next start of the program will put them there"));
    if (HasStagedFiles(Dir))
        Found.Add(
            QStringLiteral("a transfer was cut off; the next start of the program will remove "
                           "what it has left in Temp"));
    clsDBEngine Engine;
    Engine.SetDBPath(Dir);
    Engine.LoadFrom(Source);
    CheckAlbumFiles(Engine, Found, Progress);
}

// The list lies at the top of what was written to a disc: that may be the documents folder above
// the database.
QString FolderOfSums(const QString& Named, const QString& Dir) {
    const QString Top = WithSeparator(Named);
    return FileExists(Top + QLatin1String(SumsName)) ? Top : Dir;
}

}  // namespace

int RunCheck(const QStringList& Arguments, ToolIO& IO) {
    QStringList Words = Arguments;
    const bool WithFiles = Words.removeAll(QStringLiteral("--files")) > 0;
    const std::optional<QString> Dir = OneDirectory(Words, IO);
    if (!Dir) return ExitFailed;
    Findings Found(IO);
    CheckDatabase(*Dir, Found, IO);
    if (WithFiles) CompareWithSums(FolderOfSums(Words[0], *Dir), Found, IO);
    return Found.Count() == 0 ? ExitDone : ExitFound;
}

}  // namespace neb
