// What is said of a database before anything in it is written, and the two ways out of damage.
#include "db/recovery/DatabaseHealth.h"

#include <gtest/gtest.h>

#include "DamageTable.h"
#include "db/Changes.h"
#include "db/modAlbumFiles.h"
#include "db/records/Generations.h"
#include "db/records/RecordSums.h"
#include "db/recovery/modRestore.h"
#include "harness/MemoryFolder.h"
#include "harness/WithoutPrivileges.h"
#include "support/Fault.h"

namespace neb {
namespace {

using namespace harness;

class Health : TempInMemory, public ::testing::Test {
  protected:
    void SetUp() override { MakeWholeDatabase(Dir.Path()); }
    ~Health() override { SetHostWatcher({}); }

    QStringList Wrong() const { return LookAtHealth(Dir.Path()).Wrong; }
    std::string Said() const { return Wrong().join(u'|').toStdString(); }
    void Put(const char* Name, const QByteArray& Bytes) const {
        WriteFile(Dir.Path() + QLatin1String(Name), Bytes);
    }

    TempFolder Dir;
};

TEST_F(Health, OfASoundDatabaseSaysNothingAndTouchesNothing) {
    const auto Before = BytesBelow(Dir.Path());
    const DatabaseHealth Found = LookAtHealth(Dir.Path());
    EXPECT_TRUE(Found.IsSound()) << Said();
    EXPECT_FALSE(Found.IsNew);
    EXPECT_EQ(Found.Free, (IDCounters{3, 9, 5}));
    EXPECT_EQ(BytesBelow(Dir.Path()), Before);
    ForgetSums(Dir.Path());
    EXPECT_EQ(Said(), "") << "of an earlier version, too";
}

TEST_F(Health, EveryDamageToEveryFileIsSeen) {
    for (const RecordFile File : AllRecordFiles)
        for (const Damage Kind : AllDamage) {
            TempFolder Place;
            MakeWholeDatabase(Place.Path());
            Harm(Place.Path(), File, Kind);
            const auto Before = BytesBelow(Place.Path());
            const bool IsPlain = Kind != Damage::Unreadable;
            std::optional<WithoutPrivileges> Ordinary;
            if (!IsPlain) {
                ASSERT_EQ(0, chmod(qPrintable(Place.Path()), 0755));
                Ordinary.emplace();
            }
            const DatabaseHealth Found = LookAtHealth(Place.Path());
            Ordinary.reset();
            const bool IsEmptyAnyway = File == RecordFile::NextIDs && Kind == Damage::CutAtARecord;
            EXPECT_FALSE(Found.IsSound()) << NameOf(File, Kind);
            const QString First = Found.Wrong.value(0);
            EXPECT_TRUE(First.startsWith(QLatin1String(RecordFileName(File))) || IsEmptyAnyway)
                << NameOf(File, Kind) << ": " << First.toStdString();
            EXPECT_EQ(BytesBelow(Place.Path()), Before) << NameOf(File, Kind);
        }
}

// Of a database of an earlier version, which has noted nothing, what its records show by
// themselves.
TEST_F(Health, WithoutWhatWasNotedAllIsSeenThatTheRecordsShow) {
    const std::set<std::string> Unseen = {"Properties.dat missing",
                                          "Properties.dat empty",
                                          "Properties.dat cut at a record",
                                          "Properties.dat flipped",
                                          "EffectStats.dat missing",
                                          "EffectStats.dat empty",
                                          "EffectStats.dat cut at a record",
                                          "EffectStats.dat flipped",
                                          "NextIDs.dat flipped",  // upwards
                                          "Slides.dat cut at a record",
                                          "SlideShowDetails.dat cut at a record",
                                          "SlideShowSoundTracks.dat cut at a record"};
    for (const RecordFile File : AllRecordFiles)
        for (const Damage Kind : AllDamage) {
            if (Kind == Damage::Unreadable) continue;
            TempFolder Place;
            MakeWholeDatabase(Place.Path());
            ForgetSums(Place.Path());
            Harm(Place.Path(), File, Kind);
            EXPECT_EQ(LookAtHealth(Place.Path()).IsSound(), Unseen.contains(NameOf(File, Kind)))
                << NameOf(File, Kind) << ": "
                << LookAtHealth(Place.Path()).Wrong.join(u'|').toStdString();
        }
}

TEST_F(Health, IsToldInPlainWords) {
    DeleteFile(Dir / "Albums.dat");
    EXPECT_EQ(Said(),
              "Albums.dat is missing.|8 slides belong to an album that is not in Albums.dat.|"
              "4 slide shows belong to an album that is not in Albums.dat.");
    Put("Albums.dat", {});
    EXPECT_EQ(Wrong()[0], u"Albums.dat is empty, and was not when it was written."_s);
    ForgetSums(Dir.Path());
    EXPECT_EQ(Wrong()[0], u"8 slides belong to an album that is not in Albums.dat."_s);
}

TEST_F(Health, CountersThatAreTooLowAreTold) {
    const QByteArray Right = FileBytes(Dir.Path(), "NextIDs.dat");
    QByteArray Low = Right;
    Low[4] = 8;
    Put("NextIDs.dat", Low);
    EXPECT_TRUE(Wrong().contains(
        u"NextIDs.dat says that the next slide has the number 8, but number 8 is taken: new "
        "pictures or sounds would replace old ones."_s))
        << Said();
    for (const char* Each : {"", "\1\0\0\0", "123456789012345"}) {
        Put("NextIDs.dat", Each);
        EXPECT_FALSE(Wrong().isEmpty()) << Each;
        EXPECT_EQ(LookAtHealth(Dir.Path()).Free, (IDCounters{3, 9, 5})) << Each;
    }
    Put("NextIDs.dat", QByteArray(12, '\0'));
    EXPECT_TRUE(Wrong().contains(u"NextIDs.dat has no sensible number for the next album."_s));
    Put("NextIDs.dat", Right);
    EXPECT_EQ(Said(), "");
}

TEST_F(Health, FilesWithoutRecordsKeepTheirNumbers) {
    WriteFile(Dir / "Albums/1/Slides/00000090.jpg", "stray");
    WriteFile(Dir / "Albums/2/SoundTracks/00000070_1.mp3", "stray");
    MakeDirs(Dir / "Albums/50");
    for (const char* Other :
         {"Albums/1/Slides/IMG_00000999.jpg", "Albums/1/Slides/123.jpg",
          "Albums/1/Slides/00000999 copy.jpg", "Albums/1/Slides/20260101_120000.jpg", "Albums/77"})
        WriteFile(Dir / Other, "not ours");
    DeleteFile(Dir / "Albums/77");
    const DatabaseHealth Found = LookAtHealth(Dir.Path());
    EXPECT_TRUE(Found.IsSound()) << "a crash has left them: the program's own counters are right";
    EXPECT_EQ(Found.Free, (IDCounters{51, 91, 71}));
    ForgetSums(Dir.Path());
    EXPECT_EQ(Wrong().size(), 3) << Said();
    EXPECT_TRUE(Wrong()[1].contains(u"the next slide has the number 9, but number 90 is taken"));
}

TEST_F(Health, ShowsWithoutSoundsNeedNoSoundTracks) {
    Put("SlideShowSoundTracks.dat", {});
    ForgetSums(Dir.Path());
    EXPECT_TRUE(Said().starts_with("SlideShowSoundTracks.dat is empty, although")) << Said();
    for (const std::int32_t AlbumID : {1, 2}) DeleteTree(SoundTracksFolder(Dir.Path(), AlbumID));
    EXPECT_EQ(Said(), "");
}

TEST_F(Health, ANewDatabaseIsSound) {
    TempFolder Empty;
    EXPECT_TRUE(LookAtHealth(Empty.Path()).IsSound());
    EXPECT_TRUE(LookAtHealth(Empty.Path()).IsNew);
    MakeDirs(Empty / "Albums");
    MakeDirs(Empty / "Temp");
    WriteFile(Empty / "QLM.ini", "Timeout=5\n");
    EXPECT_TRUE(LookAtHealth(Empty.Path()).IsNew);
    EXPECT_TRUE(LookAtHealth(Empty / "not there/").IsNew);
}

TEST_F(Health, ADatabaseWhoseAlbumsAreAllDeletedIsSound) {
    for (const bool Noted : {true, false}) {
        TempFolder Place;
        const auto Engine = OpenEngine(Place.Path());
        FillDatabase(*Engine, u"a"_s);
        Engine->FinalizeDB();
        Engine->DeleteAlbum(1);
        Engine->DeleteAlbum(2);
        Engine->FinalizeDB();
        if (!Noted) ForgetSums(Place.Path());
        EXPECT_TRUE(LookAtHealth(Place.Path()).IsSound()) << Noted;
    }
}

TEST_F(Health, AnOldDatabaseWithoutItsLaterFilesIsSound) {
    ForgetSums(Dir.Path());
    DeleteFile(Dir / "Properties.dat");
    DeleteFile(Dir / "EffectStats.dat");
    EXPECT_EQ(Said(), "");
}

TEST_F(Health, ABackupThatWasPutBackWholeIsSound) {
    std::map<std::string, QByteArray> Backup;
    {
        TempFolder Other;
        FilledDatabase Filled(Other.Path(), u"mine"_s);
        Filled.AddFilledAlbum(u"Sea"_s);
        Filled.Engine.FinalizeDB();
        Backup = AllRecords(Other.Path());
    }
    for (const auto& [Name, Bytes] : Backup) {
        DeleteFile(Dir.Path() + QString::fromStdString(Name));
        Put(Name.c_str(), Bytes);
    }
    DeleteTree(Dir / "Albums/2");
    EXPECT_EQ(Said(), "");
}

TEST_F(Health, RecordsThatAreGoneAltogetherAreNoNewDatabase) {
    for (const RecordFile File : AllRecordFiles) DeleteFile(RecordPath(Dir.Path(), File));
    EXPECT_EQ(Said(),
              "All files of records are missing, although pictures or sounds lie in Albums.");
    DeleteTree(Dir / "Albums");
    EXPECT_EQ(Said(),
              "All files of records are missing, although there are earlier albums in Backups.");
    DeleteTree(Dir / "Backups");
    EXPECT_TRUE(LookAtHealth(Dir.Path()).IsNew);
}

TEST_F(Health, AWholeJournalStandsForTheFiles) {
    const auto Engine = OpenEngine(Dir.Path());
    Engine->Albums[0]->AlbumName = u"changed"_s;
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Write && Path.endsWith(u"Slides.dat")) throw Fault(u"no"_s, Path);
    });
    EXPECT_THROW(Engine->FinalizeDB(), Fault);
    SetHostWatcher({});
    EXPECT_EQ(Said(), "");
    for (const RecordFile File : AllRecordFiles) DeleteFile(RecordPath(Dir.Path(), File));
    EXPECT_EQ(Said(), "");
    EXPECT_FALSE(LookAtHealth(Dir.Path()).IsNew);
}

