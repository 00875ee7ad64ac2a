// The lists of check sums that albums keep: what stands in them after every store and delete, and
// what an interruption between two steps leaves.
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <random>

#include "db/AlbumSums.h"
#include "db/Changes.h"
#include "db/Fixtures.h"
#include "db/modAlbumFiles.h"
#include "db/modClearRecords.h"
#include "fuzz/SumsFuzzEntry.h"
#include "harness/MemoryFolder.h"
#include "support/Fault.h"
#include "support/files/modHostFilesCopy.h"

namespace neb {
namespace {

using namespace harness;

// Of "one", "two" and "three".
constexpr char SumOne[] = "7692c3ad3540bb803c020b3aee66cd8887123234ea0c6e7143c0add73ff431ed";
constexpr char SumTwo[] = "3fc4ccfe745870e2c0d99f71f30ff0656c8dedd41cc1d7d3d376b0dbe685e2f3";
constexpr char SumThree[] = "8b5b9db0c13db24256c829aa364aa90c6d2eba318b9232a4ab9313b954d3555f";

class AlbumSums : public ::testing::Test {
  protected:
    AlbumSums() {
        MakeDirs(Slides);
        MakeDirs(Sounds);
        BeginAlbumSums(Album);
    }
    QByteArray List() { return ReadFile(AlbumSumsPath(Album)); }
    // What the list says, remarks aside.
    QByteArray Said() {
        QByteArray Text;
        for (const ListedSum& Each : SumsIn(List())) Text += SumLine(Each);
        return Text;
    }
    static QByteArray Line(const char* Sum, const char* Name) {
        return QByteArray(Sum) + "  " + Name + "\n";
    }
    // What the host's own tool says of the list.
    std::pair<int, QByteArray> HostTool() {
        QProcess Tool;
        Tool.setWorkingDirectory(Album);
        Tool.setProcessChannelMode(QProcess::MergedChannels);
        Tool.start(u"sha256sum"_s, {u"--strict"_s, u"-c"_s, u"Sums.sha256"_s});
        EXPECT_TRUE(Tool.waitForFinished());
        return {Tool.exitCode(), Tool.readAll()};
    }
    // Fails at the Nth step of the kind.
    static void FailAt(HostStep Kind, const QString& Ending) {
        SetHostWatcher([=](HostStep Step, const QString& Path, qint64&) {
            if (Step == Kind && Path.endsWith(Ending)) throw Fault(u"no"_s, Path);
        });
    }
    ~AlbumSums() override { SetHostWatcher({}); }

    MemoryFolder Dir;
    const QString Album = AlbumFolder(Dir.Path(), 1);
    const QString Slides = SlidesFolder(Dir.Path(), 1), Sounds = SoundTracksFolder(Dir.Path(), 1);
    const QString One = Slides + u"00000001.jpg"_s;
};

TEST_F(AlbumSums, AreThoseThatTheHostsOwnToolReads) {
    StoreNew(One, "one");
    StoreAnew(Sounds + u"00000001_1.mp3"_s, "two");
    EXPECT_EQ(Line(SumOne, "Slides/00000001.jpg") + Line(SumTwo, "SoundTracks/00000001_1.mp3"),
              List());
    EXPECT_EQ(std::pair(0, QByteArray("Slides/00000001.jpg: OK\nSoundTracks/00000001_1.mp3: OK\n")),
              HostTool());
    StoreAnew(One, "three");
    DropStored({Sounds + u"00000001_1.mp3"_s});
    EXPECT_EQ(Line(SumThree, "Slides/00000001.jpg"), Said());
    EXPECT_TRUE(List().startsWith('#'));
    EXPECT_EQ(std::pair(0, QByteArray("Slides/00000001.jpg: OK\n")), HostTool()) << "with remarks";
    WriteFile(One, "thre3");
    EXPECT_EQ(1, HostTool().first);
}

TEST_F(AlbumSums, ANewFileHasItsLineBeforeItHasItsName) {
    QByteArray ListThen;
    SetHostWatcher([&](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Rename && Path == One) ListThen = List();
    });
    StoreNew(One, "one");
    EXPECT_EQ(Line(SumOne, "Slides/00000001.jpg"), ListThen);
    EXPECT_FALSE(FileExists(One + u".new"_s));
}

TEST_F(AlbumSums, AFileThatTakesAPlaceHasAFlushedSecondLineBefore) {
    StoreNew(One, "one");
    QStringList Steps;
    SetHostWatcher([&](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Rename) {
            EXPECT_EQ(2u, SumsIn(List()).size());
        }
        const char* Name = Step == HostStep::Write     ? "write "
                           : Step == HostStep::Sync    ? "sync "
                           : Step == HostStep::SyncDir ? "names "
                           : Step == HostStep::Rename  ? "rename "
                                                       : "other ";
        Steps << QLatin1String(Name) + Path.mid(Album.size());
    });
    StoreAnew(One, "two");
    EXPECT_EQ(
        QStringList({u"write Slides/00000001.jpg.new"_s, u"sync Slides/00000001.jpg.new"_s,
                     u"write Sums.sha256"_s, u"sync Sums.sha256"_s, u"rename Slides/00000001.jpg"_s,
                     u"names Slides/"_s, u"write Sums.sha256"_s}),
        Steps);
    EXPECT_EQ(Line(SumTwo, "Slides/00000001.jpg"), Said());
}

