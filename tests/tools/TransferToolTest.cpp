// nebctl transfer: albums and shows from one small database to another, what it prints, and that
// whatever it refuses leaves no trace.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <sstream>

#include "ToolRun.h"
#include "db/Fixtures.h"
#include "db/modAlbumFiles.h"
#include "db/modDatabaseLock.h"
#include "harness/FolderState.h"
#include "support/Fault.h"

namespace neb {
namespace {

using namespace harness;

// Names and contents below a folder, without dates: what is staged and taken back touches folders.
QStringList Contents(const QString& Folder) {
    QStringList All;
    for (const QString& Line : Everything(Folder)) {
        QStringList Words = Line.split(u' ');
        Words.removeAt(Words.size() - 2);
        All << Words.join(u' ');
    }
    return All;
}

// Makes slides and shows in a database, with files whose contents tell where they come from.
class Maker {
  public:
    explicit Maker(const QString& Dir) : mDir(Dir) {
        MakeDirs(Dir);
        mEngine = OpenEngine(Dir);
    }
    ~Maker() { mEngine->FinalizeDB(); }

    void Album(const QString& Name) {
        std::int32_t AlbumID = 0;
        mEngine->SaveAlbum(AlbumID, Name);
        mAlbum = mEngine->GetAlbum(AlbumID);
        MakeDirs(SlidesFolder(mDir, AlbumID));
        MakeDirs(SoundTracksFolder(mDir, AlbumID));
    }
    std::int32_t Slide(const QString& Caption) {
        std::int32_t SlideID = 0;
        clsNEBSlide& Made = *mAlbum->SaveSlide2(SlideID, Caption, {}, {}, false, false, *mEngine);
        Made.SlideLoc = FileStem(SlideID) + u".jpg"_s;
        const QString Folder = SlidesFolder(mDir, mAlbum->AlbumID);
        WriteFile(Folder + Made.SlideLoc, "picture of " + Caption.toUtf8());
        WriteFile(Folder + ThumbnailName(SlideID), "thumbnail of " + Caption.toUtf8());
        return SlideID;
    }
    // With a sound track of its own.
    void Show(const QString& Name, const std::vector<std::int32_t>& Slides) {
        std::int32_t ShowID = 0, SlideSeq = 0;
        mAlbum->SaveSlideShow(ShowID, Name, 1, *mEngine);
        for (const std::int32_t SlideID : Slides)
            mEngine->SaveSlideShowDetail(ShowID, mAlbum->AlbumID, SlideID, ++SlideSeq, {});
        const QString Sound = FileStem(ShowID) + u"_1.mp3"_s;
        mEngine->SaveSlideShowSoundTrack(ShowID, mAlbum->AlbumID, 1, Sound, 1, 2, false, false,
                                         true);
        WriteFile(SoundTracksFolder(mDir, mAlbum->AlbumID) + Sound, "sound of " + Name.toUtf8());
    }

  private:
    QString mDir;
    std::unique_ptr<clsDBEngine> mEngine;
    clsNEBAlbum* mAlbum = nullptr;
};

// The album as its records and files tell it: captions with pictures and thumbnails, shows with the
// captions of their slides and their sounds.
QStringList Told(const QString& Dir, const QString& Name) {
    const auto Engine = OpenEngine(Dir, Recovery::InMemory);
    QStringList All;
    for (const auto& Album : Engine->Albums) {
        if (Album->AlbumName != Name) continue;
        const QString Slides = SlidesFolder(Dir, Album->AlbumID);
        std::map<std::int32_t, QString> Captions;
        for (const auto& Slide : Album->Slides) {
            Captions[Slide->SlideID] = Slide->SlideText;
            QByteArray Files;
            for (const QString& File : {Slide->SlideLoc, ThumbnailName(Slide->SlideID)})
                Files += FileExists(Slides + File) ? ", " + ReadFile(Slides + File) : ", none";
            All << Slide->SlideText + QString::fromUtf8(Files);
        }
        for (const auto& Show : Album->SlideShows) {
            QString Line = u"show "_s + Show->SlideShowName + u':';
            for (const auto& Detail : Show->Details) Line += u' ' + Captions[Detail->SlideID];
            for (const auto& Track : Show->SoundTracks)
                Line +=
                    u", "_s + QString::fromUtf8(ReadFile(SoundTracksFolder(Dir, Album->AlbumID) +
                                                         Track->SoundTrackLoc));
            All << Line;
        }
    }
    return All;
}

class TransferToolTest : public ::testing::Test {
  protected:
    // Album "Holiday" with the shows "Lake" (of two slides) and "Hills" (of one), "Empty" without.
    TransferToolTest() {
        {
            Maker Make(Src());
            Make.Album(u"First"_s);
            Make.Slide(u"elsewhere"_s);
            Make.Album(u"Holiday"_s);
            const std::int32_t Boat = Make.Slide(u"boat"_s), Pier = Make.Slide(u"pier"_s);
            const std::int32_t Hut = Make.Slide(u"hut"_s);
            Make.Show(u"Lake"_s, {Pier, Boat});
            Make.Show(u"Hills"_s, {Hut});
        }
        MakeDirs(Dst());
    }
    ~TransferToolTest() override { SetHostWatcher({}); }

