#include "db/AlbumSums.h"

#include <functional>
#include <map>
#include <mutex>
#include <set>

#include "support/Fault.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/files/modHostFilesLines.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

constexpr int FewRemarks = 200;  // with these a list may live until its next check

// Over whoever reads a list and writes it.
std::mutex& ListLock() {
    static std::mutex Lock;
    return Lock;
}

QString AlbumOf(const QString& Path) {
    return GetParentDir(GetFilePath(Path));
}

// As the host spells it, folder and all, so that the host's own tools find it.
QString NameInList(const QString& Path) {
    const QString Host = ResolvePath(Path);
    return GetFileName(GetFilePath(Host).chopped(1)) + u'/' + GetFileName(Host);
}

struct Line {
    qint64 Place, End;  // in the text, its line feed included
    ListedSum File;
};

struct Lines {
    std::vector<Line> Valid;
    int Remarks = 0;
};

Lines LinesIn(const QByteArray& Text) {
    Lines Found;
    for (qsizetype Place = 0; Place < Text.size();) {
        const qsizetype End = Text.indexOf('\n', Place);
        const qsizetype Next = End < 0 ? Text.size() : End + 1;
        const QByteArray Each = Text.mid(Place, End < 0 ? -1 : End - Place);
        if (auto File = ReadSumLine(Each)) Found.Valid.push_back({Place, Next, std::move(*File)});
        if (Each.startsWith('#')) ++Found.Remarks;
        Place = Next;
    }
    return Found;
}

using Which = std::function<bool(const Line& Each)>;

QByteArray Without(const Lines& All, const Which& Goes) {
    QByteArray Text;
    for (const Line& Each : All.Valid)
        if (!Goes(Each)) Text += SumLine(Each.File);
    return Text;
}

// Lines that go become remarks; at the end of the list they go indeed, and what else stands there
// and says nothing. A list of little but remarks is written anew.
void DropLines(const QString& Album, const std::function<Which(const Lines&)>& Choose) {
    const std::lock_guard Lock(ListLock());
    const std::optional<QByteArray> Text = ReadAlbumSums(Album);
    if (!Text) return;
    const Lines All = LinesIn(*Text);
    const Which Goes = Choose(All);
    std::vector<qint64> Places;
    qint64 Length = 0;
    for (const Line& Each : All.Valid)
        if (Goes(Each))
            Places.push_back(Each.Place);
        else
            Length = Each.End;
    std::erase_if(Places, [Length](qint64 Place) { return Place >= Length; });
    if (All.Remarks > FewRemarks && All.Remarks > static_cast<int>(All.Valid.size()))
        return ReplaceFile(AlbumSumsPath(Album), Without(All, Goes));
    MakeRemarks(AlbumSumsPath(Album), Places);
    if (Length < Text->size()) CutFile(AlbumSumsPath(Album), Length);
}

// All lines of a file but the last.
void DropFormer(const QString& Path) {
    const QString Name = NameInList(Path).toUpper();
    DropLines(AlbumOf(Path), [&](const Lines& All) -> Which {
        qint64 Last = -1;
        for (const Line& Each : All.Valid)
            if (Each.File.Path.toUpper() == Name) Last = Each.Place;
        return [=](const Line& Each) {
            return Each.Place != Last && Each.File.Path.toUpper() == Name;
        };
    });
}

void AddLine(const QString& Path, const QByteArray& Sum) {
    const std::lock_guard Lock(ListLock());
    AppendLines(AlbumSumsPath(AlbumOf(Path)), SumLine({NameInList(Path), Sum}));
}

bool HasList(const QString& Path) {
    return FileExists(AlbumSumsPath(AlbumOf(Path)));
}

// The fault that brings us here is the one to tell.
template <class Part>
void Quietly(const Part& Do) {
    try {
        Do();
    } catch (const Fault&) {
        return;
    }
}

// Sum is made of what lies at Made.
void PutNew(const QString& Made, const QString& Path, const QByteArray& Sum) {
    if (HasList(Path)) AddLine(Path, Sum);
    try {
        RenameFile(Made, Path);
    } catch (const Fault&) {
        Quietly([&] { ForgetStored({Path}); });
        throw;
    }
}

// The new line is on the disk before the name is, and the name before the old line goes.
void PutOver(const QString& Made, const QString& Path, const QByteArray& Sum) {
    const bool Listed = HasList(Path);
    if (Listed) {
        AddLine(Path, Sum);
        SyncFile(AlbumSumsPath(AlbumOf(Path)));
    }
    RenameFile(Made, Path);
    SyncDir(GetFilePath(Path));
    if (Listed) Quietly([&] { DropFormer(Path); });
}