TEST_F(AlbumSums, ANameThatIsTakenIsNoNameForANewFile) {
    WriteFile(One, "somebody's");
    EXPECT_THROW(StoreNew(One, "one"), Fault);
    EXPECT_EQ("somebody's", ReadFile(One));
    EXPECT_EQ("", List());
    EXPECT_THROW(StoreNew(Slides + u"00000001.JPG"_s, "one"), Fault) << "in any case";
}

TEST_F(AlbumSums, WhatCannotBeStoredLeavesTheFileOfBeforeAndItsLine) {
    StoreNew(One, "one");
    const QByteArray Before = Said();
    for (const auto& [Step, Path] : {std::pair(HostStep::Write, u"00000001.jpg.new"_s),
                                     {HostStep::Sync, u"00000001.jpg.new"_s},
                                     {HostStep::Write, u"Sums.sha256"_s},
                                     {HostStep::Sync, u"Sums.sha256"_s},
                                     {HostStep::Rename, u"00000001.jpg"_s}}) {
        FailAt(Step, Path);
        EXPECT_THROW(StoreAnew(One, "two"), Fault) << Path.toStdString();
        SetHostWatcher({});
        EXPECT_EQ("one", ReadFile(One));
        EXPECT_FALSE(FileExists(One + u".new"_s));
        bool Right = false;
        for (const ListedSum& Each : SumsIn(List())) Right = Right || Each.Sum == SumOne;
        EXPECT_TRUE(Right) << Path.toStdString();
    }
    StoreAnew(One, "three");
    EXPECT_EQ(Line(SumThree, "Slides/00000001.jpg"), Said());
    EXPECT_NE(Before, Said());
}

TEST_F(AlbumSums, ANewFileThatCannotHaveItsNameHasNoLine) {
    FailAt(HostStep::Rename, u"00000001.jpg"_s);
    EXPECT_THROW(StoreNew(One, "one"), Fault);
    EXPECT_EQ("", Said());
    EXPECT_TRUE(ListDir(Slides).empty());
}

TEST_F(AlbumSums, HalfALineThatAPowerFailureLeftDoesNotSpoilTheNext) {
    WriteFile(AlbumSumsPath(Album), "7692c3ad3540bb80");
    StoreNew(One, "one");
    EXPECT_EQ("7692c3ad3540bb80\n" + Line(SumOne, "Slides/00000001.jpg"), List());
    EXPECT_EQ(Line(SumOne, "Slides/00000001.jpg"), Said());
}

TEST_F(AlbumSums, AnAlbumOfEarlierVersionsGetsNoListByAStore) {
    DeleteFile(AlbumSumsPath(Album));
    StoreNew(One, "one");
    StoreAnew(One, "two");
    DropStored({One});
    EXPECT_FALSE(FileExists(AlbumSumsPath(Album)));
}

