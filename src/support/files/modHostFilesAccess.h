// Who may get at a file: whether this user may write it or even see that it is there, the read-only
// attribute taken away, a file handed open to another program. Used by what leaves the print
// preview and by who opens a database.
#pragma once

#include <QString>

namespace neb {

// The file's owner may write it from now on; nothing else about it changes. Throws Fault.
void ClearReadOnly(const QString& Path);
// Nobody but the owner may read the file from now on. Throws Fault.
void MakePrivate(const QString& Path);
// Whether this user may make files in a folder that is there.
bool CanWriteInto(const QString& Dir);
// Whether this user may write a file or folder that is there, as the system says: owner, rights and
// medium together.
bool MayWrite(const QString& Path);
// Why it cannot be told whether something bears this name, and what; empty where it can be.
QString WhyUnseen(const QString& Path);
// A descriptor of the file for another program to read by; the caller closes it. Throws Fault.
int OpenForOther(const QString& Path);

// What tells a file from every other, and from itself once it has been written anew; empty where
// there is none.
QByteArray FileMark(const QString& Path);

}  // namespace neb
