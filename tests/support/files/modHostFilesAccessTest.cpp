// Who may get at a file.
#include "support/files/modHostFilesAccess.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>

#include "harness/TempFolder.h"
#include "harness/WithoutPrivileges.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;
using harness::TempFolder;
using harness::WithoutPrivileges;

TEST(HostFilesAccess, TheReadOnlyAttributeIsTakenAwayAlone) {
    const TempFolder Folder;
    const QString Path = Folder / u"a"_s;
    WriteFile(Path, "kept");
    SetReadOnly(Path);
    ASSERT_TRUE(IsReadOnly(Path));
    ClearReadOnly(Path);
    EXPECT_FALSE(IsReadOnly(Path));
    EXPECT_EQ("kept", ReadFile(Path));
    EXPECT_THROW(ClearReadOnly(Folder / u"none"_s), Fault);
}

TEST(HostFilesAccess, OnlyAFolderThatIsThereTakesFiles) {
    const TempFolder Folder;
    WriteFile(Folder / u"file"_s, "");
    EXPECT_TRUE(CanWriteInto(Folder.Path()));
    EXPECT_FALSE(CanWriteInto(Folder / u"none"_s));
    EXPECT_FALSE(CanWriteInto(Folder / u"file"_s));
    EXPECT_FALSE(CanWriteInto({}));
}

TEST(HostFilesAccess, AnotherProgramReadsByTheDescriptor) {
    const TempFolder Folder;
    WriteFile(Folder / u"a"_s, "bytes");
    const int Descriptor = OpenForOther(Folder / u"a"_s);
    std::array<char, 8> Read = {};
    EXPECT_EQ(5, ::read(Descriptor, Read.data(), Read.size()));
    EXPECT_STREQ("bytes", Read.data());
    ::close(Descriptor);
    EXPECT_THROW(OpenForOther(Folder / u"none"_s), Fault);
}

TEST(HostFilesAccess, WhatTheSystemDeniesIsNotWritableAndNotMissing) {
    TempFolder Folder;
    const QString Inner = Folder / u"inner/"_s;
    MakeDirs(Inner);
    WriteFile(Inner + u"file"_s, "x");
    ASSERT_EQ(0, chmod(qPrintable(Folder.Path()), 0755));
    const WithoutPrivileges Ordinary;
    EXPECT_FALSE(MayWrite(Inner));
    EXPECT_FALSE(MayWrite(Inner + u"file"_s));
    EXPECT_FALSE(MayWrite(Inner + u"none"_s));
    EXPECT_EQ(u""_s, WhyUnseen(Inner + u"file"_s));
    EXPECT_EQ(u""_s, WhyUnseen(Inner + u"none"_s));
}

TEST(HostFilesAccess, WhatCannotBeSeenIsToldFromWhatIsMissing) {
    TempFolder Folder;
    const QString Inner = Folder / u"inner/"_s;
    MakeDirs(Inner);
    WriteFile(Inner + u"file"_s, "x");
    EXPECT_TRUE(MayWrite(Inner));
    EXPECT_TRUE(MayWrite(Inner + u"file"_s));
    ASSERT_EQ(0, chmod(qPrintable(Folder.Path()), 0755));
    ASSERT_EQ(0, chmod(qPrintable(Inner), 0));
    const WithoutPrivileges Ordinary;
    EXPECT_EQ(u"Permission denied"_s, WhyUnseen(Inner + u"file"_s));
    EXPECT_EQ(u"Permission denied"_s, WhyUnseen(Inner + u"none"_s));
}

}  // namespace
}  // namespace neb
