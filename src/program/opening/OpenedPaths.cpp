#include "program/opening/OpenedPaths.h"

#include <QObject>

#include "db/records/modJournal.h"
#include "settings/modNEBSlideShow.h"
#include "support/MediaTypes.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"
#include "support/modText.h"

namespace neb {
namespace {

// The folder whose database would have its albums here; empty: none would.
QString DatabaseOfAlbum(const QString& Folder) {
    const QString Albums = GetParentDir(WithSeparator(Folder));
    const QString Database = GetParentDir(Albums);
    const bool IsOne = GetFileName(Albums.chopped(1)).compare(u"Albums", Qt::CaseInsensitive) == 0;
    return IsOne ? Database : QString();
}

bool SortInAlbum(const QString& Folder, OpenedPaths& To) {
    const QString Database = DatabaseOfAlbum(Folder);
    bool IsNumber = false;
    const std::int32_t AlbumID = GetFileName(Folder).toInt(&IsNumber);
    if (Database.isEmpty() || !IsNumber) return false;
    const bool IsOwn = ResolvePath(Database) == ResolvePath(DBPath());
    if (IsOwn)
        To.OwnAlbums << AlbumID;
    else if (HoldsDatabase(Database))
        To.Albums << Database;
    return IsOwn || HoldsDatabase(Database);
}

void SortIn(const QString& Named, OpenedPaths& To) {
    const QString Path = ResolvePath(AbsolutePath(Named));
    if (FolderExists(Path) && SortInAlbum(Path, To)) return;
    if (FolderExists(Path)) {
        const bool HasAlbums = HoldsDatabase(DatabaseIn(Path));
        (HasAlbums ? To.Albums : To.Named) << (HasAlbums ? Path : WithSeparator(Path));
    } else if (!FileExists(Path)) {
        To.Missing << Named;
    } else {
        const bool IsPrint = Path.endsWith(u".ppd", Qt::CaseInsensitive);
        (IsPrint ? To.Prints : IsPictureName(Path) ? To.Named : To.Others) << Path;
    }
}

void Name(BoxRequest& Box, const QStringList& Paths, const QString& One, const QString& Several) {
    if (Paths.isEmpty()) return;
    if (!Box.Text.isEmpty()) Box.Text += u'\n';
    const QString Names = ReadableText(Paths.join(u'\n'));
    if (Paths.size() == 1) {
        Box.Text += One.arg(Names);
    } else {
        Box.Text += Several.arg(Paths.size());
        Box.Details += Names + u'\n';
    }
}

}  // namespace

OpenedPaths SortOut(const QStringList& Paths) {
    OpenedPaths Sorted;
    for (const QString& Each : Paths) SortIn(Each, Sorted);
    if (Sorted.Named.isEmpty()) return Sorted;
    if (Paths.size() == 1 && !Sorted.Named.front().endsWith(u'/')) {
        Sorted.AtPicture = Sorted.Named.front();
        Sorted.Named.prepend(GetFilePath(Sorted.AtPicture));
    }
    Sorted.Named += std::exchange(Sorted.Others, {});  // Quick Show names them beside the pictures
    return Sorted;
}

std::optional<BoxRequest> OpenedPaths::Wrong() const {
    if (Missing.isEmpty() && Others.isEmpty()) return std::nullopt;
    BoxRequest Box{.Title = QObject::tr("Cannot Be Opened"), .Icon = BoxIcon::Critical};
    Name(Box, Missing, QObject::tr("There is no folder or picture %1."),
         QObject::tr("%1 folders or pictures are not there."));
    Name(Box, Others, QObject::tr("%1 is no picture."), QObject::tr("%1 files are no pictures."));
    return Box;
}

}  // namespace neb
