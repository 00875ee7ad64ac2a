#include "windows/import/ReadingReport.h"

#include "controls/forms/Tell.h"

namespace neb {
namespace {

// "1 file" or "12 files".
QString Counted(qsizetype Count, const QString& One, const QString& Many) {
    return Count == 1 ? One : Many.arg(Count);
}

QString Files(qsizetype Count) {
    return Counted(Count, QObject::tr("1 file"), QObject::tr("%1 files"));
}

QString Folders(qsizetype Count) {
    return Counted(Count, QObject::tr("1 folder"), QObject::tr("%1 folders"));
}

void AddGroup(QStringList& Groups, const QString& Heading, const QStringList& Lines) {
    if (!Lines.isEmpty()) Groups << Heading + u'\n' + Lines.join(u'\n');
}

}  // namespace

QString ReadingReport::Line() const {
    const qsizetype Count = Unreadable.size() + OtherFiles.size();
    QStringList What;
    if (Count > 0) What << neb::Files(Count);
    if (!Folders.isEmpty()) What << neb::Folders(Folders.size());
    const bool One = Count + Folders.size() == 1;
    return (One ? QObject::tr("%1 was passed over.") : QObject::tr("%1 were passed over."))
        .arg(What.join(QObject::tr(" and ")));
}

QString ReadingReport::Text() const {
    QStringList Lines;
    if (!Unreadable.isEmpty())
        Lines << QObject::tr("%1 could not be read.")
                     .arg(Counted(Unreadable.size(), QObject::tr("1 picture"),
                                  QObject::tr("%1 pictures")));
    if (!Folders.isEmpty())
        Lines << QObject::tr("%1 could not be opened.").arg(neb::Folders(Folders.size()));
    if (!OtherFiles.isEmpty())
        Lines << Counted(OtherFiles.size(), QObject::tr("1 file is of another kind."),
                         QObject::tr("%1 files are of another kind."));
    return Lines.join(u'\n');
}

QString ReadingReport::Details() const {
    QStringList Groups;
    AddGroup(Groups, QObject::tr("These pictures could not be read:"), Unreadable);
    AddGroup(Groups, QObject::tr("These folders could not be opened:"), Folders);
    AddGroup(Groups, QObject::tr("These files are of another kind:"), OtherFiles);
    return Groups.join(QStringLiteral("\n\n"));
}

void ReadingReport::Tell() const {
    ShowBox({.Text = Text(), .Icon = BoxIcon::Information, .Details = Details()});
}

}  // namespace neb
