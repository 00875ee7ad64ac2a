// nebctl history and nebctl restore.
#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "ToolRun.h"
#include "db/Fixtures.h"
#include "db/modAlbumFiles.h"
#include "db/modDatabaseLock.h"
#include "db/modLoadRecords.h"
#include "db/records/Generations.h"
#include "support/Fault.h"

namespace neb {
namespace {

using namespace harness;

// Three ends of the program: an album, then two, then two without the captions of before.
class HistoryTest : public ::testing::Test {
  protected:
    HistoryTest() {
        Save("Sea", {}, "2026-03-01T10:00:00");
        Save("Sea", "Hills", "2026-03-02T11:00:00");
        Save("Ocean", "Hills", "2026-03-03T12:00:00");
    }
    ~HistoryTest() override { SetHostWatcher({}); }

    void Save(const char* First, const QByteArray& Second, const QByteArray& When) {
        const auto Engine = OpenEngine(Dir.Path());
        std::int32_t AlbumID = Engine->Albums.empty() ? 0 : 1, SlideID = 0;
        ASSERT_TRUE(Engine->SaveAlbum(AlbumID, QLatin1String(First)));
        if (Engine->Albums[0]->Slides.empty())
            Engine->Albums[0]->SaveSlide(SlideID, u"gull"_s, u"00000001.JPG"_s, {}, false, false,
                                         *Engine);
        AlbumID = Engine->Albums.size() > 1 ? 2 : 0;
        if (!Second.isEmpty()) {
            ASSERT_TRUE(Engine->SaveAlbum(AlbumID, QLatin1String(Second)));
        }
        Engine->FinalizeDB();
        for (const RecordFile Each : AllRecordFiles) {
            QFile File(RecordPath(Dir.Path(), Each));
            ASSERT_TRUE(File.open(QIODevice::ReadWrite));
            File.setFileTime(QDateTime::fromString(QString::fromLatin1(When), Qt::ISODate),
                             QFileDevice::FileModificationTime);
        }
    }
    QString FirstAlbum() const { return OpenEngine(Dir.Path())->Albums[0]->AlbumName; }
    ToolRun History(const QStringList& More = {}) const {
        return Tool(QStringList{u"history"_s, Dir.Path()} + More);
    }
    ToolRun Restore(const QString& Number) const {
        return Tool({u"restore"_s, Dir.Path(), Number});
    }

