// Shows that are paused and stopped, on a clock that jumps: what is left of a slide's time, what
// the music does, and where a step leads meanwhile.
#include "SimulationRig.h"

namespace neb::test {
namespace {

using ShowPause = SimulationRig;

TEST_F(ShowPause, APauseHoldsTheSoundAndTheSlideKeepsWhatWasLeftOfItsTime) {
    AddSlides(3);
    AddTrack(u"a.wav"_s, 100, 1, 3);
    Rehearsal Of(Engine, Album, Show, Options());
    Of.Start();
    Of.RunFor(3);
    Of.Run().PlayPause();
    Of.RunFor(30);
    Of.Run().PlayPause();
    Of.RunFor(6);
    EXPECT_EQ("1@0 2@35", Places(Of));
    EXPECT_EQ("0 load a|0 play a@0|3 pause a@3|33 play a@3", Heard(Of));
}

TEST_F(ShowPause, AFittedShowEndsWithItsMusicAfterAnyPauses) {
    AddSlides(5);
    AddTrack(u"a.wav"_s, 40, 1, 4, true);
    Rehearsal Of(Engine, Album, Show, Options());
    Of.Start();
    for (const double Seconds : {7.0, 1.5, 14.25}) {  // the third lies behind two changes of slides
        Of.RunFor(Seconds);
        Of.Run().PlayPause();
        Of.RunFor(100.03);
        Of.Run().PlayPause();
    }
    Of.RunFor(20);
    EXPECT_EQ("1@0 2@210.06 3@220.06 4@330.09 5@340.09", Places(Of));
    EXPECT_EQ(
        "0 load a|0 move a@0|0 play a@0|7 pause a@7|107.03 play a@7|108.53 pause a@8.5|"
        "208.56 play a@8.5|222.81 pause a@22.75|322.84 play a@22.75|340.09 end a@40|340.09 free",
        Heard(Of))
        << "no slide is silent, and none outlasts the music";
}

TEST_F(ShowPause, AStepInAPauseLeavesTheShowPaused) {
    AddSlides(4);
    AddTrack(u"a.wav"_s, 40, 1, 4, true);
    Rehearsal Of(Engine, Album, Show, Options());
    Of.Start();
    Of.RunFor(3);
    Of.Run().PlayPause();
    Of.RunFor(10);
    Of.Run().NextSlide();
    Of.RunFor(60);
    Of.Run().NextSlide();
    EXPECT_FALSE(Of.Timer1On());
    EXPECT_EQ("Resume/Stop",
              (Of.Run().State().PlayCommand + u'/' + Of.Run().State().StopCommand).toStdString());
    EXPECT_EQ("1@0 2@13 3@73", Places(Of));
    EXPECT_EQ("0 load a|0 move a@0|0 play a@0|3 pause a@3|13 move a@10|73 move a@20", Heard(Of))
        << "at its place, and silent";
    Of.RunFor(5);
    Of.Run().PlayPause();
    Of.RunFor(11);
    EXPECT_EQ("1@0 2@13 3@73 4@88", Places(Of)) << "with its whole time";
    EXPECT_EQ("0 load a|0 move a@0|0 play a@0|3 pause a@3|13 move a@10|73 move a@20|78 play a@20",
              Heard(Of));
    Of.Run().PlayPause();
    EXPECT_FALSE(Of.Timer1On()) << "the next P pauses";
}

TEST_F(ShowPause, AStepInAStoppedShowSetsItGoingAndTheWordsSaySo) {
    AddSlides(4);
    Rehearsal Of(Engine, Album, Show, Options());
    Of.Start();
    Of.Run().StopRestart();
    Of.RunFor(10);
    Of.Run().NextSlide();
    EXPECT_EQ("Pause", Of.Run().State().PlayCommand.toStdString());
    EXPECT_EQ("Stop", Of.Run().State().StopCommand.toStdString());
    Of.RunFor(6);
    EXPECT_EQ("1@0 2@10 3@15", Places(Of));
    Of.Run().PlayPause();
    EXPECT_FALSE(Of.Timer1On());
}

TEST_F(ShowPause, PreferencesAndOtherWindowsLeaveAPausedShowPaused) {
    AddSlides(4);
    AddTrack(u"a.wav"_s, 2, 1, 4, false, true);
    Rehearsal Of(Engine, Album, Show, Options());
    Of.Start();
    Of.RunFor(3);
    Of.Run().PlayPause();
    Of.Run().EditPreferences([&] { Of.RunFor(10); });
    Of.Run().StopMe();
    Of.RunFor(10);
    Of.Run().ReStartMe();
    Of.RunFor(10);
    EXPECT_EQ("0 load a|0 play a@0|2 play a@0|3 pause a@1", Heard(Of));
    Of.Run().PlayPause();
    Of.Run().EditPreferences([&] { Of.RunFor(10); });
    Of.RunFor(1);
    EXPECT_EQ("0 load a|0 play a@0|2 play a@0|3 pause a@1|33 play a@1|33 pause a@1|43 play a@1",
              Heard(Of));
    EXPECT_EQ("1@0", Places(Of));
    Of.RunFor(1);
    EXPECT_EQ("1@0 2@45", Places(Of));
}

// By a media key, say, while a box of preferences is up.
TEST_F(ShowPause, AShowThatGoesOnOrStopsDuringPreferencesStaysSo) {
    AddSlides(3);
    Rehearsal Of(Engine, Album, Show, Options());
    Of.Start();
    Of.Run().EditPreferences([&] { Of.Run().PlayPause(); });
    EXPECT_EQ(u"Pause"_s, Of.Run().State().PlayCommand);
    Of.Run().NextSlide();
    Of.Run().EditPreferences([&] { Of.Run().StopRestart(); });
    EXPECT_EQ(u"Play"_s, Of.Run().State().PlayCommand);
    EXPECT_EQ(2, Of.Run().Memory().CurrentSlideSeq);
}

}  // namespace
}  // namespace neb::test
