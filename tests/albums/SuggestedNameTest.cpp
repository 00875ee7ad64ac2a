// The names that are proposed at the destination of a transfer.
#include "albums/transfer/SuggestedName.h"

#include <gtest/gtest.h>

namespace neb {
namespace {

const struct {
    const char* Source;  // nullptr: none is chosen
    QStringList Taken;
    bool InSameDatabase;
    const char* Suggested;
} Names[] = {
    {nullptr, {"<NEW ALBUM>", "Garden"}, false, ""},
    {nullptr, {}, true, ""},
    {"Garden", {}, false, "Garden"},
    {"Garden", {"<NEW ALBUM>", "Attic"}, false, "Garden"},
    {"Garden", {"<NEW ALBUM>", "Garden"}, false, "Garden 2"},
    {"Garden", {"gARDEN"}, false, "Garden 2"},
    {"Garden", {"Garden 2"}, false, "Garden"},
    {"Garden", {"Garden", "GARDEN 2", "Garden 3"}, false, "Garden 4"},
    {"Garden", {"Garden", "Garden 1"}, false, "Garden 2"},
    {"Garden", {}, true, "Garden 2"},
    {"Garden", {"Garden"}, true, "Garden 2"},
    {"Garden", {"Garden", "Garden 2"}, true, "Garden 3"},
    {"Garden 2", {"Garden", "Garden 2"}, true, "Garden 2 2"},
    {"straße", {"STRASSE"}, false, "straße 2"},
    {"", {""}, false, " 2"},
};

TEST(SuggestedName, IsTheSourcesOwnUnlessItIsTaken) {
    for (const auto& Each : Names) {
        const auto Source =
            Each.Source ? std::optional(QString::fromUtf8(Each.Source)) : std::nullopt;
        const std::string About = Each.Taken.join(u'|').toStdString();
        EXPECT_EQ(Each.Suggested,
                  SuggestAlbumName(Source, Each.Taken, Each.InSameDatabase).toStdString())
            << About;
        EXPECT_EQ(Each.Suggested,
                  SuggestSlideShowName(Source, Each.Taken, Each.InSameDatabase).toStdString())
            << About;
    }
}

}  // namespace
}  // namespace neb
