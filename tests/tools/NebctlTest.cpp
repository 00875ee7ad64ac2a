// The commands of nebctl, called as functions, and once as the real program.
#include <gtest/gtest.h>
#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include "ToolRun.h"
#include "db/Changes.h"
#include "db/Fixtures.h"
#include "db/modAlbumFiles.h"
#include "db/modDatabaseLock.h"
#include "harness/Sanitizer.h"
#include "pictures/workers/OwnPictures.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/files/CheckSums.h"
#include "tools/words/JsonWriter.h"

namespace neb {
namespace {

using namespace harness;

struct Outcome {
    int Code;
    QString Out, Err;
};

Outcome Nebctl(const QStringList& Arguments, bool Terminal = false) {
    const ToolRun Ran = Tool(Arguments, Terminal);
    return {Ran.Code, QString::fromStdString(Ran.Out), QString::fromStdString(Ran.Err)};
}

// The names, sizes and contents of all that lies below a directory.
QStringList Everything(const QString& Dir) {
    QStringList All;
    for (const DirEntry& Entry : ListDir(Dir)) {
        const QString Path = Dir + Entry.Name;
        All << Path;
        if (Entry.IsFolder)
            All << Everything(Path + u'/');
        else
            All << QString::fromLatin1(ReadFile(Path).toHex());
    }
    return All;
}

class NebctlTest : public ::testing::Test {
  protected:
    // A database of two albums with all the files that its records name.
    NebctlTest() {
        const auto Engine = OpenEngine(Dir.Path());
        FillDatabase(*Engine, u"Fürth \"1\""_s);
        for (const auto& Album : Engine->Albums) {
            const QString Slides = SlidesFolder(Dir.Path(), Album->AlbumID);
            const QString Sounds = SoundTracksFolder(Dir.Path(), Album->AlbumID);
            MakeDirs(Slides);
            MakeDirs(Sounds);
            clsNEBSlide& Slide = *Album->Slides[0];
            Slide.SlideLoc = FileStem(Slide.SlideID) + u".JPG"_s;
            WriteFile(Slides + FileStem(Slide.SlideID) + u".jpg"_s, "picture");
            WriteFile(Slides + ThumbnailName(Slide.SlideID), "thumbnail");
            WriteFile(Sounds + u"00000001_1.mp3"_s, "sound");
        }
        Engine->FinalizeDB();
    }
    // The lines that check prints, which must be found in their order of printing.
    void ExpectFindings(const QStringList& Expected) {
        const QStringList Before = Everything(Dir.Path());
        const Outcome Result = Nebctl({u"check"_s, Dir.Path()});
        EXPECT_EQ(Result.Out.split(u'\n', Qt::SkipEmptyParts), Expected)
            << Result.Out.toStdString();
        EXPECT_EQ(Result.Code, Expected.isEmpty() ? 0 : 1);
        EXPECT_EQ(Result.Err, u"");
        EXPECT_EQ(Everything(Dir.Path()), Before);
    }
    void ChangeRecords(const char* Name, const std::function<void(QByteArray&)>& Change) {
        QByteArray Bytes = FileBytes(Dir.Path(), Name);
        Change(Bytes);
        WriteFile(Dir.Path() + QLatin1String(Name), Bytes);
    }
    QJsonObject Dump() {
        const Outcome Result = Nebctl({u"dump"_s, Dir.Path()});
        EXPECT_EQ(Result.Code, 0);
        QJsonParseError Error;
        const auto Document = QJsonDocument::fromJson(Result.Out.toUtf8(), &Error);
        EXPECT_EQ(Error.error, QJsonParseError::NoError) << Result.Out.toStdString();
        return Document.object();
    }
    // A write that was broken off among the record files.
    void BreakAWrite() {
        const auto Engine = OpenEngine(Dir.Path());
        Engine->Albums[0]->AlbumName = u"changed"_s;
        SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
            if (Step == HostStep::Write && Path.endsWith(u"Slides.dat")) throw Fault(u"no"_s, Path);
        });
        EXPECT_THROW(Engine->FinalizeDB(), Fault);
        SetHostWatcher({});
    }
    TempFolder Dir;
};

TEST_F(NebctlTest, DumpsAllThatTheLoaderHolds) {
    const QJsonObject All = Dump();
    EXPECT_EQ(All.keys(), QStringList({"Albums", "EffectStats", "NextAlbumID", "NextSlideID",
                                       "NextSlideShowID", "Properties"}));
    EXPECT_EQ(All["NextAlbumID"].toInt(), 3);
    const QJsonArray Albums = All["Albums"].toArray();
    ASSERT_EQ(Albums.size(), 2);
    const QJsonObject Album = Albums[1].toObject();
    EXPECT_EQ(Album["AlbumID"].toInt(), 2);
    EXPECT_EQ(Album["AlbumName"].toString(), u"Fürth \"1\" two");
    const QJsonObject Slide = Album["Slides"].toArray()[0].toObject();
    EXPECT_EQ(Slide.keys(), QStringList({"Override", "Repeat", "SlideID", "SlideLoc", "SlideText",
                                         "SoundTrackLoc"}));
    EXPECT_EQ(Slide["Override"], QJsonValue(true));
    EXPECT_EQ(Slide["SlideLoc"].toString(), u"00000002.JPG");
    const QJsonObject Show = Album["SlideShows"].toArray()[0].toObject();
    EXPECT_EQ(Show.keys(), QStringList({"Details", "ProgressionMethod", "SlideShowID",
                                        "SlideShowName", "SoundTracks"}));
    EXPECT_EQ(Show["Details"].toArray()[0].toObject().keys(),
              QStringList({"SlideID", "SlideSeq", "SlideText"}));
    EXPECT_EQ(Show["SoundTracks"].toArray()[0].toObject().keys(),
              QStringList({"Fade", "FitToSong", "Repeat", "SlideSeqEnd", "SlideSeqStart",
                           "SoundTrackLoc", "SoundTrackSeq"}));
    EXPECT_EQ(All["Properties"].toArray()[0].toObject()["PropertyName"].toString().trimmed(),
              u"Marker");
    EXPECT_EQ(All["EffectStats"].toArray()[0].toObject()["AvgTime"].toDouble(), 0.25);
}

