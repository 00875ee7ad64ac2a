// The search of Find Graphics without its window: filters, types, and the walk.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QProcess>
#include <QThread>

#include "albums/GraphicsSearch.h"
#include "albums/modPictureFiles.h"
#include "harness/ByTheClock.h"
#include "harness/TempFolder.h"
#include "harness/WithoutExtraFormats.h"
#include "harness/WithoutPrivileges.h"
#include "support/files/HostNames.h"
#include "windows/WindowSteps.h"

namespace neb {
namespace {

using namespace harness;

class FindGraphicsSearch : public ::testing::Test {
  protected:
    void Make(const QString& Name) {
        MakeDirs((Pics / Name).left((Pics / Name).lastIndexOf(u'/')));
        WriteFile(Pics / Name, "x");
    }
    // What the walk gives, step by step: the directory, and its files behind a colon.
    QString Walk(const QString& Filter = u"*.*"_s, const QStringList& Types = GraphicTypes(),
                 GraphicsSearch::Lister List = {}) {
        GraphicsSearch Search(Pics.Path().chopped(1), Filter, Types, List, LeftOut);
        QStringList Steps;
        while (Search.Wait(10000) && !Search.AtEnd()) {
            Last = Search.Take();
            const QString At = Last.Directory.mid(Pics.Path().size());
            if (Last.Error) Faults << At + u": "_s + QString::fromStdString(Last.Error.message());
            QStringList Names;
            for (const QStringList& File : Last.Files) {
                EXPECT_TRUE(FileExists(File[1] + File[0]));
                Names << File[0];
            }
            Steps << At + u':' + Names.join(u',');
        }
        return Steps.join(u' ');
    }
    TempFolder Pics;
    QStringList LeftOut;
    SearchStep Last;
    QStringList Faults;
};

TEST(FindGraphicsFilter, IsMadeAMask) {
    const struct {
        const char *Typed, *Mask;
    } Table[] = {{"", "*.*"},
                 {"   ", "*.*"},
                 {"*.*", "*.*"},
                 {"photo.", "photo.*"},
                 {"*.", "*.*"},
                 {"a.b.", "a.b.*"},
                 {"a.jpg", "a.jpg"},
                 {".jpg", ".jpg"},
                 {"photo", "photo*.*"},
                 {"photo*", "photo*"},
                 {"*", "*"},
                 {"ph?to", "ph?to*.*"},
                 {" photo ", " photo *.*"}};
    for (const auto& Row : Table)
        EXPECT_EQ(Row.Mask, NormalFilter(QString::fromLatin1(Row.Typed)).toStdString());
}

TEST(FindGraphicsTypes, MatchTheirExtensions) {
    const harness::WithoutExtraFormats Off;
    EXPECT_EQ("BMP EMF JPEG/JPG PCD PCX PNG PSD TGA TIFF/TIF TLA WBMP WMF",
              GraphicTypes().join(u' ').toStdString());
    for (const char* Known : {".BMP", ".JPEG", ".JPG", ".TIFF", ".TIF", ".WBMP", ".TLA"})
        EXPECT_TRUE(IsSelectedType(QString::fromLatin1(Known), GraphicTypes())) << Known;
    for (const char* Other : {"", ".", ".jpg", ".GIF", ".JPEG/JPG", "JPG", ".MP"})
        EXPECT_FALSE(IsSelectedType(QString::fromLatin1(Other), GraphicTypes())) << Other;
    EXPECT_FALSE(IsSelectedType(u".TIF"_s, {u"JPEG/JPG"_s}));
    EXPECT_FALSE(IsSelectedType(u".JPG"_s, {}));
}

TEST(FindGraphicsTexts, SayTheSizeAndTheDate) {
    EXPECT_EQ("0.0 KB", SizeText(0).toStdString());
    EXPECT_EQ("1.5 KB", SizeText(1536).toStdString());
    EXPECT_EQ("1,234.6 KB", SizeText(1264230).toStdString());
    const auto At = [](int Hour, int Minute) {
        return DateText(QDateTime(QDate(2004, 5, 6), QTime(Hour, Minute)).toSecsSinceEpoch())
            .toStdString();
    };
    EXPECT_EQ("05/06/2004 12:07 AM", At(0, 7));
    EXPECT_EQ("05/06/2004 09:05 AM", At(9, 5));
    EXPECT_EQ("05/06/2004 12:00 PM", At(12, 0));
    EXPECT_EQ("05/06/2004 11:59 PM", At(23, 59));
}

TEST_F(FindGraphicsSearch, WalksDepthFirstADirectorysOwnFilesBeforeThoseBelow) {
    for (const char* Name : {"b.jpg", "A.PNG", "z/1.bmp", "c/2.tif", "c/d/3.wmf", "notes.txt"})
        Make(QString::fromLatin1(Name));
    EXPECT_EQ(":A.PNG,b.jpg c:2.tif c/d:3.wmf z:1.bmp", Walk().toStdString());
}

TEST_F(FindGraphicsSearch, MatchesNamesCaseBlindAndWalksEverySubdirectory) {
    const harness::WithoutExtraFormats Off;
    for (const char* Name :
         {"PHOTO1.jpg", "photograph.png", "myphoto.jpg", "sub/photo.gif", "sub/deep/Photo.Tif"})
        Make(QString::fromLatin1(Name));
    EXPECT_EQ(":PHOTO1.jpg,photograph.png sub: sub/deep:Photo.Tif",
              Walk(u"photo*.*"_s).toStdString());
    EXPECT_EQ(": sub: sub/deep:", Walk(u"*.tif"_s, {u"JPEG/JPG"_s}).toStdString());
    EXPECT_EQ(": sub: sub/deep:", Walk(u"*.*"_s, {}).toStdString());
}

TEST_F(FindGraphicsSearch, ListsNoDirectoryThatIsNamedLikeAPicture) {
    Make(u"holiday.jpg/a.jpg"_s);
    EXPECT_EQ(": holiday.jpg:a.jpg", Walk().toStdString());
}

TEST_F(FindGraphicsSearch, ListsFilesAndDirectoriesAsPeopleReadTheirNames) {
    for (const char* Name :
         {"IMG_10.jpg", "IMG_2.jpg", "img_1.jpg", "Day 10/a.jpg", "Day 9/b.jpg", "day 1/c.jpg"})
        Make(QString::fromLatin1(Name));
    EXPECT_EQ(":img_1.jpg,IMG_2.jpg,IMG_10.jpg day 1:c.jpg Day 9:b.jpg Day 10:a.jpg",
              Walk().toStdString());
}

TEST_F(FindGraphicsSearch, GoesOnPastADirectoryThatMayNotBeRead) {
    for (const char* Name : {"a.jpg", "locked/b.jpg", "locked/c/d.jpg", "z/e.jpg"})
        Make(QString::fromLatin1(Name));
    EXPECT_EQ(0, chmod(qPrintable(Pics.Path()), 0755));
    EXPECT_EQ(0, chmod(qPrintable(Pics / u"locked"_s), 0));
    const WithoutPrivileges User;
    EXPECT_EQ(":a.jpg locked: z:e.jpg", Walk().toStdString());
    EXPECT_EQ("locked: Permission denied", Faults.join(u'|').toStdString());
}

TEST_F(FindGraphicsSearch, LeavesTheProgramsOwnAlbumsOutByWhateverWayItComesToThem) {
    for (const char* Name : {"Albums/1/Slides/1.jpg", "Backups/b.jpg", "Temp/c.jpg", "d.jpg",
                             "Albums 2/e.jpg", "sub/Albums/f.jpg"})
        Make(QString::fromLatin1(Name));
    EXPECT_EQ(0, symlink(qPrintable(Pics / u"Albums/1"_s), qPrintable(Pics / u"way"_s)));
    LeftOut = OwnFolders(Pics.Path());
    EXPECT_EQ(":d.jpg Albums 2:e.jpg sub: sub/Albums:f.jpg", Walk().toStdString());
    GraphicsSearch Inside(Pics / u"Albums/1"_s, u"*.*"_s, GraphicTypes(), {}, LeftOut);
    EXPECT_TRUE(Inside.Wait(10000) && Inside.AtEnd());
}

TEST_F(FindGraphicsSearch, PassesOverHiddenFilesAndFolders) {
    for (const char* Name : {"a.jpg", "._a.jpg", ".thumbs/b.jpg", ".Trash-1000/files/c.jpg",
                             "$RECYCLE.BIN/d.jpg", "sub/e.jpg", "sub/@eaDir/f.jpg"})
        Make(QString::fromLatin1(Name));
    EXPECT_EQ(":a.jpg sub:e.jpg", Walk().toStdString());
}

TEST_F(FindGraphicsSearch, FollowsLinksButNotInCircles) {
    Make(u"a/1.jpg"_s);
    TempFolder Elsewhere;
    WriteFile(Elsewhere / u"2.jpg"_s, "x");
    const auto Link = [](const QString& To, const QString& Name) {
        EXPECT_EQ(0, symlink(qPrintable(To), qPrintable(Name)));
    };
    Link(Pics.Path(), Pics / u"a/up"_s);
    Link(u"."_s, Pics / u"a/self"_s);
    Link(u"nowhere"_s, Pics / u"a/broken.jpg"_s);
    Link(Elsewhere.Path(), Pics / u"b"_s);
    Link(Pics.Path(), Elsewhere / u"back"_s);
    EXPECT_EQ(": a:1.jpg b:2.jpg", Walk().toStdString());
}

TEST_F(FindGraphicsSearch, PassesOverWhatIsNoFileToOpen) {
    Make(u"a.jpg"_s);
    Make(u"locked.jpg"_s);
    EXPECT_EQ(0, mkfifo(qPrintable(Pics / u"pipe.jpg"_s), 0666));
    EXPECT_EQ(0, chmod(qPrintable(Pics / u"locked.jpg"_s), 0));
    EXPECT_EQ(0, chmod(qPrintable(Pics.Path()), 0755));
    const WithoutPrivileges User;
    EXPECT_EQ(":a.jpg", Walk().toStdString());
}

TEST_F(FindGraphicsSearch, FindsNothingInADirectoryThatDoesNotExist) {
    GraphicsSearch Search(Pics / u"gone"_s, u"*.*"_s, GraphicTypes());
    EXPECT_TRUE(Search.Wait(10000));
    EXPECT_TRUE(Search.AtEnd());
}

TEST_F(FindGraphicsSearch, GoesOnBehindADirectoryThatCannotBeListedToTheEnd) {
    for (const char* Name : {"a.jpg", "m/b.jpg", "m/c.jpg", "z/d.jpg"})
        Make(QString::fromLatin1(Name));
    const auto Gone = [](const QString& Dir, std::error_code& Error) {
        auto Entries = ListDir(Dir);
        if (Dir.endsWith(u"/m/")) {
            Entries.pop_back();
            Error = std::make_error_code(std::errc::io_error);
        }
        return Entries;
    };
    EXPECT_EQ(":a.jpg m:b.jpg z:d.jpg", Walk(u"*.*"_s, GraphicTypes(), Gone).toStdString());
    EXPECT_EQ("m: Input/output error", Faults.join(u'|').toStdString());
}

TEST_F(FindGraphicsSearch, GoesOnPastADirectoryThatHasGoneSinceItWasSeen) {
    for (const char* Name : {"m/b.jpg", "z/d.jpg"}) Make(QString::fromLatin1(Name));
    const auto Gone = [this](const QString& Dir, std::error_code& Error) {
        if (Dir.endsWith(u"/m/")) DeleteTree(Pics / u"m"_s);
        return ListDir(Dir, Error);
    };
    EXPECT_EQ(": z:d.jpg", Walk(u"*.*"_s, GraphicTypes(), Gone).toStdString());
}

// Deleted by somebody, a whole branch of the tree may go; what is below it is no fault.
TEST_F(FindGraphicsSearch, GoesOnPastABranchThatHasGone) {
    for (const char* Name : {"a/m/b.jpg", "a/n/c.jpg", "z/d.jpg"}) Make(QString::fromLatin1(Name));
    const auto Gone = [this](const QString& Dir, std::error_code& Error) {
        if (Dir.endsWith(u"/m/")) DeleteTree(Pics / u"a"_s);
        return ListDir(Dir, Error);
    };
    EXPECT_EQ(": a: z:d.jpg", Walk(u"*.*"_s, GraphicTypes(), Gone).toStdString());
}

TEST_F(FindGraphicsSearch, TellsThatAllThatIsSearchedHasGone) {
    for (const char* Name : {"m/b.jpg", "z/d.jpg"}) Make(QString::fromLatin1(Name));
    const auto Gone = [this](const QString& Dir, std::error_code& Error) {
        if (Dir.endsWith(u"/m/")) DeleteTree(Pics.Path());
        return ListDir(Dir, Error);
    };
    EXPECT_EQ(": m:", Walk(u"*.*"_s, GraphicTypes(), Gone).toStdString());
    EXPECT_EQ(std::errc::no_such_device, Last.Error);
}

TEST_F(FindGraphicsSearch, ListsNamesThatAreNoText) {
    Make(u"a.jpg"_s);
    const auto Below = [this](const char* Name) { return (Pics.Path().toStdString() + Name); };
    EXPECT_EQ(0, mkdir(Below("\xe4").c_str(), 0755));
    for (const char* Name : {"Gru\xdf.jpg", "\xe4/b.jpg"})
        EXPECT_EQ(0, mknod(Below(Name).c_str(), S_IFREG | 0644, 0));
    EXPECT_EQ(HostName(":a.jpg,Gru\xdf.jpg \xe4:b.jpg"), Walk());
    for (const char* Name : {"Gru\xdf.jpg", "\xe4/b.jpg", "\xe4"})
        EXPECT_EQ(0, remove(Below(Name).c_str()));  // Qt cannot address them
}

// The path of the innermost is longer than the host takes.
TEST_F(FindGraphicsSearch, TellsOfADirectoryThatLiesTooDeep) {
    Make(u"a.jpg"_s);
    const std::string Name(250, 'd');
    int Dir = open(qPrintable(Pics.Path()), O_RDONLY);
    for (int I = 0; I < 20; ++I) {
        EXPECT_EQ(0, mkdirat(Dir, Name.c_str(), 0755));
        const int Below = openat(Dir, Name.c_str(), O_RDONLY);
        close(std::exchange(Dir, Below));
    }
    close(Dir);
    EXPECT_TRUE(Walk().startsWith(u":a.jpg "));
    EXPECT_EQ(std::errc::filename_too_long, Last.Error);
    JobState Count;
    EXPECT_EQ(1, CountGraphicFiles(Pics.Path(), true, Count));
    QProcess::execute(u"rm"_s, {u"-rf"_s, Pics / QString::fromStdString(Name)});
}

TEST_F(FindGraphicsSearch, IsLeftThoughTheMediumNeverAnswers) {
    harness::GoByTheClock();
    Make(u"a.jpg"_s);
    const auto Hang = [](const QString&, std::error_code&) -> std::vector<DirEntry> {
        QThread::sleep(3);
        return {};
    };
    QElapsedTimer Time;
    Time.start();
    {
        GraphicsSearch Search(Pics.Path(), u"*.*"_s, GraphicTypes(), Hang);
        EXPECT_FALSE(Search.Wait(10));
    }
    EXPECT_LT(Time.elapsed(), 900);
}

}  // namespace
}  // namespace neb
