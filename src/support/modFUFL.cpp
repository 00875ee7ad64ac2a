#include "support/modFUFL.h"

#include <QDir>

namespace neb {
namespace {

qsizetype LastSeparator(QStringView Path) {
    for (qsizetype I = Path.size() - 1; I >= 0; --I)
        if (IsSeparator(Path[I])) return I;
    return -1;
}

// A path with a drive keeps at least its root; a network path keeps server and share apart; on
// hosts without drives "/" is the root.
bool IsDirectoryAbove(const QString& Rest) {
    if (Rest.contains(u':')) return Rest.size() >= 3;
    if (Rest.startsWith(u'/')) return true;
    return Rest.size() >= 5 && HoldsSeparator(QStringView(Rest).sliced(2, Rest.size() - 3));
}

}  // namespace

bool IsSeparator(QChar Character) {
    return Character == u'\\' || Character == u'/';
}

bool HoldsSeparator(QStringView Text) {
    return LastSeparator(Text) >= 0;
}

QString WithSeparator(const QString& Path) {
    if (!Path.isEmpty() && IsSeparator(Path.back())) return Path;
    const bool Foreign = Path.contains(u'\\') && !Path.contains(u'/');
    return Path + (Foreign ? QChar(u'\\') : QDir::separator());
}

QString GetFileExt(const QString& FileName) {
    const qsizetype Dot = FileName.lastIndexOf(u'.');
    return Dot < 0 ? QString() : FileName.mid(Dot);
}

QString GetFileName(const QString& Path) {
    return Path.mid(LastSeparator(Path) + 1);
}

QString GetFilePath(const QString& FileName) {
    return FileName.left(LastSeparator(FileName) + 1);
}

QString GetFileBaseName(const QString& FileName) {
    const QString Name = GetFileName(FileName);
    const qsizetype Dot = Name.lastIndexOf(u'.');
    return Dot < 0 ? Name : Name.left(Dot);
}

// Today's windows ask GetFilePath, which answers for a file at a root as well; this one is for
// those that go up from directory to directory.
QString GetParentDir(const QString& Path) {
    QString Rest = Path;
    if (!Rest.isEmpty() && IsSeparator(Rest.back())) Rest.chop(1);
    Rest = GetFilePath(Rest);
    return !Rest.isEmpty() && IsDirectoryAbove(Rest) ? Rest : QString();
}

}  // namespace neb
