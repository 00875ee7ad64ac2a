#include "support/files/SpoolFile.h"

#include <gtest/gtest.h>

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

TEST(SpoolFile, WithoutAFolderTakesNothing) {
    qputenv("TMPDIR", "/nowhere/at/all");
    SpoolFile Spool;
    EXPECT_FALSE(Spool.Append("bytes"));
    EXPECT_FALSE(Spool.Append("bytes"));
    qunsetenv("TMPDIR");
}

}  // namespace
}  // namespace neb
