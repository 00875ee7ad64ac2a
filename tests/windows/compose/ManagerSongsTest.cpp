// The songs of the slide show manager: what they are called, heard, and the slides they stay on.
#include <QHeaderView>

#include "ManagerRig.h"
#include "harness/SoundFiles.h"
#include "sound/devices/ClockedSound.h"
#include "sound/workers/SoundReading.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

using namespace harness;

class ManagerSongs : public ManagerRig {
  protected:
    ManagerSongs() { TheServices().Sound = &Devices; }
    ~ManagerSongs() override {
        const LettingGo Answers;
        for (const auto& Each : LoadedForms()) Each->Unload();
        TheServices().Sound = OthersSound;
    }
    std::string File(int Row) { return Tracks().TextMatrix(Row, TrackList::ColFile).toStdString(); }
    std::string Song(int Row) { return Tracks().TextMatrix(Row, TrackList::ColSong).toStdString(); }
    std::string Button(int Row) {
        return Tracks().TextMatrix(Row, TrackList::ColPlay).toStdString();
    }
    std::string Places(int Row) {
        return (Tracks().TextMatrix(Row, TrackList::ColStart) + u'-' +
                Tracks().TextMatrix(Row, TrackList::ColEnd))
            .toStdString();
    }
    void Choose(int Row) {
        ClickCell(Tracks(), Row, TrackList::ColFile);
        Tracks().ChooseFile(Row);
    }
    static QString RealSong() {
        return QStringLiteral(NEB_SOURCE_DIR) + u"/tests/data/sound/cover.mp3"_s;
    }
    // A sound that can be played, of so many seconds.
    QString MakeTone(const QString& Name, double Seconds) {
        WriteFile(Sounds / Name, WaveBytes(Tone(Seconds, 8000), 8000));
        return Sounds / Name;
    }
    // "Run a.wav", of what the player was asked last.
    std::string Heard() {
        for (auto Each = Events.rbegin(); Each != Events.rend(); ++Each) {
            if (Each->What == SoundEvent::Kind::Run) return "Run " + Name(*Each);
            if (Each->What == SoundEvent::Kind::Released) return "Released " + Name(*Each);
        }
        return "";
    }
    static std::string Name(const SoundEvent& Event) {
        return GetFileName(Event.Path).toStdString();
    }
    bool Comes(const std::string& What) {
        return QTest::qWaitFor([&] { return Heard() == What; }, 3000);
    }

    SoundDevices* const OthersSound = TheServices().Sound;
    std::vector<SoundEvent> Events;
    ClockedSoundDevices Devices{*TheServices().Time, [](const QString&) { return 60.0; },
                                [this](const SoundEvent& Event) { Events.push_back(Event); }};
};

TEST_F(ManagerSongs, ASongIsHeardByItsButtonAndStopped) {
    OpenGarden({1, 2});
    SetTrack(1, {u"1"_s, u"2"_s, {}, {}, {}, MakeTone(u"a.wav"_s, 0.2)});
    Tracks().ShowTracks(Tracks().Tracks());
    EXPECT_EQ("", Button(0)) << "there is nothing to hear";
    EXPECT_EQ("Play", Button(1));
    ClickCell(Tracks(), 1, TrackList::ColPlay);
    EXPECT_EQ("Stop", Button(1));
    EXPECT_TRUE(Comes("Run a.wav"));
    ClickCell(Tracks(), 1, TrackList::ColPlay);
    EXPECT_EQ("Released a.wav", Heard());
    EXPECT_EQ("Play", Button(1));
}

