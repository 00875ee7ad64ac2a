#include "sound/SoundOpening.h"

#include "SdlRig.h"
#include "harness/ByTheClock.h"
#include "harness/StalledSound.h"
#include "sound/SoundData.h"
#include "sound/devices/ClockedSound.h"
#include "sound/devices/SdlSoundDevices.h"
#include "sound/devices/SoundShelf.h"
#include "support/Services.h"

using namespace neb;
using namespace neb::sounds;

namespace {

struct Opening : ::testing::Test {
    Opening() {
        harness::GoByTheClock();
        neb::WriteFile(Song, neb::tests::WavBytes({}, 44100));
    }
    harness::TempFolder Folder;
    QString Song = Folder / QStringLiteral("song.wav");
    ClockedSoundDevices Clocked{*TheServices().Time, [](const QString& Path) {
                                    if (Path.endsWith(u"noise")) throw Fault(QStringLiteral("no"));
                                    return 1.0;
                                }};
    harness::StalledDevices Stalled{Clocked};
};

}  // namespace

TEST_F(Opening, OnTheMachinesOwnPlayersAFileIsOpenedAside) {
    const EnvironmentValue Driver("SDL_AUDIODRIVER", "dummy");
    SdlSoundDevices Machine;
    SoundOpening Of(&Machine, Song);
    ASSERT_TRUE(WaitUntil([&] { return Of.Wait(0); }));
    const OpenedSound Opened = Of.Take();
    EXPECT_TRUE(Opened.Exists);
    ASSERT_NE(nullptr, Opened.Graph);
    EXPECT_EQ(1, Opened.Graph->GetDuration());
    EXPECT_FALSE(Opened.Graph->IsRunning());
}

TEST_F(Opening, WhatIsMissingAndWhatIsNoSoundAreTold) {
    const EnvironmentValue Driver("SDL_AUDIODRIVER", "dummy");
    neb::WriteFile(Folder / QStringLiteral("noise"), "noise");
    SdlSoundDevices Machine;
    for (SoundDevices* Each :
         {static_cast<SoundDevices*>(&Machine), static_cast<SoundDevices*>(&Clocked)}) {
        OpenedSound None = SoundOpening(Each, Folder / QStringLiteral("none.wav")).Take();
        EXPECT_FALSE(None.Exists);
        OpenedSound Noise = SoundOpening(Each, Folder / QStringLiteral("noise")).Take();
        EXPECT_TRUE(Noise.Exists);
        EXPECT_EQ(nullptr, Noise.Graph);
    }
    const OpenedSound Mute = SoundOpening(nullptr, Song).Take();
    EXPECT_TRUE(Mute.Exists);
    EXPECT_EQ(nullptr, Mute.Graph);
}

TEST_F(Opening, OnAClockItIsReadyAtOnce) {
    SoundOpening Of(&Clocked, Song);
    EXPECT_TRUE(Of.Wait(0));
    EXPECT_NE(nullptr, Of.Take().Graph);
}

TEST_F(Opening, AFileThatDoesNotOpenKeepsNobodyWaiting) {
    const auto Start = std::chrono::steady_clock::now();
    {
        SoundOpening Of(&Stalled, Song);
        EXPECT_FALSE(Of.Wait(20));
        EXPECT_FALSE(Of.Wait(0));
    }
    EXPECT_LT(std::chrono::steady_clock::now() - Start, 2s) << "it never opens";
    ASSERT_TRUE(WaitUntil([&] { return Stalled.Gate->Waiting == 1; }));
}

TEST_F(Opening, WhatComesLateIsTaken) {
    SoundOpening Of(&Stalled, Song);
    EXPECT_FALSE(Of.Wait(5));
    Stalled.Gate->Open = true;
    ASSERT_TRUE(WaitUntil([&] { return Of.Wait(0); }));
    EXPECT_EQ(1, Of.Take().Graph->GetDuration());
}

// A show of an evening in a folder that has gone must not leave a thread for each of its slides.
TEST_F(Opening, OnlySoManyAreUnderWayAtOnceAndTheOthersHaveTheirTurn) {
    std::vector<std::unique_ptr<SoundOpening>> All;
    for (int I = 0; I < 3 * SoundOpening::Most; ++I) {
        All.push_back(std::make_unique<SoundOpening>(&Stalled, Song + QString::number(I)));
        EXPECT_FALSE(All.back()->Wait(0));
    }
    ASSERT_TRUE(WaitUntil([&] { return Stalled.Gate->Waiting == SoundOpening::Most; }));
    std::this_thread::sleep_for(20ms);
    EXPECT_EQ(SoundOpening::Most, Stalled.Gate->Waiting);
    Stalled.Gate->Open = true;
    for (const auto& Each : All) {
        ASSERT_TRUE(WaitUntil([&] { return Each->Wait(0); }));
        EXPECT_NE(nullptr, Each->Take().Graph);
    }
}

// A show that comes round to a song in a folder that has gone plays the others in every round.
TEST_F(Opening, ASongThatDoesNotOpenLeavesRoomForTheOthersHoweverOftenItIsWanted) {
    for (int I = 0; I < 2 * SoundOpening::Most; ++I)
        EXPECT_FALSE(SoundOpening(&Stalled, Song).Wait(0));
    const SoundOpening Other(&Stalled, Folder / QStringLiteral("other.wav"));
    constexpr int All = SoundOpening::MostOfOne + 1;
    EXPECT_TRUE(WaitUntil([&] { return Stalled.Gate->Waiting == All; }));
    std::this_thread::sleep_for(20ms);
    EXPECT_EQ(All, Stalled.Gate->Waiting);
}

// The devices go at the program's end, which must not wait for a folder that does not answer.
TEST_F(Opening, AShelfThatIsBusyWithAFileThatDoesNotOpenGoesAllTheSame) {
    const auto Gate = std::make_shared<harness::StallGate>();
    const auto Start = std::chrono::steady_clock::now();
    {
        SoundShelf Shelf([Gate](const QString& Path) {
            Gate->Pass();
            return OpenSound(Path);
        });
        Shelf.Prepare(Song);
        ASSERT_TRUE(WaitUntil([&] { return Gate->Waiting == 1; }));
        Shelf.Prepare(Folder / QStringLiteral("next.wav"));
        Shelf.Clear();
        EXPECT_LT(std::chrono::steady_clock::now() - Start, 500ms);
    }
    EXPECT_LT(std::chrono::steady_clock::now() - Start, 2s);
    Gate->Open = true;
    EXPECT_TRUE(WaitUntil([&] { return Gate.use_count() == 1; })) << "it lets go of everything";
}
