// Files that come into a database with its records: both are there afterwards, or neither is.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "Fixtures.h"
#include "db/modLoadRecords.h"
#include "support/Fault.h"

namespace neb {
namespace {

using namespace harness;

class StagedFiles : public ::testing::Test {
  protected:
    StagedFiles() {
        FillDatabase(*Engine, u"old"_s);
        Engine->FinalizeDB();
        Put("Albums/1/Slides/gone.jpg", "old");
        Put("Albums/1/SoundTracks/song.mp3", "old song");
        FillDatabase(*Engine, u"new"_s);
    }
    ~StagedFiles() override { SetHostWatcher({}); }

    void Put(const char* Place, const QByteArray& Bytes) {
        MakeDirs(Dir.Path() + QString::fromLatin1(Place).section(u'/', 0, -2));
        WriteFile(Dir.Path() + QLatin1String(Place), Bytes);
    }
    // One new file, one in the place of another, one that goes, one folder.
    StagedChange Stage() {
        MakeDirs(StagingFolder(Dir.Path()));
        WriteFile(StagingFolder(Dir.Path()) + u"0"_s, "picture");
        WriteFile(StagingFolder(Dir.Path()) + u"1"_s, "new song");
        return {
            {u"Albums/9/Slides/"_s},
            {{u"0"_s, u"Albums/9/Slides/new.jpg"_s}, {u"1"_s, u"Albums/1/SoundTracks/song.mp3"_s}},
            {u"Albums/1/Slides/gone.jpg"_s}};
    }
    void Commit() { CommitDatabase(Dir.Path(), BuildImage(*Engine), Stage()); }
    std::string Text(const char* Place) const {
        const QString Path = Dir.Path() + QLatin1String(Place);
        return FileExists(Path) ? ReadFile(Path).toStdString() : "none";
    }
    // "old", "new" or "mixed".
    std::string AllOfThem() const {
        return Text("Albums/9/Slides/new.jpg") + "|" + Text("Albums/1/SoundTracks/song.mp3") + "|" +
               Text("Albums/1/Slides/gone.jpg");
    }
    std::string Files() const {
        const auto All = AllOfThem();
        if (All == "none|old song|old") return "old";
        return All == "picture|new song|none" ? "new" : "mixed: " + All;
    }
    size_t AlbumsAtNextOpening() { return OpenEngine(Dir.Path())->Albums.size(); }

    TempFolder Dir;
    std::unique_ptr<clsDBEngine> Engine = OpenEngine(Dir.Path());
};

TEST_F(StagedFiles, StayWhereTheyAreUntilTheyAreSettled) {
    Commit();
    EXPECT_EQ("old", Files());
    SettleCommitted(Dir.Path());
    EXPECT_EQ("new", Files());
    EXPECT_FALSE(HasStagedFiles(Dir.Path()));
    EXPECT_EQ(4U, AlbumsAtNextOpening());
}

TEST_F(StagedFiles, AreSettledByTheNextOpeningTogetherWithTheRecords) {
    Commit();
    EXPECT_EQ(4U, AlbumsAtNextOpening());
    EXPECT_EQ("new", Files());
    EXPECT_FALSE(HasStagedFiles(Dir.Path()));
}

TEST_F(StagedFiles, AreSettledBeforeALaterWriteReplacesTheirJournal) {
    Commit();
    Engine->DeleteAlbum(1);
    Engine->FinalizeDB();
    EXPECT_EQ("new", Files());
    EXPECT_EQ(3U, AlbumsAtNextOpening());
}

TEST_F(StagedFiles, GoAtTheNextOpeningWhenNoJournalHoldsThem) {
    NoteStagedChange(Dir.Path(), Stage(), QByteArray(32, 'x'));
    EXPECT_EQ(2U, AlbumsAtNextOpening());
    EXPECT_EQ("old", Files());
    EXPECT_FALSE(HasStagedFiles(Dir.Path()));
}

TEST_F(StagedFiles, GoWhenTheJournalIsThatOfAnEarlierChange) {
    CommitDatabase(Dir.Path(), BuildImage(*Engine), {});
    SettleCommitted(Dir.Path());
    NoteStagedChange(Dir.Path(), Stage(), QByteArray(32, 'x'));
    EXPECT_EQ(4U, AlbumsAtNextOpening());
    EXPECT_EQ("old", Files());
}

TEST_F(StagedFiles, AreOnlyStagedWhileTheJournalCannotBeWritten) {
    const StagedChange Change = Stage();
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Rename && Path.endsWith(u"Records.journal"_s)) throw Fault(u"No."_s);
    });
    EXPECT_THROW(CommitDatabase(Dir.Path(), BuildImage(*Engine), Change), Fault);
    SetHostWatcher({});
    EXPECT_EQ(2U, AlbumsAtNextOpening());
    EXPECT_EQ("old", Files());
}

TEST_F(StagedFiles, AreSettledInTwoGoesWhenTheFirstWasCutShort) {
    Commit();
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Rename && Path.endsWith(u"song.mp3"_s)) throw Fault(u"No."_s);
    });
    EXPECT_EQ(u"No.", SettleCommitted(Dir.Path())->What());
    SetHostWatcher({});
    EXPECT_EQ("picture|old song|none", AllOfThem()) << "what can be done is done";
    EXPECT_FALSE(SettleCommitted(Dir.Path()).has_value());
    EXPECT_EQ("new", Files());
    EXPECT_FALSE(HasStagedFiles(Dir.Path()));
}

