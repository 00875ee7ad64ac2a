// What the user has done to albums, slides and shows is taken back: records, files and the lists
// beside them are as they were.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "UndoRig.h"
#include "db/AlbumSums.h"
#include "db/SongNames.h"
#include "harness/Refusals.h"
#include "support/files/modHostFilesCopy.h"

namespace neb {
namespace {

using namespace harness;
using Undo = UndoRig;

TEST_F(Undo, ADeletedSlideComesBackWithItsPictureAtItsPlace) {
    ExpectBackAndForth("Delete Slide \"Lily\"", [&] { User.Delete(Garden, {Slides[1]}); });
}

TEST_F(Undo, ManyDeletedSlidesAreOneStep) {
    ExpectBackAndForth("Delete 3 Slides", [&] {
        User.Delete(Garden, {Slides[4], Slides[0], Slides[1]});
    });
}

TEST_F(Undo, ADeletedAlbumComesBackWithAllThatLayInItsFolder) {
    KeepSongNames(AlbumFolder(Engine.DBPath(), Garden), {{u"00000001_1.mp3"_s, 5, u"March"_s}});
    User.MakeAlbum(u"Behind"_s);
    User.Steps().DropAll();
    ExpectBackAndForth("Delete Album \"Garden\"", [&] { User.DeleteAlbum(Garden); });
}

TEST_F(Undo, ACaptionGoesBack) {
    ExpectBackAndForth("Change Caption \"Tulip\"", [&] {
        User.Recaption(Garden, {{Slides[2], u"Tulip"_s}});
    });
}

TEST_F(Undo, ManyCaptionsAreOneStepAndThoseThatStayedDoNotCount) {
    ExpectBackAndForth("Change 2 Captions", [&] {
        User.Recaption(Garden,
                       {{Slides[0], u"Tulip"_s}, {Slides[1], u"Lily"_s}, {Slides[2], u"Reed"_s}});
    });
    User.Recaption(Garden, {{Slides[0], u"Rose"_s}});
    EXPECT_EQ("", NextUndo()) << "nothing has changed";
}

TEST_F(Undo, ATurnedPictureIsAsItWasToTheByte) {
    ExpectBackAndForth("Turn Slide \"Aster\"", [&] { User.Turn(Garden, Slides[2], "turned"); });
}

TEST_F(Undo, ASoundThatWasClearedReplacedOrAddedGoesBack) {
    ExpectBackAndForth("Change Slide \"Lily\"", [&] {
        User.SaveSlide(Garden, Slides[1], [](SlideInHand& InHand) { InHand.ClearSound(); });
    });
    ExpectBackAndForth("Change Slide \"Lily\"", [&] {
        User.SaveSlide(Garden, Slides[1], [](SlideInHand& InHand) { InHand.Record("other"); });
    });
    ExpectBackAndForth("Change Slide \"Rose\"", [&] {
        User.SaveSlide(Garden, Slides[0], [](SlideInHand& InHand) { InHand.Record("new"); });
    });
}

TEST_F(Undo, AShowWhoseSlidesWereMovedAndTracksReplacedIsAsItWas) {
    ExpectBackAndForth("Change Slide Show \"Stroll\"", [&] {
        User.SaveShow(Garden, Walk, u"Stroll"_s, {Slides[3], Slides[0], Slides[5]}, {u"polka"_s});
    });
}

TEST_F(Undo, ADeletedShowComesBackWithItsTracks) {
    ExpectBackAndForth("Delete Slide Show \"Walk\"",
                       [&] { EXPECT_TRUE(Changes(Engine).DeleteShow(Garden, Walk)); });
}

TEST_F(Undo, ARenamedAlbumHasItsNameAgain) {
    ExpectBackAndForth("Rename Album \"Yard\"",
                       [&] { EXPECT_TRUE(Changes(Engine).RenameAlbum(Garden, u"Yard"_s)); });
}

TEST_F(Undo, WhatIsMadeIsNoStepAndIsNotInTheWayOfOne) {
    User.Delete(Garden, {Slides[0]});
    const std::int32_t Other = User.MakeAlbum(u"Other"_s);
    User.AddPicture(Garden, u"Fern"_s);
    EXPECT_EQ("Delete Slide \"Rose\"", NextUndo());
    User.Undo();
    EXPECT_EQ(Engine.GetAlbum(Garden)->Slides.front()->SlideText, u"Rose");
    EXPECT_EQ(Engine.GetAlbum(Garden)->Slides.back()->SlideText, u"Fern");
    EXPECT_TRUE(Engine.GetAlbum(Other));
    EXPECT_EQ("", NextUndo());
}

TEST_F(Undo, ManyStepsInARowLeadBackToTheBeginning) {
    std::vector<WholeState> States{StateOf(Engine)};
    const std::function<void()> All[] = {
        [&] { User.Turn(Garden, Slides[0], "turned once"); },
        [&] { User.Turn(Garden, Slides[0], "turned twice"); },
        [&] {
            User.Recaption(Garden, {{Slides[0], u"Briar"_s}, {Slides[3], u"Flag"_s}});
        },
        [&] {
            User.SaveShow(Garden, Walk, u"Walk"_s, {Slides[0], Slides[1]}, {u"tango"_s});
        },
        [&] { User.SaveShow(Garden, Walk, u"Hike"_s, {Slides[1]}, {u"rumba"_s}); },
        [&] {
            User.Delete(Garden, {Slides[0], Slides[5]});
        },
        [&] { EXPECT_TRUE(Changes(Engine).DeleteShow(Garden, Walk)); },
        [&] { EXPECT_TRUE(Changes(Engine).RenameAlbum(Garden, u"Yard"_s)); },
        [&] { User.DeleteAlbum(Garden); },
    };
    for (const auto& Do : All) {
        Do();
        States.push_back(StateOf(Engine));
    }
    for (int Time = 0; Time < 2; ++Time) {
        for (size_t I = States.size() - 1; I-- > 0;) {
            User.Undo();
            EXPECT_TRUE(States[I] == StateOf(Engine)) << I;
        }
        EXPECT_EQ("", NextUndo());
        for (size_t I = 1; I < States.size(); ++I) {
            User.Redo();
            EXPECT_TRUE(States[I] == StateOf(Engine)) << I;
        }
        EXPECT_EQ(QString(), User.Steps().RedoName());
    }
}

TEST_F(Undo, TheWindowsHearOfIt) {
    std::vector<Change> Told;
    Engine.Listeners.Told = [&](const Change& What, const QObject*) { Told.push_back(What); };
    using enum Change::Kind;
    const auto Hear = [&] {
        Told.clear();
        User.Undo();
        return Told;
    };
    User.Delete(Garden, {Slides[0]});
    EXPECT_EQ(Hear(), (std::vector<Change>{{SlideSaved, Garden, Slides[0]},
                                           {ShowReplaced, Garden, 0, Walk}}))
        << "the show that plays it shows it again";
    User.Delete(Garden, {Slides[4], Slides[5]});
    EXPECT_EQ(Hear(), (std::vector<Change>{{SlidesImported, Garden}}));
    EXPECT_TRUE(Changes(Engine).DeleteShow(Garden, Walk));
    EXPECT_EQ(Hear(), (std::vector<Change>{{ShowMade, Garden, 0, Walk}}));
    User.DeleteAlbum(Garden);
    EXPECT_EQ(Hear(), (std::vector<Change>{{AlbumMade, Garden}}));
    EXPECT_TRUE(Changes(Engine).RenameAlbum(Garden, u"Yard"_s));
    EXPECT_EQ(Hear(), (std::vector<Change>{{AlbumRenamed, Garden}}));
}

TEST_F(Undo, WhatSomethingElseHasChangedSinceIsNotLost) {
    User.Turn(Garden, Slides[0], "turned");
    User.SaveShow(Garden, Walk, u"Stroll"_s, {Slides[0]}, {});
    Changes Behind(Engine);
    Behind.ForGood();
    clsNEBSlideShow Other = std::move(*Engine.GetAlbum(Garden)->GetSlideShow(Walk)->Copy());
    Other.SlideShowName = u"Others"_s;
    EXPECT_TRUE(Behind.SaveShow(Garden, std::move(Other)));
    const WholeState Before = StateOf(Engine);
    ExpectRefused(User.Steps().Undo(),
                  u"\"Change Slide Show \"Stroll\"\" cannot be taken back.\n"
                  "The slide show has been changed since."_s,
                  u"Undo"_s, BoxIcon::Information);
    EXPECT_TRUE(Before == StateOf(Engine));
    EXPECT_EQ("Turn Slide \"Rose\"", NextUndo()) << "and is in nobody's way";
}

TEST_F(Undo, ACaptionGoesBackAloneWhereTheSlideHasChangedOtherwise) {
    User.Recaption(Garden, {{Slides[1], u"Tulip"_s}});
    Changes Behind(Engine);
    Behind.ForGood();
    clsNEBSlide Other = User.Slide(Garden, Slides[1]);
    Other.Repeat = true;
    EXPECT_TRUE(Behind.SaveSlide(Garden, Other));
    User.Undo();
    EXPECT_EQ(User.Slide(Garden, Slides[1]).SlideText, u"Lily");
    EXPECT_TRUE(User.Slide(Garden, Slides[1]).Repeat);
}

TEST_F(Undo, ACaptionThatWasChangedOnceMoreByOthersStays) {
    User.Recaption(Garden, {{Slides[1], u"Tulip"_s}});
    Changes Behind(Engine);
    Behind.ForGood();
    EXPECT_TRUE(Behind.SaveCaption(Garden, Slides[1], u"Reed"_s));
    EXPECT_FALSE(User.Steps().Undo());
    EXPECT_EQ(User.Slide(Garden, Slides[1]).SlideText, u"Reed");
}

TEST_F(Undo, WhatComesBackToATakenNameHasANumberBehindIt) {
    User.DeleteAlbum(Garden);
    User.MakeAlbum(u"Garden"_s);
    User.Undo();
    EXPECT_EQ(Engine.GetAlbum(Garden)->AlbumName, u"Garden (2)");
    EXPECT_TRUE(Changes(Engine).DeleteShow(Garden, Walk));
    User.SaveShow(Garden, 0, u"WALK"_s, {Slides[0]}, {});
    User.Undo();
    EXPECT_EQ(Engine.GetAlbum(Garden)->GetSlideShow(Walk)->SlideShowName, u"Walk (2)");
}

TEST_F(Undo, ATransferThatReplacesAnAlbumDropsWhatWasDoneThereAlone) {
    const std::int32_t Other = User.MakeAlbum(u"Other"_s);
    const std::int32_t Fern = User.AddPicture(Other, u"Fern"_s);
    User.Recaption(Other, {{Fern, u"Moss"_s}});
    User.Delete(Garden, {Slides[0]});
    clsNEBAlbum With;
    With.AlbumID = Garden;
    With.AlbumName = u"Garden"_s;
    Changes(Engine).PutAlbum({std::move(With), {100, 100, 100}}, 0);
    EXPECT_EQ("Change Caption \"Moss\"", NextUndo());
    User.Undo();
    EXPECT_EQ(User.Slide(Other, Fern).SlideText, u"Fern");
    EXPECT_EQ("", NextUndo());
}

TEST_F(Undo, EarlierStatesThatAreRestoredDropEverything) {
    User.Delete(Garden, {Slides[0]});
    const RecordImage Records = BuildImage(Engine);
    Engine.ReplaceBy(Records);
    EXPECT_EQ("", NextUndo());
}

TEST_F(Undo, WhatIsDoneNextEndsWhatCouldBeDoneAgain) {
    User.Delete(Garden, {Slides[0]});
    User.Undo();
    EXPECT_NE(QString(), User.Steps().RedoName());
    User.AddPicture(Garden, u"Fern"_s);
    EXPECT_EQ(QString(), User.Steps().RedoName());
    EXPECT_FALSE(User.Steps().Redo());
}

TEST_F(Undo, AnAlbumOnAnotherDiskGoesAsBeforeAndIsNoStep) {
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Rename && Path.contains(u"Temp/Undo/"_s))
            throw Fault(u"another disk"_s, Path);
    });
    User.Recaption(Garden, {{Slides[1], u"Tulip"_s}, {Slides[2], u"Reed"_s}});
    User.Delete(Garden, {Slides[1]});
    EXPECT_EQ("", NextUndo()) << "the caption of a slide that is gone for good goes with it";
    User.DeleteAlbum(Garden);
    SetHostWatcher({});
    EXPECT_EQ("", NextUndo());
    EXPECT_FALSE(FolderExists(AlbumFolder(Engine.DBPath(), Garden)));
    EXPECT_TRUE(StateOf(Engine).Files.empty());
}