TEST_F(NebctlTest, DumpTellsWhereATrackBeginsAndEnds) {
    const QJsonObject Show = Dump()["Albums"][0]["SlideShows"][0].toObject();
    const QJsonValue Track = Show["SoundTracks"][0];
    EXPECT_EQ(Track["SlideSeqStart"].toInt(), 1);
    EXPECT_EQ(Track["SlideSeqEnd"].toInt(), 3);
}

TEST_F(NebctlTest, DumpKeepsTheOrderOfTheFields) {
    const QString Text = Nebctl({u"dump"_s, Dir.Path()}).Out;
    qsizetype Place = 0;
    for (const char* Key :
         {"NextAlbumID", "NextSlideID", "NextSlideShowID", "Albums", "AlbumID", "AlbumName",
          "Slides", "SlideShows", "Details", "SoundTracks", "Properties", "EffectStats"}) {
        Place = Text.indexOf(u'"' + QLatin1String(Key) + u'"', Place);
        ASSERT_GE(Place, 0) << Key;
    }
}

TEST_F(NebctlTest, DumpOfAnEmptyDirectoryIsANewDatabase) {
    TempFolder Empty;
    const Outcome Result = Nebctl({u"dump"_s, Empty.Path()});
    EXPECT_EQ(Result.Code, 0);
    EXPECT_TRUE(Result.Out.contains(u"\"NextSlideID\": 1,"));
    EXPECT_TRUE(Result.Out.contains(u"\"Albums\": []"));
    EXPECT_TRUE(ListDir(Empty.Path()).empty());
}

TEST_F(NebctlTest, DumpSeesABrokenOffWriteAsTheNextStartWillAndLeavesItThere) {
    BreakAWrite();
    const QStringList Before = Everything(Dir.Path());
    EXPECT_EQ(Dump()["Albums"].toArray()[0].toObject()["AlbumName"].toString(), u"changed");
    EXPECT_TRUE(Nebctl({u"dump"_s, Dir.Path()}).Err.contains(u"did not come to its end"));
    EXPECT_EQ(Everything(Dir.Path()), Before);
}

TEST_F(NebctlTest, JsonTextsAreEscapedAndNumbersAreValid) {
    std::ostringstream Out;
    JsonWriter Json(Out);
    Json.BeginObject();
    Json.Value("Text", u"a\"b\\c\n\x01 ü€"_s + QChar(0xD800));
    Json.Value("Nan", std::numeric_limits<double>::quiet_NaN());
    Json.Value("Huge", 1e300);
    Json.BeginList("Empty");
    Json.EndList();
    Json.EndObject();
    QJsonParseError Error;
    const auto Parsed =
        QJsonDocument::fromJson(QByteArray::fromStdString(Out.str()), &Error).object();
    ASSERT_EQ(Error.error, QJsonParseError::NoError) << Out.str();
    EXPECT_TRUE(Parsed["Text"].toString().startsWith(u"a\"b\\c\n\x01 ü€"));
    EXPECT_TRUE(Parsed["Nan"].isNull());
    EXPECT_EQ(Parsed["Huge"].toDouble(), 1e300);
}

TEST_F(NebctlTest, ACleanDatabaseHasNoFindings) {
    ExpectFindings({});
}

TEST_F(NebctlTest, AnEmptyDirectoryHasNoFindings) {
    TempFolder Empty;
    EXPECT_EQ(Nebctl({u"check"_s, Empty.Path()}).Code, 0);
}

TEST_F(NebctlTest, CheckFindsOrphans) {
    ChangeRecords("Albums.dat", [](QByteArray& Bytes) { Bytes.chop(86); });
    ExpectFindings(
        {u"Slides.dat, record 2: slide 2 belongs to album 2, which is not there; it will be dropped"_s,
         u"SlideShows.dat, record 2: show 2 belongs to album 2, which is not there; it will be dropped"_s,
         u"SlideShowDetails.dat, record 2: place 1 belongs to show 2 of album 2, which is not "
         u"there; "
         "it will be dropped"_s,
         u"SlideShowSoundTracks.dat, record 2: sound track 1 belongs to show 2 of album 2, which "
         u"is "
         "not there; it will be dropped"_s,
         u"no record names the folder %1Albums/2"_s.arg(Dir.Path())});
}

TEST_F(NebctlTest, CheckFindsMissingFiles) {
    DeleteFile(Dir / "Albums/1/Slides/00000001.jpg");
    DeleteFile(Dir / "Albums/1/Slides/00000001Small.bmp");
    DeleteFile(Dir / "Albums/2/SoundTracks/00000001_1.mp3");
    const QString Slides = Dir / "Albums/1/Slides/";
    ExpectFindings(
        {u"the picture of slide 1 in album 1 is missing: "_s + Slides + u"00000001.JPG"_s,
         u"the thumbnail of slide 1 in album 1 is missing: "_s + Slides + u"00000001Small.bmp"_s,
         u"sound track 1 of show 2 in album 2 is missing: "_s +
             (Dir / "Albums/2/SoundTracks/00000001_1.mp3")});
}

TEST_F(NebctlTest, CheckFindsSlideSoundsAndPicturesOutside) {
    const auto Engine = OpenEngine(Dir.Path());
    Engine->Albums[0]->Slides[0]->SoundTrackLoc = u"00000001.wav"_s;
    Engine->Albums[1]->Slides[0]->SlideLoc = Dir / "outside.png";
    Engine->FinalizeDB();
    const QString Slides = Dir / "Albums/2/Slides/";
    ExpectFindings(
        {u"the sound of slide 1 in album 1 is missing: "_s + (Dir / "Albums/1/Slides/00000001.wav"),
         u"the picture of slide 2 in album 2 is missing: "_s + (Dir / "outside.png"),
         u"no record names the file "_s + Slides + u"00000002.jpg"_s});
}

