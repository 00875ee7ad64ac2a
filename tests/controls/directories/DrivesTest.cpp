// The places where a search of all drives begins.
#include "controls/directories/Drives.h"

#include <gtest/gtest.h>

#include <QStandardPaths>
#include <QTest>

#include "harness/MountedMemory.h"
#include "harness/TempFolder.h"
#include "support/files/HostNames.h"
#include "support/files/modHostFiles.h"
#include "support/files/modHostFilesMounts.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

TEST(Drives, HoldTheHomeDirectoryOrADriveAboveIt) {
    const QString Home = QStandardPaths::writableLocation(QStandardPaths::HomeLocation);
    const QStringList All = DesktopDrives().Drives();
    EXPECT_TRUE(std::any_of(All.begin(), All.end(), [&](const QString& Drive) {
        return WithSeparator(Home).startsWith(WithSeparator(Drive));
    })) << All.join(u' ').toStdString();
}

TEST(Drives, OfferNoMountOfTheSystemsOwn) {
    for (const char* Root : {"/", "/boot/efi", "/proc", "/sys/fs/cgroup", "/dev/shm", "/run/lock",
                             "/media", "/mntother", "/snap/core/1", "/var/lib"})
        EXPECT_FALSE(IsUserVolume(QString::fromLatin1(Root))) << Root;
    for (const char* Root :
         {"/media/anna/STICK", "/run/media/anna/CAMERA", "/mnt", "/mnt/nas", "C:/", "D:"})
        EXPECT_TRUE(IsUserVolume(QString::fromLatin1(Root))) << Root;
}

TEST(Drives, AreDisksInPlacesOfTheirOwnToo) {
    for (const char* Root : {"/data", "/srv/photos", "/homes", "/varied", "/opt/pictures"})
        EXPECT_TRUE(IsUserDisk({QString::fromLatin1(Root), u"ext4"_s})) << Root;
    for (const char* Root : {"/", "/home", "/home/bert", "/boot/efi", "/var/lib/x", "/etc/hosts",
                             "/usr", "/tmp", "/snap/core/1", "/run/user/1000"})
        EXPECT_FALSE(IsUserDisk({QString::fromLatin1(Root), u"ext4"_s})) << Root;
    for (const char* Kind : {"vfat", "exfat", "ntfs3", "fuseblk", "btrfs", "iso9660"})
        EXPECT_TRUE(IsUserDisk({u"/data"_s, QString::fromLatin1(Kind)})) << Kind;
    for (const char* Kind : {"proc", "sysfs", "tmpfs", "overlay", "squashfs", "cgroup2", "nfs4",
                             "cifs", "fuse.sshfs", "devtmpfs", "fuse.portal"})
        EXPECT_FALSE(IsUserDisk({u"/data"_s, QString::fromLatin1(Kind)})) << Kind;
}

TEST(Drives, AreFarOnANetwork) {
    for (const char* Kind : {"nfs", "nfs4", "cifs", "smb3", "fuse.sshfs"})
        EXPECT_TRUE(IsNetwork({u"/mnt/nas"_s, QString::fromLatin1(Kind)})) << Kind;
    for (const char* Kind : {"ext4", "vfat", "fuseblk", "tmpfs"})
        EXPECT_FALSE(IsNetwork({u"/mnt/nas"_s, QString::fromLatin1(Kind)})) << Kind;
    EXPECT_FALSE(
        DesktopDrives().IsFar(QStandardPaths::writableLocation(QStandardPaths::HomeLocation)));
}

TEST(Drives, StandInNoOtherDriveSoThatNothingIsFoundTwice) {
    EXPECT_EQ(OutermostPaths({"/home/anna", "/media/a", "/media/a/b", "/home/anna", "/media/ab"}),
              QStringList({"/home/anna", "/media/a", "/media/ab"}));
    EXPECT_EQ(OutermostPaths({"C:/Users/anna", "C:/", "D:/"}), QStringList({"C:/", "D:/"}));
}

TEST(Drives, AreReadyOnlyWhileTheyCanBeRead) {
    const harness::TempFolder Folder;
    MakeDirs(Folder / QStringLiteral("stick"));
    EXPECT_TRUE(DesktopDrives().IsReady(Folder / QStringLiteral("stick")));
    DeleteTree(Folder / QStringLiteral("stick"));
    EXPECT_FALSE(DesktopDrives().IsReady(Folder / QStringLiteral("stick")));
}

TEST(Drives, AreVolumesOfTheUserAlone) {
    const std::vector<Mount> All = Mounts();
    for (const Volume& Each : DesktopDrives().Volumes()) {
        const bool IsDisk = std::ranges::any_of(
            All, [&](const Mount& Of) { return Of.Path == Each.Root && IsUserDisk(Of); });
        EXPECT_TRUE(IsUserVolume(Each.Root) || IsDisk) << Each.Root.toStdString();
        EXPECT_FALSE(Each.Name.isEmpty());
    }
}

TEST(Drives, AreThereWhateverTheNamesOfTheirFolders) {
    const QString Root = u"/mnt/"_s + HostName("Fotos \xFC");
    const QByteArray Bytes = HostBytes(Root);
    MakeDirs(Root);
    if (mount("none", Bytes.constData(), "tmpfs", 0, "size=1m") != 0) {
        DeleteFolder(Root);
        GTEST_SKIP() << "nothing can be mounted here";
    }
    WriteFile(Root + u"/a.jpg"_s, "x");
    const std::vector<Volume> All = DesktopDrives().Volumes();
    const QStringList Drives = DesktopDrives().Drives();
    const bool IsReady = DesktopDrives().IsReady(Root);
    umount2(Bytes.constData(), MNT_DETACH);
    DeleteFolder(Root);
    const auto Found = std::ranges::find(All, Root, &Volume::Root);
    ASSERT_NE(All.end(), Found);
    EXPECT_EQ(u"Fotos ü", Found->Name);
    EXPECT_TRUE(Drives.contains(Root) && IsReady);
}

TEST(Drives, TellOfWhatIsMountedAndUnmountedWhileSomebodyListens) {
    const harness::TempFolder Folder;
    int Told = 0;
    auto Listener = std::make_unique<QObject>();
    DesktopDrives().Watch(*Listener, [&] { ++Told; });
    {
        const harness::MountedMemory Stick(Folder.Path());
        if (!Stick.IsThere()) GTEST_SKIP() << "nothing can be mounted here";
        EXPECT_TRUE(QTest::qWaitFor([&] { return Told > 0; }, 3000));
    }
    const int Before = Told;
    EXPECT_TRUE(QTest::qWaitFor([&] { return Told > Before; }, 3000));
    Listener.reset();
    Told = 0;
    const harness::MountedMemory Stick(Folder.Path());
    EXPECT_FALSE(QTest::qWaitFor([&] { return Told > 0; }, 500));
}

}  // namespace
}  // namespace neb
