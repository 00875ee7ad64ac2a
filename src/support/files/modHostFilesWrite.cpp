// Changing the file system: every step passes the watcher first.
#include <QDir>
#include <QTemporaryDir>
#include <cerrno>
#include <cstdio>
#include <filesystem>

#include "support/Fault.h"
#include "support/Texts.h"
#include "support/files/HostNames.h"
#include "support/files/NameCache.h"
#include "support/files/modHostFiles.h"
#include "support/files/modHostFilesOpen.h"
#include "support/files/modHostFilesSteps.h"

#ifdef _WIN32
#include <io.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace neb {

namespace fs = std::filesystem;

namespace {

HostWatcher& Watcher() {
    static HostWatcher Instance;
    return Instance;
}

[[noreturn]] void Fail(const QString& Sentence, const QString& Path, const QString& Reason) {
    throw Fault(Sentence + QStringLiteral(" (") + Reason + QStringLiteral(")"), Path);
}

[[noreturn]] void FailWrite(const QFile& File, const QString& Path) {
    Fail(tr("The file cannot be written."), Path, File.errorString());
}

// A watcher that shortens the write makes it a full disk.
void WriteAll(QFile& File, const char* Data, qint64 Length, const QString& Path) {
    const qint64 Allowed = AllowedToWrite(Path, Length);
    if (!WriteEach(File, Data, Allowed) || !File.flush()) FailWrite(File, Path);
    if (Allowed < Length) FailNoSpace(Path);
}

bool SyncHandle(int Handle) {
#ifdef _WIN32
    return _commit(Handle) == 0;
#else
    return ::fsync(Handle) == 0;
#endif
}

void Open(HostFile& File, QIODevice::OpenMode Mode, const QString& Path) {
    if (!File.open(Mode | QIODevice::Unbuffered)) FailWrite(File, Path);
    NoteNameMade(File.fileName());
}

void WriteWhole(const QString& Path, const QByteArray& Bytes, QIODevice::OpenMode Mode) {
    HostFile File(ResolvePath(Path));
    Open(File, Mode, Path);
    WriteAll(File, Bytes.constData(), Bytes.size(), Path);
    File.close();
}

// What is left of a file that could not be written whole; the fault before is the one to tell.
void DeleteMade(const QString& Path) {
    try {
        DeleteFile(Path);
    } catch (const std::exception&) {
        return;
    }
}

// Without a closing separator, with which a link would be followed.
fs::path NativePath(const QString& Path) {
    QString Host = ResolvePath(Path);
    while (Host.endsWith(u'/')) Host.chop(1);
    return fs::path(HostBytes(Host).constData());
}

// In the host's own names, which may hold a "\" or be no text at all.
std::vector<fs::path> FilesIn(const fs::path& Dir, const Yield& LetRun) {
    std::vector<fs::path> Files;
    std::error_code Error;
    fs::directory_iterator Entry(Dir, Error);
    for (; !Error && Entry != fs::directory_iterator(); Entry.increment(Error)) {
        std::error_code Ignored;
        if (Entry->is_symlink(Ignored) || !Entry->is_directory(Ignored))
            Files.push_back(Entry->path());
        if (LetRun) LetRun();
    }
    return Files;
}

// A file, a link or an empty directory; what cannot go stays.
void Drop(const fs::path& Path) {
    const QString Host = HostName(Path.native());
    std::error_code Ignored;
    try {
        AnnounceStep(HostStep::Delete, Host);
    } catch (const Fault&) {
        return;
    }
    if (fs::remove(Path, Ignored)) NoteNameGone(Host);
}

// What a link leads to stays.
void DropTree(const fs::path& Dir) {
    std::error_code Error;
    std::vector<fs::path> All;
    const bool IsOwn = !fs::is_symlink(fs::symlink_status(Dir, Error));
    fs::directory_iterator Entry;
    if (IsOwn) Entry = fs::directory_iterator(Dir, Error);
    for (; !Error && Entry != fs::directory_iterator(); Entry.increment(Error))
        All.push_back(Entry->path());
    for (const fs::path& Each : All) {
        std::error_code Ignored;
        const bool IsFolder = fs::is_directory(fs::symlink_status(Each, Ignored));
        IsFolder ? DropTree(Each) : Drop(Each);
    }
    Drop(Dir);
}

}  // namespace

