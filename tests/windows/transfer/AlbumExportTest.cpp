// The export of an album: the directory of the other database, the proposed names, the order of the
// checks, what a failure leaves and what a success tells.
#include <QElapsedTimer>
#include <QFile>
#include <QPointer>
#include <QThread>
#include <chrono>
#include <future>

#include "TransferRig.h"
#include "harness/ByTheClock.h"

namespace neb {
namespace {

using namespace harness;

class AlbumExport : public ExportRig {};

TEST_F(AlbumExport, OpensWithTheFirstAlbumAndNoDestination) {
    AddAlbum(u"Apples"_s);
    Reopen();
    EXPECT_EQ("frmAlbumExport", W->objectName().toStdString());
    EXPECT_EQ("Export Album", W->windowTitle().toStdString());
    EXPECT_EQ("Apples*|Garden", Listed(*W, "cboSrcAlbum"));
    EXPECT_EQ("", Listed(*W, "cboDstAlbum"));
    EXPECT_EQ("", DirectoryIn(*W));
    EXPECT_EQ("", Text(*W, "txtAlbumName"));
    EXPECT_FALSE(In<QCheckBox>(*W, "chkReplace").isChecked());
    EXPECT_EQ(
        u"Replace Destination Album Contents (if any).  If unchecked the source album will "
        "be added to the destination album."_s,
        In<QCheckBox>(*W, "chkReplace").text().remove(u'\n').remove(u'&'));
    EXPECT_TRUE(In<QPushButton>(*W, "cmdExport").isDefault());
    EXPECT_FALSE(In<QWidget>(*W, "cboSrcSlideShow").isVisible());
    EXPECT_NE("", HintIn(*W));
}

TEST_F(AlbumExport, TakesNoNameThatIsTooLong) {
    Load(*W, OtherDb.Path());
    for (const char* Field : {"txtAlbumName", "txtSlideShowName"}) {
        auto& Name = In<QLineEdit>(*W, Field);
        Name.clear();
        QTest::keyClicks(&Name, QString(82, u'n'));
        EXPECT_EQ(80, Name.text().size()) << Field;
    }
}

TEST_F(AlbumExport, AsksForWhatIsNotChosenTheSourceFirst) {
    ExpectInformation(u"You must first select a Destination Album."_s,
                      u"No Destination Selected"_s);
    Press(*W, "cmdExport");
    Engine.DeleteAlbum(AlbumID);
    Reopen();
    EXPECT_EQ("There are no albums yet.\nNew Album in the menu Album makes one.", HintIn(*W));
    ExpectInformation(u"You must first select a Source Album."_s, u"No Source Selected"_s);
    Press(*W, "cmdExport");
    EXPECT_TRUE(W->IsLoaded());
}

TEST_F(AlbumExport, AsksForADirectoryAndForgetsTheOneBefore) {
    Load(*W, OtherDb.Path());
    EXPECT_EQ("<NEW ALBUM>*|Attic", Listed(*W, "cboDstAlbum"));
    ExpectInformation(u"You must first select an export destination."_s,
                      u"Missing Directory Information"_s);
    Retype(Directory(*W), {});
    Press(*W, "cmdRefresh");
    EXPECT_EQ("", Listed(*W, "cboDstAlbum"));
    InstanceLock Free(DatabaseLockPath(OtherDb.Path()));
    EXPECT_TRUE(Free.TryLock()) << "it is let go of";
}

TEST_F(AlbumExport, ATypedDirectoryGetsItsClosingSeparatorAndIsLoadedByEnter) {
    Load(*W, OtherDb.Path().chopped(1));
    EXPECT_EQ(OtherDb.Path().toStdString(), DirectoryIn(*W));
    EXPECT_EQ("<NEW ALBUM>*|Attic", Listed(*W, "cboDstAlbum"));
    EXPECT_EQ("Garden", Text(*W, "txtAlbumName"));
    EXPECT_EQ("", HintIn(*W));
    InstanceLock Taken(DatabaseLockPath(OtherDb.Path()));
    EXPECT_FALSE(Taken.TryLock()) << "nobody else writes it meanwhile";
}

TEST_F(AlbumExport, TheFileNamedInTheDialogStandsForItsDirectoryAndNeedNotBeThere) {
    Press(*W, "cmdDstDBBrowse");
    EXPECT_EQ(QStringList{u"NextIDs.dat"_s}, Dialogs.Asked);
    EXPECT_EQ("", DirectoryIn(*W)) << "cancelled in silence";
    Dialogs.File = Empty / u"NextIDs.dat"_s;
    Press(*W, "cmdDstDBBrowse");
    EXPECT_EQ(Empty.Path().toStdString(), DirectoryIn(*W));
    EXPECT_EQ("<NEW ALBUM>*", Listed(*W, "cboDstAlbum"));
    Press(*W, "cmdDstDBBrowse");
    EXPECT_EQ(Empty / u"NextIDs.dat"_s, Dialogs.Asked.back());
    Press(*W, "cmdExport");
    EXPECT_FALSE(W->IsLoaded());
    EXPECT_EQ("Garden: rose tulip [Summer 2]", OnDisk(Empty.Path()));
}

TEST_F(AlbumExport, AFolderIsChosenInTheDialogForFolders) {
    Press(*W, "cmdDstDBFolder");
    EXPECT_EQ("", DirectoryIn(*W));
    Dialogs.Folder = OtherDb.Path().chopped(1);
    Press(*W, "cmdDstDBFolder");
    EXPECT_EQ("<NEW ALBUM>*|Attic", Listed(*W, "cboDstAlbum"));
}

TEST_F(AlbumExport, OffersToMakeADatabaseWhereThereIsNone) {
    Load(*W, OtherDb.Path());
    ExpectOffer(BoxAnswer::No);
    Load(*W, Empty.Path());
    EXPECT_EQ("", Listed(*W, "cboDstAlbum")) << "and the one before is closed";
    EXPECT_TRUE(Everything(Empty.Path()).isEmpty());
    ExpectOffer(BoxAnswer::Yes);
    Press(*W, "cmdRefresh");
    EXPECT_EQ("<NEW ALBUM>*", Listed(*W, "cboDstAlbum"));
    Press(*W, "cmdExport");
    EXPECT_EQ("Garden: rose tulip [Summer 2]", OnDisk(Empty.Path()));
}

TEST_F(AlbumExport, AFolderThatIsDroppedAnywhereIsLoaded) {
    EXPECT_TRUE(Drop(*W, OtherDb.Path()));
    EXPECT_EQ("<NEW ALBUM>*|Attic", Listed(*W, "cboDstAlbum"));
    Reopen();
    EXPECT_TRUE(Drop(*W, OtherDb / u"NextIDs.dat"_s)) << "a file in it will do";
    EXPECT_EQ(OtherDb.Path().toStdString(), DirectoryIn(*W));
    EXPECT_FALSE(Directory(*W).acceptDrops()) << "so that the window gets it";
    EXPECT_FALSE(In<QWidget>(*W, "txtAlbumName").acceptDrops());
}

TEST_F(AlbumExport, TheDocumentsFolderAboveADatabaseIsUnderstood) {
    const QString Below = Empty / u"NEB/NEB Slide Show/"_s;
    MakeDirs(Below);
    for (const DirEntry& Each : ListDir(OtherDb.Path()))
        if (!Each.IsFolder) CopyFile(OtherDb / Each.Name, Below + Each.Name);
    Load(*W, Empty.Path());
    EXPECT_EQ("<NEW ALBUM>*|Attic", Listed(*W, "cboDstAlbum"));
    EXPECT_EQ(Below.toStdString(), DirectoryIn(*W)) << "and the user sees which it is";
    Reopen();
    Dialogs.File = Empty / u"NextIDs.dat"_s;
    Press(*W, "cmdDstDBBrowse");
    EXPECT_EQ("<NEW ALBUM>*|Attic", Listed(*W, "cboDstAlbum"));
}

TEST_F(AlbumExport, TheRunningDatabaseIsItselfUnderAnyPath) {
    QFile::link(Db.Path(), Empty / u"link"_s);
    InstanceLock Running(DatabaseLockPath(Db.Path()));
    ASSERT_TRUE(Running.TryLock());
    for (const QString& Path : {Db.Path(), Db.Path().chopped(1), Empty / u"link"_s,
                                Db / u"Albums/.."_s, Db.Path() + u"/./"_s}) {
        Reopen();
        Load(*W, Path);
        EXPECT_EQ("<NEW ALBUM>*|Garden", Listed(*W, "cboDstAlbum")) << Path.toStdString();
        EXPECT_EQ("Garden 2", Text(*W, "txtAlbumName"));
    }
    Press(*W, "cmdExport");
    EXPECT_FALSE(W->IsLoaded());
    EXPECT_EQ("Garden: rose tulip [Summer 2]|Garden 2: rose tulip [Summer 2]", Content(Engine));
    EXPECT_EQ("Album Insert 2", Heard());
    EXPECT_FALSE(FileExists(Db / u"NextIDs.dat"_s)) << "the program writes it at its end";
}

TEST_F(AlbumExport, TheNameFollowsWhatIsChosen) {
    AddAlbum(u"Attic"_s);
    AddAlbum(u"ATTIC 2"_s);
    Reopen();
    Load(*W, OtherDb.Path());
    EXPECT_EQ("Attic*|ATTIC 2|Garden", Listed(*W, "cboSrcAlbum"));
    EXPECT_EQ("Attic 2", Text(*W, "txtAlbumName"));
    Choose(*W, "cboSrcAlbum", u"Garden"_s);
    EXPECT_EQ("Garden", Text(*W, "txtAlbumName"));
    Choose(*W, "cboDstAlbum", u"Attic"_s);
    EXPECT_EQ("Attic", Text(*W, "txtAlbumName"));
    Choose(*W, "cboSrcAlbum", u"ATTIC 2"_s);
    EXPECT_EQ("Attic", Text(*W, "txtAlbumName")) << "the destination's own";
    Choose(*W, "cboDstAlbum", u"<NEW ALBUM>"_s);
    EXPECT_EQ("ATTIC 2", Text(*W, "txtAlbumName"));
}

TEST_F(AlbumExport, ADatabaseInUseAndAReadOnlyOneAreToldBeforeAnythingStarts) {
    {
        InstanceLock Elsewhere(DatabaseLockPath(OtherDb.Path()));
        ASSERT_TRUE(Elsewhere.TryLock());
        ExpectInformation(u"The database in\n"_s + OtherDb.Path() +
                              u"\nis in use. Close it there and try again."_s,
                          u"Database In Use"_s);
        Load(*W, OtherDb.Path());
        EXPECT_EQ("", Listed(*W, "cboDstAlbum"));
        EXPECT_EQ(OtherDb.Path().toStdString(), DirectoryIn(*W)) << "to be tried again";
    }
    Press(*W, "cmdRefresh");
    EXPECT_EQ("<NEW ALBUM>*|Attic", Listed(*W, "cboDstAlbum"));
    Reopen();
    const auto Writable = QFile::permissions(OtherDb / u"Albums.dat"_s);
    for (const DirEntry& Each : ListDir(OtherDb.Path()))
        if (!Each.IsFolder)
            QFile::setPermissions(OtherDb / Each.Name, QFile::ReadOwner | QFile::ReadUser);
    ExpectInformation(u"The database in\n"_s + OtherDb.Path() + u"\nis read-only."_s,
                      u"Read-Only Database"_s);
    Load(*W, OtherDb.Path());
    EXPECT_EQ("", Listed(*W, "cboDstAlbum"));
    for (const DirEntry& Each : ListDir(OtherDb.Path()))
        QFile::setPermissions(OtherDb / Each.Name, Writable);
}

TEST_F(AlbumExport, AReadOnlyDatabaseOfOnesOwnIsExportedAllTheSame) {
    ReadOnlyDB = true;
    Reopen();
    EXPECT_TRUE(IsOn(*W, "cmdExport"));
    Load(*W, OtherDb.Path());
    Press(*W, "cmdExport");
    EXPECT_EQ("Attic: lamp [Winter 1]|Garden: rose tulip [Summer 2]", OnDisk(OtherDb.Path()));
}

TEST_F(AlbumExport, BringsTheAlbumAndSaysSo) {
    Load(*W, OtherDb.Path());
    Retype(*W, "txtAlbumName", u"Flowers"_s);
    Press(*W, "cmdExport");
    EXPECT_FALSE(W->IsLoaded());
    EXPECT_EQ("Attic: lamp [Winter 1]|Flowers: rose tulip [Summer 2]", OnDisk(OtherDb.Path()));
    EXPECT_EQ("Album \"Flowers\" exported: 2 slides, 1 slide show.", Notice.toStdString());
    EXPECT_EQ("", Heard()) << "nobody shows the other database";
    EXPECT_EQ("Garden: rose tulip [Summer 2]", Content(Engine));
    InstanceLock Free(DatabaseLockPath(OtherDb.Path()));
    EXPECT_TRUE(Free.TryLock());
}

TEST_F(AlbumExport, AddsToAnAlbumOrReplacesIt) {
    Load(*W, OtherDb.Path());
    Choose(*W, "cboDstAlbum", u"Attic"_s);
    Press(*W, "cmdExport");
    EXPECT_EQ("Attic: lamp rose tulip [Winter 1] [Summer 2]", OnDisk(OtherDb.Path()));
    Reopen();
    Load(*W, OtherDb.Path());
    Choose(*W, "cboDstAlbum", u"Attic"_s);
    In<QCheckBox>(*W, "chkReplace").setFocus();
    QTest::keyClick(&In<QCheckBox>(*W, "chkReplace"), Qt::Key_Space);
    Press(*W, "cmdExport");
    EXPECT_EQ("Attic: rose tulip [Summer 2]", OnDisk(OtherDb.Path()));
}

TEST_F(AlbumExport, ARefusalIsToldAndLeavesAllAsItWasChosen) {
    AddShow(Other, u"SUMMER"_s);
    Other.FinalizeDB();
    Load(*W, OtherDb.Path());
    Choose(*W, "cboDstAlbum", u"Attic"_s);
    Retype(*W, "txtAlbumName", u"Loft"_s);
    ExpectInformation(
        u"1 or more Slide Shows within the selected Destination Album have\n"
        "names identical to those of Slide Shows in the Source\nAlbum.  You can only Export unique "
        "Slide Shows.\nUse the Update Feature to overwrite an existing album."_s,
        u"Operation Unsuccessful"_s);
    Press(*W, "cmdExport");
    ASSERT_TRUE(W->IsLoaded());
    EXPECT_EQ("<NEW ALBUM>|Attic*", Listed(*W, "cboDstAlbum"));
    EXPECT_EQ("Loft", Text(*W, "txtAlbumName"));
    for (const char* Each :
         {"cboSrcAlbum", "txtDstDB", "cmdDstDBBrowse", "cboDstAlbum", "cmdRefresh", "chkReplace",
          "txtAlbumName", "cmdExport", "cmdCancel", "cmdViewDstAlbum", "cmdViewSrcAlbum"})
        EXPECT_TRUE(IsOn(*W, Each)) << Each;
    In<QCheckBox>(*W, "chkReplace").setChecked(true);
    Press(*W, "cmdExport");
    EXPECT_EQ("Loft: rose tulip [Summer 2]", OnDisk(OtherDb.Path()));
}

TEST_F(AlbumExport, AnAlbumIsNotExportedToItself) {
    Load(*W, Db.Path());
    Choose(*W, "cboDstAlbum", u"Garden"_s);
    ExpectInformation(u"You cannot Export an Album to itself!"_s, u"Invalid User Input"_s);
    Press(*W, "cmdExport");
    EXPECT_TRUE(W->IsLoaded());
    EXPECT_EQ("", Heard());
}

TEST_F(AlbumExport, TheThumbnailsOfAReplacedAlbumHaveGoneWhenTheOthersHearOfIt) {
    const std::int32_t Spare = AddAlbum(u"Spare"_s);
    Buffer.UpdateSlide(AlbumID, *Album(Engine).GetSlide(1), true);
    clsNEBAlbum& Filled = *Engine.GetAlbum(Spare);
    std::int32_t SlideID = 0;
    clsNEBSlide& Slide = *Filled.SaveSlide2(SlideID, u"x"_s, {}, {}, false, false, Engine);
    Buffer.UpdateSlide(Spare, Slide, true);
    const int Before = Store.Rows();
    Reopen();
    Load(*W, Db.Path());
    Choose(*W, "cboDstAlbum", u"Spare"_s);
    In<QCheckBox>(*W, "chkReplace").setChecked(true);
    int Then = -1;
    Others->OnEvent = [&] { Then = Store.Rows(); };
    Press(*W, "cmdExport");
    EXPECT_EQ("Album Update 2", Heard());
    EXPECT_EQ(Before - 1, Then);
}

TEST_F(AlbumExport, AFaultIsToldAndLeavesBothDatabasesAsTheyWere) {
    Load(*W, OtherDb.Path());
    const std::string Before = OnDisk(OtherDb.Path());
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Write && Path.contains(u"Staged"_s, Qt::CaseInsensitive))
            throw Fault(u"The disk is full."_s, Path);
        if (Step == HostStep::Write && Path.endsWith(u"/0"_s)) throw Fault(u"The disk is full."_s);
    });
    Boxes.Expect(u"The disk is full."_s, u"Operation Failed"_s, BoxIcon::Critical, BoxAnswer::Ok);
    Press(*W, "cmdExport");
    ASSERT_TRUE(W->IsLoaded());
    SetHostWatcher({});
    EXPECT_EQ(Before, OnDisk(OtherDb.Path()));
    EXPECT_EQ("<NEW ALBUM>*|Attic", Listed(*W, "cboDstAlbum"));
    Press(*W, "cmdExport");
    EXPECT_FALSE(W->IsLoaded());
    EXPECT_EQ(Before + "|Garden: rose tulip [Summer 2]", OnDisk(OtherDb.Path()));
}

