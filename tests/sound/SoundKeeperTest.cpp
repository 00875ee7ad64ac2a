#include "sound/devices/SoundKeeper.h"

#include "MadeUpOutput.h"

using namespace neb;
using namespace neb::sounds;
using Puller = SoundKeeper::Puller;

namespace {

constexpr double Second = 44100;

}  // namespace

TEST(SoundKeeper, NothingIsOpenedBeforeTheFirstPlayer) {
    PluggedPlayers P;
    P.Make();
    std::this_thread::sleep_for(50ms);
    EXPECT_EQ(0, P.Socket->Openings);
    EXPECT_EQ(Puller::Nobody, P.Pulling());
    P.Start();
    EXPECT_TRUE(P.Opened(1));
}

TEST(SoundKeeper, OnlyTheDeviceMovesThePositionWhenThereIsOne) {
    PluggedPlayers P;
    P.Times.Stall = 10s;
    P.Start();
    ASSERT_TRUE(P.Opened(1));
    EXPECT_EQ(0.5F, Left(P.Socket->Pull(700), 0));
    EXPECT_EQ(700 / Second, P.Position());
    std::this_thread::sleep_for(200ms);
    EXPECT_EQ(700 / Second, P.Position());
    P.Socket->Pull(300);
    EXPECT_EQ(1000 / Second, P.Position());
}

TEST(SoundKeeper, ThePositionWaitsWhileTheDeviceIsBeingOpened) {
    PluggedPlayers P;
    P.Socket->Answers = false;
    P.Times.FirstWait = 10s;
    P.Start();
    std::this_thread::sleep_for(100ms);
    EXPECT_EQ(0, P.Position());
    EXPECT_EQ(Puller::Nobody, P.Pulling());
}

TEST(SoundKeeper, ADeviceThatTakesTooLongToOpenIsStoodInForByAClock) {
    PluggedPlayers P;
    P.Socket->Answers = false;
    P.Start();
    ASSERT_TRUE(P.PulledBy(Puller::Clock));
    EXPECT_TRUE(WaitUntil([&] { return P.Position() > 0.05; }));
    EXPECT_EQ(1, P.Socket->Openings);
    // It comes after all.
    P.Socket->AnswerNow();
    P.Socket->Pull(100);
    EXPECT_EQ(Puller::Device, P.Pulling());
    const double Now = P.Position();
    P.Socket->Pull(441);
    EXPECT_NEAR(Now + 0.01, P.Position(), 1e-9);
}

TEST(SoundKeeper, WithoutADeviceTheClockStartsAtOnce) {
    PluggedPlayers P;
    P.Socket->State = PlaybackState::Missing;
    P.Times.FirstWait = 10s;
    P.Start();
    EXPECT_TRUE(WaitUntil([&] { return P.Position() > 0; }, 1s));
}

TEST(SoundKeeper, AMissingDeviceIsTriedLessAndLessOften) {
    PluggedPlayers P;
    P.Socket->State = PlaybackState::Missing;
    P.Times.Retry = 20ms;
    P.Times.MostRetry = 10s;
    P.Start();
    std::this_thread::sleep_for(500ms);
    EXPECT_LE(P.Socket->Openings, 6);
    EXPECT_GE(P.Socket->Openings, 3);
}

TEST(SoundKeeper, WhatIsReleasedAtTheVeryEndStillFadesOut) {
    PluggedPlayers P;
    P.Times.Stall = 10s;
    P.Start();
    ASSERT_TRUE(P.Opened(1));
    P.Socket->Pull(1000);
    P.Graph.reset();
    std::thread Ender([&] { P.Players.reset(); });
    std::this_thread::sleep_for(10ms);
    const Samples Heard = P.Socket->Pull(500);
    Ender.join();
    EXPECT_GT(Left(Heard, 0), 0.4);
    EXPECT_EQ(0, Left(Heard, 499));
}

TEST(SoundKeeper, ADeviceThatNeverAsksIsNotTriedInHaste) {
    PluggedPlayers P;
    P.Times.Stall = 20ms;
    P.Times.Retry = 10s;
    P.Start();
    ASSERT_TRUE(WaitUntil([&] { return P.Socket->Closings == 1; }));
    std::this_thread::sleep_for(150ms);
    EXPECT_EQ(1, P.Socket->Openings);
}

