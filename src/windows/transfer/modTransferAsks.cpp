#include "windows/transfer/modTransferAsks.h"

#include <QMimeData>
#include <QStandardPaths>
#include <QUrl>

#include "support/Services.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

// Below a database its own path goes without saying.
QString NamesOf(const QStringList& Paths, const QString& DBPath) {
    constexpr qsizetype MostLines = 15;
    QStringList Lines;
    for (const QString& Each : Paths.mid(0, MostLines))
        Lines << (Each.startsWith(DBPath) ? Each.mid(DBPath.size()) : Each);
    if (Paths.size() > MostLines)
        Lines << QObject::tr("... and %1 more").arg(Paths.size() - MostLines);
    return Lines.join(u'\n');
}

}  // namespace

QString PathMeant(const QString& Typed) {
    const QString Text = Typed.trimmed();
    if (Text == u"~" || Text.startsWith(u"~/"))
        return QStandardPaths::writableLocation(QStandardPaths::HomeLocation) + Text.mid(1);
    if (Text.startsWith(u"file:")) return QUrl(Text).toLocalFile();
    return AbsolutePath(Text);
}

QString DroppedDirectory(const QMimeData& Data) {
    for (const QUrl& Url : Data.urls())
        if (const QString Path = Url.toLocalFile(); !Path.isEmpty())
            return FolderExists(Path) ? Path : GetFilePath(Path);
    return {};
}

bool AskGoOnWithout(const QStringList& Missing, const QString& DBPath) {
    const QString What = Missing.size() == 1
                             ? QObject::tr("A file of the source is missing or cannot be read:")
                             : QObject::tr("%1 files of the source are missing or cannot be read:")
                                   .arg(Missing.size());
    return AskYesNo(What + u'\n' + NamesOf(Missing, DBPath) + QStringLiteral("\n\n") +
                        QObject::tr("Do you want to go on without what is missing?"),
                    QObject::tr("Missing Files"), BoxAnswer::No);
}

}  // namespace neb
