// Sound files that must make room for new ones while other rows of the show still play them: each
// gets a number that no row has, and none takes the number of another.
#include "ShowRig.h"

namespace neb::harness {
namespace {

class DisplacedSound : public ShowRig {
  protected:
    // A show whose first track has been played by its first row and moves on to row To; the first
    // row plays the new file.
    void Displace(ShowContent& Content, size_t To, const QString& NewFile) {
        Content.Tracks[To] = Content.Tracks[0];
        Content.Tracks[To].SlideSeqStart = Content.Tracks[To].SlideSeqEnd =
            static_cast<double>(To + 1);
        Content.Tracks[0].SoundTrackLoc = MakeSound(NewFile);
        Save(Content);
    }
    ShowContent ShowWith(const QString& File) {
        ShowContent Content = NewShow(5);
        Content.Tracks = {NewTrack(1, 1, MakeSound(File)), {}, {}, {}, {}};
        Save(Content);
        return Content;
    }
};

TEST_F(DisplacedSound, EachOneKeepsItsContentUnderANumberOfItsOwn) {
    ShowContent Content = ShowWith(u"a.mp3"_s);
    Displace(Content, 1, u"b.mp3"_s);
    Displace(Content, 2, u"c.mp3"_s);
    EXPECT_EQ("00000001_1.mp3=c.mp3 00000001_100.mp3=a.mp3 00000001_101.mp3=b.mp3", TrackFiles());
    EXPECT_EQ("1:1-1 00000001_1.mp3|2:2-2 00000001_100.mp3|3:3-3 00000001_101.mp3",
              StoredTracks(1));
    Displace(Content, 3, u"d.mp3"_s);
    EXPECT_EQ(
        "00000001_1.mp3=d.mp3 00000001_100.mp3=a.mp3 00000001_101.mp3=b.mp3 "
        "00000001_102.mp3=c.mp3",
        TrackFiles());
}

TEST_F(DisplacedSound, ANumberWhoseFileIsNamedInAnotherCaseIsTaken) {
    ShowContent Content = ShowWith(u"a.mp3"_s);
    const QString Folder = SoundTracksFolder(Engine.DBPath(), AlbumID);
    WriteFile(Folder + u"00000001_100.MP3"_s, "of another show");
    Displace(Content, 1, u"b.mp3"_s);
    EXPECT_EQ("1:1-1 00000001_1.mp3|2:2-2 00000001_101.mp3", StoredTracks(1));
    EXPECT_EQ("of another show", ReadFile(Folder + u"00000001_100.MP3"_s));
    EXPECT_EQ("a.mp3", ReadFile(Folder + u"00000001_101.mp3"_s));
}

TEST_F(DisplacedSound, ANumberThatHasBecomeFreeIsUsedAgain) {
    ShowContent Content = ShowWith(u"a.mp3"_s);
    Displace(Content, 1, u"b.mp3"_s);
    Displace(Content, 1, u"c.mp3"_s);
    EXPECT_EQ("00000001_1.mp3=c.mp3 00000001_101.mp3=b.mp3", TrackFiles())
        << "the one before is played until the save, and gone after it";
    Displace(Content, 2, u"d.mp3"_s);
    EXPECT_EQ("00000001_1.mp3=d.mp3 00000001_100.mp3=c.mp3 00000001_101.mp3=b.mp3", TrackFiles());
}

// Two rows play the file that must go: one copy is enough for both.
TEST_F(DisplacedSound, RowsThatPlayTheSameOneShareItAfterwards) {
    ShowContent Content = ShowWith(u"a.mp3"_s);
    Content.Tracks[1] = NewTrack(2, 2, Content.Tracks[0].SoundTrackLoc);
    Displace(Content, 2, u"b.mp3"_s);
    EXPECT_EQ("00000001_1.mp3=b.mp3 00000001_100.mp3=a.mp3", TrackFiles());
    EXPECT_EQ("1:1-1 00000001_1.mp3|2:2-2 00000001_100.mp3|3:3-3 00000001_100.mp3",
              StoredTracks(1));
}

}  // namespace
}  // namespace neb::harness
