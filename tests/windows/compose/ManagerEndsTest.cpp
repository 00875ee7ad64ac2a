// The slide show manager at its limits: shows of no slide and of one, tracks beyond the end, an
// album folder that may not be written, edits that are still open when the window moves on.
#include <QDir>
#include <QFile>
#include <QWheelEvent>

#include "ManagerRig.h"
#include "controls/fields/ToolBar.h"
#include "controls/picture/XShow.h"
#include "harness/WithoutPrivileges.h"
#include "windows/show/CaptionLabel.h"
#include "windows/show/frmSlideShowProjector.h"

namespace neb {
namespace {

using namespace harness;

class ManagerEnds : public ManagerRig {
  protected:
    static constexpr auto Readable = QFileDevice::Permissions(0x5555),
                          Writable = QFileDevice::Permissions(0x7755);
    static void Permit(const QString& Path, QFileDevice::Permissions What) {
        ASSERT_TRUE(QFile::setPermissions(Path, What)) << Path.toStdString();
    }
    // Everything that a save reads can be read by anybody.
    void OpenToAll() {
        for (const QString& Each : {Db.Path(), Sounds.Path()}) Permit(Each, Writable);
    }
    void SaveFailing(const QString& Text) {
        const WithoutPrivileges User;
        Boxes.Expect(Text, u"Operation Failed"_s);
        Push("cmdSave");
    }
    // What the projector shows below the picture of each of so many slides.
    std::string PlayedCaptions(int Count) {
        QStringList All;
        XShow::SetReader([](const QString& Path) { return QImage::fromData(ReadFile(Path)); });
        const auto Look = [&](frmSlideShowProjector& Playing) {
            for (int I = 0; I < Count; ++I) {
                if (I > 0) Playing.NextSlide();
                All << In<CaptionLabel>(Playing, "lblCaption").ShownText();
            }
            Playing.Unload();
        };
        WhenOpen<frmSlideShowProjector>(
            Look, [] { return !Open<frmSlideShowProjector>()->State().PlayCommand.isEmpty(); });
        In<ToolBar>(*W, "abrMenu").Tool(u"mnuSlideShowView"_s)->trigger();
        XShow::SetReader({});
        Activate(*W);
        return All.join(u'|').toStdString();
    }
    void ExpectRefused(const QString& Text, const QString& Title = {}) {
        Boxes.Expect(Text, Title, Title.isEmpty() ? BoxIcon::Plain : BoxIcon::Information,
                     BoxAnswer::Ok);
        Push("cmdSave");
    }
};

TEST_F(ManagerEnds, AFolderOfSoundsThatMayNotBeWrittenIsSaidAndTheNextSaveSucceeds) {
    OpenGarden({1, 2});
    MakeDirs(TracksFolder());
    Push("cmdNew");
    Push("cmdMoveRightAll");
    PutCaption(4, u"Rose"_s);
    Name().setText(u"Second"_s);
    SetTrack(0, {u"1"_s, u"2"_s, u"True"_s, {}, {}, MakeSound(u"a.wav"_s)});
    SetTrack(2, {u"3"_s, u"5"_s, {}, {}, {}, MakeSound(u"b.mp3"_s)});
    const std::string Composed = TrackCells();
    OpenToAll();
    Permit(TracksFolder(), Readable);
    SaveFailing(u"The file cannot be written. (Permission denied)\n"_s + TracksFolder() +
                u"00000002_1.wav"_s);
    EXPECT_EQ(" / a|b|c|d|Rose", Lists());
    EXPECT_EQ("Second", Name().text().toStdString());
    EXPECT_EQ(Composed, TrackCells());
    EXPECT_EQ(0, Combo("cboSlideShows").currentIndex());
    EXPECT_EQ("none", Stored(2));
    EXPECT_EQ("", TrackFiles());
    EXPECT_EQ(Pointer::Default, ScreenPointer());
    EXPECT_TRUE(W->isEnabled());
    Permit(TracksFolder(), Writable);
    SaveWell();
    EXPECT_EQ(
        "Second 0 1:1[] 2:2[] 3:3[] 4:4[] 5:5[Rose] | 1:1-2 00000002_1.wav | 3:3-5 "
        "00000002_3.mp3",
        Stored(2));
    EXPECT_EQ("00000002_1.wav=a.wav 00000002_3.mp3=b.mp3", TrackFiles());
    EXPECT_EQ("Slide Show Insert 1 2", Heard());
}

TEST_F(ManagerEnds, AnAlbumThatLostItsFolderOfSoundsAndMayNotGetOneKeepsWhatIsComposed) {
    const std::int32_t Walk = OpenGarden({1, 2});
    const QString Folder = TracksFolder().chopped(1);
    ASSERT_TRUE(QDir().rmdir(Folder));
    PutCaption(0, u"Rose"_s);
    SetTrack(0, {u"1"_s, u"2"_s, {}, {}, {}, MakeSound(u"a.wav"_s)});
    const std::string Composed = TrackCells();
    OpenToAll();
    Permit(AlbumFolder(Engine.DBPath(), AlbumID), Readable);
    {
        const WithoutPrivileges User;
        Boxes.Expect(u"The directory cannot be made.\n"_s + TracksFolder(), u"Operation Failed"_s);
        Push("cmdSave");
    }
    EXPECT_EQ("c|d|e / Rose|b", Lists());
    EXPECT_EQ(Composed, TrackCells());
    Permit(AlbumFolder(Engine.DBPath(), AlbumID), Writable);
    SaveWell();
    EXPECT_EQ("Walk 0 1:1[Rose] 2:2[] | 1:1-2 00000001_1.wav", Stored(Walk));
    EXPECT_EQ("00000001_1.wav=a.wav", TrackFiles());
}

TEST_F(ManagerEnds, AFileThatIsNoLongerPlayedAndMayNotBeDeletedKeepsNobodyFromSaving) {
    const std::int32_t Walk = OpenGarden({1, 2});
    SetTrack(0, {u"1"_s, u"2"_s, {}, {}, {}, MakeSound(u"a.wav"_s)});
    SaveWell();
    SetTrack(0, {QString(), QString(), QString(), QString(), QString(), QString()});
    OpenToAll();
    Permit(TracksFolder(), Readable);
    {
        const WithoutPrivileges User;
        SaveWell();
    }
    EXPECT_EQ("Walk 0 1:1[] 2:2[]", Stored(Walk));
    EXPECT_EQ("00000001_1.wav=a.wav", TrackFiles());
    Permit(TracksFolder(), Writable);
}

TEST_F(ManagerEnds, AShowThatLosesAllItsSlidesIsNotSavedEmpty) {
    const std::int32_t Walk = OpenGarden({1, 2});
    Push("cmdMoveLeftAll");
    ExpectRefused(u"You must select atleast 1 slide for the Slide Show."_s);
    EXPECT_EQ("Walk 0 1:1[] 2:2[]", Stored(Walk));
    EXPECT_EQ("c|d|e|a|b / ", Lists());
    Tracks().setCurrentIndex(Tracks().model()->index(0, TrackList::ColStart));
    EXPECT_TRUE(Tracks().Column(TrackList::ColStart).List.isEmpty());
    for (const char* Button : {"cmdMoveUp", "cmdMoveDown", "cmdMoveLeftOne", "cmdMoveLeftAll"})
        Push(Button);
    EXPECT_EQ("c|d|e|a|b / ", Lists());
}

TEST_F(ManagerEnds, AStoredShowOfNoSlideIsOpenedAndFilled) {
    const std::int32_t Walk = OpenGarden({});
    EXPECT_EQ("a|b|c|d|e / ", Lists());
    EXPECT_EQ("Walk", Name().text().toStdString());
    Pick(Left(), {2});
    Push("cmdMoveRightOne");
    SaveWell();
    EXPECT_EQ("Walk 0 1:3[]", Stored(Walk));
}

TEST_F(ManagerEnds, AShowOfOneSlideHasOnePlaceAndOneTrack) {
    const std::int32_t Walk = OpenGarden({4});
    EXPECT_EQ("a|b|c|e / d", Lists());
    Pick(Right(), {0});
    Push("cmdMoveUp");
    Push("cmdMoveDown");
    for (const char* Typed : {"0", "2", "1.2", "1"}) {
        Put(Right(), 0, ColPlace, QString::fromLatin1(Typed));
        EXPECT_EQ("1", Places()) << Typed;
    }
    Tracks().setCurrentIndex(Tracks().model()->index(0, TrackList::ColEnd));
    EXPECT_EQ("1", Tracks().Column(TrackList::ColEnd).List.join(u'|').toStdString());
    SetTrack(0, {u"1"_s, u"1"_s, {}, {}, {}, MakeSound(u"a.wav"_s)});
    SaveWell();
    EXPECT_EQ("Walk 0 1:4[] | 1:1-1 00000001_1.wav", Stored(Walk));
}

TEST_F(ManagerEnds, ATrackThatPointsBehindTheEndIsRefusedAndTheStoredShowStays) {
    const std::int32_t Walk = OpenGarden({1, 2, 3, 4, 5});
    SetTrack(0, {u"1"_s, u"3"_s, {}, {}, {}, MakeSound(u"a.wav"_s)});
    SetTrack(1, {u"4"_s, u"5"_s, {}, {}, {}, MakeSound(u"b.wav"_s)});
    SaveWell();
    const std::string Before = Stored(Walk);
    Pick(Right(), {0, 3});
    Push("cmdMoveLeftOne");
    EXPECT_EQ("a|d / b|c|e", Lists());
    SetTrack(1, {u"3"_s, u"5"_s});
    const auto Late = [&] {
        ExpectRefused(u"The Ending Slide # must be <= the total number of slides in the show."_s,
                      u"Invalid Slide Sequence"_s);
        EXPECT_EQ(Before, Stored(Walk));
        EXPECT_EQ("a|d / b|c|e", Lists());
    };
    Late();
    ASSERT_TRUE(Tracks().EditCell(1, TrackList::ColEnd));
    Late();
    EXPECT_EQ("5", Tracks().TextMatrix(1, TrackList::ColEnd).toStdString())
        << "a place that is not offered any more is not lost by looking at it";
    SetTrack(1, {QString(), QString(), QString(), QString(), QString(), QString()});
    SaveWell();
    EXPECT_EQ("Walk 0 1:2[] 2:3[] 3:5[] | 1:1-2 00000001_1.wav", Stored(Walk));
    EXPECT_EQ("00000001_1.wav=a.wav", TrackFiles());
}

TEST_F(ManagerEnds, WhatIsBeingTypedIsKeptWhenAnotherWindowIsChosen) {
    OpenGarden({1, 2, 3});
    Mgr& One = *W;
    Mgr& Other = OpenMgr(AlbumID);
    const struct {
        FlexGrid& Grid;
        int Row, Col;
        const char* Text;
    } Cells[] = {
        {Selected(One), 2, ColPlace, "1"},
        {Selected(One), 0, clsImageBuffer::ColText, "Rose"},
        {In<FlexGrid>(One, "flxSoundTracks"), 1, TrackList::ColFile, "/music/a.wav"},
    };
    for (const auto& Each : Cells) {
        Activate(One);
        Begin(Each.Grid, Each.Row, Each.Col, QString::fromLatin1(Each.Text));
        Activate(Other);
        EXPECT_FALSE(Each.Grid.IsEditing()) << Each.Text;
    }
    W = &One;
    EXPECT_EQ("d|e / Rose|a|b", Lists());
    EXPECT_EQ("2: 1,3,,,,/music/a.wav", TrackCells());
}

// Another show takes the place of the one that was being composed, which is discarded.
TEST_F(ManagerEnds, AnotherShowIsShownAsItIsAlthoughSomethingWasBeingTyped) {
    const std::int32_t Walk = OpenGarden({1, 2});
    AddShow(u"Alley"_s, {2, 1, 3});
    Tell(u"Slide Show"_s, u"Insert"_s, {AlbumID, 2});
    for (const auto& [Col, Text] :
         {std::pair{int(clsImageBuffer::ColText), u"Rose"_s}, {int(ColPlace), u"2"_s}}) {
        Choose("cboSlideShows", Walk);
        Begin(Right(), 0, Col, Text);
        ExpectAsk();
        Choose("cboSlideShows", 2);
        EXPECT_EQ("d|e / b|a|c", Lists());
        EXPECT_EQ("1|2|3", Places());
        EXPECT_FALSE(Right().IsEditing());
    }
    Begin(Tracks(), 0, TrackList::ColFile, u"/music/a.wav"_s);
    ExpectAsk();
    Choose("cboSlideShows", Walk);
    EXPECT_EQ("", TrackCells());
    EXPECT_EQ("c|d|e / a|b", Lists());
    EXPECT_EQ("Walk 0 1:1[] 2:2[]", Stored(Walk));
    EXPECT_EQ("Alley 0 1:2[] 2:1[] 3:3[]", Stored(2));
}

TEST_F(ManagerEnds, AnotherAlbumIsShownAsItIsAlthoughSomethingWasBeingTyped) {
    OpenGarden({1, 2});
    const std::int32_t Garden = AlbumID;
    AlbumID = MakeAlbum(u"Attic"_s);
    AddAlbumSlides({u"chest"_s, u"trunk"_s});
    Tell(u"Album"_s, u"Insert"_s, {AlbumID});
    for (const int Col : {int(clsImageBuffer::ColText), int(ColPlace)}) {
        Push("cmdMoveRightAll");
        Begin(Right(), 3, Col, u"1"_s);
        ExpectAsk();
        Choose("cboAlbum", AlbumID);
        EXPECT_FALSE(Right().IsEditing());
        EXPECT_EQ("chest|trunk / ", Lists());
        Push("cmdMoveRightAll");
        PutCaption(1, u"Rose"_s);
        Put(Right(), 1, ColPlace, u"1"_s);
        EXPECT_EQ(" / Rose|chest", Lists());
        ExpectAsk();
        Choose("cboAlbum", Garden);
    }
}

TEST_F(ManagerEnds, ATurnOfTheWheelChoosesNoOtherShow) {
    const std::int32_t Walk = OpenGarden({1, 2});
    Push("cmdMoveRightAll");
    for (const char* Box : {"cboSlideShows", "cboAlbum"}) {
        Combo(Box).setFocus();
        for (const int Turn : {120, -120}) {
            QWheelEvent Wheel({5, 5}, Combo(Box).mapToGlobal(QPointF(5, 5)), {}, {0, Turn},
                              Qt::NoButton, {}, Qt::NoScrollPhase, false);
            QApplication::sendEvent(&Combo(Box), &Wheel);
            EXPECT_EQ(Walk, Chosen());
            EXPECT_EQ(" / a|b|c|d|e", Lists()) << Box << Turn;
        }
    }
}

TEST_F(ManagerEnds, ClosingThatDiscardsLeavesTheStoredShow) {
    const std::int32_t Walk = OpenGarden({1, 2});
    Push("cmdMoveRightAll");
    Begin(Right(), 0, clsImageBuffer::ColText, u"Rose"_s);
    ExpectAsk();
    Push("cmdClose");
    EXPECT_FALSE(W->IsLoaded());
    OpenMgr(AlbumID, Walk);
    Begin(Right(), 0, ColPlace, u"2"_s);
    ExpectAsk();
    W->close();
    EXPECT_FALSE(W->IsLoaded());
    EXPECT_EQ("Walk 0 1:1[] 2:2[]", Stored(Walk));
    EXPECT_EQ("", Heard());
}

TEST_F(ManagerEnds, TheCaptionsThatWereComposedAreThoseThatAreShown) {
    const std::int32_t Walk = OpenGarden({1, 2, 3});
    const auto Compose = [&](const QString& First, const QString& Second) {
        PutCaption(0, First);
        PutCaption(1, Second);
        SaveWell();
    };
    EXPECT_EQ("a|b|c", PlayedCaptions(3));
    Compose(u"Tom & Anna"_s, {});
    EXPECT_EQ("Walk 0 1:1[Tom & Anna] 2:2[ ] 3:3[]", Stored(Walk));
    EXPECT_EQ("Tom & Anna| |c", PlayedCaptions(3)) << "none, instead of the slide's own";
    EXPECT_EQ("d|e / Tom & Anna| |c", Lists());
    SaveWell();
    EXPECT_EQ("Walk 0 1:1[Tom & Anna] 2:2[ ] 3:3[]", Stored(Walk)) << "and it stays so";
    Compose(u"a"_s, u"b"_s);
    EXPECT_EQ("Walk 0 1:1[] 2:2[] 3:3[]", Stored(Walk));
    EXPECT_EQ("a|b|c", PlayedCaptions(3));
}

}  // namespace
}  // namespace neb
