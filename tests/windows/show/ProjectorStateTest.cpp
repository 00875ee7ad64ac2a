// The states of a running show, the user's steps, and the ticks.
#include "ProjectorRig.h"

namespace neb::test {
namespace {

using Projector = frmSlideShowProjector;
using ProjectorState = ProjectorRig;
using ProjectorSteps = ProjectorRig;
using ProjectorTicks = ProjectorRig;

TEST_F(ProjectorState, RunsAsSoonAsItIsActivated) {
    AddSlides(3);
    Run([&](Projector& Window) {
        EXPECT_EQ("Pause/Stop", Words(Window));
        EXPECT_EQ("on on", Timers());
        EXPECT_EQ(100, Timer1->interval());
        EXPECT_EQ(1000, Timer2->interval());
        EXPECT_EQ(1, CurrentSlideSeq);
        EXPECT_EQ(Show, CurrentSlideShowID);
        EXPECT_EQ("Slide 1", Caption());
        EXPECT_EQ("Lake", Window.SlideShowName().toStdString());
        EXPECT_EQ(PicturePath(1).toStdString(), Window.CurrentFile().toStdString());
        EXPECT_EQ("Step 1 at the start", Sound.Taken());
    });
}

TEST_F(ProjectorState, PausesAndResumesOnTheSameSlide) {
    AddSlides(3);
    Run([&](Projector& Window) {
        Window.NextSlide();
        Sound.Taken();
        Time.Seconds += 3.5;
        Window.PlayPause();
        EXPECT_EQ("Resume/Stop", Words(Window));
        EXPECT_EQ("off on", Timers());
        EXPECT_EQ("Pause", Sound.Taken());
        Time.Seconds += 3600;
        Window.PlayPause();
        EXPECT_EQ("Pause/Stop", Words(Window));
        EXPECT_EQ("on on", Timers());
        EXPECT_EQ("Play 0", Sound.Taken());
        EXPECT_EQ(2, CurrentSlideSeq);
        Time.Seconds += 6.4;
        Window.Timer1_Timer();
        EXPECT_EQ(2, CurrentSlideSeq);
        Time.Seconds += 0.1;
        Window.Timer1_Timer();
        EXPECT_EQ(3, CurrentSlideSeq) << "it kept what was left of its time";
    });
}

TEST_F(ProjectorState, StopsAndShowsTheSameSlideAgain) {
    AddSlides(3);
    Sound.OnStep = [](const SlideSound&, ShowSoundFields& Fields) {
        Fields.SoundRepeat = true;
        return true;
    };
    Run([&](Projector& Window) {
        Window.NextSlide();
        Sound.Taken();
        Window.StopRestart();
        EXPECT_EQ("Play/Resume", Words(Window));
        EXPECT_EQ("off off", Timers());
        EXPECT_EQ("Stop", Sound.Taken());
        Window.StopRestart();
        EXPECT_EQ("Pause/Stop", Words(Window));
        EXPECT_EQ("on on", Timers());
        EXPECT_EQ("Play 1|Step 2 again", Sound.Taken());
        EXPECT_EQ(2, CurrentSlideSeq);
    });
}

TEST_F(ProjectorState, StopsFromAPause) {
    AddSlides(2);
    Run([&](Projector& Window) {
        Window.PlayPause();
        Window.StopRestart();
        EXPECT_EQ("Play/Resume", Words(Window));
        EXPECT_EQ("off off", Timers());
    });
}

TEST_F(ProjectorState, PlayAfterAStopGoesBackToTheFirstSlide) {
    AddSlides(3);
    Run([&](Projector& Window) {
        Window.GotoEnd();
        Window.StopRestart();
        Sound.Taken();
        Window.PlayPause();
        EXPECT_EQ(1, CurrentSlideSeq);
        EXPECT_EQ("Pause/Stop", Words(Window));
        EXPECT_EQ("on on", Timers());
        EXPECT_EQ("Step 1 at the start", Sound.Taken());
    });
}

TEST_F(ProjectorState, PlayAfterAStopGoesBackToTheResumePoint) {
    AddSlides(4);
    MakeActive();
    Put("NextSlideSeq", QStringLiteral("3"));
    Run([&](Projector& Window) {
        EXPECT_EQ(3, CurrentSlideSeq);
        Window.GotoStart();
        Window.StopRestart();
        Window.PlayPause();
        EXPECT_EQ(3, CurrentSlideSeq);
        EXPECT_EQ("Slide 3", Caption());
    });
}

TEST_F(ProjectorState, StopMeHaltsARunningShowAndReStartMeTakesItUp) {
    AddSlides(2);
    Run([&](Projector& Window) {
        Window.StopMe();
        EXPECT_EQ("Resume/Stop", Words(Window));
        EXPECT_FALSE(Window.isEnabled());
        Window.ReStartMe();
        EXPECT_EQ("Pause/Stop", Words(Window));
        EXPECT_TRUE(Window.isEnabled());
    });
}

TEST_F(ProjectorState, ReStartMeLeavesAShowHaltedThatWasHaltedBefore) {
    AddSlides(2);
    Run([&](Projector& Window) {
        Window.PlayPause();
        Window.StopMe();
        Window.ReStartMe();
        EXPECT_EQ("Resume/Stop", Words(Window));
        Window.PlayPause();
        Window.ReStartMe();
        EXPECT_EQ("Pause/Stop", Words(Window)) << "a second call changes nothing";
    });
}

TEST_F(ProjectorSteps, GoRoundInBothDirections) {
    AddSlides(3);
    Run([&](Projector& Window) {
        Window.PreviousSlide();
        EXPECT_EQ(3, CurrentSlideSeq);
        Window.NextSlide();
        EXPECT_EQ(1, CurrentSlideSeq);
        Window.NextSlide();
        EXPECT_EQ(2, CurrentSlideSeq);
        Window.GotoEnd();
        EXPECT_EQ(3, CurrentSlideSeq);
        Window.PreviousSlide();
        EXPECT_EQ(2, CurrentSlideSeq);
        Window.GotoStart();
        EXPECT_EQ(1, CurrentSlideSeq);
        EXPECT_EQ("Slide 1", Caption());
    });
}

TEST_F(ProjectorSteps, LeaveAPausedShowPausedWithTheirWholeTimeBeforeThem) {
    AddSlides(4);
    Sound.OnStep = [](const SlideSound&, ShowSoundFields&) { return true; };
    Run([&](Projector& Window) {
        Time.Seconds += 7;
        Window.PlayPause();
        Window.NextSlide();
        EXPECT_EQ("Resume/Stop", Words(Window));
        EXPECT_EQ("off on", Timers());
        EXPECT_EQ("Slide 2", Caption());
        Time.Seconds += 500;
        Spin(250);
        EXPECT_EQ(2, CurrentSlideSeq);
        Sound.Taken();
        Window.PlayPause();
        EXPECT_EQ("Pause/Stop", Words(Window));
        EXPECT_EQ("Play 0", Sound.Taken());
        Time.Seconds += 9.9;
        Window.Timer1_Timer();
        EXPECT_EQ(2, CurrentSlideSeq);
        Time.Seconds += 0.1;
        Window.Timer1_Timer();
        EXPECT_EQ(3, CurrentSlideSeq);
    });
}

TEST_F(ProjectorSteps, SetAStoppedShowGoingAndTheWordsSaySo) {
    AddSlides(3);
    Sound.OnStep = [](const SlideSound&, ShowSoundFields&) { return true; };
    Run([&](Projector& Window) {
        Window.StopRestart();
        Window.PreviousSlide();
        EXPECT_EQ("Pause/Stop", Words(Window));
        EXPECT_EQ("on on", Timers());
        EXPECT_EQ(3, CurrentSlideSeq);
    });
}

TEST_F(ProjectorSteps, LeaveTheLoopCheckOffWhereNoTrackWantsIt) {
    AddSlides(3);
    Run([&](Projector& Window) {
        Window.NextSlide();
        EXPECT_EQ("on off", Timers());
    });
}

TEST_F(ProjectorSteps, TellTheSoundThatTheUserTookThem) {
    AddSlides(3);
    Run([&](Projector& Window) {
        Sound.Taken();
        Window.NextSlide();
        EXPECT_EQ("Step 2 by the user", Sound.Taken());
    });
}

TEST_F(ProjectorSteps, GoByTheRuleOfAMissingPlaceWhereTheNumbersHaveGaps) {
    AddSlides(3);
    Detail(2).SlideSeq = 5;
    Run([&](Projector& Window) {
        Window.NextSlide();
        EXPECT_EQ(1, CurrentSlideSeq) << "place 2 is missing";
        Window.GotoEnd();
        EXPECT_EQ(3, CurrentSlideSeq);
        EXPECT_EQ("Slide 3", Caption());
    });
}

TEST_F(ProjectorTicks, BringTheNextSlideWhenTheTimeIsOver) {
    AddSlides(2);
    Put("Timeout", QStringLiteral("4"));
    Run([&](Projector& Window) {
        EXPECT_EQ(4, Window.SlideInterval());
        Time.Seconds += 3.9;
        Window.Timer1_Timer();
        EXPECT_EQ(1, CurrentSlideSeq);
        Sound.Taken();
        Time.Seconds += 0.1;
        Window.Timer1_Timer();
        EXPECT_EQ(2, CurrentSlideSeq);
        EXPECT_EQ("Step 2 in time", Sound.Taken()) << "and no volume on this tick";
        EXPECT_EQ("on off", Timers());
        Time.Seconds += 4;
        Window.Timer1_Timer();
        EXPECT_EQ(1, CurrentSlideSeq) << "the last slide is followed by the first";
        EXPECT_EQ("Slide 1", Caption());
    });
}

TEST_F(ProjectorTicks, MoveNothingInManualProgressionButRestartTheClock) {
    AddSlides(2);
    SlideShow->ProgressionMethod = 1;
    Run([&](Projector& Window) {
        Sound.Taken();
        Time.Seconds += 10;
        Window.Timer1_Timer();
        EXPECT_EQ(1, CurrentSlideSeq);
        EXPECT_EQ("", Sound.Taken());
        Time.Seconds += 1;
        Window.Timer1_Timer();
        EXPECT_EQ("Volume 100", Sound.Taken());
    });
}

TEST_F(ProjectorTicks, GoOnOverMidnight) {
    AddSlides(2);
    Time.Seconds = 86396;
    Run([&](Projector& Window) {
        Time.Seconds = 5.5;
        Window.Timer1_Timer();
        EXPECT_EQ(1, CurrentSlideSeq);
        Time.Seconds = 6;
        Window.Timer1_Timer();
        EXPECT_EQ(2, CurrentSlideSeq);
        Time.Seconds = 15.5;
        Window.Timer1_Timer();
        EXPECT_EQ(2, CurrentSlideSeq) << "the clock of the second slide began after midnight";
    });
}

// The slides of a fitted track keep to the music: the second is due where the first was over, not
// where the tick came, be it over midnight.
TEST_F(ProjectorTicks, KeepAFittedSlideDueByTheMusicOverMidnight) {
    AddSlides(4);
    Sound.OnStep = [](const SlideSound&, ShowSoundFields& Fields) {
        Fields.FitToSong = true;
        return true;
    };
    Time.Seconds = 86385.95;
    Run([&](Projector& Window) {
        Time.Seconds = 86396;
        Window.Timer1_Timer();
        ASSERT_EQ(2, CurrentSlideSeq);
        Window.Timer1_Timer();
        EXPECT_EQ(2, CurrentSlideSeq);
        Time.Seconds = 5.9;
        Window.Timer1_Timer();
        EXPECT_EQ(2, CurrentSlideSeq);
        Time.Seconds = 5.95;
        Window.Timer1_Timer();
        EXPECT_EQ(3, CurrentSlideSeq);
        Time.Seconds = 15.95;
        Window.Timer1_Timer();
        EXPECT_EQ(4, CurrentSlideSeq);
    });
}

TEST_F(ProjectorTicks, FadeTheSoundOverTheLastSlideOfATrack) {
    AddSlides(3);
    Sound.OnStep = [](const SlideSound& Slide, ShowSoundFields& Fields) {
        Fields.FadeOnLast = true;
        Fields.TrackEndsHere = Slide.SlideSeq == 2;
        return true;
    };
    Run([&](Projector& Window) {
        const auto VolumeAfter = [&](double Seconds) {
            Sound.Taken();
            Time.Seconds += Seconds;
            Window.Timer1_Timer();
            return Sound.Taken();
        };
        EXPECT_EQ("Volume 100", VolumeAfter(5));
        EXPECT_EQ("Step 2 in time", VolumeAfter(5));
        EXPECT_EQ("Volume 75", VolumeAfter(2.5));
        EXPECT_EQ("Volume 50", VolumeAfter(2.5));
        EXPECT_EQ("Volume 2", VolumeAfter(4.8));
        EXPECT_EQ("Volume 0", VolumeAfter(0.1)) << "silent when its time is over";
        EXPECT_EQ("Step 3 in time", VolumeAfter(0.1));
        EXPECT_EQ("Volume 100", VolumeAfter(0.1));
    });
}

TEST_F(ProjectorTicks, DoNotFadeInManualProgression) {
    AddSlides(1);
    SlideShow->ProgressionMethod = 1;
    Sound.OnStep = [](const SlideSound&, ShowSoundFields& Fields) {
        Fields.FadeOnLast = Fields.TrackEndsHere = true;
        return true;
    };
    Run([&](Projector& Window) {
        Sound.Taken();
        Time.Seconds += 5;
        Window.Timer1_Timer();
        EXPECT_EQ("Volume 100", Sound.Taken());
    });
}

TEST_F(ProjectorTicks, CheckTheLoopOfTheSoundOnceASecond) {
    AddSlides(1);
    Run([&](Projector& Window) {
        Sound.Taken();
        Window.Timer2_Timer();
        EXPECT_EQ("CheckRepeat", Sound.Taken());
    });
}

TEST_F(ProjectorTicks, ComeByThemselves) {
    AddSlides(2);
    Run([&](Projector&) {
        Sound.Taken();
        Time.Seconds += 11;
        Spin(250);
        EXPECT_EQ(2, CurrentSlideSeq);
        EXPECT_EQ("Step 2 in time|Volume 100", Sound.Taken());
    });
}

}  // namespace
}  // namespace neb::test
