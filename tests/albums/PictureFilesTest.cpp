// Which files are pictures, and the walks that collect and count them.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QFile>

#include "albums/GraphicsSearch.h"
#include "albums/modPictureFiles.h"
#include "harness/TempFolder.h"
#include "harness/WithoutExtraFormats.h"
#include "harness/WithoutPrivileges.h"
#include "support/files/HostNames.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

using namespace harness;
using namespace Qt::StringLiterals;

const KeepGoing GoOn = [] { return true; };

class PictureFiles : public ::testing::Test {
  protected:
    // What was found, without the folder of pictures in front.
    std::string Scan(bool Recurse, const KeepGoing& Goes = GoOn) {
        QStringList Names;
        for (const QString& Path : ScanDirectory(Pics.Path(), Recurse, Goes)) {
            EXPECT_TRUE(Path.startsWith(Pics.Path()));
            Names << Path.mid(Pics.Path().size());
        }
        return Names.join(u' ').toStdString();
    }
    static void TouchAt(const QString& Path) {
        MakeDirs(Path.left(Path.lastIndexOf(u'/')));
        WriteFile(Path, "x");
    }
    void Touch(const char* Name) { TouchAt(Pics / QString::fromUtf8(Name)); }
    std::int32_t Count(bool Recurse) { return CountIn(Pics.Path(), Recurse); }
    static std::int32_t CountIn(const QString& Directory, bool Recurse) {
        JobState Counted;
        return CountGraphicFiles(Directory, Recurse, Counted);
    }

    TempFolder Pics;
};

TEST_F(PictureFiles, CountAsPicturesByTheirLastExtensionInAnyCase) {
    const harness::WithoutExtraFormats Off;
    for (const char* Name :
         {"a.bmp", "a.EMF", "a.jpeg", "a.JPG", "a.pcd", "a.Pcx", "a.png", "a.psd", "a.tga", "a.tif",
          "a.TIFF", "a.tla", "a.wbmp", "a.wmf", "a.b.jpg", ".jpg"})
        EXPECT_TRUE(IsPictureName(QString::fromLatin1(Name))) << Name;
    for (const char* Name : {"a.jpg.bak", "a.gif", "jpg", "a.", "", "a.jpg ", "a.webp", "a.jp"})
        EXPECT_FALSE(IsPictureName(QString::fromLatin1(Name))) << Name;
}

TEST_F(PictureFiles, AreTheSameForCountingForFindGraphicsAndForTheFileDialog) {
    const harness::WithoutExtraFormats Off;
    QStringList Found, Offered;
    for (const QString& Each : GraphicTypes().join(u'/').split(u'/')) Found << u'.' + Each;
    Found.sort();
    EXPECT_EQ(PictureExtensions(), Found);
    const QString All = PictureFilters().section(u'|', -1);
    for (const QString& Mask : All.split(u';')) Offered << Mask.sliced(1).toUpper();
    EXPECT_EQ(PictureExtensions(), Offered);
    for (const QString& Each : PictureExtensions()) {
        Touch(("picture" + Each.toLower().toLatin1()).constData());
        EXPECT_TRUE(IsSelectedType(Each, GraphicTypes())) << Each.toStdString();
    }
    Touch("picture.gif");
    EXPECT_EQ(PictureExtensions().size(), Count(false));
    EXPECT_EQ(PictureExtensions().size(), QString::fromStdString(Scan(false)).split(u' ').size());
}

TEST_F(PictureFiles, StandInTheOrderInWhichPeopleReadTheirNames) {
    for (const char* Name :
         {"b.jpg", "A.jpg", "C.png", "a_.jpg", "notes.txt", "B1.jpg", "B10.jpg", "b2.jpg"})
        Touch(Name);
    EXPECT_EQ("A.jpg a_.jpg b.jpg B1.jpg b2.jpg B10.jpg C.png", Scan(false));
}

TEST_F(PictureFiles, OfADirectoryComeBeforeThoseOfItsSubdirectoriesDepthFirst) {
    for (const char* Name :
         {"z.jpg", "A/m.jpg", "A/deep/x.jpg", "A/a.jpg", "b/y.jpg", "b10/w.jpg", "b9/v.jpg"})
        Touch(Name);
    EXPECT_EQ("z.jpg A/a.jpg A/m.jpg A/deep/x.jpg b/y.jpg b9/v.jpg b10/w.jpg", Scan(true));
    EXPECT_EQ("z.jpg", Scan(false));
}

TEST_F(PictureFiles, AreNotDirectoriesOfTheirName) {
    Touch("x.jpg/inside.png");
    EXPECT_EQ("", Scan(false));
    EXPECT_EQ("x.jpg/inside.png", Scan(true));
    EXPECT_EQ(0, Count(false));
    EXPECT_EQ(1, Count(true));
}