// The folder of an album as a link to another disk: to and from there nothing can be renamed.
class UndoOnTwoDisks : public UndoRig {
  protected:
    void SetUp() override {
        const QString Folder = SlidesFolder(Engine.DBPath(), Garden);
        if (IsSameVolume(Folder, mOther.path())) GTEST_SKIP() << "there is one disk alone";
        for (const DirEntry& Each : ListDir(Folder))
            CopyFile(Folder + Each.Name, mOther.path() + u'/' + Each.Name);
        DeleteTree(Folder);
        ASSERT_TRUE(QFile::link(mOther.path(), Folder.chopped(1)));
    }

    std::map<QString, QByteArray> Files() const {
        std::map<QString, QByteArray> All;
        for (const DirEntry& Each : ListDir(SlidesFolder(Engine.DBPath(), Garden)))
            All[Each.Name] = ReadFile(SlidesFolder(Engine.DBPath(), Garden) + Each.Name);
        return All;
    }
    std::set<QString> Sums() const {
        std::set<QString> All;
        for (const ListedSum& Each : SumsIn(*ReadAlbumSums(AlbumFolder(Engine.DBPath(), Garden))))
            EXPECT_TRUE(All.insert(Each.Path + u' ' + Each.Sum.toHex()).second);
        return All;
    }
    void ExpectBackAndForthOnBoth(const std::function<void()>& Do) {
        const auto Before = Files();
        const auto SumsBefore = Sums();
        Do();
        const auto After = Files();
        EXPECT_FALSE(Before == After);
        for (int Time = 0; Time < 2; ++Time) {
            User.Undo();
            EXPECT_TRUE(Before == Files());
            EXPECT_TRUE(SumsBefore == Sums());
            User.Redo();
            EXPECT_TRUE(After == Files());
        }
    }

