// An earlier state comes back: what differs is told, the present one is kept, and a kill or a full
// disk at any step leaves the one or the other.
#include "db/recovery/modRestore.h"

#include <gtest/gtest.h>

#include "Fixtures.h"
#include "db/Changes.h"
#include "db/modAlbumFiles.h"
#include "db/modLoadRecords.h"
#include "db/recovery/StateDifferences.h"
#include "harness/EngineContent.h"
#include "support/Fault.h"

#ifndef _WIN32
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#endif

namespace neb {
namespace {

using namespace harness;

// But for the counters, which never go back.
Content WithoutCounters(Content Files) {
    Files.erase("NextIDs.dat");
    return Files;
}

// A database whose state "old" is a generation and whose present one is "new".
class Restore : public ::testing::Test {
  protected:
    Restore() { Fill(Dir.Path()); }

    void Fill(const QString& Path) {
        auto Engine = OpenEngine(Path);
        FillDatabase(*Engine, u"old"_s);
        Engine->FinalizeDB();
        Old = ContentOf(*Engine);
        Engine->DeleteAlbum(1);
        FillDatabase(*Engine, u"новое, and longer"_s);
        Engine->FinalizeDB();
        New = ContentOf(*Engine);
    }
    std::unique_ptr<clsDBEngine> Oldest(const clsDBEngine& Engine) const {
        const auto All = ListGenerations(Engine.DBPath());
        return All.empty() ? nullptr : OpenGeneration(All.back(), Engine.DBPath());
    }
    // Whether that is a state to go back to now.
    bool IsKept(const QString& Path, const Content& State) const {
        for (const Generation& Each : ListGenerations(Path))
            if (ContentOf(*OpenGeneration(Each, Path)) == State) return true;
        return false;
    }

