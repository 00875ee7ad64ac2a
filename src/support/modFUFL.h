// Paths taken apart. Both "\" and "/" separate, on every system; nothing looks at the disk.
#pragma once

#include <QString>

namespace neb {

// From the last "." on, dot included; empty without a dot. It does not stop at a separator:
// for "C:\a.b\c" it is ".b\c". Album folders made by earlier versions rely on that.
QString GetFileExt(const QString& FileName);
// The name after the last separator, cut before its last dot.
QString GetFileBaseName(const QString& FileName);
// Up to and including the last separator; empty when there is none.
QString GetFilePath(const QString& FileName);
// After the last separator; the whole text when there is none.
QString GetFileName(const QString& Path);
// The directory above, with closing separator; empty at a root and for a bare name.
QString GetParentDir(const QString& Path);

bool IsSeparator(QChar Character);
// "Holds a separator" is what tells a full path from a name inside an album.
bool HoldsSeparator(QStringView Text);
// The path with a closing separator: the one it uses itself, else the host's.
QString WithSeparator(const QString& Path);

}  // namespace neb
