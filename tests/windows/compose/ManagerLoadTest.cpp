// How the slide show manager takes up albums and shows.
#include "ManagerRig.h"
#include "windows/frame/Openers.h"

namespace neb {
namespace {

using namespace harness;

using Buffer = clsImageBuffer;

class ManagerLoad : public ManagerRig {};

TEST_F(ManagerLoad, OpensWithNothingChosen) {
    AddAlbumSlides({u"a"_s});
    OpenMgr(0);
    EXPECT_EQ("Slide Show Manager", W->windowTitle().toStdString());
    EXPECT_EQ("Garden", Entries("cboAlbum"));
    EXPECT_EQ(-1, Combo("cboAlbum").currentIndex());
    EXPECT_EQ("", Entries("cboSlideShows"));
    EXPECT_EQ("Automatic|Manual", Entries("cboProgressionMethod"));
    EXPECT_EQ(" / ", Lists());
    EXPECT_EQ("0/0", Counts());
    EXPECT_EQ(99, Tracks().Rows());
    EXPECT_TRUE(W->ExitState().isEmpty());
}

TEST_F(ManagerLoad, AnAlbumWithoutShowsOffersANewOneAlone) {
    AddAlbumSlides({u"b"_s, u"a"_s});
    OpenNew();
    EXPECT_EQ("Slide Show Manager - Garden", W->windowTitle().toStdString());
    EXPECT_EQ("<NEW SLIDE SHOW>", Entries("cboSlideShows"));
    EXPECT_EQ(0, Combo("cboSlideShows").currentIndex());
    EXPECT_EQ("b|a / ", Lists()) << "in the order of the album";
    EXPECT_EQ("2/0", Counts());
    EXPECT_EQ("", Name().text().toStdString());
}

TEST_F(ManagerLoad, StoppedWhileItReadsTheAlbumItShowsNone) {
    AddAlbumSlides({u"a"_s, u"b"_s, u"c"_s});
    const std::int32_t ShowID = AddShow(u"Walk"_s, {3, 1});
    QString Told;
    TheOpeners().Notice = [&](const QString& Line) { Told = Line; };
    AtValue(33, [] { Press(*Open<frmLoading>(), "cmdStop"); });
    Boxes.Expect(AbortQuestion, u"Abort Confirmation"_s, BoxAnswer::Yes);
    OpenMgr(AlbumID, ShowID);
    TheOpeners().Notice = {};
    EXPECT_EQ("Stopped; the album is not shown.", Told.toStdString());
    EXPECT_EQ(-1, Combo("cboAlbum").currentIndex());
    EXPECT_EQ(" / ", Lists());
    EXPECT_EQ("", Entries("cboSlideShows"));
    EXPECT_EQ("Slide Show Manager", W->windowTitle().toStdString());
    Choose("cboAlbum", AlbumID);
    EXPECT_EQ("a|b|c / ", Lists()) << "and whole when it is chosen again";
}

TEST_F(ManagerLoad, AShowStandsInItsOrderAndTheOtherSlidesBesideIt) {
    AddAlbumSlides({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    const std::int32_t ShowID = AddShow(u"Walk"_s, {3, 1});
    Show(ShowID).ProgressionMethod = 1;
    Show(ShowID).Details[1]->SlideText = u"own"_s;
    AddTrack(ShowID, 1, 1, 2, u"00000001_1.mp3"_s);
    OpenMgr(AlbumID, ShowID);
    EXPECT_EQ("b|d / c|own", Lists());
    EXPECT_EQ("1|2", Places());
    EXPECT_EQ("2/2", Counts());
    EXPECT_EQ("Walk", Name().text().toStdString());
    EXPECT_EQ(1, Combo("cboProgressionMethod").currentIndex());
    EXPECT_EQ("1: 1,2,False,False,False,00000001_1.mp3", TrackCells());
}

TEST_F(ManagerLoad, ARowHasPictureCaptionPathNumberAndTheSlidesOwnCaption) {
    AddAlbumSlides({u"a"_s, u"b"_s});
    const std::int32_t ShowID = AddShow(u"Walk"_s, {2});
    Show(ShowID).Details[0]->SlideText = u"own"_s;
    OpenMgr(AlbumID, ShowID);
    const FlexGrid* Grids[] = {&Left(), &Right(), &In<FlexGrid>(*W, "flxBuffer")};
    const int Rows[] = {0, 0, 1}, IDs[] = {1, 2, 2};
    const char* Texts[] = {"a", "own", "b"};
    for (int I = 0; I < 3; ++I) {
        const FlexGrid& Grid = *Grids[I];
        const int Row = Rows[I];
        EXPECT_EQ(QSize(72, 72), Grid.CellPicture(Row, Buffer::ColPicture).size());
        EXPECT_EQ(Texts[I], Grid.TextMatrix(Row, Buffer::ColText).toStdString());
        EXPECT_EQ(SlidePath(Engine.DBPath(), AlbumID, FileStem(IDs[I]) + u".JPG"_s),
                  Grid.TextMatrix(Row, Buffer::ColPath));
        EXPECT_EQ(IDs[I], Grid.TextMatrix(Row, Buffer::ColSlideID).toInt());
        EXPECT_EQ(I == 0 ? "a" : "b", Grid.TextMatrix(Row, ColOwnText).toStdString());
    }
    EXPECT_FALSE(Grids[2]->isVisible());
}

TEST_F(ManagerLoad, ASlideThatStandsTwiceIsTakenOnceAndOneThatIsGoneIsDropped) {
    AddAlbumSlides({u"a"_s, u"b"_s});
    OpenMgr(AlbumID, AddShow(u"Walk"_s, {2, 9, 2, 1}));
    EXPECT_EQ(" / b|a", Lists());
    EXPECT_EQ("1|2", Places());
}

TEST_F(ManagerLoad, ACaptionThatWasEmptiedIsABlank) {
    AddAlbumSlides({u"a"_s});
    const std::int32_t ShowID = AddShow(u"Walk"_s, {1});
    Show(ShowID).Details[0]->SlideText = u" "_s;
    OpenMgr(AlbumID, ShowID);
    EXPECT_EQ(" ", Captions(Right()));
}

TEST_F(ManagerLoad, TheCaptionIsThePresentOneAlthoughTheBufferHasAnOlder) {
    AddAlbumSlides({u"a"_s});
    OpenNew();
    W->Unload();
    Album().GetSlide(1)->SlideText = u"now"_s;
    OpenNew();
    EXPECT_EQ("now / ", Lists());
    EXPECT_EQ("now", Left().TextMatrix(0, ColOwnText).toStdString());
}

TEST_F(ManagerLoad, APictureThatCannotBeDecodedLeavesItsCellEmpty) {
    AddAlbumSlides({u"a"_s, u"b"_s, u"c"_s});
    WriteFile(PicturePath(2), "no picture");
    DeleteFile(PicturePath(3));
    OpenNew();
    EXPECT_EQ("a|b|c / ", Lists());
    EXPECT_FALSE(Left().CellPicture(0, Buffer::ColPicture).isNull());
    EXPECT_TRUE(Left().CellPicture(1, Buffer::ColPicture).isNull());
    EXPECT_TRUE(Left().CellPicture(2, Buffer::ColPicture).isNull());
    EXPECT_FALSE(Left().TextMatrix(1, Buffer::ColPath).isEmpty());
}

TEST_F(ManagerLoad, ATrackBehindAnEmptyRowStandsAtItsNumber) {
    AddAlbumSlides({u"a"_s, u"b"_s});
    const std::int32_t ShowID = AddShow(u"Walk"_s, {1, 2});
    AddTrack(ShowID, 3, 2, 2, u"b.wav"_s);
    AddTrack(ShowID, 1, 1, 1, u"a.wav"_s);
    AddTrack(ShowID, 99, 1, 1, u"z.wav"_s);
    AddTrack(ShowID, 100, 1, 1, u"beyond.wav"_s);
    OpenMgr(AlbumID, ShowID);
    EXPECT_EQ(
        "1: 1,1,False,False,False,a.wav|3: 2,2,False,False,False,b.wav|"
        "99: 1,1,False,False,False,z.wav",
        TrackCells());
}

TEST_F(ManagerLoad, AnotherShowAndANewOneTakeThePlaceOfTheFirst) {
    const std::int32_t Walk = OpenGarden({3, 1});
    AddTrack(Walk, 1, 1, 1, u"a.wav"_s);
    W->Unload();
    const std::int32_t Other = AddShow(u"Alley"_s, {5});
    OpenMgr(AlbumID, Walk);
    EXPECT_EQ("<NEW SLIDE SHOW>|Alley|Walk", Entries("cboSlideShows"));
    Choose("cboSlideShows", Other);
    EXPECT_EQ("a|b|c|d / e", Lists());
    EXPECT_EQ("Alley", Name().text().toStdString());
    EXPECT_EQ("", TrackCells());
    Choose("cboSlideShows", Walk);
    EXPECT_EQ("b|d|e / c|a", Lists());
    Push("cmdNew");
    EXPECT_EQ("a|b|c|d|e / ", Lists());
    EXPECT_EQ("", Name().text().toStdString());
    EXPECT_EQ("", TrackCells());
    EXPECT_EQ("5/0", Counts());
}

TEST_F(ManagerLoad, CancelBringsTheStoredShowBackAndNewEmptiesANewOne) {
    const std::int32_t Walk = OpenGarden({3, 1});
    Push("cmdMoveRightAll");
    PutCaption(0, u"other"_s);
    Name().setText(u"Other"_s);
    SetTrack(0, {u"1"_s, u"2"_s});
    Push("cmdCancel");
    EXPECT_EQ("b|d|e / c|a", Lists());
    EXPECT_EQ("Walk", Name().text().toStdString());
    EXPECT_EQ("", TrackCells());
    EXPECT_EQ(Walk, Chosen());
    Push("cmdNew");
    Push("cmdMoveRightAll");
    ExpectAsk();
    Push("cmdNew");
    EXPECT_EQ("a|b|c|d|e / ", Lists());
}

TEST_F(ManagerLoad, AnotherAlbumBringsItsOwnSlidesAndShows) {
    OpenGarden();
    const std::int32_t Garden = AlbumID;
    W->Unload();
    AlbumID = MakeAlbum(u"Attic"_s);
    AddAlbumSlides({u"chest"_s});
    OpenMgr(Garden, 1);
    EXPECT_EQ("Walk", Name().text().toStdString());
    Choose("cboAlbum", AlbumID);
    EXPECT_EQ("Slide Show Manager - Attic", W->windowTitle().toStdString());
    EXPECT_EQ("chest / ", Lists());
    EXPECT_EQ("<NEW SLIDE SHOW>", Entries("cboSlideShows"));
    EXPECT_EQ("", Name().text().toStdString());
}

TEST_F(ManagerLoad, WhatCannotBeFoundIsToldAndTheRestStays) {
    const std::int32_t Walk = OpenGarden();
    Album().DeleteSlideShow(Walk, Engine);
    Boxes.Expect(u"Slide Show not found."_s, {}, BoxIcon::Plain, BoxAnswer::Ok);
    Push("cmdCancel");
    EXPECT_EQ("a|b|c|d|e / ", Lists());
    Engine.DeleteAlbum(AlbumID);
    Boxes.Expect(u"Album not found."_s, {}, BoxIcon::Plain, BoxAnswer::Ok);
    Push("cmdCancel");
    EXPECT_EQ("5/0", Counts());
}

TEST_F(ManagerLoad, AnAlbumThatIsGoneIsToldOf) {
    OpenMgr(0);
    Engine.DeleteAlbum(AlbumID);
    Boxes.Expect(u"Album not found."_s, {}, BoxIcon::Plain, BoxAnswer::Ok);
    Boxes.Expect(u"Album not found."_s, {}, BoxIcon::Plain, BoxAnswer::Ok);
    Combo("cboAlbum").setCurrentIndex(0);
    EXPECT_EQ("0/0", Counts());
    EXPECT_EQ("", Entries("cboSlideShows"));
}

TEST_F(ManagerLoad, WithoutAnAlbumEachCommandAsksForOne) {
    AddAlbumSlides({u"a"_s});
    OpenMgr(0);
    for (const char* Button : {"cmdNew", "cmdCancel", "cmdDelete"}) {
        Boxes.Expect(u"You must first select an album."_s, {}, BoxIcon::Plain, BoxAnswer::Ok);
        Push(Button);
    }
}

TEST_F(ManagerLoad, TheSizeIsRemembered) {
    OpenMgr(0);
    EXPECT_GE(W->height(), 605);
    const int Width = W->width();
    W->resize(Width + 60, 640);
    ASSERT_EQ(QSize(Width + 60, 640), W->size());
    W->Unload();
    const auto Kept = [](const QString& Key) {
        return OpenSettings().GetValue(u"frmSlideShowDBM"_s, Key, u"(none)"_s).toStdString();
    };
    EXPECT_EQ("9600", Kept(u"Height"_s));
    EXPECT_EQ(QString::number((Width + 60) * 15).toStdString(), Kept(u"Width"_s));
    OpenMgr(0);
    EXPECT_EQ(QSize(Width + 60, 640), W->size());
}

TEST_F(ManagerLoad, TheWindowMayGoWhileAnAlbumIsRead) {
    AddAlbumSlides({u"a"_s, u"b"_s, u"c"_s});
    AtValue(33, [this] { EXPECT_TRUE(Windows.back()->Unload()); });
    OpenNew();
    EXPECT_FALSE(W->IsLoaded());
    EXPECT_TRUE(Open<frmLoading>() == nullptr);
}

TEST_F(ManagerLoad, AnotherAlbumChosenDuringTheReadingIsReadNext) {
    AddAlbumSlides({u"a"_s, u"b"_s, u"c"_s});
    const std::int32_t Garden = AlbumID;
    AlbumID = MakeAlbum(u"Attic"_s);
    AddAlbumSlides({u"chest"_s});
    AtValue(33, [this] { Choose("cboAlbum", AlbumID); });
    OpenMgr(Garden);
    EXPECT_EQ("chest / ", Lists());
    EXPECT_EQ("Slide Show Manager - Attic", W->windowTitle().toStdString());
    EXPECT_TRUE(Left().Redraw());
}

}  // namespace
}  // namespace neb
