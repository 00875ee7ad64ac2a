// A composed show is saved, saved as another, deleted and played through the window.
#include "ManagerRig.h"
#include "controls/fields/ToolBar.h"
#include "windows/show/frmPreferences.h"

namespace neb {
namespace {

using namespace harness;

class ManagerSave : public ManagerRig {
  protected:
    void Tool(const char* Name) {
        QAction* Found = In<ToolBar>(*W, "abrMenu").Tool(QString::fromLatin1(Name));
        ASSERT_TRUE(Found) << Name;
        Found->trigger();
    }
    // A save that is refused: the window and the store stay as they are.
    void ExpectRefused(const QString& Text, const QString& Title) {
        const std::string Before = Lists() + TrackCells() + Stored(1);
        Boxes.Expect(Text, Title, Title.isEmpty() ? BoxIcon::Plain : BoxIcon::Information,
                     BoxAnswer::Ok);
        Push("cmdSave");
        EXPECT_EQ(Before, Lists() + TrackCells() + Stored(1));
    }
    static void FailCopies(const QString& Message) {
        SetHostWatcher([Message](HostStep Step, const QString& Path, qint64&) {
            if (Step == HostStep::Write && Path.contains(u"SoundTracks")) throw Fault(Message);
        });
    }
};

const QString BadSequence = u"Invalid Slide Sequence"_s;

TEST_F(ManagerSave, ANewShowIsStoredToldOfAndStoodOn) {
    OpenGarden({});
    Push("cmdNew");
    Pick(Left(), {1, 3});
    Push("cmdMoveRightOne");
    PutCaption(1, u"Rose"_s);
    Name().setText(u"Second"_s);
    Combo("cboProgressionMethod").setCurrentIndex(1);
    SetTrack(1, {u"1"_s, u"2"_s, u"True"_s, {}, {}, MakeSound(u"song.mp3"_s)});
    SaveWell();
    EXPECT_EQ("Second 1 1:2[] 2:4[Rose] | 2:1-2 00000002_2.mp3", Stored(2));
    EXPECT_EQ("00000002_2.mp3=song.mp3", TrackFiles());
    EXPECT_EQ("Slide Show Insert 1 2", Heard());
    EXPECT_EQ(2, Chosen());
    EXPECT_EQ("<NEW SLIDE SHOW>|Second|Walk", Entries("cboSlideShows"));
    EXPECT_EQ("a|c|e / b|Rose", Lists());
    EXPECT_EQ("2: 1,2,True,False,False,00000002_2.mp3", TrackCells());
}

TEST_F(ManagerSave, AChangedShowTakesThePlaceOfTheStoredOne) {
    const std::int32_t Walk = OpenGarden({3, 1});
    Push("cmdMoveRightAll");
    Pick(Right(), {1});
    Push("cmdMoveLeftOne");
    Name().setText(u"WALK"_s);
    SaveWell();
    EXPECT_EQ("WALK 0 1:3[] 2:2[] 3:4[] 4:5[]", Stored(Walk));
    EXPECT_EQ("Slide Show Update 1 1", Heard());
    EXPECT_EQ("<NEW SLIDE SHOW>|WALK", Entries("cboSlideShows"));
    EXPECT_EQ("a / c|b|d|e", Lists());
}

TEST_F(ManagerSave, ACaptionGoesBackToTheSlidesOwnAndAnEmptiedOneStaysEmpty) {
    const std::int32_t Walk = OpenGarden({1, 2});
    PutCaption(0, u"Rose"_s);
    PutCaption(1, QString());
    SaveWell();
    EXPECT_EQ("Walk 0 1:1[Rose] 2:2[ ]", Stored(Walk));
    PutCaption(0, u"a"_s);
    SaveWell();
    EXPECT_EQ("Walk 0 1:1[] 2:2[ ]", Stored(Walk));
}

TEST_F(ManagerSave, AnOpenEditIsSavedWithTheRest) {
    const std::int32_t Walk = OpenGarden({1, 2});
    Begin(Right(), 0, clsImageBuffer::ColText, u"Rose"_s);
    ExpectSaved();
    QTest::keyClick(&Editor(Right()), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ("Walk 0 1:1[Rose] 2:2[]", Stored(Walk));
    Begin(Right(), 1, ColPlace, u"1"_s);
    ExpectSaved();
    QTest::keyClick(&Editor(Right()), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ("Walk 0 1:2[] 2:1[Rose]", Stored(Walk));
    SetTrack(0, {u"1"_s, u"1"_s});
    Begin(Tracks(), 0, TrackList::ColFile, MakeSound(u"a.wav"_s));
    ExpectSaved();
    QTest::keyClick(&Editor(Tracks()), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ("00000001_1.wav=a.wav", TrackFiles());
}

TEST_F(ManagerSave, EachCheckIsToldInItsBoxAndChangesNothing) {
    OpenMgr(0);
    ExpectRefused(u"You must first select an album to save the slide show in."_s, {});
    W->Unload();
    OpenGarden({1, 2, 3});
    Name().clear();
    ExpectRefused(u"You have to enter a name for the slide show."_s, {});
    ExpectAsk();
    Push("cmdNew");
    Name().setText(u"x"_s);
    ExpectRefused(u"You must select atleast 1 slide for the Slide Show."_s, {});
    Push("cmdMoveRightAll");
    const struct {
        QStringList Track;
        QString Text, Title;
    } Cases[] = {
        {{u"-1"_s, u"2"_s, {}, {}, {}, u"a.wav"_s},
         u"The Starting Slide # must be >=1."_s,
         BadSequence},
        {{u"1"_s, u"6"_s, {}, {}, {}, u"a.wav"_s},
         u"The Ending Slide # must be <= the total number of slides in the show."_s,
         BadSequence},
        {{u"3"_s, u"2"_s, {}, {}, {}, u"a.wav"_s},
         u"The Ending Slide # must be >= the Starting Slide #."_s,
         BadSequence},
        {{u"1"_s, u"2"_s, {}, u"True"_s, {}, u"a.wav"_s},
         u"You cannot select both Fit To Song and Manual Progression."_s,
         u"Invalid Option Combination"_s},
        {{u"1"_s, u"2"_s, {}, u"False"_s, u"True"_s, u"a.wav"_s},
         u"You cannot select both Fade and Manual Progression."_s,
         u"Invalid Option Combination"_s},
    };
    Combo("cboProgressionMethod").setCurrentIndex(1);
    for (const auto& Each : Cases) {
        SetTrack(0, Each.Track);
        ExpectRefused(Each.Text, Each.Title);
    }
    SetTrack(0, {u"1"_s, u"2"_s, {}, {}, QString(), u"a.wav"_s});
    SetTrack(5, {u"2"_s, u"3"_s, {}, {}, {}, u"b.wav"_s});
    ExpectRefused(u"A slide cannot use more than 1 sound track."_s, BadSequence);
    SetTrack(5, {u"3"_s});
    Name().setText(u"wALK"_s);
    ExpectRefused(u"A Slide Show with this name already exists in this Album."_s,
                  u"Slide Show Name Already In Use"_s);
    EXPECT_EQ("", Heard());
}

TEST_F(ManagerSave, WhatWasDeletedMeanwhileIsTold) {
    const std::int32_t Walk = OpenGarden({1, 2, 3});
    AddShow(u"Other"_s, {1});
    Album().DeleteSlideShow(Walk, Engine);
    ExpectRefused(u"The Slide Show you are editing no longer appears to exist."_s,
                  u"Delete Detected"_s);
    Engine.DeleteAlbum(AlbumID);
    Boxes.Expect(u"The current Album could not be found."_s, u"Delete Detected"_s,
                 BoxIcon::Information, BoxAnswer::Ok);
    Push("cmdSave");
    EXPECT_EQ("d|e / a|b|c", Lists());
}

TEST_F(ManagerSave, TheNameIsCleanedEvenWhenTheSaveIsRefused) {
    OpenGarden({1});
    Push("cmdNew");
    Name().setText(u"\"x\""_s);
    Boxes.Expect(u"You must select atleast 1 slide for the Slide Show."_s);
    Push("cmdSave");
    EXPECT_EQ(ConvertQuotes(u"\"x\""_s), Name().text());
}

TEST_F(ManagerSave, ARowWithoutAnEndIsToldAndIsSavedWhenItIsEmptied) {
    const std::int32_t Walk = OpenGarden({1, 2});
    SetTrack(0, {u"1"_s, {}, {}, {}, {}, MakeSound(u"a.wav"_s)});
    SetTrack(1, {u"2"_s, u"2"_s, {}, {}, {}, MakeSound(u"b.wav"_s)});
    Boxes.Expect(
        u"Sound track 1 lacks a last slide. Complete its row, or empty it with the Del "
        "key."_s,
        u"Incomplete Sound Track"_s, BoxIcon::Information, BoxAnswer::Ok);
    Push("cmdSave");
    EXPECT_EQ("Walk 0 1:1[] 2:2[]", Stored(Walk));
    Pick(Tracks(), {0});
    Tracks().setFocus();
    QTest::keyClick(&Tracks(), Qt::Key_Delete);
    SaveWell();
    EXPECT_EQ("Walk 0 1:1[] 2:2[] | 2:2-2 00000001_2.wav", Stored(Walk));
    EXPECT_EQ("2: 2,2,False,False,False,00000001_2.wav", TrackCells());
}

TEST_F(ManagerSave, ATrackThatIsTakenOutLosesItsFileAndOneThatMovesKeepsIt) {
    const std::int32_t Walk = OpenGarden({1, 2});
    SetTrack(0, {u"1"_s, u"1"_s, {}, {}, {}, MakeSound(u"a.wav"_s)});
    SetTrack(1, {u"2"_s, u"2"_s, {}, {}, {}, MakeSound(u"b.wav"_s)});
    SaveWell();
    EXPECT_EQ("00000001_1.wav=a.wav 00000001_2.wav=b.wav", TrackFiles());
    SetTrack(0, {{}, {}, {}, {}, {}, QString()});
    SetTrack(2, {u"2"_s, u"2"_s, {}, {}, {}, u"00000001_2.wav"_s});
    SetTrack(1, {{}, {}, {}, {}, {}, QString()});
    Tracks().SetTextMatrix(0, TrackList::ColStart, {});
    SaveWell();
    EXPECT_EQ("00000001_2.wav=b.wav", TrackFiles());
    EXPECT_EQ("Walk 0 1:1[] 2:2[] | 3:2-2 00000001_2.wav", Stored(Walk));
}

TEST_F(ManagerSave, SaveAsNewWantsAnotherNameAndKeepsTheOldShow) {
    const std::int32_t Walk = OpenGarden({1, 2});
    SetTrack(0, {u"1"_s, u"1"_s, {}, {}, {}, MakeSound(u"a.wav"_s)});
    SaveWell();
    PutCaption(0, u"Rose"_s);
    Boxes.Expect(u"A Slide Show with this name already exists in this Album."_s);
    Tool("mnuSlideShowSaveAs");
    EXPECT_EQ(Walk, Chosen()) << "the show that is edited stays the chosen one";
    EXPECT_EQ("c|d|e / Rose|b", Lists()) << "what stands in the window stays";
    Name().setText(u"Second"_s);
    ExpectSaved();
    Tool("mnuSlideShowSaveAs");
    EXPECT_EQ("Walk 0 1:1[] 2:2[] | 1:1-1 00000001_1.wav", Stored(Walk));
    EXPECT_EQ("Second 0 1:1[Rose] 2:2[] | 1:1-1 00000002_1.wav", Stored(2));
    EXPECT_EQ("00000001_1.wav=a.wav 00000002_1.wav=a.wav", TrackFiles());
    EXPECT_EQ(2, Chosen());
    EXPECT_EQ("1: 1,1,False,False,False,00000002_1.wav", TrackCells());
}

TEST_F(ManagerSave, AShowThatWasSavedAsNewKeepsItsSoundsWhenTheOtherIsDeleted) {
    const std::int32_t Walk = OpenGarden({1, 2});
    SetTrack(0, {u"1"_s, u"1"_s, {}, {}, {}, MakeSound(u"a.wav"_s)});
    SaveWell();
    Name().setText(u"Second"_s);
    ExpectSaved();
    Tool("mnuSlideShowSaveAs");
    Choose("cboSlideShows", Walk);
    Boxes.Expect(u"Are you sure you want to delete the selected slide show?"_s, BoxAnswer::Yes);
    Boxes.Expect(u"Slide Show Deleted Successfully."_s);
    Push("cmdDelete");
    EXPECT_EQ("00000002_1.wav=a.wav", TrackFiles());
    EXPECT_EQ("Second 0 1:1[] 2:2[] | 1:1-1 00000002_1.wav", Stored(2));
}

TEST_F(ManagerSave, ASaveAsNewThatFailsLeavesTheEditedShowChosenAndTheNextSaveIsOfIt) {
    const std::int32_t Walk = OpenGarden({1, 2});
    SetTrack(0, {u"1"_s, u"1"_s, {}, {}, {}, MakeSound(u"a.wav"_s)});
    SaveWell();
    const QString NameBefore = Name().text();
    Name().setText(u"Second"_s);
    FailCopies(u"The disk is full."_s);
    Boxes.Expect(u"The disk is full."_s);
    QTest::keyClick(W, Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    SetHostWatcher({});
    EXPECT_EQ(Walk, Chosen());
    EXPECT_EQ("none", Stored(2));
    Name().setText(NameBefore);
    PutCaption(1, u"Rose"_s);
    SaveWell();
    EXPECT_EQ("Walk 0 1:1[] 2:2[Rose] | 1:1-1 00000001_1.wav", Stored(Walk));
    EXPECT_EQ("<NEW SLIDE SHOW>|Walk", Entries("cboSlideShows"));
}

// As earlier versions saved them.
TEST_F(ManagerSave, ShowsThatShareAFilePartWhenOneIsSaved) {
    AddAlbumSlides({u"a"_s, u"b"_s});
    const std::int32_t Walk = AddShow(u"Walk"_s, {1}), Run = AddShow(u"Run"_s, {1, 2});
    MakeDirs(TracksFolder());
    WriteFile(TracksFolder() + u"00000001_1.wav"_s, "a");
    AddTrack(Walk, 1, 1, 1, u"00000001_1.wav"_s);
    AddTrack(Run, 1, 1, 2, u"00000001_1.wav"_s);
    OpenMgr(AlbumID, Run);
    PutCaption(0, u"Rose"_s);
    SaveWell();
    EXPECT_EQ("Run 0 1:1[Rose] 2:2[] | 1:1-2 00000002_1.wav", Stored(Run));
    Choose("cboSlideShows", Walk);
    SetTrack(0, {{}, {}, {}, {}, {}, QString()});
    SaveWell();
    EXPECT_EQ("00000002_1.wav=a", TrackFiles()) << "nobody plays the other one any more";
}

TEST_F(ManagerSave, WantOfMemoryLeavesTheShowTheWindowAndWhatItHearsUsable) {
    OpenGarden({1, 2});
    SetTrack(0, {u"1"_s, u"1"_s, {}, {}, {}, MakeSound(u"a.wav"_s)});
    SetHostWatcher([&](HostStep Step, const QString& Path, qint64&) {
        if (Step != HostStep::Write || !Path.contains(u"SoundTracks")) return;
        Album().DeleteSlide(5, Engine);
        Tell(u"Album"_s, u"Delete Slides"_s, {AlbumID, 5});
        throw std::bad_alloc();
    });
    Boxes.Expect(u"There is not enough memory to do this."_s, u"Operation Failed"_s);
    Push("cmdSave");
    SetHostWatcher({});
    EXPECT_EQ("c|d / a|b", Lists()) << "what happened meanwhile is followed";
    EXPECT_EQ("Walk 0 1:1[] 2:2[]", Stored(1));
    EXPECT_EQ("", TrackFiles());
    EXPECT_EQ(Pointer::Default, ScreenPointer());
    SaveWell();
    EXPECT_EQ("Walk 0 1:1[] 2:2[] | 1:1-1 00000001_1.wav", Stored(1));
}

TEST_F(ManagerSave, ASoundFileThatHasVanishedLeavesAllInTheWindowAndASecondSaveGoesOn) {
    OpenGarden({1});
    Push("cmdNew");
    Push("cmdMoveRightAll");
    PutCaption(4, u"Rose"_s);
    Name().setText(u"Second"_s);
    SetTrack(0, {u"1"_s, u"2"_s, {}, {}, {}, MakeSound(u"a.wav"_s)});
    SetTrack(1, {u"3"_s, u"4"_s, u"True"_s, {}, {}, Sounds / u"gone.mp3"_s});
    Boxes.Expect(u"The file cannot be read: No such file or directory.\n"_s +
                 Sounds / u"gone.mp3"_s);
    Push("cmdSave");
    EXPECT_EQ(" / a|b|c|d|Rose", Lists());
    EXPECT_EQ("Second", Name().text().toStdString());
    EXPECT_EQ(0, Combo("cboSlideShows").currentIndex());
    EXPECT_EQ("none", Stored(2));
    EXPECT_EQ("", Heard());
    EXPECT_EQ("1: 1,2,,,," + (Sounds / u"a.wav"_s).toStdString() + "|2: 3,4,True,,," +
                  (Sounds / u"gone.mp3"_s).toStdString(),
              TrackCells());
    EXPECT_EQ("", TrackFiles());
    MakeSound(u"gone.mp3"_s);
    SaveWell();
    EXPECT_EQ("Slide Show Insert 1 2", Heard());
    EXPECT_EQ(
        "Second 0 1:1[] 2:2[] 3:3[] 4:4[] 5:5[Rose] | 1:1-2 00000002_1.wav | 2:3-4 "
        "00000002_2.mp3",
        Stored(2));
    EXPECT_EQ("00000002_1.wav=a.wav 00000002_2.mp3=gone.mp3", TrackFiles());
}

TEST_F(ManagerSave, AFullDiskDuringTheCopyIsToldAndNothingInTheWindowIsLost) {
    OpenGarden({1, 2});
    PutCaption(0, u"Rose"_s);
    SetTrack(0, {u"1"_s, u"2"_s, {}, {}, {}, MakeSound(u"a.wav"_s)});
    FailCopies(u"The disk is full."_s);
    Boxes.Expect(u"The disk is full."_s);
    Push("cmdSave");
    SetHostWatcher({});
    EXPECT_EQ("c|d|e / Rose|b", Lists());
    EXPECT_EQ(1, Chosen());
    EXPECT_EQ("1: 1,2,,,," + (Sounds / u"a.wav"_s).toStdString(), TrackCells());
    EXPECT_EQ("", TrackFiles());
    EXPECT_EQ("Walk 0 1:1[] 2:2[]", Stored(1)) << "as it was";
    EXPECT_EQ(Pointer::Default, ScreenPointer());
    SaveWell();
    EXPECT_EQ("Walk 0 1:1[Rose] 2:2[] | 1:1-2 00000001_1.wav", Stored(1));
}

TEST_F(ManagerSave, TheWindowStaysWhileAFileIsCopied) {
    OpenGarden({1, 2});
    SetTrack(0, {u"1"_s, u"2"_s, {}, {}, {}, MakeSound(u"a.wav"_s)});
    bool Refused = false;
    SetHostWatcher([&](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Write && Path.contains(u"SoundTracks")) Refused = !W->Unload();
    });
    SaveWell();
    EXPECT_TRUE(Refused);
    EXPECT_TRUE(W->IsLoaded());
}

TEST_F(ManagerSave, AFailedCopyLeavesTheStoredShowItsTracksAndTheirFiles) {
    const std::int32_t Walk = OpenGarden({1, 2});
    SetTrack(0, {u"1"_s, u"1"_s, {}, {}, {}, MakeSound(u"a.wav"_s)});
    SetTrack(1, {u"2"_s, u"2"_s, {}, {}, {}, MakeSound(u"b.wav"_s)});
    SaveWell();
    const std::string Before = Stored(Walk) + TrackFiles();
    Push("cmdMoveRightAll");
    SetTrack(0, {u"1"_s, u"1"_s, {}, {}, {}, MakeSound(u"c.wav"_s)});
    SetTrack(1, {u"2"_s, u"2"_s, {}, {}, {}, Sounds / u"gone.wav"_s});
    const std::string Composed = Lists() + TrackCells();
    Boxes.Expect(u"The file cannot be read: No such file or directory.\n"_s +
                 Sounds / u"gone.wav"_s);
    Push("cmdSave");
    EXPECT_EQ(Before, Stored(Walk) + TrackFiles());
    EXPECT_EQ(Composed, Lists() + TrackCells());
    MakeSound(u"gone.wav"_s);
    SaveWell();
    EXPECT_EQ("00000001_1.wav=c.wav 00000001_2.wav=gone.wav", TrackFiles());
}

// What another window did while a file was copied is followed, although the copy then failed.
TEST_F(ManagerSave, WhatHappenedDuringAFailedSaveIsFollowed) {
    OpenGarden({1, 2});
    SetTrack(0, {u"1"_s, u"1"_s, {}, {}, {}, MakeSound(u"a.wav"_s)});
    SetHostWatcher([&](HostStep Step, const QString& Path, qint64&) {
        if (Step != HostStep::Write || !Path.contains(u"SoundTracks")) return;
        Album().DeleteSlide(5, Engine);
        Tell(u"Album"_s, u"Delete Slides"_s, {AlbumID, 5});
        EXPECT_EQ("c|d|e / a|b", Lists());
        throw Fault(u"No."_s);
    });
    Boxes.Expect(u"No."_s);
    Push("cmdSave");
    SetHostWatcher({});
    EXPECT_EQ("c|d / a|b", Lists());
}

TEST_F(ManagerSave, OthersHearOfAShowWhenTheUserHasBeenToldAndItIsSaved) {
    OpenGarden({1, 2});
    Boxes.WhileNextIsOpen([this] { EXPECT_EQ("", Heard()); });
    ExpectSaved();
    Push("cmdSave");
    EXPECT_EQ("Slide Show Update 1 1", Heard());
}

TEST_F(ManagerSave, WhatStandsInTheRowsIsCheckedAsTheNumberItBeginsWith) {
    const std::int32_t Walk = OpenGarden({1, 2});
    SetTrack(0, {u"first"_s, u"2nd"_s, {}, {}, {}, MakeSound(u"a.wav"_s)});
    SetTrack(1, {u" "_s, u"  "_s, {}, {}, {}, u"  "_s});
    SaveWell();
    EXPECT_EQ("Walk 0 1:1[] 2:2[] | 1:0-2 00000001_1.wav", Stored(Walk));
    EXPECT_EQ("1: 0,2,False,False,False,00000001_1.wav", TrackCells());
}

TEST_F(ManagerSave, DeletingAsksAndLeavesANewShow) {
    const std::int32_t Walk = OpenGarden({3, 1});
    const auto Ask = [&](BoxAnswer Answer) {
        Boxes.Expect(u"Are you sure you want to delete the selected slide show?"_s,
                     u"Delete Confirmation"_s, BoxIcon::Question, Answer);
    };
    Ask(BoxAnswer::No);
    Push("cmdDelete");
    EXPECT_EQ("Walk 0 1:3[] 2:1[]", Stored(Walk));
    Ask(BoxAnswer::Yes);
    Boxes.Expect(u"Slide Show Deleted Successfully."_s, u"Delete Successful"_s);
    Push("cmdDelete");
    EXPECT_EQ("none", Stored(Walk));
    EXPECT_EQ("Slide Show Delete 1 1", Heard());
    EXPECT_EQ("<NEW SLIDE SHOW>", Entries("cboSlideShows"));
    EXPECT_EQ(0, Combo("cboSlideShows").currentIndex());
    EXPECT_EQ("a|b|c|d|e / ", Lists());
    Push("cmdMoveRightAll");
    ExpectAsk();
    Push("cmdDelete");
    EXPECT_EQ("a|b|c|d|e / ", Lists()) << "with no show it begins a new one";
}

TEST_F(ManagerSave, TheToolBarHasTheCommands) {
    OpenGarden({3, 1});
    Tool("mnuSlideShowNew");
    EXPECT_EQ("a|b|c|d|e / ", Lists());
    Push("cmdMoveRightAll");
    Name().setText(u"Second"_s);
    ExpectSaved();
    Tool("mnuSlideShowSave");
    EXPECT_EQ(2, Chosen());
    Boxes.Expect(u"Are you sure you want to delete the selected slide show?"_s, BoxAnswer::No);
    Tool("mnuSlideShowDelete");
    int Preferences = 0;
    WhenOpen<frmPreferences>([&](frmPreferences& Shown) {
        ++Preferences;
        Shown.Unload();
    });
    Tool("mnuSlideShowPrefs");
    EXPECT_EQ(1, Preferences);
    Tool("mnuExit");
    EXPECT_FALSE(W->IsLoaded());
}

TEST_F(ManagerSave, ViewingWantsAShow) {
    OpenMgr(0);
    const auto Ask = [&] {
        Boxes.Expect(u"You must first select a Slide Show to View."_s, u"Missing User Input"_s);
    };
    Ask();
    Tool("mnuSlideShowView");
    Choose("cboAlbum", AlbumID);
    Ask();
    Tool("mnuSlideShowView");
}

}  // namespace
}  // namespace neb
