// Sounds kept at hand: prepared, taken, given back, and never an old state of a changed file.
#include <gtest/gtest.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QThread>
#include <atomic>
#include <thread>

#include "sound/SoundData.h"
#include "sound/devices/SoundShelf.h"

using namespace neb;
using namespace neb::tests;

namespace {

// How many files this process has open whose paths begin so.
int OpenFiles(const QString& Path) {
    int Count = 0;
    for (int Number = 0; Number < 256; ++Number) {
        char Target[4096];
        const auto Place = "/proc/self/fd/" + std::to_string(Number);
        const ssize_t Length = readlink(Place.c_str(), Target, sizeof Target);
        if (Length > 0) Count += QString::fromUtf8(Target, Length).startsWith(Path);
    }
    return Count;
}

int OpenFiles(const harness::TempFolder& Folder) {
    return OpenFiles(Folder.Path());
}

bool WaitForOpenFiles(const QString& Path, int Count) {
    QElapsedTimer Time;
    for (Time.start(); Time.elapsed() < 5000; QThread::msleep(1))
        if (OpenFiles(Path) == Count) return true;
    return false;
}

bool WaitForOpenFiles(const harness::TempFolder& Folder, int Count) {
    return WaitForOpenFiles(Folder.Path(), Count);
}

// A song that takes a while to be opened: all of it is read for its length.
QString MakeLongSong(const harness::TempFolder& Folder, const QString& Name) {
    WriteFile(Folder / Name, ReadFile(SoundFile("cbr.mp3")).repeated(1000));
    return Folder / Name;
}

QString MakeTone(const harness::TempFolder& Folder, int Number, qint64 Frames = 100) {
    const QString Path = Folder / QStringLiteral("tone%1.wav").arg(Number);
    WriteFile(Path, WavBytes({}, Frames));
    return Path;
}

}  // namespace

TEST(SoundShelf, WhatIsPreparedIsOpenBeforeItIsTaken) {
    const harness::TempFolder Folder;
    const QString Path = MakeTone(Folder, 1);
    SoundShelf Shelf;
    Shelf.Prepare(Path);
    ASSERT_TRUE(WaitForOpenFiles(Folder, 1));
    const auto Sound = Shelf.Take(Path);
    EXPECT_EQ(1, OpenFiles(Folder));
    EXPECT_EQ(100, Sound->Frames());
    EXPECT_EQ(200U, ReadFrames(*Sound, 1000).size());
}

TEST(SoundShelf, WhatIsNotPreparedIsOpenedAtOnce) {
    const harness::TempFolder Folder;
    SoundShelf Shelf;
    EXPECT_EQ(100, Shelf.Take(MakeTone(Folder, 1))->Frames());
    EXPECT_EQ(66150, Shelf.Take(SoundFile("VBR.MP3"))->Frames());
}

TEST(SoundShelf, AFileIsTakenRightAfterItWasAskedFor) {
    const harness::TempFolder Folder;
    SoundShelf Shelf;
    for (int I = 0; I < 50; ++I) {
        const QString Path = MakeTone(Folder, I, 100 + I);
        Shelf.Prepare(Path);
        EXPECT_EQ(100 + I, Shelf.Take(Path)->Frames());
    }
}

TEST(SoundShelf, ASoundGivenBackIsTakenAgainAtItsStart) {
    const harness::TempFolder Folder;
    const QString Path = MakeTone(Folder, 1);
    SoundShelf Shelf;
    auto Sound = Shelf.Take(Path);
    SoundDecoder* Same = Sound.get();
    ReadFrames(*Sound, 70);
    Shelf.Put(Path, std::move(Sound));
    Sound = Shelf.Take(Path);
    EXPECT_EQ(Same, Sound.get());
    EXPECT_EQ(200U, ReadFrames(*Sound, 1000).size());
}