  private:
    QTemporaryDir mOther{u"/var/tmp/nebtest-XXXXXX"_s};
};

TEST_F(UndoOnTwoDisks, ATurnedPictureWithoutAThumbnailIsAsItWas) {
    DeleteFile(SlidesFolder(Engine.DBPath(), Garden) + ThumbnailName(Slides[2]));
    ForgetStored({SlidesFolder(Engine.DBPath(), Garden) + ThumbnailName(Slides[2])});
    ExpectBackAndForthOnBoth([&] { User.Turn(Garden, Slides[2], "turned"); });
}

TEST_F(UndoOnTwoDisks, ARecordingThatWasTakenBackIsNotLost) {
    ExpectBackAndForthOnBoth([&] {
        User.SaveSlide(Garden, Slides[0], [](SlideInHand& InHand) { InHand.Record("new"); });
    });
}

TEST_F(UndoOnTwoDisks, ASoundThatWasReplacedIsAsItWas) {
    ExpectBackAndForthOnBoth([&] {
        User.SaveSlide(Garden, Slides[1], [](SlideInHand& InHand) { InHand.Record("other"); });
    });
}

TEST_F(Undo, WhatCouldNotComeBackLeavesNoCopiesBehind) {
    User.Turn(Garden, Slides[2], "turned");
    const size_t Kept = ListDir(Dir / u"Temp/Undo/"_s).size();
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Rename && Path.contains(u"Slides/"_s)) throw Fault(u"no"_s, Path);
    });
    for (int Time = 0; Time < 3; ++Time) EXPECT_FALSE(User.Steps().Undo());
    SetHostWatcher({});
    EXPECT_EQ(Kept, ListDir(Dir / u"Temp/Undo/"_s).size());
    User.Undo();
}

