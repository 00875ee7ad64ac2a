// The list of sound tracks of the slide show manager: what is offered, chosen, typed, dropped.
#include <QAbstractItemView>
#include <QComboBox>
#include <QDropEvent>
#include <QMimeData>

#include "ManagerRig.h"

namespace neb {
namespace {

using namespace harness;

class ManagerTracks : public ManagerRig {
  protected:
    // Lets files go over a row; whether they were taken.
    bool Drop(const QStringList& Paths, int Row) {
        QMimeData Data;
        QList<QUrl> Urls;
        for (const QString& Each : Paths) Urls << QUrl::fromLocalFile(Each);
        Data.setUrls(Urls);
        QWidget* Port = Tracks().viewport();
        const QPoint At = CellCentre(Tracks(), Row, TrackList::ColFile);
        QDragEnterEvent Enter(At, Qt::CopyAction, &Data, Qt::LeftButton, {});
        QApplication::sendEvent(Port, &Enter);
        QDragMoveEvent Move(At, Qt::CopyAction, &Data, Qt::LeftButton, {});
        QApplication::sendEvent(Port, &Move);
        if (!Enter.isAccepted() || !Move.isAccepted()) return false;
        QDropEvent Let(At, Qt::CopyAction, &Data, Qt::LeftButton, {});
        QApplication::sendEvent(Port, &Let);
        return Let.isAccepted();
    }
    std::string File(int Row) { return Tracks().TextMatrix(Row, TrackList::ColFile).toStdString(); }
    void PressDots(int Row) {
        const QRect Cell = Tracks().visualRect(Tracks().model()->index(Row, TrackList::ColFile));
        const QPoint Dots(Cell.right() - 5, Cell.center().y());
        QTest::mouseClick(Tracks().viewport(), Qt::LeftButton, {}, Dots);
    }
    std::string Places(int Row) {
        return (Tracks().TextMatrix(Row, TrackList::ColStart) + u'-' +
                Tracks().TextMatrix(Row, TrackList::ColEnd))
            .toStdString();
    }
    std::string Offered(int Col) { return Tracks().Column(Col).List.join(u'|').toStdString(); }
    static void KeyReturn() { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); }
    void GoTo(int Row, int Col) { ClickCell(Tracks(), Row, Col); }

