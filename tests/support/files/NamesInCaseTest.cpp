// Names of one directory that differ in case alone, once the directory's listing is remembered: it
// is trusted without another look, so what the program itself makes and removes must be right in
// it.
#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <QFile>

#include "harness/TempFolder.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

using harness::TempFolder;

class NamesInCase : public ::testing::Test {
  protected:
    // Made by somebody else, so that no routine of the program knows of them.
    void Make(const QStringList& Names) {
        for (const QString& Name : Names) {
            QFile File(Dir / Name);
            ASSERT_TRUE(File.open(QIODevice::WriteOnly));
            File.write(Name.toUtf8());
        }
    }
    // The last change was an hour ago: from now on the listing counts as settled.
    void Settle() {
        struct timespec Times[2] = {};
        ASSERT_EQ(0, clock_gettime(CLOCK_REALTIME, &Times[0]));
        Times[0].tv_sec -= 3600;
        Times[1] = Times[0];
        ASSERT_EQ(0, utimensat(AT_FDCWD, qPrintable(Dir.Path()), Times, 0));
        ListMask(Dir / "12.*");
    }
    QStringList Listed() { return ListMask(Dir / "12.*"); }

    TempFolder Dir;
};

TEST_F(NamesInCase, DeletingTheOneLeavesTheOtherToBeFound) {
    Make({"12.JPG", "12.jpg"});
    Settle();
    DeleteFile(Dir / "12.jpg");
    EXPECT_EQ(QStringList({"12.JPG"}), Listed());
    EXPECT_TRUE(FileExists(Dir / "12.jpg")) << "the other one is it but for case";
    EXPECT_EQ("12.JPG", ReadFile(Dir / "12.Jpg"));
}

TEST_F(NamesInCase, DeletingTheUpperOneLeavesTheLowerToBeFound) {
    Make({"12.JPG", "12.jpg"});
    Settle();
    DeleteFile(Dir / "12.JPG");
    EXPECT_EQ(QStringList({"12.jpg"}), Listed());
    EXPECT_EQ("12.jpg", ReadFile(Dir / "12.JPG"));
}

TEST_F(NamesInCase, RenamingTheOneLeavesTheOtherToBeFound) {
    Make({"12.JPG", "12.jpg"});
    Settle();
    RenameFile(Dir / "12.jpg", Dir / "13.jpg");
    EXPECT_EQ(QStringList({"12.JPG"}), Listed());
    EXPECT_TRUE(FileExists(Dir / "13.JPG"));
}

TEST_F(NamesInCase, BothGoneNeitherIsFound) {
    Make({"12.JPG", "12.jpg"});
    Settle();
    DeleteFile(Dir / "12.jpg");
    DeleteFile(Dir / "12.JPG");
    EXPECT_EQ(QStringList(), Listed());
    EXPECT_FALSE(FileExists(Dir / "12.jpg"));
}

}  // namespace
}  // namespace neb
