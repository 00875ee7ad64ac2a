// A transfer ends by a kill, a power cut or a full disk at every single step of what it does to the
// disk: at the next opening the destination is wholly the old one or wholly the new one, records
// and files, and nothing is left of the attempt; the source is as it was.
#include <mutex>

#include "TransferRig.h"
#include "harness/DiskKiller.h"

namespace neb::harness {
namespace {

// A database on the disk as the next opening finds it, Temp included.
DatabaseState Reopened(const QString& Dir) {
    clsDBEngine Engine;
    Engine.SetDBPath(Dir);
    Engine.InitializeDB();
    return ReadDatabase(Dir);
}

// A transfer between two small databases, to be cut short: what both are like before, and what the
// destination must be like afterwards.
class Scene {
  public:
    // Empty Targets: into an empty database.
    explicit Scene(const StatedTransfer& What, bool HasTarget = true)
        : mWhat(What), mHasTarget(HasTarget) {
        FilledDatabase Src(mSource.Path(), u"src"_s);
        Fill(Src, u"Garden"_s);
        mSourceBefore = Tree(mSource.Path());
        MemoryFolder Dir;
        Prepare(Dir.Path());
        Old = ReadDatabase(Dir.Path());
        New = Dictated(ReadDatabase(mSource.Path()), Old, mWhat);
    }
    void Prepare(const QString& Dir) const {
        FilledDatabase Target(Dir, u"dst"_s);
        if (mHasTarget) Fill(Target, u"Town"_s);
    }
    void Run(const QString& Dir) const {
        clsDBEngine Source, Target;
        Source.SetDBPath(mSource.Path());
        Source.InitializeDB();
        Target.SetDBPath(Dir);
        Target.InitializeDB();
        ASSERT_TRUE(Transfer(Source, Target, mWhat));
        if (WritesRecords) Target.FinalizeDB();
    }
    // True when it is the new one.
    bool ExpectOldOrNew(const QString& Dir, const std::string& Where) const {
        const DatabaseState Found = Reopened(Dir);
        const std::string FromOld = DifferencesFrom(Old, Found);
        const std::string FromNew = DifferencesFrom(New, Found);
        EXPECT_TRUE(FromOld.empty() || FromNew.empty()) << Where << "\nfrom the old one:\n"
                                                        << FromOld << "\nfrom the new one:\n"
                                                        << FromNew;
        EXPECT_EQ("", TreeDifferences(mSourceBefore, Tree(mSource.Path()))) << Where;
        return FromNew.empty();
    }

    DatabaseState Old, New;
    bool WritesRecords = true;  // else the transfer alone: the program ends before its records

  private:
    // Two slides, one with a sound, in a show with two tracks of the same names everywhere.
    static void Fill(FilledDatabase& Into, const QString& Name) {
        const std::int32_t ID = Into.AddAlbum(Name);
        const std::int32_t First = Into.AddSlide(ID, u"first"_s).SlideID;
        clsNEBSlide& Second = Into.AddSlide(ID, u"second"_s);
        Into.AddThumbnail(ID, First);
        Into.AddSound(ID, Second);
        clsNEBSlideShow& Show = Into.AddShow(ID, Name + u" walk"_s, 1, {First});
        Into.AddTrack(ID, Show, 1, u".mp3"_s);
        Into.AddTrack(ID, Show, 2, u".mp3"_s, true);
        Into.Engine.FinalizeDB();
    }