    TempFolder Dir;
};

TEST_F(HistoryTest, ListsTheStatesWithWhatDiffers) {
    const auto Before = AllRecords(Dir.Path());
    const ToolRun Run = History();
    EXPECT_EQ(Run.Code, 0);
    EXPECT_EQ(Run.Err, "");
    EXPECT_EQ(Run.Out,
              "  N  Saved                Albums  Slides  Slide shows\n"
              "  -  now                       2       1            0\n"
              "  1  2026-03-02 11:00:00       2       1            0\n"
              "     Albums that get their earlier names: \"Sea\" instead of \"Ocean\".\n"
              "     1 picture or sound of it is missing.\n"
              "  2  2026-03-01 10:00:00       1       1            0\n"
              "     Albums that go: \"Hills\".\n"
              "     Albums that get their earlier names: \"Sea\" instead of \"Ocean\".\n"
              "     1 picture or sound of it is missing.\n");
    EXPECT_EQ(AllRecords(Dir.Path()), Before);
}

TEST_F(HistoryTest, SaysTheSameAsJson) {
    const ToolRun Run = History({u"--json"_s});
    EXPECT_EQ(Run.Code, 0);
    const QJsonObject All = QJsonDocument::fromJson(QByteArray::fromStdString(Run.Out)).object();
    EXPECT_EQ(All["Now"].toObject()["Albums"].toInt(), 2);
    const QJsonArray Earlier = All["Earlier"].toArray();
    ASSERT_EQ(Earlier.size(), 2);
    const QJsonObject Oldest = Earlier[1].toObject();
    EXPECT_EQ(Oldest["Number"].toInt(), 2);
    EXPECT_EQ(QDateTime::fromString(Oldest["Saved"].toString(), Qt::ISODate),
              QDateTime::fromString(u"2026-03-01T10:00:00"_s, Qt::ISODate));
    EXPECT_EQ(Oldest["Albums"].toInt(), 1);
    EXPECT_EQ(Oldest["Slides"].toInt(), 1);
    EXPECT_EQ(Oldest["SlideShows"].toInt(), 0);
    const QJsonObject Differences = Oldest["Differences"].toObject();
    EXPECT_EQ(Differences["AlbumsNow"].toArray(), QJsonArray{u"\"Hills\""_s});
    EXPECT_EQ(Differences["CaptionsChanged"].toInt(-1), 0);
    EXPECT_EQ(Oldest["Missing"].toArray(),
              QJsonArray{SlidesFolder(Dir.Path(), 1) + u"00000001.JPG"_s});
}

TEST_F(HistoryTest, TellsItsTimesInJsonSoThatTheyAreTheSameEverywhere) {
    const auto All = QJsonDocument::fromJson(QByteArray::fromStdString(History({u"--json"_s}).Out));
    const QDateTime Saved({2026, 3, 1}, {10, 0});
    EXPECT_EQ(All["Earlier"][1]["Saved"].toString(), Saved.toUTC().toString(Qt::ISODate));
}

TEST_F(HistoryTest, OfADatabaseWithoutEarlierStatesIsTheHeadAlone) {
    TempFolder Other;
    OpenEngine(Other.Path())->FinalizeDB();
    const ToolRun Run = Tool({u"history"_s, Other.Path()});
    EXPECT_EQ(Run.Code, 0);
    EXPECT_EQ(std::count(Run.Out.begin(), Run.Out.end(), '\n'), 2);
    EXPECT_TRUE(QJsonDocument::fromJson(
                    QByteArray::fromStdString(Tool({u"history"_s, Other.Path(), u"--json"_s}).Out))
                    .object()["Earlier"]
                    .toArray()
                    .isEmpty());
}

TEST_F(HistoryTest, ARestoreBringsAStateBackAndKeepsThePresentOne) {
    MakeDirs(SlidesFolder(Dir.Path(), 1));
    WriteFile(SlidesFolder(Dir.Path(), 1) + u"00000001.jpg"_s, "picture");
    const ToolRun Run = Restore(u"2"_s);
    EXPECT_EQ(Run.Code, 0) << Run.Err;
    EXPECT_EQ(Run.Out,
              "Albums that go: \"Hills\".\n"
              "Albums that get their earlier names: \"Sea\" instead of \"Ocean\".\n"
              "The albums are as they were saved on 2026-03-01 10:00:00. Those of before are kept; "
              "see nebctl history.\n");
    EXPECT_EQ(FirstAlbum(), u"Sea"_s);
    EXPECT_EQ(OpenEngine(Dir.Path())->NextAlbumID, 3);
    EXPECT_NE(History().Out.find("  1  2026-03-03 12:00:00       2       1"), std::string::npos);
    EXPECT_EQ(Restore(u"1"_s).Code, 0);
    EXPECT_EQ(FirstAlbum(), u"Ocean"_s);
}

TEST_F(HistoryTest, ARestoreNamesThePicturesThatAreMissing) {
    const ToolRun Run = Restore(u"1"_s);
    EXPECT_EQ(Run.Code, 1);
    const std::string Missing =
        "missing: " + (SlidesFolder(Dir.Path(), 1) + u"00000001.JPG\n"_s).toStdString();
    const auto Before = Run.Out.find(Missing), Done = Run.Out.find("The albums are as");
    ASSERT_NE(Before, std::string::npos);
    EXPECT_LT(Before, Done);
    EXPECT_LT(Done, Run.Out.find("1 picture or sound that the records name is missing."));
    EXPECT_EQ(FirstAlbum(), u"Sea"_s);
}

TEST_F(HistoryTest, ARestoreOfWhatIsNotThereIsRefused) {
    const auto Before = AllRecords(Dir.Path());
    for (const char* Number : {"0", "3", "-1", "x", ""}) {
        const ToolRun Run = Restore(QLatin1String(Number));
        EXPECT_EQ(Run.Code, 2) << Number;
        EXPECT_EQ(Run.Out, "") << Number;
        EXPECT_NE(Run.Err, "") << Number;
    }
    EXPECT_NE(Restore(u"3"_s).Err.find("that there are: 2."), std::string::npos);
    EXPECT_EQ(AllRecords(Dir.Path()), Before);
}

TEST_F(HistoryTest, ARestoreLeavesADatabaseInUseAlone) {
    InstanceLock Lock(DatabaseLockPath(Dir.Path()));
    ASSERT_TRUE(Lock.TryLock());
    const ToolRun Run = Restore(u"1"_s);
    EXPECT_EQ(Run.Code, 2);
    EXPECT_NE(Run.Err.find("in use by the program"), std::string::npos);
    EXPECT_EQ(History().Code, 0);  // to look is no harm
}

TEST_F(HistoryTest, ARestoreLeavesAReadOnlyDatabaseAlone) {
    QFile::setPermissions(Dir / "NextIDs.dat", QFileDevice::ReadOwner);
    const ToolRun Run = Restore(u"1"_s);
    EXPECT_EQ(Run.Code, 2);
    EXPECT_NE(Run.Err.find("read-only"), std::string::npos);
    EXPECT_EQ(ListGenerations(Dir.Path()).size(), 2u);
    EXPECT_EQ(History().Code, 0);
}

TEST_F(HistoryTest, ARestoreThatFindsNoRoomChangesNothing) {
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Write) throw Fault(u"full"_s, Path);
    });
    const ToolRun Run = Restore(u"1"_s);
    SetHostWatcher({});
    EXPECT_EQ(Run.Code, 2);
    EXPECT_EQ(FirstAlbum(), u"Ocean"_s);
}

TEST_F(HistoryTest, ARestoreThatIsCutShortIsFinishedByTheNextStart) {
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Write && Path.endsWith(u"Albums.dat")) throw Fault(u"full"_s, Path);
    });
    const ToolRun Run = Restore(u"2"_s);
    SetHostWatcher({});
    EXPECT_EQ(Run.Code, 2);
    EXPECT_NE(Run.Err.find("The albums are restored, but"), std::string::npos) << Run.Err;
    EXPECT_EQ(FirstAlbum(), u"Sea"_s);
}

TEST_F(HistoryTest, ARewriteThatCannotKeepTheStateOfBeforeSaysSo) {
    // so that something differs: a show with the mark of deletion
    DeleteFile(Dir / "Temp/Journal/Records.sums");
    WriteFile(Dir / "SlideShows.dat", QByteArray(90, ' ') + "\xFF\xFF");
    DeleteTree(Dir / "Backups");
    WriteFile(Dir / "Backups", "a file under this name");
    const ToolRun Run = Tool({u"rewrite"_s, Dir.Path()});
    EXPECT_EQ(Run.Code, 0);
    EXPECT_NE(Run.Err.find("All is written, but the state of before could not be kept"),
              std::string::npos)
        << Run.Err;
}

}  // namespace
}  // namespace neb
