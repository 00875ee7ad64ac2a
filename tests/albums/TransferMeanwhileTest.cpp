// Others are at work in the destination while files are copied into it; and what a transfer leaves
// behind that was cut short after its end was certain.
#include "TransferRig.h"
#include "harness/WithoutPrivileges.h"

namespace neb::harness {
namespace {

using Stage = TransferProgress::Stage;

struct Meanwhile {
    const char* Name;
    Stage At;
    std::function<void(clsDBEngine& Dst, std::int32_t AlbumID)> Change;
};
void PrintTo(const Meanwhile& Each, std::ostream* Out) {
    *Out << Each.Name;
}

void AlbumGoes(clsDBEngine& Dst, std::int32_t AlbumID) {
    Dst.DeleteAlbum(AlbumID);
}
void AlbumIsMade(clsDBEngine& Dst, std::int32_t) {
    std::int32_t Made = 0;
    Dst.SaveAlbum(Made, u"Made"_s);
}
void SlideIsMade(clsDBEngine& Dst, std::int32_t AlbumID) {
    std::int32_t Made = 0;
    Dst.GetAlbum(AlbumID)->SaveSlide(Made, u"made"_s, {}, {}, false, false, Dst);
}
void ShowIsMade(clsDBEngine& Dst, std::int32_t AlbumID) {
    std::int32_t Made = 0;
    Dst.GetAlbum(AlbumID)->SaveSlideShow(Made, u"made"_s, 0, Dst);
}
void ShowGoes(clsDBEngine& Dst, std::int32_t AlbumID) {
    Dst.GetAlbum(AlbumID)->TakeSlideShow(Dst.GetAlbum(AlbumID)->SlideShows[0]->SlideShowID);
}

class TransferBeside : public TransferRig {
  protected:
    // The first show of Garden over the first one of Town.
    StatedTransfer OverTownWalk() {
        return {.SrcAlbumID = GardenID,
                .SrcSlideShowID = ShowNamed(Own.Engine, GardenID, u"Garden walk"_s),
                .DstAlbumID = TownID,
                .DstSlideShowID = ShowNamed(Other.Engine, TownID, u"Town walk"_s),
                .NewAlbumName = u"Town"_s,
                .NewSlideShowName = u"Tour"_s};
    }
};
class TransferMeanwhile : public TransferBeside, public ::testing::WithParamInterface<Meanwhile> {};

TEST_P(TransferMeanwhile, WhatOthersHaveChangedStaysAndTheTransferIsRefused) {
    const auto Disk = Tree(Other.Dir());
    std::map<std::string, QByteArray> After;
    const TransferDesk Desk{.Progress = [&](const TransferProgress& Now) {
        if (Now.At != GetParam().At || !After.empty()) return true;
        GetParam().Change(Other.Engine, TownID);
        After = MemoryOf(Other.Engine);
        return true;
    }};
    const TransferResult Result = Transfer(Own.Engine, Other.Engine, OverTownWalk(), Desk);
    ASSERT_FALSE(After.empty());
    EXPECT_EQ(TransferResult::End::Refused, Result.Is);
    EXPECT_EQ("plain||The destination was changed meanwhile. Nothing was transferred.",
              BoxesOf(Result));
    EXPECT_TRUE(After == MemoryOf(Other.Engine)) << "what others have changed is lost";
    EXPECT_EQ("", TreeDifferences(Disk, Tree(Other.Dir())));
}

INSTANTIATE_TEST_SUITE_P(
    Transfer, TransferMeanwhile,
    ::testing::Values(Meanwhile{"AlbumGoesAtALook", Stage::Looking, AlbumGoes},
                      Meanwhile{"AlbumGoes", Stage::Copying, AlbumGoes},
                      Meanwhile{"AlbumIsMade", Stage::Copying, AlbumIsMade},
                      Meanwhile{"SlideIsMade", Stage::Copying, SlideIsMade},
                      Meanwhile{"ShowIsMade", Stage::Copying, ShowIsMade},
                      Meanwhile{"ShowGoes", Stage::Copying, ShowGoes},
                      Meanwhile{"AlbumGoesAtTheWriting", Stage::Writing, AlbumGoes},
                      Meanwhile{"AlbumIsMadeAtTheWriting", Stage::Writing, AlbumIsMade},
                      Meanwhile{"SlideIsMadeAtTheWriting", Stage::Writing, SlideIsMade},
                      Meanwhile{"ShowIsMadeAtTheWriting", Stage::Writing, ShowIsMade},
                      Meanwhile{"ShowGoesAtTheWriting", Stage::Writing, ShowGoes}),
    [](const auto& Info) { return std::string(Info.param.Name); });

// What concerns neither the album nor any number does no harm.
TEST_F(TransferBeside, ACaptionThatIsChangedInAnotherAlbumIsKept) {
    const TransferDesk Desk{.Progress = [&](const TransferProgress& Now) {
        if (Now.At == Stage::Copying) SlideAt(Other.Engine, HillsID, 0).SlideText = u"new"_s;
        return true;
    }};
    ASSERT_TRUE(Transfer(Own.Engine, Other.Engine, OverTownWalk(), Desk));
    ExpectAsWritten(Other.Engine);
    EXPECT_EQ(u"new"_s, SlideAt(Other.Engine, HillsID, 0).SlideText);
}

TEST_F(TransferBeside, ACaptionThatIsChangedInTheAlbumIsKept) {
    const TransferDesk Desk{.Progress = [&](const TransferProgress& Now) {
        if (Now.At == Stage::Copying) SlideAt(Other.Engine, TownID, 3).SlideText = u"new"_s;
        return true;
    }};
    ASSERT_TRUE(Transfer(Own.Engine, Other.Engine, OverTownWalk(), Desk));
    Other.Engine.InitializeDB();
    EXPECT_EQ(u"new"_s, SlideAt(Other.Engine, TownID, 2).SlideText) << "one before it went";
}

// ------------------------------------------------------------------------------- certain, not
// whole

// Breaks off among the files that are put in their places; true when it told so.
bool BreakOff(const std::function<void()>& Work, const QString& Beginning) {
    int Left = 3;
    SetHostWatcher([&](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Rename && Path.startsWith(Beginning) && --Left <= 0)
            throw Fault(u"no"_s, Path);
    });
    bool Told = false;
    try {
        Work();
    } catch (const Fault& Problem) {
        Told = Problem.Number() == TransferUnfinished;
    }
    SetHostWatcher({});
    return Told;
}

TEST_F(TransferBeside, OneThatCouldNotPutItsFilesInPlaceIsCompletedLater) {
    const DatabaseState Source = ReadDatabase(Own.Dir()), Before = ReadDatabase(Other.Dir());
    const StatedTransfer First = OverTownWalk();
    const auto Run = [&] { Transfer(Own.Engine, Other.Engine, First); };
    ASSERT_TRUE(BreakOff(Run, Other.Dir() + u"Albums/"_s));
    ExpectAsWritten(Other.Engine);
    const DatabaseState Wanted = Dictated(Source, Before, First);
    const auto Disk = Tree(Other.Dir());
    Other.Engine.FinalizeDB();
    EXPECT_EQ("", DifferencesFrom(Wanted, ReadDatabase(Other.Dir()))) << "by the end";
    for (const auto& [Path, Content] : Tree(Other.Dir())) QFile::remove(Other.Dir() + Path);
    for (const auto& [Path, Content] : Disk)
        if (Content == "a folder") MakeDirs(Other.Dir() + Path);
    for (const auto& [Path, Content] : Disk)
        if (Content != "a folder") WriteFile(Other.Dir() + Path, Content);
    Other.Engine.InitializeDB();
    EXPECT_EQ("", DifferencesFrom(Wanted, ReadDatabase(Other.Dir()))) << "by the next opening";
}

TEST_F(TransferBeside, TheNextTransferFirstCompletesIt) {
    const StatedTransfer Second{.SrcAlbumID = SeaID, .NewAlbumName = u"Sea"_s};
    const DatabaseState Source = ReadDatabase(Own.Dir()), Before = ReadDatabase(Other.Dir());
    const StatedTransfer First = OverTownWalk();
    const auto Run = [&] { Transfer(Own.Engine, Other.Engine, First); };
    ASSERT_TRUE(BreakOff(Run, Other.Dir() + u"Albums/"_s));
    ASSERT_TRUE(Transfer(Own.Engine, Other.Engine, Second));
    Other.Engine.FinalizeDB();
    const DatabaseState Between = Dictated(Source, Before, First);
    EXPECT_EQ("", CheckTransfer(Source, Between, ReadDatabase(Other.Dir()), Second));
}

TEST_F(TransferBeside, AlsoOneThatIsStoppedKeepsIt) {
    const DatabaseState Source = ReadDatabase(Own.Dir()), Before = ReadDatabase(Other.Dir());
    const StatedTransfer First = OverTownWalk();
    const auto Run = [&] { Transfer(Own.Engine, Other.Engine, First); };
    ASSERT_TRUE(BreakOff(Run, Other.Dir() + u"Albums/"_s));
    const TransferDesk Stop{
        .Progress = [](const TransferProgress& Now) { return Now.At == Stage::Looking; }};
    EXPECT_EQ(
        TransferResult::End::Stopped,
        Transfer(Own.Engine, Other.Engine, {.SrcAlbumID = SeaID, .NewAlbumName = u"Sea"_s}, Stop)
            .Is);
    Other.Engine.FinalizeDB();
    EXPECT_EQ("", CheckTransfer(Source, Before, ReadDatabase(Other.Dir()), First));
}

TEST_F(TransferBeside, TheWindowsHearOfOneThatIsNotWholeYet) {
    const StatedTransfer What{
        .SrcAlbumID = HillsID, .DstAlbumID = SeaID, .Replace = true, .NewAlbumName = u"Sea"_s};
    const auto Run = [&] { Transfer(Other.Engine, Own.Engine, What); };
    ASSERT_TRUE(BreakOff(Run, Own.Dir() + u"Albums/"_s));
    EXPECT_EQ((std::vector<Change>{{Change::Kind::AlbumReplaced, SeaID}}), Told);
}

// Only the replaced show has had the slide when the transfer began.
TEST_F(TransferBeside, ASlideThatAnotherShowTakesMeanwhileStays) {
    const StatedTransfer What = OverTownWalk();
    const std::int32_t Second = SlideAt(Other.Engine, TownID, 1).SlideID;
    const std::int32_t Run = ShowNamed(Other.Engine, TownID, u"Town run"_s);
    bool Done = false;
    const TransferDesk Desk{.Progress = [&](const TransferProgress& Now) {
        if (Now.At == Stage::Copying && !std::exchange(Done, true))
            Other.Engine.GetAlbum(TownID)->GetSlideShow(Run)->SaveDetail(Second, 3, {});
        return true;
    }};
    Transfer(Own.Engine, Other.Engine, What, Desk);
    EXPECT_TRUE(Other.Engine.GetAlbum(TownID)->GetSlide(Second)) << "a place without its slide";
    EXPECT_TRUE(FileExists(SlidesFolder(Other.Dir(), TownID) + FileStem(Second) + u".JPG"_s));
}

TEST_F(TransferBeside, APictureWithoutAnEndingGoesWithItsSlide) {
    clsNEBSlide& Second = SlideAt(Other.Engine, TownID, 1);
    Second.SlideLoc = FileStem(Second.SlideID);
    Other.PutFile(TownID, u"Slides/"_s + Second.SlideLoc);
    DropStored({SlidesFolder(Other.Dir(), TownID) + Second.SlideLoc + u".jpg"_s});
    ExpectDone(Own.Engine, Other.Engine, OverTownWalk());
}

// What has been decided must be possible: else no later opening gets past it.
TEST_F(TransferBeside, AFolderInTheWayOfAFileKeepsNobodyFromOpeningTheDatabase) {
    const QString Next = FileStem(Other.Engine.NextSlideID) + u".JPG"_s;
    MakeDirs(SlidesFolder(Other.Dir(), TownID) + Next + u"/deep"_s);
    try {
        Transfer(Own.Engine, Other.Engine, OverTownWalk());
    } catch (const Fault&) {
        SUCCEED();
    }
    EXPECT_NO_THROW(Other.Engine.FinalizeDB());
    EXPECT_NO_THROW(Other.Engine.InitializeDB());
}

TEST_F(TransferBeside, NeitherDoesAnAlbumWhoseFolderIsNotOurs) {
    for (const MemoryFolder* Each : {&OwnFolder, &OtherFolder}) {
        QFile::setPermissions(Each->Path(), QFileDevice::Permissions(0x7777));
        QDirIterator Walk(Each->Path(), QDir::AllEntries | QDir::NoDotAndDotDot,
                          QDirIterator::Subdirectories);
        while (Walk.hasNext()) QFile::setPermissions(Walk.next(), QFileDevice::Permissions(0x7777));
    }
    QFile::setPermissions(SlidesFolder(Other.Dir(), TownID), QFileDevice::Permissions(0x5555));
    const WithoutPrivileges AsSomebody;
    try {
        Transfer(Own.Engine, Other.Engine, OverTownWalk());
    } catch (const Fault&) {
        SUCCEED();
    }
    EXPECT_NO_THROW(Other.Engine.FinalizeDB());
    EXPECT_NO_THROW(Other.Engine.InitializeDB());
}

}  // namespace
}  // namespace neb::harness
