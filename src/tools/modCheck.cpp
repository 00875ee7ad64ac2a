#include "tools/modCheck.h"

#include "db/modDatabaseLock.h"
#include "db/records/RecordSums.h"
#include "db/records/modJournal.h"
#include "support/files/CheckSums.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"
#include "tools/modCheckFiles.h"
#include "tools/modCheckRecords.h"
#include "tools/modCheckSums.h"
#include "tools/words/modDirectories.h"
#include "tools/words/modWords.h"

namespace neb {
namespace {

// The records as the next start will see them. Also says what became of the last write.
RecordSource CheckJournal(const QString& Dir, Findings& Found) {
    const JournalState State = ReadJournal(Dir);
    if (State == JournalState::None) return RecordsInDirectory(Dir);
    Found.Add(State == JournalState::Whole
                  ? QStringLiteral("the last write did not come to its end; the next start of the "
                                   "program will complete it")
                  : QStringLiteral("a write was given up at its beginning; the next start of the "
                                   "program will forget it"));
    return RecordsAsLeft(Dir);
}

// A directory without any record file is a new database, and nothing is wrong with it.
bool HasRecordFiles(const RecordSource& Source) {
    return std::any_of(AllRecordFiles.begin(), AllRecordFiles.end(),
                       [&](RecordFile File) { return Source(File).has_value(); });
}

// As the next start will have them, changes that a session left behind included.
clsDBEngine OpenAsLeft(const QString& Dir, Findings& Found) {
    clsDBEngine Engine;
    Engine.SetDBPath(Dir);
    Engine.InitializeDB(Recovery::InMemory);
    if (Engine.Found().Changes > 0 && InstanceLock(DatabaseLockPath(Dir)).TryLock())
        Found.Add(QStringLiteral("a session did not come to its end; the next start of the program "
                                 "will bring back %1")
                      .arg(Counted(Engine.Found().Changes, "change")));
    return Engine;
}

// The list of a disc lies at the top of what was written to it: that may be the documents folder
// above the database. It has all files, those of the albums' own lists too.
void CompareFiles(const QString& Named, const clsDBEngine& Engine, Findings& Found, ToolIO& IO) {
    for (const QString& Top : {WithSeparator(Named), Engine.DBPath()})
        if (FileExists(Top + QLatin1String(SumsName))) return CompareWithSums(Top, Found, IO);
    CheckStoredFiles(Engine, Found, IO);
}

void CheckFiles(const QString& Named, const QString& Dir, bool ReadAll, Findings& Found,
                ToolIO& IO) {
    // Pictures that still wait in Temp would all be called missing.
    if (!CommittedPlaces(Dir).empty())
        return Found.Add(
            QStringLiteral("the files of a transfer are not all in their places yet; "
                           "the next start of the program will put them there"));
    if (HasStagedFiles(Dir))
        Found.Add(
            QStringLiteral("a transfer was cut off; the next start of the program will remove "
                           "what it has left in Temp"));
    const clsDBEngine Engine = OpenAsLeft(Dir, Found);
    {
        ProgressLine Progress(IO, "Checking");
        CheckAlbumFiles(Engine, Found, Progress);
    }
    if (ReadAll) CompareFiles(Named, Engine, Found, IO);
}

}  // namespace

int RunCheck(const QStringList& Arguments, ToolIO& IO) {
    QStringList Words = Arguments;
    const bool WithFiles = Words.removeAll(QStringLiteral("--files")) > 0;
    const std::optional<QString> Dir = OneDirectory(Words, IO);
    if (!Dir) return ExitFailed;
    Findings Found(IO);
    {
        const RecordSource Source = CheckJournal(*Dir, Found);
        if (HasRecordFiles(Source)) CheckRecords(Source, Found);
        if (!Source(RecordFile::Words) && HasLostWords(*Dir))
            Found.Add(QStringLiteral("Words.dat: the file is missing"));
    }
    CheckFiles(Words[0], *Dir, WithFiles, Found, IO);
    return Found.Count() == 0 ? ExitDone : ExitFound;
}

}  // namespace neb
