// The program ends by a kill, or the disk is full, at every single step of a write: at the next
// start the database is wholly the old one or wholly the new one.
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <set>

#include "Fixtures.h"
#include "db/Changes.h"
#include "db/modLoadRecords.h"
#include "db/recovery/modRestore.h"
#include "harness/DiskKiller.h"
#include "harness/EngineContent.h"
#include "harness/MemoryFolder.h"
#include "support/Fault.h"

namespace neb {
namespace {

using namespace harness;

// One write of a changed database over an older one (or over nothing), to be cut short. Texts of
// other scripts than the records' bring their own file along, or let it go.
struct Scene {
    struct Words {
        QString Old = u"old"_s, New = u"new and longer"_s;
        std::vector<std::int32_t> Gone = {1};  // albums
    };
    bool HasOld;
    Words Texts;
    Content Old, New;

    explicit Scene(bool WithOld) : Scene(WithOld, Words()) {}
    Scene(bool WithOld, const Words& With) : HasOld(WithOld), Texts(With) {
        TempFolder Dir;
        const auto Engine = OpenEngine(Dir.Path());
        if (HasOld) FillDatabase(*Engine, Texts.Old);
        Old = ContentOf(*Engine);
        Prepare(Dir.Path());
        New = ContentOf(*Changed(Dir.Path()));
    }
    void Prepare(const QString& Dir) const {
        if (!HasOld) return;
        for (const auto& [Name, Bytes] : Old) WriteFile(Dir + QString::fromStdString(Name), Bytes);
        MakeDirs(Dir + u"Temp/Journal"_s);
    }
    std::unique_ptr<clsDBEngine> Changed(const QString& Dir) const {
        auto Engine = OpenEngine(Dir);
        for (const std::int32_t AlbumID : Texts.Gone) Engine->DeleteAlbum(AlbumID);
        FillDatabase(*Engine, Texts.New);
        return Engine;
    }
    // The database as the next start sees it must be one of the two. True when it is the new one.
    bool ExpectOldOrNew(const QString& Dir, const std::string& Where) const {
        const Content Looked = ContentOf(*OpenEngine(Dir, Recovery::InMemory));
        const Content Started = ContentOf(*OpenEngine(Dir));
        EXPECT_TRUE(Started == Old || Started == New) << Where;
        EXPECT_EQ(Looked, Started) << Where << ": looking without changing sees another one";
        EXPECT_EQ(ReadJournal(Dir), JournalState::None) << Where;
        for (const Generation& Kept : ListGenerations(Dir)) {
            EXPECT_TRUE(HasOld && ContentOf(*OpenGeneration(Kept, Dir)) == Old) << Where;
        }
        const auto Records = AllRecords(Dir);
        if (HasOld || Started == New) {
            EXPECT_EQ(Records, Started) << Where;
        }
        return Started == New;
    }
};

void KillAtEveryStep(const Scene& TheScene, Kill How) {
    bool SawOld = false, SawNew = false;
    for (int Number = 1;; ++Number) {
        MemoryFolder Dir;
        TheScene.Prepare(Dir.Path());
        const auto Engine = TheScene.Changed(Dir.Path());
        const bool Through = RunsThrough(Number, How, Dir.Path(), [&] { Engine->FinalizeDB(); });
        const bool IsNew =
            TheScene.ExpectOldOrNew(Dir.Path(), "killed at step " + std::to_string(Number));
        (IsNew ? SawNew : SawOld) = true;
        EXPECT_EQ(ListGenerations(Dir.Path()).size(), IsNew && TheScene.HasOld ? 1u : 0u) << Number;
        EXPECT_TRUE(!Through || IsNew);
        EXPECT_TRUE(IsNew || !SawNew) << "the new database was there at an earlier step";
        if (Through || ::testing::Test::HasFailure()) break;
        ASSERT_LT(Number, 200);
    }
    EXPECT_TRUE(SawOld && SawNew);
}

TEST(Crash, AKillBeforeAnyStepLeavesTheOldOrTheNewDatabase) {
    KillAtEveryStep(Scene(true), Kill::BeforeStep);
}

TEST(Crash, AKillInTheMidstOfAWriteLeavesTheOldOrTheNewDatabase) {
    KillAtEveryStep(Scene(true), Kill::InsideWrite);
}

TEST(Crash, ALossOfPowerLeavesTheOldOrTheNewDatabase) {
    KillAtEveryStep(Scene(true), Kill::PowerLoss);
    KillAtEveryStep(Scene(false), Kill::PowerLoss);
}

// They come, they change, they go.
TEST(Crash, WholeTextsAreThoseOfTheRecordsWhateverStepIsTheLast) {
    const QString Plain = u"summer"_s, Summer = u"лето"_s, Winter = u"зима 冬 ❄"_s;
    const Scene Comes(true, {Plain, Summer}), Changes(true, {Summer, Winter}),
        Goes(true, {Summer, Plain, {1, 2}}), First(false, {{}, Summer});
    for (const auto& [TheScene, Before, After] :
         {std::tuple{&Comes, 0u, 1u}, {&Changes, 1u, 1u}, {&Goes, 1u, 0u}, {&First, 0u, 1u}}) {
        ASSERT_EQ(TheScene->Old.count("Words.dat"), Before);
        ASSERT_EQ(TheScene->New.count("Words.dat"), After);
        for (const Kill How : {Kill::BeforeStep, Kill::InsideWrite, Kill::PowerLoss})
            KillAtEveryStep(*TheScene, How);
    }
}

TEST(Crash, AKillDuringTheFirstWriteOfAllLeavesNothingOrTheNewDatabase) {
    KillAtEveryStep(Scene(false), Kill::BeforeStep);
    KillAtEveryStep(Scene(false), Kill::InsideWrite);
}

// The write is killed at step First, then its recovery at some of its own steps: others for each
// First, so that every step of the recovery is tried from many states and every state is recovered
// from. False when the write got to its end before.
bool KillTheRecovery(const Scene& TheScene, int First, Kill How, std::set<int>& Tried) {
    const int Stride = How == Kill::InsideWrite ? 3 : 5;
    for (int Second = 1 + First % Stride;; Second += Stride) {
        MemoryFolder Dir;
        TheScene.Prepare(Dir.Path());
        const auto Engine = TheScene.Changed(Dir.Path());
        if (RunsThrough(First, Kill::BeforeStep, Dir.Path(), [&] { Engine->FinalizeDB(); }))
            return false;
        // what the first kill left decides, however often its recovery breaks off
        const bool WasNew = ContentOf(*OpenEngine(Dir.Path(), Recovery::InMemory)) == TheScene.New;
        const bool Through = RunsThrough(Second, How, Dir.Path(), [&] { OpenEngine(Dir.Path()); });
        const std::string Where = std::to_string(First) + ", then " + std::to_string(Second);
        EXPECT_EQ(WasNew, TheScene.ExpectOldOrNew(Dir.Path(), Where)) << Where;
        if (Through || ::testing::Test::HasFailure()) return true;
        Tried.insert(Second);
    }
}

void KillEachRecovery(const Scene& TheScene) {
    for (const Kill How : {Kill::PowerLoss, Kill::InsideWrite}) {
        std::set<int> Tried;
        int First = 1;
        while (KillTheRecovery(TheScene, First, How, Tried)) {
            ASSERT_FALSE(::testing::Test::HasFailure());
            ASSERT_LT(++First, 200);
        }
        // each record file is deleted, written and flushed, at the least, and none is left out
        ASSERT_GE(Tried.size(), (How == Kill::InsideWrite ? 1 : 3) * RecordFileCount);
        EXPECT_GE(static_cast<int>(Tried.size()) + 2, *Tried.rbegin()) << "but for the very last";
    }
}

TEST(Crash, AKillDuringTheRecoveryIsRecoveredFrom) {
    KillEachRecovery(Scene(true));
}

TEST(Crash, AKillDuringTheRecoveryOfWholeTextsIsRecoveredFrom) {
    KillEachRecovery(Scene(true, {u"лето"_s, u"зима"_s}));
}

// What the first has not flushed is on no disk yet, however long ago that was.
TEST(Crash, ALossOfPowerInTheStartBehindAKillLeavesTheOldOrTheNewDatabase) {
    constexpr int Stride = 4;
    const Scene TheScene(true);
    bool Through = false;
    for (int First = 1; !Through && !HasFailure(); ++First)
        for (int Second = 1 + First % Stride; Second < 40 && !Through; Second += Stride) {
            MemoryFolder Dir;
            TheScene.Prepare(Dir.Path());
            const auto Engine = TheScene.Changed(Dir.Path());
            Through = RunsThrough(
                First, Second, Dir.Path(), [&] { Engine->FinalizeDB(); },
                [&] { OpenEngine(Dir.Path()); });
            TheScene.ExpectOldOrNew(Dir.Path(), "killed at step " + std::to_string(First) +
                                                    ", power lost at " + std::to_string(Second));
        }
    EXPECT_TRUE(Through);
}

// The journal of a session, which the one of all records has all of, was not yet deleted; what
// follows must not take it for one of other records.
TEST(Crash, AKillOfTheStartThatFindsBothJournalsLosesNothing) {
    for (const Kill How : {Kill::BeforeStep, Kill::PowerLoss})
        for (int Number = 1, Through = 0; !Through; ++Number) {
            MemoryFolder Dir;
            Content Held;
            {
                const auto Engine = OpenEngine(Dir.Path());
                Engine->KeepSession();
                FillDatabase(*Engine, u"old"_s);
                Changes(*Engine).RenameAlbum(1, u"Sea"_s);
                EXPECT_TRUE(Engine->IsSessionStored());
                SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
                    if (Step == HostStep::Delete && Path.endsWith(u"Session.journal"_s))
                        throw Fault(u"no"_s, Path);
                });
                EXPECT_THROW(Engine->FinalizeDB(), Fault);
                SetHostWatcher({});
                Held = ContentOf(*Engine);
            }
            Through = RunsThrough(Number, How, Dir.Path(), [&] { OpenEngine(Dir.Path()); });
            const auto Engine = OpenEngine(Dir.Path());
            EXPECT_EQ(Held, ContentOf(*Engine)) << Number;
            EXPECT_TRUE(Engine->Found().PutAside.isEmpty()) << Number;
            ASSERT_LT(Number, 200);
        }
}

