// Sound files that two shows name: shows that were saved from one another shared theirs once.
// Whoever is saved or deleted leaves the other its sounds.
#include "ShowRig.h"

namespace neb::harness {
namespace {

class SharedSound : public ShowRig {
  protected:
    // Two shows, 1 and 2, that play the file of the first.
    SharedSound() {
        First = NewShow(4);
        First.Tracks = {NewTrack(1, 2, MakeSound(u"a.mp3"_s))};
        Save(First);
        Second = First;
        Second.SlideShowID = SaveStored(u"Second"_s);
        Second.Name = u"Second"_s;
        Stored(2).SaveSoundTrack(1, u"00000001_1.MP3"_s, 1, 2, false, false, false);
    }
    clsNEBSlideShow& Stored(std::int32_t ShowID) { return *Album().GetSlideShow(ShowID); }
    QString PathOf(const QString& Name) {
        return SoundTracksFolder(Engine.DBPath(), AlbumID) + Name;
    }
    void Delete(std::int32_t ShowID) { EXPECT_TRUE(Changes(Engine).DeleteShow(AlbumID, ShowID)); }

    ShowContent First, Second;
};

TEST_F(SharedSound, TheSecondGetsACopyOfItsOwnWhenItIsSaved) {
    Save(Second);
    EXPECT_EQ("1:1-2 00000002_1.mp3", StoredTracks(2));
    EXPECT_EQ(u"00000002_1.mp3"_s, Second.Tracks[0].SoundTrackLoc);
    EXPECT_EQ("1:1-2 00000001_1.mp3", StoredTracks(1));
    EXPECT_EQ("00000001_1.mp3=a.mp3 00000002_1.mp3=a.mp3", TrackFiles());
}

TEST_F(SharedSound, TheFirstGetsACopyOfItsOwnWhenItIsSaved) {
    Save(First);
    EXPECT_EQ("1:1-2 00000001_100.mp3", StoredTracks(1));
    EXPECT_EQ("1:1-2 00000001_1.MP3", StoredTracks(2));
    EXPECT_EQ("00000001_1.mp3=a.mp3 00000001_100.mp3=a.mp3", TrackFiles());
    Save(First);
    EXPECT_EQ("1:1-2 00000001_100.mp3", StoredTracks(1)) << "once is enough";
}

TEST_F(SharedSound, ANewSoundOfTheFirstDoesNotReplaceTheOther) {
    First.Tracks[0].SoundTrackLoc = MakeSound(u"new.mp3"_s);
    Save(First);
    EXPECT_EQ("1:1-2 00000001_100.mp3", StoredTracks(1));
    EXPECT_EQ("00000001_1.mp3=a.mp3 00000001_100.mp3=new.mp3", TrackFiles());
}

TEST_F(SharedSound, ItsOwnFileChosenByItsPathIsCopied) {
    First.Tracks[0].SoundTrackLoc = PathOf(u"00000001_1.mp3"_s);
    Save(First);
    EXPECT_EQ("1:1-2 00000001_100.mp3", StoredTracks(1));
    EXPECT_EQ("00000001_1.mp3=a.mp3 00000001_100.mp3=a.mp3", TrackFiles());
}

TEST_F(SharedSound, SeveralRowsAreServedByOneCopy) {
    Second.Tracks.push_back(NewTrack(3, 3, u"00000001_1.mp3"_s));
    Second.Tracks.push_back(NewTrack(4, 4, MakeSound(u"b.mp3"_s)));
    Save(Second);
    EXPECT_EQ("1:1-2 00000002_1.mp3|2:3-3 00000002_1.mp3|3:4-4 00000002_3.mp3", StoredTracks(2));
    EXPECT_EQ("00000001_1.mp3=a.mp3 00000002_1.mp3=a.mp3 00000002_3.mp3=b.mp3", TrackFiles());
}

TEST_F(SharedSound, ATrackThatIsTakenOutLeavesTheFile) {
    for (ShowContent* Each : {&First, &Second}) {
        const std::string Other = StoredTracks(3 - Each->SlideShowID);
        Each->Tracks.clear();
        Save(*Each);
        EXPECT_EQ("", StoredTracks(Each->SlideShowID));
        if (Each == &First) {
            EXPECT_EQ(Other, StoredTracks(2));
            EXPECT_EQ("00000001_1.mp3=a.mp3", TrackFiles());
        }
    }
    EXPECT_EQ("", TrackFiles()) << "nobody plays it any more";
}

TEST_F(SharedSound, TheDeletionOfOneLeavesItToTheOther) {
    Delete(1);
    EXPECT_EQ("00000001_1.mp3=a.mp3", TrackFiles());
    Delete(2);
    EXPECT_EQ("", TrackFiles());
}

TEST_F(SharedSound, TheDeletionOfTheSecondLeavesItToTheFirst) {
    Delete(2);
    EXPECT_EQ("00000001_1.mp3=a.mp3", TrackFiles());
    Delete(1);
    EXPECT_EQ("", TrackFiles());
}

TEST_F(SharedSound, ASlideThatNamesItByItsPathKeepsIt) {
    std::int32_t SlideID = 0;
    Album().SaveSlide(SlideID, u"s"_s, {}, PathOf(u"00000001_1.mp3"_s), false, false, Engine);
    Delete(2);
    Delete(1);
    EXPECT_EQ("00000001_1.mp3=a.mp3", TrackFiles());
}

TEST_F(SharedSound, OneThatIsMissingKeepsItsNameAndNobodyFromSaving) {
    DeleteFile(PathOf(u"00000001_1.mp3"_s));
    Save(Second);
    EXPECT_EQ("1:1-2 00000001_1.mp3", StoredTracks(2));
    First.Tracks[0].SoundTrackLoc = MakeSound(u"new.mp3"_s);
    Save(First);
    EXPECT_EQ("1:1-2 00000001_100.mp3", StoredTracks(1))
        << "the other show is not to play what was never its own";
}

TEST_F(SharedSound, ACopyThatFailsLeavesBothAsTheyWere) {
    SetHostWatcher([](HostStep Step, const QString& Path, qint64& Length) {
        if (Step == HostStep::Write && Path.contains(u"00000002_1")) Length = 1;
    });
    EXPECT_THROW((void)WriteShow(Second, Engine), Fault);
    EXPECT_EQ("1:1-2 00000001_1.MP3", StoredTracks(2));
    EXPECT_EQ("00000001_1.mp3=a.mp3", TrackFiles());
    EXPECT_EQ(u"00000001_1.mp3"_s, Second.Tracks[0].SoundTrackLoc);
}

// A change that cannot be noted is none, and its files go with it.
class UnnotedShow : public ShowRig {
  protected:
    UnnotedShow() {
        Content = NewShow(4);
        Content.Tracks = {NewTrack(1, 2, MakeSound(u"a.mp3"_s))};
        Save(Content);
    }
    ~UnnotedShow() override { Engine.Listeners.Noted = {}; }
    void FailNoting() {
        Engine.Listeners.Noted = [](const Change&) { throw std::bad_alloc(); };
    }
    std::string State(const clsDBEngine& Of) {
        QStringList All;
        for (const auto& Show : Of.GetAlbum(AlbumID)->SlideShows) {
            All << Show->SlideShowName << QString::number(Show->ProgressionMethod);
            for (const auto& Each : Show->Details) All << QString::number(Each->SlideID);
            for (const auto& Each : Show->SoundTracks) All << Each->SoundTrackLoc;
        }
        return All.join(u' ').toStdString() + " | " + TrackFiles();
    }
    void Recompose() {
        Content.Name = u"Run"_s;
        Content.ProgressionMethod = 1;
        Content.Slides.pop_back();
        Content.Tracks[0].SoundTrackLoc = MakeSound(u"new.mp3"_s);
        Content.Tracks.push_back(NewTrack(3, 3, MakeSound(u"b.mp3"_s)));
    }
    ShowContent Content;
};

TEST_F(UnnotedShow, StaysAsItWas) {
    const std::string Before = State(Engine);
    const clsNEBSlideShow* There = Album().GetSlideShow(1);
    Recompose();
    FailNoting();
    EXPECT_THROW((void)WriteShow(Content, Engine), std::bad_alloc);
    EXPECT_EQ(Before, State(Engine));
    EXPECT_EQ(There, Album().GetSlideShow(1)) << "who shows it goes on showing it";
    EXPECT_EQ(Sounds / u"new.mp3"_s, Content.Tracks[0].SoundTrackLoc);
    Engine.Listeners.Noted = {};
    Save(Content);
    EXPECT_EQ("00000001_1.mp3=new.mp3 00000001_2.mp3=b.mp3", TrackFiles());
}

TEST_F(UnnotedShow, IsNotMade) {
    const std::string Before = State(Engine);
    Recompose();
    Content.SlideShowID = 0;
    FailNoting();
    EXPECT_THROW((void)WriteShow(Content, Engine), std::bad_alloc);
    EXPECT_EQ(Before, State(Engine));
    EXPECT_EQ(0, Content.SlideShowID);
}

TEST_F(UnnotedShow, ComesBackFromTheJournalAsItWas) {
    Engine.FinalizeDB();
    Engine.KeepSession();
    const std::string Before = State(Engine);
    Recompose();
    FailNoting();
    EXPECT_THROW((void)WriteShow(Content, Engine), std::bad_alloc);
    Content.SlideShowID = 0;
    EXPECT_THROW((void)WriteShow(Content, Engine), std::bad_alloc);
    EXPECT_TRUE(Engine.IsSessionStored());
    clsDBEngine Later;
    Later.SetDBPath(Db.Path());
    Later.InitializeDB(Recovery::InMemory);
    EXPECT_GT(Later.Found().Changes, 0);
    EXPECT_EQ(Before, State(Later));
}

TEST_F(UnnotedShow, KeepsTheFilesThatItPlayedUntilItIsOnTheDisk) {
    Engine.KeepSession();
    Content.Tracks.clear();
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Write && Path.contains(u"Session.journal"))
            throw Fault(u"No space."_s, Path);
    });
    Save(Content);
    EXPECT_EQ("", StoredTracks(1));
    EXPECT_EQ("00000001_1.mp3=a.mp3", TrackFiles()) << "the records on the disk still name it";
    SetHostWatcher({});
    Save(Content);
    EXPECT_TRUE(Engine.IsSessionStored());
}

}  // namespace
}  // namespace neb::harness
