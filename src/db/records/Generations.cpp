#include "db/records/Generations.h"

#include <QCryptographicHash>
#include <QtEndian>
#include <set>

#include "db/records/RecordCodec.h"
#include "db/records/RecordPacker.h"
#include "db/records/WordsFile.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

constexpr QByteArrayView Magic = "NEBGENS1", WordsMagic = "NEBGENS2";
constexpr auto Method = QCryptographicHash::Blake2b_256;
constexpr qsizetype SumLength = 32, NumberLength = 8;
constexpr qsizetype CountsStart = 8 + 2 * NumberLength, LengthsStart = 8 + 5 * NumberLength;
constexpr qsizetype HeadLength = LengthsStart + 2 * NumberLength * qsizetype{RecordFileCount};
constexpr qsizetype LongestHead = HeadLength + NumberLength;
constexpr qint64 LatestTime = 253402300799999;  // the end of the year 9999
// A piece of 4 bytes stands for at most 255 blanks. What claims more would not fit into memory.
constexpr qint64 MostUnpacked = 64;
constexpr qsizetype ReadRoom = 1 << 18;

constexpr size_t LastOnes = 10;
constexpr int Years = 2;

QByteArray Number(qint64 Value) {
    QByteArray Bytes(NumberLength, Qt::Uninitialized);
    qToLittleEndian(Value, Bytes.data());
    return Bytes;
}

qint64 NumberAt(const QByteArray& Bytes, qsizetype Place) {
    return qFromLittleEndian<qint64>(Bytes.constData() + Place);
}

struct PackedFile {
    PackedRecords Content;
    qint64 Live = 0;  // records that are not marked as deleted; of those that have the mark
};

// Of whole records; the mark is their last field.
qint64 LiveIn(QByteArrayView Records, qsizetype Width) {
    qint64 Live = 0;
    for (qsizetype End = Width; End <= Records.size(); End += Width)
        Live += Records[End - 2] == 0 && Records[End - 1] == 0;
    return Live;
}

PackedFile PackFile(const RecordSource& State, RecordFile Which) {
    const std::optional<RecordBytes> File = State(Which);
    RecordPacker Out;
    PackedFile Result;
    if (!File) return {Out.Finish()};
    const qsizetype Width = RecordLength(Which);
    QByteArray Room(ReadRoom / Width * Width, Qt::Uninitialized);
    qint64 All = 0;
    for (qint64 Count; (Count = File->Read(Room.data(), Room.size())) > 0; All += Count) {
        Out.Add(QByteArrayView(Room).first(Count));
        Result.Live += LiveIn(QByteArrayView(Room).first(Count), Width);
    }
    // a record that is cut short is read with zeros behind it
    Result.Live += RecordCount(All, Width) - All / Width;
    Result.Content = Out.Finish();
    return Result;
}

QByteArray SumOf(QByteArrayView Bytes) {
    QCryptographicHash Sum(Method);
    Sum.addData(Bytes);
    return Sum.result();
}

// Of one that has whole texts: behind the others stands how long these are.
bool HasWords(const QByteArray& Head) {
    return Head.startsWith(WordsMagic) && Head.size() >= LongestHead;
}

qsizetype HeadLengthOf(const QByteArray& Head) {
    return HasWords(Head) ? LongestHead : HeadLength;
}

bool CanBeLength(qint64 Length) {
    return Length >= 0 && Length <= std::numeric_limits<qint64>::max() / 128;
}

// The lengths of all that a head says to follow; nothing when they cannot be.
std::optional<qint64> ContentLengthIn(const QByteArray& Head) {
    qint64 All = HasWords(Head) ? NumberAt(Head, HeadLength) : 0;
    if (!CanBeLength(All)) return std::nullopt;
    for (size_t I = 0; I < RecordFileCount; ++I) {
        const qsizetype Place = LengthsStart + 2 * NumberLength * static_cast<qsizetype>(I);
        const qint64 Packed = NumberAt(Head, Place), Length = NumberAt(Head, Place + NumberLength);
        if (!CanBeLength(Packed) || Length < 0 || Length > Packed * MostUnpacked)
            return std::nullopt;
        All += Packed;
    }
    return All;
}

