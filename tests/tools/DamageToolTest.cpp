// What the commands of nebctl say to a damaged database, and that not a byte of it is lost.
#include <gtest/gtest.h>
#include <QImage>

#include "ToolRun.h"
#include "db/DamageTable.h"
#include "db/records/Generations.h"
#include "db/recovery/DatabaseHealth.h"
#include "harness/MemoryFolder.h"
#include "harness/WithoutPrivileges.h"

namespace neb {
namespace {

using namespace harness;

class DamageTool : TempInMemory, public ::testing::Test {
  protected:
    void SetUp() override {
        MakeDirs(Pictures());
        QImage Picture(40, 30, QImage::Format_RGB32);
        Picture.fill(Qt::blue);
        ASSERT_TRUE(Picture.save(Pictures() + u"a.png"_s));
        MakeWholeDatabase(Other());
        MakeAnew();
    }
    void MakeAnew() {
        DeleteTree(Db());
        MakeDirs(Db());
        MakeWholeDatabase(Db());
    }
    QString Db() const { return Place / u"db/"_s; }
    QString Other() const { return Place / u"other/"_s; }
    QString Pictures() const { return Place / u"pictures/"_s; }

    std::vector<QStringList> Writing() const {
        return {{u"rewrite"_s, Db()},
                {u"restore"_s, Db(), u"1"_s},
                {u"import"_s, Db(), Pictures(), u"--album"_s, u"New"_s},
                {u"transfer"_s, Other(), Db(), u"--album"_s, u"Hills"_s, u"--to"_s, u"Moved"_s}};
    }
    std::vector<QStringList> Reading() const {
        return {{u"dump"_s, Db()},
                {u"check"_s, Db()},
                {u"history"_s, Db()},
                {u"rehearse"_s, Db(), u"--album"_s, u"Sea"_s, u"--show"_s, u"Sea walk"_s},
                {u"print"_s, Db(), u"--album"_s, u"Sea"_s, Place / u"out.pdf"_s},
                {u"transfer"_s, Db(), Place / u"third/"_s, u"--album"_s, u"Sea"_s}};
    }
    // As an ordinary user where that is the point.
    ToolRun RunOn(const QStringList& Words, Damage Kind) const {
        if (Kind != Damage::Unreadable) return Tool(Words);
        OpenUp(Place.Path());
        const WithoutPrivileges Ordinary;
        return Tool(Words);
    }
    static void OpenUp(const QString& Dir) {
        EXPECT_EQ(0, chmod(qPrintable(Dir), 0777));
        for (const DirEntry& Each : ListDir(Dir))
            if (Each.IsFolder) OpenUp(Dir + Each.Name + u'/');
    }

