#include "db/records/KeptAside.h"

#include <QDateTime>

#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"

namespace neb {

QString PutAside(const QString& Path, qint64 When) {
    const QString Name = GetFileName(Path);
    const qsizetype Dot = Name.lastIndexOf(u'.');
    const QString Ending = Dot > 0 ? Name.sliced(Dot) : QString();
    const QString Stem = Path.chopped(Ending.size()) + u' ' +
                         QDateTime::fromMSecsSinceEpoch(When).toString(u"yyyy-MM-dd hh.mm.ss");
    QString Aside = Stem + Ending;
    for (int Number = 2; NameExists(Aside); ++Number)
        Aside = QStringLiteral("%1 (%2)%3").arg(Stem).arg(Number).arg(Ending);
    RenameFile(Path, Aside);
    SyncDir(GetFilePath(Path));
    return Aside;
}

}  // namespace neb
