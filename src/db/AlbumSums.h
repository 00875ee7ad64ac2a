// The list of check sums that each album keeps of its pictures, thumbnails and sounds, in its own
// folder and in the form of CheckSums.h: whatever comes into the album or goes from it passes here,
// so that a file that changes by itself, years later, is recognised.
//
// The steps are such that the list raises no false alarm wherever they are cut short. A new file
// has its line before it has its name. One that takes the place of another has a second line,
// flushed, before it does; the line of the other becomes a remark afterwards. A deleted one loses
// its line last. So of two lines for a name the one that matches is right, and a line of a file
// that neither is there nor is named by a record means nothing. An album of earlier versions has no
// list, and gets none here: it would not be whole. The first check of all pictures makes it.
//
// Paths are full ones, of files in a folder of an album; Album is an album's folder, with closing
// separator. May be called on any thread.
#pragma once

#include <QByteArray>
#include <QStringList>
#include <optional>
#include <vector>

#include "support/files/CheckSums.h"

namespace neb {

QString AlbumSumsPath(const QString& Album);
// The beginning of a list, for an album that has just been made. Throws Fault.
void BeginAlbumSums(const QString& Album);

// Stores a file under a name that is free: a Fault where it is not, or where the file cannot be
// written; nothing of it stays then. Not flushed: whoever enters the record does that, for many
// files at a time (clsDBEngine::NoteInSession).
void StoreNew(const QString& Path, const QByteArray& Bytes);
// The same for a name that may be taken: the old or the new content is there, flushed.
void StoreAnew(const QString& Path, const QByteArray& Bytes);
// The same for what lies ready, whole and flushed, as another file in that folder.
void PutStored(const QString& Made, const QString& Path);
// A file that is there already and becomes one of the album: it gets a line if it has none.
void ListStored(const QString& Path);
// Deletes files, then their lines; what cannot be deleted stays, and so does its line.
void DropStored(const QStringList& Paths);
// The lines of files that are not there any more.
void ForgetStored(const QStringList& Paths);

// What a list says, in its order; remarks and what cannot be understood are left out.
std::vector<ListedSum> SumsIn(const QByteArray& List);
// The text of a list as it is on the disk; nothing where there is none. Throws Fault.
std::optional<QByteArray> ReadAlbumSums(const QString& Album);
// Replaces a list that still is as it was read (nothing: there was none). Flushed. False, and
// nothing changed, where it is not. Throws Fault.
bool MendAlbumSums(const QString& Album, const std::optional<QByteArray>& AsRead,
                   const QByteArray& List);
// The list after files have come and gone, Gone by their paths in the list.
QByteArray SumsAfter(const QByteArray& List, const QStringList& Gone,
                     const std::vector<ListedSum>& Came);

}  // namespace neb
