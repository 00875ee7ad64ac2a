// Loading, the orphan rule, the order of writing, and the album store with every message.
#include <gtest/gtest.h>

#include "Fixtures.h"
#include "harness/Refusals.h"
#include "harness/ScriptedBoxes.h"
#include "support/Fault.h"

namespace neb {
namespace {

using namespace harness;

class EngineTest : public ::testing::Test {
  protected:
    std::int32_t NewAlbum(const QString& Name) {
        std::int32_t AlbumID = 0;
        EXPECT_TRUE(Engine->SaveAlbum(AlbumID, Name));
        return AlbumID;
    }
    TempFolder Dir;
    ScriptedBoxes Boxes;
    std::unique_ptr<clsDBEngine> Engine = OpenEngine(Dir.Path());
};

TEST_F(EngineTest, AFreshDirectoryGivesAnEmptyDatabase) {
    EXPECT_TRUE(Engine->Albums.empty());
    EXPECT_EQ(Engine->NextAlbumID, 1);
    EXPECT_EQ(Engine->NextSlideID, 1);
    EXPECT_EQ(Engine->NextSlideShowID, 1);
    EXPECT_EQ(NewAlbum(u"First"_s), 1);
    Engine->FinalizeDB();
    EXPECT_EQ(AllRecords(Dir.Path()).size(), 8U);
    EXPECT_EQ(FileBytes(Dir.Path(), "NextIDs.dat"), Hex("02000000 01000000 01000000"));
    EXPECT_EQ(FileBytes(Dir.Path(), "Albums.dat"),
              Hex("01000000") + "First" + QByteArray(1, '\0') + Blanks(74) + Hex("0000"));
}

TEST_F(EngineTest, WithoutCountersNothingElseIsLoaded) {
    FillDatabase(*Engine, u"old"_s);
    Engine->FinalizeDB();
    DeleteFile(Dir / "NextIDs.dat");
    Engine->InitializeDB();
    EXPECT_TRUE(Engine->Albums.empty());
    EXPECT_TRUE(Engine->Properties.empty());
    EXPECT_TRUE(Engine->EffectStats.empty());
    EXPECT_EQ(Engine->NextAlbumID, 1);
}

TEST_F(EngineTest, ANewDatabaseHasTheProgramsTimesOfEffectsFromItsFirstRunOn) {
    const TempFolder Program;
    QByteArray Text = "times\n";
    for (int I = 1; I <= 127; ++I) Text += QByteArray::number(I) + (I % 2 ? ", 0.5\n" : ", 1.6\n");
    WriteFile(Program / "EffectStats.txt", Text);
    const TempFolder New;
    clsDBEngine First;
    First.SetDBPath(New.Path());
    First.SetProgramPath(Program.Path());
    First.InitializeDB();
    EXPECT_EQ(First.EffectStats.size(), 127U);
    std::array<std::uint8_t, 128> Levels{};
    First.ClassifyEffects(Levels, 127);
    EXPECT_EQ(Levels[1], 1);
    EXPECT_EQ(Levels[126], 3);
    First.FinalizeDB();
    EXPECT_EQ(FileBytes(New.Path(), "EffectStats.dat").size(), 127 * 14);
}

TEST_F(EngineTest, WithNoAlbumsTheFiveFilesHaveLengthZero) {
    Engine->FinalizeDB();
    auto Files = AllRecords(Dir.Path());
    for (const char* Name : {"Albums.dat", "Slides.dat", "SlideShows.dat", "SlideShowDetails.dat",
                             "SlideShowSoundTracks.dat", "Properties.dat", "EffectStats.dat"})
        EXPECT_TRUE(Files.contains(Name) && Files[Name].isEmpty()) << Name;
    EXPECT_TRUE(OpenEngine(Dir.Path())->Albums.empty());
}

TEST_F(EngineTest, WhatWasWrittenIsReadAndWrittenAgainToTheSameBytes) {
    FillDatabase(*Engine, u"früh"_s);
    Engine->FinalizeDB();
    const auto Before = AllRecords(Dir.Path());
    const auto Again = OpenEngine(Dir.Path());
    ASSERT_EQ(Again->Albums.size(), 2U);
    EXPECT_EQ(Again->Albums[0]->AlbumName, u"früh one");
    ASSERT_EQ(Again->Albums[1]->Slides.size(), 1U);
    EXPECT_TRUE(Again->Albums[1]->Slides[0]->Override);
    const clsNEBSlideShow& Show = *Again->Albums[1]->SlideShows.at(0);
    EXPECT_EQ(Show.ProgressionMethod, 1);
    EXPECT_EQ(Show.GetDetail(1)->SlideText, u"früh");
    EXPECT_EQ(Show.GetSoundTrack(1)->SlideSeqEnd, 3);
    EXPECT_TRUE(Show.GetSoundTrack(1)->Fade);
    EXPECT_EQ(Again->AlbumIndex.size(), 2U);
    Again->FinalizeDB();
    EXPECT_EQ(AllRecords(Dir.Path()), Before);
}

TEST_F(EngineTest, RecordsStandInTheOrderOfTheCollectionsGroupedByAlbum) {
    const std::int32_t B = NewAlbum(u"B"_s), A = NewAlbum(u"A"_s);
    for (const std::int32_t AlbumID : {A, B, A})
        Engine->SaveSlide(0, AlbumID, u"z"_s, {}, {}, false, false);
    Engine->FinalizeDB();
    const QByteArray Slides = FileBytes(Dir.Path(), "Slides.dat");
    ASSERT_EQ(Slides.size(), 3 * 604);
    EXPECT_EQ(Slides[0], 2);  // B came first and has the second slide
    EXPECT_EQ(Slides[604], 1);
    EXPECT_EQ(Slides[2 * 604], 3);
    EXPECT_EQ(FileBytes(Dir.Path(), "Albums.dat")[4], 'B');
}

TEST_F(EngineTest, OrphansAreDroppedAndAreGoneAfterTheNextWrite) {
    FillDatabase(*Engine, u"x"_s);
    Engine->FinalizeDB();
    const auto Whole = AllRecords(Dir.Path());
    WriteFile(Dir / "Albums.dat", Whole.at("Albums.dat").left(86));
    const auto Loaded = OpenEngine(Dir.Path());
    ASSERT_EQ(Loaded->Albums.size(), 1U);
    Loaded->FinalizeDB();
    EXPECT_EQ(FileBytes(Dir.Path(), "Slides.dat"), Whole.at("Slides.dat").left(604));
    EXPECT_EQ(FileBytes(Dir.Path(), "SlideShows.dat"), Whole.at("SlideShows.dat").left(92));
    EXPECT_EQ(FileBytes(Dir.Path(), "SlideShowDetails.dat"),
              Whole.at("SlideShowDetails.dat").left(98));
    EXPECT_EQ(FileBytes(Dir.Path(), "SlideShowSoundTracks.dat"),
              Whole.at("SlideShowSoundTracks.dat").left(283));
}

TEST_F(EngineTest, AShowIsFoundOnlyInItsOwnAlbum) {
    FillDatabase(*Engine, u"x"_s);
    Engine->FinalizeDB();
    QByteArray Details = FileBytes(Dir.Path(), "SlideShowDetails.dat");
    Details[4] = 2;  // the album of the first detail, whose show lies in album 1
    WriteFile(Dir / "SlideShowDetails.dat", Details);
    const auto Loaded = OpenEngine(Dir.Path());
    EXPECT_TRUE(Loaded->Albums[0]->SlideShows[0]->Details.empty());
    EXPECT_EQ(Loaded->Albums[1]->SlideShows[0]->Details.size(), 1U);
}

TEST_F(EngineTest, ADetailWithoutSlideIsLoaded) {
    const std::int32_t AlbumID = NewAlbum(u"a"_s);
    Engine->SaveSlideShow(0, AlbumID, u"s"_s, 0);
    Engine->SaveSlideShowDetail(1, AlbumID, 4711, 1, {});
    Engine->FinalizeDB();
    EXPECT_EQ(OpenEngine(Dir.Path())->Albums[0]->SlideShows[0]->Details.at(0)->SlideID, 4711);
}

TEST_F(EngineTest, MissingFilesAreSkipped) {
    FillDatabase(*Engine, u"x"_s);
    Engine->FinalizeDB();
    for (const RecordFile File : AllRecordFiles)
        if (File != RecordFile::NextIDs && File != RecordFile::Albums)
            DeleteFile(Dir.Path() + QLatin1String(RecordFileName(File)));
    const auto Loaded = OpenEngine(Dir.Path());
    EXPECT_EQ(Loaded->Albums.size(), 2U);
    EXPECT_TRUE(Loaded->Albums[0]->Slides.empty());
    EXPECT_EQ(Loaded->NextSlideID, 3);
}

TEST_F(EngineTest, SlidesOfTwoAlbumsWithOneIdGoToTheFirst) {
    const QByteArray Albums = Hex("01000000") + Blanks(80) + Hex("0000");
    clsDBEngine Loaded;
    FillDatabase(*Engine, u"x"_s);
    Engine->FinalizeDB();
    Loaded.LoadFrom(InMemory({{RecordFile::NextIDs, {}},
                              {RecordFile::Albums, Albums + Albums},
                              {RecordFile::Slides, FileBytes(Dir.Path(), "Slides.dat")}}));
    ASSERT_EQ(Loaded.Albums.size(), 2U);
    EXPECT_EQ(Loaded.Albums[0]->Slides.size(), 1U);
    EXPECT_TRUE(Loaded.Albums[1]->Slides.empty());
    EXPECT_EQ(Loaded.NextAlbumID, 0);  // an empty file of counters reads as zeros
}

TEST_F(EngineTest, LoadingAgainForgetsWhatWasNotWritten) {
    NewAlbum(u"kept"_s);
    Engine->FinalizeDB();
    NewAlbum(u"lost"_s);
    Engine->InitializeDB();
    ASSERT_EQ(Engine->Albums.size(), 1U);
    EXPECT_EQ(Engine->NextAlbumID, 2);
}

TEST_F(EngineTest, ThePathGetsAClosingSeparator) {
    clsDBEngine Other;
    Other.SetDBPath(u"/some/where"_s);
    EXPECT_EQ(Other.DBPath(), u"/some/where/");
    Other.SetDBPath(u"/some/where/"_s);
    EXPECT_EQ(Other.DBPath(), u"/some/where/");
}

TEST_F(EngineTest, ADirectoryThatIsGoneIsReportedAndNotMadeAgain) {
    clsDBEngine Other;
    Other.SetDBPath(Dir / "gone");
    Other.InitializeDB();
    EXPECT_THROW(Other.FinalizeDB(), Fault);
    EXPECT_FALSE(FolderExists(Dir / "gone"));
}

TEST_F(EngineTest, AnAlbumKeepsItsNameOnARenameToItself) {
    std::int32_t AlbumID = NewAlbum(u"a"_s);
    EXPECT_TRUE(Engine->SaveAlbum(AlbumID, u"a"_s));
    EXPECT_EQ(AlbumID, 1);
    EXPECT_EQ(Engine->Albums.size(), 1U);
}

TEST_F(EngineTest, ASecondAlbumOfTheSameNameIsRefused) {
    NewAlbum(u"a"_s);
    std::int32_t AlbumID = 0;
    ExpectRefused(Engine->SaveAlbum(AlbumID, u"a"_s), u"An Album with this name already exists."_s);
    EXPECT_EQ(AlbumID, 0);
    EXPECT_EQ(NewAlbum(u"A"_s), 2);  // another case is another name
}

TEST_F(EngineTest, ANameIsTheSameHoweverItsLettersAreComposed) {
    const QString Composed = u"\u0439 \u00e9"_s, Apart = u"\u0438\u0306 e\u0301"_s;
    NewAlbum(Apart);
    std::int32_t AlbumID = 0;
    ExpectRefused(Engine->SaveAlbum(AlbumID, Composed),
                  u"An Album with this name already exists."_s);
    for (const QString& Name : {Composed, Apart, Composed.toUpper(), Apart.toUpper()})
        EXPECT_TRUE(Engine->FindAlbum(0, Name)) << Name.toStdString();
    EXPECT_EQ(Apart, Engine->Albums[0]->AlbumName) << "what is stored stays";
    AlbumID = 1;
    EXPECT_TRUE(Engine->SaveAlbum(AlbumID, Composed));
    EXPECT_TRUE(Engine->SaveAlbum(AlbumID, u"e\u0301"_s.repeated(80)));
}

TEST_F(EngineTest, AnEmptyNameIsRefused) {
    std::int32_t AlbumID = 0;
    for (const QString& Name : {QString(), u"   "_s})
        ExpectRefused(Engine->SaveAlbum(AlbumID, Name), u"You must specify an Album name."_s);
    EXPECT_TRUE(Engine->Albums.empty());
}

TEST_F(EngineTest, ADuplicateOfBlanksIsRefusedAsADuplicate) {
    NewAlbum(u"a"_s);
    Engine->Albums[0]->AlbumName = u"  "_s;
    std::int32_t AlbumID = 0;
    ExpectRefused(Engine->SaveAlbum(AlbumID, u"  "_s),
                  u"An Album with this name already exists."_s);
}

TEST_F(EngineTest, ANameOfEightyCharactersIsTheLongest) {
    NewAlbum(u"n"_s.repeated(80));
    std::int32_t AlbumID = 0;
    ExpectRefused(Engine->SaveAlbum(AlbumID, u"n"_s.repeated(81)),
                  u"Album names must be <= 80 characters long."_s);
}

TEST_F(EngineTest, ANameIsStoredUntrimmed) {
    NewAlbum(u" a "_s);
    EXPECT_EQ(Engine->Albums[0]->AlbumName, u" a ");
}

TEST_F(EngineTest, AnUnknownIdMakesANewAlbumUnderANewId) {
    std::int32_t AlbumID = 99;
    EXPECT_TRUE(Engine->SaveAlbum(AlbumID, u"a"_s));
    EXPECT_EQ(AlbumID, 1);
    EXPECT_EQ(Engine->NextAlbumID, 2);
}

TEST_F(EngineTest, TheListOfAlbumsIsSortedWithoutRegardToCase) {
    for (const char* Name : {"b", "C", "a"}) NewAlbum(QLatin1String(Name));
    MemoryComboList List;
    List.AddItem(u"left over"_s, 1);
    Engine->LoadAlbumsCombo(List, true);
    ASSERT_EQ(List.ListCount(), 4);
    EXPECT_EQ(List.List(0), u"<NEW ALBUM>");
    EXPECT_EQ(List.ItemData(0), 0);
    EXPECT_EQ(List.List(1) + List.List(2) + List.List(3), u"abC");
    EXPECT_EQ(List.ItemData(3), 2);
    Engine->LoadAlbumsCombo(List, false);
    EXPECT_EQ(List.ListCount(), 3);
}

TEST_F(EngineTest, NamesThatDifferInCaseAloneFallAsTheExchangeSortLeavesThem) {
    for (const char* Name : {"b", "B", "a"}) NewAlbum(QLatin1String(Name));
    MemoryComboList List;
    Engine->LoadAlbumsCombo(List, false);
    EXPECT_EQ(List.List(0) + List.List(1) + List.List(2), u"aBb");
}

TEST_F(EngineTest, WithNoAlbumsTheListIsEmpty) {
    NewAlbum(u"a"_s);
    EXPECT_TRUE(Engine->DeleteAlbum(1));
    EXPECT_EQ(Engine->AlbumIndex.size(), 1U);  // stale, and nobody reads it
    MemoryComboList List;
    Engine->LoadAlbumsCombo(List, false);
    EXPECT_EQ(List.ListCount(), 0);
}

TEST_F(EngineTest, AnAlbumIsFoundByIdOrByNameWithoutRegardToCase) {
    NewAlbum(u"Rome"_s);
    NewAlbum(u"ROME"_s);
    std::int32_t AlbumID = 0;
    QString Name = u"rome"_s;
    EXPECT_TRUE(Engine->LoadAlbum(AlbumID, Name));
    EXPECT_EQ(AlbumID, 1);
    AlbumID = 2;
    EXPECT_TRUE(Engine->LoadAlbum(AlbumID, Name));
    EXPECT_EQ(Name, u"ROME");
    AlbumID = 3;
    EXPECT_FALSE(Engine->LoadAlbum(AlbumID, Name));
    EXPECT_FALSE(Engine->FindAlbum(3, u"Rome"_s));  // with an ID only the ID counts
    EXPECT_TRUE(Engine->FindAlbum(2, u"no matter"_s));
    EXPECT_TRUE(Engine->FindAlbum(0, u"rOME"_s));
    EXPECT_FALSE(Engine->FindAlbum(0, u"Paris"_s));
    EXPECT_EQ(Engine->GetAlbum(3), nullptr);
}

TEST_F(EngineTest, DeletingAnAlbumIsAlwaysTrueAndKeepsItsFiles) {
    NewAlbum(u"a"_s);
    NewAlbum(u"b"_s);
    MakeDirs(Dir / "Albums/1/Slides");
    EXPECT_TRUE(Engine->DeleteAlbum(1));
    EXPECT_TRUE(Engine->DeleteAlbum(77));
    ASSERT_EQ(Engine->AlbumIndex.size(), 1U);
    EXPECT_EQ(Engine->AlbumIndex[0].ID, 2);
    EXPECT_TRUE(FolderExists(Dir / "Albums/1/Slides"));
    EXPECT_EQ(NewAlbum(u"c"_s), 3);  // numbers are never used again
}

TEST_F(EngineTest, SavingIntoAnAlbumThatIsNotThereIsRefused) {
    const QString Text = u"The Album was not found."_s;
    ExpectRefused(Engine->SaveSlide(0, 5, {}, {}, {}, false, false), Text);
    ExpectRefused(Engine->SaveSlideShow(0, 5, {}, 0), Text);
    ExpectRefused(Engine->SaveSlideShowDetail(1, 5, 1, 1, {}), Text);
    ExpectRefused(Engine->SaveSlideShowSoundTrack(1, 5, 1, {}, 1, 1, false, false, false), Text);
}

TEST_F(EngineTest, SavingIntoAShowThatIsNotThereIsRefused) {
    const std::int32_t AlbumID = NewAlbum(u"a"_s);
    const QString Text = u"The Slide Show was not found."_s;
    ExpectRefused(Engine->SaveSlideShowDetail(1, AlbumID, 1, 1, {}), Text);
    ExpectRefused(Engine->SaveSlideShowSoundTrack(1, AlbumID, 1, {}, 1, 1, false, false, false),
                  Text);
}

TEST_F(EngineTest, ListsOfThingsThatAreNotThereAreEmpty) {
    MemoryComboList List;
    const auto ExpectCleared = [&](auto Fill) {
        List.AddItem(u"left over"_s, 1);
        Fill();
        EXPECT_EQ(List.ListCount(), 0);
    };
    ExpectCleared([&] { Engine->LoadSlidesCombo(List, 5); });
    ExpectCleared([&] { Engine->LoadSlideShowsCombo(List, 5); });
    ExpectCleared([&] { Engine->LoadSlideShowDetailsCombo(List, 5, 1); });
    ExpectCleared([&] { Engine->LoadSlideShowSoundTracksCombo(List, 1); });
}

TEST_F(EngineTest, ListsAreForwardedToAlbumAndShow) {
    FillDatabase(*Engine, u"x"_s);
    MemoryComboList List;
    Engine->LoadSlidesCombo(List, 2);
    EXPECT_EQ(List.List(0), u"000002 x caption");
    Engine->LoadSlideShowsCombo(List, 2);
    EXPECT_EQ(List.List(0), u"x show");
    EXPECT_EQ(List.ItemData(0), 2);
    Engine->LoadSlideShowDetailsCombo(List, 2, 2);
    EXPECT_EQ(List.List(0), u"1");
    EXPECT_EQ(List.ItemData(0), 2);
    Engine->LoadSlideShowSoundTracksCombo(List, 2);  // found although no album is named
    EXPECT_EQ(List.ListCount(), 1);
    EXPECT_EQ(List.ItemData(0), 1);
}

TEST_F(EngineTest, TwoEnginesKeepTheirDatabasesApart) {
    TempFolder OtherDir;
    const auto Other = OpenEngine(OtherDir.Path());
    FillDatabase(*Engine, u"mine"_s);
    FillDatabase(*Other, u"other"_s);
    std::int32_t Extra = 0;
    Other->SaveAlbum(Extra, u"extra"_s);
    Engine->FinalizeDB();
    Other->FinalizeDB();
    EXPECT_EQ(OpenEngine(Dir.Path())->Albums.size(), 2U);
    EXPECT_EQ(OpenEngine(Dir.Path())->Albums[0]->AlbumName, u"mine one");
    EXPECT_EQ(OpenEngine(OtherDir.Path())->Albums.size(), 3U);
    EXPECT_EQ(OpenEngine(OtherDir.Path())->NextAlbumID, 4);
}

TEST_F(EngineTest, CountersAreDrawnThenRaised) {
    EXPECT_EQ(Engine->AllocateSlideID(), 1);
    EXPECT_EQ(Engine->AllocateSlideID(), 2);
    EXPECT_EQ(Engine->AllocateSlideShowID(), 1);
    EXPECT_EQ(Engine->AllocateAlbumID(), 1);
    EXPECT_EQ(Engine->NextSlideID, 3);
}

TEST_F(EngineTest, FilesInUpperCaseAreReadAndReplaced) {
    NewAlbum(u"a"_s);
    Engine->FinalizeDB();
    RenameFile(Dir / "NextIDs.dat", Dir / "kept");
    RenameFile(Dir / "kept", Dir / "NEXTIDS.DAT");
    const auto Loaded = OpenEngine(Dir.Path());
    EXPECT_EQ(Loaded->NextAlbumID, 2);
    Loaded->FinalizeDB();
    int Counters = 0;
    for (const DirEntry& Entry : ListDir(Dir.Path()))
        if (Entry.Name.toUpper() == u"NEXTIDS.DAT") ++Counters;
    EXPECT_EQ(Counters, 1);
}

}  // namespace
}  // namespace neb
