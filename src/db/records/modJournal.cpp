#include "db/records/modJournal.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <functional>
#include <span>

#include "db/records/Generations.h"
#include "db/records/JournalForm.h"
#include "db/records/KeptAside.h"
#include "db/records/RecordSums.h"
#include "db/records/SessionJournal.h"
#include "db/records/WordsFile.h"
#include "support/Fault.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/files/modHostFilesAccess.h"

namespace neb {
namespace {

constexpr std::array FilesWrittenTogether = {RecordFile::Albums, RecordFile::Slides,
                                             RecordFile::SlideShows, RecordFile::SlideShowDetails,
                                             RecordFile::SlideShowSoundTracks};

QString TempFolder(const QString& DBPath) {
    return DBPath + QStringLiteral("Temp/");
}

// A folder of its own: the end of the program empties Temp of its files before it writes, which
// must not take a journal along that an earlier try could not carry out.
QString JournalFolder(const QString& DBPath) {
    return TempFolder(DBPath) + QStringLiteral("Journal/");
}

// A journal comes into being under another name, so that one that is whole already, left by a
// write that failed later, is not lost while the next one is being written.
QString UnfinishedPath(const QString& DBPath) {
    return JournalPath(DBPath) + QStringLiteral(".new");
}

void DeleteIfPossible(const QString& Path) {
    try {
        DeleteFile(Path);
    } catch (const Fault&) {
        // It does no harm: it is not whole, and the next journal takes its place.
    }
}

// Whether the files are still all those that a sound journal takes the place of, and were whole
// then.
bool IsBoundToAll(const QString& DBPath, const QByteArray& Journal) {
    return journal::IsOverWhole(Journal) &&
           std::ranges::all_of(journal::FilesOf(Journal), [&](RecordFile File) {
               return journal::BaseOf(RecordPath(DBPath, File)) == journal::BaseIn(Journal, File);
           });
}

// Half: left by a write whose journal is still there.
enum class FilesThere { Whole, Half };

FilesThere LookAtFiles(const QString& DBPath) {
    if (!FileExists(JournalPath(DBPath))) return FilesThere::Whole;
    const QByteArray Journal = ReadFile(JournalPath(DBPath));
    const bool Half = journal::IsSound(Journal) && !IsBoundToAll(DBPath, Journal);
    return Half ? FilesThere::Half : FilesThere::Whole;
}

// The check sum of what was written.
QByteArray WriteUnfinishedJournal(const QString& DBPath, const RecordImage& Image) {
    const bool OverHalf = LookAtFiles(DBPath) == FilesThere::Half;
    const QByteArray Head = journal::HeadFor(DBPath, Image, OverHalf);
    HostWriter Writer(UnfinishedPath(DBPath));
    QCryptographicHash Sum(QCryptographicHash::Blake2b_256);
    const auto Put = [&](const QByteArray& Bytes) {
        Sum.addData(Bytes);
        Writer.Write(Bytes.constData(), Bytes.size());
    };
    Put(Head);
    for (const PackedRecords& File : Image.Files) Put(File.Bytes());
    if (Image.Words) Put(*Image.Words);
    Writer.Write(Sum.result().constData(), journal::SumLength);
    Writer.Sync();
    Writer.Close();
    return Sum.result();
}

// Its name, and those of the folders above, which may have been made a moment ago, by a program
// that was killed then.
void SyncJournalNames(const QString& DBPath) {
    SyncDir(JournalFolder(DBPath));
    SyncDir(TempFolder(DBPath));
    SyncDir(DBPath);
}

// BeforeItIsWhole gets its check sum.
void WriteJournal(const QString& DBPath, const RecordImage& Image,
                  const std::function<void(const QByteArray& Sum)>& BeforeItIsWhole = {}) {
    MakeDirsIn(DBPath, JournalFolder(DBPath));
    try {
        const QByteArray Sum = WriteUnfinishedJournal(DBPath, Image);
        if (BeforeItIsWhole) BeforeItIsWhole(Sum);
        RenameFile(UnfinishedPath(DBPath), JournalPath(DBPath));
    } catch (const Fault&) {
        DeleteIfPossible(UnfinishedPath(DBPath));
        throw;
    }
    SyncJournalNames(DBPath);
}

void WriteContent(HostWriter& Writer, const RecordImage& Image, RecordFile File) {
    if (File == RecordFile::Words)
        return Writer.Write(Image.Words->constData(), Image.Words->size());
    Image[File].Unpack([&](const char* Data, qint64 Length) { Writer.Write(Data, Length); });
}

// Deleted, made anew, written whole, flushed. Of no whole texts there is no file.
void WriteFiles(const QString& DBPath, const RecordImage& Image,
                std::span<const RecordFile> Files) {
    for (const RecordFile File : Files) DeleteFile(RecordPath(DBPath, File));
    std::vector<std::pair<RecordFile, std::unique_ptr<HostWriter>>> Writers;
    for (const RecordFile File : Files)
        if (File != RecordFile::Words || !Image.Words->isEmpty())
            Writers.emplace_back(File, std::make_unique<HostWriter>(RecordPath(DBPath, File)));
    for (const auto& [File, Writer] : Writers) WriteContent(*Writer, Image, File);
    for (const auto& [File, Writer] : Writers) Writer->Sync();
    for (const auto& [File, Writer] : Writers) Writer->Close();
}

std::vector<RecordFile> WrittenTogether(const QString& DBPath, const RecordImage& Image) {
    std::vector<RecordFile> Files(FilesWrittenTogether.begin(), FilesWrittenTogether.end());
    if (journal::IsAboutWords(DBPath, Image)) Files.push_back(RecordFile::Words);
    return Files;
}

// Why the state before could not be kept, if it could not: the journal holds the new one, which
// must not wait for that.
std::optional<Fault> CarryOut(const QString& DBPath, const RecordImage& Image, FilesThere Are) {
    std::optional<Fault> NotKept;
    if (Are == FilesThere::Whole) NotKept = KeepGenerationBefore(DBPath, Image);
    if (!FileExists(JournalPath(DBPath)))  // the disk was taken away: what is here is not it
        throw Fault(tr("The database is not there any more."), DBPath);
    for (const RecordFile File :
         {RecordFile::Properties, RecordFile::EffectStats, RecordFile::NextIDs})
        WriteFiles(DBPath, Image, std::span(&File, 1));
    WriteFiles(DBPath, Image, WrittenTogether(DBPath, Image));
    SyncDir(DBPath);
    NoteRecordsAgain(DBPath);  // without the journal they stand by themselves
    DeleteFile(JournalPath(DBPath));
    SyncDir(JournalFolder(DBPath));
    ThinOutGenerations(DBPath);
    return NotKept;
}

// Of a whole journal; empty when there is none.
QByteArray WholeSum(const QString& DBPath) {
    if (!FileExists(JournalPath(DBPath))) return {};
    const QByteArray Journal = ReadFile(JournalPath(DBPath));
    return journal::IsSound(Journal) ? Journal.last(journal::SumLength) : QByteArray();
}

// Byte by byte: what a loss of power has kept from the disk reads as zeros.
bool IsWrittenSoFar(QByteArrayView There, const char* New) {
    return std::equal(There.begin(), There.end(), New,
                      [](char Is, char Will) { return Is == Will || Is == 0; });
}

// Whether what is there can be the beginning of what is being written.
bool IsBeginningOf(const PackedRecords& New, const QString& Path) {
    HostReader Reader(Path);
    if (Reader.Length() > New.Length()) return false;
    bool Same = true;
    QByteArray There;
    New.Unpack([&](const char* Data, qint64 Length) {
        if (!Same) return;
        There.resize(Length);
        const qint64 Got = Reader.Read(There.data(), Length);
        Same = IsWrittenSoFar(QByteArrayView(There).first(Got), Data);
    });
    return Same;
}

// A carrying out that was cut short leaves files of before, none, and beginnings of the new ones.
// Anything else has been put there since by somebody else; the whole texts go with the records.
bool FilesWereReplaced(const QString& DBPath, const QByteArray& Journal, const RecordImage& Image) {
    if (!journal::KnowsFiles(Journal)) return false;
    for (const RecordFile File : AllRecordFiles) {
        const QString Path = RecordPath(DBPath, File);
        if (FileExists(Path) && journal::BaseOf(Path) != journal::BaseIn(Journal, File) &&
            !IsBeginningOf(Image[File], Path))
            return true;
    }
    return false;
}

// The session that it has all of goes first: without the journal it would be taken for one of other
// records.
void FinishWrite(const QString& DBPath, const RecordImage& Image, QString& NotKept) {
    if (LookForSession(DBPath).Is == FoundSession::State::IsStored) DropSessionJournal(DBPath);
    if (const auto Problem = CarryOut(DBPath, Image, LookAtFiles(DBPath)))
        NotKept = Problem->Text();
}

// With the files that were to come with it.
QStringList PutJournalAside(const QString& DBPath) {
    const qint64 Now = QDateTime::currentMSecsSinceEpoch();
    QStringList Kept;
    if (HasStagedFiles(DBPath)) Kept << PutAside(StagingFolder(DBPath).chopped(1), Now);
    Kept << PutAside(JournalPath(DBPath), Now);
    return Kept;
}

}  // namespace

RecordSource RecordsInImage(RecordImage Image) {
    return [Image = std::move(Image)](RecordFile File) -> std::optional<RecordBytes> {
        if (File != RecordFile::Words) return Image[File].Unpack();
        if (!Image.Words || Image.Words->isEmpty()) return std::nullopt;
        return *Image.Words;
    };
}

RecordSource RecordsAsLeft(const QString& DBPath) {
    RecordImage Image;
    RecordSource There = RecordsInDirectory(DBPath);
    if (ReadJournal(DBPath, &Image) != JournalState::Whole) return There;
    if (!Image.Words) Image.Words = WordBytesOf(There);
    return RecordsInImage(std::move(Image));
}

QString JournalPath(const QString& DBPath) {
    return JournalFolder(DBPath) + QStringLiteral("Records.journal");
}

std::optional<RecordImage> RecordsInJournal(const QByteArray& Journal) {
    return journal::IsSound(Journal) ? journal::Unfold(Journal) : std::nullopt;
}

JournalState ReadJournal(const QString& DBPath, RecordImage* Image) {
    const QString Path = JournalPath(DBPath);
    if (!FileExists(Path))
        return FileExists(UnfinishedPath(DBPath)) ? JournalState::Torn : JournalState::None;
    const QByteArray Journal = ReadFile(Path);
    std::optional<RecordImage> Content = RecordsInJournal(Journal);
    if (!Content) return JournalState::Torn;
    if (FilesWereReplaced(DBPath, Journal, *Content)) return JournalState::Foreign;
    if (Image) *Image = std::move(*Content);
    return JournalState::Whole;
}

std::optional<Fault> WriteDatabase(const QString& DBPath, const RecordImage& Image) {
    if (!FolderExists(DBPath)) throw Fault(tr("The database directory is not there."), DBPath);
    SettleCommitted(DBPath);  // before the journal that it goes with is replaced
    const FilesThere Are = LookAtFiles(DBPath);
    WriteJournal(DBPath, Image);
    DropSessionJournal(DBPath);  // the records that are being written have all of it
    return CarryOut(DBPath, Image, Are);
}

void CommitDatabase(const QString& DBPath, const RecordImage& Image, const StagedChange& Files) {
    WriteJournal(DBPath, Image,
                 [&](const QByteArray& Sum) { NoteStagedChange(DBPath, Files, Sum); });
    try {
        DropSessionJournal(DBPath);
    } catch (const Fault&) {
        return;  // it is known to be older, and the next start drops it
    }
}

std::optional<Fault> SettleCommitted(const QString& DBPath) {
    if (!HasStagedFiles(DBPath)) return std::nullopt;
    return SettleStagedFiles(DBPath, WholeSum(DBPath));
}

std::map<QString, QString> CommittedPlaces(const QString& DBPath) {
    if (!HasStagedFiles(DBPath)) return {};
    return StagedPlaces(DBPath, WholeSum(DBPath));
}

QString WhyNotWritable(const QString& DBPath) {
    if (!CanWriteInto(DBPath)) return DBPath;
    const QString Counters = RecordPath(DBPath, RecordFile::NextIDs);
    if (FileExists(Counters) && IsReadOnly(Counters)) return Counters;
    for (const QString& Folder : {TempFolder(DBPath), JournalFolder(DBPath)})
        if (NameExists(Folder.chopped(1)) && !CanWriteInto(Folder)) return Folder;
    QStringList Files{RecordPath(DBPath, RecordFile::Words)};
    for (const RecordFile File : AllRecordFiles) Files << RecordPath(DBPath, File);
    for (const QString& Path : Files)
        if (NameExists(Path) && !MayWrite(Path)) return Path;
    return {};
}

bool MayWriteDatabase(const QString& DBPath) {
    return WhyNotWritable(DBPath).isEmpty();
}

bool HoldsDatabase(const QString& DBPath) {
    const bool HasRecords =
        std::any_of(AllRecordFiles.begin(), AllRecordFiles.end(), [&](RecordFile File) {
            return File != RecordFile::Properties && File != RecordFile::EffectStats &&
                   FileSize(RecordPath(DBPath, File)) > 0;
        });
    return HasRecords || NameExists(RecordPath(DBPath, RecordFile::NextIDs)) ||
           ReadJournal(DBPath) == JournalState::Whole;
}

bool RecoverDatabase(const QString& DBPath, QStringList& KeptAside, QString& NotKept) {
    RecordImage Image;
    const JournalState State = ReadJournal(DBPath, &Image);
    const bool IsDamaged = State == JournalState::Torn && FileExists(JournalPath(DBPath));
    if (State == JournalState::Foreign || IsDamaged) KeptAside += PutJournalAside(DBPath);
    try {
        if (State == JournalState::Whole) SyncJournalNames(DBPath);
        SettleCommitted(DBPath);
        if (State == JournalState::Whole) FinishWrite(DBPath, Image, NotKept);
        if (!WordsOf(RecordsInDirectory(DBPath)).IsUsable())
            KeptAside << PutAside(RecordPath(DBPath, RecordFile::Words),
                                  QDateTime::currentMSecsSinceEpoch());
    } catch (const Fault&) {
        return false;
    }
    DeleteIfPossible(UnfinishedPath(DBPath));
    return true;
}

}  // namespace neb