TEST_F(NebctlTest, CheckFindsStrayFiles) {
    WriteFile(Dir / "Albums/1/Slides/00000009.jpg", "x");
    WriteFile(Dir / "Albums/1/SoundTracks/old.mp3", "x");
    WriteFile(Dir / "Albums/1/notes.txt", "x");
    WriteFile(Dir / "Albums/list.txt", "x");
    MakeDirs(Dir / "Albums/7");
    const QString Text = u"no record names the %1 %2"_s;
    ExpectFindings({Text.arg(u"file"_s, Dir / "Albums/1/notes.txt"),
                    Text.arg(u"file"_s, Dir / "Albums/1/Slides/00000009.jpg"),
                    Text.arg(u"file"_s, Dir / "Albums/1/SoundTracks/old.mp3"),
                    Text.arg(u"folder"_s, Dir / "Albums/7"),
                    Text.arg(u"file"_s, Dir / "Albums/list.txt")});
}

TEST_F(NebctlTest, CheckFindsDoubleKeys) {
    for (const char* Name : {"Properties.dat", "EffectStats.dat", "SlideShowSoundTracks.dat"})
        ChangeRecords(Name, [](QByteArray& Bytes) { Bytes += Bytes; });
    ChangeRecords("Slides.dat", [](QByteArray& Bytes) { Bytes += Bytes.left(604); });
    ExpectFindings({u"Properties.dat, record 2: property \"Marker\" stands twice"_s,
                    u"EffectStats.dat, record 2: effect 7 stands twice"_s,
                    u"Slides.dat, record 3: slide 1 stands twice"_s,
                    u"SlideShowSoundTracks.dat, record 3: sound track 1 of show 1 stands twice"_s,
                    u"SlideShowSoundTracks.dat, record 4: sound track 1 of show 2 stands twice"_s});
}

TEST_F(NebctlTest, CheckFindsAnAlbumThatStandsTwice) {
    ChangeRecords("Albums.dat", [](QByteArray& Bytes) { Bytes += Bytes.left(86); });
    ExpectFindings({u"Albums.dat, record 3: album 1 stands twice"_s});
}

TEST_F(NebctlTest, CheckFindsTwoShowsOfOneNumberInDifferentAlbums) {
    const auto Engine = OpenEngine(Dir.Path());
    Engine->Albums[1]->SlideShows[0]->SlideShowID = 1;
    Engine->FinalizeDB();
    ExpectFindings({u"SlideShows.dat, record 2: show 1 stands twice"_s});
}

TEST_F(NebctlTest, CheckFindsCountersThatStandTwice) {
    ChangeRecords("NextIDs.dat", [](QByteArray& Bytes) { Bytes += Bytes; });
    ExpectFindings({u"NextIDs.dat: 24 bytes are no whole number of records of 12 bytes"_s});
}

TEST_F(NebctlTest, CheckFindsOddTailsAndMissingFiles) {
    ChangeRecords("EffectStats.dat", [](QByteArray& Bytes) { Bytes += "abc"; });
    ChangeRecords("NextIDs.dat", [](QByteArray& Bytes) { Bytes += '\0'; });
    DeleteFile(Dir / "Properties.dat");
    ExpectFindings({u"Properties.dat: the file is missing"_s,
                    u"EffectStats.dat: 17 bytes are no whole number of records of 14 bytes"_s,
                    u"NextIDs.dat: 13 bytes are no whole number of records of 12 bytes"_s});
}

TEST_F(NebctlTest, CheckFindsDetailsWithoutSlide) {
    ChangeRecords("SlideShowDetails.dat", [](QByteArray& Bytes) { Bytes[8] = 2; });
    ExpectFindings(
        {u"SlideShowDetails.dat, record 1: place 1 of show 1 shows slide 2, which is not "
         "in album 1"_s});
}

TEST_F(NebctlTest, CheckPassesOverDeletedRecords) {
    ChangeRecords("SlideShowDetails.dat", [](QByteArray& Bytes) {
        Bytes[8] = 99;
        Bytes[96] = 1;
    });
    ExpectFindings({});
}

TEST_F(NebctlTest, CheckFindsCountersThatWouldGiveAKeyOutTwice) {
    ChangeRecords("NextIDs.dat", [](QByteArray& Bytes) { Bytes[4] = 2; });
    ExpectFindings({u"NextIDs.dat: NextSlideID is 2, but 2 is taken already"_s});
}

TEST_F(NebctlTest, CheckFindsAnUnfinishedWrite) {
    BreakAWrite();
    ExpectFindings(
        {u"the last write did not come to its end; the next start of the program will "
         "complete it"_s});
    WriteFile(JournalPath(Dir.Path()), "torn");
    EXPECT_TRUE(Nebctl({u"check"_s, Dir.Path()}).Out.startsWith(u"a write was given up"));
}

TEST_F(NebctlTest, CheckComparesTheFilesWithTheirSumsWhenAskedTo) {
    WriteFile(Dir / "README.txt", "for people");
    WriteFile(Dir / "QLM.ini", "Timeout=5\n");
    InstanceLock Lock(DatabaseLockPath(Dir.Path()));
    ASSERT_TRUE(Lock.TryLock());
    ASSERT_TRUE(WriteSums(Dir.Path()));
    EXPECT_FALSE(ReadFile(Dir / "Sums.sha256").contains("InUse.lock")) << "it comes and goes";
    const QStringList Words = {u"check"_s, Dir.Path(), u"--files"_s};
    const Outcome Clean = Nebctl(Words);
    EXPECT_EQ(Clean.Code, ExitDone);
    EXPECT_EQ(Clean.Out + Clean.Err, u"");
    WriteFile(Dir / "Albums/1/Slides/00000001.jpg", "pictvre");
    WriteFile(Dir / "README.txt", "");
    DeleteFile(Dir / "QLM.ini");
    const QStringList Before = Everything(Dir.Path());
    const Outcome Damaged = Nebctl(Words);
    EXPECT_EQ(Damaged.Code, ExitFound);
    EXPECT_EQ(Damaged.Out,
              u"changed: Albums/1/Slides/00000001.jpg\n"
              "missing: QLM.ini\n"
              "changed: README.txt\n"_s);
    EXPECT_EQ(Everything(Dir.Path()), Before);
    EXPECT_EQ(Nebctl({u"check"_s, Dir.Path()}).Code, ExitDone) << "only when asked to";
}

