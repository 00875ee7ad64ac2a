#include "controls/directories/Drives.h"

#include <QStandardPaths>
#include <QStorageInfo>

#include "support/files/modHostFiles.h"
#include "support/files/modHostFilesMounts.h"
#include "support/modFUFL.h"
#include "support/modText.h"

namespace neb {

bool IsUserVolume(const QString& Root) {
    for (const char* Parent : {"/media/", "/run/media/", "/mnt/"})
        if (Root.startsWith(QLatin1String(Parent))) return true;
    return Root == u"/mnt" || Root.contains(u':');
}

QStringList OutermostPaths(const QStringList& Paths) {
    QStringList Kept;
    for (const QString& Path : Paths) {
        const bool Inside = std::any_of(Paths.begin(), Paths.end(), [&](const QString& Other) {
            return Other != Path && WithSeparator(Path).startsWith(WithSeparator(Other));
        });
        if (!Inside && !Kept.contains(Path)) Kept.append(Path);
    }
    return Kept;
}

namespace {

bool IsText(const QString& Path) {
    return ReadableText(Path) == Path;
}

// The toolkit knows volumes whose folders have names that are text. Those that have not are added.
std::vector<Volume> UserVolumes() {
    std::vector<Volume> All;
    for (const QStorageInfo& Each : QStorageInfo::mountedVolumes())
        if (IsUserVolume(Each.rootPath()) && !Each.rootPath().contains(QChar::ReplacementCharacter))
            All.push_back({Each.displayName(), Each.rootPath()});
    for (const QString& Path : MountPoints())
        if (IsUserVolume(Path) && !IsText(Path))
            All.push_back({ReadableText(GetFileName(Path)), Path});
    return All;
}

}  // namespace

QStringList DesktopDrives::Drives() const {
    QStringList Paths{QStandardPaths::writableLocation(QStandardPaths::HomeLocation)};
    for (const Volume& Each : UserVolumes()) Paths.append(Each.Root);
    return OutermostPaths(Paths);
}

bool DesktopDrives::IsReady(const QString& Drive) const {
    bool Readable = false;
    ListDir(Drive, &Readable);
    return Readable;
}

std::vector<Volume> DesktopDrives::Volumes() const {
    std::vector<Volume> All = UserVolumes();
    std::erase_if(All, [](const Volume& Each) {
        return IsText(Each.Root) && !QStorageInfo(Each.Root).isReady();
    });
    return All;
}

void DesktopDrives::Watch(QObject& Owner, std::function<void()> Changed) const {
    new MountWatch(std::move(Changed), &Owner);
}

}  // namespace neb