TEST_F(Undo, AFileThatCannotComeBackKeepsEverythingAsItIs) {
    User.Delete(Garden, {Slides[1]});
    const WholeState Before = StateOf(Engine);
    int Moved = 0;
    SetHostWatcher([&](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Rename && Path.contains(u"Slides/"_s) && ++Moved == 2)
            throw Fault(u"no"_s, Path);
    });
    EXPECT_FALSE(User.Steps().Undo());
    SetHostWatcher({});
    EXPECT_EQ(2, Moved) << "one had come back";
    EXPECT_TRUE(Before == StateOf(Engine));
    User.Undo();
    EXPECT_EQ(User.Slide(Garden, Slides[1]).SlideText, u"Lily");
}

TEST_F(Undo, OnAFullDiskADeletionMakesRoom) {
    User.Delete(Garden, {Slides[0]});
    EXPECT_TRUE(HasKept());
    Engine.Listeners.Keeper = std::make_shared<History>(Engine, std::int64_t{1} << 60);
    EXPECT_FALSE(HasKept()) << "a history that ends leaves nothing";
    User.Delete(Garden, {Slides[1]});
    User.Turn(Garden, Slides[2], "turned");
    EXPECT_EQ("", NextUndo());
    EXPECT_TRUE(ListDir(Dir / u"Temp/Undo"_s).empty());
}

