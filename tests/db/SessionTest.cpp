// A session that does not come to its end: what was changed in it is there at the next opening.
#include <gtest/gtest.h>

#include <unistd.h>

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include "Fixtures.h"
#include "db/Changes.h"
#include "db/modAlbumFiles.h"
#include "db/modLoadRecords.h"
#include "db/records/SessionJournal.h"
#include "harness/WithoutPrivileges.h"
#include "support/Fault.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

using namespace harness;

std::map<std::string, QByteArray> ContentOf(const clsDBEngine& Engine) {
    const RecordImage Image = BuildImage(Engine);
    std::map<std::string, QByteArray> Files;
    for (const RecordFile File : AllRecordFiles) Files[RecordFileName(File)] = Image[File].Unpack();
    return Files;
}

class SessionTest : public ::testing::Test {
  protected:
    SessionTest() {
        const auto Engine = OpenEngine(Dir.Path());
        FillDatabase(*Engine, u"old"_s);
        Engine->FinalizeDB();
    }
    ~SessionTest() override { SetHostWatcher({}); }
    std::unique_ptr<clsDBEngine> Begin() const {
        auto Engine = OpenEngine(Dir.Path());
        Engine->KeepSession();
        return Engine;
    }
    // A session that makes so many albums and is not ended; what it held.
    std::map<std::string, QByteArray> Break(const QStringList& Albums) const {
        const auto Engine = Begin();
        for (const QString& Name : Albums) Changes(*Engine).MakeAlbum(Name);
        return ContentOf(*Engine);
    }
    bool HasJournal() const { return FileExists(SessionJournalPath(Dir.Path())); }
    QStringList Aside() const {
        QStringList Names;
        for (const DirEntry& Each : ListDir(GetFilePath(SessionJournalPath(Dir.Path()))))
            if (Each.Name.startsWith(u"Session ")) Names << Each.Name;
        return Names;
    }

    TempFolder Dir;
};

TEST_F(SessionTest, WhatItChangedIsBroughtBack) {
    const auto Held = Break({u"Garden"_s, u"Park"_s});
    const auto Records = AllRecords(Dir.Path());
    const auto Engine = Begin();
    EXPECT_EQ(Held, ContentOf(*Engine));
    EXPECT_EQ(2, Engine->Found().Changes);
    EXPECT_NEAR(static_cast<double>(QDateTime::currentMSecsSinceEpoch()),
                static_cast<double>(Engine->Found().When), 60000);
    EXPECT_EQ(Records, AllRecords(Dir.Path())) << "the record files are written at the end alone";
}

TEST_F(SessionTest, TheNextOneGoesOnInTheSameJournal) {
    Break({u"Garden"_s});
    const auto Held = Break({u"Park"_s});
    const auto Engine = Begin();
    EXPECT_EQ(Held, ContentOf(*Engine));
    EXPECT_EQ(2, Engine->Found().Changes);
    EXPECT_TRUE(Engine->FindAlbum(0, u"Garden"_s));
    EXPECT_TRUE(Engine->FindAlbum(0, u"Park"_s));
}

TEST_F(SessionTest, AnOrderlyEndLeavesNoJournal) {
    Break({u"Garden"_s});
    std::map<std::string, QByteArray> Held;
    {
        const auto Engine = Begin();
        Changes(*Engine).RenameAlbum(1, u"Sea"_s);
        Held = ContentOf(*Engine);
        Engine->FinalizeDB();
    }
    EXPECT_FALSE(HasJournal());
    EXPECT_EQ(Held, AllRecords(Dir.Path()));
    EXPECT_EQ(0, Begin()->Found().Changes);
}

TEST_F(SessionTest, WhatIsChangedAfterAnEndIsKeptToo) {
    const auto Engine = Begin();
    Changes(*Engine).MakeAlbum(u"Garden"_s);
    Engine->FinalizeDB();
    Changes(*Engine).MakeAlbum(u"Park"_s);
    EXPECT_TRUE(Engine->IsSessionStored());
    const auto Next = OpenEngine(Dir.Path(), Recovery::InMemory);
    EXPECT_EQ(ContentOf(*Engine), ContentOf(*Next));
}