TEST_F(AlbumExport, WantOfMemoryIsToldAndLeavesTheWindowUsable) {
    Load(*W, OtherDb.Path());
    const std::string Before = OnDisk(OtherDb.Path());
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Write && Path.endsWith(u"/0"_s)) throw std::bad_alloc();
    });
    Boxes.Expect(u"There is not enough memory to do this."_s, u"Operation Failed"_s,
                 BoxIcon::Critical, BoxAnswer::Ok);
    Press(*W, "cmdExport");
    SetHostWatcher({});
    ASSERT_TRUE(W->IsLoaded());
    EXPECT_EQ(Before, OnDisk(OtherDb.Path()));
    EXPECT_EQ("<NEW ALBUM>*|Attic", Listed(*W, "cboDstAlbum")) << "it has been read anew";
    Press(*W, "cmdExport");
    EXPECT_FALSE(W->IsLoaded());
    EXPECT_EQ(Before + "|Garden: rose tulip [Summer 2]", OnDisk(OtherDb.Path()));
}

TEST_F(AlbumExport, ThatTheAlbumsOfBeforeCouldNotBeKeptThereIsTold) {
    Load(*W, OtherDb.Path());
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Write && Path.contains(u"Backups")) throw Fault(u"full"_s, u"x"_s);
    });
    Boxes.Expect(
        u"The transfer is completed. The albums of before in that database could not be kept among "
        "the earlier ones.\n\nfull\nx"_s,
        u"Earlier Albums"_s, BoxIcon::Information, BoxAnswer::Ok);
    Press(*W, "cmdExport");
    SetHostWatcher({});
    EXPECT_FALSE(W->IsLoaded());
    EXPECT_EQ("Attic: lamp [Winter 1]|Garden: rose tulip [Summer 2]", OnDisk(OtherDb.Path()));
}

