// Shows as they are heard: the real window, the real timers and the real player, with a sound
// device that writes every sample to a file.
#include <cmath>

#include "HeardShowRig.h"

namespace neb::test {
namespace {

constexpr int ShowRate = HeardRate;
constexpr int Buffer = 1024;  // frames that the device takes at once

TEST_F(HeardShow, ATrackFadesByTheCurveOverItsLastSlideAndTheNextIsLoudAgain) {
    AddTrack(harness::Tone(3.0, ShowRate), 1, 1, false, true);
    AddTrack(harness::Tone(3.0, ShowRate), 2, 3, false, false);
    const Heard Out = Listen(1700);
    const size_t Start = Out.FirstSound();
    ASSERT_LT(Start + 3 * ShowRate / 2, Out.size());
    // A hundredth of the way is a quarter of a decibel; the volume moves ten times a second, and
    // takes a tenth of a second to get there.
    for (const double Seconds : {0.25, 0.45, 0.65}) {
        const double Level = Out.Level(Start + static_cast<size_t>(Seconds * ShowRate));
        EXPECT_GE(Level, std::pow(10, -25 * (Seconds + 0.06) / 20)) << Seconds;
        EXPECT_LE(Level, std::pow(10, -25 * (Seconds - 0.26) / 20)) << Seconds;
    }
    double Quietest = 1;  // before the next begins
    for (double Seconds = 0.9; Seconds < 1.1; Seconds += 0.005)
        Quietest = std::min(Quietest, Out.Level(Start + static_cast<size_t>(Seconds * ShowRate)));
    EXPECT_LT(Quietest, 0.02) << "it ends in silence";
    EXPECT_NEAR(1, Out.Level(Start + static_cast<size_t>(1.5 * ShowRate)), 0.01);
}

// The samples tell their own time: each round is followed by the next without a sample between.
TEST_F(HeardShow, ARepeatingTrackGoesRoundWithoutAGap) {
    Put("Timeout", QStringLiteral("60"));
    AddTrack(harness::Ramp(0.3, ShowRate), 1, 3, true, false);
    const Heard Out = Listen(1500);
    const size_t Start = Out.FirstSound();
    const auto Round = static_cast<size_t>(0.3 * ShowRate);
    ASSERT_LT(Start + 4 * Round, Out.size());
    for (size_t I = Start; I < Start + 4 * Round; ++I)
        ASSERT_NEAR(static_cast<double>((I - Start) % Round) / ShowRate, harness::RampTime(Out[I]),
                    1e-4)
            << "frame " << I - Start;
}

TEST_F(HeardShow, ARepeatingTrackStaysSilentInAPause) {
    Put("Timeout", QStringLiteral("60"));
    AddTrack(harness::Tone(0.5, ShowRate), 1, 3, true, false);
    const Heard Out = Listen(50, [&](Projector& Window) {
        Spin(400);
        Window.PlayPause();
        Spin(2300);  // two looks of the second clock
    });
    const size_t End = Out.FirstSilence(Out.FirstSound());
    EXPECT_EQ(Out.size(), Out.FirstSound(End + ShowRate / 100));
}

TEST_F(HeardShow, ATrackGoesOnWhereAnOverridingClipCutItOff) {
    Put("Timeout", QStringLiteral("60"));
    // A track whose samples tell their own time, and a clip that cannot be mistaken for it.
    AddTrack(harness::Ramp(10.0, ShowRate), 1, 3, false, false);
    Slide(2).SoundTrackLoc = QStringLiteral("clip.wav");
    Slide(2).Override = true;
    WriteFile(Folder / QStringLiteral("db/Albums/%1/Slides/clip.wav").arg(Album),
              harness::WaveBytes(std::vector<float>(ShowRate * 2, -0.5F), ShowRate));
    const Heard Out = Listen(400, [&](Projector& Window) {
        Spin(500);
        Window.NextSlide();
        Spin(400);
        Window.NextSlide();
    });
    // The one sound may end a buffer before the other begins; ramps of some milliseconds lie around
    // each end. The track rises all the while: its highest sample is the last before its ramp.
    size_t Clip = Out.FirstSound(), After = Out.size();
    float Highest = 0;
    for (; Clip < Out.size() && Out[Clip] > -0.49F; ++Clip) Highest = std::max(Highest, Out[Clip]);
    while (After > Clip && Out[After - 1] > -0.49F) --After;
    while (After < Out.size() && Out[After] < 0.001F) ++After;
    const size_t Margin = ShowRate / 50;
    ASSERT_LT(After + Margin, Out.size());
    const double Left = harness::RampTime(Highest);
    const double Taken =
        harness::RampTime(Out[After + Margin]) - static_cast<double>(Margin) / ShowRate;
    EXPECT_GT(Left, 0.3);
    EXPECT_NEAR(Left, Taken, static_cast<double>(Buffer) / ShowRate);
}

TEST_F(HeardShow, ATrackEndsInSilenceAtTheFirstSlideThatItDoesNotCover) {
    AddTrack(harness::Tone(10.0, ShowRate), 1, 1, true, false);
    const Heard Out = Listen(1600);
    const size_t Start = Out.FirstSound();
    const size_t End = Out.FirstSilence(Start);
    EXPECT_NEAR(1.1, static_cast<double>(End - Start) / ShowRate, 0.15);
    EXPECT_EQ(Out.size(), Out.FirstSound(End + ShowRate / 100));
}

TEST_F(HeardShow, ATrackThatIsOverIsFollowedBySilence) {
    Put("Timeout", QStringLiteral("60"));
    AddTrack(harness::Tone(0.5, ShowRate), 1, 3, false, false);
    const Heard Out = Listen(1300);
    const size_t Start = Out.FirstSound();
    const size_t End = Out.FirstSilence(Start);
    EXPECT_NEAR(0.5, static_cast<double>(End - Start) / ShowRate, 0.001);
    EXPECT_EQ(Out.size(), Out.FirstSound(End + ShowRate / 100));
}

TEST_F(HeardShow, APauseHoldsTheSoundAndAResumeGoesOnWithinABuffer) {
    Put("Timeout", QStringLiteral("60"));
    AddTrack(harness::Ramp(10.0, ShowRate), 1, 3, false, false);
    const Heard Out = Listen(300, [&](Projector& Window) {
        Spin(400);
        Window.PlayPause();
        Spin(300);
        Window.PlayPause();
    });
    const size_t End = Out.FirstSilence(Out.FirstSound());
    const size_t Again = Out.FirstSound(End + ShowRate / 100);
    ASSERT_LT(Again + ShowRate / 10, Out.size());
    const size_t Margin = ShowRate / 50;
    const double Left =
        harness::RampTime(Out[End - Margin]) + static_cast<double>(Margin) / ShowRate;
    const double Taken =
        harness::RampTime(Out[Again + Margin]) - static_cast<double>(Margin) / ShowRate;
    EXPECT_NEAR(Left, Taken, static_cast<double>(Buffer) / ShowRate);
}

}  // namespace
}  // namespace neb::test
