// The import of an album: what differs from the export. The source is another database, which is
// left untouched, and the destination the program's own.
#include <QFile>

#include "TransferRig.h"

namespace neb {
namespace {

using namespace harness;

class AlbumImport : public TransferRig {
  protected:
    std::shared_ptr<frmAlbumImport> W = OpenNew<frmAlbumImport>();
    void Reopen() {
        W->Unload();
        W = OpenNew<frmAlbumImport>();
    }
};

TEST_F(AlbumImport, OpensWithANewAlbumAsItsDestination) {
    EXPECT_EQ("frmAlbumImport", W->objectName().toStdString());
    EXPECT_EQ("Import Album", W->windowTitle().toStdString());
    EXPECT_EQ("", Listed(*W, "cboSrcAlbum"));
    EXPECT_EQ("<NEW ALBUM>*|Garden", Listed(*W, "cboDstAlbum"));
    EXPECT_TRUE(In<QPushButton>(*W, "cmdImport").isDefault());
    EXPECT_TRUE(In<QGroupBox>(*W, "grpFrom").isAncestorOf(&In<QWidget>(*W, "txtSrcDB")));
    EXPECT_EQ("txtSrcDB", W->focusWidget()->objectName().toStdString());
}

TEST_F(AlbumImport, AsksForADirectoryAndForASource) {
    ExpectInformation(u"You must first select an import source."_s,
                      u"Missing Directory Information"_s);
    Press(*W, "cmdRefresh");
    ExpectInformation(u"You must first select a Source Album."_s, u"No Source Selected"_s);
    Press(*W, "cmdImport");
    In<QComboBox>(*W, "cboDstAlbum").setCurrentIndex(-1);
    Load(*W, OtherDb.Path());
    ExpectInformation(u"You must first select a Destination Album."_s,
                      u"No Destination Selected"_s);
    Press(*W, "cmdImport");
}

TEST_F(AlbumImport, ADirectoryWithoutADatabaseIsToldAndNotMadeIntoOne) {
    Load(*W, OtherDb.Path());
    ExpectInformation(NoDatabase, InvalidDirectory);
    Load(*W, Empty.Path());
    EXPECT_EQ("", Listed(*W, "cboSrcAlbum"));
    EXPECT_TRUE(Everything(Empty.Path()).isEmpty());
}

TEST_F(AlbumImport, TheFileNamedInTheDialogStandsForItsDirectory) {
    Dialogs.File = OtherDb / u"NextIDs.dat"_s;
    Press(*W, "cmdSrcDBBrowse");
    EXPECT_EQ("Attic*", Listed(*W, "cboSrcAlbum"));
    Reopen();
    Dialogs.Folder = OtherDb.Path();
    Press(*W, "cmdSrcDBFolder");
    EXPECT_EQ("Attic*", Listed(*W, "cboSrcAlbum"));
    Reopen();
    EXPECT_TRUE(Drop(In<QWidget>(*W, "grpTo"), OtherDb.Path()) || Drop(*W, OtherDb.Path()));
    EXPECT_EQ("Attic*", Listed(*W, "cboSrcAlbum"));
}

TEST_F(AlbumImport, BringsTheAlbumAndTellsTheOtherWindows) {
    const QStringList Before = Everything(OtherDb.Path());
    Load(*W, OtherDb.Path());
    EXPECT_EQ("Attic", Text(*W, "txtAlbumName"));
    Press(*W, "cmdImport");
    EXPECT_FALSE(W->IsLoaded());
    EXPECT_EQ("Garden: rose tulip [Summer 2]|Attic: lamp [Winter 1]", Content(Engine));
    EXPECT_EQ("Album Insert 2", Heard());
    EXPECT_EQ("Album \"Attic\" imported: 1 slide, 1 slide show.", Notice.toStdString());
    EXPECT_EQ("", Differences(Before, Everything(OtherDb.Path()))) << "the source is untouched";
}

TEST_F(AlbumImport, AddsToAnAlbumOrReplacesIt) {
    Load(*W, OtherDb.Path());
    Choose(*W, "cboDstAlbum", u"Garden"_s);
    EXPECT_EQ("Garden", Text(*W, "txtAlbumName"));
    Press(*W, "cmdImport");
    EXPECT_EQ("Garden: rose tulip lamp [Summer 2] [Winter 1]", Content(Engine));
    Reopen();
    Load(*W, OtherDb.Path());
    Choose(*W, "cboDstAlbum", u"Garden"_s);
    In<QCheckBox>(*W, "chkReplace").setChecked(true);
    Press(*W, "cmdImport");
    EXPECT_EQ("Garden: lamp [Winter 1]", Content(Engine));
    EXPECT_EQ("Album Update 1|Album Update 1", Heard());
}

TEST_F(AlbumImport, SmallPicturesOfAnAlbumThatIsReplacedAreForgotten) {
    Store.SetCols(clsImageBuffer::ColAlbumID + 1);
    Store.SetCellData(Store.AddItem(), clsImageBuffer::ColAlbumID, 1.0);
    Load(*W, OtherDb.Path());
    Choose(*W, "cboDstAlbum", u"Garden"_s);
    In<QCheckBox>(*W, "chkReplace").setChecked(true);
    Press(*W, "cmdImport");
    EXPECT_EQ("Garden: lamp [Winter 1]", Content(Engine));
    EXPECT_EQ(-1, Store.FindRow(clsImageBuffer::ColAlbumID, 1.0));
}

TEST_F(AlbumImport, ANameClashSpeaksOfTheImport) {
    AddShow(Engine, u"winter"_s);
    Load(*W, OtherDb.Path());
    Choose(*W, "cboDstAlbum", u"Garden"_s);
    ExpectInformation(
        u"1 or more Slide Shows within the selected Destination Album have\n"
        "names identical to those of Slide Shows in the Source\nAlbum.  You can only Import unique "
        "Slide Shows.\nUse the Update Feature to overwrite an existing album."_s,
        u"Operation Unsuccessful"_s);
    Press(*W, "cmdImport");
    EXPECT_TRUE(W->IsLoaded());
    EXPECT_TRUE(IsOn(*W, "cmdImport"));
    EXPECT_EQ("", Heard());
}

TEST_F(AlbumImport, AReadOnlyDatabaseOfOnesOwnIsToldBeforeAnythingStarts) {
    ReadOnlyDB = true;
    Reopen();
    EXPECT_FALSE(IsOn(*W, "cmdImport"));
    EXPECT_EQ("The database is read-only:\nnothing can be brought into it.", HintIn(*W));
    Load(*W, OtherDb.Path());
    EXPECT_FALSE(IsOn(*W, "cmdImport"));
    Press(*W, "cmdViewSrcAlbum");
    auto* View = harness::Open<frmAlbumView>();
    ASSERT_NE(nullptr, View) << "but it may be looked at";
    View->Unload();
}

TEST_F(AlbumImport, ADatabaseInUseIsTold) {
    InstanceLock Elsewhere(DatabaseLockPath(OtherDb.Path()));
    ASSERT_TRUE(Elsewhere.TryLock());
    ExpectInformation(
        u"The database in\n"_s + OtherDb.Path() + u"\nis in use. Close it there and try again."_s,
        u"Database In Use"_s);
    Load(*W, OtherDb.Path());
    EXPECT_EQ("", Listed(*W, "cboSrcAlbum"));
}

TEST_F(AlbumImport, TheRunningDatabaseIsASourceLikeAnother) {
    Load(*W, Db / u"Temp/.."_s);
    EXPECT_EQ("Garden*", Listed(*W, "cboSrcAlbum"));
    EXPECT_EQ("Garden 2", Text(*W, "txtAlbumName"));
    Press(*W, "cmdImport");
    EXPECT_EQ("Garden: rose tulip [Summer 2]|Garden 2: rose tulip [Summer 2]", Content(Engine));
}

// Pressing Import at once would bring in an album that nobody has seen, let alone chosen.
TEST_F(AlbumImport, ATypedDirectoryIsLoadedFirstAndAChoiceAwaited) {
    Retype(Directory(*W), OtherDb.Path());
    Press(*W, "cmdImport");
    EXPECT_FALSE(W->IsLoaded()) << "there is one album alone";
    std::int32_t Second = 0;
    EXPECT_TRUE(Other.SaveAlbum(Second, u"Barn"_s));
    Other.FinalizeDB();
    W = OpenNew<frmAlbumImport>();
    Retype(Directory(*W), OtherDb.Path());
    Press(*W, "cmdImport");
    ASSERT_TRUE(W->IsLoaded());
    EXPECT_EQ("Attic*|Barn", Listed(*W, "cboSrcAlbum"));
    EXPECT_EQ("cboSrcAlbum", W->focusWidget()->objectName().toStdString());
    EXPECT_EQ("Choose the album.", HintIn(*W));
    Choose(*W, "cboSrcAlbum", u"Barn"_s);
    EXPECT_EQ("", HintIn(*W));
    Press(*W, "cmdImport");
    EXPECT_TRUE(Engine.FindAlbum(0, u"Barn"_s));
}

TEST_F(AlbumImport, ItsDestinationsFollowOtherWindows) {
    Load(*W, OtherDb.Path());
    Choose(*W, "cboDstAlbum", u"Garden"_s);
    const auto Late = AddAlbum(u"Attic"_s);
    BroadcastEvent(u"Album"_s, u"Insert"_s, nullptr, {Late});
    EXPECT_EQ("<NEW ALBUM>|Attic|Garden*", Listed(*W, "cboDstAlbum"));
    EXPECT_EQ("Attic*", Listed(*W, "cboSrcAlbum"));
    Choose(*W, "cboDstAlbum", u"<NEW ALBUM>"_s);
    EXPECT_EQ("Attic 2", Text(*W, "txtAlbumName"));
    Engine.DeleteAlbum(Late);
    BroadcastEvent(u"Album"_s, u"Delete"_s, nullptr, {Late});
    EXPECT_EQ("<NEW ALBUM>*|Garden", Listed(*W, "cboDstAlbum"));
    EXPECT_EQ("Attic", Text(*W, "txtAlbumName"));
    EXPECT_EQ("Attic*", Listed(*W, "cboSrcAlbum")) << "of another database: untouched";
}

}  // namespace
}  // namespace neb
