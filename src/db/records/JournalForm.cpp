#include "db/records/JournalForm.h"

#include <QCryptographicHash>
#include <QtEndian>

#include "support/files/modHostFiles.h"

namespace neb::journal {
namespace {

struct Kind {
    QByteArrayView Magic;
    bool KnowsFiles, IsOverWhole, HasWords;
};
constexpr Kind Kinds[] = {{"NEBJRNL1", false, false, false},
                          {"NEBJRNL2", true, true, false},
                          {"NEBJRNL3", true, false, false},
                          {"NEBJRNL4", true, true, true},
                          {"NEBJRNL5", true, false, true}};

constexpr qsizetype MagicLength = 8, CountLength = 8;
constexpr qsizetype FileCount = static_cast<qsizetype>(RecordFileCount);
constexpr qsizetype BaseStart = MagicLength + 2 * CountLength * FileCount;
constexpr qsizetype BaseLength = CountLength + SumLength;
constexpr qsizetype WordsStart = BaseStart + BaseLength * FileCount;
constexpr auto Method = QCryptographicHash::Blake2b_256;
constexpr qint64 NoFile = -1;

constexpr auto FilesWithWords = [] {
    std::array<RecordFile, RecordFileCount + 1> All{};
    std::copy(AllRecordFiles.begin(), AllRecordFiles.end(), All.begin());
    All.back() = RecordFile::Words;
    return All;
}();

QByteArray Count(qint64 Number) {
    QByteArray Bytes(CountLength, Qt::Uninitialized);
    qToLittleEndian(Number, Bytes.data());
    return Bytes;
}

qint64 CountAt(const QByteArray& Journal, qsizetype Place) {
    return qFromLittleEndian<qint64>(Journal.constData() + Place);
}

const Kind* KindOf(const QByteArray& Journal) {
    const auto* const Found = std::ranges::find_if(
        Kinds, [&](const Kind& Each) { return Journal.startsWith(Each.Magic); });
    return Found == std::end(Kinds) ? nullptr : Found;
}

QByteArrayView MagicFor(bool OverHalf, bool WithWords) {
    return std::ranges::find_if(Kinds,
                                [&](const Kind& Each) {
                                    return Each.KnowsFiles && Each.IsOverWhole == !OverHalf &&
                                           Each.HasWords == WithWords;
                                })
        ->Magic;
}

// Where the packed files begin; 0 for what is no journal.
qsizetype HeadLengthOf(const QByteArray& Journal) {
    const Kind* const Is = KindOf(Journal);
    if (!Is) return 0;
    if (!Is->KnowsFiles) return BaseStart;
    return Is->HasWords ? WordsStart + CountLength + BaseLength : WordsStart;
}

// The bytes of a part of a journal whose files end at End, Place moved behind them.
std::optional<QByteArray> Part(const QByteArray& Journal, qsizetype& Place, qint64 Length) {
    const qsizetype End = Journal.size() - SumLength;
    if (Length < 0 || Length > End - Place) return std::nullopt;
    Place += Length;
    return Journal.mid(Place - Length, Length);
}

}  // namespace

bool IsAboutWords(const QString& DBPath, const RecordImage& Image) {
    return Image.Words &&
           (!Image.Words->isEmpty() || NameExists(RecordPath(DBPath, RecordFile::Words)));
}

QByteArray HeadFor(const QString& DBPath, const RecordImage& Image, bool OverHalf) {
    const bool WithWords = IsAboutWords(DBPath, Image);
    QByteArray Head = MagicFor(OverHalf, WithWords).toByteArray();
    for (const PackedRecords& File : Image.Files)
        Head += Count(File.Bytes().size()) + Count(File.Length());
    for (const RecordFile File : AllRecordFiles) Head += BaseOf(RecordPath(DBPath, File));
    if (!WithWords) return Head;
    return Head + Count(Image.Words->size()) + BaseOf(RecordPath(DBPath, RecordFile::Words));
}

bool IsSound(const QByteArray& Journal) {
    const qsizetype Head = HeadLengthOf(Journal);
    if (Head == 0 || Journal.size() < Head + SumLength) return false;
    QCryptographicHash Sum(Method);
    Sum.addData(QByteArrayView(Journal).chopped(SumLength));
    return Sum.result() == QByteArrayView(Journal).last(SumLength);
}

bool KnowsFiles(const QByteArray& Journal) {
    const Kind* const Is = KindOf(Journal);
    return Is && Is->KnowsFiles;
}

bool IsOverWhole(const QByteArray& Journal) {
    const Kind* const Is = KindOf(Journal);
    return Is && Is->IsOverWhole;
}

std::span<const RecordFile> FilesOf(const QByteArray& Journal) {
    const Kind* const Is = KindOf(Journal);
    if (Is && Is->HasWords) return FilesWithWords;
    return AllRecordFiles;
}

QByteArray BaseOf(const QString& Path) {
    if (!FileExists(Path)) return Count(NoFile) + QByteArray(SumLength, '\0');
    HostReader Reader(Path);
    QCryptographicHash Sum(Method);
    QByteArray Room(1 << 20, Qt::Uninitialized);
    for (qint64 Got; (Got = Reader.Read(Room.data(), Room.size())) > 0;)
        Sum.addData(QByteArrayView(Room).first(Got));
    return Count(Reader.Length()) + Sum.result();
}

QByteArray BaseIn(const QByteArray& Journal, RecordFile File) {
    if (File == RecordFile::Words) return Journal.sliced(WordsStart + CountLength, BaseLength);
    return Journal.sliced(BaseStart + BaseLength * static_cast<qsizetype>(File), BaseLength);
}

std::optional<RecordImage> Unfold(const QByteArray& Journal) {
    RecordImage Image;
    qsizetype Place = HeadLengthOf(Journal), Row = MagicLength;
    for (PackedRecords& File : Image.Files) {
        auto Packed = Part(Journal, Place, CountAt(Journal, Row));
        if (!Packed) return std::nullopt;
        auto Read =
            PackedRecords::FromBytes(*std::move(Packed), CountAt(Journal, Row + CountLength));
        if (!Read) return std::nullopt;
        File = std::move(*Read);
        Row += 2 * CountLength;
    }
    if (KindOf(Journal)->HasWords) {
        Image.Words = Part(Journal, Place, CountAt(Journal, WordsStart));
        if (!Image.Words) return std::nullopt;
    }
    if (Place != Journal.size() - SumLength) return std::nullopt;
    return Image;
}

}  // namespace neb::journal