    QString Src() const { return Dir / u"src/"_s; }
    QString Dst() const { return Dir / u"dst/"_s; }
    // Another album of that name, with a slide and a show.
    void FillDestination(const QString& Album, const QString& Show) const {
        Maker Make(Dst());
        Make.Album(Album);
        Make.Show(Show, {Make.Slide(u"old"_s)});
    }
    ToolRun Transfer(const QStringList& More = {}) const {
        return Tool(QStringList{u"transfer"_s, Src(), Dst(), u"--album"_s, u"Holiday"_s} + More);
    }
    // Refused with these words, and nothing was touched anywhere.
    void ExpectRefusal(const QStringList& Arguments, const std::string& Text) const {
        const QStringList Before = Contents(Dir.Path());
        const ToolRun Result = Tool(Arguments);
        EXPECT_EQ(Result.Code, ExitFailed);
        EXPECT_EQ(Result.Out, "");
        EXPECT_NE(Result.Err.find(Text), std::string::npos) << Result.Err;
        EXPECT_EQ(Differences(Before, Contents(Dir.Path())), "");
    }
    void ExpectRefusal(const std::string& Text, const QStringList& More = {}) const {
        ExpectRefusal(QStringList{u"transfer"_s, Src(), Dst(), u"--album"_s, u"Holiday"_s} + More,
                      Text);
    }
    static void ExpectSound(const QString& Database) {
        EXPECT_EQ(Tool({u"check"_s, Database}).Out, "");
    }
    // All of "Holiday".
    static inline const QStringList Slides = {u"boat, picture of boat, thumbnail of boat"_s,
                                              u"pier, picture of pier, thumbnail of pier"_s,
                                              u"hut, picture of hut, thumbnail of hut"_s};
    static inline const QStringList Shows = {u"show Lake: pier boat, sound of Lake"_s,
                                             u"show Hills: hut, sound of Hills"_s};
    static inline const QStringList Old = {u"old, picture of old, thumbnail of old"_s};
    TempFolder Dir;
};

TEST_F(TransferToolTest, AnAlbumArrivesWholeInAnEmptyDirectory) {
    const QStringList Before = Contents(Src());
    const ToolRun Done = Transfer();
    EXPECT_EQ(Done.Out, "Album \"Holiday\": 3 slides, 2 slide shows transferred.\n");
    EXPECT_EQ(Done.Err, "");
    EXPECT_EQ(Done.Code, ExitDone);
    EXPECT_EQ(Told(Dst(), u"Holiday"_s), Slides + Shows);
    EXPECT_EQ(OpenEngine(Dst())->Albums.size(), 1U);
    EXPECT_FALSE(FileExists(JournalPath(Dst()))) << "the records themselves are written";
    EXPECT_FALSE(FileExists(DatabaseLockPath(Dst())));
    ExpectSound(Dst());
    EXPECT_EQ(Differences(Before, Contents(Src())), "");
}

// As one types it, standing beside it.
TEST_F(TransferToolTest, ADirectoryMayBeNamedFromWhereOneStands) {
    const QString Stood = QDir::currentPath();
    QDir::setCurrent(Dir.Path());
    MakeDirs(u"fresh"_s);
    const ToolRun Done = Tool({u"transfer"_s, u"src"_s, u"fresh"_s, u"--album"_s, u"Holiday"_s});
    QDir::setCurrent(Stood);
    EXPECT_EQ(ExitDone, Done.Code) << Done.Err;
    EXPECT_EQ(Told(Dir / u"fresh/"_s, u"Holiday"_s), Slides + Shows);
}

TEST_F(TransferToolTest, WhatATransferThatWasCutOffHasLeftIsNamedByTheCheck) {
    MakeDirs(Src() + u"Temp/Transfer"_s);
    WriteFile(Src() + u"Temp/Transfer/0"_s, "half");
    const ToolRun Found = Tool({u"check"_s, Src()});
    EXPECT_EQ(ExitFound, Found.Code);
    EXPECT_NE(std::string::npos, Found.Out.find("a transfer was cut off")) << Found.Out;
}

TEST_F(TransferToolTest, ToAnAlbumThatIsThereItIsAdded) {
    FillDestination(u"HOLIDAY"_s, u"Sea"_s);
    EXPECT_EQ(Transfer().Out, "Album \"HOLIDAY\": 3 slides, 2 slide shows transferred.\n");
    EXPECT_EQ(Told(Dst(), u"HOLIDAY"_s),
              Old + Slides + QStringList{u"show Sea: old, sound of Sea"_s} + Shows);
    ExpectSound(Dst());
}

TEST_F(TransferToolTest, EqualNamesOfShowsAreRefusedInTheWordsOfTheRules) {
    FillDestination(u"Holiday"_s, u"LAKE"_s);
    ExpectRefusal(
        "nebctl: 1 or more Slide Shows within the selected Destination Album have names identical "
        "to those of Slide Shows in the Source Album. You can only Export unique Slide Shows. Use "
        "the Update Feature to overwrite an existing album.\n");
}

TEST_F(TransferToolTest, WithReplaceTheAlbumIsReplaced) {
    FillDestination(u"Holiday"_s, u"LAKE"_s);
    EXPECT_EQ(Transfer({u"--replace"_s}).Code, ExitDone);
    EXPECT_EQ(Told(Dst(), u"Holiday"_s), Slides + Shows);
    EXPECT_EQ(OpenEngine(Dst())->Albums.size(), 1U);
    ExpectSound(Dst());
}

TEST_F(TransferToolTest, ReplacingWhatIsNotThereMakesIt) {
    EXPECT_EQ(Transfer({u"--replace"_s}).Code, ExitDone);
    EXPECT_EQ(Told(Dst(), u"Holiday"_s), Slides + Shows);
}

TEST_F(TransferToolTest, TheDestinationsAlbumMayBearAnotherName) {
    FillDestination(u"Holiday"_s, u"Lake"_s);
    const ToolRun Done = Tool(
        {u"transfer"_s, Src(), Dst(), u"--album"_s, u"hOLIDAY"_s, u"--to"_s, u"Tom's \"lake\""_s});
    EXPECT_EQ(Done.Out, "Album \"Tom’s “lake”\": 3 slides, 2 slide shows transferred.\n");
    EXPECT_EQ(Told(Dst(), u"Tom’s “lake”"_s), Slides + Shows);
    EXPECT_EQ(Transfer({u"--to"_s, u"TOM's \"lake\""_s, u"--replace"_s}).Code, ExitDone)
        << "it is found again";
    EXPECT_EQ(OpenEngine(Dst())->Albums.size(), 2U);
    ExpectSound(Dst());
}

TEST_F(TransferToolTest, AShowBringsItsOwnSlidesAloneIntoANewAlbum) {
    const ToolRun Done = Transfer({u"--show"_s, u"lake"_s});
    EXPECT_EQ(Done.Out, "Album \"Holiday\": 2 slides, 1 slide show transferred.\n") << Done.Err;
    EXPECT_EQ(Told(Dst(), u"Holiday"_s), QStringList({Slides[1], Slides[0], Shows[0]}));
    ExpectSound(Dst());
    EXPECT_EQ(Transfer({u"--show"_s, u"Hills"_s}).Out,
              "Album \"Holiday\": 1 slide, 1 slide show transferred.\n");
    EXPECT_EQ(Told(Dst(), u"Holiday"_s).size(), 5);
}

TEST_F(TransferToolTest, AShowOfThatNameIsRefusedOrReplaced) {
    FillDestination(u"Trips"_s, u"LAKE"_s);
    const QStringList More = {u"--show"_s, u"Lake"_s, u"--to"_s, u"trips"_s};
    ExpectRefusal("The album \"Trips\" has a slide show \"LAKE\" already; --replace ", More);
    EXPECT_EQ(Transfer(More + QStringList{u"--replace"_s}).Out,
              "Album \"Trips\": 2 slides, 1 slide show transferred.\n");
    EXPECT_EQ(Told(Dst(), u"Trips"_s), QStringList({Slides[1], Slides[0], Shows[0]}))
        << "the slide that only the old show used has gone with it";
    ExpectSound(Dst());
}

TEST_F(TransferToolTest, WithinOneDatabaseAnAlbumIsCopiedButNotOntoItself) {
    const QString Link = Dir / u"link"_s;
    ASSERT_TRUE(QFile::link(QDir(Src()).path(), Link));
    for (const QString& Same : {Src(), Link})
        ExpectRefusal({u"transfer"_s, Src(), Same, u"--album"_s, u"Holiday"_s},
                      "You cannot Export an Album to itself!");
    ExpectRefusal({u"transfer"_s, Src(), Link, u"--album"_s, u"Holiday"_s, u"--show"_s, u"Lake"_s,
                   u"--replace"_s},
                  "You cannot Export a Slide Show to itself!");
    const ToolRun Done =
        Tool({u"transfer"_s, Src(), Link, u"--album"_s, u"Holiday"_s, u"--to"_s, u"Copy"_s});
    EXPECT_EQ(Done.Out, "Album \"Copy\": 3 slides, 2 slide shows transferred.\n") << Done.Err;
    EXPECT_EQ(Told(Src(), u"Copy"_s), Slides + Shows);
    EXPECT_EQ(Told(Src(), u"Holiday"_s), Slides + Shows);
    ExpectSound(Src());
}

TEST_F(TransferToolTest, WhatIsMissingIsListedAndEndsItUnlessItIsToBeLeftOut) {
    const QString Picture = SlidesFolder(Src(), 2) + FileStem(3) + u".jpg"_s;
    const QString Sound = SoundTracksFolder(Src(), 2) + u"00000001_1.mp3"_s;
    DeleteFile(Picture);
    DeleteFile(Sound);
    ExpectRefusal("nebctl: missing or cannot be read: " + Picture.toStdString() +
                  "\nnebctl: missing or cannot be read: " + Sound.toStdString() +
                  "\nnebctl: Nothing has been changed; --without-missing ");
    const ToolRun Done = Transfer({u"--without-missing"_s});
    EXPECT_EQ(Done.Code, ExitDone);
    EXPECT_EQ(Done.Out, "Album \"Holiday\": 3 slides, 2 slide shows transferred.\n");
    EXPECT_EQ(Done.Err, "nebctl: left out, as it cannot be read: " + Picture.toStdString() +
                            "\nnebctl: left out, as it cannot be read: " + Sound.toStdString() +
                            "\n");
    EXPECT_EQ(Told(Dst(), u"Holiday"_s), QStringList({Slides[0], u"pier, none, none"_s, Slides[2],
                                                      u"show Lake: pier boat"_s, Shows[1]}));
}

TEST_F(TransferToolTest, DatabasesInUseAreLeftAlone) {
    for (const QString& Used : {Src(), Dst()}) {
        InstanceLock Program(DatabaseLockPath(Used));
        ASSERT_TRUE(Program.TryLock());
        ExpectRefusal("The database in " + Used.toStdString() + " is in use.");
    }
}

TEST_F(TransferToolTest, AReadOnlyDatabaseIsASourceButNoDestination) {
    FillDestination(u"Trips"_s, u"Sea"_s);
    QFile::setPermissions(Dst() + u"NextIDs.dat"_s, QFileDevice::ReadOwner);
    ExpectRefusal("The database in " + Dst().toStdString() + " is read-only.");
    MakeDirs(Dir / u"third"_s);
    EXPECT_EQ(Tool({u"transfer"_s, Dst(), Dir / u"third"_s, u"--album"_s, u"trips"_s}).Out,
              "Album \"Trips\": 1 slide, 1 slide show transferred.\n");
}

TEST_F(TransferToolTest, WithoutSoundCountersTheDestinationIsLeftAlone) {
    FillDestination(u"Trips"_s, u"Sea"_s);
    WriteFile(Dst() + u"NextIDs.dat"_s, QByteArray::fromHex("010000000100000001000000"));
    ExpectRefusal("NextIDs.dat says that the next album has the number 1, but number 1 is taken");
    DeleteFile(Dst() + u"NextIDs.dat"_s);
    ExpectRefusal("NextIDs.dat is missing.");
}

// An album that came without its slides would take the place of one that has them.
TEST_F(TransferToolTest, ASourceThatHasLostRecordsReplacesNothing) {
    FillDestination(u"Holiday"_s, u"LAKE"_s);
    for (const RecordFile File :
         {RecordFile::Slides, RecordFile::SlideShows, RecordFile::SlideShowDetails}) {
        const QString Path = RecordPath(Src(), File);
        const QByteArray Whole = ReadFile(Path);
        WriteFile(Path, {});
        ExpectRefusal(RecordFileName(File) + std::string(" is empty"), {u"--replace"_s});
        DeleteFile(Path);
        ExpectRefusal(RecordFileName(File) + std::string(" is missing"), {u"--replace"_s});
        WriteFile(Path, Whole);
    }
    EXPECT_EQ(Transfer({u"--replace"_s}).Code, ExitDone);
}

TEST_F(TransferToolTest, UnknownNamesAreToldWithThoseThatThereAre) {
    ExpectRefusal({u"transfer"_s, Src(), Dst(), u"--album"_s, u"Nowhere"_s},
                  "There is no album \"Nowhere\"; there are: \"First\", \"Holiday\".");
    ExpectRefusal({u"transfer"_s, Src(), Dst()},
                  "--album NAME is wanted; there are: \"First\", \"Holiday\".");
    ExpectRefusal("There is no show \"Sea\"; there are: \"Lake\", \"Hills\".",
                  {u"--show"_s, u"Sea"_s});
    ExpectRefusal({u"transfer"_s, Dst(), Src(), u"--album"_s, u"Holiday"_s},
                  "There is no database in " + Dst().toStdString());
}

TEST_F(TransferToolTest, AFullDiskLeavesBothAsTheyWere) {
    FillDestination(u"Holiday"_s, u"Lake"_s);
    const QStringList Before = Contents(Dir.Path());
    for (const qint64 Room : {5, 40, 100}) {
        qint64 Free = Room;
        SetHostWatcher([&Free](HostStep Step, const QString& Path, qint64& Length) {
            if (Step != HostStep::Write || Path.endsWith(u".lock")) return;
            Length = std::min(Length, Free);
            Free -= Length;
        });
        const ToolRun Failed = Transfer({u"--replace"_s});
        SetHostWatcher({});
        EXPECT_EQ(Failed.Code, ExitFailed) << Room;
        EXPECT_EQ(Failed.Out, "") << Room;
        EXPECT_NE(Failed.Err, "") << Room;
        EXPECT_EQ(Differences(Before, Contents(Dir.Path())), "") << Room;
    }
}

TEST_F(TransferToolTest, RecordsThatAreNotAllWrittenAreCompletedLater) {
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Write && Path.endsWith(u"Slides.dat")) throw Fault(u"no"_s, Path);
    });
    const ToolRun Failed = Transfer();
    SetHostWatcher({});
    EXPECT_EQ(Failed.Code, ExitFailed);
    EXPECT_NE(Failed.Err.find("nebctl rewrite"), std::string::npos) << Failed.Err;
    EXPECT_EQ(Tool({u"rewrite"_s, Dst()}).Code, ExitDone);
    EXPECT_EQ(Told(Dst(), u"Holiday"_s), Slides + Shows);
    ExpectSound(Dst());
}