TEST_F(PictureFiles, CountUpperAndLowerCaseNamesAndNoBackups) {
    for (const char* Name : {"a.JPG", "b.jpg", "c.jpg.bak", "d.txt", "sub/e.png", "sub/f.bak"})
        Touch(Name);
    EXPECT_EQ(2, Count(false));
    EXPECT_EQ(3, Count(true));
}

TEST_F(PictureFiles, NumberNoneInADirectoryThatHasVanished) {
    EXPECT_EQ(0, CountIn(Pics / u"gone"_s, true));
    EXPECT_TRUE(ScanDirectory(Pics / u"gone/"_s, true, GoOn).isEmpty());
}

TEST_F(PictureFiles, AreCountedByTheSameNamesThatTheImportTakes) {
    const harness::WithoutExtraFormats Off;
    for (const char* Name :
         {"a.jpg", "b.JPEG", "c.wBmp",
          "d.t\xC4\xB1"
          "f",
          "e.jp", "f.jpgx", "g", "g.png", "sub.tif/\xC3\xA4.tla", "sub.tif/h.gif"})
        Touch(Name);
    for (bool Recurse : {false, true}) {
        QStringList Found = ScanDirectory(Pics.Path(), Recurse, GoOn);
        EXPECT_EQ(Recurse ? 6 : 5, Found.size());
        EXPECT_EQ(Found.size(), Count(Recurse));
    }
}

TEST_F(PictureFiles, AreNoPipesOfTheirName) {
    Touch("a.jpg");
    ASSERT_EQ(0, mkfifo(qPrintable(Pics / u"pipe.jpg"_s), 0600));
    EXPECT_EQ(1, Count(true));
}

TEST_F(PictureFiles, AreCountedInDirectoriesOfAnyDepth) {
    QString Deep = Pics.Path();
    for (int I = 0; I < 300; ++I) Deep += u"d/"_s;
    TouchAt(Deep + u"a.jpg"_s);
    EXPECT_EQ(1, Count(true));
}

TEST_F(PictureFiles, AreCountedNoFurtherOnceTheCountIsStopped) {
    for (const char* Name : {"a.jpg", "b.jpg", "sub/c.jpg"}) Touch(Name);
    JobState Stopped;
    Stopped.Stop = true;
    EXPECT_GE(1, CountGraphicFiles(Pics.Path(), true, Stopped));
}

TEST_F(PictureFiles, BehindALinkAreCounted) {
    Touch("a.jpg");
    TempFolder Other;
    TouchAt(Other / u"b.jpg"_s);
    ASSERT_TRUE(QFile::link(Other.Path().chopped(1), Pics / u"other"_s));
    ASSERT_TRUE(QFile::link(Other / u"b.jpg"_s, Pics / u"b.jpg"_s));
    EXPECT_EQ(2, Count(false));
    EXPECT_EQ(3, Count(true));
}

TEST_F(PictureFiles, ThatMayNotBeReadAreNotCounted) {
    Touch("a.jpg");
    Touch("b.jpg");
    QFile::setPermissions(Pics / u"b.jpg"_s, QFile::WriteOwner);
    QFile::setPermissions(Pics.Path(), QFile::Permissions(0x7755));
    const harness::WithoutPrivileges User;
    EXPECT_EQ(1, Count(false));
}

TEST_F(PictureFiles, ThatDoNotOpenAreNotCounted) {
    Touch("a.jpg");
    ASSERT_TRUE(QFile::link(Pics / u"nowhere"_s, Pics / u"broken.jpg"_s));
    EXPECT_EQ(1, Count(false));
}

TEST_F(PictureFiles, AreWalkedOnceThoughALinkLeadsBack) {
    Touch("sub/a.jpg");
    ASSERT_TRUE(QFile::link(Pics.Path(), Pics / u"sub/back"_s));
    EXPECT_EQ("sub/a.jpg", Scan(true));
    EXPECT_EQ(1, Count(true));
}

TEST_F(PictureFiles, FoundBeforeAStopAreKept) {
    for (const char* Name : {"a.jpg", "b.jpg", "c.jpg", "d.jpg"}) Touch(Name);
    int Polls = 0;
    EXPECT_EQ("a.jpg b.jpg", Scan(false, [&] { return ++Polls < 3; }));
    EXPECT_EQ(3, Polls);
}

