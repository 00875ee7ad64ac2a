// How a show is written: places, captions of its own, tracks and their files.
#include "ShowRig.h"
#include "db/Changes.h"
#include "db/SongNames.h"
#include "support/files/HostNames.h"

namespace neb::harness {
namespace {

using SaveShow = ShowRig;

TEST_F(SaveShow, MakesANewShow) {
    ShowContent Content = NewShow(3);
    Content.ProgressionMethod = 1;
    Save(Content);
    ASSERT_EQ(1, Content.SlideShowID);
    const clsNEBSlideShow& Show = *Album().GetSlideShow(1);
    EXPECT_EQ(u"Walk"_s, Show.SlideShowName);
    EXPECT_EQ(1, Show.ProgressionMethod);
    EXPECT_EQ("1:1[]|2:2[]|3:3[]", StoredDetails(1));
}

TEST_F(SaveShow, ReplacesTheStoredShow) {
    ShowContent Content = NewShow(3);
    Content.Tracks = {NewTrack(1, 3, MakeSound(u"a.mp3"_s))};
    Save(Content);
    std::swap(Content.Slides[0], Content.Slides[2]);
    Content.Slides.pop_back();
    Content.Name = u"Run"_s;
    Content.Tracks.clear();
    Save(Content);
    EXPECT_EQ(1u, Album().SlideShows.size());
    EXPECT_EQ(u"Run"_s, Album().GetSlideShow(1)->SlideShowName);
    EXPECT_EQ("1:3[]|2:2[]", StoredDetails(1));
    EXPECT_EQ("", StoredTracks(1));
    EXPECT_EQ("", TrackFiles());
}

TEST_F(SaveShow, KeepsOnlyCaptionsOfItsOwn) {
    ShowContent Content = NewShow(5);
    Content.Slides[1].SlideText = u"The \"top\""_s;
    Content.Slides[2].SlideText.clear();
    Content.Slides[3].SlideText = u" "_s;
    Content.Slides[4].OwnText = u"a \"b\""_s;
    Content.Slides[4].SlideText = ConvertQuotes(u"a \"b\""_s);
    Save(Content);
    const std::string Clean = ConvertQuotes(u"The \"top\""_s).toStdString();
    EXPECT_EQ("1:1[]|2:2[" + Clean + "]|3:3[ ]|4:4[ ]|5:5[]", StoredDetails(1));
    for (ShowSlide& Slide : Content.Slides) Slide.SlideText = Slide.OwnText;
    Save(Content);
    EXPECT_EQ("1:1[]|2:2[]|3:3[]|4:4[]|5:5[]", StoredDetails(1));
}

TEST_F(SaveShow, TakesAnEmptyCaptionOfAnEmptySlideAsTheSlidesOwn) {
    ShowContent Content = NewShow(1);
    Content.Slides[0].SlideText.clear();
    Content.Slides[0].OwnText.clear();
    Save(Content);
    EXPECT_EQ("1:1[]", StoredDetails(1));
}

TEST_F(SaveShow, CopiesNewSoundFilesUnderNumberedNames) {
    ShowContent Content = NewShow(9);
    Content.Tracks = {NewTrack(1, 2, MakeSound(u"a.mp3"_s)),
                      {},
                      NewTrack(3, 4, MakeSound(u"b.tar.WAV"_s)),
                      NewTrack(5, 6, MakeSound(u"noext"_s))};
    Content.Tracks[0].Repeat = true;
    Content.Tracks[2].FitToSong = true;
    Content.Tracks[3].Fade = true;
    Save(Content);
    EXPECT_EQ("00000001_1.mp3=a.mp3 00000001_3.WAV=b.tar.WAV 00000001_4=noext", TrackFiles());
    EXPECT_EQ("1:1-2R 00000001_1.mp3|3:3-4T 00000001_3.WAV|4:5-6F 00000001_4", StoredTracks(1));
    EXPECT_EQ(u"00000001_3.WAV"_s, Content.Tracks[2].SoundTrackLoc);
    EXPECT_TRUE(FileExists(Sounds / u"a.mp3"_s));
}

TEST_F(SaveShow, TakesTheExtensionOfTheNameAlone) {
    MakeDirs(Sounds / u"old.songs"_s);
    WriteFile(Sounds / u"old.songs/plain"_s, "x");
    ShowContent Content = NewShow(2);
    Content.Tracks = {NewTrack(1, 2, Sounds / u"old.songs/plain"_s)};
    Save(Content);
    EXPECT_EQ("00000001_1=x", TrackFiles());
}

TEST_F(SaveShow, KeepsWhatTheSongsWereCalled) {
    const auto Called = [&](const QString& File) {
        return SongNames::Of(AlbumFolder(Engine.DBPath(), AlbumID))
            .NameOf(File, FileSize(SoundTracksFolder(Engine.DBPath(), AlbumID) + File))
            .toStdString();
    };
    ShowContent Content = NewShow(4);
    Content.Tracks = {NewTrack(1, 2, MakeSound(u"Für Elise.mp3"_s)),
                      NewTrack(3, 4, MakeSound(u"b.wav"_s))};
    Save(Content);
    EXPECT_EQ("Für Elise.mp3", Called(u"00000001_1.mp3"_s));
    Content.Tracks[1].SoundTrackLoc = MakeSound(u"other.wav"_s);
    Save(Content);
    EXPECT_EQ("Für Elise.mp3", Called(u"00000001_1.mp3"_s)) << "nobody has touched it";
    EXPECT_EQ("other.wav", Called(u"00000001_2.wav"_s));
    ShowContent Second = NewShow(4);
    Second.Name = u"Second"_s;
    Second.Tracks = Content.Tracks;
    Save(Second);
    EXPECT_EQ("Für Elise.mp3", Called(u"00000002_1.mp3"_s)) << "a copy is called as that one is";
}

TEST_F(SaveShow, KeepsInLettersWhatASongWasCalledByANameThatIsNoText) {
    ShowContent Content = NewShow(4);
    const QString Song = MakeSound(HostName("F\xFCr Elise.mp3"));
    Content.Tracks = {NewTrack(1, 2, Song)};
    Save(Content);
    const QString Stored = u"00000001_1.mp3"_s;
    const qint64 Bytes = FileSize(SoundTracksFolder(Engine.DBPath(), AlbumID) + Stored);
    EXPECT_LT(0, Bytes);
    EXPECT_EQ(u"Für Elise.mp3",
              SongNames::Of(AlbumFolder(Engine.DBPath(), AlbumID)).NameOf(Stored, Bytes));
    DeleteFile(Song);
}

TEST_F(SaveShow, DeletesFilesThatAreNoLongerPlayed) {
    ShowContent Content = NewShow(4);
    Content.Tracks = {NewTrack(1, 2, MakeSound(u"a.mp3"_s)), NewTrack(3, 4, MakeSound(u"b.wav"_s))};
    Save(Content);
    Content.Tracks[0].SoundTrackLoc = MakeSound(u"c.wav"_s);
    Content.Tracks[1] = {};
    Save(Content);
    EXPECT_EQ("00000001_1.wav=c.wav", TrackFiles());
    EXPECT_EQ("1:1-2 00000001_1.wav", StoredTracks(1));
}

TEST_F(SaveShow, KeepsTheOldNameOfATrackThatWasMoved) {
    ShowContent Content = NewShow(4);
    Content.Tracks = {{}, NewTrack(1, 2, MakeSound(u"a.mp3"_s)), {}};
    Save(Content);
    std::swap(Content.Tracks[1], Content.Tracks[2]);
    Content.Tracks[2].SoundTrackLoc = Content.Tracks[2].SoundTrackLoc.toUpper();
    Save(Content);
    EXPECT_EQ("3:1-2 00000001_2.MP3", StoredTracks(1));
    EXPECT_EQ("00000001_2.mp3=a.mp3", TrackFiles());
}

// A new file in the place of one that has moved to another row must not take its place on the disk.
TEST_F(SaveShow, LosesNoFileThatAnotherRowStillPlays) {
    ShowContent Content = NewShow(6);
    Content.Tracks = {NewTrack(1, 2, MakeSound(u"a.mp3"_s)), {}};
    Save(Content);
    Content.Tracks[1] = NewTrack(3, 4, Content.Tracks[0].SoundTrackLoc);
    Content.Tracks[0].SoundTrackLoc = MakeSound(u"b.mp3"_s);
    Save(Content);
    EXPECT_EQ("00000001_1.mp3=b.mp3 00000001_100.mp3=a.mp3", TrackFiles());
    EXPECT_EQ("1:1-2 00000001_1.mp3|2:3-4 00000001_100.mp3", StoredTracks(1));
    Content.Tracks[1] = {};
    Save(Content);
    EXPECT_EQ("00000001_1.mp3=b.mp3", TrackFiles());
}

TEST_F(SaveShow, SwapsTwoOfItsOwnFilesThatWereChosenByTheirPaths) {
    ShowContent Content = NewShow(6);
    Content.Tracks = {NewTrack(1, 2, MakeSound(u"a.mp3"_s)), NewTrack(3, 4, MakeSound(u"b.mp3"_s))};
    Save(Content);
    const QString Folder = SoundTracksFolder(Engine.DBPath(), AlbumID);
    Content.Tracks[0].SoundTrackLoc = Folder + u"00000001_2.mp3"_s;
    Content.Tracks[1].SoundTrackLoc = Folder + u"00000001_1.mp3"_s;
    Save(Content);
    const auto& Tracks = Album().GetSlideShow(1)->SoundTracks;
    EXPECT_EQ("b.mp3", ReadFile(Folder + Tracks[0]->SoundTrackLoc));
    EXPECT_EQ("a.mp3", ReadFile(Folder + Tracks[1]->SoundTrackLoc));
}

TEST_F(SaveShow, LeavesAFileAloneThatWasChosenByItsOwnPath) {
    ShowContent Content = NewShow(2);
    Content.Tracks = {NewTrack(1, 2, MakeSound(u"a.mp3"_s))};
    Save(Content);
    Content.Tracks[0].SoundTrackLoc =
        SoundTracksFolder(Engine.DBPath(), AlbumID) + u"00000001_1.mp3"_s;
    Save(Content);
    EXPECT_EQ("00000001_1.mp3=a.mp3", TrackFiles());
    EXPECT_EQ("1:1-2 00000001_1.mp3", StoredTracks(1));
}

TEST_F(SaveShow, HasFilesOfItsOwnWhereItIsMadeFromAnotherShow) {
    ShowContent Content = NewShow(4);
    Content.Tracks = {NewTrack(1, 2, MakeSound(u"a.mp3"_s))};
    Save(Content);
    Content.SlideShowID = 0;
    Content.Name = u"Second"_s;
    Save(Content);
    EXPECT_EQ(2, Content.SlideShowID);
    EXPECT_EQ("1:1-2 00000002_1.mp3", StoredTracks(2));
    EXPECT_EQ("00000001_1.mp3=a.mp3 00000002_1.mp3=a.mp3", TrackFiles());
}

TEST_F(SaveShow, NeverDeletesAFileOutsideTheAlbum) {
    ShowContent Content = NewShow(2);
    Save(Content);
    Album().GetSlideShow(1)->SaveSoundTrack(1, MakeSound(u"a.mp3"_s), 1, 2, false, false, false);
    Save(Content);
    EXPECT_EQ("", StoredTracks(1));
    EXPECT_TRUE(FileExists(Sounds / u"a.mp3"_s));
}

TEST_F(SaveShow, TellsOfASoundFileThatHasGoneAndCanBeSavedAgain) {
    ShowContent Content = NewShow(3);
    Content.Tracks = {NewTrack(1, 1, MakeSound(u"a.mp3"_s)), NewTrack(2, 2, Sounds / u"gone.mp3"_s),
                      NewTrack(3, 3, MakeSound(u"c.mp3"_s))};
    try {
        (void)WriteShow(Content, Engine);
        FAIL() << "no fault";
    } catch (const Fault& Problem) {
        EXPECT_TRUE(Problem.Text().contains(u"gone.mp3"_s)) << Problem.Text().toStdString();
    }
    EXPECT_EQ(0, Content.SlideShowID);
    EXPECT_EQ(Sounds / u"a.mp3"_s, Content.Tracks[0].SoundTrackLoc);
    EXPECT_TRUE(Album().SlideShows.empty());
    EXPECT_EQ("", TrackFiles());
    MakeSound(u"gone.mp3"_s);
    Save(Content);
    EXPECT_EQ("1:1-1 00000001_1.mp3|2:2-2 00000001_2.mp3|3:3-3 00000001_3.mp3", StoredTracks(1));
    EXPECT_EQ("00000001_1.mp3=a.mp3 00000001_2.mp3=gone.mp3 00000001_3.mp3=c.mp3", TrackFiles());
}

TEST_F(SaveShow, GoesOnWhenAnOldFileCannotBeDeleted) {
    ShowContent Content = NewShow(2);
    Content.Tracks = {NewTrack(1, 2, MakeSound(u"a.mp3"_s))};
    Save(Content);
    Content.Tracks.clear();
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Delete) throw Fault(u"No."_s, Path);
    });
    Save(Content);
    EXPECT_EQ("", StoredTracks(1));
    EXPECT_EQ("00000001_1.mp3=a.mp3", TrackFiles());
}