TEST_F(NebctlTest, CheckNamesWhatCannotBeReadAmongTheFiles) {
    ASSERT_TRUE(WriteSums(Dir.Path()));
    DeleteFile(Dir / "Albums/1/Slides/00000001Small.bmp");
    MakeDirs(Dir / "Albums/1/Slides/00000001Small.bmp");
    const Outcome Result = Nebctl({u"check"_s, u"--files"_s, Dir.Path()});
    EXPECT_EQ(Result.Code, ExitFound);
    EXPECT_TRUE(Result.Out.endsWith(u"\ncannot be read: Albums/1/Slides/00000001Small.bmp\n"))
        << Result.Out.toStdString();
}

TEST_F(NebctlTest, CheckWithSenselessSumsDoesNotCallTheFilesSound) {
    WriteFile(Dir / "Sums.sha256", "garbage\n");
    const Outcome Garbage = Nebctl({u"check"_s, Dir.Path(), u"--files"_s});
    EXPECT_EQ(Garbage.Code, ExitFailed);
    EXPECT_TRUE(Garbage.Err.contains(u"Line 1 cannot be understood."_s));
}

TEST_F(NebctlTest, ComparingShowsItsProgressOnATerminal) {
    ASSERT_TRUE(WriteSums(Dir.Path()));
    const Outcome Shown = Nebctl({u"check"_s, Dir.Path(), u"--files"_s}, true);
    EXPECT_TRUE(Shown.Err.contains(u"Comparing 100 %")) << Shown.Err.toStdString();
    EXPECT_TRUE(Shown.Err.endsWith(u"\r\033[K"));
    EXPECT_EQ(Shown.Out, u"");
}

// Moves the database to where the program keeps it below a documents folder.
TEST_F(NebctlTest, TheDocumentsFolderAboveADatabaseWillDo) {
    TempFolder Documents;
    const QString Home = Documents / "NEB/NEB Slide Show/";
    const QString Records = Nebctl({u"dump"_s, Dir.Path()}).Out;
    MakeDirs(Documents / "NEB");
    ASSERT_TRUE(QFile::rename(Dir.Path().chopped(1), Home.chopped(1)));
    for (const QString& Named : {Documents.Path(), Documents / "NEB", Home}) {
        EXPECT_EQ(Nebctl({u"dump"_s, Named}).Out, Records) << Named.toStdString();
        EXPECT_EQ(Nebctl({u"rewrite"_s, Named}).Code, ExitDone);
    }
    WriteFile(Documents / "README.txt", "for people");
    ASSERT_TRUE(WriteSums(Documents.Path()));
    EXPECT_EQ(Nebctl({u"check"_s, Documents.Path(), u"--files"_s}).Out, u"");
    WriteFile(Documents / "README.txt", "for nobody");
    EXPECT_EQ(Nebctl({u"check"_s, Documents.Path(), u"--files"_s}).Out, u"changed: README.txt\n");
    ASSERT_TRUE(QFile::rename(Home.chopped(1), Dir.Path().chopped(1)));
}

TEST_F(NebctlTest, ASettingThatLeadsNowhereIsToldAndNothingIsMadeThere) {
    TempFolder Documents;
    MakeDirs(Documents / "NEB/NEB Slide Show");
    WriteFile(Documents / "NEB/NEB Slide Show/QLM.ini", "[General]\nDBPath=/nowhere/at/all\n");
    const QStringList Before = Everything(Documents.Path());
    const Outcome Result =
        Nebctl({u"import"_s, Documents.Path(), Dir.Path(), u"--album"_s, u"x"_s});
    EXPECT_EQ(Result.Code, ExitFailed);
    EXPECT_TRUE(Result.Err.contains(u"There is no directory /nowhere/at/all/, where "_s))
        << Result.Err.toStdString();
    EXPECT_EQ(Everything(Documents.Path()), Before);
}

TEST_F(NebctlTest, RewriteDropsOrphansWhenToldToGoOnAndLeavesACleanDatabase) {
    const auto Before = AllRecords(Dir.Path());
    EXPECT_EQ(Nebctl({u"rewrite"_s, Dir.Path()}).Code, 0);
    EXPECT_EQ(AllRecords(Dir.Path()), Before);
    ChangeRecords("Slides.dat",
                  [](QByteArray& Bytes) { Bytes += QByteArray(602, 9) + Hex("0000"); });
    EXPECT_EQ(Nebctl({u"check"_s, Dir.Path()}).Code, 1);
    const auto Torn = AllRecords(Dir.Path());
    EXPECT_EQ(Nebctl({u"rewrite"_s, Dir.Path()}).Code, 2);
    EXPECT_EQ(AllRecords(Dir.Path()), Torn);
    EXPECT_EQ(Nebctl({u"rewrite"_s, Dir.Path(), u"--go-on"_s}).Code, 0);
    auto After = AllRecords(Dir.Path());
    After["NextIDs.dat"] = Before.at("NextIDs.dat");  // above the number of the orphan
    EXPECT_EQ(After, Before);
}

TEST_F(NebctlTest, RewriteCompletesABrokenOffWrite) {
    BreakAWrite();
    EXPECT_EQ(Nebctl({u"rewrite"_s, Dir.Path()}).Code, 0);
    EXPECT_EQ(Dump()["Albums"].toArray()[0].toObject()["AlbumName"].toString(), u"changed");
    ExpectFindings({});
}

TEST_F(NebctlTest, RewriteLeavesAReadOnlyDatabaseAlone) {
    QFile::setPermissions(Dir / "NextIDs.dat", QFileDevice::ReadOwner);
    const QStringList Before = Everything(Dir.Path());
    const Outcome Result = Nebctl({u"rewrite"_s, Dir.Path()});
    EXPECT_EQ(Result.Code, 2);
    EXPECT_TRUE(Result.Err.contains(u"read-only"));
    EXPECT_EQ(Everything(Dir.Path()), Before);
}

TEST_F(NebctlTest, RewriteRefusesADirectoryWithoutCounters) {
    DeleteFile(Dir / "NextIDs.dat");
    const QStringList Before = Everything(Dir.Path());
    const Outcome Result = Nebctl({u"rewrite"_s, Dir.Path()});
    EXPECT_EQ(Result.Code, 2);
    EXPECT_TRUE(Result.Err.contains(u"NextIDs.dat is missing."));
    EXPECT_EQ(Everything(Dir.Path()), Before);
    TempFolder Empty;
    EXPECT_TRUE(Nebctl({u"rewrite"_s, Empty.Path()}).Err.contains(u"There is no database"));
    EXPECT_TRUE(ListDir(Empty.Path()).empty());
}