void SetHostWatcher(HostWatcher NewWatcher) {
    Watcher() = std::move(NewWatcher);
}

void AnnounceStep(HostStep Step, const QString& Path) {
    qint64 Length = 0;
    if (Watcher()) Watcher()(Step, Path, Length);
}

qint64 AllowedToWrite(const QString& Path, qint64 Length) {
    if (Watcher()) Watcher()(HostStep::Write, Path, Length);
    return Length;
}

bool WriteEach(QFile& File, const char* Data, qint64 Length) {
    for (qint64 Count; Length > 0; Data += Count, Length -= Count)
        if ((Count = File.write(Data, Length)) <= 0) return false;
    return true;
}

void FailNoSpace(const QString& Path) {
    Fail(tr("The file cannot be written."), Path, tr("no space left on device"));
}

void WriteFile(const QString& Path, const QByteArray& Bytes) {
    WriteWhole(Path, Bytes, QIODevice::WriteOnly | QIODevice::Truncate);
}

void ReplaceFile(const QString& Path, const QByteArray& Bytes) {
    const QString Beside = ResolvePath(Path) + QStringLiteral(".new");
    try {
        WriteFile(Beside, Bytes);
        SyncFile(Beside);
        RenameFile(Beside, Path);
    } catch (...) {
        DeleteMade(Beside);
        throw;
    }
}

void AppendFile(const QString& Path, const QByteArray& Bytes) {
    WriteWhole(Path, Bytes, QIODevice::WriteOnly | QIODevice::Append);
}

void DeleteFile(const QString& Path) {
    const QString Host = ResolvePath(Path);
    if (const HostInfo Info(Host); !Info.Exists() && !Info.IsLink()) return;
    AnnounceStep(HostStep::Delete, Path);
    HostFile File(Host);
    if (!File.Delete()) Fail(tr("The file cannot be deleted."), Path, File.errorString());
    NoteNameGone(Host);
}

void DeleteMask(const QString& Mask) {
    const qsizetype Cut = qMax(Mask.lastIndexOf(u'/'), Mask.lastIndexOf(u'\\')) + 1;
    std::optional<Fault> First;
    for (const QString& Name : ListMask(Mask)) {
        try {
            DeleteFile(Mask.left(Cut) + Name);
        } catch (const Fault& Problem) {
            if (!First) First = Problem;
        }
    }
    if (First) throw *First;
}

void RenameFile(const QString& From, const QString& To) {
    AnnounceStep(HostStep::Rename, To);
    const QString Source = ResolvePath(From);
    const QString Target = ResolvePath(To);
    if (std::rename(HostBytes(Source).constData(), HostBytes(Target).constData()))
        Fail(tr("The file cannot be renamed."), To, qt_error_string(errno));
    NoteNameGone(Source);
    NoteNameMade(Target);
}

bool LinkFile(const QString& From, const QString& To) {
    AnnounceStep(HostStep::Link, To);
    const QString Target = ResolvePath(To);
    const fs::path Name(HostBytes(Target).constData());
    std::error_code Problem;
    fs::remove(Name, Problem);
    fs::create_hard_link(HostBytes(ResolvePath(From)).constData(), Name, Problem);
    if (Problem) return false;
    NoteNameMade(Target);
    return true;
}

void SetReadOnly(const QString& Path) {
    constexpr mode_t WriteBits = 0222;
    AnnounceStep(HostStep::Protect, Path);
    HostFile File(ResolvePath(Path));
    if (!File.ChangeRights(0, WriteBits))
        Fail(tr("The file cannot be made read-only."), Path, File.errorString());
}

void SyncFile(const QString& Path) {
    AnnounceStep(HostStep::Sync, Path);
    HostFile File(ResolvePath(Path));
    if (!File.open(QIODevice::ReadWrite | QIODevice::ExistingOnly) || !SyncHandle(File.handle()))
        FailWrite(File, Path);
}

void SyncDir(const QString& Dir) {
    AnnounceStep(HostStep::SyncDir, Dir);
#ifndef _WIN32
    const int Handle = ::open(HostBytes(ResolvePath(Dir)).constData(), O_RDONLY);
    if (Handle < 0) return;  // some file systems do not let a directory be opened
    const int Problem = ::fsync(Handle) == 0 ? 0 : errno;
    ::close(Handle);
    // others do not know what that is
    if (Problem == EIO || Problem == ENOSPC || Problem == EDQUOT)
        Fail(tr("The names cannot be brought to the disk."), Dir, qt_error_string(Problem));
#endif
}