TEST_F(SessionTest, LookingWithoutChangingSeesItAndLeavesIt) {
    const auto Held = Break({u"Garden"_s});
    EXPECT_EQ(Held, ContentOf(*OpenEngine(Dir.Path(), Recovery::InMemory)));
    EXPECT_TRUE(HasJournal());
    EXPECT_EQ(Held, ContentOf(*OpenEngine(Dir.Path())));
}

TEST_F(SessionTest, AfterABackupWasPutBackItIsPutAside) {
    const auto Backup = AllRecords(Dir.Path());
    {
        const auto Engine = Begin();
        Changes(*Engine).MakeAlbum(u"Garden"_s);
        Engine->FinalizeDB();
    }
    Break({u"Park"_s});
    for (const auto& [Name, Bytes] : Backup) WriteFile(Dir / QString::fromStdString(Name), Bytes);
    const auto Engine = Begin();
    EXPECT_EQ(0, Engine->Found().Changes);
    EXPECT_EQ(Backup, ContentOf(*Engine));
    ASSERT_EQ(1, Aside().size());
    EXPECT_TRUE(Engine->Found().PutAside.value(0).endsWith(Aside().first()));
    EXPECT_FALSE(HasJournal());
    EXPECT_TRUE(Begin()->Found().PutAside.isEmpty()) << "it is told of once";
}

TEST_F(SessionTest, NothingThatWasPutAsideIsReplaced) {
    Break({u"Park"_s});
    const QByteArray Journal = ReadFile(SessionJournalPath(Dir.Path()));
    for (const char* Albums : {"other", "another"}) {
        WriteFile(SessionJournalPath(Dir.Path()), Journal);
        AppendFile(Dir / u"Properties.dat"_s, Albums);
        OpenEngine(Dir.Path());
    }
    EXPECT_EQ(2, Aside().size());
}

TEST_F(SessionTest, ADamagedOneIsPutAside) {
    Break({u"Park"_s});
    WriteFile(SessionJournalPath(Dir.Path()), "no journal");
    EXPECT_FALSE(OpenEngine(Dir.Path())->Found().PutAside.isEmpty());
    EXPECT_EQ(1, Aside().size());
}

TEST_F(SessionTest, TheRecordGoesBeforeTheFile) {
    const auto Engine = Begin();
    const QString Picture = SlidesFolder(Dir.Path(), 1) + u"00000001.jpg"_s;
    MakeDirs(GetFilePath(Picture));
    WriteFile(Picture, "picture");
    SetHostWatcher([&](HostStep Step, const QString& Path, qint64&) {
        if (Step != HostStep::Delete || !Path.contains(u"00000001"_s)) return;
        const auto Now = OpenEngine(Dir.Path(), Recovery::InMemory);
        EXPECT_EQ(nullptr, Now->GetAlbum(1)->GetSlide(1));
    });
    Changes(*Engine).DeleteSlide(1, 1);
    EXPECT_FALSE(FileExists(Picture));
}

TEST_F(SessionTest, AFileStaysWhereItsRecordCannotGo) {
    const auto Engine = Begin();
    const QString Picture = SlidesFolder(Dir.Path(), 1) + u"00000001.jpg"_s;
    MakeDirs(GetFilePath(Picture));
    WriteFile(Picture, "picture");
    SetHostWatcher([&](HostStep Step, const QString&, qint64&) {
        if (Step == HostStep::Write) throw Fault(u"No space left."_s);
    });
    Changes(*Engine).DeleteSlide(1, 1);
    EXPECT_TRUE(FileExists(Picture));
    SetHostWatcher({});
}