// A file that cannot have its place keeps nobody from opening or writing the database.
TEST_F(StagedFiles, WaitThroughOpeningsAndWritesUntilTheirPlaceIsFree) {
    Commit();
    MakeDirs(Dir / "Albums/9/Slides/new.jpg/in the way");
    EXPECT_EQ(4U, AlbumsAtNextOpening());
    Engine->DeleteAlbum(1);
    Engine->FinalizeDB();
    EXPECT_EQ(3U, AlbumsAtNextOpening());
    EXPECT_TRUE(HasStagedFiles(Dir.Path()));
    DeleteTree(Dir / "Albums/9/Slides/new.jpg");
    EXPECT_EQ(3U, AlbumsAtNextOpening());
    EXPECT_EQ("new", Files());
    EXPECT_FALSE(HasStagedFiles(Dir.Path()));
}

TEST_F(StagedFiles, KeepTheirJournalWhenTheyWaitAndThatCannotBeNoted) {
    Commit();
    MakeDirs(Dir / "Albums/9/Slides/new.jpg/in the way");
    SetHostWatcher([](HostStep Step, const QString& Path, qint64& Length) {
        if (Step == HostStep::Write && Path.endsWith(u"Note.new"_s)) Length = 0;
    });
    EXPECT_THROW(Engine->FinalizeDB(), Fault) << "its journal would be gone";
    SetHostWatcher({});
    DeleteTree(Dir / "Albums/9/Slides/new.jpg");
    EXPECT_EQ(4U, AlbumsAtNextOpening());
    EXPECT_EQ("new", Files());
}

TEST_F(StagedFiles, NeverReachOutsideTheDatabase) {
    TempFolder Other;
    WriteFile(Other / "mine", "x");
    StagedChange Change = Stage();
    const QString Outside = u"../"_s + Other.Path().section(u'/', -2, -2);
    Change.Drops << Outside + u"/mine"_s << Other / "mine";
    Change.Moves.push_back({u"0"_s, Outside + u"/put"_s});
    CommitDatabase(Dir.Path(), BuildImage(*Engine), Change);
    SettleCommitted(Dir.Path());
    EXPECT_TRUE(FileExists(Other / "mine"));
    EXPECT_FALSE(FileExists(Other / "put"));
}

// What waits may wait for weeks, while somebody works with the database.
TEST_F(StagedFiles, ThatWaitLeaveAloneWhatHasComeIntoAPlaceThatWasCleared) {
    Commit();
    MakeDirs(Dir / "Albums/9/Slides/new.jpg/in the way");
    EXPECT_EQ(4U, AlbumsAtNextOpening());
    EXPECT_EQ("none", Text("Albums/1/Slides/gone.jpg"));
    Put("Albums/1/Slides/gone.jpg", "of today");
    EXPECT_EQ(4U, AlbumsAtNextOpening());
    EXPECT_EQ("of today", Text("Albums/1/Slides/gone.jpg"));
}

TEST_F(StagedFiles, ThatWaitDoNotReplaceWhatIsNewer) {
    Commit();
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Rename && Path.endsWith(u"song.mp3"_s)) throw Fault(u"No."_s);
    });
    EXPECT_TRUE(SettleCommitted(Dir.Path()).has_value());
    SetHostWatcher({});
    Put("Albums/1/SoundTracks/song.mp3", "of today");
    QFile Newer(Dir / "Albums/1/SoundTracks/song.mp3");
    ASSERT_TRUE(Newer.open(QIODevice::ReadWrite));
    Newer.setFileTime(QDateTime::currentDateTime().addSecs(60), QFileDevice::FileModificationTime);
    Newer.close();
    EXPECT_FALSE(SettleCommitted(Dir.Path()).has_value());
    EXPECT_EQ("of today", Text("Albums/1/SoundTracks/song.mp3"));
}

TEST_F(StagedFiles, AreTakenFromNowhereElse) {
    TempFolder Other;
    WriteFile(Other / "mine", "x");
    StagedChange Change = Stage();
    Change.Moves.push_back({u"../../../"_s + Other.Path().section(u'/', -2, -2) + u"/mine"_s,
                            u"Albums/9/Slides/theirs"_s});
    CommitDatabase(Dir.Path(), BuildImage(*Engine), Change);
    SettleCommitted(Dir.Path());
    EXPECT_TRUE(FileExists(Other / "mine"));
    EXPECT_FALSE(FileExists(Dir / "Albums/9/Slides/theirs"));
}

TEST_F(StagedFiles, BehindALinkAreNotOurs) {
    TempFolder Other;
    WriteFile(Other / "mine", "x");
    MakeDirs(Dir / "Temp");
    ASSERT_TRUE(QFile::link(Other.Path().chopped(1), Dir / "Temp/Transfer"));
    EXPECT_EQ(2U, AlbumsAtNextOpening());
    EXPECT_TRUE(FileExists(Other / "mine"));
}

// A user may have moved the pictures to a larger disk and left a link.
TEST_F(StagedFiles, GoToAnAlbumThatLiesOnAnotherDisk) {
    const QTemporaryDir Memory(u"/dev/shm/album-XXXXXX"_s);
    if (!Memory.isValid()) GTEST_SKIP() << "no second disk";
    ASSERT_TRUE(QFile::link(Memory.path(), Dir / "Albums/9"));
    Commit();
    const auto Problem = SettleCommitted(Dir.Path());
    EXPECT_FALSE(Problem.has_value()) << qPrintable(Problem->Text());
    EXPECT_EQ("new", Files());
}

TEST_F(StagedFiles, AreLeftAloneByALookThatChangesNothing) {
    Commit();
    EXPECT_EQ(4U, OpenEngine(Dir.Path(), Recovery::InMemory)->Albums.size());
    EXPECT_TRUE(HasStagedFiles(Dir.Path()));
    EXPECT_EQ("old", Files());
}

}  // namespace
}  // namespace neb
