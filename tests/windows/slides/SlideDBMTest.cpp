// The slide manager's lists, its four states, and the question before changes are discarded.
#include "SlideRig.h"

namespace neb {
namespace {

using namespace harness;

class SlideDBM : public SlideRig {};

TEST_F(SlideDBM, WithoutAnAlbumItSaysSoAndGoes) {
    DropAlbum(Engine, AlbumID);
    Boxes.Expect(u"You must first create an album."_s);
    const auto Window = NewForm<frmSlideDBM>();
    Window->LoadSlideMgr();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Window->IsLoaded(); }, 2000));
}

TEST_F(SlideDBM, OpensWithTheAlbumsToChooseFrom) {
    OpenWindow();
    EXPECT_EQ("Slide Manager", W->windowTitle().toStdString());
    EXPECT_EQ(1, Box("cboAlbum").count());
    EXPECT_EQ(-1, Box("cboAlbum").currentIndex());
    EXPECT_TRUE(ShowsMessage());
    for (const char* Name : {"txtDscr", "cmdNew", "cmdSave", "cmdDelete", "cmdCancel", "cmdFlip1",
                             "cmdFlip2", "cmdRotate1", "cmdRotate2"})
        EXPECT_TRUE(IsOn(Name)) << Name;
}

TEST_F(SlideDBM, AnAlbumShowsItsNameAndItsSlidesInOrderOfTheirCaptions) {
    AddSlide(u"b"_s);
    AddSlide(u"A"_s);
    OpenAlbum();
    EXPECT_EQ("Slide Manager - Garden", W->windowTitle().toStdString());
    auto& List = Box("cboSlides");
    ASSERT_EQ(3, List.count());
    EXPECT_EQ("<NEW SLIDE>", List.itemText(0).toStdString());
    EXPECT_EQ("000002 A", List.itemText(1).toStdString());
    EXPECT_EQ("000001 b", List.itemText(2).toStdString());
    EXPECT_EQ(0, List.currentIndex());
    EXPECT_FALSE(Dirty());
    EXPECT_FALSE(IsOn("cmdCancel"));
    EXPECT_FALSE(IsOn("cmdDelete"));
}

TEST_F(SlideDBM, AChosenSlideIsShownAndClean) {
    const auto ID = AddSound(AddSlide(u"Rose"_s, 40, 30, Qt::blue), true, false);
    OpenSlide(ID);
    EXPECT_EQ("Rose", Text());
    EXPECT_EQ(QSize(40, 30), Shown().size());
    EXPECT_FALSE(ShowsMessage());
    EXPECT_TRUE(Check("chkOverride").isChecked());
    EXPECT_FALSE(Check("chkRepeat").isChecked());
    EXPECT_TRUE(IsOn("chkRepeat"));
    EXPECT_TRUE(IsOn("cmdClearSound"));
    EXPECT_TRUE(IsOn("cmdDelete"));
    EXPECT_FALSE(Dirty());
    EXPECT_FALSE(IsOn("cmdCancel"));
}

TEST_F(SlideDBM, ASlideWithoutASoundHasNothingToSetAboutIt) {
    const auto WithSound = AddSound(AddSlide(u"a"_s), true, true), Without = AddSlide(u"b"_s);
    OpenSlide(WithSound);
    Choose("cboSlides", Without);
    EXPECT_FALSE(Check("chkOverride").isChecked());
    EXPECT_FALSE(IsOn("chkOverride"));
    EXPECT_FALSE(IsOn("chkRepeat"));
    EXPECT_FALSE(IsOn("cmdClearSound"));
}

TEST_F(SlideDBM, NextAndPreviousGoRoundInCirclesAndNeverToTheNewSlide) {
    for (const char* Name : {"a", "b", "c"}) AddSlide(QString::fromLatin1(Name));
    OpenAlbum();
    std::string Walk;
    for (int I = 0; I < 4; ++I) Push("cmdNext"), Walk += Text();
    for (int I = 0; I < 4; ++I) Push("cmdPrev"), Walk += Text();
    EXPECT_EQ("abcacbac", Walk);
    Box("cboSlides").setCurrentIndex(0);
    Push("cmdPrev");
    EXPECT_EQ("c", Text());
}

TEST_F(SlideDBM, WithoutSlidesNextAndPreviousGoNowhereAndKeepWhatWasTyped) {
    OpenAlbum();
    Push("cmdNext");
    Push("cmdPrev");
    EXPECT_EQ(0, Index());
    Type(u"x"_s);
    ExpectDiscard(BoxAnswer::Discard);
    Push("cmdNext");
    EXPECT_EQ("x", Text());
    EXPECT_TRUE(Dirty());
}

