// The rules of names, listings, wild cards and read-only files.
#include "support/files/modHostFiles.h"

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/stat.h>
#include <QDir>
#include <QFile>
#include <csignal>
#include <fstream>

#include "harness/TempFolder.h"
#include "support/Fault.h"

namespace neb {
namespace {

using harness::TempFolder;

TEST(HostFiles, ANameThatDiffersInCaseIsFound) {
    TempFolder Dir;
    WriteFile(Dir / "00000012.jpg", "x");
    EXPECT_TRUE(FileExists(Dir / "00000012.JPG"));
    EXPECT_EQ(ReadFile(Dir / "00000012.JPG"), "x");
    EXPECT_EQ(ResolvePath(Dir / "00000012.JPG"), Dir / "00000012.jpg");
}

TEST(HostFiles, ADirectoryThatDiffersInCaseIsFound) {
    TempFolder Dir;
    MakeDirs(Dir / "Albums/7/Slides");
    EXPECT_TRUE(FolderExists(Dir / "ALBUMS\\7\\slides"));
    WriteFile(Dir / "albums/7/SLIDES/a.txt", "a");
    EXPECT_TRUE(FileExists(Dir / "Albums/7/Slides/a.txt"));
}

TEST(HostFiles, AnExactNameWinsOverOneThatDiffersInCase) {
    TempFolder Dir;
    WriteFile(Dir / "a.txt", "lower");
    QFile Upper(Dir / "A.txt");
    ASSERT_TRUE(Upper.open(QIODevice::WriteOnly));
    Upper.write("upper");
    Upper.close();
    EXPECT_EQ(ReadFile(Dir / "a.txt"), "lower");
    EXPECT_EQ(ReadFile(Dir / "A.txt"), "upper");
}

TEST(HostFiles, NamesMadeAndRemovedByOthersAreNoticed) {
    TempFolder Dir;
    EXPECT_FALSE(FileExists(Dir / "A.TXT"));
    QFile Other(Dir / "a.txt");
    ASSERT_TRUE(Other.open(QIODevice::WriteOnly));
    Other.close();
    EXPECT_TRUE(FileExists(Dir / "A.TXT"));
    Other.remove();
    EXPECT_FALSE(FileExists(Dir / "A.TXT"));
}

TEST(HostFiles, NamesMadeAndRemovedByTheProgramAreNoticed) {
    TempFolder Dir;
    for (int I = 0; I < 200; ++I) {
        const QString Name = QString::number(I);
        EXPECT_FALSE(FileExists(Dir / (Name + "X.JPG")));
        WriteFile(Dir / (Name + "x.jpg"), "x");
        EXPECT_TRUE(FileExists(Dir / (Name + "X.JPG")));
        RenameFile(Dir / (Name + "x.jpg"), Dir / (Name + "y.jpg"));
        EXPECT_FALSE(FileExists(Dir / (Name + "X.JPG")));
        EXPECT_TRUE(FileExists(Dir / (Name + "Y.JPG")));
        DeleteFile(Dir / (Name + "Y.jpg"));
        EXPECT_FALSE(FileExists(Dir / (Name + "Y.JPG")));
    }
}

TEST(HostFiles, AListingIsInTheOrderOfTheUpperCasedNames) {
    TempFolder Dir;
    for (const char* Name : {"b", "C", "a", "_", "Z"}) WriteFile(Dir / Name, {});
    QStringList Names;
    for (const DirEntry& Entry : ListDir(Dir.Path())) Names << Entry.Name;
    EXPECT_EQ(Names, QStringList({"a", "b", "C", "Z", "_"}));
}

TEST(HostFiles, StarDotStarIsEverythingButDirectories) {
    TempFolder Dir;
    WriteFile(Dir / "noext", {});
    WriteFile(Dir / "a.b.c", {});
    MakeDirs(Dir / "sub");
    EXPECT_EQ(ListMask(Dir / "*.*"), QStringList({"a.b.c", "noext"}));
}

TEST(HostFiles, AMaskMatchesWithoutRegardToCase) {
    TempFolder Dir;
    for (const char* Name : {"00000012.jpg", "00000012Small.bmp", "00000012.WAV", "00000123.jpg"})
        WriteFile(Dir / Name, {});
    EXPECT_EQ(ListMask(Dir / "00000012.*"), QStringList({"00000012.jpg", "00000012.WAV"}));
    EXPECT_EQ(ListMask(Dir / "00000012SMALL.*"), QStringList({"00000012Small.bmp"}));
    EXPECT_EQ(ListMask(Dir / "0000012?.jpg"), QStringList({"00000123.jpg"}));
}

TEST(HostFiles, AMaskFindsNamesThatDifferInCaseAloneAndFollowsWhatComesAndGoes) {
    const TempFolder Dir;
    for (const char* Name : {"12.jpg", "12.JPG", "12.wav", "12Small.bmp", "123.jpg", "1.jpg"})
        std::ofstream((Dir / QString::fromLatin1(Name)).toStdString()) << "x";
    MakeDirs(Dir / "12.dir");
    EXPECT_EQ(QStringList({"12.JPG", "12.jpg", "12.wav"}), ListMask(Dir / "12.*"));
    DeleteFile(Dir / "12.jpg");
    EXPECT_EQ(QStringList({"12.JPG", "12.wav"}), ListMask(Dir / "12.*"));
    WriteFile(Dir / "12.png", "x");
    EXPECT_EQ(QStringList({"12.JPG", "12.png", "12.wav"}), ListMask(Dir / "12.*"));
    EXPECT_EQ(QStringList({"12Small.bmp"}), ListMask(Dir / "12small.*"));
    EXPECT_EQ(QStringList(), ListMask(Dir / "nowhere/12.*"));
    RenameFile(Dir / "1.jpg", Dir / "12.mp3");
    EXPECT_EQ(QStringList({"12.JPG", "12.mp3", "12.png", "12.wav"}), ListMask(Dir / "12.*"));
}

TEST(HostFiles, DeletingAMaskLeavesTheRest) {
    TempFolder Dir;
    for (const char* Name : {"1.a", "1.b", "12.a"}) WriteFile(Dir / Name, {});
    DeleteMask(Dir / "1.*");
    EXPECT_EQ(ListMask(Dir / "*.*"), QStringList({"12.a"}));
}

TEST(HostFiles, AFileWithNoWriteBitIsReadOnly) {
    TempFolder Dir;
    WriteFile(Dir / "a", "x");
    EXPECT_FALSE(IsReadOnly(Dir / "a"));
    QFile::setPermissions(Dir / "a", QFileDevice::ReadOwner);
    EXPECT_TRUE(IsReadOnly(Dir / "a"));
}

TEST(HostFiles, AMissingDirectoryIsNotReadable) {
    TempFolder Dir;
    bool Readable = true;
    EXPECT_TRUE(ListDir(Dir / "gone", &Readable).empty());
    EXPECT_FALSE(Readable);
    EXPECT_TRUE(ListDir(Dir.Path(), &Readable).empty());
    EXPECT_TRUE(Readable);
}

TEST(HostFiles, APipeIsNoFileToWaitFor) {
    TempFolder Dir;
    ASSERT_EQ(mkfifo(qPrintable(Dir / "x.jpg"), 0600), 0);
    EXPECT_FALSE(CanReadFile(Dir / "x.jpg"));
    EXPECT_THROW(ReadFile(Dir / "x.jpg"), Fault);
}

TEST(HostFiles, AFaultNamesTheFile) {
    TempFolder Dir;
    try {
        ReadFile(Dir / "gone");
        FAIL();
    } catch (const Fault& Problem) {
        EXPECT_EQ(Problem.File(), Dir / "gone");
        EXPECT_TRUE(Problem.Text().contains("cannot be read"));
    }
}

TEST(HostFiles, AReplacedFileIsTheOldOneWhenTheDiskIsFull) {
    TempFolder Dir;
    WriteFile(Dir / "a", "old");
    SetHostWatcher([](HostStep Step, const QString&, qint64& Length) {
        if (Step == HostStep::Write) Length = 1;
    });
    EXPECT_THROW(ReplaceFile(Dir / "a", "new content"), Fault);
    SetHostWatcher({});
    EXPECT_EQ(ReadFile(Dir / "a"), "old");
    EXPECT_EQ(ListDir(Dir.Path()).size(), 1u) << "a part of the new one";
}

TEST(HostFiles, ACopyOfSeveralPiecesIsWholeAndTellsOfEach) {
    const TempFolder Dir;
    const QByteArray Content = QByteArray(5 << 20, 'a') + QByteArray(5 << 20, 'b');
    WriteFile(Dir / "from", Content);
    WriteFile(Dir / "to", "old");
    int Pieces = 0;
    CopyFile(Dir / "from", Dir / "to", [&] { ++Pieces; });
    EXPECT_EQ(Content, ReadFile(Dir / "to"));
    EXPECT_GE(Pieces, 2);
    EXPECT_EQ(2u, ListDir(Dir.Path()).size());
}

TEST(HostFiles, ACopyThatFailsLeavesWhatWasThere) {
    const TempFolder Dir;
    WriteFile(Dir / "from", QByteArray(10 << 20, 'a'));
    WriteFile(Dir / "to", "old");
    SetHostWatcher([Written = 0](HostStep Step, const QString& Path, qint64&) mutable {
        if (Step == HostStep::Write && ++Written == 2) throw Fault("The disk is full.", Path);
    });
    EXPECT_THROW(CopyFile(Dir / "from", Dir / "to"), Fault);
    SetHostWatcher({});
    EXPECT_EQ("old", ReadFile(Dir / "to"));
    EXPECT_EQ(2u, ListDir(Dir.Path()).size());
    EXPECT_THROW(CopyFile(Dir / "gone", Dir / "to"), Fault);
    EXPECT_EQ("old", ReadFile(Dir / "to"));
}

TEST(HostFiles, AWriterGivesBackWhatItWasGiven) {
    TempFolder Dir;
    QByteArray Expected;
    HostWriter Writer(Dir / "a");
    for (int I = 0; I < 5000; ++I) {
        const QByteArray Piece(I % 700, static_cast<char>(I));
        Writer.Write(Piece.constData(), Piece.size());
        Expected += Piece;
    }
    Writer.Sync();
    Writer.Close();
    EXPECT_EQ(ReadFile(Dir / "a"), Expected);
}

// The host writes a part of it and gives its reason at the next call alone.
TEST(HostFiles, AWriteThatFindsNoRoomSaysSo) {
    TempFolder Dir;
    rlimit Before = {};
    ASSERT_EQ(0, ::getrlimit(RLIMIT_FSIZE, &Before));
    ::signal(SIGXFSZ, SIG_IGN);
    const rlimit Small = {1000, Before.rlim_max};
    ASSERT_EQ(0, ::setrlimit(RLIMIT_FSIZE, &Small));
    QString Said;
    try {
        WriteFile(Dir / "a", QByteArray(5000, 'x'));
    } catch (const Fault& Problem) {
        Said = Problem.What();
    }
    ASSERT_EQ(0, ::setrlimit(RLIMIT_FSIZE, &Before));
    EXPECT_EQ(1000, FileSize(Dir / "a"));
    EXPECT_TRUE(Said.contains(qt_error_string(EFBIG))) << qPrintable(Said);
}

TEST(HostFiles, AReaderRefusesAPipeAtOnce) {
    TempFolder Dir;
    ASSERT_EQ(::mkfifo(QFile::encodeName(Dir / "pipe").constData(), 0600), 0);
    EXPECT_THROW(HostReader(Dir / "pipe"), Fault);
    EXPECT_THROW(ReadFile(Dir / "pipe"), Fault);
}

TEST(HostFiles, ALinkThatLeadsNowhereIsANameButNoFile) {
    TempFolder Dir;
    QFile::link("nowhere", Dir / "link");
    EXPECT_TRUE(NameExists(Dir / "link"));
    EXPECT_FALSE(FileExists(Dir / "link"));
    EXPECT_FALSE(NameExists(Dir / "nothing"));
    EXPECT_TRUE(NameExists(Dir.Path()));
}

TEST(HostFiles, TheFilesInADirectoryGoAndItsDirectoriesStay) {
    TempFolder Dir;
    for (const char* Name : {"set/a.jpg", "set/no ending", "set/.hidden", "set/sub/b.jpg"}) {
        MakeDirs((Dir / QString(Name)).section(u'/', 0, -2));
        WriteFile(Dir / Name, "x");
    }
    int Steps = 0;
    DeleteFilesIn(Dir / "SET/", [&] { ++Steps; });
    EXPECT_GE(Steps, 3);
    EXPECT_EQ(ListDir(Dir / "set").size(), 1u);
    EXPECT_TRUE(FileExists(Dir / "set/sub/b.jpg"));
    DeleteFolder(Dir / "set/");
    EXPECT_TRUE(FolderExists(Dir / "set")) << "something is left in it";
    DeleteFilesIn(Dir / "set/sub");
    DeleteFolder(Dir / "set/sub");
    EXPECT_FALSE(NameExists(Dir / "set/sub"));
    DeleteFilesIn(Dir / "nothing");
    DeleteFolder(Dir / "nothing");
    DeleteFilesIn({});
    DeleteFolder({});
}

TEST(HostFiles, LinksAreNeverFollowedWhenFilesGo) {
    TempFolder Dir, Elsewhere;
    WriteFile(Elsewhere / "a.jpg", "x");
    MakeDirs(Dir / "set");
    QFile::link(Elsewhere.Path(), Dir / "set/link");
    EXPECT_TRUE(IsLink(Dir / "set/link"));
    EXPECT_TRUE(IsLink(Dir / "set/link/"));
    EXPECT_FALSE(IsLink(Dir / "set/"));
    DeleteFilesIn(Dir / "set/link/");
    EXPECT_TRUE(FileExists(Elsewhere / "a.jpg"));
    DeleteFilesIn(Dir / "set/");
    EXPECT_TRUE(ListDir(Dir / "set").empty());
    QFile::link(Elsewhere.Path(), Dir / "set/link");
    DeleteFolder(Dir / "set/link/");
    EXPECT_FALSE(NameExists(Dir / "set/link"));
    EXPECT_TRUE(FileExists(Elsewhere / "a.jpg"));
}

TEST(HostFiles, AFileThatCannotGoKeepsNoOtherFromGoing) {
    TempFolder Dir;
    for (const char* Name : {"a", "b", "c"}) WriteFile(Dir / Name, "x");
    SetHostWatcher([](HostStep, const QString& Path, qint64&) {
        if (Path.endsWith(u"b")) throw Fault("in use", Path);
    });
    DeleteFilesIn(Dir.Path());
    SetHostWatcher({});
    EXPECT_EQ(ListMask(Dir / "*.*"), QStringList("b"));
}

TEST(HostFiles, BelowAFolderThatIsGoneNothingIsMade) {
    const TempFolder Dir;
    const QString Base = Dir / "disk/";
    EXPECT_THROW(MakeDirsIn(Base, Base + "Temp/Journal/"), Fault);
    EXPECT_FALSE(FolderExists(Base));
    MakeDirs(Base);
    MakeDirsIn(Base, Base + "Temp/Journal/");
    EXPECT_TRUE(FolderExists(Base + "Temp/Journal"));
    MakeDirsIn(Base, Base + "Temp");  // as it is
}

TEST(HostFiles, OnlyRelativePathsAreMadeAbsolute) {
    EXPECT_EQ(AbsolutePath("db", "/a/b/"), u"/a/b/db");
    EXPECT_EQ(AbsolutePath("../c\\d", "/a/b/"), u"/a/c/d");
    EXPECT_EQ(AbsolutePath("/x/../y", "/a"), u"/x/../y");
    EXPECT_EQ(AbsolutePath("D:\\Pictures", "/a"), u"D:\\Pictures");
    EXPECT_EQ(AbsolutePath("\\\\host\\share", "/a"), u"\\\\host\\share");
    EXPECT_EQ(AbsolutePath(".", {}), QDir::currentPath());
}

}  // namespace
}  // namespace neb