TEST_F(NebctlTest, ARecordFileTooLargeForTheMemoryIsAnErrorAndNoCrash) {
    if (RunsUnderSanitizer)
        GTEST_SKIP() << "the sanitizer ends the process where memory would only be refused";
    ASSERT_TRUE(QFile::resize(Dir / u"EffectStats.dat"_s, qint64{1} << 43));
    const Outcome Result = Nebctl({u"dump"_s, Dir.Path()});
    EXPECT_EQ(Result.Code, ExitFailed);
    EXPECT_TRUE(Result.Err.contains(u"memory"_s)) << Result.Err.toStdString();
}

TEST_F(NebctlTest, AFullDiskIsReportedOnErr) {
    SetHostWatcher([](HostStep Step, const QString&, qint64& Length) {
        if (Step == HostStep::Write) Length = 0;
    });
    const Outcome Result = Nebctl({u"rewrite"_s, Dir.Path()});
    SetHostWatcher({});
    EXPECT_EQ(Result.Code, 2);
    EXPECT_TRUE(Result.Err.startsWith(u"nebctl: The file cannot be written."));
    EXPECT_TRUE(Result.Err.contains(u"Records.journal"));
    EXPECT_EQ(Result.Out, u"");
}

TEST_F(NebctlTest, WrongUsageIsTwo) {
    EXPECT_EQ(Nebctl({}).Code, 2);
    EXPECT_TRUE(Nebctl({}).Err.contains(u"Usage:"));
    for (const char* Name : {"dump", "check", "rewrite", "history", "adopt"}) {
        const QString Command = QLatin1String(Name);
        EXPECT_EQ(Nebctl({Command}).Code, 2);
        EXPECT_EQ(Nebctl({Command, Dir.Path(), Dir.Path()}).Code, 2);
        EXPECT_EQ(Nebctl({Command, u"--unknown"_s}).Code, 2);
        const Outcome Result = Nebctl({Command, Dir / "nowhere"});
        EXPECT_EQ(Result.Code, 2);
        EXPECT_TRUE(Result.Err.contains(u"nowhere"));
        EXPECT_EQ(Result.Out, u"");
    }
    const std::pair<QString, QString> WithTwoPlaces[] = {
        {u"import"_s, Dir.Path()}, {u"transfer"_s, Dir.Path()}, {u"print"_s, Dir / "out.pdf"}};
    for (const auto& [Command, Second] : WithTwoPlaces) {
        EXPECT_EQ(Nebctl({Command}).Code, 2);
        EXPECT_EQ(Nebctl({Command, Dir.Path()}).Code, 2);
        const Outcome Result = Nebctl({Command, Dir / "nowhere", Second, u"--album"_s, u"Fürth"_s});
        EXPECT_EQ(Result.Code, 2);
        EXPECT_TRUE(Result.Err.contains(u"nowhere"));
        EXPECT_EQ(Result.Out, u"");
    }
    EXPECT_EQ(Nebctl({u"restore"_s}).Code, 2);
    EXPECT_EQ(Nebctl({u"restore"_s, Dir.Path()}).Code, 2);
    EXPECT_TRUE(Nebctl({u"restore"_s, Dir / "nowhere", u"1"_s}).Err.contains(u"nowhere"));
    EXPECT_TRUE(Nebctl({u"frobnicate"_s}).Err.contains(u"frobnicate"));
}

TEST_F(NebctlTest, HelpIsThereForTheProgramAndForEachCommand) {
    const Outcome All = Nebctl({u"--help"_s});
    EXPECT_EQ(All.Code, 0);
    EXPECT_EQ(All.Err, u"");
    for (const Command& Row : Commands()) {
        EXPECT_TRUE(All.Out.contains(QLatin1String(Row.Summary)));
        const Outcome One = Nebctl({QLatin1String(Row.Name), u"--help"_s});
        EXPECT_EQ(One.Code, 0);
        EXPECT_TRUE(One.Out.startsWith(u"Usage: nebctl "_s + QLatin1String(Row.Name)));
    }
}

// Each part of effects has its own row there; this is what people read of them.
TEST_F(NebctlTest, HelpOfEffectsTellsOfEachOfItsParts) {
    const QString Out = Nebctl({u"effects"_s, u"--help"_s}).Out;
    EXPECT_EQ(
        "Usage: nebctl effects list | timings [FILE] | render ... | sheet OUT\n\n"
        "  effects list\n"
        "      Prints number, name, engine and level of each transition as JSON; the level (1 "
        "light\n"
        "      to 3 heavy) follows from the times beside the program.\n"
        "  effects timings [FILE] [--size WxH] [--runs N]\n"
        "      Measures how long each transition takes, at 3840x2160 unless told otherwise, and\n"
        "      writes the times as EffectStats.txt holds them, the shortest of 3 runs, to FILE or "
        "the\n"
        "      output. This takes ten minutes. Then tells how many of them keep within the 16.7 "
        "ms that\n"
        "      a frame has at 60 refreshes a second. A show draws at most one frame a refresh, on "
        "all\n"
        "      cores; one that comes more than one refresh after its time is late, and the end of "
        "the\n"
        "      show says how many were.\n"
        "  effects render N OLD NEW PROGRESS OUT\n"
        "      Draws one frame of transition N from the picture OLD to NEW, PROGRESS being 0 to "
        "1,\n"
        "      at the size of OLD, into the .png or .jpg file OUT.\n"
        "  effects sheet OUT [--pictures OLD NEW]\n"
        "      Draws all transitions half way, with their names, into the .png or .jpg file OUT.\n",
        Out.toStdString());
    EXPECT_TRUE(Nebctl({u"effects"_s}).Err.contains(u"One of list, timings, render and sheet is"));
}

TEST_F(NebctlTest, ProgressGoesToATerminalAloneAndVanishes) {
    const Outcome Shown = Nebctl({u"check"_s, Dir.Path()}, true);
    EXPECT_TRUE(Shown.Err.contains(u"Checking 50 %"));
    EXPECT_TRUE(Shown.Err.endsWith(u"\r\033[K"));
    EXPECT_EQ(Shown.Out, u"");
}