TEST_F(SlideDBM, EveryChangeMarksTheSlide) {
    const auto ID = AddSound(AddSlide(u"a"_s), false, false);
    for (const char* Name : {"chkOverride", "chkRepeat", "cmdClearSound", "cmdRotate1",
                             "cmdRotate2", "cmdFlip1", "cmdFlip2"}) {
        OpenSlide(ID);
        EXPECT_FALSE(Dirty());
        QTest::mouseClick(&In<QAbstractButton>(*W, Name), Qt::LeftButton);
        EXPECT_TRUE(Dirty()) << Name;
        EXPECT_TRUE(IsOn("cmdCancel")) << Name;
        Push("cmdCancel");
    }
    OpenSlide(ID);
    Type(u"b"_s);
    EXPECT_TRUE(Dirty());
}

TEST_F(SlideDBM, CancelBringsTheStoredSlideBackWithoutAQuestion) {
    const auto ID = AddSound(AddSlide(u"a"_s), true, false);
    OpenSlide(ID);
    Type(u"other"_s);
    Push("cmdRotate1");
    Push("cmdClearSound");
    QTest::mouseClick(&Check("chkRepeat"), Qt::LeftButton);
    Push("cmdCancel");
    EXPECT_EQ("a", Text());
    EXPECT_EQ(QSize(40, 30), Shown().size());
    EXPECT_FALSE(Check("chkRepeat").isChecked());
    EXPECT_FALSE(Dirty());
    EXPECT_EQ(ID, Chosen());
}

TEST_F(SlideDBM, CancelOfANewSlideEmptiesTheFields) {
    OpenAlbum();
    Type(u"new"_s);
    Push("cmdCancel");
    EXPECT_EQ("", Text());
    EXPECT_FALSE(Dirty());
    OpenWindow();
    Type(u"before any album is chosen"_s);
    Push("cmdCancel");
    EXPECT_EQ("", Text());
}

TEST_F(SlideDBM, AskedInEachPlaceNoKeepsTheChangesAndTheSlide) {
    const auto ID = AddSlide(u"a"_s);
    AddSlide(u"b"_s);
    OpenSlide(ID);
    Type(u"changed"_s);
    for (const char* Name : {"cmdNew", "cmdNext", "cmdPrev", "cmdClose"}) {
        ExpectDiscard(BoxAnswer::Cancel);
        Push(Name);
        EXPECT_EQ("changed", Text()) << Name;
        EXPECT_EQ(ID, Chosen()) << Name;
        EXPECT_TRUE(Dirty()) << Name;
    }
    for (const int Other : {2, 0}) {
        ExpectDiscard(BoxAnswer::Cancel);
        Box("cboSlides").setCurrentIndex(Other);
        EXPECT_EQ("changed", Text());
        EXPECT_EQ(ID, Chosen());
    }
    EXPECT_TRUE(W->IsLoaded());
}

TEST_F(SlideDBM, AskedInEachPlaceOnceYesDiscardsTheChanges) {
    const auto ID = AddSlide(u"a"_s), Other = AddSlide(u"b"_s);
    OpenSlide(ID);
    const auto Change = [&] {
        Choose("cboSlides", ID);
        Type(u"changed"_s);
        ExpectDiscard(BoxAnswer::Discard);
    };
    Change();
    Push("cmdNext");
    EXPECT_EQ("b", Text());
    Change();
    Push("cmdPrev");
    EXPECT_EQ("b", Text());
    Change();
    Choose("cboSlides", Other);
    EXPECT_EQ("b", Text());
    Change();
    Push("cmdNew");
    EXPECT_EQ("", Text());
    EXPECT_EQ(0, Index());
    EXPECT_FALSE(Dirty());
    Change();
    Push("cmdClose");
    EXPECT_FALSE(W->IsLoaded());
    EXPECT_EQ("a", Slide(ID).SlideText.toStdString());
}

TEST_F(SlideDBM, NoAtTheQuestionKeepsANewSlideNew) {
    const auto ID = AddSlide(u"a"_s);
    OpenSlide(ID);
    Push("cmdNew");
    Type(u"my new one"_s);
    ExpectDiscard(BoxAnswer::Cancel);
    Choose("cboSlides", ID);
    EXPECT_EQ(0, Index());
    EXPECT_EQ("my new one", Text());
}