bool IsTime(qint64 When) {
    return When >= 0 && When <= LatestTime;
}

// From its first bytes, where they go with a file of this length.
std::optional<Generation> AboutIn(const QByteArray& Head, qint64 FileLength) {
    if (Head.size() < HeadLength || !(Head.startsWith(Magic) || HasWords(Head)))
        return std::nullopt;
    const auto Content = ContentLengthIn(Head);
    if (!Content || *Content != FileLength - HeadLengthOf(Head) - SumLength) return std::nullopt;
    Generation About;
    About.Saved = NumberAt(Head, 8);
    About.Kept = NumberAt(Head, 8 + NumberLength);
    About.Albums = NumberAt(Head, CountsStart);
    About.Slides = NumberAt(Head, CountsStart + NumberLength);
    About.SlideShows = NumberAt(Head, CountsStart + 2 * NumberLength);
    const bool IsOne = IsTime(About.Saved) && IsTime(About.Kept) && About.Albums >= 0 &&
                       About.Slides >= 0 && About.SlideShows >= 0;
    return IsOne ? std::optional(About) : std::nullopt;
}

// One that cannot be read is none to go back to.
std::optional<Generation> AboutAt(const QString& Path) {
    try {
        return AboutIn(ReadFileHead(Path, LongestHead), FileSize(Path));
    } catch (const Fault&) {
        return std::nullopt;
    }
}

// The last kept first. By their heads alone: those that are damaged further down are among them.
std::vector<Generation> HeadsIn(const QString& DBPath) {
    std::vector<Generation> Found;
    const QString Folder = GenerationsFolder(DBPath);
    for (const QString& Name : ListMask(Folder + QStringLiteral("*.nebgen"))) {
        auto About = AboutAt(Folder + Name);
        if (!About) continue;
        About->Path = Folder + Name;
        Found.push_back(std::move(*About));
    }
    std::sort(Found.begin(), Found.end(), [](const Generation& One, const Generation& Other) {
        return std::pair(One.Kept, One.Path) > std::pair(Other.Kept, Other.Path);
    });
    return Found;
}

bool IsWhole(const QString& Path) {
    HostReader Reader(Path);
    QCryptographicHash Sum(Method);
    QByteArray Room(ReadRoom, Qt::Uninitialized);
    for (qint64 Left = Reader.Length() - SumLength; Left > 0;) {
        const qint64 Got = Reader.Read(Room.data(), std::min<qint64>(Left, Room.size()));
        if (Got <= 0) return false;
        Sum.addData(QByteArrayView(Room).first(Got));
        Left -= Got;
    }
    return Reader.Read(Room.data(), SumLength) == SumLength &&
           Sum.result() == QByteArrayView(Room).first(SumLength);
}

bool IsReadableAndWhole(const Generation& Each) {
    try {
        return IsWhole(Each.Path);
    } catch (const Fault&) {
        return false;
    }
}

// The records without the times.
QByteArrayView RecordsOf(const QByteArray& Bytes) {
    return QByteArrayView(Bytes).sliced(CountsStart).chopped(SumLength);
}

bool HoldsRecordsOf(const Generation& Newest, const QByteArray& Bytes) {
    if (FileSize(Newest.Path) != Bytes.size()) return false;
    const QByteArray There = ReadFile(Newest.Path);
    return GenerationIn(There) && RecordsOf(There) == RecordsOf(Bytes);
}