TEST_F(TransferToolTest, FilesThatAreNotAllInTheirPlacesAreNotCalledMissing) {
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Rename && Path.contains(u"/Albums/")) throw Fault(u"no"_s, Path);
    });
    const ToolRun Failed = Transfer();
    SetHostWatcher({});
    EXPECT_EQ(Failed.Code, ExitFailed);
    EXPECT_NE(Failed.Err.find("The transfer is done, but not all of its files are in their places"),
              std::string::npos)
        << Failed.Err;
    EXPECT_EQ(Tool({u"check"_s, Dst()}).Out,
              "the last write did not come to its end; the next start of the program will complete "
              "it\nthe files of a transfer are not all in their places yet; the next start of the "
              "program will put them there\n");
    EXPECT_EQ(Tool({u"rewrite"_s, Dst()}).Code, ExitDone);
    EXPECT_EQ(Told(Dst(), u"Holiday"_s), Slides + Shows);
    ExpectSound(Dst());
}

TEST_F(TransferToolTest, AnUnfinishedWriteOfTheSourceIsReadAndLeftToTheSource) {
    {
        const auto Engine = OpenEngine(Src());
        Engine->Albums[1]->AlbumName = u"Changed"_s;
        SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
            if (Step == HostStep::Write && Path.endsWith(u"Slides.dat")) throw Fault(u"no"_s, Path);
        });
        EXPECT_THROW(Engine->FinalizeDB(), Fault);
        SetHostWatcher({});
    }
    const QStringList Before = Contents(Src());
    EXPECT_EQ(Tool({u"transfer"_s, Src(), Dst(), u"--album"_s, u"changed"_s}).Code, ExitDone);
    EXPECT_EQ(Told(Dst(), u"Changed"_s), Slides + Shows);
    EXPECT_EQ(Differences(Before, Contents(Src())), "");
}

