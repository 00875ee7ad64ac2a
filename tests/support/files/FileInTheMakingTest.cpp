// A file that is written beside its place, and lines that come behind others.
#include "support/files/FileInTheMaking.h"

#include <gtest/gtest.h>

#include "harness/TempFolder.h"
#include "support/files/modHostFiles.h"
#include "support/files/modHostFilesLines.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;
using harness::TempFolder;

TEST(FileInTheMakingOf, WhatAnEndedProgramHasLeftIsNoPartOfIt) {
    const TempFolder Folder;
    const QString Path = Folder / u"film.mp4"_s;
    WriteFile(Path + u".new"_s, "a longer beginning");
    {
        FileInTheMaking File(Path);
        File.Write("short", 5);
        File.Sync();
        File.TakeName();
    }
    EXPECT_EQ("short", ReadFile(Path));
}

TEST(FileInTheMakingOf, NothingOfItStaysWhereItIsNotFinished) {
    const TempFolder Folder;
    const QString Path = Folder / u"film.mp4"_s;
    { FileInTheMaking(Path).Write("half", 4); }
    EXPECT_TRUE(ListDir(Folder.Path()).empty());
}

TEST(LinesOfAFile, BeginOnALineOfTheirOwn) {
    const TempFolder Folder;
    const QString Path = Folder / u"list"_s;
    WriteFile(Path, "cut off");
    AppendLines(Path, "whole\n");
    EXPECT_EQ("cut off\nwhole\n", ReadFile(Path));
    AppendLines(Path, "next\n");
    EXPECT_EQ("cut off\nwhole\nnext\n", ReadFile(Path));
}

}  // namespace
}  // namespace neb