TEST_F(Health, AnInterruptedSessionIsNoDamage) {
    TempFolder Place;
    {
        const auto Engine = OpenEngine(Place.Path());
        NoteRecords(Place.Path());  // as the program does with a new one
        Engine->KeepSession();
        Changes Door(*Engine);
        ASSERT_TRUE(Door.MakeAlbum(u"new"_s));
        ASSERT_TRUE(Engine->IsSessionStored());
        MakeDirs(SlidesFolder(Place.Path(), 1));
        WriteFile(SlidesFolder(Place.Path(), 1) + u"00000001.jpg"_s, "before its record");
    }
    EXPECT_TRUE(LookAtHealth(Place.Path()).IsSound());
    DeleteTree(Place / "Temp/Journal");
    EXPECT_FALSE(LookAtHealth(Place.Path()).IsSound());
    NoteRecords(Place.Path());
    EXPECT_TRUE(LookAtHealth(Place.Path()).IsSound()) << "nothing had been written yet";
    EXPECT_EQ(LookAtHealth(Place.Path()).Free, (IDCounters{2, 2, 1}));
}

TEST_F(Health, AFolderThatCannotBeReadIsNotEmpty) {
    ASSERT_EQ(0, chmod(qPrintable(Dir.Path()), 0));
    {
        const WithoutPrivileges Ordinary;
        EXPECT_EQ(Wrong().size(), 1) << Said();
        EXPECT_TRUE(Wrong().value(0).contains(u"cannot be read: Permission denied"_s)) << Said();
    }
    ASSERT_EQ(0, chmod(qPrintable(Dir.Path()), 0700));
}