    TempFolder Dir;
    Content Old, New;
};

TEST_F(Restore, TheEarlierStateComesBackAndThePresentOneIsKept) {
    const auto Engine = OpenEngine(Dir.Path());
    const auto Then = Oldest(*Engine);
    ASSERT_TRUE(Then);
    EXPECT_EQ(ContentOf(*Then), Old);
    RestoreState(*Engine, *Then);
    EXPECT_EQ(WithoutCounters(ContentOf(*Engine)), WithoutCounters(Old));
    EXPECT_EQ(ContentOf(*Engine), ContentOf(*OpenEngine(Dir.Path())));
    EXPECT_EQ(AllRecords(Dir.Path()), ContentOf(*Engine));
    EXPECT_EQ(ListGenerations(Dir.Path()).size(), 2u);
    EXPECT_TRUE(IsKept(Dir.Path(), New));
    EXPECT_TRUE(IsKept(Dir.Path(), Old));
    // and back again
    RestoreState(*Engine, *OpenGeneration(ListGenerations(Dir.Path())[0], Dir.Path()));
    EXPECT_EQ(ContentOf(*Engine), New);
}

TEST_F(Restore, TheCountersNeverGoDown) {
    const auto Engine = OpenEngine(Dir.Path());
    Engine->NextSlideID = 5000;
    RestoreState(*Engine, *Oldest(*Engine));
    EXPECT_EQ(Engine->NextAlbumID, 5);
    EXPECT_EQ(Engine->NextSlideID, 5000);
    EXPECT_EQ(Engine->NextSlideShowID, 5);
}

TEST_F(Restore, TheCountersGoAboveFilesThatNoRecordNames) {
    const auto Engine = OpenEngine(Dir.Path());
    MakeDirs(SlidesFolder(Dir.Path(), 70));
    WriteFile(SlidesFolder(Dir.Path(), 70) + u"00000090.jpg"_s, "stray");
    RestoreState(*Engine, *Oldest(*Engine));
    EXPECT_EQ(Engine->NextAlbumID, 71);
    EXPECT_EQ(Engine->NextSlideID, 91);
}

TEST_F(Restore, CountersThatAreTooLowForTheRecordsAreRaised) {
    const auto Engine = OpenEngine(Dir.Path());
    const auto Then = Oldest(*Engine);
    Engine->NextAlbumID = Engine->NextSlideID = 0;
    Then->NextAlbumID = Then->NextSlideID = std::numeric_limits<std::int32_t>::min();
    Then->NextSlideShowID = std::numeric_limits<std::int32_t>::max();
    RestoreState(*Engine, *Then);
    EXPECT_EQ(Engine->NextAlbumID, 5);
    EXPECT_EQ(Engine->NextSlideID, 5);
    EXPECT_EQ(Engine->NextSlideShowID, 5);
    EXPECT_TRUE(Engine->CountersAreSound());
}

TEST_F(Restore, ChangesOfTheSessionAreKeptWithThePresentState) {
    const auto Engine = OpenEngine(Dir.Path());
    Engine->KeepSession();
    Changes Door(*Engine);
    ASSERT_TRUE(Door.MakeAlbum(u"not yet written"_s));
    ASSERT_TRUE(Engine->IsSessionStored());
    ASSERT_TRUE(FileExists(SessionJournalPath(Dir.Path())));
    const Content Present = ContentOf(*Engine);
    RestoreState(*Engine, *Oldest(*Engine));
    EXPECT_TRUE(IsKept(Dir.Path(), Present));
    EXPECT_TRUE(IsKept(Dir.Path(), New));
    EXPECT_FALSE(FileExists(SessionJournalPath(Dir.Path())));
    // what comes after it goes with the restored records
    ASSERT_TRUE(Door.MakeAlbum(u"later"_s));
    ASSERT_TRUE(Engine->IsSessionStored());
    const auto Again = OpenEngine(Dir.Path());
    EXPECT_EQ(Again->Found().Changes, 1);
    EXPECT_TRUE(Again->Found().PutAside.isEmpty());
    EXPECT_EQ(ContentOf(*Again), ContentOf(*Engine));
}

TEST_F(Restore, AnOldStateIsStillThereWhenTheRestoreOfTheOldestFails) {
    for (int I = 0; I < 12; ++I) {
        const auto Engine = OpenEngine(Dir.Path());
        std::int32_t AlbumID = 2;
        ASSERT_TRUE(Engine->SaveAlbum(AlbumID, u"name %1"_s.arg(I)));
        Engine->FinalizeDB();
    }
    const auto Engine = OpenEngine(Dir.Path());
    const auto All = ListGenerations(Dir.Path());
    ASSERT_EQ(All.size(), 10u);
    const auto Then = OpenGeneration(All.back(), Dir.Path());
    const Content Wanted = ContentOf(*Then);
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Write && Path.contains(u"Journal")) throw Fault(u"full"_s, Path);
    });
    EXPECT_THROW(RestoreState(*Engine, *Then), Fault);
    SetHostWatcher({});
    EXPECT_TRUE(IsKept(Dir.Path(), Wanted));
}

TEST_F(Restore, NothingChangesWhenThePresentStateCannotBeKept) {
    const auto Engine = OpenEngine(Dir.Path());
    const auto Then = Oldest(*Engine);
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Write && Path.contains(u"Backups")) throw Fault(u"full"_s, Path);
    });
    EXPECT_THROW(RestoreState(*Engine, *Then), Fault);
    SetHostWatcher({});
    EXPECT_EQ(ContentOf(*Engine), New);
    EXPECT_EQ(ContentOf(*OpenEngine(Dir.Path())), New);
}

TEST_F(Restore, ADamagedGenerationIsNone) {
    const Generation Kept = ListGenerations(Dir.Path())[0];
    WriteFile(Kept.Path, "NEBGENS1");
    EXPECT_FALSE(OpenGeneration(Kept, Dir.Path()));
    DeleteFile(Kept.Path);
    EXPECT_FALSE(OpenGeneration(Kept, Dir.Path()));
}