// The records are in the journal then, and a later start brings them to their places.
TEST_F(AlbumExport, AFaultInTheLastWriteLosesNothingAndSaysSo) {
    Load(*W, OtherDb.Path());
    // from the moment that the transfer itself is through
    SetHostWatcher([&](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Write && Path.startsWith(OtherDb.Path()) &&
            !Path.contains(u"/Temp/"_s))
            throw Fault(u"The disk is full."_s);
    });
    Boxes.Expect(
        u"The transfer is safe, and is completed when that database is opened next.\nThe disk is full."_s,
        u"Operation Not Yet Completed"_s, BoxIcon::Information, BoxAnswer::Ok);
    Press(*W, "cmdExport");
    SetHostWatcher({});
    EXPECT_FALSE(W->IsLoaded());
    EXPECT_EQ("Attic: lamp [Winter 1]|Garden: rose tulip [Summer 2]", OnDisk(OtherDb.Path()));
}

TEST_F(AlbumExport, ATransferThatWaitsForItsCompletionIsToldAndNotBegunAgain) {
    Load(*W, OtherDb.Path());
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Rename && Path.contains(u"/Slides/"_s))
            throw Fault(u"The stick has gone."_s);
    });
    Boxes.Expect(
        u"The transfer is done, but not all of its files are in their places yet; the "
        "next opening of the database will put them there. The stick has gone."_s,
        u"Operation Not Yet Completed"_s, BoxIcon::Information, BoxAnswer::Ok);
    Press(*W, "cmdExport");
    EXPECT_FALSE(W->IsLoaded());
    SetHostWatcher({});
    Reopen();
    Load(*W, OtherDb.Path());
    EXPECT_EQ("<NEW ALBUM>*|Attic|Garden", Listed(*W, "cboDstAlbum"));
}