TEST_F(AlbumSums, WhatCannotBeDeletedKeepsItsLine) {
    StoreNew(One, "one");
    FailAt(HostStep::Delete, u"00000001.jpg"_s);
    DropStored({One});
    EXPECT_EQ(Line(SumOne, "Slides/00000001.jpg"), Said());
    SetHostWatcher({});
    DropStored({One});
    EXPECT_EQ("", Said());
}

TEST_F(AlbumSums, WhatGoesAgainLeavesTheListAsItWas) {
    StoreNew(One, "one");
    const QByteArray Before = List();
    const QStringList More = {Slides + u"00000002.jpg"_s, Slides + u"00000003.jpg"_s};
    for (const QString& Path : More) StoreNew(Path, "two");
    DropStored({More[0]});
    EXPECT_EQ(1u, List().count('#')) << "in the middle as a remark";
    DropStored({More[1]});
    EXPECT_EQ(Before, List());
    StoreNew(More[0], "three");
    EXPECT_EQ(Before + Line(SumThree, "Slides/00000002.jpg"), List());
}

TEST_F(AlbumSums, TheSameContentIsNotWrittenAgain) {
    StoreNew(One, "one");
    const QByteArray Before = List();
    int Steps = 0;
    SetHostWatcher([&](HostStep, const QString&, qint64&) { ++Steps; });
    StoreAnew(One, "one");
    EXPECT_EQ(0, Steps);
    EXPECT_EQ(Before, List());
}

TEST_F(AlbumSums, AListOfLittleButRemarksIsWrittenAnew) {
    for (int Round = 0; Round < 1000; ++Round) StoreAnew(One, QByteArray::number(Round));
    EXPECT_LT(List().size(), 220 * 90);
    EXPECT_EQ(1u, SumsIn(List()).size());
    EXPECT_EQ(0, HostTool().first);
}

TEST_F(AlbumSums, NamesThatDifferInCaseAloneAreOne) {
    WriteFile(Slides + u"00000001.JPG"_s, "one");
    WriteFile(AlbumSumsPath(Album), Line(SumOne, "Slides/00000001.JPG"));
    StoreAnew(One, "two");
    EXPECT_EQ(Line(SumTwo, "Slides/00000001.JPG"), Said());
    EXPECT_EQ(0, HostTool().first);
    DropStored({One});
    EXPECT_EQ("", Said());
}

TEST_F(AlbumSums, AreMendedOnlyAsTheyWereRead) {
    StoreNew(One, "one");
    const QByteArray Read = List();
    EXPECT_FALSE(MendAlbumSums(Album, QByteArray("other"), "new"));
    EXPECT_FALSE(MendAlbumSums(Album, std::nullopt, "new"));
    EXPECT_EQ(Read, List());
    EXPECT_TRUE(MendAlbumSums(Album, Read, "new"));
    EXPECT_EQ("new", List());
}

TEST_F(AlbumSums, AfterATransferAreThoseOfWhatStaysAndWhatCame) {
    const QByteArray List =
        Line(SumOne, "Slides/1.jpg") + Line(SumTwo, "Slides/2.jpg") + "half a line";
    EXPECT_EQ(Line(SumOne, "Slides/1.jpg") + Line(SumThree, "Slides/3.jpg"),
              SumsAfter(List, {u"slides/2.JPG"_s}, {{u"Slides/3.jpg"_s, SumThree}}));
    EXPECT_EQ(Line(SumTwo, "Slides/2.jpg") + Line(SumThree, "Slides/1.jpg"),
              SumsAfter(List, {}, {{u"Slides/1.jpg"_s, SumThree}}));
}

