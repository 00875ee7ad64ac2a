// Whole shows on a clock that jumps: what sounded when, against what the rules say, written out by
// hand.
#include "SimulationRig.h"

namespace neb::test {
namespace {

using ShowSimulation = SimulationRig;

TEST_F(ShowSimulation, TracksPlayOverTheirSlidesAndEndWithThem) {
    AddSlides(5);
    AddTrack(u"a.wav"_s, 7, 1, 2);
    AddTrack(u"b.wav"_s, 60, 4, 5);
    EXPECT_EQ(
        "0 load a|0 play a@0|7 end a@7|10 free|"
        "15 load b|15 play b@0|"
        "25 free|25 load a|25 play a@0",
        HeardFor(27));
}

TEST_F(ShowSimulation, AManualShowPlaysItsTracksOnUnderOneSlide) {
    AddSlides(3);
    SlideShow->ProgressionMethod = 1;
    AddTrack(u"a.wav"_s, 7, 1, 2, false, false, true);
    Rehearsal Of(Engine, Album, Show, Options());
    Of.Start();
    Of.RunFor(20);
    Of.Run().NextSlide();
    Of.RunFor(20);
    Of.Run().NextSlide();
    EXPECT_EQ("0 load a|0 play a@0|7 end a@7|40 free", Heard(Of));
    for (const RehearsalSoundEvent& Event : Of.SoundEvents()) EXPECT_EQ(100, Event.Volume);
}

TEST_F(ShowSimulation, ANonRepeatingTrackOfTheWholeShowStartsAgainWithIt) {
    AddSlides(2);
    AddTrack(u"a.wav"_s, 60, 1, 2);
    EXPECT_EQ("0 load a|0 play a@0|10 move a@0|10 play a@0", HeardFor(12));
}

TEST_F(ShowSimulation, ARepeatingTrackIsLeftToRunWhenTheShowComesRound) {
    AddSlides(2);
    AddTrack(u"a.wav"_s, 60, 1, 2, false, true);
    EXPECT_EQ("0 load a|0 play a@0", HeardFor(12));
}

TEST_F(ShowSimulation, ARepeatingTrackStartsAgainTheMomentItEnds) {
    AddSlides(3);
    Put("Timeout", u"5.5"_s);
    AddTrack(u"a.wav"_s, 2.4, 1, 3, false, true);
    const std::string Rounds = HeardFor(10);
    EXPECT_EQ("0 load a|0 play a@0|2.4 play a@0|4.8 play a@0|7.2 play a@0|9.6 play a@0", Rounds);
}

TEST_F(ShowSimulation, AFittedTrackGivesItsTimeToTheSlides) {
    AddSlides(4);
    AddTrack(u"a.wav"_s, 30, 1, 4, true);
    Rehearsal Of(Engine, Album, Show, Options());
    Of.Start();
    Of.RunFor(39);
    EXPECT_EQ("1@0 2@7.5 3@15 4@22.5 1@30 2@37.5", Places(Of));
    EXPECT_EQ("0 load a|0 move a@0|0 play a@0|30 end a@30|30 move a@0|30 play a@0", Heard(Of));
}

TEST_F(ShowSimulation, AFittedTrackFollowsTheUsersSteps) {
    AddSlides(10);
    AddTrack(u"a.wav"_s, 100, 1, 10, true);
    Rehearsal Of(Engine, Album, Show, Options());
    Of.Start();
    Of.RunFor(25);
    Of.Run().NextSlide();  // to place 4
    Of.RunFor(12);
    Of.Run().PreviousSlide();  // from place 5 back to 4
    Of.Run().GotoEnd();
    Of.RunFor(1);
    Of.Run().GotoStart();
    EXPECT_EQ("1@0 2@10 3@20 4@25 5@35 4@37 10@37 1@38", Places(Of));
    EXPECT_EQ(
        "0 load a|0 move a@0|0 play a@0|25 move a@30|25 play a@30|"
        "37 move a@30|37 play a@30|37 move a@90|37 play a@90|"
        "38 move a@0|38 play a@0",
        Heard(Of));
}

// Nobody hears a snatch of any other moment.
TEST_F(ShowSimulation, AUsersStepInAFittedGroupInTheMiddleMovesTheSoundOnceToItsPlace) {
    AddSlides(6);
    AddTrack(u"a.wav"_s, 40, 3, 6, true);
    Rehearsal Of(Engine, Album, Show, Options());
    Of.Start();
    Of.RunFor(12);
    Of.Run().NextSlide();
    Of.RunFor(9);
    Of.Run().GotoEnd();
    Of.Run().GotoStart();
    EXPECT_EQ("1@0 2@5 3@10 4@12 6@21 1@21", Places(Of));
    EXPECT_EQ(
        "10 load a|10 move a@0|10 play a@0|12 move a@10|12 play a@10|21 move a@30|21 play a@30|"
        "21 free",
        Heard(Of));
}

TEST_F(ShowSimulation, AStepOutOfAFittedGroupLeavesItsMusicWhereItIs) {
    AddSlides(4);
    AddTrack(u"a.wav"_s, 40, 1, 2, true);
    AddTrack(u"b.wav"_s, 40, 3, 4, true);
    Rehearsal Of(Engine, Album, Show, Options());
    Of.Start();
    Of.RunFor(3);
    Of.Run().GotoEnd();
    EXPECT_EQ("0 load a|0 move a@0|0 play a@0|3 free|3 load b|3 move b@20|3 play b@20", Heard(Of));
}

TEST_F(ShowSimulation, ARunOfOverridingClipsIsFollowedByTheTrackWhereItWasCutOff) {
    AddSlides(5);
    AddTrack(u"a.wav"_s, 100, 1, 5);
    AddClip(2, u"c.wav"_s, 2, true);
    AddClip(3, u"d.wav"_s, 20, true);
    EXPECT_EQ(
        "0 load a|0 play a@0|5 free|5 load c|5 play c@0|7 end c@2|"
        "10 free|10 load d|10 play d@0|"
        "15 free|15 load a|15 move a@5|15 play a@5",
        HeardFor(24));
}

TEST_F(ShowSimulation, AFittedTrackIsPlacedByItsSlideAfterAnOverridingClip) {
    AddSlides(5);
    AddTrack(u"a.wav"_s, 50, 1, 5, true);
    AddClip(2, u"c.wav"_s, 2, true);
    Rehearsal Of(Engine, Album, Show, Options());
    Of.Start();
    Of.RunFor(24);
    EXPECT_EQ("1@0 2@10 3@15", Places(Of)) << "the clip's slide has the plain time";
    EXPECT_EQ(
        "0 load a|0 move a@0|0 play a@0|10 free|10 load c|10 play c@0|12 end c@2|"
        "15 free|15 load a|15 move a@20|15 play a@20",
        Heard(Of));
}

TEST_F(ShowSimulation, AClipWithoutOverrideIsHeardOnlyWhereNoTrackIs) {
    AddSlides(3);
    AddTrack(u"a.wav"_s, 100, 1, 1);
    AddClip(1, u"c.wav"_s, 2, false);
    AddClip(2, u"d.wav"_s, 2, false);
    EXPECT_EQ("0 load a|0 play a@0|5 free|5 load d|5 play d@0|7 end d@2|10 free", HeardFor(14));
}

TEST_F(ShowSimulation, AnOverridingClipRepeatsAndStaysSilentInAPause) {
    AddSlides(2);
    Put("Timeout", u"60"_s);
    AddClip(2, u"c.wav"_s, 2, true, true);
    Rehearsal Of(Engine, Album, Show, Options());
    Of.Start();
    Of.RunFor(65);
    Of.Run().PlayPause();
    Of.RunFor(10);
    EXPECT_EQ("60 load c|60 play c@0|62 play c@0|64 play c@0|65 pause c@1", Heard(Of));
    Of.Run().PlayPause();
    Of.RunFor(2);
    EXPECT_EQ("60 load c|60 play c@0|62 play c@0|64 play c@0|65 pause c@1|75 play c@1|76 play c@0",
              Heard(Of));
}

TEST_F(ShowSimulation, TheFirstOfTwoTracksOnASlideIsHeard) {
    AddSlides(3);
    AddTrack(u"a.wav"_s, 100, 2, 2);
    AddTrack(u"b.wav"_s, 100, 1, 3);
    EXPECT_EQ("0 load b|0 play b@0|5 free|5 load a|5 play a@0|10 free|10 load b|10 play b@0",
              HeardFor(14));
}

TEST_F(ShowSimulation, AFadeRunsOverTheLastSlideAndTheNextTickIsLoudAgain) {
    AddSlides(3);
    AddTrack(u"a.wav"_s, 100, 1, 2, false, false, true);
    AddTrack(u"b.wav"_s, 100, 3, 3);
    Rehearsal Of(Engine, Album, Show, Options());
    Of.Start();
    QStringList Volumes;
    for (const double Until : {4.9, 5.0, 5.1, 6.0, 7.5, 9.0, 9.9, 10.0, 10.1}) {
        Of.RunUntil(Until);
        Volumes << QString::number(Of.SoundEvents().back().Volume);
    }
    // A new file begins at the full level.
    EXPECT_EQ("100 100 98 80 50 20 0 100 100", Volumes.join(u' ').toStdString());
}

TEST_F(ShowSimulation, AStepInAStoppedFittedShowPlaysFromTheSlidesPlace) {
    AddSlides(4);
    AddTrack(u"a.wav"_s, 40, 1, 4, true);
    Rehearsal Of(Engine, Album, Show, Options());
    Of.Start();
    Of.RunFor(12);
    Of.Run().StopRestart();
    Of.RunFor(10);
    Of.Run().NextSlide();
    Of.RunFor(11);
    EXPECT_EQ("1@0 2@10 3@22 4@32", Places(Of));
    EXPECT_EQ(
        "0 load a|0 move a@0|0 play a@0|12 move a@0|12 stop a@0|"
        "22 move a@20|22 play a@20",
        Heard(Of));
}

TEST_F(ShowSimulation, ARestartShowsTheSameSlideAgainAndPlaysFromTheBeginning) {
    AddSlides(4);
    AddTrack(u"a.wav"_s, 100, 1, 4);
    Rehearsal Of(Engine, Album, Show, Options());
    Of.Start();
    Of.RunFor(7);
    Of.Run().StopRestart();
    Of.RunFor(2);
    Of.Run().StopRestart();
    Of.RunFor(6);
    EXPECT_EQ("1@0 2@5 2@9 3@14", Places(Of));
    EXPECT_EQ("0 load a|0 play a@0|7 move a@0|7 stop a@0|9 play a@0", Heard(Of));
}

TEST_F(ShowSimulation, PlayAfterAStopBeginsAtTheFirstSlideAndItsTrack) {
    AddSlides(3);
    AddTrack(u"a.wav"_s, 100, 1, 1);
    AddTrack(u"b.wav"_s, 100, 2, 3);
    Rehearsal Of(Engine, Album, Show, Options());
    Of.Start();
    Of.RunFor(7);
    Of.Run().StopRestart();
    Of.RunFor(2);
    Of.Run().PlayPause();
    Of.RunFor(1);
    EXPECT_EQ("1@0 2@5 1@9", Places(Of));
    EXPECT_EQ(
        "0 load a|0 play a@0|5 free|5 load b|5 play b@0|7 move b@0|7 stop b@0|"
        "9 free|9 load a|9 play a@0",
        Heard(Of));
}

TEST_F(ShowSimulation, AMissingTrackIsToldOnceAndTheShowGoesOn) {
    AddSlides(3);
    SlideShow->SaveSoundTrack(1, u"gone.wav"_s, 1, 2, false, true, false);
    Rehearsal Of(Engine, Album, Show, Options());
    Of.Start();
    Of.RunFor(14);
    EXPECT_EQ("1@0 2@5 3@10", Places(Of));
    ASSERT_EQ(1U, Of.Boxes().size());
    EXPECT_EQ("The Sound Track for this group of slides does not exist.",
              Of.Boxes()[0].Text.toStdString());
}

TEST_F(ShowSimulation, AnEmptyFittedTrackIsToldAndTheSlidesKeepTheirTime) {
    AddSlides(3);
    AddTrack(u"a.wav"_s, 0, 1, 3, true);
    Rehearsal Of(Engine, Album, Show, Options());
    Of.Start();
    Of.RunFor(14);
    EXPECT_EQ("1@0 2@5 3@10", Places(Of));
    ASSERT_EQ(1U, Of.Boxes().size());
    EXPECT_EQ("The Sound Track for this group of slides appears to be empty.",
              Of.Boxes()[0].Text.toStdString());
}

TEST_F(ShowSimulation, ASlideThatWouldOverrideButHasNoSoundLeavesTheTrackAlone) {
    AddSlides(3);
    AddTrack(u"a.wav"_s, 100, 1, 3);
    Slide(2).Override = true;
    EXPECT_EQ("0 load a|0 play a@0", HeardFor(14));
}

TEST_F(ShowSimulation, AShowBeginsWhereItIsToldWhereverItWasLeft) {
    AddSlides(4);
    Put("ActiveAlbum", QString::number(Album));
    Put("ActiveSlideShow", QString::number(Show));
    Put("NextSlideSeq", u"2"_s);
    RehearsalOptions From = Options();
    From.First = 3;
    Rehearsal Of(Engine, Album, Show, From);
    EXPECT_EQ(RehearsalEnd::CameRound, Of.RunWhole());
    EXPECT_EQ("3@0 4@5", Places(Of));
}

TEST_F(ShowSimulation, AShowThatWasStoppedBehindItsPreferencesStaysStopped) {
    AddSlides(3);
    Rehearsal Of(Engine, Album, Show, Options());
    Of.Start();
    Of.RunFor(3);
    Of.Run().EditPreferences([&] { Of.Run().StopRestart(); });
    Of.RunFor(30);
    EXPECT_EQ("1@0", Places(Of));
    EXPECT_FALSE(Of.Timer1On());
}

TEST_F(ShowSimulation, TheCaptionOfAStandInSaysThatTheSlideIsMissing) {
    AddSlides(2);
    DeleteFile(PicturePath(Slide(2).SlideID));
    Rehearsal Of(Engine, Album, Show, Options());
    Of.Start();
    Of.RunFor(6);
    ASSERT_EQ(2U, Of.Cues().size());
    EXPECT_EQ("Slide 1", Of.Cues()[0].Caption.toStdString());
    EXPECT_EQ("Slide 2: Current slide missing!", Of.Cues()[1].Caption.toStdString());
}

// An hour of music on slides whose time is no whole number of ticks.
TEST_F(ShowSimulation, AFittedShowKeepsToItsMusicForAnHour) {
    constexpr int Count = 251;
    AddSlides(Count);
    AddTrack(u"a.wav"_s, 3600, 1, Count, true);
    Rehearsal Of(Engine, Album, Show, Options());
    EXPECT_EQ(RehearsalEnd::CameRound, Of.RunWhole());
    ASSERT_EQ(static_cast<size_t>(Count), Of.Cues().size());
    for (size_t I = 0; I < Of.Cues().size(); ++I) {
        const double Exact = 3600.0 * static_cast<double>(I) / Count;
        EXPECT_GE(Of.Cues()[I].At, Exact - 0.01) << "slide " << I + 1;
        EXPECT_LE(Of.Cues()[I].At, Exact + 0.002) << "slide " << I + 1;
    }
}

TEST_F(ShowSimulation, AFittedShowKeepsToItsMusicOverMidnight) {
    constexpr int Count = 4001;  // some 15 hours from the morning on
    AddSlides(1);
    for (int Seq = 2; Seq <= Count; ++Seq)
        SlideShow->SaveDetail(SlideShow->Details[0]->SlideID, Seq, {});
    AddTrack(u"a.wav"_s, 54000, 1, Count, true);
    Rehearsal Of(Engine, Album, Show, Options());
    EXPECT_EQ(RehearsalEnd::CameRound, Of.RunWhole());
    const RehearsalCue& Last = Of.Cues().back();
    EXPECT_EQ(Count, Last.SlideSeq);
    EXPECT_NEAR(54000.0 * (Count - 1) / Count, Last.At, 0.1);
}

}  // namespace
}  // namespace neb::test