    TempFolder Place;
};

TEST_F(DamageTool, EveryCommandThatWritesRefusesEveryDamageWithTheSameWords) {
    for (const RecordFile File : AllRecordFiles)
        for (const Damage Kind : AllDamage) {
            MakeAnew();
            Harm(Db(), File, Kind);
            const auto Before = BytesBelow(Db());
            std::string Said;
            for (const QStringList& Words : Writing()) {
                const std::string What = NameOf(File, Kind) + ", " + Words[0].toStdString();
                const ToolRun Run = RunOn(Words, Kind);
                EXPECT_EQ(Run.Code, 2) << What;
                EXPECT_EQ(Run.Out, "") << What;
                EXPECT_EQ(Run.Err.find("nebctl: The database in " + Db().toStdString() +
                                       " is damaged:\nnebctl: "),
                          0u)
                    << What << '\n'
                    << Run.Err;
                EXPECT_NE(Run.Err.find("--restore brings the albums back as they were saved on "),
                          std::string::npos)
                    << What;
                if (Said.empty()) Said = Run.Err;
                EXPECT_EQ(Run.Err, Said) << What;
                EXPECT_TRUE(BytesBelow(Db()) == Before) << What;
            }
            ASSERT_FALSE(HasFailure());
        }
}

TEST_F(DamageTool, TheCommandsThatReadChangeNothing) {
    MakeDirs(Place / u"third"_s);
    for (const RecordFile File : AllRecordFiles)
        for (const Damage Kind : AllDamage) {
            MakeAnew();
            Harm(Db(), File, Kind);
            const auto Before = BytesBelow(Db());
            for (const QStringList& Words : Reading()) {
                RunOn(Words, Kind);
                EXPECT_TRUE(BytesBelow(Db()) == Before)
                    << NameOf(File, Kind) << ", " << Words[0].toStdString();
            }
            DeleteTree(Place / u"third"_s);
            MakeDirs(Place / u"third"_s);
            ASSERT_FALSE(HasFailure());
        }
}

TEST_F(DamageTool, EveryCommandThatWritesMendsFirstWhenToldTo) {
    for (const char* How : {"--go-on", "--restore"})
        for (QStringList Words : Writing()) {
            const std::string What = std::string(How) + ", " + Words[0].toStdString();
            MakeAnew();
            Harm(Db(), RecordFile::Slides, Damage::Empty);
            Words.insert(1, QLatin1String(How));
            const ToolRun Run = Tool(Words);
            EXPECT_LE(Run.Code, 1) << What << Run.Err;
            EXPECT_NE(Run.Err.find("The files of before are kept in " + Db().toStdString() +
                                   "Backups/Damaged "),
                      std::string::npos)
                << What << Run.Err;
            EXPECT_TRUE(LookAtHealth(Db()).IsSound()) << What;
            const auto Engine = OpenEngine(Db());
            EXPECT_GE(Engine->NextSlideID, 9) << What;
            const bool IsBack = QLatin1String(How) == u"--restore" || Words[0] == u"restore";
            EXPECT_EQ(Engine->Albums[0]->Slides.size(), IsBack ? 4u : 0u) << What;
        }
}

TEST_F(DamageTool, TheWordsAreHarmlessWhereNothingIsWrong) {
    const auto Before = AllRecords(Db());
    for (const char* How : {"--go-on", "--restore"}) {
        const ToolRun Run = Tool({u"rewrite"_s, Db(), QLatin1String(How)});
        EXPECT_EQ(Run.Code, 0);
        EXPECT_EQ(Run.Err, "");
        EXPECT_EQ(AllRecords(Db()), Before);
    }
    const ToolRun Both = Tool({u"rewrite"_s, Db(), u"--go-on"_s, u"--restore"_s});
    EXPECT_EQ(Both.Code, 2);
    EXPECT_EQ(Both.Err, "nebctl: --go-on and --restore exclude each other.\n");
}

TEST_F(DamageTool, WithoutAnEarlierStateThereIsNothingToRestore) {
    DeleteTree(Db() + u"Backups"_s);
    Harm(Db(), RecordFile::Albums, Damage::Missing);
    const auto Before = BytesBelow(Db());
    const ToolRun Run = Tool({u"rewrite"_s, Db(), u"--restore"_s});
    EXPECT_EQ(Run.Code, 2);
    EXPECT_NE(Run.Err.find("there are no earlier albums to restore."), std::string::npos);
    EXPECT_TRUE(BytesBelow(Db()) == Before);
}

// The album that is made takes no number under which a folder lies.
TEST_F(DamageTool, AFailedImportDeletesNoFolderThatItHasNotMade) {
    WriteFile(Pictures() + u"a.png"_s, "no picture");
    const QStringList Import = {u"import"_s, Db(), Pictures(), u"--album"_s, u"New"_s};
    DeleteFile(Db() + u"NextIDs.dat"_s);
    const auto Before = BytesBelow(Db());
    EXPECT_EQ(Tool(Import).Code, 2);
    EXPECT_TRUE(BytesBelow(Db()) == Before);
    EXPECT_EQ(Tool(Import + QStringList{u"--go-on"_s}).Code, 2) << "there is no picture to import";
    for (const auto& [Name, Bytes] : Before)
        if (Name.startsWith(u"Albums/")) {
            EXPECT_EQ(BytesBelow(Db())[Name], Bytes) << Name.toStdString();
        }
    // a folder that no record names
    MakeAnew();
    MakeDirs(Db() + u"Albums/3/Slides"_s);
    WriteFile(Db() + u"Albums/3/Slides/00000009.jpg"_s, "stray");
    EXPECT_EQ(Tool(Import).Code, 2);
    EXPECT_EQ(ReadFile(Db() + u"Albums/3/Slides/00000009.jpg"_s), "stray");
}

TEST_F(DamageTool, AnImportGivesNoNumberOutThatAFileBears) {
    WriteFile(Db() + u"Albums/1/Slides/00000009.jpg"_s, "stray");
    const ToolRun Run = Tool({u"import"_s, Db(), Pictures(), u"--album"_s, u"Sea"_s});
    EXPECT_EQ(Run.Code, 0) << Run.Err;
    EXPECT_EQ(ReadFile(Db() + u"Albums/1/Slides/00000009.jpg"_s), "stray");
    EXPECT_TRUE(FileExists(Db() + u"Albums/1/Slides/00000010.jpg"_s));
}

}  // namespace
}  // namespace neb