TEST(SoundKeeper, TheClockKeepsTime) {
    PluggedPlayers P;
    P.Socket->State = PlaybackState::Missing;
    P.Start();
    ASSERT_TRUE(WaitUntil([&] { return P.Position() > 0; }));
    const auto Start = std::chrono::steady_clock::now();
    const double First = P.Position();
    std::this_thread::sleep_for(500ms);
    const std::chrono::duration<double> Gone = std::chrono::steady_clock::now() - Start;
    EXPECT_NEAR(Gone.count(), P.Position() - First, 0.05);
}

TEST(SoundKeeper, AMissingDeviceIsTriedAgainAndTakenWhenItComes) {
    PluggedPlayers P;
    P.Socket->State = PlaybackState::Missing;
    P.Start();
    ASSERT_TRUE(P.PulledBy(Puller::Clock));
    ASSERT_TRUE(WaitUntil([&] { return P.Socket->Openings >= 3; }));
    P.Socket->State = PlaybackState::Ready;
    const int Tries = P.Socket->Openings;
    ASSERT_TRUE(WaitUntil([&] { return P.Socket->Openings > Tries; }));
    const double Before = P.Position();
    EXPECT_EQ(0.5F, Left(P.Socket->Pull(2000), 1999));
    EXPECT_EQ(Puller::Device, P.Pulling());
    EXPECT_GT(P.Position(), Before);
    const double Now = P.Position();
    std::this_thread::sleep_for(60ms);
    EXPECT_EQ(Now, P.Position());
}

TEST(SoundKeeper, ADeviceThatVanishesIsStoodInForAndOpenedAgain) {
    PluggedPlayers P;
    P.Times.Stall = 10s;
    P.Start();
    ASSERT_TRUE(P.Opened(1));
    P.Socket->Pull(1000);
    P.Socket->Answers = false;
    P.Socket->Alive = false;
    ASSERT_TRUE(P.PulledBy(Puller::Clock));
    EXPECT_TRUE(WaitUntil([&] { return P.Position() > 1500 / Second; }));
    EXPECT_TRUE(WaitUntil([&] { return P.Socket->Closings == 1; }));
    ASSERT_TRUE(P.Opened(2));
    P.Socket->Alive = true;
    P.Socket->AnswerNow();
    EXPECT_EQ(0.5F, Left(P.Socket->Pull(1000), 999));
    EXPECT_EQ(Puller::Device, P.Pulling());
}

TEST(SoundKeeper, ADeviceThatNoLongerAsksCountsAsGone) {
    PluggedPlayers P;
    P.Start();
    ASSERT_TRUE(P.Opened(1));
    P.Socket->Pull(1000);
    P.Socket->Answers = false;
    ASSERT_TRUE(P.PulledBy(Puller::Clock));
    EXPECT_TRUE(WaitUntil([&] { return P.Position() > 1500 / Second; }));
    EXPECT_TRUE(P.Opened(2));
}

TEST(SoundKeeper, WhatIsLeftOfAGivenUpDeviceGetsSilenceAndMovesNothing) {
    PluggedPlayers P;
    P.Start();
    ASSERT_TRUE(P.Opened(1));
    P.Socket->Pull(1000);
    ASSERT_TRUE(P.Opened(2));
    P.Socket->Pull(1000);
    ASSERT_EQ(Puller::Device, P.Pulling());
    const double Now = P.Position();
    EXPECT_EQ(0, Peak(P.Socket->Pull(1000, 1)));
    EXPECT_EQ(Now, P.Position());
}

TEST(SoundKeeper, TheDeviceIsLetGoSomeTimeAfterTheLastPlayer) {
    PluggedPlayers P;
    P.Times.Stall = 10s;
    P.Times.Linger = 150ms;
    P.Start();
    ASSERT_TRUE(P.Opened(1));
    P.Socket->Pull(1000);
    P.Graph.reset();
    // What fades out is still heard.
    EXPECT_GT(Left(P.Socket->Pull(500), 0), 0.4);
    EXPECT_EQ(0, P.Socket->Closings);
    ASSERT_TRUE(WaitUntil([&] { return P.Socket->Closings == 1; }));
    EXPECT_EQ(Puller::Nobody, P.Pulling());
    P.Start();
    EXPECT_TRUE(P.Opened(2));
}

TEST(SoundKeeper, ANextPlayerInTimeFindsTheDeviceOpen) {
    PluggedPlayers P;
    P.Times.Stall = 10s;
    P.Times.Linger = 10s;
    for (int I = 0; I < 3; ++I) {
        P.Start();
        ASSERT_TRUE(P.Opened(1));
        P.Socket->Pull(1000);
        P.Graph.reset();
    }
    std::this_thread::sleep_for(50ms);
    EXPECT_EQ(1, P.Socket->Openings);
    EXPECT_EQ(0, P.Socket->Closings);
}

