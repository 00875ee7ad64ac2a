// Windows that stand open on an album while a transfer brings something into it: each shows what is
// there then, keeps what the user had chosen where it is still there, and what was typed.
#include "FollowedRig.h"
#include "harness/Heartbeat.h"
#include "windows/show/PreferencesRig.h"

namespace neb {
namespace {

using namespace harness;

class TransferFollowed : public FollowedRig {};

TEST_F(TransferFollowed, AllShowTheAlbumAsItIsBefore) {
    OpenAll();
    EXPECT_EQ(
        "Slide Manager - Garden, Garden*, <NEW SLIDE>|000003 fern|000001 rose|000002 tulip*, tulip "
        "red",
        InSlides());
    EXPECT_EQ("Bulk Slide Manager - Garden, Garden*, fern red|rose red|tulip red*", InCaptions());
    EXPECT_EQ(
        "Slide Show Manager - Garden, <NEW SLIDE SHOW>|Summer*, Summer: fern red / early red|late "
        "red",
        InShows());
    EXPECT_EQ("Album [:Garden], fern red|rose red|tulip red*", InView(*OfAlbum));
    EXPECT_EQ("Slide Show [:Garden:Summer], early red|late red*", InView(*OfShow));
    EXPECT_EQ("Garden* to <NEW ALBUM>|Garden* as typed", InExport());
    EXPECT_EQ("Garden*: Summer* to <NEW ALBUM>|Garden*: <NEW SLIDE SHOW>|Summer* as typed",
              InShowExport());
}

TEST_F(TransferFollowed, AnAlbumThatIsAddedComesBesideWhatIsThere) {
    OpenAll();
    ImportAlbum(false);
    EXPECT_EQ(
        "Slide Manager - Park, Park*, <NEW SLIDE>|000003 fern|000004 lamp|000005 moon|000001 "
        "rose|000002 tulip*, tulip red",
        InSlides());
    EXPECT_EQ("Bulk Slide Manager - Park, Park*, fern red|lamp blue|moon blue|rose red|tulip red*",
              InCaptions());
    EXPECT_EQ(
        "Slide Show Manager - Park, <NEW SLIDE SHOW>|Summer*|Winter, Summer: fern red|lamp "
        "blue|moon blue / early red|late red",
        InShows());
    EXPECT_EQ("Album [:Park], fern red|lamp blue|moon blue|rose red|tulip red*", InView(*OfAlbum));
    EXPECT_EQ("Slide Show [:Park:Summer], early red|late red*", InView(*OfShow));
    EXPECT_EQ("Park* to <NEW ALBUM>|Park* as typed", InExport());
    EXPECT_EQ(
        "Park*: Summer*|Winter to <NEW ALBUM>|Park*: <NEW SLIDE SHOW>|Summer*|Winter as typed",
        InShowExport());
}

TEST_F(TransferFollowed, WhatWasTypedStaysWhenAnAlbumIsAdded) {
    OpenAll();
    TypeEverywhere();
    ImportAlbum(false);
    EXPECT_EQ(
        "Slide Manager - Park, Park*, <NEW SLIDE>|000003 fern|000004 lamp|000005 moon|000001 "
        "rose|000002 tulip*, mine red, to be saved",
        InSlides());
    EXPECT_EQ("Bulk Slide Manager - Park, Park*, mine red*|lamp blue|moon blue|rose red|tulip red",
              InCaptions());
    EXPECT_EQ(
        "Slide Show Manager - Park, <NEW SLIDE SHOW>|Summer*|Winter, July: fern red|lamp blue|moon "
        "blue / mine red*|late red",
        InShows());
}

TEST_F(TransferFollowed, AnAlbumThatIsReplacedIsShownAnew) {
    OpenAll();
    ImportAlbum(true);
    EXPECT_EQ("Slide Manager - Park, Park*, <NEW SLIDE>*|000004 lamp|000005 moon,  none",
              InSlides());
    EXPECT_EQ("Bulk Slide Manager - Park, Park*, lamp blue|moon blue", InCaptions());
    EXPECT_EQ("Slide Show Manager - Park, <NEW SLIDE SHOW>|Winter, Summer: lamp blue|moon blue / ",
              InShows());
    EXPECT_EQ("Album [:Park], lamp blue|moon blue*", InView(*OfAlbum));
    EXPECT_EQ("Slide Show [:Garden:Summer], ", InView(*OfShow));
    EXPECT_EQ("Park* to <NEW ALBUM>|Park* as typed", InExport());
    EXPECT_EQ("Park*: Winter to <NEW ALBUM>|Park*: <NEW SLIDE SHOW>|Winter as typed",
              InShowExport());
}

TEST_F(TransferFollowed, WhatWasTypedForAnAlbumThatIsReplacedGoesNoFurtherThanItsSlides) {
    OpenAll();
    TypeEverywhere();
    ImportAlbum(true);
    EXPECT_EQ(
        "Slide Manager - Park, Park*, <NEW SLIDE>*|000004 lamp|000005 moon, mine red, to be saved",
        InSlides());
    EXPECT_EQ("Bulk Slide Manager - Park, Park*, lamp blue|moon blue", InCaptions());
    EXPECT_EQ("Slide Show Manager - Park, <NEW SLIDE SHOW>|Winter, July: lamp blue|moon blue / ",
              InShows());
}

TEST_F(TransferFollowed, AShowThatIsReplacedIsShownAnew) {
    OpenAll();
    ImportShow(u"Summer"_s);
    EXPECT_EQ("Slide Manager - Park, Park*, <NEW SLIDE>*|000003 fern|000004 lamp,  none",
              InSlides());
    EXPECT_EQ("Bulk Slide Manager - Park, Park*, fern red|lamp blue", InCaptions());
    EXPECT_EQ("Slide Show Manager - Park, <NEW SLIDE SHOW>|Summer*, Summer: fern red / cold blue",
              InShows());
    EXPECT_EQ("Album [:Park], fern red|lamp blue*", InView(*OfAlbum));
    EXPECT_EQ("Slide Show [:Park:Summer], cold blue*", InView(*OfShow));
    EXPECT_EQ("Park* to <NEW ALBUM>|Park* as typed", InExport());
    EXPECT_EQ("Park*: Summer* to <NEW ALBUM>|Park*: <NEW SLIDE SHOW>|Summer* as typed",
              InShowExport());
}

TEST_F(TransferFollowed, ASlideThatIsStillThereStaysChosenWhenAShowIsReplaced) {
    OpenAll(Fern);
    ImportShow(u"Summer"_s);
    EXPECT_EQ("Slide Manager - Park, Park*, <NEW SLIDE>|000003 fern*|000004 lamp, fern red",
              InSlides());
    EXPECT_EQ("Bulk Slide Manager - Park, Park*, fern red*|lamp blue", InCaptions());
    EXPECT_EQ("Album [:Park], fern red*|lamp blue", InView(*OfAlbum));
}

TEST_F(TransferFollowed, WhatWasTypedStaysWhenAShowIsReplaced) {
    OpenAll(Fern);
    TypeEverywhere();
    ImportShow(u"Summer"_s);
    EXPECT_EQ(
        "Slide Manager - Park, Park*, <NEW SLIDE>|000003 fern*|000004 lamp, mine red, to be saved",
        InSlides());
    EXPECT_EQ("Bulk Slide Manager - Park, Park*, mine red*|lamp blue", InCaptions());
    EXPECT_EQ("Slide Show Manager - Park, <NEW SLIDE SHOW>|Summer*, July: fern red|lamp blue / ",
              InShows());
}

TEST_F(TransferFollowed, ANewShowComesBesideTheOthers) {
    OpenAll();
    TypeEverywhere();
    ImportShow(u"<NEW SLIDE SHOW>"_s);
    EXPECT_EQ(
        "Slide Manager - Park, Park*, <NEW SLIDE>|000003 fern|000004 lamp|000001 rose|000002 "
        "tulip*, mine red, to be saved",
        InSlides());
    EXPECT_EQ("Bulk Slide Manager - Park, Park*, mine red*|lamp blue|rose red|tulip red",
              InCaptions());
    EXPECT_EQ(
        "Slide Show Manager - Park, <NEW SLIDE SHOW>|Summer*|Winter, July: fern red|lamp blue / "
        "mine red*|late red",
        InShows());
    EXPECT_EQ("Album [:Park], fern red|lamp blue|rose red|tulip red*", InView(*OfAlbum));
    EXPECT_EQ("Slide Show [:Park:Summer], early red|late red*", InView(*OfShow));
    EXPECT_EQ("Park* to <NEW ALBUM>|Park* as typed", InExport());
    EXPECT_EQ(
        "Park*: Summer*|Winter to <NEW ALBUM>|Park*: <NEW SLIDE SHOW>|Summer*|Winter as typed",
        InShowExport());
}

TEST_F(TransferFollowed, WhatWasTypedCanBeSavedBesideWhatHasCome) {
    OpenAll();
    TypeEverywhere();
    ImportAlbum(false);
    Press(*Slides, "cmdSave");
    ExpectInformation(u"1 slides successfully saved."_s, u"Operation Completed"_s);
    Press(*Captions, "cmdSave");
    ExpectInformation(u"Slide Show Saved Successfully."_s, u"Save Successful"_s);
    Press(*Shows, "cmdSave");
    EXPECT_EQ("Park: rose mine mine lamp moon [July 2] [Winter 1]", Content(Engine));
}

TEST_F(TransferFollowed, WhatWasTypedForSlidesThatHaveGoneHarmsNoneOfThoseThatHaveCome) {
    OpenAll();
    TypeEverywhere();
    ImportAlbum(true);
    Boxes.Expect(
        u"The currently selected slide cannot be found.\n"
        "You must select a new picture you want to use for this slide."_s,
        u"Missing Slide"_s);
    Press(*Slides, "cmdSave");
    ExpectInformation(u"0 slides successfully saved."_s, u"Operation Completed"_s);
    Press(*Captions, "cmdSave");
    Boxes.Expect(u"You must select atleast 1 slide for the Slide Show."_s);
    Press(*Shows, "cmdSave");
    EXPECT_EQ("Park: lamp moon [Winter 1]", Content(Engine));
}

TEST_F(TransferFollowed, TwoThousandSlidesAreFollowedAndNothingStandsStill) {
    for (int I = 0; I < 2000; ++I) AddSlide(Other, u"x"_s, Qt::blue);
    Other.FinalizeDB();
    OpenAll();
    const auto Window = OpenNew<frmAlbumImport>();
    Import(*Window);
    Heartbeat Beats;
    Press(*Window, "cmdImport");
    const double Longest = Beats.LongestStandstill();
    EXPECT_FALSE(Window->IsLoaded());
    EXPECT_GT(Beats.Beats(), 20);
    EXPECT_LT(Longest, 100);
    EXPECT_EQ(1 + 2005, In<QComboBox>(*Slides, "cboSlides").count());
    for (const FlexGrid* Each : {&In<FlexGrid>(*Captions, "flxAlbum"), &GridOf(*OfAlbum)}) {
        ASSERT_EQ(2005, Each->Rows());
        EXPECT_EQ(u"blue"_s, Colour(Each->CellPicture(2004, ColPic)));
    }
    EXPECT_EQ(2003, In<FlexGrid>(*Shows, "flxNonSelected").Rows());
}

class TransferWithPreferences : public FollowedRig {
  protected:
    // With Summer of Garden chosen as the show that is run; the lists of both afterwards.
    std::string ListsAfter(Form& Window, const char* Start) {
        std::string Found;
        const auto Preferences = NewForm<frmPreferences>();
        test::WhenPreferencesOpen([&](frmPreferences& Shown) {
            Choose(Shown, "cboAlbums", u"Garden"_s);
            Choose(Shown, "cboSlideShows", u"Summer"_s);
            Retype(Shown, "txtSlideTimeout", u"7"_s);
            Press(Window, Start);
            EXPECT_FALSE(Window.IsLoaded());
            EXPECT_EQ("7", Text(Shown, "txtSlideTimeout"));
            Found = Listed(Shown, "cboAlbums") + ": " + Listed(Shown, "cboSlideShows");
        });
        Preferences->LoadPreferences();
        return Found;
    }
};

TEST_F(TransferWithPreferences, AnAlbumThatIsAddedBringsItsShows) {
    const auto Window = OpenNew<frmAlbumImport>();
    Import(*Window);
    EXPECT_EQ("Park*: Summer*|Winter", ListsAfter(*Window, "cmdImport"));
}

TEST_F(TransferWithPreferences, AnAlbumThatIsReplacedTakesTheChosenShowAlong) {
    const auto Window = OpenNew<frmAlbumImport>();
    Import(*Window);
    In<QCheckBox>(*Window, "chkReplace").setFocus();
    QTest::keyClick(&In<QCheckBox>(*Window, "chkReplace"), Qt::Key_Space);
    EXPECT_EQ("Park*: Winter", ListsAfter(*Window, "cmdImport"));
}

TEST_F(TransferWithPreferences, AShowThatIsReplacedIsStillTheChosenOne) {
    const auto Window = OpenNew<frmSlideShowImport>();
    Import(*Window, u"Summer"_s);
    Retype(*Window, "txtSlideShowName", u"July"_s);
    EXPECT_EQ("Park*: July*", ListsAfter(*Window, "cmdImport"));
}

TEST_F(TransferWithPreferences, ANewAlbumComesToTheOthers) {
    const auto Window = OpenNew<frmAlbumImport>();
    Load(*Window, OtherDb.Path());
    EXPECT_EQ("Attic|Garden*: Summer*", ListsAfter(*Window, "cmdImport"));
}

}  // namespace
}  // namespace neb