TEST(Crash, AKillDuringASecondTryDoesNotLoseTheFirst) {
    const Scene TheScene(true);
    for (int Number = 1;; ++Number) {
        MemoryFolder Dir;
        TheScene.Prepare(Dir.Path());
        const auto Engine = TheScene.Changed(Dir.Path());
        // The first try writes its journal and breaks down among the record files.
        SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
            if (Step == HostStep::Write && Path.endsWith(u"Slides.dat"))
                throw Fault(u"full"_s, Path);
        });
        EXPECT_THROW(Engine->FinalizeDB(), Fault);
        SetHostWatcher({});
        const bool Through =
            RunsThrough(Number, Kill::InsideWrite, Dir.Path(), [&] { Engine->FinalizeDB(); });
        ASSERT_TRUE(TheScene.ExpectOldOrNew(Dir.Path(), std::to_string(Number)));
        if (Through) break;
    }
}

// A disk on which only so many more bytes find room; what is deleted makes no room.
class FullDisk {
  public:
    explicit FullDisk(qint64 Room) : mRoom(Room) {
        SetHostWatcher([this](HostStep Step, const QString&, qint64& Length) {
            if (Step != HostStep::Write) return;
            Length = std::min(Length, mRoom);
            mRoom -= Length;
        });
    }
    ~FullDisk() { SetHostWatcher({}); }

