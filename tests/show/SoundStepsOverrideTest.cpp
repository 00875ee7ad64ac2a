#include "SoundStepsRig.h"

namespace neb::test {
namespace {

const char* const NoClip = "The Sound Track for this slide does not exist.";

const auto Song = QStringLiteral("song.mp3");
const auto Bird = QStringLiteral("bird.wav");
const auto Frog = QStringLiteral("frog.wav");

class SoundOverride : public SoundStepsRig {
  protected:
    SoundOverride() {
        AddClip(Bird);
        AddClip(Frog);
    }
};

TEST_F(SoundOverride, AnOverridingClipTakesTheTracksPlaceAndIsNotWatched) {
    AddTrack(Song, 1, 5, 100, false, true, true);
    Step(1);
    StandAt(17);
    EXPECT_EQ(Step(2, {Bird, true, true}, StepCause::User),
              "load Slides/bird.wav|play again and again");
    EXPECT_TRUE(Fields.SoundRepeat);
    EXPECT_EQ(Fields.CurrentSoundFile, Full(QStringLiteral("Slides/bird.wav")));
    EXPECT_EQ(Saved(), "17 2 SoundTracks/song.mp3 clip 2");
    EXPECT_FALSE(Fields.FitToSong);
    EXPECT_FALSE(Fields.FadeOnLast);
    EXPECT_EQ(Fields.SlideInterval, Timeout);
}

TEST_F(SoundOverride, OnlyTheFirstOfARunSavesTheTracksPlace) {
    AddTrack(Song, 1, 5);
    Step(1);
    StandAt(17);
    Step(2, {Bird, true, false});
    StandAt(3);
    EXPECT_EQ(Step(3, {Frog, true, false}), "load Slides/frog.wav|play");
    EXPECT_EQ(Saved(), "17 2 SoundTracks/song.mp3 clip 3");
}

TEST_F(SoundOverride, TheTrackPicksUpAfterTheRun) {
    AddTrack(Song, 1, 5, 100, true);
    Step(1);
    StandAt(17);
    Step(2, {Bird, true, false});
    Step(3, {Frog, true, false});
    EXPECT_EQ(Step(4), "load SoundTracks/song.mp3|to 17|play again and again|watch");
    EXPECT_EQ(Saved(), "0 0 SoundTracks/song.mp3 clip 0");
    StandAt(29);
    EXPECT_EQ(Step(5), "watch");
}

TEST_F(SoundOverride, AFittedTrackIsPlacedByTheSlidesPlace) {
    AddTrack(Song, 1, 5, 100, false, true);
    Step(1);
    StandAt(17);
    Step(2, {Bird, true, false});
    Step(3, {Frog, true, false});
    EXPECT_EQ(Step(4), "load SoundTracks/song.mp3|to 60|play|watch");
    EXPECT_EQ(Fields.SlideInterval, 20);
}

TEST_F(SoundOverride, ATrackThatWasNotPlayingIsNotPickedUp) {
    AddTrack(Song, 1, 5);
    Step(1);
    StandAt(17, false);
    Step(2, {Bird, true, false});
    EXPECT_EQ(Saved(), "0 2  clip 2");
    EXPECT_EQ(Step(3), "load SoundTracks/song.mp3|play|watch");
}

TEST_F(SoundOverride, ATrackAtItsVeryStartStartsAnew) {
    AddTrack(Song, 1, 5);
    Step(1);
    StandAt(0);
    Step(2, {Bird, true, false});
    EXPECT_EQ(Step(3), "load SoundTracks/song.mp3|play|watch");
}

TEST_F(SoundOverride, AnotherTrackThanTheOneCutOffStartsAtItsBeginning) {
    AddTrack(Song, 1, 2);
    AddTrack(QStringLiteral("next.mp3"), 3, 5);
    Step(1);
    StandAt(17);
    Step(2, {Bird, true, false});
    EXPECT_EQ(Step(3), "load SoundTracks/next.mp3|play|watch");
    EXPECT_EQ(Saved(), "0 0 SoundTracks/song.mp3 clip 0");
}

TEST_F(SoundOverride, ASilentSlideAfterTheRunForgetsThePlace) {
    AddTrack(Song, 1, 2);
    Step(1);
    StandAt(17);
    Step(2, {Bird, true, false});
    EXPECT_EQ(Step(3), "unload");
    EXPECT_EQ(Step(2), "load SoundTracks/song.mp3|play|watch");
}

TEST_F(SoundOverride, ASecondRunSavesAfresh) {
    AddTrack(Song, 1, 9);
    Step(1);
    StandAt(17);
    Step(2, {Bird, true, false});
    Step(3);
    StandAt(41);
    Step(4, {Bird, true, false});
    EXPECT_EQ(Saved(), "41 4 SoundTracks/song.mp3 clip 4");
    EXPECT_EQ(Step(5), "load SoundTracks/song.mp3|to 41|play|watch");
}

TEST_F(SoundOverride, AMissingOverridingClipTouchesNothingThatIsSaved) {
    AddTrack(Song, 1, 9);
    Step(1);
    StandAt(17);
    Step(2, {Bird, true, true});
    EXPECT_EQ(Step(3, {QStringLiteral("none.wav"), true, false}),
              Line({"load Slides/none.wav", NoClip}));
    EXPECT_EQ(Saved(), "17 2 SoundTracks/song.mp3 clip 2");
    EXPECT_TRUE(Fields.SoundRepeat);
    EXPECT_EQ(Fields.CurrentSoundFile, Full(QStringLiteral("Slides/bird.wav")));
    EXPECT_EQ(Step(4), "load SoundTracks/song.mp3|to 17|play|watch");
}

TEST_F(SoundOverride, AMissingOverridingClipAloneSavesNothing) {
    AddTrack(Song, 1, 9);
    Step(1);
    StandAt(17);
    Step(2, {QStringLiteral("none.wav"), true, false});
    EXPECT_EQ(Saved(), "0 0  clip 0");
    EXPECT_EQ(Step(3), "load SoundTracks/song.mp3|play|watch");
}

TEST_F(SoundOverride, AMissingTrackAfterTheRunForgetsThePlace) {
    AddTrack(Song, 1, 9);
    Step(1);
    StandAt(17);
    Step(2, {Bird, true, false});
    Files.remove(Full(QStringLiteral("SoundTracks/song.mp3")));
    Step(3);
    EXPECT_EQ(Saved(), "0 0 SoundTracks/song.mp3 clip 0");
}

TEST_F(SoundOverride, AnOverridingClipOutsideEveryGroupIsPlayedAsAnyOther) {
    EXPECT_EQ(Step(1, {Bird, true, false}), "load Slides/bird.wav|play");
    EXPECT_EQ(Saved(), "0 1  clip 1");
    EXPECT_EQ(Step(2, {Bird, true, false}), "load Slides/bird.wav|play");
    EXPECT_EQ(Saved(), "0 1  clip 2");
}

TEST_F(SoundOverride, AnOverridingClipThatCannotBePlayedStillSavesTheTracksPlace) {
    AddTrack(Song, 1, 9);
    AddClip(QStringLiteral("torn.wav"), 0);
    Step(1);
    StandAt(17);
    EXPECT_EQ(Step(2, {QStringLiteral("torn.wav"), true, false}), "load Slides/torn.wav|play");
    EXPECT_EQ(Step(3), "load SoundTracks/song.mp3|to 17|play|watch");
}

}  // namespace
}  // namespace neb::test
