// The names of the directories looked into last, by their upper-cased form, so that finding a
// name in another case does not list a directory of thousands of pictures each time. Used by the
// host file routines alone; safe to call from worker threads.
#pragma once

#include <QStringList>
#include <optional>

namespace neb {

// The entry of Dir that is Name but for case; empty text when there is none. Dir is a host path
// with closing separator, or empty for the current directory.
QString FindNameInCase(const QString& Dir, const QString& Name);
// The names in Dir that begin with Start, case-blind.
QStringList FindNamesByStart(const QString& Dir, const QString& Start);
// The program itself has made or removed this entry: what is remembered stays true.
void NoteNameMade(const QString& Path);
void NoteNameGone(const QString& Path);

}  // namespace neb
