// Slides keep to their times, whenever the ticks come.
#include "ProjectorRig.h"

namespace neb::test {
namespace {

using Projector = frmSlideShowProjector;
using ProjectorTime = ProjectorRig;

TEST_F(ProjectorTime, WhatTicksComeLateDoesNotAddUp) {
    AddSlides(9);
    Put("Timeout", QStringLiteral("4"));
    Run([&](Projector& Window) {
        const double Start = Time.Seconds;
        for (int Slide = 2; Slide <= 9; ++Slide) {
            Time.Seconds = Start + 4 * (Slide - 1) - 0.01;
            Window.Timer1_Timer();
            ASSERT_EQ(Slide - 1, CurrentSlideSeq);
            Time.Seconds += 0.1;  // the tick after it is so much late
            Window.Timer1_Timer();
            ASSERT_EQ(Slide, CurrentSlideSeq);
        }
    });
}

TEST_F(ProjectorTime, NothingIsMadeUpForAfterTheMachineWasAsleep) {
    AddSlides(4);
    Run([&](Projector& Window) {
        Time.Seconds += 14;
        Window.Timer1_Timer();
        EXPECT_EQ(2, CurrentSlideSeq);
        Time.Seconds += 9.9;
        Window.Timer1_Timer();
        EXPECT_EQ(2, CurrentSlideSeq) << "it has its whole time";
    });
}

TEST_F(ProjectorTime, OneTickMoreComesWhenASlideIsOverBetweenTwo) {
    AddSlides(3);
    Run([&](Projector& Window) {
        Timer1->stop();  // whatever comes now is that one
        Time.Seconds += 9.96;
        Window.Timer1_Timer();
        Time.Seconds += 0.04;
        Spin(60);
        EXPECT_EQ(2, CurrentSlideSeq);
        Time.Seconds += 9.96;
        Window.Timer1_Timer();
        Window.PlayPause();
        Time.Seconds += 0.04;
        Spin(60);
        EXPECT_EQ(2, CurrentSlideSeq) << "not in a pause";
    });
}

}  // namespace
}  // namespace neb::test
