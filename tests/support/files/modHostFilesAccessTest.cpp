// Who may get at a file.
#include "support/files/modHostFilesAccess.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <array>

#include "harness/TempFolder.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;
using harness::TempFolder;

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

}  // namespace
}  // namespace neb
