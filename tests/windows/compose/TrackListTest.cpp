// The list of sound tracks by itself: what was typed, read as values, and values shown.
#include "windows/compose/TrackList.h"

#include <gtest/gtest.h>

namespace neb {
namespace {

using namespace Qt::StringLiterals;

class Tracks : public ::testing::Test {
  protected:
    Tracks() { List.SetUp(true); }
    ShowTrack Typed(const QStringList& Cells) {
        for (int Col = 0; Col < Cells.size(); ++Col) List.SetTextMatrix(0, Col, Cells[Col]);
        return List.Tracks()[0];
    }
    ShowTrack From(const char* Start, const char* End) {
        return Typed({QLatin1String(Start), QLatin1String(End), {}, {}, {}, u"a.mp3"_s});
    }
    std::string Cells(int Row) {
        QStringList All;
        for (int Col = 0; Col <= TrackList::ColFile; ++Col) All << List.TextMatrix(Row, Col);
        return All.join(u',').toStdString();
    }
    TrackList List;
};

TEST_F(Tracks, APlaceIsTheNumberThatTheTextBeginsWith) {
    const struct {
        const char* Text;
        double Place;
    } Cases[] = {{"3", 3},   {" 12 ", 12}, {"-1", -1},  {"10.5", 10.5},
                 {"4th", 4}, {"first", 0}, {"1e1", 10}, {"0", 0}};
    for (const auto& Each : Cases) {
        EXPECT_EQ(Each.Place, From(Each.Text, "9").SlideSeqStart) << Each.Text;
        EXPECT_EQ(Each.Place, From("0", Each.Text).SlideSeqEnd) << Each.Text;
    }
}

TEST_F(Tracks, ARowIsFilledByBothPlacesAndAFile) {
    EXPECT_TRUE(From("1", "2").IsFilled());
    EXPECT_TRUE(From("first", "last").IsFilled());
    EXPECT_FALSE(From("", "2").IsFilled());
    EXPECT_FALSE(From("1", "  ").IsFilled());
    EXPECT_FALSE(Typed({u"1"_s, u"2"_s, {}, {}, {}, u"  "_s}).IsFilled());
}

TEST_F(Tracks, AFileIsTakenWithoutBlanksAroundIt) {
    EXPECT_EQ(u"/my music/a.mp3"_s,
              Typed({u"1"_s, u"2"_s, {}, {}, {}, u" /my music/a.mp3 "_s}).SoundTrackLoc);
    EXPECT_TRUE(List.Tracks()[0].IsNewFile());
    EXPECT_FALSE(From("1", "2").IsNewFile()) << "a name in the album";
}

TEST_F(Tracks, AFlagIsOnWhenItsTextSaysSo) {
    const ShowTrack Row = Typed({u"1"_s, u"2"_s, u"True"_s, u"False"_s, QString(), u"a"_s});
    EXPECT_TRUE(Row.Repeat);
    EXPECT_FALSE(Row.FitToSong);
    EXPECT_FALSE(Row.Fade);
}

TEST_F(Tracks, AreShownAndReadBackAsTheyWere) {
    const std::vector<ShowTrack> Given = {
        {.SlideSeqStart = 1, .SlideSeqEnd = 3, .Repeat = true, .SoundTrackLoc = u"a.mp3"_s},
        {},
        {.SlideSeqStart = 4, .SlideSeqEnd = 12, .Fade = true, .SoundTrackLoc = u"b.wav"_s}};
    Typed({u"9"_s, u"9"_s, u"True"_s, {}, {}, u"old"_s});
    List.SetTextMatrix(50, TrackList::ColFile, u"old"_s);
    List.ShowTracks(Given);
    EXPECT_EQ("1,3,True,False,False,a.mp3", Cells(0));
    EXPECT_EQ(",,,,,", Cells(1)) << "a row without a track shows no flags";
    EXPECT_EQ("4,12,False,False,True,b.wav", Cells(2));
    std::vector<ShowTrack> Read = List.Tracks();
    EXPECT_EQ(99u, Read.size());
    Read.resize(Given.size());
    EXPECT_TRUE(Given == Read);
    EXPECT_EQ(",,,,,", Cells(50));
}

}  // namespace
}  // namespace neb
