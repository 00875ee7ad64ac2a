// What the program understands from its command line.
#include "program/CommandLine.h"

#include <gtest/gtest.h>

namespace neb {
namespace {

TEST(CommandLine, AnEmptyOneAsksForNothing) {
    const CommandLine Line = ParseCommandLine({});
    EXPECT_FALSE(Line.Debug);
    EXPECT_TRUE(Line.Folder.isEmpty());
    EXPECT_TRUE(Line.Documents.isEmpty());
    EXPECT_TRUE(Line.Problem.isEmpty());
}

TEST(CommandLine, TheDebugSwitchCountsInAnyCaseAndInsideALongerWord) {
    EXPECT_TRUE(ParseCommandLine({"/DEBUG"}).Debug);
    EXPECT_TRUE(ParseCommandLine({"/debug"}).Debug);
    EXPECT_TRUE(ParseCommandLine({"/photos/debugging"}).Debug);
    EXPECT_FALSE(ParseCommandLine({"debug"}).Debug);
    EXPECT_TRUE(ParseCommandLine({"/debug"}).Folder.isEmpty());
}

TEST(CommandLine, AFolderAndADocumentsFolderAreTaken) {
    const CommandLine Line = ParseCommandLine({"--documents", "/tmp/docs", "/tmp/My Pictures"});
    EXPECT_EQ(Line.Documents, "/tmp/docs");
    EXPECT_EQ(Line.Folder, "/tmp/My Pictures");
}

TEST(CommandLine, WhatIsNotKnownIsSaid) {
    EXPECT_EQ(ParseCommandLine({"--wrong"}).Problem, "--wrong is not known.");
    EXPECT_EQ(ParseCommandLine({"--documents"}).Problem, "--documents wants a directory.");
}

}  // namespace
}  // namespace neb