// Whatever step of an end fails, once and for good, all is there at the next opening.
TEST_F(SessionTest, AnEndThatFailsAtAnyStepLosesNothing) {
    for (int Failing = 1; Failing < 200; ++Failing) {
        int Steps = 0;
        std::map<std::string, QByteArray> Held;
        {
            const auto Engine = Begin();
            Changes(*Engine).RenameAlbum(1, u"Sea %1"_s.arg(Failing));
            EXPECT_TRUE(Engine->IsSessionStored());
            Held = ContentOf(*Engine);
            SetHostWatcher([&](HostStep, const QString&, qint64&) {
                if (++Steps >= Failing) throw Fault(u"The medium has gone."_s);
            });
            try {
                Engine->FinalizeDB();
            } catch (const Fault&) {
                EXPECT_GE(Steps, Failing);
            }
        }
        SetHostWatcher({});
        EXPECT_EQ(Held, ContentOf(*OpenEngine(Dir.Path(), Recovery::InMemory))) << Failing;
        EXPECT_EQ(Held, ContentOf(*OpenEngine(Dir.Path()))) << Failing;
        EXPECT_TRUE(Aside().isEmpty()) << Failing;
        if (Steps < Failing) return;
    }
    FAIL() << "it never came to its end";
}

// From a whole journal on the session's own has nothing to say, whether or not it could be deleted;
// what is changed behind that must not go with it.
TEST_F(SessionTest, WhatIsChangedBehindAnEndThatFailedIsKeptToo) {
    for (const char* Refused : {"Albums.dat", "Session.journal", "Records.journal"}) {
        std::map<std::string, QByteArray> Held;
        {
            const auto Engine = Begin();
            Changes(*Engine).MakeAlbum(u"Before %1"_s.arg(QLatin1String(Refused)));
            EXPECT_TRUE(Engine->IsSessionStored());
            SetHostWatcher([&](HostStep Step, const QString& Path, qint64&) {
                if (Step == HostStep::Delete && Path.endsWith(QLatin1String(Refused)))
                    throw Fault(u"It cannot be deleted."_s);
            });
            EXPECT_THROW(Engine->FinalizeDB(), Fault);
            EXPECT_EQ(JournalState::Whole, ReadJournal(Dir.Path()));
            Changes(*Engine).MakeAlbum(u"Behind %1"_s.arg(QLatin1String(Refused)));
            EXPECT_TRUE(Engine->IsSessionStored());
            Held = ContentOf(*Engine);
        }
        SetHostWatcher({});
        EXPECT_EQ(Held, ContentOf(*OpenEngine(Dir.Path(), Recovery::InMemory))) << Refused;
        const auto Next = Begin();
        EXPECT_EQ(Held, ContentOf(*Next)) << Refused;
        EXPECT_TRUE(Aside().isEmpty()) << Refused;
        Next->FinalizeDB();
        EXPECT_EQ(Held, AllRecords(Dir.Path())) << Refused;
    }
}

// Without room a write that waits cannot be finished; the albums are there all the same.
TEST_F(SessionTest, AFullDiskDoesNotBarTheNextStart) {
    std::map<std::string, QByteArray> Held;
    {
        const auto Engine = Begin();
        Changes(*Engine).MakeAlbum(u"Garden"_s);
        SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
            if (Step == HostStep::Write && Path.endsWith(u".dat"_s)) throw Fault(u"No space."_s);
        });
        EXPECT_THROW(Engine->FinalizeDB(), Fault);
        Held = ContentOf(*Engine);
    }
    const auto Next = Begin();
    EXPECT_EQ(Held, ContentOf(*Next));
    EXPECT_THROW(Next->FinalizeDB(), Fault);
    SetHostWatcher({});
    Next->FinalizeDB();
    EXPECT_EQ(Held, AllRecords(Dir.Path()));
}

TEST_F(SessionTest, AnEndDoesNotWriteWhereTheDatabaseIsNotThereAnyMore) {
    const auto Engine = Begin();
    Changes(*Engine).MakeAlbum(u"Garden"_s);
    EXPECT_TRUE(Engine->IsSessionStored());
    const QString Db = Dir.Path().chopped(1), Away = Db + u".away"_s;
    ASSERT_TRUE(QDir().rename(Db, Away) && QDir().mkdir(Db));
    EXPECT_THROW(Engine->FinalizeDB(), Fault);
    EXPECT_TRUE(ListDir(Db).empty());
    Changes(*Engine).MakeAlbum(u"Park"_s);
    EXPECT_FALSE(Engine->IsSessionStored());
    EXPECT_TRUE(Engine->SessionProblem());
    ASSERT_TRUE(QDir().rmdir(Db) && QDir().rename(Away, Db));
    Engine->FinalizeDB();
    EXPECT_EQ(ContentOf(*Engine), AllRecords(Dir.Path()));
    EXPECT_FALSE(Engine->SessionProblem());
}

