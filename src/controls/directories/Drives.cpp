#include "controls/directories/Drives.h"

#include <QStandardPaths>
#include <QStorageInfo>
#include <algorithm>
#include <span>

#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"
#include "support/modText.h"

namespace neb {

QStringList ReadyDrives(const DriveList* Drives) {
    QStringList Ready = Drives ? Drives->Drives() : QStringList();
    Ready.removeIf([Drives](const QString& Each) { return !Drives->IsReady(Each); });
    return Ready;
}

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

constexpr const char* DiskKinds[] = {
    "ext2",  "ext3", "ext4",  "btrfs", "xfs", "f2fs", "jfs",     "zfs",     "vfat",    "exfat",
    "msdos", "ntfs", "ntfs3", "udf",   "hfs", "apfs", "hfsplus", "fuseblk", "iso9660", "reiserfs"};
constexpr const char* NetworkKinds[] = {
    "nfs", "nfs4", "cifs",  "smb3",        "smbfs",           "fuse.sshfs",    "fuse.rclone",
    "afs", "ceph", "davfs", "fuse.davfs2", "fuse.gvfsd-fuse", "fuse.glusterfs"};
// What the host itself stands on, and other people's homes.
constexpr const char* HostFolders[] = {"/bin", "/boot", "/dev",  "/etc", "/home", "/lib",
                                       "/nix", "/proc", "/root", "/run", "/sbin", "/snap",
                                       "/sys", "/tmp",  "/usr",  "/var"};

bool IsOneOf(const QString& Kind, std::span<const char* const> Kinds) {
    return std::any_of(Kinds.begin(), Kinds.end(),
                       [&](const char* Each) { return Kind == QLatin1String(Each); });
}

bool IsText(const QString& Path) {
    return ReadableText(Path) == Path;
}

// The toolkit knows volumes whose folders have names that are text. Those that have not are added,
// and disks that stand elsewhere than media do.
std::vector<Volume> UserVolumes() {
    std::vector<Volume> All;
    for (const QStorageInfo& Each : QStorageInfo::mountedVolumes())
        if (IsUserVolume(Each.rootPath()) && !Each.rootPath().contains(QChar::ReplacementCharacter))
            All.push_back({Each.displayName(), Each.rootPath()});
    for (const Mount& Each : Mounts())
        if (IsUserDisk(Each) || (IsUserVolume(Each.Path) && !IsText(Each.Path)))
            All.push_back({ReadableText(GetFileName(Each.Path)), Each.Path});
    return All;
}

}  // namespace

bool IsUserDisk(const Mount& Each) {
    if (Each.Path == u"/" || IsUserVolume(Each.Path) || !IsOneOf(Each.Kind, DiskKinds))
        return false;
    return std::none_of(std::begin(HostFolders), std::end(HostFolders), [&](const char* Folder) {
        return WithSeparator(Each.Path).startsWith(WithSeparator(QString::fromLatin1(Folder)));
    });
}

bool IsNetwork(const Mount& Each) {
    return IsOneOf(Each.Kind, NetworkKinds);
}

QStringList DesktopDrives::Drives() const {
    QStringList Paths{QStandardPaths::writableLocation(QStandardPaths::HomeLocation)};
    for (const Volume& Each : UserVolumes()) Paths.append(Each.Root);
    return OutermostPaths(Paths);
}

// A network that does not answer would hold up the window that asks.
bool DesktopDrives::IsReady(const QString& Drive) const {
    if (IsFar(Drive)) return true;
    bool Readable = false;
    ListDir(Drive, &Readable);
    return Readable;
}

bool DesktopDrives::IsFar(const QString& Drive) const {
    const std::vector<Mount> All = Mounts();
    return std::any_of(All.begin(), All.end(),
                       [&](const Mount& Each) { return Each.Path == Drive && IsNetwork(Each); });
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
