// Which slides tracks cover: proposed, kept when slides change places, spread by their lengths.
#include "albums/TrackRanges.h"

#include <gtest/gtest.h>

namespace neb {
namespace {

using namespace Qt::StringLiterals;

ShowTrack Track(std::optional<double> Start, std::optional<double> End) {
    return {.SlideSeqStart = Start, .SlideSeqEnd = End, .SoundTrackLoc = u"a.mp3"_s};
}

std::string Text(const std::optional<double>& Place) {
    return Place ? QString::number(*Place).toStdString() : "";
}

std::string Ranges(const std::vector<ShowTrack>& Tracks) {
    std::string All;
    for (const ShowTrack& Each : Tracks)
        All += (All.empty() ? "" : " ") + Text(Each.SlideSeqStart) + "-" + Text(Each.SlideSeqEnd);
    return All;
}

// Slides are letters; "ABC" is a show of three.
SlideOrder Order(const char* Letters) {
    SlideOrder All;
    for (; *Letters; ++Letters) All.push_back(*Letters);
    return All;
}

std::string Followed(std::vector<ShowTrack> Tracks, const char* Before, const char* After,
                     const char* Moved = "") {
    const SlideOrder Which = Order(Moved);
    return Ranges(TracksFollowing(std::move(Tracks), Order(Before), Order(After),
                                  {Which.begin(), Which.end()}));
}

TEST(TracksFollow, ASlideThatComesInBetweenIsOneOfTheTracks) {
    EXPECT_EQ("1-4 5-6", Followed({Track(1, 3), Track(4, 5)}, "ABCDE", "AXBCDE"));
}

TEST(TracksFollow, ASlideThatComesInBeforeOrBehindIsNot) {
    EXPECT_EQ("2-3", Followed({Track(1, 2)}, "ABC", "XABC"));
    EXPECT_EQ("1-2", Followed({Track(1, 2)}, "ABC", "ABXC"));
    EXPECT_EQ("1-2 4-4", Followed({Track(1, 2), Track(3, 3)}, "ABC", "ABXC"));
}

TEST(TracksFollow, ASlideThatIsTakenOutMakesTheTrackShorter) {
    EXPECT_EQ("1-2 3-3", Followed({Track(1, 3), Track(4, 4)}, "ABCD", "ACD")) << "from its middle";
    EXPECT_EQ("1-2", Followed({Track(1, 3)}, "ABCD", "BCD")) << "its first";
    EXPECT_EQ("1-2", Followed({Track(1, 3)}, "ABCD", "ABD")) << "its last";
    EXPECT_EQ("2-3", Followed({Track(3, 4)}, "ABCD", "ACD")) << "before it";
}

TEST(TracksFollow, ATrackWhoseSlidesHaveAllLeftHasNoPlaces) {
    EXPECT_EQ("- 1-1", Followed({Track(1, 2), Track(3, 3)}, "ABC", "C"));
    EXPECT_EQ("-", Followed({Track(1, 2)}, "AB", ""));
}

TEST(TracksFollow, ASlideThatIsMovedOutTakesWhatIsThere) {
    EXPECT_EQ("1-2 3-6", Followed({Track(1, 3), Track(4, 6)}, "ABCDEF", "ABDCEF", "C"))
        << "one place on, into the next track";
    EXPECT_EQ("1-4 5-6", Followed({Track(1, 3), Track(4, 6)}, "ABCDEF", "ABDCEF", "D"))
        << "the same order, but the other slide was moved";
    EXPECT_EQ("1-2 3-5", Followed({Track(1, 3), Track(4, 6)}, "ABCDEF", "BCDEFA", "A"))
        << "the first one, to the end";
}

TEST(TracksFollow, ASlideThatIsMovedWithinItsTrackStaysInIt) {
    EXPECT_EQ("1-3", Followed({Track(1, 3)}, "ABCD", "ACBD", "C"));
    EXPECT_EQ("1-4", Followed({Track(1, 4)}, "ABCDE", "ACDBE", "B"));
    EXPECT_EQ("1-3 4-6", Followed({Track(1, 3), Track(4, 6)}, "ABCDEF", "BCADEF", "A"))
        << "its first becomes its last";
    EXPECT_EQ("1-3 4-6", Followed({Track(1, 3), Track(4, 6)}, "ABCDEF", "ABCFED", "EF"));
}

TEST(TracksFollow, SlidesThatStandBehindTheOneThatStayedAreStillOnItsTrack) {
    EXPECT_EQ("1-4 5-5", Followed({Track(1, 4), Track(5, 5)}, "ABCDE", "ADCBE", "BCD"));
}

TEST(TracksFollow, ATrackGoesWithSlidesThatAreMovedTogether) {
    EXPECT_EQ("3-4", Followed({Track(1, 2)}, "ABCD", "CDAB", "AB"));
    EXPECT_EQ("4-4", Followed({Track(1, 1)}, "ABCD", "BCDA", "A"));
    EXPECT_EQ("4-5", Followed({Track(1, 3)}, "ABCDE", "ADEBC", "ABC"))
        << "to the longest run where they are apart";
}

TEST(TracksFollow, PlacesThatAreNoneOfTheShowStayAsTheyWereTyped) {
    EXPECT_EQ("2-9 -1-2 3-2 1.5-2",
              Followed({Track(2, 9), Track(-1, 2), Track(3, 2), Track(1.5, 2)}, "ABC", "XABC"));
    EXPECT_EQ("2-3", Followed({Track(0, 2)}, "ABC", "XABC")) << "0 is the first";
}

TEST(TracksFollow, OnePlaceAloneFollowsItsSlide) {
    EXPECT_EQ("3- -3", Followed({Track(2, {}), Track({}, 2)}, "ABC", "XABC"));
    EXPECT_EQ("-", Followed({Track(2, {})}, "ABC", "AC"));
    EXPECT_EQ("-", Followed({Track({}, {})}, "ABC", "AC"));
}

TEST(TracksFollow, TheSecondPlaceOfASlideIsOneThatLeaves) {
    EXPECT_EQ("1-2 3-3", Followed({Track(1, 3), Track(4, 4)}, "ABAC", "ABC"));
}

TEST(ProposedRange, IsTheWholeShowForTheFirstTrack) {
    EXPECT_EQ((TrackRange{1, 7}), ProposedRange({{}, {}}, 7));
}

TEST(ProposedRange, IsWhatLiesBehindTheLastTrack) {
    EXPECT_EQ((TrackRange{6, 9}), ProposedRange({Track(1, 2), {}, Track(4, 5)}, 9));
}

TEST(ProposedRange, IsNothingWhereNoSlidesAreLeft) {
    EXPECT_EQ(std::nullopt, ProposedRange({Track(1, 9)}, 9));
    EXPECT_EQ(std::nullopt, ProposedRange({Track(1, 12)}, 9));
    EXPECT_EQ(std::nullopt, ProposedRange({}, 0));
}

ShowContent ShowOf(size_t Slides, size_t Tracks) {
    ShowContent Show;
    Show.Slides.resize(Slides);
    Show.Tracks.resize(Tracks, {.SoundTrackLoc = u"a.mp3"_s});
    return Show;
}

std::string Fitted(size_t Slides, const std::vector<double>& Seconds) {
    Answer<std::vector<ShowTrack>> Done = FitAllTracks(ShowOf(Slides, Seconds.size()), Seconds);
    if (!Done) return Done.Refusal().Text.toStdString();
    for (const ShowTrack& Each : *Done) EXPECT_TRUE(Each.FitToSong);
    return Ranges(*Done);
}

TEST(FitAll, SpreadsTheSlidesByTheLengthsOfTheSongs) {
    EXPECT_EQ("1-10", Fitted(10, {200}));
    EXPECT_EQ("1-5 6-10", Fitted(10, {180, 180}));
    EXPECT_EQ("1-2 3-8 9-12", Fitted(12, {60, 180, 120}));
}

TEST(FitAll, LeavesEachTrackASlideAndNoSlideOut) {
    EXPECT_EQ("1-1 2-2 3-3", Fitted(3, {1, 1000, 1}));
    EXPECT_EQ("1-8 9-9 10-10", Fitted(10, {1000, 1, 1}));
    EXPECT_EQ("1-1 2-2 3-10", Fitted(10, {1, 1, 1000}));
    for (size_t Slides = 7; Slides < 60; ++Slides) {
        const std::string All = Fitted(Slides, {213, 4, 187.5, 600, 2, 33, 61});
        EXPECT_EQ(0u, All.find("1-")) << All;
        EXPECT_EQ("-" + std::to_string(Slides), All.substr(All.rfind('-'))) << All;
    }
}

TEST(FitAll, PassesOverRowsWithoutAFile) {
    ShowContent Show = ShowOf(4, 3);
    Show.Tracks[1] = {};
    Answer<std::vector<ShowTrack>> Done = FitAllTracks(Show, {10, 0, 10});
    ASSERT_TRUE(Done);
    EXPECT_EQ("1-2 - 3-4", Ranges(*Done));
    EXPECT_FALSE((*Done)[1].FitToSong);
}

TEST(FitAll, IsRefusedWithMoreTracksThanSlides) {
    EXPECT_EQ(
        "There are more sound tracks (3) than slides in the show (2). Each track needs a "
        "slide at least.",
        Fitted(2, {1, 1, 1}));
}

TEST(FitAll, IsRefusedWithoutATrackAndInAManualShow) {
    EXPECT_EQ("Choose the sound files first; all slides are then spread over them.", Fitted(5, {}));
    ShowContent Show = ShowOf(5, 1);
    Show.ProgressionMethod = 1;
    const auto Done = FitAllTracks(Show, {10});
    EXPECT_EQ(u"You cannot select both Fit To Song and Manual Progression."_s, Done.Refusal().Text);
}

}  // namespace
}  // namespace neb
