// The export and the import of a slide show: the lists of shows, their proposed names, viewing, and
// how they follow other windows.
#include "TransferRig.h"

namespace neb {
namespace {

using namespace harness;

class ShowTransfer : public TransferRig {
  protected:
    std::shared_ptr<frmSlideShowExport> W = OpenNew<frmSlideShowExport>();
    std::shared_ptr<frmSlideShowImport> I = OpenNew<frmSlideShowImport>();
    void Reopen() {
        W->Unload();
        W = OpenNew<frmSlideShowExport>();
    }
    std::int32_t ShowID(const QString& Name) {
        for (const auto& Each : Album(Engine).SlideShows)
            if (Each->SlideShowName == Name) return Each->SlideShowID;
        return 0;
    }
};

TEST_F(ShowTransfer, TheWindowsHaveShowsAndANoteInPlaceOfReplacing) {
    EXPECT_EQ("Export Slide Show", W->windowTitle().toStdString());
    EXPECT_EQ("Import Slide Show", I->windowTitle().toStdString());
    for (const QWidget* Each : {static_cast<QWidget*>(W.get()), static_cast<QWidget*>(I.get())}) {
        EXPECT_FALSE(In<QWidget>(*Each, "chkReplace").isVisible());
        EXPECT_TRUE(In<QWidget>(*Each, "lblNote").isVisible());
        EXPECT_EQ(
            u"NOTE: If Exporting to an Existing Slide Show it will always overwrite the existing copy."_s,
            In<QLabel>(*Each, "lblNote").text().replace(u'\n', u' '));
    }
    EXPECT_EQ("Garden*", Listed(*W, "cboSrcAlbum"));
    EXPECT_EQ("Summer*", Listed(*W, "cboSrcSlideShow"));
    EXPECT_EQ("", Listed(*W, "cboDstSlideShow"));
    EXPECT_EQ("<NEW ALBUM>*|Garden", Listed(*I, "cboDstAlbum"));
    EXPECT_EQ("<NEW SLIDE SHOW>*", Listed(*I, "cboDstSlideShow"));
    EXPECT_EQ("", Listed(*I, "cboSrcSlideShow"));
}

TEST_F(ShowTransfer, TheShowsAreThoseOfTheChosenAlbums) {
    AddAlbum(u"Bare"_s);
    Reopen();
    Load(*W, OtherDb.Path());
    EXPECT_EQ("Bare*|Garden", Listed(*W, "cboSrcAlbum"));
    EXPECT_EQ("", Listed(*W, "cboSrcSlideShow"));
    EXPECT_EQ("This album has no slide shows.\nChoose another one.", HintIn(*W));
    Choose(*W, "cboSrcAlbum", u"Garden"_s);
    EXPECT_EQ("Summer*", Listed(*W, "cboSrcSlideShow"));
    EXPECT_EQ("<NEW SLIDE SHOW>*", Listed(*W, "cboDstSlideShow"));
    EXPECT_EQ("Summer", Text(*W, "txtSlideShowName"));
    EXPECT_EQ("Garden", Text(*W, "txtAlbumName"));
    Choose(*W, "cboDstAlbum", u"Attic"_s);
    EXPECT_EQ("<NEW SLIDE SHOW>*|Winter", Listed(*W, "cboDstSlideShow"));
    EXPECT_EQ("Attic", Text(*W, "txtAlbumName"));
    Choose(*W, "cboDstSlideShow", u"Winter"_s);
    EXPECT_EQ("Winter", Text(*W, "txtSlideShowName"));
    Choose(*W, "cboDstAlbum", u"<NEW ALBUM>"_s);
    EXPECT_EQ("<NEW SLIDE SHOW>*", Listed(*W, "cboDstSlideShow"));
    EXPECT_EQ("Summer", Text(*W, "txtSlideShowName"));
}

TEST_F(ShowTransfer, TheProposedShowIsNumberedInItsOwnDatabaseAndWhereItIsTaken) {
    Load(*W, Db.Path());
    Choose(*W, "cboDstAlbum", u"Garden"_s);
    EXPECT_EQ("Summer 2", Text(*W, "txtSlideShowName"));
    AddShowOf(Other, u"summer"_s, {});
    Other.FinalizeDB();
    Load(*W, OtherDb.Path());
    Choose(*W, "cboDstAlbum", u"Attic"_s);
    EXPECT_EQ("<NEW SLIDE SHOW>*|summer|Winter", Listed(*W, "cboDstSlideShow"));
    EXPECT_EQ("Summer 2", Text(*W, "txtSlideShowName"));
}

TEST_F(ShowTransfer, AShowIsExportedIntoANewAlbumAndOverAnother) {
    Load(*W, OtherDb.Path());
    Press(*W, "cmdExport");
    EXPECT_FALSE(W->IsLoaded());
    EXPECT_EQ("Slide show \"Summer\" exported: 2 slides.", Notice.toStdString());
    EXPECT_EQ("Attic: lamp [Winter 1]|Garden: rose tulip [Summer 2]", OnDisk(OtherDb.Path()));
    Reopen();
    Load(*W, OtherDb.Path());
    Choose(*W, "cboDstAlbum", u"Attic"_s);
    Choose(*W, "cboDstSlideShow", u"Winter"_s);
    Press(*W, "cmdExport");
    EXPECT_EQ("Attic: rose tulip [Winter 2]|Garden: rose tulip [Summer 2]", OnDisk(OtherDb.Path()));
    EXPECT_EQ("", Heard());
}

TEST_F(ShowTransfer, AShowIsImportedAndTheOtherWindowsHearOfIt) {
    const QStringList Before = Everything(OtherDb.Path());
    Load(*I, OtherDb.Path());
    EXPECT_EQ("Attic*", Listed(*I, "cboSrcAlbum"));
    EXPECT_EQ("Winter*", Listed(*I, "cboSrcSlideShow"));
    Choose(*I, "cboDstAlbum", u"Garden"_s);
    EXPECT_EQ("<NEW SLIDE SHOW>*|Summer", Listed(*I, "cboDstSlideShow"));
    EXPECT_EQ("Winter", Text(*I, "txtSlideShowName"));
    Press(*I, "cmdImport");
    EXPECT_FALSE(I->IsLoaded());
    EXPECT_EQ("Garden: rose tulip lamp [Summer 2] [Winter 1]", Content(Engine));
    EXPECT_TRUE(Heard().find("Slide Show Insert 1 2") != std::string::npos) << Heard();
    EXPECT_EQ("Slide show \"Winter\" imported: 1 slide.", Notice.toStdString());
    EXPECT_EQ("", Differences(Before, Everything(OtherDb.Path())));
}

TEST_F(ShowTransfer, NothingIsCheckedBeforeTheTransferDoes) {
    ExpectInformation(u"You must first select an export destination."_s,
                      u"Missing Directory Information"_s);
    Press(*W, "cmdExport");
    ExpectInformation(u"You must first select an import source."_s,
                      u"Missing Directory Information"_s);
    Press(*I, "cmdImport");
    Load(*W, OtherDb.Path());
    In<QComboBox>(*W, "cboSrcSlideShow").setCurrentIndex(-1);
    Boxes.Expect(u"Failed to load the source Slide Show."_s);
    Press(*W, "cmdExport");
    In<QComboBox>(*W, "cboSrcAlbum").setCurrentIndex(-1);
    Boxes.Expect(u"Failed to load the source Album."_s);
    Press(*W, "cmdExport");
    EXPECT_TRUE(W->IsLoaded());
    Load(*W, Db.Path());
    Choose(*W, "cboSrcAlbum", u"Garden"_s);
    Choose(*W, "cboDstAlbum", u"Garden"_s);
    Choose(*W, "cboDstSlideShow", u"Summer"_s);
    ExpectInformation(u"You cannot Export a Slide Show to itself!"_s, u"Invalid User Input"_s);
    Press(*W, "cmdExport");
}

TEST_F(ShowTransfer, ShowsAreViewedOnEitherSide) {
    const auto Refused = u"You must select a slide show in order to view it."_s;
    Boxes.Expect(Refused, u""_s, BoxIcon::Plain, BoxAnswer::Ok);
    Press(*W, "cmdViewDstSlideShow");
    Load(*W, OtherDb.Path());
    Choose(*W, "cboDstAlbum", u"Attic"_s);
    Boxes.Expect(Refused);
    Press(*W, "cmdViewDstSlideShow");
    Choose(*W, "cboDstSlideShow", u"Winter"_s);
    Press(*W, "cmdViewDstSlideShow");
    auto* Far = harness::Open<frmSlideShowView>();
    ASSERT_NE(nullptr, Far);
    EXPECT_EQ(("Slide Show [" + OtherDb.Path() + ":Attic:Winter]").toStdString(),
              Far->windowTitle().toStdString());
    EXPECT_EQ(1, GridOf(*Far).Rows());
    Press(*W, "cmdExport");
    EXPECT_FALSE(W->IsLoaded());
    EXPECT_EQ(2, GridOf(*Far).Rows()) << "it shows what came";
    Far->Unload();
    Boxes.Expect(Refused);
    Press(*I, "cmdViewSrcSlideShow");
    Boxes.Expect(u"You must select an album in order to view it."_s);
    Press(*I, "cmdViewSrcAlbum");
}

TEST_F(ShowTransfer, TheListsOfShowsFollowOtherWindows) {
    AddShow(Engine, u"Autumn"_s);
    BroadcastEvent(u"Slide Show"_s, u"Insert"_s, nullptr, {AlbumID, ShowID(u"Autumn"_s)});
    EXPECT_EQ("Autumn|Summer*", Listed(*W, "cboSrcSlideShow"));
    Choose(*I, "cboDstAlbum", u"Garden"_s);
    Choose(*I, "cboDstSlideShow", u"Summer"_s);
    Album(Engine).GetSlideShow(ShowID(u"Summer"_s))->SlideShowName = u"July"_s;
    BroadcastEvent(u"Slide Show"_s, u"Update"_s, nullptr, {AlbumID, ShowID(u"July"_s)});
    EXPECT_EQ("Autumn|July*", Listed(*W, "cboSrcSlideShow"));
    EXPECT_EQ("<NEW SLIDE SHOW>|Autumn|July*", Listed(*I, "cboDstSlideShow"));
    EXPECT_EQ("July", Text(*I, "txtSlideShowName"));
    BroadcastEvent(u"Slide Show"_s, u"Update"_s, nullptr, {AlbumID + 1, 1});
    const std::int32_t July = ShowID(u"July"_s);
    Album(Engine).DeleteSlideShow(July, Engine);
    BroadcastEvent(u"Slide Show"_s, u"Delete"_s, nullptr, {AlbumID, July});
    EXPECT_EQ("Autumn", Listed(*W, "cboSrcSlideShow"));
    EXPECT_EQ("<NEW SLIDE SHOW>|Autumn", Listed(*I, "cboDstSlideShow"));
}

TEST_F(ShowTransfer, TheListsOfAlbumsFollowAndKeepTheShows) {
    Load(*W, Db.Path());
    Choose(*W, "cboDstAlbum", u"Garden"_s);
    Choose(*W, "cboDstSlideShow", u"Summer"_s);
    const auto Late = AddAlbum(u"Late"_s);
    BroadcastEvent(u"Album"_s, u"Insert"_s, nullptr, {Late});
    EXPECT_EQ("<NEW ALBUM>|Garden*|Late", Listed(*W, "cboDstAlbum"));
    EXPECT_EQ("<NEW SLIDE SHOW>|Summer*", Listed(*W, "cboDstSlideShow"));
    EXPECT_EQ("Summer*", Listed(*W, "cboSrcSlideShow"));
    Engine.DeleteAlbum(AlbumID);
    BroadcastEvent(u"Album"_s, u"Delete"_s, nullptr, {AlbumID});
    EXPECT_EQ("Late", Listed(*W, "cboSrcAlbum"));
    EXPECT_EQ("", Listed(*W, "cboSrcSlideShow"));
    EXPECT_EQ("", Listed(*W, "cboDstSlideShow"));
    EXPECT_EQ("<NEW ALBUM>*|Late", Listed(*I, "cboDstAlbum"));
}

TEST_F(ShowTransfer, AReadOnlyDatabaseTakesNoShow) {
    ReadOnlyDB = true;
    I->Unload();
    I = OpenNew<frmSlideShowImport>();
    Reopen();
    EXPECT_FALSE(IsOn(*I, "cmdImport"));
    EXPECT_TRUE(IsOn(*W, "cmdExport"));
}

}  // namespace
}  // namespace neb
