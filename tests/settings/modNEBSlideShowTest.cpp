#include "settings/modNEBSlideShow.h"

#include <QDir>
#include <QFile>

#include "db/records/modJournal.h"
#include "harness/FolderState.h"
#include "harness/ScriptedBoxes.h"
#include "harness/TempFolder.h"
#include "settings/ProgramFiles.h"
#include "settings/clsFileSystem.h"
#include "support/Fault.h"
#include "support/Services.h"
#include "support/files/modHostFiles.h"

using namespace neb;
using namespace neb::harness;

namespace {

class StoppedClock : public Clock {
  public:
    QDateTime At{QDate(2004, 2, 3), QTime(14, 5, 59)};
    QDateTime Now() const override { return At; }
    double Ticks() const override { return 0; }
};

// A documents and a program folder of its own, and the globals as they were afterwards.
struct ShellTest : ::testing::Test {
    TempFolder Documents, Program, Own;
    clsFileSystem Files;

    void SetUp() override {
        SetDocumentsPath(Documents.Path());
        AppPathCache = Program.Path();
        OwnPathCache = Own.Path();
        FileSystem = &Files;
    }
    void TearDown() override {
        SetHostWatcher({});
        FileSystem = nullptr;
        ReadOnlyDB = false;
        AppPathCache.clear();
        OwnPathCache.clear();
        DBPathCache.clear();
        DocumentsPath.clear();
    }
    QString Home() const { return Documents / QStringLiteral("NEB/NEB Slide Show/"); }
    QString WithDBPath(const QByteArray& Value) const {
        MakeDirs(Home());
        WriteFile(Home() + QStringLiteral("QLM.ini"), "[General]\nDBPath=" + Value + "\n");
        DBPathCache.clear();
        return DBPath();
    }
};

// What stands in the journal of a write that is broken off behind it.
QByteArray JournalOf(const QString& Dir) {
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Sync && Path.endsWith(u".dat")) throw Fault({}, Path);
    });
    EXPECT_THROW(WriteDatabase(Dir, {}), Fault);
    SetHostWatcher({});
    return ReadFile(JournalPath(Dir));
}

bool Accepts(const char16_t* Text) {
    for (const QChar Character : QStringView(Text))
        if (!IsLegalChar(Character)) return false;
    return true;
}

}  // namespace

TEST_F(ShellTest, TheDatabaseLiesBesideTheSettingsUnlessTheFileSaysOtherwise) {
    EXPECT_EQ(Home(), DBPath());
    EXPECT_EQ(Home(), SettingsDir());
    EXPECT_EQ(u"QLM.ini", INIFileName());
    EXPECT_EQ(Home() + INIFileName(), OpenSettings().FileName());
}

TEST_F(ShellTest, FoldersMayHaveNamesOfEveryScript) {
    for (const char* Name : {"Документы", "Øyvind", "山田 太郎", "مستندات", "Ελλάδα 🌹"}) {
        const QString Place = Documents / QString::fromUtf8(Name) + u'/';
        SetDocumentsPath(Place);
        DBPathCache.clear();
        EXPECT_EQ(Place + QStringLiteral("NEB/NEB Slide Show/"), DBPath());
        MakeDirs(SettingsDir());
        clsSettings Settings = OpenSettings();
        Settings.PutValue(QStringLiteral("General"), QStringLiteral("DBPath"),
                          Place + QString::fromUtf8(Name));
        Settings.Save();
        DBPathCache.clear();
        EXPECT_EQ(Place + QString::fromUtf8(Name) + u'/', DBPath());
        EXPECT_TRUE(ReadFile(SettingsDir() + INIFileName()).contains(QByteArray(Name)))
            << "in letters that people can read";
    }
}

TEST_F(ShellTest, ADBPathOfTheSettingsGetsItsClosingSeparator) {
    EXPECT_EQ(u"/srv/pictures/", WithDBPath("/srv/pictures"));
    EXPECT_EQ(u"/srv/pictures/", WithDBPath("/srv/pictures/"));
    EXPECT_EQ(u"D:\\Pictures\\", WithDBPath("D:\\Pictures"));
    EXPECT_EQ(u"D:\\Pictures\\", WithDBPath("D:\\Pictures\\"));
    EXPECT_EQ(u"/srv/My Pictures/", WithDBPath("\"/srv/My Pictures\""));
}