TEST_F(SaveShow, LetsTheWindowPaintWhileALongFileIsCopied) {
    WriteFile(Sounds / u"long.wav"_s, QByteArray(9 << 20, 'x'));
    ShowContent Content = NewShow(2);
    Content.Tracks = {NewTrack(1, 2, Sounds / u"long.wav"_s)};
    int Calls = 0;
    EXPECT_TRUE(WriteShow(Content, Engine, [&] { ++Calls; }));
    EXPECT_GE(Calls, 3);
    EXPECT_EQ(9 << 20, FileSize(SoundTracksFolder(Engine.DBPath(), AlbumID) + u"00000001_1.wav"_s));
}

TEST_F(SaveShow, LetsTheWindowPaintWhileALongFileThatIsStillPlayedMakesRoom) {
    WriteFile(Sounds / u"long.wav"_s, QByteArray(9 << 20, 'x'));
    ShowContent Content = NewShow(4);
    Content.Tracks = {NewTrack(1, 2, Sounds / u"long.wav"_s), {}};
    Save(Content);
    Content.Tracks[1] = NewTrack(3, 4, Content.Tracks[0].SoundTrackLoc);
    Content.Tracks[0].SoundTrackLoc = MakeSound(u"short.wav"_s);
    int Calls = 0;
    EXPECT_TRUE(WriteShow(Content, Engine, [&] { ++Calls; }));
    EXPECT_GE(Calls, 4);
}

