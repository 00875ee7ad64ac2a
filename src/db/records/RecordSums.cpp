#include "db/records/RecordSums.h"

#include <QCryptographicHash>
#include <algorithm>

#include "db/records/modJournal.h"
#include "support/Fault.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

constexpr QByteArrayView Head = "NEBSUMS1\n";
constexpr qint64 NoFile = -1;

struct Noted {
    qint64 Length = NoFile;
    qint64 Time = 0;  // milliseconds since 1970, UTC
    QByteArray Sum;

    bool IsSameContent(const Noted& Other) const {
        return Length == Other.Length && Sum == Other.Sum;
    }
};
struct NotedFiles {
    std::array<Noted, RecordFileCount> Records;
    std::optional<Noted> Words;
};

QByteArray SumOf(const QString& Path) {
    HostReader Reader(Path);
    QCryptographicHash Sum(QCryptographicHash::Blake2b_256);
    QByteArray Room(1 << 18, Qt::Uninitialized);
    for (qint64 Got; (Got = Reader.Read(Room.data(), Room.size())) > 0;)
        Sum.addData(QByteArrayView(Room).first(Got));
    return Sum.result().toHex();
}

// Of a file that is there.
Noted NotedAt(const QString& Path) {
    const auto Time = FileTime(Path);
    return {FileSize(Path), Time ? Time->toMSecsSinceEpoch() : 0, SumOf(Path)};
}

QByteArray LineOf(const Noted& Each) {
    return QByteArray::number(Each.Length) + ' ' + QByteArray::number(Each.Time) + ' ' + Each.Sum +
           '\n';
}

QByteArray SumOfText(QByteArrayView Text) {
    return QCryptographicHash::hash(Text.toByteArray(), QCryptographicHash::Blake2b_256).toHex();
}

std::optional<NotedFiles> FilesIn(const QByteArray& Bytes) {
    const qsizetype End = Bytes.lastIndexOf('\n') + 1;
    if (!Bytes.startsWith(Head) || SumOfText(QByteArrayView(Bytes).first(End)) != Bytes.mid(End))
        return std::nullopt;
    const QList<QByteArray> Lines = Bytes.split('\n');
    const qsizetype Count = Lines.size() - 2;  // without the head and the sum
    const bool HasWords = Count == qsizetype{RecordFileCount} + 1;
    if (Count != qsizetype{RecordFileCount} && !HasWords) return std::nullopt;
    NotedFiles Files;
    if (HasWords) Files.Words.emplace();
    for (qsizetype I = 0; I < Count; ++I) {
        const QList<QByteArray> Words = Lines[I + 1].split(' ');
        if (Words.size() != 3) return std::nullopt;
        const bool IsRecords = I < qsizetype{RecordFileCount};
        (IsRecords ? Files.Records[static_cast<size_t>(I)] : *Files.Words) = {
            Words[0].toLongLong(), Words[1].toLongLong(), Words[2]};
    }
    return Files;
}

std::optional<NotedFiles> ReadNoted(const QString& DBPath) {
    try {
        const QString Path = RecordSumsPath(DBPath);
        return FileExists(Path) ? FilesIn(ReadFile(Path)) : std::nullopt;
    } catch (const Fault&) {
        return std::nullopt;
    }
}

// Some media keep whole seconds alone, or every other one.
bool IsSameTime(qint64 Then, qint64 Now) {
    return Then == Now || (Now % 1000 == 0 && std::abs(Now - Then) < 2000);
}

enum class FileIs { Untouched, Rewritten, Other };

FileIs Compare(const QString& Path, const Noted& Then) {
    try {
        if (!NameExists(Path)) return Then.Length == NoFile ? FileIs::Rewritten : FileIs::Other;
        if (FileSize(Path) != Then.Length) return FileIs::Other;
        const Noted Now = NotedAt(Path);
        if (!Now.IsSameContent(Then)) return FileIs::Other;
        const bool Says = Now.Length > 0 && IsSameTime(Then.Time, Now.Time);
        return Says ? FileIs::Untouched : FileIs::Rewritten;
    } catch (const Fault&) {
        return FileIs::Other;
    }
}

}  // namespace

QString RecordSumsPath(const QString& DBPath) {
    return GetFilePath(JournalPath(DBPath)) + QStringLiteral("Records.sums");
}

void NoteRecords(const QString& DBPath) {
    try {
        MakeDirsIn(DBPath, GetFilePath(RecordSumsPath(DBPath)));
    } catch (const Fault&) {
        return;
    }
    NoteRecordsAgain(DBPath);
}

void NoteRecordsAgain(const QString& DBPath) {
    QByteArray Text = Head.toByteArray();
    try {
        for (const RecordFile File : AllRecordFiles) {
            const QString Path = RecordPath(DBPath, File);
            Text += LineOf(NameExists(Path) ? NotedAt(Path) : Noted());
        }
        if (const QString Words = RecordPath(DBPath, RecordFile::Words); NameExists(Words))
            Text += LineOf(NotedAt(Words));
        ReplaceFile(RecordSumsPath(DBPath), Text + SumOfText(Text));
        SyncDir(GetFilePath(RecordSumsPath(DBPath)));
    } catch (const Fault&) {
        return;
    }
}

NotedRecords CompareWithNoted(const QString& DBPath) {
    const std::optional<NotedFiles> Then = ReadNoted(DBPath);
    if (!Then) return {};
    NotedRecords Found;
    bool IsOneUntouched = false;
    for (const RecordFile File : AllRecordFiles) {
        const FileIs Is =
            Compare(RecordPath(DBPath, File), Then->Records[static_cast<size_t>(File)]);
        if (Is == FileIs::Other) Found.Others.push_back(File);
        IsOneUntouched |= Is == FileIs::Untouched;
    }
    using enum NotedRecords::State;
    Found.Is = Found.Others.empty() ? AsWritten : IsOneUntouched ? Changed : Unknown;
    return Found;
}

bool HasLostWords(const QString& DBPath) {
    if (NameExists(RecordPath(DBPath, RecordFile::Words))) return false;
    const std::optional<NotedFiles> Then = ReadNoted(DBPath);
    return Then && Then->Words && CompareWithNoted(DBPath).Is != NotedRecords::State::Unknown;
}

bool HasOtherWords(const QString& DBPath) {
    const QString Path = RecordPath(DBPath, RecordFile::Words);
    const std::optional<NotedFiles> Then = ReadNoted(DBPath);
    if (!Then || !Then->Words || !NameExists(Path)) return false;
    return Compare(Path, *Then->Words) == FileIs::Other &&
           std::ranges::any_of(AllRecordFiles, [&](RecordFile File) {
               return Compare(RecordPath(DBPath, File), Then->Records[static_cast<size_t>(File)]) ==
                      FileIs::Untouched;
           });
}

}  // namespace neb
