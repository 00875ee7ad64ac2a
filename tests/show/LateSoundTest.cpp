// Sounds in a folder that does not answer, or answers late: the show goes on, and the sound begins
// where it would be when it has come.
#include <gtest/gtest.h>

#include <thread>

#include "db/clsDBEngine.h"
#include "db/clsNEBSlideShow.h"
#include "db/modAlbumFiles.h"
#include "harness/Heartbeat.h"
#include "harness/StalledSound.h"
#include "harness/TempFolder.h"
#include "show/EngineSound.h"
#include "sound/devices/ClockedSound.h"
#include "support/files/modHostFiles.h"

namespace neb::test {
namespace {

class StillClock : public Clock {
  public:
    QDateTime Now() const override { return QDate(2004, 5, 6).startOfDay(); }
    double Ticks() const override { return Milliseconds; }
    std::atomic<double> Milliseconds = 0;
};

const auto Song = QStringLiteral("song.mp3");
const auto Bird = QStringLiteral("bird.wav");

class LateSound : public ::testing::Test {
  protected:
    LateSound() {
        Engine.SetDBPath(Folder / QStringLiteral("db/"));
        Engine.InitializeDB();
        for (const QString& Dir :
             {SoundTracksFolder(Engine.DBPath(), 7), SlidesFolder(Engine.DBPath(), 7)})
            MakeDirs(Dir);
        WriteFile(SoundTracksFolder(Engine.DBPath(), 7) + Song, "sound");
        WriteFile(SlidesFolder(Engine.DBPath(), 7) + Bird, "sound");
    }
    void AddTrack(const QString& Name, int First, int Last, bool Fit, bool Repeat = false) {
        Show.SaveSoundTrack(1, Name, First, Last, Repeat, Fit, false);
    }
    void Step(std::int32_t Seq, const QString& Clip = {}) {
        Fields.FitToSong = Fields.FadeOnLast = Fields.TrackEndsHere = false;
        Fields.SlideInterval = 12;
        harness::Heartbeat Pulse({}, 0);
        Sound->SoundStep({7, &Show, Seq, Clip, false, false}, StepCause::Timer, Fields);
        EXPECT_LT(Pulse.LongestStandstill(), 100);
    }
    // The slide has been up for so long; what the sound was told.
    std::string At(double Elapsed) {
        Sound->TakeLate(Elapsed, Fields);
        return std::exchange(Events, {}).join(u'|').toStdString();
    }
    // The folder answers, and what was being opened has come.
    void Answer() {
        Devices.Gate->Open = true;
        while (Devices.Gate->Waiting > 0) std::this_thread::sleep_for(std::chrono::milliseconds(1));
        std::this_thread::sleep_for(std::chrono::milliseconds(30));
    }

    harness::TempFolder Folder;
    StillClock Time;
    clsDBEngine Engine;
    clsNEBSlideShow Show;
    ShowSoundFields Fields;
    QStringList Events, Told;
    ClockedSoundDevices Clocked{Time, [](const QString&) { return 60.0; },
                                [this](const SoundEvent& Event) {
                                    if (Event.What == SoundEvent::Kind::Moved)
                                        Events << QStringLiteral("to %1").arg(Event.Position);
                                    if (Event.What == SoundEvent::Kind::Run)
                                        Events << QStringLiteral("play %1").arg(Event.Position);
                                }};
    harness::StalledDevices Devices{Clocked};
    std::unique_ptr<EngineSound> Sound = std::make_unique<EngineSound>(
        &Engine, &Devices, [this](const QString& Text) { Told << Text; });
};

TEST_F(LateSound, ATrackThatIsNotFittedPlaysFromWhereItWouldBe) {
    AddTrack(Song, 1, 9, false);
    Step(1);
    EXPECT_EQ("", At(3));
    Answer();
    EXPECT_EQ("to 3.1|play 3.1", At(3.1));
    EXPECT_EQ("", At(3.2)) << "once";
}

TEST_F(LateSound, SoLittleThatNobodyNoticesIsNotMadeUpFor) {
    AddTrack(Song, 1, 9, false);
    Step(1);
    Answer();
    EXPECT_EQ("play 0", At(0.2));
}

TEST_F(LateSound, ATrackThatIsStillAwaitedGoesOnBeingSoOverItsSlides) {
    AddTrack(Song, 1, 9, false, true);
    Step(1);
    EXPECT_EQ("", At(12));
    Step(2);
    EXPECT_EQ("", At(12));
    Step(3);
    EXPECT_EQ(1, Devices.Gate->Waiting) << "it is opened once";
    Answer();
    EXPECT_EQ("to 29|play 29", At(5));
    EXPECT_TRUE(Fields.SoundRepeat);
}

TEST_F(LateSound, AFittedTrackPlaysFromItsSlidesPlaceAndFitsTheRest) {
    AddTrack(Song, 1, 6, true);
    Step(1);
    EXPECT_EQ("", At(12));
    Step(2);
    EXPECT_EQ(12, Fields.SlideInterval);
    Answer();
    EXPECT_EQ("to 14|play 14", At(4));
    EXPECT_EQ(10, Fields.SlideInterval);
    EXPECT_TRUE(Fields.FitToSong);
}

TEST_F(LateSound, WhatIsNoLongerWantedIsNeverHeard) {
    AddTrack(Song, 1, 1, false);
    Step(1);
    Step(2);
    Answer();
    EXPECT_EQ("", At(3));
    Step(3);
    EXPECT_EQ("", At(3));
}

TEST_F(LateSound, ASoundThatTookItsPlaceIsHeardInstead) {
    AddTrack(Song, 1, 1, false);
    Step(1);
    Step(2, Bird);
    EXPECT_EQ(2, Devices.Gate->Waiting);
    Answer();
    EXPECT_EQ("to 3|play 3", At(3));
    EXPECT_TRUE(Fields.CurrentSoundFile.endsWith(Bird));
}

TEST_F(LateSound, InAPauseItStaysSilentAndBeginsWithTheShow) {
    AddTrack(Song, 1, 9, false);
    Step(1);
    EXPECT_EQ("", At(2));
    Sound->PauseSound();
    Answer();
    Step(2);
    EXPECT_EQ("to 2", At(0));
    Sound->Play(Fields.SoundRepeat);
    EXPECT_EQ("play 2", At(0.1));
}

TEST_F(LateSound, AStopForgetsItAndAnEndWaitsForNothing) {
    AddTrack(Song, 1, 9, false);
    Step(1);
    Sound->StopSound();
    Answer();
    EXPECT_EQ("", At(3));
    Devices.Gate->Open = false;
    Step(2);
    harness::Heartbeat Pulse({}, 0);
    Sound->Release();
    Sound.reset();
    EXPECT_LT(Pulse.LongestStandstill(), 100);
}

TEST_F(LateSound, WhatIsFoundToBeMissingIsToldThen) {
    AddTrack(QStringLiteral("none.mp3"), 1, 1, false);
    Step(1);
    EXPECT_EQ(QStringList(), Told);
    Answer();
    EXPECT_EQ("", At(7));
    EXPECT_EQ(
        QStringList({QStringLiteral("The Sound Track for this group of slides does not exist.")}),
        Told);
}

}  // namespace
}  // namespace neb::test
