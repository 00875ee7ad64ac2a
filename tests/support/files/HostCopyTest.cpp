// Copying many files, and telling directories apart.
#include <gtest/gtest.h>

#include <QFile>
#include <filesystem>

#include "harness/TempFolder.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"
#include "support/files/modHostFilesCopy.h"

namespace neb {
namespace {

using namespace harness;
using namespace Qt::StringLiterals;

class HostCopy : public ::testing::Test {
  protected:
    ~HostCopy() override { SetHostWatcher({}); }
    bool Copy(const std::function<bool(qint64)>& GoOn = [](qint64) { return true; }) {
        return CopyBytes(Dir / "from", Dir / "to", GoOn);
    }
    TempFolder Dir;
};

QByteArray Many(qsizetype Length) {
    QByteArray Bytes(Length, 0);
    for (qsizetype I = 0; I < Length; ++I) Bytes[I] = static_cast<char>(I * 2654435761U >> 13);
    return Bytes;
}

TEST_F(HostCopy, BringsEveryByteOver) {
    for (const qsizetype Length : {0, 1, 4 << 20, (9 << 20) + 5}) {
        WriteFile(Dir / "from", Many(Length));
        qint64 Heard = 0;
        EXPECT_TRUE(Copy([&](qint64 Piece) {
            Heard += Piece;
            return true;
        }));
        EXPECT_TRUE(ReadFile(Dir / "to") == Many(Length)) << Length;
        EXPECT_EQ(Length, Heard);
    }
}

TEST_F(HostCopy, ReplacesALongerFile) {
    WriteFile(Dir / "from", "short");
    WriteFile(Dir / "to", "much longer");
    EXPECT_TRUE(Copy());
    EXPECT_EQ("short", ReadFile(Dir / "to"));
}

TEST_F(HostCopy, EndsWhenItIsTold) {
    WriteFile(Dir / "from", Many(9 << 20));
    int Asked = 0;
    EXPECT_FALSE(Copy([&](qint64) { return ++Asked < 2; }));
    EXPECT_EQ(2, Asked);
}

// From one file system to another, and to what is no file at all.
TEST_F(HostCopy, ToAPlaceWhereTheHostCannotCopyByItself) {
    WriteFile(Dir / "from", Many(5 << 20));
    qint64 Heard = 0;
    EXPECT_TRUE(CopyBytes(Dir / "from", u"/dev/null"_s, [&](qint64 Piece) {
        Heard += Piece;
        return true;
    }));
    EXPECT_EQ(5 << 20, Heard);
    const QString Elsewhere = u"/dev/shm/neb-host-copy-"_s + Dir.Path().section(u'/', -2, -2);
    EXPECT_TRUE(CopyBytes(Dir / "from", Elsewhere, [](qint64) { return true; }));
    EXPECT_TRUE(ReadFile(Elsewhere) == Many(5 << 20));
    DeleteFile(Elsewhere);
}

TEST_F(HostCopy, SaysWhichFileIsNotThereOrHasNoRoom) {
    try {
        Copy();
        FAIL();
    } catch (const Fault& Problem) {
        EXPECT_EQ(Dir / "from", Problem.File());
    }
    WriteFile(Dir / "from", Many(5 << 20));
    SetHostWatcher([this](HostStep Step, const QString& Path, qint64& Length) {
        if (Step == HostStep::Write && Path == Dir / "to") Length = 1000;
    });
    try {
        Copy();
        FAIL();
    } catch (const Fault& Problem) {
        EXPECT_EQ(Dir / "to", Problem.File());
        EXPECT_TRUE(Problem.Text().contains(u"no space"_s));
    }
    EXPECT_EQ(1000, FileSize(Dir / "to"));
}

TEST_F(HostCopy, BringsAVolumeToTheDiskAndKnowsItsRoom) {
    bool Announced = false;
    SetHostWatcher([&](HostStep Step, const QString& Path, qint64&) {
        Announced |= Step == HostStep::SyncVolume && Path == Dir.Path();
    });
    SyncVolume(Dir.Path());
    EXPECT_TRUE(Announced);
    EXPECT_GT(FreeSpace(Dir.Path()), 0);
    EXPECT_EQ(-1, FreeSpace(Dir / "no such folder"));
    EXPECT_THROW(SyncVolume(Dir / "no such folder"), Fault);
}

TEST_F(HostCopy, ADirectoryIsTheSameHoweverItIsSpelled) {
    MakeDirs(Dir / "One");
    MakeDirs(Dir / "Two");
    std::filesystem::create_directory_symlink((Dir / "One").toStdString(),
                                              (Dir / "Link").toStdString());
    EXPECT_TRUE(IsSameDir(Dir / "One", Dir / "One/"));
    EXPECT_TRUE(IsSameDir(Dir / "One/", Dir / "one"));
    EXPECT_TRUE(IsSameDir(Dir / "One", Dir / "Link/"));
    EXPECT_TRUE(IsSameDir(Dir / "Two/../One", Dir / "One"));
    EXPECT_FALSE(IsSameDir(Dir / "One", Dir / "Two"));
    EXPECT_FALSE(IsSameDir(Dir / "One", Dir / "None"));
    EXPECT_TRUE(IsSameDir(Dir / "None", Dir / "None"));
}

}  // namespace
}  // namespace neb
