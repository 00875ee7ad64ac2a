// Looking at the file system; what changes it is in modHostFilesWrite.cpp.
#include "support/files/modHostFiles.h"

#include <sys/statvfs.h>

#include <QDir>
#include <cstdlib>
#include <filesystem>

#include "support/Fault.h"
#include "support/Texts.h"
#include "support/files/HostNames.h"
#include "support/files/NameCache.h"
#include "support/files/modHostFilesListing.h"
#include "support/files/modHostFilesMask.h"
#include "support/files/modHostFilesOpen.h"

namespace neb {
namespace {

QString HostForm(const QString& Path) {
    QString Host = Path;
    Host.replace(u'\\', u'/');
    return Host;
}

// Puts the case of every component right that is there in another case.
QString CorrectCase(const QString& Host) {
    QString Known = Host.startsWith(u'/') ? QStringLiteral("/") : QString();
    for (const QString& Part : Host.split(u'/', Qt::SkipEmptyParts)) {
        const bool AsWritten = HostInfo(Known + Part).Exists();
        const QString Found = AsWritten ? Part : FindNameInCase(Known, Part);
        Known += (Found.isEmpty() ? Part : Found) + u'/';
    }
    if (!Host.endsWith(u'/')) Known.chop(1);
    return Known;
}

// False when the directory cannot be opened; Error also tells of a listing that broke off.
bool ReadNames(const QString& Dir, std::vector<DirEntry>& Entries, std::error_code& Error) {
    OpenDir Open(HostBytes(Dir.isEmpty() ? QStringLiteral(".") : Dir).toStdString());
    const dirent* Entry = nullptr;
    while (Open && (Entry = Open.Next()))
        if (!IsDots(Entry->d_name))
            Entries.push_back({HostName(Entry->d_name), KindOf(Open, *Entry) == Kind::Folder,
                               IsLink(Open, *Entry)});
    Error = Open.Error();
    return static_cast<bool>(Open);
}

void SortByUpperName(std::vector<DirEntry>& Entries) {
    std::vector<std::pair<QString, DirEntry>> Keyed;
    Keyed.reserve(Entries.size());
    for (DirEntry& Entry : Entries) {
        QString Key = UpperName(Entry.Name);
        Keyed.emplace_back(std::move(Key), std::move(Entry));
    }
    std::sort(Keyed.begin(), Keyed.end(), [](const auto& A, const auto& B) {
        return A.first != B.first ? A.first < B.first : A.second.Name < B.second.Name;
    });
    for (size_t I = 0; I < Keyed.size(); ++I) Entries[I] = std::move(Keyed[I].second);
}

// What the host has under this path, in the case that it has there; of all that windows ask for
// again and again the disk is asked as little as possible.
HostInfo Look(const QString& Path) {
    HostInfo Info(Path);
    if (Path.isEmpty() || Info.Exists()) return Info;
    const QString Host = HostForm(Path);
    if (Host != Path) Info = HostInfo(Host);
    if (Host != Path && Info.Exists()) return Info;
    const qsizetype Cut = Host.lastIndexOf(u'/') + 1;
    if (Cut == Host.size()) return HostInfo(CorrectCase(Host));
    const QString Found = FindNameInCase(Host.left(Cut), Host.mid(Cut));
    if (!Found.isEmpty()) return HostInfo(Host.left(Cut) + Found);
    const bool FolderIsThere = Cut == 0 || HostInfo(Host.left(Cut)).Exists();
    return FolderIsThere ? Info : HostInfo(CorrectCase(Host));
}

QString WorkingDir() {
    std::error_code Error;
    return HostName(std::filesystem::current_path(Error).native());
}

[[noreturn]] void FailRead(const QFile& File, const QString& Path) {
    throw Fault(tr("The file cannot be read: %1.").arg(File.errorString()), Path);
}

void OpenToRead(HostFile& File, QIODevice::OpenMode Mode, const QString& Path) {
    const HostInfo Info = Look(Path);
    if (Info.Exists() && !Info.IsFile() && !Info.IsFolder())  // reading one would wait for ever
        throw Fault(tr("The file cannot be read: it is no ordinary file."), Path);
    File.setFileName(Info.Path());
    if (!File.open(QIODevice::ReadOnly | Mode)) FailRead(File, Path);
}

QByteArray ReadFrom(const QString& Path, qint64 Length) {
    HostFile File;
    OpenToRead(File, QIODevice::NotOpen, Path);
    QByteArray Bytes = Length < 0 ? File.readAll() : File.read(Length);
    if (File.error() != QFileDevice::NoError) FailRead(File, Path);
    return Bytes;
}

}  // namespace

QString ResolvePath(const QString& Path) {
    return Look(Path).Path();
}

QString AbsolutePath(const QString& Path, const QString& Base) {
    const bool HasDrive = Path.size() > 1 && Path[1] == u':';
    const bool FromRoot = Path.startsWith(u'/') || Path.startsWith(u'\\');
    if (Path.isEmpty() || HasDrive || FromRoot) return Path;
    const QString From = Base.isEmpty() ? WorkingDir() : Base;
    return QDir::cleanPath(QDir(From).absoluteFilePath(HostForm(Path)));
}

bool NameExists(const QString& Path) {
    const HostInfo Info = Look(Path);
    return Info.Exists() || Info.IsLink();
}

bool FileExists(const QString& Path) {
    const HostInfo Info = Look(Path);
    return Info.Exists() && !Info.IsFolder();
}

bool FolderExists(const QString& Path) {
    return !Path.isEmpty() && Look(Path).IsFolder();
}

bool IsLink(const QString& Path) {
    QString Host = ResolvePath(Path);
    while (Host.endsWith(u'/')) Host.chop(1);  // with it the link would be followed
    return HostInfo(Host).IsLink();
}

bool IsReadOnly(const QString& Path) {
    constexpr mode_t WriteBits = 0222;
    const HostInfo Info = Look(Path);
    if (!(Info.Rights() & WriteBits)) return true;
    struct statvfs Medium = {};
    return ::statvfs(HostBytes(Info.Path()).constData(), &Medium) == 0 && Medium.f_flag & ST_RDONLY;
}

bool CanReadFile(const QString& Path) {
    const HostInfo Info = Look(Path);
    return Info.IsFile() && HostFile(Info.Path()).open(QIODevice::ReadOnly);
}

qint64 FileSize(const QString& Path) {
    const HostInfo Info = Look(Path);
    return Info.Exists() ? Info.Size() : -1;
}

std::optional<QDateTime> FileTime(const QString& Path) {
    const HostInfo Info = Look(Path);
    return Info.Exists() ? std::optional(Info.Changed()) : std::nullopt;
}

std::vector<DirEntry> ListDir(const QString& Dir, bool* Readable) {
    std::vector<DirEntry> Entries;
    std::error_code Error;
    const bool CouldRead = ReadNames(ResolvePath(Dir), Entries, Error);
    SortByUpperName(Entries);
    if (Readable) *Readable = CouldRead;
    return Entries;
}

std::vector<DirEntry> ListDir(const QString& Dir, std::error_code& Error) {
    std::vector<DirEntry> Entries;
    ReadNames(ResolvePath(Dir), Entries, Error);
    SortByUpperName(Entries);
    return Entries;
}

namespace {

// What may match a mask that begins so. The files of one slide among those of thousands are found
// without a walk over all.
std::vector<DirEntry> ListDirFrom(const QString& Dir, const QString& Start) {
    if (Start.isEmpty()) return ListDir(Dir);
    const QString Host = ResolvePath(Dir);
    std::vector<DirEntry> Entries;
    for (const QString& Name : FindNamesByStart(Host, Start)) {
        const HostInfo Info(Host + Name);
        Entries.push_back({Name, Info.IsFolder(), Info.IsLink()});
    }
    SortByUpperName(Entries);
    return Entries;
}

}  // namespace

QStringList ListMask(const QString& Mask) {
    const QString Host = HostForm(Mask);
    const qsizetype Cut = Host.lastIndexOf(u'/') + 1;
    const NameMask Pattern(Host.mid(Cut));
    QStringList Names;
    for (const DirEntry& Entry : ListDirFrom(Host.left(Cut), Pattern.Start()))
        if (!Entry.IsFolder && Pattern.Matches(Entry.Name)) Names.append(Entry.Name);
    return Names;
}

QString RealDir(const QString& Dir) {
    const std::unique_ptr<char, decltype(&::free)> Real(
        ::realpath(HostBytes(ResolvePath(Dir)).constData(), nullptr), &::free);
    return Real ? HostName(Real.get()) : QString();
}

QByteArray ReadFile(const QString& Path) {
    return ReadFrom(Path, -1);
}

QByteArray ReadFileHead(const QString& Path, qint64 Length) {
    return ReadFrom(Path, Length);
}

struct HostReader::State {
    QString Path;
    HostFile File;
};

HostReader::HostReader(const QString& Path) : mState(std::make_unique<State>()) {
    mState->Path = Path;
    OpenToRead(mState->File, QIODevice::Unbuffered, Path);
}

HostReader::~HostReader() = default;

qint64 HostReader::Length() const {
    return mState->File.size();
}

qint64 HostReader::Read(char* Into, qint64 MaxLength) {
    qint64 Total = 0;
    while (Total < MaxLength) {
        const qint64 Count = mState->File.read(Into + Total, MaxLength - Total);
        if (Count < 0) FailRead(mState->File, mState->Path);
        if (Count == 0) break;
        Total += Count;
    }
    return Total;
}

void HostReader::Seek(qint64 Place) {
    if (!mState->File.seek(Place)) FailRead(mState->File, mState->Path);
}

}  // namespace neb