void MakeDirs(const QString& Dir) {
    const QString Host = ResolvePath(Dir);
    if (HostInfo(Host).IsFolder()) return;
    AnnounceStep(HostStep::MakeDir, Dir);
    std::error_code Problem;
    fs::create_directories(HostBytes(Host).constData(), Problem);
    if (!HostInfo(Host).IsFolder()) throw Fault(tr("The directory cannot be made."), Dir);
}

void MakeDirsIn(const QString& Base, const QString& Dir) {
    const QString Host = ResolvePath(Dir);
    if (HostInfo(Host).IsFolder()) return;
    AnnounceStep(HostStep::MakeDir, Dir);
    for (qsizetype End = Base.size(); End < Dir.size(); ++End) {
        End = Dir.indexOf(u'/', End);
        if (End < 0) End = Dir.size();
        const QString Part = ResolvePath(Dir.first(End));
        std::error_code Problem;
        fs::create_directory(HostBytes(Part).constData(), Problem);
        if (!HostInfo(Part).IsFolder()) throw Fault(tr("The directory cannot be made."), Dir);
    }
}

void DeleteTree(const QString& Dir) {
    if (FolderExists(Dir)) DropTree(NativePath(Dir));
}

void DeleteFilesIn(const QString& Dir, const Yield& LetRun) {
    if (IsLink(Dir)) return;
    for (const fs::path& File : FilesIn(NativePath(Dir), LetRun)) {
        Drop(File);
        if (LetRun) LetRun();
    }
}

void DeleteFolder(const QString& Dir) {
    Drop(NativePath(Dir));
}

struct HostWriter::State {
    QString Path;
    HostFile File;
    QByteArray Pending;
    static constexpr qsizetype Chunk = 1 << 20;
    void Flush() {
        if (Pending.isEmpty()) return;
        WriteAll(File, Pending.constData(), Pending.size(), Path);
        Pending.resize(0);
    }
};

HostWriter::HostWriter(const QString& Path) : mState(std::make_unique<State>()) {
    mState->Path = Path;
    mState->File.setFileName(ResolvePath(Path));
    mState->Pending.reserve(State::Chunk);
    Open(mState->File, QIODevice::WriteOnly | QIODevice::Truncate, Path);
}

HostWriter::~HostWriter() = default;

void HostWriter::Write(const char* Data, qint64 Length) {
    if (mState->Pending.size() + Length > State::Chunk) mState->Flush();
    if (Length >= State::Chunk)
        WriteAll(mState->File, Data, Length, mState->Path);
    else
        mState->Pending.append(Data, Length);
}

void HostWriter::Sync() {
    mState->Flush();
    AnnounceStep(HostStep::Sync, mState->Path);
    if (!SyncHandle(mState->File.handle())) FailWrite(mState->File, mState->Path);
}

void HostWriter::Close() {
    mState->Flush();
    mState->File.close();
}

// In pieces that reach the disk one by one: no wait for it is long.
void CopyFile(const QString& From, const QString& To, const Yield& LetRun) {
    const QString Beside = ResolvePath(To) + QStringLiteral(".new");
    HostReader Source(From);
    try {
        HostWriter Copy(Beside);
        std::vector<char> Piece(1 << 22);
        for (;;) {
            const qint64 Length = Source.Read(Piece.data(), static_cast<qint64>(Piece.size()));
            Copy.Write(Piece.data(), Length);
            Copy.Sync();
            if (Length == 0) break;
            if (LetRun) LetRun();
        }
        Copy.Close();
        RenameFile(Beside, To);
    } catch (...) {
        DeleteMade(Beside);
        throw;
    }
}

ScratchDir::ScratchDir() {
    QTemporaryDir Dir;
    Dir.setAutoRemove(false);
    if (!Dir.isValid()) throw Fault(tr("No temporary directory can be made."));
    mPath = Dir.path() + u'/';
}

ScratchDir::~ScratchDir() {
    std::error_code Ignored;
    fs::remove_all(HostBytes(mPath).constData(), Ignored);
}

}  // namespace neb
