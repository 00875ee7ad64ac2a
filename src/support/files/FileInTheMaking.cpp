#include "support/files/FileInTheMaking.h"

#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "support/Fault.h"
#include "support/Texts.h"
#include "support/files/HostNames.h"
#include "support/files/NameCache.h"
#include "support/files/modHostFilesOpen.h"
#include "support/files/modHostFilesSteps.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

constexpr int MostTries = 20;

// Of the user's file: of the one beside it he knows nothing.
[[noreturn]] void FailWrite(const QString& Path, const QString& Reason) {
    throw Fault(tr("The file cannot be written. (%1)").arg(Reason), Path);
}

// Whether the name still leads to the open file: who was making it may just have renamed it.
bool IsStillAt(int Handle, const QString& Path) {
    struct stat Opened = {}, Named = {};
    return ::fstat(Handle, &Opened) == 0 && ::stat(HostBytes(Path).constData(), &Named) == 0 &&
           Opened.st_ino == Named.st_ino && Opened.st_dev == Named.st_dev;
}

// A link would lead the bytes elsewhere.
void DropLink(const QString& Path) {
    if (IsLink(Path)) DeleteFile(Path);
}

}  // namespace

struct FileInTheMaking::State {
    explicit State(const QString& ThePath)
        : Path(ThePath), Beside(ResolvePath(ThePath) + QStringLiteral(".new")) {
        if (FolderExists(Path)) throw Fault(tr("There is a folder in the place of a file."), Path);
        for (int I = 0; I < MostTries; ++I)
            if (Claim()) return;
        FailInUse();
    }

    // The host lets go of the lock of a program that has ended, however it did. Where it knows no
    // locks, two are not kept apart. False: look again.
    bool Claim() {
        DropLink(Beside);
        File.setFileName(Beside);
        if (!File.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
            FailWrite(Path, File.errorString());
        if (::flock(File.handle(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) FailInUse();
        if (IsStillAt(File.handle(), Beside)) {
            NoteNameMade(Beside);
            if (!File.resize(0)) FailWrite(Path, File.errorString());
            return true;
        }
        File.close();
        return false;
    }
    [[noreturn]] void FailInUse() const {
        throw Fault(tr("The file is being made by another window or program."), Path);
    }
    template <class Step>
    void Telling(const Step& Do) const try {
        Do();
    } catch (const Fault& Problem) {
        throw Fault(Problem.What(), Path, Problem.Number());
    }

    const QString Path, Beside;
    HostFile File;
    qint64 Place = 0, End = 0;
    bool IsNamed = false;
};

FileInTheMaking::FileInTheMaking(const QString& Path) : mState(std::make_unique<State>(Path)) {}

// The lock goes last, or another could have begun a file that is then deleted.
FileInTheMaking::~FileInTheMaking() {
    try {
        if (!mState->IsNamed) DeleteFile(mState->Beside);
    } catch (const Fault&) {
        return;  // the fault before is the one to tell
    }
}

void FileInTheMaking::Write(const char* Data, qint64 Length) {
    State& Is = *mState;
    Is.Telling([&] {
        const qint64 Allowed = AllowedToWrite(Is.Beside, Length);
        if (!Is.File.seek(Is.Place) || !WriteEach(Is.File, Data, Allowed))
            FailWrite(Is.Path, Is.File.errorString());
        if (Allowed < Length) FailNoSpace(Is.Path);
    });
    Is.Place += Length;
    Is.End = std::max(Is.End, Is.Place);
}

void FileInTheMaking::Seek(qint64 Place) {
    if (Place < 0) FailWrite(mState->Path, tr("There is no such place in it."));
    mState->Place = Place;
}

qint64 FileInTheMaking::Read(qint64 Place, char* Into, qint64 MaxLength) {
    HostFile& File = mState->File;
    qint64 Total = 0, Count = 1;
    if (!File.seek(Place)) Count = -1;
    for (; Count > 0 && Total < MaxLength; Total += std::max<qint64>(Count, 0))
        Count = File.read(Into + Total, MaxLength - Total);
    if (Count < 0)
        throw Fault(tr("The file cannot be read: %1.").arg(File.errorString()), mState->Path);
    return Total;
}

qint64 FileInTheMaking::Length() const {
    return mState->End;
}

void FileInTheMaking::Sync() {
    mState->Telling([this] {
        AnnounceStep(HostStep::Sync, mState->Beside);
        if (::fsync(mState->File.handle()) != 0) FailWrite(mState->Path, qt_error_string(errno));
    });
}

// Before it is closed: its lock keeps others from emptying it under its first name.
void FileInTheMaking::TakeName() {
    State& Is = *mState;
    Is.Telling([&] {
        RenameFile(Is.Beside, Is.Path);
        Is.IsNamed = true;
        const QString Dir = GetFilePath(ResolvePath(Is.Path));
        SyncDir(Dir.isEmpty() ? QStringLiteral(".") : Dir);
        Is.File.close();
    });
}

}  // namespace neb