// People look into the folder, too.
QString FreePath(const QString& DBPath, qint64 Saved) {
    const QString Stem = GenerationsFolder(DBPath) + QStringLiteral("Albums ") +
                         QDateTime::fromMSecsSinceEpoch(Saved).toString(u"yyyy-MM-dd hh.mm.ss");
    QString Path = Stem + QStringLiteral(".nebgen");
    for (int I = 2; NameExists(Path); ++I) Path = QStringLiteral("%1 (%2).nebgen").arg(Stem).arg(I);
    return Path;
}

void MakeFolder(const QString& DBPath) {
    if (FolderExists(GenerationsFolder(DBPath))) return;
    MakeDirsIn(DBPath, GenerationsFolder(DBPath));
    SyncDir(DBPath);
}

bool IsContentOf(const PackedRecords& Next, const RecordBytes& File) {
    bool Same = true;
    QByteArray There;
    Next.Unpack([&](const char* Data, qint64 Length) {
        if (!Same) return;
        There.resize(Length);
        Same = File.Read(There.data(), Length) == Length &&
               QByteArrayView(There) == QByteArrayView(Data, Length);
    });
    return Same;
}

bool AreTheRecords(const RecordSource& There, const RecordImage& Next) {
    for (const RecordFile File : AllRecordFiles) {
        const auto Bytes = There(File);
        if (!Bytes || Bytes->Length != Next[File].Length()) return false;
    }
    if (Next.Words && *Next.Words != WordBytesOf(There).value_or(QByteArray())) return false;
    return std::all_of(AllRecordFiles.begin(), AllRecordFiles.end(),
                       [&](RecordFile File) { return IsContentOf(Next[File], *There(File)); });
}

// When the youngest of the record files was written; nothing where there are none.
std::optional<qint64> TimeOfRecords(const QString& DBPath) {
    std::optional<qint64> Last;
    for (const RecordFile File : AllRecordFiles)
        if (const auto Time = FileTime(RecordPath(DBPath, File)))
            Last = std::max(Last.value_or(0), Time->toMSecsSinceEpoch());
    return Last;
}

void DeleteIfPossible(const QString& Path) {
    try {
        DeleteFile(Path);
    } catch (const Fault&) {
        return;  // there is one more than need be
    }
}

QDate MonthOf(const Generation& Each) {
    const QDate Day = QDateTime::fromMSecsSinceEpoch(Each.Saved).date();
    return {Day.year(), Day.month(), 1};
}

}  // namespace

QString GenerationsFolder(const QString& DBPath) {
    return DBPath + QStringLiteral("Backups/");
}

std::vector<Generation> ListGenerations(const QString& DBPath) {
    std::vector<Generation> Found = HeadsIn(DBPath);
    std::erase_if(Found, [](const Generation& Each) { return !IsReadableAndWhole(Each); });
    std::stable_sort(
        Found.begin(), Found.end(),
        [](const Generation& One, const Generation& Other) { return One.Saved > Other.Saved; });
    return Found;
}

std::optional<RecordImage> ReadGeneration(const QString& Path) {
    if (!AboutAt(Path)) return std::nullopt;
    return GenerationIn(ReadFile(Path));
}

void KeepGeneration(const QString& DBPath, const RecordSource& State, qint64 Saved) {
    const std::vector<Generation> Before = HeadsIn(DBPath);
    const qint64 Behind = Before.empty() ? 0 : Before.front().Kept + 1;
    const qint64 Kept = std::max(QDateTime::currentMSecsSinceEpoch(), Behind);
    const QByteArray Bytes = BytesOfGeneration(State, std::clamp<qint64>(Saved, 0, LatestTime),
                                               std::min(Kept, LatestTime));
    if (!Before.empty() && HoldsRecordsOf(Before.front(), Bytes)) return;
    MakeFolder(DBPath);
    ReplaceFile(FreePath(DBPath, Saved), Bytes);
    SyncDir(GenerationsFolder(DBPath));
}