TEST_F(SlideDBM, NoAtTheQuestionGoesBackToTheAlbumOfTheEditedSlide) {
    const auto ID = AddSlide(u"a"_s);
    const auto Other = MakeAlbum(u"Other"_s);
    OpenSlide(ID);
    Type(u"changed"_s);
    ExpectDiscard(BoxAnswer::Cancel);
    Choose("cboAlbum", Other);
    EXPECT_EQ(AlbumID, Chosen("cboAlbum"));
    EXPECT_EQ("Slide Manager - Garden", W->windowTitle().toStdString());
    EXPECT_EQ(ID, Chosen());
    EXPECT_EQ("changed", Text());
    ExpectDiscard(BoxAnswer::Discard);
    Choose("cboAlbum", Other);
    EXPECT_EQ("Slide Manager - Other", W->windowTitle().toStdString());
    EXPECT_EQ("", Text());
}

TEST_F(SlideDBM, DeletesASlideWithItsFilesAndStandsReadyForANewOne) {
    const auto ID = AddSlide(u"a"_s);
    AddSlide(u"b"_s);
    const auto Others = NewForm<Listener>();
    Others->Load();
    OpenSlide(ID);
    const QString Question =
        u"Are you sure you want to delete the selected slide defintion?\n"
        "WARNING: If you procede the slide will be deleted from all\n"
        "Slide Shows that use it?"_s;
    Boxes.Expect(Question, u"Delete Confirmation"_s, BoxIcon::Question, BoxAnswer::No);
    Push("cmdDelete");
    EXPECT_EQ(2u, Album().Slides.size());
    Type(u"changed"_s);
    Boxes.Expect(Question, BoxAnswer::Yes);
    Boxes.Expect(u"Slide Deleted Successfully."_s, u"Delete Successful"_s, BoxIcon::Information,
                 BoxAnswer::Ok);
    Push("cmdDelete");
    EXPECT_FALSE(Album().GetSlide(ID));
    EXPECT_FALSE(FileExists(Stored(u"00000001.jpg"_s)));
    EXPECT_FALSE(FileExists(Stored(u"00000001Small.bmp"_s)));
    EXPECT_EQ(2, Box("cboSlides").count());
    EXPECT_EQ(0, Index());
    EXPECT_FALSE(Dirty());
    EXPECT_FALSE(IsOn("cmdDelete"));
    EXPECT_EQ("Album Delete Slides 1 1", Others->Heard.join(u'|').toStdString());
    Others->Unload();
}

TEST_F(SlideDBM, DeletingOnAFreshWindowDoesNothing) {
    OpenWindow();
    Push("cmdDelete");
    EXPECT_TRUE(W->IsLoaded());
}

TEST_F(SlideDBM, ASlideOrAlbumThatIsGoneWithoutAWordIsSaid) {
    const auto ID = AddSlide(u"a"_s), Other = AddSlide(u"b"_s);
    OpenSlide(ID);
    Album().DeleteSlide(Other, Engine);
    Boxes.Expect(u"Could not find the slide."_s);
    Choose("cboSlides", Other);
    DropAlbum(Engine, AlbumID);
    Boxes.Expect(u"Could not find the album."_s);
    Choose("cboSlides", ID);
    MakeAlbum(u"New"_s);
}

TEST_F(SlideDBM, RemembersItsSize) {
    OpenWindow();
    W->resize(600, 560);
    Push("cmdClose");
    const auto Settings = OpenSettings();
    EXPECT_EQ("9000", Settings.GetValue(u"frmSlideDBM"_s, u"Width"_s, {}).toStdString());
    EXPECT_EQ("8400", Settings.GetValue(u"frmSlideDBM"_s, u"Height"_s, {}).toStdString());
    EXPECT_EQ("0", Settings.GetValue(u"frmSlideDBM"_s, u"WindowState"_s, {}).toStdString());
    OpenWindow();
    EXPECT_EQ(QSize(600, 560), W->size());
    EXPECT_GE(W->minimumWidth(), 513);
    EXPECT_GE(W->minimumHeight(), 210);
}

TEST_F(SlideDBM, ClosesThoughItsPlaceCannotBeRemembered) {
    OpenWindow();
    SetHostWatcher([](HostStep Step, const QString& Path, qint64& Length) {
        if (Step == HostStep::Write && Path.contains(u"QLM.ini")) Length = 0;
    });
    Push("cmdClose");
    EXPECT_FALSE(W->IsLoaded());
}

TEST_F(SlideDBM, TheToolBarHasItsTextsAndExits) {
    OpenAlbum();
    EXPECT_EQ("Import Graphics", In<QAction>(*W, "mnuImport").text().toStdString());
    EXPECT_EQ("Print Slide", In<QAction>(*W, "mnuPrintSlide").text().toStdString());
    EXPECT_EQ("Print Slide Sheet", In<QAction>(*W, "mnuPrintSlideSheet").text().toStdString());
    In<QAction>(*W, "mnuExit").trigger();
    EXPECT_FALSE(W->IsLoaded());
}

}  // namespace
}  // namespace neb