  private:
    qint64 mRoom;
};

TEST(Crash, AFullDiskLeavesTheOldOrTheNewDatabaseAndNamesTheFile) {
    const Scene TheScene(true);
    bool SawOld = false, SawNew = false;
    qint64 Room = 0;
    for (bool Through = false; !Through; Room += 41) {
        MemoryFolder Dir;
        TheScene.Prepare(Dir.Path());
        const auto Engine = TheScene.Changed(Dir.Path());
        QString Named;
        try {
            FullDisk Disk(Room);
            Engine->FinalizeDB();
            Through = true;
        } catch (const Fault& Problem) {
            Named = Problem.File();
            EXPECT_TRUE(Problem.Text().contains(Named));
            EXPECT_TRUE(Named.startsWith(Dir.Path()) && FolderExists(Dir.Path()));
        }
        EXPECT_EQ(Through, Named.isEmpty());
        const bool IsNew = TheScene.ExpectOldOrNew(Dir.Path(), "room " + std::to_string(Room));
        (IsNew ? SawNew : SawOld) = true;
        ASSERT_FALSE(HasFailure());
        ASSERT_LT(Room, 1000000);
    }
    EXPECT_TRUE(SawOld && SawNew);
}

TEST(Crash, AJournalThatFindsNoRoomLeavesNoTrace) {
    const Scene TheScene(true);
    TempFolder Dir;
    TheScene.Prepare(Dir.Path());
    const auto Before = AllRecords(Dir.Path());
    const auto Engine = TheScene.Changed(Dir.Path());
    {
        FullDisk Disk(100);
        EXPECT_THROW(Engine->FinalizeDB(), Fault);
    }
    EXPECT_EQ(AllRecords(Dir.Path()), Before);
    EXPECT_TRUE(ListDir(Dir / "Temp/Journal").empty());
    Engine->FinalizeDB();  // with room again, the program saves what it had
    EXPECT_EQ(ContentOf(*OpenEngine(Dir.Path())), TheScene.New);
}