TEST_F(AlbumExport, WhatIsMissingIsAskedOnceAndEnterStops) {
    for (const std::int32_t Each : {1, 2}) DeleteFile(PicturePath(Engine, Each));
    Load(*W, OtherDb.Path());
    const QString Question =
        u"2 files of the source are missing or cannot be read:\nAlbums/1/Slides/00000001.jpg\n"
        "Albums/1/Slides/00000002.jpg\n\nDo you want to go on without what is missing?"_s;
    Boxes.Expect(Question, u"Missing Files"_s, BoxIcon::Question, BoxAnswer::No);
    Press(*W, "cmdExport");
    EXPECT_EQ(BoxAnswer::No, Boxes.Last().Default);
    ASSERT_TRUE(W->IsLoaded());
    EXPECT_EQ("Stopped; nothing was changed.", Notice.toStdString());
    EXPECT_EQ("Attic: lamp [Winter 1]", OnDisk(OtherDb.Path()));
    Boxes.Expect(Question, u"Missing Files"_s, BoxIcon::Question, BoxAnswer::Yes);
    Press(*W, "cmdExport");
    EXPECT_FALSE(W->IsLoaded());
    EXPECT_EQ("Attic: lamp [Winter 1]|Garden: rose tulip [Summer 2]", OnDisk(OtherDb.Path()));
}

