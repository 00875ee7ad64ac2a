#include "program/desktop/RecentAlbums.h"

#include <QStandardPaths>
#include <QUrl>

#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "program/desktop/DesktopSettings.h"
#include "program/desktop/RecentList.h"
#include "program/desktop/ToolkitSettings.h"
#include "settings/SettingKeys.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/Services.h"
#include "support/files/HostNames.h"
#include "support/files/modHostFiles.h"
#include "support/files/modHostFilesAccess.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

constexpr qint64 LongestList = 8'000'000;  // bytes; no desktop keeps as many

QByteArray ListNow() {
    const QString Path = RecentListFile();
    return FileExists(Path) ? ReadFile(Path) : QByteArray();
}

bool MayBeRead() {
    return FileSize(RecentListFile()) <= LongestList;
}

void Write(const QByteArray& List) {
    const QString Beside = RecentListFile() + QStringLiteral(".neb-new");
    MakeDirs(GetFilePath(Beside));
    WriteFile(Beside, {});
    MakePrivate(Beside);
    WriteFile(Beside, List);
    SyncFile(Beside);
    RenameFile(Beside, RecentListFile());
}

}  // namespace

QString RecentListFile() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/recently-used.xbel");
}

QString AddressOfAlbum(std::int32_t AlbumID) {
    const QString Folder = AlbumFolder(DBPath(), AlbumID);
    return UrlOfFile(Folder.chopped(1)).toString(QUrl::FullyEncoded);
}

bool RecentAlbums::IsWanted() {
    if (!ReadFlag(OpenSettings(), Setting::RecentAlbums)) return false;
    if (ToolkitSetting("gtk-recent-files-enabled") == u"0") return false;
    return mDesktop
        .Read(QStringLiteral("org.gnome.desktop.privacy"), QStringLiteral("remember-recent-files"))
        .value_or(true)
        .toBool();
}

void RecentAlbums::Used(std::int32_t AlbumID) try {
    const clsNEBAlbum* Album = DBEngine ? DBEngine->GetAlbum(AlbumID) : nullptr;
    if (!Album || !MayBeRead() || !IsWanted()) return;
    const auto List =
        WithRecent(ListNow(), {AddressOfAlbum(AlbumID), Album->AlbumName,
                               QStringLiteral("inode/directory"), TheServices().Time->Now()});
    if (List) Write(*List);
} catch (const Fault&) {
    return;  // the desktop's list is a convenience
}

bool RecentAlbums::Gone(std::int32_t AlbumID) try {
    if (!MayBeRead()) return false;
    const auto List = WithoutRecent(ListNow(), AddressOfAlbum(AlbumID));
    if (List) Write(*List);
    return List.has_value();
} catch (const Fault&) {
    return false;
}

// What is called otherwise now is not to stand there under its old name.
void RecentAlbums::ReceiveEvent(const QString& ObjectType, const QString& EventType,
                                const EventKeys& EventData) {
    if (ObjectType != u"Album" || EventData.empty()) return;
    const bool IsGone = EventType == u"Delete";
    if (!IsGone && EventType != u"Update") return;
    if (Gone(EventData[0]) && !IsGone) Used(EventData[0]);
}

}  // namespace neb