TEST(SoundKeeper, ADeviceThatOpensOnlyAfterTheLastPlayerHasGoneIsClosed) {
    PluggedPlayers P;
    P.Socket->Answers = false;
    P.Start();
    ASSERT_TRUE(P.Opened(1));
    P.Graph.reset();
    std::this_thread::sleep_for(100ms);
    P.Socket->AnswerNow();
    EXPECT_TRUE(WaitUntil([&] { return P.Socket->Closings == 1; }));
}

TEST(SoundKeeper, TheCheckTellsWhatOpeningTheDeviceSays) {
    for (const PlaybackState State :
         {PlaybackState::Ready, PlaybackState::Allocated, PlaybackState::Missing}) {
        PluggedPlayers P;
        P.Socket->State = State;
        P.Make();
        EXPECT_EQ(State, P.Players->Keeper().Check(2s));
    }
}

TEST(SoundKeeper, ALaterCheckLooksAnew) {
    PluggedPlayers P;
    P.Socket->State = PlaybackState::Missing;
    P.Make();
    EXPECT_EQ(PlaybackState::Missing, P.Players->Keeper().Check(2s));
    std::this_thread::sleep_for(2 * P.Times.Linger);
    P.Socket->State = PlaybackState::Ready;
    EXPECT_EQ(PlaybackState::Ready, P.Players->Keeper().Check(2s));
}

TEST(SoundKeeper, TheCheckDoesNotWaitForADeviceThatTakesItsTime) {
    PluggedPlayers P;
    P.Socket->Answers = false;
    P.Make();
    const auto Start = std::chrono::steady_clock::now();
    EXPECT_EQ(PlaybackState::Ready, P.Players->Keeper().Check(50ms));
    EXPECT_LT(std::chrono::steady_clock::now() - Start, 500ms);
}

TEST(SoundKeeper, ACheckAloneLetsTheDeviceGoAgain) {
    PluggedPlayers P;
    P.Make();
    EXPECT_EQ(PlaybackState::Ready, P.Players->Keeper().Check(2s));
    EXPECT_TRUE(WaitUntil([&] { return P.Socket->Closings == 1; }));
}

TEST(SoundKeeper, PlayersMayOutliveTheDevices) {
    PluggedPlayers P;
    P.Start();
    ASSERT_TRUE(P.Opened(1));
    P.Socket->Pull(1000);
    P.Players.reset();
    EXPECT_EQ(1000 / Second, P.Position());
    P.Graph->Pause();
    P.Graph->PutCurrentPosition(2);
    EXPECT_EQ(2, P.Position());
    P.Graph.reset();
}

TEST(SoundKeeper, ItRestsOnceWhenNobodyHasPlayedForAWhile) {
    PluggedPlayers P;
    P.Times.Stall = 10s;
    P.Start();
    ASSERT_TRUE(P.Opened(1));
    std::this_thread::sleep_for(3 * P.Times.Linger);
    EXPECT_EQ(0, P.Rests);
    P.Graph.reset();
    ASSERT_TRUE(WaitUntil([&] { return P.Rests == 1; }));
    EXPECT_EQ(1, P.Socket->Closings);
    std::this_thread::sleep_for(3 * P.Times.Linger);
    EXPECT_EQ(1, P.Rests);
}

TEST(SoundKeeper, ItRestsWithoutADeviceToo) {
    PluggedPlayers P;
    P.Socket->State = PlaybackState::Missing;
    P.Start();
    ASSERT_TRUE(P.PulledBy(Puller::Clock));
    P.Graph.reset();
    EXPECT_TRUE(WaitUntil([&] { return P.Rests == 1; }));
}

TEST(SoundKeeper, AHoldKeepsTheDeviceOpenBetweenTwoSounds) {
    PluggedPlayers P;
    P.Start();
    ASSERT_TRUE(P.Opened(1));
    const auto Show = P.Players->Keeper().Hold();
    P.Graph.reset();
    for (int I = 0; I < 30; ++I) {
        P.Socket->Pull(100);
        std::this_thread::sleep_for(10ms);
    }
    EXPECT_EQ(0, P.Socket->Closings);
    EXPECT_EQ(0, P.Rests);
}