TEST_F(AlbumExport, OfManyMissingFilesFifteenAreNamed) {
    for (int I = 0; I < 28; ++I) AddSlide(Engine, u"x"_s);
    for (std::int32_t Each = 1; Each <= Engine.NextSlideID; ++Each)
        DeleteFile(PicturePath(Engine, Each));
    QStringList Lines{u"30 files of the source are missing or cannot be read:"_s};
    for (int I = 1; I <= 15; ++I) Lines << u"Albums/1/Slides/%1.jpg"_s.arg(I, 8, 10, QChar(u'0'));
    Lines << u"... and 15 more"_s << QString()
          << u"Do you want to go on without what is missing?"_s;
    Load(*W, OtherDb.Path());
    Boxes.Expect(Lines.join(u'\n'), BoxAnswer::No);
    Press(*W, "cmdExport");
}

TEST_F(AlbumExport, ATypedDirectoryThatWasNotLoadedIsLoadedFirst) {
    Retype(Directory(*W), OtherDb.Path());
    Press(*W, "cmdExport");
    EXPECT_EQ("Attic: lamp [Winter 1]|Garden: rose tulip [Summer 2]", OnDisk(OtherDb.Path()));
    Reopen();
    Load(*W, OtherDb.Path());
    ExpectOffer(BoxAnswer::No);
    Retype(Directory(*W), Empty.Path());
    Press(*W, "cmdExport");
    EXPECT_TRUE(W->IsLoaded()) << "and what is no database ends it";
    EXPECT_TRUE(Everything(Empty.Path()).isEmpty());
}