TEST_F(Undo, WhoeverNeedsRoomIsGivenThatOfTheOldestFiles) {
    User.Delete(Garden, {Slides[0]});
    User.Recaption(Garden, {{Slides[2], u"Reed"_s}});
    User.Delete(Garden, {Slides[1]});
    EXPECT_EQ(0, User.Steps().MakeRoom(0)) << "there is enough";
    EXPECT_EQ("Delete Slide \"Lily\"", NextUndo());
    User.Steps().MakeRoom(std::int64_t{1} << 60);
    EXPECT_TRUE(ListDir(Dir / u"Temp/Undo"_s).empty());
    EXPECT_EQ("Change Caption \"Reed\"", NextUndo()) << "which needs none";
}

TEST_F(Undo, ASaveThatChangesNothingIsNoStep) {
    User.SaveSlide(Garden, Slides[0], [](SlideInHand&) {});
    EXPECT_EQ("", NextUndo());
    Changes Door(Engine);
    EXPECT_TRUE(
        Door.SaveShow(Garden, std::move(*Engine.GetAlbum(Garden)->GetSlideShow(Walk)->Copy())));
    EXPECT_EQ("", NextUndo());
}

TEST_F(Undo, AnOrderlyEndLeavesNothingButTheRecordsAsTheyWouldBe) {
    User.Delete(Garden, {Slides[0], Slides[1]});
    User.DeleteAlbum(Garden);
    User.Undo();
    User.Undo();
    const Content Held = ContentOf(Engine);
    Engine.FinalizeDB();
    Engine.Listeners.Keeper.reset();
    EXPECT_FALSE(HasKept());
    EXPECT_EQ(Held, ContentOf(*std::invoke([&] {
                  auto Next = std::make_unique<clsDBEngine>();
                  Next->SetDBPath(Dir.Path());
                  Next->InitializeDB();
                  return Next;
              })));
}

TEST_F(Undo, WithoutAHistoryFilesGoAtOnce) {
    Engine.Listeners.Keeper.reset();
    User.Delete(Garden, {Slides[0]});
    User.DeleteAlbum(Garden);
    EXPECT_TRUE(StateOf(Engine).Files.empty());
    EXPECT_FALSE(HasKept());
}

}  // namespace
}  // namespace neb
