#include "sound/devices/ClockedSound.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/Fault.h"
#include "support/Services.h"

namespace neb {
namespace {

using Kind = SoundEvent::Kind;

class StillClock : public Clock {
  public:
    QDateTime Now() const override { return QDate(2004, 5, 6).startOfDay(); }
    double Ticks() const override { return Milliseconds; }
    double Milliseconds = 1000;
};

class ClockedSound : public ::testing::Test {
  protected:
    ClockedSound() : mBefore(TheServices().Time) {
        TheServices().Time = &Time;
        Graph = Devices.CreateGraph();
    }
    ~ClockedSound() override {
        Graph.reset();
        TheServices().Time = mBefore;
    }
    void Pass(double Seconds) { Time.Milliseconds += Seconds * 1000; }

    StillClock Time;
    std::vector<SoundEvent> Events;
    ClockedSoundDevices Devices{Time,
                                [](const QString& Path) {
                                    if (Path.contains(u"bad"))
                                        throw Fault(QStringLiteral("No sound."), Path);
                                    return 12.5;
                                },
                                [this](const SoundEvent& Event) { Events.push_back(Event); }};
    std::unique_ptr<SoundGraph> Graph;

  private:
    Clock* mBefore;
};

TEST_F(ClockedSound, IsLoadedAtItsStartAtFullLevelAndNotRunning) {
    Graph->RenderFile(QStringLiteral("song.mp3"));
    Pass(3);
    EXPECT_FALSE(Graph->IsRunning());
    EXPECT_EQ(Graph->GetDuration(), 12.5);
    EXPECT_EQ(Graph->GetCurrentPosition(), 0);
    EXPECT_EQ(Graph->GetVolume(), 0);
}

TEST_F(ClockedSound, RunsOnWithTheClockFromWhereItStands) {
    Graph->RenderFile(QStringLiteral("song.mp3"));
    Graph->PutCurrentPosition(2);
    Graph->Run();
    Pass(3.5);
    EXPECT_TRUE(Graph->IsRunning());
    EXPECT_EQ(Graph->GetCurrentPosition(), 5.5);
    Graph->PutCurrentPosition(1);
    Pass(1);
    EXPECT_EQ(Graph->GetCurrentPosition(), 2);
}

TEST_F(ClockedSound, RunAgainWhileRunningDoesNotMoveIt) {
    Graph->RenderFile(QStringLiteral("song.mp3"));
    Graph->Run();
    Pass(3);
    Graph->Run();
    Pass(1);
    EXPECT_EQ(Graph->GetCurrentPosition(), 4);
}

TEST_F(ClockedSound, KeepsItsPositionInAPauseAndAStop) {
    Graph->RenderFile(QStringLiteral("song.mp3"));
    Graph->Run();
    Pass(3);
    Graph->Pause();
    Pass(5);
    EXPECT_FALSE(Graph->IsRunning());
    EXPECT_EQ(Graph->GetCurrentPosition(), 3);
    Graph->Run();
    Pass(1);
    Graph->Stop();
    Pass(1);
    EXPECT_FALSE(Graph->IsRunning());
    EXPECT_EQ(Graph->GetCurrentPosition(), 4);
}

TEST_F(ClockedSound, StandsExactlyAtItsDurationAtTheEndAndStillRuns) {
    Graph->RenderFile(QStringLiteral("song.mp3"));
    Graph->Run();
    Pass(12.7);
    EXPECT_EQ(Graph->GetCurrentPosition(), Graph->GetDuration());
    EXPECT_TRUE(Graph->IsRunning());
    Graph->Stop();
    EXPECT_EQ(Graph->GetCurrentPosition(), Graph->GetDuration());
}

TEST_F(ClockedSound, GoesRoundWithoutAGapWhereItRepeats) {
    Graph->RenderFile(QStringLiteral("song.mp3"));
    Graph->PutRepeat(true);
    Graph->Run();
    Pass(12.5);
    EXPECT_EQ(Graph->GetCurrentPosition(), 0);
    Pass(3 * 12.5 + 2);
    EXPECT_EQ(Graph->GetCurrentPosition(), 2);
    Graph->Pause();
    Pass(100);
    EXPECT_EQ(Graph->GetCurrentPosition(), 2);
    EXPECT_TRUE(Events.back().Repeats);
    Graph->Run();
    Pass(1);
    Graph->PutRepeat(false);
    Pass(100);
    EXPECT_EQ(Graph->GetCurrentPosition(), 12.5) << "that round was the last";
    Graph->RenderFile(QStringLiteral("next.mp3"));
    EXPECT_FALSE(Events.back().Repeats);
}

TEST_F(ClockedSound, TakesAPlaceBeyondTheEndAsTheEndAndRefusesNonsense) {
    Graph->RenderFile(QStringLiteral("song.mp3"));
    Graph->PutCurrentPosition(99);
    EXPECT_EQ(Graph->GetCurrentPosition(), 12.5);
    EXPECT_THROW(Graph->PutCurrentPosition(-0.1), Fault);
    EXPECT_THROW(Graph->PutCurrentPosition(std::nan("")), Fault);
    EXPECT_EQ(Graph->GetCurrentPosition(), 12.5);
}

TEST_F(ClockedSound, AFileThatCannotBePlayedLeavesNothingLoaded) {
    EXPECT_THROW(Graph->RenderFile(QStringLiteral("bad.mp3")), Fault);
    EXPECT_EQ(Graph->GetDuration(), 0);
    Graph.reset();
    EXPECT_TRUE(Events.empty());
}

TEST_F(ClockedSound, TellsWhatItIsAskedAndWhen) {
    Devices.LoadAhead(QStringLiteral("song.mp3"));
    Graph->RenderFile(QStringLiteral("song.mp3"));
    Graph->Run();
    Pass(2);
    Graph->PutVolume(-1250);
    Graph->Pause();
    Graph->PutCurrentPosition(7);
    Graph->Stop();
    Graph.reset();
    const SoundEvent Expected[] = {
        {Kind::LoadedAhead, {}, 0, 0, 1000}, {Kind::Loaded, {}, 0, 0, 1000},
        {Kind::Run, {}, 0, 0, 1000},         {Kind::Volume, {}, 2, -1250, 3000},
        {Kind::Paused, {}, 2, -1250, 3000},  {Kind::Moved, {}, 7, -1250, 3000},
        {Kind::Stopped, {}, 7, -1250, 3000}, {Kind::Released, {}, 7, -1250, 3000},
    };
    ASSERT_EQ(Events.size(), std::size(Expected));
    for (size_t At = 0; At < Events.size(); ++At) {
        SCOPED_TRACE(At);
        EXPECT_EQ(Events[At].What, Expected[At].What);
        EXPECT_EQ(Events[At].Path, QStringLiteral("song.mp3"));
        EXPECT_EQ(Events[At].Position, Expected[At].Position);
        EXPECT_EQ(Events[At].Hundredths, Expected[At].Hundredths);
        EXPECT_EQ(Events[At].Ticks, Expected[At].Ticks);
    }
}

TEST_F(ClockedSound, HasNoMicrophoneAndNoPlaybackOfRecordings) {
    EXPECT_EQ(Devices.CreateCapture(), nullptr);
    EXPECT_EQ(Devices.CheckPlayback(), PlaybackState::Missing);
    EXPECT_EQ(Devices.CreateSoundBuffer({}, QByteArray("abc")), nullptr);
}

}  // namespace
}  // namespace neb