TEST_F(TransferToolTest, DocumentsFoldersAreUnderstoodOnBothSides) {
    const QString From = Dir / u"from/NEB/NEB Slide Show/"_s,
                  To = Dir / u"to/NEB/NEB Slide Show/"_s;
    MakeDirs(Dir / u"from/NEB"_s);
    ASSERT_TRUE(QDir().rename(Src(), From));
    MakeDirs(To);
    EXPECT_EQ(
        Tool({u"transfer"_s, Dir / u"from"_s, Dir / u"to/NEB"_s, u"--album"_s, u"Holiday"_s}).Code,
        ExitDone);
    EXPECT_EQ(Told(To, u"Holiday"_s), Slides + Shows);
    EXPECT_EQ(ListDir(Dir / u"to"_s).size(), 1U);
}

TEST_F(TransferToolTest, ProgressGoesToATerminalAloneAndVanishes) {
    const QStringList Words = {u"transfer"_s, Src(), Dst(), u"--album"_s, u"Holiday"_s};
    const ToolRun Shown = Tool(Words, true);
    EXPECT_NE(Shown.Err.find("\rTransferring Looking at"), std::string::npos) << Shown.Err;
    EXPECT_NE(Shown.Err.find("\rTransferring Writing the records"), std::string::npos);
    EXPECT_TRUE(Shown.Err.ends_with("\r\033[K"));
    EXPECT_EQ(Shown.Out, "Album \"Holiday\": 3 slides, 2 slide shows transferred.\n");
}

TEST_F(TransferToolTest, WrongWordsAreRefused) {
    ExpectRefusal({u"transfer"_s}, "A source and a destination are wanted; see nebctl transfer");
    ExpectRefusal({u"transfer"_s, Src(), u"--album"_s, u"Holiday"_s}, "A source and a destination");
    ExpectRefusal("A source and a destination", {u"--everything"_s});
    ExpectRefusal("--show wants a name", {u"--show"_s});
    ExpectRefusal("--to wants a name", {u"--to"_s, u" "_s});
    ExpectRefusal("Album names", {u"--to"_s, QString(81, u'x')});
    ExpectRefusal({u"transfer"_s, Src(), Dir / u"gone"_s, u"--album"_s, u"Holiday"_s},
                  "There is no directory " + (Dir / u"gone"_s).toStdString());
}

}  // namespace
}  // namespace neb
