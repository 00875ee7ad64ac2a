// All dealings with the host's file system. Everything else names files and calls this, so that
// the rules of names, listings and read-only files are the same everywhere, and a test can stop
// or fail any single change of the disk.
//
// Paths are the host's own; "\" is taken as a separator as well. A name that differs from the
// one on disk in case only is found. Routines that change the disk throw Fault, with a sentence
// and the path, unless told otherwise.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <optional>
#include <system_error>
#include <vector>

#include "support/KeepGoing.h"

namespace neb {

// The path under which the host really has this file or directory (case of the last components
// corrected), or the path with host separators when there is none.
QString ResolvePath(const QString& Path);

// A relative path seen from Base (empty: from the working directory); any other as it is.
QString AbsolutePath(const QString& Path, const QString& Base = {});

bool FileExists(const QString& Path);  // a file that is no directory
bool NameExists(const QString& Path);  // anything: a file, a directory, a link that leads nowhere
bool FolderExists(const QString& Path);
bool IsLink(const QString& Path);       // a symbolic link, whatever it leads to
bool IsReadOnly(const QString& Path);   // no write bit is set, or the medium is read-only
bool CanReadFile(const QString& Path);  // exists and opens for reading
qint64 FileSize(const QString& Path);   // bytes; -1 when there is none
std::optional<QDateTime> FileTime(const QString& Path);  // last change

struct DirEntry {
    QString Name;  // without directory
    bool IsFolder = false;
    bool IsLink = false;  // a symbolic link, to a file or a folder
};
// Everything in a directory but "." and "..", in the order of the upper-cased names. Empty when
// the directory cannot be listed; Readable, when given, tells the two apart.
std::vector<DirEntry> ListDir(const QString& Dir, bool* Readable = nullptr);
// The same; Error tells why the list is empty or ends early, else it is none.
std::vector<DirEntry> ListDir(const QString& Dir, std::error_code& Error);

// Names of the files (no directories) that match a wild-card mask, case-blind; "*.*" is
// everything. Mask is a full path whose last component may hold "*" and "?".
QStringList ListMask(const QString& Mask);
// The real directory behind symbolic links, for recognising circles; empty when there is none.
QString RealDir(const QString& Dir);

QByteArray ReadFile(const QString& Path);
// Only the first Length bytes, or fewer when the file is shorter.
QByteArray ReadFileHead(const QString& Path, qint64 Length);

// A file read piece by piece, for large ones. Throws Fault when it cannot be read.
class HostReader {
  public:
    explicit HostReader(const QString& Path);
    ~HostReader();
    qint64 Length() const;                      // bytes when it was opened
    qint64 Read(char* Into, qint64 MaxLength);  // bytes read: fewer at the end alone, then 0
    void Seek(qint64 Place);  // bytes from the start, 0 or more; beyond the end nothing is read

  private:
    struct State;
    std::unique_ptr<State> mState;
};

void WriteFile(const QString& Path, const QByteArray& Bytes);  // creates or replaces, in place
// Writes beside the file and renames over it, so that the old or the new content is there, and
// nothing beside it.
void ReplaceFile(const QString& Path, const QByteArray& Bytes);
void AppendFile(const QString& Path, const QByteArray& Bytes);
// The old or the new content is at To, and nothing beside it. LetRun is called all the while.
void CopyFile(const QString& From, const QString& To, const Yield& LetRun = {});
void DeleteFile(const QString& Path);  // no fault when there is none
void DeleteMask(const QString& Mask);  // every match; goes on past failures, then throws the first
void RenameFile(const QString& From, const QString& To);  // replaces To
// A second name for a file, without reading it and without room for a copy; replaces To. False
// where the file system knows no second names.
bool LinkFile(const QString& From, const QString& To);
void SetReadOnly(const QString& Path);  // no write bit is left
void SyncFile(const QString& Path);     // content is on the disk afterwards
void SyncDir(const QString& Dir);       // names are on the disk afterwards
void MakeDirs(const QString& Dir);      // with parents; no fault when it exists
// The same for what lies below Base, with closing separator, and never Base itself: in the place of
// a disk that was taken away nothing is made.
void MakeDirsIn(const QString& Base, const QString& Dir);
void DeleteTree(const QString& Dir);  // a directory and all in it; errors are ignored
// The files and links in a directory, not the directories in it, nor what a link leads to; nothing
// when Dir itself is a link. Errors are ignored, each by itself. LetRun is called all the while.
void DeleteFilesIn(const QString& Dir, const Yield& LetRun = {});
// A directory in which nothing is left, or the link that stands for one; errors are ignored.
void DeleteFolder(const QString& Dir);

// A file written piece by piece: the record files and the journal.
class HostWriter {
  public:
    explicit HostWriter(const QString& Path);  // creates or empties the file
    ~HostWriter();                             // closes; what was not synced may be lost
    HostWriter(const HostWriter&) = delete;
    HostWriter& operator=(const HostWriter&) = delete;
    void Write(const char* Data, qint64 Length);
    void Sync();   // all that was written is on the disk afterwards
    void Close();  // Throws when the last bytes could not be written

  private:
    struct State;
    std::unique_ptr<State> mState;
};

// A private directory that goes with the object; for child programs that want files.
class ScratchDir {
  public:
    ScratchDir();
    ~ScratchDir();
    ScratchDir(const ScratchDir&) = delete;
    ScratchDir& operator=(const ScratchDir&) = delete;
    const QString& Path() const { return mPath; }  // with closing separator

  private:
    QString mPath;
};

// What is about to happen to the disk. A test's watcher is called before each step and may
// throw a Fault (a full disk), end the process, or for a write lower Length to write a part.
enum class HostStep { Write, Sync, SyncDir, Delete, Rename, Link, MakeDir, SyncVolume, Protect };
using HostWatcher = std::function<void(HostStep Step, const QString& Path, qint64& Length)>;
void SetHostWatcher(HostWatcher Watcher);  // {} for none; for tests alone

}  // namespace neb