void KeepGenerationOf(const QString& DBPath, const RecordImage& Present) {
    const auto Saved = TimeOfRecords(DBPath);
    const bool AreThere = Saved && AreTheRecords(RecordsInDirectory(DBPath), Present);
    KeepGeneration(DBPath, RecordsInImage(Present),
                   AreThere ? *Saved : QDateTime::currentMSecsSinceEpoch());
}

std::optional<Fault> KeepGenerationBefore(const QString& DBPath, const RecordImage& Next) {
    try {
        const RecordSource There = RecordsInDirectory(DBPath);
        const auto Saved = TimeOfRecords(DBPath);
        if (Saved && !AreTheRecords(There, Next)) KeepGeneration(DBPath, There, *Saved);
        return std::nullopt;
    } catch (const Fault& Problem) {
        return Problem;
    }
}

std::vector<Generation> TooManyOf(const std::vector<Generation>& LastFirst) {
    std::vector<Generation> Gone;
    std::set<QDate> Months;
    QDateTime Oldest;
    size_t Place = 0;
    for (const Generation& Each : LastFirst) {
        const QDateTime Saved = QDateTime::fromMSecsSinceEpoch(Each.Saved);
        if (Place == 0) Oldest = Saved.addYears(-Years);
        const bool IsLastOfMonth = Months.insert(MonthOf(Each)).second;
        if (++Place > LastOnes && (!IsLastOfMonth || Saved < Oldest)) Gone.push_back(Each);
    }
    return Gone;
}

void ThinOutGenerations(const QString& DBPath) {
    const QString Folder = GenerationsFolder(DBPath);
    for (const QString& Half : ListMask(Folder + QStringLiteral("*.nebgen.new")))
        DeleteIfPossible(Folder + Half);
    for (const Generation& Each : TooManyOf(HeadsIn(DBPath))) DeleteIfPossible(Each.Path);
}

QByteArray BytesOfGeneration(const RecordSource& State, qint64 Saved, qint64 Kept) {
    std::array<PackedFile, RecordFileCount> Files;
    for (const RecordFile File : AllRecordFiles)
        Files[static_cast<size_t>(File)] = PackFile(State, File);
    const QByteArray Words = WordBytesOf(State).value_or(QByteArray());
    const QByteArrayView Beginning = Words.isEmpty() ? Magic : WordsMagic;
    QByteArray Bytes = Beginning.toByteArray() + Number(Saved) + Number(Kept);
    for (const RecordFile Counted :
         {RecordFile::Albums, RecordFile::Slides, RecordFile::SlideShows})
        Bytes += Number(Files[static_cast<size_t>(Counted)].Live);
    for (const PackedFile& Each : Files)
        Bytes += Number(Each.Content.Bytes().size()) + Number(Each.Content.Length());
    if (!Words.isEmpty()) Bytes += Number(Words.size());
    for (const PackedFile& Each : Files) Bytes += Each.Content.Bytes();
    Bytes += Words;
    return Bytes + SumOf(Bytes);
}

std::optional<RecordImage> GenerationIn(const QByteArray& Bytes, Generation* About) {
    const auto Head = AboutIn(Bytes, Bytes.size());
    if (!Head || SumOf(QByteArrayView(Bytes).chopped(SumLength)) != Bytes.last(SumLength))
        return std::nullopt;
    RecordImage Image;
    qsizetype Place = HeadLengthOf(Bytes);
    for (size_t I = 0; I < RecordFileCount; ++I) {
        const qsizetype Row = LengthsStart + 2 * NumberLength * static_cast<qsizetype>(I);
        const qint64 Packed = NumberAt(Bytes, Row);
        auto File =
            PackedRecords::FromBytes(Bytes.mid(Place, Packed), NumberAt(Bytes, Row + NumberLength));
        if (!File) return std::nullopt;
        Image.Files[I] = std::move(*File);
        Place += Packed;
    }
    Image.Words = Bytes.sliced(Place).chopped(SumLength);
    if (About) *About = *Head;
    return Image;
}

}  // namespace neb
