#include <limits>

#include "SoundStepsRig.h"

namespace neb::test {
namespace {

const char* const NoClip = "The Sound Track for this slide does not exist.";
const char* const NoTrack = "The Sound Track for this group of slides does not exist.";
const char* const EmptyTrack = "The Sound Track for this group of slides appears to be empty.";

const auto Song = QStringLiteral("song.mp3");
const auto Bird = QStringLiteral("bird.wav");

class SoundSteps : public SoundStepsRig {};

TEST_F(SoundSteps, ANewTrackIsLoadedAndPlayed) {
    AddTrack(Song, 2, 4);
    EXPECT_EQ(Step(2), "load SoundTracks/song.mp3|play|watch");
    EXPECT_EQ(Fields.CurrentSoundFile, Full(QStringLiteral("SoundTracks/song.mp3")));
    EXPECT_FALSE(Fields.SoundRepeat);
    EXPECT_EQ(Fields.SlideInterval, Timeout);
}

TEST_F(SoundSteps, ATrackPassesItsFlagsOn) {
    AddTrack(Song, 1, 3, 90, true, true, true);
    EXPECT_EQ(Step(2), "load SoundTracks/song.mp3|to 30|play again and again|watch");
    EXPECT_TRUE(Fields.SoundRepeat);
    EXPECT_TRUE(Fields.FitToSong);
    EXPECT_TRUE(Fields.FadeOnLast);
    EXPECT_FALSE(Fields.TrackEndsHere);
    Step(3);
    EXPECT_TRUE(Fields.TrackEndsHere);
}

TEST_F(SoundSteps, ATrackOfOneSlideEndsWhereItBegins) {
    AddTrack(Song, 2, 2, 30, false, true, true);
    EXPECT_EQ(Step(2), "load SoundTracks/song.mp3|to 0|play|watch");
    EXPECT_TRUE(Fields.TrackEndsHere);
    EXPECT_TRUE(Fields.FadeOnLast);
    EXPECT_EQ(Fields.SlideInterval, 30);
}

TEST_F(SoundSteps, OfTwoTracksOnOneSlideTheFirstStoredIsUsed) {
    AddTrack(QStringLiteral("late.mp3"), 3, 9);
    AddTrack(QStringLiteral("early.mp3"), 1, 5);
    EXPECT_EQ(Step(2), "load SoundTracks/early.mp3|play|watch");
    EXPECT_EQ(Step(4), "load SoundTracks/late.mp3|play|watch");
}

TEST_F(SoundSteps, ATrackCoversItsFirstToItsLastSlideAndNoOther) {
    AddTrack(Song, 2, 4);
    const bool Covered[] = {false, true, true, true, false};
    for (std::int32_t Seq = 1; Seq <= 5; ++Seq) {
        Player = {};
        EXPECT_EQ(Step(Seq) != "unload", Covered[Seq - 1]) << Seq;
    }
}

TEST_F(SoundSteps, FitToSongSharesTheLengthOutAmongTheSlides) {
    const struct {
        std::int32_t First, Last;
        double Seconds, Interval;
    } Table[] = {{1, 10, 100, 10}, {3, 6, 50, 12.5}, {5, 5, 7, 7}, {1, 3, 1, 1.0 / 3}};
    for (const auto& Row : Table) {
        Show.ClearSoundTracks();
        Player = {};
        AddTrack(Song, Row.First, Row.Last, Row.Seconds, false, true);
        Step(Row.First);
        EXPECT_EQ(Fields.SlideInterval, Row.Interval);
        Step(Row.First);
        EXPECT_EQ(Fields.SlideInterval, Row.Interval) << "the same track again";
    }
}

TEST_F(SoundSteps, AFittedTrackOfAnyNumbersGivesASlideAShareOfItsTime) {
    constexpr auto Least = std::numeric_limits<std::int32_t>::min();
    constexpr auto Most = std::numeric_limits<std::int32_t>::max();
    for (const std::int32_t First : {Least, -1, 0}) {
        Show.ClearSoundTracks();
        Player = {};
        AddTrack(Song, First, Most, 100, false, true);
        Step(2);
        EXPECT_GT(Fields.SlideInterval, 0) << First;
        EXPECT_LT(Fields.SlideInterval, 1e-6) << First;
        EXPECT_GE(Player.CurrentPosition, 0) << First;
    }
    EXPECT_TRUE(Player.IsPlaying);
}

TEST_F(SoundSteps, AFittedTrackThatIsEnteredInTheMiddleStartsThere) {
    AddTrack(Song, 3, 12, 100, false, true);
    EXPECT_EQ(Step(6), "load SoundTracks/song.mp3|to 30|play|watch");
}

TEST_F(SoundSteps, AnUnfittedTrackThatIsEnteredInTheMiddleStartsAtItsBeginning) {
    AddTrack(Song, 3, 12);
    EXPECT_EQ(Step(6), "load SoundTracks/song.mp3|play|watch");
}

TEST_F(SoundSteps, AMissingTrackIsToldAndTheOldSoundIsGone) {
    AddTrack(Song, 1, 4, -1, true, true, true);
    Fields.SoundRepeat = false;
    Fields.CurrentSoundFile = QStringLiteral("before");
    EXPECT_EQ(Step(4), Line({"load SoundTracks/song.mp3", NoTrack, "watch"}));
    EXPECT_EQ(Fields.SlideInterval, Timeout);
    EXPECT_FALSE(Fields.SoundRepeat);
    EXPECT_EQ(Fields.CurrentSoundFile, QStringLiteral("before"));
    EXPECT_TRUE(Fields.FitToSong);
    EXPECT_TRUE(Fields.TrackEndsHere);
}

TEST_F(SoundSteps, AMissingTrackIsToldOnceForItsWholeGroup) {
    AddTrack(Song, 1, 4, -1, true, true);
    Step(1);
    EXPECT_EQ(Step(2), "watch");
    EXPECT_EQ(Fields.SlideInterval, Timeout);
    EXPECT_FALSE(Fields.SoundRepeat);
}

TEST_F(SoundSteps, AnEmptyFittedTrackIsToldAndPlayedWithTheUsualInterval) {
    AddTrack(Song, 1, 4, 0, true, true);
    EXPECT_EQ(Step(3),
              Line({"load SoundTracks/song.mp3", EmptyTrack, "to 24|play again and again|watch"}));
    EXPECT_EQ(Fields.SlideInterval, Timeout);
    EXPECT_TRUE(Fields.SoundRepeat);
}

TEST_F(SoundSteps, AnEmptyTrackThatIsNotFittedIsNotTold) {
    AddTrack(Song, 1, 4, 0);
    EXPECT_EQ(Step(1), "load SoundTracks/song.mp3|play|watch");
    EXPECT_EQ(Fields.CurrentSoundFile, Full(QStringLiteral("SoundTracks/song.mp3")));
}

TEST_F(SoundSteps, AnEmptyTrackThatIsLoadedIsLeftAsItIs) {
    AddTrack(Song, 1, 4, 0, true, true);
    Step(1);
    Fields.SoundRepeat = false;
    EXPECT_EQ(Step(2, {}, StepCause::User), "watch");
    EXPECT_FALSE(Fields.SoundRepeat);
    EXPECT_EQ(Fields.SlideInterval, Timeout);
}

TEST_F(SoundSteps, NamesAreComparedExactInCase) {
    AddTrack(Song, 1, 4);
    Step(1);
    Track().SoundTrackLoc = QStringLiteral("Song.mp3");
    Files[Full(QStringLiteral("SoundTracks/Song.mp3"))] = 100;
    EXPECT_EQ(Step(2), "load SoundTracks/Song.mp3|play|watch");
}

TEST_F(SoundSteps, ANameWithASeparatorIsAFullPath) {
    AddTrack(QStringLiteral("/music/far.mp3"), 1, 2, -1);
    Files[QStringLiteral("/music/far.mp3")] = 100;
    Files[QStringLiteral("/music/near.wav")] = 5;
    EXPECT_EQ(Step(1), "load /music/far.mp3|play|watch");
    EXPECT_EQ(Step(3, {QStringLiteral("/music/near.wav"), false, false}),
              "load /music/near.wav|play");
}

// Where the track that is loaded goes on: the row's state, and what comes of it.
struct GoingOn {
    const char* Case;
    bool Playing, Repeat, FitToSong;
    StepCause Cause;
    std::int32_t SlideSeq;
    double Position;
    const char* Done;
};

const GoingOn GoingOnTable[] = {
    {"a plain advance", true, false, false, StepCause::Timer, 4, 25, "watch"},
    {"a plain advance, fitted", true, false, true, StepCause::Timer, 4, 3, "watch"},
    {"a user's step, not fitted", true, false, false, StepCause::User, 4, 3, "watch"},
    {"a user's step, fitted, far off", true, false, true, StepCause::User, 4, 3,
     "to 20|play|watch"},
    {"a user's step, fitted, near", true, false, true, StepCause::User, 4, 20.5,
     "to 20|play|watch"},
    {"the show begins, fitted, near", true, false, true, StepCause::Start, 4, 20.5, "watch"},
    {"round to the first slide", true, false, false, StepCause::Timer, 2, 60, "to 0|play|watch"},
    {"round to the first, fitted", true, false, true, StepCause::Timer, 2, 60, "to 0|play|watch"},
    {"round to the first, repeating", true, true, false, StepCause::Timer, 2, 60, "watch"},
    {"round, repeating, fitted, by a user", true, true, true, StepCause::User, 2, 60,
     "to 0|play again and again|watch"},
    {"repeating, fitted, by a user", true, true, true, StepCause::User, 4, 3,
     "to 20|play again and again|watch"},
    {"not playing", false, false, false, StepCause::Timer, 4, 33, "play|watch"},
    {"not playing, repeating", false, true, false, StepCause::Timer, 2, 33,
     "play again and again|watch"},
    {"not playing, fitted, near", false, false, true, StepCause::Timer, 4, 20.5, "play|watch"},
    {"not playing, fitted, ahead", false, false, true, StepCause::Timer, 4, 33, "to 20|play|watch"},
    {"not playing, fitted, behind", false, true, true, StepCause::Timer, 4, 3,
     "to 20|play again and again|watch"},
    {"not playing, fitted, at the first", false, false, true, StepCause::Timer, 2, 3,
     "to 0|play|watch"},
    {"the show begins, fitted, far off", true, false, true, StepCause::Start, 4, 3,
     "to 20|play|watch"},
    {"shown again, fitted, far off", true, false, true, StepCause::Restart, 4, 3, "watch"},
};

TEST_F(SoundSteps, ATrackThatIsLoadedGoesOn) {
    for (const GoingOn& Row : GoingOnTable) {
        Show.ClearSoundTracks();
        AddTrack(Song, 2, 7, 60, Row.Repeat, Row.FitToSong);
        Player = {Row.Playing, Row.Position, 60, Full(QStringLiteral("SoundTracks/song.mp3"))};
        Fields.SoundRepeat = !Row.Repeat;
        EXPECT_EQ(Step(Row.SlideSeq, {}, Row.Cause), Row.Done) << Row.Case;
        EXPECT_EQ(Fields.SoundRepeat, Row.Repeat) << Row.Case;
        EXPECT_EQ(Fields.SlideInterval, Row.FitToSong ? 10 : Timeout) << Row.Case;
    }
}

// What comes late is put where it would be by now, and a fitted slide has had no more than its
// share.
TEST_F(SoundSteps, ATrackThatComesLateStartsWhereItWouldBeByNow) {
    AddTrack(Song, 2, 7, 60);
    Late = {3, 8};
    EXPECT_EQ(Step(3), "load SoundTracks/song.mp3|to 8|play|watch");
    Track().FitToSong = true;
    Player = {};
    EXPECT_EQ(Step(4), "load SoundTracks/song.mp3|to 23|play|watch");
    Player = {};
    Late = {11, 31};
    EXPECT_EQ(Step(4), "load SoundTracks/song.mp3|to 30|play|watch");
}

TEST_F(SoundSteps, ARepeatingSoundThatComesLateHasGoneRound) {
    AddTrack(Song, 2, 7, 60, true);
    AddClip(Bird, 5);
    Late = {13, 61};
    EXPECT_EQ(Step(3), "load SoundTracks/song.mp3|to 1|play again and again|watch");
    Late = {13, 13};
    EXPECT_EQ(Step(1, {Bird, false, true}), "load Slides/bird.wav|to 3|play again and again");
    EXPECT_EQ(Step(1, {Bird, true, true}), "load Slides/bird.wav|to 3|play again and again");
    EXPECT_EQ(Step(1, {Bird, true, false}), "load Slides/bird.wav|to 13|play") << "it is over";
}

TEST_F(SoundSteps, ATrackThatWasCutOffAndComesLateGoesOnThatMuchLater) {
    AddTrack(Song, 2, 7, 60);
    AddClip(Bird, 5);
    Step(2);
    StandAt(12);
    Step(3, {Bird, true, false});
    Late = {2, 2};
    EXPECT_EQ(Step(4), "load SoundTracks/song.mp3|to 14|play|watch");
}

TEST_F(SoundSteps, AShowOfOneGroupStartsItsTrackAgainWhenItComesRound) {
    AddTrack(Song, 1, 3);
    Step(1);
    StandAt(36);
    Step(2);
    Step(3);
    EXPECT_EQ(Step(1), "to 0|play|watch");
}

TEST_F(SoundSteps, AClipInsideAGroupStaysSilentWithoutOverride) {
    AddTrack(Song, 1, 3);
    AddClip(Bird);
    EXPECT_EQ(Step(1, {Bird, false, true}), "load SoundTracks/song.mp3|play|watch");
    EXPECT_EQ(Step(2, {Bird, false, true}), "watch");
    EXPECT_FALSE(Fields.SoundRepeat);
}

TEST_F(SoundSteps, AClipOutsideEveryGroupIsPlayed) {
    AddTrack(Song, 1, 3);
    AddClip(Bird);
    Step(3);
    EXPECT_EQ(Step(4, {Bird, false, true}), "load Slides/bird.wav|play again and again");
    EXPECT_TRUE(Fields.SoundRepeat);
    EXPECT_EQ(Fields.CurrentSoundFile, Full(QStringLiteral("Slides/bird.wav")));
    EXPECT_EQ(Step(5, {Bird, false, false}), "load Slides/bird.wav|play");
}

TEST_F(SoundSteps, AMissingClipOutsideEveryGroupIsToldAndTheOldSoundIsGone) {
    Player = {true, 3, 60, QStringLiteral("old")};
    Fields.SoundRepeat = true;
    EXPECT_EQ(Step(4, {Bird, false, false}), Line({"load Slides/bird.wav", NoClip}));
    EXPECT_TRUE(Fields.SoundRepeat);
    EXPECT_EQ(Fields.CurrentSoundFile, QString());
    EXPECT_EQ(Player.Duration, 0);
}

TEST_F(SoundSteps, ASlideWithNeitherEndsTheSound) {
    AddTrack(Song, 1, 3);
    Step(3);
    EXPECT_EQ(Step(4), "unload");
    EXPECT_EQ(Step(5), "unload");
    EXPECT_EQ(Step(2), "load SoundTracks/song.mp3|play|watch");
}

TEST_F(SoundSteps, AnotherGroupReplacesTheTrack) {
    AddTrack(Song, 1, 3);
    AddTrack(QStringLiteral("next.mp3"), 4, 6);
    Step(3);
    EXPECT_EQ(Step(4), "load SoundTracks/next.mp3|play|watch");
}

TEST_F(SoundSteps, TwoGroupsOfOneFileAreOneSound) {
    AddTrack(Song, 1, 2);
    AddTrack(Song, 3, 5);
    Step(2);
    EXPECT_EQ(Step(3), "to 0|play|watch");
    EXPECT_EQ(Step(4), "watch");
}

TEST_F(SoundSteps, AShowThatIsNotThereIsSilent) {
    const SlideSound Slide{7, nullptr, 1, {}, false, false};
    EXPECT_EQ(SoundPathOf(Slide, QStringLiteral("/db/")), QString());
}

// Every way through the track path forgets what an overriding clip had saved.
TEST_F(SoundSteps, EveryWayThroughTheTrackPathForgets) {
    AddTrack(Song, 1, 2);
    AddTrack(QStringLiteral("none.mp3"), 3, 3, -1);
    AddTrack(QStringLiteral("fit.mp3"), 4, 4, 0, false, true);
    AddClip(Bird);
    const struct {
        const char* Case;
        std::int32_t SlideSeq;
        QString Clip;
    } Ways[] = {
        {"new", 1, {}},        {"same", 2, {}},   {"missing", 3, {}},        {"empty", 4, {}},
        {"same empty", 4, {}}, {"clip", 5, Bird}, {"missing clip", 6, Song}, {"silence", 7, {}}};
    for (const auto& Way : Ways) {
        Fields.SavedSoundPos = 9;
        Fields.SavedSoundSeq = 8;
        Fields.SavedSoundFile = QStringLiteral("kept");
        Fields.LastClipSeq = 8;
        Step(Way.SlideSeq, {Way.Clip, false, false});
        EXPECT_EQ(Saved(), "0 0 kept clip 0") << Way.Case;
    }
}

TEST_F(SoundSteps, ThePathAheadIsThatOfTheStep) {
    AddTrack(Song, 1, 3);
    const struct {
        std::int32_t SlideSeq;
        ClipOf Clip;
        const char* Path;
    } Table[] = {
        {2, {}, "/db/Albums/7/SoundTracks/song.mp3"},
        {2, {Bird, false, false}, "/db/Albums/7/SoundTracks/song.mp3"},
        {2, {Bird, true, false}, "/db/Albums/7/Slides/bird.wav"},
        {4, {Bird, false, false}, "/db/Albums/7/Slides/bird.wav"},
        {4, {QStringLiteral("D:\\bird.wav"), false, false}, "D:\\bird.wav"},
        {4, {}, ""},
    };
    for (const auto& Row : Table) {
        const SlideSound Slide{7, &Show, Row.SlideSeq, Row.Clip.Name, Row.Clip.Override, false};
        EXPECT_EQ(SoundPathOf(Slide, QStringLiteral("/db/")).toStdString(), Row.Path);
    }
}

}  // namespace
}  // namespace neb::test