TEST_F(NebctlTest, RunsAsAProgramWithoutADisplay) {
    const auto Start = [&](const QStringList& Arguments, QProcess& Process) {
        auto Environment = QProcessEnvironment::systemEnvironment();
        for (const char* Name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            Environment.remove(QLatin1String(Name));
        Process.setProcessEnvironment(Environment);
        Process.start(QStringLiteral(NEB_BINARY_DIR "/bin/nebctl"), Arguments);
        return Process.waitForFinished() ? Process.exitCode() : -1;
    };
    QProcess DumpIt, CheckIt, Wrong;
    EXPECT_EQ(Start({u"dump"_s, Dir.Path()}, DumpIt), 0);
    EXPECT_EQ(DumpIt.readAllStandardOutput(), Nebctl({u"dump"_s, Dir.Path()}).Out.toUtf8());
    DeleteFile(Dir / "Albums/1/Slides/00000001.jpg");
    EXPECT_EQ(Start({u"check"_s, Dir.Path()}, CheckIt), 1);
    EXPECT_TRUE(CheckIt.readAllStandardOutput().startsWith("the picture of slide 1"));
    EXPECT_EQ(Start({}, Wrong), 2);
    EXPECT_TRUE(Wrong.readAllStandardOutput().isEmpty());
}

// Pictures to import, next to a database directory.
class NebctlImportTest : public ::testing::Test {
  protected:
    NebctlImportTest() {
        MakeDirs(Pictures());
        MakeDirs(Pictures() + u"below/"_s);
        MakeDirs(Database());
        for (const QString& Name : {u"a.png"_s, u"Käthe's.png"_s, u"below/c.png"_s})
            WritePicture(Pictures() + Name);
    }
    QString Pictures() const { return Dir / u"pictures/"_s; }
    QString Database() const { return Dir / u"database/"_s; }
    static void WritePicture(const QString& Path) {
        QImage Picture(1025, 800, QImage::Format_RGB32);
        Picture.fill(Qt::darkGreen);
        QByteArray Bytes;
        QBuffer Buffer(&Bytes);
        Buffer.open(QIODevice::WriteOnly);
        Picture.save(&Buffer, "PNG");
        WriteFile(Path, Bytes);
    }
    Outcome Import(const QStringList& More) {
        return Nebctl(QStringList{u"import"_s, Database(), Pictures(), u"--album"_s, u"New"_s} +
                      More);
    }

    TempFolder Dir;
};

TEST_F(NebctlImportTest, WhatTheProgramHasMadeItReadsDirectlyLater) {
    QProcess Process;
    Process.start(QStringLiteral(NEB_BINARY_DIR "/bin/nebctl"),
                  {u"import"_s, Database(), Pictures(), u"--album"_s, u"Garden"_s});
    ASSERT_TRUE(Process.waitForFinished());
    ASSERT_EQ(0, Process.exitCode()) << Process.readAllStandardError().toStdString();
    const QByteArray Jpeg = ReadFile(SlidesFolder(Database(), 1) + u"00000001.jpg"_s);
    EXPECT_FALSE(OwnPicture(Jpeg, {}));
    KeepOwnSumsIn(OwnSumsFolder());
    EXPECT_TRUE(OwnPicture(Jpeg, {}));
    KeepOwnSumsIn({});
}

TEST_F(NebctlImportTest, MakesTheAlbumAndTheShowInAnEmptyDirectory) {
    const Outcome Made = Import({u"--recurse"_s, u"--show"_s, u"First"_s});
    EXPECT_EQ(Made.Code, ExitDone) << Made.Err.toStdString();
    EXPECT_EQ(Made.Out, u"3 pictures imported into the album \"New\".\n"_s);
    const auto Engine = OpenEngine(Database());
    ASSERT_EQ(Engine->Albums.size(), 1U);
    const clsNEBAlbum& Album = *Engine->Albums[0];
    ASSERT_EQ(Album.Slides.size(), 3U);
    EXPECT_EQ(Album.Slides[1]->SlideText, u"K\u00e4the\u2019s"_s);
    ASSERT_EQ(Album.SlideShows.size(), 1U);
    EXPECT_EQ(Album.SlideShows[0]->Details.size(), 3U);
    EXPECT_EQ(Album.SlideShows[0]->Details[2]->SlideSeq, 3);
    const QString Stored = SlidesFolder(Database(), Album.AlbumID) + u"00000001.jpg"_s;
    EXPECT_EQ(QImage::fromData(ReadFile(Stored)).size(), QSize(984, 768));
    EXPECT_EQ(Nebctl({u"check"_s, Database()}).Code, ExitDone);
}

TEST_F(NebctlImportTest, ADocumentsFolderGetsNoSecondDatabaseThatTheProgramNeverSees) {
    const QString Home = Database() + u"NEB/NEB Slide Show/"_s;
    MakeDirs(Home);
    WriteFile(Home + u"QLM.ini"_s, "Timeout=5\n");
    for (const size_t Slides : {2U, 4U}) {
        EXPECT_EQ(Import({}).Code, ExitDone);
        EXPECT_EQ(ListDir(Database()).size(), 1U) << "beside the folder NEB nothing was made";
        ASSERT_EQ(OpenEngine(Home)->Albums.size(), 1U);
        EXPECT_EQ(OpenEngine(Home)->Albums[0]->Slides.size(), Slides);
    }
    EXPECT_EQ(Nebctl({u"check"_s, Home}).Code, ExitDone);
}

TEST_F(NebctlImportTest, TheSettingsOfADocumentsFolderLeadToItsDatabase) {
    const QString Home = Database() + u"NEB/NEB Slide Show/"_s;
    MakeDirs(Home + u"albums"_s);
    WriteFile(Home + u"QLM.ini"_s, "[General]\nDBPath=albums\n");
    EXPECT_EQ(Import({}).Code, ExitDone);
    EXPECT_EQ(OpenEngine(Home + u"albums/"_s)->Albums.size(), 1U);
    EXPECT_FALSE(FileExists(Home + u"NextIDs.dat"_s));
}

// The folder of pictures is taken as it is named, whatever lies below it.
TEST_F(NebctlImportTest, ThePicturesOfADocumentsFolderAreThoseInIt) {
    MakeDirs(Pictures() + u"NEB/NEB Slide Show"_s);
    EXPECT_EQ(Import({}).Out, u"2 pictures imported into the album \"New\".\n"_s);
}

TEST_F(NebctlImportTest, WithoutRecurseTheFoldersBelowAreLeftAlone) {
    EXPECT_EQ(Import({}).Out, u"2 pictures imported into the album \"New\".\n"_s);
}

TEST_F(NebctlImportTest, AddsToAnAlbumThatIsThere) {
    Import({});
    EXPECT_EQ(Import({}).Code, ExitDone);
    const auto Engine = OpenEngine(Database());
    ASSERT_EQ(Engine->Albums.size(), 1U);
    EXPECT_EQ(Engine->Albums[0]->Slides.size(), 4U);
}

// The records have no letter for some of them.
TEST_F(NebctlImportTest, FindsAnAlbumAndAShowByTheNamesThatWereStored) {
    const QString Lodz = u"\u0141\u00f3d\u017a"_s;
    const auto ImportInto = [this](const QString& Album, const QString& Show) {
        return Nebctl({u"import"_s, Database(), Pictures(), u"--album"_s, Album, u"--show"_s, Show})
            .Code;
    };
    EXPECT_EQ(ImportInto(Lodz, Lodz), ExitDone);
    EXPECT_EQ(ImportInto(Lodz, u"Second"_s), ExitDone);
    EXPECT_EQ(ImportInto(Lodz.toUpper(), Lodz.toLower()), ExitFailed) << "that show is there";
    const auto Engine = OpenEngine(Database());
    ASSERT_EQ(Engine->Albums.size(), 1U);
    EXPECT_EQ(Engine->Albums[0]->Slides.size(), 4U);
    EXPECT_EQ(Engine->Albums[0]->SlideShows.size(), 2U);
}

TEST_F(NebctlImportTest, APictureThatCannotBeReadIsNamedAndLeftOut) {
    WriteFile(Pictures() + u"bad.jpg"_s, "this is no picture");
    const Outcome Made = Import({});
    EXPECT_EQ(Made.Code, ExitDone);
    EXPECT_TRUE(Made.Err.contains(u"bad.jpg"_s));
    EXPECT_TRUE(Made.Out.startsWith(u"2 pictures"_s));
}

TEST_F(NebctlImportTest, AFullDiskLeavesEverythingAsItWas) {
    Import({});
    const QStringList Before = Everything(Database());
    qint64 Room = 4000;
    SetHostWatcher([&Room](HostStep Step, const QString&, qint64& Length) {
        if (Step != HostStep::Write) return;
        Length = std::min(Length, Room);
        Room -= Length;
    });
    const Outcome Failed = Import({u"--show"_s, u"First"_s});
    SetHostWatcher({});
    EXPECT_EQ(Failed.Code, ExitFailed);
    EXPECT_TRUE(Failed.Err.contains(u"cannot be written"_s));
    EXPECT_TRUE(Everything(Database()) == Before);
}

TEST_F(NebctlImportTest, AFailureAtTheSecondPictureTakesTheFirstBack) {
    Import({});
    const QStringList Before = Everything(Database());
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Write && Path.contains(u"00000004"_s)) throw Fault(u"no"_s, Path);
    });
    EXPECT_EQ(Import({}).Code, ExitFailed);
    SetHostWatcher({});
    EXPECT_TRUE(Everything(Database()) == Before);
}