TEST_F(ManagerSongs, ASongIsHeardByTheKeyboard) {
    OpenGarden({1, 2});
    SetTrack(0, {u"1"_s, u"2"_s, {}, {}, {}, MakeTone(u"a.wav"_s, 0.2)});
    Tracks().setFocus();
    Tracks().setCurrentIndex(Tracks().model()->index(0, TrackList::ColFile));
    QTest::keyClick(&Tracks(), Qt::Key_Space, Qt::ControlModifier);
    EXPECT_TRUE(Comes("Run a.wav"));
    QTest::keyClick(&Tracks(), Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ("Released a.wav", Heard());
    Tracks().setCurrentIndex(Tracks().model()->index(0, TrackList::ColPlay));
    QTest::keyClick(&Tracks(), Qt::Key_Space);
    EXPECT_TRUE(Comes("Run a.wav"));
}

TEST_F(ManagerSongs, ASongStopsAtAnotherRowAndWithTheWindow) {
    OpenGarden({1, 2});
    SetTrack(0, {u"1"_s, u"1"_s, {}, {}, {}, MakeTone(u"a.wav"_s, 0.2)});
    SetTrack(1, {u"2"_s, u"2"_s, {}, {}, {}, MakeTone(u"b.wav"_s, 0.2)});
    Tracks().ShowTracks(Tracks().Tracks());
    ClickCell(Tracks(), 0, TrackList::ColPlay);
    EXPECT_TRUE(Comes("Run a.wav"));
    ClickCell(Tracks(), 1, TrackList::ColRepeat);
    EXPECT_EQ("Released a.wav", Heard());
    ClickCell(Tracks(), 1, TrackList::ColPlay);
    EXPECT_TRUE(Comes("Run b.wav"));
    ExpectAsk();
    EXPECT_TRUE(W->Unload());
    EXPECT_EQ("Released b.wav", Heard());
}

TEST_F(ManagerSongs, ASongStopsWhereAModalWindowComesUpAsAShowIs) {
    OpenGarden({1, 2});
    SetTrack(0, {u"1"_s, u"2"_s, {}, {}, {}, MakeTone(u"a.wav"_s, 0.2)});
    Tracks().ShowTracks(Tracks().Tracks());
    ClickCell(Tracks(), 0, TrackList::ColPlay);
    EXPECT_TRUE(Comes("Run a.wav"));
    QDialog Over(W);
    Over.setModal(true);
    Over.show();
    EXPECT_TRUE(Comes("Released a.wav"));
    EXPECT_EQ("Play", Button(0));
}

TEST_F(ManagerSongs, ASongThatCannotBeHeardIsPlayedNoLonger) {
    OpenGarden({1, 2});
    SetTrack(0, {u"1"_s, u"1"_s, {}, {}, {}, Sounds / u"none.wav"_s});
    Tracks().ShowTracks(Tracks().Tracks());
    ClickCell(Tracks(), 0, TrackList::ColPlay);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Button(0) == "Play"; }, 3000));
    EXPECT_EQ("", Heard());
}

TEST_F(ManagerSongs, AnIncompleteRowIsToldAtSaveAndNothingIsLost) {
    const std::int32_t ShowID = OpenGarden({1, 2, 3});
    const std::string Before = Stored(ShowID);
    SetTrack(1, {u"1"_s, {}, {}, {}, {}, MakeSound(u"a.mp3"_s)});
    Boxes.Expect(
        u"Sound track 2 lacks a last slide. Complete its row, or empty it with the Del "
        "key."_s,
        u"Incomplete Sound Track"_s, BoxIcon::Information, BoxAnswer::Ok);
    Push("cmdSave");
    EXPECT_TRUE(W->IsLoaded());
    EXPECT_EQ((Sounds / u"a.mp3"_s).toStdString(), File(1));
    EXPECT_EQ(Before, Stored(ShowID));
    SetTrack(1, {u"1"_s, u"3"_s});
    SaveWell();
    EXPECT_EQ("2: 1,3,False,False,False,00000001_2.mp3", TrackCells());
}

TEST_F(ManagerSongs, ASongKeepsItsNameWhenItIsSaved) {
    OpenGarden({1, 2, 3});
    Dialogs.Answer = MakeSound(u"Moonlight.mp3"_s);
    Choose(0);
    EXPECT_EQ("Moonlight.mp3", Song(0));
    SaveWell();
    EXPECT_EQ("00000001_1.mp3", File(0));
    EXPECT_TRUE(QTest::qWaitFor([&] { return Song(0) == "Moonlight.mp3"; }, 3000)) << Song(0);
}

TEST_F(ManagerSongs, ASongWithTagsIsCalledByThem) {
    OpenGarden({1, 2, 3});
    Dialogs.Answer = Sounds / u"x.mp3"_s;
    WriteFile(Dialogs.Answer, ReadFile(RealSong()));
    Choose(0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Song(0) == "Band - Song"; }, 3000)) << Song(0);
    SaveWell();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Song(0) == "Band - Song"; }, 3000)) << Song(0);
}

TEST_F(ManagerSongs, RowsAreNumbered) {
    OpenMgr(0);
    EXPECT_EQ("1", Tracks().TextMatrix(0, TrackList::ColNumber).toStdString());
    EXPECT_EQ("99", Tracks().TextMatrix(98, TrackList::ColNumber).toStdString());
    EXPECT_EQ(0, Tracks().horizontalHeader()->visualIndex(TrackList::ColNumber));
}