TEST_F(ShellTest, RelativePathsMeanTheSameWhereverTheProgramWasStarted) {
    EXPECT_EQ(Home() + QStringLiteral("albums/"), WithDBPath("albums"));
    EXPECT_EQ(Documents / QStringLiteral("NEB/albums/"), WithDBPath("../albums/"));
    const QString Before = QDir::currentPath();
    QDir::setCurrent(Documents.Path());
    SetDocumentsPath(QStringLiteral("stick"));
    QDir::setCurrent(Before);
    EXPECT_EQ(Documents / QStringLiteral("stick/NEB/NEB Slide Show/"), DBPath());
    SetDocumentsPath(Documents.Path());
}

TEST_F(ShellTest, AnEmptyDBPathCountsAsNone) {
    EXPECT_EQ(Home(), WithDBPath(""));
    EXPECT_EQ(Home(), WithDBPath("   "));
}

TEST_F(ShellTest, TheDatabasePathIsAskedForOnce) {
    EXPECT_EQ(Home(), DBPath());
    MakeDirs(Home());
    WriteFile(Home() + INIFileName(), "[General]\nDBPath=/elsewhere\n");
    EXPECT_EQ(Home(), DBPath());
    SetDocumentsPath(Documents.Path());
    EXPECT_EQ(u"/elsewhere/", DBPath()) << "until the documents move";
}

TEST_F(ShellTest, AskingForThePathsWritesNothing) {
    DBPath();
    EXPECT_FALSE(FileExists(Home() + INIFileName()));
}

TEST_F(ShellTest, ADirectoryWithCountersIsTheDatabaseThatTheUserMeans) {
    WriteFile(Documents / QStringLiteral("nextids.DAT"), "x");
    WithDBPath("/elsewhere");
    EXPECT_EQ(Documents.Path(), DatabaseIn(Documents.Path())) << "whatever lies below it";
    QString Path = Documents.Path();
    Path.chop(1);
    EXPECT_EQ(Documents.Path(), DatabaseIn(Path));
}

TEST_F(ShellTest, ADirectoryWithAWholeJournalIsADatabaseATornOneIsNot) {
    MakeDirs(Home());
    const QByteArray Journal = JournalOf(Program.Path());
    MakeDirs(Documents / QStringLiteral("Temp/Journal"));
    WriteFile(JournalPath(Documents.Path()), Journal);
    EXPECT_EQ(Documents.Path(), DatabaseIn(Documents.Path()));
    WriteFile(JournalPath(Documents.Path()), Journal.chopped(1));
    EXPECT_EQ(Home(), DatabaseIn(Documents.Path()));
}

TEST_F(ShellTest, ADocumentsFolderMeansTheDatabaseThatTheProgramKeepsBelowIt) {
    MakeDirs(Home());
    EXPECT_EQ(Home(), DatabaseIn(Documents.Path())) << "with records or without, as the program";
    EXPECT_EQ(Home(), DatabaseIn(Documents / QStringLiteral("NEB")));
    EXPECT_EQ(Home(), DatabaseIn(Home()));
    for (const char* Value : {"/elsewhere/pictures", "albums", "../albums", ""}) {
        const QString Expected = WithDBPath(Value);
        EXPECT_EQ(Expected, DatabaseIn(Documents.Path())) << Value;
        EXPECT_EQ(Expected, DatabaseIn(Documents / QStringLiteral("NEB/"))) << Value;
        EXPECT_EQ(Expected, DatabaseIn(Home())) << Value;
    }
}

TEST_F(ShellTest, TheFolderOfTheSettingsWithRecordsIsOneOfThemAllTheSame) {
    WithDBPath("/elsewhere");
    WriteFile(Home() + QStringLiteral("NextIDs.dat"), "x");
    EXPECT_EQ(u"/elsewhere/", DatabaseIn(Documents.Path())) << "there the program looks";
    EXPECT_EQ(Home(), DatabaseIn(Home())) << "the user has named it";
}