// What stands in the lists is still that of the directory before.
TEST_F(AlbumExport, TheHintSaysWhatToDoWithADirectoryThatIsNotRead) {
    const std::string WhatNow = HintIn(*W);
    Retype(Directory(*W), OtherDb.Path());
    const std::string PressEnter = "Press Enter to open this directory.";
    EXPECT_EQ(PressEnter, HintIn(*W));
    QTest::keyClick(&Directory(*W), Qt::Key_Tab);
    EXPECT_EQ(PressEnter, HintIn(*W)) << "and no box";
    Directory(*W).setFocus();
    QTest::keyClick(&Directory(*W), Qt::Key_Return);
    EXPECT_EQ("", HintIn(*W));
    QTest::keyClicks(&Directory(*W), u"x"_s);
    EXPECT_EQ(PressEnter, HintIn(*W));
    QTest::keyClick(&Directory(*W), Qt::Key_Backspace);
    EXPECT_EQ("", HintIn(*W));
    Reopen();
    Retype(Directory(*W), u"  "_s);
    EXPECT_EQ(WhatNow, HintIn(*W));
}

TEST_F(AlbumExport, TheLastTenDirectoriesAreOfferedAtTheField) {
    const auto Stick = [this](int Number) { return Empty / u"%1/"_s.arg(Number); };
    for (int I = 0; I < 12; ++I) {
        MakeDirs(Stick(I));
        NoteDirectory(Stick(I));
    }
    NoteDirectory(Stick(5));
    NoteDirectory(OtherDb.Path());
    EXPECT_EQ((QStringList{OtherDb.Path(), Stick(5), Stick(11), Stick(10), Stick(9), Stick(8),
                           Stick(7), Stick(6), Stick(4), Stick(3)}),
              LastDirectories());
    Directory(*W).setFocus();
    QTest::keyClick(&Directory(*W), Qt::Key_Down, Qt::AltModifier);
    auto* Menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(nullptr, Menu);
    EXPECT_EQ(10, Menu->actions().size());
    QTest::keyClick(Menu, Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_EQ(OtherDb.Path().toStdString(), DirectoryIn(*W));
    EXPECT_EQ("<NEW ALBUM>*|Attic", Listed(*W, "cboDstAlbum"));
}

TEST_F(AlbumExport, DirectoriesThatHaveGoneAreNotOfferedUntilTheyAreBack) {
    const QString Stick = Empty / u"stick/"_s;
    NoteDirectory(OtherDb.Path());
    NoteDirectory(Stick);
    const auto Offered = [this] {
        Directory(*W).setFocus();
        QTest::keyClick(&Directory(*W), Qt::Key_Down, Qt::AltModifier);
        auto* Menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QStringList All;
        for (const QAction* Each : Menu->actions()) All << Each->text();
        QTest::keyClick(Menu, Qt::Key_Escape);
        return All;
    };
    EXPECT_EQ(QStringList(OtherDb.Path()), Offered());
    MakeDirs(Stick);
    EXPECT_EQ((QStringList{Stick, OtherDb.Path()}), Offered());
}

TEST_F(AlbumExport, AMediumThatDoesNotAnswerHoldsUpNoListAndStaysInIt) {
    harness::GoByTheClock();
    using namespace std::chrono_literals;
    struct Medium {
        std::promise<void> Answers;
        std::shared_future<void> Answer = Answers.get_future();
    };
    const auto Slow = std::make_shared<Medium>();
    QElapsedTimer Since;
    Since.start();
    EXPECT_EQ((QStringList{u"slow"_s, u"there"_s, u"slow"_s}),
              ThoseThere({u"slow"_s, u"gone"_s, u"there"_s, u"slow"_s}, 100ms,
                         [Slow](const QString& Dir) {
                             if (Dir == u"slow"_s) Slow->Answer.wait();
                             return Dir != u"gone"_s;
                         }));
    EXPECT_GE(Since.elapsed(), 100);
    EXPECT_LT(Since.elapsed(), 1000) << "not for each anew, nor until it answers";
    Slow->Answers.set_value();
}

TEST_F(AlbumExport, OnePlaceIsRememberedInOneSpellingAndALinkAsItIsCalled) {
    const QString Stick = Empty / u"stick"_s, Link = Empty / u"link"_s;
    MakeDirs(Stick);
    ASSERT_TRUE(QFile::link(Stick, Link));
    NoteDirectory(Stick + u"//"_s);
    NoteDirectory(Link);
    NoteDirectory(Empty / u"other/../stick/."_s);
    EXPECT_EQ((QStringList{Stick + u'/', Link + u'/'}), LastDirectories());
}

// A box lets events run, and the menu goes with them.
TEST_F(AlbumExport, TheMenuHasGoneWhenWhatWasChosenInItIsTold) {
    NoteDirectory(Empty.Path());
    for (const bool ByMouse : {false, true}) {
        ShowActive(*W);
        Directory(*W).setFocus();
        QTest::keyClick(&Directory(*W), Qt::Key_Down, Qt::AltModifier);
        const QPointer<QMenu> Menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_FALSE(Menu.isNull());
        bool IsInMenu = true;
        Boxes.WhileNextIsOpen([&] {
            ASSERT_FALSE(IsInMenu) << "it would be deleted under its own feet";
            DoEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            EXPECT_TRUE(Menu.isNull());
        });
        ExpectOffer(BoxAnswer::No);
        if (ByMouse)
            QTest::mouseClick(Menu, Qt::LeftButton, {},
                              Menu->actionGeometry(Menu->actions().front()).center());
        else
            QTest::keyClick(Menu, Qt::Key_Return);
        IsInMenu = false;
        QCoreApplication::processEvents();
        EXPECT_EQ(Empty.Path().toStdString(), DirectoryIn(*W));
    }
}

TEST_F(AlbumExport, ADirectoryIsRememberedOnceItHasBeenOpened) {
    ExpectOffer(BoxAnswer::No);
    Load(*W, Empty.Path());
    EXPECT_TRUE(LastDirectories().isEmpty());
    Load(*W, OtherDb.Path());
    Load(*W, Db.Path());
    EXPECT_EQ((QStringList{Db.Path(), OtherDb.Path()}), LastDirectories());
    ReadOnlyDB = true;  // the settings often lie with the albums
    Load(*W, OtherDb.Path());
    EXPECT_EQ((QStringList{Db.Path(), OtherDb.Path()}), LastDirectories());
}

TEST_F(AlbumExport, AlbumsAreViewedOnEitherSide) {
    const auto Refused = u"You must select an album in order to view it."_s;
    Boxes.Expect(Refused, u""_s, BoxIcon::Plain, BoxAnswer::Ok);
    Press(*W, "cmdViewDstAlbum");
    Load(*W, OtherDb.Path());
    Boxes.Expect(Refused);
    Press(*W, "cmdViewDstAlbum");
    Choose(*W, "cboDstAlbum", u"Attic"_s);
    Press(*W, "cmdViewDstAlbum");
    auto* Far = harness::Open<frmAlbumView>();
    ASSERT_NE(nullptr, Far);
    EXPECT_EQ(("Album [" + OtherDb.Path() + ":Attic]").toStdString(),
              Far->windowTitle().toStdString());
    EXPECT_EQ("lamp", Shown(*Far));
    Far->Unload();
    Press(*W, "cmdViewSrcAlbum");
    auto* Near = harness::Open<frmAlbumView>();
    ASSERT_NE(nullptr, Near);
    EXPECT_EQ("rose|tulip", Shown(*Near));
    EXPECT_EQ(("Album [" + Db.Path() + ":Garden]").toStdString(),
              Near->windowTitle().toStdString());
}

TEST_F(AlbumExport, AViewerOfTheOtherDatabaseShowsWhatCame) {
    Load(*W, OtherDb.Path());
    Choose(*W, "cboDstAlbum", u"Attic"_s);
    Press(*W, "cmdViewDstAlbum");
    auto* View = harness::Open<frmAlbumView>();
    ASSERT_NE(nullptr, View);
    EXPECT_EQ("lamp", Shown(*View));
    Press(*W, "cmdExport");
    EXPECT_FALSE(W->IsLoaded());
    EXPECT_EQ("lamp|rose|tulip", Shown(*View));
    View->Unload();
}

TEST_F(AlbumExport, FollowsTheAlbumsOfItsOwnDatabase) {
    const auto Spare = AddAlbum(u"Spare"_s);
    Reopen();
    Load(*W, OtherDb.Path());
    Choose(*W, "cboSrcAlbum", u"Spare"_s);
    Engine.SaveAlbum(AlbumID = Spare, u"Orchard"_s);
    BroadcastEvent(u"Album"_s, u"Update"_s, nullptr, {Spare});
    EXPECT_EQ("Garden|Orchard*", Listed(*W, "cboSrcAlbum"));
    EXPECT_EQ("Orchard", Text(*W, "txtAlbumName")) << "a proposed name follows";
    Retype(*W, "txtAlbumName", u"Mine"_s);
    const auto Late = AddAlbum(u"Late"_s);
    BroadcastEvent(u"Album"_s, u"Insert"_s, nullptr, {Late});
    EXPECT_EQ("Garden|Late|Orchard*", Listed(*W, "cboSrcAlbum"));
    EXPECT_EQ("Mine", Text(*W, "txtAlbumName")) << "a typed one stays";
    Engine.DeleteAlbum(Spare);
    BroadcastEvent(u"Album"_s, u"Delete"_s, nullptr, {Spare});
    EXPECT_EQ("Garden|Late", Listed(*W, "cboSrcAlbum")) << "nothing is chosen";
    EXPECT_EQ("<NEW ALBUM>*|Attic", Listed(*W, "cboDstAlbum")) << "of another database: untouched";
}

TEST_F(AlbumExport, TheDestinationFollowsWhenItIsTheSameDatabase) {
    Load(*W, Db.Path());
    Choose(*W, "cboDstAlbum", u"Garden"_s);
    const auto Late = AddAlbum(u"Late"_s);
    BroadcastEvent(u"Album"_s, u"Insert"_s, nullptr, {Late});
    EXPECT_EQ("<NEW ALBUM>|Garden*|Late", Listed(*W, "cboDstAlbum"));
    Engine.DeleteAlbum(AlbumID);
    BroadcastEvent(u"Album"_s, u"Delete"_s, nullptr, {AlbumID});
    EXPECT_EQ("<NEW ALBUM>|Late", Listed(*W, "cboDstAlbum"));
    EXPECT_EQ("Late", Listed(*W, "cboSrcAlbum"));
    ExpectInformation(u"You must first select a Source Album."_s, u"No Source Selected"_s);
    Press(*W, "cmdExport");
    for (const char* Strange : {"insert", "Add Slides", "Delete Slides", ""})
        BroadcastEvent(u"Album"_s, QString::fromLatin1(Strange), nullptr, {Late});
    BroadcastEvent(u"Album"_s, u"Update"_s, nullptr, {});
    EXPECT_EQ("<NEW ALBUM>|Late", Listed(*W, "cboDstAlbum"));
}

TEST_F(AlbumExport, AProposedNameMovesOnWhenAnotherAlbumTakesIt) {
    Load(*W, Db.Path());
    EXPECT_EQ("Garden 2", Text(*W, "txtAlbumName"));
    const auto Taken = AddAlbum(u"GARDEN 2"_s);
    BroadcastEvent(u"Album"_s, u"Insert"_s, nullptr, {Taken});
    EXPECT_EQ("Garden 3", Text(*W, "txtAlbumName"));
    EXPECT_EQ("<NEW ALBUM>*|Garden|GARDEN 2", Listed(*W, "cboDstAlbum"));
}

TEST_F(AlbumExport, AnEventWhileAListIsOpenHarmsNothing) {
    Load(*W, Db.Path());
    for (const char* Combo : {"cboSrcAlbum", "cboDstAlbum"}) {
        auto& Box = In<QComboBox>(*W, Combo);
        Box.showPopup();
        EXPECT_TRUE(Box.view()->isVisible());
        const auto Late = AddAlbum(u"Late "_s + QString::fromLatin1(Combo));
        BroadcastEvent(u"Album"_s, u"Insert"_s, nullptr, {Late});
        Box.showPopup();
        Engine.DeleteAlbum(Late);
        BroadcastEvent(u"Album"_s, u"Delete"_s, nullptr, {Late});
        Box.hidePopup();
    }
    EXPECT_EQ("Garden*", Listed(*W, "cboSrcAlbum"));
    EXPECT_EQ("<NEW ALBUM>*|Garden", Listed(*W, "cboDstAlbum"));
}

TEST_F(AlbumExport, QuotesInTheNameBecomeTypographic) {
    Load(*W, OtherDb.Path());
    Retype(*W, "txtAlbumName", u"Mum's"_s);
    Press(*W, "cmdExport");
    EXPECT_EQ(u"Album \"Mum\u2019s\" exported: 2 slides, 1 slide show."_s, Notice);
}

TEST_F(AlbumExport, CancelClosesAndLetsGo) {
    Load(*W, OtherDb.Path());
    Press(*W, "cmdCancel");
    EXPECT_FALSE(W->IsLoaded());
    InstanceLock Free(DatabaseLockPath(OtherDb.Path()));
    EXPECT_TRUE(Free.TryLock());
}

}  // namespace
}  // namespace neb
