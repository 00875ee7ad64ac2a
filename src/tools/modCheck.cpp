#include "tools/modCheck.h"

#include "db/records/modJournal.h"
#include "tools/modCheckFiles.h"
#include "tools/modCheckRecords.h"
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

}  // namespace

int RunCheck(const QStringList& Arguments, ToolIO& IO) {
    const std::optional<QString> Dir = OneDirectory(Arguments, IO);
    if (!Dir) return ExitFailed;
    Findings Found(IO);
    ProgressLine Progress(IO, "Checking");
    const RecordSource Source = CheckJournal(*Dir, Found);
    if (HasRecordFiles(Source)) CheckRecords(Source, Found);
    clsDBEngine Engine;
    Engine.SetDBPath(*Dir);
    Engine.LoadFrom(Source);
    CheckAlbumFiles(Engine, Found, Progress);
    return Found.Count() == 0 ? ExitDone : ExitFound;
}

}  // namespace neb