TEST_F(NebctlImportTest, NothingIsChangedWhenNoPictureCanBeRead) {
    for (const QString& Name : ListMask(Pictures() + u"*.*"_s))
        WriteFile(Pictures() + Name, "this is no picture");
    const Outcome Failed = Import({});
    EXPECT_EQ(Failed.Code, ExitFailed);
    EXPECT_TRUE(Failed.Err.contains(u"No picture in "_s));
    EXPECT_EQ(OpenEngine(Database())->NextAlbumID, 1);
    EXPECT_TRUE(ListDir(Database() + u"Albums/"_s).empty());
}

// The records are in their places, and the last step of the write fails.
TEST_F(NebctlImportTest, AWriteThatFailsBehindTheRecordsKeepsThePictures) {
    bool AreWritten = false;
    SetHostWatcher([&](HostStep Step, const QString& Path, qint64&) {
        AreWritten |= Step == HostStep::Delete && Path == JournalPath(Database());
        if (AreWritten && Step == HostStep::SyncDir) throw Fault(u"no"_s, Path);
    });
    EXPECT_EQ(Import({}).Code, ExitFailed);
    SetHostWatcher({});
    ASSERT_TRUE(AreWritten);
    EXPECT_EQ(OpenEngine(Database())->Albums[0]->Slides.size(), 2U);
    EXPECT_EQ(Nebctl({u"check"_s, Database()}).Code, ExitDone);
}

// What an earlier session has left is there still for the next start.
TEST_F(NebctlImportTest, AFailedImportLeavesTheChangesThatACrashHasLeft) {
    Import({});
    {
        const auto Crashed = OpenEngine(Database());
        Crashed->KeepSession();
        Changes Door(*Crashed);
        ASSERT_TRUE(Door.RenameAlbum(1, u"Renamed"_s));
        ASSERT_TRUE(Crashed->IsSessionStored());
    }
    const QByteArray Before = ReadFile(SessionJournalPath(Database()));
    for (const QString& Name : ListMask(Pictures() + u"*.*"_s))
        WriteFile(Pictures() + Name, "this is no picture");
    EXPECT_EQ(Import({}).Code, ExitFailed);
    EXPECT_EQ(ReadFile(SessionJournalPath(Database())), Before);
    const auto Engine = OpenEngine(Database());
    ASSERT_EQ(Engine->Albums.size(), 1U);
    EXPECT_EQ(Engine->Albums[0]->AlbumName, u"Renamed"_s);
    EXPECT_EQ(Engine->Albums[0]->Slides.size(), 2U);
}

