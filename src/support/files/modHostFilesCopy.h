// Copying many files at a time: each at full speed and not flushed by itself, all of them brought
// to the disk together. Used by transfers; CopyFile of modHostFiles.h is for a single one.
#pragma once

#include <QString>
#include <functional>

namespace neb {

// Copies the bytes of a file into a new one, or over one that is there; both names in the very form
// of the host. GoOn hears of the bytes after each piece of some megabytes; false ends the copying:
// the answer is false, and the copy is not whole. May run on any thread. Throws Fault.
bool CopyBytes(const QString& From, const QString& To,
               const std::function<bool(qint64 Piece)>& GoOn);

// All that was written to the medium of this directory is on the disk afterwards. Throws Fault.
void SyncVolume(const QString& Dir);

// Whether both lie on one medium, which SyncVolume flushes at once. Paths that lead nowhere do.
bool IsSameVolume(const QString& One, const QString& Other);

// Whether this user may put files into the directory.
bool MayWriteIn(const QString& Dir);

// Bytes that this user can still write there; -1 when it is not known.
qint64 FreeSpace(const QString& Dir);

// Whether both paths lead to the same directory, however they are spelled: in case, by links, by
// "..", with or without a closing separator. Paths that lead nowhere are compared as texts.
bool IsSameDir(const QString& One, const QString& Other);

}  // namespace neb