// A whole journal and the record files in disarray.
void BreakWrite(const Scene& TheScene, const QString& Dir) {
    TheScene.Prepare(Dir);
    const auto Engine = TheScene.Changed(Dir);
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Write && Path.endsWith(u"Slides.dat")) throw Fault(u"full"_s, Path);
    });
    EXPECT_THROW(Engine->FinalizeDB(), Fault);
    SetHostWatcher({});
    ASSERT_EQ(ReadJournal(Dir), JournalState::Whole);
}

TEST(Journal, AnyDamageMakesItTorn) {
    const Scene TheScene(true);
    TempFolder Dir;
    BreakWrite(TheScene, Dir.Path());
    const QByteArray Whole = ReadFile(JournalPath(Dir.Path()));
    for (qsizetype I = 0; I < Whole.size(); I += 7) {
        QByteArray Damaged = Whole;
        Damaged[I] = static_cast<char>(Damaged[I] ^ 0x10);
        WriteFile(JournalPath(Dir.Path()), Damaged);
        ASSERT_EQ(ReadJournal(Dir.Path()), JournalState::Torn) << I;
        WriteFile(JournalPath(Dir.Path()), Whole.left(I));
        ASSERT_EQ(ReadJournal(Dir.Path()), JournalState::Torn) << I;
    }
    WriteFile(JournalPath(Dir.Path()), Whole + '\0');
    EXPECT_EQ(ReadJournal(Dir.Path()), JournalState::Torn);
}

TEST(Journal, ATornOneIsDroppedAtTheNextStart) {
    const Scene TheScene(true);
    TempFolder Dir;
    TheScene.Prepare(Dir.Path());
    WriteFile(JournalPath(Dir.Path()), "NEBJRNL1 and not much more");
    EXPECT_EQ(ContentOf(*OpenEngine(Dir.Path())), TheScene.Old);
    EXPECT_FALSE(FileExists(JournalPath(Dir.Path())));
}

TEST(Journal, LookingOnlyChangesNothingOnTheDisk) {
    const Scene TheScene(true);
    TempFolder Dir;
    BreakWrite(TheScene, Dir.Path());
    const auto Before = AllRecords(Dir.Path());
    SetHostWatcher(
        [](HostStep, const QString& Path, qint64&) { ADD_FAILURE() << qPrintable(Path); });
    const auto Engine = OpenEngine(Dir.Path(), Recovery::InMemory);
    SetHostWatcher({});
    EXPECT_EQ(ContentOf(*Engine), TheScene.New);
    EXPECT_EQ(AllRecords(Dir.Path()), Before);
    EXPECT_EQ(ReadJournal(Dir.Path()), JournalState::Whole);
}