TEST_F(SessionTest, InADirectoryOfSomebodyElseItIsToldAndNothingGoes) {
    if (::geteuid() != 0) GTEST_SKIP() << "needs another user";
    const auto Before = AllRecords(Dir.Path());
    ASSERT_TRUE(QFile::setPermissions(Dir.Path(), QFile::permissions(Dir.Path()) |
                                                      QFileDevice::ReadOther |
                                                      QFileDevice::ExeOther));
    {
        const WithoutPrivileges Other;
        const auto Engine = Begin();
        Changes(*Engine).MakeAlbum(u"Garden"_s);
        EXPECT_FALSE(Engine->IsSessionStored());
        EXPECT_TRUE(Engine->SessionProblem());
        EXPECT_THROW(Engine->FinalizeDB(), Fault);
        EXPECT_TRUE(Engine->FindAlbum(0, u"Garden"_s));
    }
    EXPECT_EQ(Before, AllRecords(Dir.Path()));
}

// A kill between the two would leave pictures that no record names.
TEST_F(SessionTest, TheNextStartDeletesTheFilesOfWhatWasDeleted) {
    const QStringList Gone = {SlidesFolder(Dir.Path(), 1) + u"00000001.jpg"_s,
                              SoundTracksFolder(Dir.Path(), 1) + u"00000001_1.mp3"_s,
                              SlidesFolder(Dir.Path(), 2) + u"00000002.jpg"_s,
                              SoundTracksFolder(Dir.Path(), 2) + u"00000002_1.mp3"_s};
    const QString Other = SlidesFolder(Dir.Path(), 1) + u"00000003.jpg"_s;
    {
        const auto Engine = Begin();
        Changes(*Engine).DeleteSlide(1, 1);
        Changes(*Engine).DeleteShow(1, 1);
        Changes(*Engine).DeleteAlbum(2);
        for (const QString& Path : Gone + QStringList{Other}) {
            MakeDirs(GetFilePath(Path));
            WriteFile(Path, "x");
        }
    }
    OpenEngine(Dir.Path(), Recovery::InMemory);
    for (const QString& Path : Gone) EXPECT_TRUE(FileExists(Path));
    OpenEngine(Dir.Path());
    for (const QString& Path : Gone) EXPECT_FALSE(FileExists(Path)) << qPrintable(Path);
    EXPECT_FALSE(FolderExists(AlbumFolder(Dir.Path(), 2)));
    EXPECT_TRUE(FileExists(Other));
}

TEST_F(SessionTest, AFileThatCannotGoBarsNobodyFromHisAlbums) {
    const QString Sums = AlbumFolder(Dir.Path(), 1) + u"Sums.sha256"_s;
    MakeDirs(GetFilePath(Sums));
    WriteFile(Sums, "");
    {
        const auto Engine = Begin();
        Changes(*Engine).DeleteAlbum(1);
        Changes(*Engine).DeleteAlbum(2);
        MakeDirs(SlidesFolder(Dir.Path(), 2));
    }
    SetHostWatcher([&](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Delete && Path == Sums) throw Fault(u"no"_s, Path);
    });
    EXPECT_EQ(2, OpenEngine(Dir.Path())->Found().Changes);
    EXPECT_TRUE(FileExists(Sums));
    EXPECT_FALSE(FolderExists(AlbumFolder(Dir.Path(), 2))) << "the others go all the same";
}