TEST_F(ShellTest, ADocumentsFolderIsFoundInTheCaseThatADiscGivesIt) {
    const QString Disc = Documents / QStringLiteral("NEB/NEB SLIDE SHOW/");
    MakeDirs(Disc);
    EXPECT_EQ(Disc, DatabaseIn(Documents.Path()));
    EXPECT_EQ(Disc, DatabaseIn(Documents / QStringLiteral("neb")));
    WriteFile(Disc + QStringLiteral("QLM.INI"), "[General]\nDBPath=albums\n");
    EXPECT_EQ(Disc + QStringLiteral("albums/"), DatabaseIn(Documents.Path()));
}

TEST_F(ShellTest, ARelativeDirectoryIsUnderstoodFromTheWorkingDirectory) {
    MakeDirs(Home());
    const QString Before = QDir::currentPath();
    QDir::setCurrent(Documents / QStringLiteral("NEB"));
    EXPECT_EQ(Home(), AbsolutePath(DatabaseIn(QStringLiteral("."))) + u'/');
    EXPECT_EQ(Home(), AbsolutePath(DatabaseIn(QStringLiteral(".."))) + u'/');
    QDir::setCurrent(Before);
}

TEST_F(ShellTest, AnyOtherDirectoryMeansItself) {
    EXPECT_EQ(Documents.Path(), DatabaseIn(Documents.Path()));
    EXPECT_EQ(u"/nowhere/at/all/", DatabaseIn(QStringLiteral("/nowhere/at/all")));
    MakeDirs(Documents / QStringLiteral("NEB Slide Show"));
    EXPECT_EQ(Documents.Path(), DatabaseIn(Documents.Path())) << "the maker's folder bears a name";
}

TEST_F(ShellTest, LookingForADatabaseChangesNothing) {
    WithDBPath("albums");
    const QStringList Before = Everything(Documents.Path());
    DatabaseIn(Documents.Path());
    EXPECT_EQ("", Differences(Before, Everything(Documents.Path())));
    EXPECT_EQ(Documents.Path(), DocumentsPath);
}

TEST_F(ShellTest, AnotherDocumentsFolderOverridesTheUsersOwn) {
    const TempFolder Stick;
    QString Path = Stick.Path();
    Path.chop(1);
    SetDocumentsPath(Path);
    EXPECT_EQ(Stick / QStringLiteral("NEB/NEB Slide Show/"), DBPath());
}

TEST_F(ShellTest, TheProgramsFolderEndsWithASeparatorAndIsCached) {
    EXPECT_EQ(Program.Path(), AppPath());
    AppPathCache.clear();
    EXPECT_EQ(QCoreApplication::applicationDirPath() + u'/', AppPath());
    EXPECT_EQ(AppPath(), AppPathCache);
}

TEST_F(ShellTest, TheProgramsFilesLieBesideItOrInTheSharedFolderOfAnInstalledOne) {
    EXPECT_EQ(Program / "bin/", ProgramFilesOf(Program / "bin"));
    MakeDirs(Program / "share/neb-slide-show");
    EXPECT_EQ(Program / "bin/", ProgramFilesOf(Program / "bin"));
    WriteFile(Program / "share/neb-slide-show/NoSlide.bmp", "");
    EXPECT_EQ(Program / "share/neb-slide-show/", ProgramFilesOf(Program / "bin"));
}

TEST_F(ShellTest, ALogLineIsTimeLevelAndTextWithTabs) {
    StoppedClock Stopped;
    Clock* const Before = std::exchange(TheServices().Time, &Stopped);
    LogMessage(QStringLiteral("Information"), QStringLiteral("Showing Main Form"));
    Stopped.At = QDateTime(QDate(2004, 11, 30), QTime(0, 0));
    LogMessage(QStringLiteral("Information"), QStringLiteral("Größe"));
    TheServices().Time = Before;
    EXPECT_EQ(
        "02-03-2004 14:05\tInformation\tShowing Main Form\n"
        "11-30-2004 00:00\tInformation\tGröße\n",
        ReadFile(Own / QStringLiteral("QLM.log")).toStdString());
}