template <class Put>
void StoreBeside(const QString& Path, const QByteArray& Bytes, const Put& PutInPlace) {
    const QString Beside = ResolvePath(Path) + QStringLiteral(".new");
    try {
        WriteFile(Beside, Bytes);
        PutInPlace(Beside);
    } catch (const Fault& Problem) {
        Quietly([&] { DeleteFile(Beside); });
        // the user knows the file by its own name
        if (Problem.File() == Beside) throw Fault(Problem.What(), Path, Problem.Number());
        throw;
    }
}

bool IsThere(const QString& Path, const QByteArray& Bytes) {
    try {
        return FileSize(Path) == Bytes.size() && ReadFile(Path) == Bytes;
    } catch (const Fault&) {
        return false;  // what cannot be read is replaced
    }
}

}  // namespace

QString AlbumSumsPath(const QString& Album) {
    return Album + QLatin1String(SumsName);
}

void BeginAlbumSums(const QString& Album) {
    WriteFile(AlbumSumsPath(Album), {});
}

void StoreNew(const QString& Path, const QByteArray& Bytes) {
    if (NameExists(Path)) throw Fault(tr("There is a file of this name already."), Path);
    StoreBeside(Path, Bytes, [&](const QString& Made) {
        PutNew(Made, Path, HasList(Path) ? SumOfBytes(Bytes) : QByteArray());
    });
}

void StoreAnew(const QString& Path, const QByteArray& Bytes) {
    if (IsThere(Path, Bytes)) return;
    StoreBeside(Path, Bytes, [&](const QString& Made) {
        SyncFile(Made);
        PutStored(Made, Path);
    });
}

void PutStored(const QString& Made, const QString& Path) {
    const QByteArray Sum = HasList(Path) ? *SumOfFile(Made) : QByteArray();
    if (NameExists(Path))
        PutOver(Made, Path, Sum);
    else
        PutNew(Made, Path, Sum);
}

void ListStored(const QString& Path) {
    const std::optional<QByteArray> List = ReadAlbumSums(AlbumOf(Path));
    if (!List) return;
    const QString Name = NameInList(Path).toUpper();
    for (const Line& Each : LinesIn(*List).Valid)
        if (Each.File.Path.toUpper() == Name) return;
    AddLine(Path, *SumOfFile(Path));
}

void DropStored(const QStringList& Paths) {
    for (const QString& Path : Paths) Quietly([&] { DeleteFile(Path); });
    ForgetStored(Paths);
}

void ForgetStored(const QStringList& Paths) {
    std::map<QString, std::set<QString>> Gone;  // by album, upper-cased
    for (const QString& Path : Paths)
        if (!NameExists(Path)) Gone[AlbumOf(Path)].insert(NameInList(Path).toUpper());
    for (const auto& [Album, Names] : Gone)
        Quietly([&, &Album = Album, &Names = Names] {
            DropLines(Album, [&](const Lines&) -> Which {
                return [&](const Line& Each) { return Names.contains(Each.File.Path.toUpper()); };
            });
        });
}

std::vector<ListedSum> SumsIn(const QByteArray& List) {
    std::vector<ListedSum> Files;
    for (Line& Each : LinesIn(List).Valid) Files.push_back(std::move(Each.File));
    return Files;
}

std::optional<QByteArray> ReadAlbumSums(const QString& Album) {
    if (!FileExists(AlbumSumsPath(Album))) return std::nullopt;
    return ReadFile(AlbumSumsPath(Album));
}

bool MendAlbumSums(const QString& Album, const std::optional<QByteArray>& AsRead,
                   const QByteArray& List) {
    const std::lock_guard Lock(ListLock());
    if (ReadAlbumSums(Album) != AsRead) return false;
    ReplaceFile(AlbumSumsPath(Album), List);
    SyncDir(Album);
    return true;
}

QByteArray SumsAfter(const QByteArray& List, const QStringList& Gone,
                     const std::vector<ListedSum>& Came) {
    std::set<QString> Names;
    for (const QString& Each : Gone) Names.insert(Each.toUpper());
    for (const ListedSum& Each : Came) Names.insert(Each.Path.toUpper());
    QByteArray Text = Without(
        LinesIn(List), [&](const Line& Each) { return Names.contains(Each.File.Path.toUpper()); });
    for (const ListedSum& Each : Came) Text += SumLine(Each);
    return Text;
}

}  // namespace neb