// Thousands of lists, each a whole one with some bytes changed, cut out or doubled.
TEST_F(AlbumSums, DamagedListsAreReadAsFarAsTheyGo) {
    std::mt19937 Random(4711);
    const QByteArray Whole = Line(SumOne, "Slides/00000001.jpg") + "# a remark\n" +
                             SumLine({u"Slides/odd\\na\nme.jpg"_s, SumTwo}) +
                             Line(SumThree, "SoundTracks/00000001_1.mp3");
    EXPECT_EQ(3u, SumsIn(Whole).size());
    for (int Round = 0; Round < 4000; ++Round) {
        QByteArray Bytes = Whole;
        for (unsigned Changes = Random() % 6; Changes > 0 && !Bytes.isEmpty(); --Changes) {
            const qsizetype Place = Random() % static_cast<unsigned>(Bytes.size());
            const qsizetype Length = Random() % 40;
            if (Random() % 3 == 0)
                Bytes.remove(Place, Length);
            else if (Random() % 2 == 0)
                Bytes.insert(Place, Bytes.mid(Place, Length));
            else
                Bytes[Place] =
                    static_cast<char>(Random() % 3 ? "\\\n#/. *"[Random() % 7] : Random());
        }
        ASSERT_TRUE(fuzz::RunSums(Bytes)) << "round " << Round << ": " << Bytes.toStdString();
    }
}

// A database whose album has its files through the program's own ways.
class SumsOfChanges : public AlbumSums {
  protected:
    SumsOfChanges() : Engine(OpenEngine(Dir.Path())), Door(*Engine) {
        AlbumID = Door.MakeAlbum(u"Garden"_s)->What().AlbumID;
    }
    std::unique_ptr<clsDBEngine> Engine;
    Changes Door;
    std::int32_t AlbumID = 0;
};

TEST_F(SumsOfChanges, ADeletedSlideTakesItsLinesAlong) {
    for (const char* Name : {"00000001.jpg", "00000001.wav", "00000001Small.bmp", "00000002.jpg"})
        StoreNew(Slides + QLatin1String(Name), "one");
    clsNEBSlide Slide;
    Slide.SlideID = 1;
    Slide.SlideLoc = u"00000001.JPG"_s;
    ASSERT_TRUE(Door.EnterSlide(AlbumID, Slide));
    ASSERT_TRUE(Door.DeleteSlide(AlbumID, 1));
    EXPECT_EQ(Line(SumOne, "Slides/00000002.jpg"), Said());
    EXPECT_EQ(1u, ListDir(Slides).size());
}

TEST_F(SumsOfChanges, ADeletedShowTakesItsLinesAlong) {
    auto Made = Door.SaveShow(AlbumID, {});
    StoreNew(Sounds + u"00000001_1.mp3"_s, "one");
    StoreNew(Sounds + u"00000002_1.mp3"_s, "two");
    ASSERT_TRUE(Door.DeleteShow(AlbumID, Made->What().SlideShowID));
    EXPECT_EQ(Line(SumTwo, "SoundTracks/00000002_1.mp3"), Said());
}

TEST_F(SumsOfChanges, AnEmptiedAlbumHasAnEmptyList) {
    StoreNew(One, "one");
    StoreNew(Sounds + u"00000001_1.mp3"_s, "two");
    ASSERT_TRUE(ClearAlbumContents(*Engine, *Engine->GetAlbum(AlbumID)));
    EXPECT_EQ("", Said());
    EXPECT_TRUE(ListDir(Slides).empty());
}

TEST_F(SumsOfChanges, ANumberIsNotGivenOutOverASoundOfAnyKind) {
    for (const char* Name : {"00000001.mp3", "00000002.Ogg", "00000003.flac", "00000004.AIFF"})
        WriteFile(Slides + QLatin1String(Name), "somebody's");
    EXPECT_EQ(5, Door.FreeSlideID(AlbumID));
}

TEST_F(SumsOfChanges, ANumberIsNotGivenOutOverAFileThatIsThere) {
    for (const char* Name : {"00000001.jpg", "00000002.WAV", "00000003small.bmp"})
        WriteFile(Slides + QLatin1String(Name), "somebody's");
    EXPECT_EQ(4, Door.FreeSlideID(AlbumID));
    EXPECT_EQ(4, Door.SaveSlide(AlbumID, {})->What().SlideID);
    EXPECT_EQ(5, Door.FreeSlideID(AlbumID));
    const std::int32_t Other = Door.MakeAlbum(u"Other"_s)->What().AlbumID;
    EXPECT_EQ(2, Other);
    WriteFile(Slides + u"00000005.jpg"_s, "somebody's");
    EXPECT_EQ(5, Door.FreeSlideID(Other)) << "there it is in nobody's way";
    WriteFile(Sounds + u"00000001_1.mp3"_s, "somebody's");
    EXPECT_EQ(2, FreeSlideShowID(Dir.Path(), AlbumID, 1));
    EXPECT_EQ(1, FreeSlideShowID(Dir.Path(), Other, 1));
}