// Nobody looks for what he has not been told of.
TEST_F(NebctlImportTest, ChangesThatGoWithOtherRecordsAreToldOf) {
    Import({});
    {
        const auto Crashed = OpenEngine(Database());
        Crashed->KeepSession();
        ASSERT_TRUE(Changes(*Crashed).RenameAlbum(1, u"Renamed"_s));
    }
    QFile Albums(Database() + u"Albums.dat"_s);
    ASSERT_TRUE(Albums.open(QIODevice::ReadWrite));
    Albums.seek(4);
    Albums.write("B");
    Albums.close();
    for (const RecordFile File : AllRecordFiles)  // as a whole backup that was put back
        WriteFile(RecordPath(Database(), File), ReadFile(RecordPath(Database(), File)));
    const Outcome Rewritten = Nebctl({u"rewrite"_s, Database()});
    EXPECT_EQ(Rewritten.Code, ExitDone);
    EXPECT_TRUE(Rewritten.Err.contains(u"Temp/Journal/Session "_s)) << Rewritten.Err.toStdString();
}

TEST_F(NebctlImportTest, ChangesThatWereBroughtBackAreToldOf) {
    Import({});
    {
        const auto Crashed = OpenEngine(Database());
        Crashed->KeepSession();
        ASSERT_TRUE(Changes(*Crashed).RenameAlbum(1, u"Renamed"_s));
    }
    EXPECT_TRUE(Nebctl({u"rewrite"_s, Database()}).Err.contains(u"brought back: 1 change of"_s));
    EXPECT_TRUE(Nebctl({u"rewrite"_s, Database()}).Err.isEmpty()) << "it is told of once";
}

TEST_F(NebctlImportTest, WithoutSoundCountersThePicturesThatAreThereAreLeftAlone) {
    Import({});
    for (const QByteArray Counters : {"", "\2\0\0\0"}) {
        WriteFile(Database() + u"NextIDs.dat"_s, Counters);
        const QStringList Before = Everything(Database());
        EXPECT_TRUE(Import({}).Err.contains(u"NextIDs.dat"_s));
        EXPECT_TRUE(Everything(Database()) == Before);
    }
    DeleteFile(Database() + u"NextIDs.dat"_s);
    const QStringList Before = Everything(Database());
    EXPECT_EQ(Import({}).Code, ExitFailed);
    EXPECT_TRUE(Everything(Database()) == Before);
}

TEST_F(NebctlImportTest, AWriteThatStopsBehindItsJournalKeepsThePicturesForTheNextStart) {
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Write && Path.endsWith(u"Slides.dat")) throw Fault(u"no"_s, Path);
    });
    const Outcome Failed = Import({});
    SetHostWatcher({});
    EXPECT_EQ(Failed.Code, ExitFailed);
    EXPECT_TRUE(Failed.Err.contains(u"nebctl rewrite"_s));
    EXPECT_EQ(Nebctl({u"rewrite"_s, Database()}).Code, ExitDone);
    EXPECT_EQ(OpenEngine(Database())->Albums[0]->Slides.size(), 2U);
    EXPECT_EQ(Nebctl({u"check"_s, Database()}).Code, ExitDone);
}

TEST_F(NebctlImportTest, AShowNameThatIsTooLongIsRefused) {
    EXPECT_EQ(Import({u"--show"_s, QString(81, u'x')}).Code, ExitFailed);
    EXPECT_EQ(Import({u"--show"_s, QString(80, u'x')}).Code, ExitDone);
}

TEST_F(NebctlImportTest, ADatabaseInUseOrReadOnlyIsLeftAlone) {
    Import({});
    {
        InstanceLock Program(Database() + u"InUse.lock"_s);
        ASSERT_TRUE(Program.TryLock());
        EXPECT_TRUE(Import({}).Err.contains(u"in use"_s));
        EXPECT_TRUE(Nebctl({u"rewrite"_s, Database()}).Err.contains(u"in use"_s));
    }
    QFile::setPermissions(Database() + u"NextIDs.dat"_s, QFileDevice::ReadOwner);
    EXPECT_TRUE(Import({}).Err.contains(u"read-only"_s));
}

TEST_F(NebctlImportTest, ADatabaseInUseOnAnotherMachineIsTakenOverOnlyWhereThatIsSaid) {
    Import({});
    Import({});  // behind which there is an earlier state
    const QByteArray Left = "7\nneb-slide-show\nthe-laptop\nanother-machine\nanother-start\n";
    for (const QStringList& Words :
         {QStringList{u"rewrite"_s, Database()}, QStringList{u"restore"_s, Database(), u"1"_s},
          QStringList{u"import"_s, Database(), Pictures(), u"--album"_s, u"Other"_s},
          QStringList{u"transfer"_s, Database(), Database(), u"--album"_s, u"Other"_s, u"--to"_s,
                      u"Third"_s}}) {
        WriteFile(DatabaseLockPath(Database()), Left);
        const Outcome Refused = Nebctl(Words);
        EXPECT_EQ(Refused.Code, ExitFailed);
        EXPECT_TRUE(Refused.Err.contains(u"in use on the computer \"the-laptop\""_s))
            << qPrintable(Refused.Err);
        EXPECT_EQ(Left, ReadFile(DatabaseLockPath(Database())));
        const Outcome Done = Nebctl(Words + QStringList{u"--take-over"_s});
        EXPECT_NE(Done.Code, ExitFailed) << qPrintable(Words[0] + u' ' + Done.Err);
        EXPECT_FALSE(FileExists(DatabaseLockPath(Database())));
    }
}

TEST_F(NebctlImportTest, WrongWordsAreRefused) {
    for (const QStringList& Words :
         {QStringList{u"import"_s}, QStringList{u"import"_s, Database(), Pictures()},
          QStringList{u"import"_s, Database(), Pictures(), u"--album"_s},
          QStringList{u"import"_s, Database(), Dir / u"gone"_s, u"--album"_s, u"x"_s},
          QStringList{u"import"_s, Database(), Pictures(), u"--album"_s, QString(81, u'x')}}) {
        const Outcome Refused = Nebctl(Words);
        EXPECT_EQ(Refused.Code, ExitFailed);
        EXPECT_FALSE(Refused.Err.isEmpty());
    }
    EXPECT_TRUE(ListDir(Database()).empty());
}

TEST_F(NebctlImportTest, AShowOfThatNameIsNotMadeTwice) {
    Import({u"--show"_s, u"First"_s});
    const QStringList Before = Everything(Database());
    EXPECT_EQ(Import({u"--show"_s, u"FIRST"_s}).Code, ExitFailed);
    EXPECT_TRUE(Everything(Database()) == Before);
}

}  // namespace
}  // namespace neb