class Mending : public Health {
  protected:
    static size_t SlidesIn(const clsDBEngine& Engine) {
        size_t Count = 0;
        for (const auto& Album : Engine.Albums) Count += Album->Slides.size();
        return Count;
    }
    // All that was below the directory is still there, in its place or in the folder.
    void ExpectNothingLost(const std::map<QString, QByteArray>& Before, const QString& Folder,
                           const std::string& What) const {
        const auto Kept = BytesBelow(Folder), Now = BytesBelow(Dir.Path());
        for (const auto& [Name, Bytes] : Before) {
            if (Name.startsWith(u"Temp/")) continue;
            const bool IsRecord = Name.contains(u".dat"_s) && !Name.startsWith(u"Backups/");
            const auto& There = IsRecord ? Kept : Now;
            ASSERT_TRUE(There.contains(Name)) << What << ": " << Name.toStdString();
            EXPECT_EQ(There.at(Name), Bytes) << What << ": " << Name.toStdString();
        }
    }
};

TEST_F(Mending, GoingOnKeepsEveryFileAndLeavesASoundDatabase) {
    for (const RecordFile File : AllRecordFiles)
        for (const Damage Kind : AllDamage) {
            const std::string What = NameOf(File, Kind);
            DeleteTree(Dir.Path());
            MakeWholeDatabase(Dir.Path());
            const size_t Slides = SlidesIn(*OpenEngine(Dir.Path()));
            Harm(Dir.Path(), File, Kind);
            DatabaseHealth Found = LookAtHealth(Dir.Path());
            if (Kind == Damage::Unreadable) Found.Unusable = {File};  // the administrator reads all
            const auto Before = BytesBelow(Dir.Path());
            const KeptFiles Kept = GoOnWithRest(Dir.Path(), {}, Found);
            ExpectNothingLost(Before, Kept.Folder, What);
            EXPECT_EQ(Said(), "") << What;
            const auto Engine = OpenEngine(Dir.Path());
            EXPECT_GE(Engine->NextAlbumID, 3) << What;
            EXPECT_GE(Engine->NextSlideID, 9) << What;
            EXPECT_GE(Engine->NextSlideShowID, 5) << What;
            if (File == RecordFile::Albums) {
                EXPECT_EQ(SlidesIn(*Engine), Slides) << What << ": captions went with a name";
            }
            ASSERT_FALSE(HasFailure());
        }
}