// Sounds of a show whose record has been lost: they are all that is left of it.
TEST_F(SaveShow, GivesANewShowNoNumberThatAStraySoundHas) {
    WriteFile(SoundTracksFolder(Engine.DBPath(), AlbumID) + u"00000001_1.mp3"_s, "stray");
    ShowContent Content = NewShow(2);
    Content.Tracks = {NewTrack(1, 2, MakeSound(u"a.mp3"_s))};
    Save(Content);
    EXPECT_EQ(2, Content.SlideShowID);
    EXPECT_EQ("1:1-2 00000002_1.mp3", StoredTracks(2));
    EXPECT_EQ("00000001_1.mp3=stray 00000002_1.mp3=a.mp3", TrackFiles());
    EXPECT_TRUE(Changes(Engine).DeleteShow(AlbumID, 2));
    EXPECT_EQ("00000001_1.mp3=stray", TrackFiles());
}

TEST_F(SaveShow, GivesAShowWithoutSoundsNoNumberThatAStraySoundHas) {
    WriteFile(SoundTracksFolder(Engine.DBPath(), AlbumID) + u"00000001_1.mp3"_s, "stray");
    auto Made = Changes(Engine).SaveShow(AlbumID, {});
    ASSERT_TRUE(Made);
    EXPECT_EQ(2, Made->What().SlideShowID);
    EXPECT_EQ(3, Engine.NextSlideShowID);
    EXPECT_TRUE(Changes(Engine).DeleteShow(AlbumID, 2));
    EXPECT_EQ("00000001_1.mp3=stray", TrackFiles());
}

