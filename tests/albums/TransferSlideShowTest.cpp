// Single shows go from one album to another, between databases and within one: with the slides that
// they use, their captions and their sounds.
#include "TransferRig.h"

namespace neb::harness {
namespace {

enum class ShowInto { NewAlbum, NewShow, Replaced };
struct ShowWay {
    const char* Name;
    bool Import, OtherDatabase;
    ShowInto Target;
};
void PrintTo(const ShowWay& Way, std::ostream* Out) {
    *Out << Way.Name;
}

class ShowWays : public TransferRig, public ::testing::WithParamInterface<ShowWay> {
  protected:
    FilledDatabase& Source() { return GetParam().Import && GetParam().OtherDatabase ? Other : Own; }
    FilledDatabase& Target() {
        return !GetParam().Import && GetParam().OtherDatabase ? Other : Own;
    }
    StatedTransfer What() {
        StatedTransfer What{.NewAlbumName = u"Album's name"_s, .NewSlideShowName = u"\"Tour\""_s};
        What.SrcAlbumID = &Source() == &Own ? GardenID : HillsID;
        What.SrcSlideShowID = Source().Engine.GetAlbum(What.SrcAlbumID)->SlideShows[0]->SlideShowID;
        if (GetParam().Target == ShowInto::NewAlbum) return What;
        What.DstAlbumID = &Target() == &Own ? SeaID : TownID;
        if (GetParam().Target == ShowInto::Replaced)
            What.DstSlideShowID =
                Target().Engine.GetAlbum(What.DstAlbumID)->SlideShows[0]->SlideShowID;
        return What;
    }
};

TEST_P(ShowWays, TheShowArrivesAsTheRulesSay) {
    const TransferResult Result = ExpectDone(Source().Engine, Target().Engine, What());
    EXPECT_EQ(2, Result.Slides);
    EXPECT_EQ(1, Result.Shows);
    const clsNEBAlbum* Album = Target().Engine.GetAlbum(Result.DstAlbumID);
    ASSERT_TRUE(Album && Album->GetSlideShow(Result.DstSlideShowID));
    EXPECT_EQ(u"\u201CTour\u201D"_s, Album->GetSlideShow(Result.DstSlideShowID)->SlideShowName);
}

TEST_P(ShowWays, ASecondTimeArrivesAsWell) {
    const TransferResult First = ExpectDone(Source().Engine, Target().Engine, What());
    StatedTransfer Twice = What();
    Twice.NewAlbumName = u"Again"_s;
    if (GetParam().Target == ShowInto::Replaced) Twice.DstSlideShowID = First.DstSlideShowID;
    ExpectDone(Source().Engine, Target().Engine, Twice);
}

INSTANTIATE_TEST_SUITE_P(
    Transfer, ShowWays,
    ::testing::Values(ShowWay{"ExportToNewAlbumInOwn", false, false, ShowInto::NewAlbum},
                      ShowWay{"ExportToNewShowInOwn", false, false, ShowInto::NewShow},
                      ShowWay{"ExportOverOneInOwn", false, false, ShowInto::Replaced},
                      ShowWay{"ExportToNewAlbumInOther", false, true, ShowInto::NewAlbum},
                      ShowWay{"ExportToNewShowInOther", false, true, ShowInto::NewShow},
                      ShowWay{"ExportOverOneInOther", false, true, ShowInto::Replaced},
                      ShowWay{"ImportToNewAlbumFromOwn", true, false, ShowInto::NewAlbum},
                      ShowWay{"ImportToNewShowFromOwn", true, false, ShowInto::NewShow},
                      ShowWay{"ImportOverOneFromOwn", true, false, ShowInto::Replaced},
                      ShowWay{"ImportToNewAlbumFromOther", true, true, ShowInto::NewAlbum},
                      ShowWay{"ImportToNewShowFromOther", true, true, ShowInto::NewShow},
                      ShowWay{"ImportOverOneFromOther", true, true, ShowInto::Replaced}),
    [](const auto& Info) { return std::string(Info.param.Name); });

class TransferShowRules : public TransferRig {
  protected:
    std::int32_t Walk() { return ShowNamed(Own.Engine, GardenID, u"Garden walk"_s); }
    std::int32_t Run() { return ShowNamed(Own.Engine, GardenID, u"Garden run"_s); }
    std::int32_t TownWalk() { return ShowNamed(Other.Engine, TownID, u"Town walk"_s); }
    std::int32_t TownRun() { return ShowNamed(Other.Engine, TownID, u"Town run"_s); }
    clsNEBSlideShow& TownShow(std::int32_t ID) {
        return *Other.Engine.GetAlbum(TownID)->GetSlideShow(ID);
    }
    // Over this show of Town, or as a new one there.
    StatedTransfer ToTown(std::int32_t ShowID, std::int32_t Over = 0) {
        return {.SrcAlbumID = GardenID,
                .SrcSlideShowID = ShowID,
                .DstAlbumID = TownID,
                .DstSlideShowID = Over,
                .NewAlbumName = u"Town"_s,
                .NewSlideShowName = u"Tour"_s};
    }
    StatedTransfer WithinGarden(std::int32_t ShowID, std::int32_t Over = 0) {
        return {.SrcAlbumID = GardenID,
                .SrcSlideShowID = ShowID,
                .DstAlbumID = GardenID,
                .DstSlideShowID = Over,
                .NewAlbumName = u"Garden"_s,
                .NewSlideShowName = u"Tour"_s};
    }
    TransferResult Export(const StatedTransfer& What) {
        return ExpectDone(Own.Engine, Other.Engine, What);
    }
    TransferResult Within(const StatedTransfer& What) {
        return ExpectDone(Own.Engine, Own.Engine, What);
    }
    void ExpectExportRefused(const StatedTransfer& What, const std::string& Boxes) {
        ExpectRefused(Own.Engine, Other.Engine, What, Boxes);
    }
    std::string TownTrack(const QString& Name) {
        return ReadFile(SoundTracksFolder(Other.Dir(), TownID) + Name).toStdString();
    }
};

TEST_F(TransferShowRules, WithinAnAlbumTheSlidesAreShared) {
    const TransferResult Result = Within(WithinGarden(Walk()));
    EXPECT_EQ(0, Result.Slides);
    EXPECT_EQ(4U, Own.Engine.GetAlbum(GardenID)->Slides.size());
}

TEST_F(TransferShowRules, WithinAnAlbumOneShowReplacesTheOther) {
    Within(WithinGarden(Walk(), Run()));
    EXPECT_EQ(3U, Own.Engine.GetAlbum(GardenID)->Slides.size()) << "one was Run's alone";
    const std::int32_t Tour = ShowNamed(Own.Engine, GardenID, u"Tour"_s);
    Within(WithinGarden(Tour, Walk()));
}

TEST_F(TransferShowRules, WithinAnAlbumPlacesWithoutASlideAreKept) {
    const std::int32_t Gaps = Own.AddShow(GardenID, u"Gaps"_s, 0, {900, 901, 900}).SlideShowID;
    Within(WithinGarden(Gaps));
}

TEST_F(TransferShowRules, EqualAlbumNumbersInTwoDatabasesMeanTwoAlbums) {
    ASSERT_EQ(GardenID, HillsID);
    StatedTransfer What = ToTown(Walk());
    What.DstAlbumID = HillsID;
    EXPECT_EQ(2, Export(What).Slides);
    What.DstSlideShowID = ShowNamed(Other.Engine, HillsID, u"Hills run"_s);
    Export(What);
}

TEST_F(TransferShowRules, EqualNumbersOfAlbumAndShowInTwoDatabasesAreNoCopyOntoItself) {
    ASSERT_EQ(Walk(), ShowNamed(Other.Engine, HillsID, u"Hills walk"_s));
    StatedTransfer What = ToTown(Walk(), Walk());
    What.DstAlbumID = HillsID;
    Export(What);
}

TEST_F(TransferShowRules, ASlideThatStandsTwiceIsCopiedOnce) {
    const TransferResult Result = Export(ToTown(Walk()));
    const auto& Details = TownShow(Result.DstSlideShowID).Details;
    ASSERT_EQ(3U, Details.size());
    EXPECT_EQ(Details[0]->SlideID, Details[2]->SlideID);
    EXPECT_EQ(6U, Other.Engine.GetAlbum(TownID)->Slides.size());
}

TEST_F(TransferShowRules, AShowWithoutSlidesBringsItsNameAndItsSounds) {
    clsNEBSlideShow& Music = Own.AddShow(GardenID, u"Music"_s, 2, {});
    Own.AddTrack(GardenID, Music, 1, u".mp3"_s);
    Export(ToTown(Music.SlideShowID));
    Export(ToTown(Music.SlideShowID, TownWalk()));
}

TEST_F(TransferShowRules, AShowWithoutAnythingReplacesOneWithEverything) {
    const std::int32_t Bare = Own.AddShow(GardenID, u"Bare"_s, 1, {}).SlideShowID;
    Export(ToTown(Bare, TownWalk()));
    EXPECT_EQ(3U, Other.Engine.GetAlbum(TownID)->Slides.size());
}

TEST_F(TransferShowRules, SlidesThatAnotherShowUsesOrNoneStay) {
    const std::int32_t Fourth = SlideAt(Other.Engine, TownID, 3).SlideID;
    Export(ToTown(Walk(), TownWalk()));
    EXPECT_TRUE(Other.Engine.GetAlbum(TownID)->GetSlide(Fourth)) << "no show has it at all";
}

TEST_F(TransferShowRules, ASlideOfTheAlbumThatOnlyTheReplacedShowHadGoesWithAllItsFiles) {
    const clsNEBSlide& Second = SlideAt(Other.Engine, TownID, 1);
    const QString Stem = u"Slides/"_s + FileStem(Second.SlideID);
    for (const char* Each : {".bmp", "Small.jpg", " copy.jpg"})
        Other.PutFile(TownID, Stem + QLatin1String(Each));
    Export(ToTown(Run(), TownWalk()));
}

// ----------------------------------------------------------------------------------------- sounds

TEST_F(TransferShowRules, ASoundThatAnotherShowOfTheAlbumPlaysSurvives) {
    clsNEBSlideShow& Friend = Other.AddShow(TownID, u"Friend"_s, 0, {});
    const QString Shared = TownShow(TownWalk()).SoundTracks[0]->SoundTrackLoc;
    Friend.SaveSoundTrack(7, Shared, 1, 1, false, false, false);
    const std::string Content = TownTrack(Shared);
    const TransferResult Result = Export(ToTown(Walk(), TownWalk()));
    EXPECT_EQ(Content, TownTrack(Shared));
    EXPECT_EQ(FileStem(Result.DstSlideShowID) + u"_100.mp3"_s,
              TownShow(Result.DstSlideShowID).SoundTracks[0]->SoundTrackLoc);
}

TEST_F(TransferShowRules, NorIsOneInAnotherCaseReplaced) {
    clsNEBSlideShow& Friend = Other.AddShow(TownID, u"Friend"_s, 0, {});
    const QString Shared = TownShow(TownWalk()).SoundTracks[0]->SoundTrackLoc;
    Friend.SaveSoundTrack(7, Shared.toUpper(), 1, 1, false, false, false);
    const std::string Content = TownTrack(Shared);
    Export(ToTown(Walk(), TownWalk()));
    EXPECT_EQ(Content, TownTrack(Shared));
}

TEST_F(TransferShowRules, ASharedSoundThatHasNoNewOneInItsPlaceSurvives) {
    clsNEBSlideShow& Friend = Other.AddShow(TownID, u"Friend"_s, 0, {});
    Friend.SaveSoundTrack(1, TownShow(TownWalk()).SoundTracks[1]->SoundTrackLoc, 1, 1, false, false,
                          false);
    Export(ToTown(Run(), TownWalk()));
}

TEST_F(TransferShowRules, WithinAnAlbumSharedSoundsServeBothShows) {
    clsNEBAlbum& Garden = *Own.Engine.GetAlbum(GardenID);
    const QString Sound = Garden.GetSlideShow(Walk())->SoundTracks[0]->SoundTrackLoc;
    Garden.GetSlideShow(Run())->SaveSoundTrack(1, Sound, 1, 2, true, false, false);
    const std::int32_t RunID = Run();
    Within(WithinGarden(Walk(), RunID));
    Within(WithinGarden(RunID, Walk()));
}

TEST_F(TransferShowRules, EndingsThatDifferInCaseAreOneFile) {
    clsNEBSlideShow& Loud = Own.AddShow(GardenID, u"Loud"_s, 0, {});
    Own.AddTrack(GardenID, Loud, 1, u".MP3"_s);
    Own.AddTrack(GardenID, Loud, 3, u".Wav"_s);
    Export(ToTown(Loud.SlideShowID, TownWalk()));
}

TEST_F(TransferShowRules, NoNewShowTakesTheNumberOfAStraySound) {
    const QString Next = FileStem(Other.Engine.NextSlideShowID);
    Other.PutFile(TownID, u"SoundTracks/"_s + Next + u"_1.MP3"_s);
    Other.PutFile(TownID, u"SoundTracks/"_s + Next + u"_9.mp3"_s);
    Other.PutFile(TownID, u"SoundTracks/notes.txt"_s);
    Export(ToTown(Walk()));
}

// --------------------------------------------------------------------------------- what is refused

TEST_F(TransferShowRules, AShowIsNotCopiedOntoItself) {
    const char* Box = "information|Invalid User Input|You cannot Export a Slide Show to itself!";
    ExpectRefused(Own.Engine, Own.Engine, WithinGarden(Walk(), Walk()), Box);
    ExpectRefused(Own.Engine, Own.Engine,
                  {.SrcAlbumID = 99, .SrcSlideShowID = 98, .DstAlbumID = 99, .DstSlideShowID = 98},
                  Box);
}

TEST_F(TransferShowRules, TheSourceIsLookedForFirst) {
    StatedTransfer What = ToTown(99, 98);
    What.SrcAlbumID = 97;
    What.DstAlbumID = 96;
    ExpectExportRefused(What, "plain||Failed to load the source Album.");
    What.SrcAlbumID = GardenID;
    ExpectExportRefused(What, "plain||Failed to load the source Slide Show.");
    What.SrcSlideShowID = Walk();
    ExpectExportRefused(What, "plain||Failed to load the destination album.");
    What.DstAlbumID = TownID;
    ExpectExportRefused(What, "plain||Failed to load destination slide show.");
}

TEST_F(TransferShowRules, AShowOfAnotherAlbumIsNotThere) {
    StatedTransfer What = ToTown(Walk(), ShowNamed(Other.Engine, HillsID, u"Hills walk"_s));
    ExpectExportRefused(What, "plain||Failed to load destination slide show.");
    What = ToTown(ShowNamed(Own.Engine, SeaID, u"Sea walk"_s));
    ExpectExportRefused(What, "plain||Failed to load the source Slide Show.");
}

TEST_F(TransferShowRules, ANewAlbumNeedsANameOfItsOwn) {
    StatedTransfer What = ToTown(Walk());
    What.DstAlbumID = 0;
    What.NewAlbumName = u"tOWN"_s;
    ExpectExportRefused(What, "critical|Invalid Album Name|Album Name is already in use.");
    What.NewAlbumName.clear();
    ExpectExportRefused(What,
                        "plain||You must specify an Album name.\n---\n"
                        "plain||Failed to create the album.");
}

TEST_F(TransferShowRules, AShowNeedsANameThatARecordHolds) {
    StatedTransfer What = ToTown(Walk());
    What.NewSlideShowName = u" "_s;
    ExpectExportRefused(What, "plain||You have to enter a name for the slide show.");
    What.NewSlideShowName = QString(81, u'x');
    ExpectExportRefused(What, "plain||Slide show names must be <= 80 characters long.");
}

TEST_F(TransferShowRules, NamesOfShowsAreNotCompared) {
    StatedTransfer What = ToTown(Walk());
    What.NewSlideShowName = u"Town run"_s;
    Export(What);
    What.DstSlideShowID = TownWalk();
    Export(What);
}

TEST_F(TransferShowRules, AShowWithASlideThatIsGoneIsRefused) {
    const std::int32_t First = SlideAt(Own.Engine, GardenID, 0).SlideID;
    const std::int32_t Gaps = Own.AddShow(GardenID, u"Gaps"_s, 0, {First, 900}).SlideShowID;
    const char* Box = "plain||1 or more source slides could not be found.";
    ExpectExportRefused(ToTown(Gaps), Box);
    ExpectExportRefused(ToTown(Gaps, TownWalk()), Box);
    StatedTransfer ToNew = ToTown(Gaps);
    ToNew.DstAlbumID = 0;
    ToNew.NewAlbumName = u"New"_s;
    ExpectExportRefused(ToNew, Box);
}

TEST_F(TransferShowRules, WhatIsToldIsThatShow) {
    const QObject Asker;
    StatedTransfer What{.SrcAlbumID = TownID,
                        .SrcSlideShowID = TownWalk(),
                        .DstAlbumID = SeaID,
                        .NewAlbumName = u"Sea"_s,
                        .NewSlideShowName = u"Tour"_s};
    TransferResult New = Transfer(Other.Engine, Own.Engine, What, {}, &Asker);
    What.DstSlideShowID = ShowNamed(Own.Engine, SeaID, u"Sea run"_s);
    TransferResult Over = Transfer(Other.Engine, Own.Engine, What, {}, &Asker);
    ASSERT_TRUE(New && Over);
    EXPECT_TRUE(Told.empty());
    for (TransferResult* Result : {&New, &Over})
        for (Announcement& Each : Result->Changes) Each.Now();
    EXPECT_EQ((std::vector<Change>{{Change::Kind::AlbumReplaced, SeaID},
                                   {Change::Kind::ShowMade, SeaID, 0, New.DstSlideShowID},
                                   {Change::Kind::AlbumReplaced, SeaID},
                                   {Change::Kind::ShowReplaced, SeaID, 0, What.DstSlideShowID}}),
              Told)
        << "the album's name and slides have changed as well";
    EXPECT_EQ(std::vector<const QObject*>(4, &Asker), Askers);
}

TEST_F(TransferShowRules, ANewAlbumIsToldBeforeItsShow) {
    TransferResult Result = Transfer(Other.Engine, Own.Engine,
                                     {.SrcAlbumID = TownID,
                                      .SrcSlideShowID = TownWalk(),
                                      .NewAlbumName = u"New"_s,
                                      .NewSlideShowName = u"Tour"_s});
    for (Announcement& Each : Result.Changes) Each.Now();
    EXPECT_EQ((std::vector<Change>{
                  {Change::Kind::AlbumMade, Result.DstAlbumID},
                  {Change::Kind::ShowMade, Result.DstAlbumID, 0, Result.DstSlideShowID}}),
              Told);
}

TEST_F(TransferShowRules, AShowIntoAnotherDatabaseIsToldToNobody) {
    TransferResult Result = Transfer(Own.Engine, Other.Engine, ToTown(Walk(), TownWalk()));
    ASSERT_TRUE(Result);
    for (Announcement& Each : Result.Changes) Each.Now();
    EXPECT_TRUE(Told.empty());
}

}  // namespace
}  // namespace neb::harness