TEST_F(Mending, AnAlbumWithoutItsRecordComesBackUnderAMadeUpNameWhereItHasItsFolder) {
    Put("Albums.dat", {});
    DeleteTree(AlbumFolder(Dir.Path(), 2));
    GoOnWithRest(Dir.Path(), {}, LookAtHealth(Dir.Path()));
    const auto Engine = OpenEngine(Dir.Path());
    ASSERT_EQ(Engine->Albums.size(), 1u);
    EXPECT_EQ(Engine->Albums[0]->AlbumID, 1);
    EXPECT_EQ(Engine->Albums[0]->AlbumName, u"Recovered album 1"_s);
    EXPECT_FALSE(Engine->Albums[0]->SlideShows.empty());
}

TEST_F(Mending, RestoringBringsTheLastGoodStateBackFromEveryDamage) {
    for (const RecordFile File : AllRecordFiles)
        for (const Damage Kind : AllDamage) {
            const std::string What = NameOf(File, Kind);
            DeleteTree(Dir.Path());
            MakeWholeDatabase(Dir.Path());
            Harm(Dir.Path(), File, Kind);
            DatabaseHealth Found = LookAtHealth(Dir.Path());
            if (Kind == Damage::Unreadable) Found.Unusable = {File};
            const auto Before = BytesBelow(Dir.Path());
            const auto Good = LastGoodGeneration(Dir.Path());
            ASSERT_TRUE(Good) << What;
            EXPECT_EQ(Good->Albums, 1) << What;
            const KeptFiles Kept = RestoreInstead(Dir.Path(), {}, Found, *Good);
            ExpectNothingLost(Before, Kept.Folder, What);
            EXPECT_EQ(Said(), "") << What;
            const auto Engine = OpenEngine(Dir.Path());
            ASSERT_EQ(Engine->Albums.size(), 1u) << What;
            EXPECT_EQ(Engine->Albums[0]->AlbumName, u"Sea"_s) << What;
            EXPECT_GE(Engine->NextSlideID, 9) << What << ": above the pictures of the other album";
            ASSERT_FALSE(HasFailure());
        }
}