    const StatedTransfer mWhat;
    const bool mHasTarget;
    MemoryFolder mSource;
    std::map<QString, QByteArray> mSourceBefore;
};

StatedTransfer NewAlbum() {
    return {.SrcAlbumID = 1, .NewAlbumName = u"Arrived"_s};
}
StatedTransfer ReplacedAlbum() {
    return {.SrcAlbumID = 1, .DstAlbumID = 1, .Replace = true, .NewAlbumName = u"Arrived"_s};
}
StatedTransfer ReplacedShow() {
    return {.SrcAlbumID = 1,
            .SrcSlideShowID = 1,
            .DstAlbumID = 1,
            .DstSlideShowID = 1,
            .NewAlbumName = u"Town"_s,
            .NewSlideShowName = u"Tour"_s};
}

void KillAtEveryStep(const Scene& TheScene, Kill How) {
    bool SawOld = false, SawNew = false;
    for (int Number = 1;; ++Number) {
        MemoryFolder Dir;
        TheScene.Prepare(Dir.Path());
        const bool Through =
            RunsThrough(Number, How, Dir.Path(), [&] { TheScene.Run(Dir.Path()); });
        const bool IsNew =
            TheScene.ExpectOldOrNew(Dir.Path(), "killed at step " + std::to_string(Number));
        (IsNew ? SawNew : SawOld) = true;
        EXPECT_TRUE(!Through || IsNew);
        EXPECT_TRUE(IsNew || !SawNew) << "the new database was there at an earlier step";
        if (Through || ::testing::Test::HasFailure()) break;
        ASSERT_LT(Number, 400);
    }
    EXPECT_TRUE(SawOld && SawNew);
}

struct Cut {
    const char* Name;
    StatedTransfer What;
    bool HasTarget, WritesRecords;
    Kill How;
};
void PrintTo(const Cut& Each, std::ostream* Out) {
    *Out << Each.Name;
}
class TransferCut : public ::testing::TestWithParam<Cut> {};

TEST_P(TransferCut, LeavesTheOldOrTheNewDatabase) {
    Scene TheScene(GetParam().What, GetParam().HasTarget);
    TheScene.WritesRecords = GetParam().WritesRecords;
    KillAtEveryStep(TheScene, GetParam().How);
}

INSTANTIATE_TEST_SUITE_P(
    Crash, TransferCut,
    ::testing::Values(
        Cut{"NewAlbumInsideAWrite", NewAlbum(), true, true, Kill::InsideWrite},
        Cut{"NewAlbumByALossOfPower", NewAlbum(), true, true, Kill::PowerLoss},
        Cut{"FirstAlbumByALossOfPower", NewAlbum(), false, true, Kill::PowerLoss},
        Cut{"ReplacedAlbumByAKill", ReplacedAlbum(), true, true, Kill::BeforeStep},
        Cut{"ReplacedAlbumByALossOfPower", ReplacedAlbum(), true, true, Kill::PowerLoss},
        Cut{"ReplacedAlbumInsideAWrite", ReplacedAlbum(), true, true, Kill::InsideWrite},
        Cut{"ReplacedShowByAKill", ReplacedShow(), true, true, Kill::BeforeStep},
        Cut{"ReplacedShowByALossOfPower", ReplacedShow(), true, true, Kill::PowerLoss},
        Cut{"IntoTheRunningOneInsideAWrite", ReplacedShow(), true, false, Kill::InsideWrite},
        Cut{"IntoTheRunningOneByALossOfPower", ReplacedAlbum(), true, false, Kill::PowerLoss}),
    [](const auto& Info) { return std::string(Info.param.Name); });

// The transfer is cut at step First, then the next opening at some of its own steps: others for
// each First, so that every step of it is tried from many states.
bool CutTheNextOpening(const Scene& TheScene, int First, Kill How, bool& SawNew) {
    constexpr int Stride = 5;
    for (int Second = 1 + First % Stride;; Second += Stride) {
        MemoryFolder Dir;
        TheScene.Prepare(Dir.Path());
        if (RunsThrough(First, Kill::BeforeStep, Dir.Path(), [&] { TheScene.Run(Dir.Path()); }))
            return false;
        const bool Through = RunsThrough(Second, How, Dir.Path(), [&] { Reopened(Dir.Path()); });
        const std::string Where = std::to_string(First) + ", then " + std::to_string(Second);
        const bool IsNew = TheScene.ExpectOldOrNew(Dir.Path(), Where);
        EXPECT_TRUE(IsNew || !SawNew) << Where << ": what was there has gone again";
        SawNew = SawNew || IsNew;
        if (Through || ::testing::Test::HasFailure()) return true;
    }
}

TEST(TransferRecovery, ACutDuringTheNextOpeningIsRecoveredFrom) {
    Scene TheScene(ReplacedAlbum());
    TheScene.WritesRecords = false;
    bool SawNew = false;
    for (int First = 1;; ++First) {
        const Kill How = First % 3 ? Kill::PowerLoss : Kill::InsideWrite;
        if (!CutTheNextOpening(TheScene, First, How, SawNew)) break;
        ASSERT_FALSE(::testing::Test::HasFailure());
        ASSERT_LT(First, 400);
    }
    EXPECT_TRUE(SawNew);
}

// The disk is full at write Number, of which half finds room; and from then on.
class FullDisk {
  public:
    explicit FullDisk(int Number) : mLeft(Number) {
        SetHostWatcher([this](HostStep Step, const QString&, qint64& Length) {
            const std::lock_guard<std::mutex> OneByOne(mLock);
            if (Step != HostStep::Write || --mLeft > 0) return;
            Length = mLeft == 0 ? Length / 2 : 0;
        });
    }
    ~FullDisk() { SetHostWatcher({}); }

