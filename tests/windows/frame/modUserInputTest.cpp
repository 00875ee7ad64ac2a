#include "windows/frame/modUserInput.h"

#include "harness/ScriptedBoxes.h"

using namespace neb;
using namespace neb::harness;
using namespace Qt::StringLiterals;

TEST(UserInput, ALegalTextIsAcceptedWithoutABox) {
    const ScriptedBoxes Boxes;
    EXPECT_TRUE(ValidateUserInput(u"Album Name"_s, u"Summer (2003)"_s));
    EXPECT_TRUE(ValidateUserInput(u"Album Name"_s, {}));
    EXPECT_EQ(0, Boxes.ShownCount());
}

TEST(UserInput, ABoxNamesEachIllegalSignOnce) {
    ScriptedBoxes Boxes;
    Boxes.Expect(u"The entered Album Name contained the following illegal characters:\n*?"_s,
                 u"Invalid User Input"_s, BoxIcon::Information, BoxAnswer::Ok);
    EXPECT_FALSE(ValidateUserInput(u"Album Name"_s, u"a*b?c*d"_s));
    EXPECT_EQ(1, Boxes.ShownCount());
}

TEST(UserInput, TheFolderOfTheAlbumsIsNoSourceOfPicturesAndABoxSaysSo) {
    ScriptedBoxes Boxes;
    for (const char* Free : {"/db/", "/db/Album/", "/db/albums/x/", "/other/Albums/", "/db/Albums"})
        EXPECT_FALSE(IsReservedForAlbums(QString::fromLatin1(Free), u"/db/"_s)) << Free;
    EXPECT_EQ(0, Boxes.ShownCount());
    for (const char* Taken : {"/db/Albums/", "/db/Albums/00000001/Slides/"}) {
        Boxes.Expect(u"This directory is reserved for Albums.  You cannot import from it."_s);
        EXPECT_TRUE(IsReservedForAlbums(QString::fromLatin1(Taken), u"/db/"_s)) << Taken;
    }
    EXPECT_EQ(2, Boxes.ShownCount());
}
