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

TEST(SuggestedName, IsCutSoThatItFitsWithItsNumber) {
    const QString Long(80, u'x');
    const QString Two = QString(78, u'x') + QStringLiteral(" 2");
    EXPECT_EQ(Long, SuggestAlbumName(Long, {}, false)) << "as it is";
    EXPECT_EQ(Two, SuggestAlbumName(Long, {}, true));
    EXPECT_EQ(Two, SuggestSlideShowName(Long, {Long}, false));
    QStringList Taken{Long};
    for (int I = 2; I < 10; ++I) Taken << QString(78, u'x') + u' ' + QString::number(I);
    EXPECT_EQ(QString(77, u'x') + QStringLiteral(" 10"), SuggestAlbumName(Long, Taken, true));
    const QString Words = QString(76, u'x') + QStringLiteral("  yz");
    EXPECT_EQ(QString(76, u'x') + QStringLiteral(" 2"), SuggestAlbumName(Words, {}, true));
    const QString Wide = QString(77, u'x') + QString::fromUtf8("\xF0\x9F\x8C\xB9y");
    EXPECT_EQ(QString(77, u'x') + QStringLiteral(" 2"), SuggestAlbumName(Wide, {}, true))
        << "no half letter";
}

}  // namespace
}  // namespace neb
