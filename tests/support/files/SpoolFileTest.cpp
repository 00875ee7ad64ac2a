#include "support/files/SpoolFile.h"

#include <gtest/gtest.h>

#ifdef __linux__
#include <sys/resource.h>

#include <csignal>
#endif

#include "harness/TempFolder.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

TEST(SpoolFile, GivesBackWhatItTookInAnyOrder) {
    SpoolFile Spool;
    const auto First = Spool.Append("first"), Second = Spool.Append(QByteArray(100000, 'x'));
    ASSERT_TRUE(First && Second);
    EXPECT_EQ(QByteArray(100000, 'x'), Spool.Read(*Second, 100000));
    EXPECT_EQ("first", Spool.Read(*First, 5).toStdString());
    const auto Third = Spool.Append("third");
    EXPECT_EQ("third", Spool.Read(*Third, 5).toStdString());
}

TEST(SpoolFile, HasNothingToGiveBeforeItTookAnything) {
    SpoolFile Spool;
    EXPECT_EQ("", Spool.Read(0, 5).toStdString());
}

TEST(SpoolFile, LeavesNoNameInTheFolder) {
    const harness::TempFolder Folder;
    qputenv("TMPDIR", Folder.Path().toUtf8());
    {
        SpoolFile Spool;
        EXPECT_TRUE(Spool.Append("bytes"));
#ifdef __linux__
        EXPECT_TRUE(ListDir(Folder.Path()).empty()) << "a program that is ended leaves it behind";
#endif
    }
    EXPECT_TRUE(ListDir(Folder.Path()).empty());
    qunsetenv("TMPDIR");
}

#ifdef __linux__
TEST(SpoolFile, ThatFoundNoRoomGivesBackWhatItTookBeforeAndGoesOn) {
    SpoolFile Spool;
    const auto First = Spool.Append(QByteArray(1000, 'x'));
    ASSERT_TRUE(First);
    const auto Handled = std::signal(SIGXFSZ, SIG_IGN);
    rlimit Before;
    getrlimit(RLIMIT_FSIZE, &Before);
    const rlimit Small{4000, Before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &Small);
    EXPECT_FALSE(Spool.Append(QByteArray(3500, 'y')));
    const QByteArray Read = Spool.Read(*First, 1000);
    const auto Second = Spool.Append("second");
    setrlimit(RLIMIT_FSIZE, &Before);
    std::signal(SIGXFSZ, Handled);
    EXPECT_EQ(QByteArray(1000, 'x'), Read);
    ASSERT_TRUE(Second);
    EXPECT_EQ("second", Spool.Read(*Second, 6).toStdString());
}
#endif

TEST(SpoolFile, WithoutAFolderTakesNothing) {
    qputenv("TMPDIR", "/nowhere/at/all");
    SpoolFile Spool;
    EXPECT_FALSE(Spool.Append("bytes"));
    EXPECT_FALSE(Spool.Append("bytes"));
    qunsetenv("TMPDIR");
}

}  // namespace
}  // namespace neb