TEST_F(ManagerSongs, TheDialogOpensOnTheFolderOfTheLastSong) {
    OpenGarden({1});
    Dialogs.Answer = MakeSound(u"a.mp3"_s);
    Choose(0);
    OpenMgr(AlbumID);
    Choose(0);
    EXPECT_EQ(Sounds.Path().toStdString(), Dialogs.StartDir.toStdString());
}

TEST_F(ManagerSongs, TracksStayOnTheirSlides) {
    OpenGarden({1, 2, 3, 4});
    SetTrack(0, {u"1"_s, u"2"_s, {}, {}, {}, u"a.mp3"_s});
    SetTrack(1, {u"3"_s, u"4"_s, {}, {}, {}, u"b.mp3"_s});
    Pick(Right(), {3});
    Push("cmdMoveUp");
    Push("cmdMoveUp");
    EXPECT_EQ("a|d|b|c", Captions(Right()));
    EXPECT_EQ("1-3 4-4", Places(0) + " " + Places(1));
    Pick(Right(), {0});
    Push("cmdMoveLeftOne");
    EXPECT_EQ("1-2 3-3", Places(0) + " " + Places(1)) << "the first has left";
    Put(Right(), 2, ColPlace, u"1"_s);
    EXPECT_EQ("2-3 1-1", Places(0) + " " + Places(1)) << "a place was typed";
}

TEST_F(ManagerSongs, TracksStayOnTheirSlidesWhenAnotherWindowDeletesOne) {
    const std::int32_t ShowID = OpenGarden({1, 2, 3, 4});
    SetTrack(0, {u"2"_s, u"3"_s, {}, {}, {}, MakeSound(u"a.mp3"_s)});
    SaveWell();
    Album().DeleteSlide(1, Engine);
    Tell(u"Album"_s, u"Delete Slides"_s, {AlbumID, 1});
    EXPECT_EQ("1-2", Places(0));
    EXPECT_TRUE(W->Unload()) << "which is no change of the show";
    OpenMgr(AlbumID, ShowID);
    EXPECT_EQ("1-2", Places(0)) << "a stored place of a slide that has gone";
}

TEST_F(ManagerSongs, FitAllSpreadsTheSlidesOverTheSongs) {
    OpenGarden({1, 2, 3, 4, 5});
    for (int Row : {0, 2}) {
        const QString Path = Sounds / u"%1.wav"_s.arg(Row);
        WriteFile(Path, WaveBytes(Tone(Row == 0 ? 0.3 : 0.2, 8000), 8000));
        SetTrack(Row, {{}, {}, {}, {}, {}, Path});
    }
    Push("cmdFitAll");
    EXPECT_EQ("1-3 4-5", Places(0) + " " + Places(2));
    EXPECT_EQ("True", Tracks().TextMatrix(2, TrackList::ColFitToSong).toStdString());
    SaveWell();
    EXPECT_EQ("1: 1,3,False,True,False,00000001_1.wav|3: 4,5,False,True,False,00000001_3.wav",
              TrackCells());
}

TEST_F(ManagerSongs, FitAllNamesASongThatCannotBeMeasured) {
    OpenGarden({1, 2});
    SetTrack(1, {u"1"_s, {}, {}, {}, {}, Sounds / u"none.wav"_s});
    const std::string Before = TrackCells();
    QString Why;
    try {
        OpenSound(Sounds / u"none.wav"_s);
    } catch (const Fault& Problem) {
        Why = Problem.Text();
    }
    Boxes.Expect(u"Sound track 2 cannot be measured.\n"_s + Why, u"Fit All"_s, BoxIcon::Information,
                 BoxAnswer::Ok);
    Push("cmdFitAll");
    EXPECT_EQ(Before, TrackCells());
}

TEST_F(ManagerSongs, FitAllIsRefusedInAManualShowBeforeAnySongIsRead) {
    OpenGarden({1, 2});
    SetTrack(0, {{}, {}, {}, {}, {}, Sounds / u"none.wav"_s});
    Combo("cboProgressionMethod").setCurrentIndex(1);
    Boxes.Expect(u"You cannot select both Fit To Song and Manual Progression."_s,
                 u"Invalid Option Combination"_s, BoxIcon::Information, BoxAnswer::Ok);
    Push("cmdFitAll");
}

}  // namespace
}  // namespace neb
