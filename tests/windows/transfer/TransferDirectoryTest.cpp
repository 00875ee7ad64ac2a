// The directory of the other database: names that nobody types, folders that are made for it and go
// again, databases that another window has open, and media that take their time.
#include <QFile>
#include <QTimer>

#include "TransferRig.h"
#include "db/records/modJournal.h"
#include "harness/Heartbeat.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

using namespace harness;

class OtherDirectory : public ExportRig {};

// A database that takes long to read, like a stick that sleeps: its journal looks like a large one
// until its last byte has been read.
void MakeSlow(const QString& Dir) {
    const QString Path = JournalPath(Dir);
    MakeDirs(GetFilePath(Path));
    WriteFile(Path, "NEBJRNL1");
    ASSERT_TRUE(QFile(Path).resize(100 << 20));
}

TEST_F(OtherDirectory, MayHaveANameThatNobodyTypes) {
    for (const QString& Name : {u" odd "_s, u"two\nlines"_s, u"trail "_s}) {
        const QString Dir = Empty / Name + u'/';
        Reopen();
        MakeDirs(Dir);
        ExpectOffer(BoxAnswer::Yes);
        Dialogs.Folder = Dir.chopped(1);
        Press(*W, "cmdDstDBFolder");
        EXPECT_EQ("<NEW ALBUM>*", Listed(*W, "cboDstAlbum"));
        Press(*W, "cmdExport");
        EXPECT_FALSE(W->IsLoaded());
        EXPECT_EQ("Garden: rose tulip [Summer 2]", OnDisk(Dir));
        Reopen();
        Dialogs.File = Dir + u"NextIDs.dat"_s;
        Press(*W, "cmdDstDBBrowse");
        EXPECT_EQ("<NEW ALBUM>*|Garden", Listed(*W, "cboDstAlbum"));
        Reopen();
        EXPECT_TRUE(Drop(*W, Dir.chopped(1)));
        EXPECT_EQ("<NEW ALBUM>*|Garden", Listed(*W, "cboDstAlbum"));
        Press(*W, "cmdRefresh");
        EXPECT_EQ("<NEW ALBUM>*|Garden", Listed(*W, "cboDstAlbum"));
        Press(*W, "cmdExport");
        EXPECT_FALSE(W->IsLoaded()) << "and is not read as another one";
    }
    EXPECT_EQ(3u, ListDir(Empty.Path()).size());
    EXPECT_FALSE(LastDirectories().contains(Empty / u"two lines/"_s));
}

TEST_F(OtherDirectory, WhatIsTypedIsTrimmed) {
    Load(*W, u"  "_s + OtherDb.Path() + u" "_s);
    EXPECT_EQ("<NEW ALBUM>*|Attic", Listed(*W, "cboDstAlbum"));
    EXPECT_EQ(OtherDb.Path().toStdString(), DirectoryIn(*W));
}

TEST_F(OtherDirectory, FoldersThatWereMadeForItGoAgainWithoutATransfer) {
    const QString Dir = Empty / u"a/b/"_s;
    ExpectOffer(BoxAnswer::Yes);
    Load(*W, Dir);
    EXPECT_TRUE(FolderExists(Dir));
    Press(*W, "cmdCancel");
    EXPECT_TRUE(Everything(Empty.Path()).isEmpty()) << "as it was";
    W = OpenNew<frmAlbumExport>();
    ExpectOffer(BoxAnswer::Yes);
    Load(*W, Dir);
    Load(*W, OtherDb.Path());
    EXPECT_TRUE(Everything(Empty.Path()).isEmpty()) << "when it is another one after all";
}

TEST_F(OtherDirectory, FoldersThatWereMadeForItGoAgainAfterATransferThatFailed) {
    ExpectOffer(BoxAnswer::Yes);
    Load(*W, Empty / u"a"_s);
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Write && Path.endsWith(u"/0"_s)) throw Fault(u"The disk is full."_s);
    });
    Boxes.Expect(u"The disk is full."_s);
    Press(*W, "cmdExport");
    SetHostWatcher({});
    EXPECT_TRUE(FolderExists(Empty / u"a"_s)) << "for the next attempt";
    Press(*W, "cmdCancel");
    EXPECT_TRUE(Everything(Empty.Path()).isEmpty());
}

