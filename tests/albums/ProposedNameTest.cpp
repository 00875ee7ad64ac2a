// The name that a folder proposes for a new album.
#include "albums/library/ProposedName.h"

#include <gtest/gtest.h>

#include "db/clsDBEngine.h"
#include "support/files/HostNames.h"
#include "support/modDEValidation.h"

namespace neb {
namespace {

class ProposedName : public ::testing::Test {
  protected:
    void Take(const QString& Name) {
        std::int32_t AlbumID = 0;
        ASSERT_TRUE(Engine.SaveAlbum(AlbumID, Name));
    }
    std::string For(const QString& Folder) const {
        return ProposedAlbumName(Folder, Engine).toStdString();
    }
    clsDBEngine Engine;
};

TEST_F(ProposedName, IsThatOfTheFolder) {
    EXPECT_EQ("Garden", For("/home/anna/Garden/"));
    EXPECT_EQ("Garden", For("/home/anna/Garden"));
    EXPECT_EQ("Ausflüge & mehr", For("/home/anna/Ausflüge & mehr/"));
}

TEST_F(ProposedName, IsCleaned) {
    EXPECT_EQ("Mary’s “walk”", For("/x/Mary's \"walk\"/"));
    EXPECT_EQ("two lines", For("/x/two\nlines\t/"));
    EXPECT_EQ("Bäume", For(HostName("/x/B\xE4ume/"))) << "a name in another encoding";
}

TEST_F(ProposedName, IsThereForARootToo) {
    EXPECT_EQ("Pictures", For("/"));
    EXPECT_EQ("Pictures", For("/x/ \t/"));
    EXPECT_EQ("Pictures", For({}));
}

TEST_F(ProposedName, HasANumberWhereAnAlbumIsCalledSo) {
    Take("GARDEN");
    EXPECT_EQ("Garden (2)", For("/x/Garden/"));
    Take("Garden (2)");
    EXPECT_EQ("Garden (3)", For("/x/Garden/"));
    EXPECT_EQ("Garden (2) (2)", For("/x/Garden (2)/"));
}

TEST_F(ProposedName, FitsWithItsNumber) {
    const QString Long(100, u'n');
    EXPECT_EQ(MaxName, ProposedAlbumName("/x/" + Long, Engine).size());
    Take(Long.first(MaxName));
    const QString Second = ProposedAlbumName("/x/" + Long, Engine);
    EXPECT_EQ(Long.first(MaxName - 4) + " (2)", Second);
    std::int32_t AlbumID = 0;
    EXPECT_TRUE(Engine.SaveAlbum(AlbumID, Second));
}

}  // namespace
}  // namespace neb
