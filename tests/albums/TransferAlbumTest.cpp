// Whole albums go from one database to another and within one: what arrives, what stays, what is
// refused.

#include "TransferRig.h"
#include "harness/ByTheClock.h"

namespace neb::harness {
namespace {

enum class Into { New, Replaced, AddedTo };
struct AlbumWay {
    const char* Name;
    bool Import, OtherDatabase;
    Into Target;
};
void PrintTo(const AlbumWay& Way, std::ostream* Out) {
    *Out << Way.Name;
}

class AlbumWays : public TransferRig, public ::testing::WithParamInterface<AlbumWay> {
  protected:
    FilledDatabase& Source() { return GetParam().Import && GetParam().OtherDatabase ? Other : Own; }
    FilledDatabase& Target() {
        return !GetParam().Import && GetParam().OtherDatabase ? Other : Own;
    }
    StatedTransfer What() {
        StatedTransfer What{.SrcAlbumID = &Source() == &Own ? GardenID : HillsID,
                            .Replace = GetParam().Target == Into::Replaced,
                            .NewAlbumName = u"Arrived"_s};
        if (GetParam().Target != Into::New) What.DstAlbumID = &Target() == &Own ? SeaID : TownID;
        return What;
    }
};

TEST_P(AlbumWays, TheAlbumArrivesAsTheRulesSay) {
    const TransferResult Result = ExpectDone(Source().Engine, Target().Engine, What());
    EXPECT_EQ(4, Result.Slides);
    EXPECT_EQ(2, Result.Shows);
    EXPECT_EQ(What().DstAlbumID ? What().DstAlbumID : 3, Result.DstAlbumID);
    EXPECT_EQ(u"Arrived"_s, Target().Engine.GetAlbum(Result.DstAlbumID)->AlbumName);
}

TEST_P(AlbumWays, ASecondTimeArrivesAsWell) {
    StatedTransfer Twice = What();
    ExpectDone(Source().Engine, Target().Engine, Twice);
    Twice.NewAlbumName = u"Arrived again"_s;
    if (GetParam().Target == Into::AddedTo) {  // the names of the shows are taken now
        Twice.SrcAlbumID = &Source() == &Own ? SeaID : TownID;
        Twice.DstAlbumID = &Target() == &Own ? GardenID : HillsID;
        if (&Source() == &Target()) Twice.DstAlbumID = 0;
    }
    ExpectDone(Source().Engine, Target().Engine, Twice);
}

INSTANTIATE_TEST_SUITE_P(
    Transfer, AlbumWays,
    ::testing::Values(AlbumWay{"ExportToNewInOwn", false, false, Into::New},
                      AlbumWay{"ExportOverOneInOwn", false, false, Into::Replaced},
                      AlbumWay{"ExportAddedToOneInOwn", false, false, Into::AddedTo},
                      AlbumWay{"ExportToNewInOther", false, true, Into::New},
                      AlbumWay{"ExportOverOneInOther", false, true, Into::Replaced},
                      AlbumWay{"ExportAddedToOneInOther", false, true, Into::AddedTo},
                      AlbumWay{"ImportToNewFromOwn", true, false, Into::New},
                      AlbumWay{"ImportOverOneFromOwn", true, false, Into::Replaced},
                      AlbumWay{"ImportAddedToOneFromOwn", true, false, Into::AddedTo},
                      AlbumWay{"ImportToNewFromOther", true, true, Into::New},
                      AlbumWay{"ImportOverOneFromOther", true, true, Into::Replaced},
                      AlbumWay{"ImportAddedToOneFromOther", true, true, Into::AddedTo}),
    [](const auto& Info) { return std::string(Info.param.Name); });

class TransferAlbumRules : public TransferRig {
  protected:
    StatedTransfer ToTown(const QString& Name = u"Town"_s) {
        return {.SrcAlbumID = GardenID, .DstAlbumID = TownID, .NewAlbumName = Name};
    }
    StatedTransfer ToNew(std::int32_t SrcAlbumID, const QString& Name = u"Arrived"_s) {
        return {.SrcAlbumID = SrcAlbumID, .NewAlbumName = Name};
    }
    TransferResult Export(const StatedTransfer& What) {
        return ExpectDone(Own.Engine, Other.Engine, What);
    }
    void ExpectExportRefused(const StatedTransfer& What, const std::string& Boxes,
                             const QString& Adjective = u"Export"_s) {
        ExpectRefused(Own.Engine, Other.Engine, What, Boxes, {}, Adjective);
    }
};

TEST_F(TransferAlbumRules, EqualNumbersInTwoDatabasesMeanTwoAlbums) {
    ASSERT_EQ(GardenID, HillsID);
    StatedTransfer What{.SrcAlbumID = GardenID, .DstAlbumID = HillsID, .NewAlbumName = u"Hills"_s};
    Export(What);
    What.Replace = true;
    Export(What);
}

TEST_F(TransferAlbumRules, AnEmptyDatabaseTakesItsFirstAlbum) {
    TempFolder Folder;
    clsDBEngine Fresh;
    Fresh.SetDBPath(Folder.Path());
    Fresh.InitializeDB();
    ExpectDone(Own.Engine, Fresh, ToNew(SeaID));
}

// Within one medium the host copies by itself, from one to another the program does.
TEST_F(TransferAlbumRules, DatabasesOnADiskAreCopiedAlike) {
    TempFolder One, Two;
    FilledDatabase First(One.Path(), u"first"_s), Second(Two.Path(), u"second"_s);
    const std::int32_t SrcID = First.AddFilledAlbum(u"Lake"_s);
    const std::int32_t DstID = Second.AddFilledAlbum(u"River"_s);
    const StatedTransfer What{
        .SrcAlbumID = SrcID, .DstAlbumID = DstID, .Replace = true, .NewAlbumName = u"Sea"_s};
    StoreAnew(SlidesFolder(One.Path(), SrcID) + u"00000001.jpg"_s, QByteArray(9000001, 'x'));
    ExpectDone(First.Engine, Second.Engine, What);
}

TEST_F(TransferAlbumRules, QuotesInTheNameBecomeTypographic) {
    Export(ToNew(GardenID, u"The \"best\" of O'Hara's 'garden'"_s));
    Export(ToTown(u"'Town'"_s));
    EXPECT_EQ(u"\u2018Town\u2019"_s, Other.Engine.GetAlbum(TownID)->AlbumName);
}

TEST_F(TransferAlbumRules, AnAlbumThatIsThereMayTakeTheNameOfAnother) {
    Export(ToTown(u"Hills"_s));
}

TEST_F(TransferAlbumRules, ButNoNameThatWouldBeLost) {
    ExpectExportRefused(ToTown(u" "_s), "plain||You must specify an Album name.");
    ExpectExportRefused(ToTown(QString(81, u'x')),
                        "plain||Album names must be <= 80 characters long.");
}

TEST_F(TransferAlbumRules, TheListOfAlbumsHasTheNewNameAtOnce) {
    ASSERT_TRUE(Transfer(Other.Engine, Own.Engine,
                         {.SrcAlbumID = HillsID, .DstAlbumID = SeaID, .NewAlbumName = u"Zoo"_s}));
    ASSERT_TRUE(Transfer(Other.Engine, Own.Engine, ToNew(HillsID, u"Alps"_s)));
    QStringList Names;
    for (const NameIndexEntry& Each : Own.Engine.AlbumIndex) Names << Each.Name;
    EXPECT_EQ((QStringList{u"Alps"_s, u"Garden"_s, u"Zoo"_s}), Names);
}

TEST_F(TransferAlbumRules, AnAlbumWithoutSlidesArrives) {
    const std::int32_t EmptyID = Own.AddAlbum(u"Empty"_s);
    EXPECT_EQ(0, Export(ToNew(EmptyID)).Slides);
    StatedTransfer Over{
        .SrcAlbumID = EmptyID, .DstAlbumID = TownID, .Replace = true, .NewAlbumName = u"Emptied"_s};
    Export(Over);
    EXPECT_TRUE(Other.Engine.GetAlbum(TownID)->SlideShows.empty());
}

TEST_F(TransferAlbumRules, ShowsWithoutSlidesLoseTheirPlacesAndKeepTheirSounds) {
    const std::int32_t ID = Own.AddAlbum(u"Sounds"_s);
    Own.AddTrack(ID, Own.AddShow(ID, u"Music"_s, 2, {900, 901}), 1, u".mp3"_s);
    const TransferResult Result = Export(ToNew(ID));
    const clsNEBAlbum& Arrived = *Other.Engine.GetAlbum(Result.DstAlbumID);
    EXPECT_EQ(0U, Arrived.SlideShows.at(0)->Details.size());
    EXPECT_EQ(1U, Arrived.SlideShows.at(0)->SoundTracks.size());
}

TEST_F(TransferAlbumRules, APlaceWhoseSlideIsGoneIsDroppedInSilence) {
    Own.AddShow(GardenID, u"Gaps"_s, 0, {900, SlideAt(Own.Engine, GardenID, 3).SlideID, 901});
    const TransferResult Result = Export(ToNew(GardenID));
    const auto& Shows = Other.Engine.GetAlbum(Result.DstAlbumID)->SlideShows;
    ASSERT_EQ(1U, Shows.back()->Details.size());
    EXPECT_EQ(2, Shows.back()->Details[0]->SlideSeq);
}

// A slide of one album that a show of another names is none of that album.
TEST_F(TransferAlbumRules, APlaceWithASlideOfAnotherAlbumIsDropped) {
    Own.AddShow(GardenID, u"Strange"_s, 0, {SlideAt(Own.Engine, SeaID, 0).SlideID});
    Export(ToNew(GardenID));
}

TEST_F(TransferAlbumRules, NumbersOfMoreThanEightDigitsNameTheirFiles) {
    Other.Engine.NextSlideID = 123456789;
    Other.Engine.NextSlideShowID = 100000000;
    Export(ToNew(GardenID));
    EXPECT_TRUE(FileExists(OtherFolder / u"Albums/3/Slides/123456789Small.bmp"_s));
}

TEST_F(TransferAlbumRules, FullFieldsAndUnusualCharactersArriveToTheByte) {
    clsNEBSlide& Slide = Own.AddSlide(GardenID, QString(80, u'\u00DF'));
    Slide.SlideText[40] = u'\u20AC';
    Own.AddShow(GardenID, QString(80, u'S'), -3, {Slide.SlideID});
    Export(ToNew(GardenID, QString(80, u'A')));
}

TEST_F(TransferAlbumRules, WhatIsToldIsOneChangeOfTheAlbum) {
    const QObject Asker;
    TransferResult New = Transfer(Other.Engine, Own.Engine, ToNew(HillsID), {}, &Asker);
    ASSERT_TRUE(New);
    EXPECT_TRUE(Told.empty()) << "only when the caller has told the user";
    for (Announcement& Each : New.Changes) Each.Now();
    EXPECT_EQ((std::vector<Change>{{Change::Kind::AlbumMade, New.DstAlbumID}}), Told);
    EXPECT_EQ(std::vector<const QObject*>{&Asker}, Askers);
}

TEST_F(TransferAlbumRules, AnAlbumThatWasThereIsToldAsReplaced) {
    const StatedTransfer What{.SrcAlbumID = HillsID, .DstAlbumID = SeaID, .NewAlbumName = u"Sea"_s};
    TransferResult Added = Transfer(Other.Engine, Own.Engine, What);
    for (Announcement& Each : Added.Changes) Each.Now();
    EXPECT_EQ((std::vector<Change>{{Change::Kind::AlbumReplaced, SeaID}}), Told);
}

TEST_F(TransferAlbumRules, ATransferIntoAnotherDatabaseIsToldToNobody) {
    TransferResult New = Transfer(Own.Engine, Other.Engine, ToNew(GardenID));
    TransferResult Over = Transfer(Own.Engine, Other.Engine, ToTown());
    EXPECT_TRUE(New && Over);
    for (TransferResult* Result : {&New, &Over})
        for (Announcement& Each : Result->Changes) Each.Now();
    EXPECT_TRUE(Told.empty());
}

// ------------------------------------------------------------------------------- what is refused

TEST_F(TransferAlbumRules, AnAlbumIsNotCopiedOntoItself) {
    const StatedTransfer What{.SrcAlbumID = GardenID,
                              .DstAlbumID = GardenID,
                              .Replace = true,
                              .NewAlbumName = u"Garden"_s};
    const char* Box = "information|Invalid User Input|You cannot Export an Album to itself!";
    ExpectRefused(Own.Engine, Own.Engine, What, Box);
    ExpectRefused(Own.Engine, Own.Engine, What, Box, {}, u"Import"_s);
    ExpectRefused(Own.Engine, Own.Engine, {.SrcAlbumID = 99, .DstAlbumID = 99}, Box);
}

TEST_F(TransferAlbumRules, NeitherByAnotherWayToTheSameFolder) {
    TempFolder Beside;
    const QString Link = Beside / u"link"_s;
    ASSERT_TRUE(QFile::link(OwnFolder.Path().chopped(1), Link));
    clsDBEngine Again;
    Again.SetDBPath(Link);
    Again.InitializeDB();
    ExpectRefused(Own.Engine, Again, {.SrcAlbumID = SeaID, .DstAlbumID = SeaID},
                  "information|Invalid User Input|You cannot Export an Album to itself!");
}

TEST_F(TransferAlbumRules, TheSourceAlbumMustBeThereFirstOfAll) {
    ExpectExportRefused({.SrcAlbumID = 99, .DstAlbumID = 98, .NewAlbumName = u"x"_s},
                        "plain||Failed to load the source album.");
    ExpectExportRefused({.SrcAlbumID = 99, .NewAlbumName = u"Town"_s},
                        "plain||Failed to load the source album.");
    ExpectExportRefused({.SrcAlbumID = GardenID, .DstAlbumID = 98, .NewAlbumName = u"x"_s},
                        "plain||Failed to load the destination album.");
}

TEST_F(TransferAlbumRules, ANewAlbumNeedsANameThatIsFree) {
    const char* Taken = "critical|Invalid Album Name|Album Name is already in use.";
    ExpectExportRefused(ToNew(GardenID, u"Town"_s), Taken);
    ExpectExportRefused(ToNew(GardenID, u"tOWN"_s), Taken);
    Other.Engine.GetAlbum(TownID)->AlbumName = u"O\u2019Neill"_s;
    Other.Engine.SortAlbums();
    ExpectExportRefused(ToNew(GardenID, u"O'Neill"_s), Taken);
}

TEST_F(TransferAlbumRules, ANewAlbumNeedsANameThatAnAlbumMayHave) {
    ExpectExportRefused(ToNew(GardenID, u"  "_s),
                        "plain||You must specify an Album name.\n---\n"
                        "plain||Failed to create the album.");
    ExpectExportRefused(ToNew(GardenID, QString(81, u'x')),
                        "plain||Album names must be <= 80 characters long.\n---\n"
                        "plain||Failed to create the album.");
}

std::string ClashBox(const char* Adjective) {
    return std::string("information|Operation Unsuccessful|") +
           "1 or more Slide Shows within the selected Destination Album have\n"
           "names identical to those of Slide Shows in the Source\n"
           "Album.  You can only " +
           Adjective +
           " unique Slide Shows.\nUse the Update Feature to overwrite an existing album.";
}

TEST_F(TransferAlbumRules, ShowsOfOneNameClashWhereAlbumsAreJoined) {
    Other.AddShow(TownID, u"GARDEN Run"_s, 0, {});
    for (const char* Adjective : {"Export", "Import", "Update"})
        ExpectExportRefused(ToTown(), ClashBox(Adjective), QLatin1String(Adjective));
    StatedTransfer Over = ToTown();
    Over.Replace = true;
    Export(Over);
}

TEST_F(TransferAlbumRules, LettersBeyondAsciiClashInAnyCaseToo) {
    Own.AddShow(GardenID, u"\u00C4pfel"_s, 0, {});
    Other.AddShow(TownID, u"\u00E4PFEL"_s, 0, {});
    ExpectExportRefused(ToTown(), ClashBox("Export"));
}

TEST_F(TransferAlbumRules, FiveThousandSlidesTakeAFewSeconds) {
    const std::int32_t ID = Own.AddAlbum(u"Many"_s);
    std::vector<std::int32_t> All;
    for (int I = 0; I < 5000; ++I) {
        All.push_back(Own.AddSlide(ID, u"slide %1"_s.arg(I)).SlideID);
        Own.AddThumbnail(ID, All.back());
    }
    Own.AddShow(ID, u"All of them"_s, 0, All);
    Own.Engine.FinalizeDB();
    const DatabaseState Source = ReadDatabase(Own.Dir()), Before = ReadDatabase(Other.Dir());
    const double Begun = harness::WorkedMs();
    ASSERT_TRUE(Transfer(Own.Engine, Other.Engine, ToNew(ID)));
    EXPECT_LT(harness::WorkedMs() - Begun, 8000);
    Other.Engine.FinalizeDB();
    EXPECT_EQ("", CheckTransfer(Source, Before, ReadDatabase(Other.Dir()), ToNew(ID)));
}

}  // namespace
}  // namespace neb::harness