TEST_F(Mending, AStateThatIsTornItselfIsNoGoodOne) {
    Put("Albums.dat", {});
    KeepGeneration(Dir.Path(), RecordsInDirectory(Dir.Path()), 4'000'000'000'000);
    ASSERT_EQ(ListGenerations(Dir.Path()).size(), 2u);
    EXPECT_EQ(LastGoodGeneration(Dir.Path())->Albums, 1);
    DeleteTree(Dir / "Backups");
    EXPECT_FALSE(LastGoodGeneration(Dir.Path()));
}

// Changes of a session that was begun on other records are neither applied nor thrown away.
TEST_F(Mending, ASessionOfOtherRecordsIsPutAsideAndTold) {
    for (const bool Restored : {false, true}) {
        DeleteTree(Dir.Path());
        MakeWholeDatabase(Dir.Path());
        {
            const auto Engine = OpenEngine(Dir.Path());
            Engine->KeepSession();
            Changes Door(*Engine);
            ASSERT_TRUE(Door.RenameAlbum(1, u"renamed"_s));
            ASSERT_TRUE(Engine->IsSessionStored());
        }
        const QByteArray Session = ReadFile(SessionJournalPath(Dir.Path()));
        EXPECT_EQ(Said(), "");
        Harm(Dir.Path(), RecordFile::Slides, Damage::Empty);
        const DatabaseHealth Found = LookAtHealth(Dir.Path());
        EXPECT_FALSE(Found.IsSound());
        const KeptFiles Kept =
            Restored ? RestoreInstead(Dir.Path(), {}, Found, *LastGoodGeneration(Dir.Path()))
                     : GoOnWithRest(Dir.Path(), {}, Found);
        ASSERT_EQ(Kept.PutAside.size(), 1);
        EXPECT_EQ(ReadFile(Kept.PutAside[0]), Session);
        EXPECT_FALSE(FileExists(SessionJournalPath(Dir.Path())));
        EXPECT_EQ(OpenEngine(Dir.Path())->Albums[0]->AlbumName, u"Sea"_s);
        EXPECT_EQ(OpenEngine(Dir.Path())->Found().Changes, 0);
    }
}

TEST_F(Mending, AFullDiskLeavesTheRecordFilesAsTheyWere) {
    Harm(Dir.Path(), RecordFile::Albums, Damage::Empty);
    const auto Before = AllRecords(Dir.Path());
    bool Through = false;
    for (qint64 Room = 0; !Through; Room += 997) {
        SetHostWatcher([Left = Room](HostStep Step, const QString&, qint64& Length) mutable {
            if (Step != HostStep::Write) return;
            Length = std::min(Length, Left);
            Left -= Length;
        });
        try {
            GoOnWithRest(Dir.Path(), {}, LookAtHealth(Dir.Path()));
            Through = true;
        } catch (const Fault&) {
            Through = false;
        }
        SetHostWatcher({});
        const bool Waits = ReadJournal(Dir.Path()) == JournalState::Whole;
        if (!Through && !Waits) {
            EXPECT_EQ(AllRecords(Dir.Path()), Before) << Room;
        }
        if (Waits) Through = true;  // the next opening finishes it
        ASSERT_FALSE(HasFailure());
        ASSERT_LT(Room, 200'000);
    }
    EXPECT_EQ(Said(), "");
}

TEST_F(Mending, WhatIsLeftCanBeLookedAtWithoutATrace) {
    Harm(Dir.Path(), RecordFile::NextIDs, Damage::Missing);
    Harm(Dir.Path(), RecordFile::SlideShows, Damage::Folder);
    const auto Before = BytesBelow(Dir.Path());
    clsDBEngine Engine;
    Engine.SetDBPath(Dir.Path());
    LoadRest(Engine, LookAtHealth(Dir.Path()));
    EXPECT_EQ(Engine.Albums.size(), 2u);
    EXPECT_EQ(Engine.Albums[1]->Slides.size(), 4u);
    EXPECT_EQ(BytesBelow(Dir.Path()), Before);
}

}  // namespace
}  // namespace neb
