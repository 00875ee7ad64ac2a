#include "windows/transfer/modTransferAsks.h"

#include <QLineEdit>
#include <QMimeData>
#include <QStandardPaths>
#include <QUrl>

#include "controls/forms/Tell.h"
#include "support/files/HostNames.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

constexpr qsizetype MostLines = 15;
constexpr char PutThere[] = "PutThere";  // the text that it gave, and the path

// Below a database its own path goes without saying.
QStringList NamesOf(const QStringList& Paths, const QString& DBPath) {
    QStringList Lines;
    for (const QString& Each : Paths)
        Lines << (Each.startsWith(DBPath) ? Each.mid(DBPath.size()) : Each);
    return Lines;
}

QString FirstOf(const QStringList& Lines) {
    if (Lines.size() <= MostLines) return Lines.join(u'\n');
    return Lines.mid(0, MostLines).join(u'\n') + u'\n' +
           QObject::tr("... and %1 more").arg(Lines.size() - MostLines);
}

}  // namespace

QString PathMeant(const QString& Typed) {
    const QString Text = Typed.trimmed();
    if (Text == u"~" || Text.startsWith(u"~/"))
        return QStandardPaths::writableLocation(QStandardPaths::HomeLocation) + Text.mid(1);
    if (Text.startsWith(u"file:")) return FileOfUrl(QUrl(Text));
    return AbsolutePath(Text);
}

void PutPath(QLineEdit& Field, const QString& Path) {
    Field.setText(Path);
    Field.setProperty(PutThere, QStringList{Field.text(), Path});
}

QString PathIn(const QLineEdit& Field) {
    const QStringList Put = Field.property(PutThere).toStringList();
    return Put.value(0) == Field.text() && !Put.isEmpty() ? Put[1] : PathMeant(Field.text());
}

QString DroppedDirectory(const QMimeData& Data) {
    for (const QUrl& Url : Data.urls())
        if (const QString Path = FileOfUrl(Url); !Path.isEmpty())
            return FolderExists(Path) ? Path : GetFilePath(Path);
    return {};
}

bool AskGoOnWithout(const QStringList& Missing, const QString& DBPath) {
    const QString What = Missing.size() == 1
                             ? QObject::tr("A file of the source is missing or cannot be read:")
                             : QObject::tr("%1 files of the source are missing or cannot be read:")
                                   .arg(Missing.size());
    const QStringList Lines = NamesOf(Missing, DBPath);
    return ShowBox({.Text = What + u'\n' + FirstOf(Lines) + QStringLiteral("\n\n") +
                            QObject::tr("Do you want to go on without what is missing?"),
                    .Title = QObject::tr("Missing Files"),
                    .Icon = BoxIcon::Question,
                    .Buttons = BoxButtons::YesNo,
                    .Default = BoxAnswer::No,
                    .Details = Lines.size() > MostLines ? Lines.join(u'\n') : QString()}) ==
           BoxAnswer::Yes;
}

QString TextOfLeftOut(int Files) {
    if (Files == 0) return {};
    return Files == 1 ? QObject::tr(", 1 file left out")
                      : QObject::tr(", %1 files left out").arg(Files);
}

}  // namespace neb