// A write of all records that did not come to its end.
class LeftJournal : public SessionTest {
  protected:
    // Leaves a whole journal; what it holds.
    std::map<std::string, QByteArray> LeaveJournal() const {
        const auto Engine = OpenEngine(Dir.Path());
        Changes(*Engine).MakeAlbum(u"Garden"_s);
        SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
            if (Step == HostStep::Delete && Path.endsWith(u".dat"_s)) throw Fault(u"Gone."_s);
        });
        EXPECT_THROW(Engine->FinalizeDB(), Fault);
        SetHostWatcher({});
        return ContentOf(*Engine);
    }
    QStringList KeptAside() const {
        QStringList Names;
        for (const DirEntry& Each : ListDir(GetFilePath(JournalPath(Dir.Path()))))
            if (Each.Name.startsWith(u"Records ")) Names << Each.Name;
        return Names;
    }
};

TEST_F(LeftJournal, IsCarriedOut) {
    const auto Held = LeaveJournal();
    const auto Engine = OpenEngine(Dir.Path());
    EXPECT_EQ(Held, ContentOf(*Engine));
    EXPECT_TRUE(Engine->Found().PutAside.isEmpty());
    EXPECT_TRUE(KeptAside().isEmpty());
}

TEST_F(LeftJournal, IsCarriedOutOverWhatALossOfPowerHasKeptFromTheDisk) {
    const auto Held = LeaveJournal();
    const QByteArray& Albums = Held.at("Albums.dat");
    WriteFile(Dir / u"Albums.dat"_s, Albums.first(7).leftJustified(Albums.size(), '\0'));
    EXPECT_EQ(JournalState::Whole, ReadJournal(Dir.Path()));
    EXPECT_EQ(Held, ContentOf(*OpenEngine(Dir.Path())));
}

TEST_F(LeftJournal, IsPutAsideWhereOtherRecordsWerePutThere) {
    LeaveJournal();
    for (const char* Name : {"Slides.dat", "Properties.dat", "NextIDs.dat"}) {
        WriteFile(Dir / QLatin1String(Name), FileBytes(Dir.Path(), Name) + "replaced");
    }
    const auto Lying = AllRecords(Dir.Path());
    EXPECT_EQ(JournalState::Foreign, ReadJournal(Dir.Path()));
    OpenEngine(Dir.Path(), Recovery::InMemory);
    EXPECT_TRUE(KeptAside().isEmpty());
    const auto Engine = OpenEngine(Dir.Path());
    EXPECT_EQ(Lying, AllRecords(Dir.Path()));
    EXPECT_FALSE(Engine->FindAlbum(0, u"Garden"_s));
    EXPECT_EQ(1, Engine->Found().PutAside.size());
    EXPECT_EQ(1, KeptAside().size());
    EXPECT_EQ(JournalState::None, ReadJournal(Dir.Path()));
}

TEST_F(LeftJournal, IsPutAsideWhereItIsDamaged) {
    LeaveJournal();
    QByteArray Journal = ReadFile(JournalPath(Dir.Path()));
    Journal[Journal.size() / 2] ^= 1;
    WriteFile(JournalPath(Dir.Path()), Journal);
    const auto Lying = AllRecords(Dir.Path());
    const auto Engine = OpenEngine(Dir.Path());
    EXPECT_EQ(Lying, AllRecords(Dir.Path()));
    EXPECT_EQ(1, Engine->Found().PutAside.size());
    EXPECT_EQ(1, KeptAside().size());
}

TEST_F(LeftJournal, OfAnEarlierVersionIsCarriedOut) {
    const auto Held = LeaveJournal();
    QByteArray Journal = ReadFile(JournalPath(Dir.Path()));
    Journal = "NEBJRNL1" + Journal.sliced(8, 2 * 8 * 8) +
              Journal.sliced(8 + 2 * 8 * 8 + 8 * 40).chopped(32);
    Journal += QCryptographicHash::hash(Journal, QCryptographicHash::Blake2b_256);
    WriteFile(JournalPath(Dir.Path()), Journal);
    EXPECT_EQ(Held, ContentOf(*OpenEngine(Dir.Path())));
    EXPECT_EQ(Held, AllRecords(Dir.Path()));
}

}  // namespace
}  // namespace neb