TEST_F(SumsOfChanges, ANewAlbumDoesNotTakeThePicturesOfALostOne) {
    MakeDirs(SlidesFolder(Dir.Path(), 2));
    WriteFile(SlidesFolder(Dir.Path(), 2) + u"00000009.jpg"_s, "lost");
    EXPECT_FALSE(Door.MakeAlbum(u"Garden"_s)) << "the name is taken";
    EXPECT_EQ(2, Engine->NextAlbumID) << "and no number has gone";
    EXPECT_EQ(3, Door.MakeAlbum(u"Other"_s)->What().AlbumID);
    EXPECT_EQ(4, Engine->NextAlbumID);
}

TEST_F(SumsOfChanges, ASlideIsEnteredUnderItsOwnNumberOnce) {
    clsNEBSlide Slide;
    Slide.SlideID = 7;
    ASSERT_TRUE(Door.EnterSlide(AlbumID, Slide));
    EXPECT_EQ(8, Engine->NextSlideID);
    EXPECT_FALSE(Door.EnterSlide(AlbumID, Slide));
    Slide.SlideID = 3;
    ASSERT_TRUE(Door.EnterSlide(AlbumID, Slide));
    EXPECT_EQ(8, Engine->NextSlideID);
    EXPECT_FALSE(Door.EnterSlide(99, Slide));
}

TEST_F(SumsOfChanges, FilesOnAnotherDiskThanTheRecordsAreFlushedThere) {
    TempFolder Elsewhere;
    ASSERT_TRUE(QDir(Slides).removeRecursively());
    ASSERT_TRUE(QFile::link(Elsewhere.Path().chopped(1), Slides.chopped(1)));
    if (IsSameVolume(Slides, Dir.Path())) GTEST_SKIP() << "there is one disk alone";
    QStringList Flushed;
    SetHostWatcher([&](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::SyncVolume) Flushed << Path;
    });
    ASSERT_TRUE(Door.SaveSlide(AlbumID, {}));
    EXPECT_EQ(QStringList(Slides), Flushed);
}

TEST_F(SumsOfChanges, FilesAreFlushedBeforeTheRecordsWhereTheSessionsJournalHasNotDoneIt) {
    QStringList Steps;
    const auto Watch = [&] {
        Steps.clear();
        SetHostWatcher([&](HostStep Step, const QString& Path, qint64&) {
            if (Step == HostStep::SyncVolume) Steps << u"volume"_s;
            if (Step == HostStep::Write && Path.endsWith(u"Records.journal.new"_s))
                Steps << u"records"_s;
        });
    };
    ASSERT_TRUE(Door.SaveSlide(AlbumID, {}));
    Watch();
    Engine->FinalizeDB();
    EXPECT_EQ(u"volume records"_s, Steps.join(u' '));
    Watch();
    Engine->FinalizeDB();
    EXPECT_EQ(u"records"_s, Steps.join(u' ')) << "nothing has come since";
    // a session whose journal cannot be written
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Write && Path.contains(u"Session.journal"_s)) throw Fault(u"full"_s);
    });
    Engine->KeepSession();
    ASSERT_TRUE(Door.SaveSlide(AlbumID, {}));
    EXPECT_FALSE(Engine->IsSessionStored());
    bool HasVolume = false, Before = false;
    SetHostWatcher([&](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Write && Path.contains(u"Session.journal"_s)) throw Fault(u"full"_s);
        if (Step == HostStep::SyncVolume) HasVolume = true;
        if (Step == HostStep::Write && Path.endsWith(u"Records.journal.new"_s)) Before = HasVolume;
    });
    Engine->FinalizeDB();
    EXPECT_TRUE(Before);
}

}  // namespace
}  // namespace neb
