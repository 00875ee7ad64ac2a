// What a walk over many files asks: masks, and what is to be known of a file.
#include "support/files/modHostFilesMask.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "harness/TempFolder.h"
#include "harness/WithoutPrivileges.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

TEST(HostFilesWalk, AMaskIsBlindToCaseAndStarPointStarIsEverything) {
    const struct {
        const char *Mask, *Name;
        bool Matches;
    } Table[] = {{"*.*", "noext", true},       {"photo*.*", "PHOTO1.jpg", true},
                 {"photo*.*", "photo", false}, {"photo*.*", "myphoto.jpg", false},
                 {"*.JPG", "a.jpg", true},     {"?.jpg", "ab.jpg", false},
                 {"a.*", "a.b.c", true},       {"*", "", true}};
    for (const auto& Row : Table)
        EXPECT_EQ(Row.Matches,
                  NameMask(QString::fromLatin1(Row.Mask)).Matches(QString::fromLatin1(Row.Name)))
            << Row.Mask << ' ' << Row.Name;
}

TEST(HostFilesWalk, AMaskKnowsHowItsNamesBegin) {
    EXPECT_EQ(QString("00000012."), NameMask(QString("00000012.*")).Start());
    EXPECT_EQ(QString("PLAIN.BMP"), NameMask(QString("plain.bmp")).Start());
    for (const char* Any : {"*.*", "*x", "?x", ""})
        EXPECT_EQ(QString(""), NameMask(QString::fromLatin1(Any)).Start()) << Any;
}

TEST(HostFilesWalk, TellsSizeAndTimeOfAFileAlone) {
    const harness::TempFolder Folder;
    const QString File = Folder / QStringLiteral("a.jpg");
    WriteFile(File, "12345");
    const auto Facts = ReadableFileFacts(File);
    ASSERT_TRUE(Facts);
    EXPECT_EQ(5, Facts->Size);
    EXPECT_EQ(FileTime(File)->toSecsSinceEpoch(), Facts->Changed);
    EXPECT_FALSE(ReadableFileFacts(Folder.Path()));
    EXPECT_FALSE(ReadableFileFacts(Folder / QStringLiteral("none.jpg")));
}

TEST(HostFilesWalk, WhatOthersMayReadButItsReaderMayNotIsLeftOut) {
    const harness::TempFolder Folder;
    const QString File = Folder / QStringLiteral("a.jpg");
    WriteFile(File, "12345");
    ASSERT_EQ(0, ::chmod(qPrintable(Folder.Path()), 0755));
    ASSERT_EQ(0, ::chmod(qPrintable(File), 0040));
    const harness::WithoutPrivileges Ordinary;
    EXPECT_FALSE(ReadableFileFacts(File));
}

TEST(HostFilesWalk, AListingSaysWhyItIsEmpty) {
    const harness::TempFolder Folder;
    std::error_code Error;
    EXPECT_TRUE(ListDir(Folder.Path(), Error).empty());
    EXPECT_FALSE(Error);
    EXPECT_TRUE(ListDir(Folder / QStringLiteral("none"), Error).empty());
    EXPECT_EQ(std::errc::no_such_file_or_directory, Error);
}

}  // namespace
}  // namespace neb