TEST(Journal, AReadOnlyDatabaseIsReadFromItAndStaysAsItIs) {
    const Scene TheScene(true);
    TempFolder Dir;
    BreakWrite(TheScene, Dir.Path());
    const auto Before = AllRecords(Dir.Path());
    QFile::setPermissions(Dir / "NextIDs.dat", QFileDevice::ReadOwner);
    EXPECT_EQ(ContentOf(*OpenEngine(Dir.Path())), TheScene.New);
    EXPECT_EQ(AllRecords(Dir.Path()), Before);
    EXPECT_EQ(ReadJournal(Dir.Path()), JournalState::Whole);
}

TEST(Journal, SurvivesTheEmptyingOfTempAtTheEndOfTheProgram) {
    const Scene TheScene(true);
    TempFolder Dir;
    BreakWrite(TheScene, Dir.Path());
    WriteFile(Dir / "Temp/tmp.wav", "x");
    DeleteMask(Dir / "Temp/*.*");
    EXPECT_FALSE(FileExists(Dir / "Temp/tmp.wav"));
    EXPECT_EQ(ContentOf(*OpenEngine(Dir.Path())), TheScene.New);
}

TEST(Journal, IsGoneAfterACleanWrite) {
    TempFolder Dir;
    OpenEngine(Dir.Path())->FinalizeDB();
    const auto Left = ListDir(Dir / "Temp/Journal");
    ASSERT_EQ(Left.size(), 1u);
    EXPECT_EQ(Left[0].Name, u"Records.sums"_s) << "by which damage is known";
}

TEST(Journal, TheRecordFilesAreTouchedInTheirOrderAfterItIsOnTheDisk) {
    const Scene TheScene(true);
    TempFolder Dir;
    TheScene.Prepare(Dir.Path());
    const auto Engine = TheScene.Changed(Dir.Path());
    QStringList Steps;
    SetHostWatcher([&](HostStep Step, const QString& Path, qint64&) {
        static const char* const Names[] = {"write",  "sync", "syncdir", "delete",
                                            "rename", "link", "mkdir"};
        Steps << QLatin1String(Names[static_cast<int>(Step)]) + u' ' + Path.mid(Dir.Path().size());
    });
    Engine->FinalizeDB();
    SetHostWatcher({});
    QStringList Expected = {"write Temp/Journal/Records.journal.new",
                            "sync Temp/Journal/Records.journal.new",
                            "rename Temp/Journal/Records.journal",
                            "syncdir Temp/Journal/",
                            "syncdir Temp/",
                            "syncdir "};
    const QString Kept = u"Backups/"_s + QDir(Dir / "Backups").entryList({u"*.nebgen"_s}).value(0);
    Expected << u"mkdir Backups/"_s << u"syncdir "_s << u"write "_s + Kept + u".new"_s
             << u"sync "_s + Kept + u".new"_s << u"rename "_s + Kept << u"syncdir Backups/"_s;
    for (const char* Name : {"Properties", "EffectStats", "NextIDs"})
        for (const char* Step : {"delete ", "write ", "sync "})
            Expected << QLatin1String(Step) + QLatin1String(Name) + u".dat"_s;
    for (const char* Step : {"delete ", "write ", "sync "})
        for (const char* Name :
             {"Albums", "Slides", "SlideShows", "SlideShowDetails", "SlideShowSoundTracks"})
            Expected << QLatin1String(Step) + QLatin1String(Name) + u".dat"_s;
    const QString Sums = u"Temp/Journal/Records.sums"_s;
    Expected << u"syncdir "_s << u"write "_s + Sums + u".new"_s << u"sync "_s + Sums + u".new"_s
             << u"rename "_s + Sums << u"syncdir Temp/Journal/"_s
             << u"delete Temp/Journal/Records.journal"_s << u"syncdir Temp/Journal/"_s;
    // Each file's write may come with its flush, so the writes are looked at by themselves.
    const auto Only = [](const QStringList& All, const char* Step) {
        return All.filter(QRegularExpression(u'^' + QLatin1String(Step) + u' '));
    };
    for (const char* Step : {"write", "sync", "syncdir", "delete", "rename", "mkdir"})
        EXPECT_EQ(Only(Steps, Step), Only(Expected, Step)) << Step;
    EXPECT_EQ(Steps.mid(0, 7), Expected.mid(0, 7));
    EXPECT_EQ(Steps.mid(Steps.size() - 3), Expected.mid(Expected.size() - 3));
}

}  // namespace
}  // namespace neb