TEST(SoundShelf, OneSoundIsNeverLentTwice) {
    const harness::TempFolder Folder;
    const QString Path = MakeTone(Folder, 1);
    SoundShelf Shelf;
    Shelf.Prepare(Path);
    const auto One = Shelf.Take(Path), Other = Shelf.Take(Path);
    EXPECT_NE(One.get(), Other.get());
    ReadFrames(*One, 50);
    EXPECT_EQ(200U, ReadFrames(*Other, 1000).size());
}

TEST(SoundShelf, AFileThatChangedIsOpenedAnew) {
    const harness::TempFolder Folder;
    const QString Path = MakeTone(Folder, 1, 100);
    SoundShelf Shelf;
    Shelf.Prepare(Path);
    ASSERT_TRUE(WaitForOpenFiles(Folder, 1));
    ReplaceFile(Path, WavBytes({}, 250));
    auto Sound = Shelf.Take(Path);
    EXPECT_EQ(250, Sound->Frames());
    ReplaceFile(Path, WavBytes({}, 300));
    Shelf.Put(Path, std::move(Sound));
    EXPECT_EQ(300, Shelf.Take(Path)->Frames());
}

TEST(SoundShelf, AFileOfTheSameLengthThatChangedIsOpenedAnew) {
    const harness::TempFolder Folder;
    const QString Path = MakeTone(Folder, 1);
    SoundShelf Shelf;
    Shelf.Put(Path, Shelf.Take(Path));
    QThread::msleep(20);
    ReplaceFile(Path, WavBytes({8000}, 100));
    EXPECT_EQ(8000, Shelf.Take(Path)->Rate());
}

TEST(SoundShelf, FourSoundsAreKeptAndTheOldestGoes) {
    const harness::TempFolder Folder;
    SoundShelf Shelf;
    std::vector<SoundDecoder*> Given;
    for (int I = 0; I < 6; ++I) {
        const QString Path = MakeTone(Folder, I);
        auto Sound = Shelf.Take(Path);
        Given.push_back(Sound.get());
        Shelf.Put(Path, std::move(Sound));
    }
    EXPECT_EQ(4, OpenFiles(Folder));
    for (size_t I = 2; I < 6; ++I)
        EXPECT_EQ(Given[I], Shelf.Take(Folder / QStringLiteral("tone%1.wav").arg(I)).get());
    EXPECT_EQ(0, OpenFiles(Folder));
}

TEST(SoundShelf, PreparingTwiceOpensOnce) {
    const harness::TempFolder Folder;
    const QString One = MakeTone(Folder, 1), Other = MakeTone(Folder, 2);
    SoundShelf Shelf;
    Shelf.Prepare(One);
    ASSERT_TRUE(WaitForOpenFiles(Folder, 1));
    Shelf.Prepare(One);
    Shelf.Prepare(Other);
    ASSERT_TRUE(WaitForOpenFiles(Folder, 2));
    EXPECT_NE(nullptr, Shelf.Take(One));
    EXPECT_EQ(1, OpenFiles(Folder));
}

TEST(SoundShelf, WhatCannotBePreparedIsToldWhenItIsTaken) {
    const harness::TempFolder Folder;
    WriteFile(Folder / "text.mp3", "no sound");
    SoundShelf Shelf;
    for (const char* Name : {"text.mp3", "none.mp3"}) {
        const QString Path = Folder / QString::fromLatin1(Name);
        Shelf.Prepare(Path);
        EXPECT_THROW(Shelf.Take(Path), Fault);
    }
    const QString Path = MakeTone(Folder, 1);
    Shelf.Prepare(Path);
    ASSERT_TRUE(WaitForOpenFiles(Folder, 1));
    DeleteFile(Path);
    EXPECT_THROW(Shelf.Take(Path), Fault);
}

TEST(SoundShelf, OtherDecodersAreNotKept) {
    const harness::TempFolder Folder;
    const QString Path = MakeTone(Folder, 1);
    SoundShelf Shelf;
    Shelf.Put(Path, OpenSound(Path));
    Shelf.Put(Path, nullptr);
    EXPECT_EQ(0, OpenFiles(Folder));
}

