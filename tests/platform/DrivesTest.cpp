// The places where a search of all drives begins.
#include "platform/Drives.h"

#include <gtest/gtest.h>

#include <QStandardPaths>

#include "harness/TempFolder.h"
#include "support/modFUFL.h"
#include "support/modHostFiles.h"

namespace neb {
namespace {

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

}  // namespace
}  // namespace neb