    // Keys that a busy machine brings late are typed together all the same.
    ManagerTracks() { QApplication::setKeyboardInputInterval(60000); }
    ~ManagerTracks() override { QApplication::setKeyboardInputInterval(mUsual); }
    const int mUsual = QApplication::keyboardInputInterval();
};

TEST_F(ManagerTracks, TheHeadingsStandInTwoLines) {
    OpenMgr(0);
    QStringList All;
    for (int Col = 0; Col <= TrackList::ColFile; ++Col) All << Tracks().Column(Col).Heading;
    EXPECT_EQ(
        "Start Slide\nSeq|End Slide\nSeq|Repeat|Fit To\nSong|Fade On\nLast Slide|"
        "Sound Track\nFile Location",
        All.join(u'|').toStdString());
}

TEST_F(ManagerTracks, ThePlacesOfTheShowAreOfferedOnEnteringTheirColumns) {
    OpenGarden({1, 2, 3});
    GoTo(0, TrackList::ColFile);
    EXPECT_EQ("", Offered(TrackList::ColStart));
    GoTo(2, TrackList::ColEnd);
    EXPECT_EQ("1|2|3", Offered(TrackList::ColEnd));
    Push("cmdMoveRightAll");
    EXPECT_EQ("1|2|3|4|5", Offered(TrackList::ColEnd)) << "the cell was current already";
    GoTo(2, TrackList::ColStart);
    EXPECT_EQ("1|2|3|4|5", Offered(TrackList::ColStart));
    GoTo(2, TrackList::ColFile);
    EXPECT_EQ("", Offered(TrackList::ColStart));
}

TEST_F(ManagerTracks, APlaceIsChosenFromTheList) {
    OpenGarden({1, 2, 3});
    GoTo(1, TrackList::ColStart);
    ASSERT_TRUE(Tracks().EditCell(1, TrackList::ColStart));
    auto* Box = Tracks().findChild<QComboBox*>();
    ASSERT_TRUE(Box);
    EXPECT_EQ(3, Box->count());
    QTest::keyClick(Box, Qt::Key_Down);
    QTest::keyClick(Box, Qt::Key_Down);
    KeyReturn();
    EXPECT_EQ("2: 2,,,,,", TrackCells());
    ASSERT_TRUE(Tracks().EditCell(1, TrackList::ColStart));
    Type("3");
    KeyReturn();
    EXPECT_EQ("2: 3,,,,,", TrackCells()) << "a place is typed as well";
}

TEST_F(ManagerTracks, AChoiceThatIsOpenCountsWhenACommandIsGiven) {
    OpenGarden({1, 2, 3});
    ASSERT_TRUE(Tracks().EditCell(0, TrackList::ColEnd));
    Tracks().findChild<QComboBox*>()->setCurrentIndex(2);
    Push("cmdMoveRightAll");
    EXPECT_EQ("1: ,3,,,,", TrackCells());
}

TEST_F(ManagerTracks, TheFlagsAreTicked) {
    OpenGarden({1});
    for (int Col : {TrackList::ColRepeat, TrackList::ColFitToSong, TrackList::ColFade})
        GoTo(0, Col);
    EXPECT_EQ("1: ,,True,True,True,", TrackCells());
    GoTo(0, TrackList::ColFitToSong);
    EXPECT_EQ("1: ,,True,False,True,", TrackCells());
}

TEST_F(ManagerTracks, TheButtonAsksForASoundFile) {
    OpenGarden({1});
    Dialogs.Answer = MakeSound(u"song.mp3"_s);
    PressDots(1);
    EXPECT_EQ(1, Dialogs.Count);
    EXPECT_TRUE(Dialogs.Filters.startsWith(u"All Sound Files|"_s)) << Dialogs.Filters.toStdString();
    EXPECT_EQ((Sounds / u"song.mp3"_s).toStdString(), File(1));
    Dialogs.Answer.clear();
    PressDots(1);
    EXPECT_EQ(2, Dialogs.Count);
    EXPECT_EQ((Sounds / u"song.mp3"_s).toStdString(), File(1)) << "a cancel leaves the cell";
}

TEST_F(ManagerTracks, APathIsTyped) {
    OpenGarden({1});
    Put(Tracks(), 0, TrackList::ColFile, u"/music/a.wav"_s);
    EXPECT_EQ("1: 1,1,,,,/music/a.wav", TrackCells());
    Begin(Tracks(), 1, TrackList::ColFile, u"/music/b.wav"_s);
    Name().setFocus();
    EXPECT_EQ("/music/b.wav", File(1)) << "typing is kept when another control is chosen";
    Begin(Tracks(), 2, TrackList::ColFile, u"x"_s);
    QTest::keyClick(&Editor(Tracks()), Qt::Key_Escape);
    EXPECT_EQ("", File(2));
}

TEST_F(ManagerTracks, SoundFilesAreDroppedOnARow) {
    OpenGarden({1});
    SetTrack(2, {u"1"_s, u"1"_s, {}, {}, {}, u"kept.wav"_s});
    EXPECT_TRUE(Drop({Sounds / u"A.WAV"_s, Sounds / u"note.txt"_s, Sounds / u"b.mp3"_s}, 1));
    EXPECT_EQ((Sounds / u"A.WAV"_s).toStdString(), File(1));
    EXPECT_EQ("kept.wav", File(2));
    EXPECT_EQ((Sounds / u"b.mp3"_s).toStdString(), File(3)) << "in the next free row";
    EXPECT_TRUE(Drop({Sounds / u"c.mp3"_s}, 2));
    EXPECT_EQ((Sounds / u"c.mp3"_s).toStdString(), File(2)) << "a row takes what it is given";
    EXPECT_FALSE(Drop({Sounds / u"note.txt"_s}, 0));
    EXPECT_FALSE(Drop({}, 0));
    EXPECT_EQ("", File(0));
}

TEST_F(ManagerTracks, DeleteEmptiesTheSelectedRowsAndTheOthersKeepTheirNumbers) {
    OpenGarden({1});
    for (int Row = 0; Row < 4; ++Row)
        SetTrack(Row, {u"1"_s, u"1"_s, u"True"_s, {}, {}, u"%1.wav"_s.arg(Row)});
    Pick(Tracks(), {1, 2});
    Tracks().setFocus();
    QTest::keyClick(&Tracks(), Qt::Key_Delete);
    EXPECT_EQ("1: 1,1,True,,,0.wav|4: 1,1,True,,,3.wav", TrackCells());
}

TEST_F(ManagerTracks, TypingANumberSelectsItAndNotTheFirstThatBeginsSo) {
    AddAlbumSlides(QStringList(25, u"x"_s));
    OpenNew();
    Push("cmdMoveRightAll");
    const auto Typed = [&](const char* Keys) {
        Type(Keys);
        KeyReturn();
        return Tracks().TextMatrix(0, TrackList::ColStart).toStdString();
    };
    ASSERT_TRUE(Tracks().EditCell(0, TrackList::ColStart));
    EXPECT_EQ("1", Typed("1"));
    ASSERT_TRUE(Tracks().EditCell(0, TrackList::ColStart));
    EXPECT_EQ("12", Typed("12"));
    ASSERT_TRUE(Tracks().EditCell(0, TrackList::ColStart));
    EXPECT_EQ("2", Typed("2"));
}

TEST_F(ManagerTracks, TypingANumberCountsInTheOpenListToo) {
    AddAlbumSlides(QStringList(25, u"x"_s));
    OpenNew();
    Push("cmdMoveRightAll");
    ASSERT_TRUE(Tracks().EditCell(0, TrackList::ColEnd));
    auto* Box = Tracks().findChild<QComboBox*>();
    Box->setCurrentIndex(0);
    Box->showPopup();
    QTest::keyClicks(Box->view(), u"1"_s);
    QTest::keyClick(Box->view(), Qt::Key_Return);
    EXPECT_EQ("1", Tracks().TextMatrix(0, TrackList::ColEnd).toStdString());
}

TEST_F(ManagerTracks, PlacesAreProposedForAFileThatIsChosenTypedOrDropped) {
    OpenGarden({1, 2, 3, 4, 5});
    Dialogs.Answer = MakeSound(u"song.mp3"_s);
    PressDots(0);
    EXPECT_EQ("1: 1,5,,,," + File(0), TrackCells());
    SetTrack(0, {u"1"_s, u"2"_s});
    Put(Tracks(), 1, TrackList::ColFile, u"/music/a.wav"_s);
    EXPECT_EQ("3-5", Places(1)) << "behind the last";
    EXPECT_TRUE(Drop({Sounds / u"b.mp3"_s}, 2));
    EXPECT_EQ("-", Places(2)) << "no slides are left";
    SetTrack(3, {u"2"_s});
    EXPECT_TRUE(Drop({Sounds / u"b.mp3"_s}, 3));
    EXPECT_EQ("2-", Places(3)) << "what somebody has given stays";
}

}  // namespace
}  // namespace neb