TEST_F(ShellTest, ALogThatCannotBeWrittenIsPassedOver) {
    SetHostWatcher([](HostStep, const QString& Path, qint64&) {
        throw Fault(QStringLiteral("read-only"), Path);
    });
    EXPECT_NO_THROW(LogMessage(QStringLiteral("Information"), QStringLiteral("x")));
    SetHostWatcher({});
    WriteFile(Own / QStringLiteral("file"), "x");
    OwnPathCache = Own / QStringLiteral("file/");
    EXPECT_NO_THROW(LogMessage(QStringLiteral("Information"), QStringLiteral("x")));
}

TEST_F(ShellTest, NothingIsLoggedBesideTheProgramOrTheAlbums) {
    OwnPathCache = Own / QStringLiteral("new/");
    LogMessage(QStringLiteral("Information"), QStringLiteral("x"));
    EXPECT_TRUE(FileExists(Own / QStringLiteral("new/QLM.log")));
    EXPECT_TRUE(ListDir(Program.Path()).empty());
    EXPECT_TRUE(ListDir(Documents.Path()).empty());
}

TEST_F(ShellTest, TheUsersOwnFolderIsThatOfHisSettingsForPrograms) {
    OwnPathCache.clear();
    EXPECT_EQ(
        QString::fromUtf8(qgetenv("XDG_CONFIG_HOME")) + QStringLiteral("/NEB/NEB Slide Show/"),
        OwnPath());
    EXPECT_FALSE(FolderExists(OwnPath())) << "asking makes nothing";
}

TEST_F(ShellTest, WhatIsRememberedLiesBesideTheSettings) {
    EXPECT_EQ(SettingsDir(), MemoryDir());
    EXPECT_EQ(OpenSettings().FileName(), OpenMemory().FileName());
    WithDBPath("/elsewhere");
    ReadOnlyDB = true;
    EXPECT_EQ(SettingsDir(), MemoryDir()) << "the settings are not those of the albums";
    EXPECT_TRUE(MayRememberIn(OpenSettings()));
}

TEST_F(ShellTest, BesideAlbumsThatMayNotBeChangedNothingIsRemembered) {
    ReadOnlyDB = true;
    EXPECT_EQ(Own.Path(), MemoryDir());
    EXPECT_EQ(Own / INIFileName(), OpenMemory().FileName());
    EXPECT_TRUE(MayRememberIn(OpenMemory()));
    EXPECT_FALSE(MayRememberIn(OpenSettings()));
}

TEST_F(ShellTest, WhatIsRememberedOfADiscThatIsOpenedAsItLiesOutlastsTheVisit) {
    WriteDatabase(Documents.Path(), {});
    QFile::setPermissions(Documents / QStringLiteral("NextIDs.dat"), QFileDevice::ReadOwner);
    for (const char* Visit : {"first", "second"}) {
        SetDocumentsPath(Documents.Path());
        ASSERT_EQ(Documents.Path(), DBPath());
        clsSettings Memory = OpenMemory();
        const QString Before = Memory.GetValue(QStringLiteral("w"), QStringLiteral("k"), {});
        EXPECT_EQ(qstrcmp(Visit, "first") == 0 ? "" : "first", Before.toStdString());
        Memory.PutValue(QStringLiteral("w"), QStringLiteral("k"), QString::fromLatin1(Visit));
        Memory.Save();
    }
    EXPECT_FALSE(FileExists(Documents / INIFileName()));
}

TEST_F(ShellTest, MakeDirIgnoresWhateverGoesWrong) {
    const QString Dir = Documents / QStringLiteral("Albums");
    MakeDir(Dir);
    EXPECT_TRUE(FolderExists(Dir));
    EXPECT_NO_THROW(MakeDir(Dir));
    WriteFile(Documents / QStringLiteral("File"), "x");
    EXPECT_NO_THROW(MakeDir(Documents / QStringLiteral("File")));
    EXPECT_NO_THROW(MakeDir(Documents / QStringLiteral("File/Below")));
    EXPECT_NO_THROW(MakeDir(QString()));
    SetHostWatcher([](HostStep, const QString& Path, qint64&) {
        throw Fault(QStringLiteral("read-only"), Path);
    });
    EXPECT_NO_THROW(MakeDir(Documents / QStringLiteral("Temp")));
}