TEST_F(OtherDirectory, FoldersStayWhenSomethingIsInThemOrTheyWereThere) {
    ExpectOffer(BoxAnswer::Yes);
    Load(*W, Empty / u"a"_s);
    WriteFile(Empty / u"a/mine"_s, "x");
    Press(*W, "cmdCancel");
    EXPECT_TRUE(FileExists(Empty / u"a/mine"_s));
    W = OpenNew<frmAlbumExport>();
    MakeDirs(Empty / u"b"_s);
    ExpectOffer(BoxAnswer::Yes);
    Load(*W, Empty / u"b"_s);
    Press(*W, "cmdCancel");
    EXPECT_TRUE(FolderExists(Empty / u"b"_s));
}

TEST_F(OtherDirectory, ThatIsOpenInAnotherWindowHereIsToldAsThat) {
    Load(*W, OtherDb.Path());
    const auto Second = OpenNew<frmSlideShowImport>();
    ExpectInformation(u"The database in\n"_s + OtherDb.Path() +
                          u"\nis open in another window here. Close that window and try again."_s,
                      u"Database In Use"_s);
    Load(*Second, OtherDb.Path());
    EXPECT_EQ("", Listed(*Second, "cboSrcAlbum"));
    Press(*W, "cmdCancel");
    Press(*Second, "cmdRefresh");
    EXPECT_EQ("Attic*", Listed(*Second, "cboSrcAlbum"));
    Second->Unload();
}

TEST_F(OtherDirectory, TheProgramsOwnMayBeChosenInSeveralWindows) {
    Load(*W, Db.Path());
    const auto Second = OpenNew<frmSlideShowImport>();
    Load(*Second, Db.Path());
    EXPECT_EQ("Garden*", Listed(*Second, "cboSrcAlbum"));
    Second->Unload();
}

TEST_F(OtherDirectory, OneThatSleepsHoldsNobodyUp) {
    MakeSlow(Empty.Path());
    ExpectOffer(BoxAnswer::No);
    Heartbeat Beats;
    Load(*W, Empty.Path());
    const double Standstill = Beats.LongestStandstill();
    EXPECT_GT(Beats.Beats(), 10);
    EXPECT_LT(Standstill, 150);
}

TEST_F(OtherDirectory, WhileItIsLookedAtNothingElseBeginsAndTheWindowMayClose) {
    MakeSlow(Empty.Path());
    int Times = 0;
    QTimer Meanwhile;
    QObject::connect(&Meanwhile, &QTimer::timeout, [&] {
        if (++Times != 1) return;
        Press(*W, "cmdExport");  // would look there once more
        EXPECT_TRUE(W->Unload());
    });
    Meanwhile.start(10);
    Load(*W, Empty.Path());
    EXPECT_GT(Times, 0);
    EXPECT_FALSE(W->IsLoaded());
}

TEST_F(OtherDirectory, WhileItIsReadAgainAfterAFailureTheWindowStays) {
    AddShow(Other, u"SUMMER"_s);
    Other.FinalizeDB();
    Load(*W, OtherDb.Path());
    Choose(*W, "cboDstAlbum", u"Attic"_s);
    bool IsOver = false;
    Boxes.WhileNextIsOpen([&] {
        MakeSlow(OtherDb.Path());
        IsOver = true;
    });
    Boxes.Expect(
        u"1 or more Slide Shows within the selected Destination Album have\n"
        "names identical to those of Slide Shows in the Source\nAlbum.  You can only Export unique "
        "Slide Shows.\nUse the Update Feature to overwrite an existing album."_s);
    int Times = 0;
    QTimer Meanwhile;
    QObject::connect(&Meanwhile, &QTimer::timeout, [&] {
        if (!IsOver) return;
        ++Times;
        EXPECT_FALSE(W->Unload());
        EXPECT_FALSE(IsOn(*W, "cmdExport"));
    });
    Meanwhile.start(10);
    Press(*W, "cmdExport");
    Meanwhile.stop();
    EXPECT_GT(Times, 0);
    ASSERT_TRUE(W->IsLoaded());
    EXPECT_TRUE(IsOn(*W, "cmdExport"));
    EXPECT_EQ("<NEW ALBUM>|Attic*", Listed(*W, "cboDstAlbum"));
}

}  // namespace
}  // namespace neb