// What happens while files are copied is not looked for: it is what other windows do meanwhile.
class SaveShowMeanwhile : public ShowRig {
  protected:
    Answer<Announcement> WriteDoing(ShowContent& Content, std::function<void()> Once) {
        return WriteShow(Content, Engine, [&] {
            if (Once) std::exchange(Once, {})();
        });
    }
};

TEST_F(SaveShowMeanwhile, AnotherNewShowTakesNoneOfItsNames) {
    ShowContent Content = NewShow(2);
    Content.Tracks = {NewTrack(1, 2, MakeSound(u"a.mp3"_s))};
    EXPECT_TRUE(WriteDoing(Content, [this] { SaveStored(u"Other"_s); }));
    EXPECT_EQ(2, Content.SlideShowID);
    EXPECT_EQ("1:1-2 00000002_1.mp3", StoredTracks(2));
    EXPECT_EQ("00000002_1.mp3=a.mp3", TrackFiles());
}

TEST_F(SaveShowMeanwhile, AShowThatIsDeletedIsNotMadeAnew) {
    ShowContent Content = NewShow(2);
    Save(Content);
    Content.Tracks = {NewTrack(1, 2, MakeSound(u"a.mp3"_s))};
    const auto Delete = [this] { Album().DeleteSlideShow(1, Engine); };
    EXPECT_EQ(u"Slide Show not found."_s, WriteDoing(Content, Delete).Refusal().Text);
    EXPECT_EQ("", TrackFiles());
    EXPECT_TRUE(Album().SlideShows.empty());
}

TEST_F(SaveShowMeanwhile, AnAlbumThatIsDeletedGetsNoShow) {
    ShowContent Content = NewShow(2);
    Content.Tracks = {NewTrack(1, 2, MakeSound(u"a.mp3"_s))};
    const auto Delete = [this] { Engine.DeleteAlbum(AlbumID); };
    EXPECT_EQ(u"Failed to create Slide Show."_s, WriteDoing(Content, Delete).Refusal().Text);
    EXPECT_EQ("", TrackFiles());
}

}  // namespace
}  // namespace neb::harness