TEST_F(ShellTest, LettersDigitsAndTheListedSignsAreLegal) {
    EXPECT_TRUE(Accepts(u"abcxyzABCXYZ0123456789"));
    EXPECT_TRUE(Accepts(u"!#$().,_-~@^:;'<>/\\=+|[]{} "));
    EXPECT_TRUE(IsLegalChar(QChar(8)));
    EXPECT_TRUE(IsLegalChar(QChar(46)));
}

TEST_F(ShellTest, EveryOtherSignIsIllegal) {
    for (const QChar Character : QStringLiteral("\"%&*?`äöüßÄéÿ\n\r\t€"))
        EXPECT_FALSE(IsLegalChar(Character)) << int(Character.unicode());
    EXPECT_FALSE(IsLegalChar(QChar(0)));
    EXPECT_FALSE(IsLegalChar(QChar(0x7f)));
}

TEST_F(ShellTest, IllegalSignsAreNamedOnceEachInTheirOrder) {
    EXPECT_EQ("", IllegalChars(QStringLiteral("Summer (2003)")));
    EXPECT_EQ("", IllegalChars(QString()));
    EXPECT_EQ("*?", IllegalChars(QStringLiteral("a*b?c*d")));
    EXPECT_EQ("😀😁", IllegalChars(QStringLiteral("a😀b😁c😀"))) << "two units each";
}

TEST_F(ShellTest, APathIsValidWhenItIsAFileThatOpensOrAFolder) {
    const QString File = Documents / QStringLiteral("a.jpg");
    WriteFile(File, "x");
    EXPECT_TRUE(IsPathValid(File));
    EXPECT_TRUE(IsPathValid(Documents.Path()));
    EXPECT_TRUE(IsPathValid(Documents / QStringLiteral("A.JPG"))) << "in another case too";
    EXPECT_FALSE(IsPathValid(Documents / QStringLiteral("b.jpg")));
    EXPECT_FALSE(IsPathValid(QString()));
    EXPECT_TRUE(CanOpenFile(File));
    EXPECT_FALSE(CanOpenFile(Documents.Path()));
    EXPECT_FALSE(CanOpenFile(Documents / QStringLiteral("b.jpg")));
}

TEST_F(ShellTest, NoPathIsValidBeforeTheMainWindowHasLoaded) {
    FileSystem = nullptr;
    EXPECT_FALSE(IsPathValid(Documents.Path()));
}

TEST_F(ShellTest, ADirectoryCanBeListedAFileAndNothingCannot) {
    EXPECT_TRUE(CanListDir(Documents.Path()));
    WriteFile(Documents / QStringLiteral("a.jpg"), "x");
    EXPECT_TRUE(CanListDir(Documents.Path()));
    EXPECT_FALSE(CanListDir(Documents / QStringLiteral("a.jpg")));
    EXPECT_FALSE(CanListDir(Documents / QStringLiteral("missing/")));
}

TEST_F(ShellTest, TheFileSystemObjectTellsFilesFromFoldersAndDeletes) {
    const QString File = Documents / QStringLiteral("a.jpg");
    WriteFile(File, "x");
    EXPECT_TRUE(Files.FileExists(File));
    EXPECT_FALSE(Files.FolderExists(File));
    EXPECT_FALSE(Files.FileExists(Documents.Path()));
    EXPECT_TRUE(Files.FolderExists(Documents.Path()));
    Files.DeleteFile(File);
    EXPECT_FALSE(Files.FileExists(File));
    EXPECT_NO_THROW(Files.DeleteFile(File));
#ifndef _WIN32
    EXPECT_FALSE(Files.DriveExists(QStringLiteral("C:")));
    EXPECT_FALSE(Files.DriveExists(QStringLiteral("/")));
#endif
}