TEST_F(PictureFiles, InAnUnreadableSubdirectoryArePassedOver) {
    for (const char* Name : {"a.jpg", "locked/b.jpg", "open/c.jpg"}) Touch(Name);
    const auto All = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    QFile::setPermissions(Pics / u"locked"_s, {});
    QFile::setPermissions(
        Pics.Path(), All | QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther);
    std::string Found;
    std::int32_t Counted = 0;
    {
        const harness::WithoutPrivileges User;
        Found = Scan(true);
        Counted = Count(true);
    }
    QFile::setPermissions(Pics / u"locked"_s, All);
    EXPECT_EQ("a.jpg open/c.jpg", Found);
    EXPECT_EQ(2, Counted);
}

class HiddenPictures : public PictureFiles {
  protected:
    void SetUp() override {
        for (const char* Name :
             {"a.jpg", "._a.jpg", ".jpg", ".thumbs/b.jpg", ".Trash-1000/files/c.jpg",
              "$RECYCLE.BIN/S-1-5/$RX1.jpg", "RECYCLER/Dc1.jpg", "System Volume Information/d.jpg",
              "lost+found/#12.jpg", "sub/e.jpg", "sub/.f.jpg", "sub/@eaDir/e.jpg/SYNO_XL.jpg",
              "sub/#recycle/g.jpg", "Trash/h.jpg", "Papierkorb/i.jpg", "..x/j.jpg"})
            Touch(Name);
    }
};

TEST_F(HiddenPictures, DoNotComeIn) {
    EXPECT_EQ("a.jpg", Scan(false));
    EXPECT_EQ("a.jpg Papierkorb/i.jpg sub/e.jpg Trash/h.jpg", Scan(true));
}

TEST_F(HiddenPictures, DoNotCount) {
    EXPECT_EQ(1, Count(false));
    EXPECT_EQ(4, Count(true));
}

TEST_F(HiddenPictures, ComeInWhereTheUserHasChosenTheirFolder) {
    const QString Chosen = Pics / u".thumbs"_s;
    Touch(".thumbs/.g.jpg");
    Touch(".thumbs/.h/i.jpg");
    EXPECT_EQ(QStringList(Chosen + u"/b.jpg"_s), ScanDirectory(Chosen, true, GoOn));
    EXPECT_EQ(1, CountIn(Chosen, true));
}

TEST_F(PictureFiles, WhoseNamesAreNoTextComeIn) {
    const QString Odd = HostName(
        "Urlaub \xFC/Gr\xFC\xDF"
        "e.jpg");
    TouchAt(Pics.Path() + Odd);
    EXPECT_EQ(QStringList(Pics.Path() + Odd), ScanDirectory(Pics.Path(), true, GoOn));
    EXPECT_EQ(1, Count(true));
    EXPECT_EQ("x", ReadFile(ScanDirectory(Pics.Path(), true, GoOn)[0]));
    DeleteTree(Pics / HostName("Urlaub \xFC"));
}

TEST_F(PictureFiles, OfForeignKindsAreTold) {
    for (const char* Name : {"film.mp4", "a.jpg", "note 10.txt", "note 9.txt", ".note", "Thumbs.db",
                             "desktop.ini", "sub/README", "sub/song.mp3", ".git/config"})
        Touch(Name);
    const auto Others = [this](bool Recurse) {
        QStringList Names = ScanPictures(Pics.Path(), Recurse, GoOn).OtherFiles;
        return Names.replaceInStrings(Pics.Path(), QString()).join(u'|').toStdString();
    };
    EXPECT_EQ("film.mp4|note 9.txt|note 10.txt", Others(false));
    EXPECT_EQ("film.mp4|note 9.txt|note 10.txt|sub/README|sub/song.mp3", Others(true));
}

TEST_F(PictureFiles, BehindAFolderThatCannotBeListedAreToldByIt) {
    for (const char* Name : {"a.jpg", "locked/b.jpg", "open/c.jpg"}) Touch(Name);
    const auto All = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    QFile::setPermissions(Pics / u"locked"_s, {});
    QFile::setPermissions(
        Pics.Path(), All | QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther);
    struct Scan Found;
    {
        const harness::WithoutPrivileges User;
        Found = ScanPictures(Pics.Path(), true, GoOn);
    }
    QFile::setPermissions(Pics / u"locked"_s, All);
    EXPECT_EQ(2, Found.Files.size());
    ASSERT_EQ(1U, Found.UnreadableFolders.size());
    EXPECT_EQ(Pics / u"locked/"_s, Found.UnreadableFolders[0].Path);
    EXPECT_EQ("Permission denied", Found.UnreadableFolders[0].Reason.toStdString());
}

TEST_F(PictureFiles, InAFolderThatHasGoneAreToldByIt) {
    const struct Scan Found = ScanPictures(Pics / u"gone"_s, true, GoOn);
    ASSERT_EQ(1U, Found.UnreadableFolders.size());
    EXPECT_EQ("No such file or directory", Found.UnreadableFolders[0].Reason.toStdString());
}

}  // namespace
}  // namespace neb