// On a busy machine the second song may have begun before the shelf goes: then it is tried again.
TEST(SoundShelf, ItGoesOnceTheFileIsReadThatItIsBusyWithAndOpensNoOther) {
    const harness::TempFolder Folder;
    const QString Long = MakeLongSong(Folder, QStringLiteral("long.mp3"));
    const QString Next = MakeLongSong(Folder, QStringLiteral("next.mp3"));
    bool OpensNext = true;
    for (int Try = 0; Try < 20 && OpensNext; ++Try) {
        auto Shelf = std::make_unique<SoundShelf>();
        Shelf->Prepare(Long);
        Shelf->Prepare(Next);
        ASSERT_TRUE(WaitForOpenFiles(Long, 1));
        std::atomic<int> LeftOpen = -1;
        std::thread End([&] {
            Shelf.reset();
            LeftOpen = OpenFiles(Folder);
        });
        for (OpensNext = false; LeftOpen < 0; QThread::msleep(1)) OpensNext |= OpenFiles(Next) == 1;
        End.join();
        EXPECT_EQ(0, LeftOpen) << "it does not wait for its thread";
    }
    EXPECT_FALSE(OpensNext) << "that had not begun";
}

TEST(SoundShelf, ManyThreadsMayUseIt) {
    const harness::TempFolder Folder;
    std::vector<QString> Paths;
    for (int I = 0; I < 6; ++I) Paths.push_back(MakeTone(Folder, I, 100 + I));
    SoundShelf Shelf;
    std::atomic<int> Wrong = 0;
    const auto Work = [&](size_t Seed) {
        for (size_t I = 0; I < 200; ++I) {
            const size_t Number = (I * 7 + Seed) % Paths.size();
            Shelf.Prepare(Paths[(Number + 1) % Paths.size()]);
            auto Sound = Shelf.Take(Paths[Number]);
            if (ReadFrames(*Sound, 1000).size() != 2 * (100 + Number)) ++Wrong;
            Shelf.Put(Paths[Number], std::move(Sound));
        }
    };
    std::vector<std::thread> Threads;
    for (size_t I = 0; I < 4; ++I) Threads.emplace_back(Work, I);
    for (auto& Each : Threads) Each.join();
    EXPECT_EQ(0, Wrong);
    EXPECT_LE(OpenFiles(Folder), 5);
}

TEST(SoundShelf, ClearLetsGoOfWhatIsStillBeingOpened) {
    const harness::TempFolder Folder;
    const QString Path = MakeTone(Folder, 1);
    std::atomic<int> Begun = 0, Ended = 0;
    std::atomic<bool> MayEnd = false;
    SoundShelf Shelf([&](const QString& File) {
        ++Begun;
        while (!MayEnd) QThread::msleep(1);
        auto Sound = OpenSound(File);
        ++Ended;
        return Sound;
    });
    Shelf.Prepare(Path);
    while (Begun == 0) QThread::msleep(1);
    Shelf.Clear();
    MayEnd = true;
    while (Ended == 0) QThread::msleep(1);
    EXPECT_TRUE(WaitForOpenFiles(Folder, 0));
    EXPECT_NE(nullptr, Shelf.Take(Path));
    EXPECT_EQ(2, Begun) << "what was wanted before is opened anew";
}

TEST(SoundShelf, ClearLetsGoOfTheFiles) {
    const harness::TempFolder Folder;
    SoundShelf Shelf;
    Shelf.Prepare(MakeTone(Folder, 1));
    const QString Used = MakeTone(Folder, 2);
    Shelf.Put(Used, Shelf.Take(Used));
    ASSERT_TRUE(WaitForOpenFiles(Folder, 2));
    Shelf.Clear();
    EXPECT_TRUE(WaitForOpenFiles(Folder, 0));
    EXPECT_NE(nullptr, Shelf.Take(Used));
}