TEST_F(Restore, AFullDiskLeavesTheOneOrTheOtherInMemoryAsOnTheDisk) {
    bool SawOld = false, SawNew = false;
    for (qint64 Room = 0; !SawOld; Room += 97) {
        TempFolder Place;
        Fill(Place.Path());
        const auto Engine = OpenEngine(Place.Path());
        const auto Then = Oldest(*Engine);
        bool Through = true;
        SetHostWatcher([Left = Room](HostStep Step, const QString&, qint64& Length) mutable {
            if (Step != HostStep::Write) return;
            Length = std::min(Length, Left);
            Left -= Length;
        });
        try {
            RestoreState(*Engine, *Then);
        } catch (const Fault&) {
            Through = false;
        }
        SetHostWatcher({});
        const Content Here = ContentOf(*Engine);
        const bool IsOld = WithoutCounters(Here) == WithoutCounters(Old);
        EXPECT_TRUE(IsOld || Here == New) << Room;
        EXPECT_EQ(ContentOf(*OpenEngine(Place.Path())), Here) << Room;
        EXPECT_TRUE(IsKept(Place.Path(), IsOld ? New : Old)) << Room;
        SawOld = Through && IsOld;
        SawNew |= !IsOld;
        ASSERT_FALSE(HasFailure());
        ASSERT_LT(Room, 200'000);
    }
    EXPECT_TRUE(SawNew);
}

#ifndef _WIN32
enum class Kill { BeforeStep, InsideWrite };

// True when it came to its end before step Number.
bool RestoresThrough(clsDBEngine& Engine, clsDBEngine& Then, int Number, Kill How) {
    const pid_t Child = ::fork();
    if (Child == 0) {
        SetHostWatcher([Left = Number, How](HostStep Step, const QString&, qint64& Length) mutable {
            if (--Left > 0) return;
            if (Left < 0 || How == Kill::BeforeStep || Step != HostStep::Write)
                ::kill(::getpid(), SIGKILL);
            Length /= 2;
        });
        try {
            RestoreState(Engine, Then);
        } catch (const Fault&) {
            ::kill(::getpid(), SIGKILL);  // half of the write was the last thing to happen
        }
        ::_exit(0);
    }
    int Status = 0;
    ::waitpid(Child, &Status, 0);
    return WIFEXITED(Status);
}

TEST_F(Restore, AKillAtAnyStepLeavesTheOneOrTheOtherAndBothToGoBackTo) {
    for (const Kill How : {Kill::BeforeStep, Kill::InsideWrite}) {
        bool SawOld = false, SawNew = false, Through = false;
        for (int Number = 1; !Through; ++Number) {
            TempFolder Place;
            Fill(Place.Path());
            const auto Engine = OpenEngine(Place.Path());
            Through = RestoresThrough(*Engine, *Oldest(*Engine), Number, How);
            const Content Started = ContentOf(*OpenEngine(Place.Path()));
            const bool IsOld = WithoutCounters(Started) == WithoutCounters(Old);
            EXPECT_TRUE(IsOld || Started == New) << Number;
            EXPECT_TRUE(IsKept(Place.Path(), Old)) << Number;
            EXPECT_TRUE(!IsOld || IsKept(Place.Path(), New)) << Number;
            for (const Generation& Each : ListGenerations(Place.Path())) {
                const Content Kept = ContentOf(*OpenGeneration(Each, Place.Path()));
                EXPECT_TRUE(Kept == Old || Kept == New) << Number;
            }
            (IsOld ? SawOld : SawNew) = true;
            ASSERT_FALSE(HasFailure());
            ASSERT_LT(Number, 200);
        }
        EXPECT_TRUE(SawOld && SawNew);
    }
}
#endif

TEST(Differences, AreNoneBetweenEqualStates) {
    TempFolder Dir;
    const auto Engine = OpenEngine(Dir.Path());
    FillDatabase(*Engine, u"a"_s);
    const StateDifferences None = Compare(*Engine, *Engine);
    EXPECT_TRUE(None.AreNone());
    EXPECT_EQ(None.Sentences(), QStringList{u"No album, slide or slide show differs."_s});
}

TEST(Differences, AreNamedAndCounted) {
    TempFolder Dir;
    const auto Then = OpenEngine(Dir.Path()), Now = OpenEngine(Dir.Path());
    FillDatabase(*Then, u"a"_s);
    FillDatabase(*Now, u"a"_s);
    for (clsDBEngine* Each : {Then.get(), Now.get()}) {
        std::int32_t AlbumID = 0;
        Each->NextAlbumID = Each == Then.get() ? 10 : 20;
        Each->SaveAlbum(AlbumID, Each == Then.get() ? u"Sea"_s : u"Hills"_s);
        std::int32_t SlideID = 0, ShowID = 0;
        Each->NextSlideID = Each->NextSlideShowID = Each->NextAlbumID;
        clsNEBAlbum& Album = *Each->GetAlbum(AlbumID);
        Album.SaveSlide(SlideID, u"x"_s, {}, {}, false, false, *Each);
        Album.SaveSlideShow(ShowID, u"walk"_s, 1, *Each);
    }
    Now->Albums[0]->AlbumName = u"renamed"_s;
    Now->Albums[0]->Slides[0]->SlideText = u"other"_s;
    Now->Albums[1]->Slides[0]->SoundTrackLoc = u"x.wav"_s;
    Now->Albums[1]->SlideShows[0]->Details[0]->SlideText = u"other"_s;
    Now->Albums[0]->SlideShows.clear();
    const StateDifferences Found = Compare(*Then, *Now);
    EXPECT_EQ(Found.AlbumsThen, QStringList{u"\"Sea\""_s});
    EXPECT_EQ(Found.AlbumsNow, QStringList{u"\"Hills\""_s});
    EXPECT_EQ(Found.AlbumsRenamed, QStringList{u"\"a one\" instead of \"renamed\""_s});
    EXPECT_EQ(Found.ShowsThen,
              (QStringList{u"\"a show\" of \"a one\""_s, u"\"walk\" of \"Sea\""_s}));
    EXPECT_EQ(Found.ShowsNow, QStringList{u"\"walk\" of \"Hills\""_s});
    EXPECT_EQ(
        Found.Sentences(),
        (QStringList{u"Albums that come back: \"Sea\"."_s,
                     u"Slide shows that come back: \"a show\" of \"a one\", \"walk\" of \"Sea\"."_s,
                     u"1 slide comes back."_s, u"Albums that go: \"Hills\"."_s,
                     u"Slide shows that go: \"walk\" of \"Hills\"."_s, u"1 slide goes."_s,
                     u"Albums that get their earlier names: \"a one\" instead of \"renamed\"."_s,
                     u"1 caption changes back."_s, u"1 slide gets its earlier picture or sound."_s,
                     u"1 slide show changes back."_s}));
}

TEST(Differences, FilesThatAreGoneAreNamedOnceEach) {
    TempFolder Dir;
    const auto Engine = OpenEngine(Dir.Path());
    FillDatabase(*Engine, u"a"_s);
    const QString Slides = SlidesFolder(Dir.Path(), 1), Sounds = SoundTracksFolder(Dir.Path(), 1);
    clsNEBAlbum& First = *Engine->Albums[0];
    std::int32_t SlideID = 0;
    First.SaveSlide(SlideID, u"same picture"_s, u"00000001.JPG"_s, u"  "_s, false, false, *Engine);
    Engine->DeleteAlbum(2);
    EXPECT_EQ(MissingFiles(*Engine),
              (QStringList{Slides + u"00000001.JPG"_s, Sounds + u"00000001_1.mp3"_s}));
    MakeDirs(Slides);
    WriteFile(Slides + u"00000001.jpg"_s, "x");  // names differ in case freely
    EXPECT_EQ(MissingFiles(*Engine), QStringList{Sounds + u"00000001_1.mp3"_s});
    First.Slides[1]->SlideLoc = Dir / "gone.png";
    EXPECT_EQ(MissingFiles(*Engine), (QStringList{Dir / "gone.png", Sounds + u"00000001_1.mp3"_s}));
}

}  // namespace
}  // namespace neb
