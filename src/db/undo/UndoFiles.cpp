#include "db/undo/UndoFiles.h"

#include "db/AlbumSums.h"
#include "support/Fault.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/files/modHostFilesCopy.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

bool IsPlainFile(const QString& Path) {
    return !IsLink(Path) && FileExists(Path);
}

// Without the closing separator: a link is then meant itself.
QString NameOf(const QString& Path) {
    return Path.endsWith(u'/') ? Path.chopped(1) : Path;
}

void DropQuietly(const QString& Path) {
    try {
        DeleteFile(Path);
    } catch (const Fault&) {
        return;
    }
}

// The folders of an album may be links to another disk, to which no rename leads.
void PutFile(const QString& Kept, const QString& Path) {
    if (IsSameVolume(Kept, GetFilePath(Path))) return PutStored(Kept, Path);
    const QString Beside = ResolvePath(Path) + QStringLiteral(".undo");
    try {
        CopyFile(Kept, Beside);
        PutStored(Beside, Path);
    } catch (...) {
        DropQuietly(Beside);
        throw;
    }
    DropQuietly(Kept);
}

}  // namespace

UndoFiles::UndoFiles(const QString& DBPath)
    : mDBPath(DBPath), mFolder(DBPath + QStringLiteral("Temp/Undo/")) {
    DeleteTree(mFolder);
}

UndoFiles::~UndoFiles() {
    if (mCount > 0) DeleteTree(mFolder);
}

QString UndoFiles::NextPlace() {
    MakeDirsIn(mDBPath, mFolder);
    return mFolder + QString::number(++mCount);
}

QString UndoFiles::Take(const QString& Path) try {
    const QString Place = NextPlace();
    RenameFile(NameOf(Path), Place);
    return Place;
} catch (const Fault&) {
    return {};
}

QString UndoFiles::Hold(const QString& Path) try {
    const QString Place = NextPlace();
    if (!LinkFile(Path, Place)) CopyFile(Path, Place);
    return Place;
} catch (const Fault&) {
    return {};
}

void UndoFiles::Drop(const QString& Kept) try {
    if (Kept.isEmpty()) return;
    if (!IsLink(Kept) && FolderExists(Kept))
        DeleteTree(Kept);
    else
        DeleteFile(Kept);
} catch (const Fault&) {
    return;  // it goes with the folder, at the latest at the next start
}

// A folder that was left empty at its place makes room.
void UndoFiles::PutBack(const QString& Kept, const QString& Path) {
    MakeDirsIn(mDBPath, GetFilePath(NameOf(Path)));
    if (IsPlainFile(Kept)) return PutFile(Kept, Path);
    DeleteFolder(Path);
    if (NameExists(NameOf(Path))) throw Fault(tr("There is a file of this name already."), Path);
    RenameFile(Kept, NameOf(Path));
}

}  // namespace neb