  private:
    std::mutex mLock;
    int mLeft;
};

TEST_F(TransferRig, AFullDiskAtAnyWriteLeavesBothAsTheyWere) {
    const StatedTransfer All[] = {
        {.SrcAlbumID = GardenID,
         .SrcSlideShowID = 1,
         .DstAlbumID = TownID,
         .DstSlideShowID = ShowNamed(Other.Engine, TownID, u"Town walk"_s),
         .NewAlbumName = u"Town"_s,
         .NewSlideShowName = u"Tour"_s},
        {.SrcAlbumID = GardenID,
         .DstAlbumID = TownID,
         .Replace = true,
         .NewAlbumName = u"Arrived"_s},
        {.SrcAlbumID = GardenID, .NewAlbumName = u"New"_s}};
    for (const StatedTransfer& Each : All) {
        Other.Engine.InitializeDB();
        const Untouched Both(Own.Engine, Other.Engine);
        for (int Number = 1;; ++Number) {
            bool Through = false;
            try {
                const FullDisk Disk(Number);
                Through = static_cast<bool>(Transfer(Own.Engine, Other.Engine, Each));
                EXPECT_TRUE(Through);
            } catch (const Fault& Problem) {
                EXPECT_TRUE(Problem.File().startsWith(Other.Dir())) << Problem.what();
                EXPECT_NE(TransferUnfinished, Problem.Number());
            }
            if (Through) break;
            Both.Expect("full at write " + std::to_string(Number));
            ASSERT_FALSE(HasFailure());
            ASSERT_LT(Number, 200);
        }
    }
}

// Any other step fails, too: a name that cannot be given, a flush that is refused. An old file that
// cannot be deleted stays; the flush of names alone is never refused. Once, and the next try is
// good; or for good, as with a medium that was pulled.
class TransferFault : public TransferRig, public ::testing::WithParamInterface<bool> {};

INSTANTIATE_TEST_SUITE_P(All, TransferFault, ::testing::Bool(), [](const auto& Info) {
    return std::string(Info.param ? "ForGood" : "Once");
});

TEST_P(TransferFault, AtAnyStepLeavesTheOldDatabaseOrTellsThatTheNewOneIsNotFinished) {
    const StatedTransfer What{.SrcAlbumID = GardenID,
                              .DstAlbumID = TownID,
                              .Replace = true,
                              .NewAlbumName = u"Arrived"_s};
    const DatabaseState Before = ReadDatabase(Other.Dir()), Source = ReadDatabase(Own.Dir());
    const auto Disk = Tree(Other.Dir());
    int Unfinished = 0;
    for (int Number = 1; Number < 400; ++Number) {
        MemoryFolder Dir;
        for (const auto& [Path, Content] : Disk)
            if (Content == "a folder") MakeDirs(Dir / Path);
        for (const auto& [Path, Content] : Disk)
            if (Content != "a folder") WriteFile(Dir / Path, Content);
        clsDBEngine Target;
        Target.SetDBPath(Dir.Path());
        Target.InitializeDB();
        const Untouched Both(Own.Engine, Target);
        std::mutex Lock;
        int Left = Number;
        SetHostWatcher([&](HostStep Step, const QString& Path, qint64&) {
            const std::lock_guard<std::mutex> OneByOne(Lock);
            if (Step == HostStep::SyncDir || Step == HostStep::Delete || --Left > 0) return;
            if (Left == 0 || GetParam()) throw Fault(u"no"_s, Path);
        });
        bool Through = false, IsNew = false;
        try {
            Through = IsNew = static_cast<bool>(Transfer(Own.Engine, Target, What));
        } catch (const Fault& Problem) {
            IsNew = Problem.Number() == TransferUnfinished;
        }
        SetHostWatcher({});
        Unfinished += IsNew && !Through;
        if (!IsNew) Both.Expect("fault at step " + std::to_string(Number));
        Target.FinalizeDB();
        EXPECT_EQ("", IsNew ? CheckTransfer(Source, Before, ReadDatabase(Dir.Path()), What)
                            : DifferencesFrom(Before, ReadDatabase(Dir.Path())))
            << "fault at step " << Number;
        ASSERT_FALSE(HasFailure());
        if (Through && Left > 0) break;
    }
    EXPECT_EQ(GetParam(), Unfinished > 0);
}

}  // namespace
}  // namespace neb::harness
