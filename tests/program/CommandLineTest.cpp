// What the program understands from its command line.
#include "program/CommandLine.h"

#include <gtest/gtest.h>

#include <QDir>

#include "harness/TempFolder.h"
#include "support/files/HostNames.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

TEST(CommandLine, AnEmptyOneAsksForNothing) {
    const CommandLine Line = ParseCommandLine({});
    EXPECT_FALSE(Line.Debug);
    EXPECT_TRUE(Line.Paths.isEmpty());
    EXPECT_TRUE(Line.Documents.isEmpty());
    EXPECT_TRUE(Line.Problem.isEmpty());
}

TEST(CommandLine, TheDebugSwitchCountsInAnyCaseAndInsideALongerWord) {
    for (const char* Word : {"/DEBUG", "/debug", "/DEBUGX", "x/Debug", "/photos/debugging"}) {
        EXPECT_TRUE(ParseCommandLine({Word}).Debug) << Word;
        EXPECT_TRUE(ParseCommandLine({Word}).Paths.isEmpty()) << Word << " is no folder";
    }
    EXPECT_FALSE(ParseCommandLine({"debug"}).Debug);
}

TEST(CommandLine, AFolderWithTheSwitchInItsNameIsOpenedWhereItIsThere) {
    harness::TempFolder Home;
    const QString Photos = Home / "debug/photos";
    EXPECT_TRUE(ParseCommandLine({Photos}).Paths.isEmpty());
    MakeDirs(Photos);
    EXPECT_EQ(QStringList{Photos}, ParseCommandLine({Photos}).Paths);
    EXPECT_TRUE(ParseCommandLine({Photos}).Debug);
    EXPECT_EQ(QStringList{Photos}, ParseCommandLine({"file://" + Photos}).Paths);
    EXPECT_TRUE(ParseCommandLine({"file://" + Photos + "x"}).Paths.isEmpty());
}

TEST(CommandLine, FoldersPicturesAndADocumentsFolderAreTaken) {
    const CommandLine Line =
        ParseCommandLine({"--documents", "/tmp/docs", "/tmp/My Pictures", "rose.jpg"});
    EXPECT_EQ(Line.Documents, "/tmp/docs");
    EXPECT_EQ(Line.Paths, (QStringList{"/tmp/My Pictures", "rose.jpg"}));
}

TEST(CommandLine, AddressesOfFilesAreTakenAsPaths) {
    EXPECT_EQ(ParseCommandLine({"file:///tmp/My%20Pictures/%C3%A4.jpg"}).Paths,
              QStringList{"/tmp/My Pictures/ä.jpg"});
    EXPECT_EQ(ParseCommandLine({"FILE:///tmp/a"}).Paths, QStringList{"/tmp/a"});
    const QString Strange = HostName("/tmp/B\xE4ume");
    EXPECT_EQ(ParseCommandLine({"file:///tmp/B%E4ume"}).Paths, QStringList{Strange})
        << "a name in another encoding";
    EXPECT_EQ(ParseCommandLine({Strange}).Paths, QStringList{Strange});
    EXPECT_EQ(ParseCommandLine({"http://x/a.jpg"}).Paths, QStringList{"http://x/a.jpg"})
        << "is missed by its name";
}

TEST(CommandLine, WhatIsNotKnownIsSaid) {
    EXPECT_EQ(ParseCommandLine({"--wrong"}).Problem, "--wrong is not known.");
    EXPECT_EQ(ParseCommandLine({"--documents"}).Problem, "--documents wants a directory.");
}

}  // namespace
}  // namespace neb
