#include "db/records/modJournal.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QtEndian>
#include <functional>
#include <span>

#include "db/records/Generations.h"
#include "db/records/KeptAside.h"
#include "db/records/RecordSums.h"
#include "db/records/SessionJournal.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"
#include "support/files/modHostFilesAccess.h"

namespace neb {
namespace {

// Magic; for each file the packed and the unpacked length; for each file the length and the check
// sum of the one that it takes the place of; the packed files; the check sum of all that. Journals
// of the first kind do not know which files they replace; those of the half kind replace what a
// write has left that came to no end, which is no state to go back to.
constexpr QByteArrayView Magic = "NEBJRNL2", FirstMagic = "NEBJRNL1", HalfMagic = "NEBJRNL3";
constexpr qsizetype CountLength = 8;
constexpr qsizetype FileCount = static_cast<qsizetype>(RecordFileCount);
constexpr qsizetype BaseStart = 8 + 2 * CountLength * FileCount;
constexpr auto Method = QCryptographicHash::Blake2b_256;
constexpr qsizetype SumLength = 32;
constexpr qsizetype BaseLength = CountLength + SumLength;
constexpr qint64 NoFile = -1;

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

QByteArray Count(qint64 Number) {
    QByteArray Bytes(CountLength, Qt::Uninitialized);
    qToLittleEndian(Number, Bytes.data());
    return Bytes;
}

// A record file as it is now: its length and check sum.
QByteArray BaseOf(const QString& Path) {
    if (!FileExists(Path)) return Count(NoFile) + QByteArray(SumLength, '\0');
    HostReader Reader(Path);
    QCryptographicHash Sum(Method);
    QByteArray Room(1 << 20, Qt::Uninitialized);
    for (qint64 Got; (Got = Reader.Read(Room.data(), Room.size())) > 0;)
        Sum.addData(QByteArrayView(Room).first(Got));
    return Count(Reader.Length()) + Sum.result();
}

// Where the packed files begin; 0 for what is no journal.
qsizetype HeadLengthOf(const QByteArray& Journal) {
    if (Journal.startsWith(FirstMagic)) return BaseStart;
    const bool IsBound = Journal.startsWith(Magic) || Journal.startsWith(HalfMagic);
    return IsBound ? BaseStart + BaseLength * FileCount : 0;
}

bool IsSound(const QByteArray& Journal) {
    const qsizetype Head = HeadLengthOf(Journal);
    if (Head == 0 || Journal.size() < Head + SumLength) return false;
    const QByteArrayView Covered = QByteArrayView(Journal).chopped(SumLength);
    QCryptographicHash Sum(Method);
    Sum.addData(Covered);
    return Sum.result() == QByteArrayView(Journal).last(SumLength);
}

QByteArray BaseIn(const QByteArray& Journal, RecordFile File) {
    return Journal.sliced(BaseStart + BaseLength * static_cast<qsizetype>(File), BaseLength);
}

// Whether the record files are still all those that a sound journal takes the place of, and were
// whole then.
bool IsBoundToAll(const QString& DBPath, const QByteArray& Journal) {
    return Journal.startsWith(Magic) &&
           std::all_of(AllRecordFiles.begin(), AllRecordFiles.end(), [&](RecordFile File) {
               return BaseOf(RecordPath(DBPath, File)) == BaseIn(Journal, File);
           });
}

// Half: left by a write whose journal is still there.
enum class FilesThere { Whole, Half };

FilesThere LookAtFiles(const QString& DBPath) {
    if (!FileExists(JournalPath(DBPath))) return FilesThere::Whole;
    const QByteArray Journal = ReadFile(JournalPath(DBPath));
    const bool Half = IsSound(Journal) && !IsBoundToAll(DBPath, Journal);
    return Half ? FilesThere::Half : FilesThere::Whole;
}

QByteArray JournalHead(const QString& DBPath, const RecordImage& Image) {
    const bool OverHalf = LookAtFiles(DBPath) == FilesThere::Half;
    QByteArray Head = (OverHalf ? HalfMagic : Magic).toByteArray();
    for (const PackedRecords& File : Image.Files)
        Head += Count(File.Bytes().size()) + Count(File.Length());
    for (const RecordFile File : AllRecordFiles) Head += BaseOf(RecordPath(DBPath, File));
    return Head;
}

// The check sum of what was written.
QByteArray WriteUnfinishedJournal(const QString& DBPath, const RecordImage& Image) {
    const QByteArray Head = JournalHead(DBPath, Image);
    HostWriter Writer(UnfinishedPath(DBPath));
    QCryptographicHash Sum(Method);
    const auto Put = [&](const QByteArray& Bytes) {
        Sum.addData(Bytes);
        Writer.Write(Bytes.constData(), Bytes.size());
    };
    Put(Head);
    for (const PackedRecords& File : Image.Files) Put(File.Bytes());
    Writer.Write(Sum.result().constData(), SumLength);
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

// Deleted, made anew, written whole, flushed.
void WriteFiles(const QString& DBPath, const RecordImage& Image,
                std::span<const RecordFile> Files) {
    for (const RecordFile File : Files) DeleteFile(RecordPath(DBPath, File));
    std::vector<std::unique_ptr<HostWriter>> Writers;
    for (const RecordFile File : Files)
        Writers.push_back(std::make_unique<HostWriter>(RecordPath(DBPath, File)));
    for (size_t I = 0; I < Files.size(); ++I)
        Image[Files[I]].Unpack(
            [&](const char* Data, qint64 Length) { Writers[I]->Write(Data, Length); });
    for (const auto& Writer : Writers) Writer->Sync();
    for (const auto& Writer : Writers) Writer->Close();
}

// Why the state before could not be kept, if it could not: the journal holds the new one, which
// must not wait for that.
std::optional<Fault> CarryOut(const QString& DBPath, const RecordImage& Image, FilesThere Are) {
    std::optional<Fault> NotKept;
    if (Are == FilesThere::Whole) NotKept = KeepGenerationBefore(DBPath, Image);
    if (!FileExists(JournalPath(DBPath)))  // the disk was taken away: what is here is not it
        throw Fault(QStringLiteral("The database is not there any more."), DBPath);
    for (const RecordFile File :
         {RecordFile::Properties, RecordFile::EffectStats, RecordFile::NextIDs})
        WriteFiles(DBPath, Image, std::span(&File, 1));
    WriteFiles(DBPath, Image, FilesWrittenTogether);
    SyncDir(DBPath);
    NoteRecordsAgain(DBPath);  // without the journal they stand by themselves
    DeleteFile(JournalPath(DBPath));
    SyncDir(JournalFolder(DBPath));
    ThinOutGenerations(DBPath);
    return NotKept;
}

qint64 CountAt(const QByteArray& Journal, size_t Index) {
    return qFromLittleEndian<qint64>(Journal.constData() + Magic.size() +
                                     static_cast<qsizetype>(Index) * CountLength);
}

// Of a whole journal; empty when there is none.
QByteArray WholeSum(const QString& DBPath) {
    if (!FileExists(JournalPath(DBPath))) return {};
    const QByteArray Journal = ReadFile(JournalPath(DBPath));
    return IsSound(Journal) ? Journal.last(SumLength) : QByteArray();
}

bool Unfold(const QByteArray& Journal, RecordImage& Image) {
    qsizetype Place = HeadLengthOf(Journal);
    const qsizetype End = Journal.size() - SumLength;
    for (size_t I = 0; I < RecordFileCount; ++I) {
        const qint64 Packed = CountAt(Journal, 2 * I);
        if (Packed < 0 || Packed > End - Place) return false;
        auto File =
            PackedRecords::FromBytes(Journal.mid(Place, Packed), CountAt(Journal, 2 * I + 1));
        if (!File) return false;
        Image.Files[I] = std::move(*File);
        Place += Packed;
    }
    return Place == End;
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
// Anything else has been put there since by somebody else.
bool FilesWereReplaced(const QString& DBPath, const QByteArray& Journal, const RecordImage& Image) {
    if (Journal.startsWith(FirstMagic)) return false;
    for (const RecordFile File : AllRecordFiles) {
        const QString Path = RecordPath(DBPath, File);
        if (FileExists(Path) && BaseOf(Path) != BaseIn(Journal, File) &&
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
    return [Image = std::move(Image)](RecordFile File) { return Image[File].Unpack(); };
}

QString JournalPath(const QString& DBPath) {
    return JournalFolder(DBPath) + QStringLiteral("Records.journal");
}

std::optional<RecordImage> RecordsInJournal(const QByteArray& Journal) {
    RecordImage Content;
    if (!IsSound(Journal) || !Unfold(Journal, Content)) return std::nullopt;
    return Content;
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
    if (!FolderExists(DBPath))
        throw Fault(QStringLiteral("The database directory is not there."), DBPath);
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
    for (const RecordFile File : AllRecordFiles)
        if (const QString Path = RecordPath(DBPath, File); NameExists(Path) && !MayWrite(Path))
            return Path;
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
    } catch (const Fault&) {
        return false;
    }
    DeleteIfPossible(UnfinishedPath(DBPath));
    return true;
}

}  // namespace neb
